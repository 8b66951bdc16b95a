// Fixed-kernel and caller's-kernel filters against a plain weighted sum over
// the window, on random (asymmetric) images whose source buffer is exactly
// the pixels the filter may read, flush against a guard page on either side.
// Bad-argument orders common to every member are in the argument sweep.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "harness/guard.h"
#include "pxli.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

// Window of a filter: weights w[row][col] (not flipped) over a rect of kw x kh
// whose top-left is (x - left, y - top).
struct Window {
  int kw, kh, left, top;
  std::vector<double> w;
  int div;  // integer forms round S / div to nearest, ties to even; 32f multiply
  float recip;
};
Window sq(int r, std::vector<double> w, int div = 1, float recip = 1.0f) {
  return {2 * r + 1, 2 * r + 1, r, r, std::move(w), div, recip};
}
float bits(std::uint32_t b) {
  float f;
  std::memcpy(&f, &b, 4);
  return f;
}
std::vector<double> outer(std::vector<double> col, std::vector<double> row) {
  std::vector<double> w;
  for (double c : col)
    for (double r : row) w.push_back(c * r);
  return w;
}
std::vector<double> flat(int n, double v, double centre) {
  std::vector<double> w(n * n, v);
  w[n * n / 2] = centre;
  return w;
}
long long roundDiv(long long s, long long d) {  // written apart from the library's
  const double q = double(s) / double(d);
  const double f = std::floor(q);
  return q - f > 0.5 || (q - f == 0.5 && std::fmod(f, 2.0) != 0) ? (long long)f + 1 : (long long)f;
}
template <class D>
D sat(double v) {
  if (std::is_same_v<D, float>) return D(v);
  return D(std::min<double>(std::max<double>(v, std::numeric_limits<D>::lowest()), std::numeric_limits<D>::max()));
}

// Source sample fills: every value of the type, or small integers so that
// float sums are exact whatever their order.
template <class T>
T draw(std::mt19937& rng) {
  if constexpr (std::is_same_v<T, float>) return float(int(rng() % 32) - 8);
  if constexpr (std::is_same_v<T, Pxl16s>) {
    const std::uint32_t r = rng() % 8;  // a third at the ends of the range
    return r < 2 ? -32768 : r < 4 ? 32767 : Pxl16s(rng());
  }
  return T(rng());
}

struct Geometry {
  int w, h, ch;
  bool ac4;
};

// Runs call on a source whose buffer is exactly the window's reach, then
// checks every output sample against the weighted sum, alpha and padding.
template <class S, class D, class Call, class Expect>
void runAndCompare(const Geometry& g, const Window& k, Place place, Call call, Expect expect, const char* what) {
  std::mt19937 rng(g.w * 131 + g.h + g.ch);
  TestImage src(g.w + k.kw - 1, g.h + k.kh - 1, g.ch * sizeof(S), 0, 0, place, 7);
  for (int y = 0; y < src.height(); ++y)
    for (int i = 0; i < src.width() * g.ch; ++i) {
      const S v = draw<S>(rng);
      std::memcpy(src.row(y) + i * sizeof(S), &v, sizeof v);
    }
  TestImage dst(g.w, g.h, g.ch * sizeof(D), 8, 8, Place::Back, 9);
  const auto before = dst.snapshot();
  const auto* s0 = reinterpret_cast<const S*>(src.row(k.top) + k.left * g.ch * sizeof(S));
  ASSERT_EQ(call(s0, src.step(), reinterpret_cast<D*>(dst.roi()), dst.step(), PxlSize{g.w, g.h}), pxlStsOk) << what;
  EXPECT_TRUE(dst.outsideUnchanged(before)) << what;
  int bad = 0;
  for (int y = 0; y < g.h; ++y)
    for (int x = 0; x < g.w; ++x)
      for (int c = 0; c < g.ch; ++c) {
        D got, want;
        std::memcpy(&got, dst.row(y) + (x * g.ch + c) * sizeof(D), sizeof got);
        if (g.ac4 && c == 3) {
          std::memcpy(&want, before.data() + 8 + y * dst.step() + (x * 4 + 3) * sizeof(D), sizeof want);
        } else {
          want = expect([&](int dx, int dy) {
            S v;
            std::memcpy(&v, src.row(y + dy) + ((x + dx) * g.ch + c) * sizeof(S), sizeof v);
            return v;
          });
        }
        if (std::memcmp(&got, &want, sizeof got) != 0 && ++bad < 4)
          ADD_FAILURE() << what << " at " << x << "," << y << " ch " << c << ": " << double(got) << " want "
                        << double(want);
      }
}

// Fixed filters: S = sum of weights times samples, then the form's final step.
template <class S, class D, class Call>
void fixedCase(const Geometry& g, const Window& k, Call call, const char* what) {
  for (Place place : {Place::Front, Place::Back})
    runAndCompare<S, D>(g, k, place, call, [&](auto at) {
      double sum = 0;
      for (int j = 0; j < k.kh; ++j)
        for (int i = 0; i < k.kw; ++i) sum += k.w[j * k.kw + i] * double(at(i, j));
      if constexpr (std::is_same_v<D, float>) return k.div == 1 ? float(sum) : float(sum) * k.recip;
      return sat<D>(k.div == 1 ? sum : double(roundDiv((long long)sum, k.div)));
    }, what);
}

struct Lay {
  int ch;
  bool ac4;
};
constexpr Lay C1{1, false}, C3{3, false}, C4{4, false}, AC4{4, true};
const PxlSize kSizes[] = {{1, 1}, {13, 5}, {40, 3}};

// One member: every size, the source flush against each guard page.
#define CASE(S, D, stem, form, L, win, ...)                                                                 \
  for (PxlSize z : kSizes)                                                                                  \
    fixedCase<Pxl##S, Pxl##D>({z.width, z.height, L.ch, L.ac4}, win,                                        \
                              [&](auto s, int ss, auto d, int ds, PxlSize r) {                              \
                                return pxli##stem##_##form##_##L##R(s, ss, d, ds, r, ##__VA_ARGS__);         \
                              },                                                                            \
                              #stem "_" #form "_" #L)
#define SAME(T, stem, L, win, ...) CASE(T, T, stem, T, L, win, ##__VA_ARGS__)
// Three forms, the layouts spread over them so that each form and each
// layout is met at least once.
#define FORMS4(stem, win, ...)                                                              \
  SAME(8u, stem, C1, win, ##__VA_ARGS__);                                                   \
  SAME(8u, stem, AC4, win, ##__VA_ARGS__);                                                  \
  SAME(16s, stem, C3, win, ##__VA_ARGS__);                                                  \
  SAME(16s, stem, C4, win, ##__VA_ARGS__);                                                  \
  SAME(32f, stem, C4, win, ##__VA_ARGS__);                                                  \
  SAME(32f, stem, AC4, win, ##__VA_ARGS__);                                                 \
  SAME(32f, stem, C1, win, ##__VA_ARGS__)
#define TO16(stem, win, ...)                           \
  CASE(8u, 16s, stem, 8u16s, C1, win, ##__VA_ARGS__);  \
  CASE(8s, 16s, stem, 8s16s, C1, win, ##__VA_ARGS__)

const Window kPrewittH = sq(1, {-1, -1, -1, 0, 0, 0, 1, 1, 1});
const Window kPrewittV = sq(1, {1, 0, -1, 1, 0, -1, 1, 0, -1});
const Window kSobelH = sq(1, {-1, -2, -1, 0, 0, 0, 1, 2, 1});
const Window kSobelV = sq(1, {1, 0, -1, 2, 0, -2, 1, 0, -1});
const Window kSobelH2 = sq(1, {1, 2, 1, -2, -4, -2, 1, 2, 1});
const Window kSobelV2 = sq(1, {1, -2, 1, 2, -4, 2, 1, -2, 1});
const Window kSobelX = sq(1, {-1, 0, 1, 0, 0, 0, 1, 0, -1});
const Window kScharrH = sq(1, {-3, -10, -3, 0, 0, 0, 3, 10, 3});
const Window kScharrV = sq(1, {-3, 0, 3, -10, 0, 10, -3, 0, 3});
const Window kLaplace3 = sq(1, flat(3, -1, 8));
const Window kGauss3 = sq(1, {1, 2, 1, 2, 4, 2, 1, 2, 1}, 16, 0.0625f);
const Window kLowpass3 = sq(1, flat(3, 1, 1), 9, bits(0x3DE38E39));
const Window kSharpen = sq(1, flat(3, -1, 16), 8, 0.125f);
const Window kLaplace5 = sq(2, {-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6, 0, -3, -1, -3, -4, -3, -1});
const Window kGauss5 = sq(2, {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2},
                          571, bits(0x3AE58C54));
const Window kHipass5 = sq(2, flat(5, -1, 24));
const Window kLowpass5 = sq(2, flat(5, 1, 1), 25, bits(0x3D23D70A));
const std::vector<double> kBin = {1, 4, 6, 4, 1}, kDer = {-1, -2, 0, 2, 1}, kSec = {1, 0, -2, 0, 1};
const Window kSobelV5 = sq(2, outer(kBin, {1, 2, 0, -2, -1})), kSobelH5 = sq(2, outer(kDer, kBin));
const Window kSobelV25 = sq(2, outer(kBin, kSec)), kSobelH25 = sq(2, outer(kSec, kBin));
const Window kSobelX5 = sq(2, outer(kDer, {1, 2, 0, -2, -1}));


TEST(FixedFilters, KernelsSignsAndRoundingOnEveryFormAgainstTheWindowSum) {
  FORMS4(FilterPrewittHoriz, kPrewittH);
  FORMS4(FilterPrewittVert, kPrewittV);
  FORMS4(FilterSobelHoriz, kSobelH);
  FORMS4(FilterSobelVert, kSobelV);
  FORMS4(FilterSharpen, kSharpen);
  FORMS4(FilterLaplace, kLaplace3, 33);
  FORMS4(FilterLaplace, kLaplace5, 55);
  FORMS4(FilterGauss, kGauss3, 33);
  FORMS4(FilterGauss, kGauss5, 55);
  FORMS4(FilterHipass, kLaplace3, 33);
  FORMS4(FilterHipass, kHipass5, 55);
  for (int m : {33, 55}) {
    const Window& w = m == 33 ? kLowpass3 : kLowpass5;
    SAME(8u, FilterLowpass, C1, w, m);
    SAME(16s, FilterLowpass, AC4, w, m);
    SAME(32f, FilterLowpass, C3, w, m);
  }
  TO16(FilterLaplace, kLaplace3, 33);
  TO16(FilterLaplace, kLaplace5, 55);
  TO16(FilterScharrHoriz, kScharrH);
  TO16(FilterScharrVert, kScharrV);
  SAME(32f, FilterScharrHoriz, C1, kScharrH);
  SAME(32f, FilterScharrVert, C1, kScharrV);
  TO16(FilterSobelHoriz, kSobelH, 33);
  TO16(FilterSobelHoriz, kSobelH5, 55);
  TO16(FilterSobelVert, kSobelV, 33);
  TO16(FilterSobelVert, kSobelV5, 55);
  TO16(FilterSobelHorizSecond, kSobelH2, 33);
  TO16(FilterSobelHorizSecond, kSobelH25, 55);
  TO16(FilterSobelVertSecond, kSobelV2, 33);
  TO16(FilterSobelVertSecond, kSobelV25, 55);
  TO16(FilterSobelCross, kSobelX, 33);
  TO16(FilterSobelCross, kSobelX5, 55);
  // The 32f mask forms read any code but 33 as 5x5.
  SAME(32f, FilterSobelHorizMask, C1, kSobelH, 33);
  SAME(32f, FilterSobelVertMask, C1, kSobelV5, 13);
  SAME(32f, FilterSobelHorizSecond, C1, kSobelH25, 0);
  SAME(32f, FilterSobelVertSecond, C1, kSobelV2, 33);
  SAME(32f, FilterSobelCross, C1, kSobelX5, 13);
}

TEST(FixedFilters, RobertsReadOneRowUpAndOneSide) {
  const Window up{2, 2, 0, 1, {0, -1, 1, 0}, 1, 1.0f}, down{2, 2, 1, 1, {-1, 0, 0, 1}, 1, 1.0f};
  SAME(8u, FilterRobertsUp, C1, up);
  SAME(16s, FilterRobertsUp, AC4, up);
  SAME(32f, FilterRobertsUp, C3, up);
  SAME(8u, FilterRobertsDown, AC4, down);
  SAME(16s, FilterRobertsDown, C1, down);
  SAME(32f, FilterRobertsDown, C1, down);
}

// One pixel of an 8u 3x3 filter on a hand-made neighbourhood.
int one3x3(PxlStatus (*fn)(const Pxl8u*, int, Pxl8u*, int, PxlSize), std::vector<Pxl8u> n) {
  Pxl8u out = 77;
  EXPECT_EQ(fn(n.data() + 4, 3, &out, 1, {1, 1}), pxlStsOk);
  return out;
}
int gauss3(std::vector<Pxl8u> n) {
  return one3x3([](const Pxl8u* s, int ss, Pxl8u* d, int ds, PxlSize r) {
    return pxliFilterGauss_8u_C1R(s, ss, d, ds, r, 33);
  }, std::move(n));
}

TEST(FixedFilters, DivisionTiesGoToEven) {
  EXPECT_EQ(gauss3({0, 0, 0, 0, 2, 0, 0, 0, 0}), 0);   // S = 8
  EXPECT_EQ(gauss3({0, 0, 0, 0, 6, 0, 0, 0, 0}), 2);   // S = 24
  EXPECT_EQ(gauss3({0, 0, 0, 0, 10, 0, 0, 0, 0}), 2);  // S = 40
  EXPECT_EQ(one3x3(pxliFilterSharpen_8u_C1R, {12, 0, 0, 0, 1, 0, 0, 0, 0}), 0);  // V = 4
  EXPECT_EQ(one3x3(pxliFilterSharpen_8u_C1R, {4, 0, 0, 0, 1, 0, 0, 0, 0}), 2);   // V = 12
  EXPECT_EQ(one3x3(pxliFilterSharpen_8u_C1R, {0, 0, 0, 0, 255, 0, 0, 0, 0}), 255);
  EXPECT_EQ(one3x3(pxliFilterSharpen_8u_C1R, {255, 255, 255, 255, 0, 255, 255, 255, 255}), 0);
}

TEST(FixedFilters, MaskCodesAndTheirPlaceInTheChecks) {
  Pxl8u s[25] = {}, d = 0;
  Pxl16s d16 = 0;
  Pxl32f f[25] = {}, df = 0;
  EXPECT_EQ(pxliFilterGauss_8u_C1R(s + 12, 5, &d, 1, {1, 1}, 13), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterSobelCross_8u16s_C1R(s + 12, 5, &d16, 2, {1, 1}, 35), pxlStsMaskSize);
  EXPECT_EQ(pxliFilterGauss_8u_C1R(s + 12, 0, &d, 1, {1, 1}, 13), pxlStsStep);
  EXPECT_EQ(pxliFilterSobelVertMask_32f_C1R(f + 12, 20, &df, 4, {1, 1}, 13), pxlStsOk);
  EXPECT_EQ(pxliFilterLowpass_8u_C1R(s + 12, 1, &d, 1, {1, 1}, 55), pxlStsOk);  // a step of 1 passes
}

// Caller's kernels: the window of output (x, y) covers columns
// x + ax - kw + 1 .. x + ax; kernel cell (i, j) meets sample (x + ax - i, y + ay - j).
struct Kern {
  int kw, kh, ax, ay;
  std::vector<int> k;
};
Window windowOf(const Kern& c) { return {c.kw, c.kh, c.kw - 1 - c.ax, c.kh - 1 - c.ay, {}, 1, 1.0f}; }

// The float sum in the order of both paths: from the window's top left,
// the kernel from its last element backwards.
template <class S, class At, class K>
float floatSum(const Kern& c, const K* taps, At at) {
  float a = 0;
  for (int j = c.kh - 1, t = 0; j >= 0; --j)
    for (int i = c.kw - 1; i >= 0; --i, ++t) {
      const float p = taps[j * c.kw + i] * float(at(c.kw - 1 - i, c.kh - 1 - j));
      a = t == 0 ? p : a + p;
    }
  return a;
}
template <class D>
D fromF(float v) {
  if (std::is_same_v<D, float>) return v;
  if (v > float(std::numeric_limits<D>::max())) return std::numeric_limits<D>::max();
  if (v >= float(std::numeric_limits<D>::lowest())) return D(std::nearbyint(v));
  return std::numeric_limits<D>::lowest();
}
Pxl8u intResult(long long a32, int div) {
  const std::int32_t a = std::int32_t(std::uint32_t(a32));
  if (div == 1) return sat<Pxl8u>(a);
  if (div > 1 && (div & (div - 1)) == 0) return a < 1 ? 0 : sat<Pxl8u>(double((std::int64_t(a) + div / 2) / div));
  return fromF<Pxl8u>(float(a) * (1.0f / float(div)));
}

const Kern kKerns[] = {
    {3, 3, 1, 1, {1, -2, 3, 4, 5, -6, 7, 8, 9}}, {5, 2, 0, 0, {3, 1, -1, 2, 7, 0, 4, -5, 1, 2}},
    {1, 4, 0, 3, {2, -1, 5, 3}},                 {4, 1, 3, 0, {-32768, 32767, 7, 1}},
    {2, 3, 1, 0, {32767, 1, -3, 2, 9, -4}},
};

// One caller's-kernel member on kernel c at size z, both guard placements.
#define GEN(S, L, name, call, ref)                                                                    \
  for (Place place : {Place::Front, Place::Back})                                                     \
  runAndCompare<Pxl##S, Pxl##S>({z.width, z.height, L.ch, L.ac4}, windowOf(c), place,                \
                                [&](auto s, int ss, auto d, int ds, PxlSize r) { return call; },      \
                                [&](auto at) { return ref; }, name)

TEST(GeneralFilters, ConvolutionFlipsTheKernelAndFastPathEqualsFallback) {
  for (const Kern& c : kKerns)
    for (int div : {1, 4, 3, -1})
      for (PxlSize z : {PxlSize{5, 3}, PxlSize{37, 4}}) {  // below and above the fast path's width
        const std::vector<float> ft(c.k.begin(), c.k.end());
        std::vector<float> ft16(c.k.size());
        for (std::size_t i = 0; i < ft.size(); ++i) ft16[i] = float(c.k[i]) * (1.0f / float(div));
        const PxlSize ks{c.kw, c.kh};
        const PxlPoint an{c.ax, c.ay};
        auto intSum = [&](auto at) {
          long long a = 0;
          for (int j = 0; j < c.kh; ++j)
            for (int i = 0; i < c.kw; ++i) a += (long long)c.k[j * c.kw + i] * at(c.kw - 1 - i, c.kh - 1 - j);
          return intResult(a, div);
        };
        GEN(8u, AC4, "Filter_8u_AC4R", pxliFilter_8u_AC4R(s, ss, d, ds, r, c.k.data(), ks, an, div), intSum(at));
        GEN(16s, C3, "Filter_16s_C3R", pxliFilter_16s_C3R(s, ss, d, ds, r, c.k.data(), ks, an, div),
            fromF<Pxl16s>(floatSum<Pxl16s>(c, ft16.data(), at)));
        GEN(32f, C1, "Filter_32f_C1R", pxliFilter_32f_C1R(s, ss, d, ds, r, ft.data(), ks, an),
            floatSum<Pxl32f>(c, ft.data(), at));
        GEN(8u, C4, "Filter32f_8u_C4R", pxliFilter32f_8u_C4R(s, ss, d, ds, r, ft16.data(), ks, an),
            fromF<Pxl8u>(floatSum<Pxl8u>(c, ft16.data(), at)));
        if (c.kh == 1)
          GEN(8u, C1, "FilterRow_8u_C1R", pxliFilterRow_8u_C1R(s, ss, d, ds, r, c.k.data(), c.kw, c.ax, div),
              intSum(at));
        if (c.kw == 1)
          GEN(16s, AC4, "FilterColumn32f_16s_AC4R",
              pxliFilterColumn32f_16s_AC4R(s, ss, d, ds, r, ft16.data(), c.kh, c.ay),
              fromF<Pxl16s>(floatSum<Pxl16s>(c, ft16.data(), at)));
      }
}

TEST(GeneralFilters, AnchorDirectionAndDivisorRounding) {
  const Pxl8u src[8] = {10, 20, 30, 40, 50, 60, 70, 80};
  Pxl8u out[4] = {};
  const Pxl32s pick[3] = {0, 0, 1};
  ASSERT_EQ(pxliFilterRow_8u_C1R(src + 2, 8, out, 4, {4, 1}, pick, 3, 0, 1), pxlStsOk);
  EXPECT_EQ(out[0], 10);  // s(x - 2)
  EXPECT_EQ(out[3], 40);
  const Pxl8u one[1] = {1};
  const Pxl32s m3[1] = {-3}, p2[1] = {2}, m5[1] = {-5};
  EXPECT_EQ((pxliFilterRow_8u_C1R(one, 1, out, 1, {1, 1}, m3, 1, 0, 4), out[0]), 0);
  EXPECT_EQ((pxliFilterRow_8u_C1R(one, 1, out, 1, {1, 1}, p2, 1, 0, 4), out[0]), 1);   // half up
  EXPECT_EQ((pxliFilterRow_8u_C1R(one, 1, out, 1, {1, 1}, m5, 1, 0, -1), out[0]), 5);  // multiply
  // The 16s integer forms scale float taps: 1/3 + 2/3 + 1/3 of 3 each.
  const Pxl16s s16[3] = {3, 3, 3};
  Pxl16s o16 = 0;
  const Pxl32s k121[3] = {1, 2, 1};
  ASSERT_EQ(pxliFilterRow_16s_C1R(s16, 6, &o16, 2, {1, 1}, k121, 3, 2, 3), pxlStsOk);
  EXPECT_EQ(o16, 4);
}

TEST(GeneralFilters, ChecksOfTheKernelDivisorAndSteps) {
  Pxl8u s[64] = {}, d[8] = {};
  Pxl16s s16[64] = {}, d16[8] = {};
  const Pxl32s k[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
  EXPECT_EQ(pxliFilter_8u_C1R(s, 8, d, 8, {4, 1}, k, {0, 3}, {0, 0}, 1), pxlStsSize);
  EXPECT_EQ(pxliFilter_8u_C1R(s, 8, d, 8, {4, 1}, k, {3, 3}, {9, -9}, 0), pxlStsDivisorZero);
  EXPECT_EQ(pxliFilter_8u_C1R(s, 0, d, 8, {4, 1}, k, {3, 3}, {0, 0}, 0), pxlStsDivisorZero);
  EXPECT_EQ(pxliFilter_8u_C1R(s, 5, d, 8, {4, 1}, k, {3, 3}, {2, 2}, 1), pxlStsStep);  // needs 6
  EXPECT_EQ(pxliFilter_8u_C1R(s, 6, d, 8, {4, 1}, k, {3, 3}, {2, 2}, 1), pxlStsOk);
  EXPECT_EQ(pxliFilterColumn_8u_C3R(s, 12, d, 11, {4, 1}, k, 3, 0, 1), pxlStsStep);
  EXPECT_EQ(pxliFilter_8u_C1R(s, 8, d, 8, {4, 1}, nullptr, {0, 3}, {0, 0}, 1), pxlStsNullPtr);
  // 16s with an integer kernel looks at the kernel before the images.
  EXPECT_EQ(pxliFilter_16s_C1R(nullptr, 8, d16, 8, {4, 1}, k, {0, 3}, {0, 0}, 1), pxlStsSize);
  EXPECT_EQ(pxliFilterRow_16s_C1R(nullptr, 8, d16, 8, {0, 1}, k, 3, 0, 0), pxlStsDivisorZero);
  EXPECT_EQ(pxliFilterRow_8u_C1R(nullptr, 8, d, 8, {0, 1}, k, 3, 0, 0), pxlStsNullPtr);
  EXPECT_EQ(pxliFilterRow_16s_C1R(s16, 12, d16, 8, {4, 1}, k, 3, 2, 1), pxlStsOk);
}

// Two NaNs meeting in a sum pass on whichever is the instruction's first
// operand, which differs between instruction levels: a NaN result is the one
// quiet NaN, in the caller's-kernel and the fixed filters alike.
TEST(Filters32f, NaNResultIsTheOneQuietNaN) {
  Pxl32f src[5 * 20], out[3 * 18];
  for (int i = 0; i < 5 * 20; ++i) src[i] = float(i % 7);
  src[2 * 20 + 5] = bits(0xFFC00001u), src[2 * 20 + 6] = bits(0x7FBFFFFFu), src[1 * 20 + 12] = bits(0x7FC12345u);
  const Pxl32f k[9] = {1, 2, 3, 4, bits(0xFFC0ABCDu), 6, 7, 8, 9};
  auto expectOneNaN = [&](const char* what) {
    int nans = 0;
    for (int i = 0; i < 3 * 18; ++i) {
      std::uint32_t b;
      std::memcpy(&b, &out[i], 4);
      if (!std::isnan(out[i])) continue;
      ++nans;
      EXPECT_EQ(b, 0x7FC00000u) << what << " at " << i;
    }
    EXPECT_GT(nans, 0) << what;
  };
  ASSERT_EQ(pxliFilter_32f_C1R(src + 21, 80, out, 72, {18, 3}, k, {3, 3}, {1, 1}), pxlStsOk);
  expectOneNaN("Filter");
  ASSERT_EQ(pxliFilterGauss_32f_C1R(src + 21, 80, out, 72, {18, 3}, pxlMask3x3), pxlStsOk);
  expectOneNaN("Gauss");
  ASSERT_EQ(pxliFilterRow_32f_C1R(src + 21, 80, out, 72, {18, 3}, k + 3, 3, 1), pxlStsOk);
  expectOneNaN("FilterRow");
}

TEST(GeneralFilters, SameBytesAtEveryThreadCount) {
  TestImage src(70, 40, 3, 0, 0, Place::Back, 3), dst(64, 34, 3, 0, 0, Place::Back, 4);
  const Pxl32f k[49] = {0.5f, -1.25f, 3.0f, 0.1f, 7.0f, -2.0f, 0.3f};
  EXPECT_TRUE(pxltest::sameForThreadCounts([&] {
    EXPECT_EQ(pxliFilter32f_8u_C3R(src.row(3) + 9, src.step(), dst.roi(), dst.step(), {64, 34}, k, {7, 7},
                                   {3, 3}), pxlStsOk);
    return dst.roiBytes();
  }));
}

}  // namespace
