// Multiply and divide against OpenCV.
//
// Div takes src2 / src1, so its OpenCV counterpart gets the operands the
// other way round. pxliDiv_32f_C1R is the refined reciprocal estimate, not
// an IEEE quotient; cv::divide is the IEEE one (with 0 for a zero divisor),
// so the two may differ in the last bit: the row compares speed only.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// clang-format off
// family, member, arguments, sample, sources, library call, OpenCV call on the same images, what OpenCV computes
const Case kMulDiv[] = {
  {"Mul", "pxliMul_8u_C1RSfs", "scale 0", k8u,  2, PXL_LIB2S(pxliMul_8u_C1RSfs, Pxl8u, 0), PXL_CV(cv::multiply(m.a, m.b, m.d)),      "cv::multiply (saturating)"},
  {"Mul", "pxliMul_8u_C1RSfs", "scale 8", k8u,  2, PXL_LIB2S(pxliMul_8u_C1RSfs, Pxl8u, 8), PXL_CV(cv::multiply(m.a, m.b, m.d, 1.0 / 256)), "cv::multiply with scale 1/256, in float, rounded to nearest even"},
  {"Mul", "pxliMul_32f_C1R",   "",        k32f, 2, PXL_LIB2(pxliMul_32f_C1R, Pxl32f),       PXL_CV(cv::multiply(m.a, m.b, m.d)),      "cv::multiply"},
  {"Div", "pxliDiv_32f_C1R",   "",        k32f, 2, PXL_LIB2(pxliDiv_32f_C1R, Pxl32f),       PXL_CV(cv::divide(m.b, m.a, m.d)),        "cv::divide(src2, src1), IEEE quotient"},
};
// clang-format on

}  // namespace

void registerArithMulDiv() { registerCases(kMulDiv); }

}  // namespace pxlbench
