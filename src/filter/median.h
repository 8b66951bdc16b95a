// Median filters: a window's middle value replaces each sample, per channel
// (square, row, column and cross windows, and any odd rectangle with an
// anchor), and the vector median of colour pixels under the L1 distance.
//
// The fixed windows (3, 5, 9, 25 samples, and the crosses of 5 and 9) run a
// selection network over blocks of samples: Batcher's merge exchange sorts N
// values, and the comparators that cannot reach the middle output are
// dropped. Each comparator is a minimum and a maximum over a whole block of
// lanes, so one network serves every type and layout and the compiler turns
// it into vector instructions. A lane is one sample of the row, so an
// interleaved layout needs no unpacking: neighbour k of lane s is the sample
// dx_k * channels further along in row dy_k.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "filter/neighbour.h"
#include "frame/rowdriver.h"

namespace pxl::filter {

struct Cmp {
  std::uint8_t lo, hi;
};

// Merge exchange (Batcher, for any n), keeping only the comparators that the
// middle element depends on.
inline std::vector<Cmp> medianNetwork(int n) {
  std::vector<Cmp> all;
  int t = 0;
  while ((1 << t) < n) ++t;
  for (int p = t > 0 ? 1 << (t - 1) : 0; p > 0; p >>= 1) {
    int q = 1 << (t - 1), r = 0, d = p;
    for (;;) {
      for (int i = 0; i + d < n; ++i)
        if ((i & p) == r) all.push_back({std::uint8_t(i), std::uint8_t(i + d)});
      if (q == p) break;
      d = q - p, q >>= 1, r = p;
    }
  }
  std::vector<bool> need(n, false);
  need[n / 2] = true;
  std::vector<Cmp> kept;
  for (auto it = all.rbegin(); it != all.rend(); ++it)
    if (need[it->lo] || need[it->hi]) {
      need[it->lo] = need[it->hi] = true;
      kept.push_back(*it);
    }
  std::reverse(kept.begin(), kept.end());
  return kept;
}

struct Offset {
  int dx, dy;
};

enum class Shape : std::uint8_t { Square, Horiz, Vert, Cross };

inline std::vector<Offset> windowOf(Shape sh, int r) {
  std::vector<Offset> w;
  for (int dy = -r; dy <= r; ++dy)
    for (int dx = -r; dx <= r; ++dx) {
      const bool in = sh == Shape::Square || (sh == Shape::Horiz && dy == 0) || (sh == Shape::Vert && dx == 0) ||
                      (sh == Shape::Cross && (dx == 0 || dy == 0));
      if (in) w.push_back({dx, dy});
    }
  return w;
}

// The network of a window shape, made once per process.
template <Shape Sh, int R>
struct Net {
  static const Net& get() {
    static const Net n;
    return n;
  }
  std::vector<Offset> win = windowOf(Sh, R);
  std::vector<Cmp> cmp = medianNetwork(int(win.size()));
};

// One output row of a fixed window centred on each pixel.
template <Shape Sh, int R, class T, Lay L>
void networkRow(const T* src, int ss, T* res, int width, int y) {
  constexpr int C = channelsOf(L), B = 64;
  const Net<Sh, R>& net = Net<Sh, R>::get();
  const int N = int(net.win.size()), n = width * C;
  const T* rows[25];
  for (int k = 0; k < N; ++k) rows[k] = rowAt(src, ss, y + net.win[k].dy) + net.win[k].dx * C;
  T v[25][B];
  for (int s0 = 0; s0 < n; s0 += B) {
    const int lanes = n - s0 < B ? n - s0 : B;
    if (lanes < B) std::memset(v, 0, sizeof v);  // the idle lanes of the last block hold defined values
    for (int k = 0; k < N; ++k) {
      if (lanes == B)
        std::memcpy(v[k], rows[k] + s0, sizeof v[k]);
      else
        std::memcpy(v[k], rows[k] + s0, lanes * sizeof(T));
    }
    for (const Cmp& c : net.cmp) {
      T* a = v[c.lo];
      T* b = v[c.hi];
      for (int l = 0; l < B; ++l) {
        const T x = a[l], z = b[l];
        a[l] = z < x ? z : x;
        b[l] = z < x ? x : z;
      }
    }
    std::memcpy(res + s0, v[N / 2], lanes * sizeof(T));
  }
}

template <class T>
inline void sort2(T& a, T& b) {
  const T x = a;
  a = b < x ? b : x;
  b = b < x ? x : b;
}
template <class T>
inline T med3(T a, T b, T c) {
  sort2(a, b);
  b = c < b ? c : b;
  return a < b ? b : a;
}

// 3x3 square: the median of nine is the median of (largest of the three
// column minima, median of the column medians, smallest of the column
// maxima), with each column of three sorted once and shared by the three
// outputs that contain it. Plain loops over contiguous samples.
template <class T, Lay L>
void square3Row(const T* src, int ss, T* res, int width, int y, T* __restrict lo, T* __restrict mid,
                T* __restrict hi) {
  constexpr int C = channelsOf(L);
  const int n = (width + 2) * C;
  const T* r0 = rowAt(src, ss, y - 1) - C;
  const T* r1 = rowAt(src, ss, y) - C;
  const T* r2 = rowAt(src, ss, y + 1) - C;
  for (int s = 0; s < n; ++s) {
    const T a = loadSample(r0 + s), b = loadSample(r1 + s), c = loadSample(r2 + s);
    const T mn = b < a ? b : a, mx = b < a ? a : b;
    lo[s] = c < mn ? c : mn;
    hi[s] = mx < c ? c : mx;
    const T m2 = c < mx ? c : mx;
    mid[s] = m2 < mn ? mn : m2;
  }
  for (int s = 0; s < width * C; ++s) {
    T a = lo[s], b = lo[s + C], c = lo[s + 2 * C];
    const T l = a < b ? (b < c ? c : b) : (a < c ? c : a);
    a = hi[s], b = hi[s + C], c = hi[s + 2 * C];
    const T h = b < a ? (c < b ? c : b) : (c < a ? c : a);
    res[s] = med3(l, med3(mid[s], mid[s + C], mid[s + 2 * C]), h);
  }
}

template <Shape Sh, int R, class T, Lay L>
void networkImage(const T* src, int ss, T* dst, int ds, PxlSize roi, bool fork) {
  rowsShapeA(roi.height, fork, [&](int y) {
    T res[4096];
    const int chunk = 4096 / channelsOf(L);
    for (int x0 = 0; x0 < roi.width; x0 += chunk) {
      const int w = roi.width - x0 < chunk ? roi.width - x0 : chunk;
      if constexpr (Sh == Shape::Square && R == 1) {
        T cols[3][4096 + 8];
        square3Row<T, L>(src + x0 * channelsOf(L), ss, res, w, y, cols[0], cols[1], cols[2]);
      } else {
        networkRow<Sh, R, T, L>(src + x0 * channelsOf(L), ss, res, w, y);
      }
      storePixels<L>(rowAt(dst, ds, y) + x0 * channelsOf(L), res, w);
    }
  });
}

inline PxlStatus checkMedianFrame(const void* src, int ss, const void* dst, int ds, PxlSize roi) {
  if (src == nullptr || dst == nullptr) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (badStep(ss, ds)) return pxlStsStep;
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus medianHoriz(const T* src, int ss, T* dst, int ds, PxlSize roi, int mask) {
  if (const PxlStatus st = checkMedianFrame(src, ss, dst, ds, roi)) return st;
  if (mask == pxlMask3x1)
    networkImage<Shape::Horiz, 1, T, L>(src, ss, dst, ds, roi, false);
  else if (mask == pxlMask5x1)
    networkImage<Shape::Horiz, 2, T, L>(src, ss, dst, ds, roi, false);
  else
    return pxlStsMaskSize;
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus medianVert(const T* src, int ss, T* dst, int ds, PxlSize roi, int mask) {
  if (const PxlStatus st = checkMedianFrame(src, ss, dst, ds, roi)) return st;
  if (mask == pxlMask1x3)
    networkImage<Shape::Vert, 1, T, L>(src, ss, dst, ds, roi, false);
  else if (mask == pxlMask1x5)
    networkImage<Shape::Vert, 2, T, L>(src, ss, dst, ds, roi, false);
  else
    return pxlStsMaskSize;
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus medianCross(const T* src, int ss, T* dst, int ds, PxlSize roi, int mask) {
  if (const PxlStatus st = checkMedianFrame(src, ss, dst, ds, roi)) return st;
  if (mask == pxlMask3x3)
    networkImage<Shape::Cross, 1, T, L>(src, ss, dst, ds, roi, false);
  else if (mask == pxlMask5x5)
    networkImage<Shape::Cross, 2, T, L>(src, ss, dst, ds, roi, false);
  else
    return pxlStsMaskSize;
  return pxlStsOk;
}

// Any other odd window, 8u: a histogram per channel slides along the row
// (Huang): per pixel, each window row gives up the sample of the column
// leaving and takes the one entering, and the median walks from where it was
// until the count at or below it just reaches the rank. O(window height).
template <Lay L>
void medianHistRows(const Pxl8u* src, int ss, Pxl8u* dst, int ds, PxlSize roi, int mw, int mh) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  const int rw = mw / 2, rh = mh / 2, rank = (mw * mh >> 1) + 1;
  for (int y = 0; y < roi.height; ++y) {
    Pxl8u* out = rowAt(dst, ds, y);
    for (int c = 0; c < P; ++c) {
      int hist[256] = {};
      for (int j = -rh; j <= rh; ++j) {
        const Pxl8u* r = rowAt(src, ss, y + j) + c;
        for (int i = -rw; i <= rw; ++i) ++hist[r[i * C]];
      }
      int m = 0, le = hist[0];
      while (le < rank) le += hist[++m];
      out[c] = Pxl8u(m);
      for (int x = 1; x < roi.width; ++x) {
        for (int j = -rh; j <= rh; ++j) {
          const Pxl8u* r = rowAt(src, ss, y + j) + c;
          const int gone = r[(x - rw - 1) * C], in = r[(x + rw) * C];
          --hist[gone], le -= gone <= m;
          ++hist[in], le += in <= m;
        }
        if (le < rank) {
          while (le < rank) le += hist[++m];
        } else {
          while (le - hist[m] >= rank) le -= hist[m--];
        }
        out[x * C + c] = Pxl8u(m);
      }
    }
  }
}

// Any other odd window, 16s: a sorted array of the window's samples, sorted
// at the start of each row and then kept sorted by putting each entering
// sample in the place of the one leaving and moving it into order.
template <Lay L>
PxlStatus medianSortedRows(const Pxl16s* src, int ss, Pxl16s* dst, int ds, PxlSize roi, int mw, int mh) {
  constexpr int C = channelsOf(L), P = processedOf(L);
  const int rw = mw / 2, rh = mh / 2, n = mw * mh;
  Scratch<std::int32_t> buf(n);
  if (!buf.ok()) return pxlStsAlloc;
  std::int32_t* a = buf.get();
  for (int y = 0; y < roi.height; ++y) {
    Pxl16s* out = rowAt(dst, ds, y);
    for (int c = 0; c < P; ++c) {
      int k = 0;
      for (int j = -rh; j <= rh; ++j)
        for (int i = -rw; i <= rw; ++i) a[k++] = loadSample(rowAt(src, ss, y + j) + i * C + c);
      std::sort(a, a + n);
      storeSample(out + c, Pxl16s(a[n >> 1]));
      for (int x = 1; x < roi.width; ++x) {
        for (int j = -rh; j <= rh; ++j) {
          const Pxl16s* r = rowAt(src, ss, y + j) + c;
          const std::int32_t gone = loadSample(r + (x - rw - 1) * C), in = loadSample(r + (x + rw) * C);
          int p = int(std::lower_bound(a, a + n, gone) - a);
          while (p > 0 && a[p - 1] > in) a[p] = a[p - 1], --p;
          while (p + 1 < n && a[p + 1] < in) a[p] = a[p + 1], ++p;
          a[p] = in;
        }
        storeSample(out + x * C + c, Pxl16s(a[n >> 1]));
      }
    }
  }
  return pxlStsOk;
}

// pxliFilterMedian: the window is made centred by moving the source, then
// the mask's shape picks the routine.
template <class T, Lay L>
PxlStatus median(const T* src, int ss, T* dst, int ds, PxlSize roi, PxlSize m, PxlPoint anchor) {
  if (const PxlStatus st = checkMedianFrame(src, ss, dst, ds, roi)) return st;
  if (m.width < 1 || m.height < 1 || !(m.width & 1) || !(m.height & 1)) return pxlStsMaskSize;
  if (const PxlStatus st = checkMaskAnchor(m, anchor)) return st;
  constexpr int C = channelsOf(L);
  src = rowAt(src, ss, m.height / 2 - anchor.y) + (m.width / 2 - anchor.x) * C;
  // Only the four-channel 8u square kernels fork, above 4096 pixels.
  const bool fork = std::is_same_v<T, Pxl8u> && L == Lay::C4 && (long long)roi.width * roi.height > 4096;
  const int code = m.width * 10 + m.height;
  if (m.width <= 5 && m.height <= 5) switch (code) {
      case 33: networkImage<Shape::Square, 1, T, L>(src, ss, dst, ds, roi, fork); return pxlStsOk;
      case 55: networkImage<Shape::Square, 2, T, L>(src, ss, dst, ds, roi, fork); return pxlStsOk;
      case 31: case 51: return medianHoriz<T, L>(src, ss, dst, ds, roi, code);
      case 13: case 15: return medianVert<T, L>(src, ss, dst, ds, roi, code);
      case 11:
        for (int y = 0; y < roi.height; ++y) storePixels<L>(rowAt(dst, ds, y), rowAt(src, ss, y), roi.width);
        return pxlStsOk;
      default: break;
    }
  if constexpr (std::is_same_v<T, Pxl8u>) {
    medianHistRows<L>(src, ss, dst, ds, roi, m.width, m.height);
    return pxlStsOk;
  } else {
    return medianSortedRows<L>(src, ss, dst, ds, roi, m.width, m.height);
  }
}

// Vector median: the window pixel whose L1 distances (over the three colour
// channels) to all other window pixels add up least, ties to the first in
// column order (left column first, top to bottom). Totals are exact integers
// in 8u and 16s; in 32f each distance adds its channels in order and each
// total adds its distances in column order, in single precision.
template <class T, Lay L>
PxlStatus medianColor(const T* src, int ss, T* dst, int ds, PxlSize roi, int mask) {
  if (const PxlStatus st = checkMedianFrame(src, ss, dst, ds, roi)) return st;
  if (mask != pxlMask3x3 && mask != pxlMask5x5) return pxlStsMaskSize;
  constexpr int C = channelsOf(L);
  using V = std::conditional_t<std::is_same_v<T, Pxl32f>, float, std::int32_t>;
  const int r = mask == pxlMask3x3 ? 1 : 2, side = 2 * r + 1, K = side * side;
  for (int y = 0; y < roi.height; ++y) {
    T* out = rowAt(dst, ds, y);
    for (int x = 0; x < roi.width; ++x) {
      V p[25][3];
      const T* at[25];
      int k = 0;
      for (int i = -r; i <= r; ++i)
        for (int j = -r; j <= r; ++j, ++k) {
          at[k] = rowAt(src, ss, y + j) + (x + i) * C;
          for (int c = 0; c < 3; ++c) p[k][c] = V(loadSample(at[k] + c));
        }
      V d[25][25];
      for (int a = 0; a < K; ++a) {
        d[a][a] = V(0);
        for (int b = a + 1; b < K; ++b) {
          V s = V(0);
          for (int c = 0; c < 3; ++c) s += p[a][c] < p[b][c] ? p[b][c] - p[a][c] : p[a][c] - p[b][c];
          d[a][b] = d[b][a] = s;
        }
      }
      int best = 0;
      V bestTotal = V(0);
      for (int a = 0; a < K; ++a) {
        V t = V(0);
        for (int b = 0; b < K; ++b)
          if (b != a) t += d[a][b];
        if (a == 0 || t < bestTotal) best = a, bestTotal = t;
      }
      for (int c = 0; c < 3; ++c) storeSample(out + x * C + c, loadSample(at[best] + c));
    }
  }
  return pxlStsOk;
}

}  // namespace pxl::filter
