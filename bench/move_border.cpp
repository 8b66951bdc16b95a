// Mirror and Transpose against OpenCV.
//
// cv::flip names its axes the other way round: flip code 0 turns the image
// upside down (the library's axis 0, row order reversed), code 1 reverses
// each row (axis 1), -1 does both (axis 2). The images are square, so the
// transposed destination has the source's shape and both sides write the
// same caller-owned image.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

constexpr SampleKind k32s{4, CV_32S};

#define PXL_MIRROR(fn, T, axis) PXL_LIB(fn(PXL_SRC(T, 0), PXL_DST(T), axis))
#define PXL_TRANSPOSE(fn, T) PXL_LIB(fn(PXL_SRC(T, 0), PXL_DST(T)))

// clang-format off
// family, member, arguments, sample, sources, library call, OpenCV call on the same images, what OpenCV computes
const Case kMoveBorder[] = {
  {"Mirror",    "pxliMirror_8u_C1R",     "axis 0", k8u,  1, PXL_MIRROR(pxliMirror_8u_C1R, Pxl8u, pxlAxsHorizontal), PXL_CV(cv::flip(m.a, m.d, 0)),  "cv::flip code 0 (rows reversed)"},
  {"Mirror",    "pxliMirror_8u_C1R",     "axis 1", k8u,  1, PXL_MIRROR(pxliMirror_8u_C1R, Pxl8u, pxlAxsVertical),   PXL_CV(cv::flip(m.a, m.d, 1)),  "cv::flip code 1 (each row reversed)"},
  {"Mirror",    "pxliMirror_8u_C1R",     "axis 2", k8u,  1, PXL_MIRROR(pxliMirror_8u_C1R, Pxl8u, pxlAxsBoth),       PXL_CV(cv::flip(m.a, m.d, -1)), "cv::flip code -1 (both)"},
  {"Transpose", "pxliTranspose_8u_C1R",  "",       k8u,  1, PXL_TRANSPOSE(pxliTranspose_8u_C1R, Pxl8u),             PXL_CV(cv::transpose(m.a, m.d)), "cv::transpose"},
  {"Transpose", "pxliTranspose_32s_C1R", "",       k32s, 1, PXL_TRANSPOSE(pxliTranspose_32s_C1R, Pxl32s),           PXL_CV(cv::transpose(m.a, m.d)), "cv::transpose"},
};
// clang-format on

}  // namespace

void registerMoveBorder() { registerCases(kMoveBorder); }

}  // namespace pxlbench
