// One-dimensional FFT of length 2^order: plans, complex and real transforms.
//
// Engine: the core is an in-place decimation-in-time transform. The input is
// first put in bit-reversed order (a swap pass through the middle-bit
// table), then log2(N) radix-2 butterfly stages run with twiddles that every
// stage reads contiguously up to a stage length of 1024; longer stages read
// the half-circle table with a stride. The core needs no scratch; the plan
// still reports the scratch sizes of the published size rules so that
// callers that size buffers from GetSize/GetBufSize stay valid.
//
// Every table value is derived from one quarter-wave sine table computed in
// 64-bit float and rounded once to Pxl32f, never by recurrence.
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "transform/fft.h"

namespace pxl::transform {
namespace {

constexpr int A(long long x) { return int((x + 15) & ~15LL); }
constexpr int bitSize(int n) { return A(4 * ((1LL << n) / 4) + 4); }
// Bytes of the head of a plan and its alignment slack. The record holds
// pointers, so on a 64-bit build it is larger than on the 32-bit one.
constexpr int kHead = int((sizeof(PxlFftCtx) + 15) & ~std::size_t(15)) + 16;
constexpr int kStageMax = 10;  // stages up to 2^10 have contiguous tables

const int kBlkOrder[31] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5, 6, 7,
                           8, 8, 8, 10, 10, 10, 10, 8, 8, 10, 10, 10, 10, 10, 10};

struct Sizes { long long spec, init, buf; };

Sizes largeRule(int n) {
  int k = kBlkOrder[n];
  Sizes s{};
  if (k == 0) return {A(4LL << n) + 8208, 0, 8192};
  int m = n - k;
  if (m < 11) s = {A((8LL << m) + 8), 0, A(8LL << m)};
  else if (kBlkOrder[m] == 0) s = {A(4LL << m) + 8208, 0, 8192};
  else s = largeRule(m);
  s.spec += A((8LL << k) + 8) + (8LL << n);
  s.init += (32LL << k) + bitSize(k);
  if ((32LL << k) > s.buf) s.buf = 32LL << k;
  return s;
}

Sizes coreSizes(int n) {
  if (n <= 10) return {A((8LL << n) + 8) + bitSize(n), 0, A(8LL << n)};
  Sizes s = largeRule(n);
  s.spec += bitSize(n);
  return s;
}

// specSize, initSize, bufSize (bufSize with its 16 alignment bytes).
Sizes planSizes(int order, bool real) {
  if (order <= 3) return {kHead, 0, 0};
  Sizes c = coreSizes(real ? order - 1 : order);
  Sizes r;
  r.spec = c.spec + kHead + (real ? 2LL * A(8 * ((1LL << order) / 4)) : 0);
  r.init = c.init + bitSize(order) + 16;
  r.buf = c.buf > 0 ? c.buf + 16 : 0;
  return r;
}

// Quarter-wave table for L = 2^b: q[j] = sin(2*pi*j/L), j = 0..L/4, the
// upper half through the cosine of the complement so that both halves are
// taken where the functions are accurate.
void baseTable(Pxl32f* q, int b) {
  const long long L = 1LL << b;
  const double w = 6.283185307179586 / double(L);
  for (long long j = 0; j <= L / 4; ++j)
    q[j] = j <= L / 8 ? Pxl32f(std::sin(w * double(j))) : Pxl32f(std::cos(w * double(L / 4 - j)));
}

// cos and sin of 2*pi*k/L for 0 <= k < L/2 from the quarter table of L
// (sign folding across the quarter turn).
inline void cosSin(const Pxl32f* q, long long L, long long k, Pxl32f& c, Pxl32f& s) {
  long long quarter = L / 4;
  if (L < 4) { c = k == 0 ? 1.0f : -1.0f; s = 0.0f; return; }
  if (k <= quarter) { c = q[quarter - k]; s = q[k]; }
  else { c = -q[k - quarter]; s = q[L / 2 - k]; }
}

// Twiddles of the 8-point and smaller transforms, which use no plan table:
// the concatenated stage tables (w_j = exp(-2*pi*i*j/len), j < len/2) of
// the stages 2, 4 and 8.
const Pxl32f kSmallTw[14] = {1, 0,  1, 0, 0, -1,
                             1, 0,  0.70710678f, -0.70710678f, 0, -1, -0.70710678f, -0.70710678f};

inline int revBits(int x, int bits) {
  int r = 0;
  for (int i = 0; i < bits; ++i) r |= ((x >> i) & 1) << (bits - 1 - i);
  return r;
}

// In-place bit reversal of 2^n complex values. mid[i] is the reversal of the
// n-2 middle bits; the top and low bits trade places around it.
void bitReverse(Pxl32fc* d, int n, const Pxl32s* mid) {
  if (n < 2) return;
  const int N = 1 << n, q = N / 4;
  for (int x = 0; x < N; ++x) {
    int a = x >> (n - 1), i = (x >> 1) & (q - 1), b = x & 1;
    int r = b * (N / 2) + 2 * (mid ? mid[i] : revBits(i, n - 2)) + a;
    if (x < r) { Pxl32fc t = d[x]; d[x] = d[r]; d[r] = t; }
  }
}

// One run of h radix-2 butterflies, lo[j] +- w^j * hi[j]; sg = -1 takes
// the conjugate twiddles of the inverse. A constant stride of 1 lets the
// compiler vectorise the contiguous stages.
inline void butterflies(float* __restrict lo, float* __restrict hi, const Pxl32f* __restrict t, int h, int stride,
                        float sg) {
  for (int j = 0; j < h; ++j) {
    const float wr = t[2 * j * stride], wi = sg * t[2 * j * stride + 1];
    const float xr = hi[2 * j], xi = hi[2 * j + 1];
    const float pr = xr * wr - xi * wi, pi = xr * wi + xi * wr;
    const float ur = lo[2 * j], ui = lo[2 * j + 1];
    lo[2 * j] = ur + pr; lo[2 * j + 1] = ui + pi;
    hi[2 * j] = ur - pr; hi[2 * j + 1] = ui - pi;
  }
}

// Radix-2 stages over bit-reversed data. stageTw: concatenated tables of
// the stages up to 2^min(n, 10); half: cos/-sin of k < N/2 for the longer
// stages of a core above 1024.
void stages(Pxl32fc* d, int n, const Pxl32f* stageTw, const Pxl32f* half, bool inv) {
  const int N = 1 << n;
  float* f = reinterpret_cast<float*>(d);
  const float sg = inv ? -1.0f : 1.0f;
  // Length 2 and 4 fused: no multiplies.
  if (n >= 2) {
    for (int i = 0; i < N; i += 4) {
      float* p = f + 2 * i;
      float ar = p[0] + p[2], ai = p[1] + p[3], br = p[0] - p[2], bi = p[1] - p[3];
      float cr = p[4] + p[6], ci = p[5] + p[7], dr = p[4] - p[6], di = p[5] - p[7];
      // b + w*d with w = -i (forward) or +i (inverse)
      float er = sg * di, ei = -sg * dr;
      p[0] = ar + cr; p[1] = ai + ci; p[4] = ar - cr; p[5] = ai - ci;
      p[2] = br + er; p[3] = bi + ei; p[6] = br - er; p[7] = bi - ei;
    }
  } else if (n == 1) {
    float ar = f[0] + f[2], ai = f[1] + f[3], br = f[0] - f[2], bi = f[1] - f[3];
    f[0] = ar; f[1] = ai; f[2] = br; f[3] = bi;
  }
  const Pxl32f* tw = stageTw + 2 * (1 + 2);  // skip the tables of lengths 2 and 4
  for (int s = 3; s <= n; ++s) {
    const int len = 1 << s, h = len / 2;
    const bool contiguous = s <= kStageMax;
    const int stride = contiguous ? 1 : N / len;
    const Pxl32f* t = contiguous ? tw : half;
    for (int i = 0; i < N; i += len) {
      float* __restrict lo = f + 2 * i;
      float* __restrict hi = lo + 2 * h;
      if (contiguous) butterflies(lo, hi, t, h, 1, sg);
      else butterflies(lo, hi, t, h, stride, sg);
    }
    if (contiguous) tw += 2 * h;
  }
}

// The complex core of order n on dst (already holding the input).
void core(const PxlFftCtx* s, Pxl32fc* d, int n, bool inv) {
  if (n <= 3) {
    bitReverse(d, n, nullptr);
    stages(d, n, kSmallTw, nullptr, inv);
    return;
  }
  bitReverse(d, n, s->bitRev);
  stages(d, n, s->twiddle, s->twiddleMerge, inv);
}

void scaleFloats(Pxl32f* v, long long count, Pxl32f k) {
  for (long long i = 0; i < count; ++i) v[i] *= k;
}

int coreOrder(const PxlFftCtx* s) { return s->tag == kTagFftR ? s->order - 1 : s->order; }

// Builds the tables of a plan of order > 3 behind its head. q is the quarter
// table of 2^order.
void buildTables(PxlFftCtx* s, char* mem, const Pxl32f* q) {
  const bool real = s->tag == kTagFftR;
  const int order = s->order, n = coreOrder(s);
  const long long L = 1LL << order, stride = real ? 2 : 1, Nc = 1LL << n;
  auto take = [&](long long bytes) { char* p = mem; mem += A(bytes); return p; };
  s->bitRev = reinterpret_cast<Pxl32s*>(take(4 * (Nc / 4 + 1)));
  for (long long i = 0; i < Nc / 4; ++i) s->bitRev[i] = revBits(int(i), n - 2);
  s->bitRev[Nc / 4] = 0;
  // Stage tables: len = 2, 4, ..., 2^min(n,10), entries exp(-2*pi*i*j/len).
  const int top = n < kStageMax ? n : kStageMax;
  s->twiddle = reinterpret_cast<Pxl32f*>(take(8 * ((1LL << top) - 1)));
  Pxl32f* t = s->twiddle;
  for (int st = 1; st <= top; ++st) {
    const long long len = 1LL << st;
    for (long long j = 0; j < len / 2; ++j) {
      Pxl32f c, sn;
      cosSin(q, L, j * (L / len), c, sn);
      *t++ = c;
      *t++ = -sn;
    }
  }
  if (n > kStageMax) {
    s->twiddleMerge = reinterpret_cast<Pxl32f*>(take(4 * Nc));
    for (long long k = 0; k < Nc / 2; ++k) {
      Pxl32f c, sn;
      cosSin(q, L, k * stride, c, sn);
      s->twiddleMerge[2 * k] = c;
      s->twiddleMerge[2 * k + 1] = -sn;
    }
  }
  if (real) {
    const long long m = L / 4;  // k = 1 .. N/4-1 used; slot 0 unused
    s->realRec = reinterpret_cast<Pxl32f*>(take(8 * m));
    s->ccsRec = reinterpret_cast<Pxl32f*>(take(8 * m));
    for (long long k = 0; k < m; ++k) {
      Pxl32f c, sn;
      cosSin(q, L, k, c, sn);
      // 0.5*cos and 0.5 - 0.5*sin from the double values, rounded once
      const double cd = std::cos(6.283185307179586 * double(k) / double(L));
      const double sd = std::sin(6.283185307179586 * double(k) / double(L));
      s->realRec[2 * k] = Pxl32f(0.5 * cd);
      s->realRec[2 * k + 1] = Pxl32f(0.5 - 0.5 * sd);
      s->ccsRec[2 * k] = c;
      s->ccsRec[2 * k + 1] = -sn;
    }
  }
}

PxlStatus initHead(PxlFftCtx* s, int order, int flag, int hint, bool real, bool owned) {
  std::memset(s, 0, sizeof *s);
  s->order = order;
  s->hint = hint;
  s->owned = owned ? 1 : 0;
  if (!applyFlag(flag, double(1LL << order), s->scaleFwd, s->scaleInv, s->scale))
    return pxlStsFFTFlag;
  s->tag = real ? kTagFftR : kTagFftC;
  Sizes z = planSizes(order, real);
  s->bufSize = z.buf > 0 ? int(z.buf - 16) : 0;
  return pxlStsOk;
}

PxlStatus getSize(int order, int* specSize, int* initSize, int* bufSize, bool real) {
  if (order < 0 || order > 30) return pxlStsFFTOrder;
  if (!specSize || !initSize || !bufSize) return pxlStsNullPtr;
  Sizes z = planSizes(order, real);
  // Orders near 30 exceed an int; such plans cannot be built anyway.
  auto clip = [](long long v) { return v > 0x7fffffff ? 0x7fffffff : int(v); };
  *specSize = clip(z.spec);
  *initSize = clip(z.init);
  *bufSize = clip(z.buf);
  return pxlStsOk;
}

PxlStatus init(PxlFftCtx** spec, int order, int flag, int hint, Pxl8u* specMem, Pxl8u* initBuf,
               bool real) {
  if (!spec) return pxlStsNullPtr;
  if (order < 0 || order > 30) return pxlStsFFTOrder;
  if (!specMem) return pxlStsNullPtr;
  auto* s = static_cast<PxlFftCtx*>(alignUp16(specMem));
  PxlStatus st = initHead(s, order, flag, hint, real, false);
  if (st != pxlStsOk) return st;
  if (order > 3) {
    if (!initBuf) { s->tag = 0; return pxlStsNullPtr; }
    auto* q = static_cast<Pxl32f*>(alignUp16(initBuf));
    baseTable(q, order);
    buildTables(s, reinterpret_cast<char*>(s) + kHead - 16, q);
  }
  *spec = s;
  return pxlStsOk;
}

template <class Run>
PxlStatus transform(const PxlFftCtx* s, Pxl32s tag, const void* src, const void* dst, void* buffer,
                    Run&& run) {
  if (!s) return pxlStsNullPtr;
  if (s->tag != tag) return pxlStsSpecMismatch;
  if (!src || !dst) return pxlStsNullPtr;
  return withScratch(buffer, s->bufSize, run) ? pxlStsOk : pxlStsAlloc;
}

PxlStatus getBufSize(const PxlFftCtx* s, int* size, Pxl32s tag) {
  if (!s || !size) return pxlStsNullPtr;
  if (s->tag != tag) return pxlStsSpecMismatch;
  *size = fftBufBytes(s);
  return pxlStsOk;
}

}  // namespace

bool applyFlag(int flag, double n, Pxl32s& fwd, Pxl32s& inv, Pxl32f& scale) {
  switch (flag) {
    case pxlFftScaleNone: fwd = inv = 0; return true;
    case pxlFftScaleSqrt: fwd = inv = 1; scale = Pxl32f(1.0 / std::sqrt(n)); return true;
    case pxlFftScaleFwd: fwd = 1; inv = 0; scale = Pxl32f(1.0 / n); return true;
    case pxlFftScaleInv: fwd = 0; inv = 1; scale = Pxl32f(1.0 / n); return true;
    default: return false;
  }
}

int fftBufBytes(const PxlFftCtx* s) { return s->bufSize > 0 ? s->bufSize + 16 : 0; }

void fftC(const PxlFftCtx* s, const Pxl32fc* src, Pxl32fc* dst, void*, bool inverse) {
  const long long N = 1LL << s->order;
  if (src != dst) std::memmove(dst, src, std::size_t(N) * sizeof(Pxl32fc));
  core(s, dst, s->order, inverse);
  if (inverse ? s->scaleInv : s->scaleFwd) scaleFloats(&dst->re, 2 * N, s->scale);
}

void fftRFwdPerm(const PxlFftCtx* s, const Pxl32f* src, Pxl32f* dst, void*) {
  const int order = s->order;
  const long long N = 1LL << order, h = N / 2;
  const bool sc = s->scaleFwd != 0;
  if (order <= 3) {
    Pxl32fc z[8];
    for (long long i = 0; i < N; ++i) z[i] = {src[i], 0.0f};
    core(s, z, order, false);
    dst[0] = z[0].re;
    if (N > 1) dst[1] = z[h].re;
    for (long long k = 1; k < h; ++k) { dst[2 * k] = z[k].re; dst[2 * k + 1] = z[k].im; }
    if (sc) scaleFloats(dst, N, s->scale);
    return;
  }
  if (src != dst) std::memmove(dst, src, std::size_t(N) * sizeof(Pxl32f));
  core(s, reinterpret_cast<Pxl32fc*>(dst), order - 1, false);
  if (sc) scaleFloats(dst, N, s->scale);
  const Pxl32f re0 = dst[0], im0 = dst[1];
  dst[0] = re0 + im0;
  dst[1] = re0 - im0;
  const Pxl32f* T = s->realRec;
  for (long long k = 1; k < h / 2; ++k) {
    Pxl32f* zk = dst + 2 * k;
    Pxl32f* zh = dst + 2 * (h - k);
    const Pxl32f a = zk[0], b = zk[1], c = zh[0], d = zh[1];
    const Pxl32f T0 = T[2 * k], T1 = T[2 * k + 1];
    const Pxl32f bd = b + d, ac = a - c;
    const Pxl32f P = T0 * bd + T1 * ac, Q = T1 * bd - T0 * ac;
    zk[0] = c + P; zk[1] = Q - d;
    zh[0] = a - P; zh[1] = Q - b;
  }
  dst[h + 1] = -dst[h + 1];
}

void fftRInvPerm(const PxlFftCtx* s, const Pxl32f* src, Pxl32f* dst, void*) {
  const int order = s->order;
  const long long N = 1LL << order, h = N / 2;
  const bool sc = s->scaleInv != 0;
  if (src != dst) std::memmove(dst, src, std::size_t(N) * sizeof(Pxl32f));
  if (order <= 3) {
    Pxl32fc z[8];
    z[0] = {dst[0], 0.0f};
    if (N > 1) z[h] = {dst[1], 0.0f};
    for (long long k = 1; k < h; ++k) {
      z[k] = {dst[2 * k], dst[2 * k + 1]};
      z[N - k] = {dst[2 * k], -dst[2 * k + 1]};
    }
    core(s, z, order, true);
    for (long long i = 0; i < N; ++i) dst[i] = z[i].re;
    if (sc) scaleFloats(dst, N, s->scale);
    return;
  }
  const Pxl32f x0 = dst[0], xh = dst[1];
  dst[0] = x0 + xh;
  dst[1] = x0 - xh;
  const Pxl32f* T = s->ccsRec;
  for (long long k = 1; k < h / 2; ++k) {
    Pxl32f* xk = dst + 2 * k;
    Pxl32f* xm = dst + 2 * (h - k);
    const Pxl32f a = xk[0], b = xk[1], c = xm[0], d = xm[1];
    const Pxl32f T0 = T[2 * k], T1 = T[2 * k + 1];
    const Pxl32f bd = b + d, ac = a - c;
    const Pxl32f Av = T1 * bd + T0 * ac, Bv = T1 * ac - T0 * bd;
    xk[0] = (a + c) + Bv; xk[1] = (b - d) + Av;
    xm[0] = (a + c) - Bv; xm[1] = (d - b) + Av;
  }
  dst[h] = 2.0f * dst[h];
  dst[h + 1] = -2.0f * dst[h + 1];
  core(s, reinterpret_cast<Pxl32fc*>(dst), order - 1, true);
  if (sc) scaleFloats(dst, N, s->scale);
}

// Pack from Perm: value 1 (Re X[h]) moves to the end, values 2..N-1 one down.
void permToPack(Pxl32f* v, int n) {
  if (n <= 2) return;
  const Pxl32f held = v[1];
  std::memmove(v + 1, v + 2, std::size_t(n - 2) * sizeof(Pxl32f));
  v[n - 1] = held;
}
void packToPerm(Pxl32f* v, int n) {
  if (n <= 2) return;
  const Pxl32f held = v[n - 1];
  std::memmove(v + 2, v + 1, std::size_t(n - 2) * sizeof(Pxl32f));
  v[1] = held;
}

PxlStatus fftInitAlloc(PxlFftCtx** spec, int order, int flag, int hint, bool real) {
  if (!spec) return pxlStsNullPtr;
  if (order < 0 || order > 30) return pxlStsFFTOrder;
  Sizes z = planSizes(order, real);
  if (z.spec > 0x7fffffffLL) return pxlStsAlloc;
  void* raw = std::malloc(std::size_t(z.spec));
  if (!raw) return pxlStsAlloc;
  auto* s = static_cast<PxlFftCtx*>(alignUp16(raw));
  PxlStatus st = initHead(s, order, flag, hint, real, true);
  if (st != pxlStsOk) { std::free(raw); return st; }
  // The owner block starts before the aligned head; keep its address in the
  // reserved word so that Free can give it back.
  s->reserved = raw;
  if (order > 3) {
    void* q = std::malloc(std::size_t(z.init));
    if (!q) { s->tag = 0; std::free(raw); return pxlStsAlloc; }
    baseTable(static_cast<Pxl32f*>(alignUp16(q)), order);
    buildTables(s, reinterpret_cast<char*>(s) + kHead - 16, static_cast<Pxl32f*>(alignUp16(q)));
    std::free(q);
  }
  *spec = s;
  return pxlStsOk;
}

PxlStatus fftFree(PxlFftCtx* s, Pxl32s tag) {
  if (!s) return pxlStsNullPtr;
  if (s->tag != tag) return pxlStsSpecMismatch;
  s->tag = 0;
  if (s->owned) std::free(s->reserved);
  return pxlStsOk;
}

}  // namespace pxl::transform

// ---- entry points ----------------------------------------------------------
namespace pxl::transform {

PxlStatus fftGetSizeC(int order, int, int, int* a, int* b, int* c) { return getSize(order, a, b, c, false); }
PxlStatus fftGetSizeR(int order, int, int, int* a, int* b, int* c) { return getSize(order, a, b, c, true); }
PxlStatus fftInitC(PxlFftCtx** s, int order, int flag, int hint, Pxl8u* m, Pxl8u* ib) {
  return init(s, order, flag, hint, m, ib, false);
}
PxlStatus fftInitR(PxlFftCtx** s, int order, int flag, int hint, Pxl8u* m, Pxl8u* ib) {
  return init(s, order, flag, hint, m, ib, true);
}
PxlStatus fftBufSizeC(const PxlFftCtx* s, int* size) { return getBufSize(s, size, kTagFftC); }
PxlStatus fftBufSizeR(const PxlFftCtx* s, int* size) { return getBufSize(s, size, kTagFftR); }

PxlStatus fftCToC(const Pxl32fc* src, Pxl32fc* dst, const PxlFftCtx* s, Pxl8u* buffer, bool inv) {
  return transform(s, kTagFftC, src, dst, buffer, [&](void* b) { fftC(s, src, dst, b, inv); });
}
PxlStatus fftRFwd(const Pxl32f* src, Pxl32f* dst, const PxlFftCtx* s, Pxl8u* buffer, bool pack) {
  return transform(s, kTagFftR, src, dst, buffer, [&](void* b) {
    fftRFwdPerm(s, src, dst, b);
    if (pack) permToPack(dst, 1 << s->order);
  });
}
PxlStatus fftRInv(const Pxl32f* src, Pxl32f* dst, const PxlFftCtx* s, Pxl8u* buffer, bool pack) {
  return transform(s, kTagFftR, src, dst, buffer, [&](void* b) {
    const int N = 1 << s->order;
    if (pack) {
      if (src != dst) std::memmove(dst, src, std::size_t(N) * sizeof(Pxl32f));
      packToPerm(dst, N);
      fftRInvPerm(s, dst, dst, b);
    } else {
      fftRInvPerm(s, src, dst, b);
    }
  });
}

}  // namespace pxl::transform

#include "shims/transform/psffts.inc"
