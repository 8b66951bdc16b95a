// Threshold in every form against a plain statement of its rule: samples
// drawn around the limits (equality is frequent), NaN in every 32f form,
// rows of every length around the register blocks, odd offsets, alpha of
// AC4, in place and not; then every member's check order with two faults
// at once, and nothing written on any failure.
#include <gtest/gtest.h>

#include <cmath>
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

enum Form { Clip, ClipGT, ClipLT, Val, GTVal, LTVal, Both };
enum Layout { C1 = 1, C3 = 3, C4 = 4, AC4 = 5 };

// Limits are arrays of four samples in every layout; C1 passes the first.
struct Args {
  const void* src;
  int srcStep;
  void* dst;
  int dstStep;
  PxlSize roi;
  const void* lim[4];  // threshold, value (or tLT, vLT, tGT, vGT)
  Pxl32s rel;
};

struct Entry {
  Form form;
  const char* name;
  Layout layout;
  int bytes;
  bool isFloat, inPlace;
  PxlStatus (*call)(const Args&);
};

#define ONE(T, i) (*static_cast<const T*>(a.lim[i]))
#define ARR(T, i) (static_cast<const T*>(a.lim[i]))
#define X_CLIP(T, A) , A(T, 0), a.rel
#define X_T(T, A) , A(T, 0)
#define X_VAL(T, A) , A(T, 0), A(T, 1), a.rel
#define X_TV(T, A) , A(T, 0), A(T, 1)
#define X_BOTH(T, A) , A(T, 0), A(T, 1), A(T, 2), A(T, 3)
#define ENTRY(form, fn, T, lay, A, X)                                                                      \
  {form, #fn "R", lay, sizeof(T), std::is_floating_point<T>::value, false, [](const Args& a) {              \
     return fn##R(static_cast<const T*>(a.src), a.srcStep, static_cast<T*>(a.dst), a.dstStep, a.roi X(T, A)); \
   }},                                                                                                      \
      {form, #fn "IR", lay, sizeof(T), std::is_floating_point<T>::value, true,                              \
       [](const Args& a) { return fn##IR(static_cast<T*>(a.dst), a.dstStep, a.roi X(T, A)); }}
#define LAYS3(form, stem, tc, T, X) \
  ENTRY(form, stem##_##tc##_C1, T, C1, ONE, X), ENTRY(form, stem##_##tc##_C3, T, C3, ARR, X), \
      ENTRY(form, stem##_##tc##_AC4, T, AC4, ARR, X)
#define FORMS(tc, T)                                                                                         \
  LAYS3(Clip, pxliThreshold, tc, T, X_CLIP), LAYS3(ClipGT, pxliThreshold_GT, tc, T, X_T),                   \
      LAYS3(ClipLT, pxliThreshold_LT, tc, T, X_T), LAYS3(Val, pxliThreshold_Val, tc, T, X_VAL),             \
      LAYS3(GTVal, pxliThreshold_GTVal, tc, T, X_TV), ENTRY(GTVal, pxliThreshold_GTVal_##tc##_C4, T, C4, ARR, X_TV), \
      LAYS3(LTVal, pxliThreshold_LTVal, tc, T, X_TV), ENTRY(LTVal, pxliThreshold_LTVal_##tc##_C4, T, C4, ARR, X_TV), \
      LAYS3(Both, pxliThreshold_LTValGTVal, tc, T, X_BOTH)

const Entry kEntries[] = {FORMS(8u, Pxl8u), FORMS(16s, Pxl16s), FORMS(32f, Pxl32f)};

int channelsOf(Layout l) { return l == C1 ? 1 : l == C3 ? 3 : 4; }
int usedOf(Layout l) { return l == AC4 ? 3 : channelsOf(l); }

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

// The rule of each form for one sample; lim = threshold, value (or tLT, vLT,
// tGT, vGT) of the sample's channel. A NaN sample answers per the table of
// the family, stated here on its own.
double rule(Form f, int rel, double s, const double* lim) {
  const bool nan = std::isnan(s);
  const double t = lim[0], v = lim[1];
  switch (f) {
    case ClipGT: rel = 4; [[fallthrough]];
    case ClipLT: if (f == ClipLT) rel = 0; [[fallthrough]];
    case Clip:
      if (nan) return t;
      return rel == 4 ? (s > t ? t : s) : (s < t ? t : s);
    case GTVal: rel = 4; [[fallthrough]];
    case LTVal: if (f == LTVal) rel = 0; [[fallthrough]];
    case Val:
      if (nan) return rel == 4 ? s : v;
      return rel == 4 ? (s > t ? v : s) : (s < t ? v : s);
    case Both:
      if (nan) return lim[1];
      return s < lim[0] ? lim[1] : s > lim[2] ? lim[3] : s;
  }
  return 0;
}

struct Limits {
  std::vector<std::uint8_t> bytes[4];
  double val[4][4];  // [limit][channel]
};

// Limits per channel; with Both, thresholdGT >= thresholdLT (equal at times).
Limits makeLimits(const Entry& e, std::mt19937& rng) {
  Limits L;
  auto draw = [&]() -> double {
    if (e.isFloat) return std::ldexp(double(int(rng() % 201) - 100), -int(rng() % 4));
    return e.bytes == 1 ? double(rng() % 256) : double(int(rng() % 65536) - 32768);
  };
  for (int c = 0; c < 4; ++c) {
    for (int k = 0; k < 4; ++k) L.val[k][c] = draw();
    if (L.val[0][c] > L.val[2][c]) std::swap(L.val[0][c], L.val[2][c]);
    if (rng() % 4 == 0) L.val[2][c] = L.val[0][c];
  }
  for (int k = 0; k < 4; ++k) {
    L.bytes[k].resize(4 * e.bytes);
    for (int c = 0; c < 4; ++c) put(L.bytes[k].data() + c * e.bytes, L.val[k][c], e);
  }
  return L;
}

// Samples around the limits, the extremes, and NaN for 32f.
void fillSamples(TestImage& im, const Entry& e, const Limits& L, std::mt19937& rng) {
  im.fillRandom(rng);
  const int ch = channelsOf(e.layout);
  for (int y = 0; y < im.height(); ++y)
    for (int x = 0; x < im.width(); ++x)
      for (int c = 0; c < ch; ++c) {
        std::uint8_t* p = im.row(y) + (x * ch + c) * e.bytes;
        const double lim = L.val[(rng() % 2) * 2][c];
        const unsigned k = rng() % 8;
        double v = k < 2 ? lim : k == 2 ? lim - 1 : k == 3 ? lim + 1 : get(p, e);
        if (!e.isFloat) v = std::fmin(std::fmax(v, e.bytes == 1 ? 0 : -32768), e.bytes == 1 ? 255 : 32767);
        if (e.isFloat && k == 7) v = std::nan("");
        if (!(e.isFloat && k >= 4 && k < 7)) put(p, v, e);
        if (e.isFloat && k >= 4 && k < 7) put(p, double(int(rng() % 2001) - 1000) / 8, e);
      }
}

void runTrial(const Entry& e, int width, int height, std::mt19937& rng) {
  const int ch = channelsOf(e.layout), px = ch * e.bytes;
  // A third of the trials have gapless images, which are walked as one row.
  const bool tight = rng() % 3 == 0;
  auto pad = [&] { return tight ? 0 : int(rng() % 7) * e.bytes; };
  const Limits L = makeLimits(e, rng);
  auto src = std::make_unique<TestImage>(width, height, px, pad(), pad(), rng() % 2 ? Place::Back : Place::Front, rng());
  auto dstOwn = e.inPlace ? nullptr : std::make_unique<TestImage>(width, height, px, pad(), pad(), Place::Back, rng());
  TestImage* dst = e.inPlace ? src.get() : dstOwn.get();
  fillSamples(*src, e, L, rng);
  const int rel = rng() % 2 ? 4 : 0;

  std::vector<std::vector<std::uint8_t>> expect(height);
  for (int y = 0; y < height; ++y) {
    expect[y].assign(dst->row(y), dst->row(y) + dst->rowBytes());
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < usedOf(e.layout); ++c) {
        const int off = (x * ch + c) * e.bytes;
        const double lim[4] = {L.val[0][c], L.val[1][c], L.val[2][c], L.val[3][c]};
        const double s = get(src->row(y) + off, e);
        const double r = rule(e.form, rel, s, lim);
        if (std::isnan(r))
          std::memcpy(expect[y].data() + off, src->row(y) + off, e.bytes);  // the very NaN of the source
        else
          put(expect[y].data() + off, r, e);
      }
  }
  const auto srcBefore = src->snapshot(), dstBefore = dst->snapshot();
  Args a{src->roi(), src->step(), dst->roi(), dst->step(), {width, height},
         {L.bytes[0].data(), L.bytes[1].data(), L.bytes[2].data(), L.bytes[3].data()}, rel};
  ASSERT_EQ(e.call(a), pxlStsOk) << e.name;
  for (int y = 0; y < height; ++y)
    ASSERT_EQ(0, std::memcmp(expect[y].data(), dst->row(y), dst->rowBytes()))
        << e.name << " relation " << rel << " row " << y << " width " << width;
  ASSERT_TRUE(dst->outsideUnchanged(dstBefore)) << e.name;
  if (!e.inPlace) {
    ASSERT_TRUE(src->unchanged(srcBefore)) << e.name;
  }
}

TEST(Threshold, EveryFormFollowsItsRuleWithNaNEqualityAndAlpha) {
  std::mt19937 rng(4101);
  for (const Entry& e : kEntries) {
    for (int w : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 47, 64 + int(rng() % 64)})
      for (int rep = 0; rep < 3; ++rep) runTrial(e, w, 1 + int(rng() % 3), rng);
    if (HasFatalFailure()) return;
  }
  EXPECT_EQ(sizeof kEntries / sizeof kEntries[0], 138u);
}

// Destinations past the cache's share are written with streaming stores
// after a scalar run up to a register boundary: the same bytes, alpha too.
TEST(Threshold, LargeImagesGiveTheSameBytes) {
  std::mt19937 rng(77);
  const std::pair<const char*, int> big[] = {{"pxliThreshold_8u_AC4IR", 1030},
                                             {"pxliThreshold_Val_32f_C3R", 345},
                                             {"pxliThreshold_LTValGTVal_16s_C1R", 2060},
                                             {"pxliThreshold_GTVal_8u_C4R", 1030}};
  int ran = 0;
  for (const Entry& e : kEntries)
    for (const auto& b : big)
      if (std::string(e.name) == b.first) {
        runTrial(e, 2051, b.second, rng);
        ++ran;
      }
  EXPECT_EQ(ran, 4);
}

// ------------------------------------------------------------ check order

struct Fault {
  const char* what;
  void (*apply)(Args&);
};
const Fault kNullSrc{"null src", [](Args& a) { a.src = nullptr; }};
const Fault kNullDst{"null dst", [](Args& a) { a.dst = nullptr; }};
const Fault kWidth0{"width 0", [](Args& a) { a.roi.width = 0; }};
const Fault kHeightNeg{"height -1", [](Args& a) { a.roi.height = -1; }};
const Fault kStep0{"step 0", [](Args& a) { a.srcStep = 0; a.dstStep = 0; }};
const Fault kNullLimit{"null limit array", [](Args& a) { a.lim[1] = nullptr; a.lim[3] = nullptr; }};
const Fault kRelation2{"relation 2", [](Args& a) { a.rel = 2; }};
const Fault kRelationNeg{"relation -1", [](Args& a) { a.rel = -1; }};
const Fault kNullThreshold{"null threshold", [](Args& a) { a.lim[0] = nullptr; }};

// The faults that apply to a member, in the order it reports them; every
// pair is tried, and the first of the two must be the one reported.
std::vector<std::pair<const Fault*, PxlStatus>> ladder(const Entry& e) {
  std::vector<std::pair<const Fault*, PxlStatus>> l;
  const bool arrays = e.layout != C1;
  if (e.form == Val) l.push_back({&kRelation2, pxlStsCompareOp});
  if (!e.inPlace) l.push_back({&kNullSrc, pxlStsNullPtr});
  l.push_back({&kNullDst, pxlStsNullPtr});
  l.push_back({&kWidth0, pxlStsSize});
  l.push_back({&kHeightNeg, pxlStsSize});
  l.push_back({&kStep0, pxlStsStep});
  if (arrays && e.form != ClipGT && e.form != ClipLT && e.form != Clip)
    l.push_back({&kNullLimit, pxlStsNullPtr});
  if (arrays && (e.form == Clip || e.form == ClipGT || e.form == ClipLT))
    l.push_back({&kNullThreshold, pxlStsNullPtr});
  if (e.form == Clip) l.push_back({&kRelationNeg, pxlStsCompareOp});
  return l;
}

TEST(Threshold, EveryMemberReportsTheFirstOfTwoFaultsAndWritesNothing) {
  std::mt19937 rng(11);
  int pairs = 0;
  for (const Entry& e : kEntries) {
    const int ch = channelsOf(e.layout);
    TestImage src(9, 3, ch * e.bytes, 3 * e.bytes, 2 * e.bytes, Place::Back, 1),
        dstOwn(9, 3, ch * e.bytes, e.bytes, 4 * e.bytes, Place::Front, 2);
    TestImage& dst = e.inPlace ? src : dstOwn;
    Limits L = makeLimits(e, rng);
    const auto l = ladder(e);
    for (std::size_t i = 0; i < l.size(); ++i)
      for (std::size_t j = i; j < l.size(); ++j) {
        Args a{src.roi(), src.step(), dst.roi(), dst.step(), {9, 3},
               {L.bytes[0].data(), L.bytes[1].data(), L.bytes[2].data(), L.bytes[3].data()}, 4};
        l[i].first->apply(a);
        l[j].first->apply(a);
        if (e.inPlace) a.src = a.dst, a.srcStep = a.dstStep;
        const auto bs = src.snapshot(), bd = dst.snapshot();
        EXPECT_EQ(e.call(a), l[i].second) << e.name << ": " << l[i].first->what << " + " << l[j].first->what;
        EXPECT_TRUE(src.unchanged(bs) && dst.unchanged(bd)) << e.name << " wrote on " << l[i].first->what;
        ++pairs;
      }
  }
  EXPECT_GT(pairs, 2400);
}

// ------------------------------------------------------------ the decisions

TEST(Threshold, LimitOrderIsCheckedInEveryChannelBeforeAnythingIsWritten) {
  TestImage im(11, 2, 3, 1, 1, Place::Back, 3);
  const auto before = im.snapshot();
  const Pxl8u lt[3] = {10, 10, 10}, vl[3] = {1, 1, 1}, vg[3] = {2, 2, 2};
  const Pxl8u badLast[3] = {20, 10, 9};  // channels 0 and 1 in order, 2 not
  EXPECT_EQ(pxliThreshold_LTValGTVal_8u_C3IR(im.roi(), im.step(), {11, 2}, lt, vl, badLast, vg), pxlStsThresholdOrder);
  EXPECT_TRUE(im.unchanged(before));
  // The order is the last check: a step or a null array comes first.
  EXPECT_EQ(pxliThreshold_LTValGTVal_8u_C3IR(im.roi(), 0, {11, 2}, lt, vl, badLast, vg), pxlStsStep);
  EXPECT_EQ(pxliThreshold_LTValGTVal_8u_C3IR(im.roi(), im.step(), {11, 2}, lt, nullptr, badLast, vg), pxlStsNullPtr);
  EXPECT_EQ(pxliThreshold_LTValGTVal_8u_C1IR(im.roi(), im.step(), {11, 2}, 10, 1, 9, 2), pxlStsThresholdOrder);
  EXPECT_TRUE(im.unchanged(before));

  // Both limits 10: every sample but 10 is replaced.
  Pxl8u row[5] = {9, 10, 11, 0, 255}, out[5];
  ASSERT_EQ(pxliThreshold_LTValGTVal_8u_C1R(row, 5, out, 5, {5, 1}, 10, 1, 10, 2), pxlStsOk);
  const Pxl8u want[5] = {1, 10, 2, 1, 2};
  EXPECT_EQ(0, std::memcmp(out, want, 5));

  // A NaN limit fails the order check.
  const float f[2] = {1, 2};
  float g[2];
  EXPECT_EQ(pxliThreshold_LTValGTVal_32f_C1R(f, 8, g, 8, {2, 1}, 0.f, 0.f, std::nanf(""), 0.f), pxlStsThresholdOrder);
  EXPECT_EQ(pxliThreshold_LTValGTVal_32f_C1R(f, 8, g, 8, {2, 1}, std::nanf(""), 0.f, 5.f, 0.f), pxlStsThresholdOrder);
}

TEST(Threshold, EqualityAndTheNamedNaNCases) {
  Pxl8u s[3] = {255, 254, 0}, d[3];
  ASSERT_EQ(pxliThreshold_GTVal_8u_C1R(s, 3, d, 3, {3, 1}, 255, 7), pxlStsOk);
  EXPECT_EQ(0, std::memcmp(s, d, 3));  // 255 is never above 255
  ASSERT_EQ(pxliThreshold_LTVal_8u_C1R(s, 3, d, 3, {3, 1}, 0, 7), pxlStsOk);
  EXPECT_EQ(0, std::memcmp(s, d, 3));

  const float nan = std::nanf("");
  float x = nan, r = 0;
  ASSERT_EQ(pxliThreshold_LT_32f_C1R(&x, 4, &r, 4, {1, 1}, 3.f), pxlStsOk);
  EXPECT_EQ(r, 3.f);
  ASSERT_EQ(pxliThreshold_GTVal_32f_C1R(&x, 4, &r, 4, {1, 1}, 3.f, 9.f), pxlStsOk);
  EXPECT_TRUE(std::isnan(r));
  float px4[4] = {nan, nan, nan, nan}, out4[4];
  const float t4[4] = {1, 2, 3, 4}, v4[4] = {5, 6, 7, 8};
  ASSERT_EQ(pxliThreshold_LTVal_32f_C4R(px4, 16, out4, 16, {1, 1}, t4, v4), pxlStsOk);
  EXPECT_EQ(0, std::memcmp(out4, v4, 16));
  float px3[3] = {nan, 1, nan}, out3[3];
  ASSERT_EQ(pxliThreshold_LTValGTVal_32f_C3R(px3, 12, out3, 12, {1, 1}, t4, v4, v4, t4), pxlStsOk);
  EXPECT_EQ(out3[0], 5.f);
  EXPECT_EQ(out3[1], 6.f);  // 1 < 2: below the lower limit
  EXPECT_EQ(out3[2], 7.f);

  // Relation 2 after every other check passed, and with a null source.
  EXPECT_EQ(pxliThreshold_8u_C1R(s, 3, d, 3, {3, 1}, 9, 2), pxlStsCompareOp);
  EXPECT_EQ(pxliThreshold_8u_C1R(nullptr, 3, d, 3, {3, 1}, 9, 2), pxlStsNullPtr);
  EXPECT_EQ(pxliThreshold_Val_8u_C1R(nullptr, 3, d, 3, {3, 1}, 9, 1, 2), pxlStsCompareOp);
}

}  // namespace
