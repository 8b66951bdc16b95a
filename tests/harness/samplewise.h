// Members that map each sample on its own (conversions, scalings): one call
// on guard-page images, every processed destination sample compared with a
// model of the rule applied to its source sample.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "harness/guard.h"

namespace pxltest {

// call(src, srcStep, dst, dstStep, roi) on a width x height image of
// `channels` samples a pixel, rows padded by left and right bytes, the
// source at srcPlace and the destination at the other end of its buffer;
// draw(rng) gives the source samples. Every destination sample must be
// model(source sample), except alpha of AC4 (`alpha`: every fourth sample),
// which keeps what it was; nothing outside the ROI and nothing of the source
// may change.
template <class S, class D, class Call, class Draw, class Model>
void checkSamplewise(const Call& call, int channels, bool alpha, int width, int height, int left, int right,
                     Place srcPlace, std::mt19937& rng, const Draw& draw, const Model& model, const std::string& what) {
  TestImage src(width, height, channels * int(sizeof(S)), left, right, srcPlace, rng());
  TestImage dst(width, height, channels * int(sizeof(D)), left, right,
                srcPlace == Place::Back ? Place::Front : Place::Back, rng());
  for (int y = 0; y < height; ++y)
    for (int i = 0; i < width * channels; ++i) {
      const S v = draw(rng);
      std::memcpy(src.row(y) + i * sizeof(S), &v, sizeof v);
    }
  const auto srcBefore = src.snapshot(), dstBefore = dst.snapshot();
  const auto dstRoiBefore = dst.roiBytes();
  ASSERT_EQ(pxlStsOk, call(src.at<S>(0), src.step(), dst.at<D>(0), dst.step(), PxlSize{width, height})) << what;
  ASSERT_TRUE(src.unchanged(srcBefore)) << what;
  ASSERT_TRUE(dst.outsideUnchanged(dstBefore)) << what << " wrote outside the ROI";
  for (int y = 0; y < height; ++y)
    for (int i = 0; i < width * channels; ++i) {
      S s;
      D got, want;
      std::memcpy(&s, src.row(y) + i * sizeof(S), sizeof s);
      std::memcpy(&got, dst.row(y) + i * sizeof(D), sizeof got);
      if (alpha && i % 4 == 3)
        std::memcpy(&want, dstRoiBefore.data() + (std::size_t(y) * width * channels + i) * sizeof(D), sizeof want);
      else
        want = model(s);
      if (std::memcmp(&got, &want, sizeof got) != 0) {
        ADD_FAILURE() << what << " row " << y << " sample " << i << ": from " << double(s) << " got " << double(got)
                      << " want " << double(want);
        return;
      }
    }
}

}  // namespace pxltest
