// The Fourier engine shared by the one- and two-dimensional transforms and,
// later, by template matching: plan records and the internal routines that
// run a plan over one contiguous array.
#pragma once

#include <cstddef>
#include <cstdint>

#include "pxldefs.h"

// One-dimensional FFT plan. Fields keep the published order; the pointers
// address tables that lie behind the head in the same block (caller memory
// or one library allocation).
struct PxlFftCtx {
  Pxl32s tag;       // 4 complex, 6 real, 0 once freed
  Pxl32s order;
  Pxl32s scaleFwd;
  Pxl32s scaleInv;
  Pxl32f scale;
  Pxl32s hint;      // kept, consulted nowhere
  Pxl32s bufSize;   // scratch bytes of a call, without the 16 alignment bytes
  Pxl32s owned;     // 1 when Free must release the block
  Pxl32s* bitRev;   // reversal of the middle order-2 bits of the core
  Pxl32f* twiddle;  // per-stage twiddles of the core, stages up to 1024
  Pxl32f* twiddleMerge;  // half-circle table of the core (cores above 1024)
  void* reserved;
  Pxl32f* realRec;  // real plan: forward recombination T0[k], T1[k]
  Pxl32f* ccsRec;   // real plan: inverse recombination T0[k], T1[k]
  Pxl32f* stepTwiddle[3];  // unused by this engine, cleared
  Pxl32f* stepMul[3];
};

// One-dimensional DFT of any length: powers of two go through an FFT plan,
// other lengths through Bluestein's chirp convolution on a power-of-two FFT.
struct PxlDftCtx {
  Pxl32s tag;       // 14 complex, 15 real, 0 once freed
  Pxl32s length;
  Pxl32s scaleFwd;
  Pxl32s scaleInv;
  Pxl32f scale;
  Pxl32s hint;
  Pxl32s bufSize;   // scratch bytes of a call, without the 16 alignment bytes
  Pxl32s convLen;   // M: power of two of the chirp convolution, 0 for an FFT length
  PxlFftCtx* fft;   // complex plan of length N (power of two) or M, scaling off
  Pxl32fc* chirp;   // exp(-i*pi*n^2/N), n < N
  Pxl32fc* kernel;  // FFT of the conjugate chirp, circularly extended, times 1/M
};

namespace pxl::transform {

constexpr Pxl32s kTagFftC = 4, kTagFftR = 6, kTagDftC = 14, kTagDftR = 15;

inline void* alignUp16(void* p) {
  auto v = reinterpret_cast<std::uintptr_t>(p);
  return reinterpret_cast<void*>((v + 15) & ~std::uintptr_t(15));
}

// Scaling fields from a flag: false for a flag outside its four values.
bool applyFlag(int flag, double n, Pxl32s& fwd, Pxl32s& inv, Pxl32f& scale);

// Runs a checked plan. The arrays are naturally aligned floats; src may
// equal dst; buffer is aligned scratch of the plan's bufSize (may be null
// when bufSize is 0).
void fftC(const PxlFftCtx* s, const Pxl32fc* src, Pxl32fc* dst, void* buffer, bool inverse);
void fftRFwdPerm(const PxlFftCtx* s, const Pxl32f* src, Pxl32f* dst, void* buffer);
void fftRInvPerm(const PxlFftCtx* s, const Pxl32f* src, Pxl32f* dst, void* buffer);
void permToPack(Pxl32f* v, int n);
void packToPerm(Pxl32f* v, int n);

PxlStatus fftInitAlloc(PxlFftCtx** spec, int order, int flag, int hint, bool real);
PxlStatus fftFree(PxlFftCtx* spec, Pxl32s tag);
int fftBufBytes(const PxlFftCtx* s);  // GetBufSize's value

void dftC(const PxlDftCtx* s, const Pxl32fc* src, Pxl32fc* dst, void* buffer, bool inverse);
void dftRFwdPack(const PxlDftCtx* s, const Pxl32f* src, Pxl32f* dst, void* buffer);
void dftRInvPack(const PxlDftCtx* s, const Pxl32f* src, Pxl32f* dst, void* buffer);
PxlStatus dftInitAlloc(PxlDftCtx** spec, int length, int flag, int hint, bool real);
PxlStatus dftFree(PxlDftCtx* spec, Pxl32s tag);
int dftBufBytes(const PxlDftCtx* s);

// Runs a call with the caller's buffer aligned up, or with one allocation
// of `bytes` when the caller passed none; false when that allocation fails.
template <class F>
bool withScratch(void* buffer, int bytes, F&& f);

}  // namespace pxl::transform

#include <cstdlib>

template <class F>
bool pxl::transform::withScratch(void* buffer, int bytes, F&& f) {
  if (bytes <= 0) {
    f(nullptr);
    return true;
  }
  if (buffer) {
    f(alignUp16(buffer));
    return true;
  }
  void* raw = std::malloc(std::size_t(bytes) + 16);
  if (!raw) return false;
  f(alignUp16(raw));
  std::free(raw);
  return true;
}
