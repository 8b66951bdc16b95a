// Add, Sub, AddC, SubC against an independent statement of the scale rule:
// every image member and vector form, scales at and beyond each limit, run
// by the differential trial (random sizes, offsets and thread counts, images
// between guard pages).
#include <gtest/gtest.h>

#include "harness/differential.h"
#include "harness/int128.h"

namespace {

using pxltest::diff::Member;
using pxltest::diff::Num;
using pxltest::diff::TypeInfo;

// The rule, written independently of the library: exact value, unsigned
// differences clamped at zero, then divide by 2^s rounding half to even, or
// multiply by 2^-s, then saturate.
long long refScale(long long x, int s, const TypeInfo& t, bool sub) {
  if (sub && t.lo == 0 && x < 0) x = 0;
  i128 v;
  if (s == 0) {
    v = x;
  } else if (s > 0) {
    if (s > 60) {
      v = 0;
    } else {
      const i128 d = i128(1) << s;
      i128 q = x >= 0 ? i128(x) / d : -((-i128(x) + d - 1) / d);  // floor
      const i128 r = i128(x) - q * d;
      if (2 * r > d || (2 * r == d && (q & 1))) ++q;
      v = q;
    }
  } else {
    v = -s > 60 ? (x > 0 ? i128(1) << 100 : x < 0 ? -(i128(1) << 100) : 0) : i128(x) * (i128(1) << -s);
  }
  if (v < t.lo) v = t.lo;
  if (v > t.hi) v = t.hi;
  return static_cast<long long>(v);
}

// One sample, part by part: a op b with b the sample a subtraction
// subtracts from. Floats in single precision.
void refSample(const std::uint8_t* pa, const std::uint8_t* pb, std::uint8_t* d, const Member& m, int s) {
  const bool sub = m.op == "Sub";
  const Num a = get(pa, m), b = get(pb, m);
  Num r;
  for (int p = 0; p < m.t.parts; ++p) {
    if (m.t.isFloat)
      r.f[p] = sub ? float(b.f[p]) - float(a.f[p]) : float(a.f[p]) + float(b.f[p]);
    else
      r.i[p] = refScale(sub ? b.i[p] - a.i[p] : a.i[p] + b.i[p], s, m.t, sub);
  }
  put(d, r, m);
}

void refRow(const Member& m, const pxltest::diff::Operands& o, int y, int s, std::uint8_t* row, bool&) {
  o.forEachSample(m, y, [&](const std::uint8_t* a, const std::uint8_t* b, int off) { refSample(a, b, row + off, m, s); });
  // In place, 32f constant AC4 also rewrites alpha as alpha (op) 0.
  if (m.constant && m.inPlace && m.layout == "AC4" && m.type == "32f")
    for (int x = 0; x < o.dst->width(); ++x) {
      const float zero = 0.0f;
      const int off = (x * 4 + 3) * 4;
      refSample(reinterpret_cast<const std::uint8_t*>(&zero), o.dst->row(y) + off, row + off, m, 0);
    }
}

// Scales worth testing for a type: around both limits and the small ones.
std::vector<int> scalesFor(const Member& m) {
  if (m.t.isFloat) return {0};
  int pos = 16, neg = -15;
  if (m.type == "8u") pos = m.op == "Sub" ? 8 : 9, neg = -7;
  if (m.type == "16u") pos = m.op == "Sub" ? 16 : 17;
  if (m.t.partBytes == 4) pos = 32, neg = -30;
  return {0, 1, 2, 3, pos - 1, pos, pos + 1, pos + 7, -1, -2, neg + 1, neg, neg - 1, neg - 9};
}

TEST(AddSub, EveryMemberFollowsTheRuleAtEveryScaleLengthAndThreadCount) {
  // Short rows cross every block boundary and tail length.
  const int members =
      pxltest::diff::runEveryMember({"Add|Sub", 2024, {1, 2, 3, 7, 8, 15, 16, 17, 31, 33}, scalesFor, refRow});
  if (HasFatalFailure()) return;
  EXPECT_EQ(members, 238);
}

}  // namespace
