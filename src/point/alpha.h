// Alpha composition: the six operators on premultiplied colours, one product
// rule, and one lane walk for every layout.
//
// Every product of two samples is a division by the full alpha in integers:
// t = a * b, mul(a, b) = (t + 1 + (t >> bits)) >> bits, so that mul(a, full)
// is a exactly. A colour that is not premultiplied is first multiplied by its
// alpha; then each operator is one formula on premultiplied colours p1, p2
// and alphas a1, a2, evaluated in the order of products that the rounding
// makes part of the result. Alpha lanes (the fourth sample of AC4, the alpha
// plane of AP4) enter as p = a, so that they carry the alpha result.
#pragma once

#include <cstdint>
#include <type_traits>

#include "frame/frame.h"
#include "simd/vec.h"

namespace pxl::point {

enum class AlphaLay : std::uint8_t { C1, C3, C4, AC4, AC1, AP4 };

// 8u products are formed in 16-bit lanes, 16u products in 32-bit lanes.
template <class T>
struct AlphaMath;
template <>
struct AlphaMath<Pxl8u> {
  using W = std::uint16_t;
  static constexpr int kBits = 8;
  static constexpr W kFull = 255;
};
template <>
struct AlphaMath<Pxl16u> {
  using W = std::uint32_t;
  static constexpr int kBits = 16;
  static constexpr W kFull = 65535;
};

// (t + 1 + (t >> 8)) >> 8 is ((t + 1) * 257) >> 16 for every t up to 255 * 255:
// the high half of one unsigned 16-bit product, which the 8u blocks use in
// place of two shifts and two additions.
constexpr bool productRuleIsOneHighProduct() {
  for (unsigned t = 0; t <= 255u * 255u; ++t)
    if (((t + 1 + (t >> 8)) >> 8) != (((t + 1) * 257) >> 16)) return false;
  return true;
}
static_assert(productRuleIsOneHighProduct(), "8u products through the high half of t + 1 times 257");

// High halves of unsigned 16-bit products, on one 16-, 32- or 64-byte register.
template <class V>
inline V mulHighU16(V a, V b) {
  static_assert(std::is_same_v<simd::Elem<V>, std::uint16_t>, "16-bit lanes");
  if constexpr (sizeof(V) == 16) {
    return (V)_mm_mulhi_epu16((__m128i)a, (__m128i)b);
  } else if constexpr (sizeof(V) == 32) {
#if defined(__AVX2__)
    return (V)_mm256_mulhi_epu16((__m256i)a, (__m256i)b);
#endif
  } else {
#if defined(PXL_SIMD_512)
    static_assert(sizeof(V) == 64, "one register");
    return (V)_mm512_mulhi_epu16((__m512i)a, (__m512i)b);
#endif
  }
}

template <class T, class V>
inline V mulA(V a, V b) {
  constexpr int bits = AlphaMath<T>::kBits;
  if constexpr (std::is_same_v<T, Pxl8u> && simd::kIsVector<V>) {
    return mulHighU16(V(a * b + 1), simd::splat<V>(257));
  } else {
    const V t = V(a * b);
    return V((t + simd::splat<V>(1) + (t >> bits)) >> bits);
  }
}

// Sums of two products stay below twice the full alpha, far from the sign
// bit, so the minimum is taken on signed lanes: the base instruction set has
// signed 16-bit minima and signed compares, but no unsigned ones. The 8u
// blocks need none: they narrow their 16-bit lanes with the saturating pack,
// which clamps every sum (at most 510) to 255 by itself.
template <class T, class V>
inline V saturated(V x) {
  if constexpr (std::is_same_v<T, Pxl8u> && simd::kIsVector<V>) {
    return x;
  } else if constexpr (simd::kIsVector<V>) {
    using S = std::make_signed_t<simd::Elem<V>>;
    using SV = simd::Vec<S, int(sizeof(V) / sizeof(S))>;
    const SV s = reinterpret_cast<const SV&>(x);
    const SV full = simd::splat<SV>(S(AlphaMath<T>::kFull));
    const SV r = s < full ? s : full;
    return reinterpret_cast<const V&>(r);
  } else {
    return x < AlphaMath<T>::kFull ? x : V(AlphaMath<T>::kFull);
  }
}

enum AlphaOperator { kOver, kIn, kOut, kAtop, kXor, kPlus };

// The operator on premultiplied colours. AlphaOnly is the alpha result of
// an image of alphas alone (AC1), where atop gives a2 itself rather than the
// rounded sum of its two products.
template <class T, int O, bool AlphaOnly, class V>
inline V compose(V p1, V p2, V a1, V a2) {
  const V full = simd::splat<V>(AlphaMath<T>::kFull);
  if constexpr (O == kOver) {
    return saturated<T>(V(p1 + mulA<T>(V(full - a1), p2)));
  } else if constexpr (O == kIn) {
    return mulA<T>(p1, a2);
  } else if constexpr (O == kOut) {
    return mulA<T>(p1, V(full - a2));
  } else if constexpr (O == kAtop) {
    if constexpr (AlphaOnly) return a2;
    else return saturated<T>(V(mulA<T>(p1, a2) + mulA<T>(V(full - a1), p2)));
  } else if constexpr (O == kXor) {
    return saturated<T>(V(mulA<T>(V(full - a2), p1) + mulA<T>(V(full - a1), p2)));
  } else {
    return saturated<T>(V(p1 + p2));
  }
}

// Where a lane finds its alpha: a constant, the fourth sample of its pixel
// (AC4), a separate alpha row (AP4 colour planes) or the lane itself (alpha
// samples).
enum class AlphaFrom : std::uint8_t { Constant, Pixel, Plane, Self };
// Which lanes are alpha lanes: none, every fourth (AC4), all.
enum class AlphaLanes : std::uint8_t { None, Fourth, All };

// Both as compile-time constants, handed to the rules with every call.
template <AlphaFrom F, AlphaLanes K>
struct LaneKind {
  static constexpr AlphaFrom from = F;
  static constexpr AlphaLanes lanes = K;
};

// One operand of the walk: its samples and where their alphas are.
template <class T>
struct Operand {
  const T* x;
  const T* alphaRow;  // Plane only
  T alpha;            // Constant only
};

// The full alpha in the alpha lanes of a register, 0 in the others.
template <class V, AlphaLanes K, class T>
inline V fullAtAlphaLanes() {
  V f{};
  for (int k = 0; k < simd::kLaneCount<V>; ++k)
    f[k] = (K == AlphaLanes::All || (K == AlphaLanes::Fourth && k % 4 == 3)) ? AlphaMath<T>::kFull : 0;
  return f;
}

// The alphas of one register of wide lanes x that starts on a pixel (for
// Plane, planeAlpha holds the alpha row's matching lanes). The fourth lane of
// each pixel is broadcast within 128-bit halves, which never split a pixel.
template <class T, AlphaFrom F, class V>
inline V alphasOf(const Operand<T>& o, V x, V planeAlpha) {
  if constexpr (F == AlphaFrom::Constant) {
    return simd::splat<V>(o.alpha);
  } else if constexpr (F == AlphaFrom::Pixel) {
    using E = simd::Elem<V>;
    using Idx = simd::Vec<std::make_signed_t<E>, simd::kLaneCount<V>>;
    Idx fourth{};
    for (int k = 0; k < simd::kLaneCount<V>; ++k) fourth[k] = k | 3;
    return __builtin_shuffle(x, fourth);
  } else if constexpr (F == AlphaFrom::Plane) {
    return planeAlpha;
  } else {
    return x;
  }
}

// Walks n lanes of one row through rule(kind, x1, x2, a1, a2, fullAtAlpha):
// blocks of whole registers, then single lanes. 8u samples are widened to
// 16-bit lanes one register of bytes at a time (its low and high halves) and
// packed back with saturation, then come blocks of 8 samples in one 16-byte
// register; 16u samples are widened to 32-bit lanes. With stream, the 8u
// blocks are written around the cache (the caller ends with a store fence):
// single lanes first until d is aligned, if that keeps blocks on whole
// pixels.
template <class T, AlphaFrom F, AlphaLanes K, class Rule>
void alphaLanes(const Operand<T>& o1, const Operand<T>& o2, T* d, int n, Rule rule, bool stream) {
  using W = typename AlphaMath<T>::W;
  constexpr LaneKind<F, K> kind{};
  // Operands by value: the loop then keeps their pointers and constants in
  // registers instead of reloading them after every store through d.
  const Operand<T> p1 = o1, p2 = o2;
  auto alphaAt = [&](const Operand<T>& o, int j) -> W {
    if constexpr (F == AlphaFrom::Constant) return o.alpha;
    else if constexpr (F == AlphaFrom::Pixel) return loadSample(o.x + ((j & ~3) + 3));
    else if constexpr (F == AlphaFrom::Plane) return loadSample(o.alphaRow + j);
    else return loadSample(o.x + j);
  };
  auto lane = [&](int j) {
    const bool alphaLane = K == AlphaLanes::All || (K == AlphaLanes::Fourth && j % 4 == 3);
    storeSample(d + j, T(rule(kind, W(loadSample(p1.x + j)), W(loadSample(p2.x + j)), alphaAt(p1, j),
                              alphaAt(p2, j), alphaLane ? AlphaMath<T>::kFull : W(0))));
  };
  int i = 0;
  if constexpr (std::is_same_v<T, Pxl8u>) {
    using B = simd::Reg<Pxl8u>;
    using V = simd::Reg<std::uint16_t>;
    constexpr int N = simd::kBytes;
    if (stream) {
      const int peel = simd::streamPeel(d, n);
      if (K != AlphaLanes::Fourth || peel % 4 == 0) {
        for (; i < peel; ++i) lane(i);
      } else {
        stream = false;
      }
    }
    const V full = fullAtAlphaLanes<V, K, T>();
    auto widen = [](const T* p, int j, V& lo, V& hi) { simd::widenBytes(simd::load<B>(p + j), lo, hi); };
    auto blocks = [&](auto streaming) {
      for (; i + N <= n; i += N) {
        V x1l, x1h, x2l, x2h, q1l{}, q1h{}, q2l{}, q2h{};
        widen(p1.x, i, x1l, x1h);
        widen(p2.x, i, x2l, x2h);
        if constexpr (F == AlphaFrom::Plane) widen(p1.alphaRow, i, q1l, q1h), widen(p2.alphaRow, i, q2l, q2h);
        const V lo = rule(kind, x1l, x2l, alphasOf<T, F>(p1, x1l, q1l), alphasOf<T, F>(p2, x2l, q2l), full);
        const V hi = rule(kind, x1h, x2h, alphasOf<T, F>(p1, x1h, q1h), alphasOf<T, F>(p2, x2h, q2h), full);
        if constexpr (decltype(streaming)::value) simd::streamStore(d + i, simd::packBytes(lo, hi));
        else simd::store(d + i, simd::packBytes(lo, hi));
      }
    };
    if (stream) blocks(std::true_type{});
    else blocks(std::false_type{});
    // 8 samples in one 16-byte register: the rest of a row of whole
    // registers but a few samples.
    using H = simd::Vec<std::uint16_t, 8>;
    const H fullH = fullAtAlphaLanes<H, K, T>();
    auto widenHalf = [](const T* p, int j) {
      return (H)_mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p + j)), _mm_setzero_si128());
    };
    for (; i + 8 <= n; i += 8) {
      const H x1 = widenHalf(p1.x, i), x2 = widenHalf(p2.x, i);
      H q1{}, q2{};
      if constexpr (F == AlphaFrom::Plane) q1 = widenHalf(p1.alphaRow, i), q2 = widenHalf(p2.alphaRow, i);
      const H r = rule(kind, x1, x2, alphasOf<T, F>(p1, x1, q1), alphasOf<T, F>(p2, x2, q2), fullH);
      _mm_storel_epi64(reinterpret_cast<__m128i*>(d + i), _mm_packus_epi16((__m128i)r, (__m128i)r));
    }
  } else {
    constexpr int N = simd::kLanes<W>;
    using V = simd::Vec<W, N>;
    using NV = simd::Vec<T, N>;
    static_assert(N % 4 == 0, "blocks hold whole pixels");
    const V full = fullAtAlphaLanes<V, K, T>();
    for (; i + N <= n; i += N) {
      const V x1 = simd::convert<V>(simd::load<NV>(p1.x + i));
      const V x2 = simd::convert<V>(simd::load<NV>(p2.x + i));
      V q1{}, q2{};
      if constexpr (F == AlphaFrom::Plane) {
        q1 = simd::convert<V>(simd::load<NV>(p1.alphaRow + i));
        q2 = simd::convert<V>(simd::load<NV>(p2.alphaRow + i));
      }
      const V r = rule(kind, x1, x2, alphasOf<T, F>(p1, x1, q1), alphasOf<T, F>(p2, x2, q2), full);
      simd::store(d + i, simd::convert<NV>(r));
    }
  }
  for (; i < n; ++i) lane(i);
}

// The premultiplied colour of an operand: x times its alpha a, or x itself
// where colours are premultiplied already; in alpha lanes the alpha itself.
// Alpha lanes are reached without a selection: x there is raised to the full
// alpha by or-ing fullAtAlpha (the full alpha in alpha lanes, 0 elsewhere),
// and mul(full, a) is a exactly. Where alphas come from the pixel, x is a in
// its alpha lane anyway.
template <class T, bool Premultiplied, class Kind, class V>
inline V premultiplied(Kind, V x, V a, V fullAtAlpha) {
  if constexpr (Kind::lanes == AlphaLanes::All) {
    return a;
  } else if constexpr (Kind::lanes == AlphaLanes::None) {
    if constexpr (Premultiplied) return x;
    else return mulA<T>(x, a);
  } else if constexpr (Premultiplied) {
    if constexpr (Kind::from == AlphaFrom::Pixel) return x;
    else return V((x & ~fullAtAlpha) | (a & fullAtAlpha));  // samples never exceed the full alpha
  } else {
    return mulA<T>(V(x | fullAtAlpha), a);
  }
}

// The composition rule of one operator: colours premultiplied unless they
// already are, alpha lanes as p = a.
template <class T, int O, bool AlphaOnly, bool Premultiplied>
struct ComposeRule {
  template <class Kind, class V>
  V operator()(Kind kind, V x1, V x2, V a1, V a2, V fullAtAlpha) const {
    const V p1 = premultiplied<T, Premultiplied>(kind, x1, a1, fullAtAlpha);
    const V p2 = premultiplied<T, Premultiplied>(kind, x2, a2, fullAtAlpha);
    return compose<T, O, AlphaOnly>(p1, p2, a1, a2);
  }
};

// Colour lanes times their alpha; alpha lanes as they are (x is the alpha
// there, and mul(x, full) is x).
template <class T>
struct PremulRule {
  template <class Kind, class V>
  V operator()(Kind, V x1, V, V a1, V, V fullAtAlpha) const {
    if constexpr (Kind::lanes == AlphaLanes::All) return x1;
    else return mulA<T>(x1, V(a1 | fullAtAlpha));
  }
};

// Calls f with the operator and whether colours are premultiplied (codes 6
// to 11 are the same operators on premultiplied colours) as compile-time
// constants, so that neither is decided inside a row.
template <bool Pre, class F>
inline void withOperatorOf(int op, F&& f) {
  using P = std::bool_constant<Pre>;
  switch (op) {
    case kOver: f(std::integral_constant<int, kOver>{}, P{}); break;
    case kIn: f(std::integral_constant<int, kIn>{}, P{}); break;
    case kOut: f(std::integral_constant<int, kOut>{}, P{}); break;
    case kAtop: f(std::integral_constant<int, kAtop>{}, P{}); break;
    case kXor: f(std::integral_constant<int, kXor>{}, P{}); break;
    default: f(std::integral_constant<int, kPlus>{}, P{}); break;
  }
}

template <class F>
inline void withOperator(int code, F&& f) {
  if (code >= 6)
    withOperatorOf<true>(code - 6, f);
  else
    withOperatorOf<false>(code, f);
}

}  // namespace pxl::point
