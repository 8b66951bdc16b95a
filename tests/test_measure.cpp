// Reductions, norms, histograms and noise at the places where their last
// bits are decided: accumulator thresholds and blocks, the two 32f routes,
// the two mean formulas, index ties, NaN, bin edges, the histogram
// strategies against one plain count, the generator from a seed, and each
// family's check order with two faults at once.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "pxli.h"

namespace {

TEST(Sum, EightBitTotalAtAndPastItsThirtyTwoBitThreshold) {
  // 2184 x 3856 = 0x808080 pixels of 255 still fit a signed 32-bit total;
  // one row more must take the per-row route and not wrap.
  std::vector<Pxl8u> img(2184 * 3857, 255);
  Pxl64f s = 0;
  ASSERT_EQ(pxliSum_8u_C1R(img.data(), 2184, {2184, 3856}, &s), pxlStsOk);
  EXPECT_EQ(s, 2147483520.0);
  ASSERT_EQ(pxliSum_8u_C1R(img.data(), 2184, {2184, 3857}, &s), pxlStsOk);
  EXPECT_EQ(s, 2147483520.0 + 2184 * 255.0);
}

TEST(Sum, SixteenBitBlocks) {
  // 16u: a row's block total at or above 2^31 enters as a negative number.
  std::vector<Pxl16u> u(65536 + 40000, 65535);
  Pxl64f s = 0;
  ASSERT_EQ(pxliSum_16u_C1R(u.data(), 80000, {40000, 1}, &s), pxlStsOk);
  EXPECT_EQ(s, 40000.0 * 65535 - 4294967296.0);
  // Two blocks: 65536 samples of 1 and 40000 of 65535 each keep their own total.
  std::fill(u.begin(), u.begin() + 65536, 1);
  ASSERT_EQ(pxliSum_16u_C1R(u.data(), int(u.size()) * 2, {int(u.size()), 1}, &s), pxlStsOk);
  EXPECT_EQ(s, 65536.0 + 40000.0 * 65535 - 4294967296.0);
  // 16s is exact past its 65535-pixel whole-image total and 32768-sample blocks.
  std::vector<Pxl16s> v(70000, -32768);
  ASSERT_EQ(pxliSum_16s_C1R(v.data(), 140000, {70000, 1}, &s), pxlStsOk);
  EXPECT_EQ(s, -32768.0 * 70000);
  ASSERT_EQ(pxliSum_16s_C1R(v.data(), 2 * 350, {350, 200}, &s), pxlStsOk);
  EXPECT_EQ(s, -32768.0 * 70000);
}

TEST(Sum, FloatRoutesDifferInTheLastBits) {
  // 1e8 and 1 fall in the same single-precision lane of the fast route
  // (1e8 + 1 rounds back to 1e8); the accurate route keeps the 1.
  alignas(32) Pxl32f row[32] = {};
  row[0] = 1e8f;
  row[16] = 1.0f;
  Pxl64f fast = 0, accurate = 0, mean = 0;
  ASSERT_EQ(pxliSum_32f_C1R(row, 128, {32, 1}, &fast, 0), pxlStsOk);
  ASSERT_EQ(pxliSum_32f_C1R(row, 128, {32, 1}, &accurate, 2), pxlStsOk);
  EXPECT_EQ(fast, 1e8);
  EXPECT_EQ(accurate, 100000001.0);
  // Mean passes its hint on.
  ASSERT_EQ(pxliMean_32f_C1R(row, 128, {32, 1}, &mean, 2), pxlStsOk);
  EXPECT_EQ(mean, 100000001.0 / 32);
}

TEST(Sum, NaNTotalIsTheOneQuietNaN) {
  // Two NaNs of other bits meet in one lane: which one an addition passes on
  // is the compiler's choice, so the total is the one quiet NaN on both routes.
  Pxl32f row[40];
  for (int i = 0; i < 40; ++i) row[i] = float(i);
  const std::uint32_t a = 0xFFC00001u, b = 0x7FC0BEEFu;
  std::memcpy(&row[3], &a, 4), std::memcpy(&row[19], &b, 4);
  for (int hint : {0, 2}) {
    Pxl64f s = 0, m = 0;
    ASSERT_EQ(pxliSum_32f_C1R(row, 160, {40, 1}, &s, hint), pxlStsOk);
    ASSERT_EQ(pxliMean_32f_C1R(row, 160, {40, 1}, &m, hint), pxlStsOk);
    std::uint64_t sb, mb;
    std::memcpy(&sb, &s, 8), std::memcpy(&mb, &m, 8);
    EXPECT_EQ(sb, 0x7FF8000000000000u) << hint;
    EXPECT_EQ(mb, 0x7FF8000000000000u) << hint;
  }
}

TEST(Mean, COneDividesOthersMultiplyByAnExtendedReciprocal) {
  // Over 10001 pixels (past 2^11 the extended reciprocal can round the
  // other way) this sum of 53 bits gives two different last bits.
  const float f1 = 0x1.b968fp+0f, f2 = 0x1.f4f09ep-30f;
  const double sum = double(f1) + double(f2), n = 73 * 137;
  std::vector<Pxl32f> c1(73 * 137, 0.0f), c3(73 * 137 * 3, 0.0f);
  c1[0] = c3[0] = f1;
  c1[1] = c3[3] = f2;
  Pxl64f m1 = 0, m3[3] = {};
  ASSERT_EQ(pxliMean_32f_C1R(c1.data(), 73 * 4, {73, 137}, &m1, 2), pxlStsOk);
  ASSERT_EQ(pxliMean_32f_C3R(c3.data(), 73 * 12, {73, 137}, m3, 2), pxlStsOk);
  EXPECT_EQ(m1, sum / n);
  EXPECT_EQ(m3[0], double((long double)sum * (1.0L / n)));
  EXPECT_NE(m1, m3[0]);
}

TEST(MinMax, FloatStartsAtTheFiniteLimits) {
  std::vector<Pxl32f> inf(12, INFINITY);
  Pxl32f mn = 0, mx = 0;
  ASSERT_EQ(pxliMinMax_32f_C1R(inf.data(), 16, {4, 3}, &mn, &mx), pxlStsOk);
  EXPECT_EQ(mn, FLT_MAX);
  EXPECT_EQ(mx, INFINITY);
  std::fill(inf.begin(), inf.end(), -INFINITY);
  ASSERT_EQ(pxliMax_32f_C1R(inf.data(), 16, {4, 3}, &mx), pxlStsOk);
  EXPECT_EQ(mx, -FLT_MAX);
}

TEST(MinIndx, FirstExtremeInRasterOrder) {
  // Two minima in a row: the left one; in two rows: the upper one, even to the right.
  std::vector<Pxl8u> img(6 * 4, 50);
  img[1 * 6 + 4] = 3;
  img[2 * 6 + 1] = 3;
  img[1 * 6 + 5] = 3;
  Pxl8u v = 0;
  Pxl32s x = -1, y = -1;
  ASSERT_EQ(pxliMinIndx_8u_C1R(img.data(), 6, {6, 4}, &v, &x, &y), pxlStsOk);
  EXPECT_EQ(v, 3);
  EXPECT_EQ(x, 4);
  EXPECT_EQ(y, 1);
  // A constant image: (0, 0) for minimum and maximum alike.
  std::vector<Pxl8u> flat(24, 255);
  ASSERT_EQ(pxliMaxIndx_8u_C1R(flat.data(), 6, {6, 4}, &v, &x, &y), pxlStsOk);
  EXPECT_EQ(v, 255);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
  // C3: each channel has its own position; 16s maximum ties keep the first.
  std::vector<Pxl16s> c3(3 * 4 * 3, 0);
  c3[(0 * 4 + 2) * 3 + 0] = 9;
  c3[(2 * 4 + 0) * 3 + 1] = 9;
  c3[(1 * 4 + 3) * 3 + 2] = 9;
  c3[(2 * 4 + 3) * 3 + 2] = 9;
  Pxl16s vs[3];
  Pxl32s xs[3], ys[3];
  ASSERT_EQ(pxliMaxIndx_16s_C3R(c3.data(), 24, {4, 3}, vs, xs, ys), pxlStsOk);
  EXPECT_EQ(std::vector<int>(xs, xs + 3), (std::vector<int>{2, 0, 3}));
  EXPECT_EQ(std::vector<int>(ys, ys + 3), (std::vector<int>{0, 2, 1}));
  // 32f multi-channel: the first pixel is the start, and a later equal value does not move it.
  std::vector<Pxl32f> f(4 * 2 * 3, 1.0f);
  Pxl32f fv[3];
  ASSERT_EQ(pxliMinIndx_32f_C3R(f.data(), 48, {4, 2}, fv, xs, ys), pxlStsOk);
  EXPECT_EQ(xs[0] + ys[0] + xs[1] + ys[1] + xs[2] + ys[2], 0);
}

TEST(CountInRange, InclusiveBoundsNaNAndSixteenBitLanes) {
  std::vector<Pxl8u> img = {0, 5, 6, 7, 255, 5};
  Pxl32s n = 0;
  ASSERT_EQ(pxliCountInRange_8u_C1R(img.data(), 6, {6, 1}, &n, 5, 5), pxlStsOk);
  EXPECT_EQ(n, 2);
  std::vector<Pxl32f> f = {NAN, 1.0f, 2.0f, -INFINITY};
  ASSERT_EQ(pxliCountInRange_32f_C1R(f.data(), 16, {4, 1}, &n, -FLT_MAX, 2.0f), pxlStsOk);
  EXPECT_EQ(n, 2);
  // AC4 counts a channel in one 16-bit lane per row: 65537 matches wrap to 1.
  std::vector<Pxl8u> wide(65537 * 4, 7);
  const Pxl8u lo[3] = {0, 8, 7}, hi[3] = {255, 9, 7};
  Pxl32s c[3];
  ASSERT_EQ(pxliCountInRange_8u_AC4R(wide.data(), 65537 * 4, {65537, 1}, c, lo, hi), pxlStsOk);
  EXPECT_EQ(c[0], 1);
  EXPECT_EQ(c[1], 0);
  EXPECT_EQ(c[2], 1);
  // C1 counts a row in four lanes by column: 4 x 65537 + 2 matches leave 1, 1, 2, 2.
  wide.resize(4 * 65537 + 2, 7);
  ASSERT_EQ(pxliCountInRange_8u_C1R(wide.data(), 4 * 65537 + 2, {4 * 65537 + 2, 1}, &n, 7, 7), pxlStsOk);
  EXPECT_EQ(n, 6);
}

TEST(Norm, IntegerEdgesAndRelativeWarnings) {
  Pxl32s m = INT32_MIN;
  Pxl64f v = 0;
  ASSERT_EQ(pxliNorm_Inf_32s_C1R(&m, 4, {1, 1}, &v), pxlStsOk);
  EXPECT_EQ(v, 2147483648.0);
  // 32769 columns: blocks of 32768 and 1 joined as the root of squared roots.
  std::vector<Pxl8u> wide(32769 * 2, 255);
  wide[32768] = 3;
  wide[32769 + 32768] = 4;
  ASSERT_EQ(pxliNorm_L2_8u_C1R(wide.data(), 32769, {32769, 2}, &v), pxlStsOk);
  const double a = std::sqrt(32768.0 * 2 * 255 * 255), b = std::sqrt(25.0);
  EXPECT_EQ(v, std::sqrt(a * a + b * b));
  // A black src2 gives the plain L2 of the difference and the warning.
  std::vector<Pxl8u> s1 = {3, 4, 0, 0}, black(4, 0);
  ASSERT_EQ(pxliNormRel_L2_8u_C1R(s1.data(), 4, black.data(), 4, {4, 1}, &v), pxlStsDivByZero);
  EXPECT_EQ(v, 5.0);
  ASSERT_EQ(pxliNormRel_L1_8u_C1R(s1.data(), 4, s1.data(), 4, {4, 1}, &v), pxlStsOk);
  EXPECT_EQ(v, 0.0);
  // One black channel of src2 stops the division in all three.
  const Pxl8u p1[6] = {10, 20, 30, 10, 20, 30}, p2[6] = {5, 0, 10, 5, 0, 10};
  Pxl64f r[3];
  ASSERT_EQ(pxliNormRel_L1_8u_C3R(p1, 6, p2, 6, {2, 1}, r), pxlStsDivByZero);
  EXPECT_EQ(r[0], 10.0);
  EXPECT_EQ(r[1], 40.0);
  EXPECT_EQ(r[2], 40.0);
  ASSERT_EQ(pxliNormDiff_Inf_16s_C1R(std::vector<Pxl16s>{-32768}.data(), 2,
                                     std::vector<Pxl16s>{32767}.data(), 2, {1, 1}, &v), pxlStsOk);
  EXPECT_EQ(v, 65535.0);
}

// One plain count: bin k takes levels[k] <= x < levels[k + 1] for each k.
std::vector<Pxl32s> plainCount(const std::vector<Pxl16s>& img, const std::vector<Pxl32s>& lv) {
  std::vector<Pxl32s> h(lv.size() - 1, 0);
  for (Pxl16s x : img)
    for (size_t k = 0; k + 1 < lv.size(); ++k) h[k] += lv[k] <= x && x < lv[k + 1];
  return h;
}

TEST(Histogram, EveryStrategyCountsAlike) {
  // Sizes and level counts that pick the brute loop, forward and binary
  // search and the full table; ascending levels must give the plain counts.
  std::mt19937 rng(5);
  for (int side : {10, 100, 400})
    for (int nl : {2, 5, 30, 100, 300}) {
      std::vector<Pxl16s> img(side * side);
      for (auto& x : img) x = Pxl16s(int(rng() % 2000) - 1000);
      std::vector<Pxl32s> lv(nl);
      for (int i = 0; i < nl; ++i) lv[i] = -900 + i * 1800 / nl + (i == nl - 1);
      std::vector<Pxl32s> h(nl - 1, 77);
      ASSERT_EQ(pxliHistogramRange_16s_C1R(img.data(), side * 2, {side, side}, h.data(), lv.data(), nl), pxlStsOk);
      EXPECT_EQ(h, plainCount(img, lv)) << side << " " << nl;
    }
  // Levels out of order: a small image runs the brute loop, 100 x 100 with
  // 60 levels the table; both count overlapping bins twice and a reversed
  // bin never.
  std::vector<Pxl32s> lv(60);
  for (int i = 0; i < 60; ++i) lv[i] = i * 10;
  lv[2] = 5;  // bins 1 (10..5) and 2 (5..30) out of order
  std::vector<Pxl16s> small(100, 7);
  std::vector<Pxl32s> h(59);
  ASSERT_EQ(pxliHistogramRange_16s_C1R(small.data(), 20, {10, 10}, h.data(), lv.data(), 60), pxlStsOk);
  EXPECT_EQ(h[0], 100);
  EXPECT_EQ(h[2], 100);
  std::vector<Pxl16s> big(10000, 7);
  ASSERT_EQ(pxliHistogramRange_16s_C1R(big.data(), 200, {100, 100}, h.data(), lv.data(), 60), pxlStsOk);
  EXPECT_EQ(h[0], 10000);
  EXPECT_EQ(h[1], 0);
  EXPECT_EQ(h[2], 10000);
}

TEST(Histogram, BinEdgesAndEvenLevels) {
  const Pxl8u img[5] = {0, 63, 64, 255, 128};
  Pxl32s h[4], lv[5];
  ASSERT_EQ(pxliHistogramEven_8u_C1R(img, 5, {5, 1}, h, lv, 5, 0, 256), pxlStsOk);
  EXPECT_EQ(std::vector<int>(lv, lv + 5), (std::vector<int>{0, 64, 128, 192, 256}));
  EXPECT_EQ(std::vector<int>(h, h + 4), (std::vector<int>{2, 1, 1, 1}));
  ASSERT_EQ(pxliHistogramEven_8u_C1R(img, 5, {5, 1}, h, lv, 5, 0, 10), pxlStsOk);
  EXPECT_EQ(std::vector<int>(lv, lv + 5), (std::vector<int>{0, 3, 6, 8, 10}));
  EXPECT_EQ(h[0], 1);
  // The top level is exclusive: 255 is lost under an upper level of 255.
  const Pxl32s top[2] = {0, 255};
  ASSERT_EQ(pxliHistogramRange_8u_C1R(img, 5, {5, 1}, h, top, 2), pxlStsOk);
  EXPECT_EQ(h[0], 4);
  // Reversed bounds: descending levels, empty bins.
  ASSERT_EQ(pxliHistogramEven_8u_C1R(img, 5, {5, 1}, h, lv, 3, 200, 0), pxlStsOk);
  EXPECT_EQ(h[0] + h[1], 0);
  // 16u direct path and 32f: a sample on a middle level goes to the bin above.
  const Pxl16u u[4] = {100, 199, 200, 300};
  ASSERT_EQ(pxliHistogramEven_16u_C1R(u, 8, {4, 1}, h, lv, 3, 100, 300), pxlStsOk);
  EXPECT_EQ(std::vector<int>(h, h + 2), (std::vector<int>{2, 1}));
  const Pxl32f f[4] = {0.5f, NAN, 1.0f, 2.0f};
  const Pxl32f fl[3] = {0.5f, 1.0f, 2.0f};
  ASSERT_EQ(pxliHistogramRange_32f_C1R(f, 16, {4, 1}, h, fl, 3), pxlStsOk);
  EXPECT_EQ(std::vector<int>(h, h + 2), (std::vector<int>{1, 1}));
}

TEST(Checks, EachFamilyKeepsItsOwnOrder) {
  Pxl8u px[8] = {};
  Pxl64f d[4];
  Pxl8u b[4];
  Pxl32s i[4], n3[3] = {5, 1, 5};
  // Sum tests the step before the size; Min the size before the step.
  EXPECT_EQ(pxliSum_8u_C1R(px, 0, {0, 1}, d), pxlStsStep);
  EXPECT_EQ(pxliMin_8u_C1R(px, 0, {0, 1}, b), pxlStsSize);
  EXPECT_EQ(pxliMean_8u_C1R(nullptr, 0, {0, 1}, d), pxlStsNullPtr);
  EXPECT_EQ(pxliNorm_L1_8u_C1R(px, 0, {0, 1}, d), pxlStsSize);
  EXPECT_EQ(pxliCountInRange_8u_C1R(px, 1, {0, 1}, i, 9, 1), pxlStsSize);
  EXPECT_EQ(pxliCountInRange_8u_C1R(px, 1, {1, 1}, i, 9, 1), pxlStsRangeOrder);
  EXPECT_EQ(pxliMaxIndx_8u_C1R(px, 1, {1, 1}, b, i, nullptr), pxlStsNullPtr);
  // Histograms: C1 reports the size first, several channels the level count.
  Pxl32s lv[8];
  EXPECT_EQ(pxliHistogramRange_8u_C1R(px, 1, {0, 1}, i, lv, 1), pxlStsSize);
  Pxl32s* hs[3] = {i, i, i};
  const Pxl32s* ls[3] = {lv, lv, lv};
  EXPECT_EQ(pxliHistogramRange_8u_C3R(px, 3, {0, 1}, hs, ls, n3), pxlStsHistoLevels);
  // Nothing is written on failure.
  d[0] = 42;
  EXPECT_EQ(pxliSum_8u_C1R(px, 1, {1, 0}, d), pxlStsSize);
  EXPECT_EQ(d[0], 42);
  Pxl32u seed = 1;
  EXPECT_EQ(pxliAddRandUniform_Direct_8u_C1IR(px, 0, {0, 1}, 0, 1, &seed), pxlStsSize);
  EXPECT_EQ(pxliImageRamp_8u_C1R(px, 0, {0, 1}, 0, 1, 0), pxlStsStep);
}

// The generator as stated, in 64-bit arithmetic kept modulo 2^32.
std::vector<std::int32_t> generator(std::uint32_t s, int count, std::uint32_t* last) {
  const std::uint64_t m = 69069, a = 0x3C6EF373;
  std::uint64_t x0 = s, x1 = (m * s + a) & 0xFFFFFFFF, x2 = (m * x1 + a) & 0xFFFFFFFF, c = 0x436CBAE9;
  std::int64_t b = -1;
  std::vector<std::int32_t> out;
  for (int i = 0; i < count; ++i) {
    c = (m * c + a) & 0xFFFFFFFF;
    std::int64_t t = std::int64_t(std::int32_t(std::uint32_t(x1 - x2 + b)));
    b = t < 0 ? -1 : 0;
    const std::uint64_t u = std::uint32_t(t < 0 ? t - 18 : t);
    x2 = x1;
    x1 = x0;
    x0 = u;
    out.push_back(std::int32_t(std::uint32_t(u + m * c + a)));
    *last = std::uint32_t(u);
  }
  return out;
}

TEST(Noise, SeedGivesTheSequenceAndSaturates) {
  // 16s with low -1000, high 1000: each sample gets rint(r * 2000 / 2^32).
  std::vector<Pxl16s> img(64, 0);
  Pxl32u seed = 12345, last = 0;
  ASSERT_EQ(pxliAddRandUniform_Direct_16s_C1IR(img.data(), 16, {8, 8}, -1000, 1000, &seed), pxlStsOk);
  const auto r = generator(12345, 64, &last);
  for (int i = 0; i < 64; ++i) EXPECT_EQ(img[i], std::nearbyint((long double)r[i] * (2000 * 0x1p-32L))) << i;
  EXPECT_EQ(seed, last);
  // Zero range leaves the image and still advances the seed; a second call continues.
  std::vector<Pxl8u> g(12, 100);
  seed = 7;
  ASSERT_EQ(pxliAddRandUniform_Direct_8u_C3IR(g.data(), 6, {2, 2}, 0, 0, &seed), pxlStsOk);
  EXPECT_EQ(g, std::vector<Pxl8u>(12, 100));
  generator(7, 12, &last);
  EXPECT_EQ(seed, last);
  // Saturation, and alpha of AC4 untouched.
  std::vector<Pxl8u> a(8, 100);
  seed = 1;
  ASSERT_EQ(pxliAddRandUniform_Direct_8u_AC4IR(a.data(), 8, {2, 1}, 200, 200, &seed), pxlStsOk);
  EXPECT_EQ(a, (std::vector<Pxl8u>{255, 255, 255, 100, 255, 255, 255, 100}));
  ASSERT_EQ(pxliAddRandGauss_Direct_8u_C1IR(a.data(), 8, {8, 1}, 0, 0, &seed), pxlStsOk);
  std::vector<Pxl32f> gf(1000, 0.0f);
  ASSERT_EQ(pxliAddRandGauss_Direct_32f_C1IR(gf.data(), 4000, {1000, 1}, 5.0f, 2.0f, &seed), pxlStsOk);
  double mean = 0;
  for (float x : gf) mean += x;
  EXPECT_NEAR(mean / 1000, 5.0, 0.3);
}

TEST(Ramp, RoundsAndSaturatesAtTheHalf) {
  Pxl8u v[3];
  ASSERT_EQ(pxliImageRamp_8u_C3R(v, 3, {1, 1}, 254.5f, 0.0f, 0), pxlStsOk);
  EXPECT_EQ(v[0] + v[1] + v[2], 3 * 255);
  ASSERT_EQ(pxliImageRamp_8u_C1R(v, 3, {3, 1}, 254.4f, 0.0f, 0), pxlStsOk);
  EXPECT_EQ(v[0], 254);
  Pxl16s r[6];
  ASSERT_EQ(pxliImageRamp_16s_C1R(r, 6, {3, 2}, -1.0f, 1.5f, 2), pxlStsOk);
  EXPECT_EQ(std::vector<int>(r, r + 6), (std::vector<int>{-1, -1, -1, -1, 1, 2}));
}

}  // namespace
