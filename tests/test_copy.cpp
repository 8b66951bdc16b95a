// Copy, Set, Dup, SwapChannels and the vector copies and fills: every layout
// of every type on guarded images of many widths, padded and gapless (the
// gapless ones are walked as one row), at sizes that take the streaming
// stores, with the padding and the alpha samples checked untouched.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <random>
#include <type_traits>
#include <algorithm>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"
#include "pxls.h"

namespace {

using pxltest::GuardedBuffer;
using pxltest::Place;
using pxltest::TestImage;

template <class T>
using Unary = PxlStatus (*)(const T*, int, T*, int, PxlSize);
template <class T>
using Masked = PxlStatus (*)(const T*, int, T*, int, PxlSize, const Pxl8u*, int);
template <class T>
using SetC1 = PxlStatus (*)(T, T*, int, PxlSize);
template <class T>
using SetPtr = PxlStatus (*)(const T*, T*, int, PxlSize);
template <class T>
using SetC1M = PxlStatus (*)(T, T*, int, PxlSize, const Pxl8u*, int);
template <class T>
using SetPtrM = PxlStatus (*)(const T*, T*, int, PxlSize, const Pxl8u*, int);
template <class T>
using ToPlanes = PxlStatus (*)(const T*, int, T* const*, int, PxlSize);
template <class T>
using FromPlanes = PxlStatus (*)(const T* const*, int, T*, int, PxlSize);

template <class T>
struct Members {
  Unary<T> c1, c3, c4, ac4, c3cr, c4cr, c3c1, c4c1, c1c3, c1c4, ac4c3, c3ac4;
  Masked<T> c1m, c3m, c4m, ac4m;
  ToPlanes<T> c3p3, c4p4;
  FromPlanes<T> p3c3, p4c4;
  SetC1<T> set1, set3cr, set4cr;
  SetPtr<T> set3, set4, setac4;
  SetC1M<T> set1m;
  SetPtrM<T> set3m, set4m, setac4m;
};

#define PXL_MEMBERS(t)                                                                                   \
  {pxliCopy_##t##_C1R,    pxliCopy_##t##_C3R,    pxliCopy_##t##_C4R,    pxliCopy_##t##_AC4R,            \
   pxliCopy_##t##_C3CR,   pxliCopy_##t##_C4CR,   pxliCopy_##t##_C3C1R,  pxliCopy_##t##_C4C1R,           \
   pxliCopy_##t##_C1C3R,  pxliCopy_##t##_C1C4R,  pxliCopy_##t##_AC4C3R, pxliCopy_##t##_C3AC4R,          \
   pxliCopy_##t##_C1MR,   pxliCopy_##t##_C3MR,   pxliCopy_##t##_C4MR,   pxliCopy_##t##_AC4MR,           \
   pxliCopy_##t##_C3P3R,  pxliCopy_##t##_C4P4R,  pxliCopy_##t##_P3C3R,  pxliCopy_##t##_P4C4R,           \
   pxliSet_##t##_C1R,     pxliSet_##t##_C3CR,    pxliSet_##t##_C4CR,    pxliSet_##t##_C3R,              \
   pxliSet_##t##_C4R,     pxliSet_##t##_AC4R,    pxliSet_##t##_C1MR,    pxliSet_##t##_C3MR,             \
   pxliSet_##t##_C4MR,    pxliSet_##t##_AC4MR}

template <class T>
Members<T> membersOf();
template <> Members<Pxl8u> membersOf() { return PXL_MEMBERS(8u); }
template <> Members<Pxl16s> membersOf() { return PXL_MEMBERS(16s); }
template <> Members<Pxl32s> membersOf() { return PXL_MEMBERS(32s); }
template <> Members<Pxl32f> membersOf() { return PXL_MEMBERS(32f); }

// Widths around every register and block boundary of both builds.
const int kWidths[] = {1, 2, 3, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100, 129, 257};

// A guarded image of `width` pixels of `ch` samples; gapless rows (step =
// row bytes) or padded ones with a misaligned start.
template <class T>
std::unique_ptr<TestImage> image(int width, int height, int ch, bool gapless, std::uint32_t seed, Place place = Place::Back) {
  const int pad = gapless ? 0 : int(sizeof(T)) * 3;
  return std::make_unique<TestImage>(width, height, ch * int(sizeof(T)), pad, gapless ? 0 : 5 * int(sizeof(T)), place,
                                     seed);
}

template <class T>
T sampleAt(const TestImage& im, int y, int i) {
  T v;
  std::memcpy(&v, im.row(y) + std::size_t(i) * sizeof(T), sizeof(T));
  return v;
}

// The ROI as it must be after a call: starts as the ROI before the call and
// takes the samples the rule writes; compared bytewise with the result.
template <class T>
class Expected {
 public:
  explicit Expected(const TestImage& im) : im_(im), bytes_(im.roiBytes()), before_(im.snapshot()) {}
  void set(int y, int i, T v) {
    std::memcpy(bytes_.data() + std::size_t(y) * im_.rowBytes() + std::size_t(i) * sizeof(T), &v, sizeof(T));
  }
  ::testing::AssertionResult matches() const {
    if (!im_.outsideUnchanged(before_)) return ::testing::AssertionFailure() << "wrote outside the ROI";
    const std::vector<std::uint8_t> got = im_.roiBytes();
    for (std::size_t i = 0; i < got.size(); ++i)
      if (got[i] != bytes_[i])
        return ::testing::AssertionFailure() << "byte " << i % im_.rowBytes() << " of row " << i / im_.rowBytes();
    return ::testing::AssertionSuccess();
  }

 private:
  const TestImage& im_;
  std::vector<std::uint8_t> bytes_;
  std::vector<std::uint8_t> before_;
};

template <class T>
class CopyTest : public ::testing::Test {};
using SampleTypes = ::testing::Types<Pxl8u, Pxl16s, Pxl32s, Pxl32f>;
TYPED_TEST_SUITE(CopyTest, SampleTypes);

// Source samples (ss per pixel) go to destination samples (ds per pixel):
// sample sc[k] of each source pixel to sample dc[k] of the same destination
// pixel. Every copy form is one such map.
struct Map {
  int ss, ds;
  std::vector<int> sc, dc;
};

template <class T>
void checkCopy(Unary<T> fn, const Map& m, const char* name) {
  int seed = 1;
  for (bool gapless : {false, true})
    for (int w : kWidths) {
      const int h = 3;
      auto src = image<T>(w, h, m.ss, gapless, seed++, Place::Front);
      auto dst = image<T>(w, h, m.ds, gapless, seed++);
      Expected<T> want(*dst);
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          for (std::size_t k = 0; k < m.sc.size(); ++k)
            want.set(y, x * m.ds + m.dc[k], sampleAt<T>(*src, y, x * m.ss + m.sc[k]));
      ASSERT_EQ(pxlStsOk, fn(reinterpret_cast<const T*>(src->roi()), src->step(), reinterpret_cast<T*>(dst->roi()),
                             dst->step(), {w, h}));
      ASSERT_TRUE(want.matches()) << name << " width " << w << (gapless ? " gapless" : " padded");
    }
}

TYPED_TEST(CopyTest, EveryInterleavedFormMovesExactlyItsSamples) {
  using T = TypeParam;
  const Members<T> f = membersOf<T>();
  checkCopy<T>(f.c1, {1, 1, {0}, {0}}, "C1R");
  checkCopy<T>(f.c3, {3, 3, {0, 1, 2}, {0, 1, 2}}, "C3R");
  checkCopy<T>(f.c4, {4, 4, {0, 1, 2, 3}, {0, 1, 2, 3}}, "C4R");
  checkCopy<T>(f.ac4, {4, 4, {0, 1, 2}, {0, 1, 2}}, "AC4R");  // alpha of dst stays
  checkCopy<T>(f.c3cr, {3, 3, {0}, {0}}, "C3CR");
  checkCopy<T>(f.c4cr, {4, 4, {0}, {0}}, "C4CR");
  checkCopy<T>(f.c3c1, {3, 1, {0}, {0}}, "C3C1R");
  checkCopy<T>(f.c4c1, {4, 1, {0}, {0}}, "C4C1R");
  checkCopy<T>(f.c1c3, {1, 3, {0}, {0}}, "C1C3R");
  checkCopy<T>(f.c1c4, {1, 4, {0}, {0}}, "C1C4R");
  checkCopy<T>(f.ac4c3, {4, 3, {0, 1, 2}, {0, 1, 2}}, "AC4C3R");
  checkCopy<T>(f.c3ac4, {3, 4, {0, 1, 2}, {0, 1, 2}}, "C3AC4R");
}

// The caller picks the channel by offsetting the pointer; the image's last
// pixel then ends exactly at the channel, which the guard page checks.
TEST(CopyChannels, OffsetPointersChooseTheChannel) {
  const int w = 37, h = 2;
  TestImage src(w, h, 3, 0, 1, Place::Back, 5), dst(w, h, 1, 0, 0, Place::Back, 6);
  Expected<Pxl8u> want(dst);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) want.set(y, x, src.row(y)[3 * x + 2]);
  // A channel-2 view of the source: its ROI is 2 bytes in, and so its last
  // pixel is 2 bytes short of the row; the row's true end is the buffer end.
  ASSERT_EQ(pxlStsOk, pxliCopy_8u_C3C1R(src.roi() + 2, src.step(), dst.roi(), dst.step(), {w, h}));
  EXPECT_TRUE(want.matches());

  TestImage c3(w, h, 3, 0, 1, Place::Back, 7), c1(w, h, 1, 0, 0, Place::Front, 8);
  Expected<Pxl8u> in(c3);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) in.set(y, 3 * x + 1, c1.row(y)[x]);
  ASSERT_EQ(pxlStsOk, pxliCopy_8u_C1C3R(c1.roi(), c1.step(), c3.roi() + 1, c3.step(), {w, h}));
  EXPECT_TRUE(in.matches());
}

template <class T, class Fn, class Planes>
void checkPlanes(Fn toPlanes, Planes fromPlanes, int n) {
  int seed = 100;
  for (bool gapless : {false, true})
    for (int w : kWidths) {
      const int h = 3;
      auto src = image<T>(w, h, n, gapless, seed++, Place::Front);
      std::vector<std::unique_ptr<TestImage>> planes;
      for (int c = 0; c < n; ++c) planes.push_back(image<T>(w, h, 1, gapless, seed++));
      T* p[4] = {};
      std::vector<std::unique_ptr<Expected<T>>> want;
      for (int c = 0; c < n; ++c) {
        p[c] = reinterpret_cast<T*>(planes[c]->roi());
        want.push_back(std::make_unique<Expected<T>>(*planes[c]));
        for (int y = 0; y < h; ++y)
          for (int x = 0; x < w; ++x) want[c]->set(y, x, sampleAt<T>(*src, y, x * n + c));
      }
      ASSERT_EQ(pxlStsOk, toPlanes(reinterpret_cast<const T*>(src->roi()), src->step(), p, planes[0]->step(), {w, h}));
      for (int c = 0; c < n; ++c) ASSERT_TRUE(want[c]->matches()) << "plane " << c << " width " << w;

      // And back into a fresh interleaved image.
      auto back = image<T>(w, h, n, gapless, seed++);
      Expected<T> again(*back);
      for (int y = 0; y < h; ++y)
        for (int i = 0; i < w * n; ++i) again.set(y, i, sampleAt<T>(*src, y, i));
      const T* cp[4] = {p[0], p[1], p[2], p[3]};
      ASSERT_EQ(pxlStsOk, fromPlanes(cp, planes[0]->step(), reinterpret_cast<T*>(back->roi()), back->step(), {w, h}));
      ASSERT_TRUE(again.matches()) << "interleaving width " << w;
    }
}

TYPED_TEST(CopyTest, PlanarFormsSplitAndJoinChannels) {
  using T = TypeParam;
  const Members<T> f = membersOf<T>();
  checkPlanes<T>(f.c3p3, f.p3c3, 3);
  checkPlanes<T>(f.c4p4, f.p4c4, 4);
}

// Mask bytes of 1 and 255 select alike; runs of eight all set, all clear
// and mixed take the three paths of the mask walk.
std::vector<Pxl8u> maskRow(int w, int y) {
  std::vector<Pxl8u> m(w);
  for (int x = 0; x < w; ++x) {
    const int block = (x / 8 + y) % 3;  // 0 clear, 1 set, 2 mixed
    m[x] = block == 0 ? 0 : block == 1 ? Pxl8u(x % 2 ? 1 : 255) : Pxl8u((x * 7 + y) % 3 == 0 ? 0 : x % 5 + 1);
  }
  return m;
}

TYPED_TEST(CopyTest, MaskedFormsWriteSelectedPixelsOnly) {
  using T = TypeParam;
  const Members<T> f = membersOf<T>();
  struct { Masked<T> fn; int ch, used; } forms[] = {{f.c1m, 1, 1}, {f.c3m, 3, 3}, {f.c4m, 4, 4}, {f.ac4m, 4, 3}};
  int seed = 300;
  for (auto& form : forms)
    for (int w : kWidths) {
      const int h = 4;
      auto src = image<T>(w, h, form.ch, false, seed++, Place::Front);
      auto dst = image<T>(w, h, form.ch, false, seed++);
      TestImage mask(w, h, 1, 1, 3, Place::Back, seed++);
      for (int y = 0; y < h; ++y) {
        const std::vector<Pxl8u> m = maskRow(w, y);
        std::memcpy(mask.row(y), m.data(), w);
      }
      Expected<T> want(*dst);
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          if (mask.row(y)[x])
            for (int c = 0; c < form.used; ++c) want.set(y, x * form.ch + c, sampleAt<T>(*src, y, x * form.ch + c));
      ASSERT_EQ(pxlStsOk, form.fn(reinterpret_cast<const T*>(src->roi()), src->step(), reinterpret_cast<T*>(dst->roi()),
                                  dst->step(), {w, h}, mask.roi(), mask.step()));
      ASSERT_TRUE(want.matches()) << form.ch << " channels, width " << w;
    }
}

TEST(CopyMasked, MaskStepZeroReadsOneMaskRowForAllRowsButSetRefusesIt) {
  const int w = 19, h = 5;
  TestImage src(w, h, 1, 2, 2, Place::Front, 1), dst(w, h, 1, 2, 2, Place::Back, 2);
  TestImage mask(w, 1, 1, 0, 0, Place::Back, 3);  // one row only: a second row would fault
  for (int x = 0; x < w; ++x) mask.roi()[x] = Pxl8u(x % 3 == 0);
  Expected<Pxl8u> want(dst);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      if (x % 3 == 0) want.set(y, x, src.row(y)[x]);
  ASSERT_EQ(pxlStsOk, pxliCopy_8u_C1MR(src.roi(), src.step(), dst.roi(), dst.step(), {w, h}, mask.roi(), 0));
  EXPECT_TRUE(want.matches());

  const auto before = dst.snapshot();
  EXPECT_EQ(pxlStsStep, pxliSet_8u_C1MR(9, dst.roi(), dst.step(), {w, h}, mask.roi(), 0));
  EXPECT_TRUE(dst.unchanged(before));
}

// Values of one pixel; distinct per channel so that a misplaced phase of
// the C3 pattern shows.
template <class T>
std::vector<T> pixelValues() {
  if constexpr (std::is_floating_point_v<T>)
    return {T(-7.5f), T(101.25f), T(-3), T(66)};
  else
    return {T(-7), T(101), T(-3), T(66)};
}

template <class T, class Call>
void checkSet(Call call, int ch, std::vector<int> written, const std::vector<T>& vals, bool gaplessToo,
              const char* name) {
  int seed = 500;
  for (bool gapless : {false, true}) {
    if (gapless && !gaplessToo) continue;
    for (int w : kWidths) {
      const int h = 3;
      auto dst = image<T>(w, h, ch, gapless, seed++);
      Expected<T> want(*dst);
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          for (std::size_t k = 0; k < written.size(); ++k) want.set(y, x * ch + written[k], vals[k]);
      ASSERT_EQ(pxlStsOk, call(reinterpret_cast<T*>(dst->roi()), dst->step(), PxlSize{w, h}));
      ASSERT_TRUE(want.matches()) << name << " width " << w << (gapless ? " gapless" : " padded");
    }
  }
}

TYPED_TEST(CopyTest, SetFillsEveryLayoutAndLeavesAlpha) {
  using T = TypeParam;
  const Members<T> f = membersOf<T>();
  const std::vector<T> v = pixelValues<T>();
  checkSet<T>([&](T* d, int s, PxlSize r) { return f.set1(v[0], d, s, r); }, 1, {0}, v, true, "C1R");
  checkSet<T>([&](T* d, int s, PxlSize r) { return f.set3(v.data(), d, s, r); }, 3, {0, 1, 2}, v, true, "C3R");
  checkSet<T>([&](T* d, int s, PxlSize r) { return f.set4(v.data(), d, s, r); }, 4, {0, 1, 2, 3}, v, true, "C4R");
  checkSet<T>([&](T* d, int s, PxlSize r) { return f.setac4(v.data(), d, s, r); }, 4, {0, 1, 2}, v, true, "AC4R");
  checkSet<T>([&](T* d, int s, PxlSize r) { return f.set3cr(v[0], d, s, r); }, 3, {0}, v, true, "C3CR");
  checkSet<T>([&](T* d, int s, PxlSize r) { return f.set4cr(v[0], d, s, r); }, 4, {0}, v, true, "C4CR");
}

TYPED_TEST(CopyTest, MaskedSetWritesSelectedPixelsOnly) {
  using T = TypeParam;
  const Members<T> f = membersOf<T>();
  const std::vector<T> v = pixelValues<T>();
  struct { int ch, used; } forms[] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}};
  int seed = 700;
  for (auto form : forms)
    for (int w : kWidths) {
      const int h = 4;
      auto dst = image<T>(w, h, form.ch, false, seed++);
      TestImage mask(w, h, 1, 2, 1, Place::Back, seed++);
      for (int y = 0; y < h; ++y) std::memcpy(mask.row(y), maskRow(w, y).data(), w);
      Expected<T> want(*dst);
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          if (mask.row(y)[x])
            for (int c = 0; c < form.used; ++c) want.set(y, x * form.ch + c, v[c]);
      T* d = reinterpret_cast<T*>(dst->roi());
      const PxlSize r{w, h};
      const PxlStatus st = form.ch == 1   ? f.set1m(v[0], d, dst->step(), r, mask.roi(), mask.step())
                           : form.ch == 3 ? f.set3m(v.data(), d, dst->step(), r, mask.roi(), mask.step())
                           : form.used == 4 ? f.set4m(v.data(), d, dst->step(), r, mask.roi(), mask.step())
                                            : f.setac4m(v.data(), d, dst->step(), r, mask.roi(), mask.step());
      ASSERT_EQ(pxlStsOk, st);
      ASSERT_TRUE(want.matches()) << form.ch << "/" << form.used << " channels, width " << w;
    }
}

// Images large enough for the streaming stores, with an odd start so that
// the aligned middle, the head and the tail all occur, padded and gapless.
TEST(CopyStreaming, LargeCopiesAndFillsMatchTheCachedResult) {
  const int w = 1531, h = 1900;  // 8.7 MB of C3 8u
  for (bool gapless : {false, true}) {
    auto src = image<Pxl8u>(w, h, 3, gapless, 1, Place::Front);
    auto dst = image<Pxl8u>(w, h, 3, gapless, 2);
    ASSERT_EQ(pxlStsOk, pxliCopy_8u_C3R(src->roi(), src->step(), dst->roi(), dst->step(), {w, h}));
    EXPECT_EQ(src->roiBytes(), dst->roiBytes());

    const Pxl8u v[3] = {1, 2, 3};
    const auto before = dst->snapshot();
    ASSERT_EQ(pxlStsOk, pxliSet_8u_C3R(v, dst->roi(), dst->step(), {w, h}));
    EXPECT_TRUE(dst->outsideUnchanged(before));
    const std::vector<Pxl8u> got = dst->roiBytes();
    std::size_t bad = 0;
    for (std::size_t i = 0; i < got.size(); ++i) bad += got[i] != v[i % 3];
    EXPECT_EQ(bad, 0u);

    const int w1 = 3000 * 3 + 1;  // C1 8u: gapless ones are one row of 27 MB
    auto one = image<Pxl8u>(w1, 1000, 1, gapless, 3);
    ASSERT_EQ(pxlStsOk, pxliSet_8u_C1R(77, one->roi(), one->step(), {w1, 1000}));
    const std::vector<Pxl8u> all = one->roiBytes();
    EXPECT_EQ(std::count(all.begin(), all.end(), Pxl8u(77)), std::ptrdiff_t(all.size()));
  }
}

TEST(Dup, OneSampleToThree) {
  const int w = 45, h = 3;
  TestImage src(w, h, 1, 1, 2, Place::Front, 1), dst(w, h, 3, 3, 0, Place::Back, 2);
  Expected<Pxl8u> want(dst);
  for (int y = 0; y < h; ++y)
    for (int i = 0; i < 3 * w; ++i) want.set(y, i, src.row(y)[i / 3]);
  ASSERT_EQ(pxlStsOk, pxliDup_8u_C1C3R(src.roi(), src.step(), dst.roi(), dst.step(), {w, h}));
  EXPECT_TRUE(want.matches());
}

template <class T, class Fn>
void checkSwap(Fn fn, int ch, const int order[3]) {
  for (int w : kWidths) {
    auto src = image<T>(w, 2, ch, false, 40 + w, Place::Front);
    auto dst = image<T>(w, 2, ch, false, 90 + w);
    Expected<T> want(*dst);
    for (int y = 0; y < 2; ++y)
      for (int x = 0; x < w; ++x)
        for (int c = 0; c < 3; ++c) want.set(y, x * ch + c, sampleAt<T>(*src, y, x * ch + order[c]));
    ASSERT_EQ(pxlStsOk, fn(reinterpret_cast<const T*>(src->roi()), src->step(), reinterpret_cast<T*>(dst->roi()),
                           dst->step(), {w, 2}, order));
    ASSERT_TRUE(want.matches()) << "width " << w << " order " << order[0] << order[1] << order[2];
  }
}

TEST(SwapChannels, AnyOrderIncludingRepeatsAndAlphaStays) {
  const int orders[][3] = {{2, 1, 0}, {0, 0, 0}, {1, 2, 0}, {2, 2, 1}};
  for (const auto& o : orders) {
    checkSwap<Pxl8u>(pxliSwapChannels_8u_C3R, 3, o);
    checkSwap<Pxl8u>(pxliSwapChannels_8u_AC4R, 4, o);
    checkSwap<Pxl16u>(pxliSwapChannels_16u_C3R, 3, o);
    checkSwap<Pxl16u>(pxliSwapChannels_16u_AC4R, 4, o);
    checkSwap<Pxl32s>(pxliSwapChannels_32s_AC4R, 4, o);
    checkSwap<Pxl32f>(pxliSwapChannels_32f_C3R, 3, o);
  }
}

TEST(SwapChannels, InPlaceReadsEachPixelWholeFirst) {
  const int orders[][3] = {{1, 1, 1}, {2, 1, 0}, {2, 0, 1}};
  for (const auto& o : orders) {
    const int w = 33, h = 3;
    TestImage im(w, h, 3, 2, 1, Place::Back, 9);
    Expected<Pxl8u> want(im);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x)
        for (int c = 0; c < 3; ++c) want.set(y, 3 * x + c, im.row(y)[3 * x + o[c]]);
    ASSERT_EQ(pxlStsOk, pxliSwapChannels_8u_C3IR(im.roi(), im.step(), {w, h}, o));
    EXPECT_TRUE(want.matches()) << o[0] << o[1] << o[2];
  }
}

TEST(SwapChannels, OrderIsCheckedLastAndNothingIsWritten) {
  TestImage src(8, 2, 3, 0, 0, Place::Front, 1), dst(8, 2, 3, 0, 0, Place::Back, 2);
  const auto before = dst.snapshot();
  const int bad[][3] = {{0, 1, 3}, {-1, 1, 2}, {2, 7, 0}};
  for (const auto& o : bad) {
    EXPECT_EQ(pxlStsChannelOrder, pxliSwapChannels_8u_C3R(src.roi(), src.step(), dst.roi(), dst.step(), {8, 2}, o));
    EXPECT_EQ(pxlStsNullPtr, pxliSwapChannels_8u_C3R(nullptr, src.step(), dst.roi(), dst.step(), {8, 2}, o));
    EXPECT_EQ(pxlStsSize, pxliSwapChannels_8u_C3R(src.roi(), src.step(), dst.roi(), dst.step(), {0, 2}, o));
    EXPECT_EQ(pxlStsStep, pxliSwapChannels_8u_C3R(src.roi(), 0, dst.roi(), dst.step(), {8, 2}, o));
    EXPECT_EQ(pxlStsChannelOrder, pxliSwapChannels_8u_C3IR(dst.roi(), dst.step(), {8, 2}, o));
  }
  EXPECT_EQ(pxlStsNullPtr, pxliSwapChannels_8u_C3R(src.roi(), src.step(), dst.roi(), dst.step(), {8, 2}, nullptr));
  EXPECT_TRUE(dst.unchanged(before));
}

// Vectors on guard pages at both ends: every length up to a few registers
// and one that streams.
TEST(VectorCopies, CopyMoveSetZeroAtEveryLength) {
  std::mt19937 rng(3);
  std::vector<int> lengths;
  for (int n = 1; n <= 200; ++n) lengths.push_back(n);
  lengths.push_back(3 << 20);
  for (int n : lengths) {
    GuardedBuffer a(std::size_t(n) * 4, Place::Front), b(std::size_t(n) * 4, Place::Back);
    for (std::size_t i = 0; i < a.size(); ++i) a.data()[i] = Pxl8u(rng());
    auto* af = reinterpret_cast<Pxl32f*>(a.data());
    auto* bf = reinterpret_cast<Pxl32f*>(b.data());
    ASSERT_EQ(pxlStsOk, pxlsCopy_32f(af, bf, n));
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size())) << n;
    ASSERT_EQ(pxlStsOk, pxlsCopy_8u(a.data() + 1, b.data() + 2, n * 4 - 2));
    ASSERT_EQ(0, std::memcmp(a.data() + 1, b.data() + 2, a.size() - 2)) << n;

    const Pxl32fc c{1.5f, -2.0f};
    if (n % 2 == 0) {
      ASSERT_EQ(pxlStsOk, pxlsSet_32fc(c, reinterpret_cast<Pxl32fc*>(b.data()), n / 2));
      for (int i = 0; i < n / 2; ++i) ASSERT_TRUE(bf[2 * i] == 1.5f && bf[2 * i + 1] == -2.0f) << n;
    }
    ASSERT_EQ(pxlStsOk, pxlsSet_16s(-300, reinterpret_cast<Pxl16s*>(b.data()), 2 * n));
    for (int i = 0; i < 2 * n; ++i) ASSERT_EQ(reinterpret_cast<Pxl16s*>(b.data())[i], -300) << n;
    ASSERT_EQ(pxlStsOk, pxlsZero_8u(b.data() + 1, 4 * n - 1));
    ASSERT_EQ(b.data()[0], Pxl8u(-300 & 0xff));
    for (int i = 1; i < 4 * n; ++i) ASSERT_EQ(b.data()[i], 0) << n;
  }
  // Move: overlapping both ways.
  std::vector<Pxl16s> v(100);
  for (int i = 0; i < 100; ++i) v[i] = Pxl16s(i);
  ASSERT_EQ(pxlStsOk, pxlsMove_16s(v.data(), v.data() + 3, 90));
  for (int i = 0; i < 90; ++i) ASSERT_EQ(v[i + 3], i);
  ASSERT_EQ(pxlStsOk, pxlsMove_16s(v.data() + 3, v.data(), 90));
  for (int i = 0; i < 90; ++i) ASSERT_EQ(v[i], i);
}

}  // namespace
