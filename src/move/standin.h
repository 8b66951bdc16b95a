// Row copy and fill behind the arithmetic's shortcuts (a zero constant is a
// copy, a scale past the type's limit a fill), with the checks of the Copy
// and Set members they stand for: Copy looks at pointers and sizes only, Set
// also refuses a step below 1. The AC4 fill leaves alpha as it was.
// TODO(data movement): forward to the public Copy and Set members once they
// exist, so that the shortcuts take their streaming kernels too.
#pragma once

#include <cstring>

#include "frame/frame.h"

namespace pxl::move {

template <class T, Lay L>
PxlStatus copyImage(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  constexpr int ch = channelsOf(L), used = processedOf(L);
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    if constexpr (used == ch) {
      std::memcpy(d, s, sizeof(T) * size_t(roi.width) * ch);
    } else {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < used; ++c) d[x * ch + c] = s[x * ch + c];
    }
  }
  return pxlStsOk;
}

// values holds one sample per processed channel.
template <class T, Lay L>
PxlStatus setImage(const T* values, T* dst, int dstStep, PxlSize roi) {
  if (anyNull(values, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, dstStep)) return st;
  constexpr int ch = channelsOf(L), used = processedOf(L);
  for (int y = 0; y < roi.height; ++y) {
    T* d = rowAt(dst, dstStep, y);
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < used; ++c) d[x * ch + c] = values[c];
  }
  return pxlStsOk;
}

// Fill with one value in every processed channel.
template <class T, Lay L>
PxlStatus setImageUniform(T value, T* dst, int dstStep, PxlSize roi) {
  const T v[4] = {value, value, value, value};
  return setImage<T, L>(v, dst, dstStep, roi);
}

}  // namespace pxl::move
