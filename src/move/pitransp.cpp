// Transpose: dst(x, y) = src(y, x). The image is walked in square tiles so
// that the rows of both sides that a tile touches stay in cache; inside a
// tile, pixels whose unit is a register lane move in square blocks that are
// transposed in registers, and the rest of the tile pixel by pixel.
#include <algorithm>

#include "move/rearrange.h"

namespace pxl::move {

namespace {

// A K x K block of pixel units, K = 16 bytes / unit, transposed in
// registers: log2(K) rounds of interleaving row i with row i + K/2 give the
// transpose (each round is a perfect shuffle of the row index bits). The
// width is 16 bytes in every build: a 32-byte register would interleave
// within its two halves only and need lane crossings on top.
template <class U>
struct Block {
  static constexpr int K = 16 / int(sizeof(U));
  using V = simd::Vec<U, K>;

  template <std::size_t... I>
  static constexpr V mask(int half, std::index_sequence<I...>) {
    return V{U(half * K / 2 + int(I) / 2 + (I % 2 ? K : 0))...};
  }
  static V lo(V a, V b) {
    constexpr V m = mask(0, std::make_index_sequence<K>());
    return __builtin_shuffle(a, b, m);
  }
  static V hi(V a, V b) {
    constexpr V m = mask(1, std::make_index_sequence<K>());
    return __builtin_shuffle(a, b, m);
  }

  static void transpose(V (&r)[K]) {
    for (int round = 1; round < K; round *= 2) {
      V n[K];
      for (int i = 0; i < K / 2; ++i) {
        n[2 * i] = lo(r[i], r[i + K / 2]);
        n[2 * i + 1] = hi(r[i], r[i + K / 2]);
      }
      for (int i = 0; i < K; ++i) r[i] = n[i];
    }
  }

  // K rows of K units at p, rows step bytes apart.
  template <class T>
  static void load(V (&r)[K], const T* p, int step) {
    for (int i = 0; i < K; ++i) r[i] = simd::load<V>(rowAt(p, step, i));
  }
  template <class T>
  static void store(T* p, int step, const V (&r)[K]) {
    for (int i = 0; i < K; ++i) simd::store(rowAt(p, step, i), r[i]);
  }
};

#if defined(__AVX2__)
// 32-bit units on 32-byte registers: an 8 x 8 block. Crossing the two
// 128-bit halves of a register is the costly shuffle, so the load puts it
// where it is free: register i holds row i in its low half and row i + 4 in
// its high half (columns 0-3 in registers 0-3, columns 4-7 in 4-7). Then a
// 4 x 4 transpose within each half leaves destination row c in register c.
struct Block8x32 {
  static constexpr int K = 8;
  using V = __m256;

  template <class T>
  static void load(V (&r)[K], const T* p, int step) {
    for (int i = 0; i < 4; ++i) {
      const auto* lo = reinterpret_cast<const float*>(rowAt(p, step, i));
      const auto* hi = reinterpret_cast<const float*>(rowAt(p, step, i + 4));
      r[i] = _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(lo)), _mm_loadu_ps(hi), 1);
      r[i + 4] = _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(lo + 4)), _mm_loadu_ps(hi + 4), 1);
    }
  }
  static void transpose4(V* r) {
    const V t0 = _mm256_unpacklo_ps(r[0], r[1]), t1 = _mm256_unpackhi_ps(r[0], r[1]);
    const V t2 = _mm256_unpacklo_ps(r[2], r[3]), t3 = _mm256_unpackhi_ps(r[2], r[3]);
    r[0] = _mm256_shuffle_ps(t0, t2, 0x44), r[1] = _mm256_shuffle_ps(t0, t2, 0xEE);
    r[2] = _mm256_shuffle_ps(t1, t3, 0x44), r[3] = _mm256_shuffle_ps(t1, t3, 0xEE);
  }
  static void transpose(V (&r)[K]) {
    transpose4(r);
    transpose4(r + 4);
  }
  template <class T>
  static void store(T* p, int step, const V (&r)[K]) {
    for (int i = 0; i < K; ++i) _mm256_storeu_ps(reinterpret_cast<float*>(rowAt(p, step, i)), r[i]);
  }
};
template <class U>
using BlockOf = std::conditional_t<sizeof(U) == 4, Block8x32, Block<U>>;
#else
template <class U>
using BlockOf = Block<U>;
#endif

// Pixel units move in blocks of K; a pixel that is not a lane in blocks of 1.
template <class P>
constexpr int blockOf() {
  if constexpr (P::kLane) {
    return BlockOf<typename P::Unit>::K;
  } else {
    return 1;
  }
}

// Source rows [y0, y1) by columns [x0, x1) to destination rows [x0, x1),
// columns [y0, y1).
template <class T, Lay L>
void transposeTile(const T* src, int srcStep, T* dst, int dstStep, int y0, int y1, int x0, int x1) {
  using P = Pixel<T, L>;
  constexpr int K = blockOf<P>();
  // Block-covered rows [y0, yb) and columns [x0, xb); none without blocks.
  const int yb = K > 1 ? y0 + (y1 - y0) / K * K : y0, xb = K > 1 ? x0 + (x1 - x0) / K * K : x0;
  if constexpr (K > 1) {
    using B = BlockOf<typename P::Unit>;
    // Blocks go in squares of one cache line's width, so that the lines a
    // square reads and writes are all used up before it moves on; with
    // steps of a power of two, the rows of a whole tile would fight over a
    // few cache sets.
    constexpr int M = std::max(K, 64 / int(sizeof(typename P::Unit)));
    typename B::V r[K];
    for (int my = y0; my < yb; my += M)
      for (int mx = x0; mx < xb; mx += M)
        for (int y = my; y < std::min(my + M, yb); y += K)
          for (int x = mx; x < std::min(mx + M, xb); x += K) {
            B::load(r, P::at(rowAt(src, srcStep, y), x), srcStep);
            B::transpose(r);
            B::store(P::at(rowAt(dst, dstStep, x), y), dstStep, r);
          }
  }
  // What the blocks leave: the columns right of xb, then the rows below yb;
  // column by column of the source, each to one destination row.
  auto column = [&](int x, int ya, int ye) {
    T* d = rowAt(dst, dstStep, x);
    for (int y = ya; y < ye; ++y) P::put(P::at(d, y), P::at(rowAt(src, srcStep, y), x));
  };
  for (int x = xb; x < x1; ++x) column(x, y0, yb);
  for (int x = x0; x < x1; ++x) column(x, yb, y1);
}

// In place: every pixel (y, x) of rows [y0, y1), columns [x0, x1) with x
// above y exchanged with (x, y). A tile on the diagonal (y0 == x0) holds
// both of each pair; one off it is exchanged with its mirror tile.
template <class T, Lay L>
void exchangeTile(T* img, int step, int y0, int y1, int x0, int x1) {
  using P = Pixel<T, L>;
  constexpr int K = blockOf<P>();
  // Block-covered rows [y0, yb) and columns [x0, xb); none without blocks.
  const int yb = K > 1 ? y0 + (y1 - y0) / K * K : y0, xb = K > 1 ? x0 + (x1 - x0) / K * K : x0;
  auto px = [&](int y, int x) { return P::at(rowAt(img, step, y), x); };
  if constexpr (K > 1) {
    using B = BlockOf<typename P::Unit>;
    typename B::V a[K], b[K];
    for (int y = y0; y < yb; y += K)
      for (int x = std::max(x0, y); x < xb; x += K) {
        B::load(a, px(y, x), step);
        B::transpose(a);
        if (x == y) {
          B::store(px(y, x), step, a);
          continue;
        }
        B::load(b, px(x, y), step);
        B::transpose(b);
        B::store(px(x, y), step, a);
        B::store(px(y, x), step, b);
      }
  }
  for (int y = y0; y < y1; ++y)
    for (int x = std::max(x0, y + 1); x < x1; ++x)
      if (y >= yb || x >= xb) P::swap(px(y, x), px(x, y));
}

}  // namespace

// Steps are never examined. The tile edge is the smallest of the two sides
// and 64 pixels, 32 for pixels of 4 bytes or more: with row steps of a
// power of two the rows of a tile share few cache sets, and a tile of 64
// rows of wide pixels no longer stays in the first-level cache.
template <class T, Lay L>
PxlStatus transpose(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  const int w = roi.width, h = roi.height;
  const int tile = std::min({w, h, sizeof(T) * channelsOf(L) >= 4 ? 32 : 64});
  for (int ty = 0; ty < h; ty += tile)
    for (int tx = 0; tx < w; tx += tile)
      transposeTile<T, L>(src, srcStep, dst, dstStep, ty, std::min(ty + tile, h), tx, std::min(tx + tile, w));
  return pxlStsOk;
}

// In place, square only. Tiles of up to 32: those on the diagonal in
// themselves, the others each with its mirror tile, each pair once.
template <class T, Lay L>
PxlStatus transpose(T* srcDst, int srcDstStep, PxlSize roi) {
  if (anyNull(srcDst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  if (roi.width != roi.height) return pxlStsSize;
  const int n = roi.width;
  const int tile = std::min(n, 32);
  for (int ty = 0; ty < n; ty += tile)
    for (int tx = ty; tx < n; tx += tile)
      exchangeTile<T, L>(srcDst, srcDstStep, ty, std::min(ty + tile, n), tx, std::min(tx + tile, n));
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/pitransp.inc"
