// Scaled add and subtract against OpenCV.
//
// One row per measured member: the library call, the OpenCV call on the same
// images, and what that OpenCV call computes. Sub takes src2 - src1, so its
// OpenCV counterpart gets the operands the other way round.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// clang-format off
const Case kArith[] = {
  {"Add", "pxliAdd_8u_C1RSfs", "scale 0", k8u, 2,
   PXL_LIB(pxliAdd_8u_C1RSfs(PXL_SRC(Pxl8u, 0), PXL_SRC(Pxl8u, 1), PXL_DST(Pxl8u), 0)),
   PXL_CV(cv::add(m.src[0], m.src[1], m.dst)), "cv::add (saturating)"},
  {"Add", "pxliAdd_8u_C1RSfs", "scale 1", k8u, 2,
   PXL_LIB(pxliAdd_8u_C1RSfs(PXL_SRC(Pxl8u, 0), PXL_SRC(Pxl8u, 1), PXL_DST(Pxl8u), 1)),
   PXL_CV(cv::addWeighted(m.src[0], 0.5, m.src[1], 0.5, 0.0, m.dst)),
   "cv::addWeighted(a, 0.5, b, 0.5, 0): float arithmetic and round to nearest even, the same halving done another way"},
  {"Add", "pxliAdd_16s_C1RSfs", "scale 0", k16s, 2,
   PXL_LIB(pxliAdd_16s_C1RSfs(PXL_SRC(Pxl16s, 0), PXL_SRC(Pxl16s, 1), PXL_DST(Pxl16s), 0)),
   PXL_CV(cv::add(m.src[0], m.src[1], m.dst)), "cv::add (saturating)"},
  {"Add", "pxliAdd_32f_C1R", "", k32f, 2,
   PXL_LIB(pxliAdd_32f_C1R(PXL_SRC(Pxl32f, 0), PXL_SRC(Pxl32f, 1), PXL_DST(Pxl32f))),
   PXL_CV(cv::add(m.src[0], m.src[1], m.dst)), "cv::add"},
  {"AddC", "pxliAddC_8u_C1RSfs", "value 37, scale 0", k8u, 1,
   PXL_LIB(pxliAddC_8u_C1RSfs(PXL_SRC(Pxl8u, 0), 37, PXL_DST(Pxl8u), 0)),
   PXL_CV(cv::add(m.src[0], cv::Scalar(37), m.dst)), "cv::add with a cv::Scalar (saturating)"},
  {"Sub", "pxliSub_8u_C1RSfs", "scale 0", k8u, 2,
   PXL_LIB(pxliSub_8u_C1RSfs(PXL_SRC(Pxl8u, 0), PXL_SRC(Pxl8u, 1), PXL_DST(Pxl8u), 0)),
   PXL_CV(cv::subtract(m.src[1], m.src[0], m.dst)), "cv::subtract(src2, src1) (saturating)"},
  {"Sub", "pxliSub_32f_C1R", "", k32f, 2,
   PXL_LIB(pxliSub_32f_C1R(PXL_SRC(Pxl32f, 0), PXL_SRC(Pxl32f, 1), PXL_DST(Pxl32f))),
   PXL_CV(cv::subtract(m.src[1], m.src[0], m.dst)), "cv::subtract(src2, src1)"},
};
// clang-format on

}  // namespace

void registerArith() { registerCases(kArith); }

}  // namespace pxlbench
