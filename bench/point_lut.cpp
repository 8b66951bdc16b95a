// Lookup tables against OpenCV.
//
// cv::LUT takes all 256 entries of an 8-bit map; the library takes levels
// and values and builds that map on every call. With levels 0..256 every
// sample has its own interval, so both sides apply the same full map and
// the library's row also pays for building it.
#include <opencv2/core.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

struct FullMap {
  Pxl32s levels[257];
  Pxl32s values[257];
  cv::Mat table = cv::Mat(1, 256, CV_8U);  // not braces: those make a 3-element Mat
  FullMap() {
    for (int k = 0; k <= 256; ++k) {
      levels[k] = k;
      values[k] = (k * 7 + 3) & 255;  // a permutation, so that no entry repeats its neighbour
      if (k < 256) table.at<uchar>(k) = uchar(values[k]);
    }
  }
};

const FullMap& fullMap() {
  static const FullMap m;
  return m;
}

// clang-format off
const Case kLut[] = {
  {"LUT", "pxliLUT_8u_C1R", "full map, levels 0..256", k8u, 1,
   PXL_LIB(pxliLUT_8u_C1R(PXL_SRC(Pxl8u, 0), PXL_DST(Pxl8u), fullMap().values, fullMap().levels, 257)),
   PXL_CV(cv::LUT(m.a, fullMap().table, m.d)), "cv::LUT with the same 256-entry table"},
};
// clang-format on

}  // namespace

void registerPointLut() { registerCases(kLut); }

}  // namespace pxlbench
