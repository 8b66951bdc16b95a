// Image FFT/DFT: the two-dimensional Pack layout against a slow double DFT,
// round trips, channel layouts and the integer forms.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>
#include <vector>

#include "pxli.h"
#include "pxls.h"

namespace {

using cd = std::complex<double>;

cd slow2d(const std::vector<float>& a, int W, int H, int k, int j) {
  cd acc = 0;
  for (int v = 0; v < H; ++v)
    for (int u = 0; u < W; ++u) {
      const double ang = -2 * M_PI * (double((u * k) % W) / W + double((v * j) % H) / H);
      acc += double(a[v * W + u]) * cd(std::cos(ang), std::sin(ang));
    }
  return acc;
}

// Reads F(k, j) back out of a Pack image, by the table of cells.
cd fromPack(const std::vector<float>& p, int W, int H, int k, int j) {
  auto A = [&](int u, int v) { return double(p[v * W + u]); };
  auto column = [&](int u, int jj) -> cd {  // real column u holding a 1-D Pack
    if (jj == 0) return A(u, 0);
    if (H % 2 == 0 && jj == H / 2) return A(u, H - 1);
    if (2 * jj < H) return {A(u, 2 * jj - 1), A(u, 2 * jj)};
    cd c = {A(u, 2 * (H - jj) - 1), A(u, 2 * (H - jj))};
    return std::conj(c);
  };
  if (k == 0) return column(0, j);
  if (W % 2 == 0 && k == W / 2) return column(W - 1, j);
  if (2 * k < W) return {A(2 * k - 1, j), A(2 * k, j)};
  return std::conj(fromPack(p, W, H, W - k, (H - j) % H));
}

std::vector<float> randomImage(int n, unsigned seed) {
  std::mt19937 g(seed);
  std::uniform_real_distribution<float> u(-1, 1);
  std::vector<float> v(n);
  for (auto& x : v) x = u(g);
  return v;
}

TEST(FFT2D, PackLayoutMatchesSlowDftAndRoundTrips) {
  struct Case { int W, H; bool fft; };
  for (Case c : {Case{1, 1, true}, {8, 1, true}, {1, 8, true}, {2, 4, true}, {16, 8, true}, {32, 32, true},
                 Case{3, 5, false}, {7, 6, false}, {10, 9, false}, {1, 7, false}, {6, 1, false}}) {
    const int W = c.W, H = c.H;
    auto a = randomImage(W * H, W * 100 + H);
    std::vector<float> p(W * H), back(W * H);
    PxlFftCtx2D* f = nullptr;
    PxlDftCtx2D* d = nullptr;
    if (c.fft) {
      ASSERT_EQ(pxliFFTInitAlloc_R_32f(&f, int(std::log2(W)), int(std::log2(H)), pxlFftScaleInv, 0), pxlStsOk);
      ASSERT_EQ(pxliFFTFwd_RToPack_32f_C1R(a.data(), 4 * W, p.data(), 4 * W, f, nullptr), pxlStsOk);
    } else {
      ASSERT_EQ(pxliDFTInitAlloc_R_32f(&d, PxlSize{W, H}, pxlFftScaleInv, 0), pxlStsOk);
      ASSERT_EQ(pxliDFTFwd_RToPack_32f_C1R(a.data(), 4 * W, p.data(), 4 * W, d, nullptr), pxlStsOk);
    }
    for (int j = 0; j < H; ++j)
      for (int k = 0; k < W; ++k) {
        const cd e = slow2d(a, W, H, k, j), g = fromPack(p, W, H, k, j);
        EXPECT_NEAR(g.real(), e.real(), 1e-4) << W << "x" << H << " " << k << "," << j;
        EXPECT_NEAR(g.imag(), e.imag(), 1e-4) << W << "x" << H << " " << k << "," << j;
      }
    back = p;
    if (c.fft) ASSERT_EQ(pxliFFTInv_PackToR_32f_C1IR(back.data(), 4 * W, f, nullptr), pxlStsOk);
    else ASSERT_EQ(pxliDFTInv_PackToR_32f_C1IR(back.data(), 4 * W, d, nullptr), pxlStsOk);
    for (int i = 0; i < W * H; ++i) EXPECT_NEAR(back[i], a[i], 1e-5);
    if (f) { EXPECT_EQ(pxliFFTFree_R_32f(f), pxlStsOk); }
    if (d) { EXPECT_EQ(pxliDFTFree_R_32f(d), pxlStsOk); }
  }
}

TEST(FFT2D, ComplexMatchesRowsThenColumnsOfOneDimensional) {
  const int W = 16, H = 4;
  std::vector<Pxl32fc> a(W * H), b(W * H);
  auto r = randomImage(2 * W * H, 9);
  for (int i = 0; i < W * H; ++i) a[i] = {r[2 * i], r[2 * i + 1]};
  PxlFftCtx2D* s = nullptr;
  ASSERT_EQ(pxliFFTInitAlloc_C_32fc(&s, 4, 2, pxlFftScaleNone, 0), pxlStsOk);
  ASSERT_EQ(pxliFFTFwd_CToC_32fc_C1R(a.data(), 8 * W, b.data(), 8 * W, s, nullptr), pxlStsOk);
  for (int j = 0; j < H; ++j)
    for (int k = 0; k < W; ++k) {
      cd acc = 0;
      for (int v = 0; v < H; ++v)
        for (int u = 0; u < W; ++u)
          acc += cd(a[v * W + u].re, a[v * W + u].im) * std::polar(1.0, -2 * M_PI * (double(u * k) / W + double(v * j) / H));
      EXPECT_NEAR(b[j * W + k].re, acc.real(), 1e-4);
      EXPECT_NEAR(b[j * W + k].im, acc.imag(), 1e-4);
    }
  ASSERT_EQ(pxliFFTInv_CToC_32fc_C1IR(b.data(), 8 * W, s, nullptr), pxlStsOk);
  for (int i = 0; i < W * H; ++i) EXPECT_NEAR(b[i].re, W * H * a[i].re, 1e-3);
  PxlFftCtx2D* wrong = nullptr;
  ASSERT_EQ(pxliFFTInitAlloc_R_32f(&wrong, 4, 2, pxlFftScaleNone, 0), pxlStsOk);
  EXPECT_EQ(pxliFFTFwd_CToC_32fc_C1R(a.data(), 8 * W, b.data(), 8 * W, wrong, nullptr), pxlStsSpecMismatch);
  EXPECT_EQ(pxliFFTFwd_CToC_32fc_C1R(a.data(), 0, b.data(), 8 * W, s, nullptr), pxlStsStep);
  EXPECT_EQ(pxliFFTInitAlloc_C_32fc(&s, 31, 2, 1, 0), pxlStsFFTOrder);
  EXPECT_EQ(pxliFFTInitAlloc_C_32fc(&s, 3, 2, 5, 0), pxlStsFFTFlag);
  EXPECT_EQ(pxliDFTInitAlloc_C_32fc(nullptr, PxlSize{0, 2}, 1, 0), pxlStsNullPtr);
  pxliFFTFree_R_32f(wrong);
  EXPECT_EQ(pxliFFTFree_C_32fc(s), pxlStsOk);
}

// Each channel of a C3/AC4 image is the C1 transform of that channel;
// the alpha of AC4 is not touched.
TEST(FFT2D, ChannelLayoutsAndIntegerForms) {
  const int W = 6, H = 5;
  PxlDftCtx2D* s = nullptr;
  ASSERT_EQ(pxliDFTInitAlloc_R_32f(&s, PxlSize{W, H}, pxlFftScaleFwd, 0), pxlStsOk);
  auto src = randomImage(4 * W * H, 4);
  std::vector<float> dst(4 * W * H, 42.0f), plane(W * H), ref(W * H);
  ASSERT_EQ(pxliDFTFwd_RToPack_32f_AC4R(src.data(), 16 * W, dst.data(), 16 * W, s, nullptr), pxlStsOk);
  for (int c = 0; c < 4; ++c) {
    for (int i = 0; i < W * H; ++i) plane[i] = src[4 * i + c];
    ASSERT_EQ(pxliDFTFwd_RToPack_32f_C1R(plane.data(), 4 * W, ref.data(), 4 * W, s, nullptr), pxlStsOk);
    for (int i = 0; i < W * H; ++i) {
      if (c == 3) EXPECT_EQ(dst[4 * i + c], 42.0f);
      else EXPECT_EQ(dst[4 * i + c], ref[i]);
    }
  }
  // 8u -> 32s: the float transform of the converted image, rounded
  PxlDftCtx2D32s* q = nullptr;
  ASSERT_EQ(pxliDFTInitAlloc_R_32s(&q, PxlSize{W, H}, pxlFftScaleNone, 0), pxlStsOk);
  PxlDftCtx2D* fs = nullptr;
  ASSERT_EQ(pxliDFTInitAlloc_R_32f(&fs, PxlSize{W, H}, pxlFftScaleNone, 0), pxlStsOk);
  std::vector<Pxl8u> img(3 * W * H), img2(3 * W * H);
  for (int i = 0; i < 3 * W * H; ++i) img[i] = Pxl8u((i * 37) % 256);
  std::vector<Pxl32s> spec(3 * W * H);
  ASSERT_EQ(pxliDFTFwd_RToPack_8u32s_C3RSfs(img.data(), 3 * W, spec.data(), 12 * W, q, 1, nullptr), pxlStsOk);
  std::vector<float> fl(3 * W * H);
  for (int i = 0; i < 3 * W * H; ++i) fl[i] = img[i];
  ASSERT_EQ(pxliDFTFwd_RToPack_32f_C3IR(fl.data(), 12 * W, fs, nullptr), pxlStsOk);
  for (int i = 0; i < 3 * W * H; ++i) EXPECT_EQ(spec[i], Pxl32s(std::nearbyint(fl[i] / 2))) << i;
  // back with the scale that undoes 1/2 and the W*H of the unscaled pair
  ASSERT_EQ(pxliDFTInv_PackToR_32s8u_C3RSfs(spec.data(), 12 * W, img2.data(), 3 * W, q, 4, nullptr), pxlStsOk);
  for (int i = 0; i < 3 * W * H; ++i) EXPECT_NEAR(img2[i], img[i] * double(W * H) / 32, 1.0);
  // (A plan from InitAlloc is gone after Free: only a plan in the caller's
  // memory can be shown to refuse a second use.)
  EXPECT_EQ(pxliDFTFree_R_32s(q), pxlStsOk);
  pxliDFTFree_R_32f(fs);
  pxliDFTFree_R_32f(s);
}

}  // namespace
