// Every float constant member whose samples are one IEEE operation each
// (AddC, SubC, MulC of real types, DivC as a product by the reciprocal;
// AddC, SubC of complex ones, part by part): signed zeros, infinities and NaN payloads come out exactly as the
// one operation gives them, in the vector blocks and the tails alike. Where
// both operands are NaN either payload may win.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "harness/differential.h"

namespace {

using pxltest::diff::Member;

const std::uint32_t kSpecials[] = {
    0x00000000u, 0x80000000u,  // +0, -0
    0x7f800000u, 0xff800000u,  // +inf, -inf
    0x7fc12345u, 0xffc00abcu,  // quiet NaNs with payloads
    0x7f800123u,               // a signalling NaN
    0x3fc00000u, 0xc0000000u,  // 1.5, -2
    0x00000001u, 0x80400000u,  // subnormals
};

float bitsF(std::uint32_t u) {
  float f;
  std::memcpy(&f, &u, 4);
  return f;
}

float apply(const std::string& op, float c, float x) {
  volatile float vc = c, vx = x;
  if (op == "Add") return vc + vx;
  if (op == "Sub") return vx - vc;
  if (op == "Mul") return vc * vx;
  volatile float r = 1.f / vc;  // DivC multiplies by the reciprocal
  return vx * r;
}

bool sameResult(float got, float want, float c, float x) {
  if (std::isnan(c) && std::isnan(x)) return std::isnan(got);
  return std::memcmp(&got, &want, 4) == 0;
}

TEST(FloatConstants, SignedZerosAndNaNsPassAsOneIeeeOperation) {
  const pxltest::diff::Names names("Add|Sub|Mul|Div");
  int members = 0;
  for (const SweepEntry& e : kSweepTable) {
    Member m;
    if (!names.parse(e, m) || !m.constant || m.type != (m.t.parts == 2 ? "32fc" : "32f")) continue;
    if (m.t.parts == 2 && (m.op == "Mul" || m.op == "Div")) continue;  // not one operation a part
    ++members;
    const int parts = m.t.parts, sampleFloats = m.channels * parts;
    // A width of 130 samples runs whole blocks and a tail at every level.
    const int width = m.vector ? 130 : 130 / m.channels + 1;
    const int n = width * sampleFloats;
    for (std::uint32_t cbits : kSpecials) {
      pxltest::TestImage src(width, 1, sampleFloats * 4, 4, 4, pxltest::Place::Back, 3);
      pxltest::TestImage dstOwn(width, 1, sampleFloats * 4, 4, 4, pxltest::Place::Front, 4);
      pxltest::TestImage& dst = m.inPlace ? src : dstOwn;
      for (int i = 0; i < n; ++i) std::memcpy(src.row(0) + 4 * i, &kSpecials[(i * 7 + i / 11) % 11], 4);
      std::vector<float> value(4 * parts, bitsF(cbits));
      std::vector<float> in(n), was(n);
      std::memcpy(in.data(), src.row(0), 4 * n);
      std::memcpy(was.data(), dst.row(0), 4 * n);
      SweepArgs a{};
      a.img[0] = src.roi(), a.step[0] = src.step();
      a.img[1] = dst.roi(), a.step[1] = dst.step();
      a.roi = {width, 1};
      a.length = width;
      a.value = value.data();
      if (m.op == "Div" && bitsF(cbits) == 0) {  // refused, nothing written
        const auto before = dst.snapshot();
        ASSERT_EQ(pxlStsDivByZeroConst, e.call(a)) << e.name;
        ASSERT_TRUE(dst.unchanged(before)) << e.name;
        continue;
      }
      ASSERT_EQ(pxlStsOk, e.call(a)) << e.name;
      for (int i = 0; i < n; ++i) {
        const bool alpha = m.layout == "AC4" && (i / parts) % 4 == 3;
        float want = apply(m.op, bitsF(cbits), in[i]);
        // In place, real AC4 members rewrite alpha as alpha (op) a constant
        // that keeps its value: +0 or 1.
        const float keep = m.op == "Mul" || m.op == "Div" ? 1.f : 0.f;
        if (alpha) want = m.inPlace && parts == 1 ? apply(m.op, keep, in[i]) : was[i];
        float got;
        std::memcpy(&got, dst.row(0) + 4 * i, 4);
        std::uint32_t gb, wb, xb;
        std::memcpy(&gb, &got, 4), std::memcpy(&wb, &want, 4), std::memcpy(&xb, &in[i], 4);
        ASSERT_TRUE(sameResult(got, want, alpha ? keep : bitsF(cbits), in[i]))
            << e.name << " sample " << i << std::hex << ": constant 0x" << cbits << " source 0x" << xb << " got 0x"
            << gb << " want 0x" << wb;
      }
    }
  }
  EXPECT_GE(members, 30);
}

}  // namespace
