// Convert, every type pair and layout, against a plain per-sample model of
// the rule: at every width that crosses the vector blocks and their tails,
// at odd byte offsets, padded and contiguous, with guard pages on both
// sides. Then the corners: ties under both modes, specials, saturation, and
// the caller's rounding state.
#include <gtest/gtest.h>

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
#include "pxls.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

// Round half to even without the processor's rounding state.
double halfEven(double v) {
  double f = std::floor(v);
  const double r = v - f;
  if (r > 0.5 || (r == 0.5 && std::fmod(f, 2.0) != 0.0)) f += 1.0;
  return f;
}

// The model: clamp to the destination (a NaN is the upper limit), round a
// float by the mode, keep every other value.
template <class S, class D>
D model(S x, int roundMode) {
  const double lo = double(std::numeric_limits<D>::lowest()), hi = double(std::numeric_limits<D>::max());
  if constexpr (std::is_floating_point_v<D>) {
    return static_cast<D>(x);
  } else if constexpr (std::is_floating_point_v<S>) {
    if (std::isnan(x)) return std::numeric_limits<D>::max();
    const double v = std::min(std::max(double(x), lo), hi);
    return static_cast<D>(roundMode == pxlRndNear ? halfEven(v) : std::trunc(v));
  } else {
    return static_cast<D>(std::min(std::max(double(x), lo), hi));
  }
}

// Float samples that exercise the rule: values around and beyond the
// destination's range, ties, and the specials.
template <class S, class D>
S sourceSample(std::mt19937& rng) {
  if constexpr (std::is_floating_point_v<S>) {
    const double lo = double(std::numeric_limits<D>::lowest()), hi = double(std::numeric_limits<D>::max());
    static const float specials[] = {std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::quiet_NaN(),
                                     std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                                     -0.0f, -0.4f, 0.5f, 1.5f, 2.5f, -2.5f, -0.5f, -1.5f, 1e30f, -1e30f};
    switch (rng() % 4) {
      case 0: return specials[rng() % (sizeof specials / sizeof specials[0])];
      case 1: return float(std::floor(lo + (hi - lo + 1) * (rng() / 4294967296.0))) + 0.5f;  // a tie
      case 2: return float(lo - 3 + (hi - lo + 6) * (rng() / 4294967296.0));
      default: return std::uniform_real_distribution<float>(float(lo) - 40, float(lo) + 40)(rng);
    }
  } else {
    return static_cast<S>(rng());
  }
}

template <class S, class D>
using Member = PxlStatus (*)(const S*, int, D*, int, PxlSize);
template <class S, class D>
using RoundMember = PxlStatus (*)(const S*, int, D*, int, PxlSize, int);

// Calls a member with or without roundMode by its type.
template <class S, class D>
PxlStatus call(Member<S, D> f, const S* s, int ss, D* d, int ds, PxlSize r, int) {
  return f(s, ss, d, ds, r);
}
template <class S, class D>
PxlStatus call(RoundMember<S, D> f, const S* s, int ss, D* d, int ds, PxlSize r, int mode) {
  return f(s, ss, d, ds, r, mode);
}

// Every layout of one pair. C1 runs every width up to past two blocks of the
// widest level at four byte offsets, padded rows and contiguous rows (which
// the member walks as one row); the other layouts fewer widths.
template <class S, class D, class F>
void checkPair(const F (&members)[4], const char* pair) {
  std::mt19937 rng(std::hash<std::string>{}(pair));
  const int channels[4] = {1, 3, 4, 4};
  const char* layouts[4] = {"C1", "C3", "C4", "AC4"};
  std::vector<int> modes = {pxlRndNear};
  if constexpr (std::is_same_v<F, RoundMember<S, D>>) modes = {pxlRndNear, pxlRndZero, 7};
  for (int l = 0; l < 4; ++l) {
    const std::string name = std::string("pxliConvert_") + pair + "_" + layouts[l] + "R";
    const int maxWidth = l == 0 ? 70 : 24;
    for (int mode : modes)
      for (int width = 1; width <= maxWidth; ++width)
        for (int left : {0, 1, 2, 3}) {
          if (l != 0 && left % 2) continue;
          // With no padding on either side the image is contiguous.
          const int right = (width + left) % 2 ? 0 : 5;
          const Place place = width % 2 ? Place::Back : Place::Front;
          pxltest::checkSamplewise<S, D>(
              [&](const S* s, int ss, D* d, int ds, PxlSize r) { return call<S, D>(members[l], s, ss, d, ds, r, mode); },
              channels[l], l == 3, width, 3, left, right, place, rng, sourceSample<S, D>,
              [mode](S x) { return model<S, D>(x, mode); },
              name + " width " + std::to_string(width) + " left " + std::to_string(left) + " mode " + std::to_string(mode));
          if (::testing::Test::HasFailure()) return;
        }
  }
}

#define PXL_LAYOUTS(stem) {stem##_C1R, stem##_C3R, stem##_C4R, stem##_AC4R}
#define PXL_PAIR(S, D, code)                                                   \
  {                                                                            \
    const Member<S, D> m[4] = PXL_LAYOUTS(pxliConvert_##code);                 \
    checkPair<S, D>(m, #code);                                                 \
  }
#define PXL_ROUND_PAIR(S, D, code)                                             \
  {                                                                            \
    const RoundMember<S, D> m[4] = PXL_LAYOUTS(pxliConvert_##code);            \
    checkPair<S, D>(m, #code);                                                 \
  }

TEST(Convert, IntegerAndWideningPairsFollowTheModelInEveryLayout) {
  PXL_PAIR(Pxl8u, Pxl16u, 8u16u)
  PXL_PAIR(Pxl16u, Pxl8u, 16u8u)
  PXL_PAIR(Pxl8u, Pxl16s, 8u16s)
  PXL_PAIR(Pxl16s, Pxl8u, 16s8u)
  PXL_PAIR(Pxl8u, Pxl32s, 8u32s)
  PXL_PAIR(Pxl32s, Pxl8u, 32s8u)
  PXL_PAIR(Pxl8s, Pxl32s, 8s32s)
  PXL_PAIR(Pxl32s, Pxl8s, 32s8s)
  PXL_PAIR(Pxl16u, Pxl32s, 16u32s)
}

TEST(Convert, ToFloatPairsAreExactInEveryLayout) {
  PXL_PAIR(Pxl8u, Pxl32f, 8u32f)
  PXL_PAIR(Pxl16s, Pxl32f, 16s32f)
  PXL_PAIR(Pxl8s, Pxl32f, 8s32f)
  PXL_PAIR(Pxl16u, Pxl32f, 16u32f)
}

TEST(Convert, FromFloatPairsClampAndRoundByModeInEveryLayout) {
  PXL_ROUND_PAIR(Pxl32f, Pxl8u, 32f8u)
  PXL_ROUND_PAIR(Pxl32f, Pxl16s, 32f16s)
  PXL_ROUND_PAIR(Pxl32f, Pxl8s, 32f8s)
  PXL_ROUND_PAIR(Pxl32f, Pxl16u, 32f16u)
}

// One float through a member, by mode.
template <class D>
D one(RoundMember<Pxl32f, D> f, float x, int mode) {
  D d{};
  EXPECT_EQ(pxlStsOk, f(&x, 4, &d, sizeof d, {1, 1}, mode));
  return d;
}

TEST(Convert, TiesSpecialsAndLimitsOfEachFloatDestination) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  struct Case {
    float x;
    double nearest, zero;
  };
  // Each case under both modes.
  auto check = [](auto member, std::initializer_list<Case> cases) {
    for (Case c : cases) {
      EXPECT_EQ(one(member, c.x, pxlRndNear), c.nearest) << c.x;
      EXPECT_EQ(one(member, c.x, pxlRndZero), c.zero) << c.x;
    }
  };
  // 8u
  check(pxliConvert_32f8u_C1R, {{2.5f, 2, 2}, {3.5f, 4, 3}, {-0.4f, 0, 0}, {-2.5f, 0, 0}, {254.5f, 254, 254}, {254.51f, 255, 254},
        {300.0f, 255, 255}, {nan, 255, 255}, {inf, 255, 255}, {-inf, 0, 0}, {0.5f, 0, 0}, {1.5f, 2, 1}});
  // 8s: -128.7 and 127.9 saturate under either mode.
  check(pxliConvert_32f8s_C1R, {{-128.7f, -128, -128}, {127.9f, 127, 127}, {-2.5f, -2, -2}, {-3.5f, -4, -3}, {-0.6f, -1, 0},
        {nan, 127, 127}, {inf, 127, 127}, {-inf, -128, -128}, {-127.5f, -128, -127}});
  // 16u
  check(pxliConvert_32f16u_C1R, {{65534.5f, 65534, 65534}, {65535.4f, 65535, 65535}, {70000.0f, 65535, 65535}, {-0.5f, 0, 0},
        {nan, 65535, 65535}, {-inf, 0, 0}, {1e30f, 65535, 65535}, {4.5f, 4, 4}, {5.5f, 6, 5}});
  // 16s
  check(pxliConvert_32f16s_C1R, {{-32768.9f, -32768, -32768}, {32767.5f, 32767, 32767}, {-32767.5f, -32768, -32767},
        {-2.5f, -2, -2}, {-1.5f, -2, -1}, {nan, 32767, 32767}, {inf, 32767, 32767}, {-inf, -32768, -32768}});
  // Any mode other than pxlRndNear truncates.
  for (int mode : {7, -1, 2, 1 << 30}) {
    EXPECT_EQ(one(pxliConvert_32f16s_C1R, 3.7f, mode), 3) << mode;
    EXPECT_EQ(one(pxliConvert_32f16s_C1R, -3.7f, mode), -3) << mode;
    EXPECT_EQ(one(pxliConvert_32f8u_C1R, 3.5f, mode), 3) << mode;
  }
}

// The rounding field and the masks of the SSE control register; the sticky
// exception flags are left out, since conversions raise "inexact".
unsigned sseControl() { return _mm_getcsr() & ~0x3Fu; }

TEST(Convert, CallersRoundingStateIsPutBack) {
  const unsigned saved = _mm_getcsr();
  // Nearest, down, up, toward zero.
  for (unsigned field : {0x0000u, 0x2000u, 0x4000u, 0x6000u}) {
    for (int mode : {int(pxlRndNear), int(pxlRndZero), 5}) {
      _mm_setcsr((saved & ~0x6000u) | field);
      const unsigned before = sseControl();
      const float x[4] = {2.4f, -2.4f, 2.5f, 3.5f};
      Pxl16s d[4];
      ASSERT_EQ(pxlStsOk, pxliConvert_32f16s_C1R(x, 16, d, 8, {4, 1}, mode));
      EXPECT_EQ(sseControl(), before) << "field " << field << " mode " << mode;
      _mm_setcsr(saved);
      // The caller's state never reaches the result.
      const Pxl16s want[2][4] = {{2, -2, 2, 3}, {2, -2, 2, 4}};
      EXPECT_EQ(0, std::memcmp(d, want[mode == pxlRndNear], sizeof d)) << "field " << field << " mode " << mode;
    }
  }
  // An argument error returns before the state is touched.
  _mm_setcsr((saved & ~0x6000u) | 0x4000u);
  const unsigned before = sseControl();
  Pxl8u d = 5;
  EXPECT_EQ(pxlStsNullPtr, pxliConvert_32f8u_C1R(nullptr, 4, &d, 1, {1, 1}, pxlRndNear));
  EXPECT_EQ(pxlStsStep, pxliConvert_32f8u_C1R(reinterpret_cast<const float*>(&before), 0, &d, 1, {1, 1}, pxlRndNear));
  EXPECT_EQ(sseControl(), before);
  _mm_setcsr(saved);
  EXPECT_EQ(d, 5);
}

TEST(Convert, OrderOfChecksWithTwoFaults) {
  float s[4] = {};
  Pxl8u d[4] = {9, 9, 9, 9};
  EXPECT_EQ(pxlStsNullPtr, pxliConvert_32f8u_C3R(nullptr, 12, d, 3, {0, 1}, pxlRndNear));  // no hand-over to C1
  EXPECT_EQ(pxlStsSize, pxliConvert_32f8u_C4R(s, 0, d, 4, {1, 0}, pxlRndNear));
  EXPECT_EQ(pxlStsStep, pxliConvert_8u32f_AC4R(d, 4, s, -4, {1, 1}));
  for (Pxl8u v : d) EXPECT_EQ(v, 9);
}

// ------------------------------------------------------------------ vectors

TEST(ConvertVector, PlainFormsKeepTheValue) {
  std::mt19937 rng(5);
  for (int len : {1, 3, 15, 16, 17, 31, 33, 64, 100}) {
    std::vector<Pxl8u> b(len);
    std::vector<Pxl32s> s(len);
    for (int i = 0; i < len; ++i) b[i] = Pxl8u(rng()), s[i] = Pxl32s(rng());
    std::vector<Pxl32f> f(len), g(len);
    std::vector<Pxl64f> w(len);
    ASSERT_EQ(pxlStsOk, pxlsConvert_8u32f(b.data(), f.data(), len));
    ASSERT_EQ(pxlStsOk, pxlsConvert_32s32f(s.data(), g.data(), len));
    ASSERT_EQ(pxlStsOk, pxlsConvert_32s64f(s.data(), w.data(), len));
    for (int i = 0; i < len; ++i) {
      EXPECT_EQ(f[i], float(b[i]));
      EXPECT_EQ(g[i], float(double(s[i])));  // nearest even under the default state
      EXPECT_EQ(w[i], double(s[i]));
    }
  }
  Pxl32s odd = 16777217;
  Pxl32f out = 0;
  ASSERT_EQ(pxlStsOk, pxlsConvert_32s32f(&odd, &out, 1));
  EXPECT_EQ(out, 16777216.0f);
}

template <class D>
D modelSfs(double x, int mode, int scale) {
  const double lo = double(std::numeric_limits<D>::lowest()), hi = double(std::numeric_limits<D>::max());
  if (std::isnan(x)) return std::numeric_limits<D>::max();
  const double v = std::min(std::max(std::ldexp(x, -scale), lo), hi);
  return static_cast<D>(mode == pxlRndNear ? halfEven(v) : std::trunc(v));
}

template <class S, class D>
void checkSfs(PxlStatus (*f)(const S*, D*, int, int, int), const char* name) {
  std::mt19937 rng(17);
  const S specials[] = {std::numeric_limits<S>::quiet_NaN(), std::numeric_limits<S>::infinity(),
                        -std::numeric_limits<S>::infinity(), S(2.5), S(-2.5), S(0.5), S(-0.4), S(0),
                        S(2147483520.0), S(-2147483648.0), S(3e9), S(-3e9), S(1e-30), S(255.5), S(-32768.5)};
  for (int scale : {0, 1, 2, -1, -3, 8, 31, 40, -40, 200, -200, 1000, -1000})
    for (int mode : {int(pxlRndNear), int(pxlRndZero), 3})
      for (int len : {1, 7, 8, 9, 16, 33}) {
        std::vector<S> x(len);
        for (int i = 0; i < len; ++i)
          x[i] = rng() % 3 ? S(std::uniform_real_distribution<double>(-70000, 70000)(rng))
                           : specials[rng() % (sizeof specials / sizeof specials[0])];
        std::vector<D> got(len + 1, D(77));
        const unsigned before = sseControl();
        ASSERT_EQ(pxlStsOk, f(x.data(), got.data(), len, mode, scale));
        EXPECT_EQ(sseControl(), before) << name;
        EXPECT_EQ(got[len], D(77)) << name << " wrote past the end";
        for (int i = 0; i < len; ++i)
          ASSERT_EQ(got[i], modelSfs<D>(x[i], mode, scale))
              << name << " x " << x[i] << " scale " << scale << " mode " << mode;
      }
}

TEST(ConvertVector, ScaledFormsClampAndRoundByMode) {
  checkSfs<Pxl32f, Pxl8u>(pxlsConvert_32f8u_Sfs, "32f8u");
  checkSfs<Pxl32f, Pxl16s>(pxlsConvert_32f16s_Sfs, "32f16s");
  checkSfs<Pxl32f, Pxl32s>(pxlsConvert_32f32s_Sfs, "32f32s");
  checkSfs<Pxl64f, Pxl32s>(pxlsConvert_64f32s_Sfs, "64f32s");
}

TEST(ConvertVector, ScaledFormsPutBothControlStatesBack) {
  const unsigned saved = _mm_getcsr();
  _mm_setcsr((saved & ~0x6000u) | 0x2000u);  // caller rounds down
  const unsigned sse = sseControl();
  const int x87 = pxl_set_rcpc_fpu(0x400, 3072);  // x87 down as well
  const float f = -2.5f;
  const double g = 2.5;
  Pxl16s d16 = 0;
  Pxl32s d32 = 0;
  EXPECT_EQ(pxlStsOk, pxlsConvert_32f16s_Sfs(&f, &d16, 1, pxlRndNear, 0));
  EXPECT_EQ(pxlStsOk, pxlsConvert_64f32s_Sfs(&g, &d32, 1, pxlRndNear, 0));
  EXPECT_EQ(d16, -2);
  EXPECT_EQ(d32, 2);
  EXPECT_EQ(sseControl(), sse);
  const int now = pxl_set_rcpc_fpu(0, 0);  // reads the word, changes nothing
  EXPECT_EQ(now & 3072, 0x400);
  pxl_set_cw_fpu(x87);
  _mm_setcsr(saved);
}

}  // namespace
