// Pixels as units of movement, and the row kernels that borders, Mirror and
// Transpose share: copy, fill, flip, in-place reverse and exchange.
//
// None of these families computes a value, so a pixel is only its bytes: a
// C4 pixel of 8u moves as one 32-bit unit, a C1 pixel of 32s likewise, and
// the SIMD paths reverse or transpose units rather than samples. That keeps
// the samples of a C3 or C4 pixel in their order for free. AC4 is the one
// layout that cannot move whole pixels, since alpha of the destination must
// stay: its kernels move three samples a pixel.
#pragma once

#include <cstdint>
#include <cstring>
#include <utility>

#include "frame/frame.h"
#include "simd/vec.h"

namespace pxl::move {

// The unit a whole pixel of N bytes moves as. Sizes that are not a register
// lane (3, 6, 12, 16) are plain byte records: the compiler copies them whole.
template <int N>
struct UnitOf {
  struct type {
    unsigned char b[N];
  };
};
template <> struct UnitOf<1> { using type = std::uint8_t; };
template <> struct UnitOf<2> { using type = std::uint16_t; };
template <> struct UnitOf<4> { using type = std::uint32_t; };
template <> struct UnitOf<8> { using type = std::uint64_t; };

template <class T, Lay L>
struct Pixel {
  static constexpr int kCh = channelsOf(L);
  static constexpr int kUsed = processedOf(L);
  static constexpr int kBytes = kCh * int(sizeof(T));
  // All samples move: the pixel is one unit. Not so for AC4.
  static constexpr bool kWhole = kCh == kUsed;
  using Unit = typename UnitOf<kBytes>::type;
  // Whole pixels that fit a register lane take the shuffle paths.
  static constexpr bool kLane = kWhole && (kBytes == 1 || kBytes == 2 || kBytes == 4 || kBytes == 8);

  static T* at(T* row, int x) { return row + std::ptrdiff_t(x) * kCh; }
  static const T* at(const T* row, int x) { return row + std::ptrdiff_t(x) * kCh; }

  // Moved as bytes: a row start need not be aligned to the sample, since
  // steps are counts of bytes that the caller may make odd.
  static void put(T* d, const T* s) { std::memcpy(d, s, std::size_t(kUsed) * sizeof(T)); }
  static void swap(T* a, T* b) {
    T t[kCh];
    put(t, a);
    put(a, b);
    put(b, t);
  }
};

// Rows that a copy may read and write at once (an in-place border whose
// rows lie closer than a row's bytes) must still give the bytes a forward
// copy would; memmove does, and for distinct rows it is memcpy's speed.
template <class T, Lay L>
inline void copyRow(T* d, const T* s, int n) {
  using P = Pixel<T, L>;
  if (n <= 0 || d == s) return;
  if constexpr (P::kWhole) {
    std::memmove(d, s, std::size_t(n) * P::kBytes);
  } else {
    for (int x = 0; x < n; ++x) P::put(P::at(d, x), P::at(s, x));
  }
}

// n pixels of the one pixel px. Whole pixels: one pixel, then the filled
// stretch doubles with each copy, so a long fill is a few large copies.
template <class T, Lay L>
inline void fillRow(T* d, int n, const T* px) {
  using P = Pixel<T, L>;
  if (n <= 0) return;
  if constexpr (P::kWhole) {
    auto* b = reinterpret_cast<unsigned char*>(d);
    const std::size_t total = std::size_t(n) * P::kBytes;
    std::memcpy(b, px, P::kBytes);
    for (std::size_t done = P::kBytes; done < total;) {
      const std::size_t k = done < total - done ? done : total - done;
      std::memcpy(b + done, b, k);
      done += k;
    }
  } else {
    for (int x = 0; x < n; ++x) P::put(P::at(d, x), px);
  }
}

// ---------------------------------------------------------------- reversal

// A register of pixel units reversed, the samples of each pixel kept in
// order: one shuffle.
template <class U>
struct Lanes {
  static constexpr int K = simd::kBytes / int(sizeof(U));
  using V = simd::Vec<U, K>;

  template <std::size_t... I>
  static constexpr V reverseMask(std::index_sequence<I...>) {
    return V{U(K - 1 - int(I))...};
  }
  static V reverse(V v) {
#if !defined(__SSSE3__)
    // Without a byte shuffle instruction a byte permutation falls apart into
    // scalar moves; reversing 16-bit lanes and then the bytes of each lane
    // stays in registers.
    if constexpr (sizeof(U) == 1) {
      using W = typename Lanes<std::uint16_t>::V;
      const W w = Lanes<std::uint16_t>::reverse(reinterpret_cast<W>(v));
      return reinterpret_cast<V>(W((w << 8) | (w >> 8)));
    }
#endif
    constexpr V m = reverseMask(std::make_index_sequence<K>());
    return __builtin_shuffle(v, m);
  }
};

// d[x] = s[n - 1 - x]; d and s are distinct rows.
template <class T, Lay L>
inline void flipRow(T* d, const T* s, int n) {
  using P = Pixel<T, L>;
  int x = 0;
  if constexpr (P::kLane) {
    using R = Lanes<typename P::Unit>;
    for (; x + R::K <= n; x += R::K) {
      auto v = simd::load<typename R::V>(P::at(s, n - x - R::K));
      simd::store(P::at(d, x), R::reverse(v));
    }
  }
  for (; x < n; ++x) P::put(P::at(d, x), P::at(s, n - 1 - x));
}

// a[x] and b[n - 1 - x] exchanged for x from lo to hi - 1, registers from
// both ends. With a == b and [lo, hi) the left half, this reverses a row in
// itself; the blocks then never overlap since hi <= n - hi.
template <class T, Lay L>
inline void exchangeFlipped(T* a, T* b, int n, int lo, int hi) {
  using P = Pixel<T, L>;
  int x = lo;
  if constexpr (P::kLane) {
    using R = Lanes<typename P::Unit>;
    using V = typename R::V;
    for (; x + R::K <= hi; x += R::K) {
      T* pa = P::at(a, x);
      T* pb = P::at(b, n - x - R::K);
      const V va = simd::load<V>(pa), vb = simd::load<V>(pb);
      simd::store(pa, R::reverse(vb));
      simd::store(pb, R::reverse(va));
    }
  }
  for (; x < hi; ++x) P::swap(P::at(a, x), P::at(b, n - 1 - x));
}

template <class T, Lay L>
inline void reverseRow(T* r, int n) {
  exchangeFlipped<T, L>(r, r, n, 0, n / 2);
}

// Rows a and b exchanged pixel by pixel (AC4: three samples a pixel).
template <class T, Lay L>
inline void exchangeRows(T* a, T* b, int n) {
  using P = Pixel<T, L>;
  if constexpr (P::kWhole) {
    using V = simd::Vec<std::uint8_t, simd::kBytes>;
    auto* pa = reinterpret_cast<unsigned char*>(a);
    auto* pb = reinterpret_cast<unsigned char*>(b);
    const std::size_t total = std::size_t(n) * P::kBytes;
    std::size_t i = 0;
    for (; i + sizeof(V) <= total; i += sizeof(V)) {
      const V va = simd::load<V>(pa + i), vb = simd::load<V>(pb + i);
      simd::store(pa + i, vb);
      simd::store(pb + i, va);
    }
    for (; i < total; ++i) std::swap(pa[i], pb[i]);
  } else {
    for (int x = 0; x < n; ++x) P::swap(P::at(a, x), P::at(b, x));
  }
}

}  // namespace pxl::move
