// Scale: the whole range of one type onto the whole range of another.
//
// From 8u the rules are exact integer products (or a float range); to 8u the
// fast hint uses shifts only and the accurate hint x * a + b rounded to
// nearest. The members that set a rounding state do so at entry, before
// their checks, and leave the caller at nearest when they return an error.
#include "frame/fpstate.h"
#include "move/convert.h"

namespace pxl::move {
namespace {

// 8u to 16u, 16s, 32s: 0 maps to the lowest value, 255 to the highest.
template <class D>
struct FromBytesRule {
  template <class V>
  Rebind<D, V> operator()(const V& x) const {
    if constexpr (std::is_same_v<D, Pxl16u>) {
      return to<D>(to<std::uint16_t>(x) * splat<Rebind<std::uint16_t, V>>(257));
    } else if constexpr (std::is_same_v<D, Pxl16s>) {
      using IV = Rebind<std::int32_t, V>;
      return to<D>(to<std::int32_t>(x) * splat<IV>(257) - splat<IV>(32768));
    } else {
      // x * 0x01010101 repeats the byte; the flipped top bit moves 0..2^32-1
      // onto the signed range.
      using UV = Rebind<std::uint32_t, V>;
      return to<D>((to<std::uint32_t>(x) * splat<UV>(16843009u)) ^ splat<UV>(0x80000000u));
    }
  }
};

// 8u to 32f: x * ((vMax - vMin) / 255) + vMin, multiply then add, in single
// precision.
struct BytesToRangeRule {
  float k, vMin;
  template <class V>
  Rebind<float, V> operator()(const V& x) const {
    using FV = Rebind<float, V>;
    return to<float>(x) * splat<FV>(k) + splat<FV>(vMin);
  }
};

// 32f to 8u: clamped to [vMin, vMax] (a NaN takes vMax), times k plus
// offset, rounded in the current state (nearest, set by the member) and
// saturated.
struct RangeToBytesRule {
  float k, offset, vMin, vMax;
  template <class V>
  Rebind<Pxl8u, V> operator()(const V& x) const {
    using IV = Rebind<std::int32_t, V>;
    const V c = clampHighThenLow(x, splat<V>(vMin), splat<V>(vMax));
    const IV r = simd::roundToInt32(c * splat<V>(k) + splat<V>(offset));
    return to<Pxl8u>(simd::vmax(simd::vmin(r, splat<IV>(255)), splat<IV>(0)));
  }
};

// To 8u, fast hint: arithmetic shifts only. x - (x >> 8) shrinks the range
// by 1/256 so that the top value lands on 255 after the shift.
template <class S>
struct ToBytesFastRule {
  template <class V>
  Rebind<Pxl8u, V> operator()(const V& x) const {
    using IV = Rebind<std::int32_t, V>;
    IV t = to<std::int32_t>(x);
    if constexpr (std::is_same_v<S, Pxl16u>) t = t - splat<IV>(32768);
    constexpr int shift = std::is_same_v<S, Pxl32s> ? 24 : 8;
    return to<Pxl8u>(((t - (t >> 8)) >> shift) + splat<IV>(128));
  }
};

// Round to nearest, ties to even, whatever the SSE rounding state: the
// truncated value and the exact remainder decide. Valid for v above -0.5,
// which is all that x * a + b reaches here.
template <class V>
inline V nearestEvenNonNegative(const V& v) {
  using IV = Rebind<std::int32_t, V>;
  const IV t = to<std::int32_t>(v);  // truncation
  const V tv = to<double>(t);
  const V rest = v - tv;  // exact
  const V half = splat<V>(0.5);
  const V odd = to<double>(t & splat<IV>(1));
  return simd::select<V>((rest > half) | ((rest == half) & (odd == splat<V>(1.0))), tv + splat<V>(1.0), tv);
}

// To 8u, accurate hint: x * a + b rounded to nearest, low byte kept. The
// constants are those of the single-precision and double formulas; in
// double the products and sums of 16-bit inputs are exact, and for 32-bit
// inputs the result stays far from any tie, so the bytes are those of an
// extended-precision evaluation.
template <class S>
struct ToBytesAccurateRule {
  static constexpr double a() {
    if constexpr (std::is_same_v<S, Pxl32s>) return 5.937181414556033e-8;
    else return double(0x1.fe01fep-9f);  // 255/65535 as a single, 0x3b7f00ff
  }
  static constexpr double b() {
    if constexpr (std::is_same_v<S, Pxl32s>) return 127.5000000296859;
    else if constexpr (std::is_same_v<S, Pxl16s>) return double(0x1.fe01fep+6f);  // 127.50195, 0x42ff00ff
    else return 0.0;
  }
  template <class V>
  Rebind<Pxl8u, V> operator()(const V& x) const {
    using DV = Rebind<double, V>;
    const DV v = to<double>(x) * splat<DV>(a()) + splat<DV>(b());
    return to<Pxl8u>(to<std::int32_t>(nearestEvenNonNegative(v)) & splat<Rebind<std::int32_t, V>>(255));
  }
};

}  // namespace

template <class S, class D, Lay L>
PxlStatus scaleFromBytes(const S* src, int srcStep, D* dst, int dstStep, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, srcStep, dstStep)) return st;
  walkImage<S, D, L, true>(src, srcStep, dst, dstStep, roi, FromBytesRule<D>{});
  return pxlStsOk;
}

// 8u32f and 32f8u: the range is looked at before anything else, and it must
// be positive (a NaN range is not). 32f8u sets nearest first of all.
template <class S, class D, Lay L>
PxlStatus scaleRange(const S* src, int srcStep, D* dst, int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax) {
  auto frame = [&]() -> PxlStatus {
    if (!(vMax - vMin > 0.0f)) return pxlStsScaleRange;
    if (anyNull(src, dst)) return pxlStsNullPtr;
    return checkShape<Order::NST>(roi, srcStep, dstStep);
  };
  if constexpr (std::is_same_v<S, Pxl8u>) {
    if (PxlStatus st = frame()) return st;
    const BytesToRangeRule rule{(vMax - vMin) / 255.0f, vMin};
    walkImage<S, D, L, true>(src, srcStep, dst, dstStep, roi, rule);
  } else {
    SseRoundingScope rounding(kSseRoundNear);
    if (PxlStatus st = frame()) {
      rounding.keepCurrent();
      return st;
    }
    const float k = 255.0f / (vMax - vMin);
    const RangeToBytesRule rule{k, (0.0f - k) * vMin, vMin, vMax};
    walkImage<S, D, L, true>(src, srcStep, dst, dstStep, roi, rule);
  }
  return pxlStsOk;
}

// 16u8u, 16s8u, 32s8u. pxlAlgHintAccurate sets the x87 rounding field to
// nearest before the checks; every other hint is the fast integer rule.
template <class S, Lay L>
PxlStatus scaleToBytes(const S* src, int srcStep, Pxl8u* dst, int dstStep, PxlSize roi, int hint) {
  auto frame = [&]() -> PxlStatus {
    if (anyNull(src, dst)) return pxlStsNullPtr;
    return checkShape<Order::NST>(roi, srcStep, dstStep);
  };
  if (hint == pxlAlgHintAccurate) {
    X87RoundingScope rounding(kX87RoundNear);
    if (PxlStatus st = frame()) {
      rounding.keepCurrent();
      return st;
    }
    walkImage<S, Pxl8u, L, true>(src, srcStep, dst, dstStep, roi, ToBytesAccurateRule<S>{});
  } else {
    if (PxlStatus st = frame()) return st;
    walkImage<S, Pxl8u, L, true>(src, srcStep, dst, dstStep, roi, ToBytesFastRule<S>{});
  }
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/piscale.inc"
