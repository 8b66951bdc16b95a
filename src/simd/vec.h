// One portable vector type for every instruction level.
//
// Kernels are written once against GCC/Clang vector extensions; the build's
// instruction level decides the register width (16 bytes on baseline x86-64,
// 32 bytes with AVX2) and the compiler emits the instructions. There is no
// run-time dispatch. The same lane functions also compile for plain scalars,
// so a kernel's block loop and its tail share one expression of the rule.
#pragma once

#include <cstring>
#include <type_traits>

namespace pxl::simd {

#if defined(__AVX2__)
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
__extension__ typedef __int128 Int128;
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

template <class V, class S>
inline V splat(S s) {
  if constexpr (kIsVector<V>) {
    return V{} + static_cast<Elem<V>>(s);
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

template <class V>
inline V select(decltype(std::declval<V>() < std::declval<V>()) m, V a, V b) {
  return m ? a : b;
}

template <class V>
inline V vmin(V a, V b) {
  return a < b ? a : b;
}

template <class V>
inline V vmax(V a, V b) {
  return a > b ? a : b;
}

// Left shift that is defined for negative lanes: done on the unsigned twin.
template <class V>
inline V shiftLeft(V x, int n) {
  using E = Elem<V>;
  if constexpr (std::is_same_v<E, Int128>) {
    __extension__ typedef unsigned __int128 U128;
    return static_cast<V>(static_cast<U128>(x) << n);
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

#if defined(__AVX2__)
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

#undef PXL_SAT_OP

}  // namespace pxl::simd
