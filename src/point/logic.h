// And, Or, Xor (two images or an image and a constant), Not, and the shifts
// by a constant count. Checks, in this order: a null image or constant
// array, a step below 1, a size below 1.
//
// Counts at or beyond the sample width need a decision, since the
// processor's shift would wrap them: a left shift, and a right shift of an
// unsigned sample, then gives 0, and the image is simply filled with it. A
// right shift of a signed sample is arithmetic; every count past 31 acts
// like 31, and any count from the sample width on already leaves nothing
// but copies of the sign, so the lanes shift by at most width - 1.
#pragma once

#include <algorithm>
#include <type_traits>

#include "frame/frame.h"
#include "move/copy.h"
#include "move/set.h"
#include "point/kernels.h"

namespace pxl::point {

struct OpAnd {
  template <class V>
  static V apply(V a, V b) { return a & b; }
};
struct OpOr {
  template <class V>
  static V apply(V a, V b) { return a | b; }
};
struct OpXor {
  template <class V>
  static V apply(V a, V b) { return a ^ b; }
};

template <class T, Lay L>
inline bool sameInEveryChannel(const T* v) {
  return std::all_of(v, v + processedOf(L), [v](T x) { return x == v[0]; });
}

// ------------------------------------------------------------ two images

template <class Op, class T, Lay L>
PxlStatus logicImages(const T* a, int aStep, const T* b, int bStep, T* d, int dStep, PxlSize roi) {
  if (anyNull(a, b, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, aStep, bStep, dStep)) return st;
  // No constant: all channels are alike, only AC4's alpha is special.
  const auto f = [](auto x, auto y) { return Op::apply(x, y); };
  roi = gaplessShape(roi, rowBytesOf<L, T>(roi.width), aStep, bStep, dStep);
  streamedRows(imageBytes<L, T>(roi), roi.height, [&](int y, auto stream) {
    mapRow<1, L == Lay::AC4, decltype(stream)::value>(rowAt(a, aStep, y), rowAt(d, dStep, y),
                                                      roi.width * channelsOf(L), f, Row<T>{rowAt(b, bStep, y)});
  });
  return pxlStsOk;
}

template <class Op, class T, Lay L>
PxlStatus logicImages(const T* src, int srcStep, T* srcDst, int srcDstStep, PxlSize roi) {
  return logicImages<Op, T, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

// ------------------------------------------------------------ constant

template <class Op, class T, Lay L>
PxlStatus logicConstMember(const T* s, int sStep, const T* vals, T* d, int dStep, PxlSize roi) {
  if (anyNull(s, vals, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, sStep, dStep)) return st;
  if constexpr (L == Lay::C3) {
    // Three equal constants are the one-channel problem three times as wide.
    if (sameInEveryChannel<T, L>(vals))
      return logicConstMember<Op, T, Lay::C1>(s, sStep, vals, d, dStep, {roi.width * 3, roi.height});
  }
  const auto k = constsOf<T, L>(vals);
  const auto f = [](auto x, auto c) { return Op::apply(x, c); };
  mapImage<L>(s, sStep, d, dStep, roi, f, k);
  return pxlStsOk;
}

template <class Op, class T, Lay L>
PxlStatus logicConst(const T* src, int srcStep, ValueArg<T, L> value, T* dst, int dstStep, PxlSize roi) {
  return logicConstMember<Op, T, L>(src, srcStep, valuesOf<T, L>(value).get(), dst, dstStep, roi);
}

template <class Op, class T, Lay L>
PxlStatus logicConst(ValueArg<T, L> value, T* srcDst, int srcDstStep, PxlSize roi) {
  return logicConstMember<Op, T, L>(srcDst, srcDstStep, valuesOf<T, L>(value).get(), srcDst, srcDstStep, roi);
}

// Not is Xor with every bit set.
template <class T, Lay L>
PxlStatus notImage(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi) {
  const T ones[4] = {T(~T(0)), T(~T(0)), T(~T(0)), T(~T(0))};
  return logicConstMember<OpXor, T, L>(src, srcStep, ones, dst, dstStep, roi);
}

template <class T, Lay L>
PxlStatus notImage(T* srcDst, int srcDstStep, PxlSize roi) {
  return notImage<T, L>(srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

// ------------------------------------------------------------ shifts

template <class V, class N>
inline V shiftLeftBy(V x, N n) {
  using U = std::make_unsigned_t<simd::Elem<V>>;
  if constexpr (kIsVector<V>) {
    using UV = simd::Vec<U, int(sizeof(V) / sizeof(U))>;
    if constexpr (kIsVector<N>)
      return (V)((UV)x << (UV)n);
    else
      return (V)((UV)x << n);
  } else {
    return static_cast<V>(static_cast<U>(static_cast<U>(x) << n));
  }
}

template <bool Left, class T>
struct Shift {
  static constexpr unsigned kWidth = 8 * sizeof(T);
  // Arithmetic right shift: no count empties the sample.
  static constexpr bool kSaturatesAtSign = !Left && std::is_signed_v<T>;
  template <class V, class N>
  static V apply(V x, N n) {
    if constexpr (Left)
      return shiftLeftBy(x, n);
    else
      return static_cast<V>(x >> n);
  }
};

template <class T, Lay L>
using CountArg = std::conditional_t<L == Lay::C1, Pxl32u, const Pxl32u*>;

// One count for every processed channel; checks done.
template <bool Left, class T, Lay L>
PxlStatus shiftUniform(const T* s, int sStep, Pxl32u n, T* d, int dStep, PxlSize roi) {
  using Sh = Shift<Left, T>;
  if (n == 0) return s == d ? pxlStsOk : move::copyImage<T, L>(s, sStep, d, dStep, roi);
  if (!Sh::kSaturatesAtSign && n >= Sh::kWidth) return move::setImageUniform<T, L>(T(0), d, dStep, roi);
  const int c = int(std::min<Pxl32u>(n, Sh::kWidth - 1));
  const auto f = [c](auto x) { return Sh::apply(x, c); };
  mapImage<L>(s, sStep, d, dStep, roi, f);
  return pxlStsOk;
}

template <bool Left, class T, Lay L>
PxlStatus shiftMember(const T* s, int sStep, const Pxl32u* countsIn, T* d, int dStep, PxlSize roi) {
  using Sh = Shift<Left, T>;
  const LocalValues<Pxl32u> local(countsIn, processedOf(L));
  const Pxl32u* counts = local.get();
  if (anyNull(s, counts, d)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NTS>(roi, sStep, dStep)) return st;
  if (std::all_of(counts, counts + processedOf(L), [counts](Pxl32u n) { return n == counts[0]; })) {
    if constexpr (L == Lay::C3)
      return shiftUniform<Left, T, Lay::C1>(s, sStep, counts[0], d, dStep, {roi.width * 3, roi.height});
    else
      return shiftUniform<Left, T, L>(s, sStep, counts[0], d, dStep, roi);
  }
  // A count per channel: each lane shifts by its channel's count, clamped
  // as above, and a mask clears the channels whose count empties them.
  T cnt[4], keep[4];
  for (int c = 0; c < processedOf(L); ++c) {
    const bool empties = !Sh::kSaturatesAtSign && counts[c] >= Sh::kWidth;
    cnt[c] = empties ? T(0) : T(std::min<Pxl32u>(counts[c], Sh::kWidth - 1));
    keep[c] = empties ? T(0) : T(~T(0));
  }
  const auto kc = constsOf<T, L>(cnt), kk = constsOf<T, L>(keep);
  const auto f = [](auto x, auto n, auto k) { return decltype(x)(Sh::apply(x, n) & k); };
  mapImage<L>(s, sStep, d, dStep, roi, f, kc, kk);
  return pxlStsOk;
}

template <bool Left, class T, Lay L>
PxlStatus shiftConst(const T* src, int srcStep, CountArg<T, L> value, T* dst, int dstStep, PxlSize roi) {
  if constexpr (L == Lay::C1)
    return shiftMember<Left, T, L>(src, srcStep, &value, dst, dstStep, roi);
  else
    return shiftMember<Left, T, L>(src, srcStep, value, dst, dstStep, roi);
}

template <bool Left, class T, Lay L>
PxlStatus shiftConst(CountArg<T, L> value, T* srcDst, int srcDstStep, PxlSize roi) {
  return shiftConst<Left, T, L>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi);
}

}  // namespace pxl::point
