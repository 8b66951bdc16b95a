// Allocators, the version record and the companion's control-state helpers.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <xmmintrin.h>

#include "frame/fpstate.h"
#include "pxlcore.h"
#include "pxli.h"
#include "pxls.h"

namespace {

bool aligned32(const void* p) { return reinterpret_cast<std::uintptr_t>(p) % 32 == 0; }

TEST(Alloc, VectorBlocksAreAlignedAndUsable) {
  EXPECT_EQ(pxlsMalloc_8u(0), nullptr);
  EXPECT_EQ(pxlsMalloc_32f(-1), nullptr);
  for (int n : {1, 2, 31, 32, 33, 1000, 100000}) {
    Pxl8u* p = pxlsMalloc_8u(n);
    ASSERT_NE(p, nullptr);
    EXPECT_TRUE(aligned32(p));
    std::memset(p, 0x5A, n);  // the whole length belongs to the caller
    pxlsFree(p);
    Pxl64fc* c = pxlsMalloc_64fc(n);
    ASSERT_NE(c, nullptr);
    EXPECT_TRUE(aligned32(c));
    c[n - 1].im = 1.0;
    pxlsFree(c);
  }
  pxlsFree(nullptr);
  pxliFree(nullptr);
}

TEST(Alloc, ImageStepsRoundRowsUpTo32Bytes) {
  struct { int width; int want; } c1[] = {{1, 32}, {32, 32}, {33, 64}};
  for (auto c : c1) {
    int step = -5;
    Pxl8u* p = pxliMalloc_8u_C1(c.width, 3, &step);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(step, c.want) << c.width;
    EXPECT_TRUE(aligned32(p));
    std::memset(p, 1, std::size_t(step) * 3);
    pxliFree(p);
  }
  int step = 0;
  Pxl8u* p3 = pxliMalloc_8u_C3(11, 2, &step);
  EXPECT_EQ(step, 64);  // 33 bytes
  pxliFree(p3);
  step = 7;
  EXPECT_EQ(pxliMalloc_16u_C1(5, 0, &step), nullptr);
  EXPECT_EQ(step, 0);
  step = 7;
  EXPECT_EQ(pxliMalloc_32f_C3(0, 5, &step), nullptr);
  EXPECT_EQ(step, 0);
  EXPECT_EQ(pxliMalloc_8u_C1(5, 5, nullptr), nullptr);
  Pxl32fc* q = pxliMalloc_32fc_AC4(1, 1, &step);
  EXPECT_EQ(step, 32);
  pxliFree(q);
  Pxl16s* r = pxliMalloc_16s_AC4(3, 4, &step);
  EXPECT_EQ(step, 32);  // 24 bytes, as C4
  EXPECT_TRUE(aligned32(reinterpret_cast<char*>(r) + step));
  pxliFree(r);
}

TEST(Version, RecordIsStaticAndExact) {
  const PxlLibVersion* v = pxliGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, pxliGetLibVersion());
  EXPECT_EQ(v->versionMajor, 5);
  EXPECT_EQ(v->versionMinor, 1);
  EXPECT_EQ(v->buildGroup, 133);
  EXPECT_EQ(v->buildNumber, 272);
  EXPECT_EQ(0, std::memcmp(v->cpuTag, "a6\0\0", 4));
  EXPECT_STREQ(v->libraryName, "libpxlia6.so.5.1");
  EXPECT_STREQ(v->versionText, "5.1.1");
  EXPECT_STREQ(v->buildDateText, "Jun 17 2006");
}

TEST(Core, ThreadCountDefaultsToProcessorsAndNanIsQuiet) {
  EXPECT_GE(threads_omp_of_n_pxl, 1);
  EXPECT_TRUE(std::isnan(pxlConstantOfNAN_64f));
}

TEST(Core, SseRoundingScopeRestoresOnlyWhenTheFieldDiffers) {
  const unsigned original = _mm_getcsr();
  {
    pxl::SseRoundingScope scope(pxl::kSseRoundZero);
    EXPECT_EQ(int(_mm_getcsr() & 0x6000u), pxl::kSseRoundZero);
    EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(2.7f)), 2);  // truncation
  }
  EXPECT_EQ(_mm_getcsr(), original);
  // A caller already at truncation keeps its whole register untouched.
  const int prev = pxl_set_rc_ssx(pxl::kSseRoundZero);
  {
    pxl::SseRoundingScope scope(pxl::kSseRoundZero);
  }
  EXPECT_EQ(int(_mm_getcsr() & 0x6000u), pxl::kSseRoundZero);
  pxl_set_cw_ssx(prev);
  EXPECT_EQ(_mm_getcsr(), original);
  // The member that leaves the caller at nearest on an early error.
  pxl_set_rc_ssx(pxl::kSseRoundZero);
  {
    pxl::SseRoundingScope scope(pxl::kSseRoundNear);
    scope.keepCurrent();
  }
  EXPECT_EQ(int(_mm_getcsr() & 0x6000u), 0);
  pxl_set_cw_ssx(int(original));
}

TEST(Core, X87ControlWordRoundTrips) {
  const int before = pxl_set_rcpc_fpu(pxl::kX87RoundZero, pxl::kX87RoundField);
  {
    pxl::X87RoundingScope scope(pxl::kX87RoundNear);
    const int inside = pxl_set_rcpc_fpu(0, 0);  // mask 0 reads without change
    EXPECT_EQ(inside & pxl::kX87RoundField, 0);
  }
  EXPECT_EQ(pxl_set_rcpc_fpu(0, 0) & pxl::kX87RoundField, pxl::kX87RoundZero);
  pxl_set_cw_fpu(before);
  EXPECT_EQ(pxl_set_rcpc_fpu(0, 0), before);
}

}  // namespace
