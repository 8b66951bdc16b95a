// Affine warps: WarpAffine, WarpAffineBack, WarpAffineQuad, Rotate,
// RotateCenter and Shear over one engine.
//
// Every warp works backward and by scan conversion: the image of the source
// ROI is a convex quadrangle in destination space; it is clipped to the
// destination region, turned into one span of columns per row, and only the
// pixels of those spans are written, each from the source position that the
// inverse transform gives, through the sampling that remap uses too. Every
// other destination pixel keeps its value.
#pragma once

#include <algorithm>
#include <cmath>

#include "geom/affine.h"
#include "geom/sampling.h"

namespace pxl::geom {

constexpr int kSmoothEdge = int(0x80000000u);

// A convex polygon: the quadrangle, then at most one more vertex per clipping
// line.
struct Poly {
  double v[12][2];
  int n = 0;
};

struct Box {
  double x0, y0, x1, y1;  // inclusive
};

inline Box boxOf(const PxlRect& r) {
  return {double(r.x), double(r.y), double(r.x) + r.width - 1, double(r.y) + r.height - 1};
}

// One clipping line: a vertex on the kept side or on the line stays, an edge
// that crosses gets a vertex interpolated along it.
inline void clipPlane(Poly& p, int axis, double bound, bool keepAbove) {
  Poly out;
  auto in = [&](const double* v) { return keepAbove ? v[axis] >= bound : v[axis] <= bound; };
  for (int i = 0; i < p.n; ++i) {
    const double* a = p.v[(i + p.n - 1) % p.n];
    const double* b = p.v[i];
    if (in(a) != in(b)) {
      const double t = (bound - a[axis]) / (b[axis] - a[axis]);
      double* o = out.v[out.n++];
      o[axis] = bound;
      o[1 - axis] = a[1 - axis] + t * (b[1 - axis] - a[1 - axis]);
    }
    if (in(b)) {
      out.v[out.n][0] = b[0], out.v[out.n][1] = b[1];
      ++out.n;
    }
  }
  p = out;
}

// Clip against the box: top, bottom, left, right; then drop each vertex equal
// to its predecessor.
inline Poly clipPolygon(const Poly& in, const Box& b) {
  double lo[2] = {in.v[0][0], in.v[0][1]}, hi[2] = {lo[0], lo[1]};
  for (int i = 1; i < in.n; ++i)
    for (int k = 0; k < 2; ++k) lo[k] = std::min(lo[k], in.v[i][k]), hi[k] = std::max(hi[k], in.v[i][k]);
  Poly p;
  if (!(hi[0] >= b.x0 && lo[0] <= b.x1 && hi[1] >= b.y0 && lo[1] <= b.y1)) return p;
  p = in;
  if (!(lo[0] >= b.x0 && hi[0] <= b.x1 && lo[1] >= b.y0 && hi[1] <= b.y1)) {
    clipPlane(p, 1, b.y0, true);
    clipPlane(p, 1, b.y1, false);
    clipPlane(p, 0, b.x0, true);
    clipPlane(p, 0, b.x1, false);
  }
  Poly q;
  for (int i = 0; i < p.n; ++i)
    if (q.n == 0 || p.v[i][0] != q.v[q.n - 1][0] || p.v[i][1] != q.v[q.n - 1][1]) {
      q.v[q.n][0] = p.v[i][0], q.v[q.n][1] = p.v[i][1];
      ++q.n;
    }
  while (q.n > 1 && q.v[q.n - 1][0] == q.v[0][0] && q.v[q.n - 1][1] == q.v[0][1]) --q.n;
  return q;
}

inline Poly polyOf(const double (*q)[2]) {
  Poly p;
  p.n = 4;
  for (int i = 0; i < 4; ++i) p.v[i][0] = q[i][0], p.v[i][1] = q[i][1];
  return p;
}

// Rows holding a pixel centre of the polygon; false when there is none.
inline bool rowRange(const Poly& p, int& first, int& last) {
  if (p.n == 0) return false;
  double lo[2] = {p.v[0][0], p.v[0][1]}, hi[2] = {lo[0], lo[1]};
  for (int i = 1; i < p.n; ++i)
    for (int k = 0; k < 2; ++k) lo[k] = std::min(lo[k], p.v[i][k]), hi[k] = std::max(hi[k], p.v[i][k]);
  first = int(std::ceil(lo[1]));
  last = int(std::floor(hi[1]));
  return last >= first && std::ceil(lo[0]) <= std::floor(hi[0]);
}

// One side of a convex polygon from its topmost vertex down, stepping through
// the vertices in one direction and skipping horizontal edges.
struct Chain {
  const Poly& p;
  int dir, a, b, steps = 0;
  Chain(const Poly& poly, int top, int d) : p(poly), dir(d), a(top), b((top + d + poly.n) % poly.n) {}
  double ya() const { return p.v[a][1]; }
  double yb() const { return p.v[b][1]; }
  // Moves on to the edge that covers row r; the edge is left where it is at
  // the bottom vertex.
  void seek(double r) {
    while (steps < p.n && (yb() < r || yb() == ya())) {
      const int nb = (b + dir + p.n) % p.n;
      if (p.v[nb][1] < yb()) break;
      a = b, b = nb, ++steps;
    }
  }
  bool flat() const { return yb() == ya(); }
  double x(double r) const {
    const double slope = (p.v[b][0] - p.v[a][0]) / (yb() - ya());
    return (r - ya()) * slope + p.v[a][0];
  }
};

// Span of columns per row, inclusive, absolute; first > last writes nothing.
// A chain position that rounds to an integer in single precision counts as
// that integer, so that a corner mapped onto a pixel centre up to rounding
// keeps its pixel.
inline void fillSpans(const Poly& p, int orient, int first, int last, int* spans) {
  for (int r = first; r <= last; ++r) spans[2 * (r - first)] = 1, spans[2 * (r - first) + 1] = 0;
  if (p.n == 1) {
    spans[0] = spans[1] = int(std::floor(p.v[0][0]));
    return;
  }
  spans[0] = int(std::ceil(std::min(p.v[0][0], p.v[1][0])));
  spans[1] = int(std::floor(std::max(p.v[0][0], p.v[1][0])));
  int top = 0;
  for (int i = 1; i < p.n; ++i)
    if (p.v[i][1] < p.v[top][1]) top = i;
  Chain back(p, top, -1), fwd(p, top, 1);
  for (int r = first; r <= last; ++r) {
    back.seek(r), fwd.seek(r);
    if (back.flat() || fwd.flat()) continue;
    const double xa = back.x(r), xb = fwd.x(r);
    const double left = orient ? xa : xb, right = orient ? xb : xa;
    int lo = int(std::ceil(left)), hi = int(std::floor(right));
    if (double(float(left)) + 1.0 - double(float(std::ceil(left))) < 1e-14) --lo;
    if (double(float(std::floor(right))) + (1.0 - double(float(right))) < 1e-14) ++hi;
    spans[2 * (r - first)] = lo, spans[2 * (r - first) + 1] = hi;
  }
}

// Spans of a clipped polygon, from the library's allocator; null when the
// polygon holds no pixel or the allocation fails (both are +30).
inline int* spansOf(Scratch& scratch, const Poly& p, int orient, int& first, int& last) {
  if (!rowRange(p, first, last)) return nullptr;
  int* spans = scratch.take<int>(std::size_t(last - first + 1) * 2);
  if (spans != nullptr) fillSpans(p, orient, first, last, spans);
  return spans;
}

// A source position to an index that stays inside [lo, hi] whatever the
// rounding drift of long spans (and NaN goes to lo).
inline int clampIndex(float v, int lo, int hi) {
  const float c = v > float(lo) ? std::fmin(v, float(hi)) : float(lo);
  return int(c);
}

template <class T, int Px, int Nc, int Planes>
struct Warp {
  static constexpr int kPlanes = Planes > 0 ? Planes : 1;
  static constexpr int kSamples = Planes > 0 ? 1 : Nc;
  // Samples blended by the edge smoothing: the alpha of AC4 is blended too.
  static constexpr int kBlend = Planes > 0 ? 1 : (Px == 4 ? 4 : Nc);
  const T* src[kPlanes];
  T* dst[kPlanes];
  int srcStep, dstStep, maxX, maxY, mode;

  T* at(int p, int x, int y) const { return byteOffset(dst[p], std::ptrdiff_t(dstStep) * y) + std::ptrdiff_t(x) * Px; }

  void pixel(T* const* d, float x, float y) const {
    for (int p = 0; p < kPlanes; ++p) {
      const Src<T, Px> s{src[p], srcStep};
      if (mode == kNearest) {
        const int i = clampIndex(x + 0.5f, 0, maxX), j = clampIndex(y + 0.5f, 0, maxY);
        for (int c = 0; c < kSamples; ++c) storeSample(d[p] + c, s.at(i, j, c));
      } else if (mode == kLinear) {
        const int i = clampIndex(x, 0, maxX - 1), j = clampIndex(y, 0, maxY - 1);
        const float fx = x - float(i), fy = y - float(j);
        for (int c = 0; c < kSamples; ++c) {
          if constexpr (std::is_same_v<T, Pxl8u>) {
            storeSample(d[p] + c, linear8u<524288>(s, i, j, fx, fy, c));
          } else if constexpr (std::is_same_v<T, Pxl16u>) {
            const float v = linearFloat(s, i, j, fx, fy, c);
            storeSample(d[p] + c, Pxl16u(std::clamp(std::nearbyint(v), 0.0f, 65535.0f)));
          } else {
            storeSample(d[p] + c, linearFloat(s, i, j, fx, fy, c));
          }
        }
      } else {
        float tx, ty;
        const int bx = cubicBase(x, maxX, tx), by = cubicBase(y, maxY, ty);
        for (int c = 0; c < kSamples; ++c) storeSample(d[p] + c, cubicSample<T>(s, bx, by, tx, ty, c));
      }
    }
  }

  // Nearest and linear step in single precision from a row base formed in
  // double; cubic keeps its positions in double and rounds each one.
  void rows(int first, int last, const int* spans, const double (*inv)[3]) const {
    T* d[kPlanes];
    if (mode != kCubic) {
      float bx = float(inv[0][1] * first + inv[0][2]), by = float(inv[1][1] * first + inv[1][2]);
      const float a00 = float(inv[0][0]), a10 = float(inv[1][0]), a01 = float(inv[0][1]), a11 = float(inv[1][1]);
      for (int r = first; r <= last; ++r, bx += a01, by += a11) {
        const int f = spans[2 * (r - first)], l = spans[2 * (r - first) + 1];
        float x = float(f) * a00 + bx, y = float(f) * a10 + by;
        for (int p = 0; p < kPlanes; ++p) d[p] = at(p, f, r);
        for (int i = f; i <= l; ++i, x += a00, y += a10) {
          pixel(d, x, y);
          for (int p = 0; p < kPlanes; ++p) d[p] += Px;
        }
      }
      return;
    }
    double bx = inv[0][1] * first + inv[0][2], by = inv[1][1] * first + inv[1][2];
    const float hx = float(maxX + 1), hy = float(maxY + 1);
    for (int r = first; r <= last; ++r, bx += inv[0][1], by += inv[1][1]) {
      const int f = spans[2 * (r - first)], l = spans[2 * (r - first) + 1];
      double x = f * inv[0][0] + bx, y = f * inv[1][0] + by;
      for (int p = 0; p < kPlanes; ++p) d[p] = at(p, f, r);
      for (int i = f; i <= l; ++i, x += inv[0][0], y += inv[1][0]) {
        const float fx = float(x), fy = float(y);
        // Beyond one pixel outside the source the pixel is left alone.
        if (fx >= -1.0f && fy >= -1.0f && fx <= hx && fy <= hy) pixel(d, fx, fy);
        for (int p = 0; p < kPlanes; ++p) d[p] += Px;
      }
    }
  }

  // Each untouched pixel just outside a slanted edge is blended with its
  // neighbour inside, in proportion to the distances of both from the edge.
  // Both neighbours are kept inside the destination region (the polygon is
  // clipped to it, so this only guards against rounding).
  void smooth(const Poly& p, int orient, const Box& box) const {
    if (p.n < 3) return;
    for (int e = 0; e < p.n; ++e) {
      const double* a = p.v[e];
      const double* b = p.v[(e + 1) % p.n];
      const double dx = b[0] - a[0], dy = b[1] - a[1];
      if (dx == 0.0 || dy == 0.0) continue;
      const bool cols = std::fabs(dy) <= std::fabs(dx);
      const int k = cols ? 0 : 1;  // the axis walked
      const bool positive = (cols ? dx : dy) > 0;
      const bool innerCeil = cols ? (orient == 1) == positive : (orient == 1) != positive;
      const int from = int(std::ceil(std::min(a[k], b[k]))), to = int(std::floor(std::max(a[k], b[k])));
      for (int w = from; w <= to; ++w) {
        const double c = a[1 - k] + (w - a[k]) * (b[1 - k] - a[1 - k]) / (b[k] - a[k]);
        const double fl = std::floor(c), ce = std::ceil(c);
        const double inner = innerCeil ? ce : fl, outer = innerCeil ? fl : ce;
        if (c == inner) continue;
        const double lo = cols ? box.y0 : box.x0, hi = cols ? box.y1 : box.x1;
        if (inner < lo || outer < lo || inner > hi || outer > hi) continue;
        const double wo = std::fabs(c - outer), wi = std::fabs(c - inner);
        for (int pl = 0; pl < kPlanes; ++pl) {
          T* po = cols ? at(pl, w, int(outer)) : at(pl, int(outer), w);
          const T* pi = cols ? at(pl, w, int(inner)) : at(pl, int(inner), w);
          for (int s = 0; s < kBlend; ++s) {
            const double v = double(loadSample(po + s)) * wo + double(loadSample(pi + s)) * wi;
            if constexpr (std::is_same_v<T, Pxl32f>) storeSample(po + s, float(v));
            else storeSample(po + s, T(v + 0.5));
          }
        }
      }
    }
  }
};

// Arguments every warp shares, checked in the family's order: null pointers,
// sizes, steps, the interpolation code, plane pointers.
template <class T, int Px, int Nc, int Planes>
struct WarpArgs {
  const T* const* src;
  PxlSize srcSize;
  int srcStep;
  PxlRect srcRoi;
  T* const* dst;
  int dstStep;
  PxlRect dstRoi;
  int interpolation;

  PxlStatus check(bool interp) const {
    if (src == nullptr || dst == nullptr) return pxlStsNullPtr;
    if (srcSize.width < 1 || srcSize.height < 1 || badRect(srcRoi) || badRect(dstRoi)) return pxlStsSize;
    if (srcStep < 1 || dstStep < 1) return pxlStsStep;
    const int m = interpolation & ~kSmoothEdge;
    if (interp && m != kNearest && m != kLinear && m != kCubic) return pxlStsBadInterpolation;
    for (int p = 0; p < Planes; ++p)
      if (src[p] == nullptr || dst[p] == nullptr) return pxlStsNullPtr;
    return pxlStsOk;
  }
  // The mode a small source allows: one row or column takes nearest, fewer
  // than four takes linear for cubic.
  int mode() const {
    const int m = interpolation & ~kSmoothEdge;
    if (srcSize.width == 1 || srcSize.height == 1) return kNearest;
    if (m == kCubic && (srcSize.width < 4 || srcSize.height < 4)) return kLinear;
    return m;
  }
  bool outside() const { return srcSize.width <= srcRoi.x || srcSize.height <= srcRoi.y; }
  // The ROI clipped to the image.
  PxlRect clipped() const {
    return {srcRoi.x, srcRoi.y, std::min(srcRoi.width, srcSize.width - srcRoi.x),
            std::min(srcRoi.height, srcSize.height - srcRoi.y)};
  }
  Warp<T, Px, Nc, Planes> engine() const {
    Warp<T, Px, Nc, Planes> w{};
    for (int p = 0; p < Warp<T, Px, Nc, Planes>::kPlanes; ++p) w.src[p] = src[p], w.dst[p] = dst[p];
    w.srcStep = srcStep, w.dstStep = dstStep;
    w.maxX = srcSize.width - 1, w.maxY = srcSize.height - 1;
    w.mode = mode();
    return w;
  }
  // Clip the destination polygon, fill its spans, run the kernels and, when
  // asked, smooth its slanted edges. Nothing is written when no pixel is
  // covered (+30).
  PxlStatus run(const Poly& quad, int orient, const double (*inv)[3], bool smooth) const {
    const Box box = boxOf(dstRoi);
    const Poly p = clipPolygon(quad, box);
    Scratch scratch;
    int first, last;
    int* spans = spansOf(scratch, p, orient, first, last);
    if (spans == nullptr) return pxlStsQuadClipped;
    return runSpans(spans, first, last, inv, smooth ? &p : nullptr, orient);
  }
  PxlStatus runSpans(int* spans, int first, int last, const double (*inv)[3], const Poly* smoothed,
                     int orient) const {
    const Box box = boxOf(dstRoi);
    // Rows and columns stay inside the destination region whatever the
    // rounding of the polygon's vertices.
    const int r0 = std::max(first, dstRoi.y), r1 = std::min(last, dstRoi.y + dstRoi.height - 1);
    for (int r = r0; r <= r1; ++r) {
      int* s = spans + 2 * (r - first);
      s[0] = std::max(s[0], dstRoi.x), s[1] = std::min(s[1], dstRoi.x + dstRoi.width - 1);
    }
    if (r0 > r1) return pxlStsOk;
    const auto w = engine();
    w.rows(r0, r1, spans + 2 * (r0 - first), inv);
    if (smoothed != nullptr) w.smooth(*smoothed, orient, box);
    return pxlStsOk;
  }
};

// The inverse of a 2 x 3 transform given by its linear part's determinant.
inline void invertCoeffs(const double (*c)[3], double (*f)[3]) {
  const double det = c[0][0] * c[1][1] - c[0][1] * c[1][0];
  f[0][0] = c[1][1] / det;
  f[0][1] = -c[0][1] / det;
  f[0][2] = (c[0][1] * c[1][2] - c[1][1] * c[0][2]) / det;
  f[1][0] = -c[1][0] / det;
  f[1][1] = c[0][0] / det;
  f[1][2] = (c[0][2] * c[1][0] - c[1][2] * c[0][0]) / det;
}

inline bool singular(const double (*c)[3]) {
  const double d = c[0][0] * c[1][1];
  const double e = std::fabs(d) > 1e-200 ? (d - c[0][1] * c[1][0]) / d : c[0][1] * c[1][0];
  return !(std::fabs(e) > 1e-12);
}

template <class T, int Px, int Nc, int Planes>
PxlStatus warpAffine(const WarpArgs<T, Px, Nc, Planes>& a, const double (*coeffs)[3], bool back) {
  if (coeffs == nullptr && a.src != nullptr && a.dst != nullptr) return pxlStsNullPtr;
  if (const PxlStatus st = a.check(true); st != pxlStsOk) return st;
  if (singular(coeffs)) return pxlStsCoeffBad;
  if (a.outside()) return pxlStsRoiOutside;
  const PxlRect r = a.clipped();
  if (!back && (r.width < 2 || r.height < 2)) return pxlStsRectBad;
  double q[4][2], inv[2][3];
  if (back) {
    double fwd[2][3];
    invertCoeffs(coeffs, fwd);
    mapCorners(r, fwd, q);
    for (int i = 0; i < 2; ++i)
      for (int k = 0; k < 3; ++k) inv[i][k] = coeffs[i][k];
  } else {
    mapCorners(r, coeffs, q);
  }
  const int orient = checkQuad(q);
  if (orient == 0) return pxlStsCoeffBad;
  if (!back) {
    // The inverse comes from the quadrangle, so that the corners map back
    // onto the ROI's corners.
    const double ea = q[1][0] - q[0][0], eb = q[2][0] - q[1][0], ec = q[1][1] - q[0][1], ed = q[2][1] - q[1][1];
    const double det = ea * ed - eb * ec, W = r.width - 1, H = r.height - 1;
    inv[0][0] = ed * W / det;
    inv[0][1] = -eb * W / det;
    inv[0][2] = r.x - inv[0][1] * q[0][1] - inv[0][0] * q[0][0];
    inv[1][0] = -ec * H / det;
    inv[1][1] = ea * H / det;
    inv[1][2] = r.y - inv[1][0] * q[0][0] - inv[1][1] * q[0][1];
  }
  const bool smooth = !back && (a.interpolation & kSmoothEdge) != 0;
  return a.run(polyOf(q), orient > 0 ? 1 : 0, inv, smooth);
}

// The transform taking the first three vertices of s onto those of d.
inline void transformOfQuads(const double (*s)[2], const double (*d)[2], double (*c)[3]) {
  const double a = s[1][0] - s[0][0], b = s[2][0] - s[1][0], cc = s[1][1] - s[0][1], dd = s[2][1] - s[1][1];
  const double p = d[1][0] - d[0][0], r = d[2][0] - d[1][0], sy = d[1][1] - d[0][1], u = d[2][1] - d[1][1];
  const double m = 1.0 / (a * dd - b * cc);
  c[0][0] = (dd * p - r * cc) * m;
  c[0][1] = (r * a - p * b) * m;
  c[0][2] = d[2][0] - c[0][0] * s[2][0] - c[0][1] * s[2][1];
  c[1][0] = (dd * sy - cc * u) * m;
  c[1][1] = (u * a - sy * b) * m;
  c[1][2] = d[2][1] - c[1][0] * s[2][0] - c[1][1] * s[2][1];
}

template <class T, int Px, int Nc, int Planes>
PxlStatus warpAffineQuad(const WarpArgs<T, Px, Nc, Planes>& a, const double (*srcQuad)[2],
                         const double (*dstQuad)[2]) {
  if ((srcQuad == nullptr || dstQuad == nullptr) && a.src != nullptr && a.dst != nullptr) return pxlStsNullPtr;
  if (const PxlStatus st = a.check(true); st != pxlStsOk) return st;
  if (checkQuad(srcQuad) == 0 || checkQuad(dstQuad) == 0) return pxlStsQuadBad;
  double fwd[2][3], inv[2][3], dq[4][2];
  transformOfQuads(srcQuad, dstQuad, fwd);
  for (int i = 0; i < 4; ++i) dq[i][0] = dstQuad[i][0], dq[i][1] = dstQuad[i][1];
  // A fourth vertex off the parallelogram is replaced by the mapped one.
  PxlStatus result = pxlStsOk;
  for (int k = 0; k < 2; ++k) {
    const double v = fwd[k][0] * srcQuad[3][0] + fwd[k][1] * srcQuad[3][1] + fwd[k][2], g = dstQuad[3][k];
    const bool fits = std::fabs(v) > 1e-200 ? std::fabs((v - g) / v) <= 1e-12 : std::fabs(g) <= 1e-12;
    if (!fits) result = pxlStsQuadAdjusted;
    dq[3][k] = v;
  }
  if (a.outside()) return pxlStsRoiOutside;
  const PxlRect r = a.clipped();
  const Box roi = boxOf(r);
  bool clipSource = false;
  for (int i = 0; i < 4; ++i)
    clipSource |= srcQuad[i][0] < roi.x0 || srcQuad[i][0] > roi.x1 || srcQuad[i][1] < roi.y0 || srcQuad[i][1] > roi.y1;
  transformOfQuads(dq, srcQuad, inv);
  // Spans run by the destination quadrangle's own turning sense.
  const int orient = checkQuad(dq) > 0 ? 1 : 0;
  if (!clipSource) {
    const PxlStatus st = a.run(polyOf(dq), orient, inv, (a.interpolation & kSmoothEdge) != 0);
    return st != pxlStsOk ? st : result;
  }
  Poly p = clipPolygon(polyOf(srcQuad), roi);
  if (p.n == 0) return pxlStsQuadClipped;
  for (int i = 0; i < p.n; ++i) {
    const double x = p.v[i][0], y = p.v[i][1];
    p.v[i][0] = fwd[0][0] * x + fwd[0][1] * y + fwd[0][2];
    p.v[i][1] = fwd[1][0] * x + fwd[1][1] * y + fwd[1][2];
  }
  p = clipPolygon(p, boxOf(a.dstRoi));
  Scratch scratch;
  int first, last;
  int* spans = spansOf(scratch, p, orient, first, last);
  if (spans == nullptr) return pxlStsQuadClipped;
  const PxlStatus st = a.runSpans(spans, first, last, inv, nullptr, orient);
  return st != pxlStsOk ? st : result;
}

// Right-angle rotations by whole shifts only move pixels: dst(x', y') =
// src(sx, sy) with sx, sy integer affine in x', y'.
template <class T, int Px, int Nc, int Planes>
PxlStatus rotateExact(const WarpArgs<T, Px, Nc, Planes>& a, double angle, long xs, long ys) {
  if (const PxlStatus st = a.check(false); st != pxlStsOk) return st;
  if (a.outside()) return pxlStsRoiOutside;
  const PxlRect r = a.clipped();
  const long x0 = r.x, x1 = r.x + r.width - 1, y0 = r.y, y1 = r.y + r.height - 1;
  long c0, c1, r0, r1, m[2][3];  // source column = m[0] . (x', y', 1), row = m[1] . (...)
  if (angle == 90.0) {
    c0 = y0 + xs, c1 = y1 + xs, r0 = ys - x1, r1 = ys - x0;
    m[0][0] = 0, m[0][1] = -1, m[0][2] = ys, m[1][0] = 1, m[1][1] = 0, m[1][2] = -xs;
  } else if (angle == 180.0) {
    c0 = xs - x1, c1 = xs - x0, r0 = ys - y1, r1 = ys - y0;
    m[0][0] = -1, m[0][1] = 0, m[0][2] = xs, m[1][0] = 0, m[1][1] = -1, m[1][2] = ys;
  } else {
    c0 = xs - y1, c1 = xs - y0, r0 = x0 + ys, r1 = x1 + ys;
    m[0][0] = 0, m[0][1] = 1, m[0][2] = -ys, m[1][0] = -1, m[1][1] = 0, m[1][2] = xs;
  }
  c0 = std::max<long>(c0, a.dstRoi.x), c1 = std::min<long>(c1, long(a.dstRoi.x) + a.dstRoi.width - 1);
  r0 = std::max<long>(r0, a.dstRoi.y), r1 = std::min<long>(r1, long(a.dstRoi.y) + a.dstRoi.height - 1);
  if (c0 > c1 || r0 > r1) return pxlStsRoiOutside;
  const auto w = a.engine();
  constexpr int kSamples = Warp<T, Px, Nc, Planes>::kSamples;
  for (long y = r0; y <= r1; ++y)
    for (int p = 0; p < Warp<T, Px, Nc, Planes>::kPlanes; ++p) {
      const Src<T, Px> s{a.src[p], a.srcStep};
      T* d = w.at(p, int(c0), int(y));
      for (long x = c0; x <= c1; ++x, d += Px) {
        const int sx = int(m[0][0] * x + m[0][1] * y + m[0][2]), sy = int(m[1][0] * x + m[1][1] * y + m[1][2]);
        for (int c = 0; c < kSamples; ++c) storeSample(d + c, s.at(sx, sy, c));
      }
    }
  return pxlStsOk;
}

template <class T, int Px, int Nc, int Planes>
PxlStatus rotate(const WarpArgs<T, Px, Nc, Planes>& a, double angle, double xShift, double yShift) {
  const double n = normaliseAngle(angle);
  if ((n == 90.0 || n == 180.0 || n == 270.0) && xShift == std::trunc(xShift) && yShift == std::trunc(yShift) &&
      std::fabs(xShift) < 1e9 && std::fabs(yShift) < 1e9)
    return rotateExact(a, n, long(xShift), long(yShift));
  double c[2][3];
  rotateCoeffs(angle, xShift, yShift, c);
  return warpAffine(a, c, false);
}

// Public shapes: interleaved forms pass one pointer, planar forms an array.
template <class T, int Px, int Nc, int Planes>
struct WarpCall {
  using S = std::conditional_t<Planes == 0, const T*, const T* const*>;
  using D = std::conditional_t<Planes == 0, T*, T* const*>;
  const T* s1[1];
  T* d1[1];
  WarpArgs<T, Px, Nc, Planes> a;
  WarpCall(S src, PxlSize srcSize, int srcStep, PxlRect srcRoi, D dst, int dstStep, PxlRect dstRoi, int interp) {
    if constexpr (Planes == 0) {
      s1[0] = src, d1[0] = dst;
      a = {src ? s1 : nullptr, srcSize, srcStep, srcRoi, dst ? d1 : nullptr, dstStep, dstRoi, interp};
    } else {
      a = {src, srcSize, srcStep, srcRoi, dst, dstStep, dstRoi, interp};
    }
  }
};

#define PXL_WARP_ARGS \
  typename WarpCall<T, Px, Nc, Planes>::S src, PxlSize srcSize, int srcStep, PxlRect srcRoi, \
      typename WarpCall<T, Px, Nc, Planes>::D dst, int dstStep, PxlRect dstRoi
#define PXL_WARP_CALL(interp) WarpCall<T, Px, Nc, Planes>(src, srcSize, srcStep, srcRoi, dst, dstStep, dstRoi, interp).a

template <class T, int Px, int Nc, int Planes>
PxlStatus warpAffineX(PXL_WARP_ARGS, const double (*coeffs)[3], int interpolation) {
  return warpAffine(PXL_WARP_CALL(interpolation), coeffs, false);
}
template <class T, int Px, int Nc, int Planes>
PxlStatus warpAffineBackX(PXL_WARP_ARGS, const double (*coeffs)[3], int interpolation) {
  return warpAffine(PXL_WARP_CALL(interpolation), coeffs, true);
}
template <class T, int Px, int Nc, int Planes>
PxlStatus warpAffineQuadX(typename WarpCall<T, Px, Nc, Planes>::S src, PxlSize srcSize, int srcStep, PxlRect srcRoi,
                          const double (*srcQuad)[2], typename WarpCall<T, Px, Nc, Planes>::D dst, int dstStep,
                          PxlRect dstRoi, const double (*dstQuad)[2], int interpolation) {
  return warpAffineQuad(PXL_WARP_CALL(interpolation), srcQuad, dstQuad);
}
template <class T, int Px, int Nc, int Planes>
PxlStatus rotateX(PXL_WARP_ARGS, double angle, double xShift, double yShift, int interpolation) {
  return rotate(PXL_WARP_CALL(interpolation), angle, xShift, yShift);
}
template <class T, int Px, int Nc, int Planes>
PxlStatus rotateCenterX(PXL_WARP_ARGS, double angle, double xCenter, double yCenter, int interpolation) {
  double xs, ys;
  rotateShift(xCenter, yCenter, angle, &xs, &ys, false);
  return rotate(PXL_WARP_CALL(interpolation), angle, xs, ys);
}
template <class T, int Px, int Nc, int Planes>
PxlStatus shearX(PXL_WARP_ARGS, double xShear, double yShear, double xShift, double yShift, int interpolation) {
  double c[2][3];
  shearCoeffs(xShear, yShear, xShift, yShift, c);
  return warpAffine(PXL_WARP_CALL(interpolation), c, false);
}

#undef PXL_WARP_ARGS
#undef PXL_WARP_CALL

}  // namespace pxl::geom
