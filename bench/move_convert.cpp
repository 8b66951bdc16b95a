// Convert against OpenCV's convertTo.
//
// From float with pxlRndNear the library rounds half to even, as convertTo
// does (it rounds with the processor's default mode), and both saturate, so
// the two write the same bytes.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// clang-format off
// family, member, arguments, source, sources, library call, OpenCV call, what OpenCV computes, destination
const Case kConvert[] = {
  {"Convert", "pxliConvert_8u32f_C1R", "", k8u, 1,
   PXL_LIB(pxliConvert_8u32f_C1R(PXL_SRC(Pxl8u, 0), PXL_DST(Pxl32f))),
   PXL_CV(m.a.convertTo(m.d, CV_32F)), "Mat::convertTo(CV_32F)", k32f},
  {"Convert", "pxliConvert_32f8u_C1R", "pxlRndNear", k32f, 1,
   PXL_LIB(pxliConvert_32f8u_C1R(PXL_SRC(Pxl32f, 0), PXL_DST(Pxl8u), pxlRndNear)),
   PXL_CV(m.a.convertTo(m.d, CV_8U)), "Mat::convertTo(CV_8U): saturated, rounded half to even", k8u},
};
// clang-format on

}  // namespace

void registerMoveConvert() { registerCases(kConvert); }

}  // namespace pxlbench
