// One portable vector type for every instruction level.
//
// Kernels are written once against GCC/Clang vector extensions; the build's
// instruction level decides the register width (16 bytes on baseline x86-64,
// 32 bytes with AVX2, 64 with AVX-512) and the compiler emits the
// instructions. There is no
// run-time dispatch. The same lane functions also compile for plain scalars,
// so a kernel's block loop and its tail share one expression of the rule.
#pragma once

#include <immintrin.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace pxl::simd {

#if defined(__AVX512F__) && defined(__AVX512BW__)
#define PXL_SIMD_512 1
inline constexpr int kBytes = 64;
#elif defined(__AVX2__)
inline constexpr int kBytes = 32;
#else
inline constexpr int kBytes = 16;
#endif

template <class T, int N>
struct VecOf {
  typedef T type __attribute__((vector_size(sizeof(T) * N)));
};
template <class T, int N>
using Vec = typename VecOf<T, N>::type;

// Lanes of T that fill one register of this build.
template <class T>
inline constexpr int kLanes = kBytes / int(sizeof(T));

// A 128-bit integer is a scalar lane too: the exact sums of 32-bit complex
// products need it (scalar code only, never a vector).
// A 32-bit target has no 128-bit integer type: there it is two's complement
// in two 64-bit halves, with the operations the scale rule applies to a
// lane. It is compiled everywhere, so that the 64-bit tests compare it with
// the compiler's own type.
struct Int128Pair {
  std::uint64_t lo;
  std::int64_t hi;

  Int128Pair() = default;
  template <class I, class = std::enable_if_t<std::is_integral_v<I>>>
  constexpr Int128Pair(I v) : lo(std::uint64_t(std::int64_t(v))), hi(std::int64_t(v) < 0 ? -1 : 0) {
    static_assert(sizeof(I) < 8 || std::is_signed_v<I>, "64-bit unsigned values do not widen here");
  }
  constexpr Int128Pair(std::uint64_t l, std::int64_t h) : lo(l), hi(h) {}
  // The low bits: the callers saturate first, so the value fits.
  template <class I, class = std::enable_if_t<std::is_integral_v<I>>>
  explicit constexpr operator I() const {
    return static_cast<I>(lo);
  }

  friend constexpr Int128Pair operator+(Int128Pair a, Int128Pair b) {
    const std::uint64_t l = a.lo + b.lo;
    return {l, std::int64_t(std::uint64_t(a.hi) + std::uint64_t(b.hi) + (l < a.lo))};
  }
  friend constexpr Int128Pair operator-(Int128Pair a, Int128Pair b) {
    return {a.lo - b.lo, std::int64_t(std::uint64_t(a.hi) - std::uint64_t(b.hi) - (a.lo < b.lo))};
  }
  friend constexpr Int128Pair operator*(Int128Pair a, Int128Pair b) {
    // The low 128 bits of the product: lo x lo in full from 32-bit limbs,
    // the cross terms only in the high half.
    const std::uint64_t a0 = a.lo & 0xffffffffu, a1 = a.lo >> 32, b0 = b.lo & 0xffffffffu, b1 = b.lo >> 32;
    const std::uint64_t p00 = a0 * b0, p01 = a0 * b1, p10 = a1 * b0, p11 = a1 * b1;
    const std::uint64_t mid = (p00 >> 32) + (p01 & 0xffffffffu) + (p10 & 0xffffffffu);
    const std::uint64_t l = (mid << 32) | (p00 & 0xffffffffu);
    const std::uint64_t h = p11 + (p01 >> 32) + (p10 >> 32) + (mid >> 32) + a.lo * std::uint64_t(b.hi) +
                            std::uint64_t(a.hi) * b.lo;
    return {l, std::int64_t(h)};
  }
  friend constexpr Int128Pair operator-(Int128Pair a) { return Int128Pair(0) - a; }
  constexpr Int128Pair& operator++() { return *this = *this + Int128Pair(1); }
  friend constexpr Int128Pair operator&(Int128Pair a, Int128Pair b) { return {a.lo & b.lo, a.hi & b.hi}; }
  friend constexpr Int128Pair operator|(Int128Pair a, Int128Pair b) { return {a.lo | b.lo, a.hi | b.hi}; }
  // Arithmetic shift right and logical shift left, 0 <= n < 128.
  friend constexpr Int128Pair operator>>(Int128Pair a, int n) {
    if (n == 0) return a;
    if (n >= 64) return {std::uint64_t(a.hi >> (n - 64)), a.hi < 0 ? -1 : 0};
    return {(a.lo >> n) | (std::uint64_t(a.hi) << (64 - n)), a.hi >> n};
  }
  friend constexpr Int128Pair operator<<(Int128Pair a, int n) {
    if (n == 0) return a;
    if (n >= 64) return {0, std::int64_t(a.lo << (n - 64))};
    return {a.lo << n, std::int64_t((std::uint64_t(a.hi) << n) | (a.lo >> (64 - n)))};
  }
  friend constexpr bool operator==(Int128Pair a, Int128Pair b) { return a.lo == b.lo && a.hi == b.hi; }
  friend constexpr bool operator!=(Int128Pair a, Int128Pair b) { return !(a == b); }
  friend constexpr bool operator<(Int128Pair a, Int128Pair b) { return a.hi != b.hi ? a.hi < b.hi : a.lo < b.lo; }
  friend constexpr bool operator>(Int128Pair a, Int128Pair b) { return b < a; }
  friend constexpr bool operator<=(Int128Pair a, Int128Pair b) { return !(b < a); }
  friend constexpr bool operator>=(Int128Pair a, Int128Pair b) { return !(a < b); }
};
#if defined(__SIZEOF_INT128__)
__extension__ typedef __int128 Int128;
#else
using Int128 = Int128Pair;
#endif
template <class V>
inline constexpr bool kIsScalar = std::is_arithmetic_v<V> || std::is_same_v<V, Int128>;

template <class V>
struct ElemOf {
  using type = std::remove_cv_t<std::remove_reference_t<decltype(std::declval<V>()[0])>>;
};
template <class V>
using Elem = typename std::conditional_t<kIsScalar<V>, std::common_type<V>, ElemOf<V>>::type;

template <class V>
inline constexpr bool kIsVector = !kIsScalar<V>;

template <class V, class T>
inline V load(const T* p) {
  V v;
  std::memcpy(&v, p, sizeof v);
  return v;
}

template <class T, class V>
inline void store(T* p, const V& v) {
  std::memcpy(p, &v, sizeof v);
}

// Every lane a copy of s, bit for bit: adding s to a zero vector would turn
// a negative zero into a positive one (and quieten a signalling NaN).
template <class V, class S>
inline V splat(S s) {
  if constexpr (kIsVector<V>) {
    const Elem<V> e = static_cast<Elem<V>>(s);
    V v;
    for (int i = 0; i < int(sizeof(V) / sizeof(e)); ++i) v[i] = e;
    return v;
  } else {
    return static_cast<V>(s);
  }
}

// Lane-wise conversion; narrowing truncates, so callers clamp first.
template <class To, class From>
inline To convert(From v) {
  if constexpr (kIsVector<From>) {
    return __builtin_convertvector(v, To);
  } else {
    return static_cast<To>(v);
  }
}

// A vector wider than one register, taken one register at a time: the
// compiler lowers a comparison or a selection on such a vector to one
// scalar operation per lane, but handles register-sized pieces well.
template <class V>
inline constexpr bool kMultiRegister = kIsVector<V> && (sizeof(V) > kBytes);

template <class R, class... A, class F>
inline R bySlices(F&& f, const A&... a) {
  R out;
  constexpr int slices = int(sizeof(R)) / kBytes;
  for (int i = 0; i < slices; ++i) {
    auto piece = [i](const auto& v) {
      using E = std::remove_cv_t<std::remove_reference_t<decltype(v[0])>>;
      Vec<E, kBytes / int(sizeof(E))> p;
      std::memcpy(&p, reinterpret_cast<const char*>(&v) + i * int(sizeof(v)) / slices, sizeof p);
      return p;
    };
    const auto r = f(piece(a)...);
    std::memcpy(reinterpret_cast<char*>(&out) + i * kBytes, &r, sizeof r);
  }
  return out;
}

template <class V>
inline V select(decltype(std::declval<V>() < std::declval<V>()) m, V a, V b) {
  if constexpr (kMultiRegister<V>) {
    return bySlices<V>([](auto mm, auto x, auto y) { return mm ? x : y; }, m, a, b);
  } else {
    return m ? a : b;
  }
}

// The NaN of a commutative float operation. With two NaN operands the
// processor returns the first one, and which operand is first is the
// compiler's choice: it commutes + and * freely, differently in vector
// blocks and scalar tails and at each instruction level. A rule that must
// give the same bytes everywhere names it: where a is NaN the result is a,
// quietened (a + a), whatever r, the operation's own result, holds.
template <class V>
inline V firstNaN(V a, V r) {
  if constexpr (kIsVector<V>) {
    return select<V>(a != a, a + a, r);
  } else {
    return a != a ? a + a : r;
  }
}

// a < b ? a : b on one register. The float instructions compute exactly
// that, also for a NaN in either operand (the second one is returned), but
// the compiler does not find them from the expression without fast-math.
template <bool Min, class P>
inline P minMaxReg(P a, P b) {
  using E = Elem<P>;
  if constexpr (kIsVector<P> && sizeof(P) == 16 && std::is_same_v<E, float>) {
    return (P)(Min ? _mm_min_ps((__m128)a, (__m128)b) : _mm_max_ps((__m128)a, (__m128)b));
  } else if constexpr (kIsVector<P> && sizeof(P) == 16 && std::is_same_v<E, double>) {
    return (P)(Min ? _mm_min_pd((__m128d)a, (__m128d)b) : _mm_max_pd((__m128d)a, (__m128d)b));
#if defined(__AVX2__)
  } else if constexpr (kIsVector<P> && sizeof(P) == 32 && std::is_same_v<E, float>) {
    return (P)(Min ? _mm256_min_ps((__m256)a, (__m256)b) : _mm256_max_ps((__m256)a, (__m256)b));
  } else if constexpr (kIsVector<P> && sizeof(P) == 32 && std::is_same_v<E, double>) {
    return (P)(Min ? _mm256_min_pd((__m256d)a, (__m256d)b) : _mm256_max_pd((__m256d)a, (__m256d)b));
#endif
#if defined(PXL_SIMD_512)
  } else if constexpr (kIsVector<P> && sizeof(P) == 64 && std::is_same_v<E, float>) {
    return (P)(Min ? _mm512_min_ps((__m512)a, (__m512)b) : _mm512_max_ps((__m512)a, (__m512)b));
  } else if constexpr (kIsVector<P> && sizeof(P) == 64 && std::is_same_v<E, double>) {
    return (P)(Min ? _mm512_min_pd((__m512d)a, (__m512d)b) : _mm512_max_pd((__m512d)a, (__m512d)b));
#endif
  } else if constexpr (Min) {
    return a < b ? a : b;
  } else {
    return a > b ? a : b;
  }
}

template <class V>
inline V vmin(V a, V b) {
  if constexpr (kMultiRegister<V>) {
    return bySlices<V>([](auto x, auto y) { return minMaxReg<true>(x, y); }, a, b);
  } else {
    return minMaxReg<true>(a, b);
  }
}

template <class V>
inline V vmax(V a, V b) {
  if constexpr (kMultiRegister<V>) {
    return bySlices<V>([](auto x, auto y) { return minMaxReg<false>(x, y); }, a, b);
  } else {
    return minMaxReg<false>(a, b);
  }
}

// Left shift that is defined for negative lanes: done on the unsigned twin.
template <class V>
inline V shiftLeft(V x, int n) {
  using E = Elem<V>;
  if constexpr (std::is_same_v<E, Int128>) {
#if defined(__SIZEOF_INT128__)
    __extension__ typedef unsigned __int128 U128;
    return static_cast<V>(static_cast<U128>(x) << n);
#else
    return x << n;
#endif
  } else if constexpr (kIsVector<V>) {
    using U = std::make_unsigned_t<E>;
    using UV = Vec<U, int(sizeof(V) / sizeof(E))>;
    return (V)((UV)x << n);
  } else {
    return static_cast<V>(static_cast<std::make_unsigned_t<E>>(x) << n);
  }
}

}  // namespace pxl::simd

// Saturating add and subtract on whole registers of 8- and 16-bit lanes.
// These are the only operations here spelled in instructions: the compiler
// does not find them from the widened expression, and they are four to eight
// times cheaper. They compute exactly the saturated sum or difference.
#include <immintrin.h>

namespace pxl::simd {

template <class T>
using Reg = Vec<T, kBytes / int(sizeof(T))>;

#if defined(PXL_SIMD_512)
using RawReg = __m512i;
#define PXL_SAT_OP(op, suffix) _mm512_##op##_##suffix
#elif defined(__AVX2__)
using RawReg = __m256i;
#define PXL_SAT_OP(op, suffix) _mm256_##op##_##suffix
#else
using RawReg = __m128i;
#define PXL_SAT_OP(op, suffix) _mm_##op##_##suffix
#endif

template <class T>
inline constexpr bool kHasSaturating =
    std::is_same_v<T, std::uint8_t> || std::is_same_v<T, std::uint16_t> || std::is_same_v<T, std::int16_t>;

// a + b or, with Sub, a - b, saturated to the lane type.
template <bool Sub, class T>
inline Reg<T> saturating(Reg<T> a, Reg<T> b) {
  const RawReg x = (RawReg)a, y = (RawReg)b;
  if constexpr (std::is_same_v<T, std::uint8_t>)
    return (Reg<T>)(Sub ? PXL_SAT_OP(subs, epu8)(x, y) : PXL_SAT_OP(adds, epu8)(x, y));
  else if constexpr (std::is_same_v<T, std::uint16_t>)
    return (Reg<T>)(Sub ? PXL_SAT_OP(subs, epu16)(x, y) : PXL_SAT_OP(adds, epu16)(x, y));
  else
    return (Reg<T>)(Sub ? PXL_SAT_OP(subs, epi16)(x, y) : PXL_SAT_OP(adds, epi16)(x, y));
}

// (a + b + 1) >> 1 without overflow, for unsigned 8- and 16-bit lanes.
template <class T>
inline Reg<T> averageUp(Reg<T> a, Reg<T> b) {
  const RawReg x = (RawReg)a, y = (RawReg)b;
  if constexpr (std::is_same_v<T, std::uint8_t>)
    return (Reg<T>)PXL_SAT_OP(avg, epu8)(x, y);
  else
    return (Reg<T>)PXL_SAT_OP(avg, epu16)(x, y);
}


// Bytes to 16-bit lanes and back, on whole registers. On AVX2 and AVX-512
// both steps work within each 128-bit quarter, so a register taken apart by widenBytes and
// put together by packBytes keeps its order; only lane-wise operations may
// come in between.
inline void widenBytes(Reg<std::uint8_t> v, Reg<std::uint16_t>& lo, Reg<std::uint16_t>& hi) {
  const RawReg x = (RawReg)v;
#if defined(PXL_SIMD_512)
  const RawReg z = _mm512_setzero_si512();
#elif defined(__AVX2__)
  const RawReg z = _mm256_setzero_si256();
#else
  const RawReg z = _mm_setzero_si128();
#endif
  lo = (Reg<std::uint16_t>)PXL_SAT_OP(unpacklo, epi8)(x, z);
  hi = (Reg<std::uint16_t>)PXL_SAT_OP(unpackhi, epi8)(x, z);
}

// Lanes of 0..32767 to bytes, each saturated to 255 (the pack instruction
// reads its lanes as signed).
inline Reg<std::uint8_t> packBytes(Reg<std::uint16_t> lo, Reg<std::uint16_t> hi) {
  return (Reg<std::uint8_t>)PXL_SAT_OP(packus, epi16)((RawReg)lo, (RawReg)hi);
}

#undef PXL_SAT_OP

}  // namespace pxl::simd

// Streaming stores: a whole register written around the cache, for
// destinations too large to stay in it (saves reading each line before it is
// overwritten). p must be aligned to kBytes. Such stores are weakly ordered:
// a call that used them ends with storeFence() before it returns, so that its
// results are visible in order to the caller's thread and any other.
namespace pxl::simd {

template <class V>
inline void streamStore(void* p, V v) {
  static_assert(sizeof(V) == kBytes, "one whole register");
#if defined(PXL_SIMD_512)
  _mm512_stream_si512(static_cast<__m512i*>(p), (__m512i)v);
#elif defined(__AVX2__)
  _mm256_stream_si256(static_cast<__m256i*>(p), (__m256i)v);
#else
  _mm_stream_si128(static_cast<__m128i*>(p), (__m128i)v);
#endif
}

inline void storeFence() { _mm_sfence(); }

// Samples of T from p up to its first register boundary, where streaming
// stores can start (at most len); -1 where p is not aligned to its sample
// size, so that no boundary is ever reached and a row is not streamed.
template <class T>
inline int streamPeel(const T* p, int len) {
  const std::uintptr_t mis = reinterpret_cast<std::uintptr_t>(p) % kBytes;
  if (mis % sizeof(T) != 0) return -1;
  return int(std::min<std::uintptr_t>(std::uintptr_t(len), (kBytes - mis) % kBytes / sizeof(T)));
}

// A block of whole 16-byte chunks written around the cache: p aligned to
// kBytes if the block is whole registers, else to 16.
template <class V>
inline void streamBlock(void* p, const V& v) {
  static_assert(sizeof(V) % 16 == 0, "whole 16-byte chunks");
  constexpr int chunk = sizeof(V) % kBytes == 0 ? kBytes : 16;
  for (int off = 0; off < int(sizeof(V)); off += chunk) {
    char* q = static_cast<char*>(p) + off;
    if constexpr (chunk == 64) {
#if defined(PXL_SIMD_512)
      __m512i c;
      std::memcpy(&c, reinterpret_cast<const char*>(&v) + off, sizeof c);
      _mm512_stream_si512(reinterpret_cast<__m512i*>(q), c);
#endif
    } else if constexpr (chunk == 32) {
      __m256i c;
      std::memcpy(&c, reinterpret_cast<const char*>(&v) + off, sizeof c);
      _mm256_stream_si256(reinterpret_cast<__m256i*>(q), c);
    } else {
      __m128i c;
      std::memcpy(&c, reinterpret_cast<const char*>(&v) + off, sizeof c);
      _mm_stream_si128(reinterpret_cast<__m128i*>(q), c);
    }
  }
}

}  // namespace pxl::simd

// The same type with T lanes: T itself for a scalar, a vector of T with as
// many lanes as V otherwise. Lets one lane expression change types on both.
namespace pxl::simd {

template <class V>
inline constexpr int kLaneCount = int(sizeof(V) / sizeof(Elem<V>));

template <class T, class V, bool = kIsVector<V>>
struct RebindT {
  using type = T;
};
template <class T, class V>
struct RebindT<T, V, true> {
  using type = Vec<T, kLaneCount<V>>;
};
template <class T, class V>
using Rebind = typename RebindT<T, V>::type;

// Float or double to 32-bit integer in the processor's current rounding
// state (the SSE control register), on scalars and on vectors of any lane
// count: the same instruction family for a block and for its tail, so both
// round alike. The other narrowing conversions here truncate; these are the
// only ones that follow the rounding state. Callers clamp to the int32 range
// first.
inline std::int32_t roundToInt32(float x) { return _mm_cvtss_si32(_mm_set_ss(x)); }
inline std::int32_t roundToInt32(double x) { return _mm_cvtsd_si32(_mm_set_sd(x)); }

namespace detail {
// Applies one conversion instruction to consecutive chunks of In lanes.
template <int In, class Chunk, class Out, class V, class F>
inline Rebind<std::int32_t, V> roundChunks(const V& v, F&& cvt) {
  Rebind<std::int32_t, V> out;
  for (int i = 0; i < kLaneCount<V>; i += In) {
    Chunk c;
    std::memcpy(&c, reinterpret_cast<const Elem<V>*>(&v) + i, sizeof c);
    const Out r = cvt(c);
    std::memcpy(reinterpret_cast<std::int32_t*>(&out) + i, &r, In * sizeof(std::int32_t));
  }
  return out;
}
}  // namespace detail

template <class V, std::enable_if_t<kIsVector<V>, int> = 0>
inline Rebind<std::int32_t, V> roundToInt32(const V& v) {
  constexpr int N = kLaneCount<V>;
  if constexpr (std::is_same_v<Elem<V>, float>) {
#if defined(PXL_SIMD_512)
    if constexpr (N % 16 == 0)
      return detail::roundChunks<16, __m512, __m512i>(v, [](__m512 c) { return _mm512_cvtps_epi32(c); });
#endif
#if defined(__AVX2__)
    if constexpr (N % 8 == 0)
      return detail::roundChunks<8, __m256, __m256i>(v, [](__m256 c) { return _mm256_cvtps_epi32(c); });
#endif
    static_assert(N % 4 == 0, "whole SSE registers of floats");
    return detail::roundChunks<4, __m128, __m128i>(v, [](__m128 c) { return _mm_cvtps_epi32(c); });
  } else {
    static_assert(std::is_same_v<Elem<V>, double>, "float or double lanes");
#if defined(PXL_SIMD_512)
    if constexpr (N % 8 == 0)
      return detail::roundChunks<8, __m512d, __m256i>(v, [](__m512d c) { return _mm512_cvtpd_epi32(c); });
#endif
#if defined(__AVX2__)
    if constexpr (N % 4 == 0)
      return detail::roundChunks<4, __m256d, __m128i>(v, [](__m256d c) { return _mm256_cvtpd_epi32(c); });
#endif
    static_assert(N % 2 == 0, "whole SSE registers of doubles");
    // Two results in the low half of the register; only they are copied.
    return detail::roundChunks<2, __m128d, __m128i>(v, [](__m128d c) { return _mm_cvtpd_epi32(c); });
  }
}

}  // namespace pxl::simd

// Lane type changes between integer widths on whole 128-bit registers. The
// compiler's own vector conversion turns a widening or narrowing of more
// lanes than one register holds into one scalar conversion per lane on the
// baseline level; these do each step with one unpack or pack instruction.
// Narrowing assumes values that fit the destination (callers clamp first),
// so the saturating packs give exactly the truncated value.
namespace pxl::simd {
namespace detail {

template <class T>
inline __m128i chunkAt(const T& v, int byteOffset) {
  __m128i c;
  std::memcpy(&c, reinterpret_cast<const char*>(&v) + byteOffset, sizeof c);
  return c;
}
template <class T>
inline void putChunk(T& v, int byteOffset, __m128i c) {
  std::memcpy(reinterpret_cast<char*>(&v) + byteOffset, &c, sizeof c);
}

// One step of doubling the lane width; the sign of From decides the fill.
template <class From>
inline void widenChunk(__m128i x, __m128i& lo, __m128i& hi) {
  if constexpr (std::is_unsigned_v<From>) {
    const __m128i z = _mm_setzero_si128();
    if constexpr (sizeof(From) == 1) lo = _mm_unpacklo_epi8(x, z), hi = _mm_unpackhi_epi8(x, z);
    else lo = _mm_unpacklo_epi16(x, z), hi = _mm_unpackhi_epi16(x, z);
  } else if constexpr (sizeof(From) == 1) {
    lo = _mm_srai_epi16(_mm_unpacklo_epi8(x, x), 8), hi = _mm_srai_epi16(_mm_unpackhi_epi8(x, x), 8);
  } else {
    lo = _mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16), hi = _mm_srai_epi32(_mm_unpackhi_epi16(x, x), 16);
  }
}

// One step of halving the lane width, for values that fit To.
template <class To>
inline __m128i narrowChunk(__m128i lo, __m128i hi) {
  if constexpr (sizeof(To) == 1) {
    return std::is_unsigned_v<To> ? _mm_packus_epi16(lo, hi) : _mm_packs_epi16(lo, hi);
  } else if constexpr (std::is_unsigned_v<To>) {
    // 0..65535 through the signed pack: shift to the signed range and back.
    const __m128i bias = _mm_set1_epi32(32768);
    return _mm_xor_si128(_mm_packs_epi32(_mm_sub_epi32(lo, bias), _mm_sub_epi32(hi, bias)), _mm_set1_epi16(-32768));
  } else {
    return _mm_packs_epi32(lo, hi);
  }
}

// The integer type twice as wide: signed, unless the final type is unsigned.
template <class From, class To>
using Doubled = std::conditional_t<
    sizeof(From) == 1, std::conditional_t<std::is_unsigned_v<To>, std::uint16_t, std::int16_t>,
    std::conditional_t<std::is_unsigned_v<To>, std::uint32_t, std::int32_t>>;
template <class From, class To>
using Halved = std::conditional_t<sizeof(From) == 4,
                                  std::conditional_t<(sizeof(To) == 1 || std::is_signed_v<To>), std::int16_t, std::uint16_t>,
                                  To>;

}  // namespace detail

// v with its lanes as To: exact for widening, and for narrowing of values
// that fit To. Lane counts of whole registers take the unpack and pack
// steps; anything else is the compiler's conversion.
template <class To, class V>
inline Rebind<To, V> resize(const V& v) {
  using From = Elem<V>;
  constexpr int N = kLaneCount<V>;
  if constexpr (!kIsVector<V>) {
    return static_cast<To>(v);
  } else if constexpr (std::is_floating_point_v<From> || sizeof(From) == sizeof(To) || sizeof(From) == 8 ||
                       (kBytes == 32 && sizeof(To) > sizeof(From)) ||  // AVX2 widens in one instruction
                       sizeof(To) == 8 || (std::is_floating_point_v<To> && sizeof(From) == 4) ||
                       (N * sizeof(From)) % 16 != 0 || (N * sizeof(To)) % 16 != 0) {
    return __builtin_convertvector(v, Rebind<To, V>);
  } else if constexpr (std::is_floating_point_v<To>) {
    return resize<To>(resize<std::int32_t>(v));  // exact integers, then one same-width conversion
  } else if constexpr (sizeof(To) > sizeof(From)) {
    using M = detail::Doubled<From, To>;
    Rebind<M, V> out;
    for (int i = 0; i < N; i += 16 / int(sizeof(From))) {
      __m128i lo, hi;
      detail::widenChunk<From>(detail::chunkAt(v, i * int(sizeof(From))), lo, hi);
      detail::putChunk(out, i * int(sizeof(M)), lo);
      detail::putChunk(out, i * int(sizeof(M)) + 16, hi);
    }
    return resize<To>(out);
  } else {
    using M = detail::Halved<From, To>;
    Rebind<M, V> out;
    for (int i = 0; i < N; i += 32 / int(sizeof(From))) {
      const __m128i lo = detail::chunkAt(v, i * int(sizeof(From)));
      const __m128i hi = detail::chunkAt(v, i * int(sizeof(From)) + 16);
      detail::putChunk(out, i * int(sizeof(M)), detail::narrowChunk<M>(lo, hi));
    }
    return resize<To>(out);
  }
}

}  // namespace pxl::simd

// 32-bit lanes holding 0..255 (or -128..127) to bytes, in order. On AVX2 the
// pack instructions work within each 128-bit half: two packs and one
// permutation of 32-bit groups put whole registers of 32 results in order,
// with no trip through memory. Other widths and levels take resize.
namespace pxl::simd {

template <class To, class V>
inline Rebind<To, V> packToBytes(const V& v) {
  static_assert(sizeof(To) == 1 && sizeof(Elem<V>) == 4, "32-bit lanes to bytes");
#if defined(__AVX2__)
  constexpr int N = kLaneCount<V>;
  if constexpr (kIsVector<V> && N % 32 == 0) {
    Rebind<To, V> out;
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    for (int i = 0; i < N; i += 32) {
      auto quarter = [&](int k) {
        __m256i q;
        std::memcpy(&q, reinterpret_cast<const char*>(&v) + i * 4 + k * 32, sizeof q);
        return q;
      };
      const __m256i lo = _mm256_packs_epi32(quarter(0), quarter(1)), hi = _mm256_packs_epi32(quarter(2), quarter(3));
      const __m256i bytes = std::is_unsigned_v<To> ? _mm256_packus_epi16(lo, hi) : _mm256_packs_epi16(lo, hi);
      const __m256i r = _mm256_permutevar8x32_epi32(bytes, order);
      std::memcpy(reinterpret_cast<char*>(&out) + i, &r, sizeof r);
    }
    return out;
  }
#endif
  return resize<To>(v);
}

}  // namespace pxl::simd

// Integer lanes of up to 16 bits to int32, for a vector whose result fills
// exactly one register: the narrow lanes are loaded into the low part of a
// register and widened there (one instruction on AVX2, unpacks on the
// baseline level). The compiler's own conversion of such a vector goes lane
// by lane. Other lane counts take resize.
namespace pxl::simd {

template <class V>
inline Rebind<std::int32_t, V> widenToInt32(const V& v) {
  using From = Elem<V>;
  if constexpr (kIsVector<V> && sizeof(From) <= 2 && kLaneCount<V> * 4 == kBytes) {
    __m128i x = _mm_setzero_si128();
    if constexpr (sizeof v == 4) {
      std::int32_t w;
      std::memcpy(&w, &v, 4);
      x = _mm_cvtsi32_si128(w);
    } else if constexpr (sizeof v == 8) {
      x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&v));
    } else if constexpr (sizeof v == 16) {
      std::memcpy(&x, &v, sizeof x);
    }
    RawReg r;
#if defined(PXL_SIMD_512)
    if constexpr (sizeof(From) == 1) {
      r = std::is_unsigned_v<From> ? _mm512_cvtepu8_epi32(x) : _mm512_cvtepi8_epi32(x);
    } else {
      __m256i y;
      std::memcpy(&y, &v, sizeof y);
      r = std::is_unsigned_v<From> ? _mm512_cvtepu16_epi32(y) : _mm512_cvtepi16_epi32(y);
    }
#elif defined(__AVX2__)
    if constexpr (sizeof(From) == 1)
      r = std::is_unsigned_v<From> ? _mm256_cvtepu8_epi32(x) : _mm256_cvtepi8_epi32(x);
    else
      r = std::is_unsigned_v<From> ? _mm256_cvtepu16_epi32(x) : _mm256_cvtepi16_epi32(x);
#else
    if constexpr (sizeof(From) == 1) {
      if constexpr (std::is_unsigned_v<From>) {
        const __m128i z = _mm_setzero_si128();
        r = _mm_unpacklo_epi16(_mm_unpacklo_epi8(x, z), z);
      } else {
        const __m128i w = _mm_unpacklo_epi8(x, x);
        r = _mm_srai_epi32(_mm_unpacklo_epi16(w, w), 24);
      }
    } else {
      r = std::is_unsigned_v<From> ? _mm_unpacklo_epi16(x, _mm_setzero_si128())
                                   : _mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16);
    }
#endif
    return (Rebind<std::int32_t, V>)r;
  } else {
    return resize<std::int32_t>(v);
  }
}

}  // namespace pxl::simd

// Whether any lane of a comparison result is set: one byte mask a register,
// so that a rare case can be tested for a whole block with one branch.
namespace pxl::simd {

template <class M>
inline bool anyLane(const M& m) {
  if constexpr (!kIsVector<M>) {
    return m != 0;
#if defined(PXL_SIMD_512)
  } else if constexpr (sizeof(M) == 64) {
    __m512i r;
    std::memcpy(&r, &m, sizeof r);
    return _mm512_movepi8_mask(r) != 0;
#endif
#if defined(__AVX2__)
  } else if constexpr (sizeof(M) == 32) {
    __m256i r;
    std::memcpy(&r, &m, sizeof r);
    return _mm256_movemask_epi8(r) != 0;
#endif
  } else {
    int bits = 0;
    for (int off = 0; off < int(sizeof(M)); off += 16) bits |= _mm_movemask_epi8(detail::chunkAt(m, off));
    return bits != 0;
  }
}

}  // namespace pxl::simd
