// Channel manipulation: pxliDup (one sample to three) and pxliSwapChannels.
#include "frame/frame.h"

namespace pxl::move {

template <class T>
PxlStatus dupC1C3(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    for (int x = 0; x < roi.width; ++x) {
      const T v = loadSample(s + x);
      storeSample(d + 3 * x, v), storeSample(d + 3 * x + 1, v), storeSample(d + 3 * x + 2, v);
    }
  }
  return pxlStsOk;
}

// Frame of SwapChannels: pointers, sizes, steps, then the order's entries.
// The entries need not be a permutation: {0, 0, 0} spreads channel 0.
template <class... S>
PxlStatus checkSwap(bool null, PxlSize roi, const int* order, S... steps) {
  if (null || order == nullptr) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, steps...)) return st;
  for (int c = 0; c < 3; ++c)
    if (order[c] < 0 || order[c] > 2) return pxlStsChannelOrder;
  return pxlStsOk;
}

// dst[c] = src[order[c]] for the three colour samples; a pixel is read
// whole before it is written, so the same loop serves in place. The common
// reversal {2, 1, 0} gets its own instance with the order known at compile
// time, so that the compiler can turn the loop into shuffles.
template <int Ch, class T, class O>
void swapRows(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, const O& order) {
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    for (int x = 0; x < roi.width; ++x) {
      const T px[3] = {loadSample(s + x * Ch), loadSample(s + x * Ch + 1), loadSample(s + x * Ch + 2)};
      for (int c = 0; c < 3; ++c) storeSample(d + (x * Ch + c), px[order[c]]);
    }
  }
}

struct Reversed {
  constexpr int operator[](int c) const { return 2 - c; }
};

template <int Ch, class T>
void swapAny(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, const int* order) {
  if (order[0] == 2 && order[1] == 1 && order[2] == 0)
    swapRows<Ch>(src, srcStep, dst, dstStep, roi, Reversed{});
  else
    swapRows<Ch>(src, srcStep, dst, dstStep, roi, order);
}

template <class T, Lay L>
PxlStatus swapChannels(const T* src, int srcStep, T* dst, int dstStep, PxlSize roi, const int* dstOrder) {
  if (PxlStatus st = checkSwap(anyNull(src, dst), roi, dstOrder, srcStep, dstStep)) return st;
  swapAny<channelsOf(L)>(src, srcStep, dst, dstStep, roi, dstOrder);
  return pxlStsOk;
}

template <class T, Lay L>
PxlStatus swapChannelsInPlace(T* srcDst, int srcDstStep, PxlSize roi, const int* dstOrder) {
  if (PxlStatus st = checkSwap(srcDst == nullptr, roi, dstOrder, srcDstStep)) return st;
  swapAny<channelsOf(L)>(srcDst, srcDstStep, srcDst, srcDstStep, roi, dstOrder);
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/pichannel.inc"
