// Set in all its layouts. Unlike Copy, Set refuses a step below 1 (after the
// sizes), and its masked forms refuse a mask step below 1 as well. The
// arithmetic's shortcuts (a result fixed by the scale) fill through
// setImageUniform.
#pragma once

#include <type_traits>

#include "frame/frame.h"
#include "move/copy.h"

namespace pxl::move {

// The processed samples of every pixel take vals[0..used-1]; checks done.
template <class T, Lay L>
void fillImage(const T* vals, T* dst, int dstStep, PxlSize roi) {
  constexpr int ch = channelsOf(L);
  if constexpr (L == Lay::AC4) {
    for (int y = 0; y < roi.height; ++y) {
      T* d = rowAt(dst, dstStep, y);
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < 3; ++c) storeSample(d + (x * 4 + c), vals[c]);
    }
  } else {
    const FillPattern<ch * int(sizeof(T))> pat(vals);
    std::size_t n = std::size_t(roi.width) * ch * sizeof(T);
    const std::size_t all = n * std::size_t(roi.height);
    int rows = roi.height;
    // Only the 8-bit single-channel fill walks a gapless image as one row.
    if constexpr (L == Lay::C1 && sizeof(T) == 1)
      if (gapless(dstStep, n)) n = all, rows = 1;
    // The row's place by value: by reference it would be loaded again after
    // each outside call that fills a row.
    streamedRows(all, rows, [&pat, dst, dstStep, n](int y, auto stream) {
      fillRow(bytesOf(rowAt(dst, dstStep, y)), pat, n, stream);
    });
  }
}

// The values of one pixel: a C1 member's value is passed by value, the
// others' by pointer (3 for C3 and AC4, 4 for C4).
template <class T, class V, int N>
struct PixelValues {
  const T* p;
  T one;
  T copy[N];
  explicit PixelValues(V v) {
    // A caller's array is copied by bytes: it may lie at any address.
    if constexpr (std::is_pointer_v<V>)
      p = v == nullptr ? nullptr : (std::memcpy(copy, v, sizeof copy), copy);
    else
      one = v, p = &one;
  }
  PixelValues(const PixelValues&) = delete;
  bool null() const { return p == nullptr; }
};

template <class T, Lay L, class V>
PxlStatus setImage(V value, T* dst, int dstStep, PxlSize roi) {
  const PixelValues<T, V, processedOf(L)> vals(value);
  if (vals.null() || dst == nullptr) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, dstStep)) return st;
  fillImage<T, L>(vals.p, dst, dstStep, roi);
  return pxlStsOk;
}

// One value in every processed channel.
template <class T, Lay L>
PxlStatus setImageUniform(T value, T* dst, int dstStep, PxlSize roi) {
  const T v[4] = {value, value, value, value};
  return setImage<T, L>(static_cast<const T*>(v), dst, dstStep, roi);
}

// C3CR, C4CR: dst addresses the chosen channel of the first pixel.
template <class T, Lay L>
PxlStatus setChannel(T value, T* dst, int dstStep, PxlSize roi) {
  if (dst == nullptr) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, dstStep)) return st;
  constexpr int ch = channelsOf(L);
  for (int y = 0; y < roi.height; ++y) {
    T* d = rowAt(dst, dstStep, y);
    for (int x = 0; x < roi.width; ++x) storeSample(d + x * ch, value);
  }
  return pxlStsOk;
}

template <class T, Lay L, class V>
PxlStatus setMasked(V value, T* dst, int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep) {
  const PixelValues<T, V, processedOf(L)> vals(value);
  if (vals.null() || anyNull(dst, mask)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, dstStep, maskStep)) return st;
  constexpr int ch = channelsOf(L), used = processedOf(L);
  T px[4];
  for (int c = 0; c < used; ++c) px[c] = vals.p[c];
  for (int y = 0; y < roi.height; ++y) {
    T* d = rowAt(dst, dstStep, y);
    maskedRow(rowAt(mask, maskStep, y), roi.width, [d, &px](int x) {
      for (int c = 0; c < used; ++c) storeSample(d + (x * ch + c), px[c]);
    });
  }
  return pxlStsOk;
}

// Vector fills: pxlsSet, pxlsZero, and the arithmetic's results fixed by
// the scale.
inline PxlStatus checkVector(bool null, int length) {
  if (null) return pxlStsNullPtr;
  return length < 1 ? pxlStsSize : pxlStsOk;
}

template <class T>
PxlStatus vectorSet(T value, T* dst, int length) {
  if (PxlStatus st = checkVector(dst == nullptr, length)) return st;
  const FillPattern<int(sizeof(T))> pat(&value);
  const std::size_t n = std::size_t(length) * sizeof(T);
  streamedRows(n, 1, [&](int, auto stream) { fillRow(reinterpret_cast<std::uint8_t*>(dst), pat, n, stream); });
  return pxlStsOk;
}

template <class T>
PxlStatus vectorZero(T* dst, int length) {
  return vectorSet(T{}, dst, length);
}

}  // namespace pxl::move
