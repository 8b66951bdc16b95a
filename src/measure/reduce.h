// Reductions: Sum, Mean, Min, Max, MinMax, MinIndx, MaxIndx, CountInRange.
// Each depth has its own accumulator width and its own place where rows are
// cut into blocks; those choices decide the last bits (and the few places a
// total wraps), so they are written out here rather than left to a generic
// "sum in double". Morphology and matching call the same templates.
#pragma once

#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#include "frame/frame.h"
#include "simd/vec.h"

namespace pxl::measure {


using Ext = long double;  // the extended precision of the accurate routes
constexpr int kAccurate = 2;

// ---------------------------------------------------------------- Sum

// 8u: a 32-bit total per channel for the whole image while the pixel count
// keeps it under 2^31 (0x808080 pixels of 255), else a 32-bit total per row
// added to a double. Integer addition modulo 2^32 is associative, so any lane
// split of a row (the vectoriser's) gives the same totals.
template <Lay L>
void sum8u(const Pxl8u* src, int step, PxlSize roi, Pxl64f* out) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  const bool whole = std::int64_t(roi.width) * roi.height <= 0x808080;
  std::uint32_t acc[4] = {};
  double r[4] = {};
  for (int y = 0; y < roi.height; ++y) {
    const Pxl8u* p = rowAt(src, step, y);
    std::uint32_t t[4] = {};
    if constexpr (C == 1) {
      std::uint32_t s = 0;
      for (int x = 0; x < roi.width; ++x) s += p[x];
      t[0] = s;
    } else {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < P; ++c) t[c] += p[x * C + c];
    }
    for (int c = 0; c < P; ++c) {
      if (whole)
        acc[c] += t[c];
      else
        r[c] += double(t[c]);
    }
  }
  for (int c = 0; c < P; ++c) out[c] = whole ? double(std::int32_t(acc[c])) : r[c];
}

// 16s: blocks of 32768 samples hold a 32-bit total that cannot overflow; the
// blocks meet in a 64-bit total, so the result is the exact sum.
template <Lay L>
void sum16s(const Pxl16s* src, int step, PxlSize roi, Pxl64f* out) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  std::int64_t acc[4] = {};
  for (int y = 0; y < roi.height; ++y) {
    const Pxl16s* p = rowAt(src, step, y);
    for (int x0 = 0; x0 < roi.width; x0 += 32768 / C) {
      const int x1 = std::min(roi.width, x0 + 32768 / C);
      std::int32_t t[4] = {};
      for (int x = x0; x < x1; ++x)
        for (int c = 0; c < P; ++c) t[c] += loadSample(p + x * C + c);
      for (int c = 0; c < P; ++c) acc[c] += t[c];
    }
  }
  for (int c = 0; c < P; ++c) out[c] = double(acc[c]);
}

// 16u: blocks of 65536 pixels per row, each block's unsigned 32-bit total
// entering the double result as a signed 32-bit value. A block total at or
// above 2^31 therefore comes in reduced by 2^32: this depth's defined wrap.
template <Lay L>
void sum16u(const Pxl16u* src, int step, PxlSize roi, Pxl64f* out) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  double r[4] = {};
  for (int y = 0; y < roi.height; ++y) {
    const Pxl16u* p = rowAt(src, step, y);
    for (int x0 = 0; x0 < roi.width; x0 += 65536) {
      const int x1 = std::min(roi.width, x0 + 65536);
      std::uint32_t t[4] = {};
      for (int x = x0; x < x1; ++x)
        for (int c = 0; c < P; ++c) t[c] += loadSample(p + x * C + c);
      for (int c = 0; c < P; ++c) r[c] += double(std::int32_t(t[c]));
    }
  }
  for (int c = 0; c < P; ++c) out[c] = r[c];
}

// 32f accurate: every sample in extended precision; C1 keeps even and odd
// columns apart and adds the two at the end.
template <Lay L>
void sum32fAccurate(const Pxl32f* src, int step, PxlSize roi, Ext* out) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  Ext acc[4] = {}, odd = 0;
  for (int y = 0; y < roi.height; ++y) {
    const Pxl32f* p = rowAt(src, step, y);
    if constexpr (C == 1) {
      int x = 0;
      for (; x + 1 < roi.width; x += 2) {
        acc[0] += Ext(loadSample(p + x));
        odd += Ext(loadSample(p + x + 1));
      }
      if (x < roi.width) acc[0] += Ext(loadSample(p + x));
    } else {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < P; ++c) acc[c] += Ext(loadSample(p + x * C + c));
    }
  }
  if constexpr (C == 1) acc[0] += odd;
  for (int c = 0; c < P; ++c) out[c] = acc[c];
}

// 32f fast: a row is summed in single-precision lanes (16 for C1, four pixels
// of lanes for the other layouts) after its head up to the next 16-byte
// boundary; the lanes are totalled in lane order, then head, lanes and tail
// enter an extended accumulator. Each lane is a plain element-wise sum, so a
// vector of lanes adds exactly as the scalar statement does.
template <Lay L>
void sum32fFast(const Pxl32f* src, int step, PxlSize roi, Ext* out) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  constexpr int kLanes = C == 1 ? 16 : 4 * C;
  Ext acc[4] = {};
  for (int y = 0; y < roi.height; ++y) {
    const Pxl32f* p = rowAt(src, step, y);
    const int n = roi.width * C;
    int i = 0;
    float head[4] = {};
    if constexpr (C == 1) {
      const int mis = int((reinterpret_cast<std::uintptr_t>(p) / sizeof(float)) & 3);
      const int h = std::min(n, mis ? 4 - mis : 0);
      for (; i < h; ++i) head[0] += loadSample(p + i);
    }
    float lanes[kLanes] = {};
    for (; i + kLanes <= n; i += kLanes)
      for (int j = 0; j < kLanes; ++j) lanes[j] += loadSample(p + i + j);
    float row[4] = {};
    for (int j = 0; j < kLanes; ++j) row[j % C] += lanes[j];
    for (int c = 0; c < P; ++c) row[c] = head[c] + row[c];
    for (; i < n; ++i) row[i % C] += loadSample(p + i);
    for (int c = 0; c < P; ++c) acc[c] += Ext(row[c]);
  }
  for (int c = 0; c < P; ++c) out[c] = acc[c];
}

template <class T, Lay L>
void sumOf(const T* src, int step, PxlSize roi, Ext* out, int hint) {
  double d[4] = {};
  if constexpr (std::is_same_v<T, Pxl32f>) {
    if (hint == kAccurate)
      sum32fAccurate<L>(src, step, roi, out);
    else
      sum32fFast<L>(src, step, roi, out);
    return;
  } else if constexpr (std::is_same_v<T, Pxl8u>) {
    sum8u<L>(src, step, roi, d);
  } else if constexpr (std::is_same_v<T, Pxl16s>) {
    sum16s<L>(src, step, roi, d);
  } else {
    sum16u<L>(src, step, roi, d);
  }
  for (int c = 0; c < processedOf(L); ++c) out[c] = d[c];
}

template <class T, Lay L>
PxlStatus sum(const T* src, int step, PxlSize roi, Pxl64f* out, int hint = 0) {
  if (anyNull(src, out)) return pxlStsNullPtr;
  if (step < 1) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  Ext s[4];
  sumOf<T, L>(src, step, roi, s, hint);
  for (int c = 0; c < processedOf(L); ++c) storeSample(out + c, oneNaN(double(s[c])));
  return pxlStsOk;
}

// C1 divides by the pixel count; the other layouts multiply by 1/n formed
// once in extended precision, which gives other last bits on purpose.
template <class T, Lay L>
PxlStatus mean(const T* src, int step, PxlSize roi, Pxl64f* out, int hint = 0) {
  if (out == nullptr) return pxlStsNullPtr;
  Pxl64f s[4];
  if (PxlStatus st = sum<T, L>(src, step, roi, s, hint)) return st;
  const double n = double(std::int64_t(roi.width) * roi.height);
  if constexpr (L == Lay::C1) {
    storeSample(out, s[0] / n);
  } else {
    const Ext inv = Ext(1) / Ext(n);
    for (int c = 0; c < processedOf(L); ++c) storeSample(out + c, double(Ext(s[c]) * inv));
  }
  return pxlStsOk;
}

// ---------------------------------------------------------------- Min / Max

// The running value of 32f starts at the largest finite float, and the update
// (acc < x) ? acc : x lets a NaN in and lets the next sample replace it.
template <class T, bool Max>
struct Extreme {
  static constexpr T start() {
    if constexpr (std::is_same_v<T, Pxl32f>) return Max ? -FLT_MAX : FLT_MAX;
    return Max ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
  }
  static T pick(T acc, T x) {
    if constexpr (Max)
      return (acc > x) ? acc : x;
    else
      return (acc < x) ? acc : x;
  }
};

// One row's extremes per channel, folded into acc.
//
// 32f C1 keeps 16 running values, lane j taking columns j, j + 16, ... of
// whole blocks, each updated by the rule above (which the vector minimum and
// maximum instructions compute exactly, NaN included); the lanes then enter
// acc in lane order, and the tail sample by sample. Sixteen lanes at every
// instruction level: with a NaN, or zeros of both signs, the lane split
// decides the bits of the result, so it must not follow the register width.
// The compiler cannot vectorise the serial rule itself (it is not
// associative once NaN is allowed).
template <class T, Lay L, bool Max>
inline void rowExtreme(const T* p, int width, T* acc) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  using E = Extreme<T, Max>;
  if constexpr (C == 1 && std::is_same_v<T, Pxl32f>) {
    constexpr int kLanes = 16;
    using V = simd::Vec<float, kLanes>;
    V lanes = simd::splat<V>(E::start());
    int x = 0;
    for (; x + kLanes <= width; x += kLanes) {
      const V v = simd::load<V>(p + x);
      lanes = Max ? simd::vmax(lanes, v) : simd::vmin(lanes, v);
    }
    T a = acc[0];
    if (x > 0)
      for (int j = 0; j < kLanes; ++j) a = E::pick(a, lanes[j]);
    for (; x < width; ++x) a = E::pick(a, loadSample(p + x));
    acc[0] = a;
  } else if constexpr (C == 1) {
    T a = acc[0];
    for (int x = 0; x < width; ++x) a = E::pick(a, loadSample(p + x));
    acc[0] = a;
  } else {
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < P; ++c) acc[c] = E::pick(acc[c], loadSample(p + x * C + c));
  }
}

// The extreme of every channel; callable from other subsystems (morphology
// takes the 8u maximum of its mask through this).
template <class T, Lay L, bool Max>
void extremeOf(const T* src, int step, PxlSize roi, T* out) {
  T acc[4];
  for (auto& a : acc) a = Extreme<T, Max>::start();
  for (int y = 0; y < roi.height; ++y) rowExtreme<T, L, Max>(rowAt(src, step, y), roi.width, acc);
  for (int c = 0; c < processedOf(L); ++c) storeSample(out + c, acc[c]);
}

inline PxlStatus checkMinMax(PxlSize roi, int step) {
  if (badSize(roi)) return pxlStsSize;
  if (step < 1) return pxlStsStep;
  return pxlStsOk;
}

template <class T, Lay L, bool Max>
PxlStatus minOrMax(const T* src, int step, PxlSize roi, T* out) {
  if (anyNull(src, out)) return pxlStsNullPtr;
  if (PxlStatus st = checkMinMax(roi, step)) return st;
  extremeOf<T, L, Max>(src, step, roi, out);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus minMax(const T* src, int step, PxlSize roi, T* mn, T* mx) {
  if (anyNull(src, mn, mx)) return pxlStsNullPtr;
  if (PxlStatus st = checkMinMax(roi, step)) return st;
  extremeOf<T, L, false>(src, step, roi, mn);
  extremeOf<T, L, true>(src, step, roi, mx);
  return pxlStsOk;
}

// First extreme in raster order: a row counts only if its extreme is
// strictly better than the best so far; then the row is searched from its
// left end for the first equal sample. Integer forms stop once every channel
// holds its type's limit.
template <class T, Lay L, bool Max>
PxlStatus extremeIndex(const T* src, int step, PxlSize roi, T* value, Pxl32s* ix, Pxl32s* iy) {
  if (anyNull(src, value, ix, iy)) return pxlStsNullPtr;
  if (PxlStatus st = checkMinMax(roi, step)) return st;
  constexpr int C = channelsOf(L), P = processedOf(L);
  constexpr bool kFloat = std::is_same_v<T, Pxl32f>;
  using E = Extreme<T, Max>;
  constexpr T kLimit = Max ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
  T best[4];
  Pxl32s bx[4] = {}, by[4] = {};
  for (int c = 0; c < P; ++c) best[c] = C == 1 ? E::start() : loadSample(src + c);
  for (int y = 0; y < roi.height; ++y) {
    const T* p = rowAt(src, step, y);
    T row[4];
    for (auto& a : row) a = E::start();
    rowExtreme<T, L, Max>(p, roi.width, row);
    for (int c = 0; c < P; ++c) {
      bool better;
      if constexpr (kFloat && C != 1)
        better = Max ? !(row[c] <= best[c]) : !(row[c] >= best[c]);
      else
        better = Max ? row[c] > best[c] : row[c] < best[c];
      if (!better) continue;
      best[c] = row[c];
      by[c] = y;
      for (int x = 0; x < roi.width; ++x)
        if (loadSample(p + x * C + c) == row[c]) {
          bx[c] = x;
          break;
        }
    }
    if constexpr (!kFloat) {
      std::int64_t total = 0;
      for (int c = 0; c < P; ++c) total += best[c];
      if (total == std::int64_t(kLimit) * P) break;
    }
  }
  for (int c = 0; c < P; ++c) {
    storeSample(value + c, best[c]);
    storeSample(ix + c, bx[c]);
    storeSample(iy + c, by[c]);
  }
  return pxlStsOk;
}

// ---------------------------------------------------------------- CountInRange

// 8u counts a C1 row in four 16-bit lanes (column mod 4) and the other
// layouts in one 16-bit lane per channel, each lane wrapping past 65535
// within a row before it is flushed to the 32-bit total.
template <class T, Lay L>
PxlStatus countInRange(const T* src, int step, PxlSize roi, Pxl32s* counts, const T* lower, const T* upper) {
  if (anyNull(src, counts, lower, upper)) return pxlStsNullPtr;
  if (step < 1) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  constexpr int C = channelsOf(L), P = processedOf(L);
  for (int c = 0; c < P; ++c)
    if (loadSample(lower + c) > loadSample(upper + c)) return pxlStsRangeOrder;
  std::uint32_t total[4] = {};
  for (int y = 0; y < roi.height; ++y) {
    const T* p = rowAt(src, step, y);
    if constexpr (std::is_same_v<T, Pxl8u>) {
      std::uint16_t lane[4] = {};
      const Pxl8u lo = lower[0], hi = upper[0];
      if constexpr (C == 1) {
        // Lane k holds columns k, k + 4, ...; counting each in 32 bits and
        // keeping the low 16 bits gives the 16-bit lanes' wrap exactly.
        // lo <= hi, so one unsigned comparison tests both bounds.
        const Pxl8u span = Pxl8u(hi - lo);
        std::uint32_t l[4] = {};
        int x = 0;
        for (; x + 4 <= roi.width; x += 4)
          for (int k = 0; k < 4; ++k) l[k] += Pxl8u(p[x + k] - lo) <= span;
        for (; x < roi.width; ++x) l[x & 3] += Pxl8u(p[x] - lo) <= span;
        total[0] += (l[0] & 0xFFFF) + (l[1] & 0xFFFF) + (l[2] & 0xFFFF) + (l[3] & 0xFFFF);
      } else {
        for (int x = 0; x < roi.width; ++x)
          for (int c = 0; c < P; ++c) {
            const Pxl8u v = p[x * C + c];
            lane[c] = std::uint16_t(lane[c] + (v >= lower[c] && v <= upper[c]));
          }
        for (int c = 0; c < P; ++c) total[c] += lane[c];
      }
    } else {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < P; ++c) {
          const T v = loadSample(p + x * C + c);
          total[c] += (!(v < loadSample(lower + c)) && v <= loadSample(upper + c));
        }
    }
  }
  for (int c = 0; c < P; ++c) storeSample(counts + c, Pxl32s(total[c]));
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus countInRangeC1(const T* src, int step, PxlSize roi, Pxl32s* counts, T lower, T upper) {
  return countInRange<T, L>(src, step, roi, counts, &lower, &upper);
}

}  // namespace pxl::measure
