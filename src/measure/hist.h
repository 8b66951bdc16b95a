// Histograms over levels (Range) and over evenly spaced integer levels
// (Even). Four counting strategies (brute loop, forward search, binary
// search, full table) give the same counts on ascending levels; they differ
// on levels out of order, so the choice among them is fixed by the crossover
// tables below and not by taste.
#pragma once

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "measure/reduce.h"
#include "pxls.h"

namespace pxl::measure {

template <class T>
using LevelOf = std::conditional_t<std::is_same_v<T, Pxl32f>, Pxl32f, Pxl32s>;

enum class Strategy { Brute, Forward, Binary, Table };

struct Crossover {
  const int* st;
  int nst;
  const int* lt;
};

template <Lay L>
Crossover crossover(bool ascending) {
  static constexpr int kMax = 2147483647;
  static const int c1a_s[] = {12544, 16384, 20736, 25600, 30976, 43264, 50176, 65536, 123904};
  static const int c1a_l[] = {kMax, 214, 74, 38, 34, 22, 18, 14, 3, 2};
  static const int c1n_s[] = {1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 30976, 36864, 50176, 82944};
  static const int c1n_l[] = {kMax, 442, 202, 114, 74, 54, 42, 30, 22, 18, 14, 10, 6};
  static const int c3a_s[] = {12544, 16384, 20736, 25600, 30976, 36864, 43264, 50176, 73984, 135424};
  static const int c3a_l[] = {kMax, 262, 126, 62, 46, 34, 30, 22, 18, 14, 10};
  static const int c3n_s[] = {1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 25600, 36864, 57600, 92416};
  static const int c3n_l[] = {kMax, 406, 194, 110, 74, 54, 42, 34, 26, 22, 18, 14, 10};
  static const int c4a_s[] = {12544, 16384, 20736, 25600, 30976, 36864, 43264, 50176, 173056};
  static const int c4a_l[] = {kMax, 190, 102, 62, 46, 38, 34, 22, 18, 14};
  static const int c4n_s[] = {1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 25600, 36864, 57600, 160000};
  static const int c4n_l[] = {kMax, 358, 162, 98, 66, 50, 38, 30, 26, 22, 18, 14, 10};
#define PXL_X(s, l) Crossover{s, int(sizeof(s) / sizeof(int)), l}
  if constexpr (L == Lay::C1) return ascending ? PXL_X(c1a_s, c1a_l) : PXL_X(c1n_s, c1n_l);
  if constexpr (L == Lay::C4) return ascending ? PXL_X(c4a_s, c4a_l) : PXL_X(c4n_s, c4n_l);
  return ascending ? PXL_X(c3a_s, c3a_l) : PXL_X(c3n_s, c3n_l);
#undef PXL_X
}

// The strategy of a 16-bit histogram for this call.
template <Lay L>
Strategy chooseStrategy16(std::int64_t count, const int* nLevels, bool ascending) {
  constexpr int P = processedOf(L);
  int lv = nLevels[0];
  if constexpr (P == 3) lv = int((std::int64_t(nLevels[0]) + nLevels[1] + nLevels[2]) * 0x5555 >> 16);
  if constexpr (P == 4) lv = (nLevels[0] + nLevels[1] + nLevels[2] + nLevels[3]) >> 2;
  const Crossover x = crossover<L>(ascending);
  int index = 0;
  if (count >= x.st[0]) {
    index = x.nst;
    for (int k = 1; k < x.nst; ++k)
      if (x.st[k] > count) {
        index = k;
        break;
      }
  }
  if (x.lt[index] < lv) return Strategy::Table;
  if (!ascending) return Strategy::Brute;
  const int limit = L == Lay::C1 ? 27 : L == Lay::C4 ? 15 : 26;
  return lv >= limit ? Strategy::Binary : Strategy::Forward;
}

template <class V, class Lv>
inline void countBrute(V x, const Lv* lv, int n, Pxl32s* h) {
  for (int k = 0; k + 1 < n; ++k)
    if (loadSample(lv + k) <= x && x < loadSample(lv + (k + 1))) storeSample(h + k, loadSample(h + k) + 1);
}
template <class V, class Lv>
inline void countForward(V x, const Lv* lv, int n, Pxl32s* h) {
  if (!(loadSample(lv) <= x && x < loadSample(lv + (n - 1)))) return;
  int k = 0;
  while (!(x < loadSample(lv + (k + 1)))) ++k;
  storeSample(h + k, loadSample(h + k) + 1);
}
template <class V, class Lv>
inline void countBinary(V x, const Lv* lv, int n, Pxl32s* h) {
  if (!(loadSample(lv) <= x && x < loadSample(lv + (n - 1)))) return;
  int span = n - 1, base = 0;
  while (span > 1) {
    const int half = span >> 1;
    if (x < lv[base + half]) {
      span = half;
    } else {
      base += half;
      span -= half;
    }
  }
  ++h[base];
}

// Bins from a table of every value: levels clamped to the table's range,
// an empty or reversed bin sums nothing.
inline void recalc(const Pxl32s* table, int lo, int hi, const Pxl32s* lv, int n, Pxl32s* h) {
  for (int k = 0; k + 1 < n; ++k) {
    const int a = std::min(std::max(int(loadSample(lv + k)), lo), hi), b = std::min(std::max(int(loadSample(lv + (k + 1))), lo), hi);
    std::uint32_t s = 0;
    for (int v = a; v < b; ++v) s += std::uint32_t(table[v - lo]);
    storeSample(h + k, Pxl32s(s));
  }
}

template <class T, Lay L>
PxlStatus countHistogram(const T* src, int step, PxlSize roi, Pxl32s* const* hist, const LevelOf<T>* const* levels,
                         const int* nLevels) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  for (int c = 0; c < P; ++c) std::memset(hist[c], 0, sizeof(Pxl32s) * (nLevels[c] - 1));
  bool ascending = true;
  for (int c = 0; c < P; ++c)
    for (int i = 0; i + 1 < nLevels[c]; ++i) ascending &= loadSample(levels[c] + i) < loadSample(levels[c] + (i + 1));
  Strategy s;
  if constexpr (std::is_same_v<T, Pxl8u>) {
    s = Strategy::Table;
  } else if constexpr (std::is_same_v<T, Pxl32f>) {
    const int lv = P == 1 ? nLevels[0]
                   : P == 3 ? int((std::int64_t(nLevels[0]) + nLevels[1] + nLevels[2]) * 0x5555 >> 16)
                            : (nLevels[0] + nLevels[1] + nLevels[2] + nLevels[3]) >> 2;
    const int limit = L == Lay::C1 ? 74 : L == Lay::C4 ? 62 : 56;
    s = !ascending ? Strategy::Brute : lv > limit ? Strategy::Binary : Strategy::Forward;
  } else {
    s = chooseStrategy16<L>(std::int64_t(roi.width) * roi.height, nLevels, ascending);
  }
  if (s == Strategy::Table) {
    if constexpr (!std::is_same_v<T, Pxl32f>) {
      constexpr int kSize = std::is_same_v<T, Pxl8u> ? 256 : 65536;
      constexpr int kLo = std::is_same_v<T, Pxl16s> ? -32768 : 0;
      Pxl32s small[4 * 256];
      Pxl32s* table = small;
      if constexpr (kSize > 256) {
        table = pxlsMalloc_32s(kSize * P);
        if (table == nullptr) return pxlStsAlloc;
      }
      std::memset(table, 0, sizeof(Pxl32s) * kSize * P);
      if constexpr (C == 1 && kSize == 256) {
        // Four copies of the table, so that neighbouring equal samples do
        // not wait on each other's increment; added at the end.
        Pxl32s quad[4][256] = {};
        for (int y = 0; y < roi.height; ++y) {
          const Pxl8u* p = rowAt(src, step, y);
          int x = 0;
          for (; x + 4 <= roi.width; x += 4) {
            ++quad[0][p[x]];
            ++quad[1][p[x + 1]];
            ++quad[2][p[x + 2]];
            ++quad[3][p[x + 3]];
          }
          for (; x < roi.width; ++x) ++quad[0][p[x]];
        }
        for (int v = 0; v < 256; ++v) table[v] = quad[0][v] + quad[1][v] + quad[2][v] + quad[3][v];
      } else {
        for (int y = 0; y < roi.height; ++y) {
          const T* p = rowAt(src, step, y);
          for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < P; ++c) ++table[c * kSize + int(loadSample(p + x * C + c)) - kLo];
        }
      }
      for (int c = 0; c < P; ++c) recalc(table + c * kSize, kLo, kLo + kSize, levels[c], nLevels[c], hist[c]);
      if constexpr (kSize > 256) pxlsFree(table);
    }
    return pxlStsOk;
  }
  for (int y = 0; y < roi.height; ++y) {
    const T* p = rowAt(src, step, y);
    for (int x = roi.width - 1; x >= 0; --x)
      for (int c = 0; c < P; ++c) {
        const T v = loadSample(p + x * C + c);
        if (s == Strategy::Brute)
          countBrute(v, levels[c], nLevels[c], hist[c]);
        else if (s == Strategy::Forward)
          countForward(v, levels[c], nLevels[c], hist[c]);
        else
          countBinary(v, levels[c], nLevels[c], hist[c]);
      }
  }
  return pxlStsOk;
}

// Multi-channel check order: the arrays, each channel's pointers and level
// count, and only then the size and step.
template <class T, Lay L>
PxlStatus checkHistMulti(const T* src, const void* hist, const void* levels, const int* nLevels, int step,
                         PxlSize roi, Pxl32s* const* h, const void* const* lv) {
  if (anyNull(src, hist, levels, nLevels)) return pxlStsNullPtr;
  for (int c = 0; c < processedOf(L); ++c) {
    if (h[c] == nullptr || lv[c] == nullptr) return pxlStsNullPtr;
    if (nLevels[c] < 2) return pxlStsHistoLevels;
  }
  if (badSize(roi)) return pxlStsSize;
  if (step < 1) return pxlStsStep;
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus histogramRange(const T* src, int step, PxlSize roi, Pxl32s* const* hist, const LevelOf<T>* const* levels,
                         const int* nLevels) {
  const void* lv[4] = {};
  if (levels)
    for (int c = 0; c < processedOf(L); ++c) lv[c] = levels[c];
  if (PxlStatus st = checkHistMulti<T, L>(src, hist, levels, nLevels, step, roi, hist, lv)) return st;
  return countHistogram<T, L>(src, step, roi, hist, levels, nLevels);
}

template <class T>
PxlStatus histogramRangeC1(const T* src, int step, PxlSize roi, Pxl32s* hist, const LevelOf<T>* levels, int n) {
  if (anyNull(src, hist, levels)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (step < 1) return pxlStsStep;
  if (n < 2) return pxlStsHistoLevels;
  return countHistogram<T, Lay::C1>(src, step, roi, &hist, &levels, &n);
}

// Even levels: the remainder of (upper - lower) / (n - 1) widens the first
// bins by one each, so the last level lands exactly on upper.
inline int evenLevels(Pxl32s* lv, int n, Pxl32s lower, Pxl32s upper) {
  const int bins = n - 1, d = upper - lower, q = d / bins;
  int r = d % bins;
  storeSample(lv, lower);
  for (int i = 0; i < bins; ++i) {
    int add = q;
    if (q >= 0 && r > 0) {
      ++add;
      --r;
    } else if (q < 0 && r < 0) {
      --add;
      ++r;
    }
    storeSample(lv + (i + 1), loadSample(lv + i) + add);
  }
  return d % bins;
}

// 16-bit Even with equal bins everywhere counts directly by division (in
// float with truncation, exact for 16-bit samples); otherwise Range counts
// over the computed levels.
template <class T, Lay L>
PxlStatus histogramEvenCount(const T* src, int step, PxlSize roi, Pxl32s* const* hist, Pxl32s* const* levels,
                             const int* nLevels, const Pxl32s* lower, const Pxl32s* upper) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  bool equal = true;
  for (int c = 0; c < P; ++c) equal &= evenLevels(levels[c], nLevels[c], lower[c], upper[c]) == 0;
  if (std::is_same_v<T, Pxl8u> || !equal) {
    const Pxl32s* lv[4];
    for (int c = 0; c < P; ++c) lv[c] = levels[c];
    return countHistogram<T, L>(src, step, roi, hist, lv, nLevels);
  }
  for (int c = 0; c < P; ++c) std::memset(hist[c], 0, sizeof(Pxl32s) * (nLevels[c] - 1));
  for (int y = 0; y < roi.height; ++y) {
    const T* p = rowAt(src, step, y);
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < P; ++c) {
        const int v = loadSample(p + x * C + c);
        if (lower[c] <= v && v < upper[c]) {
          const float q = float((upper[c] - lower[c]) / (nLevels[c] - 1));
          ++hist[c][int(float(v - lower[c]) / q)];
        }
      }
  }
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus histogramEven(const T* src, int step, PxlSize roi, Pxl32s* const* hist, Pxl32s* const* levels,
                        const int* nLevels, const Pxl32s* lower, const Pxl32s* upper) {
  if (anyNull(lower, upper)) return pxlStsNullPtr;
  const void* lv[4] = {};
  if (levels)
    for (int c = 0; c < processedOf(L); ++c) lv[c] = levels[c];
  if (PxlStatus st = checkHistMulti<T, L>(src, hist, levels, nLevels, step, roi, hist, lv)) return st;
  return histogramEvenCount<T, L>(src, step, roi, hist, levels, nLevels, lower, upper);
}

template <class T>
PxlStatus histogramEvenC1(const T* src, int step, PxlSize roi, Pxl32s* hist, Pxl32s* levels, int n, Pxl32s lower,
                          Pxl32s upper) {
  if (anyNull(src, hist, levels)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (step < 1) return pxlStsStep;
  if (n < 2) return pxlStsHistoLevels;
  return histogramEvenCount<T, Lay::C1>(src, step, roi, &hist, &levels, &n, &lower, &upper);
}

}  // namespace pxl::measure
