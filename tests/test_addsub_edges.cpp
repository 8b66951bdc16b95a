// The corners of the scaled arithmetic that a random test may not hit:
// limits, ties, operand order, shortcuts and their checks, zero steps,
// alpha, the gate's threshold and complex extremes.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <random>
#include <vector>

#include "frame/gates.h"
#include "harness/guard.h"
#include "pxlcore.h"
#include "pxli.h"
#include "pxls.h"

namespace {

using pxltest::GuardedBuffer;
using pxltest::Place;
using pxltest::TestImage;

template <class T>
T add1(T a, T b, int scale) {
  T d = 0;
  EXPECT_EQ(pxlStsOk, pxliAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, scale));
  return d;
}

TEST(AddSubEdges, EightBitLimitsAndTies) {
  const Pxl8u s255 = 255;
  struct { int scale; int want; } cases[] = {{0, 255}, {1, 255}, {9, 1}, {10, 0}, {-1, 255}};
  for (auto c : cases) EXPECT_EQ(add1<Pxl8u>(s255, s255, c.scale), c.want) << "scale " << c.scale;
  // Ties go to the even neighbour.
  struct { int a; int scale; int want; } ties[] = {{1, 1, 0}, {3, 1, 2}, {5, 1, 2}, {6, 2, 2}, {10, 2, 2}};
  for (auto t : ties) EXPECT_EQ(add1<Pxl8u>(Pxl8u(t.a), 0, t.scale), t.want) << t.a << " scale " << t.scale;
}

TEST(AddSubEdges, SignedTiesAndBound) {
  auto add16 = [](Pxl16s a, int scale) {
    Pxl16s b = 0, d = 7;
    EXPECT_EQ(pxlStsOk, pxliAdd_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, scale));
    return d;
  };
  EXPECT_EQ(add16(-3, 1), -2);
  EXPECT_EQ(add16(-1, 1), 0);
  EXPECT_EQ(add16(0, -16), 0);
  EXPECT_EQ(add16(-1, -16), -32768);
  EXPECT_EQ(add16(1, -16), 32767);
  EXPECT_EQ(add16(1, -15), 32767);   // 1 << 15 saturates
  EXPECT_EQ(add16(-1, -15), -32768);  // exactly representable
}

TEST(AddSubEdges, SubtractsFirstOperandFromSecondAndClampsUnsigned) {
  auto sub8 = [](Pxl8u s1, Pxl8u s2, int scale) {
    Pxl8u d = 77;
    EXPECT_EQ(pxlStsOk, pxliSub_8u_C1RSfs(&s1, 1, &s2, 1, &d, 1, {1, 1}, scale));
    return d;
  };
  for (int scale : {-20, -8, -7, -1, 0, 1, 4, 8, 9}) EXPECT_EQ(sub8(10, 3, scale), 0) << scale;
  EXPECT_EQ(sub8(3, 10, -8), 255);
  EXPECT_EQ(sub8(3, 10, 0), 7);
  EXPECT_EQ(sub8(0, 255, 8), 1);  // 255 / 256 rounds up; 9 is past the limit
  EXPECT_EQ(sub8(0, 255, 9), 0);
  // 16u: a negative difference is clamped before rounding, never wraps.
  Pxl16u a = 5, b = 2, d = 1;
  EXPECT_EQ(pxlStsOk, pxliSub_16u_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, -3));
  EXPECT_EQ(d, 0);
}

TEST(AddSubEdges, ZeroConstantInPlaceReadsNothing) {
  // The pointer leads straight into an inaccessible page: any access faults.
  GuardedBuffer none(0, Place::Back);
  EXPECT_EQ(pxlStsOk, pxliAddC_8u_C1IRSfs(0, none.data(), 16, {4, 4}, 0));
  EXPECT_EQ(pxlStsOk, pxliSubC_16s_C1IRSfs(0, reinterpret_cast<Pxl16s*>(none.data()), 16, {4, 4}, 0));
  EXPECT_EQ(pxlStsSize, pxliAddC_8u_C1IRSfs(0, none.data(), 16, {0, 4}, 0));
  EXPECT_EQ(pxlStsNullPtr, pxliAddC_8u_C1IRSfs(0, nullptr, 16, {4, 4}, 0));
}

TEST(AddSubEdges, ShortcutsToSetCheckTheStep) {
  Pxl8u src[8] = {1, 2, 3, 4, 5, 6, 7, 8}, dst[8];
  std::memset(dst, 0xAA, sizeof dst);
  // Past the limit the member fills with zero through Set, which refuses a
  // zero step and writes nothing.
  EXPECT_EQ(pxlStsStep, pxliAddC_8u_C1RSfs(src, 4, 3, dst, 0, {4, 2}, 10));
  for (Pxl8u v : dst) EXPECT_EQ(v, 0xAA);
  // At scale 0 the same zero step is simply used: every row lands on row 0
  // (with one thread the last row is the one that stays).
  const int saved = threads_omp_of_n_pxl;
  threads_omp_of_n_pxl = 1;
  EXPECT_EQ(pxlStsOk, pxliAddC_8u_C1RSfs(src, 4, 3, dst, 0, {4, 2}, 0));
  threads_omp_of_n_pxl = saved;
  EXPECT_EQ(dst[0], 8);
  EXPECT_EQ(dst[4], 0xAA);
  // AddC 8u far below the limit with a positive constant is Set(255).
  EXPECT_EQ(pxlStsStep, pxliAddC_8u_C1RSfs(src, 4, 1, dst, -1, {4, 2}, -8));
  EXPECT_EQ(pxlStsOk, pxliAddC_8u_C1RSfs(src, 4, 1, dst, 4, {4, 2}, -8));
  for (Pxl8u v : dst) EXPECT_EQ(v, 255);
  // 16u looks at the scale first; Set then does the remaining checks.
  Pxl16u s16[4] = {1, 2, 3, 4}, d16[4] = {9, 9, 9, 9};
  EXPECT_EQ(pxlStsNullPtr, pxliAdd_16u_C1RSfs(s16, 8, s16, 8, nullptr, 8, {4, 1}, 18));
  EXPECT_EQ(pxlStsNullPtr, pxliAdd_16u_C1RSfs(nullptr, 8, s16, 8, d16, 8, {4, 1}, 18));
  EXPECT_EQ(pxlStsSize, pxliAdd_16u_C1RSfs(s16, 8, s16, 8, d16, 8, {0, 1}, 18));
  EXPECT_EQ(pxlStsStep, pxliAdd_16u_C1RSfs(s16, 8, s16, 8, d16, 0, {4, 1}, 18));
  EXPECT_EQ(pxlStsOk, pxliAdd_16u_C1RSfs(s16, 8, s16, 8, d16, 8, {4, 1}, 18));
  for (Pxl16u v : d16) EXPECT_EQ(v, 0);
  EXPECT_EQ(pxlStsOk, pxliAddC_16u_C1RSfs(s16, 8, 1, d16, 8, {4, 1}, -16));
  for (Pxl16u v : d16) EXPECT_EQ(v, 65535);
}

TEST(AddSubEdges, ZeroSourceStepRepeatsTheFirstRow) {
  Pxl8u s1[4] = {1, 2, 3, 4};
  Pxl8u s2[12] = {10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110, 120};
  Pxl8u d[12] = {};
  EXPECT_EQ(pxlStsOk, pxliAdd_8u_C1RSfs(s1, 0, s2, 4, d, 4, {4, 3}, 0));
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 4; ++x) EXPECT_EQ(d[y * 4 + x], s2[y * 4 + x] + s1[x]);
}

TEST(AddSubEdges, FloatAlphaRules) {
  const float negZero = -0.0f;
  std::vector<float> img = {1, 2, 3, negZero, 4, 5, 6, negZero};
  const float v[3] = {1, 1, 1};
  // In place, AddC rewrites alpha as alpha + 0: a negative zero turns positive.
  auto a = img;
  EXPECT_EQ(pxlStsOk, pxliAddC_32f_AC4IR(v, a.data(), 32, {2, 1}));
  EXPECT_FALSE(std::signbit(a[3]));
  EXPECT_EQ(a[0], 2.0f);
  // SubC in place: alpha - 0 keeps the negative zero.
  auto s = img;
  EXPECT_EQ(pxlStsOk, pxliSubC_32f_AC4IR(v, s.data(), 32, {2, 1}));
  EXPECT_TRUE(std::signbit(s[3]));
  // Not in place the alpha of dst is never touched.
  std::vector<float> d(8, 42.0f);
  EXPECT_EQ(pxlStsOk, pxliAddC_32f_AC4R(img.data(), 32, v, d.data(), 32, {2, 1}));
  EXPECT_EQ(d[3], 42.0f);
  EXPECT_EQ(d[7], 42.0f);
  auto i2 = img;
  EXPECT_EQ(pxlStsOk, pxliAdd_32f_AC4IR(img.data(), 32, i2.data(), 32, {2, 1}));
  EXPECT_TRUE(std::signbit(i2[3]));
}

TEST(AddSubEdges, ComplexExtremesSaturatePerPart) {
  Pxl16sc a = {0, -32768}, b = {0, 0}, d = {1, 1};
  EXPECT_EQ(pxlStsOk, pxliSub_16sc_C1RSfs(&a, 4, &b, 4, &d, 4, {1, 1}, 0));
  EXPECT_EQ(d.re, 0);
  EXPECT_EQ(d.im, 32767);  // 0 - (-32768) saturates
  EXPECT_EQ(pxlStsOk, pxliSub_16sc_C1RSfs(&a, 4, &b, 4, &d, 4, {1, 1}, 1));
  EXPECT_EQ(d.im, 16384);
  Pxl16sc v = {-32768, -32768};
  EXPECT_EQ(pxlStsOk, pxlsAddC_16sc_Sfs(&a, v, &d, 1, 0));
  EXPECT_EQ(d.re, -32768);
  EXPECT_EQ(d.im, -32768);
  // Complex members refuse a zero step; real ones use it.
  EXPECT_EQ(pxlStsStep, pxliAdd_16sc_C1RSfs(&a, 0, &b, 4, &d, 4, {1, 1}, 0));
}

TEST(AddSubEdges, TheGateOpensAboveTwenty) {
  const pxl::GateKey addc{pxl::Fam::AddC, pxl::TypeTag::u8, pxl::Lay::C1, true};
  // (80 >> 2) + (15 >> 4) = 20 stays serial; (84 >> 2) + 0 = 21 opens.
  EXPECT_FALSE(pxl::regionOpens(addc, pxl::kPathPos, {15, 80}));
  EXPECT_TRUE(pxl::regionOpens(addc, pxl::kPathPos, {15, 84}));
  EXPECT_FALSE(pxl::regionOpens(addc, pxl::kPathPos, {1, 1}));
  // An ungated path of the same member always opens; a member without a
  // row never does.
  EXPECT_TRUE(pxl::regionOpens(addc, pxl::kPathNeg, {1, 1}));
  const pxl::GateKey add16u{pxl::Fam::Add, pxl::TypeTag::other, pxl::Lay::C1, false};
  EXPECT_FALSE(pxl::regionOpens(add16u, pxl::kPathZero, {4096, 4096}));
  const pxl::GateKey add32f{pxl::Fam::Add, pxl::TypeTag::f32, pxl::Lay::C1, false};
  EXPECT_FALSE(pxl::regionOpens(add32f, pxl::kPathSingle, {3, 80}));  // 20 + 0
  EXPECT_TRUE(pxl::regionOpens(add32f, pxl::kPathSingle, {4, 80}));   // 20 + 1
}

}  // namespace

// Destinations of 8 MiB or more are written around the cache, after a
// cached run up to a register boundary: the same bytes as the same rows one
// call at a time, on rows that start off the boundary, with 1 or 2
// threads.
TEST(AddSubEdges, LargeImagesStreamTheSameBytes) {
  using Call = PxlStatus (*)(const void*, int, const void*, int, void*, int, PxlSize);
  struct Case {
    const char* name;
    int bytes;
    Call call;
  };
#define PXL_BIN(T, fn, ...)                                                                                   \
  [](const void* a, int as, const void* b, int bs, void* d, int ds, PxlSize r) {                              \
    return fn(static_cast<const T*>(a), as, static_cast<const T*>(b), bs, static_cast<T*>(d), ds, r __VA_ARGS__); \
  }
#define PXL_CONST(T, fn, v, ...)                                                                       \
  [](const void* a, int as, const void*, int, void* d, int ds, PxlSize r) {                           \
    return fn(static_cast<const T*>(a), as, v, static_cast<T*>(d), ds, r __VA_ARGS__);                 \
  }
  const Case cases[] = {
      {"Add_8u scale 0", 1, PXL_BIN(Pxl8u, pxliAdd_8u_C1RSfs, , 0)},
      {"Add_8u scale 1", 1, PXL_BIN(Pxl8u, pxliAdd_8u_C1RSfs, , 1)},
      {"Sub_8u scale 3", 1, PXL_BIN(Pxl8u, pxliSub_8u_C1RSfs, , 3)},
      {"AddC_8u scale 0", 1, PXL_CONST(Pxl8u, pxliAddC_8u_C1RSfs, 77, , 0)},
      {"Sub_16s scale -2", 2, PXL_BIN(Pxl16s, pxliSub_16s_C1RSfs, , -2)},
      {"Add_32f", 4, PXL_BIN(Pxl32f, pxliAdd_32f_C1R)},
      {"MulC_32f", 4, PXL_CONST(Pxl32f, pxliMulC_32f_C1R, 1.5f)},
  };
#undef PXL_BIN
#undef PXL_CONST
  std::mt19937 rng(8);
  const int saved = threads_omp_of_n_pxl;
  for (const Case& c : cases) {
    // A little over 8 MiB, rows starting one sample past a boundary.
    const int w = 4099 / c.bytes, h = 2050;
    TestImage a(w, h, c.bytes, c.bytes, 0, Place::Back, rng()), b(w, h, c.bytes, 0, 3 * c.bytes, Place::Front, rng());
    if (c.bytes == 4)  // finite floats: random bits would make NaN payloads the subject
      for (TestImage* im : {&a, &b})
        for (int y = 0; y < h; ++y)
          for (int x = 0; x < w; ++x) im->at<float>(y)[x] = float(int(rng() % 20001) - 10000) / 16;
    TestImage rows(w, h, c.bytes, c.bytes, c.bytes, Place::Back, 5);
    for (int y = 0; y < h; ++y)
      ASSERT_EQ(pxlStsOk, c.call(a.row(y), a.step(), b.row(y), b.step(), rows.row(y), rows.step(), {w, 1})) << c.name;
    for (int threads : {1, 2}) {
      threads_omp_of_n_pxl = threads;
      TestImage whole(w, h, c.bytes, c.bytes, c.bytes, Place::Back, 5);
      const auto before = whole.snapshot();
      EXPECT_EQ(pxlStsOk, c.call(a.row(0), a.step(), b.row(0), b.step(), whole.row(0), whole.step(), {w, h}));
      EXPECT_TRUE(whole.roiBytes() == rows.roiBytes()) << c.name << ", " << threads << " threads";
      EXPECT_TRUE(whole.outsideUnchanged(before)) << c.name;
    }
  }
  threads_omp_of_n_pxl = saved;
}
