// Transpose: every member against dst(x, y) = src(y, x), at sizes on both
// sides of the register blocks (16, 8, 4, 2 pixels) and of the tiles (64
// not in place, 32 in place), thin images, and the square-only in-place rule.
#include <gtest/gtest.h>

#include <random>

#include "harness/guard.h"
#include "pxli.h"
#include "rearrange_ref.h"

namespace {

using namespace pxltest;

struct Member {
  const char* name;
  PixelShape shape;
  PxlStatus (*r)(const void*, int, void*, int, PxlSize);
  PxlStatus (*ir)(void*, int, PxlSize);
};

#define PXL_TRANSPOSE(t, T, l, ch)                                                                              \
  Member {                                                                                                      \
    "pxliTranspose_" #t "_" #l, {int(sizeof(T)), ch, ch},                                                       \
        [](const void* s, int ss, void* d, int ds, PxlSize r) {                                                 \
          return pxliTranspose_##t##_##l##R(static_cast<const T*>(s), ss, static_cast<T*>(d), ds, r);           \
        },                                                                                                      \
        [](void* s, int ss, PxlSize r) { return pxliTranspose_##t##_##l##IR(static_cast<T*>(s), ss, r); }       \
  }
#define PXL_TRANSPOSE_LAYOUTS(t, T) PXL_TRANSPOSE(t, T, C1, 1), PXL_TRANSPOSE(t, T, C3, 3), PXL_TRANSPOSE(t, T, C4, 4)

const Member kMembers[] = {PXL_TRANSPOSE_LAYOUTS(8u, Pxl8u), PXL_TRANSPOSE_LAYOUTS(16u, Pxl16u),
                           PXL_TRANSPOSE_LAYOUTS(32s, Pxl32s)};

const Mapping kSwap = [](int x, int y, int& sx, int& sy) {
  sx = y;
  sy = x;
  return true;
};

TEST(Transpose, EveryMemberAtBlockAndTileBoundaries) {
  const PxlSize sizes[] = {{1, 1},   {100, 1}, {1, 100}, {2, 3},   {4, 4},   {8, 9},    {16, 16}, {17, 15},
                           {33, 31}, {63, 64}, {64, 64}, {65, 63}, {64, 65}, {130, 65}, {65, 130}, {130, 130},
                           {200, 7}};
  std::mt19937 rng(11);
  for (const Member& m : kMembers)
    for (PxlSize sz : sizes) {
      SCOPED_TRACE(std::string(m.name) + " " + std::to_string(sz.width) + "x" + std::to_string(sz.height));
      const int pb = m.shape.bytes();
      TestImage src(sz.width, sz.height, pb, 5, 0, Place::Back, rng());
      // The destination has roi.height pixels a row and roi.width rows.
      TestImage dst(sz.height, sz.width, pb, 0, 3, Place::Front, rng());
      expectMapped(Pixels(src, pb), dst, m.shape, kSwap,
                   [&] { return m.r(src.roi(), src.step(), dst.roi(), dst.step(), sz); }, &src);
    }
}

TEST(Transpose, InPlaceSquaresAroundTheTileEdge) {
  std::mt19937 rng(12);
  for (const Member& m : kMembers)
    for (int n : {1, 2, 3, 4, 7, 8, 15, 16, 17, 31, 32, 33, 48, 63, 64, 65, 97}) {
      SCOPED_TRACE(std::string(m.name) + " " + std::to_string(n));
      const int pb = m.shape.bytes();
      for (Place place : {Place::Front, Place::Back}) {
        TestImage io(n, n, pb, place == Place::Front ? 0 : 6, place == Place::Front ? 6 : 0, place, rng());
        expectMapped(Pixels(io, pb), io, m.shape, kSwap, [&] { return m.ir(io.roi(), io.step(), {n, n}); });
      }
    }
}

TEST(Transpose, ChecksAndNothingWrittenOnError) {
  TestImage a(5, 5, 4, 0, 4, Place::Back, 21);
  TestImage b(5, 5, 4, 4, 0, Place::Back, 22);
  const auto ab = a.snapshot(), bb = b.snapshot();
  auto* pa = reinterpret_cast<Pxl32s*>(a.roi());
  auto* pb = reinterpret_cast<Pxl32s*>(b.roi());
  // In place wants a square, after the pointer and size checks.
  EXPECT_EQ(pxlStsSize, pxliTranspose_8u_C1IR(a.roi(), a.step(), {4, 5}));
  EXPECT_EQ(pxlStsSize, pxliTranspose_32s_C1IR(pa, a.step(), {5, 4}));
  EXPECT_EQ(pxlStsNullPtr, pxliTranspose_32s_C1IR(nullptr, a.step(), {5, 4}));
  EXPECT_EQ(pxlStsNullPtr, pxliTranspose_32s_C1R(pa, a.step(), nullptr, b.step(), {0, 5}));
  EXPECT_EQ(pxlStsSize, pxliTranspose_32s_C1R(pa, a.step(), pb, b.step(), {5, 0}));
  EXPECT_EQ(pxlStsSize, pxliTranspose_8u_C4IR(a.roi(), a.step(), {-5, -5}));
  EXPECT_TRUE(a.unchanged(ab));
  EXPECT_TRUE(b.unchanged(bb));
  // Steps are never examined: a zero source step transposes one row to all
  // destination columns.
  ASSERT_EQ(pxlStsOk, pxliTranspose_32s_C1R(pa, 0, pb, b.step(), {5, 5}));
  for (int y = 0; y < 5; ++y)
    for (int x = 0; x < 5; ++x) EXPECT_EQ(b.at<Pxl32s>(y)[x], pa[y]);
}

}  // namespace
