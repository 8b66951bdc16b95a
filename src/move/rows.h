// Row kernels of the data-movement members: a byte copy and a pattern fill,
// each with a cached and a streaming form. They trust their arguments.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <type_traits>

#include "simd/vec.h"

namespace pxl::move {

// A destination at least this large is written with streaming stores. Below
// it the result may well be read again from cache, and the system's copy and
// plain register stores are faster; above it (a quarter of the last-level
// cache of the machines we measure on) the destination cannot stay cached
// anyway, and streaming saves reading every line before overwriting it.
// The choice never changes a result.
inline constexpr std::size_t kStreamBytes = std::size_t(8) << 20;

inline bool streams(std::size_t destBytes) { return destBytes >= kStreamBytes; }

// Calls row(y, stream) for every row, stream a compile-time truth value that
// says whether the rows write around the cache: a destination of
// destBytes at least kStreamBytes does, in place as well as not, and is
// fenced once at the end.
template <class RowFn>
void streamedRows(std::size_t destBytes, int height, RowFn&& row) {
  if (streams(destBytes)) {
    for (int y = 0; y < height; ++y) row(y, std::true_type{});
    simd::storeFence();
  } else {
    for (int y = 0; y < height; ++y) row(y, std::false_type{});
  }
}

using Bytes = simd::Vec<std::uint8_t, simd::kBytes>;

constexpr int gcdOf(int a, int b) { return b ? gcdOf(b, a % b) : a; }

// One pixel's bytes repeated so that a register loaded at any offset below
// kPeriod holds the fill as it continues from that offset. kPeriod is the
// least multiple of both the pixel and the register, so the fill of a long
// row is kRegs registers stored in turn (1 for C1 and C4, 3 for C3).
template <int P>
struct FillPattern {
  static constexpr int kPeriod = P / gcdOf(P, simd::kBytes) * simd::kBytes;
  static constexpr int kRegs = kPeriod / simd::kBytes;
  std::uint8_t bytes[kPeriod + simd::kBytes];
  // The pattern repeats every byte (a zero fill, most 8-bit fills) or every
  // 4 bytes: then the system's memset or wmemset does the cached fill, with
  // the widest stores of the processor it runs on.
  bool byteWise = true, wordWise = true;
  explicit FillPattern(const void* pixel) {
    const auto* px = static_cast<const std::uint8_t*>(pixel);
    for (int i = 0; i < kPeriod + simd::kBytes; ++i) bytes[i] = px[i % P];
    for (int i = 0; i < kPeriod; ++i) {
      byteWise = byteWise && bytes[i] == bytes[0];
      wordWise = wordWise && bytes[i] == bytes[i % 4];
    }
  }
};

// Pattern registers stored from d + i while a whole register remains.
template <bool Stream, int P>
std::size_t fillRegisters(std::uint8_t* d, std::size_t i, std::size_t n, const FillPattern<P>& pat, int& phase) {
  constexpr int B = simd::kBytes, Period = FillPattern<P>::kPeriod;
  for (; i + B <= n; i += B) {
    const Bytes r = simd::load<Bytes>(pat.bytes + phase);
    if constexpr (Stream)
      simd::streamStore(d + i, r);
    else
      simd::store(d + i, r);
    if constexpr (FillPattern<P>::kRegs > 1) {
      phase += B;
      if (phase >= Period) phase -= Period;
    }
  }
  return i;
}

// n bytes of the pattern from phase 0 at d.
template <int P>
void fillRow(std::uint8_t* d, const FillPattern<P>& pat, std::size_t n, bool stream) {
  constexpr int B = simd::kBytes, Period = FillPattern<P>::kPeriod;
  if (pat.byteWise) {
    std::memset(d, pat.bytes[0], n);
    return;
  }
  std::size_t i = 0;
  int phase = 0;
  // wmemset takes wchar_t words on their boundary: at any other address it
  // rounds to one and shifts the pattern by the difference.
  if (!stream && pat.wordWise && n >= 4 && reinterpret_cast<std::uintptr_t>(d) % 4 == 0) {
    static_assert(sizeof(wchar_t) == 4, "wmemset fills 4-byte words");
    wchar_t w;
    std::memcpy(&w, pat.bytes, 4);
    std::wmemset(reinterpret_cast<wchar_t*>(d), w, n / 4);
    i = n / 4 * 4;
  } else if (stream && n >= 2 * B) {
    i = (0 - reinterpret_cast<std::uintptr_t>(d)) & (B - 1);
    std::memcpy(d, pat.bytes, i);
    phase = int(i % Period);
    i = fillRegisters<true>(d, i, n, pat, phase);
  } else {
    i = fillRegisters<false>(d, i, n, pat, phase);
  }
  std::memcpy(d + i, pat.bytes + phase, n - i);
}

// n bytes from s to d; the ranges must not overlap.
inline void copyRow(std::uint8_t* d, const std::uint8_t* s, std::size_t n, bool stream) {
  constexpr int B = simd::kBytes;
  if (!stream || n < 2 * B) {
    std::memcpy(d, s, n);
    return;
  }
  // The first register unaligned, then aligned streamed registers; the last
  // register is stored again ending at the row's end. The stretches written
  // twice get the same bytes, as source and destination are distinct.
  simd::store(d, simd::load<Bytes>(s));
  std::size_t i = B - (reinterpret_cast<std::uintptr_t>(d) & (B - 1));
  for (; i + 4 * B <= n; i += 4 * B) {
    const Bytes a = simd::load<Bytes>(s + i), b = simd::load<Bytes>(s + i + B);
    const Bytes c = simd::load<Bytes>(s + i + 2 * B), e = simd::load<Bytes>(s + i + 3 * B);
    simd::streamStore(d + i, a);
    simd::streamStore(d + i + B, b);
    simd::streamStore(d + i + 2 * B, c);
    simd::streamStore(d + i + 3 * B, e);
  }
  for (; i + B <= n; i += B) simd::streamStore(d + i, simd::load<Bytes>(s + i));
  if (i < n) simd::store(d + n - B, simd::load<Bytes>(s + n - B));
}

}  // namespace pxl::move

namespace pxl::move {

// Samples N of every pixel, pixels SS samples apart in s and DS apart in d:
// the one loop behind the channel extractions, insertions and repacks.
template <int SS, int DS, int N, class T>
inline void stridedRow(const T* s, T* d, int width) {
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < N; ++c) storeSample(d + (x * DS + c), loadSample(s + (x * SS + c)));
}

// Writes pixel x (write(x)) where mask byte x is not zero. The mask is
// taken eight bytes at a time: all clear skips eight pixels, all set writes
// them without testing each byte.
template <class W>
inline void maskedRow(const std::uint8_t* m, int width, W&& write) {
  constexpr std::uint64_t kOnes = 0x0101010101010101ull, kHighs = 0x8080808080808080ull;
  int x = 0;
  for (; x + 8 <= width; x += 8) {
    std::uint64_t bits;
    std::memcpy(&bits, m + x, 8);
    if (bits == 0) continue;
    const bool someClear = ((bits - kOnes) & ~bits & kHighs) != 0;
    if (!someClear) {
      for (int k = 0; k < 8; ++k) write(x + k);
    } else {
      for (int k = 0; k < 8; ++k)
        if (m[x + k]) write(x + k);
    }
  }
  for (; x < width; ++x)
    if (m[x]) write(x);
}

}  // namespace pxl::move
