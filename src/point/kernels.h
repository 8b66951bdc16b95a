// Row drivers of the pointwise decisions: logic, shifts, thresholds and
// comparisons. Each family states its rule once, as a generic lambda over
// lanes; the drivers here run it on whole registers and then on the scalar
// tail, so every length and alignment goes through the same expression.
//
// The operands besides the source are read through small adaptors: another
// image's row (Row) or a per-channel constant laid out so that a register
// loaded at a given phase holds the constants of the samples from there on
// (Consts). The lambda never knows which.
#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "frame/frame.h"
#include "move/rows.h"
#include "simd/vec.h"

namespace pxl::point {

using simd::kIsVector;
using simd::load;
using simd::store;

template <class T>
using Reg = simd::Reg<T>;
template <class T>
inline constexpr int kLanes = simd::kLanes<T>;

// The operand at sample i of a second image row.
template <class T>
struct Row {
  const T* p;
  template <class V>
  V at(int i, int) const {
    if constexpr (kIsVector<V>)
      return load<V>(p + i);
    else
      return loadSample(p + i);
  }
};

// One constant per channel, period P samples. A register starting at a
// sample whose channel is `phase` loads from v + phase.
template <class T, int P>
struct Consts {
  T v[P + kLanes<T>];
  explicit Consts(const T* vals) {
    for (int i = 0; i < P + kLanes<T>; ++i) v[i] = vals[i % P];
  }
  template <class V>
  V at(int, int phase) const {
    if constexpr (kIsVector<V>)
      return load<V>(v + phase);
    else
      return v[phase];
  }
};

// The constants of a member's processed channels as a pattern of the
// layout's period: AC4 repeats the first constant in the alpha lane, whose
// result is never stored.
template <class T, Lay L>
Consts<T, channelsOf(L)> constsOf(const T* vals) {
  T full[4];
  for (int c = 0; c < channelsOf(L); ++c) full[c] = vals[c < processedOf(L) ? c : 0];
  return Consts<T, channelsOf(L)>(full);
}

// A constant: by value in C1, one per channel by pointer elsewhere.
template <class T, Lay L>
using ValueArg = std::conditional_t<L == Lay::C1, T, const T*>;

// The constants copied into the call (see LocalValues): valuesOf(v).get()
// is a pointer valid to the end of the full expression.
template <class T, Lay L>
inline LocalValues<T> valuesOf(const ValueArg<T, L>& v) {
  if constexpr (L == Lay::C1)
    return LocalValues<T>(&v, 1);
  else
    return LocalValues<T>(v, processedOf(L));
}

// d[i] = f(s[i], operands at i...) for n samples laid out with period P.
// With Alpha (AC4) every fourth sample of d keeps what it held: whole
// registers are merged with the old destination through a lane mask. The
// in-place forms pass d == s; each register is read before it is written.
// With Stream, the scalar rule first brings d to a register boundary, and
// the blocks then go around the cache (the caller fences once at the end);
// a destination not aligned to its sample size is written normally.
template <int P, bool Alpha, bool Stream = false, class T, class F, class... Ops>
void mapRow(const T* s, T* d, int n, F&& f, const Ops&... ops) {
  using V = Reg<T>;
  constexpr int K = kLanes<T>;
  static_assert(!Alpha || K % 4 == 0, "a register holds whole pixels");
  int i = 0, phase = 0;
  const auto scalar = [&] {
    if (!Alpha || i % 4 != 3) storeSample(d + i, static_cast<T>(f(loadSample(s + i), ops.template at<T>(i, phase)...)));
    if (++phase == P) phase = 0;
  };
  bool stream = Stream;
  if constexpr (Stream) {
    const int peel = simd::streamPeel(d, n);
    stream = peel >= 0;
    for (; i < peel; ++i) scalar();
  }
  // After the peel every block starts at the same place in the pixel.
  using M = decltype(V{} < V{});
  M colour{};
  if constexpr (Alpha)
    for (int j = 0; j < K; ++j) colour[j] = (i + j) % 4 == 3 ? 0 : -1;
  // Two registers a turn keep the loads of the next block in flight.
#pragma GCC unroll 2
  for (; i + K <= n; i += K) {
    V r = static_cast<V>(f(load<V>(s + i), ops.template at<V>(i, phase)...));
    if constexpr (Alpha) r = simd::select<V>(colour, r, load<V>(d + i));
    if (stream)
      simd::streamStore(d + i, r);
    else
      store(d + i, r);
    phase = (phase + K) % P;
  }
  for (; i < n; ++i) scalar();
}

using move::streamedRows;

// The row of a member of layout L: width pixels.
template <Lay L, bool Stream = false, class T, class F, class... Ops>
void mapPixels(const T* s, T* d, int width, F&& f, const Ops&... ops) {
  mapRow<channelsOf(L), L == Lay::AC4, Stream>(s, d, width * channelsOf(L), f, ops...);
}

// mapPixels over every row of an image.
template <Lay L, class T, class F, class... Ops>
void mapImage(const T* s, int sStep, T* d, int dStep, PxlSize roi, F&& f, const Ops&... ops) {
  roi = gaplessShape(roi, rowBytesOf<L, T>(roi.width), sStep, dStep);
  streamedRows(imageBytes<L, T>(roi), roi.height, [&](int y, auto stream) {
    mapPixels<L, decltype(stream)::value>(rowAt(s, sStep, y), rowAt(d, dStep, y), roi.width, f, ops...);
  });
}

// Comparison masks: 255 where f holds in every processed channel of a
// pixel, 0 elsewhere, one byte per pixel. f returns a lane mask (-1 or 0 per
// lane) on registers and a truth value on scalars. A register block covers
// K pixels (Ch registers); single-channel rows narrow the mask straight to
// bytes, the others gather the channels of each pixel from the block. With
// Stream, a byte source of one channel, whose block of masks is a whole
// register, writes it around the cache after a scalar run to a register
// boundary, as mapRow does.
template <Lay L, bool Stream = false, class T, class F, class... Ops>
void maskPixels(const T* s, Pxl8u* d, int width, F&& f, const Ops&... ops) {
  using V = Reg<T>;
  constexpr int K = kLanes<T>, Ch = channelsOf(L), Used = processedOf(L);
  constexpr bool kStream = Stream && Ch == 1 && sizeof(T) == 1;
  static_assert(kStream == Stream, "only byte rows of one channel stream");
  using B = simd::Vec<std::int8_t, K>;
  const auto scalar = [&](int x) {
    bool all = true;
    for (int c = 0; c < Used; ++c) {
      const int i = x * Ch + c;
      all = all && bool(f(loadSample(s + i), ops.template at<T>(i, c)...));
    }
    d[x] = all ? 255 : 0;
  };
  int x = 0;
  if constexpr (kStream)
    for (const int peel = simd::streamPeel(d, width); x < peel; ++x) scalar(x);
#pragma GCC unroll 2
  for (; x + K <= width; x += K) {
    if constexpr (Ch == 1) {
      const B m = simd::convert<B>(f(load<V>(s + x), ops.template at<V>(x, 0)...));
      if constexpr (kStream)
        simd::streamStore(d + x, m);
      else
        store(d + x, m);
    } else {
      std::int8_t block[Ch * K];
      for (int j = 0; j < Ch; ++j) {
        const int i = x * Ch + j * K;
        store(block + j * K, simd::convert<B>(f(load<V>(s + i), ops.template at<V>(i, (j * K) % Ch)...)));
      }
      if constexpr (Ch == 4) {
        // A pixel's four mask bytes are one 32-bit lane; AC4 sets the alpha
        // byte (the high one on this little-endian target) before testing.
        using W = Reg<std::int32_t>;
        constexpr int KW = kLanes<std::int32_t>;
        for (int j = 0; j < K; j += KW) {
          W w = load<W>(block + 4 * j);
          if constexpr (Used == 3) w |= std::int32_t(0xFF000000u);
          store(d + x + j, simd::convert<simd::Vec<std::int8_t, KW>>(w == -1));
        }
      } else {
        for (int p = 0; p < K; ++p) {
          std::int8_t all = -1;
          for (int c = 0; c < Used; ++c) all &= block[p * Ch + c];
          d[x + p] = static_cast<Pxl8u>(all);
        }
      }
    }
  }
  for (; x < width; ++x) scalar(x);
}

// maskPixels over every row of an image, with the operand of row y from
// opAt(y): mask bytes of 8 MiB or more are streamed. opStep is the step of
// an image operand, or sStep for a constant.
template <Lay L, class T, class F, class OpAt>
void maskImage(const T* s, int sStep, Pxl8u* d, int dStep, PxlSize roi, F&& f, OpAt&& opAt, int opStep) {
  if (gapless(dStep, std::size_t(roi.width))) roi = gaplessShape(roi, rowBytesOf<L, T>(roi.width), sStep, opStep);
  if constexpr (L == Lay::C1 && sizeof(T) == 1) {
    streamedRows(std::size_t(roi.width) * std::size_t(roi.height), roi.height, [&](int y, auto stream) {
      maskPixels<L, decltype(stream)::value>(rowAt(s, sStep, y), rowAt(d, dStep, y), roi.width, f, opAt(y));
    });
  } else {
    for (int y = 0; y < roi.height; ++y) maskPixels<L>(rowAt(s, sStep, y), rowAt(d, dStep, y), roi.width, f, opAt(y));
  }
}

}  // namespace pxl::point
