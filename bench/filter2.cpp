// Box filter, window sums, medians, morphology and rank filters against
// OpenCV. The library reads real pixels around its ROI while OpenCV makes a
// border of its own, so the library's ROI is the image less the mask's reach
// on every side (a few rows and columns fewer pixels than OpenCV writes).
#include <opencv2/imgproc.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

// The image's pixel r rows and r pixels (of ch samples) in, and the ROI left.
template <class T>
const T* in(const Io& io, int r, int ch = 1) {
  return reinterpret_cast<const T*>(static_cast<const char*>(io.src[0]) + std::ptrdiff_t(r) * io.srcStep[0]) + r * ch;
}
template <class T>
T* out(const Io& io, int r, int ch = 1) {
  return reinterpret_cast<T*>(static_cast<char*>(io.dst) + std::ptrdiff_t(r) * io.dstStep) + r * ch;
}
inline PxlSize less(const Io& io, int r, int ch = 1) { return {io.roi.width / ch - 2 * r, io.roi.height - 2 * r}; }

#define PXL_IN(T, r) in<T>(io, r), io.srcStep[0], out<T>(io, r), io.dstStep, less(io, r)
#define RECT(k) cv::getStructuringElement(cv::MORPH_RECT, cv::Size(k, k))

constexpr SampleKind k32fOut{4, CV_32F};

// clang-format off
const Case kFilter2[] = {
  {"FilterBox", "pxliFilterBox_8u_C1R", "5x5", k8u, 1, PXL_LIB(pxliFilterBox_8u_C1R(PXL_IN(Pxl8u, 2), PxlSize{5, 5}, PxlPoint{2, 2})), PXL_CV(cv::blur(m.a, m.d, cv::Size(5, 5))), "cv::blur 5x5"},
  {"FilterBox", "pxliFilterBox_8u_C1R", "31x31", k8u, 1, PXL_LIB(pxliFilterBox_8u_C1R(PXL_IN(Pxl8u, 15), PxlSize{31, 31}, PxlPoint{15, 15})), PXL_CV(cv::blur(m.a, m.d, cv::Size(31, 31))), "cv::blur 31x31"},
  {"FilterMedian", "pxliFilterMedian_8u_C1R", "3x3", k8u, 1, PXL_LIB(pxliFilterMedian_8u_C1R(PXL_IN(Pxl8u, 1), PxlSize{3, 3}, PxlPoint{1, 1})), PXL_CV(cv::medianBlur(m.a, m.d, 3)), "cv::medianBlur 3"},
  {"FilterMedian", "pxliFilterMedian_8u_C1R", "5x5", k8u, 1, PXL_LIB(pxliFilterMedian_8u_C1R(PXL_IN(Pxl8u, 2), PxlSize{5, 5}, PxlPoint{2, 2})), PXL_CV(cv::medianBlur(m.a, m.d, 5)), "cv::medianBlur 5"},
  {"FilterMedianColor", "pxliFilterMedianColor_8u_C3R", "3x3, width/3 pixels", k8u, 1, PXL_LIB(pxliFilterMedianColor_8u_C3R(in<Pxl8u>(io, 1, 3), io.srcStep[0], out<Pxl8u>(io, 1, 3), io.dstStep, less(io, 1, 3), 33)), nullptr, ""},
  {"Erode3x3", "pxliErode3x3_8u_C1R", "", k8u, 1, PXL_LIB(pxliErode3x3_8u_C1R(PXL_IN(Pxl8u, 1))), PXL_CV(cv::erode(m.a, m.d, cv::Mat())), "cv::erode 3x3"},
  {"Dilate3x3", "pxliDilate3x3_8u_C1R", "", k8u, 1, PXL_LIB(pxliDilate3x3_8u_C1R(PXL_IN(Pxl8u, 1))), PXL_CV(cv::dilate(m.a, m.d, cv::Mat())), "cv::dilate 3x3"},
  {"FilterMin", "pxliFilterMin_8u_C1R", "15x15", k8u, 1, PXL_LIB(pxliFilterMin_8u_C1R(PXL_IN(Pxl8u, 7), PxlSize{15, 15}, PxlPoint{7, 7})), PXL_CV(static const cv::Mat k = RECT(15); cv::erode(m.a, m.d, k)), "cv::erode, 15x15 rectangle"},
  {"FilterMax", "pxliFilterMax_8u_C1R", "15x15", k8u, 1, PXL_LIB(pxliFilterMax_8u_C1R(PXL_IN(Pxl8u, 7), PxlSize{15, 15}, PxlPoint{7, 7})), PXL_CV(static const cv::Mat k = RECT(15); cv::dilate(m.a, m.d, k)), "cv::dilate, 15x15 rectangle"},
  {"SumWindowRow", "pxliSumWindowRow_8u32f_C1R", "5", k8u, 1, PXL_LIB(pxliSumWindowRow_8u32f_C1R(in<Pxl8u>(io, 2), io.srcStep[0], out<Pxl32f>(io, 2), io.dstStep, less(io, 2), 5, 2)), PXL_CV(cv::boxFilter(m.a, m.d, CV_32F, cv::Size(5, 1), cv::Point(-1, -1), false)), "cv::boxFilter 5x1 to float, not normalised", k32fOut},
};
// clang-format on

}  // namespace

void registerFilter2() { registerCases(kFilter2); }

}  // namespace pxlbench
