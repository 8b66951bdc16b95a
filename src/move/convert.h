// Type conversion shared by Convert, Scale and the vector conversions.
//
// A rule is a function object that maps lanes of the source type to lanes of
// the destination type. It is written once as a lane expression that
// compiles for a scalar and for a vector of any lane count (simd::Rebind
// changes the lane type on both), so that a row's vector blocks and its
// scalar tail produce the same bytes by construction. One row kernel runs
// every rule; one image walk handles layouts, alpha and contiguous images.
#pragma once

// Blocks span several registers (sixteen floats from sixteen bytes on the
// baseline level); they are passed between inline lane functions only, so
// the note that such vectors have another calling convention on wider
// instruction levels is irrelevant here.
#pragma GCC diagnostic ignored "-Wpsabi"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/frame.h"
#include "simd/vec.h"

namespace pxl::move {

using simd::Rebind;
using simd::splat;

template <class T>
inline constexpr bool kFloat = std::is_floating_point_v<T>;

// x with its lanes as To; narrowing expects values that fit To.
template <class To, class V>
inline Rebind<To, V> to(const V& x) {
  return simd::resize<To>(x);
}

// Limited first from above, then from below. A NaN fails the first
// comparison and so takes the upper limit.
template <class V>
inline V clampHighThenLow(V x, V lo, V hi) {
  return simd::vmax(simd::vmin(x, hi), lo);
}

// The value of x, saturated to the destination type.
//   integer to integer: clamped to the range both types share
//   integer to float: the value (exact for 8- and 16-bit sources; 32s rounds
//     in the current state)
//   float to integer: clamped to the destination's extremes as floats, then
//     converted in the current rounding state, which the member has set
template <class S, class D>
struct ConvertRule {
  static_assert(!(kFloat<S> && !kFloat<D> && sizeof(D) >= 4 && sizeof(S) == 4),
                "float cannot hold the int32 limits; convert through double");

  // 8- and 16-bit integers to float: each register of results is computed
  // from its own narrow lanes (see convertRow).
  static constexpr bool kByDestRegister = !kFloat<S> && sizeof(S) < 4 && std::is_same_v<D, float>;

  template <class V>
  Rebind<D, V> operator()(const V& x) const {
    if constexpr (kFloat<S> && !kFloat<D> && sizeof(D) == 1 && simd::kIsVector<V>) {
      // Bytes come out of saturating packs, which already hold every
      // integer below the lower limit to it, as they do the INT_MIN that the
      // conversion gives beyond the int32 range; so only the upper limit is
      // needed, and it also turns a NaN into the upper limit as in the lanes.
      return simd::packToBytes<D>(simd::roundToInt32(simd::vmin(x, splat<V>(S(std::numeric_limits<D>::max())))));
    } else if constexpr (kFloat<S> && !kFloat<D>) {
      const V c = clampHighThenLow(x, splat<V>(S(std::numeric_limits<D>::min())),
                                   splat<V>(S(std::numeric_limits<D>::max())));
      if constexpr (sizeof(D) == 1)
        return simd::packToBytes<D>(simd::roundToInt32(c));
      else
        return to<D>(simd::roundToInt32(c));
    } else if constexpr (kFloat<D> && sizeof(S) < 4) {
      // Exact in 32-bit integers first: a direct conversion of narrow lanes
      // to float is one scalar conversion per lane on some levels.
      return to<D>(simd::widenToInt32(x));
    } else if constexpr (kFloat<D>) {
      return to<D>(x);
    } else {
      // The wider of the two holds every value of both.
      using W = std::conditional_t<(sizeof(S) >= sizeof(D)), S, D>;
      constexpr long long lo = std::max<long long>(std::numeric_limits<S>::min(), std::numeric_limits<D>::min());
      constexpr long long hi = std::min<long long>(std::numeric_limits<S>::max(), std::numeric_limits<D>::max());
      using WV = Rebind<W, V>;
      WV w = to<W>(x);
      if constexpr (hi < static_cast<long long>(std::numeric_limits<W>::max())) w = simd::vmin(w, splat<WV>(hi));
      if constexpr (lo > static_cast<long long>(std::numeric_limits<W>::min())) w = simd::vmax(w, splat<WV>(lo));
      return to<D>(w);
    }
  }
};


// Lanes per vector block of a pair: one register of the narrower type, so
// that a byte side always moves whole registers.
template <class S, class D>
inline constexpr int kPairBlock = simd::kBytes / int(std::min(sizeof(S), sizeof(D)));

template <class Rule, class = void>
struct ByDestRegister : std::false_type {};
template <class Rule>
struct ByDestRegister<Rule, std::void_t<decltype(Rule::kByDestRegister)>> : std::bool_constant<Rule::kByDestRegister> {};

// One row of len samples. Rules whose pair has no vector path (Vectorised
// false) run the scalar lane only; the bytes are the same either way.
// Widening rules that ask for it take blocks of one destination register:
// a block of several registers is assembled in memory by the compiler, and
// the rule's lanes are independent, so the bytes do not depend on the block.
template <class S, class D, bool Vectorised, class Rule>
void convertRow(const S* src, D* dst, int len, const Rule& rule) {
  int i = 0;
  if constexpr (Vectorised && ByDestRegister<Rule>::value) {
    constexpr int N = simd::kLanes<D>;
    using SV = simd::Vec<S, N>;
    for (; i + N <= len; i += N) simd::store(dst + i, rule(simd::load<SV>(src + i)));
  } else if constexpr (Vectorised) {
    constexpr int N = kPairBlock<S, D>;
    using SV = simd::Vec<S, N>;
    for (; i + N <= len; i += N) simd::store(dst + i, rule(simd::load<SV>(src + i)));
  }
  for (; i < len; ++i) storeSample(dst + i, rule(loadSample(src + i)));
}

// AC4: the three colour samples of each pixel; the fourth is neither read
// nor written.
template <class S, class D, class Rule>
void convertRowAC4(const S* src, D* dst, int width, const Rule& rule) {
  for (int x = 0; x < width; ++x, src += 4, dst += 4)
    for (int c = 0; c < 3; ++c) storeSample(dst + c, rule(loadSample(src + c)));
}

// Walks the ROI row by row, or as one row when the image is contiguous: both
// steps equal their rows' bytes, so one row ends where the next begins. The
// collapsed length must fit the kernels' sample count; an image beyond that
// is walked row by row, which writes the same bytes.
template <class S, class D, Lay L, bool Vectorised, class Rule>
void walkImage(const S* src, int srcStep, D* dst, int dstStep, PxlSize roi, const Rule& rule) {
  constexpr int ch = channelsOf(L);
  const long long samples = static_cast<long long>(roi.width) * ch;
  if (srcStep == samples * static_cast<long long>(sizeof(S)) && dstStep == samples * static_cast<long long>(sizeof(D)) &&
      samples * roi.height < INT_MAX) {
    roi = PxlSize{roi.width * roi.height, 1};
  }
  for (int y = 0; y < roi.height; ++y) {
    const S* s = rowAt(src, srcStep, y);
    D* d = rowAt(dst, dstStep, y);
    if constexpr (L == Lay::AC4)
      convertRowAC4(s, d, roi.width, rule);
    else
      convertRow<S, D, Vectorised>(s, d, roi.width * ch, rule);
  }
}

}  // namespace pxl::move
