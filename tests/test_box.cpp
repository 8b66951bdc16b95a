// Box filter and window sums against sums written out here, with the 8u
// variant the area and layout choose, at masks on both sides of each
// threshold and anchors at the mask's corners.
#include <cmath>

#include "window_ref.h"

namespace {

using namespace wref;

// The reciprocal's multiplier and shift, derived here from its definition.
void shiftInt(int n, std::uint64_t& mul, int& shift) {
  const float f = 1.0f / float(n);
  if (f == 1.0f) {
    mul = 256, shift = 8;
    return;
  }
  std::uint64_t v = std::uint64_t(std::llround((long double)f * 4294967296.0L - 0.49999L));
  int k = 0;
  while (k < 24 && v < 0x80000000u) v <<= 1, ++k;
  mul = (v >> 20) + 1, shift = k + 12;
}

template <class T>
double windowSum(const Src<T>& s, int x, int y, int c, PxlSize m, PxlPoint a) {
  double sum = 0;
  for (int j = 0; j < m.height; ++j)
    for (int i = 0; i < m.width; ++i) sum += double(s.get(x - a.x + i, y - a.y + j, c));
  return sum;
}

template <class T>
T boxWant(const Src<T>& s, int x, int y, int c, PxlSize m, PxlPoint a, int channels) {
  const double sum = windowSum(s, x, y, c, m, a);
  const int n = m.width * m.height;
  const float r = 1.0f / float(n);
  if constexpr (std::is_same_v<T, float>) {
    return float(sum) * r;
  } else if constexpr (std::is_same_v<T, Pxl16s>) {
    const float v = std::nearbyint(float(sum) * r);
    return Pxl16s(std::fmax(-32768.f, std::fmin(32767.f, v)));
  } else {
    const auto S = std::uint64_t(sum);
    if (n > 8100) return Pxl8u(std::trunc(float(S) * r));
    if (m.width == 3 && m.height == 3 && channels != 4) return Pxl8u(std::llround(double(S) / 9.0));
    if (channels != 3) {  // C1, C4 (AC4 rounds like C3)
      std::uint64_t mul;
      int sh;
      shiftInt(n, mul, sh);
      return Pxl8u((mul * S) >> sh);
    }
    return Pxl8u(std::fmin(255.f, std::nearbyint(float(S) * r)));
  }
}

template <class T, class Out, class In>
void boxCase(int ch, bool ac4, PxlSize m, PxlPoint a, int w, int h, T (*fill)(std::mt19937&), Out out, In in,
             const std::string& what) {
  const int wantCh = ac4 ? 3 : ch;  // AC4 chooses like C3
  for (Place place : {Place::Front, Place::Back}) {
    Src<T> s(w, h, ch, {a.x, a.y, m.width - 1 - a.x, m.height - 1 - a.y}, place, w * 7 + m.width, fill);
    auto want = [&](const Src<T>& src, int x, int y, int c) { return boxWant(src, x, y, c, m, a, wantCh); };
    check<T>(s, w, h, ac4, [&](T* p, int ps, T* d, int ds, PxlSize r) { return out(p, ps, d, ds, r, m, a); }, want,
             what);
    // In place on a copy of the whole source gives the same result.
    Src<T> t(w, h, ch, s.r, Place::Back, w * 7 + m.width, fill);
    ASSERT_EQ(in(t.roi(), t.step(), PxlSize{w, h}, m, a), pxlStsOk);
    int bad = 0;
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x)
        for (int c = 0; c < ch; ++c) {
          const T exp = ac4 && c == 3 ? s.get(x, y, c) : want(s, x, y, c);
          const T got = t.get(x, y, c);
          if (std::memcmp(&got, &exp, sizeof got) != 0 && ++bad < 3) ADD_FAILURE() << what << " in place " << x << "," << y;
        }
  }
}

#define BOX(T, L, ch, ac4, m, a, w, h, fill)                                                                   \
  boxCase<Pxl##T>(ch, ac4, m, a, w, h, fill,                                                                   \
                  [](auto... v) { return pxliFilterBox_##T##_##L##R(v...); },                                  \
                  [](auto... v) { return pxliFilterBox_##T##_##L##IR(v...); }, "FilterBox_" #T "_" #L)

TEST(FilterBox, MeanRoundingAndVariantAtEveryAreaAndLayout) {
  struct M {
    PxlSize m;
    PxlPoint a;
  };
  // 1x1, 3x3 (the nearest /9), a wide asymmetric mask with its anchor in a
  // corner, and areas 8100 (integer sums) and 8190 (float sums).
  const M masks[] = {{{1, 1}, {0, 0}}, {{3, 3}, {1, 1}}, {{3, 3}, {2, 0}}, {{7, 2}, {6, 1}}, {{5, 4}, {0, 3}}};
  for (const M& k : masks) {
    BOX(8u, C1, 1, false, k.m, k.a, 37, 6, any8u);
    BOX(8u, C3, 3, false, k.m, k.a, 19, 5, any8u);
    BOX(8u, C4, 4, false, k.m, k.a, 11, 4, any8u);
    BOX(8u, AC4, 4, true, k.m, k.a, 9, 3, any8u);
    BOX(16s, C1, 1, false, k.m, k.a, 21, 5, any16s);
    BOX(16s, AC4, 4, true, k.m, k.a, 7, 3, any16s);
    BOX(32f, C3, 3, false, k.m, k.a, 13, 4, small32f);
    BOX(32f, C4, 4, false, k.m, k.a, 9, 5, small32f);
  }
  for (PxlSize m : {PxlSize{90, 90}, PxlSize{91, 90}}) {
    BOX(8u, C1, 1, false, m, (PxlPoint{45, 89}), 6, 2, any8u);
    BOX(8u, C3, 3, false, m, (PxlPoint{0, 0}), 3, 2, any8u);
  }
}

TEST(FilterBox, FlatImagesAtTheAccumulatorsLimits) {
  // 255 under a 90x90 mask: S * multiplier is just below 2^32.
  auto full8 = [](std::mt19937&) { return Pxl8u(255); };
  BOX(8u, C1, 1, false, (PxlSize{90, 90}), (PxlPoint{0, 0}), 3, 2, full8);
  BOX(8u, C4, 4, false, (PxlSize{3, 3}), (PxlPoint{1, 1}), 5, 3, full8);
  auto low16 = [](std::mt19937&) { return Pxl16s(-32768); };
  BOX(16s, C1, 1, false, (PxlSize{64, 33}), (PxlPoint{63, 32}), 4, 3, low16);
}

TEST(FilterBox, ChecksStepsBeforeSizeAndWritesNothing) {
  Pxl8u img[64] = {};
  EXPECT_EQ(pxliFilterBox_8u_C1R(img + 9, 0, img + 9, 8, PxlSize{0, 1}, PxlSize{3, 3}, PxlPoint{1, 1}), pxlStsStep);
  EXPECT_EQ(pxliFilterBox_8u_C1R(img + 9, 8, img + 9, 8, PxlSize{1, 1}, PxlSize{3, 0}, PxlPoint{3, 1}), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterBox_8u_C1R(img + 9, 8, img + 9, 8, PxlSize{1, 1}, PxlSize{3, 3}, PxlPoint{3, 1}), pxlStsAnchor);
  EXPECT_EQ(pxliFilterBox_32f_C1IR((Pxl32f*)img + 9, 32, PxlSize{1, 1}, PxlSize{3, 3}, PxlPoint{1, -1}), pxlStsAnchor);
  for (Pxl8u v : img) EXPECT_EQ(v, 0);
}

TEST(FilterBox, SameBytesAtEveryThreadCount) {
  for (int ch : {1, 4}) {
    Src<float> s(200, 150, ch, {4, 6, 4, 6}, Place::Back, 3, any32f);
    EXPECT_TRUE(pxltest::sameForThreadCounts([&] {
      return output(200, 150, ch * 4, [&](std::uint8_t* d, int ds) {
        auto f = ch == 1 ? pxliFilterBox_32f_C1R : pxliFilterBox_32f_C4R;
        f(s.roi(), s.step(), (Pxl32f*)d, ds, PxlSize{200, 150}, PxlSize{9, 13}, PxlPoint{4, 6});
      });
    }));
  }
}

template <class S>
void windowSums(int ch, S (*fill)(std::mt19937&), bool row, int m, int a, const std::string& what) {
  auto fn = [&](const S* s, int ss, Pxl32f* d, int ds, PxlSize r) -> PxlStatus {
    if constexpr (std::is_same_v<S, Pxl8u>) {
      auto f = row ? (ch == 1 ? pxliSumWindowRow_8u32f_C1R : ch == 3 ? pxliSumWindowRow_8u32f_C3R : pxliSumWindowRow_8u32f_C4R)
                   : (ch == 1 ? pxliSumWindowColumn_8u32f_C1R : ch == 3 ? pxliSumWindowColumn_8u32f_C3R : pxliSumWindowColumn_8u32f_C4R);
      return f(s, ss, d, ds, r, m, a);
    } else {
      auto f = row ? (ch == 1 ? pxliSumWindowRow_16s32f_C1R : ch == 3 ? pxliSumWindowRow_16s32f_C3R : pxliSumWindowRow_16s32f_C4R)
                   : (ch == 1 ? pxliSumWindowColumn_16s32f_C1R : ch == 3 ? pxliSumWindowColumn_16s32f_C3R : pxliSumWindowColumn_16s32f_C4R);
      return f(s, ss, d, ds, r, m, a);
    }
  };
  const Reach r = row ? Reach{a, 0, m - 1 - a, 0} : Reach{0, a, 0, m - 1 - a};
  Src<S> s(17, 9, ch, r, Place::Front, 5, fill);
  check<S, Pxl32f>(s, 17, 9, false, fn, [&](const Src<S>& src, int x, int y, int c) {
    double sum = 0;
    for (int k = 0; k < m; ++k) sum += row ? src.get(x - a + k, y, c) : src.get(x, y - a + k, c);
    return float(sum);
  }, what);
}

TEST(SumWindow, RowAndColumnSumsAtTheSampleLimits) {
  for (bool row : {true, false}) {
    windowSums<Pxl8u>(1, any8u, row, 5, 4, "8u C1");
    windowSums<Pxl8u>(3, any8u, row, 1, 0, "8u C3");
    windowSums<Pxl16s>(4, any16s, row, 7, 0, "16s C4");
    windowSums<Pxl16s>(1, any16s, row, 3, 1, "16s C1");
  }
  Pxl32f out[4] = {};
  const Pxl8u in[16] = {};
  EXPECT_EQ(pxliSumWindowRow_8u32f_C1R(in, 16, out, 16, PxlSize{4, 0}, 3, 1), pxlStsOk);
  EXPECT_EQ(pxliSumWindowColumn_8u32f_C1R(in, 16, out, 16, PxlSize{4, 1}, 3, 3), pxlStsAnchor);
  EXPECT_EQ(pxliSumWindowColumn_8u32f_C1R(in, 16, out, 16, PxlSize{4, 1}, 0, 3), pxlStsMaskSize);
  for (float v : out) EXPECT_EQ(v, 0.0f);
}

}  // namespace
