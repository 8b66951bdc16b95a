// Reductions, norms, a histogram and noise against OpenCV. A reduction
// writes no image: the library's results go to statics, OpenCV's to a
// volatile sink, and the destination image stays as the harness made it.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

Pxl64f g_r[4];
Pxl8u g_v8;
Pxl32f g_v32;
Pxl32s g_x, g_y, g_n, g_hist[256], g_levels[257];
Pxl32u g_seed = 12345;
volatile double g_sink;

// clang-format off
const Case kMeasure[] = {
  {"Sum", "pxliSum_8u_C1R", "", k8u, 1, PXL_LIB(pxliSum_8u_C1R(PXL_SRC(Pxl8u, 0), io.roi, g_r)),
   PXL_CV(g_sink = cv::sum(m.a)[0]), "cv::sum"},
  {"Sum", "pxliSum_32f_C1R", "fast", k32f, 1, PXL_LIB(pxliSum_32f_C1R(PXL_SRC(Pxl32f, 0), io.roi, g_r, 0)),
   PXL_CV(g_sink = cv::sum(m.a)[0]), "cv::sum"},
  {"Mean", "pxliMean_8u_C1R", "", k8u, 1, PXL_LIB(pxliMean_8u_C1R(PXL_SRC(Pxl8u, 0), io.roi, g_r)),
   PXL_CV(g_sink = cv::mean(m.a)[0]), "cv::mean"},
  {"MinMaxIndx", "pxliMinIndx_8u_C1R", "MinIndx + MaxIndx", k8u, 1,
   PXL_LIB((pxliMinIndx_8u_C1R(PXL_SRC(Pxl8u, 0), io.roi, &g_v8, &g_x, &g_y),
            pxliMaxIndx_8u_C1R(PXL_SRC(Pxl8u, 0), io.roi, &g_v8, &g_x, &g_y))),
   PXL_CV(double lo, hi; cv::Point a, b; cv::minMaxLoc(m.a, &lo, &hi, &a, &b); g_sink = lo + hi + a.x + b.y),
   "cv::minMaxLoc (one pass for both)"},
  {"MinMaxIndx", "pxliMinIndx_32f_C1R", "MinIndx + MaxIndx", k32f, 1,
   PXL_LIB((pxliMinIndx_32f_C1R(PXL_SRC(Pxl32f, 0), io.roi, &g_v32, &g_x, &g_y),
            pxliMaxIndx_32f_C1R(PXL_SRC(Pxl32f, 0), io.roi, &g_v32, &g_x, &g_y))),
   PXL_CV(double lo, hi; cv::Point a, b; cv::minMaxLoc(m.a, &lo, &hi, &a, &b); g_sink = lo + hi + a.x + b.y),
   "cv::minMaxLoc (one pass for both)"},
  {"Norm", "pxliNorm_L2_32f_C1R", "", k32f, 1, PXL_LIB(pxliNorm_L2_32f_C1R(PXL_SRC(Pxl32f, 0), io.roi, g_r, 0)),
   PXL_CV(g_sink = cv::norm(m.a, cv::NORM_L2)), "cv::norm NORM_L2"},
  {"NormDiff", "pxliNormDiff_L1_8u_C1R", "", k8u, 2,
   PXL_LIB(pxliNormDiff_L1_8u_C1R(PXL_SRC(Pxl8u, 0), PXL_SRC(Pxl8u, 1), io.roi, g_r)),
   PXL_CV(g_sink = cv::norm(m.a, m.b, cv::NORM_L1)), "cv::norm NORM_L1 of the difference"},
  {"CountInRange", "pxliCountInRange_8u_C1R", "60..180", k8u, 1,
   PXL_LIB(pxliCountInRange_8u_C1R(PXL_SRC(Pxl8u, 0), io.roi, &g_n, 60, 180)),
   PXL_CV(cv::inRange(m.a, 60, 180, m.d); g_sink = cv::countNonZero(m.d)),
   "cv::inRange + cv::countNonZero: writes a mask image, not the same operation"},
  {"HistogramEven", "pxliHistogramEven_8u_C1R", "256 bins", k8u, 1,
   PXL_LIB(pxliHistogramEven_8u_C1R(PXL_SRC(Pxl8u, 0), io.roi, g_hist, g_levels, 257, 0, 256)),
   PXL_CV(static cv::Mat h; const int bins = 256; const float range[] = {0, 256}; const float* ranges = range;
          const int ch = 0; cv::calcHist(&m.a, 1, &ch, cv::Mat(), h, 1, &bins, &ranges); g_sink = h.at<float>(0)),
   "cv::calcHist 256 bins (float counts)"},
  {"AddRandUniform", "pxliAddRandUniform_Direct_8u_C1IR", "0..32", k8u, 1,
   PXL_LIB(pxliAddRandUniform_Direct_8u_C1IR(PXL_DST(Pxl8u), 0, 32, &g_seed)),
   PXL_CV(static cv::Mat n; n.create(m.d.size(), CV_8U); cv::randu(n, 0, 33); cv::add(m.d, n, m.d)),
   "cv::randu + cv::add: another generator, not the same numbers"},
};
// clang-format on

}  // namespace

void registerMeasure() { registerCases(kMeasure); }

}  // namespace pxlbench
