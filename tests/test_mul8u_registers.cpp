// 8u Mul and MulC run whole registers on 16-bit lanes and the rest of a row
// on wider scalar lanes. Every product of two bytes at every scale that is
// computed (and one beyond each end) must match the exact rule, on both
// sides of the register boundary, and on both sides of the shift length at
// which the rounding changes its method (9 and 10).
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

// The rule from the exact product: halves go to the even neighbour, then
// saturation; left shifts saturate.
int expected(int a, int b, int scale) {
  const long long p = static_cast<long long>(a) * b;
  long long r;
  if (scale <= 0) {
    r = scale < -40 ? (p != 0 ? 255 : 0) : p << -scale;
  } else if (scale > 40) {
    r = 0;
  } else {
    const long long q = p >> scale, rest = p - (q << scale), half = 1LL << (scale - 1);
    r = q + ((rest > half || (rest == half && (q & 1))) ? 1 : 0);
  }
  return static_cast<int>(std::min<long long>(r, 255));
}

const int kScales[] = {-9, -8, -7, -6, -1, 0, 1, 2, 7, 8, 9, 10, 11, 15, 16, 17};

// All 65536 pairs in one image of 256 rows; the width 256 + 13 puts the
// first 256 samples of a row in registers and 13 in the scalar tail, which
// repeat the row's first samples against other partners.
TEST(Mul8uRegisters, EveryPairAtEveryScale) {
  const int w = 256 + 13, h = 256;
  TestImage a(w, h, 1, 3, 5, Place::Front), b(w, h, 1, 1, 0, Place::Back), d(w, h, 1, 7, 2, Place::Back);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      a.at<Pxl8u>(y)[x] = Pxl8u(y);
      b.at<Pxl8u>(y)[x] = Pxl8u(x * 7 + y);  // each row every value once in its first 256
    }
  for (int s : kScales) {
    const auto before = d.snapshot();
    ASSERT_EQ(pxlStsOk, pxliMul_8u_C1RSfs(a.at<Pxl8u>(0), a.step(), b.at<Pxl8u>(0), b.step(), d.at<Pxl8u>(0), d.step(),
                                          {w, h}, s));
    ASSERT_TRUE(d.outsideUnchanged(before)) << "scale " << s;
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x)
        ASSERT_EQ(d.at<Pxl8u>(y)[x], expected(y, Pxl8u(x * 7 + y), s)) << "scale " << s << " at " << x << "," << y;
  }
}

// Every constant against every byte, out of place and in place.
TEST(Mul8uRegisters, EveryConstantAtEveryScale) {
  const int w = 256 + 29;
  TestImage src(w, 1, 1, 2, 3, Place::Back), dst(w, 1, 1, 0, 4, Place::Front);
  for (int x = 0; x < w; ++x) src.at<Pxl8u>(0)[x] = Pxl8u(x * 11 + 5);
  std::vector<Pxl8u> row(w);
  for (int s : kScales)
    for (int c = 0; c < 256; ++c) {
      const auto before = dst.snapshot();
      ASSERT_EQ(pxlStsOk,
                pxliMulC_8u_C1RSfs(src.at<Pxl8u>(0), src.step(), Pxl8u(c), dst.at<Pxl8u>(0), dst.step(), {w, 1}, s));
      ASSERT_TRUE(dst.outsideUnchanged(before));
      std::copy(src.at<Pxl8u>(0), src.at<Pxl8u>(0) + w, row.begin());
      ASSERT_EQ(pxlStsOk, pxliMulC_8u_C1IRSfs(Pxl8u(c), row.data(), w, {w, 1}, s));
      for (int x = 0; x < w; ++x) {
        const int want = expected(c, src.at<Pxl8u>(0)[x], s);
        ASSERT_EQ(dst.at<Pxl8u>(0)[x], want) << "scale " << s << " constant " << c << " at " << x;
        ASSERT_EQ(row[x], want) << "in place, scale " << s << " constant " << c << " at " << x;
      }
    }
}

// Rows of every length up to a few registers, unaligned, in place too, with
// the data at the ends of the range that most often decide the rounding.
TEST(Mul8uRegisters, EveryLengthAroundTheRegisters) {
  std::mt19937 rng(5);
  const Pxl8u picks[] = {0, 1, 2, 3, 15, 16, 17, 127, 128, 129, 254, 255};
  for (int w = 1; w <= 100; ++w)
    for (int s : kScales) {
      TestImage a(w, 2, 1, int(rng() % 5), 1, Place::Back), b(w, 2, 1, int(rng() % 5), 0, Place::Front);
      for (int y = 0; y < 2; ++y)
        for (int x = 0; x < w; ++x) {
          a.at<Pxl8u>(y)[x] = rng() % 2 ? picks[rng() % 12] : Pxl8u(rng());
          b.at<Pxl8u>(y)[x] = rng() % 2 ? picks[rng() % 12] : Pxl8u(rng());
        }
      std::vector<int> want;
      for (int y = 0; y < 2; ++y)
        for (int x = 0; x < w; ++x) want.push_back(expected(a.at<Pxl8u>(y)[x], b.at<Pxl8u>(y)[x], s));
      const auto before = b.snapshot();
      ASSERT_EQ(pxlStsOk, pxliMul_8u_C1IRSfs(a.at<Pxl8u>(0), a.step(), b.at<Pxl8u>(0), b.step(), {w, 2}, s));
      ASSERT_TRUE(b.outsideUnchanged(before));
      for (int y = 0, k = 0; y < 2; ++y)
        for (int x = 0; x < w; ++x, ++k) ASSERT_EQ(b.at<Pxl8u>(y)[x], want[k]) << "width " << w << " scale " << s;
    }
}

}  // namespace
