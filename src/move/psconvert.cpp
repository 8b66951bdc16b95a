// Vector conversions: plain (8u32f, 32s32f, 32s64f) and scaled float to
// integer (the value times 2^-scale, clamped and rounded by roundMode).
#include <cmath>
#include <xmmintrin.h>

#include "frame/fpstate.h"
#include "move/convert.h"

namespace pxl::move {
namespace {

// Float to integer with a scale: computed in double, where x * 2^-scale is
// exact for every float x and the int32 limits are exact too; the clamp and
// the conversion are those of Convert.
template <class D>
struct ScaledToIntRule {
  double factor;
  template <class V>
  Rebind<D, V> operator()(const V& x) const {
    using DV = Rebind<double, V>;
    const DV v = to<double>(x) * splat<DV>(factor);
    return ConvertRule<double, D>{}(v);
  }
};

// Beyond +-300 the result no longer depends on the scale: every nonzero
// float saturates or rounds to zero. Clamping keeps 2^-scale finite and
// nonzero, so that 0 * 2^-scale stays 0.
inline double powerOfTwo(int scale) { return std::ldexp(1.0, -std::clamp(scale, -300, 300)); }

// The whole SSE control register as the caller had it, put back on return.
class SseRoundingForCall {
 public:
  explicit SseRoundingForCall(int roundMode) : saved_(_mm_getcsr()) {
    const unsigned field = roundMode == pxlRndNear ? kSseRoundNear : kSseRoundZero;
    _mm_setcsr((saved_ & ~unsigned(kSseRoundField)) | field);
  }
  ~SseRoundingForCall() { _mm_setcsr(saved_); }
  SseRoundingForCall(const SseRoundingForCall&) = delete;
  SseRoundingForCall& operator=(const SseRoundingForCall&) = delete;

 private:
  unsigned saved_;
};

// Round to nearest, ties to even, or toward zero, without the SSE state: the
// truncated value and the exact remainder decide.
inline double roundByMode(double v, bool nearest) {
  const double t = std::trunc(v);
  if (!nearest) return t;
  const double rest = v - t;  // exact, in (-1, 1)
  const bool odd = std::fmod(t, 2.0) != 0.0;
  if (rest > 0.5 || (rest == 0.5 && odd)) return t + 1.0;
  if (rest < -0.5 || (rest == -0.5 && odd)) return t - 1.0;
  return t;
}

}  // namespace

template <class S, class D>
PxlStatus convertVector(const S* src, D* dst, int length) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (length < 1) return pxlStsSize;
  convertRow<S, D, true>(src, dst, length, ConvertRule<S, D>{});
  return pxlStsOk;
}

template <class S, class D>
PxlStatus convertVectorSfs(const S* src, D* dst, int length, int roundMode, int scale) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (length < 1) return pxlStsSize;
  if constexpr (std::is_same_v<S, Pxl32f>) {
    const SseRoundingForCall rounding(roundMode);
    convertRow<S, D, true>(src, dst, length, ScaledToIntRule<D>{powerOfTwo(scale)});
  } else {
    // 64f32s: the x87 rounding field follows roundMode for the call and is
    // restored if it differed. The arithmetic itself is done in double with
    // the rounding spelled out, which gives the same integers.
    const bool nearest = roundMode == pxlRndNear;
    const X87RoundingScope rounding(nearest ? kX87RoundNear : kX87RoundZero);
    const double factor = powerOfTwo(scale);
    for (int i = 0; i < length; ++i) {
      double v = loadSample(src + i) * factor;
      v = v < 2147483647.0 ? v : 2147483647.0;  // a NaN takes the upper limit
      v = v > -2147483648.0 ? v : -2147483648.0;
      storeSample(dst + i, static_cast<D>(roundByMode(v, nearest)));
    }
  }
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/psconvert.inc"
