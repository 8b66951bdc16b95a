// Add, Sub, AddC, SubC: the two operations of the pair. Every member and
// vector form runs the frame of scaled.h with one of them.
#pragma once

#include "arith/scaled.h"

namespace pxl::arith {

// What Add and Sub share: a sum or difference fits a lane one bit wider than
// its operands, path Zero is a saturating instruction, complex parts are
// independent, and the constant shortcuts of AddC and SubC.
template <class Derived>
struct AddSubBase {
  template <class R, Path P>
  using Wide = WideOf<R>;
  static constexpr bool kClampBeforeShift = false;
  static constexpr bool kSaturatingZero = true;
  static constexpr bool kPartwise = true;
  static constexpr int kIdentity = 0;

  // Where a scale stops depending on the data, per type: 255 + 255 over 2^9
  // still rounds to 1 while 255 over 2^8 is the largest difference.
  template <class T>
  static constexpr ScaleLimits limits() {
    using R = PartOf<T>;
    constexpr bool sub = Derived::kSub;
    if constexpr (std::is_same_v<R, Pxl8u>) return {sub ? 8 : 9, -7};
    else if constexpr (std::is_same_v<R, Pxl16u>) return {sub ? 16 : 17, -15};
    else if constexpr (std::is_same_v<R, Pxl16s>) return {16, -15};
    else return {32, -30};  // 32s
  }

  // A zero constant at scale 0 is a copy, or nothing at all in place. AddC
  // on 8u far below the limit with a positive constant is 255 everywhere.
  template <class T>
  static Shortcut<T> c1Shortcut(T value, int scale, Path path) {
    if (scale == 0 && value == 0) return {Shortcut<T>::Copy};
    if constexpr (std::is_same_v<T, Pxl8u> && !Derived::kSub)
      if (path == Path::Bound && value > 0) return {Shortcut<T>::Fill, T(255)};
    return {};
  }
  // AddC on 16u far below the limit with a non-zero constant: 65535.
  template <class T>
  static Shortcut<T> early16u(T value, Path path) {
    if (!Derived::kSub && path == Path::Bound && value != 0) return {Shortcut<T>::Fill, T(65535)};
    return {};
  }
};

struct OpAdd : AddSubBase<OpAdd> {
  static constexpr bool kSub = false;
  static constexpr bool kHalvedSumAtOne = true;
  static constexpr Fam kFam = Fam::Add;
  static constexpr Fam kFamC = Fam::AddC;
  template <class W>
  static W exact(W a, W b) {
    if constexpr (std::is_floating_point_v<Elem<W>>) {
      return simd::firstNaN(a, a + b);
    } else {
      return a + b;
    }
  }
  template <class V>
  static V saturating(V a, V b) {
    return simd::saturating<false, Elem<V>>(a, b);
  }
};

// b - a: Sub takes src2 - src1 (in place srcDst - src) and SubC src - value.
// An unsigned difference is clamped at zero before any scaling.
struct OpSub : AddSubBase<OpSub> {
  static constexpr bool kSub = true;
  static constexpr Fam kFam = Fam::Sub;
  static constexpr Fam kFamC = Fam::SubC;
  template <class W>
  static W exact(W a, W b) {
    if constexpr (std::is_unsigned_v<Elem<W>>) {
      return simd::select<W>(b > a, b - a, splat<W>(0));
    } else {
      return b - a;
    }
  }
  template <class V>
  static V saturating(V a, V b) {
    return simd::saturating<true, Elem<V>>(b, a);
  }
};

}  // namespace pxl::arith
