// Filters with the caller's kernel: two-dimensional (Filter, Filter32f), along
// a row (FilterRow, FilterRow32f) and along a column (FilterColumn,
// FilterColumn32f). All are true convolution: the kernel is flipped, so the
// window's top-left sample meets the kernel's last element.
//
// A row filter is a kernel one row high with anchor (xAnchor, 0) and a column
// filter one column wide with anchor (0, yAnchor); one worker serves all
// three. Each band of rows first tries the fast path, which sums a whole row
// of outputs one tap at a time in a scratch row (so every tap is loaded once
// per row and the inner loop runs over contiguous samples); when its test
// declines or its scratch can't be had, the plain per-pixel loop runs. Both
// add each output's products in the same order, from the window's top left,
// so they give the same bytes and the caller never sees which ran.
#pragma once

#include <cstdint>

#include "filter/neighbour.h"
#include "frame/rowdriver.h"

namespace pxl::filter {

enum class Dir : std::uint8_t { Both, Row, Column };

// How an integer kernel's divisor is applied.
struct ScaleRec {
  int mode;  // 0 none, 1 shift, 2 multiply
  int shift;
  int half;
  float factor;
};
inline ScaleRec getScale(int divisor) {
  if (divisor == 1) return {0, 0, 0, 1.0f};
  if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
    int sh = 0;
    while ((1 << sh) != divisor) ++sh;
    return {1, sh, 1 << (sh - 1), 1.0f};
  }
  return {2, 0, 0, 1.0f / float(divisor)};
}

// The 8u result of an integer sum A.
inline Pxl8u scaled8u(std::int32_t a, const ScaleRec& sc) {
  switch (sc.mode) {
    case 0: return saturate<Pxl8u>(a);
    case 1: return a < 1 ? 0 : saturate<Pxl8u>((std::int64_t(a) + sc.half) >> sc.shift);
    default: return fromFloat<Pxl8u>(float(a) * sc.factor);
  }
}

// The kernel's footprint: width, height and anchor, whatever the family.
struct Footprint {
  int kw, kh;
  PxlPoint anchor;
};

// Element type of the accumulation: an integer kernel sums in 32 bits that
// wrap (unsigned arithmetic, taken back as signed), a float kernel in float.
template <class K>
using KAcc = std::conditional_t<std::is_same_v<K, Pxl32s>, std::uint32_t, float>;

template <class K, class S>
inline KAcc<K> product(K k, S s) {
  if constexpr (std::is_same_v<K, Pxl32s>)
    return std::uint32_t(k) * std::uint32_t(std::int32_t(s));
  else
    return k * float(s);
}

template <class K, class D>
inline D store(KAcc<K> a, const ScaleRec& sc) {
  if constexpr (std::is_same_v<K, Pxl32s>)
    return scaled8u(std::int32_t(a), sc);
  else
    return fromFloat<D>(a);
}

// Whether the fast path takes these taps (its multiply-adds must stay exact).
template <class K, class S, Dir Dr>
bool fastPathTakes(const K* kernel, const Footprint& f, int width) {
  const long long n = (long long)f.kw * f.kh;
  if constexpr (std::is_same_v<K, Pxl32s>) {
    if (Dr == Dir::Both ? f.kw < 3 : n < 3) return false;
    if (width < 16) return false;
    // Two-dimensional taps must lie in -32767..32766; row and column taps
    // may use the whole 16-bit range.
    const int lo = Dr == Dir::Both ? -32767 : -32768, hi = Dr == Dir::Both ? 32766 : 32767;
    for (long long i = 0; i < n; ++i)
      if (loadSample(kernel + i) < lo || loadSample(kernel + i) > hi) return false;
    return true;
  } else {
    if (Dr == Dir::Both ? f.kw < 3 : n < 3) return false;
    if constexpr (std::is_same_v<S, Pxl16s>) {
      float sum = 0.0f;
      for (long long i = 0; i < n; ++i) sum += std::fabs(loadSample(kernel + i));
      return sum <= 32767.0f;
    } else if constexpr (std::is_same_v<S, Pxl8u>) {
      return width >= 16;
    } else {
      return width >= 9;
    }
  }
}

// One band of rows [y0, y0 + rows).
template <Dir Dr, class K, class S, class D, Lay L>
void filterBand(const K* kernel, const Footprint& f, const ScaleRec& sc, const S* src, int ss, D* dst, int ds,
                int width, int y0, int rows) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  using A = KAcc<K>;
  const int n = width * C;
  const int last = f.kw * f.kh - 1;
  // Sample (x - i, y - j) relative to the anchor: row y + anchor.y - j,
  // column x + anchor.x - i.
  auto tapRow = [&](int y, int j) { return rowAt(src, ss, y + f.anchor.y - j); };
  Scratch<A> acc(fastPathTakes<K, S, Dr>(kernel, f, width) ? n : 0);
  for (int y = y0; y < y0 + rows; ++y) {
    D* out = rowAt(dst, ds, y);
    if (acc.ok()) {
      A* a = acc.get();
      bool first = true;
      for (int j = f.kh - 1; j >= 0; --j) {
        const S* r = tapRow(y, j);
        for (int i = f.kw - 1; i >= 0; --i) {
          const K kv = loadSample(kernel + (j * f.kw + i));
          const S* p = r + (f.anchor.x - i) * C;
          if (first)
            for (int s = 0; s < n; ++s) a[s] = product(kv, loadSample(p + s));
          else
            for (int s = 0; s < n; ++s) a[s] += product(kv, loadSample(p + s));
          first = false;
        }
      }
      for (int x = 0; x < width; ++x)
        for (int ch = 0; ch < P; ++ch) storeSample(out + x * C + ch, store<K, D>(a[x * C + ch], sc));
    } else {
      for (int x = 0; x < width; ++x)
        for (int ch = 0; ch < P; ++ch) {
          A a = A(0);
          int t = last;
          for (int j = f.kh - 1; j >= 0; --j) {
            const S* p = tapRow(y, j) + (x + f.anchor.x) * C + ch;
            for (int i = f.kw - 1; i >= 0; --i, --t) {
              const A v = product(loadSample(kernel + (j * f.kw + i)), loadSample(p - i * C));
              a = t == last ? v : a + v;
            }
          }
          storeSample(out + x * C + ch, store<K, D>(a, sc));
        }
    }
  }
}

// Checks of the 8u integer and float-kernel families, then shape B over the
// rows: each thread filters its own band with its own scratch.
template <Dir Dr, class K, class S, class D, Lay L>
PxlStatus filterFrame(const S* src, int ss, D* dst, int ds, PxlSize roi, const K* kernel, Footprint f,
                      const int* divisor) {
  if (anyNull(src, dst, kernel)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (f.kw < 1 || f.kh < 1) return pxlStsSize;
  ScaleRec sc{0, 0, 0, 1.0f};
  if (divisor) {
    // The lowest int passes the power-of-two bit test without being one.
    if (*divisor == 0 || *divisor == INT32_MIN) return pxlStsDivisorZero;
    sc = getScale(*divisor);
  }
  constexpr long long P = channelsOf(L) * static_cast<long long>(sizeof(S));
  constexpr long long PD = channelsOf(L) * static_cast<long long>(sizeof(D));
  if (ss < (roi.width + static_cast<long long>(f.kw) - 1) * P || ds < roi.width * PD)
    return pxlStsStep;
  rowsShapeB(roi.height, [&](int y0, int rows) {
    filterBand<Dr, K, S, D, L>(kernel, f, sc, src, ss, dst, ds, roi.width, y0, rows);
  });
  return pxlStsOk;
}

inline Footprint footprint(Dir d, int len, int anchor) {
  return d == Dir::Row ? Footprint{len, 1, {anchor, 0}} : Footprint{1, len, {0, anchor}};
}

// Float-kernel members (all 32f forms, and the ...32f families).
template <class T, Lay L>
PxlStatus filterF(const T* src, int ss, T* dst, int ds, PxlSize roi, const Pxl32f* kernel, PxlSize ks,
                  PxlPoint anchor) {
  return filterFrame<Dir::Both, Pxl32f, T, T, L>(src, ss, dst, ds, roi, kernel, {ks.width, ks.height, anchor},
                                                 nullptr);
}
template <Dir Dr, class T, Lay L>
PxlStatus filter1F(const T* src, int ss, T* dst, int ds, PxlSize roi, const Pxl32f* kernel, int len, int anchor) {
  return filterFrame<Dr, Pxl32f, T, T, L>(src, ss, dst, ds, roi, kernel, footprint(Dr, len, anchor), nullptr);
}

// Integer-kernel members. 8u sums in integers; 16s takes a float copy of the
// kernel scaled by 1/divisor (the taps' rounding is part of its result) and
// runs the float-kernel form, after its own checks of the kernel alone.
template <Dir Dr, class T, Lay L>
PxlStatus filterIntAny(const T* src, int ss, T* dst, int ds, PxlSize roi, const Pxl32s* kernel, Footprint f,
                       int divisor) {
  if constexpr (std::is_same_v<T, Pxl8u>) {
    return filterFrame<Dr, Pxl32s, T, T, L>(src, ss, dst, ds, roi, kernel, f, &divisor);
  } else {
    if (kernel == nullptr) return pxlStsNullPtr;
    if (f.kw < 1 || f.kh < 1) return pxlStsSize;
    if (divisor == 0 || divisor == INT32_MIN) return pxlStsDivisorZero;
    const long long n = (long long)f.kw * f.kh;
    Scratch<Pxl32f> taps(n);
    if (!taps.ok()) return pxlStsAlloc;
    const float inv = 1.0f / float(divisor);
    for (long long i = 0; i < n; ++i) taps.get()[i] = float(loadSample(kernel + i)) * inv;
    return filterFrame<Dr, Pxl32f, T, T, L>(src, ss, dst, ds, roi, taps.get(), f, nullptr);
  }
}
template <class T, Lay L>
PxlStatus filterI(const T* src, int ss, T* dst, int ds, PxlSize roi, const Pxl32s* kernel, PxlSize ks,
                  PxlPoint anchor, int divisor) {
  return filterIntAny<Dir::Both, T, L>(src, ss, dst, ds, roi, kernel, {ks.width, ks.height, anchor}, divisor);
}
template <Dir Dr, class T, Lay L>
PxlStatus filter1I(const T* src, int ss, T* dst, int ds, PxlSize roi, const Pxl32s* kernel, int len, int anchor,
                   int divisor) {
  return filterIntAny<Dr, T, L>(src, ss, dst, ds, roi, kernel, footprint(Dr, len, anchor), divisor);
}

}  // namespace pxl::filter
