// Borders: every member on hand-picked and random geometries against the
// pixel mapping of its rule (constant outside, clamped coordinates, periodic
// coordinates). In-place members get the source's origin inside a larger
// guard-page image and must fill exactly that image around it.
#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "harness/guard.h"
#include "pxli.h"
#include "rearrange_ref.h"

namespace {

using namespace pxltest;

enum class Rule { Const, Replicate, Wrap };

using NotInPlace = PxlStatus (*)(const void*, int, PxlSize, void*, int, PxlSize, int, int, const void*);
using InPlace = PxlStatus (*)(void*, int, PxlSize, PxlSize, int, int);

struct Member {
  const char* name;
  PixelShape shape;
  Rule rule;
  NotInPlace r;
  InPlace ir;  // null: the family has no in-place form
};

// A constant is handed over as the member takes it: C1 by value, the
// others by pointer.
template <class T>
struct ValueOf {
  const void* v;
  operator T() const { return *static_cast<const T*>(v); }
  operator const T*() const { return static_cast<const T*>(v); }
};

#define PXL_NIP(fn, T, ...)                                                                                    \
  [](const void* s, int ss, PxlSize sr, void* d, int ds, PxlSize dr, int top, int left, const void* v) {       \
    (void)v;                                                                                                   \
    return fn(static_cast<const T*>(s), ss, sr, static_cast<T*>(d), ds, dr, top, left __VA_ARGS__);            \
  }
#define PXL_IP(fn, T) \
  [](void* s, int ss, PxlSize sr, PxlSize dr, int top, int left) { return fn(static_cast<T*>(s), ss, sr, dr, top, left); }

#define PXL_CONST(t, T, l, ch, used)                                                             \
  Member {                                                                                       \
    "pxliCopyConstBorder_" #t "_" #l, {int(sizeof(T)), ch, used}, Rule::Const,                   \
        PXL_NIP(pxliCopyConstBorder_##t##_##l##R, T, , ValueOf<T>{v}), nullptr                   \
  }
#define PXL_CONST_LAYOUTS(t, T) \
  PXL_CONST(t, T, C1, 1, 1), PXL_CONST(t, T, C3, 3, 3), PXL_CONST(t, T, C4, 4, 4), PXL_CONST(t, T, AC4, 4, 3)

#define PXL_REPL(t, T, l, ch, used)                                                                          \
  Member {                                                                                                   \
    "pxliCopyReplicateBorder_" #t "_" #l, {int(sizeof(T)), ch, used}, Rule::Replicate,                       \
        PXL_NIP(pxliCopyReplicateBorder_##t##_##l##R, T, ), PXL_IP(pxliCopyReplicateBorder_##t##_##l##IR, T) \
  }
#define PXL_REPL_LAYOUTS(t, T) \
  PXL_REPL(t, T, C1, 1, 1), PXL_REPL(t, T, C3, 3, 3), PXL_REPL(t, T, C4, 4, 4), PXL_REPL(t, T, AC4, 4, 3)

const Member kMembers[] = {
    PXL_CONST_LAYOUTS(8u, Pxl8u),
    PXL_CONST_LAYOUTS(16s, Pxl16s),
    PXL_CONST_LAYOUTS(32s, Pxl32s),
    PXL_REPL_LAYOUTS(8u, Pxl8u),
    PXL_REPL_LAYOUTS(16s, Pxl16s),
    PXL_REPL_LAYOUTS(32s, Pxl32s),
    {"pxliCopyWrapBorder_32s_C1", {4, 1, 1}, Rule::Wrap, PXL_NIP(pxliCopyWrapBorder_32s_C1R, Pxl32s, ),
     PXL_IP(pxliCopyWrapBorder_32s_C1IR, Pxl32s)},
};

struct Geometry {
  int sw, sh, dw, dh, top, left;
};

// The spots the rule has to get right: no border at all, one pixel all
// round, stretches many times the source (wrap: several whole copies), no
// stretch to the right or below, a one-pixel source.
const Geometry kGeometries[] = {
    {3, 3, 3, 3, 0, 0},    {3, 3, 5, 5, 1, 1},    {1, 1, 41, 3, 1, 20},  {2, 1, 9, 1, 0, 5},
    {2, 3, 9, 11, 7, 5},   {3, 2, 25, 13, 11, 13}, {17, 5, 40, 9, 0, 23}, {33, 3, 34, 20, 10, 0},
    {16, 7, 50, 30, 3, 17}, {1, 1, 1, 1, 0, 0},   {4, 2, 4, 9, 7, 0},    {70, 2, 150, 4, 1, 40},
};

Mapping ruleMap(Rule rule, const Geometry& g) {
  return [rule, g](int x, int y, int& sx, int& sy) {
    sx = x - g.left;
    sy = y - g.top;
    switch (rule) {
      case Rule::Const:
        return sx >= 0 && sx < g.sw && sy >= 0 && sy < g.sh;
      case Rule::Replicate:
        sx = std::min(std::max(sx, 0), g.sw - 1);
        sy = std::min(std::max(sy, 0), g.sh - 1);
        return true;
      case Rule::Wrap:
        sx = floorMod(sx, g.sw);
        sy = floorMod(sy, g.sh);
        return true;
    }
    return false;
  };
}

std::vector<Geometry> geometries(std::mt19937& rng) {
  std::vector<Geometry> gs(std::begin(kGeometries), std::end(kGeometries));
  auto pick = [&rng](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
  for (int i = 0; i < 12; ++i) {
    Geometry g{pick(1, 40), pick(1, 6), 0, 0, pick(0, 9), pick(0, 50)};
    g.dw = g.sw + g.left + pick(0, 50);
    g.dh = g.sh + g.top + pick(0, 9);
    gs.push_back(g);
  }
  return gs;
}

std::string describe(const Member& m, const Geometry& g) {
  return std::string(m.name) + " src " + std::to_string(g.sw) + "x" + std::to_string(g.sh) + " dst " +
         std::to_string(g.dw) + "x" + std::to_string(g.dh) + " top " + std::to_string(g.top) + " left " +
         std::to_string(g.left);
}

TEST(Border, NotInPlaceFollowsTheRule) {
  std::mt19937 rng(31);
  const std::vector<Geometry> gs = geometries(rng);
  for (const Member& m : kMembers)
    for (const Geometry& g : gs) {
      SCOPED_TRACE(describe(m, g));
      const int pb = m.shape.bytes();
      TestImage src(g.sw, g.sh, pb, 2, 0, Place::Back, rng());
      std::uint8_t value[16];
      for (auto& b : value) b = std::uint8_t(rng());
      for (Place place : {Place::Front, Place::Back}) {
        TestImage dst(g.dw, g.dh, pb, place == Place::Front ? 0 : 5, place == Place::Front ? 5 : 0, place, rng());
        expectMapped(
            Pixels(src, pb), dst, m.shape, ruleMap(m.rule, g),
            [&] { return m.r(src.roi(), src.step(), {g.sw, g.sh}, dst.roi(), dst.step(), {g.dw, g.dh}, g.top, g.left, value); },
            &src, m.rule == Rule::Const ? value : nullptr);
      }
    }
}

// The caller's image is the larger one, with guard pages right before or
// right after it; the call gets the origin of the source inside it.
TEST(Border, InPlaceFillsExactlyTheLargerImage) {
  std::mt19937 rng(32);
  const std::vector<Geometry> gs = geometries(rng);
  for (const Member& m : kMembers) {
    if (m.ir == nullptr) continue;
    for (const Geometry& g : gs) {
      SCOPED_TRACE(describe(m, g));
      const int pb = m.shape.bytes();
      for (Place place : {Place::Front, Place::Back}) {
        TestImage big(g.dw, g.dh, pb, place == Place::Front ? 0 : 3, place == Place::Front ? 3 : 0, place, rng());
        const Pixels all(big, pb);
        Pixels src;
        src.width = g.sw, src.height = g.sh, src.pixelBytes = pb;
        for (int y = 0; y < g.sh; ++y)
          for (int x = 0; x < g.sw; ++x) {
            const std::uint8_t* p = all.at(g.left + x, g.top + y);
            src.data.insert(src.data.end(), p, p + pb);
          }
        std::uint8_t* origin = big.row(g.top) + std::ptrdiff_t(g.left) * pb;
        expectMapped(src, big, m.shape, ruleMap(m.rule, g),
                     [&] { return m.ir(origin, big.step(), {g.sw, g.sh}, {g.dw, g.dh}, g.top, g.left); });
      }
    }
  }
}

TEST(Border, RowsByHand) {
  // Wrap: left 5 on a source of 2 starts at (0 - 5) mod 2 = 1.
  const Pxl32s s[2] = {10, 11};
  Pxl32s d[9] = {};
  ASSERT_EQ(pxlStsOk, pxliCopyWrapBorder_32s_C1R(s, 8, {2, 1}, d, 36, {9, 1}, 0, 5));
  const Pxl32s want[9] = {11, 10, 11, 10, 11, 10, 11, 10, 11};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(d[i], want[i]) << i;
  // Replicate: one pixel repeated twenty times on both sides.
  const Pxl8u one = 42;
  Pxl8u r[41];
  ASSERT_EQ(pxlStsOk, pxliCopyReplicateBorder_8u_C1R(&one, 1, {1, 1}, r, 41, {41, 1}, 0, 20));
  for (int i = 0; i < 41; ++i) EXPECT_EQ(r[i], 42) << i;
  // Const with no border is a plain copy.
  const Pxl16s img[4] = {1, -2, 3, -4};
  Pxl16s c[4] = {};
  ASSERT_EQ(pxlStsOk, pxliCopyConstBorder_16s_C1R(img, 4, {2, 2}, c, 4, {2, 2}, 0, 0, 99));
  for (int i = 0; i < 4; ++i) EXPECT_EQ(c[i], img[i]);
}

// Check order: pointers, then steps, then geometry; two faults at once
// report the earlier one, and no error writes anything.
TEST(Border, ChecksInOrderAndNothingWritten) {
  TestImage src(4, 3, 4, 0, 4, Place::Back, 41);
  TestImage dst(8, 6, 4, 4, 0, Place::Back, 42);
  const auto sb = src.snapshot();
  auto* s = reinterpret_cast<const Pxl32s*>(src.roi());
  auto* d = reinterpret_cast<Pxl32s*>(dst.roi());
  const int ss = src.step(), ds = dst.step();
  const PxlSize sr{4, 3}, dr{8, 6};
  auto repl = [&](const Pxl32s* a, int as, PxlSize asr, Pxl32s* b, int bs, PxlSize bdr, int top, int left) {
    return pxliCopyReplicateBorder_32s_C1R(a, as, asr, b, bs, bdr, top, left);
  };
  EXPECT_EQ(pxlStsOk, pxliCopyWrapBorder_32s_C1R(s, ss, sr, d, ds, dr, 3, 4));  // the largest that fits
  const auto fitted = dst.snapshot();
  EXPECT_EQ(pxlStsNullPtr, repl(nullptr, 0, sr, d, ds, dr, 1, 1));
  EXPECT_EQ(pxlStsNullPtr, repl(s, ss, sr, nullptr, ds, {0, 0}, -1, 1));
  EXPECT_EQ(pxlStsStep, repl(s, 0, sr, d, ds, dr, -1, 1));
  EXPECT_EQ(pxlStsStep, repl(s, ss, {0, 3}, d, -4, dr, 1, 1));
  EXPECT_EQ(pxlStsSize, repl(s, ss, sr, d, ds, dr, 0, -1));
  EXPECT_EQ(pxlStsSize, repl(s, ss, sr, d, ds, dr, -1, 0));
  EXPECT_EQ(pxlStsSize, repl(s, ss, sr, d, ds, dr, 3, 5));  // one column short
  EXPECT_EQ(pxlStsSize, repl(s, ss, sr, d, ds, dr, 4, 4));  // one row short
  EXPECT_EQ(pxlStsSize, repl(s, ss, sr, d, ds, {8, 0}, 0, 0));
  EXPECT_EQ(pxlStsSize, repl(s, ss, sr, d, ds, {INT_MAX, 6}, 0, INT_MAX));  // no overflow in left + width
  EXPECT_EQ(pxlStsSize, pxliCopyWrapBorder_32s_C1R(s, ss, sr, d, ds, {8, 5}, 3, 0));
  EXPECT_EQ(pxlStsStep, pxliCopyWrapBorder_32s_C1IR(d, 0, sr, {8, 2}, 1, 1));
  EXPECT_EQ(pxlStsSize, pxliCopyWrapBorder_32s_C1IR(d, ds, sr, {8, 2}, 1, 1));
  EXPECT_EQ(pxlStsNullPtr, pxliCopyReplicateBorder_32s_AC4IR(nullptr, 0, {0, 0}, dr, -1, -1));
  const Pxl32s three[3] = {1, 2, 3};
  EXPECT_EQ(pxlStsNullPtr, pxliCopyConstBorder_32s_C3R(s, 0, sr, d, ds, dr, 1, 1, nullptr));
  EXPECT_EQ(pxlStsStep, pxliCopyConstBorder_32s_C3R(s, 0, {1, 1}, d, ds, {1, 1}, 5, 5, three));
  EXPECT_EQ(pxlStsSize, pxliCopyConstBorder_32s_C1R(s, ss, sr, d, ds, dr, 7, 0, 5));
  EXPECT_TRUE(src.unchanged(sb));
  EXPECT_TRUE(dst.unchanged(fitted));
}

}  // namespace
