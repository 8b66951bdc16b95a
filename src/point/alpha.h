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

template <class T, class V>
inline V mulA(V a, V b) {
  constexpr int bits = AlphaMath<T>::kBits;
  const V t = V(a * b);
  return V((t + simd::splat<V>(1) + (t >> bits)) >> bits);
}

// Sums of two products stay below twice the full alpha, far from the sign
// bit, so the minimum is taken on signed lanes: the base instruction set has
// signed 16-bit minima and signed compares, but no unsigned ones.
template <class T, class V>
inline V saturated(V x) {
  if constexpr (simd::kIsVector<V>) {
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

// One operand of the walk: its samples and where their alphas are.
template <class T>
struct Operand {
  const T* x;
  const T* alphaRow;  // Plane only
  T alpha;            // Constant only
};

// Walks n lanes of one row: blocks of whole registers of wide lanes, then
// single lanes, through the same rule(x1, x2, a1, a2, isAlpha).
template <class T, AlphaFrom F, AlphaLanes K, class Rule>
void alphaLanes(const Operand<T>& o1, const Operand<T>& o2, T* d, int n, Rule rule) {
  using W = typename AlphaMath<T>::W;
  constexpr int N = simd::kLanes<W>;
  using V = simd::Vec<W, N>;
  using NV = simd::Vec<T, N>;
  using M = decltype(V{} < V{});
  static_assert(N % 4 == 0, "blocks hold whole pixels");

  M isAlpha{};
  V fourth{};
  for (int k = 0; k < N; ++k) {
    isAlpha[k] = (K == AlphaLanes::All || (K == AlphaLanes::Fourth && k % 4 == 3)) ? -1 : 0;
    fourth[k] = W(k | 3);
  }
  using Idx = decltype(isAlpha);
  const Idx bcast = reinterpret_cast<const Idx&>(fourth);
  auto alphaOf = [&](const Operand<T>& o, const V& x, int i) -> V {
    if constexpr (F == AlphaFrom::Constant) return simd::splat<V>(o.alpha);
    else if constexpr (F == AlphaFrom::Pixel) return __builtin_shuffle(x, bcast);
    else if constexpr (F == AlphaFrom::Plane) return simd::convert<V>(simd::load<NV>(o.alphaRow + i));
    else return x;
  };
  // Operands by value: the loop then keeps their pointers and constants in
  // registers instead of reloading them after every store through d.
  const Operand<T> p1 = o1, p2 = o2;
  int i = 0;
  for (; i + N <= n; i += N) {
    const V x1 = simd::convert<V>(simd::load<NV>(p1.x + i));
    const V x2 = simd::convert<V>(simd::load<NV>(p2.x + i));
    const V r = rule(x1, x2, alphaOf(p1, x1, i), alphaOf(p2, x2, i), isAlpha);
    simd::store(d + i, simd::convert<NV>(r));
  }
  auto alphaAt = [&](const Operand<T>& o, int j) -> W {
    if constexpr (F == AlphaFrom::Constant) return o.alpha;
    else if constexpr (F == AlphaFrom::Pixel) return o.x[(j & ~3) + 3];
    else if constexpr (F == AlphaFrom::Plane) return o.alphaRow[j];
    else return o.x[j];
  };
  for (; i < n; ++i) {
    const bool alphaLane = K == AlphaLanes::All || (K == AlphaLanes::Fourth && i % 4 == 3);
    d[i] = T(rule(W(o1.x[i]), W(o2.x[i]), alphaAt(o1, i), alphaAt(o2, i), alphaLane));
  }
}

// The composition rule of one operator: colours premultiplied unless they
// already are, alpha lanes as p = a.
template <class T, int O, bool AlphaOnly, bool Premultiplied>
struct ComposeRule {
  template <class V, class M>
  V operator()(V x1, V x2, V a1, V a2, M isAlpha) const {
    V p1 = x1, p2 = x2;
    if constexpr (!Premultiplied) p1 = mulA<T>(x1, a1), p2 = mulA<T>(x2, a2);
    p1 = simd::select<V>(isAlpha, a1, p1);
    p2 = simd::select<V>(isAlpha, a2, p2);
    return compose<T, O, AlphaOnly>(p1, p2, a1, a2);
  }
};

// Colour lanes times their alpha; alpha lanes as they are.
template <class T>
struct PremulRule {
  template <class V, class M>
  V operator()(V x1, V, V a1, V, M isAlpha) const {
    return simd::select<V>(isAlpha, x1, mulA<T>(x1, a1));
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
