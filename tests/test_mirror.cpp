// Mirror: every member, every axis, in place and not, at sizes around the
// register widths (a row of 8u pixels is reversed 16 or 32 at a time) and
// odd and even heights, against the pixel mapping of each axis.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "harness/guard.h"
#include "pxli.h"
#include "rearrange_ref.h"

namespace {

using namespace pxltest;

struct Member {
  const char* name;
  PixelShape shape;
  PxlStatus (*r)(const void*, int, void*, int, PxlSize, int);
  PxlStatus (*ir)(void*, int, PxlSize, int);
};

#define PXL_MIRROR(t, T, l, ch, used)                                                                          \
  Member {                                                                                                     \
    "pxliMirror_" #t "_" #l, {int(sizeof(T)), ch, used},                                                       \
        [](const void* s, int ss, void* d, int ds, PxlSize r, int a) {                                         \
          return pxliMirror_##t##_##l##R(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, r, a);          \
        },                                                                                                     \
        [](void* s, int ss, PxlSize r, int a) { return pxliMirror_##t##_##l##IR(static_cast<T*>(s), ss, r, a); } \
  }
#define PXL_MIRROR_LAYOUTS(t, T) \
  PXL_MIRROR(t, T, C1, 1, 1), PXL_MIRROR(t, T, C3, 3, 3), PXL_MIRROR(t, T, C4, 4, 4), PXL_MIRROR(t, T, AC4, 4, 3)

const Member kMembers[] = {PXL_MIRROR_LAYOUTS(8u, Pxl8u), PXL_MIRROR_LAYOUTS(16u, Pxl16u),
                           PXL_MIRROR_LAYOUTS(32s, Pxl32s)};

Mapping mirrorMap(int axis, int w, int h) {
  return [=](int x, int y, int& sx, int& sy) {
    sx = axis == pxlAxsHorizontal ? x : w - 1 - x;
    sy = axis == pxlAxsVertical ? y : h - 1 - y;
    return true;
  };
}

const PxlSize kSizes[] = {{1, 1}, {1, 7}, {9, 1}, {2, 2}, {3, 3}, {15, 4}, {16, 5}, {17, 2}, {31, 3},
                          {32, 6}, {33, 7}, {64, 2}, {65, 3}, {100, 9}};

TEST(Mirror, EveryMemberAxisAndSizeFollowsTheMapping) {
  std::mt19937 rng(7);
  for (const Member& m : kMembers)
    for (PxlSize sz : kSizes)
      for (int axis = 0; axis < 3; ++axis) {
        const int pb = m.shape.bytes();
        SCOPED_TRACE(std::string(m.name) + " " + std::to_string(sz.width) + "x" + std::to_string(sz.height) +
                     " axis " + std::to_string(axis));
        // Odd offsets and paddings: nothing is aligned for the kernel.
        TestImage src(sz.width, sz.height, pb, 3, 0, Place::Back, rng());
        TestImage dst(sz.width, sz.height, pb, 0, 7, Place::Front, rng());
        TestImage dst2(sz.width, sz.height, pb, 9, 0, Place::Back, rng());
        const Mapping map = mirrorMap(axis, sz.width, sz.height);
        for (TestImage* d : {&dst, &dst2})
          expectMapped(Pixels(src, pb), *d, m.shape, map,
                       [&] { return m.r(src.roi(), src.step(), d->roi(), d->step(), sz, axis); }, &src);

        // In place: the same mapping applied to the image as it was.
        TestImage io(sz.width, sz.height, pb, 4, 0, Place::Back, rng());
        expectMapped(Pixels(io, pb), io, m.shape, map, [&] { return m.ir(io.roi(), io.step(), sz, axis); });
      }
}

// Flipping the row order of 8 MiB or more goes around the cache: the same
// mapping, with rows that start off any register boundary.
TEST(Mirror, LargeImagesFollowTheMapping) {
  std::mt19937 rng(17);
  for (const Member& m : kMembers) {
    if (std::string(m.name) != "pxliMirror_8u_C3" && std::string(m.name) != "pxliMirror_32s_C1") continue;
    const int pb = m.shape.bytes();
    const PxlSize sz{(1 << 23) / pb / 1500 + 3, 1501};
    TestImage src(sz.width, sz.height, pb, 3, 0, Place::Back, rng()), dst(sz.width, sz.height, pb, 5, 2, Place::Front, rng());
    expectMapped(Pixels(src, pb), dst, m.shape, mirrorMap(pxlAxsHorizontal, sz.width, sz.height),
                 [&] { return m.r(src.roi(), src.step(), dst.roi(), dst.step(), sz, pxlAxsHorizontal); }, &src);
  }
}

TEST(Mirror, SmallCasesByHand) {
  // One row flipped about the horizontal axis stays as it is.
  Pxl8u one[4] = {1, 2, 3, 4};
  EXPECT_EQ(pxlStsOk, pxliMirror_8u_C1IR(one, 4, {4, 1}, pxlAxsHorizontal));
  EXPECT_EQ(one[0], 1);
  EXPECT_EQ(one[3], 4);
  // 3 x 3 about both axes: the centre stays, the rest turns half a turn.
  Pxl8u sq[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  EXPECT_EQ(pxlStsOk, pxliMirror_8u_C1IR(sq, 3, {3, 3}, pxlAxsBoth));
  const Pxl8u turned[9] = {9, 8, 7, 6, 5, 4, 3, 2, 1};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(sq[i], turned[i]) << i;
  // AC4 in place about the horizontal axis: each row keeps its own alpha.
  Pxl8u ac4[2][4] = {{1, 2, 3, 100}, {5, 6, 7, 200}};
  EXPECT_EQ(pxlStsOk, pxliMirror_8u_AC4IR(&ac4[0][0], 4, {1, 2}, pxlAxsHorizontal));
  EXPECT_EQ(ac4[0][0], 5);
  EXPECT_EQ(ac4[0][3], 100);
  EXPECT_EQ(ac4[1][0], 1);
  EXPECT_EQ(ac4[1][3], 200);
  // C3 about the vertical axis keeps the samples of a pixel in order.
  Pxl16u c3[6] = {1, 2, 3, 4, 5, 6};
  Pxl16u out[6] = {};
  EXPECT_EQ(pxlStsOk, pxliMirror_16u_C3R(c3, 12, out, 12, {2, 1}, pxlAxsVertical));
  const Pxl16u flipped[6] = {4, 5, 6, 1, 2, 3};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(out[i], flipped[i]) << i;
}

TEST(Mirror, UnknownAxisAfterPointersAndSizesAndNothingWritten) {
  TestImage src(8, 4, 4, 0, 4, Place::Back, 3);
  TestImage dst(8, 4, 4, 4, 0, Place::Back, 4);
  const auto sb = src.snapshot(), db = dst.snapshot();
  auto* s = reinterpret_cast<Pxl32s*>(src.roi());
  auto* d = reinterpret_cast<Pxl32s*>(dst.roi());
  for (int axis : {-1, 3, 1000}) {
    EXPECT_EQ(pxlStsMirrorAxis, pxliMirror_32s_C1R(s, src.step(), d, dst.step(), {8, 4}, axis));
    EXPECT_EQ(pxlStsMirrorAxis, pxliMirror_32s_C1IR(d, dst.step(), {8, 4}, axis));
    EXPECT_EQ(pxlStsMirrorAxis, pxliMirror_8u_AC4IR(dst.roi(), dst.step(), {2, 4}, axis));
    // Two faults at once: the earlier check is the one reported.
    EXPECT_EQ(pxlStsNullPtr, pxliMirror_32s_C1R(nullptr, src.step(), d, dst.step(), {8, 4}, axis));
    EXPECT_EQ(pxlStsNullPtr, pxliMirror_32s_C1IR(nullptr, dst.step(), {0, 4}, axis));
    EXPECT_EQ(pxlStsSize, pxliMirror_32s_C1R(s, src.step(), d, dst.step(), {8, 0}, axis));
    EXPECT_EQ(pxlStsSize, pxliMirror_32s_C1IR(d, dst.step(), {-1, 4}, axis));
  }
  // Steps are never examined: a bad step with a bad axis is an axis error.
  EXPECT_EQ(pxlStsMirrorAxis, pxliMirror_32s_C1R(s, -5, d, 0, {8, 4}, 7));
  EXPECT_TRUE(src.unchanged(sb));
  EXPECT_TRUE(dst.unchanged(db));
}

TEST(Mirror, ZeroSourceStepReadsOneRowForAll) {
  TestImage src(20, 1, 1, 0, 0, Place::Back, 5);
  TestImage dst(20, 3, 1, 0, 2, Place::Back, 6);
  ASSERT_EQ(pxlStsOk, pxliMirror_8u_C1R(src.roi(), 0, dst.roi(), dst.step(), {20, 3}, pxlAxsVertical));
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 20; ++x) EXPECT_EQ(dst.row(y)[x], src.row(0)[19 - x]);
}

}  // namespace
