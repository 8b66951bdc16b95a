// One-dimensional FFT and DFT against a slow double-precision DFT, plus the
// plan rules: sizes, caller memory, statuses, layouts.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <random>
#include <thread>
#include <vector>

#include "pxls.h"

namespace {

using cd = std::complex<double>;

std::vector<cd> slowDft(const std::vector<cd>& x, int sign) {
  const size_t n = x.size();
  std::vector<cd> X(n);
  for (size_t k = 0; k < n; ++k) {
    cd acc = 0;
    for (size_t j = 0; j < n; ++j) {
      const double a = sign * 2 * M_PI * double((j * k) % n) / double(n);
      acc += x[j] * cd(std::cos(a), std::sin(a));
    }
    X[k] = acc;
  }
  return X;
}

std::vector<Pxl32fc> randomC(int n, unsigned seed) {
  std::mt19937 g(seed);
  std::uniform_real_distribution<float> u(-1, 1);
  std::vector<Pxl32fc> v(n);
  for (auto& c : v) c = {u(g), u(g)};
  return v;
}

// Error bound of a float transform of length n with inputs in [-1, 1]:
// a few ulps per stage on values of size sqrt(n).
double bound(int n) { return 4e-7 * std::sqrt(double(n)) * (std::log2(double(n)) + 2) * 4; }

double expectedScale(int flag, int n, bool fwd) {
  if (flag == pxlFftScaleSqrt) return 1 / std::sqrt(double(n));
  if (flag == (fwd ? pxlFftScaleFwd : pxlFftScaleInv)) return 1.0 / n;
  return 1;
}

TEST(FFT, ComplexMatchesSlowDftEveryOrderAndFlag) {
  for (int order = 0; order <= 11; ++order)
    for (int flag : {1, 2, 4, 8}) {
      const int n = 1 << order;
      PxlFftCtx* s = nullptr;
      ASSERT_EQ(pxlsFFTInitAlloc_C_32fc(&s, order, flag, 0), pxlStsOk);
      int bs = 0;
      ASSERT_EQ(pxlsFFTGetBufSize_C_32fc(s, &bs), pxlStsOk);
      std::vector<Pxl8u> buf(bs + 1);
      auto x = randomC(n, order * 10 + flag);
      for (bool fwd : {true, false}) {
        std::vector<cd> xd(n);
        for (int i = 0; i < n; ++i) xd[i] = {x[i].re, x[i].im};
        auto ref = slowDft(xd, fwd ? -1 : 1);
        std::vector<Pxl32fc> y(n);
        // odd buffer address: it is aligned up inside
        ASSERT_EQ((fwd ? pxlsFFTFwd_CToC_32fc : pxlsFFTInv_CToC_32fc)(x.data(), y.data(), s, buf.data() + 1),
                  pxlStsOk);
        const double k = expectedScale(flag, n, fwd);
        for (int i = 0; i < n; ++i) {
          EXPECT_NEAR(y[i].re, ref[i].real() * k, bound(n) * std::max(1.0, k * n)) << order << " " << flag;
          EXPECT_NEAR(y[i].im, ref[i].imag() * k, bound(n) * std::max(1.0, k * n)) << order << " " << flag;
        }
      }
      EXPECT_EQ(pxlsFFTFree_C_32fc(s), pxlStsOk);
    }
}

TEST(FFT, RoundTripAndInPlaceLargeOrders) {
  for (int order : {12, 13, 16}) {
    const int n = 1 << order;
    PxlFftCtx* s = nullptr;
    ASSERT_EQ(pxlsFFTInitAlloc_C_32fc(&s, order, pxlFftScaleInv, 0), pxlStsOk);
    auto x = randomC(n, order);
    auto y = x;
    ASSERT_EQ(pxlsFFTFwd_CToC_32fc(y.data(), y.data(), s, nullptr), pxlStsOk);
    // Parseval: sum |X|^2 = N sum |x|^2
    double ex = 0, eX = 0;
    for (int i = 0; i < n; ++i) {
      ex += double(x[i].re) * x[i].re + double(x[i].im) * x[i].im;
      eX += double(y[i].re) * y[i].re + double(y[i].im) * y[i].im;
    }
    EXPECT_NEAR(eX / (n * ex), 1.0, 1e-5);
    ASSERT_EQ(pxlsFFTInv_CToC_32fc(y.data(), y.data(), s, nullptr), pxlStsOk);
    for (int i = 0; i < n; ++i) {
      EXPECT_NEAR(y[i].re, x[i].re, 2e-6 * order);
      EXPECT_NEAR(y[i].im, x[i].im, 2e-6 * order);
    }
    pxlsFFTFree_C_32fc(s);
  }
}

TEST(FFT, RealPackAndPermMatchSlowDft) {
  for (int order = 0; order <= 12; ++order) {
    const int n = 1 << order, h = n / 2;
    PxlFftCtx* s = nullptr;
    ASSERT_EQ(pxlsFFTInitAlloc_R_32f(&s, order, pxlFftScaleInv, 0), pxlStsOk);
    std::mt19937 g(order);
    std::uniform_real_distribution<float> u(-1, 1);
    std::vector<float> x(n), pack(n), perm(n), back(n);
    std::vector<cd> xd(n);
    for (int i = 0; i < n; ++i) xd[i] = x[i] = u(g);
    auto X = slowDft(xd, -1);
    ASSERT_EQ(pxlsFFTFwd_RToPack_32f(x.data(), pack.data(), s, nullptr), pxlStsOk);
    ASSERT_EQ(pxlsFFTFwd_RToPerm_32f(x.data(), perm.data(), s, nullptr), pxlStsOk);
    const double b = bound(n);
    EXPECT_NEAR(pack[0], X[0].real(), b);
    EXPECT_NEAR(perm[0], X[0].real(), b);
    if (n > 1) {
      EXPECT_NEAR(pack[n - 1], X[h].real(), b);
      EXPECT_NEAR(perm[1], X[h].real(), b);
    }
    for (int k = 1; k < h; ++k) {
      EXPECT_NEAR(pack[2 * k - 1], X[k].real(), b) << order << " " << k;
      EXPECT_NEAR(pack[2 * k], X[k].imag(), b) << order << " " << k;
      EXPECT_EQ(perm[2 * k], pack[2 * k - 1]);
      EXPECT_EQ(perm[2 * k + 1], pack[2 * k]);
    }
    back = pack;
    ASSERT_EQ(pxlsFFTInv_PackToR_32f(back.data(), back.data(), s, nullptr), pxlStsOk);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(back[i], x[i], 1e-6 * (order + 1));
    ASSERT_EQ(pxlsFFTInv_PermToR_32f(perm.data(), back.data(), s, nullptr), pxlStsOk);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(back[i], x[i], 1e-6 * (order + 1));
    pxlsFFTFree_R_32f(s);
  }
}

TEST(FFT, PlanInCallerMemoryAndSizes) {
  int sp, in, bu;
  ASSERT_EQ(pxlsFFTGetSize_C_32fc(3, 99, 0, &sp, &in, &bu), pxlStsOk);  // flag ignored
  EXPECT_EQ(in, 0);
  EXPECT_EQ(bu, 0);
  ASSERT_EQ(pxlsFFTGetSize_C_32fc(10, 1, 0, &sp, &in, &bu), pxlStsOk);
  EXPECT_EQ(bu, 8192 + 16);
  for (bool real : {false, true}) {
    const int order = 11;
    ASSERT_EQ((real ? pxlsFFTGetSize_R_32f : pxlsFFTGetSize_C_32fc)(order, 1, 0, &sp, &in, &bu), pxlStsOk);
    std::vector<Pxl8u> mem(sp), init(in);
    PxlFftCtx* s = nullptr;
    // odd addresses are aligned up inside the reported sizes
    ASSERT_EQ((real ? pxlsFFTInit_R_32f : pxlsFFTInit_C_32fc)(&s, order, pxlFftScaleFwd, 0, mem.data(),
                                                              init.data()), pxlStsOk);
    PxlFftCtx* a = nullptr;
    ASSERT_EQ((real ? pxlsFFTInitAlloc_R_32f : pxlsFFTInitAlloc_C_32fc)(&a, order, pxlFftScaleFwd, 0), pxlStsOk);
    std::vector<Pxl32fc> x = randomC(1 << order, 5), y1(1 << order), y2(1 << order);
    if (real) {
      pxlsFFTFwd_RToPack_32f(&x[0].re, &y1[0].re, s, nullptr);
      pxlsFFTFwd_RToPack_32f(&x[0].re, &y2[0].re, a, nullptr);
    } else {
      pxlsFFTFwd_CToC_32fc(x.data(), y1.data(), s, nullptr);
      pxlsFFTFwd_CToC_32fc(x.data(), y2.data(), a, nullptr);
    }
    EXPECT_EQ(0, std::memcmp(y1.data(), y2.data(), y1.size() * 8));
    // a caller-memory plan only loses its tag
    EXPECT_EQ((real ? pxlsFFTFree_R_32f : pxlsFFTFree_C_32fc)(s), pxlStsOk);
    EXPECT_EQ((real ? pxlsFFTFree_R_32f : pxlsFFTFree_C_32fc)(s), pxlStsSpecMismatch);
    EXPECT_EQ((real ? pxlsFFTFree_R_32f : pxlsFFTFree_C_32fc)(a), pxlStsOk);
  }
}

TEST(FFT, StatusesInCheckOrder) {
  int a, b, c;
  PxlFftCtx* s = nullptr;
  EXPECT_EQ(pxlsFFTGetSize_R_32f(31, 1, 0, nullptr, &b, &c), pxlStsFFTOrder);
  EXPECT_EQ(pxlsFFTGetSize_R_32f(-1, 1, 0, &a, &b, &c), pxlStsFFTOrder);
  EXPECT_EQ(pxlsFFTGetSize_R_32f(30, 1, 0, &a, nullptr, &c), pxlStsNullPtr);
  EXPECT_EQ(pxlsFFTInitAlloc_C_32fc(nullptr, 40, 3, 0), pxlStsNullPtr);
  EXPECT_EQ(pxlsFFTInitAlloc_C_32fc(&s, 31, 3, 0), pxlStsFFTOrder);
  EXPECT_EQ(pxlsFFTInitAlloc_C_32fc(&s, 5, 3, 0), pxlStsFFTFlag);
  EXPECT_EQ(s, nullptr);
  std::vector<Pxl8u> mem(4096);
  EXPECT_EQ(pxlsFFTInit_C_32fc(&s, 5, 1, 0, nullptr, nullptr), pxlStsNullPtr);
  EXPECT_EQ(pxlsFFTInit_C_32fc(&s, 5, 0, 0, mem.data(), nullptr), pxlStsFFTFlag);  // flag before initBuf
  EXPECT_EQ(pxlsFFTInit_C_32fc(&s, 5, 1, 0, mem.data(), nullptr), pxlStsNullPtr);
  EXPECT_EQ(s, nullptr);
  EXPECT_EQ(pxlsFFTInit_C_32fc(&s, 3, 1, 0, mem.data(), nullptr), pxlStsOk);  // no tables below 4
  ASSERT_EQ(pxlsFFTInitAlloc_C_32fc(&s, 4, pxlFftScaleNone, 0), pxlStsOk);
  std::vector<Pxl32fc> x(16, Pxl32fc{1, 2}), y(16, Pxl32fc{7, 7});
  // a complex plan in a real call, null arrays, then a freed plan: nothing written
  EXPECT_EQ(pxlsFFTFwd_RToPack_32f(&x[0].re, &y[0].re, s, nullptr), pxlStsSpecMismatch);
  EXPECT_EQ(pxlsFFTGetBufSize_R_32f(s, &a), pxlStsSpecMismatch);
  EXPECT_EQ(pxlsFFTFwd_CToC_32fc(nullptr, y.data(), s, nullptr), pxlStsNullPtr);
  EXPECT_EQ(pxlsFFTFwd_CToC_32fc(x.data(), y.data(), nullptr, nullptr), pxlStsNullPtr);
  EXPECT_EQ(pxlsFFTFree_C_32fc(s), pxlStsOk);
  for (auto& v : y) EXPECT_EQ(v.re, 7);
}

TEST(FFT, ImpulseAndShiftGiveExactSpectra) {
  PxlFftCtx* s = nullptr;
  const int n = 1 << 10;
  ASSERT_EQ(pxlsFFTInitAlloc_C_32fc(&s, 10, pxlFftScaleNone, 0), pxlStsOk);
  std::vector<Pxl32fc> x(n, Pxl32fc{0, 0}), y(n);
  x[0] = {1, 0};
  pxlsFFTFwd_CToC_32fc(x.data(), y.data(), s, nullptr);
  for (auto v : y) { EXPECT_EQ(v.re, 1); EXPECT_EQ(v.im, 0); }
  // impulse at n/4: spectrum (-i)^k exactly
  x[0] = {0, 0};
  x[n / 4] = {1, 0};
  pxlsFFTFwd_CToC_32fc(x.data(), y.data(), s, nullptr);
  const float re[4] = {1, 0, -1, 0}, im[4] = {0, -1, 0, 1};
  for (int k = 0; k < n; ++k) {
    EXPECT_NEAR(y[k].re, re[k % 4], 1e-6);
    EXPECT_NEAR(y[k].im, im[k % 4], 1e-6);
  }
  pxlsFFTFree_C_32fc(s);
}

// One plan serves several threads at once, each with scratch of its own
// (or none), and gives each the result of a lone call.
TEST(FFT, OnePlanSharedByThreads) {
  PxlDftCtx* s = nullptr;
  const int n = 1000;
  ASSERT_EQ(pxlsDFTInitAlloc_C_32fc(&s, n, pxlFftScaleFwd, 0), pxlStsOk);
  auto x = randomC(n, 77);
  std::vector<Pxl32fc> ref(n);
  ASSERT_EQ(pxlsDFTFwd_CToC_32fc(x.data(), ref.data(), s, nullptr), pxlStsOk);
  std::vector<std::vector<Pxl32fc>> out(4, std::vector<Pxl32fc>(n));
  std::vector<std::thread> team;
  for (int t = 0; t < 4; ++t)
    team.emplace_back([&, t] {
      int bs = 0;
      pxlsDFTGetBufSize_C_32fc(s, &bs);
      std::vector<Pxl8u> buf(bs);
      for (int r = 0; r < 20; ++r) pxlsDFTFwd_CToC_32fc(x.data(), out[t].data(), s, t % 2 ? buf.data() : nullptr);
    });
  for (auto& th : team) th.join();
  for (auto& o : out) EXPECT_EQ(0, std::memcmp(o.data(), ref.data(), n * sizeof(Pxl32fc)));
  pxlsDFTFree_C_32fc(s);
}

TEST(DFT, AnyLengthMatchesSlowDft) {
  for (int n : {1, 2, 3, 5, 6, 7, 12, 17, 64, 100, 480, 640, 1000}) {
    PxlDftCtx* c = nullptr;
    PxlDftCtx* r = nullptr;
    ASSERT_EQ(pxlsDFTInitAlloc_C_32fc(&c, n, pxlFftScaleInv, 0), pxlStsOk);
    ASSERT_EQ(pxlsDFTInitAlloc_R_32f(&r, n, pxlFftScaleInv, 0), pxlStsOk);
    auto x = randomC(n, n);
    std::vector<cd> xd(n), xr(n);
    std::vector<float> xf(n), pk(n), back(n);
    for (int i = 0; i < n; ++i) {
      xd[i] = {x[i].re, x[i].im};
      xr[i] = xf[i] = x[i].re;
    }
    auto X = slowDft(xd, -1), XR = slowDft(xr, -1);
    std::vector<Pxl32fc> y(n), z(n);
    ASSERT_EQ(pxlsDFTFwd_CToC_32fc(x.data(), y.data(), c, nullptr), pxlStsOk);
    const double b = 4 * bound(n);
    for (int k = 0; k < n; ++k) {
      EXPECT_NEAR(y[k].re, X[k].real(), b) << n;
      EXPECT_NEAR(y[k].im, X[k].imag(), b) << n;
    }
    ASSERT_EQ(pxlsDFTInv_CToC_32fc(y.data(), z.data(), c, nullptr), pxlStsOk);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(z[i].re, x[i].re, 1e-5) << n;
    ASSERT_EQ(pxlsDFTFwd_RToPack_32f(xf.data(), pk.data(), r, nullptr), pxlStsOk);
    EXPECT_NEAR(pk[0], XR[0].real(), b);
    for (int k = 1; 2 * k < n; ++k) {
      EXPECT_NEAR(pk[2 * k - 1], XR[k].real(), b);
      EXPECT_NEAR(pk[2 * k], XR[k].imag(), b);
    }
    if (n % 2 == 0) { EXPECT_NEAR(pk[n - 1], XR[n / 2].real(), b); }
    ASSERT_EQ(pxlsDFTInv_PackToR_32f(pk.data(), pk.data(), r, nullptr), pxlStsOk);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(pk[i], xf[i], 1e-5) << n;
    EXPECT_EQ(pxlsDFTFwd_CToC_32fc(x.data(), y.data(), reinterpret_cast<PxlDftCtx*>(r), nullptr),
              pxlStsSpecMismatch);
    EXPECT_EQ(pxlsDFTFree_C_32fc(c), pxlStsOk);
    EXPECT_EQ(pxlsDFTFree_R_32f(r), pxlStsOk);
  }
  PxlDftCtx* c = nullptr;
  EXPECT_EQ(pxlsDFTInitAlloc_C_32fc(&c, 0, 1, 0), pxlStsSize);
  EXPECT_EQ(pxlsDFTInitAlloc_C_32fc(&c, 5, 6, 0), pxlStsFFTFlag);
}

}  // namespace
