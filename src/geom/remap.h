// Remap: each destination pixel takes the source at the position that two
// float maps give. Positions outside the active source rectangle leave the
// destination pixel as it was: there is no border fill.
#pragma once

#include <cstring>

#include "geom/sampling.h"

namespace pxl::geom {

// The raw bit pattern of a float as a signed integer: ordered like the float
// for non-negative values, and -0.0 falls below +0.0.
inline std::int32_t bitsOf(float v) {
  std::int32_t b;
  std::memcpy(&b, &v, 4);
  return b;
}

template <class T, int Px, int Nc, int Planes>
PxlStatus remap(const T* const* src, PxlSize srcSize, int srcStep, PxlRect srcRoi, const Pxl32f* xMap, int xMapStep,
                const Pxl32f* yMap, int yMapStep, T* const* dst, int dstStep, PxlSize dstRoiSize, int interpolation) {
  if (src == nullptr || dst == nullptr || xMap == nullptr || yMap == nullptr) return pxlStsNullPtr;
  if (srcSize.width < 1 || srcSize.height < 1 || srcRoi.x < 0 || srcRoi.y < 0 || srcRoi.width < 1 ||
      srcRoi.height < 1 || dstRoiSize.width < 1 || dstRoiSize.height < 1)
    return pxlStsSize;
  int mode = interpolation;
  if (mode != kNearest && mode != kLinear && mode != kCubic) return pxlStsBadInterpolation;
  if (srcStep < 1 || dstStep < 1 || xMapStep < 1 || yMapStep < 1) return pxlStsStep;
  if (srcRoi.x >= srcSize.width || srcRoi.y >= srcSize.height) return pxlStsRoiOutside;
  if (srcSize.width == 1 || srcSize.height == 1) mode = kNearest;
  else if (mode == kCubic && (srcSize.width < 4 || srcSize.height < 4)) mode = kLinear;
  for (int p = 0; p < Planes; ++p)
    if (src[p] == nullptr || dst[p] == nullptr) return pxlStsNullPtr;
  const int x0 = srcRoi.x, y0 = srcRoi.y;
  const int x1 = x0 + std::min(srcSize.width - x0, srcRoi.width) - 1;
  const int y1 = y0 + std::min(srcSize.height - y0, srcRoi.height) - 1;
  const int maxX = srcSize.width - 1, maxY = srcSize.height - 1;
  const float fx0 = float(x0), fy0 = float(y0), fx1 = float(x1), fy1 = float(y1);
  constexpr int kPlanes = Planes > 0 ? Planes : 1;
  constexpr int kSamples = Planes > 0 ? 1 : Nc;

  for (int j = 0; j < dstRoiSize.height; ++j) {
    const float* mx = byteOffset(xMap, std::ptrdiff_t(xMapStep) * j);
    const float* my = byteOffset(yMap, std::ptrdiff_t(yMapStep) * j);
    for (int i = 0; i < dstRoiSize.width; ++i) {
      const float x = loadSample(mx + i), y = loadSample(my + i);
      const bool linear16 = std::is_same_v<T, Pxl16u> && mode == kLinear;
      if (linear16 ? (bitsOf(x) < bitsOf(fx0) || bitsOf(y) < bitsOf(fy0) || bitsOf(x) > bitsOf(fx1) ||
                      bitsOf(y) > bitsOf(fy1))
                   : !(x >= fx0 && y >= fy0 && x <= fx1 && y <= fy1))  // NaN is outside too
        continue;
      for (int p = 0; p < kPlanes; ++p) {
        const Src<T, Px> s{src[p], srcStep};
        T* d = byteOffset(dst[p], std::ptrdiff_t(dstStep) * j) + std::ptrdiff_t(i) * Px;
        if (mode == kNearest) {
          const int ix = int(std::nearbyint(x)), iy = int(std::nearbyint(y));
          for (int c = 0; c < kSamples; ++c) storeSample(d + c, s.at(ix, iy, c));
        } else if (mode == kLinear && linear16) {
          int ix = int(double(x) + 1e-07), iy = int(double(y) + 1e-07);
          double fx = double(x) - ix, fy = double(y) - iy;
          if (ix >= maxX) ix = maxX - 1, fx = 1.0;
          if (iy >= maxY) iy = maxY - 1, fy = 1.0;
          for (int c = 0; c < kSamples; ++c) {
            const double s00 = s.at(ix, iy, c), s01 = s.at(ix + 1, iy, c);
            const double s10 = s.at(ix, iy + 1, c), s11 = s.at(ix + 1, iy + 1, c);
            const double top = s00 + (s01 - s00) * fx, bottom = s10 + (s11 - s10) * fx;
            storeSample(d + c, T(std::trunc((bottom - top) * fy + top)));
          }
        } else if (mode == kLinear) {
          int ix = int(x), iy = int(y);
          // The rule is bound to the active rectangle; a rectangle one
          // column wide at the image's left edge keeps its own column.
          if (ix == x1 && ix > 0) --ix;
          if (iy == y1 && iy > 0) --iy;
          const float fx = x - float(ix), fy = y - float(iy);
          for (int c = 0; c < kSamples; ++c) {
            if constexpr (std::is_same_v<T, Pxl8u>) storeSample(d + c, linear8u<33>(s, ix, iy, fx, fy, c));
            else storeSample(d + c, T(linearFloat(s, ix, iy, fx, fy, c)));
          }
        } else {
          float tx, ty;
          const int bx = cubicBase(x, maxX, tx), by = cubicBase(y, maxY, ty);
          for (int c = 0; c < kSamples; ++c) storeSample(d + c, cubicSample<T>(s, bx, by, tx, ty, c));
        }
      }
    }
  }
  return pxlStsOk;
}

template <class T, int Px, int Nc>
PxlStatus remapC(const T* src, PxlSize srcSize, int srcStep, PxlRect srcRoi, const Pxl32f* xMap, int xMapStep,
                 const Pxl32f* yMap, int yMapStep, T* dst, int dstStep, PxlSize dstRoiSize, int interpolation) {
  const T* s[1] = {src};
  T* d[1] = {dst};
  return remap<T, Px, Nc, 0>(src ? s : nullptr, srcSize, srcStep, srcRoi, xMap, xMapStep, yMap, yMapStep,
                             dst ? d : nullptr, dstStep, dstRoiSize, interpolation);
}

template <class T, int Planes>
PxlStatus remapP(const T* const* src, PxlSize srcSize, int srcStep, PxlRect srcRoi, const Pxl32f* xMap,
                 int xMapStep, const Pxl32f* yMap, int yMapStep, T* const* dst, int dstStep, PxlSize dstRoiSize,
                 int interpolation) {
  return remap<T, 1, 1, Planes>(src, srcSize, srcStep, srcRoi, xMap, xMapStep, yMap, yMapStep, dst, dstStep,
                                dstRoiSize, interpolation);
}

}  // namespace pxl::geom
