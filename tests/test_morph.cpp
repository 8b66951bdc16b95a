// Erosion, dilation and the rank filters against a direct search of each
// window: asymmetric structuring elements with their anchors, rectangles one
// wide or one high, heights that end mid-block, in place against out of place.
#include <cfloat>
#include <cmath>

#include "window_ref.h"

namespace {

using namespace wref;

// Extremum over the cells of mask (null: every cell); float samples under a
// cell are clipped to +-FLT_MAX when clip is set.
template <class T>
T extremum(const Src<T>& s, int x, int y, int c, PxlSize m, PxlPoint a, const Pxl8u* mask, bool mx, bool clip) {
  double best = mx ? -HUGE_VAL : HUGE_VAL;
  if (clip) best = mx ? -FLT_MAX : FLT_MAX;
  for (int j = 0; j < m.height; ++j)
    for (int i = 0; i < m.width; ++i) {
      if (mask && !mask[j * m.width + i]) continue;
      double v = s.get(x - a.x + i, y - a.y + j, c);
      if (clip) v = std::fmax(-FLT_MAX, std::fmin(FLT_MAX, v));
      best = mx ? std::fmax(best, v) : std::fmin(best, v);
    }
  return T(best);
}

template <class T, class Out, class In>
void morphCase(int ch, bool ac4, PxlSize m, PxlPoint a, const Pxl8u* mask, bool mx, T (*fill)(std::mt19937&),
               Out out, In in, const std::string& what) {
  const bool clip = std::is_same_v<T, float> && mask;
  for (Place place : {Place::Front, Place::Back})
    for (PxlSize z : {PxlSize{1, 1}, PxlSize{33, 7}, PxlSize{5, 16}}) {
      Src<T> s(z.width, z.height, ch, {a.x, a.y, m.width - 1 - a.x, m.height - 1 - a.y}, place, z.width + ch, fill);
      auto want = [&](const Src<T>& src, int x, int y, int c) { return extremum(src, x, y, c, m, a, mask, mx, clip); };
      check<T>(s, z.width, z.height, ac4, out, want, what);
      if constexpr (!std::is_same_v<In, std::nullptr_t>) {
        Src<T> t(z.width, z.height, ch, s.r, Place::Back, z.width + ch, fill);
        ASSERT_EQ(in(t.roi(), t.step(), z), pxlStsOk) << what;
        int bad = 0;
        for (int y = 0; y < z.height; ++y)
          for (int x = 0; x < z.width; ++x)
            for (int c = 0; c < ch; ++c) {
              const T exp = ac4 && c == 3 ? s.get(x, y, c) : want(s, x, y, c), got = t.get(x, y, c);
              if (std::memcmp(&exp, &got, sizeof exp) && ++bad < 3) ADD_FAILURE() << what << " in place " << x << "," << y;
            }
      }
    }
}

#define MASKED(stem, T, L, ch, ac4, mx, fill, inplace)                                                          \
  morphCase<Pxl##T>(ch, ac4, m, a, mask, mx, fill,                                                              \
                    [&](auto... v) { return pxli##stem##_##T##_##L##R(v..., mask, m, a); },                     \
                    inplace([&](auto... v) { return pxli##stem##_##T##_##L##IR(v..., mask, m, a); }),           \
                    #stem "_" #T "_" #L)
#define WITH(f) f
#define WITHOUT(f) nullptr

TEST(ErodeDilate, AsymmetricElementWithItsAnchor) {
  const Pxl8u cross[] = {0, 1, 0, 0, 1, 1, 1, 0};  // 4 wide, 2 high
  const Pxl8u single[] = {0, 0, 0, 0, 0, 7};       // 3x2, one cell: a shift
  struct K {
    const Pxl8u* mask;
    PxlSize m;
    PxlPoint a;
  };
  for (K k : {K{cross, {4, 2}, {3, 1}}, K{cross, {4, 2}, {0, 0}}, K{single, {3, 2}, {1, 1}}}) {
    const Pxl8u* mask = k.mask;
    const PxlSize m = k.m;
    const PxlPoint a = k.a;
    MASKED(Erode, 8u, C1, 1, false, false, any8u, WITH);
    MASKED(Dilate, 8u, C3, 3, false, true, any8u, WITH);
    MASKED(Erode, 8u, AC4, 4, true, false, any8u, WITH);
    MASKED(Dilate, 8u, C4, 4, false, true, any8u, WITHOUT);
    MASKED(Dilate, 32f, C1, 1, false, true, any32f, WITH);
    MASKED(Erode, 32f, AC4, 4, true, false, any32f, WITH);
    MASKED(Erode, 32f, C4, 4, false, false, any32f, WITHOUT);
  }
}

TEST(ErodeDilate, FloatInfinityUnderACellIsClipped) {
  const float inf = HUGE_VALF;
  float img[3][3] = {{0, 0, 0}, {0, inf, 0}, {0, 0, -inf}};
  const Pxl8u mask[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
  float out = 0;
  ASSERT_EQ(pxliDilate_32f_C1R(&img[1][1], 12, &out, 4, PxlSize{1, 1}, mask, PxlSize{3, 3}, PxlPoint{1, 1}), pxlStsOk);
  EXPECT_EQ(out, FLT_MAX);
  ASSERT_EQ(pxliErode_32f_C1R(&img[1][1], 12, &out, 4, PxlSize{1, 1}, mask, PxlSize{3, 3}, PxlPoint{1, 1}), pxlStsOk);
  EXPECT_EQ(out, -FLT_MAX);
}

TEST(ErodeDilate, CheckOrder) {
  Pxl8u img[64] = {}, zero[9] = {}, ones[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
  Pxl8u* p = img + 20;
  // The zero mask is found before the anchor is looked at.
  EXPECT_EQ(pxliErode_8u_C1R(p, 8, p, 8, PxlSize{2, 2}, zero, PxlSize{3, 3}, PxlPoint{5, 5}), pxlStsMaskZero);
  EXPECT_EQ(pxliDilate_8u_C1R(p, 8, p, 8, PxlSize{2, 2}, ones, PxlSize{3, 3}, PxlPoint{3, 0}), pxlStsAnchor);
  EXPECT_EQ(pxliDilate_8u_C1R(p, 8, p, 8, PxlSize{2, 2}, ones, PxlSize{3, 0}, PxlPoint{1, 0}), pxlStsMaskSize);
  EXPECT_EQ(pxliDilate_8u_C1R(p, 8, p, 8, PxlSize{2, 2}, nullptr, PxlSize{3, 3}, PxlPoint{1, 1}), pxlStsNullPtr);
  // A source row that can't hold the window's width.
  EXPECT_EQ(pxliErode_8u_C1R(p, 3, p, 8, PxlSize{3, 2}, ones, PxlSize{3, 3}, PxlPoint{1, 1}), pxlStsRowTooWide);
  EXPECT_EQ(pxliErode_8u_C1IR(p, 4, PxlSize{3, 2}, ones, PxlSize{3, 3}, PxlPoint{1, 1}), pxlStsRowTooWide);
  EXPECT_EQ(pxliErode3x3_8u_C1R(p, 4, p, 8, PxlSize{3, 2}), pxlStsRowTooWide);
  EXPECT_EQ(pxliDilate3x3_32f_C1IR((Pxl32f*)p, 19, PxlSize{3, 2}), pxlStsRowTooWide);
  EXPECT_EQ(pxliDilate3x3_32f_C1IR((Pxl32f*)p, 0, PxlSize{0, 2}), pxlStsStep);
  for (Pxl8u v : img) EXPECT_EQ(v, 0);
}

#define SQUARE(stem, T, L, ch, ac4, mx, fill)                                                                 \
  morphCase<Pxl##T>(ch, ac4, PxlSize{3, 3}, PxlPoint{1, 1}, nullptr, mx, fill,                                \
                    [](auto... v) { return pxli##stem##_##T##_##L##R(v...); },                                \
                    [](auto... v) { return pxli##stem##_##T##_##L##IR(v...); }, #stem "_" #T "_" #L)

TEST(Erode3x3, AllNineCellsInPlaceAndOut) {
  SQUARE(Erode3x3, 8u, C1, 1, false, false, few8u);
  SQUARE(Dilate3x3, 8u, C4, 4, false, true, any8u);
  SQUARE(Erode3x3, 8u, AC4, 4, true, false, any8u);
  SQUARE(Dilate3x3, 32f, C3, 3, false, true, any32f);
  SQUARE(Erode3x3, 32f, AC4, 4, true, false, any32f);
}

#define RANK(stem, T, L, ch, ac4, mx, fill)                                                                 \
  morphCase<Pxl##T>(ch, ac4, m, a, nullptr, mx, fill,                                                       \
                    [&](auto... v) { return pxli##stem##_##T##_##L##R(v..., m, a); }, nullptr, #stem "_" #T "_" #L)

TEST(FilterMinMax, AnyRectangleAndAnchor) {
  struct K {
    PxlSize m;
    PxlPoint a;
  };
  // One wide, one high, one cell, a large square (block boundaries of the
  // running extremum fall inside the 16-row image), corners as anchors.
  for (K k : {K{{1, 5}, {0, 4}}, K{{6, 1}, {5, 0}}, K{{1, 1}, {0, 0}}, K{{15, 15}, {0, 14}}, K{{4, 3}, {1, 2}},
              K{{2, 2}, {0, 0}}, K{{9, 4}, {8, 0}}}) {
    const PxlSize m = k.m;
    const PxlPoint a = k.a;
    RANK(FilterMin, 8u, C1, 1, false, false, any8u);
    RANK(FilterMax, 8u, AC4, 4, true, true, any8u);
    RANK(FilterMax, 16s, C3, 3, false, true, any16s);
    RANK(FilterMin, 16s, C4, 4, false, false, any16s);
    RANK(FilterMin, 32f, AC4, 4, true, false, any32f);
    RANK(FilterMax, 32f, C1, 1, false, true, any32f);
  }
  Pxl8u img[16] = {};
  EXPECT_EQ(pxliFilterMax_8u_C1R(img + 4, 4, img + 4, 4, PxlSize{1, 1}, PxlSize{1, 1}, PxlPoint{0, 1}), pxlStsAnchor);
  EXPECT_EQ(pxliFilterMax_8u_C1R(img + 4, 0, img + 4, 4, PxlSize{0, 1}, PxlSize{0, 1}, PxlPoint{0, 1}), pxlStsSize);
}

}  // namespace
