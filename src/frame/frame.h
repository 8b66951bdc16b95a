// The call frame shared by the image families: null checks, then sizes and
// steps in the order that each family fixes, then the family's own checks.
// The order is part of each family's contract, so it is held as data (Order)
// and every member goes through the same helper instead of spelling it out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "frame/types.h"

namespace pxl {

// N: null pointers (always first), S: sizes, T: steps.
enum class Order : std::uint8_t { NS, NST, NTS };

template <class... P>
inline bool anyNull(const P*... p) {
  return ((p == nullptr) || ...);
}

// Height before width, as the scaled arithmetic looks at them; both give the
// same status, so the order is invisible to a caller.
inline bool badSize(PxlSize roi) { return roi.height < 1 || roi.width < 1; }

// A float result that is NaN leaves as the one quiet NaN (0x7FC00000 in
// float, 0x7FF8000000000000 in double). When two NaNs meet in an addition or
// a product, the one passed on is the instruction's first operand, and for a
// commutative operation the compiler picks that order freely, differently in
// two-operand and three-operand instruction forms: without this rule each
// instruction level gives other NaN bits. It costs a compare and a blend per
// vector of results.
template <class V>
inline V oneNaN(V v) {
  return v != v ? std::numeric_limits<V>::quiet_NaN() : v;
}

template <class... S>
inline bool badStep(S... steps) {
  return ((steps < 1) || ...);
}

// Sizes and steps in the family's order; steps are ignored under Order::NS.
template <Order O, class... S>
inline PxlStatus checkShape(PxlSize roi, S... steps) {
  if constexpr (O == Order::NTS) {
    if (badStep(steps...)) return pxlStsStep;
  }
  if (badSize(roi)) return pxlStsSize;
  if constexpr (O == Order::NST) {
    if (badStep(steps...)) return pxlStsStep;
  }
  return pxlStsOk;
}

// Whether an image's rows follow one another with no gap.
inline bool gapless(int step, std::size_t rowBytes) { return step > 0 && std::size_t(step) == rowBytes; }

// A serial walk over images whose rows all follow one another with no gap
// is one row of all the pixels, so that a narrow image pays a row's start-up
// cost once. Returns the shape to walk: the ROI, or one long row, as long as
// its bytes (and so its samples, whatever the layout) fit an int.
template <class... S>
inline PxlSize gaplessShape(PxlSize roi, std::size_t rowBytes, S... steps) {
  if ((gapless(steps, rowBytes) && ...) && rowBytes * std::size_t(roi.height) <= std::size_t(INT32_MAX))
    return {roi.width * roi.height, 1};
  return roi;
}

// Bytes of the ROI of an image of layout L and sample type T.
template <Lay L, class T>
inline std::size_t rowBytesOf(int width) {
  return std::size_t(width) * channelsOf(L) * sizeof(T);
}
template <Lay L, class T>
inline std::size_t imageBytes(PxlSize roi) {
  return rowBytesOf<L, T>(roi.width) * std::size_t(roi.height);
}

// Channel folding: a C3 or C4 member that hands over to its C1 member looks
// at the width only, and the C1 member does every other check. So such a
// member reports a zero width even when a pointer is null.
template <class F>
inline PxlStatus foldToC1(PxlSize roi, int channels, F&& c1Member) {
  if (roi.width < 1) return pxlStsSize;
  roi.width *= channels;
  return c1Member(roi);
}

// Keeps the first warning of a serial row loop; every row runs regardless.
class FirstWarning {
 public:
  void add(PxlStatus s) {
    if (status_ == pxlStsOk) status_ = s;
  }
  PxlStatus status() const { return status_; }

 private:
  PxlStatus status_ = pxlStsOk;
};

template <class F>
inline PxlStatus serialRowsWithStatus(int height, F&& row) {
  FirstWarning w;
  for (int i = 0; i < height; ++i) w.add(row(i));
  return w.status();
}

}  // namespace pxl
