// What the rearranging families (borders, Mirror, Transpose) must produce,
// stated as pixel mappings: destination pixel (x, y) is source pixel
// map(x, y), or a constant, or stays. The tests compare every member with
// these on guard-page images, byte for byte, samples and alpha alike.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "harness/guard.h"

namespace pxltest {

// Sample size, samples per pixel, samples an operation moves (AC4: 3 of 4).
struct PixelShape {
  int sampleBytes;
  int channels;
  int used;
  int bytes() const { return sampleBytes * channels; }
  int usedBytes() const { return sampleBytes * used; }
};

// A copy of an image's ROI that a rule can be applied to.
struct Pixels {
  int width = 0, height = 0, pixelBytes = 0;
  std::vector<std::uint8_t> data;
  Pixels() = default;
  Pixels(const TestImage& im, int pb) : width(im.width()), height(im.height()), pixelBytes(pb), data(im.roiBytes()) {}
  std::uint8_t* at(int x, int y) { return data.data() + (std::size_t(y) * width + x) * pixelBytes; }
  const std::uint8_t* at(int x, int y) const {
    return data.data() + (std::size_t(y) * width + x) * pixelBytes;
  }
};

// Source coordinates of destination pixel (x, y); false: not from the source.
using Mapping = std::function<bool(int x, int y, int& sx, int& sy)>;

// The destination a rule gives: `before` where the mapping has no source
// pixel and `fill` is null, else the moved samples over what was there (the
// unmoved alpha of AC4 stays).
inline Pixels expected(const Pixels& src, const Pixels& before, PixelShape ps, const Mapping& map,
                       const std::uint8_t* fill = nullptr) {
  Pixels out = before;
  for (int y = 0; y < out.height; ++y)
    for (int x = 0; x < out.width; ++x) {
      int sx = 0, sy = 0;
      if (map(x, y, sx, sy))
        std::memcpy(out.at(x, y), src.at(sx, sy), ps.usedBytes());
      else if (fill != nullptr)
        std::memcpy(out.at(x, y), fill, ps.usedBytes());
    }
  return out;
}

inline int floorMod(int a, int n) { return ((a % n) + n) % n; }

// First differing pixel, for a readable failure.
inline std::string firstDifference(const Pixels& want, const TestImage& got) {
  const std::vector<std::uint8_t> g = got.roiBytes();
  for (std::size_t i = 0; i < g.size(); ++i)
    if (g[i] != want.data[i]) {
      const std::size_t px = i / want.pixelBytes;
      return "pixel (" + std::to_string(px % want.width) + ", " + std::to_string(px / want.width) + ") byte " +
             std::to_string(i % want.pixelBytes) + ": got " + std::to_string(g[i]) + ", want " +
             std::to_string(want.data[i]);
    }
  return "";
}

// Makes the call (which writes dst) and checks dst against the mapping from
// the source pixels `from`: every byte of the ROI as the rule gives it,
// nothing outside it changed, and the source image, if named, untouched.
template <class Call>
void expectMapped(const Pixels& from, TestImage& dst, PixelShape ps, const Mapping& map, Call&& call,
                  const TestImage* src = nullptr, const std::uint8_t* fill = nullptr) {
  const auto dstBefore = dst.snapshot();
  const auto srcBefore = src != nullptr ? src->snapshot() : std::vector<std::uint8_t>{};
  const Pixels want = expected(from, Pixels(dst, ps.bytes()), ps, map, fill);
  ASSERT_EQ(pxlStsOk, call());
  EXPECT_EQ("", firstDifference(want, dst));
  EXPECT_TRUE(dst.outsideUnchanged(dstBefore));
  EXPECT_TRUE(src == nullptr || src->unchanged(srcBefore));
}

}  // namespace pxltest
