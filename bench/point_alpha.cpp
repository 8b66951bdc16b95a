// Alpha composition against OpenCV. OpenCV has no compositing operator, so
// the rows compare with the nearest single call: a blend of two four-channel
// images by constant weights (cv::addWeighted), which is the constant-alpha
// 'over' in floating point. The last column says whether the bytes agree.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// A pixel of four 8u samples, carried by the harness as one 32-bit sample.
constexpr SampleKind kRgba{4, CV_32S};

cv::Mat rgba(const cv::Mat& m) { return cv::Mat(m.rows, m.cols, CV_8UC4, m.data, m.step); }

// over with constant alphas 200 and 100: c1 * 200/255 + c2 * (55/255) * (100/255).
void cvOver(CvIo& m) {
  cv::Mat d = rgba(m.d);
  cv::addWeighted(rgba(m.a), 200.0 / 255, rgba(m.b), 55.0 * 100 / (255.0 * 255), 0, d);
}

#define PXL_RGBA(i) static_cast<const Pxl8u*>(io.src[i]), io.srcStep[i]

// clang-format off
// family, member, arguments, sample, sources, library call, OpenCV call on the same images, what OpenCV computes
const Case kAlpha[] = {
  {"AlphaCompC", "pxliAlphaCompC_8u_C4R", "over, alphas 200 and 100", kRgba, 2,
   PXL_LIB(pxliAlphaCompC_8u_C4R(PXL_RGBA(0), 200, PXL_RGBA(1), 100, static_cast<Pxl8u*>(io.dst), io.dstStep, io.roi, pxlAlphaOver)),
   cvOver, "cv::addWeighted with the same weights in floating point"},
  {"AlphaComp", "pxliAlphaComp_8u_AC4R", "over, per-pixel alpha", kRgba, 2,
   PXL_LIB(pxliAlphaComp_8u_AC4R(PXL_RGBA(0), PXL_RGBA(1), static_cast<Pxl8u*>(io.dst), io.dstStep, io.roi, pxlAlphaOver)),
   cvOver, "cv::addWeighted with constant weights (OpenCV has no per-pixel compositing call)"},
};
// clang-format on

}  // namespace

void registerPointAlpha() { registerCases(kAlpha); }

}  // namespace pxlbench
