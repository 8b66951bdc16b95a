// Two-dimensional FFT (power-of-two sides) and DFT (any sides) of images,
// separable: one-dimensional plans over the rows, then over the columns.
//
// A real image's spectrum is kept in the two-dimensional Pack layout: each
// row first holds the one-dimensional Pack of that row; column 0 (and, for
// an even width, the last column) then holds real data and gets a real
// transform down the column; every other column pair (2k-1, 2k) is the
// real and imaginary part of a complex column and gets a complex transform.
// The inverse runs the same passes in the other order, columns first.
//
// Rows and columns are gathered into a contiguous line in the scratch with
// byte copies (so that any row address works) and transformed there; this
// also makes every in-place form safe. Channels are transformed one at a
// time; the fourth sample of an AC4 pixel is never read or written.
#include <algorithm>
#include <cstdlib>
#include <type_traits>
#include <cstring>

#include "frame/types.h"
#include "pxls.h"
#include "transform/fft.h"

template <class P>
struct Ctx2DT {
  Pxl32s tag, sizeX, sizeY, hint, bufSize;
  P* complexRow;
  P* complexCol;
  P* realRow;
  P* realCol;
};
struct PxlFftCtx2D : Ctx2DT<PxlFftCtx> {};
struct PxlDftCtx2D : Ctx2DT<PxlDftCtx> {};
struct PxlFftCtx2D32s {
  Pxl32s tag, orderX, orderY, hint, bufSize, reserved;
  PxlFftCtx2D* real;
};
struct PxlDftCtx2D32s {
  Pxl32s tag, width, height, bufSize;
  PxlDftCtx2D* real;
};

namespace pxl::transform {
namespace {

inline long long A16(long long x) { return (x + 15) & ~15LL; }
// Scratch bytes per sample of the longer side: four complex lines, so that
// four column pairs are gathered in one sweep down the image.
constexpr long long kLines = 32;

// The one-dimensional engines behind the two plan kinds.
struct FftOps {
  using P = PxlFftCtx;
  using Ctx = PxlFftCtx2D;
  using Ctx32s = PxlFftCtx2D32s;
  static constexpr Pxl32s kC = 25, kR = 26, k32s = 29;
  static int len(int size) { return 1 << size; }
  static PxlStatus make(P** p, int size, int flag, int hint, bool real) {
    return fftInitAlloc(p, size, flag, hint, real);
  }
  static void drop(P* p) { if (p) fftFree(p, p->tag); }
  static int buf(const P* p) { return fftBufBytes(p); }
  static void c(const P* p, Pxl32fc* v, void* b, bool inv) { fftC(p, v, v, b, inv); }
  static void rFwd(const P* p, Pxl32f* v, void* b) {
    fftRFwdPerm(p, v, v, b);
    permToPack(v, 1 << p->order);
  }
  static void rInv(const P* p, Pxl32f* v, void* b) {
    packToPerm(v, 1 << p->order);
    fftRInvPerm(p, v, v, b);
  }
};
struct DftOps {
  using P = PxlDftCtx;
  using Ctx = PxlDftCtx2D;
  using Ctx32s = PxlDftCtx2D32s;
  static constexpr Pxl32s kC = 27, kR = 28, k32s = 30;
  static int len(int size) { return size; }
  static PxlStatus make(P** p, int size, int flag, int hint, bool real) {
    return dftInitAlloc(p, size, flag, hint, real);
  }
  static void drop(P* p) { if (p) dftFree(p, p->tag); }
  static int buf(const P* p) { return dftBufBytes(p); }
  static void c(const P* p, Pxl32fc* v, void* b, bool inv) { dftC(p, v, v, b, inv); }
  static void rFwd(const P* p, Pxl32f* v, void* b) { dftRFwdPack(p, v, v, b); }
  static void rInv(const P* p, Pxl32f* v, void* b) { dftRInvPack(p, v, v, b); }
};

template <class O>
void dropAll(typename O::Ctx* s) {
  O::drop(s->complexRow);
  if (s->complexCol != s->complexRow) O::drop(s->complexCol);
  O::drop(s->realRow);
  if (s->realCol != s->realRow) O::drop(s->realCol);
  std::free(s);
}

// Plan of a float transform; sx, sy are orders (FFT) or sides (DFT).
template <class O>
PxlStatus initAlloc(typename O::Ctx** spec, int sx, int sy, int flag, int hint, bool real) {
  using P = typename O::P;
  auto* s = static_cast<typename O::Ctx*>(std::calloc(1, sizeof(typename O::Ctx)));
  if (!s) return pxlStsAlloc;
  s->sizeX = sx;
  s->sizeY = sy;
  s->hint = hint;
  const long long W = O::len(sx), H = O::len(sy);
  PxlStatus st = pxlStsOk;
  auto make = [&](P** p, int size, bool r) {
    if (st == pxlStsOk) st = O::make(p, size, flag, hint, r);
    return st == pxlStsOk ? O::buf(*p) : 0;
  };
  long long need;
  if (!real) {
    const int b1 = make(&s->complexRow, sx, false);
    int b2 = b1;
    if (W != H) b2 = make(&s->complexCol, sy, false);
    else s->complexCol = s->complexRow;
    need = std::max(64 * H + b2, (long long)b1);
    need = std::max(need, A16(kLines * std::max(W, H)) + std::max(b1, b2));
  } else {
    const int b1 = make(&s->realRow, sx, true);
    int b2 = b1;
    if (W != H) b2 = make(&s->realCol, sy, true);
    else s->realCol = s->realRow;
    const int b3 = make(&s->complexCol, sy, false);
    need = std::max({16 * W + b1, 16 * H + b2, 64 * H + b3});
    need = std::max(need, A16(kLines * std::max(W, H)) + std::max({b1, b2, b3}));
  }
  if (st != pxlStsOk) { dropAll<O>(s); return st; }
  if (need > 0x7fffffffLL - 64) { dropAll<O>(s); return pxlStsAlloc; }
  s->bufSize = int(need);
  s->tag = real ? O::kR : O::kC;
  *spec = s;
  return pxlStsOk;
}

template <class O>
PxlStatus freeCtx(typename O::Ctx* s, bool real) {
  if (!s) return pxlStsNullPtr;
  if (s->tag != (real ? O::kR : O::kC)) return pxlStsSpecMismatch;
  s->tag = 0;
  dropAll<O>(s);
  return pxlStsOk;
}

template <class O>
PxlStatus bufSizeOf(const typename O::Ctx* s, int* size, bool real) {
  if (!s || !size) return pxlStsNullPtr;
  if (s->tag != (real ? O::kR : O::kC)) return pxlStsSpecMismatch;
  *size = s->bufSize + 16;
  return pxlStsOk;
}

// Column and row gathers of one channel: `at(u, v)` is the sample address.
template <class T>
struct Img {
  char* base;
  int step, ps;  // bytes per row, samples per pixel
  T* at(int u, int v) const {
    return reinterpret_cast<T*>(base + std::ptrdiff_t(step) * v) + std::ptrdiff_t(u) * ps;
  }
};

// The complex column pairs (2k-1, 2k) of channel c, up to four at a time:
// one sweep down the image gathers them into four lines of H samples.
template <class O>
void complexColumns(const typename O::Ctx* s, Img<Pxl32f> from, Img<Pxl32f> to, int c, Pxl32fc* z, void* b,
                    bool inv) {
  const int W = O::len(s->sizeX), H = O::len(s->sizeY), pairs = (W - 1) / 2;
  for (int k0 = 1; k0 <= pairs; k0 += 4) {
    const int g = std::min(4, pairs - k0 + 1);
    for (int v = 0; v < H; ++v)
      for (int t = 0; t < g; ++t) {
        const int k = k0 + t;
        z[t * H + v] = {loadSample(from.at(2 * k - 1, v) + c), loadSample(from.at(2 * k, v) + c)};
      }
    for (int t = 0; t < g; ++t) O::c(s->complexCol, z + t * H, b, inv);
    for (int v = 0; v < H; ++v)
      for (int t = 0; t < g; ++t) {
        const int k = k0 + t;
        storeSample(to.at(2 * k - 1, v) + c, z[t * H + v].re);
        storeSample(to.at(2 * k, v) + c, z[t * H + v].im);
      }
  }
}

// One channel c of a real forward transform, src -> dst.
template <class O>
void realFwd(const typename O::Ctx* s, Img<Pxl32f> src, Img<Pxl32f> dst, int c, char* scratch) {
  const int W = O::len(s->sizeX), H = O::len(s->sizeY);
  auto* line = reinterpret_cast<Pxl32f*>(scratch);
  void* b = scratch + A16(kLines * std::max(W, H));
  for (int v = 0; v < H; ++v) {
    for (int u = 0; u < W; ++u) line[u] = loadSample(src.at(u, v) + c);
    O::rFwd(s->realRow, line, b);
    for (int u = 0; u < W; ++u) storeSample(dst.at(u, v) + c, line[u]);
  }
  auto realColumn = [&](int u) {
    for (int v = 0; v < H; ++v) line[v] = loadSample(dst.at(u, v) + c);
    O::rFwd(s->realCol, line, b);
    for (int v = 0; v < H; ++v) storeSample(dst.at(u, v) + c, line[v]);
  };
  realColumn(0);
  auto* z = reinterpret_cast<Pxl32fc*>(line);
  complexColumns<O>(s, dst, dst, c, z, b, false);
  if (W % 2 == 0 && W > 1) realColumn(W - 1);
}

template <class O>
void realInv(const typename O::Ctx* s, Img<Pxl32f> src, Img<Pxl32f> dst, int c, char* scratch) {
  const int W = O::len(s->sizeX), H = O::len(s->sizeY);
  auto* line = reinterpret_cast<Pxl32f*>(scratch);
  void* b = scratch + A16(kLines * std::max(W, H));
  auto realColumn = [&](int u) {
    for (int v = 0; v < H; ++v) line[v] = loadSample(src.at(u, v) + c);
    O::rInv(s->realCol, line, b);
    for (int v = 0; v < H; ++v) storeSample(dst.at(u, v) + c, line[v]);
  };
  realColumn(0);
  auto* z = reinterpret_cast<Pxl32fc*>(line);
  complexColumns<O>(s, src, dst, c, z, b, true);
  if (W % 2 == 0 && W > 1) realColumn(W - 1);
  for (int v = 0; v < H; ++v) {
    for (int u = 0; u < W; ++u) line[u] = loadSample(dst.at(u, v) + c);
    O::rInv(s->realRow, line, b);
    for (int u = 0; u < W; ++u) storeSample(dst.at(u, v) + c, line[u]);
  }
}

template <class O>
void complexRun(const typename O::Ctx* s, Img<Pxl32fc> src, Img<Pxl32fc> dst, char* scratch, bool inv) {
  const int W = O::len(s->sizeX), H = O::len(s->sizeY);
  auto* z = reinterpret_cast<Pxl32fc*>(scratch);
  void* b = scratch + A16(kLines * std::max(W, H));
  for (int v = 0; v < H; ++v) {
    for (int u = 0; u < W; ++u) z[u] = loadSample(src.at(u, v));
    O::c(s->complexRow, z, b, inv);
    for (int u = 0; u < W; ++u) storeSample(dst.at(u, v), z[u]);
  }
  for (int u = 0; u < W; ++u) {
    for (int v = 0; v < H; ++v) z[v] = loadSample(dst.at(u, v));
    O::c(s->complexCol, z, b, inv);
    for (int v = 0; v < H; ++v) storeSample(dst.at(u, v), z[v]);
  }
}

template <class Ctx>
PxlStatus checks(const Ctx* s, Pxl32s tag, const void* src, int srcStep, const void* dst, int dstStep) {
  if (!s) return pxlStsNullPtr;
  if (s->tag != tag) return pxlStsSpecMismatch;
  if (!src || !dst) return pxlStsNullPtr;
  if (srcStep < 1 || dstStep < 1) return pxlStsStep;
  return pxlStsOk;
}

template <class T>
Img<T> img(const T* p, int step, int ps) { return {reinterpret_cast<char*>(const_cast<T*>(p)), step, ps}; }

// Ch channels processed, Ps samples per pixel.
template <class O, int Ch, int Ps>
PxlStatus realFloat(const Pxl32f* src, int srcStep, Pxl32f* dst, int dstStep, const typename O::Ctx* s,
                    Pxl8u* buffer, bool inv) {
  PxlStatus st = checks(s, O::kR, src, srcStep, dst, dstStep);
  if (st != pxlStsOk) return st;
  const bool ok = withScratch(buffer, s->bufSize, [&](void* b) {
    for (int c = 0; c < Ch; ++c) {
      if (inv) realInv<O>(s, img(src, srcStep, Ps), img(dst, dstStep, Ps), c, static_cast<char*>(b));
      else realFwd<O>(s, img(src, srcStep, Ps), img(dst, dstStep, Ps), c, static_cast<char*>(b));
    }
  });
  return ok ? pxlStsOk : pxlStsAlloc;
}

template <class O>
PxlStatus complexFloat(const Pxl32fc* src, int srcStep, Pxl32fc* dst, int dstStep, const typename O::Ctx* s,
                       Pxl8u* buffer, bool inv) {
  PxlStatus st = checks(s, O::kC, src, srcStep, dst, dstStep);
  if (st != pxlStsOk) return st;
  const bool ok = withScratch(buffer, s->bufSize, [&](void* b) {
    complexRun<O>(s, img(src, srcStep, 1), img(dst, dstStep, 1), static_cast<char*>(b), inv);
  });
  return ok ? pxlStsOk : pxlStsAlloc;
}

// ---- integer forms ------------------------------------------------------------------
template <class O>
PxlStatus initAlloc32s(typename O::Ctx32s** spec, int sx, int sy, int flag, int hint) {
  auto* s = static_cast<typename O::Ctx32s*>(std::calloc(1, sizeof(typename O::Ctx32s)));
  if (!s) return pxlStsAlloc;
  PxlStatus st = initAlloc<O>(&s->real, sx, sy, flag, hint, true);
  if (st != pxlStsOk) { std::free(s); return st; }
  const long long W = O::len(sx), H = O::len(sy);
  const long long need = s->real->bufSize + 16 + 4 * W + 16 * W * H + 16;
  if (need > 0x7fffffffLL) { freeCtx<O>(s->real, true); std::free(s); return pxlStsAlloc; }
  s->bufSize = int(need);
  if constexpr (std::is_same_v<O, FftOps>) { s->orderX = sx; s->orderY = sy; s->hint = hint; }
  else { s->width = sx; s->height = sy; }
  s->tag = O::k32s;
  *spec = s;
  return pxlStsOk;
}

template <class O>
PxlStatus free32s(typename O::Ctx32s* s) {
  if (!s) return pxlStsNullPtr;
  if (s->tag != O::k32s) return pxlStsSpecMismatch;
  s->tag = 0;
  freeCtx<O>(s->real, true);
  std::free(s);
  return pxlStsOk;
}

template <class O>
PxlStatus bufSize32s(const typename O::Ctx32s* s, int* size) {
  if (!s || !size) return pxlStsNullPtr;
  if (s->tag != O::k32s) return pxlStsSpecMismatch;
  *size = s->bufSize;
  return pxlStsOk;
}

template <class Ctx32s>
bool disabled(const Ctx32s* s) {
  if constexpr (std::is_same_v<Ctx32s, PxlFftCtx2D32s>) return s->reserved != 0;
  else return false;
}

// Forward 8u -> Pack 32s (inv false) or inverse Pack 32s -> 8u (inv true).
template <class O, int Ch, int Ps, bool Inv, class S, class D>
PxlStatus integer(const S* src, int srcStep, D* dst, int dstStep, const typename O::Ctx32s* s, int scale,
                  Pxl8u* buffer) {
  PxlStatus st = checks(s, O::k32s, src, srcStep, dst, dstStep);
  if (st != pxlStsOk) return st;
  if (disabled(s)) return pxlStsOk;
  const typename O::Ctx* f = s->real;
  const int W = O::len(f->sizeX), H = O::len(f->sizeY);
  const bool ok = withScratch(buffer, s->bufSize, [&](void* b) {
    auto* fimg = static_cast<Pxl32f*>(b);
    char* fbuf = static_cast<char*>(b) + A16(16LL * W * H);
    const int fstep = W * Ch * 4;
    for (int v = 0; v < H; ++v) {
      const S* row = rowAt(src, srcStep, v);
      Pxl32f* frow = fimg + std::ptrdiff_t(v) * W * Ch;
      if (Ch == Ps) {
        if constexpr (Inv) pxlsConvert_32s32f(reinterpret_cast<const Pxl32s*>(row), frow, W * Ch);
        else pxlsConvert_8u32f(reinterpret_cast<const Pxl8u*>(row), frow, W * Ch);
      } else {
        for (int u = 0; u < W; ++u)
          for (int c = 0; c < Ch; ++c) frow[u * Ch + c] = Pxl32f(loadSample(row + u * Ps + c));
      }
    }
    const Img<Pxl32f> fi = img(fimg, fstep, Ch);
    for (int c = 0; c < Ch; ++c) {
      if (Inv) realInv<O>(f, fi, fi, c, fbuf);
      else realFwd<O>(f, fi, fi, c, fbuf);
    }
    for (int v = 0; v < H; ++v) {
      D* row = rowAt(dst, dstStep, v);
      const Pxl32f* frow = fimg + std::ptrdiff_t(v) * W * Ch;
      auto conv = [&](const Pxl32f* from, D* to, int n) {
        if constexpr (Inv) pxlsConvert_32f8u_Sfs(from, reinterpret_cast<Pxl8u*>(to), n, pxlRndNear, scale);
        else pxlsConvert_32f32s_Sfs(from, reinterpret_cast<Pxl32s*>(to), n, pxlRndNear, scale);
      };
      if (Ch == Ps) {
        conv(frow, row, W * Ch);
      } else {
        D tmp[3 * 64];
        for (int u0 = 0; u0 < W; u0 += 64) {
          const int n = std::min(64, W - u0);
          conv(frow + u0 * Ch, tmp, n * Ch);
          for (int u = 0; u < n; ++u)
            for (int c = 0; c < Ch; ++c) storeSample(row + (u0 + u) * Ps + c, tmp[u * Ch + c]);
        }
      }
    }
  });
  return ok ? pxlStsOk : pxlStsAlloc;
}

}  // namespace

// ---- entry points --------------------------------------------------------------------
PxlStatus fft2InitAlloc(PxlFftCtx2D** spec, int ox, int oy, int flag, int hint, bool real) {
  if (!spec) return pxlStsNullPtr;
  if (ox < 0 || ox > 30 || oy < 0 || oy > 30) return pxlStsFFTOrder;
  return initAlloc<FftOps>(spec, ox, oy, flag, hint, real);
}
PxlStatus dft2InitAlloc(PxlDftCtx2D** spec, PxlSize roi, int flag, int hint, bool real) {
  if (!spec) return pxlStsNullPtr;
  if (roi.width < 1 || roi.height < 1) return pxlStsSize;
  return initAlloc<DftOps>(spec, roi.width, roi.height, flag, hint, real);
}
PxlStatus fft2InitAlloc32s(PxlFftCtx2D32s** spec, int ox, int oy, int flag, int hint) {
  if (!spec) return pxlStsNullPtr;
  if (ox < 0 || ox > 30 || oy < 0 || oy > 30) return pxlStsFFTOrder;
  return initAlloc32s<FftOps>(spec, ox, oy, flag, hint);
}
PxlStatus dft2InitAlloc32s(PxlDftCtx2D32s** spec, PxlSize roi, int flag, int hint) {
  if (!spec) return pxlStsNullPtr;
  if (roi.width < 1 || roi.height < 1) return pxlStsSize;
  return initAlloc32s<DftOps>(spec, roi.width, roi.height, flag, hint);
}
PxlStatus fft2Free(PxlFftCtx2D* s, bool real) { return freeCtx<FftOps>(s, real); }
PxlStatus dft2Free(PxlDftCtx2D* s, bool real) { return freeCtx<DftOps>(s, real); }
PxlStatus fft2Free32s(PxlFftCtx2D32s* s) { return free32s<FftOps>(s); }
PxlStatus dft2Free32s(PxlDftCtx2D32s* s) { return free32s<DftOps>(s); }
PxlStatus fft2BufSize(const PxlFftCtx2D* s, int* n, bool real) { return bufSizeOf<FftOps>(s, n, real); }
PxlStatus dft2BufSize(const PxlDftCtx2D* s, int* n, bool real) { return bufSizeOf<DftOps>(s, n, real); }
PxlStatus fft2BufSize32s(const PxlFftCtx2D32s* s, int* n) { return bufSize32s<FftOps>(s, n); }
PxlStatus dft2BufSize32s(const PxlDftCtx2D32s* s, int* n) { return bufSize32s<DftOps>(s, n); }

template <class Ctx>
using OpsOf = std::conditional_t<std::is_same_v<Ctx, PxlFftCtx2D> || std::is_same_v<Ctx, PxlFftCtx2D32s>,
                                 FftOps, DftOps>;

template <class Ctx>
PxlStatus cplx(const Pxl32fc* src, int srcStep, Pxl32fc* dst, int dstStep, const Ctx* s, Pxl8u* b, bool inv) {
  return complexFloat<OpsOf<Ctx>>(src, srcStep, dst, dstStep, s, b, inv);
}
template <int Ch, int Ps, class Ctx>
PxlStatus real(const Pxl32f* src, int srcStep, Pxl32f* dst, int dstStep, const Ctx* s, Pxl8u* b, bool inv) {
  return realFloat<OpsOf<Ctx>, Ch, Ps>(src, srcStep, dst, dstStep, s, b, inv);
}
template <int Ch, int Ps, class Ctx>
PxlStatus fwd8u(const Pxl8u* src, int srcStep, Pxl32s* dst, int dstStep, const Ctx* s, int scale, Pxl8u* b) {
  return integer<OpsOf<Ctx>, Ch, Ps, false>(src, srcStep, dst, dstStep, s, scale, b);
}
template <int Ch, int Ps, class Ctx>
PxlStatus inv8u(const Pxl32s* src, int srcStep, Pxl8u* dst, int dstStep, const Ctx* s, int scale, Pxl8u* b) {
  return integer<OpsOf<Ctx>, Ch, Ps, true>(src, srcStep, dst, dstStep, s, scale, b);
}

}  // namespace pxl::transform

#include "shims/transform/pifftf.inc"
