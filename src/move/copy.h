// Copy in all its layouts. Copy checks pointers and sizes and never looks at
// a step, so a zero or negative step is the caller's own arrangement of rows.
// The arithmetic's shortcuts (a zero constant is a copy) call copyImage too.
#pragma once

#include <cstdint>

#include "frame/frame.h"
#include "move/rows.h"

namespace pxl::move {

template <class T>
inline std::uint8_t* bytesOf(T* p) {
  return reinterpret_cast<std::uint8_t*>(p);
}
template <class T>
inline const std::uint8_t* bytesOf(const T* p) {
  return reinterpret_cast<const std::uint8_t*>(p);
}

template <class T, Lay L>
PxlStatus copyImage(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  constexpr int ch = channelsOf(L);
  if constexpr (L == Lay::AC4) {
    for (int y = 0; y < roi.height; ++y) stridedRow<4, 4, 3>(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), roi.width);
  } else {
    std::size_t n = std::size_t(roi.width) * ch * sizeof(T);
    const std::size_t all = n * std::size_t(roi.height);
    int rows = roi.height;
    if (srcStep == dstStep && gapless(srcStep, n)) n = all, rows = 1;
    // By value: pointers captured by reference would be loaded again after
    // each outside call that copies a row.
    streamedRows(all, rows, [=](int y, auto stream) {
      copyRow(bytesOf(rowAt(dst, dstStep, y)), bytesOf(rowAt(src, srcStep, y)), n, stream);
    });
  }
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus copyMasked(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep) {
  if (anyNull(src, dst, mask)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  constexpr int ch = channelsOf(L), used = processedOf(L);
  // A mask step of 0 is not refused here: every row then reads the same
  // mask row.
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    maskedRow(rowAt(mask, maskStep, y), roi.width, [s, d](int x) {
      for (int c = 0; c < used; ++c) storeSample(d + (x * ch + c), loadSample(s + (x * ch + c)));
    });
  }
  return pxlStsOk;
}

// C3CR, C4CR: both pointers address the chosen channel of the first pixel.
template <class T, Lay L>
PxlStatus copyChannel(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  constexpr int ch = channelsOf(L);
  for (int y = 0; y < roi.height; ++y) stridedRow<ch, ch, 1>(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), roi.width);
  return pxlStsOk;
}

// Layout pairs: source layout, then destination layout.
enum class Repack : std::uint8_t { C3C1, C4C1, C1C3, C1C4, AC4C3, C3AC4, C3P3, C4P4, P3C3, P4C4 };

// Samples per pixel in the source and the destination, samples moved per
// pixel, and whether the member walks a gapless image as one row (the
// members of the four-channel extraction and insertion do; the others
// never collapse).
template <Repack R>
struct RepackOf;
template <> struct RepackOf<Repack::C3C1> { static constexpr int ss = 3, ds = 1, n = 1; static constexpr bool collapses = false; };
template <> struct RepackOf<Repack::C4C1> { static constexpr int ss = 4, ds = 1, n = 1; static constexpr bool collapses = true; };
template <> struct RepackOf<Repack::C1C3> { static constexpr int ss = 1, ds = 3, n = 1; static constexpr bool collapses = false; };
template <> struct RepackOf<Repack::C1C4> { static constexpr int ss = 1, ds = 4, n = 1; static constexpr bool collapses = true; };
template <> struct RepackOf<Repack::AC4C3> { static constexpr int ss = 4, ds = 3, n = 3; static constexpr bool collapses = false; };
template <> struct RepackOf<Repack::C3AC4> { static constexpr int ss = 3, ds = 4, n = 3; static constexpr bool collapses = false; };

// Walks an image as one row when its narrow side is gapless and the wide
// side's step is `ratio` times the narrow step.
inline void collapseRatio(PxlSize& roi, int narrowStep, int wideStep, int ratio, std::size_t narrowRowBytes) {
  if (gapless(narrowStep, narrowRowBytes) && std::int64_t(wideStep) == std::int64_t(ratio) * narrowStep &&
      std::int64_t(roi.width) * roi.height <= INT32_MAX)
    roi = {roi.width * roi.height, 1};
}

template <class T, Repack R>
PxlStatus copyRepack(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  using P = RepackOf<R>;
  if constexpr (P::collapses) {
    const std::size_t narrow = std::size_t(roi.width) * sizeof(T);
    if constexpr (P::ss > P::ds)
      collapseRatio(roi, dstStep, srcStep, P::ss, narrow);
    else
      collapseRatio(roi, srcStep, dstStep, P::ds, narrow);
  }
  for (int y = 0; y < roi.height; ++y)
    stridedRow<P::ss, P::ds, P::n>(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), roi.width);
  return pxlStsOk;
}

// Interleaved to planar (C3P3, C4P4) and back (P3C3, P4C4). One step serves
// all planes. A gapless image whose interleaved step is 3 or 4 times the
// planes' step is walked as one row.
template <Repack R> inline constexpr int kPlanesOf = (R == Repack::C3P3 || R == Repack::P3C3) ? 3 : 4;
template <Repack R> inline constexpr bool kToPlanes = R == Repack::C3P3 || R == Repack::C4P4;

template <int N, class T>
inline void deinterleaveRow(const T* s, T* const* planes, std::ptrdiff_t offset, int width) {
  T* p[N];
  for (int c = 0; c < N; ++c) p[c] = reinterpret_cast<T*>(reinterpret_cast<char*>(planes[c]) + offset);
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < N; ++c) storeSample(p[c] + x, loadSample(s + (x * N + c)));
}

template <int N, class T>
inline void interleaveRow(const T* const* planes, std::ptrdiff_t offset, T* d, int width) {
  const T* p[N];
  for (int c = 0; c < N; ++c) p[c] = reinterpret_cast<const T*>(reinterpret_cast<const char*>(planes[c]) + offset);
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < N; ++c) storeSample(d + (x * N + c), loadSample(p[c] + x));
}

template <class T, Repack R, class S, class D>
PxlStatus copyPlanes(S src, int srcStep, D dst, int dstStep, PxlSize roi) {
  constexpr int N = kPlanesOf<R>;
  if (anyNull(src, dst)) return pxlStsNullPtr;
  const auto planes = [&] {
    if constexpr (kToPlanes<R>)
      return dst;
    else
      return src;
  }();
  for (int c = 0; c < N; ++c)
    if (planes[c] == nullptr) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  const std::size_t planeRow = std::size_t(roi.width) * sizeof(T);
  if constexpr (kToPlanes<R>) {
    collapseRatio(roi, dstStep, srcStep, N, planeRow);
    for (int y = 0; y < roi.height; ++y)
      deinterleaveRow<N>(rowAt(src, srcStep, y), dst, std::ptrdiff_t(dstStep) * y, roi.width);
  } else {
    collapseRatio(roi, srcStep, dstStep, N, planeRow);
    for (int y = 0; y < roi.height; ++y)
      interleaveRow<N>(src, std::ptrdiff_t(srcStep) * y, rowAt(dst, dstStep, y), roi.width);
  }
  return pxlStsOk;
}

}  // namespace pxl::move
