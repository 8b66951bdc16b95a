// LUT, LUT_Linear and LUT_Cubic against the per-sample statement of each
// rule, for every type and layout, out of place and in place, on guarded
// images: random ascending tables with repeated and out-of-range levels and
// values past the sample range; 16-bit images on both sides of the size at
// which the step rule changes from binary search to a map; NaN samples in
// 32f; AC4 alpha left as it was.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "harness/guard.h"
#include "lut_ref.h"

namespace {

using lutref::Chan;
using pxltest::Place;
using pxltest::TestImage;

template <class T>
using V = lutref::V<T>;
template <class T>
using Oop = PxlStatus (*)(const T*, int, T*, int, PxlSize, const V<T>* const*, const V<T>* const*, const int*);
template <class T>
using Ip = PxlStatus (*)(T*, int, PxlSize, const V<T>* const*, const V<T>* const*, const int*);

template <class T>
struct Entry {
  const char* name;
  int kind, C, P;
  Oop<T> oop;
  Ip<T> ip;
};

// C1 members take one description, the others arrays of them.
#define PXL_ONE_OOP(f) [](auto s, int ss, auto d, int ds, PxlSize r, auto v, auto l, auto n) { return f(s, ss, d, ds, r, v[0], l[0], n[0]); }
#define PXL_ONE_IP(f) [](auto d, int ds, PxlSize r, auto v, auto l, auto n) { return f(d, ds, r, v[0], l[0], n[0]); }
#define PXL_PER_OOP(f) [](auto s, int ss, auto d, int ds, PxlSize r, auto v, auto l, auto n) { return f(s, ss, d, ds, r, v, l, n); }
#define PXL_PER_IP(f) [](auto d, int ds, PxlSize r, auto v, auto l, auto n) { return f(d, ds, r, v, l, n); }
#define PXL_ROW(K, Q, TC, LAY, C, P, HOW) \
  {#LAY, K, C, P, PXL_##HOW##_OOP(pxliLUT##Q##_##TC##_##LAY##R), PXL_##HOW##_IP(pxliLUT##Q##_##TC##_##LAY##IR)}
#define PXL_LAYS(K, Q, TC) \
  PXL_ROW(K, Q, TC, C1, 1, 1, ONE), PXL_ROW(K, Q, TC, C3, 3, 3, PER), PXL_ROW(K, Q, TC, C4, 4, 4, PER), \
      PXL_ROW(K, Q, TC, AC4, 4, 3, PER)
#define PXL_KINDS(TC) PXL_LAYS(0, , TC), PXL_LAYS(1, _Linear, TC), PXL_LAYS(2, _Cubic, TC)

const Entry<Pxl8u> k8u[] = {PXL_KINDS(8u)};
const Entry<Pxl16s> k16s[] = {PXL_KINDS(16s)};
const Entry<Pxl16u> k16u[] = {PXL_KINDS(16u)};
const Entry<Pxl32f> k32f[] = {PXL_KINDS(32f)};

// A random ascending table: some levels repeated, the first or last
// sometimes outside the sample range, values reaching past the range.
template <class T>
Chan<T> randomChan(std::mt19937& rng, int kind) {
  Chan<T> c;
  const int n = 2 + int(rng() % (kind == 2 ? 9 : 7));
  if constexpr (std::is_same_v<T, Pxl32f>) {
    std::uniform_real_distribution<float> lv(-60.f, 60.f), vv(-1000.f, 1000.f);
    for (int i = 0; i < n; ++i) c.levels.push_back(std::round(lv(rng) * 4) / 4), c.values.push_back(vv(rng));
  } else {
    const long lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    const long span = hi - lo;
    std::uniform_int_distribution<long> lv(lo - span / 16, hi + span / 16), vv(lo - span / 4, hi + span / 4);
    for (int i = 0; i < n; ++i) c.levels.push_back(Pxl32s(lv(rng))), c.values.push_back(Pxl32s(vv(rng)));
  }
  std::sort(c.levels.begin(), c.levels.end());
  if (n > 3 && rng() % 3 == 0) c.levels[1 + rng() % (n - 2)] = c.levels[1 + rng() % (n - 2)], std::sort(c.levels.begin(), c.levels.end());
  return c;
}

template <class T>
void fillImage(TestImage& img, std::mt19937& rng, int samples) {
  for (int y = 0; y < img.height(); ++y) {
    T* r = img.at<T>(y);
    for (int i = 0; i < samples; ++i) {
      if constexpr (std::is_same_v<T, Pxl32f>) {
        const unsigned u = rng() % 50;
        r[i] = u == 0 ? std::nanf("") : std::round(std::uniform_real_distribution<float>(-70.f, 70.f)(rng) * 8) / 8;
      } else {
        r[i] = T(rng());
      }
    }
  }
}

template <class T>
::testing::AssertionResult sampleMatches(int kind, const Chan<T>& c, T s, T got) {
  if constexpr (std::is_same_v<T, Pxl32f>) {
    float tol;
    const float want = lutref::rule32f(kind, c, s, &tol);
    if (std::isnan(want) ? std::isnan(got) : std::fabs(got - want) <= tol) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "sample " << s << " gives " << got << ", expected " << want;
  } else {
    long long alt;
    const long long want = lutref::ruleInt(kind, c, s, &alt);
    if (got == want || got == alt) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "sample " << long(s) << " gives " << long(got) << ", expected " << want;
  }
}

template <class T, std::size_t N>
void checkFamily(const Entry<T> (&table)[N], std::uint32_t seed) {
  std::mt19937 rng(seed);
  // 16-bit C1 searches up to 6400 pixels and C3 up to 4096, then maps.
  const PxlSize sizes[] = {{1, 1}, {13, 5}, {80, 80}, {81, 80}, {64, 64}, {65, 64}, {37, 3}};
  for (const Entry<T>& e : table) {
    for (const PxlSize roi : sizes) {
      for (bool inplace : {false, true}) {
        SCOPED_TRACE(std::string(e.name) + " kind " + std::to_string(e.kind) + " " + std::to_string(roi.width) + "x" +
                     std::to_string(roi.height) + (inplace ? " in place" : ""));
        Chan<T> ch[4];
        const V<T>* vals[4];
        const V<T>* lvls[4];
        int ns[4];
        for (int c = 0; c < e.P; ++c) {
          ch[c] = randomChan<T>(rng, e.kind);
          vals[c] = ch[c].values.data(), lvls[c] = ch[c].levels.data(), ns[c] = ch[c].n();
        }
        const int px = int(sizeof(T)) * e.C;
        TestImage src(roi.width, roi.height, px, 8, 8, Place::Back, seed);
        TestImage dst(roi.width, roi.height, px, 4, 12, Place::Front, seed + 1);
        fillImage<T>(src, rng, roi.width * e.C);
        fillImage<T>(dst, rng, roi.width * e.C);
        TestImage& out = inplace ? src : dst;
        std::vector<std::vector<T>> in(roi.height), before(roi.height);
        for (int y = 0; y < roi.height; ++y) {
          in[y].assign(src.at<T>(y), src.at<T>(y) + roi.width * e.C);
          before[y].assign(out.at<T>(y), out.at<T>(y) + roi.width * e.C);
        }
        const auto snap = out.snapshot();
        const PxlStatus st = inplace ? e.ip(src.at<T>(0), src.step(), roi, vals, lvls, ns)
                                     : e.oop(src.at<T>(0), src.step(), dst.at<T>(0), dst.step(), roi, vals, lvls, ns);
        ASSERT_EQ(st, pxlStsOk);
        ASSERT_TRUE(out.outsideUnchanged(snap));
        for (int y = 0; y < roi.height; ++y)
          for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < e.C; ++c) {
              const T got = out.at<T>(y)[x * e.C + c];
              if (c >= e.P) {  // AC4 alpha: what dst held
                ASSERT_EQ(std::memcmp(&got, &before[y][x * e.C + c], sizeof(T)), 0) << "alpha at " << x << "," << y;
                continue;
              }
              ASSERT_TRUE(sampleMatches<T>(e.kind, ch[c], in[y][x * e.C + c], got)) << "at " << x << "," << y << " channel " << c;
            }
      }
    }
  }
}

TEST(Lut, Every8uMemberFollowsItsRule) { checkFamily(k8u, 101); }
TEST(Lut, Every16sMemberFollowsItsRule) { checkFamily(k16s, 202); }
TEST(Lut, Every16uMemberFollowsItsRule) { checkFamily(k16u, 303); }
TEST(Lut, Every32fMemberFollowsItsRuleNaNIncluded) { checkFamily(k32f, 404); }

// Levels in any order: the statement only fixes that samples below the
// first level or at or above the last pass unchanged, and that the call
// stays inside its images.
TEST(Lut, UnsortedLevelsKeepTheIdentityRunsAndTheRoi) {
  std::mt19937 rng(7);
  for (const auto& e : k16u) {
    for (int trial = 0; trial < 4; ++trial) {
      Chan<Pxl16u> ch[4];
      const int* vals[4];
      const int* lvls[4];
      int ns[4];
      for (int c = 0; c < e.P; ++c) {
        ch[c] = randomChan<Pxl16u>(rng, e.kind);
        std::shuffle(ch[c].levels.begin(), ch[c].levels.end(), rng);
        vals[c] = ch[c].values.data(), lvls[c] = ch[c].levels.data(), ns[c] = ch[c].n();
      }
      const PxlSize roi{trial == 0 ? 90 : 17, trial == 0 ? 80 : 3};
      TestImage src(roi.width, roi.height, 2 * e.C, 2, 6, Place::Back, 3);
      TestImage dst(roi.width, roi.height, 2 * e.C, 6, 2, Place::Back, 4);
      fillImage<Pxl16u>(src, rng, roi.width * e.C);
      const auto snap = dst.snapshot();
      ASSERT_EQ(e.oop(src.at<Pxl16u>(0), src.step(), dst.at<Pxl16u>(0), dst.step(), roi, vals, lvls, ns), pxlStsOk);
      ASSERT_TRUE(dst.outsideUnchanged(snap));
      for (int y = 0; y < roi.height; ++y)
        for (int i = 0; i < roi.width * e.C; ++i) {
          const int c = i % e.C;
          if (c >= e.P) continue;
          const Pxl16u s = src.at<Pxl16u>(y)[i];
          if (s < ch[c].levels.front() || s >= ch[c].levels.back()) {
            ASSERT_EQ(dst.at<Pxl16u>(y)[i], s) << e.name;
          }
        }
    }
  }
}

}  // namespace
