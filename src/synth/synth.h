// Test images and noise. The noise comes from one small generator whose
// state the caller carries as a 32-bit seed: a subtract-with-borrow sequence
// (modulus 2^32 - 18) mixed with a congruential one, so that a seed gives
// the same numbers on every machine and a chain of calls continues them.
#pragma once

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "measure/reduce.h"

namespace pxl::synth {


struct Rand {
  static constexpr std::uint32_t kM = 69069, kA = 0x3C6EF373u;
  std::uint32_t x0, x1, x2, c = 0x436CBAE9u;
  std::int32_t b = -1;
  std::uint32_t u = 0;

  explicit Rand(std::uint32_t s) : x0(s), x1(kM * s + kA), x2(kM * x1 + kA), u(s) {}

  std::int32_t next() {
    c = kM * c + kA;
    const std::int32_t t = std::int32_t(x1 - x2 + std::uint32_t(b));
    b = t < 0 ? -1 : 0;
    u = t < 0 ? std::uint32_t(t) - 18u : std::uint32_t(t);
    x2 = x1;
    x1 = x0;
    x0 = u;
    return std::int32_t(u + kM * c + kA);
  }
};

// Adds a noise value to a sample: integers convert it in the current
// rounding mode and saturate, 32f adds in single precision.
template <class T>
inline T addNoise(T v, long double n) {
  if constexpr (std::is_same_v<T, Pxl32f>) {
    return float(v + float(n));
  } else {
    // llrint converts in the current rounding mode without the cost of
    // saving and restoring the floating-point environment.
    const long long s = static_cast<long long>(v) + std::llrint(n);
    if (s <= std::numeric_limits<T>::lowest()) return std::numeric_limits<T>::lowest();
    if (s >= std::numeric_limits<T>::max()) return std::numeric_limits<T>::max();
    return T(s);
  }
}

// The uniform source: r * ((high - low) * 2^-32) + (high + low) / 2.
struct Uniform {
  long double scale, shift;
  Uniform(long double lo, long double hi) : scale((hi - lo) * 0x1p-32L), shift((hi + lo) * 0.5L) {}
  long double operator()(Rand& g) { return (long double)(g.next()) * scale + shift; }
};

// The polar form of the normal pair: uniform pairs in (-1, 1) inside the
// unit circle, factor sqrt(-2 log(s) / s); the second of a pair is kept for
// the next sample.
struct Gauss {
  long double mean, dev;
  bool has = false;
  long double spare = 0;
  Gauss(long double m, long double d) : mean(m), dev(d) {}
  long double operator()(Rand& g) {
    if (has) {
      has = false;
      return spare * dev + mean;
    }
    double v1, v2, s;
    do {
      v1 = g.next() * 0x1p-31;
      v2 = g.next() * 0x1p-31;
      s = v1 * v1 + v2 * v2;
    } while (s >= 1.0 || s == 0.0);
    const double f = std::sqrt(-2.0 * std::log(s) / s);
    spare = v2 * f;
    has = true;
    return (long double)(v1 * f) * dev + mean;
  }
};

// C3 and C4 draw for successive samples as one long C1 row; AC4 skips alpha.
template <class T, Lay L, class Src>
PxlStatus addRand(T* img, int step, PxlSize roi, Pxl32u* seed, Src src) {
  if (anyNull(img, seed)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (step < 1) return pxlStsStep;
  constexpr int C = channelsOf(L), P = processedOf(L);
  Rand g(loadSample(seed));
  for (int y = 0; y < roi.height; ++y) {
    T* p = rowAt(img, step, y);
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < P; ++c) {
        T v = loadSample(p + x * C + c);
        v = addNoise(v, src(g));
        std::memcpy(p + x * C + c, &v, sizeof v);
      }
  }
  storeSample(seed, g.u);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus addRandUniform(T* img, int step, PxlSize roi, T low, T high, Pxl32u* seed) {
  return addRand<T, L>(img, step, roi, seed, Uniform(low, high));
}
template <class T, Lay L>
PxlStatus addRandGauss(T* img, int step, PxlSize roi, T mean, T dev, Pxl32u* seed) {
  return addRand<T, L>(img, step, roi, seed, Gauss(mean, dev));
}

// offset + slope * p in single precision; integers saturate at the type's
// limits and otherwise round half up (v + 0.5, floored).
template <class T>
inline T rampValue(float v) {
  if constexpr (std::is_same_v<T, Pxl32f>) {
    return v;
  } else {
    const double lo = double(std::numeric_limits<T>::lowest()), hi = double(std::numeric_limits<T>::max());
    if (double(v) >= hi - 0.5) return std::numeric_limits<T>::max();
    if (double(v) < lo) return std::numeric_limits<T>::lowest();
    return T(std::floor(double(v) + 0.5));
  }
}

template <class T, Lay L>
PxlStatus imageRamp(T* dst, int step, PxlSize roi, Pxl32f offset, Pxl32f slope, Pxl32s axis) {
  if (dst == nullptr) return pxlStsNullPtr;
  if (step < 1) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  constexpr int C = channelsOf(L), P = processedOf(L);
  for (int y = 0; y < roi.height; ++y) {
    T* p = rowAt(dst, step, y);
    const T rowValue = rampValue<T>(offset + slope * float(y));
    for (int x = 0; x < roi.width; ++x) {
      const T v = axis == 1 ? rowValue
                            : rampValue<T>(offset + slope * float(axis == 2 ? std::int64_t(x) * y : x));
      for (int c = 0; c < P; ++c) std::memcpy(p + x * C + c, &v, sizeof v);
    }
  }
  return pxlStsOk;
}

}  // namespace pxl::synth
