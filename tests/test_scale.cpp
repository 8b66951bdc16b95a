// Scale: the range rules against independent computations of their
// formulas (all 256 bytes, all 65536 16-bit inputs for both hints, the ends
// of the 32-bit range), every layout on guarded images, the range check
// before everything else, and the rounding states that the members set.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>
#include <xmmintrin.h>

#include "harness/guard.h"
#include "harness/samplewise.h"
#include "pxlcore.h"
#include "pxli.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

float bitsToFloat(std::uint32_t u) {
  float f;
  std::memcpy(&f, &u, sizeof f);
  return f;
}

// x * a + b in x87 extended precision, rounded by the x87 state (nearest,
// the default), low byte kept: the accurate hint's formula as written.
Pxl8u accurateModel(long double x, long double a, long double b) {
  return static_cast<Pxl8u>(std::llrint(x * a + b) & 0xFF);
}

int fastModel16s(int x) { return ((x - (x >> 8)) >> 8) + 128; }
int fastModel16u(int x) { return fastModel16s(x - 32768); }
int fastModel32s(long long x) { return int(((x - (x >> 8)) >> 24) + 128); }

// ---------------------------------------------------- whole input ranges

TEST(Scale, FromBytesHitsBothEndsAndEveryStep) {
  Pxl8u all[256];
  for (int i = 0; i < 256; ++i) all[i] = Pxl8u(i);
  Pxl16u u[256];
  Pxl16s s[256];
  Pxl32s w[256];
  ASSERT_EQ(pxlStsOk, pxliScale_8u16u_C1R(all, 256, u, 512, {256, 1}));
  ASSERT_EQ(pxlStsOk, pxliScale_8u16s_C1R(all, 256, s, 512, {256, 1}));
  ASSERT_EQ(pxlStsOk, pxliScale_8u32s_C1R(all, 256, w, 1024, {256, 1}));
  for (int i = 0; i < 256; ++i) {
    EXPECT_EQ(u[i], i * 257);
    EXPECT_EQ(s[i], i * 257 - 32768);
    EXPECT_EQ(w[i], static_cast<long long>(i) * 16843009 - 2147483648LL);
  }
  EXPECT_EQ(s[0], -32768);
  EXPECT_EQ(s[255], 32767);
  EXPECT_EQ(w[0], std::numeric_limits<Pxl32s>::min());
  EXPECT_EQ(w[255], std::numeric_limits<Pxl32s>::max());
}

TEST(Scale, SixteenBitToBytesBothHintsForEveryInput) {
  std::vector<Pxl16u> u(65536);
  std::vector<Pxl16s> s(65536);
  for (int i = 0; i < 65536; ++i) u[i] = Pxl16u(i), s[i] = Pxl16s(i - 32768);
  const long double a = bitsToFloat(0x3b7f00ff), b = bitsToFloat(0x42ff00ff);
  // Hint 2 is accurate; 1, 0 and anything else fast.
  for (int hint : {2, 1, 0, 3, -1}) {
    std::vector<Pxl8u> du(65536), ds(65536);
    ASSERT_EQ(pxlStsOk, pxliScale_16u8u_C1R(u.data(), 131072, du.data(), 65536, {65536, 1}, hint));
    ASSERT_EQ(pxlStsOk, pxliScale_16s8u_C1R(s.data(), 256, ds.data(), 128, {128, 512}, hint));
    for (int i = 0; i < 65536; ++i) {
      const int wu = hint == 2 ? accurateModel(u[i], a, 0) : fastModel16u(u[i]);
      const int ws = hint == 2 ? accurateModel(s[i], a, b) : fastModel16s(s[i]);
      ASSERT_EQ(du[i], wu) << "16u " << u[i] << " hint " << hint;
      ASSERT_EQ(ds[i], ws) << "16s " << s[i] << " hint " << hint;
    }
    EXPECT_EQ(du[0], 0);
    EXPECT_EQ(du[65535], 255);
    EXPECT_EQ(ds[0], 0);  // -32768
    EXPECT_EQ(ds[65535], 255);
  }
}

TEST(Scale, ThirtyTwoBitToBytesAtTheEndsAndEachStep) {
  std::vector<Pxl32s> x = {std::numeric_limits<Pxl32s>::min(), std::numeric_limits<Pxl32s>::max(), -1, 0, 1};
  // Around every place where either rule changes its result.
  for (long long k = -128; k <= 128; ++k)
    for (long long c : {k * 16843009 - 8421505, k * 16843009, k * 16843009 + 8421504})
      for (int d = -2; d <= 2; ++d)
        if (c + d >= INT32_MIN && c + d <= INT32_MAX) x.push_back(Pxl32s(c + d));
  std::mt19937 rng(9);
  for (int i = 0; i < 20000; ++i) x.push_back(Pxl32s(rng()));
  const int n = int(x.size());
  for (int hint : {1, 2}) {
    std::vector<Pxl8u> d(n);
    ASSERT_EQ(pxlStsOk, pxliScale_32s8u_C1R(x.data(), 4 * n, d.data(), n, {n, 1}, hint));
    for (int i = 0; i < n; ++i) {
      const int want = hint == 2 ? accurateModel(x[i], 5.937181414556033e-8L, 127.5000000296859L)
                                 : fastModel32s(x[i]);
      ASSERT_EQ(d[i], want) << x[i] << " hint " << hint;
    }
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 255);
  }
}

TEST(Scale, FloatRangesAtTheirEnds) {
  const Pxl8u b[4] = {0, 1, 254, 255};
  float f[4];
  ASSERT_EQ(pxlStsOk, pxliScale_8u32f_C1R(b, 4, f, 16, {4, 1}, -1.5f, 2.0f));
  const float k = (2.0f - -1.5f) / 255.0f;
  for (int i = 0; i < 4; ++i) EXPECT_EQ(f[i], float(b[i]) * k + -1.5f);
  EXPECT_EQ(f[0], -1.5f);  // vMin itself

  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const float x[] = {-10.0f, 0.0f, 100.0f, 200.0f, 1e9f, nan, inf, -inf, 150.0f, 49.8f};
  Pxl8u d[10];
  ASSERT_EQ(pxlStsOk, pxliScale_32f8u_C1R(x, 40, d, 10, {10, 1}, 0.0f, 200.0f));
  const Pxl8u want[] = {0, 0, 128, 255, 255, 255, 255, 0, 191, 63};  // 127.5 -> 128, 63.495 -> 63
  EXPECT_EQ(0, std::memcmp(d, want, 10));
}

// ------------------------------------------------- every member and layout

template <class S>
S randomSample(std::mt19937& rng) {
  if constexpr (std::is_same_v<S, float>) {
    const float specials[] = {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), -3.0f,
                              -2.0f, 5.0f, 6.0f};
    return rng() % 5 == 0 ? specials[rng() % 6] : std::uniform_real_distribution<float>(-4.0f, 7.0f)(rng);
  } else {
    return static_cast<S>(rng());
  }
}

// Each layout of a member on guarded images at widths that cross the
// blocks, padded and contiguous: every processed sample is model(source),
// alpha and everything outside the ROI untouched.
template <class S, class D, class Call, class Model>
void checkLayouts(const Call& call, const Model& model, const std::string& name) {
  std::mt19937 rng(std::hash<std::string>{}(name));
  for (int l = 0; l < 4; ++l)
    for (int width = 1; width <= (l == 0 ? 50 : 18); ++width)
      for (int left : {0, 3}) {
        if (::testing::Test::HasFailure()) return;
        pxltest::checkSamplewise<S, D>(
            [&](const S* s, int ss, D* d, int ds, PxlSize r) { return call(l, s, ss, d, ds, r); }, l == 0 ? 1 : l == 1 ? 3 : 4,
            l == 3, width, 2, left, width % 2 ? 0 : 4, Place::Back, rng, randomSample<S>, model,
            name + " layout " + std::to_string(l) + " width " + std::to_string(width));
      }
}

#define PXL_BY_LAYOUT(stem, ...)                                                              \
  [&](int l, auto s, int ss, auto d, int ds, PxlSize r) {                                     \
    return l == 0 ? stem##_C1R(s, ss, d, ds, r __VA_ARGS__)                                    \
                  : l == 1 ? stem##_C3R(s, ss, d, ds, r __VA_ARGS__)                           \
                           : l == 2 ? stem##_C4R(s, ss, d, ds, r __VA_ARGS__) : stem##_AC4R(s, ss, d, ds, r __VA_ARGS__); \
  }

TEST(Scale, EveryMemberInEveryLayout) {
  checkLayouts<Pxl8u, Pxl16u>(PXL_BY_LAYOUT(pxliScale_8u16u), [](int x) { return Pxl16u(x * 257); }, "8u16u");
  checkLayouts<Pxl8u, Pxl16s>(PXL_BY_LAYOUT(pxliScale_8u16s), [](int x) { return Pxl16s(x * 257 - 32768); }, "8u16s");
  checkLayouts<Pxl8u, Pxl32s>(PXL_BY_LAYOUT(pxliScale_8u32s),
                              [](long long x) { return Pxl32s(x * 16843009 - 2147483648LL); }, "8u32s");
  const float vMin = -2.0f, vMax = 5.0f;
  const float k8 = (vMax - vMin) / 255.0f;
  checkLayouts<Pxl8u, Pxl32f>(PXL_BY_LAYOUT(pxliScale_8u32f, , vMin, vMax),
                              [&](Pxl8u x) { return float(x) * k8 + vMin; }, "8u32f");
  const float k = 255.0f / (vMax - vMin), offset = (0.0f - k) * vMin;
  checkLayouts<Pxl32f, Pxl8u>(PXL_BY_LAYOUT(pxliScale_32f8u, , vMin, vMax),
                              [&](float x) {
                                const float c = x < vMax ? x : vMax;  // a NaN is vMax
                                const double v = std::nearbyint((c > vMin ? c : vMin) * k + offset);
                                return Pxl8u(std::min(std::max(v, 0.0), 255.0));
                              },
                              "32f8u");
  const long double a = bitsToFloat(0x3b7f00ff), b = bitsToFloat(0x42ff00ff);
  for (int hint : {1, 2}) {
    const std::string h = hint == 2 ? " accurate" : " fast";
    checkLayouts<Pxl16u, Pxl8u>(PXL_BY_LAYOUT(pxliScale_16u8u, , hint),
                                [&](int x) { return Pxl8u(hint == 2 ? accurateModel(x, a, 0) : fastModel16u(x)); },
                                "16u8u" + h);
    checkLayouts<Pxl16s, Pxl8u>(PXL_BY_LAYOUT(pxliScale_16s8u, , hint),
                                [&](int x) { return Pxl8u(hint == 2 ? accurateModel(x, a, b) : fastModel16s(x)); },
                                "16s8u" + h);
    checkLayouts<Pxl32s, Pxl8u>(
        PXL_BY_LAYOUT(pxliScale_32s8u, , hint),
        [&](long long x) {
          return Pxl8u(hint == 2 ? accurateModel(x, 5.937181414556033e-8L, 127.5000000296859L) : fastModel32s(x));
        },
        "32s8u" + h);
  }
}

// ------------------------------------------------- checks and the state

TEST(Scale, RangeIsCheckedBeforeAnythingElse) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  Pxl8u b[4] = {1, 2, 3, 4};
  float f[4] = {7, 7, 7, 7};
  struct Range {
    float lo, hi;
  };
  for (Range r : {Range{1.0f, 1.0f}, {2.0f, 1.0f}, {nan, 1.0f}, {0.0f, nan}, {-0.0f, 0.0f}}) {
    EXPECT_EQ(pxlStsScaleRange, pxliScale_8u32f_C1R(nullptr, 4, f, 16, {4, 1}, r.lo, r.hi));
    EXPECT_EQ(pxlStsScaleRange, pxliScale_8u32f_C3R(b, 0, f, 16, {0, 1}, r.lo, r.hi));
    EXPECT_EQ(pxlStsScaleRange, pxliScale_32f8u_AC4R(f, 16, nullptr, 4, {1, -1}, r.lo, r.hi));
    EXPECT_EQ(pxlStsScaleRange, pxliScale_32f8u_C1R(nullptr, -1, b, 4, {4, 1}, r.lo, r.hi));
  }
  // With a valid range the usual order follows: pointers, sizes, steps.
  EXPECT_EQ(pxlStsNullPtr, pxliScale_8u32f_C1R(nullptr, 4, f, 16, {0, 1}, 0.0f, 1.0f));
  EXPECT_EQ(pxlStsSize, pxliScale_32f8u_C4R(f, 0, b, 4, {1, 0}, 0.0f, 1.0f));
  EXPECT_EQ(pxlStsStep, pxliScale_32f8u_C1R(f, 16, b, 0, {4, 1}, 0.0f, 1.0f));
  for (float v : f) EXPECT_EQ(v, 7.0f);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(b[i], i + 1);
}

unsigned sseField() { return _mm_getcsr() & 0x6000u; }
int x87Field() { return pxl_set_rcpc_fpu(0, 0) & 3072; }

TEST(Scale, FloatToBytesSetsNearestAndKeepsItOnErrors) {
  const unsigned saved = _mm_getcsr();
  const float x[2] = {0.5f, 1.5f};  // ties at k = 1, offset 0: 0 and 2
  Pxl8u d[2] = {9, 9};
  for (unsigned field : {0x2000u, 0x4000u, 0x6000u}) {
    _mm_setcsr((saved & ~0x6000u) | field);
    ASSERT_EQ(pxlStsOk, pxliScale_32f8u_C1R(x, 8, d, 2, {2, 1}, 0.0f, 255.0f));
    EXPECT_EQ(sseField(), field) << "restored after a normal call";
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 2);
    for (auto bad : {0, 1, 2}) {
      _mm_setcsr((saved & ~0x6000u) | field);
      const PxlStatus st = bad == 0   ? pxliScale_32f8u_C1R(x, 8, d, 2, {2, 1}, 1.0f, 1.0f)
                           : bad == 1 ? pxliScale_32f8u_C1R(nullptr, 8, d, 2, {2, 1}, 0.0f, 1.0f)
                                      : pxliScale_32f8u_C1R(x, 8, d, 2, {2, 0}, 0.0f, 1.0f);
      EXPECT_NE(st, pxlStsOk);
      EXPECT_EQ(sseField(), 0u) << "left at nearest after error " << bad;
    }
    // 8u32f changes no state, on success or error.
    _mm_setcsr((saved & ~0x6000u) | field);
    float f[2];
    EXPECT_EQ(pxlStsScaleRange, pxliScale_8u32f_C1R(d, 2, f, 8, {2, 1}, 1.0f, 0.0f));
    EXPECT_EQ(sseField(), field);
  }
  _mm_setcsr(saved);
}

TEST(Scale, AccurateHintSetsX87NearestAndKeepsItOnErrors) {
  const int saved = pxl_set_rcpc_fpu(3072, 3072);  // caller truncates
  const Pxl16u x[2] = {1, 65535};
  Pxl8u d[2];
  ASSERT_EQ(pxlStsOk, pxliScale_16u8u_C1R(x, 4, d, 2, {2, 1}, 2));
  EXPECT_EQ(x87Field(), 3072) << "restored after a normal call";
  EXPECT_EQ(d[1], 255);
  // The state is set before the pointers are looked at.
  EXPECT_EQ(pxlStsNullPtr, pxliScale_16u8u_C1R(nullptr, 4, d, 2, {2, 1}, 2));
  EXPECT_EQ(x87Field(), 0);
  pxl_set_rcpc_fpu(3072, 3072);
  EXPECT_EQ(pxlStsStep, pxliScale_32s8u_AC4R(reinterpret_cast<const Pxl32s*>(x), 0, d, 2, {1, 1}, 2));
  EXPECT_EQ(x87Field(), 0);
  // The fast hint never touches it.
  pxl_set_rcpc_fpu(3072, 3072);
  EXPECT_EQ(pxlStsNullPtr, pxliScale_16s8u_C1R(nullptr, 4, d, 2, {2, 1}, 1));
  ASSERT_EQ(pxlStsOk, pxliScale_16u8u_C1R(x, 4, d, 2, {2, 1}, 1));
  EXPECT_EQ(x87Field(), 3072);
  pxl_set_cw_fpu(saved);
}

}  // namespace
