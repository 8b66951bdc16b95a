// Borders: a source image placed at (top, left) inside a larger destination
// image, the rest filled with a constant, with the source's edge pixels
// repeated outwards, or with the source repeated periodically.
//
// Each source row is completed first (its left and right stretches); the
// rows above and below are then copies of completed rows. The in-place forms
// get the origin of the source inside the larger image: the destination
// starts top rows and left pixels before it, and only the stretches are
// written, the source pixels stay where they are.
#include <algorithm>

#include "move/rearrange.h"

namespace pxl::move {

namespace {

// Null pointers, then steps, then the geometry: all four sizes at least 1,
// top and left not negative, and the source inside the destination.
template <class... S>
PxlStatus checkBorder(PxlSize srcRoi, PxlSize dstRoi, int top, int left, S... steps) {
  if (badStep(steps...)) return pxlStsStep;
  if (badSize(srcRoi) || badSize(dstRoi) || top < 0 || left < 0) return pxlStsSize;
  if (std::int64_t(dstRoi.width) < std::int64_t(left) + srcRoi.width ||
      std::int64_t(dstRoi.height) < std::int64_t(top) + srcRoi.height)
    return pxlStsSize;
  return pxlStsOk;
}

// The destination's origin for an in-place call: top rows and left pixels
// before the source's.
template <class T, Lay L>
T* outerOrigin(T* srcDst, int step, int top, int left) {
  return rowAt(srcDst, step, -top) - std::ptrdiff_t(left) * channelsOf(L);
}

// The rows of the destination outside the source's rows: a copy of the
// completed row `from`, for rows [first, end).
template <class T, Lay L>
void copyRows(T* dst, int step, int from, int first, int end, int width) {
  for (int y = first; y < end; ++y) copyRow<T, L>(rowAt(dst, step, y), rowAt(dst, step, from), width);
}

// ---------------------------------------------------------------- replicate

// Row d of the destination (dw pixels) around the source row s placed at
// left: the first pixel repeated to the left, the last to the right. The
// edge pixels are taken before anything is written, so that a source that
// shares memory with the destination gives the same row.
template <class T, Lay L, bool InPlace>
void replicateRow(T* d, const T* s, int sw, int dw, int left) {
  using P = Pixel<T, L>;
  T first[P::kCh], last[P::kCh];
  P::put(first, P::at(s, 0));
  P::put(last, P::at(s, sw - 1));
  if constexpr (!InPlace) copyRow<T, L>(P::at(d, left), s, sw);
  fillRow<T, L>(d, left, first);
  fillRow<T, L>(P::at(d, left + sw), dw - left - sw, last);
}

template <class T, Lay L, bool InPlace>
void replicate(const T* src, int srcStep, PxlSize s, T* dst, int dstStep, PxlSize d, int top, int left) {
  for (int y = 0; y < s.height; ++y)
    replicateRow<T, L, InPlace>(rowAt(dst, dstStep, top + y), rowAt(src, srcStep, y), s.width, d.width, left);
  copyRows<T, L>(dst, dstStep, top, 0, top, d.width);
  copyRows<T, L>(dst, dstStep, top + s.height - 1, top + s.height, d.height, d.width);
}

// ---------------------------------------------------------------- wrap

// Non-negative remainder.
inline int wrapIndex(std::int64_t i, int n) {
  const std::int64_t r = i % n;
  return int(r < 0 ? r + n : r);
}

// n pixels of the periodic repeat of the row s (sw pixels), starting at its
// pixel `start`: runs of the row, each as long as the row allows.
template <class T, Lay L>
void wrapFill(T* d, int n, const T* s, int sw, int start) {
  using P = Pixel<T, L>;
  for (int x = 0; x < n;) {
    const int run = std::min(n - x, sw - start);
    copyRow<T, L>(P::at(d, x), P::at(s, start), run);
    x += run;
    start = 0;
  }
}

template <class T, Lay L, bool InPlace>
void wrap(const T* src, int srcStep, PxlSize s, T* dst, int dstStep, PxlSize d, int top, int left) {
  using P = Pixel<T, L>;
  for (int y = 0; y < s.height; ++y) {
    T* row = rowAt(dst, dstStep, top + y);
    const T* from = rowAt(src, srcStep, y);
    if constexpr (!InPlace) copyRow<T, L>(P::at(row, left), from, s.width);
    wrapFill<T, L>(row, left, from, s.width, wrapIndex(-std::int64_t(left), s.width));
    wrapFill<T, L>(P::at(row, left + s.width), d.width - left - s.width, from, s.width, 0);
  }
  // Destination row y is source row (y - top) mod height, which is complete
  // at destination row top + that.
  for (int y = 0; y < d.height; ++y) {
    if (y >= top && y < top + s.height) continue;
    const int from = top + wrapIndex(std::int64_t(y) - top, s.height);
    copyRow<T, L>(rowAt(dst, dstStep, y), rowAt(dst, dstStep, from), d.width);
  }
}

}  // namespace

// ---------------------------------------------------------------- members

template <class T, Lay L>
PxlStatus copyConstBorder(const T* src, int srcStep, PxlSize srcRoi, T* dst, int dstStep, PxlSize dstRoi, int top,
                          int left, std::conditional_t<L == Lay::C1, T, const T*> value) {
  using P = Pixel<T, L>;
  const T* v;
  if constexpr (L == Lay::C1) {
    v = &value;
  } else {
    if (value == nullptr) return pxlStsNullPtr;
    v = value;
  }
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkBorder(srcRoi, dstRoi, top, left, srcStep, dstStep)) return st;
  // The value as one pixel (AC4: three samples; the fourth is never read).
  T px[P::kCh] = {};
  for (int c = 0; c < P::kUsed; ++c) px[c] = loadSample(v + c);
  const int sw = srcRoi.width, dw = dstRoi.width;
  for (int y = 0; y < dstRoi.height; ++y) {
    T* d = rowAt(dst, dstStep, y);
    if (y < top || y >= top + srcRoi.height) {
      fillRow<T, L>(d, dw, px);
      continue;
    }
    fillRow<T, L>(d, left, px);
    copyRow<T, L>(P::at(d, left), rowAt(src, srcStep, y - top), sw);
    fillRow<T, L>(P::at(d, left + sw), dw - left - sw, px);
  }
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus copyReplicateBorder(const T* src, int srcStep, PxlSize srcRoi, T* dst, int dstStep, PxlSize dstRoi,
                              int top, int left) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkBorder(srcRoi, dstRoi, top, left, srcStep, dstStep)) return st;
  replicate<T, L, false>(src, srcStep, srcRoi, dst, dstStep, dstRoi, top, left);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus copyReplicateBorder(T* srcDst, int srcDstStep, PxlSize srcRoi, PxlSize dstRoi, int top, int left) {
  if (anyNull(srcDst)) return pxlStsNullPtr;
  if (PxlStatus st = checkBorder(srcRoi, dstRoi, top, left, srcDstStep)) return st;
  replicate<T, L, true>(srcDst, srcDstStep, srcRoi, outerOrigin<T, L>(srcDst, srcDstStep, top, left), srcDstStep,
                        dstRoi, top, left);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus copyWrapBorder(const T* src, int srcStep, PxlSize srcRoi, T* dst, int dstStep, PxlSize dstRoi, int top,
                         int left) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkBorder(srcRoi, dstRoi, top, left, srcStep, dstStep)) return st;
  wrap<T, L, false>(src, srcStep, srcRoi, dst, dstStep, dstRoi, top, left);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus copyWrapBorder(T* srcDst, int srcDstStep, PxlSize srcRoi, PxlSize dstRoi, int top, int left) {
  if (anyNull(srcDst)) return pxlStsNullPtr;
  if (PxlStatus st = checkBorder(srcRoi, dstRoi, top, left, srcDstStep)) return st;
  wrap<T, L, true>(srcDst, srcDstStep, srcRoi, outerOrigin<T, L>(srcDst, srcDstStep, top, left), srcDstStep, dstRoi,
                   top, left);
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/piborder.inc"
