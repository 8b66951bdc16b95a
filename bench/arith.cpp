// Scaled add and subtract against OpenCV.
//
// One row per measured member: the library call, the OpenCV call on the same
// images, and what that OpenCV call computes. Sub takes src2 - src1, so its
// OpenCV counterpart gets the operands the other way round.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// Scale 1 halves the sum with ties to even. OpenCV has no scaled integer
// add; addWeighted with weights 0.5 works in float, where a/2 + b/2 is exact
// for 8-bit samples, and rounds to nearest even, so it writes the same bytes
// by another route (the table's last column checks that).
constexpr const char* kHalfSum =
    "cv::addWeighted(a, 0.5, b, 0.5, 0): the halved sum in float, rounded to nearest even";

// clang-format off
// family, member, arguments, sample, sources, library call, OpenCV call on the same images, what OpenCV computes
const Case kArith[] = {
  {"Add",  "pxliAdd_8u_C1RSfs",   "scale 0",           k8u,  2, PXL_LIB2S(pxliAdd_8u_C1RSfs, Pxl8u, 0),       PXL_CV(cv::add(m.a, m.b, m.d)),                  "cv::add (saturating)"},
  {"Add",  "pxliAdd_8u_C1RSfs",   "scale 1",           k8u,  2, PXL_LIB2S(pxliAdd_8u_C1RSfs, Pxl8u, 1),       PXL_CV(cv::addWeighted(m.a, 0.5, m.b, 0.5, 0, m.d)), kHalfSum},
  {"Add",  "pxliAdd_16s_C1RSfs",  "scale 0",           k16s, 2, PXL_LIB2S(pxliAdd_16s_C1RSfs, Pxl16s, 0),     PXL_CV(cv::add(m.a, m.b, m.d)),                  "cv::add (saturating)"},
  {"Add",  "pxliAdd_32f_C1R",     "",                  k32f, 2, PXL_LIB2(pxliAdd_32f_C1R, Pxl32f),            PXL_CV(cv::add(m.a, m.b, m.d)),                  "cv::add"},
  {"AddC", "pxliAddC_8u_C1RSfs",  "value 37, scale 0", k8u,  1, PXL_LIB1CS(pxliAddC_8u_C1RSfs, Pxl8u, 37, 0), PXL_CV(cv::add(m.a, cv::Scalar(37), m.d)),      "cv::add with a cv::Scalar (saturating)"},
  {"Sub",  "pxliSub_8u_C1RSfs",   "scale 0",           k8u,  2, PXL_LIB2S(pxliSub_8u_C1RSfs, Pxl8u, 0),       PXL_CV(cv::subtract(m.b, m.a, m.d)),             "cv::subtract(src2, src1) (saturating)"},
  {"Sub",  "pxliSub_32f_C1R",     "",                  k32f, 2, PXL_LIB2(pxliSub_32f_C1R, Pxl32f),            PXL_CV(cv::subtract(m.b, m.a, m.d)),             "cv::subtract(src2, src1)"},
};
// clang-format on

}  // namespace

void registerArith() { registerCases(kArith); }

}  // namespace pxlbench
