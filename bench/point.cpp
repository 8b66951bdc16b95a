// Pointwise decisions against OpenCV: a threshold, a comparison and a bit
// operation, each on the same images as its OpenCV counterpart.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// clang-format off
// family, member, arguments, sample, sources, library call, OpenCV call on the same images, what OpenCV computes
const Case kPoint[] = {
  {"Threshold_GT", "pxliThreshold_GT_8u_C1R", "threshold 128", k8u, 1, PXL_LIB(pxliThreshold_GT_8u_C1R(PXL_SRC(Pxl8u, 0), PXL_DST(Pxl8u), 128)),
   PXL_CV(cv::threshold(m.a, m.d, 128, 255, cv::THRESH_TRUNC)), "cv::threshold THRESH_TRUNC: min(src, 128)"},
  {"Compare", "pxliCompare_8u_C1R", "less", k8u, 2, PXL_LIB(pxliCompare_8u_C1R(PXL_SRC(Pxl8u, 0), PXL_SRC(Pxl8u, 1), PXL_DST(Pxl8u), pxlRelLess)),
   PXL_CV(cv::compare(m.a, m.b, m.d, cv::CMP_LT)), "cv::compare CMP_LT: 255 where src1 < src2"},
  {"And", "pxliAnd_8u_C1R", "", k8u, 2, PXL_LIB(pxliAnd_8u_C1R(PXL_SRC(Pxl8u, 0), PXL_SRC(Pxl8u, 1), PXL_DST(Pxl8u))),
   PXL_CV(cv::bitwise_and(m.a, m.b, m.d)), "cv::bitwise_and"},
};
// clang-format on

}  // namespace

void registerPoint() { registerCases(kPoint); }

}  // namespace pxlbench
