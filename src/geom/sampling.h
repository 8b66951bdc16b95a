// Sampling shared by the affine warps and remap: given a source position,
// the value of one sample of the source under each interpolation rule.
// Positions are absolute source coordinates; `src` is the image origin of
// one plane (or of the interleaved image, with Px samples per pixel).
#pragma once

#include <array>
#include <cmath>
#include <cstdint>

#include "geom/resize.h"

namespace pxl::geom {

template <class T, int Px>
struct Src {
  const T* base;
  int step;  // bytes
  T at(int x, int y, int c) const {
    return loadSample(byteOffset(base, std::ptrdiff_t(step) * y) + std::ptrdiff_t(x) * Px + c);
  }
};

// Bilinear on integer samples: weights of 14 fraction bits rounded to
// nearest, a first stage shifted right by 8 without rounding and a second
// stage with the caller's rounding term (the warps round, remap does not).
template <int Round, class S>
inline Pxl8u linear8u(const S& s, int i, int j, float fx, float fy, int c) {
  const int wx = int(std::nearbyint(double(fx) * 16384.0)), wy = int(std::nearbyint(double(fy) * 16384.0));
  const int top = (s.at(i, j, c) * (16384 - wx) + s.at(i + 1, j, c) * wx) >> 8;
  const int bottom = (s.at(i, j + 1, c) * (16384 - wx) + s.at(i + 1, j + 1, c) * wx) >> 8;
  return Pxl8u((top * (16384 - wy) + bottom * wy + Round) >> 20);
}

// Bilinear in single precision, down each column first, then across.
template <class S>
inline float linearFloat(const S& s, int i, int j, float fx, float fy, int c) {
  const float s00 = s.at(i, j, c), s01 = s.at(i + 1, j, c), s10 = s.at(i, j + 1, c), s11 = s.at(i + 1, j + 1, c);
  return (s00 * (1.0f - fy) + s10 * fy) * (1.0f - fx) + (s01 * (1.0f - fy) + s11 * fy) * fx;
}

// Cubic through four samples at base .. base + 3, t = position - base in
// [0, 3]. Integer 8u samples use a table of 512 steps per sample distance:
// entry k holds w0 and w1 at k / 512 as signed 14-bit fractions, and the
// other two weights are the same entries mirrored.
struct CubicTable {
  std::array<std::int16_t, 2 * 1537> w{};
  CubicTable() {
    for (int k = 0; k <= 1536; ++k) {
      const double t = k / 512.0;
      w[2 * k] = std::int16_t(std::nearbyint((t - 1) * (t - 2) * (t - 3) / -6.0 * 16384.0));
      w[2 * k + 1] = std::int16_t(std::nearbyint(t * (t - 2) * (t - 3) / 2.0 * 16384.0));
    }
  }
  void weights(float t, int* out) const {
    // A warp's position may lie up to a pixel beyond the outer taps; the
    // weights there are those of the nearest node.
    const int k = std::clamp(int(std::nearbyint(double(std::clamp(t, 0.0f, 3.0f)) * 512.0)), 0, 1536);
    out[0] = w[2 * k];
    out[1] = w[2 * k + 1];
    out[2] = w[2 * (1536 - k) + 1];
    out[3] = w[2 * (1536 - k)];
  }
};

inline const CubicTable& cubicTable() {
  static const CubicTable table;
  return table;
}

inline void cubicWeights(float t, float* w) {
  const float u = t - 1.0f, u2 = u * u, u3 = u2 * u;
  w[0] = -u3 / 6.0f + u2 / 2.0f - u / 3.0f;
  w[1] = u3 / 2.0f - u2 - u / 2.0f + 1.0f;
  w[2] = -u3 / 2.0f + u2 / 2.0f + u;
  w[3] = u3 / 6.0f - u / 6.0f;
}

// Tap base and fraction along one axis: the four taps stay inside the image.
inline int cubicBase(float x, int largest, float& t) {
  const int i = std::min(int(x), largest - 2);
  const int base = i > 0 ? i - 1 : i;
  t = x - float(base);
  return base;
}

template <class T, class S>
inline T cubicSample(const S& s, int bx, int by, float tx, float ty, int c) {
  if constexpr (std::is_same_v<T, Pxl8u>) {
    int wx[4], wy[4];
    cubicTable().weights(tx, wx);
    cubicTable().weights(ty, wy);
    int sum = 0;
    for (int r = 0; r < 4; ++r) {
      int row = 0;
      for (int k = 0; k < 4; ++k) row += s.at(bx + k, by + r, c) * wx[k];
      sum += std::int16_t(row >> 8) * wy[r];
    }
    return Pxl8u(std::clamp((sum + 524288) >> 20, 0, 255));
  } else {
    float wx[4], wy[4];
    cubicWeights(tx, wx);
    cubicWeights(ty, wy);
    double sum = 0.0;
    for (int r = 0; r < 4; ++r) {
      double row = 0.0;
      for (int k = 0; k < 4; ++k) row += double(s.at(bx + k, by + r, c)) * wx[k];
      sum += row * wy[r];
    }
    if constexpr (std::is_same_v<T, Pxl32f>) return float(sum);
    else return Pxl16u(std::clamp(std::nearbyint(sum), 0.0, 65535.0));
  }
}

}  // namespace pxl::geom
