// Affine warps: right angles against Transpose and Mirror, the pixels the
// spans cover, edge smoothing, alpha, check order and statuses, and reads
// that stay inside the source image.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

template <class T>
std::vector<T> noise(int n, std::uint32_t seed, int lo = 0, int hi = 255) {
  std::mt19937 rng(seed);
  std::vector<T> v(n);
  for (auto& s : v) s = T(lo + int(rng() % unsigned(hi - lo + 1)));
  return v;
}

constexpr double kIdentity[2][3] = {{1, 0, 0}, {0, 1, 0}};

TEST(Warp, RightAnglesMatchTransposeAndMirrorOnEveryPath) {
  const int W = 13, H = 8;
  auto s = noise<Pxl16u>(W * H * 4, 3, 0, 65535);
  const int ss = W * 8;
  // Expected 90 degrees: the transpose flipped top to bottom; 180: both axes.
  std::vector<Pxl16u> t(W * H * 4), r90(W * H * 4), r180(W * H * 4);
  ASSERT_EQ(pxlStsOk, pxliTranspose_16u_C4R(s.data(), ss, t.data(), H * 8, {W, H}));
  ASSERT_EQ(pxlStsOk, pxliMirror_16u_C4R(t.data(), H * 8, r90.data(), H * 8, {H, W}, pxlAxsHorizontal));
  ASSERT_EQ(pxlStsOk, pxliMirror_16u_C4R(s.data(), ss, r180.data(), ss, {W, H}, pxlAxsBoth));
  const PxlRect roi{0, 0, W, H};
  for (int angle : {90, 180, 450, -180}) {
    const bool quarter = angle % 180 != 0;
    const int dw = quarter ? H : W, dh = quarter ? W : H;
    const double xs = quarter ? 0 : W - 1, ys = quarter ? W - 1 : H - 1;
    const auto& want = quarter ? r90 : r180;
    // The exact mover (which ignores the mode), nearest through the spans,
    // and linear at whole positions; AC4 keeps the alpha of dst.
    for (int path = 0; path < 3; ++path) {
      std::vector<Pxl16u> d(dw * dh * 4, 7);
      const PxlRect droi{0, 0, dw, dh};
      PxlStatus st;
      if (path == 0) {
        st = pxliRotate_16u_AC4R(s.data(), {W, H}, ss, roi, d.data(), dw * 8, droi, angle, xs, ys, 99);
      } else {
        const double a = angle * 3.141592653589793 / 180;
        const double c[2][3] = {{std::round(std::cos(a)), std::round(std::sin(a)), xs},
                                {-std::round(std::sin(a)), std::round(std::cos(a)), ys}};
        st = pxliWarpAffine_16u_AC4R(s.data(), {W, H}, ss, roi, d.data(), dw * 8, droi, c, path);
      }
      ASSERT_EQ(pxlStsOk, st) << angle << " path " << path;
      for (int i = 0; i < dw * dh * 4; ++i)
        ASSERT_EQ(d[i], i % 4 == 3 ? 7 : want[i]) << angle << " path " << path << " at " << i;
    }
  }
}

TEST(Warp, IdentityReproducesTheImageInEveryMode) {
  const int W = 11, H = 9;
  auto s = noise<Pxl8u>(W * H * 3, 5);
  auto sf = noise<Pxl32f>(W * H, 6, -1000, 1000);
  for (int mode : {1, 2, 4}) {
    std::vector<Pxl8u> d(W * H * 3, 0);
    ASSERT_EQ(pxlStsOk, pxliWarpAffine_8u_C3R(s.data(), {W, H}, W * 3, {0, 0, W, H}, d.data(), W * 3,
                                              {0, 0, W, H}, kIdentity, mode));
    EXPECT_EQ(d, s) << mode;
    std::vector<Pxl32f> df(W * H, 0);
    ASSERT_EQ(pxlStsOk, pxliWarpAffineBack_32f_C1R(sf.data(), {W, H}, W * 4, {0, 0, W, H}, df.data(), W * 4,
                                                   {0, 0, W, H}, kIdentity, mode));
    // Cubic weights at the far nodes are formed in single precision and
    // are zero only up to its rounding.
    for (int i = 0; i < W * H; ++i)
      if (mode == 4) ASSERT_NEAR(df[i], sf[i], 1e-3) << i;
      else ASSERT_EQ(df[i], sf[i]) << mode << " at " << i;
  }
}

// Which destination pixels a 30-degree turn writes: every centre inside the
// mapped quadrangle and inside dstRoi, no other.
TEST(Warp, SpansCoverExactlyThePixelCentresInsideTheQuadrangle) {
  const int W = 40, H = 30, D = 64;
  auto s = noise<Pxl8u>(W * H, 9, 1, 255);
  const PxlRect roi{3, 2, 30, 25}, droi{5, 4, 50, 41};
  double q[4][2];
  ASSERT_EQ(pxlStsOk, pxliGetRotateQuad(roi, q, 30, 20, 12));
  for (int smooth = 0; smooth < 2; ++smooth) {
    std::vector<Pxl8u> d(D * D, 0);
    ASSERT_EQ(pxlStsOk, pxliRotate_8u_C1R(s.data(), {W, H}, W, roi, d.data(), D, droi, 30, 20, 12,
                                          pxlInterLinear | (smooth ? pxlInterSmoothEdge : 0)));
    int inside = 0, blended = 0;
    for (int y = 0; y < D; ++y)
      for (int x = 0; x < D; ++x) {
        // Signed distances from the four edges (positive inside).
        double dmin = 1e9;
        for (int e = 0; e < 4; ++e) {
          const double* a = q[e];
          const double* b = q[(e + 1) % 4];
          const double len = std::hypot(b[0] - a[0], b[1] - a[1]);
          dmin = std::min(dmin, ((b[0] - a[0]) * (y - a[1]) - (b[1] - a[1]) * (x - a[0])) / len);
        }
        const bool inRoi = x >= droi.x && y >= droi.y && x < droi.x + droi.width && y < droi.y + droi.height;
        const bool written = d[y * D + x] != 0;
        if (!inRoi) ASSERT_FALSE(written) << x << "," << y;
        else if (dmin > 1e-9) {
          ASSERT_TRUE(written) << x << "," << y;
          ++inside;
        }
        else if (dmin < -1e-9 && written) {
          // Only the smoothing pass touches a pixel outside, and only next to
          // the edge.
          ASSERT_TRUE(smooth && dmin > -1.0) << x << "," << y << " " << dmin;
          ++blended;
        }
      }
    EXPECT_GT(inside, 500);
    EXPECT_EQ(smooth != 0, blended > 0);
  }
}

TEST(Warp, SmoothingLeavesAxisAlignedEdgesAndNeverTouchesTheSpans) {
  const int W = 20, H = 16;
  auto s = noise<Pxl8u>(W * H, 2, 1, 255);
  const PxlRect roi{0, 0, W, H};
  for (double angle : {0.0, 17.0}) {
    std::vector<Pxl8u> plain(W * H, 0), smooth(W * H, 0);
    pxliRotateCenter_8u_C1R(s.data(), {W, H}, W, roi, plain.data(), W, roi, angle, 9.3, 7.6, pxlInterCubic);
    pxliRotateCenter_8u_C1R(s.data(), {W, H}, W, roi, smooth.data(), W, roi, angle, 9.3, 7.6,
                            pxlInterCubic | pxlInterSmoothEdge);
    int changed = 0;
    for (int i = 0; i < W * H; ++i)
      if (plain[i] != smooth[i]) {
        ASSERT_EQ(0, plain[i]) << angle << " at " << i;
        ++changed;
      }
    EXPECT_EQ(angle != 0.0, changed > 0) << angle;
  }
  // A shift by a fraction: the quadrangle's edges are axis-aligned.
  std::vector<Pxl8u> a(W * H, 0), b(W * H, 0);
  pxliRotate_8u_C1R(s.data(), {W, H}, W, roi, a.data(), W, roi, 0, 0.5, 0.25, pxlInterLinear);
  pxliRotate_8u_C1R(s.data(), {W, H}, W, roi, b.data(), W, roi, 0, 0.5, 0.25, pxlInterLinear | pxlInterSmoothEdge);
  EXPECT_EQ(a, b);
}

// A shift of one half meets the 8u rounding at halves: the first stage
// truncates and the second rounds half up. Halving the width puts the last
// destination pixel on the last source column, taken as the column before
// it with the whole weight on the right.
TEST(Warp, LinearRoundingAndTheLastColumn) {
  const Pxl8u s[2 * 3] = {10, 20, 31, 10, 20, 31};
  Pxl8u d[2 * 3] = {};
  ASSERT_EQ(pxlStsOk, pxliRotate_8u_C1R(s, {3, 2}, 3, {0, 0, 3, 2}, d, 3, {0, 0, 3, 2}, 0, -0.5, 0, pxlInterLinear));
  EXPECT_EQ(15, d[0]);  // (10 + 20) / 2
  EXPECT_EQ(26, d[1]);  // (20 + 31) / 2 = 25.5, half up
  EXPECT_EQ(0, d[2]);   // position 2.5 lies outside: untouched
  const double half[2][3] = {{0.5, 0, 0}, {0, 1, 0}};
  Pxl8u e[2 * 3] = {};
  ASSERT_EQ(pxlStsOk, pxliWarpAffine_8u_C1R(s, {3, 2}, 3, {0, 0, 3, 2}, e, 3, {0, 0, 3, 2}, half, pxlInterLinear));
  EXPECT_EQ(10, e[0]);
  EXPECT_EQ(31, e[1]);
  EXPECT_EQ(0, e[2]);
}

TEST(Warp, StatusesAndCheckOrderWriteNothing) {
  const int W = 12, H = 10;
  auto s = noise<Pxl8u>(W * H, 4);
  std::vector<Pxl8u> d(W * H, 9);
  const auto before = d;
  const PxlSize sz{W, H};
  const PxlRect roi{0, 0, W, H};
  const double sing[2][3] = {{2, 4, 0}, {1, 2, 0}};
  auto warp = [&](const double (*c)[3], PxlRect r, int mode) {
    return pxliWarpAffine_8u_C1R(s.data(), sz, W, r, d.data(), W, roi, c, mode);
  };
  auto back = [&](const double (*c)[3], PxlRect r, int mode) {
    return pxliWarpAffineBack_8u_C1R(s.data(), sz, W, r, d.data(), W, roi, c, mode);
  };
  EXPECT_EQ(pxlStsBadInterpolation, warp(kIdentity, roi, 8));
  EXPECT_EQ(pxlStsBadInterpolation, warp(sing, roi, 16));  // the mode before the coefficients
  EXPECT_EQ(pxlStsStep, pxliWarpAffine_8u_C1R(s.data(), sz, 0, roi, d.data(), W, roi, kIdentity, 99));
  EXPECT_EQ(pxlStsCoeffBad, warp(sing, roi, 1));
  EXPECT_EQ(pxlStsRectBad, warp(kIdentity, {4, 4, 1, 1}, 1));
  EXPECT_EQ(pxlStsCoeffBad, back(kIdentity, {4, 4, 1, 1}, 1));
  EXPECT_EQ(pxlStsRoiOutside, warp(kIdentity, {W, 0, 4, 4}, 1));
  const double far[2][3] = {{1, 0, 100}, {0, 1, 0}};
  EXPECT_EQ(pxlStsQuadClipped, warp(far, roi, 2));
  auto rot = [&](double angle, double xs, int mode) {
    return pxliRotate_8u_C1R(s.data(), sz, W, roi, d.data(), W, roi, angle, xs, 0, mode);
  };
  EXPECT_EQ(pxlStsRoiOutside, rot(90, -50, 2));
  EXPECT_EQ(pxlStsQuadClipped, rot(30, -50, 2));
  EXPECT_EQ(pxlStsBadInterpolation, rot(90, 0.5, 3));
  const double bent[4][2] = {{0, 0}, {10, 0}, {2, 2}, {0, 8}}, sq[4][2] = {{0, 0}, {9, 0}, {9, 9}, {0, 9}};
  EXPECT_EQ(pxlStsQuadBad, pxliWarpAffineQuad_8u_C1R(s.data(), sz, W, roi, sq, d.data(), W, roi, bent, 2));
  EXPECT_EQ(pxlStsQuadBad, pxliWarpAffineQuad_8u_C1R(s.data(), sz, W, roi, bent, d.data(), W, roi, sq, 2));
  EXPECT_EQ(d, before);
  // Planar forms check their planes after the mode.
  const Pxl8u* sp[3] = {s.data(), s.data(), nullptr};
  Pxl8u* dp[3] = {d.data(), d.data(), d.data()};
  EXPECT_EQ(pxlStsBadInterpolation, pxliWarpAffine_8u_P3R(sp, sz, W, roi, dp, W, roi, kIdentity, 0));
  EXPECT_EQ(pxlStsNullPtr, pxliWarpAffine_8u_P3R(sp, sz, W, roi, dp, W, roi, kIdentity, 1));
  EXPECT_EQ(d, before);
  // Right angles with whole shifts validate no mode.
  EXPECT_EQ(pxlStsOk, rot(90, 0, 12345));
}

// A fourth vertex off the parallelogram warns and the area written follows
// the parallelogram of the first three.
TEST(Warp, QuadWithAnAdjustedFourthVertex) {
  const int W = 16;
  auto s = noise<Pxl8u>(W * W, 8, 1, 255);
  const double sq[4][2] = {{2, 2}, {12, 2}, {12, 12}, {2, 12}};
  const double off[4][2] = {{2, 2}, {12, 2}, {12, 12}, {2, 12.001}};
  std::vector<Pxl8u> a(W * W, 0), b(W * W, 0);
  const PxlRect roi{0, 0, W, W};
  EXPECT_EQ(pxlStsOk, pxliWarpAffineQuad_8u_C1R(s.data(), {W, W}, W, roi, sq, a.data(), W, roi, sq, 1));
  EXPECT_EQ(pxlStsQuadAdjusted, pxliWarpAffineQuad_8u_C1R(s.data(), {W, W}, W, roi, sq, b.data(), W, roi, off, 1));
  EXPECT_EQ(a, b);
  for (int y = 0; y < W; ++y)
    for (int x = 0; x < W; ++x)
      EXPECT_EQ(a[y * W + x], x >= 2 && x <= 12 && y >= 2 && y <= 12 ? s[y * W + x] : 0) << x << "," << y;
}

// The source is the whole of a guarded image: a read past its first or last
// byte faults. Every mode, a turn that maps all four edges, interleaved and
// planar.
TEST(Warp, ReadsStayInsideTheSourceImage) {
  const int W = 23, H = 17, D = 40;
  for (auto place : {pxltest::Place::Front, pxltest::Place::Back}) {
    pxltest::TestImage src(W, H, 4, 0, 0, place, 21);
    std::vector<Pxl32f> d(D * D * 4);
    const PxlRect roi{0, 0, W, H}, droi{0, 0, D, D};
    for (int mode : {1, 2, 4})
      for (double angle : {30.0, 200.0, 90.0}) {
        EXPECT_LE(0, pxliRotateCenter_8u_C4R(src.roi(), {W, H}, src.step(), roi, reinterpret_cast<Pxl8u*>(d.data()),
                                             D * 4, droi, angle, 11.2, 8.7, mode | pxlInterSmoothEdge));
        EXPECT_LE(0, pxliRotateCenter_32f_C1R(reinterpret_cast<const Pxl32f*>(src.roi()), {W, H}, src.step(), roi,
                                              d.data(), D * 4, droi, angle, 11.2, 8.7, mode));
        const Pxl16u* sp[4] = {reinterpret_cast<const Pxl16u*>(src.roi()), reinterpret_cast<const Pxl16u*>(src.roi()),
                               reinterpret_cast<const Pxl16u*>(src.roi()), reinterpret_cast<const Pxl16u*>(src.roi())};
        Pxl16u* dp[4];
        for (auto& p : dp) p = reinterpret_cast<Pxl16u*>(d.data());
        EXPECT_LE(0, pxliShear_16u_P4R(sp, {2 * W, H}, src.step(), {0, 0, 2 * W, H}, dp, D * 4, droi, 0.3, -0.2,
                                       2.5, 4.0, mode));
      }
  }
}

}  // namespace
