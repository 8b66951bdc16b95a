// Lookup tables described by levels and values.
//
// The integer forms turn the description of each channel into a full map of
// the sample range (256 entries for 8u, 65536 for 16s and 16u) and index it;
// the 32f forms scan the levels per sample. Three rules fill an interval
// [levels[k], levels[k+1]): a step (values[k]), a line through the
// interval's two ends, or a cubic through four consecutive levels. Samples
// below levels[0] or at or above the last level are left as they are.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>

#include "frame/frame.h"

namespace pxl::point {

enum class LutKind : std::uint8_t { Step, Linear, Cubic };

// Levels and values are 32-bit integers for the integer types, floats for 32f.
template <class T>
using LevelOf = std::conditional_t<std::is_same_v<T, Pxl32f>, Pxl32f, Pxl32s>;

// One channel's description.
template <class V>
struct Levels {
  const V* values;
  const V* levels;
  int n;
};

template <class T>
struct Range {
  static constexpr std::int64_t lo = std::numeric_limits<T>::min();
  static constexpr std::int64_t hi = std::numeric_limits<T>::max();
  static constexpr std::int64_t size = hi - lo + 1;
};

template <class T>
inline T clampTo(std::int64_t v) {
  return T(v < Range<T>::lo ? Range<T>::lo : v > Range<T>::hi ? Range<T>::hi : v);
}

// y + 0.5 is already in y: truncation toward zero, then the sample range.
// Done in double so that far-off lines clamp rather than overflow.
template <class T>
inline T truncClamp(double y) {
  const double t = std::trunc(y);
  if (!(t >= double(Range<T>::lo))) return T(Range<T>::lo);
  if (t > double(Range<T>::hi)) return T(Range<T>::hi);
  return T(std::int64_t(t));
}

// ---- Cubic coefficients -----------------------------------------------------

// The cubic of interval k of n levels: y = y0 + c*x + a*x^3 + b*x^2 with
// x = s - x0. Its four points are levels[m..m+3] with m = k - 1 kept inside
// [0, n - 4]; the origin is the second of them, so the cubic meets
// values[m+1] exactly there.
struct Cubic {
  double x0, y0, a, b, c;
};

inline int cubicFirst(int k, int n) {
  int m = k - 1;
  if (m < 1) m = 0;
  if (m >= n - 4) m = n - 4;
  return m;
}

inline double det3(double a0, double a1, double a2, double b0, double b1, double b2, double c0, double c1,
                   double c2) {
  return a0 * (b1 * c2 - b2 * c1) - a1 * (b0 * c2 - b2 * c0) + a2 * (b0 * c1 - b1 * c0);
}

// Cramer's rule on the three points other than the origin. Returns false
// when the system is singular, which happens when two of the four levels
// coincide (a zero-length interval next to this one). What such a table
// means is not otherwise settled; the caller falls back to the interval's
// straight line so that no NaN or infinity reaches a map.
template <class V>
inline bool cubicFor(const V* values, const V* levels, int k, int n, Cubic& out) {
  const int m = cubicFirst(k, n);
  const double x0 = double(levels[m + 1]), y0 = double(values[m + 1]);
  double x[3], y[3];
  const int at[3] = {0, 2, 3};
  for (int j = 0; j < 3; ++j) {
    x[j] = double(levels[m + at[j]]) - x0;
    y[j] = double(values[m + at[j]]) - y0;
  }
  // The system is singular exactly when two of the four levels coincide;
  // asked directly, since the determinant of large levels is not exact.
  if (x[0] == 0.0 || x[1] == 0.0 || x[2] == 0.0 || x[0] == x[1] || x[0] == x[2] || x[1] == x[2]) return false;
  const double d = det3(x[0] * x[0] * x[0], x[0] * x[0], x[0], x[1] * x[1] * x[1], x[1] * x[1], x[1],
                        x[2] * x[2] * x[2], x[2] * x[2], x[2]);
  if (d == 0.0 || !std::isfinite(d)) return false;
  const double da = det3(y[0], x[0] * x[0], x[0], y[1], x[1] * x[1], x[1], y[2], x[2] * x[2], x[2]);
  const double db = det3(x[0] * x[0] * x[0], y[0], x[0], x[1] * x[1] * x[1], y[1], x[1], x[2] * x[2] * x[2], y[2], x[2]);
  const double dc = det3(x[0] * x[0] * x[0], x[0] * x[0], y[0], x[1] * x[1] * x[1], x[1] * x[1], y[1],
                         x[2] * x[2] * x[2], x[2] * x[2], y[2]);
  out = {x0, y0, da / d, db / d, dc / d};
  return true;
}

inline double evalCubic(const Cubic& q, double x) { return q.y0 + q.c * x + q.a * x * x * x + q.b * x * x; }

// ---- Full maps of the integer types ----------------------------------------

// map[s - lo] for every sample s of T. Intervals are clipped to the sample
// range; a level outside it (which callers are asked not to pass) only
// shortens the run it bounds. The identity runs below levels[0] and from the
// last level up are clipped to the map in the same way, so that no table,
// however ill-formed, makes the builder step outside it. They are written
// last, so that samples below the first level or at or above the last pass
// unchanged even when the levels in between are out of order.
template <class T>
class MapBuilder {
 public:
  MapBuilder(T* map, const Levels<Pxl32s>& d) : map_(map), d_(d) {}

  template <LutKind K>
  void build() {
    const int n = d_.n;
    for (int k = 0; k + 1 < n; ++k) {
      const std::int64_t l0 = d_.levels[k], l1 = d_.levels[k + 1];
      const std::int64_t lo = l0 > Range<T>::lo ? l0 : Range<T>::lo;
      const std::int64_t hi = l1 < Range<T>::hi + 1 ? l1 : Range<T>::hi + 1;
      if (hi <= lo) continue;  // empty, descending or outside the range
      if constexpr (K == LutKind::Step) {
        fill(lo, hi, clampTo<T>(d_.values[k]));
      } else if constexpr (K == LutKind::Linear) {
        line(k, lo, hi);
      } else {
        if (n < 4) {
          line(k, lo, hi);
        } else if (hi - lo == 1) {
          map_[lo - Range<T>::lo] = clampTo<T>(d_.values[k]);
        } else {
          Cubic q;
          if (!cubicFor(d_.values, d_.levels, k, n, q)) {
            line(k, lo, hi);
            continue;
          }
          for (std::int64_t i = lo; i < hi; ++i) map_[i - Range<T>::lo] = truncClamp<T>(evalCubic(q, double(i) - q.x0) + 0.5);
        }
      }
    }
    identity(Range<T>::lo, d_.levels[0]);
    identity(d_.levels[n - 1], Range<T>::hi + 1);
  }

 private:
  void fill(std::int64_t lo, std::int64_t hi, T v) {
    for (std::int64_t i = lo; i < hi; ++i) map_[i - Range<T>::lo] = v;
  }

  // Samples in [from, to) clipped to the range map to themselves.
  void identity(std::int64_t from, std::int64_t to) {
    if (from < Range<T>::lo) from = Range<T>::lo;
    if (to > Range<T>::hi + 1) to = Range<T>::hi + 1;
    for (std::int64_t i = from; i < to; ++i) map_[i - Range<T>::lo] = T(i);
  }

  // The interval's line: entry i = trunc(i * slope + intercept) with the
  // rounding half folded into the intercept; one entry is values[k] itself.
  void line(int k, std::int64_t lo, std::int64_t hi) {
    if (hi - lo == 1) {
      map_[lo - Range<T>::lo] = clampTo<T>(d_.values[k]);
      return;
    }
    const double slope = double(std::int64_t(d_.values[k + 1]) - d_.values[k]) /
                         double(std::int64_t(d_.levels[k + 1]) - d_.levels[k]);
    const double intercept = double(d_.values[k]) + 0.5 - slope * double(d_.levels[k]);
    for (std::int64_t i = lo; i < hi; ++i) map_[i - Range<T>::lo] = truncClamp<T>(double(i) * slope + intercept);
  }

  T* map_;
  Levels<Pxl32s> d_;
};

// ---- Per-sample rules ---------------------------------------------------------

// Binary search of the step rule, for small 16-bit images where building a
// map would cost more than the image. Equal to the map on ascending levels.
template <class T>
inline T stepSearch(T s, const Levels<Pxl32s>& d) {
  const Pxl32s* l = d.levels;
  if (s < l[0] || s >= l[d.n - 1]) return s;
  int lo = 0, hi = d.n - 1;
  while (hi - lo > 1) {
    const int mid = (lo + hi) / 2;
    if (s >= l[mid])
      lo = mid;
    else
      hi = mid;
  }
  return clampTo<T>(d.values[lo]);
}

// The interval of a 32f sample: the first k for which neither
// levels[k] > s nor s >= levels[k+1] holds. A NaN fails both comparisons
// and lands in interval 0. -1: no interval (the sample is kept).
inline int scan32f(float s, const Levels<Pxl32f>& d) {
  const float* l = d.levels;
  if (s < l[0] || s >= l[d.n - 1]) return -1;
  for (int k = 0; k + 1 < d.n; ++k)
    if (!(l[k] > s) && !(s >= l[k + 1])) return k;
  return -1;  // only on levels out of order
}

// What a 32f channel needs besides its levels: per-interval slopes (Linear)
// or cubics (Cubic), made once per call.
struct Prepared32f {
  Levels<Pxl32f> d;
  LutKind kind;
  const double* slope;
  const Cubic* cubic;

  float operator()(float s) const {
    const int k = scan32f(s, d);
    if (k < 0) return s;
    if (kind == LutKind::Step) return d.values[k];
    if (kind == LutKind::Linear)
      return float((long double)(s - d.levels[k]) * (long double)slope[k] + (long double)d.values[k]);
    return float(evalCubic(cubic[k], double(s) - cubic[k].x0));
  }
};

// ---- 8u row kernel -------------------------------------------------------------

// One table per channel, 8 samples a turn: each byte indexes its channel's
// table and the results are assembled for one 8-byte store. C3 turns over
// 24 bytes so that every byte position keeps its channel. Works in place:
// each 8 bytes are loaded before they are stored. Byte j of the 8-byte
// word is the j-th sample in memory on the little-endian targets we build.
template <int C>
inline void lutRow8u(const Pxl8u* s, Pxl8u* d, int n, const Pxl8u* const* maps) {
  static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "the 8u kernel assembles words little-endian");
  constexpr int kTurn = C == 3 ? 24 : 8;
  int i = 0;
  for (; i + kTurn <= n; i += kTurn) {
    for (int w = 0; w < kTurn; w += 8) {
      std::uint64_t in, out = 0;
      std::memcpy(&in, s + i + w, 8);
      for (int j = 0; j < 8; ++j) out |= std::uint64_t(maps[(w + j) % C][(in >> (8 * j)) & 0xff]) << (8 * j);
      std::memcpy(d + i + w, &out, 8);
    }
  }
  for (; i < n; ++i) d[i] = maps[i % C][s[i]];
}

}  // namespace pxl::point
