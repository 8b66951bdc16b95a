// Lookup tables: the two argument-check orders (C1 against C3/C4/AC4) with
// two faults at once, the worked cases of each rule, the 8u row kernel at
// every length and alignment, and LUTPalette's masking, bit limits and
// check order. Nothing is written on any error.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

struct Img {
  TestImage src{8, 3, 4, 4, 4, Place::Back, 1};
  TestImage dst{8, 3, 4, 4, 4, Place::Front, 2};
};

TEST(LutChecks, C1LooksAtTheCountAfterSizeAndStep) {
  Img im;
  const int lv[] = {10, 20}, vl[] = {100, 200};
  const auto snap = im.dst.snapshot();
  auto call = [&](const Pxl8u* s, int ss, int ds, PxlSize r, const int* v, const int* l, int n) {
    return pxliLUT_8u_C1R(s, ss, im.dst.roi(), ds, r, v, l, n);
  };
  const Pxl8u* s = im.src.roi();
  const int st = im.src.step();
  const PxlSize ok{8, 3}, w0{0, 3};
  EXPECT_EQ(call(nullptr, st, st, w0, vl, lv, 1), pxlStsNullPtr);
  EXPECT_EQ(call(s, st, st, ok, vl, nullptr, 1), pxlStsNullPtr);
  EXPECT_EQ(call(s, st, st, ok, nullptr, lv, 2), pxlStsNullPtr);
  EXPECT_EQ(call(s, 0, st, w0, vl, lv, 1), pxlStsSize);
  EXPECT_EQ(call(s, st, 0, ok, vl, lv, 1), pxlStsStep);
  EXPECT_EQ(call(s, st, -3, ok, vl, lv, 2), pxlStsStep);
  EXPECT_EQ(call(s, st, st, ok, vl, lv, 1), pxlStsLUTLevels);
  EXPECT_EQ(call(s, st, st, ok, vl, lv, -5), pxlStsLUTLevels);
  // The same order for the other rules and types.
  const float lf[] = {0.f, 1.f}, vf[] = {0.f, 1.f};
  EXPECT_EQ(pxliLUT_Cubic_32f_C1IR(reinterpret_cast<Pxl32f*>(im.dst.roi()), 0, w0, vf, lf, 1), pxlStsSize);
  EXPECT_EQ(pxliLUT_Linear_16s_C1R(nullptr, 2, nullptr, 2, w0, vl, lv, 1), pxlStsNullPtr);
  EXPECT_EQ(pxliLUT_Linear_16u_C1IR(reinterpret_cast<Pxl16u*>(im.dst.roi()), 0, ok, vl, lv, 1), pxlStsStep);
  EXPECT_TRUE(im.dst.unchanged(snap));
}

TEST(LutChecks, OtherLayoutsLookAtEachChannelBeforeSizeAndStep) {
  Img im;
  const int lv[] = {10, 20}, vl[] = {100, 200};
  const int* L[] = {lv, lv, lv};
  const int* Vv[] = {vl, vl, vl};
  const int* Lnull1[] = {lv, nullptr, lv};
  const int n3[] = {2, 2, 2}, n1at2[] = {2, 2, 1}, n1at0[] = {1, 2, 2};
  const auto snap = im.dst.snapshot();
  Pxl8u* d = im.dst.roi();
  const Pxl8u* s = im.src.roi();
  const int st = im.src.step();
  const PxlSize ok{2, 3}, w0{0, 3};
  // The edge case the order exists for: a bad count before a zero width.
  EXPECT_EQ(pxliLUT_8u_C3R(s, st, d, st, w0, Vv, L, n1at2), pxlStsLUTLevels);
  EXPECT_EQ(pxliLUT_8u_C3R(s, 0, d, st, ok, Vv, L, n1at0), pxlStsLUTLevels);
  // Pointers come first, the outer arrays before any channel.
  EXPECT_EQ(pxliLUT_8u_C3R(s, st, d, st, w0, Vv, L, nullptr), pxlStsNullPtr);
  EXPECT_EQ(pxliLUT_8u_C3R(nullptr, st, d, st, ok, Vv, L, n1at0), pxlStsNullPtr);
  // Channel by channel: channel 1's null plane before channel 2's count,
  // channel 0's count before channel 1's null plane.
  EXPECT_EQ(pxliLUT_8u_C3R(s, st, d, st, ok, Vv, Lnull1, n1at2), pxlStsNullPtr);
  EXPECT_EQ(pxliLUT_8u_C3R(s, st, d, st, ok, Vv, Lnull1, n1at0), pxlStsLUTLevels);
  // Then size before step.
  EXPECT_EQ(pxliLUT_8u_C3R(s, 0, d, st, w0, Vv, L, n3), pxlStsSize);
  EXPECT_EQ(pxliLUT_8u_C3R(s, st, d, -1, ok, Vv, L, n3), pxlStsStep);
  // AC4 describes three channels only: a fourth entry is never read.
  const int* L3[] = {lv, lv, lv, nullptr};
  const int n4[] = {2, 2, 2, 0};
  EXPECT_EQ(pxliLUT_Linear_8u_AC4IR(d, 0, w0, Vv, L3, n1at2), pxlStsLUTLevels);
  const int* V4[] = {vl, vl, vl, vl};
  EXPECT_EQ(pxliLUT_Linear_8u_C4IR(d, st, ok, V4, L3, n4), pxlStsNullPtr);
  EXPECT_TRUE(im.dst.unchanged(snap));
  EXPECT_EQ(pxliLUT_Linear_8u_AC4IR(d, st, ok, Vv, L3, n4), pxlStsOk);
  const float lf[] = {0.f, 1.f}, vf[] = {0.f, 1.f};
  const float* LF[] = {lf, lf, lf, lf};
  const float* VF[] = {vf, vf, vf, vf};
  const int nf[] = {2, 2, 2, 1};
  EXPECT_EQ(pxliLUT_Cubic_32f_C4R(reinterpret_cast<const Pxl32f*>(s), st, reinterpret_cast<Pxl32f*>(d), st,
                                  PxlSize{0, 0}, VF, LF, nf), pxlStsLUTLevels);
}

// One sample at a time through a C1 member.
template <class T, class F>
T one(F f, T s) {
  T out = 0;
  EXPECT_EQ(f(&s, int(sizeof(T)), &out, int(sizeof(T)), PxlSize{1, 1}), pxlStsOk);
  return out;
}

TEST(LutRules, WorkedCasesOfEachRule) {
  const int lv[] = {10, 20}, vl[] = {100, 200};
  auto step = [&](const Pxl8u* s, int ss, Pxl8u* d, int ds, PxlSize r) { return pxliLUT_8u_C1R(s, ss, d, ds, r, vl, lv, 2); };
  auto lin = [&](const Pxl8u* s, int ss, Pxl8u* d, int ds, PxlSize r) { return pxliLUT_Linear_8u_C1R(s, ss, d, ds, r, vl, lv, 2); };
  EXPECT_EQ(one<Pxl8u>(step, 9), 9);
  EXPECT_EQ(one<Pxl8u>(step, 10), 100);
  EXPECT_EQ(one<Pxl8u>(step, 19), 100);
  EXPECT_EQ(one<Pxl8u>(step, 20), 20);
  EXPECT_EQ(one<Pxl8u>(lin, 15), 150);  // trunc(150.5)
  EXPECT_EQ(one<Pxl8u>(lin, 20), 20);
  // Values past the range clamp; the last value is never used by the step.
  const int lv3[] = {0, 100, 200}, vl3[] = {300, -40, 999};
  auto step3 = [&](const Pxl8u* s, int ss, Pxl8u* d, int ds, PxlSize r) { return pxliLUT_8u_C1R(s, ss, d, ds, r, vl3, lv3, 3); };
  EXPECT_EQ(one<Pxl8u>(step3, 50), 255);
  EXPECT_EQ(one<Pxl8u>(step3, 150), 0);
  EXPECT_EQ(one<Pxl8u>(step3, 200), 200);
  // 16s: a negative line truncates toward zero: -3.7 + 0.5 gives -3.
  const int lvs[] = {0, 10}, vls[] = {0, -74};
  auto lins = [&](const Pxl16s* s, int ss, Pxl16s* d, int ds, PxlSize r) { return pxliLUT_Linear_16s_C1R(s, ss, d, ds, r, vls, lvs, 2); };
  EXPECT_EQ(one<Pxl16s>(lins, 1), -6);  // -7.4 + 0.5 = -6.9
  EXPECT_EQ(one<Pxl16s>(lins, 5), -36);  // -37 + 0.5
  // A zero-length interval is skipped: 20 belongs to [20, 30).
  const int lz[] = {10, 20, 20, 30}, vz[] = {0, 50, 80, 200};
  auto linz = [&](const Pxl8u* s, int ss, Pxl8u* d, int ds, PxlSize r) { return pxliLUT_Linear_8u_C1R(s, ss, d, ds, r, vz, lz, 4); };
  EXPECT_EQ(one<Pxl8u>(linz, 20), 80);
  EXPECT_EQ(one<Pxl8u>(linz, 25), 140);
  // A cubic through points on a cubic reproduces it: y = x^3 / 1000.
  const int lc[] = {0, 10, 20, 30, 40, 50}, vc[] = {0, 1, 8, 27, 64, 125};
  auto cub = [&](const Pxl16u* s, int ss, Pxl16u* d, int ds, PxlSize r) { return pxliLUT_Cubic_16u_C1R(s, ss, d, ds, r, vc, lc, 6); };
  for (int x : {0, 5, 15, 25, 33, 45, 49}) EXPECT_EQ(one<Pxl16u>(cub, Pxl16u(x)), int(x * x * x / 1000.0 + 0.5)) << x;
  // Fewer than four levels: Cubic is Linear, for every sample.
  const int l3[] = {5, 90, 250}, v3[] = {200, 7, 255};
  for (int s = 0; s < 256; ++s) {
    Pxl8u in = Pxl8u(s), a = 0, b = 0;
    ASSERT_EQ(pxliLUT_Cubic_8u_C1R(&in, 1, &a, 1, {1, 1}, v3, l3, 3), pxlStsOk);
    ASSERT_EQ(pxliLUT_Linear_8u_C1R(&in, 1, &b, 1, {1, 1}, v3, l3, 3), pxlStsOk);
    ASSERT_EQ(a, b) << s;
  }
}

TEST(LutRules, Float32NaNAndTheLastLevel) {
  const float lv[] = {-1.f, 0.f, 2.f, 3.f, 5.f}, vl[] = {10.f, 20.f, 30.f, 40.f, 50.f};
  const float nan = std::nanf("");
  float in[4] = {nan, 5.f, -1.5f, 0.f}, out[4];
  ASSERT_EQ(pxliLUT_32f_C1R(in, 16, out, 16, {4, 1}, vl, lv, 5), pxlStsOk);
  EXPECT_EQ(out[0], 10.f);  // NaN matches interval 0
  EXPECT_EQ(out[1], 5.f);   // at the last level: unchanged
  EXPECT_EQ(out[2], -1.5f);
  EXPECT_EQ(out[3], 20.f);
  ASSERT_EQ(pxliLUT_Linear_32f_C1R(in, 16, out, 16, {4, 1}, vl, lv, 5), pxlStsOk);
  EXPECT_TRUE(std::isnan(out[0]));
  EXPECT_EQ(out[1], 5.f);
  EXPECT_EQ(out[3], 20.f);
  ASSERT_EQ(pxliLUT_Cubic_32f_C1IR(in, 16, {4, 1}, vl, lv, 5), pxlStsOk);
  EXPECT_TRUE(std::isnan(in[0]));
  EXPECT_EQ(in[1], 5.f);
  EXPECT_NEAR(in[3], 20.f, 1e-5f);
}

// Levels outside the sample range: the runs they bound are clipped to the
// map rather than stepping outside it.
TEST(LutRules, LevelsOutsideTheRangeAreClipped) {
  std::vector<Pxl8u> in(256), out(256);
  for (int i = 0; i < 256; ++i) in[i] = Pxl8u(i);
  const int above[] = {300, 400}, below[] = {-20, -10}, wide[] = {-100, 400}, vals[] = {7, 9};
  ASSERT_EQ(pxliLUT_8u_C1R(in.data(), 256, out.data(), 256, {256, 1}, vals, above, 2), pxlStsOk);
  EXPECT_EQ(out, in);
  ASSERT_EQ(pxliLUT_Cubic_8u_C1R(in.data(), 256, out.data(), 256, {256, 1}, vals, below, 2), pxlStsOk);
  EXPECT_EQ(out, in);
  ASSERT_EQ(pxliLUT_8u_C1R(in.data(), 256, out.data(), 256, {256, 1}, vals, wide, 2), pxlStsOk);
  EXPECT_EQ(out, std::vector<Pxl8u>(256, 7));
  // The line keeps its slope from the real levels: (s + 100) * 2 / 500.
  const int lw[] = {-100, 400}, vw[] = {0, 1000};
  ASSERT_EQ(pxliLUT_Linear_8u_C1R(in.data(), 256, out.data(), 256, {256, 1}, vw, lw, 2), pxlStsOk);
  for (int s = 0; s < 256; ++s) ASSERT_EQ(out[s], std::min(255, int((s + 100) * 2.0 + 0.5))) << s;
  std::vector<Pxl16s> in16(4, -32768), out16(4);
  in16[1] = 32767, in16[2] = 0;
  const int l16[] = {-40000, 0, 40000}, v16[] = {5, 6, 7};
  ASSERT_EQ(pxliLUT_16s_C1R(in16.data(), 8, out16.data(), 8, {4, 1}, v16, l16, 3), pxlStsOk);  // search
  EXPECT_EQ(out16, (std::vector<Pxl16s>{5, 6, 6, 5}));
  const int* V4[] = {v16, v16, v16, v16};
  const int* L4[] = {l16, l16, l16, l16};
  const int n4[] = {3, 3, 3, 3};
  ASSERT_EQ(pxliLUT_16s_C4R(in16.data(), 8, out16.data(), 8, {1, 1}, V4, L4, n4), pxlStsOk);  // map
  EXPECT_EQ(out16, (std::vector<Pxl16s>{5, 6, 6, 5}));
}

// The 8u row kernel works 8 (C3: 24) bytes a turn; every length and start
// offset must give the table's entry for every sample, in place as well.
TEST(LutRules, EightBitKernelAtEveryLengthAndAlignment) {
  std::mt19937 rng(5);
  const int lv[] = {0, 37, 38, 120, 121, 250}, vl[] = {255, 3, 300, 90, -2, 0};
  std::vector<int> table(256);
  for (int s = 0; s < 256; ++s) {
    int v = s;
    for (int k = 0; k < 5; ++k)
      if (s >= lv[k] && s < lv[k + 1]) v = std::min(255, std::max(0, vl[k]));
    table[s] = v;
  }
  const int* L[] = {lv, lv, lv, lv};
  const int* Vv[] = {vl, vl, vl, vl};
  const int n[] = {6, 6, 6, 6};
  for (int C : {1, 3, 4})
    for (int w = 1; w <= 40; ++w)
      for (int off = 0; off < 8; ++off)
        for (bool inplace : {false, true}) {
          TestImage src(w, 2, C, off, 3, Place::Back, 9);
          TestImage dst(w, 2, C, 8 - off, 1, Place::Back, 10);
          for (int y = 0; y < 2; ++y)
            for (int i = 0; i < w * C; ++i) src.row(y)[i] = Pxl8u(rng());
          const auto in0 = src.roiBytes();
          TestImage& out = inplace ? src : dst;
          const auto snap = out.snapshot();
          Pxl8u* d = out.roi();
          const PxlSize r{w, 2};
          PxlStatus st;
          if (C == 1)
            st = inplace ? pxliLUT_8u_C1IR(d, out.step(), r, vl, lv, 6) : pxliLUT_8u_C1R(src.roi(), src.step(), d, out.step(), r, vl, lv, 6);
          else if (C == 3)
            st = inplace ? pxliLUT_8u_C3IR(d, out.step(), r, Vv, L, n) : pxliLUT_8u_C3R(src.roi(), src.step(), d, out.step(), r, Vv, L, n);
          else
            st = inplace ? pxliLUT_8u_C4IR(d, out.step(), r, Vv, L, n) : pxliLUT_8u_C4R(src.roi(), src.step(), d, out.step(), r, Vv, L, n);
          ASSERT_EQ(st, pxlStsOk);
          ASSERT_TRUE(out.outsideUnchanged(snap)) << C << " " << w << " " << off;
          const auto got = out.roiBytes();
          for (std::size_t i = 0; i < got.size(); ++i)
            ASSERT_EQ(got[i], table[in0[i]]) << "C" << C << " width " << w << " offset " << off << " byte " << i;
        }
}

TEST(LutPalette, MaskBitLimitsAndCheckOrder) {
  std::mt19937 rng(3);
  // 0x0013 with 4 bits reads entry 3.
  std::vector<Pxl8u> t8(1 << 16);
  for (auto& v : t8) v = Pxl8u(rng());
  Pxl16u s13 = 0x0013;
  Pxl8u o = 0;
  ASSERT_EQ(pxliLUTPalette_16u8u_C1R(&s13, 2, &o, 1, {1, 1}, t8.data(), 4), pxlStsOk);
  EXPECT_EQ(o, t8[3]);
  // Limits: 1..8 for 8u sources, 1..16 for 16u.
  Pxl8u s8 = 0xff, o3[3];
  EXPECT_EQ(pxliLUTPalette_8u24u_C1R(&s8, 1, o3, 3, {1, 1}, t8.data(), 9), pxlStsPaletteBits);
  EXPECT_EQ(pxliLUTPalette_8u24u_C1R(&s8, 1, o3, 3, {1, 1}, t8.data(), 0), pxlStsPaletteBits);
  EXPECT_EQ(pxliLUTPalette_16u24u_C1R(&s13, 2, o3, 3, {1, 1}, t8.data(), 9), pxlStsOk);
  EXPECT_EQ(pxliLUTPalette_16u24u_C1R(&s13, 2, o3, 3, {1, 1}, t8.data(), 17), pxlStsPaletteBits);
  // Null, then step, then size, then bits.
  Img im;
  const auto snap = im.dst.snapshot();
  Pxl32u* d = reinterpret_cast<Pxl32u*>(im.dst.roi());
  const std::vector<Pxl32u> t32(256, 1);
  EXPECT_EQ(pxliLUTPalette_8u32u_C1R(nullptr, 0, d, 32, {0, 1}, t32.data(), 0), pxlStsNullPtr);
  EXPECT_EQ(pxliLUTPalette_8u32u_C1R(im.src.roi(), 8, d, 32, {8, 3}, nullptr, 4), pxlStsNullPtr);
  EXPECT_EQ(pxliLUTPalette_8u32u_C1R(im.src.roi(), 0, d, 32, {0, 1}, t32.data(), 0), pxlStsStep);
  EXPECT_EQ(pxliLUTPalette_8u32u_C1R(im.src.roi(), 8, d, 32, {8, -1}, t32.data(), 0), pxlStsSize);
  EXPECT_EQ(pxliLUTPalette_8u32u_C1R(im.src.roi(), 8, d, 32, {8, 3}, t32.data(), 0), pxlStsPaletteBits);
  EXPECT_TRUE(im.dst.unchanged(snap));
}

// Every palette form on a random guarded image against table[s & mask].
template <class S, int NB, class D, class F>
void paletteCase(F f, int bits, std::mt19937& rng) {
  const int w = 23, h = 4;
  std::vector<Pxl8u> table(static_cast<std::size_t>(NB) << bits);
  for (auto& v : table) v = Pxl8u(rng());
  TestImage src(w, h, sizeof(S), 2, 6, Place::Back, 1);
  TestImage dst(w, h, NB, 4, 4, Place::Front, 2);  // 32u rows stay 4-byte aligned
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) src.at<S>(y)[x] = S(rng());
  const auto snap = dst.snapshot();
  ASSERT_EQ(f(src.at<S>(0), src.step(), reinterpret_cast<D*>(dst.roi()), dst.step(), PxlSize{w, h},
              reinterpret_cast<const D*>(table.data()), bits), pxlStsOk);
  ASSERT_TRUE(dst.outsideUnchanged(snap));
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      const unsigned idx = src.at<S>(y)[x] & ((1u << bits) - 1);
      ASSERT_EQ(std::memcmp(dst.row(y) + x * NB, &table[idx * NB], NB), 0) << bits << " bits at " << x;
    }
}

TEST(LutPalette, EveryFormIndexesTheMaskedSample) {
  std::mt19937 rng(11);
  for (int bits : {1, 5, 8}) {
    paletteCase<Pxl8u, 3, Pxl8u>(pxliLUTPalette_8u24u_C1R, bits, rng);
    paletteCase<Pxl8u, 4, Pxl32u>(pxliLUTPalette_8u32u_C1R, bits, rng);
  }
  for (int bits : {1, 9, 16}) {
    paletteCase<Pxl16u, 1, Pxl8u>(pxliLUTPalette_16u8u_C1R, bits, rng);
    paletteCase<Pxl16u, 3, Pxl8u>(pxliLUTPalette_16u24u_C1R, bits, rng);
    paletteCase<Pxl16u, 4, Pxl32u>(pxliLUTPalette_16u32u_C1R, bits, rng);
  }
}

}  // namespace
