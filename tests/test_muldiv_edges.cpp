// The corners of multiply and divide that a random test may not hit: the
// limits of each type, ties, zero divisors and their warning, the DivC
// asymmetry between scratch-row and refusing members, complex extremes,
// MulScale at its ends, check orders with two faults at once, and equal
// bytes for any thread count on images that open the gates.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "harness/guard.h"
#include "pxlcore.h"
#include "pxli.h"
#include "pxls.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

// a op b through a C1 member on one pixel; the destination starts at 77.
template <class T>
T onePixel(PxlStatus (*f)(const T*, int, const T*, int, T*, int, PxlSize, int), T a, T b, int scale) {
  T d = 77;
  EXPECT_EQ(pxlStsOk, f(&a, sizeof(T), &b, sizeof(T), &d, sizeof(T), {1, 1}, scale));
  return d;
}
Pxl8u mul8(Pxl8u a, Pxl8u b, int scale) { return onePixel(pxliMul_8u_C1RSfs, a, b, scale); }
Pxl16s mul16s(Pxl16s a, Pxl16s b, int scale) { return onePixel(pxliMul_16s_C1RSfs, a, b, scale); }
Pxl16u mul16u(Pxl16u a, Pxl16u b, int scale) { return onePixel(pxliMul_16u_C1RSfs, a, b, scale); }

TEST(MulDivEdges, EachLimitAndOneBeyond) {
  // 8u: 255 * 255 = 65025.
  EXPECT_EQ(mul8(255, 255, 0), 255);
  EXPECT_EQ(mul8(255, 255, 8), 254);  // 254.00390625
  EXPECT_EQ(mul8(255, 255, 16), 1);   // 0.99...
  EXPECT_EQ(mul8(255, 255, 17), 0);   // past the limit: zero
  EXPECT_EQ(mul8(1, 1, -7), 128);
  EXPECT_EQ(mul8(1, 1, -8), 255);     // Bound: not zero
  EXPECT_EQ(mul8(0, 9, -8), 0);
  // 16s: -32768 * -32768 = 2^30.
  EXPECT_EQ(mul16s(-32768, -32768, 30), 1);
  EXPECT_EQ(mul16s(-32768, -32768, 31), 0);
  EXPECT_EQ(mul16s(-32768, 32767, 30), -1);  // -0.99997 rounds to -1
  EXPECT_EQ(mul16s(1, 1, -14), 16384);
  EXPECT_EQ(mul16s(-1, 1, -14), -16384);
  EXPECT_EQ(mul16s(1, 1, -15), 32767);  // Bound: the saturated sign
  EXPECT_EQ(mul16s(-1, 1, -15), -32768);
  EXPECT_EQ(mul16s(3, 1000, -14), 32767);  // Neg: clamped, shifted, clamped
  // 16u: 65535^2 < 2^32.
  EXPECT_EQ(mul16u(65535, 65535, 32), 1);
  EXPECT_EQ(mul16u(65535, 65535, 33), 0);
  EXPECT_EQ(mul16u(65535, 65535, 16), 65534);
  EXPECT_EQ(mul16u(1, 1, -15), 32768);
  EXPECT_EQ(mul16u(1, 1, -16), 65535);
  EXPECT_EQ(mul16u(0, 1, -16), 0);
}

TEST(MulDivEdges, TiesGoToEven) {
  EXPECT_EQ(mul8(1, 1, 1), 0);   // 0.5
  EXPECT_EQ(mul8(3, 1, 1), 2);   // 1.5
  EXPECT_EQ(mul8(5, 1, 1), 2);   // 2.5
  EXPECT_EQ(mul8(6, 1, 2), 2);   // 1.5
  EXPECT_EQ(mul8(10, 1, 2), 2);  // 2.5
  EXPECT_EQ(mul16s(-3, 1, 1), -2);
  EXPECT_EQ(mul16s(-1, 1, 1), 0);
  EXPECT_EQ(mul16s(-5, 1, 1), -2);
  // Division: 2 over 5 is 0, 5 over 2 is 2, 7 over 2 is 4.
  auto div8 = [](Pxl8u den, Pxl8u num, int scale) { return onePixel(pxliDiv_8u_C1RSfs, den, num, scale); };
  EXPECT_EQ(div8(5, 2, 0), 0);
  EXPECT_EQ(div8(2, 5, 0), 2);
  EXPECT_EQ(div8(2, 7, 0), 4);
  EXPECT_EQ(div8(4, 6, 0), 2);    // 1.5
  EXPECT_EQ(div8(1, 5, 1), 2);    // 2.5
  EXPECT_EQ(div8(1, 255, -1), 255);
  EXPECT_EQ(div8(255, 255, 8), 0);   // 1/256
  EXPECT_EQ(div8(1, 255, 8), 1);     // 0.996
  EXPECT_EQ(div8(1, 255, 9), 0);     // beyond: 0
  EXPECT_EQ(div8(255, 1, -16), 255);  // far below: only n != 0 counts
  Pxl16s n = -5, d0 = 2, r = 0;
  EXPECT_EQ(pxlStsOk, pxliDiv_16s_C1RSfs(&d0, 2, &n, 2, &r, 2, {1, 1}, 0));
  EXPECT_EQ(r, -2);  // -2.5
  n = -7;
  EXPECT_EQ(pxlStsOk, pxliDiv_16s_C1RSfs(&d0, 2, &n, 2, &r, 2, {1, 1}, 0));
  EXPECT_EQ(r, -4);  // -3.5
  Pxl16u un = 5, ud = 2, ur = 0;
  EXPECT_EQ(pxlStsOk, pxliDiv_16u_C1RSfs(&ud, 2, &un, 2, &ur, 2, {1, 1}, 0));
  EXPECT_EQ(ur, 2);
  un = 7;
  EXPECT_EQ(pxlStsOk, pxliDiv_16u_C1RSfs(&ud, 2, &un, 2, &ur, 2, {1, 1}, 0));
  EXPECT_EQ(ur, 4);
}

TEST(MulDivEdges, ZeroDivisorsWarnAndWriteEverySample) {
  {
    Pxl8u den[4] = {0, 0, 2, 0}, num[4] = {5, 0, 9, 255}, d[4] = {};
    EXPECT_EQ(pxlStsDivByZero, pxliDiv_8u_C1RSfs(den, 4, num, 4, d, 4, {4, 1}, 0));
    EXPECT_EQ(d[0], 255);
    EXPECT_EQ(d[1], 0);
    EXPECT_EQ(d[2], 4);  // 4.5 to even; written despite the warning
    EXPECT_EQ(d[3], 255);
    EXPECT_EQ(pxlStsDivByZero, pxlsDiv_8u_Sfs(den, num, d, 4, 12));
    EXPECT_EQ(d[2], 0);
  }
  {
    Pxl16s den[3] = {0, 0, 0}, num[3] = {-5, 5, 0}, d[3] = {1, 1, 1};
    EXPECT_EQ(pxlStsDivByZero, pxliDiv_16s_C1RSfs(den, 6, num, 6, d, 6, {3, 1}, 3));
    EXPECT_EQ(d[0], -32768);
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[2], 0);
  }
  {
    // 16u: a zero divisor in the second row only; the first row is still
    // written and the warning is kept.
    Pxl16u den[4] = {1, 1, 0, 3}, num[4] = {8, 9, 4, 0}, d[4] = {};
    EXPECT_EQ(pxlStsDivByZero, pxliDiv_16u_C1RSfs(den, 4, num, 4, d, 4, {2, 2}, 1));
    EXPECT_EQ(d[0], 4);
    EXPECT_EQ(d[1], 4);  // 4.5 to even
    EXPECT_EQ(d[2], 65535);
    EXPECT_EQ(d[3], 0);
    EXPECT_EQ(pxlStsDivByZero, pxliDiv_16u_C1RSfs(den, 4, num, 4, d, 4, {2, 2}, 17));
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[2], 65535);
  }
  {
    // 32f: the signs of infinity follow n; 0/0 is NaN; the other samples of
    // a group with a zero divisor are IEEE quotients.
    alignas(32) float den[8] = {0, -0.0f, 0, 3, 3, 3, 3, 3}, num[8] = {2, 2, 0, 1, 1, 1, 1, 1}, d[8];
    EXPECT_EQ(pxlStsDivByZero, pxlsDiv_32f(den, num, d, 8));
    EXPECT_EQ(d[0], INFINITY);
    EXPECT_EQ(d[1], INFINITY);
    EXPECT_TRUE(std::isnan(d[2]));
    EXPECT_EQ(d[3], 1.0f / 3.0f);
    num[0] = -1;
    EXPECT_EQ(pxlStsDivByZero, pxliDiv_32f_C1R(den, 32, num, 32, d, 32, {8, 1}));
    EXPECT_EQ(d[0], -INFINITY);
  }
  {
    Pxl64fc den[2] = {{0, 0}, {0, 2}}, num[2] = {{1, 1}, {2, 4}}, d[2];
    EXPECT_EQ(pxlStsDivByZero, pxlsDiv_64fc(den, num, d, 2));
    EXPECT_TRUE(std::isnan(d[0].re) && std::isnan(d[0].im));
    EXPECT_EQ(d[1].re, 2.0);   // (2 + 4i) / 2i = 2 - i
    EXPECT_EQ(d[1].im, -1.0);
    Pxl32fc fd = {0, 0}, fn = {1, 2}, fr;
    EXPECT_EQ(pxlStsDivByZero, pxlsDiv_32fc(&fd, &fn, &fr, 1));
    Pxl16sc sd = {0, 0}, sn = {3, -3}, sr;
    EXPECT_EQ(pxlStsDivByZero, pxlsDiv_16sc_Sfs(&sd, &sn, &sr, 1, 0));
    Pxl32sc cd[1] = {{0, 0}}, cn[1] = {{3, 0}}, cr[1];
    EXPECT_EQ(pxlStsDivByZero, pxliDiv_32sc_C1RSfs(cd, 8, cn, 8, cr, 8, {1, 1}, 0));
  }
}

// A 32f quotient of 8 MiB or more is written around the cache: the same
// bytes and warning as the same rows divided one call at a time, with rows
// that start off the register boundary and zero divisors here and there.
TEST(MulDivEdges, LargeDivisionsStreamTheSameBytes) {
  const int w = 1031, h = 2050;
  std::mt19937 rng(9);
  TestImage den(w, h, 4, 4, 8, Place::Back, 1), num(w, h, 4, 12, 0, Place::Front, 2);
  TestImage whole(w, h, 4, 4, 4, Place::Back, 3), rows(w, h, 4, 4, 4, Place::Back, 3);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      den.at<float>(y)[x] = rng() % 97 == 0 ? 0.0f : float(int(rng() % 2001) - 1000) / 7;
      num.at<float>(y)[x] = float(int(rng() % 2001) - 1000) / 3;
    }
  const auto before = whole.snapshot();
  EXPECT_EQ(pxlStsDivByZero, pxliDiv_32f_C1R(den.at<float>(0), den.step(), num.at<float>(0), num.step(),
                                             whole.at<float>(0), whole.step(), {w, h}));
  for (int y = 0; y < h; ++y)
    pxliDiv_32f_C1R(den.at<float>(y), den.step(), num.at<float>(y), num.step(), rows.at<float>(y), rows.step(), {w, 1});
  EXPECT_EQ(whole.roiBytes(), rows.roiBytes());
  EXPECT_TRUE(whole.outsideUnchanged(before));
}

TEST(MulDivEdges, TwoEqualQuotientsMayDifferByTheirGroup) {
  // The same pair n / d in a group without a zero divisor (the refined
  // reciprocal) and in one with a zero divisor (an IEEE quotient). Find a
  // pair whose two results differ, proving the group decides.
  alignas(32) float den[16], num[16], out[16];
  bool differ = false;
  for (int t = 1; t < 2000 && !differ; ++t) {
    const float n = 1.0f + float(t) * 0.00731f, d = 3.0f + float(t) * 0.01937f;
    for (int i = 0; i < 16; ++i) den[i] = d, num[i] = n;
    den[9] = 0;  // the second block has a zero divisor
    EXPECT_EQ(pxlStsDivByZero, pxlsDiv_32f(den, num, out, 16));
    EXPECT_EQ(out[8], n / d);  // IEEE in the block with the zero
    differ = out[0] != out[8];
  }
  EXPECT_TRUE(differ);
}

TEST(MulDivEdges, DivCZeroConstantAsymmetry) {
  const int w = 5, h = 3;
  for (int ch : {1, 3, 4}) {
    TestImage src(w, h, ch, 4, 4, Place::Back, 3), dst(w, h, ch, 4, 4, Place::Front, 4);
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < w * ch; ++i) src.row(y)[i] = Pxl8u(i % 3 == 0 ? 0 : 10 + i);
    const auto before = dst.snapshot();
    const Pxl8u v[4] = {2, 0, 5, 0};
    PxlStatus st;
    if (ch == 1) st = pxliDivC_8u_C1RSfs(src.roi(), src.step(), 0, dst.roi(), dst.step(), {w, h}, 0);
    else if (ch == 3) st = pxliDivC_8u_C3RSfs(src.roi(), src.step(), v, dst.roi(), dst.step(), {w, h}, 0);
    else st = pxliDivC_8u_C4RSfs(src.roi(), src.step(), v, dst.roi(), dst.step(), {w, h}, 0);
    EXPECT_EQ(st, pxlStsDivByZeroConst) << ch;
    EXPECT_TRUE(dst.outsideUnchanged(before));
    if (ch == 1) {
      EXPECT_TRUE(dst.unchanged(before)) << "C1 refuses before writing";
      continue;
    }
    // The scratch-row members wrote every row, a zero constant giving the
    // zero-divisor values of Div.
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x)
        for (int c = 0; c < ch; ++c) {
          const Pxl8u n = src.row(y)[x * ch + c], got = dst.row(y)[x * ch + c];
          const Pxl8u want = v[c] == 0 ? (n ? 255 : 0) : Pxl8u(std::lrint(n / double(v[c])));
          if (v[c] == 2 && n % 2 == 1) continue;  // a tie; its rounding is tested elsewhere
          EXPECT_EQ(got, want) << "C" << ch << " y" << y << " x" << x << " c" << c;
        }
  }
  // AC4 of 8u and the 16s members refuse first: nothing written.
  TestImage s8(4, 2, 4, 0, 0, Place::Back, 5), d8(4, 2, 4, 0, 0, Place::Back, 6);
  const Pxl8u z8[3] = {1, 0, 1};
  auto b8 = d8.snapshot();
  EXPECT_EQ(pxlStsDivByZeroConst, pxliDivC_8u_AC4RSfs(s8.roi(), s8.step(), z8, d8.roi(), d8.step(), {4, 2}, 0));
  EXPECT_TRUE(d8.unchanged(b8));
  TestImage s16(4, 2, 8, 0, 0, Place::Back, 7), d16(4, 2, 8, 0, 0, Place::Back, 8);
  const Pxl16s z16[4] = {1, 1, 1, 0};
  auto b16 = d16.snapshot();
  EXPECT_EQ(pxlStsDivByZeroConst, pxliDivC_16s_C4RSfs(s16.at<Pxl16s>(0), s16.step(), z16, d16.at<Pxl16s>(0),
                                                      d16.step(), {4, 2}, 0));
  EXPECT_EQ(pxlStsDivByZeroConst, pxliDivC_16s_C4IRSfs(z16, d16.at<Pxl16s>(0), d16.step(), {4, 2}, 0));
  EXPECT_TRUE(d16.unchanged(b16));
  // 32f: any zero entry is refused before anything is written.
  const float zf[3] = {1, 2, 0};
  std::vector<float> f(12, 7.0f), g(12, 9.0f);
  EXPECT_EQ(pxlStsDivByZeroConst, pxliDivC_32f_C3R(f.data(), 36, zf, g.data(), 36, {4, 1}));
  for (float x : g) EXPECT_EQ(x, 9.0f);
  // A vector constant of zero is an error too.
  Pxl8u one = 1;
  EXPECT_EQ(pxlStsDivByZeroConst, pxlsDivC_8u_Sfs(&one, 0, &one, 1, 0));
  Pxl32fc c = {1, 1};
  EXPECT_EQ(pxlStsDivByZeroConst, pxlsDivC_32fc(&c, Pxl32fc{0, 0}, &c, 1));
}

TEST(MulDivEdges, DivCTablesAndReciprocals) {
  // The six-decimal table: 1/128 is kept as 0.007813, so 64 / 128 at scale
  // 0 is 0.500032, above the tie, and rounds to 1 where a true division
  // gives 0.5 and rounds to 0.
  Pxl8u n = 64, d = 9;
  EXPECT_EQ(pxlStsOk, pxliDivC_8u_C1RSfs(&n, 1, 128, &d, 1, {1, 1}, 0));
  EXPECT_EQ(d, 1);
  Pxl8u den = 128;
  EXPECT_EQ(pxlStsOk, pxliDiv_8u_C1RSfs(&den, 1, &n, 1, &d, 1, {1, 1}, 0));
  EXPECT_EQ(d, 0);
  // A multiplier above one is limited to 255.
  n = 200;
  EXPECT_EQ(pxlStsOk, pxliDivC_8u_C1RSfs(&n, 1, 1, &d, 1, {1, 1}, -3));
  EXPECT_EQ(d, 255);
  // 32f divides by multiplying with the float reciprocal.
  float one = 1.0f, r = 0;
  EXPECT_EQ(pxlStsOk, pxliDivC_32f_C1R(&one, 4, 3.0f, &r, 4, {1, 1}));
  EXPECT_EQ(r, 1.0f * (1.0f / 3.0f));
}

TEST(MulDivEdges, MulCShortcuts) {
  TestImage src(9, 4, 1, 3, 3, Place::Back, 9), dst(9, 4, 1, 3, 3, Place::Front, 10);
  // value 0 writes zero whatever the scale, through Set (which refuses a
  // zero step).
  for (int scale : {-30, -8, 0, 5, 40}) {
    EXPECT_EQ(pxlStsOk, pxliMulC_8u_C1RSfs(src.roi(), src.step(), 0, dst.roi(), dst.step(), {9, 4}, scale));
    for (auto b : dst.roiBytes()) ASSERT_EQ(b, 0);
  }
  EXPECT_EQ(pxlStsStep, pxliMulC_8u_C1RSfs(src.roi(), src.step(), 0, dst.roi(), 0, {9, 4}, 0));
  // value 1 at scale 0 copies; in place it reads nothing at all.
  EXPECT_EQ(pxlStsOk, pxliMulC_8u_C1RSfs(src.roi(), src.step(), 1, dst.roi(), dst.step(), {9, 4}, 0));
  EXPECT_EQ(dst.roiBytes(), src.roiBytes());
  pxltest::GuardedBuffer none(0, Place::Back);
  EXPECT_EQ(pxlStsOk, pxliMulC_16s_C1IRSfs(1, reinterpret_cast<Pxl16s*>(none.data()), 16, {4, 4}, 0));
  // 8u below the limit: 255 where the sample is not zero.
  src.row(0)[0] = 0, src.row(0)[1] = 1;
  EXPECT_EQ(pxlStsOk, pxliMulC_8u_C1RSfs(src.roi(), src.step(), 3, dst.roi(), dst.step(), {9, 4}, -8));
  EXPECT_EQ(dst.row(0)[0], 0);
  EXPECT_EQ(dst.row(0)[1], 255);
  // 16u looks at the scale before the pointers: past the limit a null
  // source is refused, a null destination by Set.
  Pxl16u u[4] = {1, 2, 3, 4}, v[4] = {9, 9, 9, 9};
  EXPECT_EQ(pxlStsNullPtr, pxliMul_16u_C1RSfs(nullptr, 8, u, 8, v, 8, {0, 1}, 33));
  EXPECT_EQ(pxlStsSize, pxliMul_16u_C1RSfs(u, 8, u, 8, v, 8, {0, 1}, 33));
  EXPECT_EQ(pxlStsStep, pxliMul_16u_C1RSfs(u, 8, u, 8, v, 0, {4, 1}, 33));
  EXPECT_EQ(pxlStsOk, pxliMulC_16u_C1RSfs(u, 8, 0, v, 8, {4, 1}, 3));
  for (Pxl16u x : v) EXPECT_EQ(x, 0);
  // In place 32f AC4 multiplies alpha by one: a negative zero stays.
  std::vector<float> img = {1, 2, 3, -0.0f};
  const float k[3] = {2, 2, 2};
  EXPECT_EQ(pxlStsOk, pxliMulC_32f_AC4IR(k, img.data(), 16, {1, 1}));
  EXPECT_EQ(img[0], 2.0f);
  EXPECT_TRUE(std::signbit(img[3]));
}

TEST(MulDivEdges, ComplexExtremes) {
  // Four factors of -32768: the imaginary part is 2^31, which the 16sc
  // kernels keep exact; every scale sees the true value.
  const Pxl16sc m = {-32768, -32768};
  Pxl16sc d;
  struct { int scale; Pxl16s re, im; } cases[] = {
      {0, 0, 32767}, {1, 0, 32767}, {16, 0, 32767}, {17, 0, 16384}, {31, 0, 1}, {32, 0, 0}, {-15, 0, 32767}};
  for (auto c : cases) {
    EXPECT_EQ(pxlStsOk, pxlsMul_16sc_Sfs(&m, &m, &d, 1, c.scale));
    EXPECT_EQ(d.re, c.re) << c.scale;
    EXPECT_EQ(d.im, c.im) << c.scale;
    EXPECT_EQ(pxlStsOk, pxlsMulC_16sc_Sfs(&m, m, &d, 1, c.scale));  // imaginary -32768: the constant form too
    EXPECT_EQ(d.im, c.im) << c.scale;
  }
  // (3 - 32768i)(1 - 32768i) = 3 - 2^30 - 131072i ... at scale 15.
  Pxl16sc a = {3, -32768}, b = {1, -32768};
  EXPECT_EQ(pxlStsOk, pxliMulC_16sc_C1RSfs(&a, 4, b, &d, 4, {1, 1}, 15));
  EXPECT_EQ(d.re, -32768);  // (3 - 2^30) / 2^15 = -32767.99991 rounds to -32768
  EXPECT_EQ(d.im, -4);      // -131072 / 2^15
  // 32sc: four factors of -2^31 give 2^63.
  const Pxl32sc big = {INT32_MIN, INT32_MIN};
  Pxl32sc r;
  EXPECT_EQ(pxlStsOk, pxlsMul_32sc_Sfs(&big, &big, &r, 1, 63));
  EXPECT_EQ(r.re, 0);
  EXPECT_EQ(r.im, 1);
  EXPECT_EQ(pxlStsOk, pxlsMul_32sc_Sfs(&big, &big, &r, 1, 32));
  EXPECT_EQ(r.im, INT32_MAX);
  EXPECT_EQ(pxlStsOk, pxlsMul_32sc_Sfs(&big, &big, &r, 1, 64));
  EXPECT_EQ(r.im, 0);
  // Complex members refuse a zero step.
  EXPECT_EQ(pxlStsStep, pxliMul_16sc_C1RSfs(&a, 0, &b, 4, &d, 4, {1, 1}, 0));
}

TEST(MulDivEdges, MulScaleEnds) {
  auto ms8 = [](Pxl8u a, Pxl8u b) {
    Pxl8u d = 7;
    EXPECT_EQ(pxlStsOk, pxliMulScale_8u_C1R(&a, 1, &b, 1, &d, 1, {1, 1}));
    return d;
  };
  EXPECT_EQ(ms8(255, 200), 200);
  EXPECT_EQ(ms8(0, 255), 0);
  EXPECT_EQ(ms8(255, 255), 255);
  EXPECT_EQ(ms8(128, 128), 64);
  Pxl16u a = 65535, b = 12345, d = 0;
  EXPECT_EQ(pxlStsOk, pxliMulScale_16u_C1R(&a, 2, &b, 2, &d, 2, {1, 1}));
  EXPECT_EQ(d, 12345);
  EXPECT_EQ(pxlStsOk, pxliMulCScale_16u_C1IR(65535, &a, 2, {1, 1}));
  EXPECT_EQ(a, 65535);
  EXPECT_EQ(pxlStsOk, pxliMulCScale_16u_C1IR(0, &a, 2, {1, 1}));
  EXPECT_EQ(a, 0);
  // AC4 leaves alpha alone.
  Pxl8u px[4] = {255, 100, 0, 33};
  const Pxl8u v[3] = {255, 255, 255};
  EXPECT_EQ(pxlStsOk, pxliMulCScale_8u_AC4IR(v, px, 4, {1, 1}));
  EXPECT_EQ(px[1], 100);
  EXPECT_EQ(px[3], 33);
}

TEST(MulDivEdges, CheckOrdersWithTwoFaults) {
  Pxl8u a[16] = {}, b[16] = {}, d[16] = {};
  // MulScale looks at steps before sizes.
  EXPECT_EQ(pxlStsStep, pxliMulScale_8u_C1R(a, 0, b, 4, d, 4, {0, 1}));
  EXPECT_EQ(pxlStsNullPtr, pxliMulScale_8u_C1R(a, 0, nullptr, 4, d, 4, {0, 1}));
  EXPECT_EQ(pxlStsStep, pxliMulCScale_8u_C3IR(a, d, -1, {1, 0}));
  // Div looks at sizes before steps; Mul of 8u never looks at steps.
  EXPECT_EQ(pxlStsSize, pxliDiv_8u_C1RSfs(a, 0, b, 4, d, 4, {0, 1}, 0));
  EXPECT_EQ(pxlStsStep, pxliDiv_8u_C1RSfs(a, 0, b, 4, d, 4, {4, 1}, 0));
  EXPECT_EQ(pxlStsOk, pxliMul_8u_C1RSfs(a, 0, b, 4, d, 4, {4, 1}, 0));
  // DivC: a bad step before a zero constant; a zero constant before the
  // scratch row is even allocated on 16s, after it on 8u C3 (which also
  // checks the step first).
  EXPECT_EQ(pxlStsStep, pxliDivC_8u_C1RSfs(a, 4, 0, d, 0, {4, 1}, 0));
  EXPECT_EQ(pxlStsSize, pxliDivC_8u_C1RSfs(a, 4, 0, d, 0, {0, 1}, 0));
  const Pxl8u z[3] = {0, 0, 0};
  EXPECT_EQ(pxlStsStep, pxliDivC_8u_C3RSfs(a, 4, z, d, 0, {1, 1}, 0));
  EXPECT_EQ(pxlStsNullPtr, pxliDivC_8u_C3RSfs(a, 4, nullptr, d, 0, {1, 1}, 0));
  // A delegating C3 Div reports the width before a null pointer.
  EXPECT_EQ(pxlStsSize, pxliDiv_8u_C3RSfs(nullptr, 4, b, 4, d, 4, {0, 1}, 0));
  EXPECT_EQ(pxlStsNullPtr, pxliDiv_8u_AC4RSfs(nullptr, 4, b, 4, d, 4, {0, 1}, 0));
}

TEST(MulDivEdges, SameBytesForAnyThreadCountOnGatedImages) {
  const int w = 301, h = 173;
  TestImage a(w, h, 4, 12, 4, Place::Back, 21), b(w, h, 4, 0, 8, Place::Front, 22);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      a.at<float>(y)[x] = float((x * 7 + y) % 97) - 40.0f;  // zeros included
      b.at<float>(y)[x] = 1.0f + float((x * 13 + y * 3) % 101) / 7.0f;
    }
  auto run = [&](auto call) {
    return pxltest::sameForThreadCounts([&] {
      TestImage d(w * 4, h, 1, 4, 4, Place::Back, 23);
      call(d);
      return d.roiBytes();
    });
  };
  EXPECT_TRUE(run([&](TestImage& d) {
    pxliMul_8u_C1RSfs(a.roi(), a.step(), b.roi(), b.step(), d.roi(), d.step(), {w * 4, h}, 3);
  }));
  EXPECT_TRUE(run([&](TestImage& d) {
    pxliMul_16s_C1RSfs(a.at<Pxl16s>(0), a.step(), b.at<Pxl16s>(0), b.step(), d.at<Pxl16s>(0), d.step(),
                       {w * 2, h}, 1);
  }));
  EXPECT_TRUE(run([&](TestImage& d) {
    pxliMulC_8u_C3IRSfs(std::vector<Pxl8u>{3, 5, 7}.data(), d.roi(), d.step(), {w, h}, 2);
  }));
  EXPECT_TRUE(run([&](TestImage& d) {
    pxliMul_32f_C1R(a.at<float>(0), a.step(), b.at<float>(0), b.step(), d.at<float>(0), d.step(), {w, h});
  }));
  EXPECT_TRUE(run([&](TestImage& d) {
    EXPECT_EQ(pxlStsDivByZero,
              pxliDiv_32f_C1R(a.at<float>(0), a.step(), b.at<float>(0), b.step(), d.at<float>(0), d.step(), {w, h}));
  }));
}

}  // namespace
