// Rules every neighbourhood filter shares: mask codes, the anchor rule, the
// source border, scratch from the library's allocator, the final step of each
// sample form (rounding of a division, saturation) and AC4's untouched alpha.
//
// Border: src points at the first ROI pixel inside a larger image. A filter of
// radius r reads r pixels on every side of the ROI as ordinary data and never
// makes a border of its own; callers without such pixels build them with the
// border-copy members first.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/frame.h"
#include "frame/types.h"
#include "pxls.h"

namespace pxl::filter {

// A mask code is the decimal digits of its two sides, width first.
struct MaskDims {
  int width, height;
};
inline MaskDims maskDims(int code) { return {code / 10, code % 10}; }

// Strict codes: the fixed filters with a mask argument take 33 or 55 only.
inline bool strictMaskOk(int code) { return code == pxlMask3x3 || code == pxlMask5x5; }

// The anchor is the mask cell laid over the current pixel, so it must lie
// inside the mask. Mask sizes are looked at first.
inline PxlStatus checkMaskAnchor(PxlSize mask, PxlPoint anchor) {
  if (mask.width < 1 || mask.height < 1) return pxlStsMaskSize;
  if (anchor.x < 0 || anchor.x >= mask.width || anchor.y < 0 || anchor.y >= mask.height) return pxlStsAnchor;
  return pxlStsOk;
}

// Scratch of one call: one block from the library's allocator, released on
// every path by the destructor. ok() is false when the allocator refused.
template <class E>
class Scratch {
 public:
  explicit Scratch(long long elements)
      : p_(elements > 0 && elements <= INT32_MAX / static_cast<long long>(sizeof(E))
               ? reinterpret_cast<E*>(pxlsMalloc_8u(static_cast<int>(elements * static_cast<long long>(sizeof(E)))))
               : nullptr) {}
  ~Scratch() { pxlsFree(p_); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  bool ok() const { return p_ != nullptr; }
  E* get() const { return p_; }

 private:
  E* p_;
};

// A biased 16s sample: its sign bit flipped, the value plus 32768 taken as
// unsigned, so that sums of biased samples never go negative. The bias
// cancels in a difference and is taken off a sum at the end.
inline std::uint16_t biased(Pxl16s v) { return std::uint16_t(std::uint16_t(v) ^ 0x8000u); }
inline Pxl16s unbiased(std::uint16_t v) { return Pxl16s(std::int16_t(v ^ 0x8000u)); }

// The scratch type of a form: 16 bits for 8-bit sources, 32 for 16s, float
// for 32f. Integer sums are exact at every weight the fixed filters use.
template <class S>
using Acc = std::conditional_t<std::is_same_v<S, Pxl32f>, float, std::int32_t>;

// Nearest integer to s / d (d > 0), ties to even: the shift forms for 16 and
// 8 and the reciprocal products for the odd divisors all give this value.
inline std::int32_t roundDiv(std::int32_t s, std::int32_t d) {
  std::int32_t q = s / d, r = s % d;
  if (r < 0) r += d, --q;  // floor division
  const std::int32_t twice = 2 * r;
  if (twice > d || (twice == d && (q & 1))) ++q;
  return q;
}

// Clamp to the destination type: 0..255, -32768..32767; a float is stored
// as computed (infinities pass, any NaN as the one NaN of oneNaN).
template <class D, class V>
inline D saturate(V v) {
  if constexpr (std::is_same_v<D, Pxl32f>) {
    return oneNaN(D(v));
  } else {
    constexpr V lo = V(std::numeric_limits<D>::min()), hi = V(std::numeric_limits<D>::max());
    return D(v < lo ? lo : v > hi ? hi : v);
  }
}

// A float sum stored in an integer form: above the top gives the top, at or
// above the bottom the value rounded in the current mode, anything else
// (NaN included) the bottom.
template <class D>
inline D fromFloat(float v) {
  if constexpr (std::is_same_v<D, Pxl32f>) {
    return oneNaN(v);
  } else {
    constexpr float lo = float(std::numeric_limits<D>::min()), hi = float(std::numeric_limits<D>::max());
    if (v > hi) return std::numeric_limits<D>::max();
    if (v >= lo) return D(std::nearbyint(v));
    return std::numeric_limits<D>::min();
  }
}

// A float given by its bits: the reciprocals of the odd divisors.
inline float floatOfBits(std::uint32_t bits) {
  float f;
  std::memcpy(&f, &bits, sizeof f);
  return f;
}


// The computed samples of one row to the destination: every sample, or in
// AC4 the three colour samples of each pixel, so that alpha stays as it was.
template <Lay L, class T>
inline void storePixels(T* out, const T* res, int width) {
  if constexpr (L == Lay::AC4) {
    for (int x = 0; x < width; ++x)
      for (int ch = 0; ch < 3; ++ch) storeSample(out + x * 4 + ch, res[x * 4 + ch]);
  } else {
    std::memcpy(static_cast<void*>(out), res, std::size_t(width) * channelsOf(L) * sizeof(T));
  }
}

// In place: output row y reads source rows down to y + lag, so its result may
// only replace the image's row once the output row lag rows further down has
// been computed. Results wait in a ring of lag + 1 rows; compute(y, row) fills
// a whole row of width pixels and must read the image before it returns. The
// ring is taken before the first row, so a refused allocation writes nothing.
template <Lay L, class T, class F>
inline PxlStatus ringInPlace(T* img, int step, PxlSize roi, int lag, F&& compute) {
  const long long slot = ((long long)roi.width * channelsOf(L) * sizeof(T) + 15) & ~15LL;
  Scratch<unsigned char> ring(slot * (lag + 1LL));
  if (!ring.ok()) return pxlStsAlloc;
  auto at = [&](int y) { return reinterpret_cast<T*>(ring.get() + slot * (y % (lag + 1))); };
  for (int y = 0; y < roi.height; ++y) {
    compute(y, at(y));
    if (y >= lag) storePixels<L>(rowAt(img, step, y - lag), at(y - lag), roi.width);
  }
  for (int y = roi.height - lag < 0 ? 0 : roi.height - lag; y < roi.height; ++y)
    storePixels<L>(rowAt(img, step, y), at(y), roi.width);
  return pxlStsOk;
}

}  // namespace pxl::filter
