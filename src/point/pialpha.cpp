// pxliAlphaComp, pxliAlphaCompC, pxliAlphaPremul, pxliAlphaPremulC for 8u and
// 16u. Serial: one row at a time. None of them looks at a step.
#include "move/rows.h"
#include "point/alpha.h"

namespace pxl::point {
namespace {

template <AlphaLay L>
inline constexpr bool kPlanar = L == AlphaLay::AP4;

// Samples per pixel of an interleaved layout (AC1 holds alphas only).
template <AlphaLay L>
inline constexpr int kSamples = L == AlphaLay::C3 ? 3 : (L == AlphaLay::C4 || L == AlphaLay::AC4) ? 4 : 1;

// Null pointers of an operand, plane arrays included.
template <class P>
inline bool nullImage(P p, bool planar) {
  if (p == nullptr) return true;
  if constexpr (std::is_pointer_v<std::remove_pointer_t<P>>) {
    if (planar)
      for (int k = 0; k < 4; ++k)
        if (p[k] == nullptr) return true;
  }
  return false;
}

template <AlphaLay L, class... P>
inline PxlStatus checkAlpha(PxlSize roi, P... images) {
  if ((nullImage(images, kPlanar<L>) || ...)) return pxlStsNullPtr;
  if (badSize(roi)) return pxlStsSize;
  return pxlStsOk;
}

inline bool badOperator(int code) { return code < 0 || code > 11; }

template <class T>
inline const T* planeRow(const T* const* planes, int k, int step, int y) {
  return rowAt(planes[k], step, y);
}
template <class T>
inline T* planeRow(T* const* planes, int k, int step, int y) {
  return rowAt(planes[k], step, y);
}

}  // namespace

// Calls row(y, stream) for every row. 8u destinations too large to stay in
// the cache are written around it (the choice never changes a result), and
// the call then ends with a store fence.
template <class T, AlphaLay L, class Row>
void alphaRows(PxlSize roi, Row&& row) {
  constexpr std::size_t samples = kPlanar<L> ? 4 : kSamples<L>;
  const std::size_t streamed = std::is_same_v<T, Pxl8u> ? std::size_t(roi.width) * samples * std::size_t(roi.height) : 0;
  move::streamedRows(streamed, roi.height, [&](int y, auto stream) { row(y, decltype(stream)::value); });
}

// The frame both compositions share: the checks, then row(y, rule, stream)
// for every row, with the operator's rule fixed at compile time.
template <class T, AlphaLay L, bool AlphaOnly, class S, class D, class Row>
PxlStatus composeRows(S src1, S src2, D dst, PxlSize roi, int alphaType, Row&& row) {
  if (PxlStatus st = checkAlpha<L>(roi, src1, src2, dst)) return st;
  if (badOperator(alphaType)) return pxlStsAlphaOp;
  withOperator(alphaType, [&](auto op, auto pre) {
    const ComposeRule<T, decltype(op)::value, AlphaOnly, decltype(pre)::value> rule;
    alphaRows<T, L>(roi, [&](int y, bool stream) { row(y, rule, stream); });
  });
  return pxlStsOk;
}

template <class T, AlphaLay L, class S, class D>
PxlStatus alphaComp(S src1, int src1Step, S src2, int src2Step, D dst, int dstStep, PxlSize roi, int alphaType) {
  return composeRows<T, L, L == AlphaLay::AC1>(src1, src2, dst, roi, alphaType, [&](int y, const auto& rule, bool stream) {
    if constexpr (L == AlphaLay::AP4) {
      const T* a1 = planeRow(src1, 3, src1Step, y);
      const T* a2 = planeRow(src2, 3, src2Step, y);
      for (int k = 0; k < 3; ++k)
        alphaLanes<T, AlphaFrom::Plane, AlphaLanes::None>({planeRow(src1, k, src1Step, y), a1, 0},
                                                          {planeRow(src2, k, src2Step, y), a2, 0},
                                                          planeRow(dst, k, dstStep, y), roi.width, rule, stream);
      alphaLanes<T, AlphaFrom::Self, AlphaLanes::All>({a1, nullptr, 0}, {a2, nullptr, 0},
                                                      planeRow(dst, 3, dstStep, y), roi.width, rule, stream);
    } else if constexpr (L == AlphaLay::AC1) {
      alphaLanes<T, AlphaFrom::Self, AlphaLanes::All>({rowAt(src1, src1Step, y), nullptr, 0},
                                                      {rowAt(src2, src2Step, y), nullptr, 0}, rowAt(dst, dstStep, y),
                                                      roi.width, rule, stream);
    } else {
      alphaLanes<T, AlphaFrom::Pixel, AlphaLanes::Fourth>({rowAt(src1, src1Step, y), nullptr, 0},
                                                          {rowAt(src2, src2Step, y), nullptr, 0},
                                                          rowAt(dst, dstStep, y), roi.width * 4, rule, stream);
    }
  });
}

// One constant alpha per source. In AC4 and AP4 the alpha samples of dst
// take the alpha result of the two constants.
template <class T, AlphaLay L, class S, class D>
PxlStatus alphaCompC(S src1, int src1Step, T alpha1, S src2, int src2Step, T alpha2, D dst, int dstStep,
                     PxlSize roi, int alphaType) {
  return composeRows<T, L, false>(src1, src2, dst, roi, alphaType, [&](int y, const auto& rule, bool stream) {
    if constexpr (L == AlphaLay::AP4) {
      for (int k = 0; k < 4; ++k) {
        const Operand<T> o1{planeRow(src1, k, src1Step, y), nullptr, alpha1};
        const Operand<T> o2{planeRow(src2, k, src2Step, y), nullptr, alpha2};
        T* d = planeRow(dst, k, dstStep, y);
        if (k < 3)
          alphaLanes<T, AlphaFrom::Constant, AlphaLanes::None>(o1, o2, d, roi.width, rule, stream);
        else
          alphaLanes<T, AlphaFrom::Constant, AlphaLanes::All>(o1, o2, d, roi.width, rule, stream);
      }
    } else {
      const Operand<T> o1{rowAt(src1, src1Step, y), nullptr, alpha1};
      const Operand<T> o2{rowAt(src2, src2Step, y), nullptr, alpha2};
      constexpr AlphaLanes K = L == AlphaLay::AC4 ? AlphaLanes::Fourth : AlphaLanes::None;
      alphaLanes<T, AlphaFrom::Constant, K>(o1, o2, rowAt(dst, dstStep, y), roi.width * kSamples<L>, rule, stream);
    }
  });
}

template <class T, AlphaLay L, class S, class D>
PxlStatus alphaPremul(S src, int srcStep, D dst, int dstStep, PxlSize roi) {
  if (PxlStatus st = checkAlpha<L>(roi, src, dst)) return st;
  const PremulRule<T> rule;
  alphaRows<T, L>(roi, [&](int y, bool stream) {
    if constexpr (L == AlphaLay::AP4) {
      const T* a = planeRow(src, 3, srcStep, y);
      for (int k = 0; k < 3; ++k) {
        const Operand<T> o{planeRow(src, k, srcStep, y), a, 0};
        alphaLanes<T, AlphaFrom::Plane, AlphaLanes::None>(o, o, planeRow(dst, k, dstStep, y), roi.width, rule, stream);
      }
      const Operand<T> oa{a, nullptr, 0};
      alphaLanes<T, AlphaFrom::Self, AlphaLanes::All>(oa, oa, planeRow(dst, 3, dstStep, y), roi.width, rule, stream);
    } else {
      const Operand<T> o{rowAt(src, srcStep, y), nullptr, 0};
      alphaLanes<T, AlphaFrom::Pixel, AlphaLanes::Fourth>(o, o, rowAt(dst, dstStep, y), roi.width * 4, rule, stream);
    }
  });
  return pxlStsOk;
}

template <class T, AlphaLay L, class D>
PxlStatus alphaPremul(D srcDst, int srcDstStep, PxlSize roi) {
  return alphaPremul<T, L>(srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

// Every sample, alpha samples included, times the constant: scaling a whole
// premultiplied pixel by an opacity scales its alpha as well.
template <class T, AlphaLay L, class S, class D>
PxlStatus alphaPremulC(S src, int srcStep, T alpha, D dst, int dstStep, PxlSize roi) {
  if (PxlStatus st = checkAlpha<L>(roi, src, dst)) return st;
  const PremulRule<T> rule;
  alphaRows<T, L>(roi, [&](int y, bool stream) {
    if constexpr (L == AlphaLay::AP4) {
      for (int k = 0; k < 4; ++k) {
        const Operand<T> o{planeRow(src, k, srcStep, y), nullptr, alpha};
        alphaLanes<T, AlphaFrom::Constant, AlphaLanes::None>(o, o, planeRow(dst, k, dstStep, y), roi.width, rule, stream);
      }
    } else {
      const Operand<T> o{rowAt(src, srcStep, y), nullptr, alpha};
      alphaLanes<T, AlphaFrom::Constant, AlphaLanes::None>(o, o, rowAt(dst, dstStep, y), roi.width * kSamples<L>,
                                                           rule, stream);
    }
  });
  return pxlStsOk;
}

template <class T, AlphaLay L, class D>
PxlStatus alphaPremulC(T alpha, D srcDst, int srcDstStep, PxlSize roi) {
  return alphaPremulC<T, L>(srcDst, srcDstStep, alpha, srcDst, srcDstStep, roi);
}

}  // namespace pxl::point

#include "shims/point/pialpha.inc"
