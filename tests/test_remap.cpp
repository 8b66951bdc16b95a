// Remap: each kernel's rounding, the active rectangle's bounds (float and
// raw-bit), and the check order.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

struct Maps {
  int w, h;
  std::vector<Pxl32f> x, y;
  Maps(int w_, int h_) : w(w_), h(h_), x(w_ * h_), y(w_ * h_) {}
  void set(int i, float px, float py) { x[i] = px, y[i] = py; }
};

template <class T, class F>
PxlStatus remapC1(F fn, const std::vector<T>& s, int sw, int sh, PxlRect roi, const Maps& m, std::vector<T>& d,
                  int mode) {
  return fn(s.data(), PxlSize{sw, sh}, int(sw * sizeof(T)), roi, m.x.data(), m.w * 4, m.y.data(), m.w * 4,
            d.data(), int(m.w * sizeof(T)), PxlSize{m.w, m.h}, mode);
}

TEST(Remap, IntegerPositionsReturnTheSourceInEveryMode) {
  std::mt19937 rng(1);
  const int W = 9, H = 7;
  std::vector<Pxl8u> s(W * H);
  for (auto& v : s) v = Pxl8u(rng());
  std::vector<Pxl32f> sf(s.begin(), s.end());
  std::vector<Pxl16u> s16(W * H);
  for (auto& v : s16) v = Pxl16u(rng());
  Maps m(W, H);
  for (int i = 0; i < W * H; ++i) m.set(i, float(i % W), float(i / W));
  for (int mode : {1, 2, 4}) {
    std::vector<Pxl8u> d(W * H);
    std::vector<Pxl32f> df(W * H);
    std::vector<Pxl16u> d16(W * H);
    ASSERT_EQ(remapC1(pxliRemap_8u_C1R, s, W, H, {0, 0, W, H}, m, d, mode), 0);
    ASSERT_EQ(remapC1(pxliRemap_32f_C1R, sf, W, H, {0, 0, W, H}, m, df, mode), 0);
    ASSERT_EQ(remapC1(pxliRemap_16u_C1R, s16, W, H, {0, 0, W, H}, m, d16, mode), 0);
    EXPECT_EQ(d, s) << mode;
    // cubic float weights at the image's edge nodes are a rounding off 1 and 0
    for (int i = 0; i < W * H; ++i) EXPECT_NEAR(df[i], sf[i], mode == 4 ? 1e-4 : 0.0) << mode;
    EXPECT_EQ(d16, s16) << mode;
  }
}

TEST(Remap, RoundingOfNearestAndLinear) {
  // rows of 10 and 11: half way down the 8u linear result truncates to 10
  std::vector<Pxl8u> s = {10, 10, 10, 11, 11, 11, 0, 0, 0, 200, 100, 50};
  Maps m(4, 1);
  m.set(0, 0.0f, 0.5f);
  m.set(1, 0.5f, 3.0f);  // nearest: halves go to even -> column 0
  m.set(2, 1.5f, 3.0f);  // -> column 2
  m.set(3, 2.0f, 2.5f);  // the last column of the rectangle: taps 1 and 2, all weight on 2
  std::vector<Pxl8u> d(4, 99);
  ASSERT_EQ(remapC1(pxliRemap_8u_C1R, s, 3, 4, {0, 0, 3, 4}, m, d, pxlInterLinear), 0);
  EXPECT_EQ(d[0], 10);
  EXPECT_EQ(d[3], 25);  // (0 + 50) / 2 = 25 exactly
  ASSERT_EQ(remapC1(pxliRemap_8u_C1R, s, 3, 4, {0, 0, 3, 4}, m, d, pxlInterNearest), 0);
  EXPECT_EQ(d[1], 200);
  EXPECT_EQ(d[2], 50);
  std::vector<Pxl16u> s16(s.begin(), s.end()), d16(4);
  ASSERT_EQ(remapC1(pxliRemap_16u_C1R, s16, 3, 4, {0, 0, 3, 4}, m, d16, pxlInterLinear), 0);
  EXPECT_EQ(d16[0], 10);  // trunc(10.5), no rounding term
}

TEST(Remap, PositionsJustInsideAndOutsideTheRectangle) {
  // ROI columns 1..3 of a 6-wide image in a buffer that ends with the image.
  pxltest::TestImage img(6, 3, 1, 0, 0, pxltest::Place::Back, 3);
  std::mt19937 rng(5);
  img.fillRandom(rng);
  std::vector<Pxl8u> s(18);
  for (int y = 0; y < 3; ++y) std::copy_n(img.row(y), 6, &s[y * 6]);
  Maps m(5, 1);
  m.set(0, 3.0f, 1.0f);          // exactly x1: column 2 with all weight on 3
  m.set(1, 3.01f, 1.0f);         // beyond x1: untouched
  m.set(2, 0.99f, 1.0f);         // before x0: untouched
  m.set(3, 1.0f, -0.0f);         // y0 = 0: -0.0 is inside for the float test
  m.set(4, 5.0f, 2.0f);          // the image's last pixel is outside the ROI
  for (int mode : {1, 2, 4}) {
    std::vector<Pxl8u> d(5, 77);
    ASSERT_EQ(pxliRemap_8u_C1R(img.roi(), {6, 3}, img.step(), {1, 0, 3, 3}, m.x.data(), 20, m.y.data(), 20,
                               d.data(), 5, {5, 1}, mode),
              0);
    EXPECT_EQ(d[0], s[6 + 3]) << mode;
    EXPECT_EQ(d[1], 77);
    EXPECT_EQ(d[2], 77);
    EXPECT_EQ(d[3], s[1]) << mode;
    EXPECT_EQ(d[4], 77);
  }
  // 16u linear compares raw bit patterns: -0.0 lies below +0.0 and is outside.
  std::vector<Pxl16u> s16(s.begin(), s.end()), d16(5, 77);
  ASSERT_EQ(remapC1(pxliRemap_16u_C1R, s16, 6, 3, {1, 0, 3, 3}, m, d16, pxlInterLinear), 0);
  EXPECT_EQ(d16[3], 77);
  EXPECT_EQ(d16[0], s16[6 + 3]);
}

TEST(Remap, ChecksInOrderAndAlphaUntouched) {
  std::vector<Pxl8u> s(16 * 4, 5), d(16 * 4, 9);
  std::vector<Pxl32f> mx(16, 1.0f), my(16, 1.0f);
  auto call = [&](PxlSize ss, int sstep, PxlRect r, int mstep, int mode) {
    return pxliRemap_8u_AC4R(s.data(), ss, sstep, r, mx.data(), mstep, my.data(), 16, d.data(), 16, {4, 4}, mode);
  };
  EXPECT_EQ(pxliRemap_8u_AC4R(s.data(), {4, 4}, 16, {0, 0, 4, 4}, nullptr, 16, my.data(), 16, d.data(), 16,
                              {0, 4}, 2),
            pxlStsNullPtr);
  EXPECT_EQ(call({4, 4}, 0, {0, 0, 0, 4}, 0, 99), pxlStsSize);
  EXPECT_EQ(call({4, 4}, 0, {0, 0, 4, 4}, 0, 2 | pxlInterSmoothEdge), pxlStsBadInterpolation);
  EXPECT_EQ(call({4, 4}, 16, {4, 0, 4, 4}, 0, 2), pxlStsStep);
  EXPECT_EQ(call({4, 4}, 16, {4, 0, 4, 4}, 16, 2), pxlStsRoiOutside);
  EXPECT_EQ(d, std::vector<Pxl8u>(64, 9));
  for (int i = 0; i < 64; ++i) s[i] = Pxl8u(i);
  ASSERT_EQ(call({4, 4}, 16, {0, 0, 4, 4}, 16, 4), pxlStsOk);  // 4 x 4 runs cubic
  for (int i = 0; i < 64; ++i) EXPECT_EQ(d[i], i % 4 == 3 ? 9 : s[20 + i % 4]) << i;
  // a null plane is found only after the +29 exit
  const Pxl8u* sp[3] = {s.data(), nullptr, s.data()};
  Pxl8u* dp[3] = {d.data(), d.data(), d.data()};
  EXPECT_EQ(pxliRemap_8u_P3R(sp, {4, 4}, 4, {5, 0, 1, 1}, mx.data(), 16, my.data(), 16, dp, 4, {4, 4}, 2),
            pxlStsRoiOutside);
  EXPECT_EQ(pxliRemap_8u_P3R(sp, {4, 4}, 4, {0, 0, 1, 1}, mx.data(), 16, my.data(), 16, dp, 4, {4, 4}, 2),
            pxlStsNullPtr);
}

}  // namespace
