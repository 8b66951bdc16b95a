// pxliLUT, pxliLUT_Linear, pxliLUT_Cubic for 8u, 16s, 16u and 32f in C1, C3,
// C4 and AC4, out of place and in place, and pxliLUTPalette. Serial: each
// call builds its own maps on the calling thread.
#include <memory>

#include "point/lut.h"

namespace pxl::point {
namespace {

// A call's channel descriptions, whatever form the arguments took.
template <class V, int P>
struct Channels {
  Levels<V> c[P > 0 ? P : 1];
};

// C1: pointers, then size and steps, then the level count.
template <class T, class V>
inline PxlStatus checkLut(const T* src, int srcStep, const T* dst, int dstStep, PxlSize roi, const V* values,
                          const V* levels, int nLevels, Channels<V, 1>& out) {
  if (anyNull(src, dst, values, levels)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, srcStep, dstStep)) return st;
  if (nLevels < 2) return pxlStsLUTLevels;
  out.c[0] = {values, levels, nLevels};
  return pxlStsOk;
}

// C3, C4, AC4: pointers, then each channel's description, and only then
// size and steps; so a bad count is reported before a bad size here.
template <class T, class V, int P>
inline PxlStatus checkLut(const T* src, int srcStep, const T* dst, int dstStep, PxlSize roi,
                          const V* const* values, const V* const* levels, const Pxl32s* nLevels,
                          Channels<V, P>& out) {
  if (anyNull(src, dst, values, levels, nLevels)) return pxlStsNullPtr;
  for (int c = 0; c < P; ++c) {
    if (anyNull(values[c], levels[c])) return pxlStsNullPtr;
    if (nLevels[c] < 2) return pxlStsLUTLevels;
    out.c[c] = {values[c], levels[c], nLevels[c]};
  }
  return checkShape<Order::NST>(roi, srcStep, dstStep);
}

// Every processed sample of the ROI through its channel's rule f(c, s).
template <class T, Lay L, class F>
inline void eachSample(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, F&& f) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < P; ++c) storeSample(d + (x * C + c), f(c, loadSample(s + (x * C + c))));
  }
}

// Whether the 16-bit step rule searches instead of building maps.
template <Lay L>
inline bool searchIsCheaper(PxlSize roi) {
  const std::int64_t pixels = std::int64_t(roi.width) * roi.height;
  if constexpr (L == Lay::C1) return pixels <= 6400;
  if constexpr (L == Lay::C3) return pixels <= 4096;
  return false;
}

template <LutKind K, class T, Lay L>
PxlStatus runInteger(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi,
                     const Channels<Pxl32s, processedOf(L)>& ch) {
  constexpr int P = processedOf(L), C = channelsOf(L);
  if constexpr (std::is_same_v<T, Pxl8u>) {
    // 256 bytes a channel on the stack: 8u never allocates.
    Pxl8u maps[P][256];
    const Pxl8u* m[4];
    for (int c = 0; c < P; ++c) {
      MapBuilder<Pxl8u>(maps[c], ch.c[c]).template build<K>();
      m[c] = maps[c];
    }
    if constexpr (L == Lay::AC4) {
      eachSample<T, L>(src, srcStep, dst, dstStep, roi, [&](int c, Pxl8u s) { return m[c][s]; });
    } else {
      for (int y = 0; y < roi.height; ++y)
        lutRow8u<C>(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), roi.width * C, m);
    }
    return pxlStsOk;
  } else {
    if constexpr (K == LutKind::Step) {
      if (searchIsCheaper<L>(roi)) {
        eachSample<T, L>(src, srcStep, dst, dstStep, roi, [&](int c, T s) { return stepSearch(s, ch.c[c]); });
        return pxlStsOk;
      }
    }
    // One allocation for every channel's map, before the first row.
    std::unique_ptr<T[]> maps(new (std::nothrow) T[std::size_t(Range<T>::size) * P]);
    if (!maps) return pxlStsAlloc;
    for (int c = 0; c < P; ++c) MapBuilder<T>(maps.get() + Range<T>::size * c, ch.c[c]).template build<K>();
    const T* base = maps.get();
    eachSample<T, L>(src, srcStep, dst, dstStep, roi,
                     [&](int c, T s) { return base[Range<T>::size * c + (std::int64_t(s) - Range<T>::lo)]; });
    return pxlStsOk;
  }
}

template <LutKind K, Lay L>
PxlStatus run32f(const Pxl32f* src, int srcStep, Pxl32f* dst, int dstStep, PxlSize roi,
                 const Channels<Pxl32f, processedOf(L)>& ch) {
  constexpr int P = processedOf(L);
  // With fewer than four levels a channel's cubic is its line.
  Prepared32f prep[P];
  std::size_t slopes = 0, cubics = 0;
  for (int c = 0; c < P; ++c) {
    LutKind kind = K;
    if (kind == LutKind::Cubic && ch.c[c].n < 4) kind = LutKind::Linear;
    prep[c] = {ch.c[c], kind, nullptr, nullptr};
    if (kind == LutKind::Linear) slopes += std::size_t(ch.c[c].n - 1);
    if (kind == LutKind::Cubic) cubics += std::size_t(ch.c[c].n - 1);
  }
  std::unique_ptr<double[]> slopeBuf;
  std::unique_ptr<Cubic[]> cubicBuf;
  if (slopes > 0) {
    slopeBuf.reset(new (std::nothrow) double[slopes]);
    if (!slopeBuf) return pxlStsAlloc;
  }
  if (cubics > 0) {
    cubicBuf.reset(new (std::nothrow) Cubic[cubics]);
    if (!cubicBuf) return pxlStsAlloc;
  }
  double* sp = slopeBuf.get();
  Cubic* cp = cubicBuf.get();
  for (int c = 0; c < P; ++c) {
    const Levels<Pxl32f>& d = ch.c[c];
    if (prep[c].kind == LutKind::Step) continue;
    double* slope = sp;
    Cubic* cubic = cp;
    if (prep[c].kind == LutKind::Linear) {
      prep[c].slope = sp;
      sp += d.n - 1;
    } else {
      prep[c].cubic = cp;
      cp += d.n - 1;
    }
    for (int k = 0; k + 1 < d.n; ++k) {
      // Differences in float, the quotient in double; a zero-length interval
      // is never selected by the scan except by a NaN, which stays NaN.
      const float dl = d.levels[k + 1] - d.levels[k];
      const double line = dl != 0.0f ? double(d.values[k + 1] - d.values[k]) / double(dl) : 0.0;
      if (prep[c].kind == LutKind::Linear) {
        slope[k] = line;
      } else if (!(d.levels[k] < d.levels[k + 1]) || !cubicFor(d.values, d.levels, k, d.n, cubic[k])) {
        // Skipped intervals, and those whose four points repeat a level,
        // keep the interval's line through its own two ends.
        cubic[k] = {double(d.levels[k]), double(d.values[k]), 0.0, 0.0, line};
      }
    }
  }
  eachSample<Pxl32f, L>(src, srcStep, dst, dstStep, roi, [&](int c, float s) { return prep[c](s); });
  return pxlStsOk;
}

}  // namespace

template <LutKind K, class T, Lay L, class VP, class NP>
PxlStatus lut(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, VP values, VP levels, NP nLevels) {
  using V = LevelOf<T>;
  Channels<V, processedOf(L)> ch;
  if (PxlStatus st = checkLut(src, srcStep, dst, dstStep, roi, values, levels, nLevels, ch)) return st;
  if constexpr (std::is_same_v<T, Pxl32f>)
    return run32f<K, L>(src, srcStep, dst, dstStep, roi, ch);
  else
    return runInteger<K, T, L>(src, srcStep, dst, dstStep, roi, ch);
}

// In place is the out-of-place form on one image; the 8u C1 and C4 row
// kernel reads each 8 bytes before writing them, so it is safe there too.
template <LutKind K, class T, Lay L, class VP, class NP>
PxlStatus lut(T* srcDst, int srcDstStep, PxlSize roi, VP values, VP levels, NP nLevels) {
  return lut<K, T, L>(static_cast<const T*>(srcDst), srcDstStep, srcDst, srcDstStep, roi, values, levels, nLevels);
}

// table[s & mask] for every sample; table entries are whole destination
// pixels of B bytes (D is the destination sample type, B / sizeof(D) samples).
template <class S, class D, int B>
PxlStatus lutPalette(const S* src, int srcStep, D* dst, int dstStep, PxlSize roi, const D* table, int nBitSize) {
  if (anyNull(src, dst, table)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, srcStep, dstStep)) return st;
  if (nBitSize < 1 || nBitSize > int(sizeof(S) * 8)) return pxlStsPaletteBits;
  constexpr int N = B / int(sizeof(D));
  const unsigned mask = (1u << nBitSize) - 1u;
  for (int y = 0; y < roi.height; ++y) {
    const S* s = rowAt(src, srcStep, y);
    D* d = rowAt(dst, dstStep, y);
    for (int x = 0; x < roi.width; ++x) {
      const D* e = table + std::size_t(loadSample(s + x) & mask) * N;
      for (int j = 0; j < N; ++j) storeSample(d + (x * N + j), loadSample(e + j));
    }
  }
  return pxlStsOk;
}

}  // namespace pxl::point

#include "shims/point/pilut.inc"
