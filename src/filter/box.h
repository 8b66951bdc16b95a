// FilterBox, the mean over a rectangle of any size, and the window sums
// SumWindowRow and SumWindowColumn. The box costs the same per pixel at any
// mask size: column sums T (one per source column and channel) slide down the
// image, and each output row slides a running sum S along T.
#pragma once

#include <omp.h>

#include <cmath>
#include <cstdint>

#include "filter/neighbour.h"
#include "frame/rowdriver.h"

namespace pxl::filter {

// How the 8u window sum becomes a mean. The variant depends on the area N
// and the layout, so results differ between layouts by design.
enum class BoxVar : std::uint8_t {
  Trunc,   // N above 8100: float(S) * (1/N), truncated
  Div9,    // 3x3 in C1, C3, AC4: nearest integer to S / 9
  IntMul,  // C1 and C4: (multiplier * S) >> shift, truncating
  Round,   // C3 and AC4: float(S) * (1/N) rounded in the current mode
};

struct BoxScale {
  BoxVar var;
  std::uint32_t mul, shift;
  float recip;
};

// The multiplier and shift of 1/N: v is the 32-bit integer nearest to
// f * 2^32 - 0.49999 in extended precision, normalised so that its top bit is
// set (n shifts, at most 24); the multiplier is its top 12 bits plus one.
inline void getShiftInt(int n, std::uint32_t& mul, std::uint32_t& shift) {
  const float f = 1.0f / float(n);
  if (f == 1.0f) {
    mul = 256, shift = 8;
    return;
  }
  std::uint32_t v = std::uint32_t(std::nearbyintl((long double)f * 4294967296.0L - 0.49999L));
  int k = 0;
  while (k < 24 && !(v & 0x80000000u)) v <<= 1, ++k;
  mul = (v >> 20) + 1, shift = std::uint32_t(k) + 12;
}

template <class T, Lay L>
inline BoxScale boxScale(PxlSize m) {
  const int n = m.width * m.height;
  BoxScale s{BoxVar::Round, 0, 0, 1.0f / float(n)};
  if constexpr (std::is_same_v<T, Pxl8u>) {
    if (n > 8100)
      s.var = BoxVar::Trunc;
    else if (m.width == 3 && m.height == 3 && L != Lay::C4)
      s.var = BoxVar::Div9;
    else if (L == Lay::C1 || L == Lay::C4)
      s.var = BoxVar::IntMul, getShiftInt(n, s.mul, s.shift);
  }
  return s;
}

// Sums: 32 bits that wrap for the integer forms (exact for 8u up to an area
// of 16 million), float for 32f.
template <class T>
using BoxAcc = std::conditional_t<std::is_same_v<T, Pxl32f>, float, std::uint32_t>;

// Row of window sums to samples, one variant per loop so that each loop runs
// without a branch.
template <class T>
inline void boxStore(const BoxAcc<T>* s, T* out, int n, const BoxScale& sc) {
  if constexpr (std::is_same_v<T, Pxl8u>) {
    switch (sc.var) {
      case BoxVar::Trunc:
        for (int i = 0; i < n; ++i) out[i] = Pxl8u(std::int32_t(float(s[i]) * sc.recip));
        break;
      case BoxVar::Div9:
        for (int i = 0; i < n; ++i) out[i] = Pxl8u((((s[i] * 29128u) >> 16) + 2) >> 2);
        break;
      case BoxVar::IntMul:
        for (int i = 0; i < n; ++i) out[i] = Pxl8u((std::uint64_t(sc.mul) * s[i]) >> sc.shift);
        break;
      case BoxVar::Round:
        for (int i = 0; i < n; ++i) out[i] = fromFloat<Pxl8u>(float(s[i]) * sc.recip);
        break;
    }
  } else if constexpr (std::is_same_v<T, Pxl16s>) {
    for (int i = 0; i < n; ++i) out[i] = fromFloat<Pxl16s>(float(std::int32_t(s[i])) * sc.recip);
  } else {
    for (int i = 0; i < n; ++i) out[i] = s[i] * sc.recip;
  }
}

template <class T>
inline BoxAcc<T> widen(T v) {
  if constexpr (std::is_same_v<T, Pxl32f>)
    return v;
  else
    return BoxAcc<T>(std::int32_t(v));
}

// The sliding state of one range of output rows. Row y's window starts at
// source row y - anchor.y, column -anchor.x.
template <class T, Lay L>
struct BoxRun {
  static constexpr int C = channelsOf(L);
  using A = BoxAcc<T>;
  const T* src;
  int ss, width;
  PxlSize m;
  PxlPoint a;
  BoxScale sc;
  A* t;    // (width + m.width - 1) * C column sums
  A* s;    // width * C window sums
  T* res;  // width * C results

  int cols() const { return (width + m.width - 1) * C; }
  const T* srcRow(int y) const { return rowAt(src, ss, y - a.y) - a.x * C; }

  void start(int y) {
    const int n = cols();
    for (int i = 0; i < n; ++i) t[i] = A(0);
    for (int j = 0; j < m.height; ++j) {
      const T* r = srcRow(y + j);
      for (int i = 0; i < n; ++i) t[i] += widen(loadSample(r + i));
    }
  }

  // Output row y into out (all C samples), then, unless it was the last row
  // of the range, T moves down one row: the row below the window comes in
  // before the window's top row goes out.
  void row(int y, T* out, bool last) {
    for (int c = 0; c < C; ++c) {
      A acc = A(0);
      for (int k = 0; k < m.width; ++k) acc += t[k * C + c];
      const A* in = t + m.width * C + c;
      const A* gone = t + c;
      A* o = s + c;
      for (int x = 0; x + 1 < width; ++x) {
        o[x * C] = acc;
        acc = acc + in[x * C] - gone[x * C];
      }
      o[(width - 1) * C] = acc;
    }
    boxStore<T>(s, out, width * C, sc);
    if (last) return;
    const T* top = srcRow(y);
    const T* below = srcRow(y + m.height);
    const int n = cols();
    for (int i = 0; i < n; ++i) t[i] = t[i] + widen(loadSample(below + i)) - widen(loadSample(top + i));
  }
};

// Out of place. Rows go in blocks of a fixed height that depends only on
// the mask, and each block starts its sums afresh, so the float sums (which
// carry their rounding down the image) give the same bytes at any thread
// count. C1, C3 and AC4 fork above 4096 pixels, C4 always.
template <class T, Lay L>
PxlStatus filterBox(const T* src, int ss, T* dst, int ds, PxlSize roi, PxlSize mask, PxlPoint anchor) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badStep(ss, ds)) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  if (const PxlStatus st = checkMaskAnchor(mask, anchor)) return st;
  constexpr int C = channelsOf(L);
  using A = BoxAcc<T>;
  const BoxScale sc = boxScale<T, L>(mask);
  const int block = mask.height * 2 > 32 ? mask.height * 2 : 32;
  const int blocks = (roi.height + block - 1) / block;
  const bool fork = (L == Lay::C4 || (long long)roi.width * roi.height > 4096) && blocks > 1 && mayFork();
  const int team = fork ? teamSize() : 1;
  const long long cols = (roi.width + (long long)mask.width - 1) * C;
  const long long per = cols + (long long)roi.width * C + ((long long)roi.width * C * sizeof(T) + sizeof(A)) / sizeof(A);
  Scratch<A> scratch(per * team);
  if (!scratch.ok()) return pxlStsAlloc;
  auto run = [&](int b, int thread) {
    A* base = scratch.get() + per * thread;
    BoxRun<T, L> r{src, ss, roi.width, mask, anchor, sc, base, base + cols, reinterpret_cast<T*>(base + cols + roi.width * C)};
    const int y0 = b * block, y1 = y0 + block < roi.height ? y0 + block : roi.height;
    r.start(y0);
    for (int y = y0; y < y1; ++y) {
      r.row(y, r.res, y + 1 == y1);
      storePixels<L>(rowAt(dst, ds, y), r.res, roi.width);
    }
  };
  if (!fork) {
    for (int b = 0; b < blocks; ++b) run(b, 0);
  } else {
#pragma omp parallel for schedule(static) num_threads(team)
    for (int b = 0; b < blocks; ++b) run(b, omp_get_thread_num());
  }
  return pxlStsOk;
}

// In place, on the calling thread: results wait in a ring of anchor.y + 1
// rows until no window needs the source row they replace.
template <class T, Lay L>
PxlStatus filterBox(T* img, int step, PxlSize roi, PxlSize mask, PxlPoint anchor) {
  if (anyNull(img)) return pxlStsNullPtr;
  if (badStep(step)) return pxlStsStep;
  if (badSize(roi)) return pxlStsSize;
  if (const PxlStatus st = checkMaskAnchor(mask, anchor)) return st;
  constexpr int C = channelsOf(L);
  using A = BoxAcc<T>;
  const long long cols = (roi.width + (long long)mask.width - 1) * C;
  Scratch<A> scratch(cols + (long long)roi.width * C);
  if (!scratch.ok()) return pxlStsAlloc;
  BoxRun<T, L> r{img, step, roi.width, mask, anchor, boxScale<T, L>(mask), scratch.get(), scratch.get() + cols, nullptr};
  r.start(0);
  return ringInPlace<L>(img, step, roi, anchor.y,
                        [&](int y, T* out) { r.row(y, out, y + 1 == roi.height); });
}

// Window sums along a row: S starts as the float sum of the first window and
// moves by the integer difference of the samples entering and leaving.
// Sizes and steps are not examined: an empty ROI writes nothing.
template <class S, Lay L>
PxlStatus sumWindowRow(const S* src, int ss, Pxl32f* dst, int ds, PxlSize roi, int maskSize, int anchor) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (maskSize < 1) return pxlStsMaskSize;
  if (anchor < 0 || anchor >= maskSize) return pxlStsAnchor;
  constexpr int C = channelsOf(L);
  for (int y = 0; y < roi.height; ++y) {
    const S* r = rowAt(src, ss, y) - anchor * C;
    Pxl32f* out = rowAt(dst, ds, y);
    for (int c = 0; c < C; ++c) {
      float acc = 0.0f;
      for (int k = 0; k < maskSize; ++k) acc += float(loadSample(r + k * C + c));
      for (int x = 0; x < roi.width; ++x) {
        storeSample(out + x * C + c, acc);
        acc += float(std::int32_t(loadSample(r + (x + maskSize) * C + c)) - std::int32_t(loadSample(r + x * C + c)));
      }
    }
  }
  return pxlStsOk;
}

// Window sums down a column: one float row T, added to (row entering) and
// subtracted from (row leaving) after each output row but the last.
template <class S, Lay L>
PxlStatus sumWindowColumn(const S* src, int ss, Pxl32f* dst, int ds, PxlSize roi, int maskSize, int anchor) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (maskSize < 1) return pxlStsMaskSize;
  if (anchor < 0 || anchor >= maskSize) return pxlStsAnchor;
  if (roi.height < 1 || roi.width < 1) return pxlStsOk;
  const int n = roi.width * channelsOf(L);
  Scratch<float> t(n);
  if (!t.ok()) return pxlStsAlloc;  // not looked at by the reference; -9 is the natural answer
  float* T = t.get();
  for (int i = 0; i < n; ++i) T[i] = 0.0f;
  for (int k = 0; k < maskSize; ++k) {
    const S* r = rowAt(src, ss, k - anchor);
    for (int i = 0; i < n; ++i) T[i] += float(loadSample(r + i));
  }
  for (int y = 0; y < roi.height; ++y) {
    Pxl32f* out = rowAt(dst, ds, y);
    for (int i = 0; i < n; ++i) storeSample(out + i, T[i]);
    if (y + 1 == roi.height) break;
    const S* in = rowAt(src, ss, y + maskSize - anchor);
    const S* gone = rowAt(src, ss, y - anchor);
    for (int i = 0; i < n; ++i) T[i] = T[i] + float(loadSample(in + i)) - float(loadSample(gone + i));
  }
  return pxlStsOk;
}

}  // namespace pxl::filter
