// Alpha composition against the operator table written out per pixel, for
// every operator code, layout and type, on guarded images whose widths cross
// every register boundary; the product rule exhaustively; the check order.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

template <class T>
constexpr int kBits = sizeof(T) * 8;
template <class T>
constexpr long long kFull = (1LL << kBits<T>) - 1;

template <class T>
long long mul(long long a, long long b) {
  const long long t = a * b;
  return (t + 1 + (t >> kBits<T>)) >> kBits<T>;
}

// The colour result of operator op (0..5) as the table states it, for
// colours that are (pre) or are not premultiplied.
template <class T>
long long colour(int op, bool pre, long long c1, long long a1, long long c2, long long a2) {
  const long long n1 = kFull<T> - a1, n2 = kFull<T> - a2;
  long long r = 0;
  if (!pre) {
    switch (op) {
      case 0: r = mul<T>(c1, a1) + mul<T>(n1, mul<T>(c2, a2)); break;
      case 1: r = mul<T>(a2, mul<T>(c1, a1)); break;
      case 2: r = mul<T>(n2, mul<T>(c1, a1)); break;
      case 3: r = mul<T>(a2, mul<T>(c1, a1)) + mul<T>(n1, mul<T>(c2, a2)); break;
      case 4: r = mul<T>(n2, mul<T>(c1, a1)) + mul<T>(n1, mul<T>(c2, a2)); break;
      default: r = mul<T>(c1, a1) + mul<T>(c2, a2); break;
    }
  } else {
    switch (op) {
      case 0: r = c1 + mul<T>(n1, c2); break;
      case 1: r = mul<T>(c1, a2); break;
      case 2: r = mul<T>(c1, n2); break;
      case 3: r = mul<T>(c1, a2) + mul<T>(n1, c2); break;
      case 4: r = mul<T>(n2, c1) + mul<T>(n1, c2); break;
      default: r = c1 + c2; break;
    }
  }
  return std::min(r, kFull<T>);
}

// The alpha column of the table (an image of alphas alone).
template <class T>
long long alphaResult(int op, long long a1, long long a2) {
  const long long n1 = kFull<T> - a1, n2 = kFull<T> - a2;
  long long r;
  switch (op) {
    case 0: r = a1 + mul<T>(n1, a2); break;
    case 1: r = mul<T>(a1, a2); break;
    case 2: r = mul<T>(a1, n2); break;
    case 3: r = a2; break;
    case 4: r = mul<T>(n1, a2) + mul<T>(n2, a1); break;
    default: r = a1 + a2; break;
  }
  return std::min(r, kFull<T>);
}

// In AC4 and AP4 the alpha samples go through the colour arithmetic as
// premultiplied values equal to the alpha itself.
template <class T>
long long alphaLane(int op, long long a1, long long a2) {
  return colour<T>(op, true, a1, a1, a2, a2);
}

const int kWidths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 64, 67};

template <class T>
T* px(TestImage& im, int y) {
  return reinterpret_cast<T*>(im.row(y));
}

// Biases random samples towards the ends, where saturation and the exact
// products at 0 and full alpha live.
template <class T>
void randomize(TestImage& im, std::mt19937& rng, int samples) {
  for (int y = 0; y < im.height(); ++y)
    for (int i = 0; i < im.width() * samples; ++i) {
      const unsigned r = rng() % 8;
      px<T>(im, y)[i] = T(r == 0 ? 0 : r == 1 ? kFull<T> : r == 2 ? kFull<T> - 1 : rng());
    }
}

// A guarded image of random samples (see randomize) with random padding.
template <class T>
std::unique_ptr<TestImage> img(int w, int h, int samples, std::mt19937& rng, Place place) {
  auto im = std::make_unique<TestImage>(w, h, samples * int(sizeof(T)), int(rng() % 3) * int(sizeof(T)),
                                        int(rng() % 3) * int(sizeof(T)), place, rng());
  randomize<T>(*im, rng, samples);
  return im;
}

template <class T>
class AlphaTest : public ::testing::Test {};
using AlphaTypes = ::testing::Types<Pxl8u, Pxl16u>;
TYPED_TEST_SUITE(AlphaTest, AlphaTypes);

template <class T>
struct Fns;
#define PXL_ALPHA_FNS(t)                                                                                        \
  template <>                                                                                                   \
  struct Fns<Pxl##t> {                                                                                          \
    static constexpr auto comp4 = pxliAlphaComp_##t##_AC4R, comp1 = pxliAlphaComp_##t##_AC1R;                  \
    static constexpr auto compP = pxliAlphaComp_##t##_AP4R;                                                      \
    static constexpr auto c1 = pxliAlphaCompC_##t##_C1R, c3 = pxliAlphaCompC_##t##_C3R;                          \
    static constexpr auto c4 = pxliAlphaCompC_##t##_C4R, cA = pxliAlphaCompC_##t##_AC4R;                         \
    static constexpr auto cP = pxliAlphaCompC_##t##_AP4R;                                                        \
    static constexpr auto pre4 = pxliAlphaPremul_##t##_AC4R, pre4I = pxliAlphaPremul_##t##_AC4IR;               \
    static constexpr auto preP = pxliAlphaPremul_##t##_AP4R;                                                     \
    static constexpr auto preC3 = pxliAlphaPremulC_##t##_C3R, preC4I = pxliAlphaPremulC_##t##_AC4IR;            \
    static constexpr auto preCP = pxliAlphaPremulC_##t##_AP4R;                                                   \
  };
PXL_ALPHA_FNS(8u)
PXL_ALPHA_FNS(16u)

TYPED_TEST(AlphaTest, InterleavedCompositionFollowsTheTable) {
  using T = TypeParam;
  std::mt19937 rng(7);
  for (int op = 0; op < 12; ++op)
    for (int w : kWidths) {
      const int h = 2, o = op % 6;
      const bool pre = op >= 6;
      auto s1 = img<T>(w, h, 4, rng, Place::Front), s2 = img<T>(w, h, 4, rng, Place::Back);
      auto d = img<T>(w, h, 4, rng, Place::Back);
      const auto before = d->snapshot();
      ASSERT_EQ(pxlStsOk, Fns<T>::comp4(px<T>(*s1, 0), s1->step(), px<T>(*s2, 0), s2->step(), px<T>(*d, 0),
                                        d->step(), {w, h}, op));
      ASSERT_TRUE(d->outsideUnchanged(before));
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
          const T* p1 = px<T>(*s1, y) + 4 * x;
          const T* p2 = px<T>(*s2, y) + 4 * x;
          const T* r = px<T>(*d, y) + 4 * x;
          for (int c = 0; c < 3; ++c)
            ASSERT_EQ(r[c], colour<T>(o, pre, p1[c], p1[3], p2[c], p2[3])) << "op " << op << " w " << w << " x " << x;
          ASSERT_EQ(r[3], alphaLane<T>(o, p1[3], p2[3])) << "alpha, op " << op;
        }

      // AC1: alphas alone, the alpha column.
      auto a1 = img<T>(w, h, 1, rng, Place::Front), a2 = img<T>(w, h, 1, rng, Place::Front);
      auto da = img<T>(w, h, 1, rng, Place::Back);
      const auto beforeA = da->snapshot();
      ASSERT_EQ(pxlStsOk, Fns<T>::comp1(px<T>(*a1, 0), a1->step(), px<T>(*a2, 0), a2->step(), px<T>(*da, 0),
                                        da->step(), {w, h}, op));
      ASSERT_TRUE(da->outsideUnchanged(beforeA));
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          ASSERT_EQ(px<T>(*da, y)[x], alphaResult<T>(o, px<T>(*a1, y)[x], px<T>(*a2, y)[x])) << "AC1 op " << op;
    }
}

// Four planes per image: colour planes against the per-pixel alpha plane.
struct Planes {
  std::vector<std::unique_ptr<TestImage>> p;
  template <class T>
  T* at(int k, int y) const {
    return reinterpret_cast<T*>(p[k]->row(y));
  }
  template <class T>
  std::vector<T*> ptrs() const {
    std::vector<T*> v;
    for (auto& im : p) v.push_back(reinterpret_cast<T*>(im->roi()));
    return v;
  }
};

template <class T>
Planes planes(int w, int h, std::mt19937& rng, Place place) {
  Planes out;
  for (int k = 0; k < 4; ++k) {
    out.p.push_back(std::make_unique<TestImage>(w, h, int(sizeof(T)), 0, 2 * int(sizeof(T)), place, rng()));
    randomize<T>(*out.p.back(), rng, 1);
  }
  // One step for all planes: they share the same geometry.
  return out;
}

TYPED_TEST(AlphaTest, PlanarAndConstantForms) {
  using T = TypeParam;
  std::mt19937 rng(11);
  for (int op = 0; op < 12; ++op)
    for (int w : kWidths) {
      const int h = 2, o = op % 6;
      const bool pre = op >= 6;
      Planes s1 = planes<T>(w, h, rng, Place::Front), s2 = planes<T>(w, h, rng, Place::Front);
      Planes d = planes<T>(w, h, rng, Place::Back);
      const auto p1 = s1.ptrs<T>(), p2 = s2.ptrs<T>();
      const auto pd = d.ptrs<T>();
      const T* c1[4] = {p1[0], p1[1], p1[2], p1[3]};
      const T* c2[4] = {p2[0], p2[1], p2[2], p2[3]};
      const int step = s1.p[0]->step();
      ASSERT_EQ(pxlStsOk, Fns<T>::compP(c1, step, c2, step, pd.data(), step, {w, h}, op));
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
          const long long a1 = s1.at<T>(3, y)[x], a2 = s2.at<T>(3, y)[x];
          for (int k = 0; k < 3; ++k)
            ASSERT_EQ(d.at<T>(k, y)[x], colour<T>(o, pre, s1.at<T>(k, y)[x], a1, s2.at<T>(k, y)[x], a2)) << op;
          ASSERT_EQ(d.at<T>(3, y)[x], alphaLane<T>(o, a1, a2)) << op;
        }

      // Constant alphas, C3: every sample a colour.
      const T k1 = T(rng() % 4 == 0 ? kFull<T> : rng()), k2 = T(rng() % 4 == 0 ? 0 : rng());
      auto i1 = img<T>(w, h, 3, rng, Place::Front), i2 = img<T>(w, h, 3, rng, Place::Back);
      auto di = img<T>(w, h, 3, rng, Place::Back);
      const auto before = di->snapshot();
      ASSERT_EQ(pxlStsOk, Fns<T>::c3(px<T>(*i1, 0), i1->step(), k1, px<T>(*i2, 0), i2->step(), k2, px<T>(*di, 0),
                                     di->step(), {w, h}, op));
      ASSERT_TRUE(di->outsideUnchanged(before));
      for (int y = 0; y < h; ++y)
        for (int i = 0; i < 3 * w; ++i)
          ASSERT_EQ(px<T>(*di, y)[i], colour<T>(o, pre, px<T>(*i1, y)[i], k1, px<T>(*i2, y)[i], k2)) << op;

      // Constant alphas, AC4: the alpha samples take the constants' result.
      auto j1 = img<T>(w, h, 4, rng, Place::Front), j2 = img<T>(w, h, 4, rng, Place::Front);
      auto dj = img<T>(w, h, 4, rng, Place::Back);
      ASSERT_EQ(pxlStsOk, Fns<T>::cA(px<T>(*j1, 0), j1->step(), k1, px<T>(*j2, 0), j2->step(), k2, px<T>(*dj, 0),
                                     dj->step(), {w, h}, op));
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
          for (int c = 0; c < 3; ++c)
            ASSERT_EQ(px<T>(*dj, y)[4 * x + c],
                      colour<T>(o, pre, px<T>(*j1, y)[4 * x + c], k1, px<T>(*j2, y)[4 * x + c], k2));
          ASSERT_EQ(px<T>(*dj, y)[4 * x + 3], alphaLane<T>(o, k1, k2));
        }
    }
}

TYPED_TEST(AlphaTest, PremultiplyByPixelAlphaOrConstant) {
  using T = TypeParam;
  std::mt19937 rng(13);
  for (int w : kWidths) {
    const int h = 3;
    auto s = img<T>(w, h, 4, rng, Place::Front);
    auto d = img<T>(w, h, 4, rng, Place::Back);
    const auto before = d->snapshot();
    ASSERT_EQ(pxlStsOk, Fns<T>::pre4(px<T>(*s, 0), s->step(), px<T>(*d, 0), d->step(), {w, h}));
    ASSERT_TRUE(d->outsideUnchanged(before));
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        const T* p = px<T>(*s, y) + 4 * x;
        for (int c = 0; c < 3; ++c) ASSERT_EQ(px<T>(*d, y)[4 * x + c], mul<T>(p[c], p[3]));
        ASSERT_EQ(px<T>(*d, y)[4 * x + 3], p[3]);
      }
    // In place gives the same.
    ASSERT_EQ(pxlStsOk, Fns<T>::pre4I(px<T>(*s, 0), s->step(), {w, h}));
    EXPECT_EQ(s->roiBytes(), d->roiBytes());

    Planes sp = planes<T>(w, h, rng, Place::Front), dp = planes<T>(w, h, rng, Place::Back);
    const auto ps = sp.ptrs<T>();
    const T* cs[4] = {ps[0], ps[1], ps[2], ps[3]};
    const int step = sp.p[0]->step();
    ASSERT_EQ(pxlStsOk, Fns<T>::preP(cs, step, dp.ptrs<T>().data(), step, {w, h}));
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        for (int k = 0; k < 3; ++k) ASSERT_EQ(dp.at<T>(k, y)[x], mul<T>(sp.at<T>(k, y)[x], sp.at<T>(3, y)[x]));
        ASSERT_EQ(dp.at<T>(3, y)[x], sp.at<T>(3, y)[x]);
      }

    // By a constant: every sample, alpha included.
    const T k = T(rng());
    auto c3 = img<T>(w, h, 3, rng, Place::Front), c3d = img<T>(w, h, 3, rng, Place::Back);
    ASSERT_EQ(pxlStsOk, Fns<T>::preC3(px<T>(*c3, 0), c3->step(), k, px<T>(*c3d, 0), c3d->step(), {w, h}));
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < 3 * w; ++i) ASSERT_EQ(px<T>(*c3d, y)[i], mul<T>(px<T>(*c3, y)[i], k));
    auto a4 = img<T>(w, h, 4, rng, Place::Back);
    std::vector<long long> want;
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < 4 * w; ++i) want.push_back(mul<T>(px<T>(*a4, y)[i], k));
    ASSERT_EQ(pxlStsOk, Fns<T>::preC4I(k, px<T>(*a4, 0), a4->step(), {w, h}));
    for (int y = 0, n = 0; y < h; ++y)
      for (int i = 0; i < 4 * w; ++i, ++n) ASSERT_EQ(px<T>(*a4, y)[i], want[n]);
  }
}

// mul(a, b) for every pair of 8-bit values, through the vector blocks and
// the single lanes: the premultiplied 'in' of a row of all values with a
// constant alpha is mul(c, alpha).
TEST(Alpha, ProductRuleForEveryEightBitPair) {
  TestImage row(256, 1, 1, 0, 0, Place::Back, 1), zero(256, 1, 1, 0, 0, Place::Back, 2), out(256, 1, 1, 0, 0,
                                                                                              Place::Back, 3);
  for (int i = 0; i < 256; ++i) row.roi()[i] = Pxl8u(i);
  for (int a = 0; a < 256; ++a) {
    ASSERT_EQ(pxlStsOk, pxliAlphaCompC_8u_C1R(row.roi(), 256, 0, zero.roi(), 256, Pxl8u(a), out.roi(), 256, {256, 1},
                                              pxlAlphaIn + 6));
    for (int c = 0; c < 256; ++c) {
      ASSERT_EQ(out.roi()[c], mul<Pxl8u>(c, a)) << c << " x " << a;
      if (a == 255) {
        ASSERT_EQ(out.roi()[c], c);
      }
    }
  }
}

// Destinations of 8 MiB and more are written around the cache: single
// samples until the destination is aligned, then whole registers. The odd
// destination step starts successive rows at every offset from a register
// boundary; in rows whose offset is not a whole pixel AC4 keeps ordinary
// stores. Every such path must give the table's bytes.
TEST(Alpha, LargeDestinationsAtEveryOffset) {
  using T = Pxl8u;
  std::mt19937 rng(17);
  const int w = 2200, h = 1000;  // 8.8 MB of AC4, 2.2 MB a plane
  for (int left : {12}) {
    auto s1 = std::make_unique<TestImage>(w, h, 4, 0, 3, Place::Front, rng());
    auto s2 = std::make_unique<TestImage>(w, h, 4, 8, 0, Place::Back, rng());
    auto d = std::make_unique<TestImage>(w, h, 4, left, 7, Place::Front, rng());
    randomize<T>(*s1, rng, 4), randomize<T>(*s2, rng, 4);
    const auto before = d->snapshot();
    for (int op : {pxlAlphaOver, pxlAlphaXorPremul}) {
      ASSERT_EQ(pxlStsOk, pxliAlphaComp_8u_AC4R(px<T>(*s1, 0), s1->step(), px<T>(*s2, 0), s2->step(), px<T>(*d, 0),
                                                d->step(), {w, h}, op));
      ASSERT_TRUE(d->outsideUnchanged(before));
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
          const T *p1 = px<T>(*s1, y) + 4 * x, *p2 = px<T>(*s2, y) + 4 * x, *r = px<T>(*d, y) + 4 * x;
          for (int c = 0; c < 3; ++c)
            ASSERT_EQ(r[c], colour<T>(op % 6, op >= 6, p1[c], p1[3], p2[c], p2[3])) << left << " " << x << " " << y;
          ASSERT_EQ(r[3], alphaLane<T>(op % 6, p1[3], p2[3])) << left << " " << x << " " << y;
        }
    }
    // Constant alphas on premultiplied colours: the alpha lanes take the
    // constants' result, not the source's samples.
    ASSERT_EQ(pxlStsOk, pxliAlphaCompC_8u_AC4R(px<T>(*s1, 0), s1->step(), 180, px<T>(*s2, 0), s2->step(), 90,
                                               px<T>(*d, 0), d->step(), {w, h}, pxlAlphaOverPremul));
    ASSERT_TRUE(d->outsideUnchanged(before));
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < 4 * w; ++i)
        ASSERT_EQ(px<T>(*d, y)[i], i % 4 == 3 ? alphaLane<T>(0, 180, 90)
                                              : colour<T>(0, true, px<T>(*s1, y)[i], 180, px<T>(*s2, y)[i], 90))
            << left << " " << i << " " << y;
    // In place: each block is read before it is written.
    std::vector<long long> want;
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < 4 * w; ++i) want.push_back(mul<T>(px<T>(*d, y)[i], px<T>(*d, y)[i | 3]));
    for (std::size_t k = 3; k < want.size(); k += 4) want[k] = px<T>(*d, int(k / (4 * w)))[k % (4 * w)];
    ASSERT_EQ(pxlStsOk, pxliAlphaPremul_8u_AC4IR(px<T>(*d, 0), d->step(), {w, h}));
    ASSERT_TRUE(d->outsideUnchanged(before));
    for (int y = 0, n = 0; y < h; ++y)
      for (int i = 0; i < 4 * w; ++i, ++n) ASSERT_EQ(px<T>(*d, y)[i], want[n]) << left << " " << i << " " << y;
  }
  // Four planes of 2.2 MB: colour planes against the alpha plane, and the
  // alpha plane itself, each streamed on its own.
  Planes p1 = planes<T>(w, h, rng, Place::Front), p2 = planes<T>(w, h, rng, Place::Back);
  Planes pd = planes<T>(w, h, rng, Place::Back);
  const auto q1 = p1.ptrs<T>(), q2 = p2.ptrs<T>();
  const T* c1[4] = {q1[0], q1[1], q1[2], q1[3]};
  const T* c2[4] = {q2[0], q2[1], q2[2], q2[3]};
  const int step = p1.p[0]->step();
  ASSERT_EQ(pxlStsOk, pxliAlphaComp_8u_AP4R(c1, step, c2, step, pd.ptrs<T>().data(), step, {w, h}, pxlAlphaATop));
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      const long long a1 = p1.at<T>(3, y)[x], a2 = p2.at<T>(3, y)[x];
      for (int k = 0; k < 3; ++k)
        ASSERT_EQ(pd.at<T>(k, y)[x], colour<T>(3, false, p1.at<T>(k, y)[x], a1, p2.at<T>(k, y)[x], a2)) << x;
      ASSERT_EQ(pd.at<T>(3, y)[x], alphaLane<T>(3, a1, a2)) << x;
    }
}

TEST(Alpha, TableCorners) {
  auto over = [](Pxl8u c1, Pxl8u a1, Pxl8u c2, Pxl8u a2, int op) {
    const Pxl8u s1[4] = {c1, c1, c1, a1}, s2[4] = {c2, c2, c2, a2};
    Pxl8u d[4] = {1, 2, 3, 4};
    EXPECT_EQ(pxlStsOk, pxliAlphaComp_8u_AC4R(s1, 4, s2, 4, d, 4, {1, 1}, op));
    return d[0];
  };
  EXPECT_EQ(over(77, 255, 200, 90, pxlAlphaOver), 77);
  EXPECT_EQ(over(77, 0, 200, 255, pxlAlphaOver), 200);
  EXPECT_EQ(over(200, 0, 100, 0, pxlAlphaPlus + 6), 255);  // premultiplied plus saturates
}

TEST(Alpha, OperatorIsCheckedAfterPointersAndSizes) {
  TestImage a(8, 2, 1, 0, 0, Place::Front, 1), b(8, 2, 1, 0, 0, Place::Front, 2), d(8, 2, 1, 0, 0, Place::Back, 3);
  const auto before = d.snapshot();
  EXPECT_EQ(pxlStsAlphaOp, pxliAlphaCompC_8u_C1R(a.roi(), 8, 1, b.roi(), 8, 2, d.roi(), 8, {8, 2}, 12));
  EXPECT_EQ(pxlStsAlphaOp, pxliAlphaCompC_8u_C1R(a.roi(), 8, 1, b.roi(), 8, 2, d.roi(), 8, {8, 2}, -1));
  EXPECT_EQ(pxlStsSize, pxliAlphaCompC_8u_C1R(a.roi(), 8, 1, b.roi(), 8, 2, d.roi(), 8, {0, 2}, 12));
  EXPECT_EQ(pxlStsNullPtr, pxliAlphaCompC_8u_C1R(a.roi(), 8, 1, nullptr, 8, 2, d.roi(), 8, {0, 2}, 12));
  EXPECT_EQ(pxlStsAlphaOp, pxliAlphaComp_8u_AC1R(a.roi(), 8, b.roi(), 8, d.roi(), 8, {8, 2}, 99));
  EXPECT_EQ(pxlStsSize, pxliAlphaComp_8u_AC1R(a.roi(), 8, b.roi(), 8, d.roi(), 8, {8, -1}, 99));
  EXPECT_TRUE(d.unchanged(before));
  // Steps are never examined: a zero step reads one row for every row.
  EXPECT_EQ(pxlStsOk, pxliAlphaComp_8u_AC1R(a.roi(), 0, b.roi(), 0, d.roi(), 8, {8, 2}, 0));
  EXPECT_TRUE(std::equal(d.roi(), d.roi() + 8, d.roi() + 8));
}

}  // namespace
