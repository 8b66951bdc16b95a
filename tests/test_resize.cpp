// Resize: the coordinate map, each kernel's weights and rounding, the edge
// rules and the check order; Lanczos and area averaging against slow double
// formulas.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

using V8 = std::vector<Pxl8u>;

PxlStatus rs8(const V8& s, int sw, int sh, PxlRect roi, V8& d, int dw, int dh, double fx, double fy, int mode) {
  return pxliResize_8u_C1R(s.data(), {sw, sh}, sw, roi, d.data(), dw, {dw, dh}, fx, fy, mode);
}

TEST(Resize, LinearEnlargeIsCornerAlignedAndRoundsAtHalves) {
  // 2 -> 5 columns: step (2-1)/(5-1) = 0.25; positions 0, .25, .5, .75, 1.
  // The last position sits on the last image column and becomes column 0
  // with all weight on the right.
  V8 s = {10, 11, 10, 11}, d(5 * 2, 0);
  ASSERT_EQ(rs8(s, 2, 2, {0, 0, 2, 2}, d, 5, 2, 2.5, 1.0, pxlInterLinear), pxlStsOk);
  // across: (10 * (16384 - f) + 11 * f + 128) >> 8, then (v * 16384 + 524288) >> 20
  const int f[5] = {0, 4096, 8192, 12288, 16384};
  for (int i = 0; i < 5; ++i) {
    unsigned h = (10u * (16384 - f[i]) + 11u * f[i] + 128) >> 8;
    EXPECT_EQ(d[i], (h * 16384 + 524288) >> 20) << i;
  }
  EXPECT_EQ(d[2], 11);  // 10.5 rounds up after the second stage
  EXPECT_EQ(d[4], 11);
  EXPECT_EQ(d[0], 10);
}

TEST(Resize, NearestMapsDestinationCentres) {
  V8 s(9), d(3, 0);
  for (int i = 0; i < 9; ++i) s[i] = Pxl8u(i * 10);
  // shrink by 3: centres 1.5, 4.5, 7.5 -> 1, 4, 7
  ASSERT_EQ(rs8(s, 9, 1, {0, 0, 9, 1}, d, 3, 1, 1.0 / 3, 1.0, pxlInterNearest), pxlStsOk);
  EXPECT_EQ(d, (V8{10, 40, 70}));
  // enlarge by 2: 0.25, 0.75, ... -> 0 0 1 1 2 2 ; first and last of 18 are 0 and 8
  V8 e(18, 0);
  ASSERT_EQ(rs8(s, 9, 1, {0, 0, 9, 1}, e, 18, 1, 2.0, 1.0, pxlInterNearest), pxlStsOk);
  EXPECT_EQ(e[0], 0);
  EXPECT_EQ(e[1], 0);
  EXPECT_EQ(e[2], 10);
  EXPECT_EQ(e[17], 80);
}

TEST(Resize, FactorOneIsIdentityInEveryMode) {
  std::mt19937 rng(3);
  V8 s(23 * 17);
  for (auto& v : s) v = Pxl8u(rng());
  for (int mode : {1, 2, 4, 16}) {
    V8 d(s.size(), 0);
    ASSERT_EQ(rs8(s, 23, 17, {0, 0, 23, 17}, d, 23, 17, 1.0, 1.0, mode), pxlStsOk);
    if (mode == 16) {
      for (size_t i = 0; i < s.size(); ++i) EXPECT_NEAR(d[i], s[i], 1);
    } else {
      EXPECT_EQ(d, s) << mode;
    }
  }
}

TEST(Resize, CubicOvershootClampsIntegersAndNotFloats) {
  // A step edge, four identical rows (a source under 4 rows would run
  // linear): the cubic overshoots on both sides of the step.
  const int w = 8, h = 4;
  V8 s;
  for (int y = 0; y < h; ++y) s.insert(s.end(), {0, 0, 0, 0, 255, 255, 255, 255});
  V8 d(22 * h, 0);
  ASSERT_EQ(rs8(s, w, h, {0, 0, w, h}, d, 22, h, 2.75, 1.0, pxlInterCubic), pxlStsOk);
  std::vector<Pxl16u> s16(s.begin(), s.end()), d16(22 * h);
  for (auto& v : s16) v = Pxl16u(v * 257);
  ASSERT_EQ(pxliResize_16u_C1R(s16.data(), {w, h}, 16, {0, 0, w, h}, d16.data(), 44, {22, h}, 2.75, 1.0, 4), 0);
  std::vector<Pxl32f> sf(s.begin(), s.end()), df(22 * h);
  ASSERT_EQ(pxliResize_32f_C1R(sf.data(), {w, h}, 32, {0, 0, w, h}, df.data(), 88, {22, h}, 2.75, 1.0, 4), 0);
  float lo = 0, hi = 0;
  for (int i = 0; i < 22; ++i) {
    lo = std::min(lo, df[i]);
    hi = std::max(hi, df[i]);
    // the integer forms are the float result, rounded and clamped
    EXPECT_EQ(d[i], std::min(255.0f, std::max(0.0f, std::trunc(df[i] + 0.5000001f)))) << i;
    if (df[i] < 0) EXPECT_EQ(d16[i], 0) << i;
    if (df[i] > 255.5f) EXPECT_EQ(d16[i], 65535) << i;
  }
  EXPECT_LT(lo, -1.0f);
  EXPECT_GT(hi, 256.0f);
}

TEST(Resize, CubicFirstRowIsExactAndEdgeTapsStayInImage) {
  // 4 x 4 image in a guarded buffer that ends at its last byte: the cubic
  // taps shift inward at every edge and never read past it.
  pxltest::TestImage img(4, 4, 1, 0, 0, pxltest::Place::Back, 5);
  std::mt19937 rng(9);
  img.fillRandom(rng);
  V8 d(9 * 9, 0);
  ASSERT_EQ(pxliResize_8u_C1R(img.roi(), {4, 4}, img.step(), {0, 0, 4, 4}, d.data(), 9, {9, 9}, 2.25, 2.25,
                              pxlInterCubic),
            pxlStsOk);
  EXPECT_EQ(d[0], img.row(0)[0]);
  EXPECT_EQ(d[8], img.row(0)[3]);
  EXPECT_EQ(d[80], img.row(3)[3]);
}

TEST(Resize, LinearRoiAtImageEdgeReadsOnlyInsideTheImage) {
  pxltest::TestImage img(16, 8, 1, 0, 0, pxltest::Place::Back, 7);
  std::mt19937 rng(2);
  img.fillRandom(rng);
  V8 d(12 * 12, 0);
  // ROI = bottom-right 6 x 4 corner, enlarged: the last column and row use
  // their neighbour with the full weight on the edge sample.
  ASSERT_EQ(pxliResize_8u_C1R(img.roi(), {16, 8}, img.step(), {10, 4, 6, 4}, d.data(), 12, {12, 12}, 2.0, 3.0,
                              pxlInterLinear),
            pxlStsOk);
  EXPECT_EQ(d[11], img.row(4)[15]);
  EXPECT_EQ(d[11 * 12 + 11], img.row(7)[15]);
  EXPECT_EQ(d[11 * 12], img.row(7)[10]);
}

TEST(Resize, ChecksInOrder) {
  V8 s(16, 1), d(16, 7);
  const PxlRect r{0, 0, 4, 4};
  EXPECT_EQ(pxliResize_8u_C1R(nullptr, {0, 4}, 4, r, d.data(), 4, {4, 4}, 1, 1, 99), pxlStsNullPtr);
  EXPECT_EQ(rs8(s, 4, 4, {-1, 0, 4, 4}, d, 4, 0, 1, 1, 99), pxlStsSize);
  EXPECT_EQ(rs8(s, 4, 4, {4, 0, 4, 4}, d, 4, 0, 1, 1, 99), pxlStsRoiOutside);
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 0, 0, 1, 99), pxlStsSize);
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 4, 0, 1, 99), pxlStsBadResizeFactor);
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 4, 1, NAN, 2), pxlStsBadResizeFactor);
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 4, NAN, 1, 2), pxlStsResizeEmpty);
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 4, 1, 1, 3), pxlStsBadInterpolation);
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 4, 2.0, 0.5, pxlInterSuper), pxlStsBadInterpolation);
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 4, 0.1, 1, 2), pxlStsResizeEmpty);   // 0.4 px
  EXPECT_EQ(d, V8(16, 7));
  EXPECT_EQ(rs8(s, 4, 4, r, d, 4, 4, 0.15, 1, 2), pxlStsOk);            // 0.6 px -> 1
  const Pxl8u* planes[3] = {s.data(), nullptr, s.data()};
  Pxl8u* out[3] = {d.data(), d.data(), d.data()};
  EXPECT_EQ(pxliResize_8u_P3R(planes, {4, 4}, 4, r, out, 4, {4, 4}, 1, 1, 2), pxlStsNullPtr);
}

TEST(Resize, Ac4AlphaBottomUpAndPlanesAgree) {
  std::mt19937 rng(4);
  const int W = 13, H = 9, DW = 20, DH = 14;
  V8 s(W * H * 4);
  for (auto& v : s) v = Pxl8u(rng());
  for (int mode : {1, 2, 4, 16, 8}) {
    const double f = mode == 8 ? 0.5 : 1.5;
    V8 d(DW * DH * 4, 0xAB), up(DW * DH * 4, 0xAB);
    ASSERT_EQ(pxliResize_8u_AC4R(s.data(), {W, H}, W * 4, {1, 1, 11, 8}, d.data(), DW * 4, {DW, DH}, f, f, mode), 0);
    // The same picture stored bottom-up, described by a negative step.
    V8 flipped(s.size());
    for (int y = 0; y < H; ++y) std::copy_n(&s[y * W * 4], W * 4, &flipped[(H - 1 - y) * W * 4]);
    ASSERT_EQ(pxliResize_8u_AC4R(&flipped[(H - 1) * W * 4], {W, H}, -W * 4, {1, 1, 11, 8}, up.data(), DW * 4,
                                 {DW, DH}, f, f, mode), 0);
    EXPECT_EQ(d, up) << mode;
    for (int i = 3; i < DW * DH * 4; i += 4) ASSERT_EQ(d[i], 0xAB) << mode;
    // plane 1 of P3 equals channel 1 of the interleaved result
    V8 p0(W * H), p1(W * H), o0(DW * DH), o1(DW * DH);
    for (int i = 0; i < W * H; ++i) p0[i] = s[4 * i], p1[i] = s[4 * i + 1];
    const Pxl8u* sp[3] = {p0.data(), p1.data(), p0.data()};
    Pxl8u* dp[3] = {o0.data(), o1.data(), o0.data()};
    ASSERT_EQ(pxliResize_8u_P3R(sp, {W, H}, W, {1, 1, 11, 8}, dp, DW, {DW, DH}, f, f, mode), 0);
    for (int i = 0; i < DW * DH; ++i)
      if (d[4 * i + 1] != 0xAB || o1[i] != 0) ASSERT_EQ(o1[i], d[4 * i + 1]) << mode << " " << i;
  }
}

// Slow references: Lanczos-3 (sinc(x) sinc(x/3), six taps, normalised,
// edge repeated) on the corner-aligned map, and the area average.
double lanczos(double x) {
  if (x == 0) return 1;
  if (std::fabs(x) >= 3) return 0;
  const double p = M_PI * x;
  return std::sin(p) * std::sin(p / 3) * 3 / (p * p);
}

TEST(Resize, LanczosAndAreaMatchSlowDoubleFormulas) {
  std::mt19937 rng(8);
  const int W = 31, H = 27;
  std::vector<Pxl32f> s(W * H);
  for (auto& v : s) v = float(rng() % 256);
  auto px = [&](int x, int y) { return double(s[std::clamp(y, 0, H - 1) * W + std::clamp(x, 0, W - 1)]); };
  const int DW = 46, DH = 40;  // x 1.5
  std::vector<Pxl32f> d(DW * DH);
  ASSERT_EQ(pxliResize_32f_C1R(s.data(), {W, H}, W * 4, {0, 0, W, H}, d.data(), DW * 4, {DW, DH}, 1.5, 1.5, 16), 0);
  auto weights = [](double c, double* w) {
    double sum = 0;
    for (int k = 0; k < 6; ++k) sum += (w[k] = lanczos(c - std::floor(c + 1e-7) - (k - 2)));
    for (int k = 0; k < 6; ++k) w[k] /= sum;
  };
  // Tolerance: float passes against a double reference, 2e-3 of the range.
  for (int j = 0; j < DH; ++j)
    for (int i = 0; i < DW; ++i) {
      const double cx = i * (W - 1) / (W * 1.5 - 1), cy = j * (H - 1) / (H * 1.5 - 1);
      double wx[6], wy[6], v = 0;
      weights(cx, wx);
      weights(cy, wy);
      const int ix = int(cx + 1e-7), iy = int(cy + 1e-7);
      for (int a = 0; a < 6; ++a)
        for (int b = 0; b < 6; ++b) v += wy[a] * wx[b] * px(ix + b - 2, iy + a - 2);
      ASSERT_NEAR(d[j * DW + i], v, 0.5) << i << "," << j;
    }
  // Area to a third: exact blocks of 3 x 3 where the factor divides evenly.
  V8 s8(W * H);
  for (int i = 0; i < W * H; ++i) s8[i] = Pxl8u(s[i]);
  V8 a(10 * 9, 0);
  ASSERT_EQ(rs8(s8, W, H, {0, 0, 30, 27}, a, 10, 9, 1.0 / 3, 1.0 / 3, pxlInterSuper), pxlStsOk);
  for (int j = 0; j < 9; ++j)
    for (int i = 0; i < 10; ++i) {
      double v = 0;
      for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) v += s8[(3 * j + y) * W + 3 * i + x];
      ASSERT_NEAR(a[j * 10 + i], v / 9, 0.5 + 1e-9) << i << "," << j;
    }
}

}  // namespace
