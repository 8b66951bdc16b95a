// Div and DivC: every image member and vector form.
//
// A division by a zero sample is not an error: it gives a defined value and
// the warning pxlStsDivByZero, and every sample is still written. A zero
// constant is an error (pxlStsDivByZeroConst) which most members report
// before writing anything; the 8u C3 and C4 members, which divide against a
// scratch row of constants, note it, write every row and report it last.
//
// The integer quotients of 8u and 16s are computed in single precision and
// rounded by adding one half: this is the rule of those members, not an
// approximation of a better one, and the float steps are kept as they are.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "arith/muldiv.h"
#include "pxlcore.h"
#include "pxls.h"

namespace pxl::arith {

// ------------------------------------------------------------ one sample

// Rounds a non-negative float by adding one half and truncating; where the
// sum is exactly an odd integer (a tie), one is taken off, which rounds ties
// to even for every value that single precision holds exactly.
inline int roundHalfEvenFloat(float q) {
  const float t = q + 0.5f;
  int i = static_cast<int>(t);
  if ((i & 1) != 0 && static_cast<float>(i) == t) --i;
  return i;
}

inline float pow2f(int e) { return std::ldexp(1.0f, e); }

// n / d on 8u: n times 2^-scale over d in single precision, rounded, at
// most 255. Far below the range only whether n is 0 matters; above 8 every
// quotient of a non-zero divisor rounds to 0.
inline Pxl8u divSample(Pxl8u n, Pxl8u d, int s, bool& zero) {
  if (d == 0) {
    zero = true;
    return n != 0 ? 255 : 0;
  }
  if (s < -15) return n != 0 ? 255 : 0;
  if (s > 8) return 0;
  const float q = static_cast<float>(n) * pow2f(-s) / static_cast<float>(d);
  const int r = roundHalfEvenFloat(q);
  return static_cast<Pxl8u>(r > 255 ? 255 : r);
}

// 16s: the same float arithmetic for every scale. The quotient saturates
// first; the rounding works on q + 32768 so that truncation only meets
// non-negative values.
inline Pxl16s divSample(Pxl16s n, Pxl16s d, int s, bool& zero) {
  if (d == 0) {
    zero = true;
    return n > 0 ? 32767 : n < 0 ? -32768 : 0;
  }
  const float q = static_cast<float>(n) * pow2f(-s) / static_cast<float>(d);
  if (q != q) return 0;  // 0 times 2^128: a zero numerator
  if (q < -32768.0f) return -32768;
  if (q > 32767.0f) return 32767;
  return static_cast<Pxl16s>(roundHalfEvenFloat(q + 32768.0f) - 32768);
}

// 16u in integers: the quotient with 16 fraction bits, then rounded.
inline Pxl16u divSample(Pxl16u n, Pxl16u d, int s, bool& zero) {
  if (d == 0) zero = true;
  if (s < -31) return n != 0 ? 65535 : 0;
  if (s > 16) return d != 0 ? 0 : n != 0 ? 65535 : 0;
  std::uint64_t m = n, dd = d;
  if (s < 0)
    m <<= -s;
  else
    dd <<= s;
  if (dd == 0) return m != 0 ? 65535 : 0;
  const std::uint64_t q = (m << 16) / dd;
  const std::uint64_t r = (q + ((q & 65536) >> 15) + 32767) >> 16;
  return static_cast<Pxl16u>(r > 65535 ? 65535 : r);
}

// Rounds to nearest, ties to even, and saturates to R; v is finite or
// infinite, never NaN.
template <class R>
inline R roundSaturate(long double v) {
  constexpr long double lo = std::numeric_limits<R>::min(), hi = std::numeric_limits<R>::max();
  if (v >= hi) return std::numeric_limits<R>::max();
  if (v <= lo) return std::numeric_limits<R>::min();
  long double f = std::floor(v);
  const long double frac = v - f;
  if (frac > 0.5L || (frac == 0.5L && std::fmod(f, 2.0L) != 0)) f += 1;
  return static_cast<R>(f);
}

template <class R>
inline R signSaturate(R v) {
  return v > 0 ? std::numeric_limits<R>::max() : v < 0 ? std::numeric_limits<R>::min() : R(0);
}

// Complex integers: the quotient in extended precision (the products of
// 32-bit parts and their sums are exact there), scaled, rounded to nearest
// even and saturated per part. A zero divisor gives each part the saturated
// sign of the numerator's part.
template <class T>
inline std::enable_if_t<kComplex<T> && std::is_integral_v<PartOf<T>>, T> divSample(T n, T d, int s, bool& zero) {
  using R = PartOf<T>;
  using LD = long double;
  const LD t = LD(d.re) * LD(d.re) + LD(d.im) * LD(d.im);
  if (t == 0) {
    zero = true;
    return T{signSaturate<R>(n.re), signSaturate<R>(n.im)};
  }
  const LD re = (LD(n.re) * LD(d.re) + LD(n.im) * LD(d.im)) / t;
  const LD im = (LD(n.im) * LD(d.re) - LD(n.re) * LD(d.im)) / t;
  return T{roundSaturate<R>(std::ldexp(re, -s)), roundSaturate<R>(std::ldexp(im, -s))};
}

// Complex floats, in double: t = |d|^2; if t is not above zero both parts
// are the library's NaN, else the product with the conjugate times 1/t,
// the reciprocal formed once.
template <class T>
inline std::enable_if_t<kComplex<T> && std::is_floating_point_v<PartOf<T>>, T> divSample(T n, T d, int, bool& zero) {
  using R = PartOf<T>;
  const double dr = d.re, di = d.im, nr = n.re, ni = n.im;
  const double t = roundedProduct(dr, dr) + roundedProduct(di, di);  // a NaN fails the test below
  if (!(t > 0)) {
    zero = true;
    return T{R(pxlConstantOfNAN_64f), R(pxlConstantOfNAN_64f)};
  }
  const double inv = 1.0 / t;
  const double re = roundedProduct(nr, dr);
  return T{R(simd::firstNaN(re, re + roundedProduct(ni, di)) * inv),
           R((roundedProduct(ni, dr) - roundedProduct(nr, di)) * inv)};
}

// ------------------------------------------------------------ 32f
// Not an IEEE division: the processor's approximate reciprocal r of d,
// refined once, q + (e q + q) e with q = n r and e = 1 - d r, in groups of
// 8, 4, 2 or 1 samples. A group in which some divisor is zero is done
// sample by sample instead: an IEEE quotient where d is not zero, and for a
// zero divisor of either sign +inf, -inf or NaN after the sign of n. So two
// equal pairs may differ in the last bit, depending on their neighbours.
//
// The groups: at each position, the largest of 8, 4, 2 that is aligned in
// the destination (32, 16, 8 bytes) and fits in the rest of the row, else 1.
// That is a peel up to 32-byte alignment, whole blocks of 8, and a tail.

inline float rcpLane(float d) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d))); }

using F4 = simd::Vec<float, 4>;
inline F4 rcpLane(F4 d) { return (F4)_mm_rcp_ps((__m128)d); }
#if defined(__AVX__)
using F8 = simd::Vec<float, 8>;
inline F8 rcpLane(F8 d) { return (F8)_mm256_rcp_ps((__m256)d); }
#endif

template <class V>
inline V refinedQuotient(V n, V d) {
  const V r = rcpLane(d);
  const V q = n * r;
  const V e = splat<V>(1.0f) - d * r;
  // A NaN numerator wins over a NaN divisor, whatever order the products
  // and sums were given.
  return simd::firstNaN(n, q + (e * q + q) * e);
}

inline float divSingle(float n, float d, bool& zero) {
  if (d != 0.0f) return n / d;
  zero = true;
  if (n > 0) return std::numeric_limits<float>::infinity();
  if (n < 0) return -std::numeric_limits<float>::infinity();
  return std::numeric_limits<float>::quiet_NaN();
}

// A group with a zero divisor, sample by sample. Kept out of line: real
// data rarely has one, and the block loop stays small without it.
template <int G>
[[gnu::noinline]] void divGroupWithZero(const float* den, const float* num, float* out, bool& zero) {
  for (int k = 0; k < G; ++k) storeSample(out + k, divSingle(loadSample(num + k), loadSample(den + k), zero));
}

// The widest register of floats: F8 needs only AVX for its reciprocal.
#if defined(__AVX__)
using FWide = F8;
#else
using FWide = F4;
#endif

// K registers of V: if no divisor among them is zero, writes their refined
// quotients (with Stream around the cache; out is then aligned, as the
// groups are) and returns true; else writes nothing and returns false. One
// compare and one mask test for all K.
template <class V, int K, bool Stream = false>
inline bool refinedBlock(const float* den, const float* num, float* out) {
  constexpr int N = int(sizeof(V) / sizeof(float));
  V d[K];
  auto zeros = (d[0] = simd::load<V>(den)) == 0.0f;
  for (int k = 1; k < K; ++k) zeros |= (d[k] = simd::load<V>(den + k * N)) == 0.0f;
  if (simd::anyLane(zeros)) return false;
  for (int k = 0; k < K; ++k) {
    const V q = refinedQuotient(simd::load<V>(num + k * N), d[k]);
    if constexpr (Stream)
      simd::streamBlock(out + k * N, q);
    else
      simd::store(out + k * N, q);
  }
  return true;
}

// One group of G samples: G of 8 and 4 in registers, with one test of the
// whole group for a zero divisor; 2 and 1 lane by lane (the reciprocal
// instruction gives the same value in every lane width).
template <int G, bool Stream = false>
inline void divGroup(const float* den, const float* num, float* out, bool& zero) {
  if constexpr (G == 4) {
    if (refinedBlock<F4, 1>(den, num, out)) return;
  } else if constexpr (G == 8) {
    if (refinedBlock<FWide, 8 / (sizeof(FWide) / 4), Stream>(den, num, out)) return;
  } else {
    bool any = false;
    for (int k = 0; k < G; ++k) any |= loadSample(den + k) == 0.0f;
    if (!any) {
      for (int k = 0; k < G; ++k) storeSample(out + k, refinedQuotient(loadSample(num + k), loadSample(den + k)));
      return;
    }
  }
  divGroupWithZero<G>(den, num, out, zero);
}

// Two groups of 8 with one test for a zero divisor in either; if there is
// one, each group is done on its own as above.
template <bool Stream>
inline void divTwoGroups(const float* den, const float* num, float* out, bool& zero) {
  if (refinedBlock<FWide, 16 / (sizeof(FWide) / 4), Stream>(den, num, out)) return;
  divGroup<8, Stream>(den, num, out, zero);
  divGroup<8, Stream>(den + 8, num + 8, out + 8, zero);
}

// The group that starts at out + i.
inline int groupAt(const float* out, int i, int len) {
  const std::uintptr_t a = reinterpret_cast<std::uintptr_t>(out + i);
  const int left = len - i;
  if (a % 32 == 0 && left >= 8) return 8;
  if (a % 16 == 0 && left >= 4) return 4;
  if (a % 8 == 0 && left >= 2) return 2;
  return 1;
}

inline void divGroupOf(int g, const float* den, const float* num, float* out, bool& zero) {
  switch (g) {
    case 8: divGroup<8>(den, num, out, zero); break;
    case 4: divGroup<4>(den, num, out, zero); break;
    case 2: divGroup<2>(den, num, out, zero); break;
    default: divGroup<1>(den, num, out, zero); break;
  }
}

// The blocks of 8 start on a 32-byte boundary of out, so with Stream they
// can be written around the cache.
template <bool Stream = false>
inline bool divRow(const float* den, const float* num, float* out, int len, int) {
  bool zero = false;
  int i = 0;
  // Peel: until a whole aligned block of 8 starts here.
  while (i < len) {
    const int g = groupAt(out, i, len);
    if (g == 8) break;
    divGroupOf(g, den + i, num + i, out + i, zero);
    i += g;
  }
  for (; i + 16 <= len; i += 16) divTwoGroups<Stream>(den + i, num + i, out + i, zero);
  for (; i + 8 <= len; i += 8) divGroup<8, Stream>(den + i, num + i, out + i, zero);
  while (i < len) {
    const int g = groupAt(out, i, len);
    divGroupOf(g, den + i, num + i, out + i, zero);
    i += g;
  }
  return zero;
}

// Every other type: sample by sample, never streamed. Returns whether a
// divisor was zero.
template <bool Stream = false, class T>
inline bool divRow(const T* den, const T* num, T* out, int len, int s) {
  bool zero = false;
  for (int i = 0; i < len; ++i) storeSample(out + i, divSample(loadSample(num + i), loadSample(den + i), s, zero));
  return zero;
}

// ------------------------------------------------------------ Div

template <class T, Lay L>
PxlStatus divMember(const T* den, int denStep, const T* num, int numStep, T* dst, int dstStep, PxlSize roi,
                    int scale) {
  if constexpr (L == Lay::C3 || L == Lay::C4) {
    return foldToC1(roi, channelsOf(L), [&](PxlSize r) {
      return divMember<T, Lay::C1>(den, denStep, num, numStep, dst, dstStep, r, scale);
    });
  } else {
    if (anyNull(den, num, dst)) return pxlStsNullPtr;
    if (PxlStatus st = checkShape<Order::NST>(roi, denStep, numStep, dstStep)) return st;
    bool zero = false;
    auto row = [&](int y, auto stream) {
      const T* a = rowAt(den, denStep, y);
      const T* b = rowAt(num, numStep, y);
      T* d = rowAt(dst, dstStep, y);
      if constexpr (L == Lay::AC4) {
        for (int x = 0; x < roi.width; ++x) zero |= divRow(a + 4 * x, b + 4 * x, d + 4 * x, 3, scale);
      } else {
        zero |= divRow<decltype(stream)::value>(a, b, d, roi.width, scale);
      }
    };
    // Only 32f rows have a streaming form; the bytes are the same either way.
    if constexpr (std::is_same_v<T, Pxl32f> && L == Lay::C1)
      move::streamedRows(imageBytes<L, T>(roi), roi.height, row);
    else
      for (int y = 0; y < roi.height; ++y) row(y, std::false_type{});
    return zero ? pxlStsDivByZero : pxlStsOk;
  }
}

// Div computes src2 / src1, in place srcDst / src.
template <class T, Lay L>
PxlStatus imageDiv(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, PxlSize roi,
                   int scale = 0) {
  return divMember<T, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi, scale);
}

template <class T, Lay L>
PxlStatus imageDiv(const T* src, int srcStep, T* srcDst, int srcDstStep, PxlSize roi, int scale = 0) {
  return divMember<T, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi, scale);
}

template <class T>
PxlStatus vectorDiv(const T* src1, const T* src2, T* dst, int length, int scale = 0) {
  if (anyNull(src1, src2, dst)) return pxlStsNullPtr;
  if (length < 1) return pxlStsSize;
  return divRow(src1, src2, dst, length, scale) ? pxlStsDivByZero : pxlStsOk;
}

template <class T>
PxlStatus vectorDiv(const T* src, T* srcDst, int length, int scale = 0) {
  return vectorDiv<T>(src, srcDst, srcDst, length, scale);
}

// ------------------------------------------------------------ DivC

// 1/i to six decimals, a tie rounded up (1/128 = 0.0078125 is 0.007813);
// entry 0 holds 0.000001. DivC on 8u multiplies by these rather than
// dividing, and its results differ from a true division where a sample
// times the table's value lands on the other side of a half.
// clang-format off
inline constexpr float kReciprocal8u[256] = {
    0.000001f, 1.000000f, 0.500000f, 0.333333f, 0.250000f, 0.200000f, 0.166667f, 0.142857f,
    0.125000f, 0.111111f, 0.100000f, 0.090909f, 0.083333f, 0.076923f, 0.071429f, 0.066667f,
    0.062500f, 0.058824f, 0.055556f, 0.052632f, 0.050000f, 0.047619f, 0.045455f, 0.043478f,
    0.041667f, 0.040000f, 0.038462f, 0.037037f, 0.035714f, 0.034483f, 0.033333f, 0.032258f,
    0.031250f, 0.030303f, 0.029412f, 0.028571f, 0.027778f, 0.027027f, 0.026316f, 0.025641f,
    0.025000f, 0.024390f, 0.023810f, 0.023256f, 0.022727f, 0.022222f, 0.021739f, 0.021277f,
    0.020833f, 0.020408f, 0.020000f, 0.019608f, 0.019231f, 0.018868f, 0.018519f, 0.018182f,
    0.017857f, 0.017544f, 0.017241f, 0.016949f, 0.016667f, 0.016393f, 0.016129f, 0.015873f,
    0.015625f, 0.015385f, 0.015152f, 0.014925f, 0.014706f, 0.014493f, 0.014286f, 0.014085f,
    0.013889f, 0.013699f, 0.013514f, 0.013333f, 0.013158f, 0.012987f, 0.012821f, 0.012658f,
    0.012500f, 0.012346f, 0.012195f, 0.012048f, 0.011905f, 0.011765f, 0.011628f, 0.011494f,
    0.011364f, 0.011236f, 0.011111f, 0.010989f, 0.010870f, 0.010753f, 0.010638f, 0.010526f,
    0.010417f, 0.010309f, 0.010204f, 0.010101f, 0.010000f, 0.009901f, 0.009804f, 0.009709f,
    0.009615f, 0.009524f, 0.009434f, 0.009346f, 0.009259f, 0.009174f, 0.009091f, 0.009009f,
    0.008929f, 0.008850f, 0.008772f, 0.008696f, 0.008621f, 0.008547f, 0.008475f, 0.008403f,
    0.008333f, 0.008264f, 0.008197f, 0.008130f, 0.008065f, 0.008000f, 0.007937f, 0.007874f,
    0.007813f, 0.007752f, 0.007692f, 0.007634f, 0.007576f, 0.007519f, 0.007463f, 0.007407f,
    0.007353f, 0.007299f, 0.007246f, 0.007194f, 0.007143f, 0.007092f, 0.007042f, 0.006993f,
    0.006944f, 0.006897f, 0.006849f, 0.006803f, 0.006757f, 0.006711f, 0.006667f, 0.006623f,
    0.006579f, 0.006536f, 0.006494f, 0.006452f, 0.006410f, 0.006369f, 0.006329f, 0.006289f,
    0.006250f, 0.006211f, 0.006173f, 0.006135f, 0.006098f, 0.006061f, 0.006024f, 0.005988f,
    0.005952f, 0.005917f, 0.005882f, 0.005848f, 0.005814f, 0.005780f, 0.005747f, 0.005714f,
    0.005682f, 0.005650f, 0.005618f, 0.005587f, 0.005556f, 0.005525f, 0.005495f, 0.005464f,
    0.005435f, 0.005405f, 0.005376f, 0.005348f, 0.005319f, 0.005291f, 0.005263f, 0.005236f,
    0.005208f, 0.005181f, 0.005155f, 0.005128f, 0.005102f, 0.005076f, 0.005051f, 0.005025f,
    0.005000f, 0.004975f, 0.004950f, 0.004926f, 0.004902f, 0.004878f, 0.004854f, 0.004831f,
    0.004808f, 0.004785f, 0.004762f, 0.004739f, 0.004717f, 0.004695f, 0.004673f, 0.004651f,
    0.004630f, 0.004608f, 0.004587f, 0.004566f, 0.004545f, 0.004525f, 0.004505f, 0.004484f,
    0.004464f, 0.004444f, 0.004425f, 0.004405f, 0.004386f, 0.004367f, 0.004348f, 0.004329f,
    0.004310f, 0.004292f, 0.004274f, 0.004255f, 0.004237f, 0.004219f, 0.004202f, 0.004184f,
    0.004167f, 0.004149f, 0.004132f, 0.004115f, 0.004098f, 0.004082f, 0.004065f, 0.004049f,
    0.004032f, 0.004016f, 0.004000f, 0.003984f, 0.003968f, 0.003953f, 0.003937f, 0.003922f,
};
// clang-format on

// The multiplier of pxlsDivC_8u_Sfs: 2^-scale times the table's entry.
// Beyond a scale of +-32 nothing changes (every product rounds to 0, or
// every non-zero sample reaches 255), so the power stays finite and a zero
// sample never meets an infinite multiplier.
inline float divC8uMultiplier(Pxl8u value, int scale) {
  const int s = scale < -32 ? -32 : scale > 32 ? 32 : scale;
  return pow2f(-s) * kReciprocal8u[value];
}

inline void divC8uRow(const Pxl8u* src, float m, Pxl8u* dst, int len) {
  for (int i = 0; i < len; ++i) {
    float p = static_cast<float>(src[i]) * m;
    if (m > 1.0f && p > 255.0f) p = 255.0f;
    dst[i] = static_cast<Pxl8u>(roundHalfEvenFloat(p));
  }
}

// A constant that cannot divide: zero, and for complex floats a squared
// magnitude that is zero in single precision.
template <class T>
inline bool isZero(const T& v) {
  if constexpr (kComplex<T> && std::is_floating_point_v<PartOf<T>>)
    return roundedProduct(v.re, v.re) + roundedProduct(v.im, v.im) == 0;
  else if constexpr (kComplex<T>)
    return v.re == 0 && v.im == 0;
  else
    return v == 0;
}

// The row of a constant member with the constants of one pixel in values.
template <class T, int Ch, int Used>
inline void divConstRow(const T* src, const T* values, T* dst, int width, int s) {
  bool zero = false;  // no constant is zero here
  for (int x = 0; x < width; ++x, src += Ch, dst += Ch)
    for (int c = 0; c < Used; ++c) storeSample(dst + c, divSample(loadSample(src + c), values[c], s, zero));
}

template <class T>
inline T* mallocRow(int length) {
  if constexpr (std::is_same_v<T, Pxl8u>)
    return pxlsMalloc_8u(length);
  else
    return pxlsMalloc_16s(length);
}

// The members that divide each row against a scratch row of constants (8u
// C3, C4, AC4 and 16s C3, C4, AC4): the row is allocated, filled with the
// pattern of constants by Set and divided against by the row kernel of Div.
// AC4 holds a second row for the quotients, of which three samples a pixel
// go to dst; its fourth constant is 1. 'noted' is the status returned once
// every row is written.
template <class T, Lay L>
PxlStatus divAgainstScratch(const T* src, int srcStep, const T* values, T* dst, int dStep, PxlSize roi, int scale,
                            PxlStatus noted) {
  constexpr int ch = channelsOf(L);
  const int len = roi.width * ch;
  T* k = mallocRow<T>(len);
  if (k == nullptr) return pxlStsAlloc;
  T* out = nullptr;
  if constexpr (L == Lay::AC4) {
    out = mallocRow<T>(len);
    if (out == nullptr) {
      pxlsFree(k);
      return pxlStsAlloc;
    }
    const T v4[4] = {values[0], values[1], values[2], T(1)};
    move::setImage<T, Lay::C4>(v4, k, len * int(sizeof(T)), {roi.width, 1});
  } else {
    move::setImage<T, L>(values, k, len * int(sizeof(T)), {roi.width, 1});
  }
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dStep, y);
    if constexpr (L == Lay::AC4) {
      divRow(k, s, out, len, scale);
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < 3; ++c) storeSample(d + (4 * x + c), out[4 * x + c]);
    } else {
      divRow(k, s, d, len, scale);
    }
  }
  pxlsFree(out);
  pxlsFree(k);
  return noted;
}

template <class T, Lay L>
PxlStatus divCMember(const T* src, int srcStep, const T* values, T* dst, int dStep, PxlSize roi, int scale,
                     bool inPlace) {
  using R = PartOf<T>;
  constexpr int used = processedOf(L), ch = channelsOf(L);
  if (anyNull(src, dst, values)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, srcStep, dStep)) return st;
  bool anyZero = false;
  for (int c = 0; c < used; ++c) anyZero |= isZero(values[c]);

  if constexpr (std::is_same_v<T, Pxl8u> && (L == Lay::C3 || L == Lay::C4)) {
    // The zero entry is noted, not refused: every row is divided (a zero
    // divisor giving its Div values) and the error comes last.
    return divAgainstScratch<T, L>(src, srcStep, values, dst, dStep, roi, scale,
                                   anyZero ? pxlStsDivByZeroConst : pxlStsOk);
  } else {
    if (anyZero) return pxlStsDivByZeroConst;
    if constexpr (std::is_floating_point_v<R>) {
      // Float constants become their reciprocals, and MulC does the rest.
      T inv[4];
      for (int c = 0; c < used; ++c) {
        if constexpr (kComplex<T>) {
          const R t = roundedProduct(values[c].re, values[c].re) + roundedProduct(values[c].im, values[c].im);
          inv[c] = T{values[c].re / t, -values[c].im / t};
        } else {
          inv[c] = R(1) / values[c];
        }
      }
      return constMember<OpMul, T, L>(src, srcStep, inv, dst, dStep, roi, 0, inPlace);
    } else if constexpr (std::is_same_v<T, Pxl8u> && L == Lay::C1) {
      const float m = divC8uMultiplier(values[0], scale);
      for (int y = 0; y < roi.height; ++y) divC8uRow(rowAt(src, srcStep, y), m, rowAt(dst, dStep, y), roi.width);
      return pxlStsOk;
    } else if constexpr ((std::is_same_v<T, Pxl8u> || std::is_same_v<T, Pxl16s>) && L != Lay::C1) {
      return divAgainstScratch<T, L>(src, srcStep, values, dst, dStep, roi, scale, pxlStsOk);
    } else {
      for (int y = 0; y < roi.height; ++y)
        divConstRow<T, ch, used>(rowAt(src, srcStep, y), values, rowAt(dst, dStep, y), roi.width, scale);
      return pxlStsOk;
    }
  }
}

template <class T, Lay L>
PxlStatus imageDivC(const T* src, int srcStep, ValueArg<T, L> value, T* dst, int dstStep, PxlSize roi,
                    int scale = 0) {
  if constexpr (L == Lay::C1)
    return divCMember<T, L>(src, srcStep, &value, dst, dstStep, roi, scale, false);
  else
    return divCMember<T, L>(src, srcStep, LocalValues<T>(value, processedOf(L)).get(), dst, dstStep, roi, scale, false);
}

template <class T, Lay L>
PxlStatus imageDivC(ValueArg<T, L> value, T* srcDst, int srcDstStep, PxlSize roi, int scale = 0) {
  if constexpr (L == Lay::C1)
    return divCMember<T, L>(srcDst, srcDstStep, &value, srcDst, srcDstStep, roi, scale, true);
  else
    return divCMember<T, L>(srcDst, srcDstStep, LocalValues<T>(value, processedOf(L)).get(), srcDst, srcDstStep, roi, scale, true);
}

template <class T>
PxlStatus vectorDivC(const T* src, T value, T* dst, int length, int scale = 0) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (length < 1) return pxlStsSize;
  if constexpr (std::is_same_v<T, Pxl32fc>) {
    // t = |value|^2 in single precision; then a product with (re/t, -im/t).
    if (isZero(value)) return pxlStsDivByZeroConst;
    const float t = roundedProduct(value.re, value.re) + roundedProduct(value.im, value.im);
    return vectorConst<OpMul, T>(src, T{value.re / t, -value.im / t}, dst, length);
  } else {
    if (isZero(value)) return pxlStsDivByZeroConst;
    if constexpr (std::is_same_v<T, Pxl8u>)
      divC8uRow(src, divC8uMultiplier(value, scale), dst, length);
    else
      divConstRow<T, 1, 1>(src, &value, dst, length, scale);
    return pxlStsOk;
  }
}

template <class T>
PxlStatus vectorDivC(T value, T* srcDst, int length, int scale = 0) {
  return vectorDivC<T>(srcDst, value, srcDst, length, scale);
}

}  // namespace pxl::arith
