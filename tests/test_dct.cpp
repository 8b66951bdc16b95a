// 8x8 DCT: the integer flows' fixed points and rules, the float forms
// against the orthonormal formula in double, zigzag.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "pxli.h"

namespace {

void exactDct(const double* f, double* X, bool inverse) {
  auto C = [](int u, int x) {
    return 0.5 * (u == 0 ? std::sqrt(0.5) : 1.0) * std::cos((2 * x + 1) * u * M_PI / 16);
  };
  for (int u = 0; u < 8; ++u)
    for (int v = 0; v < 8; ++v) {
      double acc = 0;
      for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
          acc += f[8 * y + x] * (inverse ? C(y, u) * C(x, v) : C(u, y) * C(v, x));
      X[8 * u + v] = acc;
    }
}

TEST(DCT8x8, FloatFormsMatchOrthonormalFormula) {
  std::mt19937 g(3);
  std::uniform_real_distribution<float> d(-255, 255);
  float in[64], out[64], back[64];
  double ind[64], ref[64];
  for (int i = 0; i < 64; ++i) ind[i] = in[i] = d(g);
  exactDct(ind, ref, false);
  ASSERT_EQ(pxliDCT8x8Fwd_32f_C1(in, out), pxlStsOk);
  for (int i = 0; i < 64; ++i) EXPECT_NEAR(out[i], ref[i], 2e-4);
  std::copy(out, out + 64, back);
  ASSERT_EQ(pxliDCT8x8Inv_32f_C1I(back), pxlStsOk);
  for (int i = 0; i < 64; ++i) EXPECT_NEAR(back[i], in[i], 2e-4);
  EXPECT_EQ(pxliDCT8x8Fwd_32f_C1(nullptr, out), pxlStsNullPtr);
}

// The integer flow is close to the exact transform (it is a fixed-point
// version of it), within the truncations of its shifts.
TEST(DCT8x8, IntegerForwardAndInverseTrackTheExactTransform) {
  std::mt19937 g(7);
  std::uniform_int_distribution<int> d(0, 255);
  for (int trial = 0; trial < 200; ++trial) {
    Pxl8u px[64];
    Pxl16s c[64], r[64];
    double f[64], X[64];
    for (int i = 0; i < 64; ++i) f[i] = (px[i] = Pxl8u(d(g))) - 128.0;
    exactDct(f, X, false);
    ASSERT_EQ(pxliDCT8x8FwdLS_8u16s_C1R(px, 8, c, -128), pxlStsOk);
    for (int i = 0; i < 64; ++i) EXPECT_NEAR(c[i], X[i], 1.0) << i;
    ASSERT_EQ(pxliDCT8x8Inv_16s_C1(c, r), pxlStsOk);
    for (int i = 0; i < 64; ++i) EXPECT_NEAR(r[i], f[i], 2.0) << i;
  }
}

TEST(DCT8x8, FlowFixedPoints) {
  Pxl16s z[64] = {}, out[64];
  ASSERT_EQ(pxliDCT8x8Fwd_16s_C1(z, out), pxlStsOk);  // the "| 1" bias shifts away
  for (auto v : out) EXPECT_EQ(v, 0);
  ASSERT_EQ(pxliDCT8x8Inv_16s_C1(z, out), pxlStsOk);
  for (auto v : out) EXPECT_EQ(v, 0);
  // a block of 128s shifted by -128
  Pxl8u px[64];
  std::fill(px, px + 64, 128);
  ASSERT_EQ(pxliDCT8x8FwdLS_8u16s_C1R(px, 8, out, -128), pxlStsOk);
  for (auto v : out) EXPECT_EQ(v, 0);
  // lone DC value: D/8 everywhere
  Pxl16s dc[64] = {800};
  ASSERT_EQ(pxliDCT8x8Inv_16s_C1(dc, out), pxlStsOk);
  for (auto v : out) EXPECT_NEAR(v, 100, 1);
  // the shortened inverses agree with the full one on their own support,
  // and never read beyond it
  std::mt19937 g(1);
  std::uniform_int_distribution<int> d(-300, 300);
  for (int n : {2, 4}) {
    Pxl16s blk[64] = {}, junk[64], a[64], b[64];
    for (int y = 0; y < n; ++y)
      for (int x = 0; x < n; ++x) blk[8 * y + x] = Pxl16s(d(g));
    std::copy(blk, blk + 64, junk);
    for (int i = 0; i < 64; ++i)
      if (i % 8 >= n || i / 8 >= n) junk[i] = 999;
    ASSERT_EQ((n == 2 ? pxliDCT8x8Inv_2x2_16s_C1 : pxliDCT8x8Inv_4x4_16s_C1)(junk, a), pxlStsOk);
    ASSERT_EQ(pxliDCT8x8Inv_16s_C1(blk, b), pxlStsOk);
    for (int i = 0; i < 64; ++i) EXPECT_NEAR(a[i], b[i], 1) << n << " " << i;
  }
  // saturation in the first addition is followed, not avoided
  Pxl16s big[64];
  std::fill(big, big + 64, 32767);
  ASSERT_EQ(pxliDCT8x8Fwd_16s_C1I(big), pxlStsOk);
  // x0 + x7 saturates to 32767, << 3 wraps to -8: row 0 of the column pass
  // is -32 everywhere, and (16384 * -256 + 2^19) >> 20 is -4.
  EXPECT_EQ(big[0], -4);
  for (int i = 1; i < 64; ++i) EXPECT_EQ(big[i], 0) << i;
}

TEST(DCT8x8, ClipRulesAndSteps) {
  Pxl16s dc[64] = {800};  // about 100 everywhere
  Pxl8u out[3 * 64];
  ASSERT_EQ(pxliDCT8x8InvLSClip_16s8u_C1R(dc, out, 24, 28, 0, 255), pxlStsOk);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) EXPECT_NEAR(out[24 * y + x], 128, 1);
  ASSERT_EQ(pxliDCT8x8InvLSClip_16s8u_C1R(dc, out, 24, 0, 200, 100), pxlStsOk);  // min > max: max
  for (int y = 0; y < 8; ++y) EXPECT_EQ(out[24 * y], 100);
  Pxl16s neg[64] = {-800};
  ASSERT_EQ(pxliDCT8x8Inv_16s8u_C1R(neg, out, 8), pxlStsOk);
  for (int i = 0; i < 64; ++i) EXPECT_EQ(out[i], 0);
  Pxl8u keep[64];
  std::fill(keep, keep + 64, 7);
  EXPECT_EQ(pxliDCT8x8Inv_16s8u_C1R(nullptr, keep, 0), pxlStsNullPtr);  // null before step
  EXPECT_EQ(pxliDCT8x8Inv_16s8u_C1R(dc, keep, 0), pxlStsStep);
  for (auto v : keep) EXPECT_EQ(v, 7);
}

TEST(Zigzag8x8, ScanAndItsInverse) {
  Pxl16s in[64], z[64], back[64];
  for (int i = 0; i < 64; ++i) in[i] = Pxl16s(i);
  ASSERT_EQ(pxliZigzagFwd8x8_16s_C1(in, z), pxlStsOk);
  const int head[10] = {0, 1, 8, 16, 9, 2, 3, 10, 17, 24};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(z[i], head[i]);
  EXPECT_EQ(z[62], 62);
  EXPECT_EQ(z[63], 63);
  ASSERT_EQ(pxliZigzagInv8x8_16s_C1(z, back), pxlStsOk);
  for (int i = 0; i < 64; ++i) EXPECT_EQ(back[i], i);
  ASSERT_EQ(pxliZigzagInv8x8_16s_C1(in, z), pxlStsOk);
  const int pos[12] = {0, 1, 5, 6, 14, 15, 27, 28, 2, 4, 7, 13};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(z[i], pos[i]);
}

}  // namespace
