// Compare, CompareC and the tolerance forms against a plain statement of
// each relation: every member and relation, samples that are often equal,
// NaN in 32f, rows of every length around the register blocks and odd
// offsets; then the check order with two faults at once, and an unknown
// relation that writes nothing.
#include <gtest/gtest.h>

#include <cmath>
#include <array>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

enum Kind { Images, Const, Eps, EpsConst };

struct Args {
  const void* src1;
  int src1Step;
  const void* src2;  // the second image, or the constants (C1: the first)
  int src2Step;
  Pxl8u* dst;
  int dstStep;
  PxlSize roi;
  Pxl32s rel;
  Pxl32f eps;
};

struct Entry {
  Kind kind;
  const char* name;
  int channels, used, bytes;
  bool isFloat;
  PxlStatus (*call)(const Args&);
};

#define S1(T) static_cast<const T*>(a.src1), a.src1Step
#define ENTRY_IMG(fn, T, ch, used, last)                                                                         \
  {Images, #fn, ch, used, sizeof(T), std::is_floating_point<T>::value, [](const Args& a) {                       \
     return fn(S1(T), static_cast<const T*>(a.src2), a.src2Step, a.dst, a.dstStep, a.roi, a.last);               \
   }}
#define ENTRY_C1(kind, fn, T, last)                                                                              \
  {kind, #fn, 1, 1, sizeof(T), std::is_floating_point<T>::value, [](const Args& a) {                             \
     return fn(S1(T), *static_cast<const T*>(a.src2), a.dst, a.dstStep, a.roi, a.last);                          \
   }}
#define ENTRY_CN(kind, fn, T, ch, used, last)                                                                    \
  {kind, #fn, ch, used, sizeof(T), std::is_floating_point<T>::value, [](const Args& a) {                         \
     return fn(S1(T), static_cast<const T*>(a.src2), a.dst, a.dstStep, a.roi, a.last);                           \
   }}
#define CMP(tc, T)                                                                                               \
  ENTRY_IMG(pxliCompare_##tc##_C1R, T, 1, 1, rel), ENTRY_IMG(pxliCompare_##tc##_C3R, T, 3, 3, rel),              \
      ENTRY_IMG(pxliCompare_##tc##_C4R, T, 4, 4, rel), ENTRY_IMG(pxliCompare_##tc##_AC4R, T, 4, 3, rel),         \
      ENTRY_C1(Const, pxliCompareC_##tc##_C1R, T, rel), ENTRY_CN(Const, pxliCompareC_##tc##_C3R, T, 3, 3, rel),  \
      ENTRY_CN(Const, pxliCompareC_##tc##_C4R, T, 4, 4, rel), ENTRY_CN(Const, pxliCompareC_##tc##_AC4R, T, 4, 3, rel)

const Entry kEntries[] = {
    CMP(8u, Pxl8u), CMP(16s, Pxl16s), CMP(32f, Pxl32f),
    {Eps, "pxliCompareEqualEps_32f_C1R", 1, 1, 4, true,
     [](const Args& a) { return pxliCompareEqualEps_32f_C1R(S1(Pxl32f), static_cast<const Pxl32f*>(a.src2), a.src2Step, a.dst, a.dstStep, a.roi, a.eps); }},
    {Eps, "pxliCompareEqualEps_32f_C3R", 3, 3, 4, true,
     [](const Args& a) { return pxliCompareEqualEps_32f_C3R(S1(Pxl32f), static_cast<const Pxl32f*>(a.src2), a.src2Step, a.dst, a.dstStep, a.roi, a.eps); }},
    {Eps, "pxliCompareEqualEps_32f_C4R", 4, 4, 4, true,
     [](const Args& a) { return pxliCompareEqualEps_32f_C4R(S1(Pxl32f), static_cast<const Pxl32f*>(a.src2), a.src2Step, a.dst, a.dstStep, a.roi, a.eps); }},
    {Eps, "pxliCompareEqualEps_32f_AC4R", 4, 3, 4, true,
     [](const Args& a) { return pxliCompareEqualEps_32f_AC4R(S1(Pxl32f), static_cast<const Pxl32f*>(a.src2), a.src2Step, a.dst, a.dstStep, a.roi, a.eps); }},
    ENTRY_C1(EpsConst, pxliCompareEqualEpsC_32f_C1R, Pxl32f, eps),
    ENTRY_CN(EpsConst, pxliCompareEqualEpsC_32f_C3R, Pxl32f, 3, 3, eps),
    ENTRY_CN(EpsConst, pxliCompareEqualEpsC_32f_C4R, Pxl32f, 4, 4, eps),
    ENTRY_CN(EpsConst, pxliCompareEqualEpsC_32f_AC4R, Pxl32f, 4, 3, eps),
};

double get(const std::uint8_t* p, const Entry& e) {
  if (e.isFloat) { float f; std::memcpy(&f, p, 4); return f; }
  if (e.bytes == 1) return *p;
  std::int16_t v; std::memcpy(&v, p, 2); return v;
}
void put(std::uint8_t* p, double v, const Entry& e) {
  if (e.isFloat) { const float f = float(v); std::memcpy(p, &f, 4); return; }
  if (e.bytes == 1) { *p = static_cast<std::uint8_t>(v); return; }
  const std::int16_t s = static_cast<std::int16_t>(v); std::memcpy(p, &s, 2);
}

// One channel: a of the first source, b of the second or the constant.
bool holds(const Entry& e, int rel, double a, double b, float eps) {
  const bool nan = std::isnan(a) || std::isnan(b);
  if (e.kind == Eps || e.kind == EpsConst) return !nan && std::fabs(float(float(a) - float(b))) <= eps;
  // Against a constant, >= and > are "not <" and "not <=": NaN holds.
  if (nan) return e.kind == Const && rel >= 3;
  switch (rel) {
    case 0: return a < b;
    case 1: return a <= b;
    case 2: return a == b;
    case 3: return a >= b;
    default: return a > b;
  }
}

// Samples from a small set, so that equality and near-equality are common.
void fillSamples(TestImage& im, const Entry& e, std::mt19937& rng, int channels) {
  im.fillRandom(rng);
  for (int y = 0; y < im.height(); ++y)
    for (int i = 0; i < im.width() * channels; ++i) {
      std::uint8_t* p = im.row(y) + i * e.bytes;
      const int k = int(rng() % 9);
      double v = e.isFloat ? (k - 4) * 0.25 : e.bytes == 1 ? 120 + k : k - 4;
      if (k == 8 && !e.isFloat) v = e.bytes == 1 ? 255 : -32768;
      if (k == 8 && e.isFloat) v = rng() % 2 ? std::nan("") : 1e30;
      put(p, v, e);
    }
}

void runTrial(const Entry& e, int width, int height, int rel, std::mt19937& rng) {
  const int px = e.channels * e.bytes;
  // A third of the trials have gapless images, which are walked as one row.
  const bool tight = rng() % 3 == 0;
  auto pad = [&](int unit) { return tight ? 0 : int(rng() % 7) * unit; };
  auto place = [&] { return rng() % 2 ? Place::Back : Place::Front; };
  TestImage s1(width, height, px, pad(e.bytes), pad(e.bytes), place(), rng());
  const bool pair = e.kind == Images || e.kind == Eps;
  TestImage s2(pair ? width : 4, pair ? height : 1, pair ? px : e.bytes, pad(e.bytes), pad(e.bytes), place(), rng());
  TestImage d(width, height, 1, pad(1), pad(1), place(), rng());
  fillSamples(s1, e, rng, e.channels);
  fillSamples(s2, e, rng, pair ? e.channels : 1);
  const float eps = std::array<float, 4>{0.f, 0.25f, 0.3f, 1e31f}[rng() % 4];

  std::vector<std::vector<std::uint8_t>> expect(height);
  for (int y = 0; y < height; ++y) {
    expect[y].assign(d.row(y), d.row(y) + width);
    if (rel < 0 || rel > 4) continue;
    for (int x = 0; x < width; ++x) {
      bool all = true;
      for (int c = 0; c < e.used; ++c) {
        const int off = (x * e.channels + c) * e.bytes;
        const double a = get(s1.row(y) + off, e);
        const double b = get(pair ? s2.row(y) + off : s2.row(0) + c * e.bytes, e);
        all = all && holds(e, rel, a, b, eps);
      }
      expect[y][x] = all ? 255 : 0;
    }
  }
  const auto b1 = s1.snapshot(), b2 = s2.snapshot(), bd = d.snapshot();
  Args a{s1.roi(), s1.step(), s2.roi(), s2.step(), d.roi(), d.step(), {width, height}, rel, eps};
  ASSERT_EQ(e.call(a), pxlStsOk) << e.name;
  for (int y = 0; y < height; ++y)
    ASSERT_EQ(0, std::memcmp(expect[y].data(), d.row(y), width))
        << e.name << " relation " << rel << " eps " << eps << " row " << y << " width " << width;
  ASSERT_TRUE(d.outsideUnchanged(bd)) << e.name;
  ASSERT_TRUE(s1.unchanged(b1) && s2.unchanged(b2)) << e.name << " wrote a source";
}

TEST(Compare, EveryMemberAndRelationAtEveryLengthWithNaN) {
  std::mt19937 rng(4201);
  for (const Entry& e : kEntries) {
    const bool eps = e.kind == Eps || e.kind == EpsConst;
    for (int rel : eps ? std::vector<int>{0} : std::vector<int>{0, 1, 2, 3, 4, 5, -1})
      for (int w : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64 + int(rng() % 64)})
        for (int rep = 0; rep < (eps ? 4 : 1); ++rep) runTrial(e, w, 1 + int(rng() % 3), rel, rng);
    if (HasFatalFailure()) return;
  }
  EXPECT_EQ(sizeof kEntries / sizeof kEntries[0], 32u);
}

// Masks of 8 MiB or more from byte images are written with streaming stores
// after a scalar run up to a register boundary: the same bytes.
TEST(Compare, LargeMasksGiveTheSameBytes) {
  std::mt19937 rng(4202);
  int ran = 0;
  for (const Entry& e : kEntries)
    if (std::string(e.name) == "pxliCompare_8u_C1R" || std::string(e.name) == "pxliCompareC_8u_C1R") {
      runTrial(e, 4099, 2050, int(rng() % 5), rng);
      ++ran;
    }
  EXPECT_EQ(ran, 2);
}

struct Fault {
  const char* what;
  void (*apply)(Args&);
  PxlStatus status;
};

TEST(Compare, EveryMemberReportsTheFirstOfTwoFaultsAndWritesNothing) {
  // In the order of the checks; an unknown relation is last and no error.
  const std::vector<Fault> ladder = {
      {"null src1", [](Args& a) { a.src1 = nullptr; }, pxlStsNullPtr},
      {"null src2 or value", [](Args& a) { a.src2 = nullptr; }, pxlStsNullPtr},
      {"null dst", [](Args& a) { a.dst = nullptr; }, pxlStsNullPtr},
      {"src1 step 0", [](Args& a) { a.src1Step = 0; }, pxlStsStep},
      {"dst step -1", [](Args& a) { a.dstStep = -1; }, pxlStsStep},
      {"width 0", [](Args& a) { a.roi.width = 0; }, pxlStsSize},
      {"height -1", [](Args& a) { a.roi.height = -1; }, pxlStsSize},
      {"eps -0.5", [](Args& a) { a.eps = -0.5f; }, pxlStsEpsilon},
      {"eps NaN", [](Args& a) { a.eps = std::nanf(""); }, pxlStsEpsilon},
      {"relation 5", [](Args& a) { a.rel = 5; }, pxlStsOk},
  };
  int pairs = 0;
  for (const Entry& e : kEntries) {
    const bool eps = e.kind == Eps || e.kind == EpsConst;
    TestImage s1(8, 3, e.channels * e.bytes, e.bytes, 2 * e.bytes, Place::Back, 1),
        s2(8, 3, e.channels * e.bytes, 3 * e.bytes, 0, Place::Front, 2),
        d(8, 3, 1, 1, 3, Place::Back, 3);
    for (std::size_t i = 0; i < ladder.size(); ++i)
      for (std::size_t j = i; j < ladder.size(); ++j) {
        const bool epsFault = ladder[i].status == pxlStsEpsilon || ladder[j].status == pxlStsEpsilon;
        if (epsFault && !eps) continue;  // no eps to look at
        const bool byValue = e.channels == 1 && (e.kind == Const || e.kind == EpsConst);
        if (byValue && (i == 1 || j == 1)) continue;  // a scalar constant cannot be null
        Args a{s1.roi(), s1.step(), s2.roi(), s2.step(), d.roi(), d.step(), {8, 3}, 2, 0.5f};
        ladder[i].apply(a);
        ladder[j].apply(a);
        const auto b1 = s1.snapshot(), b2 = s2.snapshot(), bd = d.snapshot();
        EXPECT_EQ(e.call(a), ladder[i].status) << e.name << ": " << ladder[i].what << " + " << ladder[j].what;
        const bool wrote = !(s1.unchanged(b1) && s2.unchanged(b2) && d.unchanged(bd));
        // The tolerance forms have no relation: "relation 5" alone is a good call.
        if (!(eps && i == ladder.size() - 1)) {
          EXPECT_FALSE(wrote) << e.name << " wrote on " << ladder[i].what;
        }
        ++pairs;
      }
  }
  EXPECT_GT(pairs, 1200);
}

TEST(Compare, TheNamedCases) {
  TestImage a(5, 2, 3, 1, 0, Place::Back, 5), d(5, 2, 1, 0, 0, Place::Front, 6);
  for (int rel = 0; rel <= 4; ++rel) {
    ASSERT_EQ(pxliCompare_8u_C3R(a.roi(), a.step(), a.roi(), a.step(), d.roi(), d.step(), {5, 2}, rel), pxlStsOk);
    for (std::uint8_t v : d.roiBytes()) EXPECT_EQ(v, rel == 1 || rel == 2 || rel == 3 ? 255 : 0) << rel;
  }
  // Equal in two channels, different in the third.
  const Pxl8u p[3] = {1, 2, 3}, q[3] = {1, 2, 4};
  Pxl8u m = 7;
  ASSERT_EQ(pxliCompare_8u_C3R(p, 3, q, 3, &m, 1, {1, 1}, pxlRelEqual), pxlStsOk);
  EXPECT_EQ(m, 0);
  const float nan = std::nanf("");
  ASSERT_EQ(pxliCompareC_32f_C1R(&nan, 4, 1.f, &m, 1, {1, 1}, pxlRelGreaterEqual), pxlStsOk);
  EXPECT_EQ(m, 255);
  ASSERT_EQ(pxliCompareC_32f_C1R(&nan, 4, 1.f, &m, 1, {1, 1}, pxlRelEqual), pxlStsOk);
  EXPECT_EQ(m, 0);
  // eps 0 is exact equality; AC4 ignores alpha.
  const float f[8] = {1, 2, 3, 100, 1, 2, 3.0000002f, 5};
  ASSERT_EQ(pxliCompareEqualEpsC_32f_AC4R(f, 16, f, &m, 1, {1, 1}, 0.f), pxlStsOk);
  EXPECT_EQ(m, 255);
  ASSERT_EQ(pxliCompareEqualEps_32f_AC4R(f, 32, f + 4, 32, &m, 1, {1, 1}, 0.f), pxlStsOk);
  EXPECT_EQ(m, 0);
  EXPECT_EQ(pxliCompareEqualEps_32f_AC4R(f, 32, f + 4, 32, &m, 1, {1, 1}, -0.1f), pxlStsEpsilon);
}

}  // namespace
