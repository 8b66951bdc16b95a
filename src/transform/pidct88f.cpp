// 8x8 DCT: integer forms in a fixed-point flow of saturating 16-bit
// additions, high halves of 16x16 products and per-row 32-bit sums; float
// forms; level shift and clip; shortened inverses; zigzag reorder.
//
// The integer results are those of the flow below value for value (it is
// not a rounded version of the exact transform), so every step keeps its
// own saturation and truncation, including the four "| 1" steps of the
// forward column pass that bias the values before the row pass's shift.
#include <cmath>
#include <cstdint>
#include <cstring>

#include "frame/types.h"
#include "pxldefs.h"

namespace pxl::transform {
namespace {

using i16 = std::int16_t;
using i32 = std::int32_t;

inline i16 sat16(i32 v) { return i16(v < -32768 ? -32768 : v > 32767 ? 32767 : v); }
inline i16 ad(i16 a, i16 b) { return sat16(i32(a) + b); }
inline i16 sb(i16 a, i16 b) { return sat16(i32(a) - b); }
// Upper half of the signed 32-bit product: floor(a*c / 65536).
inline i16 hi(i16 a, i32 c) { return i16((i32(a) * c) >> 16); }
inline i16 shl(i16 a, int n) { return i16(std::uint16_t(std::uint16_t(a) << n)); }
inline i16 sar(i16 a, int n) { return i16(a >> n); }
inline i16 or1(i16 a) { return i16(a | 1); }

constexpr i32 K1 = 13036, K2 = 27146, K3 = -21746, K4 = -19195, K5 = 23170;

// Row-class constants c0, c1, c2, c3, c5, c6, c7 (gain of the class folded in).
struct Cls { i32 c0, c1, c2, c3, c5, c6, c7; };
constexpr Cls kCls[4] = {{16384, 22725, 21407, 19266, 12873, 8867, 4520},
                         {22725, 31521, 29692, 26722, 17855, 12299, 6270},
                         {21407, 29692, 27969, 25172, 16819, 11585, 5906},
                         {19266, 26722, 25172, 22654, 15137, 10426, 5315}};
constexpr int kRowClass[8] = {0, 1, 2, 3, 0, 3, 2, 1};
constexpr i32 kInvRound[8] = {65536, 5802, 4520, 3408, 2048, 910, 1024, 746};

// ---- forward ----------------------------------------------------------------
// Column x of blk (stride 8) in place.
void fwdColumn(i16* b) {
  i16 x[8];
  for (int i = 0; i < 8; ++i) x[i] = b[8 * i];
  const i16 s07 = shl(ad(x[0], x[7]), 3), s34 = shl(ad(x[3], x[4]), 3);
  const i16 s16 = shl(ad(x[1], x[6]), 3), s25 = shl(ad(x[2], x[5]), 3);
  const i16 t = sb(s16, s25), u = sb(s07, s34);
  const i16 a = ad(s07, s34), c = ad(s16, s25);
  b[0] = ad(a, c);
  b[32] = sb(a, c);
  b[16] = or1(ad(hi(t, K2), u));
  b[48] = or1(sb(hi(u, K2), t));
  const i16 d16 = shl(sb(x[1], x[6]), 4), d25 = shl(sb(x[2], x[5]), 4);
  const i16 d34 = shl(sb(x[3], x[4]), 3), d07 = shl(sb(x[0], x[7]), 3);
  const i16 m2 = or1(hi(ad(d16, d25), K5)), m6 = hi(sb(d16, d25), K5);
  const i16 p = ad(d34, m6), q = sb(d34, m6), r = ad(d07, m2), w = sb(d07, m2);
  b[8] = or1(ad(hi(p, K1), r));
  b[56] = sb(hi(r, K1), p);
  const i16 q2 = ad(hi(q, K3), q), w2 = ad(hi(w, K3), w);
  b[24] = sb(w, q2);
  b[40] = ad(w2, q);
}

void fwdRow(i16* w, int row) {
  const Cls& k = kCls[kRowClass[row]];
  i32 s[4], d[4];
  for (int i = 0; i < 4; ++i) {
    s[i] = ad(w[i], w[7 - i]);
    d[i] = sb(w[i], w[7 - i]);
  }
  i32 o[8];
  o[0] = k.c0 * (s[0] + s[1] + s[2] + s[3]);
  o[1] = k.c1 * d[0] + k.c3 * d[1] + k.c5 * d[2] + k.c7 * d[3];
  o[2] = k.c2 * s[0] + k.c6 * s[1] - k.c6 * s[2] - k.c2 * s[3];
  o[3] = k.c3 * d[0] - k.c7 * d[1] - k.c1 * d[2] - k.c5 * d[3];
  o[4] = k.c0 * (s[0] - s[1] - s[2] + s[3]);
  o[5] = k.c5 * d[0] - k.c1 * d[1] + k.c7 * d[2] + k.c3 * d[3];
  o[6] = k.c6 * s[0] - k.c2 * s[1] + k.c2 * s[2] - k.c6 * s[3];
  o[7] = k.c7 * d[0] - k.c5 * d[1] + k.c3 * d[2] - k.c1 * d[3];
  for (int i = 0; i < 8; ++i) w[i] = sat16((o[i] + 524288) >> 20);
}

// blk holds the widened input; the result replaces it.
void fwdBlock(i16* blk) {
  for (int x = 0; x < 8; ++x) fwdColumn(blk + x);
  for (int r = 0; r < 8; ++r) fwdRow(blk + 8 * r, r);
}

// ---- inverse ----------------------------------------------------------------
void invRow(const i16* w, i16* out, int row) {
  const Cls& k = kCls[kRowClass[row]];
  const i32 R = kInvRound[row];
  const i32 w0 = w[0], w1 = w[1], w2 = w[2], w3 = w[3], w4 = w[4], w5 = w[5], w6 = w[6], w7 = w[7];
  i32 e[4], o[4];
  e[0] = k.c0 * w0 + k.c2 * w2 + k.c0 * w4 + k.c6 * w6 + R;
  e[1] = k.c0 * w0 + k.c6 * w2 - k.c0 * w4 - k.c2 * w6 + R;
  e[2] = k.c0 * w0 - k.c6 * w2 - k.c0 * w4 + k.c2 * w6 + R;
  e[3] = k.c0 * w0 - k.c2 * w2 + k.c0 * w4 - k.c6 * w6 + R;
  o[0] = k.c1 * w1 + k.c3 * w3 + k.c5 * w5 + k.c7 * w7;
  o[1] = k.c3 * w1 - k.c7 * w3 - k.c1 * w5 - k.c5 * w7;
  o[2] = k.c5 * w1 - k.c1 * w3 + k.c7 * w5 + k.c3 * w7;
  o[3] = k.c7 * w1 - k.c5 * w3 + k.c3 * w5 - k.c1 * w7;
  for (int i = 0; i < 4; ++i) {
    out[i] = sat16((e[i] + o[i]) >> 12);
    out[7 - i] = sat16((e[i] - o[i]) >> 12);
  }
}

void invColumn(i16* b) {
  i16 y[8];
  for (int i = 0; i < 8; ++i) y[i] = b[8 * i];
  const i16 a = ad(ad(hi(y[5], K3), y[5]), y[3]);
  const i16 bb = sb(y[5], ad(hi(y[3], K3), y[3]));
  const i16 c = sb(hi(y[1], K1), y[7]);
  const i16 d = ad(hi(y[7], K1), y[1]);
  const i16 e = ad(a, d), f = sb(d, a);
  const i16 g = ad(hi(y[6], K2), y[2]), h = sb(hi(y[2], K2), y[6]);
  const i16 cm = sb(c, bb), cp = ad(c, bb);
  const i16 t = ad(f, cm), i = ad(hi(t, K4), t);
  const i16 v = sb(f, cm), j = ad(hi(v, K4), v);
  const i16 s = ad(y[4], y[0]), d0 = sb(y[0], y[4]);
  const i16 sg = ad(s, g), sm = sb(s, g), dh = ad(d0, h), dm = sb(d0, h);
  b[0] = sar(ad(e, sg), 5);
  b[8] = sar(ad(dh, i), 5);
  b[16] = sar(ad(dm, j), 5);
  b[24] = sar(ad(cp, sm), 5);
  b[32] = sar(sb(sm, cp), 5);
  b[40] = sar(sb(dm, j), 5);
  b[48] = sar(sb(dh, i), 5);
  b[56] = sar(sb(sg, e), 5);
}

void invBlock(const i16* src, i16* out) {
  i16 t[64];
  for (int r = 0; r < 8; ++r) invRow(src + 8 * r, t + 8 * r, r);
  for (int x = 0; x < 8; ++x) invColumn(t + x);
  std::memcpy(out, t, sizeof t);
}

// Only coefficients (0..1, 0..1) are read.
void inv2x2Block(const i16* src, i16* out) {
  i16 r[2][8];
  for (int row = 0; row < 2; ++row) {
    const Cls& k = kCls[kRowClass[row]];
    const i32 R = kInvRound[row], w0 = src[8 * row], w1 = src[8 * row + 1];
    const i32 kk[8] = {k.c1, k.c3, k.c5, k.c7, -k.c7, -k.c5, -k.c3, -k.c1};
    for (int i = 0; i < 8; ++i) r[row][i] = sat16((k.c0 * w0 + kk[i] * w1 + R) >> 12);
  }
  for (int x = 0; x < 8; ++x) {
    const i16 r0 = r[0][x], r1 = r[1][x];
    const i16 t = hi(r1, K1), p = ad(r0, 1), q = sb(r0, 1);
    i16* b = out + x;
    b[0] = sar(ad(r1, p), 5);
    b[56] = sar(sb(p, r1), 5);
    b[24] = sar(ad(t, q), 5);
    b[32] = sar(sb(q, t), 5);
    const i16 u = sb(r1, t), v = ad(t, r1);
    const i16 u2 = ad(hi(u, K4), u), w2 = ad(hi(v, K4), v);
    b[16] = sar(ad(r0, u2), 5);
    b[40] = sar(sb(r0, u2), 5);
    b[8] = sar(ad(r0, w2), 5);
    b[48] = sar(sb(r0, w2), 5);
  }
}

// Only coefficients (0..3, 0..3) are read.
void inv4x4Block(const i16* src, i16* out) {
  i16 r[4][8];
  for (int row = 0; row < 4; ++row) {
    i16 w[8] = {src[8 * row], src[8 * row + 1], src[8 * row + 2], src[8 * row + 3], 0, 0, 0, 0};
    invRow(w, r[row], row);
  }
  for (int x = 0; x < 8; ++x) {
    const i16 y0 = r[0][x], y1 = r[1][x], y2 = r[2][x], y3 = r[3][x];
    const i16 a = ad(hi(y3, K3), y3), t = hi(y1, K1), g = hi(y2, K2), n = sb(y1, y3);
    const i16 m = ad(t, a), l = sb(t, a);
    const i16 A = ad(n, m), B = sb(n, m);
    const i16 A2 = ad(hi(A, K4), A), B2 = ad(hi(B, K4), B);
    const i16 P = ad(y0, g), Q = sb(y0, g);
    i16* b = out + x;
    b[8] = sar(ad(P, A2), 5);
    b[48] = sar(sb(P, A2), 5);
    b[16] = sar(ad(Q, B2), 5);
    b[40] = sar(sb(Q, B2), 5);
    const i16 S = sb(y0, y2), T = ad(y0, y2), U = ad(y1, y3);
    b[24] = sar(ad(S, l), 5);
    b[32] = sar(sb(S, l), 5);
    b[0] = sar(ad(T, U), 5);
    b[56] = sar(sb(T, U), 5);
  }
}

// ---- float --------------------------------------------------------------------
// Separable orthonormal transform by an 8x8 matrix, C[u][x] =
// (1/2)*c(u)*cos((2x+1)*u*pi/16) with c(0) = 1/sqrt(2), computed in double
// and rounded once. Two matrix passes of float products summed in a fixed
// order give the orthonormal result to float rounding.
struct FloatMatrix {
  float m[8][8];
  FloatMatrix() {
    for (int u = 0; u < 8; ++u)
      for (int x = 0; x < 8; ++x)
        m[u][x] = float(0.5 * (u == 0 ? std::sqrt(0.5) : 1.0) *
                        std::cos((2 * x + 1) * u * 3.141592653589793 / 16.0));
  }
};
const FloatMatrix& fmat() {
  static const FloatMatrix k;
  return k;
}

void floatBlock(const float* src, float* dst, bool inverse) {
  const auto& M = fmat().m;
  float in[64], t[64], out[64];
  std::memcpy(in, src, sizeof in);
  // rows: t[y][v] = sum_x in[y][x] * M[v][x] (forward) or M[x][v] (inverse)
  for (int y = 0; y < 8; ++y)
    for (int v = 0; v < 8; ++v) {
      float acc = 0.0f;
      for (int x = 0; x < 8; ++x) acc += in[8 * y + x] * (inverse ? M[x][v] : M[v][x]);
      t[8 * y + v] = acc;
    }
  for (int u = 0; u < 8; ++u)
    for (int v = 0; v < 8; ++v) {
      float acc = 0.0f;
      for (int y = 0; y < 8; ++y) acc += t[8 * y + v] * (inverse ? M[y][u] : M[u][y]);
      out[8 * u + v] = acc;
    }
  std::memcpy(dst, out, sizeof out);
}

// ---- I/O helpers (byte copies: any address) -----------------------------------------
template <class T>
void loadBlock(const T* src, int step, i16* blk) {
  for (int y = 0; y < 8; ++y) {
    const T* row = rowAt(src, step, y);
    for (int x = 0; x < 8; ++x) blk[8 * y + x] = i16(loadSample(row + x));
  }
}
void loadContig(const Pxl16s* src, i16* blk) { std::memcpy(blk, src, 128); }
void storeContig(Pxl16s* dst, const i16* blk) { std::memcpy(dst, blk, 128); }

inline Pxl8u sat8(i32 v) { return Pxl8u(v < 0 ? 0 : v > 255 ? 255 : v); }

constexpr int kScan[64] = {0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,
                           12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,
                           35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,
                           58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};
struct Pos {
  int p[64];
  constexpr Pos() : p() {
    for (int i = 0; i < 64; ++i) p[kScan[i]] = i;
  }
};
constexpr Pos kPos{};

}  // namespace

PxlStatus dctFwd16s(const Pxl16s* src, Pxl16s* dst) {
  if (!src || !dst) return pxlStsNullPtr;
  i16 b[64];
  loadContig(src, b);
  fwdBlock(b);
  storeContig(dst, b);
  return pxlStsOk;
}
PxlStatus dctFwd16sI(Pxl16s* srcDst) { return dctFwd16s(srcDst, srcDst); }
template <class T>
PxlStatus dctFwdStep(const T* src, int srcStep, Pxl16s* dst) {
  if (!src || !dst) return pxlStsNullPtr;
  if (srcStep < 1) return pxlStsStep;
  i16 b[64];
  loadBlock(src, srcStep, b);
  fwdBlock(b);
  storeContig(dst, b);
  return pxlStsOk;
}
PxlStatus dctFwdLS(const Pxl8u* src, int srcStep, Pxl16s* dst, Pxl16s value) {
  if (!src || !dst) return pxlStsNullPtr;
  if (srcStep < 1) return pxlStsStep;
  i16 b[64];
  loadBlock(src, srcStep, b);
  for (int i = 0; i < 64; ++i) b[i] = i16(std::uint16_t(b[i] + value));  // wrapping
  fwdBlock(b);
  storeContig(dst, b);
  return pxlStsOk;
}

template <class Kind>
PxlStatus dctInvContig(const Pxl16s* src, Pxl16s* dst, Kind kind) {
  if (!src || !dst) return pxlStsNullPtr;
  i16 in[64], out[64];
  loadContig(src, in);
  kind(in, out);
  storeContig(dst, out);
  return pxlStsOk;
}
PxlStatus dctInv16s(const Pxl16s* s, Pxl16s* d) { return dctInvContig(s, d, invBlock); }
PxlStatus dctInv2x2(const Pxl16s* s, Pxl16s* d) { return dctInvContig(s, d, inv2x2Block); }
PxlStatus dctInv4x4(const Pxl16s* s, Pxl16s* d) { return dctInvContig(s, d, inv4x4Block); }

PxlStatus dctInv16sR(const Pxl16s* src, Pxl16s* dst, int dstStep) {
  if (!src || !dst) return pxlStsNullPtr;
  if (dstStep < 1) return pxlStsStep;
  i16 in[64], out[64];
  loadContig(src, in);
  invBlock(in, out);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) storeSample(rowAt(dst, dstStep, y) + x, Pxl16s(out[8 * y + x]));
  return pxlStsOk;
}
PxlStatus dctInvLSClip(const Pxl16s* src, Pxl8u* dst, int dstStep, Pxl16s value, int clipMin,
                       int clipMax) {
  if (!src || !dst) return pxlStsNullPtr;
  if (dstStep < 1) return pxlStsStep;
  i16 in[64], out[64];
  loadContig(src, in);
  invBlock(in, out);
  const bool clip = clipMin != 0 || clipMax != 255;
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) {
      i32 v = sat8(i16(std::uint16_t(out[8 * y + x] + value)));
      if (clip) {
        if (v < clipMin) v = clipMin;
        if (v > clipMax) v = clipMax;
      }
      storeSample(rowAt(dst, dstStep, y) + x, Pxl8u(v));
    }
  return pxlStsOk;
}
PxlStatus dctInv8u(const Pxl16s* src, Pxl8u* dst, int dstStep) {
  return dctInvLSClip(src, dst, dstStep, 0, 0, 255);
}

PxlStatus dctFloat(const Pxl32f* src, Pxl32f* dst, bool inverse) {
  if (!src || !dst) return pxlStsNullPtr;
  floatBlock(src, dst, inverse);
  return pxlStsOk;
}

PxlStatus zigzag(const Pxl16s* src, Pxl16s* dst, bool inverse) {
  if (!src || !dst) return pxlStsNullPtr;
  for (int i = 0; i < 64; ++i) storeSample(dst + i, loadSample(src + (inverse ? kPos.p[i] : kScan[i])));
  return pxlStsOk;
}

}  // namespace pxl::transform

#include "shims/transform/pidct88f.inc"
