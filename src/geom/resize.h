// Resize: one engine for every sample type and layout.
//
// The map from destination to source is separable, so the engine builds one
// table per axis (source position and weights) and runs two passes: each
// source row that is needed is interpolated across once into a row buffer,
// and a destination row is then formed down from two (linear), four (cubic)
// or six (Lanczos) buffers. The buffers form a ring keyed by source row
// number, so a row is never interpolated twice while destination rows move
// forward, however much the picture is enlarged.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "pxldefs.h"
#include "pxls.h"
#include "frame/types.h"
#include "simd/vec.h"

namespace pxl::geom {

template <class T>
inline const T* byteOffset(const T* p, std::ptrdiff_t bytes) {
  return reinterpret_cast<const T*>(reinterpret_cast<const char*>(p) + bytes);
}
template <class T>
inline T* byteOffset(T* p, std::ptrdiff_t bytes) {
  return reinterpret_cast<T*>(reinterpret_cast<char*>(p) + bytes);
}

// Scratch comes from the library's allocator so that a failing allocator
// reaches every caller the same way; the guard frees on every path.
struct Scratch {
  void* blocks[8] = {};
  int n = 0;
  template <class E>
  E* take(std::size_t count) {
    void* p = pxlsMalloc_8u(static_cast<int>(std::max<std::size_t>(count, 1) * sizeof(E)));
    if (p != nullptr) blocks[n++] = p;
    return static_cast<E*>(p);
  }
  ~Scratch() {
    for (int i = 0; i < n; ++i) pxlsFree(blocks[i]);
  }
};

// Interpolating cubic through p0..p3 at -1, 0, 1, 2, in Newton form, all in
// single precision; the same expression serves both passes.
inline float cubic(float p0, float p1, float p2, float p3, float t) {
  const float a = 1.0f + t;
  const float b = t * a * 0.5f;
  const float c = (t - 1.0f) * b / 3.0f;
  const float d1 = p1 - p0;
  const float d2 = (p2 - p1) - d1;
  const float d3 = (p3 - 2.0f * p2 + p1) - d2;
  return p0 + c * d3 + b * d2 + a * d1;
}

// Lanczos, three lobes: L(x) = sinc(x) * sinc(x / 3) for |x| < 3, sinc(x) =
// sin(pi x) / (pi x). A position with integer part i and fraction f takes the
// six samples i - 2 .. i + 3 with weights L(f - k), k = -2 .. 3, divided by
// their sum so that a flat picture stays flat. Taps beyond the image repeat
// its edge sample. Weights are formed in double and kept as float; passes
// run in float and integer results round half up and saturate.
inline double lanczos3(double x) {
  if (x == 0.0) return 1.0;
  if (x <= -3.0 || x >= 3.0) return 0.0;
  const double px = 3.141592653589793 * x;
  return 3.0 * std::sin(px) * std::sin(px / 3.0) / (px * px);
}

inline void lanczosWeights(double f, float* w) {
  double v[6], sum = 0.0;
  for (int k = 0; k < 6; ++k) sum += (v[k] = lanczos3(f - (k - 2)));
  for (int k = 0; k < 6; ++k) w[k] = static_cast<float>(v[k] / sum);
}

template <class T>
inline T saturateFromFloat(float v) {
  if constexpr (std::is_same_v<T, Pxl32f>) {
    return v;
  } else {
    constexpr float hi = float(std::numeric_limits<T>::max());
    if (!(v > 0.0f)) return T(0);
    if (v >= hi) return T(std::numeric_limits<T>::max());
    return static_cast<T>(v);
  }
}

enum Mode { kNearest = 1, kLinear = 2, kCubic = 4, kSuper = 8, kLanczos = 16 };

// Everything the engine needs beyond the pointers: the clipped ROI, the
// computed destination size and the per-axis tables.
struct ResizeAxis {
  int* index = nullptr;    // source pixel (in pixels, relative to the ROI)
  float* frac = nullptr;   // fraction for float kernels; first tap weight for Lanczos
  std::uint16_t* w = nullptr;  // fixed-point right weights (linear 8u/16u)
  float* lz = nullptr;     // six Lanczos weights per entry
};

// Builds one axis of the table. roi: clipped ROI length; origin: ROI
// position in the image; size: image length along this axis.
template <bool FixedLinear>
inline void buildAxis(ResizeAxis& ax, int n, int mode, double start, double step, int origin, int size) {
  const int last = size - origin - 1;
  double c = start;
  for (int k = 0; k < n; ++k, c += step) {
    int i = static_cast<int>(c + 1e-07);
    switch (mode) {
      case kNearest:
        ax.index[k] = i;
        break;
      case kLinear:
        if (FixedLinear) {
          int f = 16384;
          if (i == last) --i;
          else f = static_cast<int>((c - i) * 16384.0 + 1e-07);
          ax.index[k] = i;
          ax.w[k] = static_cast<std::uint16_t>(f);
        } else {
          float f = 1.0f;
          if (i == last) --i;
          else f = static_cast<float>(c - i);
          ax.index[k] = i;
          ax.frac[k] = f;
        }
        break;
      case kCubic: {
        const int a = i + origin;
        int p = i;
        if (a == size - 1) p = i - 2;
        else if (a == 0) p = i + 1;
        else if (a == size - 2) p = i - 1;
        ax.index[k] = p;
        ax.frac[k] = static_cast<float>(c - p);
        break;
      }
      default:  // Lanczos
        ax.index[k] = i;
        lanczosWeights(c - i, ax.lz + 6 * k);
        break;
    }
  }
}

// The per-call plan: tables built once, shared by the planes of P3 and P4.
template <class T>
struct ResizePlan {
  static constexpr bool kFixed = !std::is_same_v<T, Pxl32f>;
  int mode, w, h, roiW, roiH, roiX, roiY, srcW, srcH;
  ResizeAxis col, row;
};

// One plane or one interleaved image: Px samples between pixels, Nc of them
// processed (AC4: Px 4, Nc 3). src points at the ROI's first pixel.
template <class T, int Px, int Nc>
struct ResizeRun {
  using Buf = std::conditional_t<std::is_same_v<T, Pxl32f>, float, std::uint16_t>;
  const ResizePlan<T>& p;
  const T* src;
  int srcStep;  // bytes
  T* dst;
  int dstStep;
  void* ring;   // taps rows of w * Nc elements
  int* keys;

  const T* srow(int r) const { return byteOffset(src, std::ptrdiff_t(srcStep) * r); }
  // Source sample of pixel x (relative to the ROI), sample c.
  static T at(const T* s, int x, int c) { return loadSample(s + std::ptrdiff_t(x) * Px + c); }

  template <class B>
  B* slot(int r, int taps, bool& fresh) {
    const int s = ((r % taps) + taps) % taps;
    B* b = static_cast<B*>(ring) + std::size_t(s) * p.w * Nc;
    fresh = keys[s] != r;
    keys[s] = r;
    return b;
  }

  // Horizontal pass of one source row into a ring slot.
  void linearAcross(int r, Buf* b) const {
    const T* s = srow(r);
    for (int k = 0; k < p.w; ++k) {
      const int i = p.col.index[k];
      for (int c = 0; c < Nc; ++c) {
        if constexpr (ResizePlan<T>::kFixed) {
          const std::uint32_t rw = p.col.w[k], lw = 16384u - rw;
          const std::uint32_t a = at(s, i, c), z = at(s, i + 1, c);
          b[k * Nc + c] = std::is_same_v<T, Pxl8u> ? Buf((a * lw + z * rw + 128u) >> 8)
                                                   : Buf((a * lw + z * rw + 8192u) >> 14);
        } else {
          const float a = at(s, i, c), z = at(s, i + 1, c), f = p.col.frac[k];
          b[k * Nc + c] = a + (z - a) * f;
        }
      }
    }
  }

  void cubicAcross(int r, float* b) const {
    const T* s = srow(r);
    for (int k = 0; k < p.w; ++k) {
      const int i = p.col.index[k];
      const float t = p.col.frac[k];
      for (int c = 0; c < Nc; ++c)
        b[k * Nc + c] = cubic(float(at(s, i - 1, c)), float(at(s, i, c)), float(at(s, i + 1, c)),
                              float(at(s, i + 2, c)), t);
    }
  }

  void lanczosAcross(int r, float* b) const {
    const T* s = srow(r);
    const int lo = -p.roiX, hi = p.srcW - 1 - p.roiX;  // image edges, ROI-relative
    for (int k = 0; k < p.w; ++k) {
      const int i = p.col.index[k];
      const float* wt = p.col.lz + 6 * k;
      for (int c = 0; c < Nc; ++c) {
        float acc = 0.0f;
        for (int t = 0; t < 6; ++t) acc += wt[t] * float(at(s, std::clamp(i + t - 2, lo, hi), c));
        b[k * Nc + c] = acc;
      }
    }
  }

  T* drow(int j) const { return byteOffset(dst, std::ptrdiff_t(dstStep) * j); }

  void nearest() const {
    for (int j = 0; j < p.h; ++j) {
      const T* s = srow(p.row.index[j]);
      T* d = drow(j);
      for (int k = 0; k < p.w; ++k)
        for (int c = 0; c < Nc; ++c) storeSample(d + std::ptrdiff_t(k) * Px + c, at(s, p.col.index[k], c));
    }
  }

  void linear() {
    for (int j = 0; j < p.h; ++j) {
      const int r = p.row.index[j];
      bool f0, f1;
      Buf* b0 = slot<Buf>(r, 2, f0);
      if (f0) linearAcross(r, b0);
      Buf* b1 = slot<Buf>(r + 1, 2, f1);
      if (f1) linearAcross(r + 1, b1);
      T* d = drow(j);
      for (int k = 0; k < p.w; ++k)
        for (int c = 0; c < Nc; ++c) {
          T v;
          if constexpr (ResizePlan<T>::kFixed) {
            const std::uint32_t t = p.row.w[j], u = 16384u - t;
            const std::uint32_t a = b0[k * Nc + c], z = b1[k * Nc + c];
            v = std::is_same_v<T, Pxl8u> ? T((a * u + z * t + 524288u) >> 20) : T((a * u + z * t + 8192u) >> 14);
          } else {
            const float t = p.row.frac[j];
            v = b0[k * Nc + c] * (1.0f - t) + b1[k * Nc + c] * t;
          }
          storeSample(d + std::ptrdiff_t(k) * Px + c, v);
        }
    }
  }

  template <int Taps, int Before, class Across, class Down>
  void rows(Across across, Down down) {
    for (int j = 0; j < p.h; ++j) {
      const float* b[Taps];
      for (int t = 0; t < Taps; ++t) {
        int r = p.row.index[j] + t - Before;
        if (Taps == 6) r = std::clamp(r, -p.roiY, p.srcH - 1 - p.roiY);
        bool fresh;
        float* s = slot<float>(r, Taps, fresh);
        if (fresh) (this->*across)(r, s);
        b[t] = s;
      }
      T* d = drow(j);
      for (int k = 0; k < p.w; ++k)
        for (int c = 0; c < Nc; ++c) storeSample(d + std::ptrdiff_t(k) * Px + c, down(b, j, k * Nc + c));
    }
  }

  // Integer results: add 0.5000001, truncate toward zero, clamp.
  static T roundDown(float v) {
    if constexpr (std::is_same_v<T, Pxl32f>) return v;
    else return saturateFromFloat<T>(std::trunc(v + 0.5000001f));
  }

  void cubicRows() {
    rows<4, 1>(&ResizeRun::cubicAcross, [this](const float* const* b, int j, int e) {
      return roundDown(cubic(b[0][e], b[1][e], b[2][e], b[3][e], p.row.frac[j]));
    });
  }

  void lanczosRows() {
    rows<6, 2>(&ResizeRun::lanczosAcross, [this](const float* const* b, int j, int e) {
      const float* wt = p.row.lz + 6 * j;
      float acc = 0.0f;
      for (int t = 0; t < 6; ++t) acc += wt[t] * b[t][e];
      if constexpr (std::is_same_v<T, Pxl32f>) return acc;
      else return saturateFromFloat<T>(std::floor(acc + 0.5f));
    });
  }

  void run() {
    const int taps = p.mode == kLinear ? 2 : p.mode == kCubic ? 4 : 6;
    for (int t = 0; t < taps; ++t) keys[t] = INT32_MIN;
    switch (p.mode) {
      case kNearest: nearest(); break;
      case kLinear: linear(); break;
      case kCubic: cubicRows(); break;
      default: lanczosRows(); break;
    }
  }
};

// Destination extent along one axis for a magnification factor; false when
// the scaled ROI is under half a pixel.
inline bool destExtent(int roi, double factor, int limit, int& n, double& prod) {
  prod = roi * factor;
  if (std::isnan(prod)) return false;  // a NaN factor scales to nothing
  double t = std::trunc(prod + 1e-07);
  if (t >= limit) {
    n = limit;
  } else if (t < 1) {
    if (prod + 1e-07 < 0.5) return false;
    n = 1;
  } else {
    n = static_cast<int>(t);
  }
  return true;
}

// Supersampling, for factors at most 1: destination pixel k covers the
// source interval [k / factor, (k + 1) / factor) of the ROI, cut at the ROI's
// end, and is the average of the samples under it, each weighted by the
// length of its pixel inside the interval. Across and down are separable;
// sums run in double, integers round half up. A source row is summed across
// once and kept while it straddles two destination rows.
struct AreaAxis {
  int* first = nullptr;   // first source pixel of each destination pixel
  int* count = nullptr;   // pixels it spans
  double* wt = nullptr;   // weights, count entries per destination pixel, at offset
  int* off = nullptr;
};

inline int areaAxisSize(int n, int roi, double factor) {
  int total = 0;
  const double inv = 1.0 / factor;
  for (int k = 0; k < n; ++k) {
    const double a = std::min(double(roi), k * inv), b = std::min(double(roi), (k + 1) * inv);
    const int f = std::min(int(std::floor(a)), roi - 1);
    const int l = std::max(f, std::min(int(std::ceil(b)) - 1, roi - 1));
    total += l - f + 1;
  }
  return total;
}

inline void buildArea(AreaAxis& ax, int n, int roi, double factor) {
  const double inv = 1.0 / factor;
  int o = 0;
  for (int k = 0; k < n; ++k) {
    double a = std::min(double(roi), k * inv), b = std::min(double(roi), (k + 1) * inv);
    const int f = std::min(int(std::floor(a)), roi - 1);
    const int l = std::max(f, std::min(int(std::ceil(b)) - 1, roi - 1));
    if (b <= a) {  // past the ROI's end: take its last pixel alone
      a = roi - 1;
      b = roi;
    }
    double sum = 0.0;
    for (int s = f; s <= l; ++s) sum += (ax.wt[o + s - f] = std::min(b, s + 1.0) - std::max(a, double(s)));
    for (int s = f; s <= l; ++s) ax.wt[o + s - f] /= sum;
    ax.first[k] = f;
    ax.count[k] = l - f + 1;
    ax.off[k] = o;
    o += l - f + 1;
  }
}

template <class T, int Px, int Nc>
inline void areaRun(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const AreaAxis& cx,
                    const AreaAxis& cy, double* acc, double* across) {
  for (int j = 0; j < h; ++j) {
    std::fill(acc, acc + std::size_t(w) * Nc, 0.0);
    for (int q = 0; q < cy.count[j]; ++q) {
      const T* s = byteOffset(src, std::ptrdiff_t(srcStep) * (cy.first[j] + q));
      const double wy = cy.wt[cy.off[j] + q];
      for (int k = 0; k < w; ++k)
        for (int c = 0; c < Nc; ++c) {
          double v = 0.0;
          for (int e = 0; e < cx.count[k]; ++e)
            v += cx.wt[cx.off[k] + e] * double(loadSample(s + std::ptrdiff_t(cx.first[k] + e) * Px + c));
          acc[k * Nc + c] += wy * v;
        }
    }
    (void)across;
    T* d = byteOffset(dst, std::ptrdiff_t(dstStep) * j);
    for (int k = 0; k < w; ++k)
      for (int c = 0; c < Nc; ++c) {
        const double v = acc[k * Nc + c];
        T o;
        if constexpr (std::is_same_v<T, Pxl32f>) o = static_cast<float>(v);
        else o = saturateFromFloat<T>(static_cast<float>(std::floor(v + 0.5)));
        storeSample(d + std::ptrdiff_t(k) * Px + c, o);
      }
  }
}

// Planes: Planes pointers in src/dst (1 for interleaved forms).
template <class T, int Px, int Nc, int Planes>
PxlStatus resize(const T* const* src, PxlSize srcSize, int srcStep, PxlRect srcRoi, T* const* dst, int dstStep,
                 PxlSize dstRoiSize, double xFactor, double yFactor, int interpolation) {
  if (src == nullptr || dst == nullptr) return pxlStsNullPtr;
  if (Planes > 1)
    for (int i = 0; i < Planes; ++i)
      if (src[i] == nullptr || dst[i] == nullptr) return pxlStsNullPtr;
  // Mode 8 with both factors at most 1 takes the area route; with a factor
  // above 1 it reaches the engine's mode check and fails there.
  const bool area = interpolation == kSuper && !(1.0 < xFactor) && !(1.0 < yFactor);
  if (src[0] == nullptr || dst[0] == nullptr) return pxlStsNullPtr;
  if (srcSize.width < 1 || srcSize.height < 1 || srcRoi.x < 0 || srcRoi.y < 0 || srcRoi.width < 1 ||
      srcRoi.height < 1)
    return pxlStsSize;
  if (srcRoi.x >= srcSize.width || srcRoi.y >= srcSize.height) return pxlStsRoiOutside;
  if (dstRoiSize.width < 1 || dstRoiSize.height < 1) return pxlStsSize;
  // xFactor <= 0 lets a NaN through; !(yFactor > 0) does not.
  if (xFactor <= 0 || !(yFactor > 0)) return pxlStsBadResizeFactor;
  int mode = interpolation;
  if (!area && mode != kNearest && mode != kLinear && mode != kCubic && mode != kLanczos)
    return pxlStsBadInterpolation;
  // Small sources take a lower-order mode; only the image size counts.
  const int small = std::min(srcSize.width, srcSize.height);
  if (!area) {
    if (small < 8 && mode == kLanczos) mode = kCubic;
    if (small < 4 && mode == kCubic) mode = kLinear;
    if (small < 2) mode = kNearest;
  }
  const int roiW = std::min(srcRoi.width, srcSize.width - srcRoi.x);
  const int roiH = std::min(srcRoi.height, srcSize.height - srcRoi.y);
  int w, h;
  double sx, sy;
  if (!destExtent(roiW, xFactor, dstRoiSize.width, w, sx) || !destExtent(roiH, yFactor, dstRoiSize.height, h, sy))
    return pxlStsResizeEmpty;

  const std::ptrdiff_t offset = std::ptrdiff_t(srcRoi.y) * srcStep + std::ptrdiff_t(srcRoi.x) * Px * sizeof(T);
  // Steps count whole samples: a step that is no multiple of the sample is floored.
  const int shift = sizeof(T) == 1 ? 0 : sizeof(T) == 2 ? 1 : 2;
  const int sStep = (srcStep >> shift) * int(sizeof(T)), dStep = (dstStep >> shift) * int(sizeof(T));
  Scratch scratch;

  if (area) {
    AreaAxis cx, cy;
    const int nx = areaAxisSize(w, roiW, xFactor), ny = areaAxisSize(h, roiH, yFactor);
    cx.first = scratch.take<int>(w); cx.count = scratch.take<int>(w); cx.off = scratch.take<int>(w);
    cy.first = scratch.take<int>(h); cy.count = scratch.take<int>(h); cy.off = scratch.take<int>(h);
    if (!cx.first || !cx.count || !cx.off || !cy.first || !cy.count || !cy.off) return pxlStsAlloc;
    double* wts = scratch.take<double>(std::size_t(nx) + ny);
    double* acc = scratch.take<double>(std::size_t(w) * Nc);
    if (!wts || !acc) return pxlStsAlloc;
    cx.wt = wts;
    cy.wt = wts + nx;
    buildArea(cx, w, roiW, xFactor);
    buildArea(cy, h, roiH, yFactor);
    for (int pl = 0; pl < Planes; ++pl)
      areaRun<T, Px, Nc>(byteOffset(src[pl], offset), sStep, dst[pl], dStep, w, h, cx, cy, acc, nullptr);
    return pxlStsOk;
  }

  ResizePlan<T> p{mode, w, h, roiW, roiH, srcRoi.x, srcRoi.y, srcSize.width, srcSize.height, {}, {}};
  double stepX, stepY, startX = 0, startY = 0;
  if (mode == kNearest) {
    stepX = 1.0 / xFactor;
    stepY = 1.0 / yFactor;
    startX = stepX * 0.5;
    startY = stepY * 0.5;
  } else {
    stepX = sx > 1.0 ? (roiW - 1) / (sx - 1.0) : 0.0;
    stepY = sy > 1.0 ? (roiH - 1) / (sy - 1.0) : 0.0;
  }
  // Tables, in the order rows, columns, fractions, Lanczos weights, buffers.
  p.row.index = scratch.take<int>(h);
  p.col.index = scratch.take<int>(w);
  if (!p.row.index || !p.col.index) return pxlStsAlloc;
  const bool fixedLinear = mode == kLinear && ResizePlan<T>::kFixed;
  if (fixedLinear) {
    p.row.w = scratch.take<std::uint16_t>(h);
    p.col.w = scratch.take<std::uint16_t>(w);
    if (!p.row.w || !p.col.w) return pxlStsAlloc;
  } else if (mode == kLinear || mode == kCubic) {
    p.row.frac = scratch.take<float>(h);
    p.col.frac = scratch.take<float>(w);
    if (!p.row.frac || !p.col.frac) return pxlStsAlloc;
  } else if (mode == kLanczos) {
    p.row.lz = scratch.take<float>(std::size_t(h) * 6);
    p.col.lz = scratch.take<float>(std::size_t(w) * 6);
    if (!p.row.lz || !p.col.lz) return pxlStsAlloc;
  }
  const int taps = mode == kLinear ? 2 : mode == kCubic ? 4 : 6;
  void* ring = nullptr;
  int keys[6];
  if (mode != kNearest) {
    const std::size_t elem = fixedLinear ? sizeof(std::uint16_t) : sizeof(float);
    ring = scratch.take<char>(std::size_t(taps) * (w + 4) * Nc * elem);
    if (!ring) return pxlStsAlloc;
  }
  if (fixedLinear) {
    buildAxis<true>(p.col, w, mode, startX, stepX, srcRoi.x, srcSize.width);
    buildAxis<true>(p.row, h, mode, startY, stepY, srcRoi.y, srcSize.height);
  } else {
    buildAxis<false>(p.col, w, mode, startX, stepX, srcRoi.x, srcSize.width);
    buildAxis<false>(p.row, h, mode, startY, stepY, srcRoi.y, srcSize.height);
  }
  for (int pl = 0; pl < Planes; ++pl) {
    ResizeRun<T, Px, Nc> run{p, byteOffset(src[pl], offset), sStep, dst[pl], dStep, ring, keys};
    run.run();
  }
  return pxlStsOk;
}

// Public forms: one pointer for interleaved layouts, plane arrays for P3/P4.
template <class T, int Px, int Nc>
PxlStatus resizeC(const T* src, PxlSize srcSize, int srcStep, PxlRect srcRoi, T* dst, int dstStep, PxlSize dstRoiSize,
                  double xFactor, double yFactor, int interpolation) {
  const T* s[1] = {src};
  T* d[1] = {dst};
  return resize<T, Px, Nc, 1>(src ? s : nullptr, srcSize, srcStep, srcRoi, dst ? d : nullptr, dstStep, dstRoiSize,
                              xFactor, yFactor, interpolation);
}

template <class T, int Planes>
PxlStatus resizeP(const T* const* src, PxlSize srcSize, int srcStep, PxlRect srcRoi, T* const* dst, int dstStep,
                  PxlSize dstRoiSize, double xFactor, double yFactor, int interpolation) {
  return resize<T, 1, 1, Planes>(src, srcSize, srcStep, srcRoi, dst, dstStep, dstRoiSize, xFactor, yFactor,
                                 interpolation);
}

}  // namespace pxl::geom
