// The three lookup rules written per sample, straight from their statement:
// find the sample's interval by walking the levels, then evaluate. No map,
// no search, so they check the library's maps, binary search and scan.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

#include "pxli.h"

namespace lutref {

template <class T>
using V = std::conditional_t<std::is_same_v<T, Pxl32f>, Pxl32f, Pxl32s>;

template <class T>
struct Chan {
  std::vector<V<T>> values, levels;
  int n() const { return int(levels.size()); }
};

template <class T>
constexpr long double kLo = std::numeric_limits<T>::lowest();
template <class T>
constexpr long double kHi = std::numeric_limits<T>::max();

template <class T>
long long clampInt(long double v) {
  if (v < kLo<T>) return (long long)kLo<T>;
  if (v > kHi<T>) return (long long)kHi<T>;
  return (long long)v;
}

// The interval holding s, -1 for none (below the first level, at or above
// the last). For floats the statement's comparisons, so that NaN gives 0.
template <class T>
int intervalOf(const Chan<T>& c, T s) {
  const int n = c.n();
  if (s < c.levels[0] || s >= c.levels[n - 1]) return -1;
  for (int k = 0; k + 1 < n; ++k)
    if (!(c.levels[k] > s) && !(s >= c.levels[k + 1])) return k;
  return -1;
}

// An interval's line for integer types, with its bounds clipped to the range.
template <class T>
long long lineInt(const Chan<T>& c, int k, long long s) {
  const long double lo = std::max<long double>(c.levels[k], kLo<T>);
  const long double hi = std::min<long double>(c.levels[k + 1], kHi<T> + 1);
  if (hi - lo == 1) return clampInt<T>(c.values[k]);
  const double slope = double((long long)c.values[k + 1] - c.values[k]) / double((long long)c.levels[k + 1] - c.levels[k]);
  const double intercept = double(c.values[k]) + 0.5 - slope * double(c.levels[k]);
  return clampInt<T>(std::trunc(double(s) * slope + intercept));
}

// The cubic through levels[m..m+3], m = k - 1 kept in [0, n - 4], origin at
// the second point, solved by Cramer's rule in long double. False when two
// of the points share a level (the library then uses the line).
struct Poly {
  long double x0, y0, a, b, c;
};

template <class T>
bool cubicOf(const Chan<T>& ch, int k, Poly& p) {
  const int n = ch.n();
  const int m = std::min(std::max(k - 1, 0), n - 4);
  const long double x0 = ch.levels[m + 1], y0 = ch.values[m + 1];
  long double x[3], y[3];
  const int at[3] = {0, 2, 3};
  for (int j = 0; j < 3; ++j) {
    x[j] = (long double)ch.levels[m + at[j]] - x0;
    y[j] = (long double)ch.values[m + at[j]] - y0;
  }
  if (x[0] == 0 || x[1] == 0 || x[2] == 0 || x[0] == x[1] || x[0] == x[2] || x[1] == x[2]) return false;
  auto det = [](long double r[3][3]) {
    return r[0][0] * (r[1][1] * r[2][2] - r[1][2] * r[2][1]) - r[0][1] * (r[1][0] * r[2][2] - r[1][2] * r[2][0]) +
           r[0][2] * (r[1][0] * r[2][1] - r[1][1] * r[2][0]);
  };
  long double M[3][3], sol[3];
  const long double D = [&] {
    for (int r = 0; r < 3; ++r) M[r][0] = x[r] * x[r] * x[r], M[r][1] = x[r] * x[r], M[r][2] = x[r];
    return det(M);
  }();
  for (int col = 0; col < 3; ++col) {
    long double A[3][3];
    for (int r = 0; r < 3; ++r)
      for (int q = 0; q < 3; ++q) A[r][q] = q == col ? y[r] : M[r][q];
    sol[col] = det(A) / D;
  }
  p = {x0, y0, sol[0], sol[1], sol[2]};
  return true;
}

inline long double evalPoly(const Poly& p, long double s) {
  const long double x = s - p.x0;
  return p.y0 + p.c * x + p.a * x * x * x + p.b * x * x;
}

// Integer result of rule kind (0 step, 1 linear, 2 cubic). For the cubic,
// `alt` receives the other candidate when y + 0.5 lies so close to an integer
// that double and long double may truncate to neighbours.
template <class T>
long long ruleInt(int kind, const Chan<T>& c, T s, long long* alt) {
  *alt = LLONG_MIN;
  const int k = intervalOf(c, s);
  if (k < 0) return s;
  if (kind == 0) return clampInt<T>(c.values[k]);
  if (kind == 2 && c.n() >= 4) {
    const long double lo = std::max<long double>(c.levels[k], kLo<T>);
    const long double hi = std::min<long double>(c.levels[k + 1], kHi<T> + 1);
    Poly p;
    if (hi - lo == 1) return clampInt<T>(c.values[k]);
    if (cubicOf(c, k, p)) {
      const long double y = evalPoly(p, s) + 0.5L;
      const long double t = std::trunc(y);
      const long double frac = y - t;
      if (std::fabs(frac) < 1e-6L) *alt = clampInt<T>(y >= 0 ? t - 1 : t + 1);
      if (std::fabs(frac) > 1 - 1e-6L) *alt = clampInt<T>(y >= 0 ? t + 1 : t - 1);
      return clampInt<T>(t);
    }
  }
  return lineInt(c, k, s);
}

// 32f: the step value, the line (float difference, then long double), or the
// cubic in long double. `tol` is the error the cubic may carry.
inline float rule32f(int kind, const Chan<Pxl32f>& c, float s, float* tol) {
  *tol = 0;
  const int k = intervalOf(c, s);
  if (k < 0) return s;
  if (kind == 0) return c.values[k];
  auto line = [&] {
    const float dl = c.levels[k + 1] - c.levels[k];
    const double slope = dl != 0 ? double(c.values[k + 1] - c.values[k]) / double(dl) : 0.0;
    return float((long double)(s - c.levels[k]) * (long double)slope + (long double)c.values[k]);
  };
  if (kind == 1 || c.n() < 4 || !(c.levels[k] < c.levels[k + 1])) return line();
  Poly p;
  if (!cubicOf(c, k, p)) {
    *tol = 1e-4f * (1 + std::fabs(line()));
    return line();
  }
  const long double y = evalPoly(p, s);
  *tol = float(1e-5L * (1 + std::fabs(y)));
  return float(y);
}

}  // namespace lutref
