// Threshold in its three kinds: clip to the threshold (Threshold, _GT,
// _LT), replace by a value (_Val, _GTVal, _LTVal) and replace on both sides
// (_LTValGTVal). In-place forms are the same call with src = dst.
//
// Each kind's lane rule is written so that the comparison that keeps the
// sample is the one a float NaN fails or passes as the family has always
// answered, and callers rely on it:
//   clip        the threshold wins every unordered comparison: NaN -> t
//   value, >    the sample stays under not (t < s):             NaN kept
//   value, <    the sample stays under t <= s:                  NaN -> v
//   both sides  not (tGT < s), then tLT <= s:                   NaN -> vLT
// At equality no form replaces anything.
//
// Check orders differ on purpose. The clip kind and the two-sided kind look
// at pointers, size, steps and the limit arrays, then at their own argument
// (relation, order of the limits). The value kind looks at the relation
// before anything else.
#pragma once

#include "frame/frame.h"
#include "move/rows.h"
#include "point/kernels.h"

namespace pxl::point {

inline bool badRelation(Pxl32s r) { return r != pxlRelLess && r != pxlRelGreater; }

// ------------------------------------------------------------ clip

template <class T, Lay L>
PxlStatus clipMember(const T* s, int sStep, T* d, int dStep, PxlSize roi, const T* t, Pxl32s rel) {
  if (anyNull(s, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, sStep, dStep)) return st;
  if (t == nullptr) return pxlStsNullPtr;
  if (badRelation(rel)) return pxlStsCompareOp;
  const auto k = constsOf<T, L>(t);
  if (rel == pxlRelGreater)
    mapImage<L>(s, sStep, d, dStep, roi, [](auto x, auto t) { return x <= t ? x : t; }, k);
  else
    mapImage<L>(s, sStep, d, dStep, roi, [](auto x, auto t) { return x >= t ? x : t; }, k);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus threshold(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, ValueArg<T, L> t, Pxl32s rel) {
  return clipMember<T, L>(src, srcStep, dst, dstStep, roi, valuesOf<T, L>(t).get(), rel);
}
template <class T, Lay L>
PxlStatus threshold(T* srcDst, int srcDstStep, PxlSize roi, ValueArg<T, L> t, Pxl32s rel) {
  return threshold<T, L>(srcDst, srcDstStep, srcDst, srcDstStep, roi, t, rel);
}
template <Pxl32s Rel, class T, Lay L>
PxlStatus thresholdFixed(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, ValueArg<T, L> t) {
  return threshold<T, L>(src, srcStep, dst, dstStep, roi, t, Rel);
}
template <Pxl32s Rel, class T, Lay L>
PxlStatus thresholdFixed(T* srcDst, int srcDstStep, PxlSize roi, ValueArg<T, L> t) {
  return threshold<T, L>(srcDst, srcDstStep, srcDst, srcDstStep, roi, t, Rel);
}

// ------------------------------------------------------------ value

template <class T, Lay L>
PxlStatus valueMember(const T* s, int sStep, T* d, int dStep, PxlSize roi, const T* t, const T* v, Pxl32s rel) {
  if (badRelation(rel)) return pxlStsCompareOp;
  if (anyNull(s, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, sStep, dStep)) return st;
  if (anyNull(t, v)) return pxlStsNullPtr;
  const auto kt = constsOf<T, L>(t), kv = constsOf<T, L>(v);
  if (rel == pxlRelGreater)
    mapImage<L>(s, sStep, d, dStep, roi, [](auto x, auto t, auto v) { return t < x ? v : x; }, kt, kv);
  else
    mapImage<L>(s, sStep, d, dStep, roi, [](auto x, auto t, auto v) { return t <= x ? x : v; }, kt, kv);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus thresholdVal(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, ValueArg<T, L> t,
                       ValueArg<T, L> v, Pxl32s rel) {
  return valueMember<T, L>(src, srcStep, dst, dstStep, roi, valuesOf<T, L>(t).get(), valuesOf<T, L>(v).get(), rel);
}
template <class T, Lay L>
PxlStatus thresholdVal(T* srcDst, int srcDstStep, PxlSize roi, ValueArg<T, L> t, ValueArg<T, L> v, Pxl32s rel) {
  return thresholdVal<T, L>(srcDst, srcDstStep, srcDst, srcDstStep, roi, t, v, rel);
}
// _GTVal and _LTVal; in C4, with no relation to look at, the checks are
// those of the value kind without its first one.
template <Pxl32s Rel, class T, Lay L>
PxlStatus thresholdValFixed(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, ValueArg<T, L> t,
                            ValueArg<T, L> v) {
  return thresholdVal<T, L>(src, srcStep, dst, dstStep, roi, t, v, Rel);
}
template <Pxl32s Rel, class T, Lay L>
PxlStatus thresholdValFixed(T* srcDst, int srcDstStep, PxlSize roi, ValueArg<T, L> t, ValueArg<T, L> v) {
  return thresholdVal<T, L>(srcDst, srcDstStep, srcDst, srcDstStep, roi, t, v, Rel);
}

// ------------------------------------------------------------ both sides

template <class T, Lay L>
PxlStatus bothMember(const T* s, int sStep, T* d, int dStep, PxlSize roi, const T* tLT, const T* vLT, const T* tGT,
                     const T* vGT) {
  if (anyNull(s, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, sStep, dStep)) return st;
  if (anyNull(tLT, vLT, tGT, vGT)) return pxlStsNullPtr;
  // Written as "not GT >= LT" so that a NaN limit fails too.
  for (int c = 0; c < processedOf(L); ++c)
    if (!(tGT[c] >= tLT[c])) return pxlStsThresholdOrder;
  const auto ktl = constsOf<T, L>(tLT), kvl = constsOf<T, L>(vLT), ktg = constsOf<T, L>(tGT),
             kvg = constsOf<T, L>(vGT);
  mapImage<L>(
      s, sStep, d, dStep, roi,
      [](auto x, auto tl, auto vl, auto tg, auto vg) {
        const decltype(x) high = tg < x ? vg : x;
        return tl <= x ? high : vl;
      },
      ktl, kvl, ktg, kvg);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus thresholdBoth(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, ValueArg<T, L> tLT,
                        ValueArg<T, L> vLT, ValueArg<T, L> tGT, ValueArg<T, L> vGT) {
  return bothMember<T, L>(src, srcStep, dst, dstStep, roi, valuesOf<T, L>(tLT).get(), valuesOf<T, L>(vLT).get(),
                          valuesOf<T, L>(tGT).get(), valuesOf<T, L>(vGT).get());
}
template <class T, Lay L>
PxlStatus thresholdBoth(T* srcDst, int srcDstStep, PxlSize roi, ValueArg<T, L> tLT, ValueArg<T, L> vLT,
                        ValueArg<T, L> tGT, ValueArg<T, L> vGT) {
  return thresholdBoth<T, L>(srcDst, srcDstStep, srcDst, srcDstStep, roi, tLT, vLT, tGT, vGT);
}

}  // namespace pxl::point
