// Medians against a plain sort of each window, on samples with many ties,
// for every window shape and anchors at the mask's corners; the vector
// median against a direct search with its tie rule.
#include <algorithm>

#include "window_ref.h"

namespace {

using namespace wref;

template <class T>
T sortedMiddle(const Src<T>& s, int x, int y, int c, int x0, int y0, int w, int h, bool cross) {
  std::vector<T> v;
  for (int j = 0; j < h; ++j)
    for (int i = 0; i < w; ++i)
      if (!cross || i == w / 2 || j == h / 2) v.push_back(s.get(x + x0 + i, y + y0 + j, c));
  std::sort(v.begin(), v.end());
  return v[v.size() / 2];
}

template <class T, class F>
void medianCase(int ch, bool ac4, PxlSize m, PxlPoint a, bool cross, T (*fill)(std::mt19937&), F call,
                const std::string& what) {
  for (Place place : {Place::Front, Place::Back})
    for (PxlSize z : {PxlSize{1, 1}, PxlSize{70, 5}, PxlSize{9, 3}}) {
      Src<T> s(z.width, z.height, ch, {a.x, a.y, m.width - 1 - a.x, m.height - 1 - a.y}, place, z.width * 3 + ch,
               fill);
      check<T>(s, z.width, z.height, ac4, call, [&](const Src<T>& src, int x, int y, int c) {
        return sortedMiddle(src, x, y, c, -a.x, -a.y, m.width, m.height, cross);
      }, what);
    }
}

#define GENERAL(T, L, ch, ac4, m, a, fill)                                                                     \
  medianCase<Pxl##T>(ch, ac4, m, a, false, fill,                                                               \
                     [&](auto... v) { return pxliFilterMedian_##T##_##L##R(v..., m, a); },                     \
                     "FilterMedian_" #T "_" #L " " + std::to_string(m.width) + "x" + std::to_string(m.height))
#define FIXED(stem, T, L, ch, ac4, code, cross, fill)                                                            \
  medianCase<Pxl##T>(ch, ac4, PxlSize{code / 10, code % 10}, PxlPoint{code / 20, code % 10 / 2}, cross, fill, \
                     [&](auto... v) { return pxli##stem##_##T##_##L##R(v..., code); }, #stem "_" #T "_" #L)

TEST(FilterMedian, EveryWindowShapeGivesTheMiddleOfTheSortedWindow) {
  // Networks (3x3, 5x5, rows, columns), the copy (1x1) and the general
  // routines (histogram for 8u, sorted array for 16s), anchors in corners.
  const PxlSize masks[] = {{3, 3}, {5, 5}, {3, 1}, {5, 1}, {1, 3}, {1, 5}, {1, 1}, {3, 5}, {7, 1}, {1, 7}, {9, 3}};
  for (PxlSize m : masks)
    for (PxlPoint a : {PxlPoint{m.width / 2, m.height / 2}, PxlPoint{0, 0}, PxlPoint{m.width - 1, m.height - 1}}) {
      GENERAL(8u, C1, 1, false, m, a, few8u);
      GENERAL(8u, C3, 3, false, m, a, any8u);
      GENERAL(8u, AC4, 4, true, m, a, few8u);
      GENERAL(16s, C4, 4, false, m, a, few16s);
      GENERAL(16s, C1, 1, false, m, a, any16s);
    }
  for (int code : {31, 51}) {
    FIXED(FilterMedianHoriz, 8u, C4, 4, false, code, false, few8u);
    FIXED(FilterMedianHoriz, 16s, AC4, 4, true, code, false, few16s);
  }
  for (int code : {13, 15}) {
    FIXED(FilterMedianVert, 8u, AC4, 4, true, code, false, few8u);
    FIXED(FilterMedianVert, 16s, C3, 3, false, code, false, any16s);
  }
  for (int code : {33, 55}) {
    FIXED(FilterMedianCross, 8u, C1, 1, false, code, true, few8u);
    FIXED(FilterMedianCross, 8u, C3, 3, false, code, true, any8u);
    FIXED(FilterMedianCross, 16s, AC4, 4, true, code, true, few16s);
  }
}

TEST(FilterMedian, MaskCodesEvenSizesAndAnchorsAreRejected) {
  Pxl8u img[256] = {};
  Pxl8u* p = img + 40;
  EXPECT_EQ(pxliFilterMedian_8u_C1R(p, 16, p, 16, PxlSize{2, 2}, PxlSize{2, 3}, PxlPoint{0, 0}), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterMedian_8u_C1R(p, 16, p, 16, PxlSize{2, 2}, PxlSize{0, 3}, PxlPoint{0, 0}), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterMedian_16s_C1R((Pxl16s*)p, 16, (Pxl16s*)p, 16, PxlSize{2, 2}, PxlSize{3, 3}, PxlPoint{3, 0}),
            pxlStsAnchor);
  EXPECT_EQ(pxliFilterMedian_8u_C1R(p, 0, p, 16, PxlSize{2, 2}, PxlSize{2, 3}, PxlPoint{0, 0}), pxlStsStep);
  EXPECT_EQ(pxliFilterMedianHoriz_8u_C1R(p, 16, p, 16, PxlSize{2, 2}, 13), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterMedianVert_8u_C1R(p, 16, p, 16, PxlSize{2, 2}, 31), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterMedianCross_8u_C1R(p, 16, p, 16, PxlSize{2, 2}, 35), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterMedianColor_8u_C3R(p, 16, p, 16, PxlSize{2, 2}, 31), pxlStsMaskSize);
  for (Pxl8u v : img) EXPECT_EQ(v, 0);
}

// The vector median written out: least total L1 distance, the first in
// column order (left column first, top to bottom) on a tie.
template <class T>
T colorWant(const Src<T>& s, int x, int y, int c, int r) {
  double best = 0;
  int bi = 0, bj = 0, k = 0;
  for (int i = -r; i <= r; ++i)
    for (int j = -r; j <= r; ++j, ++k) {
      double t = 0;
      for (int i2 = -r; i2 <= r; ++i2)
        for (int j2 = -r; j2 <= r; ++j2)
          for (int ch = 0; ch < 3; ++ch) t += std::abs(double(s.get(x + i, y + j, ch)) - double(s.get(x + i2, y + j2, ch)));
      if (k == 0 || t < best) best = t, bi = i, bj = j;
    }
  return s.get(x + bi, y + bj, c);
}

#define COLOR(T, L, ch, ac4, code, fill)                                                                         \
  for (Place place : {Place::Front, Place::Back}) {                                                               \
    const int r = code == 33 ? 1 : 2;                                                                             \
    Src<Pxl##T> s(23, 4, ch, {r, r, r, r}, place, 9, fill);                                                       \
    check<Pxl##T>(s, 23, 4, ac4, [](auto... v) { return pxliFilterMedianColor_##T##_##L##R(v..., code); },       \
                  [&](const Src<Pxl##T>& src, int x, int y, int c) { return colorWant(src, x, y, c, r); },        \
                  "FilterMedianColor_" #T "_" #L);                                                               \
  }

TEST(FilterMedianColor, LeastTotalDistanceFirstInColumnOrder) {
  COLOR(8u, C3, 3, false, 33, few8u);
  COLOR(8u, AC4, 4, true, 55, few8u);
  COLOR(16s, C3, 3, false, 55, few16s);
  COLOR(16s, AC4, 4, true, 33, any16s);
  COLOR(32f, C3, 3, false, 33, small32f);
  COLOR(32f, AC4, 4, true, 55, small32f);
  // Four P = (10,0,0), four Q = (0,10,0), one R = (0,0,10): P and Q both
  // total 100, R 160. In column order the first of them is Q at (0, 1); in
  // row order it would be P at (1, 0).
  const char* grid[3] = {"RPP", "QPQ", "QPQ"};
  Pxl8u img[3][9] = {};
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 3; ++x) img[y][x * 3 + (grid[y][x] == 'P' ? 0 : grid[y][x] == 'Q' ? 1 : 2)] = 10;
  Pxl8u out[3] = {7, 7, 7};
  ASSERT_EQ(pxliFilterMedianColor_8u_C3R(&img[1][3], 9, out, 9, PxlSize{1, 1}, 33), pxlStsOk);
  EXPECT_EQ(out[0], 0);
  EXPECT_EQ(out[1], 10);
  EXPECT_EQ(out[2], 0);
}

TEST(FilterMedian, FourChannelSquareKernelsGiveTheSameBytesAtEveryThreadCount) {
  Src<Pxl8u> s(100, 60, 4, {2, 2, 2, 2}, Place::Back, 1, any8u);
  for (int m : {3, 5})
    EXPECT_TRUE(pxltest::sameForThreadCounts([&] {
      return output(100, 60, 4, [&](std::uint8_t* d, int ds) {
        pxliFilterMedian_8u_C4R(s.roi(), s.step(), d, ds, PxlSize{100, 60}, PxlSize{m, m}, PxlPoint{m / 2, m / 2});
      });
    }));
}

}  // namespace
