// One-dimensional DFT of any length N.
//
// A power of two runs the FFT plan of that length directly. Any other
// length uses Bluestein's chirp-z identity n*k = (n^2 + k^2 - (k-n)^2)/2:
//   X[k] = w[k] * sum_n (x[n] w[n]) * conj(w[k-n]),  w[n] = exp(-i*pi*n^2/N),
// a linear convolution computed circularly with a power-of-two FFT of length
// M >= 2N-1. The chirp is evaluated in 64-bit float with n^2 reduced modulo
// 2N first, so its angle is exact however large n gets; the kernel's
// spectrum (with the 1/M of the inverse folded in) is made once in the plan.
// The cost is three FFTs of length M per call, O(N log N) for every N, and
// the error stays that of a float FFT of length M. The inverse uses
// IDFT(x) = conj(DFT(conj x)).
//
// Real transforms treat the input as complex with zero imaginary parts and
// write or read the Pack layout of a row: Re X0, (Re, Im) of X1..X(N-1)/2,
// and Re X(N/2) last when N is even.
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "transform/fft.h"

namespace pxl::transform {
namespace {

inline int A16(long long x) { return int((x + 15) & ~15LL); }

int log2Exact(int n) {
  int k = 0;
  while ((1 << k) < n) ++k;
  return (1 << k) == n ? k : -1;
}

void conjugate(Pxl32fc* v, int n) {
  for (int i = 0; i < n; ++i) v[i].im = -v[i].im;
}

// Forward DFT of length N, unscaled, src may equal dst; work holds M
// complex values and then the FFT's own scratch.
void dftForwardRaw(const PxlDftCtx* s, const Pxl32fc* src, Pxl32fc* dst, Pxl32fc* work) {
  const int N = s->length, M = s->convLen;
  if (M == 0) {
    fftC(s->fft, src, dst, work, false);
    return;
  }
  for (int n = 0; n < N; ++n) {
    const Pxl32fc x = src[n], w = s->chirp[n];
    work[n] = {x.re * w.re - x.im * w.im, x.re * w.im + x.im * w.re};
  }
  for (int n = N; n < M; ++n) work[n] = {0.0f, 0.0f};
  Pxl32fc* fbuf = work + M;
  fftC(s->fft, work, work, fbuf, false);
  for (int k = 0; k < M; ++k) {
    const Pxl32fc a = work[k], b = s->kernel[k];
    work[k] = {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  }
  fftC(s->fft, work, work, fbuf, true);
  for (int k = 0; k < N; ++k) {
    const Pxl32fc a = work[k], w = s->chirp[k];
    dst[k] = {a.re * w.re - a.im * w.im, a.re * w.im + a.im * w.re};
  }
}

void scaleBy(Pxl32f* v, long long count, Pxl32f k) {
  for (long long i = 0; i < count; ++i) v[i] *= k;
}

}  // namespace

void dftC(const PxlDftCtx* s, const Pxl32fc* src, Pxl32fc* dst, void* buffer, bool inverse) {
  const int N = s->length;
  auto* work = static_cast<Pxl32fc*>(buffer);
  if (inverse) {
    if (src != dst) std::memmove(dst, src, std::size_t(N) * sizeof(Pxl32fc));
    conjugate(dst, N);
    dftForwardRaw(s, dst, dst, work);
    conjugate(dst, N);
  } else {
    dftForwardRaw(s, src, dst, work);
  }
  if (inverse ? s->scaleInv : s->scaleFwd) scaleBy(&dst->re, 2LL * N, s->scale);
}

// Scratch of a real call: N complex values in front of the complex scratch.
void dftRFwdPack(const PxlDftCtx* s, const Pxl32f* src, Pxl32f* dst, void* buffer) {
  const int N = s->length;
  auto* z = static_cast<Pxl32fc*>(buffer);
  for (int n = 0; n < N; ++n) z[n] = {src[n], 0.0f};
  dftC(s, z, z, reinterpret_cast<char*>(buffer) + A16(8LL * N), false);
  dst[0] = z[0].re;
  int i = 1;
  for (int k = 1; 2 * k < N; ++k) { dst[i++] = z[k].re; dst[i++] = z[k].im; }
  if (N % 2 == 0 && N > 1) dst[N - 1] = z[N / 2].re;
}

void dftRInvPack(const PxlDftCtx* s, const Pxl32f* src, Pxl32f* dst, void* buffer) {
  const int N = s->length;
  auto* z = static_cast<Pxl32fc*>(buffer);
  z[0] = {src[0], 0.0f};
  int i = 1;
  for (int k = 1; 2 * k < N; ++k, i += 2) {
    z[k] = {src[i], src[i + 1]};
    z[N - k] = {src[i], -src[i + 1]};
  }
  if (N % 2 == 0 && N > 1) z[N / 2] = {src[N - 1], 0.0f};
  dftC(s, z, z, reinterpret_cast<char*>(buffer) + A16(8LL * N), true);
  for (int n = 0; n < N; ++n) dst[n] = z[n].re;
}

int dftBufBytes(const PxlDftCtx* s) { return s->bufSize > 0 ? s->bufSize + 16 : 0; }

PxlStatus dftInitAlloc(PxlDftCtx** spec, int length, int flag, int hint, bool real) {
  if (!spec) return pxlStsNullPtr;
  if (length < 1) return pxlStsSize;
  if (length > (1 << 26)) return pxlStsAlloc;
  Pxl32s fwd = 0, inv = 0;
  Pxl32f scale = 0.0f;
  if (!applyFlag(flag, double(length), fwd, inv, scale)) return pxlStsFFTFlag;
  const int p2 = log2Exact(length);
  int M = 0;
  if (p2 < 0) {
    M = 1;
    while (M < 2 * length - 1) M <<= 1;
  }
  const long long tables = M ? 8LL * length + 8LL * M : 0;
  auto* s = static_cast<PxlDftCtx*>(std::calloc(1, sizeof(PxlDftCtx) + std::size_t(tables) + 16));
  if (!s) return pxlStsAlloc;
  s->length = length;
  s->hint = hint;
  s->scaleFwd = fwd;
  s->scaleInv = inv;
  s->scale = scale;
  s->convLen = M;
  const int order = p2 >= 0 ? p2 : log2Exact(M);
  PxlStatus st = fftInitAlloc(&s->fft, order, pxlFftScaleNone, hint, false);
  if (st != pxlStsOk) { std::free(s); return st; }
  const int fb = fftBufBytes(s->fft);
  long long buf = M ? A16(8LL * M) + fb : fb;
  if (real) buf += A16(8LL * length) + 16;  // the complex copy of the row, and its alignment
  s->bufSize = int(buf);
  if (M) {
    s->chirp = static_cast<Pxl32fc*>(alignUp16(s + 1));
    s->kernel = s->chirp + length;
    const double pi = 3.141592653589793;
    const long long twoN = 2LL * length;
    for (long long n = 0; n < length; ++n) {
      const double a = -pi * double((n * n) % twoN) / double(length);
      s->chirp[n] = {Pxl32f(std::cos(a)), Pxl32f(std::sin(a))};
    }
    // conj(w[m]) at m = 0..N-1 and at M-m, zero between, then its FFT / M.
    for (int m = 0; m < M; ++m) s->kernel[m] = {0.0f, 0.0f};
    for (long long n = 0; n < length; ++n) {
      const double a = pi * double((n * n) % twoN) / double(length);
      const Pxl32fc v = {Pxl32f(std::cos(a) / M), Pxl32f(std::sin(a) / M)};
      s->kernel[n] = v;
      if (n) s->kernel[M - n] = v;
    }
    bool ok = withScratch(nullptr, fb, [&](void* b) { fftC(s->fft, s->kernel, s->kernel, b, false); });
    if (!ok) { fftFree(s->fft, kTagFftC); std::free(s); return pxlStsAlloc; }
  }
  s->tag = real ? kTagDftR : kTagDftC;
  *spec = s;
  return pxlStsOk;
}

PxlStatus dftFree(PxlDftCtx* s, Pxl32s tag) {
  if (!s) return pxlStsNullPtr;
  if (s->tag != tag) return pxlStsSpecMismatch;
  s->tag = 0;
  fftFree(s->fft, kTagFftC);
  std::free(s);
  return pxlStsOk;
}

// ---- entry points ----------------------------------------------------------
namespace {
template <class Run>
PxlStatus run(const PxlDftCtx* s, Pxl32s tag, const void* src, const void* dst, Pxl8u* buffer, Run&& r) {
  if (!s) return pxlStsNullPtr;
  if (s->tag != tag) return pxlStsSpecMismatch;
  if (!src || !dst) return pxlStsNullPtr;
  return withScratch(buffer, s->bufSize, r) ? pxlStsOk : pxlStsAlloc;
}
}  // namespace

PxlStatus dftBufSize(const PxlDftCtx* s, int* size, Pxl32s tag) {
  if (!s || !size) return pxlStsNullPtr;
  if (s->tag != tag) return pxlStsSpecMismatch;
  *size = dftBufBytes(s);
  return pxlStsOk;
}
PxlStatus dftCToC(const Pxl32fc* src, Pxl32fc* dst, const PxlDftCtx* s, Pxl8u* buffer, bool inv) {
  return run(s, kTagDftC, src, dst, buffer, [&](void* b) { dftC(s, src, dst, b, inv); });
}
PxlStatus dftRFwd(const Pxl32f* src, Pxl32f* dst, const PxlDftCtx* s, Pxl8u* buffer) {
  return run(s, kTagDftR, src, dst, buffer, [&](void* b) { dftRFwdPack(s, src, dst, b); });
}
PxlStatus dftRInv(const Pxl32f* src, Pxl32f* dst, const PxlDftCtx* s, Pxl8u* buffer) {
  return run(s, kTagDftR, src, dst, buffer, [&](void* b) { dftRInvPack(s, src, dst, b); });
}

}  // namespace pxl::transform

#include "shims/transform/psdft.inc"
