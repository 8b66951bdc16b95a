// Neighbourhood-filter test helper: a source image exactly as large as the
// windows may read, flush against a guard page, a destination with guarded
// margins, and a comparison of every output sample with a reference that
// reads the source by coordinates relative to the ROI's first pixel.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "harness/guard.h"
#include "pxli.h"

namespace wref {

using pxltest::Place;
using pxltest::TestImage;

struct Reach {
  int left, top, right, bottom;  // pixels the window reads beyond the ROI
};

template <class T>
struct Src {
  TestImage img;
  Reach r;
  int ch;
  Src(int w, int h, int ch, Reach r, Place place, std::uint32_t seed, T (*fill)(std::mt19937&))
      : img(w + r.left + r.right, h + r.top + r.bottom, ch * int(sizeof(T)), 0, 0, place), r(r), ch(ch) {
    std::mt19937 rng(seed);
    for (int y = 0; y < img.height(); ++y)
      for (int i = 0; i < img.width() * ch; ++i) {
        const T v = fill(rng);
        std::memcpy(img.row(y) + i * sizeof(T), &v, sizeof v);
      }
  }
  T* roi() const { return reinterpret_cast<T*>(img.row(r.top) + r.left * ch * sizeof(T)); }
  int step() const { return img.step(); }
  T get(int x, int y, int c) const {
    T v;
    std::memcpy(&v, img.row(y + r.top) + ((x + r.left) * ch + c) * sizeof(T), sizeof v);
    return v;
  }
};

// Runs call(src, srcStep, dst, dstStep, roi) and compares each sample with
// want(src, x, y, c); AC4's alpha and everything outside the ROI must stay.
template <class T, class D = T, class Call, class Want>
void check(const Src<T>& s, int w, int h, bool ac4, Call call, Want want, const std::string& what) {
  TestImage dst(w, h, s.ch * int(sizeof(D)), 8, 8, Place::Back, 5);
  const auto before = dst.snapshot();
  ASSERT_EQ(call(s.roi(), s.step(), reinterpret_cast<D*>(dst.roi()), dst.step(), PxlSize{w, h}), pxlStsOk) << what;
  EXPECT_TRUE(dst.outsideUnchanged(before)) << what;
  int bad = 0;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      for (int c = 0; c < s.ch; ++c) {
        D got, exp;
        std::memcpy(&got, dst.row(y) + (x * s.ch + c) * sizeof(D), sizeof got);
        if (ac4 && c == 3)
          std::memcpy(&exp, before.data() + 8 + y * dst.step() + (x * 4 + 3) * sizeof(D), sizeof exp);
        else
          exp = want(s, x, y, c);
        if (std::memcmp(&got, &exp, sizeof got) != 0 && ++bad < 4)
          ADD_FAILURE() << what << " at " << x << "," << y << " ch " << c << ": " << double(got) << " want "
                        << double(exp);
      }
}

// The bytes of the ROI of an image after call(dst, dstStep) wrote it.
template <class F>
std::vector<std::uint8_t> output(int w, int h, int pixelBytes, F&& call) {
  TestImage dst(w, h, pixelBytes, 0, 0, Place::Back, 3);
  call(dst.roi(), dst.step());
  return dst.roiBytes();
}

inline Pxl8u any8u(std::mt19937& g) { return Pxl8u(g()); }
inline Pxl8u few8u(std::mt19937& g) { return Pxl8u(g() % 4 * 60); }  // many ties
inline Pxl16s any16s(std::mt19937& g) {
  const std::uint32_t r = g() % 8;
  return r < 2 ? Pxl16s(-32768) : r < 4 ? Pxl16s(32767) : Pxl16s(g());
}
inline Pxl16s few16s(std::mt19937& g) { return Pxl16s(int(g() % 5) * 16000 - 32000); }
inline float small32f(std::mt19937& g) { return float(int(g() % 64) - 20); }
inline float any32f(std::mt19937& g) { return float(g() % 100000) * 0.013f - 300.0f; }

}  // namespace wref
