// The integer scale rule of the arithmetic and the row kernels built on it.
//
// The exact result x of an operation is held in a lane wide enough that
// nothing overflows (8u: 16 bits unsigned, 16u: 32 bits unsigned, 16s: 32
// bits, 32s: 64 bits) and then, for scale s:
//   s = 0   saturate x
//   s > 0   x / 2^s rounded to nearest, ties to even, then saturate
//   s < 0   x * 2^-s, then saturate
// Past the type's limits the result no longer depends on the data: above the
// upper limit the destination is filled with zero, below the lower limit
// (Bound) only the sign of x matters. Each of these paths is its own kernel,
// so the inner loops carry no branch on the scale.
//
// Every kernel is one lane expression used twice: on vectors for whole
// blocks and on scalars for the tail. Both compute the same integers.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include "frame/gates.h"
#include "frame/types.h"
#include "simd/vec.h"

namespace pxl::arith {

using simd::Elem;
using simd::splat;

enum class Path : std::uint8_t { Zero, One, Pos, Neg, Bound, Above, Single };

constexpr PathBit bitOf(Path p) {
  switch (p) {
    case Path::Zero: return kPathZero;
    case Path::One: return kPathOne;
    case Path::Pos: return kPathPos;
    case Path::Neg: return kPathNeg;
    case Path::Bound: return kPathBound;
    default: return kPathSingle;
  }
}

// The lane type that holds an exact sum or difference of R.
template <class R> struct Wide;
template <> struct Wide<Pxl8u> { using type = std::uint16_t; };
template <> struct Wide<Pxl16u> { using type = std::uint32_t; };
template <> struct Wide<Pxl16s> { using type = std::int32_t; };
template <> struct Wide<Pxl32s> { using type = std::int64_t; };
template <> struct Wide<Pxl32f> { using type = float; };
template <class R>
using WideOf = typename Wide<R>::type;

// Scales from neg to pos are computed; above pos the result is zero, below
// neg it is the bound.
struct ScaleLimits {
  int pos;
  int neg;
};

inline Path pathOf(int s, ScaleLimits l) {
  if (s == 0) return Path::Zero;
  if (s == 1) return Path::One;
  if (s > 1) return s <= l.pos ? Path::Pos : Path::Above;
  return s >= l.neg ? Path::Neg : Path::Bound;
}

template <class W, class R>
inline W saturate(W x) {
  using E = Elem<W>;
  if constexpr (std::is_floating_point_v<E>) {
    return x;
  } else if constexpr (std::is_unsigned_v<E>) {
    return simd::vmin(x, splat<W>(std::numeric_limits<R>::max()));
  } else {
    return simd::vmin(simd::vmax(x, splat<W>(std::numeric_limits<R>::min())),
                      splat<W>(std::numeric_limits<R>::max()));
  }
}

// The scale rule on one lane (scalar or vector) of exact values.
template <Path P, class R, class W>
inline W scaleRule(W x, int s) {
  using E = Elem<W>;
  if constexpr (P == Path::Single) {
    return x;
  } else if constexpr (P == Path::Zero) {
    return saturate<W, R>(x);
  } else if constexpr (P == Path::One) {
    return saturate<W, R>((x + ((x >> 1) & splat<W>(1))) >> 1);
  } else if constexpr (P == Path::Pos) {
    const W half = splat<W>((E(1) << (s - 1)) - 1);
    return saturate<W, R>((x + half + ((x >> s) & splat<W>(1))) >> s);
  } else if constexpr (P == Path::Neg) {
    return saturate<W, R>(simd::shiftLeft(x, -s));
  } else {
    static_assert(P == Path::Bound, "Above never reaches a kernel");
    const W hi = splat<W>(std::numeric_limits<R>::max());
    if constexpr (std::is_unsigned_v<E>) {
      return simd::select<W>(x != splat<W>(0), hi, splat<W>(0));
    } else {
      const W lo = splat<W>(std::numeric_limits<R>::min());
      return simd::select<W>(x > splat<W>(0), hi, simd::select<W>(x < splat<W>(0), lo, splat<W>(0)));
    }
  }
}

// A float product that the compiler may not fuse with the sum it feeds.
// -ffp-contract=off keeps plain expressions apart, but GCC's recognition of
// complex multiplication in the vectoriser still forms fused multiply-adds
// on AVX2; an opaque register stops it, so every level rounds each product.
template <class F>
inline F roundedProduct(F a, F b) {
  F p = simd::firstNaN(a, a * b);
  __asm__("" : "+x"(p));
  return p;
}

template <Path P>
using PathC = std::integral_constant<Path, P>;

// Calls f with the path as a compile-time constant. Float data has the one
// path only, so nothing else is instantiated for it.
template <class R, class F>
inline void withPath(Path p, F&& f) {
  if constexpr (std::is_floating_point_v<R>) {
    (void)p;
    f(PathC<Path::Single>{});
  } else {
    switch (p) {
      case Path::Zero: f(PathC<Path::Zero>{}); break;
      case Path::One: f(PathC<Path::One>{}); break;
      case Path::Pos: f(PathC<Path::Pos>{}); break;
      case Path::Neg: f(PathC<Path::Neg>{}); break;
      case Path::Bound: f(PathC<Path::Bound>{}); break;
      case Path::Single:
      case Path::Above: break;
    }
  }
}

// ------------------------------------------------------------------ kernels
// Op::exact(a, b) gives the exact result of the operation on wide lanes; the
// second operand is the image that a subtraction subtracts from. The lane
// width is the operation's: Op::Wide<R, P> holds every intermediate value of
// path P without overflow (a sum needs one bit more than its operands, a
// product twice as many, and the rounding of a long shift a little more).
// Op::kClampBeforeShift: the Neg path first saturates x to the type, so that
// the shift of a product cannot overflow its lane; the result is the same as
// shifting the exact value. Op::kSaturatingZero: path Zero is a plain
// saturating operation of whole registers (Add, Sub).

template <class Op, class R, Path P>
using LaneOf = typename Op::template Wide<R, P>;

template <class Op, class R, Path P>
inline constexpr int kBlock = simd::kLanes<LaneOf<Op, R, P>>;

template <class Op, class R, Path P>
using WideVec = simd::Vec<LaneOf<Op, R, P>, kBlock<Op, R, P>>;
template <class Op, class R, Path P>
using NarrowVec = simd::Vec<R, kBlock<Op, R, P>>;

// The operation and the scale rule on one lane (scalar or vector).
template <class Op, Path P, class R, class W>
inline W applyRule(W x, int s) {
  if constexpr (P == Path::Neg && Op::kClampBeforeShift) x = saturate<W, R>(x);
  return scaleRule<P, R>(x, s);
}

template <class Op, Path P, class R>
inline R lane(R a, R b, int s) {
  using W = LaneOf<Op, R, P>;
  return static_cast<R>(applyRule<Op, P, R>(Op::exact(W(a), W(b)), s));
}

// Stores a block of results; with Stream around the cache, which needs d
// aligned to the block (a whole register, or 16 bytes). Blocks of other
// sizes are stored normally.
template <bool Stream, class R, class V>
inline void putBlock(R* d, const V& v) {
  if constexpr (Stream && (sizeof(V) == simd::kBytes || sizeof(V) == 16))
    simd::streamBlock(d, v);
  else
    simd::store(d, v);
}

template <class Op, Path P, bool Stream = false, class R>
inline void blockBinary(const R* a, const R* b, R* d, int s) {
  using WV = WideVec<Op, R, P>;
  using NV = NarrowVec<Op, R, P>;
  const WV x = Op::exact(simd::convert<WV>(simd::load<NV>(a)), simd::convert<WV>(simd::load<NV>(b)));
  putBlock<Stream>(d, simd::convert<NV>(applyRule<Op, P, R>(x, s)));
}

// The first operand of a saturating run: a row, or one constant in every lane.
template <class R>
inline simd::Reg<R> operandAt(const R* row, int i) {
  return simd::load<simd::Reg<R>>(row + i);
}
template <class R>
inline simd::Reg<R> operandAt(const simd::Reg<R>& constant, int) {
  return constant;
}

// Operations whose scale-1 result on unsigned lanes is the halved sum.
template <class Op, class = void>
struct HalvedSumAtOne : std::false_type {};
template <class Op>
struct HalvedSumAtOne<Op, std::void_t<decltype(Op::kHalvedSumAtOne)>> : std::bool_constant<Op::kHalvedSumAtOne> {};

// Operations whose exact 8u result fits 16-bit lanes at every path supply
// narrowRun: whole registers of bytes, widened once to 16 bits.
template <class Op, class = void>
struct NarrowRun8u : std::false_type {};
template <class Op>
struct NarrowRun8u<Op, std::void_t<decltype(Op::kNarrowRun8u)>> : std::bool_constant<Op::kNarrowRun8u> {};

// Path Zero of 8- and 16-bit types is a plain saturating operation, and the
// unsigned sum at scale 1 an average: whole registers of narrow lanes, no
// widening. Returns the samples done; the widened blocks and the tail take
// the rest.
template <class Op, Path P, class R, bool Stream = false, class A>
inline int saturatingRun(const A& a, const R* b, R* d, int len, int s) {
  if constexpr (std::is_same_v<R, std::uint8_t> && NarrowRun8u<Op>::value) {
    return Op::template narrowRun<P>(a, b, d, len, s);
  } else if constexpr (P == Path::Zero && Op::kSaturatingZero && simd::kHasSaturating<R>) {
    constexpr int M = simd::kLanes<R>;
    int i = 0;
    for (; i + M <= len; i += M)
      putBlock<Stream>(d + i, Op::saturating(operandAt<R>(a, i), simd::load<simd::Reg<R>>(b + i)));
    return i;
  } else if constexpr (P == Path::One && HalvedSumAtOne<Op>::value &&
                       (std::is_same_v<R, std::uint8_t> || std::is_same_v<R, std::uint16_t>)) {
    // The unsigned sum halved: the rounded-up average, less one where the
    // sum is odd (a ^ b odd) and the average came out odd, which is exactly
    // the tie that goes down to the even neighbour.
    using V = simd::Reg<R>;
    constexpr int M = simd::kLanes<R>;
    const V one = splat<V>(1);
    int i = 0;
    for (; i + M <= len; i += M) {
      const V x = operandAt<R>(a, i), y = simd::load<V>(b + i);
      const V up = simd::averageUp<R>(x, y);
      putBlock<Stream>(d + i, V(up - ((x ^ y) & up & one)));
    }
    return i;
  } else {
    (void)a, (void)b, (void)d, (void)len, (void)s;
    return 0;
  }
}

// Two operands, len samples. With Stream the whole blocks go around the
// cache, and the row ends with a store fence, so that a row written by any
// thread of a region is complete when the row returns.
template <class Op, Path P, bool Stream = false, class R>
void rowBinary(const R* a, const R* b, R* d, int len, int s) {
  if constexpr (Stream) {
    const int peel = simd::streamPeel(d, len);
    if (peel < 0) return rowBinary<Op, P>(a, b, d, len, s);
    rowBinary<Op, P>(a, b, d, peel, s);
    a += peel, b += peel, d += peel, len -= peel;
  }
  constexpr int N = kBlock<Op, R, P>;
  int i = saturatingRun<Op, P, R, Stream>(a, b, d, len, s);
  for (; i + N <= len; i += N) blockBinary<Op, P, Stream>(a + i, b + i, d + i, s);
  for (; i < len; ++i) simd::store(d + i, lane<Op, P>(simd::load<R>(a + i), simd::load<R>(b + i), s));
  if constexpr (Stream) simd::storeFence();
}

// The same in strict increasing address order, for rows whose destination
// overlaps a source at another address.
template <class Op, Path P, class R>
void rowBinaryOrdered(const R* a, const R* b, R* d, int len, int s) {
  for (int i = 0; i < len; ++i) simd::store(d + i, lane<Op, P>(simd::load<R>(a + i), simd::load<R>(b + i), s));
}

// A constant that repeats with period Period (one value per channel, or
// re, im per complex sample), laid out so that any block can load it whole
// starting from the phase it begins at.
template <class R, int Period>
struct Pattern {
  static constexpr int kLen = Period * (simd::kLanes<R> + 1);
  R v[kLen];
  explicit Pattern(const R* values) {
    for (int i = 0; i < kLen; ++i) v[i] = values[i % Period];
  }
};

// Constant operand: x = src (op) constant, len samples.
// With Stream (one constant only, Period 1), as rowBinary.
template <class Op, Path P, class R, int Period, bool Stream = false>
void rowConst(const R* src, const Pattern<R, Period>& pat, R* d, int len, int s) {
  static_assert(!Stream || Period == 1, "a pattern's phase would not survive the peel");
  if constexpr (Stream) {
    const int peel = simd::streamPeel(d, len);
    if (peel < 0) return rowConst<Op, P, R, Period>(src, pat, d, len, s);
    rowConst<Op, P, R, Period>(src, pat, d, peel, s);
    src += peel, d += peel, len -= peel;
  }
  using WV = WideVec<Op, R, P>;
  using NV = NarrowVec<Op, R, P>;
  constexpr int N = kBlock<Op, R, P>;
  constexpr int step = N % Period;
  int i = 0, phase = 0;
  if constexpr (Period == 1) {
    i = saturatingRun<Op, P, R, Stream>(splat<simd::Reg<R>>(pat.v[0]), src, d, len, s);
    const WV c = splat<WV>(pat.v[0]);
    for (; i + N <= len; i += N) {
      const WV x = Op::exact(c, simd::convert<WV>(simd::load<NV>(src + i)));
      putBlock<Stream>(d + i, simd::convert<NV>(applyRule<Op, P, R>(x, s)));
    }
  } else {
    for (; i + N <= len; i += N) {
      const WV c = simd::convert<WV>(simd::load<NV>(pat.v + phase));
      const WV x = Op::exact(c, simd::convert<WV>(simd::load<NV>(src + i)));
      simd::store(d + i, simd::convert<NV>(applyRule<Op, P, R>(x, s)));
      phase += step;
      if (phase >= Period) phase -= Period;
    }
  }
  for (; i < len; ++i) {
    simd::store(d + i, lane<Op, P>(pat.v[phase], simd::load<R>(src + i), s));
    if (++phase == Period) phase = 0;
  }
  if constexpr (Stream) simd::storeFence();
}

// AC4 pixel loops: the first three samples of four (Parts parts each).
template <class Op, Path P, class R, int Parts>
void rowBinaryAC4(const R* a, const R* b, R* d, int width, int s) {
  constexpr int stride = 4 * Parts, used = 3 * Parts;
  for (int x = 0; x < width; ++x, a += stride, b += stride, d += stride)
    for (int c = 0; c < used; ++c) simd::store(d + c, lane<Op, P>(simd::load<R>(a + c), simd::load<R>(b + c), s));
}

template <class Op, Path P, class R, int Parts>
void rowConstAC4(const R* src, const R* values, R* d, int width, int s) {
  constexpr int stride = 4 * Parts, used = 3 * Parts;
  for (int x = 0; x < width; ++x, src += stride, d += stride)
    for (int c = 0; c < used; ++c) simd::store(d + c, lane<Op, P>(simd::load<R>(values + c), simd::load<R>(src + c), s));
}

}  // namespace pxl::arith
