// Neighbourhood filters against OpenCV. A filter of radius r reads r pixels
// around its ROI and the library makes no border of its own, so both sides
// filter the image less a two-pixel frame (the largest radius here): OpenCV
// on a sub-matrix, which takes the real pixels around it as its border, the
// library on the same ROI. Both write the same part of their destination.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

constexpr int kFrame = 2;

// The ROI's origin and size inside a whole image of the harness.
template <class T>
const T* inSrc(const Io& io, int i) {
  return reinterpret_cast<const T*>(reinterpret_cast<const char*>(io.src[i]) + kFrame * io.srcStep[i]) + kFrame;
}
template <class T>
T* inDst(const Io& io) {
  return reinterpret_cast<T*>(static_cast<char*>(io.dst) + kFrame * io.dstStep) + kFrame;
}
inline PxlSize inRoi(const Io& io) { return {io.roi.width - 2 * kFrame, io.roi.height - 2 * kFrame}; }
inline cv::Rect inRect(const cv::Mat& m) { return {kFrame, kFrame, m.cols - 2 * kFrame, m.rows - 2 * kFrame}; }

#define PXL_FSRC(T) inSrc<T>(io, 0), io.srcStep[0]
#define PXL_FDST(T) inDst<T>(io), io.dstStep, inRoi(io)
#define PXL_CVIN(expr)                                    \
  PXL_CV(cv::Mat a = m.a(inRect(m.a)), d = m.d(inRect(m.d)); \
         expr)

const Pxl32f kTaps5[25] = {0.01f, 0.02f, 0.04f, 0.02f, 0.01f, 0.02f, 0.05f, 0.08f, 0.05f, 0.02f, 0.04f, 0.08f, 0.12f,
                           0.08f, 0.04f, 0.02f, 0.05f, 0.08f, 0.05f, 0.02f, 0.01f, 0.02f, 0.04f, 0.02f, 0.01f};
const Pxl32f kRow5[5] = {0.0625f, 0.25f, 0.375f, 0.25f, 0.0625f};
const Pxl32s kInt3[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};

// The library's kernels are convolutions (flipped); these are symmetric, so
// filter2D's correlation computes the same sums.
const cv::Mat& cvTaps5() {
  static const cv::Mat k(5, 5, CV_32F, const_cast<Pxl32f*>(kTaps5));
  return k;
}
const cv::Mat& cvRow5() {
  static const cv::Mat k(1, 5, CV_32F, const_cast<Pxl32f*>(kRow5));
  return k;
}
const cv::Mat& cvInt3() {
  static const cv::Mat k = (cv::Mat_<float>(3, 3) << 1, 2, 1, 2, 4, 2, 1, 2, 1) / 16.0f;
  return k;
}

// clang-format off
const Case kFilter[] = {
  {"FilterSobel", "pxliFilterSobelVert_8u16s_C1R", "3x3", k8u, 1,
   PXL_LIB(pxliFilterSobelVert_8u16s_C1R(PXL_FSRC(Pxl8u), PXL_FDST(Pxl16s), pxlMask3x3)),
   PXL_CVIN(cv::Sobel(a, d, CV_16S, 1, 0, 3)), "cv::Sobel dx 3x3 to 16s (opposite sign)", k16s},
  {"FilterScharr", "pxliFilterScharrVert_8u16s_C1R", "", k8u, 1,
   PXL_LIB(pxliFilterScharrVert_8u16s_C1R(PXL_FSRC(Pxl8u), PXL_FDST(Pxl16s))),
   PXL_CVIN(cv::Scharr(a, d, CV_16S, 1, 0)), "cv::Scharr dx to 16s", k16s},
  {"FilterLaplace", "pxliFilterLaplace_8u_C1R", "3x3", k8u, 1,
   PXL_LIB(pxliFilterLaplace_8u_C1R(PXL_FSRC(Pxl8u), PXL_FDST(Pxl8u), pxlMask3x3)),
   PXL_CVIN(cv::Laplacian(a, d, CV_8U, 3)), "cv::Laplacian ksize 3 (another 3x3 kernel)"},
  {"FilterGauss", "pxliFilterGauss_8u_C1R", "3x3", k8u, 1,
   PXL_LIB(pxliFilterGauss_8u_C1R(PXL_FSRC(Pxl8u), PXL_FDST(Pxl8u), pxlMask3x3)),
   PXL_CVIN(cv::GaussianBlur(a, d, cv::Size(3, 3), 0)), "cv::GaussianBlur 3x3 (same kernel)"},
  {"FilterGauss", "pxliFilterGauss_8u_C1R", "5x5", k8u, 1,
   PXL_LIB(pxliFilterGauss_8u_C1R(PXL_FSRC(Pxl8u), PXL_FDST(Pxl8u), pxlMask5x5)),
   PXL_CVIN(cv::GaussianBlur(a, d, cv::Size(5, 5), 0)), "cv::GaussianBlur 5x5 (another kernel)"},
  {"FilterLowpass", "pxliFilterLowpass_8u_C1R", "3x3", k8u, 1,
   PXL_LIB(pxliFilterLowpass_8u_C1R(PXL_FSRC(Pxl8u), PXL_FDST(Pxl8u), pxlMask3x3)),
   PXL_CVIN(cv::blur(a, d, cv::Size(3, 3))), "cv::blur 3x3"},
  {"Filter32f", "pxliFilter_32f_C1R", "5x5", k32f, 1,
   PXL_LIB(pxliFilter_32f_C1R(PXL_FSRC(Pxl32f), PXL_FDST(Pxl32f), kTaps5, {5, 5}, {2, 2})),
   PXL_CVIN(cv::filter2D(a, d, CV_32F, cvTaps5())), "cv::filter2D 5x5 32f"},
  // The column pass reads the row pass's result: the second source image is
  // its scratch, on both sides.
  {"FilterRowColumn32f", "pxliFilterRow32f_8u_C1R", "5+5", k8u, 2,
   PXL_LIB((pxliFilterRow32f_8u_C1R(io.s<Pxl8u>(0) + kFrame * io.srcStep[0], io.srcStep[0],
                                    const_cast<Pxl8u*>(io.s<Pxl8u>(1)), io.srcStep[1],
                                    {io.roi.width - 2 * kFrame, io.roi.height}, kRow5, 5, 2),
            pxliFilterColumn32f_8u_C1R(io.s<Pxl8u>(1) + kFrame * io.srcStep[1], io.srcStep[1], PXL_FDST(Pxl8u),
                                       kRow5, 5, 2))),
   PXL_CVIN(cv::sepFilter2D(a, d, CV_8U, cvRow5(), cvRow5().t())), "cv::sepFilter2D 5+5 (float intermediate)"},
  {"Filter", "pxliFilter_8u_C1R", "3x3 divisor 16", k8u, 1,
   PXL_LIB(pxliFilter_8u_C1R(PXL_FSRC(Pxl8u), PXL_FDST(Pxl8u), kInt3, {3, 3}, {1, 1}, 16)),
   PXL_CVIN(cv::filter2D(a, d, CV_8U, cvInt3())), "cv::filter2D 3x3 with the kernel over 16"},
};
// clang-format on

}  // namespace

void registerFilter() { registerCases(kFilter); }

}  // namespace pxlbench
