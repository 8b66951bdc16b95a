// Convert: every type pair in C1, C3, C4 and AC4. The value is kept and
// saturated to the destination; from float the member's rounding mode
// decides how the fraction goes.
#include "frame/fpstate.h"
#include "move/convert.h"

namespace pxl::move {
namespace {

// Pairs with vector blocks. Float to 8s and 16u stays a scalar loop, as do
// the 32s forms; their bytes would be the same either way.
template <class S, class D>
inline constexpr bool kVectorPair =
    (std::is_same_v<S, Pxl8u> && (std::is_same_v<D, Pxl16s> || std::is_same_v<D, Pxl16u> ||
                                  std::is_same_v<D, Pxl32f>)) ||
    (std::is_same_v<D, Pxl8u> && (std::is_same_v<S, Pxl16s> || std::is_same_v<S, Pxl16u> ||
                                  std::is_same_v<S, Pxl32f>)) ||
    (std::is_same_v<S, Pxl16s> && std::is_same_v<D, Pxl32f>) ||
    (std::is_same_v<S, Pxl32f> && std::is_same_v<D, Pxl16s>);

}  // namespace

// roundMode matters only from float: pxlRndNear rounds to nearest even, any
// other value truncates. The caller's rounding state is restored on return
// if this call changed its rounding field.
template <class S, class D, Lay L>
PxlStatus convertImage(const S* src, int srcStep, D* dst, int dstStep, PxlSize roi, int roundMode = pxlRndNear) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, srcStep, dstStep)) return st;
  const ConvertRule<S, D> rule;
  if constexpr (kFloat<S> && !kFloat<D>) {
    const SseRoundingScope rounding(roundMode == pxlRndNear ? kSseRoundNear : kSseRoundZero);
    walkImage<S, D, L, kVectorPair<S, D>>(src, srcStep, dst, dstStep, roi, rule);
  } else {
    (void)roundMode;
    walkImage<S, D, L, kVectorPair<S, D>>(src, srcStep, dst, dstStep, roi, rule);
  }
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/piconvert.inc"
