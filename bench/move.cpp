// Copy and Set against OpenCV's copyTo and setTo.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// clang-format off
// family, member, arguments, sample, sources, library call, OpenCV call on the same images, what OpenCV computes
const Case kMove[] = {
  {"Copy", "pxliCopy_8u_C1R",  "", k8u,  1, PXL_LIB(pxliCopy_8u_C1R(PXL_SRC(Pxl8u, 0), PXL_DST(Pxl8u))),   PXL_CV(m.a.copyTo(m.d)),          "cv::Mat::copyTo"},
  {"Copy", "pxliCopy_32f_C1R", "", k32f, 1, PXL_LIB(pxliCopy_32f_C1R(PXL_SRC(Pxl32f, 0), PXL_DST(Pxl32f))), PXL_CV(m.a.copyTo(m.d)),          "cv::Mat::copyTo"},
  {"Set",  "pxliSet_8u_C1R",   "value 37", k8u,  0, PXL_LIB(pxliSet_8u_C1R(37, PXL_DST(Pxl8u))),          PXL_CV(m.d.setTo(cv::Scalar(37))), "cv::Mat::setTo"},
  {"Set",  "pxliSet_32f_C1R",  "value 0.5", k32f, 0, PXL_LIB(pxliSet_32f_C1R(0.5f, PXL_DST(Pxl32f))),     PXL_CV(m.d.setTo(cv::Scalar(0.5))), "cv::Mat::setTo"},
};
// clang-format on

}  // namespace

void registerMove() { registerCases(kMove); }

}  // namespace pxlbench
