// One-level wavelet transforms against their defining sums, on images with
// valid samples around the region; plan statuses.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "pxli.h"

namespace {

constexpr int P = 8;  // valid border around every image

struct Pad {
  int w, h, ch;
  std::vector<float> v;
  Pad(int w_, int h_, int ch_, unsigned seed) : w(w_), h(h_), ch(ch_), v((w + 2 * P) * (h + 2 * P) * ch) {
    std::mt19937 g(seed);
    std::uniform_real_distribution<float> u(-1, 1);
    for (auto& x : v) x = u(g);
  }
  int step() const { return (w + 2 * P) * ch * 4; }
  float* at(int x, int y) { return &v[((y + P) * (w + 2 * P) + x + P) * ch]; }
};

TEST(Wavelet, ForwardAndInverseFollowTheirSums) {
  const float lo[4] = {-0.125f, 0.25f, 0.75f, 0.25f}, hi[3] = {-0.5f, 1.0f, -0.5f};
  const int la = 2, ha = 0;  // anchor 0: a right extent of -1
  for (int ch : {1, 3}) {
    const int W = 5, H = 3;
    Pad src(2 * W, 2 * H, ch, 1 + ch);
    std::vector<Pad> bands(4, Pad(W, H, ch, 0));
    PxlWTFwdCtx* f = nullptr;
    auto init = ch == 1 ? pxliWTFwdInitAlloc_32f_C1R : pxliWTFwdInitAlloc_32f_C3R;
    ASSERT_EQ(init(&f, lo, 4, la, hi, 3, ha), pxlStsOk);
    int bs = 0;
    ASSERT_EQ((ch == 1 ? pxliWTFwdGetBufSize_C1R : pxliWTFwdGetBufSize_C3R)(f, &bs), pxlStsOk);
    std::vector<Pxl8u> buf(bs + 1);
    auto fwd = ch == 1 ? pxliWTFwd_32f_C1R : pxliWTFwd_32f_C3R;
    ASSERT_EQ(fwd(src.at(0, 0), src.step(), bands[0].at(0, 0), bands[0].step(), bands[1].at(0, 0), bands[1].step(),
                  bands[2].at(0, 0), bands[2].step(), bands[3].at(0, 0), bands[3].step(), PxlSize{W, H}, f,
                  buf.data() + 1), pxlStsOk);
    const float* taps[2] = {lo, hi};
    const int len[2] = {4, 3}, anc[2] = {la, ha};
    for (int b = 0; b < 4; ++b) {
      const int v = b & 1, hz = b >> 1;  // LowLow, HighLow, LowHigh, HighHigh
      for (int y = 0; y < H; ++y)
        for (int i = 0; i < W; ++i)
          for (int c = 0; c < ch; ++c) {
            double acc = 0;
            for (int kh = 0; kh < len[hz]; ++kh)
              for (int kv = 0; kv < len[v]; ++kv)
                acc += double(taps[hz][kh]) * taps[v][kv] *
                       src.at(2 * i + anc[hz] - kh, 2 * y + anc[v] - kv)[c];
            EXPECT_NEAR(bands[b].at(i, y)[c], acc, 1e-5) << ch << " " << b;
          }
    }
    EXPECT_EQ((ch == 1 ? pxliWTFwdFree_32f_C1R : pxliWTFwdFree_32f_C3R)(f), pxlStsOk);
    // inverse: x[n] = sum_k g[k] u[n + a - k] in each direction, summed over the bands
    PxlWTInvCtx* iv = nullptr;
    ASSERT_EQ((ch == 1 ? pxliWTInvInitAlloc_32f_C1R : pxliWTInvInitAlloc_32f_C3R)(&iv, lo, 4, la, hi, 3, ha),
              pxlStsOk);
    ASSERT_EQ((ch == 1 ? pxliWTInvGetBufSize_C1R : pxliWTInvGetBufSize_C3R)(iv, &bs), pxlStsOk);
    buf.assign(bs, 0);
    Pad out(2 * W, 2 * H, ch, 9);
    ASSERT_EQ((ch == 1 ? pxliWTInv_32f_C1R : pxliWTInv_32f_C3R)(
                  bands[0].at(0, 0), bands[0].step(), bands[1].at(0, 0), bands[1].step(), bands[2].at(0, 0),
                  bands[2].step(), bands[3].at(0, 0), bands[3].step(), PxlSize{W, H}, out.at(0, 0), out.step(),
                  iv, buf.data()), pxlStsOk);
    for (int y = 0; y < 2 * H; ++y)
      for (int x = 0; x < 2 * W; ++x)
        for (int c = 0; c < ch; ++c) {
          double acc = 0;
          for (int b = 0; b < 4; ++b) {
            const int v = b & 1, hz = b >> 1;
            for (int kh = 0; kh < len[hz]; ++kh)
              for (int kv = 0; kv < len[v]; ++kv) {
                const int mx = x + anc[hz] - kh, my = y + anc[v] - kv;
                if ((mx & 1) || (my & 1)) continue;
                acc += double(taps[hz][kh]) * taps[v][kv] * bands[b].at(mx >> 1, my >> 1)[c];
              }
          }
          EXPECT_NEAR(out.at(x, y)[c], acc, 1e-5) << ch;
        }
    EXPECT_EQ(out.at(-1, 0)[0], Pad(2 * W, 2 * H, ch, 9).at(-1, 0)[0]);  // nothing outside
    EXPECT_EQ((ch == 1 ? pxliWTInvFree_32f_C1R : pxliWTInvFree_32f_C3R)(iv), pxlStsOk);
  }
}

TEST(Wavelet, PlanStatuses) {
  const float t[2] = {0.5f, 0.5f};
  PxlWTFwdCtx* f = nullptr;
  EXPECT_EQ(pxliWTFwdInitAlloc_32f_C1R(nullptr, t, 1, 5, t, 2, 0), pxlStsNullPtr);
  EXPECT_EQ(pxliWTFwdInitAlloc_32f_C1R(&f, t, 1, 5, t, 2, 0), pxlStsSize);  // size before anchor
  EXPECT_EQ(pxliWTFwdInitAlloc_32f_C1R(&f, t, 2, 2, t, 2, 0), pxlStsAnchor);
  ASSERT_EQ(pxliWTFwdInitAlloc_32f_C1R(&f, t, 2, 0, t, 2, 1), pxlStsOk);
  int n;
  EXPECT_EQ(pxliWTFwdGetBufSize_C3R(f, &n), pxlStsSpecMismatch);
  float img[64] = {}, o[4][16];
  EXPECT_EQ(pxliWTFwd_32f_C1R(img, 32, o[0], 16, o[1], 16, o[2], 16, o[3], 16, PxlSize{2, 2}, f, nullptr),
            pxlStsNullPtr);
  Pxl8u buf[4096];
  EXPECT_EQ(pxliWTFwd_32f_C1R(img, 32, o[0], 16, o[1], 16, o[2], 16, o[3], 0, PxlSize{2, 2}, f, buf), pxlStsStep);
  EXPECT_EQ(pxliWTFwd_32f_C1R(img, 32, o[0], 16, o[1], 16, o[2], 16, o[3], 0, PxlSize{0, 2}, f, buf), pxlStsSize);
  EXPECT_EQ(pxliWTFwdFree_32f_C1R(f), pxlStsOk);
}

}  // namespace
