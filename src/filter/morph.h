// Extremum filters: Erode and Dilate over the cells of a caller's byte mask,
// Erode3x3 and Dilate3x3 over the whole square, FilterMin and FilterMax over
// any rectangle.
#pragma once

#include <cfloat>
#include <cstdint>

#include "filter/neighbour.h"
#include "pxli.h"

namespace pxl::filter {

// The extremum of two samples: minimum for Erode/Min, maximum for
// Dilate/Max. A NaN operand of 32f yields the other operand's place in this
// expression (b when the comparison is false), the same at every level.
template <bool Max, class T>
inline T ext(T a, T b) {
  if constexpr (Max)
    return a < b ? b : a;
  else
    return b < a ? b : a;
}

// The cell table: what each mask cell joins to its sample before the fold,
// so that the inner loop has no branch. A cell outside the structuring
// element turns its sample into the fold's neutral value: 8u erosion ORs
// 0xFF, dilation ANDs 0; 32f clips to the far float extreme. A cell inside
// leaves an 8u sample as it is and clips a float one to +-FLT_MAX.
template <bool Max, class T>
struct Cell {
  static T entry(bool on) {
    if constexpr (std::is_same_v<T, Pxl8u>)
      return Max ? (on ? 0xFF : 0x00) : (on ? 0x00 : 0xFF);
    else
      return Max ? (on ? FLT_MAX : -FLT_MAX) : (on ? -FLT_MAX : FLT_MAX);
  }
  static T join(T s, T e) {
    if constexpr (std::is_same_v<T, Pxl8u>)
      return Max ? Pxl8u(s & e) : Pxl8u(s | e);
    else
      return ext<!Max>(s, e);
  }
  static T start() {
    if constexpr (std::is_same_v<T, Pxl8u>)
      return Max ? 0x00 : 0xFF;
    else
      return Max ? -FLT_MAX : FLT_MAX;
  }
};

// One output row of a masked window: every cell's row of samples, joined to
// the cell's entry and folded into acc.
template <bool Max, class T, Lay L>
void maskedRow(const T* src, int ss, T* acc, int width, int y, const T* tab, PxlSize m, PxlPoint a) {
  constexpr int C = channelsOf(L);
  const int n = width * C;
  using K = Cell<Max, T>;
  for (int s = 0; s < n; ++s) acc[s] = K::start();
  for (int j = 0; j < m.height; ++j) {
    const T* r = rowAt(src, ss, y - a.y + j) - a.x * C;
    for (int i = 0; i < m.width; ++i) {
      const T e = tab[j * m.width + i];
      const T* p = r + i * C;
      for (int s = 0; s < n; ++s) acc[s] = ext<Max>(acc[s], K::join(loadSample(p + s), e));
    }
  }
}

// Checks of Erode and Dilate up to the step test, and the table.
template <bool Max, class T, Lay L>
PxlStatus morphChecks(int ss, int ds, PxlSize roi, const Pxl8u* mask, PxlSize m, PxlPoint a) {
  if (badStep(ss, ds)) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  if (m.width < 1 || m.height < 1) return pxlStsMaskSize;
  Pxl8u top = 0;
  if ((long long)m.width * m.height > INT32_MAX) return pxlStsMaskSize;
  pxliMax_8u_C1R(mask, m.width, PxlSize{m.width, m.height}, &top);
  if (top == 0) return pxlStsMaskZero;
  if (a.x < 0 || a.x >= m.width || a.y < 0 || a.y >= m.height) return pxlStsAnchor;
  constexpr long long P = channelsOf(L) * (long long)sizeof(T);
  if (ss < (roi.width + m.width - 1LL) * P || ds < roi.width * P) return pxlStsRowTooWide;
  return pxlStsOk;
}

// The table for this call: on the stack up to 64 cells, else allocated.
template <bool Max, class T>
struct CellTable {
  T local[64];
  Scratch<T> heap;
  T* p;
  CellTable(const Pxl8u* mask, long long cells) : heap(cells > 64 ? cells : 0), p(cells > 64 ? heap.get() : local) {
    if (p)
      for (long long c = 0; c < cells; ++c) p[c] = Cell<Max, T>::entry(mask[c] != 0);
  }
};

template <bool Max, class T, Lay L>
PxlStatus morph(const T* src, int ss, T* dst, int ds, PxlSize roi, const Pxl8u* mask, PxlSize m, PxlPoint a) {
  if (anyNull(src, dst, mask)) return pxlStsNullPtr;
  if (const PxlStatus st = morphChecks<Max, T, L>(ss, ds, roi, mask, m, a)) return st;
  CellTable<Max, T> tab(mask, (long long)m.width * m.height);
  Scratch<T> acc((long long)roi.width * channelsOf(L));
  if (!tab.p || !acc.ok()) return pxlStsAlloc;
  for (int y = 0; y < roi.height; ++y) {
    maskedRow<Max, T, L>(src, ss, acc.get(), roi.width, y, tab.p, m, a);
    storePixels<L>(rowAt(dst, ds, y), acc.get(), roi.width);
  }
  return pxlStsOk;
}

// In place: the one step is tested against the larger of the two rows.
template <bool Max, class T, Lay L>
PxlStatus morph(T* img, int step, PxlSize roi, const Pxl8u* mask, PxlSize m, PxlPoint a) {
  if (anyNull(img, mask)) return pxlStsNullPtr;
  if (const PxlStatus st = morphChecks<Max, T, L>(step, step, roi, mask, m, a)) return st;
  CellTable<Max, T> tab(mask, (long long)m.width * m.height);
  if (!tab.p) return pxlStsAlloc;
  return ringInPlace<L>(img, step, roi, a.y,
                        [&](int y, T* out) { maskedRow<Max, T, L>(img, step, out, roi.width, y, tab.p, m, a); });
}

// 3x3: the extremum of three rows, then of three neighbours along the row.
// All nine cells count and samples are not clipped.
template <bool Max, class T, Lay L>
void square3Row(const T* src, int ss, T* col, T* out, int width, int y) {
  constexpr int C = channelsOf(L);
  const int n = (width + 2) * C;
  const T* r0 = rowAt(src, ss, y - 1) - C;
  const T* r1 = rowAt(src, ss, y) - C;
  const T* r2 = rowAt(src, ss, y + 1) - C;
  for (int s = 0; s < n; ++s) col[s] = ext<Max>(ext<Max>(loadSample(r0 + s), loadSample(r1 + s)), loadSample(r2 + s));
  for (int s = 0; s < width * C; ++s) out[s] = ext<Max>(ext<Max>(col[s], col[s + C]), col[s + 2 * C]);
}

template <bool Max, class T, Lay L>
PxlStatus square3(const T* src, int ss, T* dst, int ds, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badStep(ss, ds)) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  constexpr long long P = channelsOf(L) * (long long)sizeof(T);
  if (ss < (roi.width + 2LL) * P || ds < roi.width * P) return pxlStsRowTooWide;
  constexpr int C = channelsOf(L);
  Scratch<T> buf((roi.width + 2LL) * C + (long long)roi.width * C);
  if (!buf.ok()) return pxlStsAlloc;
  T* col = buf.get();
  T* out = col + (roi.width + 2) * C;
  for (int y = 0; y < roi.height; ++y) {
    square3Row<Max, T, L>(src, ss, col, out, roi.width, y);
    storePixels<L>(rowAt(dst, ds, y), out, roi.width);
  }
  return pxlStsOk;
}

template <bool Max, class T, Lay L>
PxlStatus square3(T* img, int step, PxlSize roi) {
  if (anyNull(img)) return pxlStsNullPtr;
  if (badStep(step)) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  constexpr long long P = channelsOf(L) * (long long)sizeof(T);
  if (step < (roi.width + 2LL) * P) return pxlStsRowTooWide;
  Scratch<T> col((roi.width + 2LL) * channelsOf(L));
  if (!col.ok()) return pxlStsAlloc;
  return ringInPlace<L>(img, step, roi, 1,
                        [&](int y, T* out) { square3Row<Max, T, L>(img, step, col.get(), out, roi.width, y); });
}

// FilterMin, FilterMax: separable. Along the row, the extremum of 2, 4, 8...
// neighbours is built by doubling and two overlapping spans cover the mask
// (log2 of the width passes, each over contiguous samples). Down the
// columns, a van Herk/Gil-Werman running extremum: output rows go in blocks
// of mask height; a block's window rows give suffix extrema, the rows below
// it a prefix extremum, and each output row is the extremum of one of each,
// so the cost per sample does not grow with the mask height.
template <bool Max, class T, Lay L>
struct RankRun {
  static constexpr int C = channelsOf(L);
  const T* src;
  int ss, width;
  PxlSize m;
  PxlPoint a;
  T *b0, *b1;

  // Row pass of window row i (source row i - anchor.y) into out.
  void rowPass(int i, T* out) const {
    const int n = width * C;
    int len = (width + m.width - 1) * C;
    std::memcpy(static_cast<void*>(b0), rowAt(src, ss, i - a.y) - a.x * C, len * sizeof(T));
    T *cur = b0, *nxt = b1;
    int span = 1;
    while (span * 2 <= m.width) {
      const int off = span * C;
      len -= off;
      for (int s = 0; s < len; ++s) nxt[s] = ext<Max>(cur[s], cur[s + off]);
      std::swap(cur, nxt);
      span *= 2;
    }
    const int off = (m.width - span) * C;
    for (int s = 0; s < n; ++s) out[s] = ext<Max>(cur[s], cur[s + off]);
  }
};

template <bool Max, class T, Lay L>
PxlStatus rankFilter(const T* src, int ss, T* dst, int ds, PxlSize roi, PxlSize m, PxlPoint a) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (badStep(ss, ds)) return pxlStsStep;
  if (const PxlStatus st = checkMaskAnchor(m, a)) return st;
  constexpr int C = channelsOf(L);
  if (m.width == 1 && m.height == 1) {
    for (int y = 0; y < roi.height; ++y) storePixels<L>(rowAt(dst, ds, y), rowAt(src, ss, y), roi.width);
    return pxlStsOk;
  }
  const long long n = (long long)roi.width * C, wide = (roi.width + (long long)m.width - 1) * C;
  Scratch<T> buf(2 * wide + (2LL * m.height + 2) * n);
  if (!buf.ok()) return pxlStsAlloc;
  T* base = buf.get();
  RankRun<Max, T, L> r{src, ss, roi.width, m, a, base, base + wide};
  T* A = base + 2 * wide;
  T* B = A + m.height * n;
  T* P = B + m.height * n;
  T* out = P + n;
  const int mh = m.height;
  for (int s = 0; s < roi.height; s += mh) {
    if (s == 0) {
      for (int i = 0; i < mh; ++i) r.rowPass(i, A + i * n);
    } else {
      std::swap(A, B);  // B held window rows s .. s + mh - 2
      r.rowPass(s + mh - 1, A + (mh - 1) * n);
    }
    for (int i = mh - 2; i >= 0; --i)
      for (long long q = 0; q < n; ++q) A[i * n + q] = ext<Max>(A[i * n + q], A[(i + 1) * n + q]);
    storePixels<L>(rowAt(dst, ds, s), A, roi.width);
    for (int k = 1; k < mh && s + k < roi.height; ++k) {
      T* raw = B + (k - 1) * n;
      r.rowPass(s + mh - 1 + k, raw);
      const T* suf = A + k * n;
      if (k == 1)
        for (long long q = 0; q < n; ++q) P[q] = raw[q];
      else
        for (long long q = 0; q < n; ++q) P[q] = ext<Max>(P[q], raw[q]);
      for (long long q = 0; q < n; ++q) out[q] = ext<Max>(suf[q], P[q]);
      storePixels<L>(rowAt(dst, ds, s + k), out, roi.width);
    }
  }
  return pxlStsOk;
}

}  // namespace pxl::filter
