// Compare, CompareC, CompareEqualEps, CompareEqualEpsC: a one-channel 8u
// mask, 255 where the relation holds in every processed channel of the
// pixel and 0 elsewhere. Checks, in this order: a null pointer, a step below
// 1, a size below 1, and in the tolerance forms an eps that is not at or
// above zero (a NaN included). An unknown relation is no error: the call
// returns success and writes nothing.
//
// Each relation is its own row routine, so the inner loop never asks which
// one it runs. Two images need only less, less-or-equal and equal: the
// other two are these with the sources exchanged. Against a constant each
// relation is written out, >= as "not <" and > as "not <=", so that a NaN
// sample gives 255 for those two and 0 for the other three.
#pragma once

#include "frame/frame.h"
#include "point/kernels.h"
#include "simd/vec.h"

namespace pxl::point {

struct Less {
  template <class V>
  static auto test(V x, V y) { return x < y; }
};
struct LessEqual {
  template <class V>
  static auto test(V x, V y) { return x <= y; }
};
struct Equal {
  template <class V>
  static auto test(V x, V y) { return x == y; }
};
struct NotLess {
  template <class V>
  static auto test(V x, V y) { return (x < y) == 0; }
};
struct NotLessEqual {
  template <class V>
  static auto test(V x, V y) { return (x <= y) == 0; }
};

// Calls run(routine, exchange) with the routine of relation r, where
// exchange says that a pair of images is to be read the other way round;
// an unknown relation calls nothing.
template <class Run>
inline void byRelation(Pxl32s r, Run&& run, bool imagePair) {
  switch (r) {
    case pxlRelLess: run(Less{}, false); break;
    case pxlRelLessEqual: run(LessEqual{}, false); break;
    case pxlRelEqual: run(Equal{}, false); break;
    case pxlRelGreaterEqual:
      if (imagePair) run(LessEqual{}, true); else run(NotLess{}, false);
      break;
    case pxlRelGreater:
      if (imagePair) run(Less{}, true); else run(NotLessEqual{}, false);
      break;
    default: break;
  }
}

template <class T, Lay L>
PxlStatus compareImages(const T* a, int aStep, const T* b, int bStep, Pxl8u* d, int dStep, PxlSize roi, Pxl32s rel) {
  if (anyNull(a, b, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, aStep, bStep, dStep)) return st;
  byRelation(rel, [&](auto r, bool exchange) {
    using R = decltype(r);
    const T* p = exchange ? b : a;
    const T* q = exchange ? a : b;
    const int ps = exchange ? bStep : aStep, qs = exchange ? aStep : bStep;
    maskImage<L>(p, ps, d, dStep, roi, [](auto x, auto z) { return R::test(x, z); },
                 [&](int y) { return Row<T>{rowAt(q, qs, y)}; }, qs);
  }, true);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus compareConst(const T* s, int sStep, ValueArg<T, L> value, Pxl8u* d, int dStep, PxlSize roi, Pxl32s rel) {
  const auto vals = valuesOf<T, L>(value);
  const T* v = vals.get();
  if (anyNull(s, v, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, sStep, dStep)) return st;
  const auto k = constsOf<T, L>(v);
  byRelation(rel, [&](auto r, bool) {
    using R = decltype(r);
    maskImage<L>(s, sStep, d, dStep, roi, [](auto x, auto c) { return R::test(x, c); },
                 [&](int) -> const auto& { return k; }, sStep);
  }, false);
  return pxlStsOk;
}

// |a - b| <= eps in float, as -eps <= a - b <= eps: the same for every
// difference, and false for a NaN one.
inline auto withinEps(float eps) {
  return [eps](auto x, auto y) {
    using V = decltype(x);
    const V diff = x - y, e = simd::splat<V>(eps), ne = simd::splat<V>(-eps);
    return (diff <= e) & (diff >= ne);
  };
}

template <class T, Lay L>
PxlStatus compareEps(const T* a, int aStep, const T* b, int bStep, Pxl8u* d, int dStep, PxlSize roi, Pxl32f eps) {
  if (anyNull(a, b, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, aStep, bStep, dStep)) return st;
  if (!(eps >= 0.0f)) return pxlStsEpsilon;
  maskImage<L>(a, aStep, d, dStep, roi, withinEps(eps), [&](int y) { return Row<T>{rowAt(b, bStep, y)}; }, bStep);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus compareEpsConst(const T* s, int sStep, ValueArg<T, L> value, Pxl8u* d, int dStep, PxlSize roi,
                          Pxl32f eps) {
  const auto vals = valuesOf<T, L>(value);
  const T* v = vals.get();
  if (anyNull(s, v, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, sStep, dStep)) return st;
  if (!(eps >= 0.0f)) return pxlStsEpsilon;
  const auto k = constsOf<T, L>(v);
  maskImage<L>(s, sStep, d, dStep, roi, withinEps(eps), [&](int) -> const auto& { return k; }, sStep);
  return pxlStsOk;
}

}  // namespace pxl::point
