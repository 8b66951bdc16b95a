// The frame of the scaled arithmetic: one member template for every image
// member and vector form of Add, Sub, Mul and their constant forms. The
// operation is a type (OpAdd, OpSub, OpMul); the member's type and layout
// are template arguments; everything else follows from them.
//
// What an operation supplies besides its exact value:
//   Wide<R, P>              lane type of path P (scale.h)
//   limits<T>()             where the scale stops depending on the data
//   kPartwise               complex parts are independent (Add, Sub); if not,
//                           complexLane<P, T>(a, b, s) computes one sample
//   kIdentity               the constant that leaves a sample as it is
//   c1Shortcut<T>(v, s, p)  what a C1 integer constant member does instead of
//                           its kernels (copy, fill), after its checks
//   early16u<T>(v, p)       the fill a 16u C1 constant member does before it
//                           looks at pointers, if any
//   kFam, kFamC             the rows of the gate table
#pragma once

#include <algorithm>

#include "arith/scale.h"
#include "frame/frame.h"
#include "frame/rowdriver.h"
#include "move/copy.h"
#include "move/set.h"

namespace pxl::arith {

// What a C1 constant member does in place of its kernels.
template <class T>
struct Shortcut {
  enum Kind { None, Copy, Fill } kind = None;
  T fill{};
};

template <class Op, class T>
inline Path scalePath(int scale) {
  if constexpr (std::is_floating_point_v<PartOf<T>>) {
    (void)scale;
    return Path::Single;
  } else {
    return pathOf(scale, Op::template limits<T>());
  }
}

// Complex members also refuse steps below 1; the others never look at steps.
template <class T>
inline constexpr Order kScaledOrder = kComplex<T> ? Order::NST : Order::NS;

template <class T>
inline constexpr bool kIs16u = std::is_same_v<T, Pxl16u>;

template <class T, Lay L>
using ValueArg = std::conditional_t<L == Lay::C1, T, const T*>;

template <class T, Lay L>
inline PxlStatus fillZero(T* dst, int dstStep, PxlSize roi) {
  return move::setImageUniform<T, L>(T{}, dst, dstStep, roi);
}

template <class R>
inline bool overlapsElsewhere(const R* d, const R* s, std::size_t len) {
  return d != s && d < s + len && s < d + len;
}

// The shape a serial walk takes: gapless images with no destination
// overlapping a source elsewhere are one long row, so that a narrow image
// pays a row's start-up cost once.
template <Lay L, class T>
inline PxlSize serialShape(const T* a, int aStep, const T* b, int bStep, const T* d, int dStep, PxlSize roi) {
  const std::size_t rowBytes = rowBytesOf<L, T>(roi.width);
  const PxlSize one = gaplessShape(roi, rowBytes, aStep, bStep, dStep);
  if (one.height != 1 || roi.height == 1) return roi;
  const std::size_t all = rowBytes * std::size_t(roi.height);
  const auto* ad = reinterpret_cast<const char*>(d);
  const auto* aa = reinterpret_cast<const char*>(a);
  const auto* ab = reinterpret_cast<const char*>(b);
  return overlapsElsewhere(ad, aa, all) || overlapsElsewhere(ad, ab, all) ? roi : one;
}

// Complex samples whose parts interact (a product): one sample at a time.
// Ch samples a pixel, of which the first Used are computed.
template <class Op, Path P, class T, int Ch, int Used>
void rowComplexBinary(const T* a, const T* b, T* d, int width, int s) {
  for (int x = 0; x < width; ++x, a += Ch, b += Ch, d += Ch)
    for (int c = 0; c < Used; ++c) storeSample(d + c, Op::template complexLane<P, T>(loadSample(a + c), loadSample(b + c), s));
}

template <class Op, Path P, class T, int Ch, int Used>
void rowComplexConst(const T* src, const T* values, T* d, int width, int s) {
  for (int x = 0; x < width; ++x, src += Ch, d += Ch)
    for (int c = 0; c < Used; ++c) storeSample(d + c, Op::template complexLane<P, T>(values[c], loadSample(src + c), s));
}

template <class Op, class T>
inline constexpr bool kPerSample = kComplex<T> && !Op::kPartwise;

// ------------------------------------------------------------ two images

template <class Op, class T, Lay L>
PxlStatus binaryMember(const T* a, int aStep, const T* b, int bStep, T* d, int dStep, PxlSize roi, int scale,
                       bool inPlace) {
  using R = PartOf<T>;
  constexpr int parts = Sample<T>::parts;

  if constexpr (L == Lay::C3 || L == Lay::C4) {
    return foldToC1(roi, channelsOf(L), [&](PxlSize r) {
      return binaryMember<Op, T, Lay::C1>(a, aStep, b, bStep, d, dStep, r, scale, inPlace);
    });
  } else {
    const Path path = scalePath<Op, T>(scale);
    if constexpr (kIs16u<T> && L == Lay::C1) {
      // 16u looks at the scale before the pointers: past the limit, Set does
      // the remaining checks.
      if (path == Path::Above) {
        if (!inPlace && anyNull(a, b)) return pxlStsNullPtr;
        return fillZero<T, L>(d, dStep, roi);
      }
    }
    if (anyNull(a, b, d)) return pxlStsNullPtr;
    if (PxlStatus st = checkShape<kScaledOrder<T>>(roi, aStep, bStep, dStep)) return st;
    if (path == Path::Above) return fillZero<T, L>(d, dStep, roi);

    const GateKey key{Op::kFam, typeTagOf<T>(), L, inPlace};
    // Streaming rows end with their own store fence (see rowBinary), so
    // that this holds on any thread of a region.
    const bool stream = move::streams(imageBytes<L, T>(roi));
    withPath<R>(path, [&](auto pc) {
      constexpr Path P = decltype(pc)::value;
      const bool region = regionOpens(key, bitOf(P), roi) && mayFork();
      const PxlSize walk = region ? roi : serialShape<L>(a, aStep, b, bStep, d, dStep, roi);
      auto row = [&](int y) {
        if constexpr (kPerSample<Op, T>) {
          constexpr int ch = channelsOf(L), used = processedOf(L);
          rowComplexBinary<Op, P, T, ch, used>(rowAt(a, aStep, y), rowAt(b, bStep, y), rowAt(d, dStep, y),
                                               walk.width, scale);
        } else {
          const R* ra = reinterpret_cast<const R*>(rowAt(a, aStep, y));
          const R* rb = reinterpret_cast<const R*>(rowAt(b, bStep, y));
          R* rd = reinterpret_cast<R*>(rowAt(d, dStep, y));
          if constexpr (L == Lay::AC4) {
            rowBinaryAC4<Op, P, R, parts>(ra, rb, rd, walk.width, scale);
          } else {
            const int len = walk.width * parts;
            if (kIs16u<T> && (overlapsElsewhere(rd, ra, len) || overlapsElsewhere(rd, rb, len)))
              rowBinaryOrdered<Op, P>(ra, rb, rd, len, scale);
            else if (stream)
              rowBinary<Op, P, true>(ra, rb, rd, len, scale);
            else
              rowBinary<Op, P>(ra, rb, rd, len, scale);
          }
        }
      };
      rowsShapeA(walk.height, region, row);
    });
    return pxlStsOk;
  }
}

template <class Op, class T, Lay L>
PxlStatus imageBinary(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, PxlSize roi,
                      int scale = 0) {
  return binaryMember<Op, T, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi, scale, false);
}

template <class Op, class T, Lay L>
PxlStatus imageBinary(const T* src, int srcStep, T* srcDst, int srcDstStep, PxlSize roi, int scale = 0) {
  return binaryMember<Op, T, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi, scale, true);
}

// ------------------------------------------------------------ constant

// Runs the rows of a constant member on a pattern of Period values.
template <class Op, class T, Lay L, int Period>
void constRows(const T* src, int srcStep, const PartOf<T>* values, T* dst, int dstStep, PxlSize roi, int scale,
               Path path, const GateKey& key) {
  using R = PartOf<T>;
  const Pattern<R, Period> pat(values);
  withPath<R>(path, [&](auto pc) {
    constexpr Path P = decltype(pc)::value;
    const bool region = regionOpens(key, bitOf(P), roi) && mayFork();
    const PxlSize walk = region ? roi : serialShape<L>(src, srcStep, src, srcStep, dst, dstStep, roi);
    const int len = walk.width * Period;
    const bool stream = Period == 1 && move::streams(imageBytes<L, T>(roi));
    rowsShapeA(walk.height, region, [&](int y) {
      const R* s = reinterpret_cast<const R*>(rowAt(src, srcStep, y));
      R* d = reinterpret_cast<R*>(rowAt(dst, dstStep, y));
      if constexpr (Period == 1) {
        if (stream) return rowConst<Op, P, R, Period, true>(s, pat, d, len, scale);
      }
      rowConst<Op, P, R, Period>(s, pat, d, len, scale);
    });
  });
}

template <class Op, class T, Lay L>
PxlStatus constMember(const T* src, int srcStep, const T* values, T* dst, int dStep, PxlSize roi, int scale,
                      bool inPlace) {
  using R = PartOf<T>;
  constexpr int parts = Sample<T>::parts;
  constexpr int used = processedOf(L);
  const Path path = scalePath<Op, T>(scale);

  if constexpr (kIs16u<T> && (L == Lay::C3 || L == Lay::C4)) {
    // Equal constants make a C1 problem of three or four times the width.
    if (values == nullptr) return pxlStsNullPtr;
    if (std::all_of(values, values + used, [&](T v) { return v == values[0]; }))
      return foldToC1(roi, used, [&](PxlSize r) {
        return constMember<Op, T, Lay::C1>(src, srcStep, values, dst, dStep, r, scale, inPlace);
      });
  }
  if constexpr (kIs16u<T> && L == Lay::C1) {
    // 16u looks at the scale (and the constant) before the pointers; Set
    // does the remaining checks.
    if (path == Path::Above) {
      if (!inPlace && src == nullptr) return pxlStsNullPtr;
      return fillZero<T, L>(dst, dStep, roi);
    }
    const Shortcut<T> early = Op::template early16u<T>(values[0], path);
    if (early.kind == Shortcut<T>::Fill) {
      if (!inPlace && src == nullptr) return pxlStsNullPtr;
      return move::setImageUniform<T, L>(early.fill, dst, dStep, roi);
    }
  }
  if (anyNull(src, dst, values)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<kScaledOrder<T>>(roi, srcStep, dStep)) return st;

  if constexpr (L == Lay::C1 && !kComplex<T> && !std::is_floating_point_v<R>) {
    const Shortcut<T> sc = Op::template c1Shortcut<T>(values[0], scale, path);
    if (sc.kind == Shortcut<T>::Copy)
      return inPlace ? pxlStsOk : move::copyImage<T, L>(src, srcStep, dst, dStep, roi);
    if (sc.kind == Shortcut<T>::Fill) return move::setImageUniform<T, L>(sc.fill, dst, dStep, roi);
  }
  if (path == Path::Above) return fillZero<T, L>(dst, dStep, roi);

  const GateKey key{Op::kFamC, typeTagOf<T>(), L, inPlace};
  const R* v = reinterpret_cast<const R*>(values);
  if constexpr (kPerSample<Op, T>) {
    // Serial: no member of the complex types has a parallel path.
    withPath<R>(path, [&](auto pc) {
      constexpr Path P = decltype(pc)::value;
      for (int y = 0; y < roi.height; ++y)
        rowComplexConst<Op, P, T, channelsOf(L), used>(rowAt(src, srcStep, y), values, rowAt(dst, dStep, y),
                                                       roi.width, scale);
    });
  } else if constexpr (L == Lay::AC4) {
    if constexpr (std::is_same_v<T, Pxl32f>) {
      if (inPlace) {
        // In place, 32f runs the C4 kernel with a fourth constant that
        // leaves a sample as it is: alpha is rewritten as alpha (op) that
        // constant (under Add a negative zero becomes positive).
        const R v4[4] = {v[0], v[1], v[2], R(Op::kIdentity)};
        constRows<Op, T, Lay::C4, 4>(src, srcStep, v4, dst, dStep, roi, scale, path, key);
        return pxlStsOk;
      }
    }
    withPath<R>(path, [&](auto pc) {
      constexpr Path P = decltype(pc)::value;
      for (int y = 0; y < roi.height; ++y)
        rowConstAC4<Op, P, R, parts>(reinterpret_cast<const R*>(rowAt(src, srcStep, y)), v,
                                     reinterpret_cast<R*>(rowAt(dst, dStep, y)), roi.width, scale);
    });
  } else {
    constRows<Op, T, L, used * parts>(src, srcStep, v, dst, dStep, roi, scale, path, key);
  }
  return pxlStsOk;
}

template <class Op, class T, Lay L>
PxlStatus imageConst(const T* src, int srcStep, ValueArg<T, L> value, T* dst, int dstStep, PxlSize roi,
                     int scale = 0) {
  if constexpr (L == Lay::C1) {
    return constMember<Op, T, L>(src, srcStep, &value, dst, dstStep, roi, scale, false);
  } else {
    return constMember<Op, T, L>(src, srcStep, LocalValues<T>(value, processedOf(L)).get(), dst, dstStep, roi, scale, false);
  }
}

template <class Op, class T, Lay L>
PxlStatus imageConst(ValueArg<T, L> value, T* srcDst, int srcDstStep, PxlSize roi, int scale = 0) {
  if constexpr (L == Lay::C1) {
    return constMember<Op, T, L>(srcDst, srcDstStep, &value, srcDst, srcDstStep, roi, scale, true);
  } else {
    return constMember<Op, T, L>(srcDst, srcDstStep, LocalValues<T>(value, processedOf(L)).get(), srcDst, srcDstStep, roi, scale, true);
  }
}

// ------------------------------------------------------------ vectors


template <class Op, class T>
PxlStatus vectorBinary(const T* src1, const T* src2, T* dst, int length, int scale = 0) {
  using R = PartOf<T>;
  if (anyNull(src1, src2, dst)) return pxlStsNullPtr;
  if (length < 1) return pxlStsSize;
  const Path path = scalePath<Op, T>(scale);
  if (path == Path::Above) return move::vectorZero(dst, length);
  withPath<R>(path, [&](auto pc) {
    constexpr Path P = decltype(pc)::value;
    if constexpr (kPerSample<Op, T>) {
      rowComplexBinary<Op, P, T, 1, 1>(src1, src2, dst, length, scale);
    } else {
      // Independent parts: a complex vector is a real one twice as long.
      rowBinary<Op, P>(reinterpret_cast<const R*>(src1), reinterpret_cast<const R*>(src2),
                       reinterpret_cast<R*>(dst), length * Sample<T>::parts, scale);
    }
  });
  return pxlStsOk;
}

template <class Op, class T>
PxlStatus vectorBinary(const T* src, T* srcDst, int length, int scale = 0) {
  return vectorBinary<Op, T>(src, srcDst, srcDst, length, scale);
}

template <class Op, class T>
PxlStatus vectorConst(const T* src, T value, T* dst, int length, int scale = 0) {
  using R = PartOf<T>;
  constexpr int parts = Sample<T>::parts;
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (length < 1) return pxlStsSize;
  const Path path = scalePath<Op, T>(scale);
  if (path == Path::Above) return move::vectorZero(dst, length);
  withPath<R>(path, [&](auto pc) {
    constexpr Path P = decltype(pc)::value;
    if constexpr (kPerSample<Op, T>) {
      rowComplexConst<Op, P, T, 1, 1>(src, &value, dst, length, scale);
    } else {
      const Pattern<R, parts> pat(reinterpret_cast<const R*>(&value));
      rowConst<Op, P, R, parts>(reinterpret_cast<const R*>(src), pat, reinterpret_cast<R*>(dst), length * parts,
                                scale);
    }
  });
  return pxlStsOk;
}

template <class Op, class T>
PxlStatus vectorConst(T value, T* srcDst, int length, int scale = 0) {
  return vectorConst<Op, T>(srcDst, value, srcDst, length, scale);
}

}  // namespace pxl::arith
