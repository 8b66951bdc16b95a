// Geometry queries of the affine family, compared to the last bit.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "pxli.h"

namespace {

TEST(AffineQueries, RightAngleRotationsAreExact) {
  double q[4][2], q2[4][2];
  // 90 degrees: x' = y + xs, y' = -x + ys, with exact sine and cosine.
  ASSERT_EQ(pxliGetRotateQuad({0, 0, 4, 3}, q, 90.0, 0.0, 3.0), pxlStsOk);
  const double want[4][2] = {{0, 3}, {0, 0}, {2, 0}, {2, 3}};
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(q[i][0] == want[i][0] && q[i][1] == want[i][1]) << i;
  for (double a : {450.0, -270.0, 810.0}) {
    ASSERT_EQ(pxliGetRotateQuad({0, 0, 4, 3}, q2, a, 0.0, 3.0), pxlStsOk);
    EXPECT_EQ(std::memcmp(q, q2, sizeof q), 0) << a;
  }
  double b[2][2];
  ASSERT_EQ(pxliGetRotateBound({1, 2, 5, 4}, b, 180.0, 10.0, 20.0), pxlStsOk);
  EXPECT_TRUE(b[0][0] == 10 - 5 && b[0][1] == 20 - 5 && b[1][0] == 10 - 1 && b[1][1] == 20 - 2);
  // 30 degrees goes through cos and sin of a / 180 * pi
  ASSERT_EQ(pxliGetRotateQuad({0, 0, 2, 2}, q, 30.0, 0.0, 0.0), pxlStsOk);
  const double r = 30.0 / 180.0 * 3.141592653589793;
  EXPECT_EQ(q[1][0], std::cos(r));
  EXPECT_EQ(q[1][1], -std::sin(r));
}

TEST(AffineQueries, RotateShiftFormsAndAccumulation) {
  double xs = 1, ys = 2;
  ASSERT_EQ(pxliGetRotateShift(10, 4, 90, &xs, &ys), pxlStsOk);
  EXPECT_TRUE(xs == 6 && ys == 14);
  ASSERT_EQ(pxliAddRotateShift(10, 4, -180, &xs, &ys), pxlStsOk);
  EXPECT_TRUE(xs == 26 && ys == 22);
  ASSERT_EQ(pxliGetRotateShift(10, 4, 30, &xs, &ys), pxlStsOk);
  const double c = std::cos(30.0 / 180 * 3.141592653589793), s = std::sin(30.0 / 180 * 3.141592653589793);
  EXPECT_EQ(xs, 10 - 10 * c - 4 * s);
  EXPECT_EQ(ys, 10 * s + (4 - c * 4));
  EXPECT_EQ(pxliGetRotateShift(1, 1, 0, nullptr, &ys), pxlStsNullPtr);
}

TEST(AffineQueries, BoundsQuadsAndTransformsOfKnownMaps) {
  const double c[2][3] = {{2, 0.5, 3}, {-0.25, 1, 7}};
  double q[4][2], b[2][2], back[2][3];
  ASSERT_EQ(pxliGetAffineQuad({2, 1, 5, 3}, q, c), pxlStsOk);
  EXPECT_TRUE(q[2][0] == 2 * 6 + 0.5 * 3 + 3 && q[2][1] == -0.25 * 6 + 3 + 7);
  ASSERT_EQ(pxliGetAffineTransform({2, 1, 5, 3}, q, back), pxlStsOk);
  EXPECT_EQ(std::memcmp(back, c, sizeof c), 0);
  q[3][0] += 1e-3;  // the fourth vertex leaves the parallelogram
  EXPECT_EQ(pxliGetAffineTransform({2, 1, 5, 3}, q, back), pxlStsQuadAdjusted);
  EXPECT_EQ(std::memcmp(back, c, sizeof c), 0);
  EXPECT_EQ(pxliGetAffineTransform({2, 1, 1, 3}, q, back), pxlStsRectBad);
  const double bowtie[4][2] = {{0, 0}, {4, 0}, {0, 4}, {4, 4}};
  EXPECT_EQ(pxliGetAffineTransform({0, 0, 5, 5}, bowtie, back), pxlStsQuadBad);
  // singular: the box is written all the same, with -56
  const double sing[2][3] = {{1, 2, 0}, {2, 4, 0}};
  ASSERT_EQ(pxliGetAffineBound({0, 0, 3, 2}, b, sing), pxlStsCoeffBad);
  EXPECT_TRUE(b[0][0] == 0 && b[0][1] == 0 && b[1][0] == 4 && b[1][1] == 8);
  EXPECT_EQ(pxliGetAffineBound({0, -1, 3, 2}, b, sing), pxlStsSize);
  ASSERT_EQ(pxliGetShearQuad({0, 0, 3, 3}, q, 0.5, 0, 1, 0), pxlStsOk);
  EXPECT_TRUE(q[2][0] == 2 + 0.5 * 2 + 1 && q[2][1] == 2);
  EXPECT_EQ(pxliGetShearBound({0, 0, 3, 3}, b, 1, 1, 0, 0), pxlStsCoeffBad);
}

}  // namespace
