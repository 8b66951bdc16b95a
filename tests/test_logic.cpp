// And, Or, Xor, their constant forms, Not and the shifts against a plain
// statement of each rule: every member, rows of every length around the
// register blocks, odd offsets, images between guard pages, constants both
// equal (the C3 forms then run as one channel) and different, shift counts
// at and beyond the sample width and past 31.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "harness/differential.h"
#include "harness/guard.h"
#include "pxli.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;
using pxltest::diff::Member;

// The rule for one sample: a the source, b the other image's sample or the
// constant, count the shift.
long long rule(const Member& m, long long a, long long b, std::uint32_t count) {
  const unsigned bits = 8 * m.t.partBytes;
  switch (m.op[0]) {  // And, Or, Xor, Not, LShift, RShift
    case 'A': return a & b;
    case 'O': return a | b;
    case 'X': return a ^ b;
    case 'N': return ~a;
    case 'L': return count >= bits ? 0 : (long long)((unsigned long long)a << count);
  }
  if (m.t.lo == 0) return count >= bits ? 0 : a >> count;
  return a >> std::min<std::uint32_t>(count, 62);  // floor(a / 2^count)
}

bool isShift(const Member& m) { return m.op == "LShift" || m.op == "RShift"; }

void refRow(const Member& m, const pxltest::diff::Operands& o, int y, int, std::uint8_t* row, bool&) {
  std::uint32_t counts[4] = {};
  const bool shift = isShift(m);
  if (shift) std::memcpy(counts, o.value.data(), sizeof counts);
  o.forEachSample(m, y, [&](const std::uint8_t* a, const std::uint8_t* b, int off) {
    // Constant forms: a is the constant, b the source.
    const long long src = get(m.constant ? b : a, m).i[0], other = shift ? 0 : get(m.constant ? a : b, m).i[0];
    pxltest::diff::Num r;
    r.i[0] = rule(m, src, other, counts[off / m.t.partBytes % m.channels]);
    put(row + off, r, m);
  });
}

// Shift counts around the sample width and past 31, all equal a third of
// the time (the C3 forms then run as one channel).
std::vector<std::uint8_t> countsFor(const Member& m, std::mt19937& rng) {
  if (!isShift(m)) return pxltest::diff::constants(m, rng, false);
  const std::uint32_t bits = 8 * m.t.partBytes;
  const std::uint32_t pick[] = {0, 1, 3, bits - 1, bits, bits + 1, 31, 32, 40, 0xFFFFFFFFu, std::uint32_t(rng() % bits)};
  const bool equal = rng() % 3 == 0;
  std::uint32_t counts[4];
  for (int c = 0; c < 4; ++c) counts[c] = equal && c > 0 ? counts[0] : pick[rng() % (sizeof pick / sizeof pick[0])];
  const auto* p = reinterpret_cast<const std::uint8_t*>(counts);
  return {p, p + sizeof counts};
}

TEST(Logic, EveryMemberFollowsItsRuleAtEveryLengthOffsetAndCount) {
  pxltest::diff::Family f{"And|Or|Xor|Not|LShift|RShift", 4301, {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33},
                          [](const Member& m) { return std::vector<int>(isShift(m) ? 6 : 2, 0); }, refRow};
  f.constants = countsFor;
  f.unary = "Not";
  const int members = pxltest::diff::runEveryMember(f);
  if (HasFatalFailure()) return;
  // Six logic families of 3 types, Not, LShiftC of 3, RShiftC of 5; 4 layouts, 2 forms.
  EXPECT_EQ(members, (6 * 3 + 1 + 3 + 5) * 4 * 2);
}

// Destinations past the cache's share are written with streaming stores
// after a scalar run up to a register boundary: the same bytes, alpha too.
TEST(Logic, LargeImagesGiveTheSameBytes) {
  std::mt19937 rng(4302);
  const pxltest::diff::Names names("And|Or|Xor|Not|LShift|RShift");
  const std::pair<const char*, int> big[] = {{"pxliAnd_8u_C1R", 4100},
                                             {"pxliXorC_8u_AC4IR", 1030},
                                             {"pxliOrC_32s_C3R", 700},
                                             {"pxliRShiftC_16s_C4IR", 1030}};
  int ran = 0;
  for (const SweepEntry& e : kSweepTable) {
    Member m;
    if (!names.parse(e, m)) continue;
    if (m.constant || m.op == "Not") m.sources = 1;
    for (const auto& b : big)
      if (std::string(e.name) == b.first) {
        pxltest::diff::runTrial(m, {b.second, 2051, 0}, rng, 1, countsFor, refRow);
        ++ran;
      }
  }
  EXPECT_EQ(ran, 4);
}

// The cases where a decision, not arithmetic, fixes the result.
TEST(Logic, CountsAtAndBeyondTheWidth) {
  TestImage im(9, 2, 2, 4, 6, Place::Back, 7);
  std::int16_t* r0 = im.at<std::int16_t>(0);
  std::int16_t* r1 = im.at<std::int16_t>(1);
  for (int x = 0; x < 9; ++x) r0[x] = -1, r1[x] = 5;
  ASSERT_EQ(pxliRShiftC_16s_C1IR(40, r0, im.step(), {9, 2}), pxlStsOk);
  for (int x = 0; x < 9; ++x) {
    EXPECT_EQ(r0[x], -1);
    EXPECT_EQ(r1[x], 0);
  }

  Pxl8s s8[3] = {-100, 100, -1}, d8[3];
  ASSERT_EQ(pxliRShiftC_8s_C1R(s8, 3, 10, d8, 3, {3, 1}), pxlStsOk);
  EXPECT_EQ(d8[0], -1);
  EXPECT_EQ(d8[1], 0);
  EXPECT_EQ(d8[2], -1);

  Pxl8u u[5] = {1, 128, 255, 7, 9}, out[5];
  ASSERT_EQ(pxliLShiftC_8u_C1R(u, 5, 8, out, 5, {5, 1}), pxlStsOk);
  for (Pxl8u v : out) EXPECT_EQ(v, 0);
  ASSERT_EQ(pxliLShiftC_8u_C1R(u, 5, 0, out, 5, {5, 1}), pxlStsOk);
  EXPECT_EQ(0, std::memcmp(u, out, 5));
  ASSERT_EQ(pxliLShiftC_8u_C1R(u, 5, 1, out, 5, {5, 1}), pxlStsOk);
  EXPECT_EQ(out[1], 0);  // the top bit is lost
  EXPECT_EQ(out[2], 254);
}

TEST(Logic, NotLeavesAlphaAndAnErrorWritesNothing) {
  TestImage s(19, 2, 4, 2, 2, Place::Back, 4), d(19, 2, 4, 6, 0, Place::Front, 5);
  const auto before = d.snapshot();
  ASSERT_EQ(pxliNot_8u_AC4R(s.roi(), s.step(), d.roi(), d.step(), {19, 2}), pxlStsOk);
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 19; ++x)
      for (int c = 0; c < 4; ++c)
        EXPECT_EQ(d.row(y)[x * 4 + c], c == 3 ? before[6 + y * d.step() + x * 4 + c] : Pxl8u(~s.row(y)[x * 4 + c]));
  // Null count array with a bad step: the pointer is reported; step before size.
  const auto snap = d.snapshot();
  EXPECT_EQ(pxliRShiftC_16u_C3R(reinterpret_cast<Pxl16u*>(s.roi()), 0, nullptr,
                                reinterpret_cast<Pxl16u*>(d.roi()), d.step(), {3, 1}),
            pxlStsNullPtr);
  const Pxl32u n[3] = {1, 2, 3};
  EXPECT_EQ(pxliRShiftC_16u_C3R(reinterpret_cast<Pxl16u*>(s.roi()), 0, n, reinterpret_cast<Pxl16u*>(d.roi()),
                                d.step(), {0, 1}),
            pxlStsStep);
  EXPECT_TRUE(d.unchanged(snap));
}

}  // namespace
