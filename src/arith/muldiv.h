// Mul and MulC: the product under the scale rule, run by the frame of
// scaled.h; MulScale and MulCScale: the product of two fractions of full
// scale, on the same row kernels.
#pragma once

#include "arith/scaled.h"

namespace pxl::arith {

using simd::Int128;

// Lanes that hold a product and its rounding. An 8u product fits 16 bits,
// but rounding a long shift of it (up to 2^15 added) does not, so path Pos
// widens to 32. 16s products fit 32 bits with room for the rounding; 16u
// ones are handled in 64 bits.
template <class R, Path P>
struct MulLane {
  using type = WideOf<R>;
};
template <Path P>
struct MulLane<Pxl8u, P> {
  using type = std::conditional_t<P == Path::Pos, std::uint32_t, std::uint16_t>;
};
template <Path P>
struct MulLane<Pxl16u, P> {
  using type = std::uint64_t;
};

// The exact real and imaginary parts of a complex product. For 16sc they
// need 32 bits and one value more (four factors of -32768 give an imaginary
// part of 2^31), for 32sc 64 bits and one more: each is held exactly, one
// size up, so the rule sees the true value at every scale.
template <class T>
struct ComplexLane {
  using type = PartOf<T>;
};
template <> struct ComplexLane<Pxl16sc> { using type = std::int64_t; };
template <> struct ComplexLane<Pxl32sc> { using type = Int128; };

struct OpMul {
  static constexpr Fam kFam = Fam::Mul;
  static constexpr Fam kFamC = Fam::MulC;
  template <class R, Path P>
  using Wide = typename MulLane<R, P>::type;
  // A product shifted left overflows its lane; saturating it first gives the
  // same result and keeps the shift small.
  static constexpr bool kClampBeforeShift = true;
  static constexpr bool kSaturatingZero = false;
  static constexpr bool kPartwise = false;
  static constexpr int kIdentity = 1;

  // Scales from neg to pos are computed: above pos the product rounds to 0
  // whatever the data, below neg only whether (and for 16s, how) it is not 0.
  template <class T>
  static constexpr ScaleLimits limits() {
    if constexpr (std::is_same_v<T, Pxl8u>) return {16, -7};
    else if constexpr (std::is_same_v<T, Pxl16s>) return {30, -14};
    else if constexpr (std::is_same_v<T, Pxl16u>) return {32, -15};
    else if constexpr (std::is_same_v<T, Pxl16sc>) return {31, -15};
    else return {63, -31};  // 32sc
  }

  template <class W>
  static W exact(W a, W b) {
    if constexpr (std::is_floating_point_v<Elem<W>>) {
      return simd::firstNaN(a, a * b);
    } else {
      return a * b;
    }
  }

  // 8u products on whole registers of 16-bit lanes: 255 * 255 = 65025 fits,
  // so the product is one low-half multiply, and every path below keeps its
  // intermediate values in 16 bits. The results are those of the wide lanes
  // above (the tail still runs them), bit for bit.
  static constexpr bool kNarrowRun8u = true;

  // Shifts up to 9 round as (p + 2^(s-1) - 1 + odd) >> s: at most
  // 65025 + 255 + 1. Longer ones would overflow that sum, so they split the
  // product at the half bit: u = p >> (s-1) is twice the truncated quotient
  // plus the half bit; it goes up when the bits below the half are not all
  // zero (sticky) or the quotient is odd, which (u + t) >> 1 does.
  static constexpr int kShortShift = 9;

  // The rule on products p; every result is below 32768, so the byte pack
  // saturates it to 255 as the wide rule does.
  template <Path P, bool Long, class V>
  static V narrowRule(V p, int s) {
    const V one = splat<V>(1);
    if constexpr (P == Path::Zero) {
      return p - simd::saturating<true, std::uint16_t>(p, splat<V>(255));  // min(p, 255)
    } else if constexpr (P == Path::One) {
      return (p + ((p >> 1) & one)) >> 1;
    } else if constexpr (P == Path::Pos && !Long) {
      const V half = splat<V>((1 << (s - 1)) - 1);
      return (p + half + ((p >> s) & one)) >> s;
    } else if constexpr (P == Path::Pos) {
      const V below = splat<V>((1 << (s - 1)) - 1);
      const V u = p >> (s - 1);
      const V sticky = ((p & below) + below) >> (s - 1);
      return (u + (sticky | ((u >> 1) & one))) >> 1;
    } else if constexpr (P == Path::Neg) {
      // Saturated first, as the wide rule does: 255 << 7 still fits.
      return V(p - simd::saturating<true, std::uint16_t>(p, splat<V>(255))) << -s;
    } else {
      static_assert(P == Path::Bound, "8u has no other path");
      return V(p != splat<V>(0)) & splat<V>(255);
    }
  }

  template <Path P, bool Long, class A>
  static int narrowLoop(const A& a, const Pxl8u* b, Pxl8u* d, int len, int s) {
    using B = simd::Reg<Pxl8u>;
    using V = simd::Reg<std::uint16_t>;
    constexpr int M = simd::kLanes<Pxl8u>;
    int i = 0;
    for (; i + M <= len; i += M) {
      V al, ah, bl, bh;
      simd::widenBytes(operandAt<Pxl8u>(a, i), al, ah);
      simd::widenBytes(simd::load<B>(b + i), bl, bh);
      simd::store(d + i, simd::packBytes(narrowRule<P, Long>(V(al * bl), s), narrowRule<P, Long>(V(ah * bh), s)));
    }
    return i;
  }

  // a is a row or a register holding the constant in every lane. Returns
  // the samples done.
  template <Path P, class A>
  static int narrowRun(const A& a, const Pxl8u* b, Pxl8u* d, int len, int s) {
    if constexpr (P == Path::Pos) {
      return s <= kShortShift ? narrowLoop<P, false>(a, b, d, len, s) : narrowLoop<P, true>(a, b, d, len, s);
    } else {
      return narrowLoop<P, false>(a, b, d, len, s);
    }
  }

  template <Path P, class T>
  static T complexLane(T a, T b, int s) {
    using R = PartOf<T>;
    using W = typename ComplexLane<T>::type;
    if constexpr (std::is_floating_point_v<R>) {
      const R re = roundedProduct(a.re, b.re) - roundedProduct(a.im, b.im);
      const R p = roundedProduct(a.re, b.im);
      const R im = simd::firstNaN(p, p + roundedProduct(a.im, b.re));
      return T{re, im};
    }
    const W re = W(a.re) * W(b.re) - W(a.im) * W(b.im);
    const W im = W(a.re) * W(b.im) + W(a.im) * W(b.re);
    return T{static_cast<R>(applyRule<OpMul, P, R>(re, s)), static_cast<R>(applyRule<OpMul, P, R>(im, s))};
  }

  // A zero constant fills the destination with zero; a constant of one at
  // scale 0 is a copy, or nothing at all in place.
  template <class T>
  static Shortcut<T> c1Shortcut(T value, int scale, Path) {
    if (value == 0) return {Shortcut<T>::Fill, T(0)};
    if (scale == 0 && value == 1) return {Shortcut<T>::Copy};
    return {};
  }
  template <class T>
  static Shortcut<T> early16u(T value, Path) {
    if (value == 0) return {Shortcut<T>::Fill, T(0)};
    return {};
  }
};

// ------------------------------------------------------------ MulScale
// Samples are fractions of the type's maximum M (255 or 65535): the result
// is t / M rounded, computed as (t + 1 + (t >> b)) >> b for t the exact
// product and b the bits of the type. t + 1 + (t >> b) < 2^(2b), so the
// lane that holds the product holds it all; no scale, no saturation.
struct OpMulScale {
  template <class R, Path P>
  using Wide = WideOf<R>;
  static constexpr bool kClampBeforeShift = false;
  static constexpr bool kSaturatingZero = false;

  template <class W>
  static W exact(W a, W b) {
    constexpr int bits = int(sizeof(Elem<W>)) * 4;
    const W t = a * b;
    return (t + splat<W>(1) + (t >> bits)) >> bits;
  }
};

template <class T, Lay L>
PxlStatus mulScaleMember(const T* a, int aStep, const T* b, int bStep, T* d, int dStep, PxlSize roi) {
  if (anyNull(a, b, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, aStep, bStep, dStep)) return st;
  for (int y = 0; y < roi.height; ++y) {
    const T* ra = rowAt(a, aStep, y);
    const T* rb = rowAt(b, bStep, y);
    T* rd = rowAt(d, dStep, y);
    if constexpr (L == Lay::AC4)
      rowBinaryAC4<OpMulScale, Path::Single, T, 1>(ra, rb, rd, roi.width, 0);
    else
      rowBinary<OpMulScale, Path::Single>(ra, rb, rd, roi.width * channelsOf(L), 0);
  }
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus imageMulScale(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, PxlSize roi) {
  return mulScaleMember<T, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
}

// In place is the member above with srcDst as both source and destination.
template <class T, Lay L>
PxlStatus imageMulScale(const T* src, int srcStep, T* srcDst, int srcDstStep, PxlSize roi) {
  return mulScaleMember<T, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

template <class T, Lay L>
PxlStatus mulCScaleMember(const T* src, int srcStep, const T* values, T* dst, int dStep, PxlSize roi) {
  if (anyNull(src, values, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, srcStep, dStep)) return st;
  constexpr int period = processedOf(L);
  const Pattern<T, period> pat(values);
  for (int y = 0; y < roi.height; ++y) {
    const T* rs = rowAt(src, srcStep, y);
    T* rd = rowAt(dst, dStep, y);
    if constexpr (L == Lay::AC4)
      rowConstAC4<OpMulScale, Path::Single, T, 1>(rs, values, rd, roi.width, 0);
    else
      rowConst<OpMulScale, Path::Single, T, period>(rs, pat, rd, roi.width * period, 0);
  }
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus imageMulCScale(const T* src, int srcStep, ValueArg<T, L> value, T* dst, int dstStep, PxlSize roi) {
  if constexpr (L == Lay::C1)
    return mulCScaleMember<T, L>(src, srcStep, &value, dst, dstStep, roi);
  else
    return mulCScaleMember<T, L>(src, srcStep, LocalValues<T>(value, processedOf(L)).get(), dst, dstStep, roi);
}

template <class T, Lay L>
PxlStatus imageMulCScale(ValueArg<T, L> value, T* srcDst, int srcDstStep, PxlSize roi) {
  return imageMulCScale<T, L>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi);
}

}  // namespace pxl::arith
