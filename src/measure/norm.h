// Norms of one image, of a difference and relative to a second image: Inf,
// L1, L2. Integer totals stay exact integers for as long as they are held;
// 32f has an accurate route in extended precision and a fast one in double
// lanes. The relative norm's zero-denominator rule is a warning, not an error.
#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "measure/reduce.h"

namespace pxl::measure {

enum class Kind { Inf, L1, L2 };

// Absolute value (of a difference) in a type that holds it exactly.
template <class T>
using Wide = std::conditional_t<std::is_same_v<T, Pxl32f>, float,
                                std::conditional_t<std::is_same_v<T, Pxl32s>, std::uint32_t, std::int32_t>>;

template <class T>
inline Wide<T> absOf(T v) {
  if constexpr (std::is_same_v<T, Pxl32f>)
    return std::fabs(v);
  else if constexpr (std::is_same_v<T, Pxl32s>)
    return v < 0 ? 0u - std::uint32_t(v) : std::uint32_t(v);
  else
    return v < 0 ? -std::int32_t(v) : std::int32_t(v);
}
template <class T>
inline Wide<T> absDiff(T a, T b) {
  if constexpr (std::is_same_v<T, Pxl32f>)
    return std::fabs(a - b);
  else
    return std::int32_t(a) > std::int32_t(b) ? std::int32_t(a) - b : std::int32_t(b) - a;
}

// Totals per channel of one pass: for Inf the largest value, for L1 the sum,
// for L2 the sum of squares (no root yet). Integer totals are exact in 64
// bits; 32f sums go to extended precision (accurate, with even and odd
// columns apart in C1) or to four double lanes by column (fast).
template <class T, Lay L, Kind K>
struct Totals {
  static constexpr int C = channelsOf(L), P = processedOf(L);
  static constexpr bool kFloat = std::is_same_v<T, Pxl32f>;
  std::uint64_t imax[4] = {};
  double fmax[4] = {};
  std::uint64_t isum[4] = {};
  Ext esum[4] = {}, eodd = 0;
  double lanes[4][4] = {};
  bool accurate = false;

  void add(Wide<T> a, int c, int x) {
    if constexpr (K == Kind::Inf) {
      if constexpr (kFloat)
        fmax[c] = (fmax[c] > double(a)) ? fmax[c] : double(a);
      else
        imax[c] = std::max<std::uint64_t>(imax[c], a);
    } else if constexpr (kFloat) {
      const double d = double(a);
      const double v = K == Kind::L1 ? d : d * d;
      if (accurate) {
        if (C == 1 && (x & 1))
          eodd += Ext(v);
        else
          esum[c] += Ext(v);
      } else {
        lanes[c][x & 3] += v;
      }
    } else {
      isum[c] += K == Kind::L1 ? std::uint64_t(a) : std::uint64_t(a) * std::uint64_t(a);
    }
  }
  double get(int c) const {
    if constexpr (K == Kind::Inf) return kFloat ? fmax[c] : double(imax[c]);
    if constexpr (kFloat) {
      if (accurate) return double(c == 0 ? esum[0] + eodd : esum[c]);
      return ((lanes[c][0] + lanes[c][1]) + lanes[c][2]) + lanes[c][3];
    }
    return double(isum[c]);
  }
};

inline PxlStatus checkNorm(PxlSize roi) { return badSize(roi) ? pxlStsSize : pxlStsOk; }

template <class T, Lay L, Kind K>
void normTotals(const T* a, int sa, const T* b, int sb, PxlSize roi, int hint, Totals<T, L, K>& t) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  t.accurate = hint == kAccurate;
  for (int y = 0; y < roi.height; ++y) {
    const T* p = rowAt(a, sa, y);
    const T* q = b ? rowAt(b, sb, y) : nullptr;
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < P; ++c)
        t.add(q ? absDiff(loadSample(p + x * C + c), loadSample(q + x * C + c)) : absOf(loadSample(p + x * C + c)), c, x);
  }
}

// 8u L2 of C1 measures blocks of 32768 columns separately and joins their
// roots as the root of the sum of their squares.
template <class T, Lay L, Kind K>
void normValue(const T* a, int sa, const T* b, int sb, PxlSize roi, int hint, Pxl64f* out) {
  if constexpr (std::is_same_v<T, Pxl8u> && L == Lay::C1 && K == Kind::L2) {
    if (roi.width > 32768) {
      double acc = 0;
      for (int x0 = 0; x0 < roi.width; x0 += 32768) {
        double r;
        normValue<T, L, K>(a + x0, sa, b ? b + x0 : nullptr, sb, {std::min(32768, roi.width - x0), roi.height}, hint,
                           &r);
        acc += r * r;
      }
      out[0] = std::sqrt(acc);
      return;
    }
  }
  Totals<T, L, K> t;
  normTotals<T, L, K>(a, sa, b, sb, roi, hint, t);
  for (int c = 0; c < processedOf(L); ++c) storeSample(out + c, K == Kind::L2 ? std::sqrt(t.get(c)) : t.get(c));
}

template <class T, Lay L, Kind K>
PxlStatus norm(const T* src, int step, PxlSize roi, Pxl64f* value, int hint = 0) {
  if (anyNull(src, value)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (step < 1) return pxlStsStep;
  normValue<T, L, K>(src, step, nullptr, 0, roi, hint, value);
  return pxlStsOk;
}

template <class T, Lay L, Kind K>
PxlStatus normDiff(const T* a, int sa, const T* b, int sb, PxlSize roi, Pxl64f* value, int hint = 0) {
  if (anyNull(a, b, value)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (badStep(sa, sb)) return pxlStsStep;
  normValue<T, L, K>(a, sa, b, sb, roi, hint, value);
  return pxlStsOk;
}

// Numerator from the difference and denominator from src2 in one pass. A
// denominator below DBL_MIN (for integer Inf: zero) leaves the plain
// numerator and warns; in several channels one such channel stops the
// division in all of them.
template <class T, Lay L, Kind K>
PxlStatus normRel(const T* a, int sa, const T* b, int sb, PxlSize roi, Pxl64f* value, int hint = 0) {
  if (anyNull(a, b, value)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (badStep(sa, sb)) return pxlStsStep;
  constexpr int P = processedOf(L);
  Totals<T, L, K> num, den;
  normTotals<T, L, K>(a, sa, b, sb, roi, hint, num);
  normTotals<T, L, K>(b, sb, nullptr, 0, roi, hint, den);
  bool zero = false;
  for (int c = 0; c < P; ++c) {
    const double d = den.get(c);
    zero |= (K == Kind::Inf && !std::is_same_v<T, Pxl32f>) ? d == 0 : !(d >= DBL_MIN);
  }
  for (int c = 0; c < P; ++c) {
    const double n = num.get(c);
    const double q = zero ? n : n / den.get(c);
    storeSample(value + c, K == Kind::L2 ? std::sqrt(q) : q);
  }
  return zero ? pxlStsDivByZero : pxlStsOk;
}

}  // namespace pxl::measure
