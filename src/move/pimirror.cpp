// Mirror: an image flipped about its horizontal axis (row order reversed),
// its vertical axis (each row reversed) or both. One template serves every
// sample type and layout; a pixel moves as a unit, so the samples inside a
// pixel keep their order, and AC4 moves three samples and leaves alpha.
#include <algorithm>

#include "move/copy.h"
#include "move/rearrange.h"

namespace pxl::move {

namespace {

inline bool knownAxis(int axis) {
  return axis == pxlAxsHorizontal || axis == pxlAxsVertical || axis == pxlAxsBoth;
}

// The bytes an image's rows span, whatever the sign of its step.
struct Span {
  const std::uint8_t *lo, *hi;
};
inline Span spanOf(const void* p, int step, int h, std::size_t rowBytes) {
  const auto* first = static_cast<const std::uint8_t*>(p);
  const auto* last = first + std::ptrdiff_t(step) * (h - 1);
  return {std::min(first, last), std::max(first, last) + rowBytes};
}

}  // namespace

// Steps are never examined: a zero step reads (or writes) one row for all.
template <class T, Lay L>
PxlStatus mirror(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, int axis) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (!knownAxis(axis)) return pxlStsMirrorAxis;
  const int w = roi.width, h = roi.height;
  if constexpr (Pixel<T, L>::kWhole) {
    // Reversing the row order of whole pixels between separate images is a
    // copy of each row: the copy rows of Copy, streamed when large.
    const std::size_t n = std::size_t(w) * Pixel<T, L>::kBytes;
    const Span a = spanOf(src, srcStep, h, n), b = spanOf(dst, dstStep, h, n);
    if (axis == pxlAxsHorizontal && (a.hi <= b.lo || b.hi <= a.lo)) {
      // By value: the row copy is an outside call, and pointers captured
      // by reference would be loaded again after each one.
      streamedRows(n * std::size_t(h), h, [=](int i, auto stream) {
        copyRow(bytesOf(rowAt(dst, dstStep, h - 1 - i)), bytesOf(rowAt(src, srcStep, i)), n, stream);
      });
      return pxlStsOk;
    }
  }
  for (int i = 0; i < h; ++i) {
    const T* s = rowAt(src, srcStep, i);
    switch (axis) {
      case pxlAxsHorizontal:
        copyRow<T, L>(rowAt(dst, dstStep, h - 1 - i), s, w);
        break;
      case pxlAxsVertical:
        flipRow<T, L>(rowAt(dst, dstStep, i), s, w);
        break;
      default:
        flipRow<T, L>(rowAt(dst, dstStep, h - 1 - i), s, w);
        break;
    }
  }
  return pxlStsOk;
}

// In place every pixel is exchanged with its mirror image once: rows i and
// h - 1 - i for i below h / 2, and the middle row of an odd height (axis 2)
// or every row (axis 1) reversed in itself up to the middle pixel.
template <class T, Lay L>
PxlStatus mirror(T* srcDst, int srcDstStep, PxlSize roi, int axis) {
  if (anyNull(srcDst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (!knownAxis(axis)) return pxlStsMirrorAxis;
  const int w = roi.width, h = roi.height;
  auto row = [&](int i) { return rowAt(srcDst, srcDstStep, i); };
  switch (axis) {
    case pxlAxsHorizontal:
      for (int i = 0; i < h / 2; ++i) exchangeRows<T, L>(row(i), row(h - 1 - i), w);
      break;
    case pxlAxsVertical:
      for (int i = 0; i < h; ++i) reverseRow<T, L>(row(i), w);
      break;
    default:
      for (int i = 0; i < h / 2; ++i) exchangeFlipped<T, L>(row(i), row(h - 1 - i), w, 0, w);
      if (h % 2 == 1) reverseRow<T, L>(row(h / 2), w);
      break;
  }
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/pimirror.inc"
