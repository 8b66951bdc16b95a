// Frequency transforms against FFTW (single precision, FFTW_MEASURE plans
// made outside the timing) and OpenCV (cv::dft, cv::dct) on the same data.
// Rows: Transform/<what>/<side>; compare side "pxl" with "fftw" and "cv".
#include <benchmark/benchmark.h>
#include <fftw3.h>

#include <opencv2/core.hpp>
#include <vector>

#include "pxli.h"
#include "pxls.h"

namespace {

std::vector<float> data(size_t n) {
  std::vector<float> v(n);
  for (size_t i = 0; i < n; ++i) v[i] = float((i * 7919) % 1000) / 1000.0f - 0.5f;
  return v;
}

void C1dPxl(benchmark::State& st) {
  const int order = int(st.range(0)), n = 1 << order;
  PxlFftCtx* s = nullptr;
  pxlsFFTInitAlloc_C_32fc(&s, order, pxlFftScaleNone, 0);
  int bs = 0;
  pxlsFFTGetBufSize_C_32fc(s, &bs);
  std::vector<Pxl8u> buf(bs + 1);
  auto x = data(2 * n), y = x;
  for (auto _ : st)
    pxlsFFTFwd_CToC_32fc(reinterpret_cast<Pxl32fc*>(x.data()), reinterpret_cast<Pxl32fc*>(y.data()), s, buf.data());
  st.SetItemsProcessed(st.iterations() * n);
  pxlsFFTFree_C_32fc(s);
}
void C1dFftw(benchmark::State& st) {
  const int n = 1 << st.range(0);
  auto* in = fftwf_alloc_complex(n);
  auto* out = fftwf_alloc_complex(n);
  fftwf_plan p = fftwf_plan_dft_1d(n, in, out, FFTW_FORWARD, FFTW_MEASURE);
  auto x = data(2 * n);
  std::copy(x.begin(), x.end(), &in[0][0]);
  for (auto _ : st) fftwf_execute(p);
  st.SetItemsProcessed(st.iterations() * n);
  fftwf_destroy_plan(p);
  fftwf_free(in);
  fftwf_free(out);
}
void C1dCv(benchmark::State& st) {
  const int n = 1 << st.range(0);
  auto x = data(2 * n);
  cv::Mat a(1, n, CV_32FC2, x.data()), b;
  for (auto _ : st) cv::dft(a, b);
  st.SetItemsProcessed(st.iterations() * n);
}
void R1dPxl(benchmark::State& st) {
  const int order = int(st.range(0)), n = 1 << order;
  PxlFftCtx* s = nullptr;
  pxlsFFTInitAlloc_R_32f(&s, order, pxlFftScaleNone, 0);
  int bs = 0;
  pxlsFFTGetBufSize_R_32f(s, &bs);
  std::vector<Pxl8u> buf(bs + 1);
  auto x = data(n), y = x;
  for (auto _ : st) pxlsFFTFwd_RToPack_32f(x.data(), y.data(), s, buf.data());
  st.SetItemsProcessed(st.iterations() * n);
  pxlsFFTFree_R_32f(s);
}
void R1dFftw(benchmark::State& st) {
  const int n = 1 << st.range(0);
  auto* in = fftwf_alloc_real(n);
  auto* out = fftwf_alloc_complex(n / 2 + 1);
  fftwf_plan p = fftwf_plan_dft_r2c_1d(n, in, out, FFTW_MEASURE);
  auto x = data(n);
  std::copy(x.begin(), x.end(), in);
  for (auto _ : st) fftwf_execute(p);
  st.SetItemsProcessed(st.iterations() * n);
  fftwf_destroy_plan(p);
  fftwf_free(in);
  fftwf_free(out);
}
void R1dCv(benchmark::State& st) {
  const int n = 1 << st.range(0);
  auto x = data(n);
  cv::Mat a(1, n, CV_32F, x.data()), b;
  for (auto _ : st) cv::dft(a, b);
  st.SetItemsProcessed(st.iterations() * n);
}

// 2-D real: sides given as (W, H); power-of-two sides run the FFT, others the DFT.
void R2dPxl(benchmark::State& st) {
  const int W = int(st.range(0)), H = int(st.range(1));
  const bool pow2 = (W & (W - 1)) == 0 && (H & (H - 1)) == 0;
  auto x = data(size_t(W) * H), y = x;
  PxlFftCtx2D* f = nullptr;
  PxlDftCtx2D* d = nullptr;
  int bs = 0;
  if (pow2) {
    pxliFFTInitAlloc_R_32f(&f, __builtin_ctz(W), __builtin_ctz(H), pxlFftScaleNone, 0);
    pxliFFTGetBufSize_R_32f(f, &bs);
  } else {
    pxliDFTInitAlloc_R_32f(&d, PxlSize{W, H}, pxlFftScaleNone, 0);
    pxliDFTGetBufSize_R_32f(d, &bs);
  }
  std::vector<Pxl8u> buf(bs);
  for (auto _ : st) {
    if (pow2) pxliFFTFwd_RToPack_32f_C1R(x.data(), 4 * W, y.data(), 4 * W, f, buf.data());
    else pxliDFTFwd_RToPack_32f_C1R(x.data(), 4 * W, y.data(), 4 * W, d, buf.data());
  }
  st.SetItemsProcessed(st.iterations() * W * H);
  if (f) pxliFFTFree_R_32f(f);
  if (d) pxliDFTFree_R_32f(d);
}
void R2dFftw(benchmark::State& st) {
  const int W = int(st.range(0)), H = int(st.range(1));
  auto* in = fftwf_alloc_real(size_t(W) * H);
  auto* out = fftwf_alloc_complex(size_t(H) * (W / 2 + 1));
  fftwf_plan p = fftwf_plan_dft_r2c_2d(H, W, in, out, FFTW_MEASURE);
  auto x = data(size_t(W) * H);
  std::copy(x.begin(), x.end(), in);
  for (auto _ : st) fftwf_execute(p);
  st.SetItemsProcessed(st.iterations() * W * H);
  fftwf_destroy_plan(p);
  fftwf_free(in);
  fftwf_free(out);
}
void R2dCv(benchmark::State& st) {
  const int W = int(st.range(0)), H = int(st.range(1));
  auto x = data(size_t(W) * H);
  cv::Mat a(H, W, CV_32F, x.data()), b;
  for (auto _ : st) cv::dft(a, b);  // CCS packed, the same size as the image
  st.SetItemsProcessed(st.iterations() * W * H);
}

// 8x8 DCT over every block of a 1024x1024 float image.
void DctPxl(benchmark::State& st) {
  const bool inv = st.range(0) != 0;
  const int N = 1024;
  auto x = data(size_t(N) * N);
  std::vector<float> blk(64), out(64);
  for (auto _ : st)
    for (int by = 0; by < N; by += 8)
      for (int bx = 0; bx < N; bx += 8) {
        for (int r = 0; r < 8; ++r) std::copy_n(&x[size_t(by + r) * N + bx], 8, &blk[8 * r]);
        (inv ? pxliDCT8x8Inv_32f_C1 : pxliDCT8x8Fwd_32f_C1)(blk.data(), out.data());
        benchmark::DoNotOptimize(out.data());
      }
  st.SetItemsProcessed(st.iterations() * N * N);
}
void DctCv(benchmark::State& st) {
  const bool inv = st.range(0) != 0;
  const int N = 1024;
  auto x = data(size_t(N) * N);
  cv::Mat img(N, N, CV_32F, x.data()), out(8, 8, CV_32F);
  for (auto _ : st)
    for (int by = 0; by < N; by += 8)
      for (int bx = 0; bx < N; bx += 8) {
        cv::Mat b = img(cv::Rect(bx, by, 8, 8));
        cv::dct(b, out, inv ? cv::DCT_INVERSE : 0);
        benchmark::DoNotOptimize(out.data);
      }
  st.SetItemsProcessed(st.iterations() * N * N);
}

}  // namespace

BENCHMARK(C1dPxl)->Name("Transform/FFT1D_C/pxl")->Arg(10)->Arg(16);
BENCHMARK(C1dFftw)->Name("Transform/FFT1D_C/fftw")->Arg(10)->Arg(16);
BENCHMARK(C1dCv)->Name("Transform/FFT1D_C/cv")->Arg(10)->Arg(16);
BENCHMARK(R1dPxl)->Name("Transform/FFT1D_R/pxl")->Arg(10)->Arg(16);
BENCHMARK(R1dFftw)->Name("Transform/FFT1D_R/fftw")->Arg(10)->Arg(16);
BENCHMARK(R1dCv)->Name("Transform/FFT1D_R/cv")->Arg(10)->Arg(16);
BENCHMARK(R2dPxl)->Name("Transform/FFT2D_R/pxl")->Args({512, 512})->Args({1024, 1024})->Args({640, 480})->Unit(benchmark::kMillisecond);
BENCHMARK(R2dFftw)->Name("Transform/FFT2D_R/fftw")->Args({512, 512})->Args({1024, 1024})->Args({640, 480})->Unit(benchmark::kMillisecond);
BENCHMARK(R2dCv)->Name("Transform/FFT2D_R/cv")->Args({512, 512})->Args({1024, 1024})->Args({640, 480})->Unit(benchmark::kMillisecond);
BENCHMARK(DctPxl)->Name("Transform/DCT8x8_32f/pxl")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(DctCv)->Name("Transform/DCT8x8_32f/cv")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
