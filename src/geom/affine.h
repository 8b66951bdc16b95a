// Geometry of the affine family: quadrangles, bounds and transforms of a
// source rectangle, in 64-bit float exactly as the warps compute them.
#pragma once

#include <cmath>

#include "pxldefs.h"

namespace pxl::geom {

using Quad = double[4][2];
using Coeffs = double[2][3];

// Convexity of a closed quadrangle from the cross products of its four pairs
// of consecutive edges: 0 when one is exactly zero or their signs differ,
// else +1 or -1 for the orientation.
inline int checkQuad(const double (*q)[2]) {
  int sign = 0;
  for (int i = 0; i < 4; ++i) {
    const double* a = q[i];
    const double* b = q[(i + 1) % 4];
    const double* c = q[(i + 2) % 4];
    const double cross = (b[0] - a[0]) * (c[1] - b[1]) - (b[1] - a[1]) * (c[0] - b[0]);
    if (cross == 0.0) return 0;
    const int s = cross > 0 ? 1 : -1;
    if (sign != 0 && s != sign) return 0;
    sign = s;
  }
  return sign;
}

inline bool badRect(const PxlRect& r) { return r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1; }

// Corners (x0, y0), (x1, y0), (x1, y1), (x0, y1) of the rectangle through c.
inline void mapCorners(const PxlRect& r, const double (*c)[3], double (*q)[2]) {
  const double x0 = r.x, y0 = r.y, x1 = r.x + r.width - 1, y1 = r.y + r.height - 1;
  const double xs[4] = {x0, x1, x1, x0}, ys[4] = {y0, y0, y1, y1};
  for (int i = 0; i < 4; ++i) {
    q[i][0] = c[0][0] * xs[i] + c[0][1] * ys[i] + c[0][2];
    q[i][1] = c[1][0] * xs[i] + c[1][1] * ys[i] + c[1][2];
  }
}

inline void boundOf(const double (*q)[2], double (*b)[2]) {
  b[0][0] = b[1][0] = q[0][0];
  b[0][1] = b[1][1] = q[0][1];
  for (int i = 1; i < 4; ++i) {
    b[0][0] = std::fmin(b[0][0], q[i][0]);
    b[0][1] = std::fmin(b[0][1], q[i][1]);
    b[1][0] = std::fmax(b[1][0], q[i][0]);
    b[1][1] = std::fmax(b[1][1], q[i][1]);
  }
}

inline PxlStatus affineQuad(PxlRect r, double (*q)[2], const double (*c)[3]) {
  if (q == nullptr || c == nullptr) return pxlStsNullPtr;
  if (badRect(r)) return pxlStsSize;
  mapCorners(r, c, q);
  return checkQuad(q) ? pxlStsOk : pxlStsCoeffBad;
}

inline PxlStatus affineBound(PxlRect r, double (*b)[2], const double (*c)[3]) {
  if (b == nullptr) return pxlStsNullPtr;
  double q[4][2];
  const PxlStatus st = affineQuad(r, q, c);
  if (st == pxlStsOk || st == pxlStsCoeffBad) boundOf(q, b);
  return st;
}

// Angle in degrees to [0, 360) and its cosine and sine; the right angles
// take exact values.
inline double normaliseAngle(double angle) {
  const double k = std::nearbyint(angle / 360.0);
  double a = angle - k * 360.0;
  if (a < 0) a += 360.0;
  return a;
}

inline void cosSin(double a, double& c, double& s) {
  if (a == 90.0) c = 0.0, s = 1.0;
  else if (a == 180.0) c = -1.0, s = 0.0;
  else if (a == 270.0) c = 0.0, s = -1.0;
  else {
    const double rad = a / 180.0 * 3.141592653589793;
    c = std::cos(rad);
    s = std::sin(rad);
  }
}

// A positive angle turns the picture counter-clockwise on a display whose
// rows run downward.
inline void rotateCoeffs(double angle, double xShift, double yShift, double (*c)[3]) {
  double cs, sn;
  cosSin(normaliseAngle(angle), cs, sn);
  c[0][0] = cs, c[0][1] = sn, c[0][2] = xShift;
  c[1][0] = -sn, c[1][1] = cs, c[1][2] = yShift;
}

inline PxlStatus rotateQuad(PxlRect r, double (*q)[2], double angle, double xShift, double yShift) {
  if (q == nullptr) return pxlStsNullPtr;
  if (badRect(r)) return pxlStsSize;
  double c[2][3];
  rotateCoeffs(angle, xShift, yShift, c);
  mapCorners(r, c, q);
  return pxlStsOk;
}

inline PxlStatus rotateBound(PxlRect r, double (*b)[2], double angle, double xShift, double yShift) {
  if (b == nullptr) return pxlStsNullPtr;
  double q[4][2];
  const PxlStatus st = rotateQuad(r, q, angle, xShift, yShift);
  if (st != pxlStsOk) return st;
  boundOf(q, b);
  return pxlStsOk;
}

inline void shearCoeffs(double xShear, double yShear, double xShift, double yShift, double (*c)[3]) {
  c[0][0] = 1.0, c[0][1] = xShear, c[0][2] = xShift;
  c[1][0] = yShear, c[1][1] = 1.0, c[1][2] = yShift;
}

inline PxlStatus shearQuad(PxlRect r, double (*q)[2], double xShear, double yShear, double xShift, double yShift) {
  double c[2][3];
  shearCoeffs(xShear, yShear, xShift, yShift, c);
  return affineQuad(r, q, c);
}

inline PxlStatus shearBound(PxlRect r, double (*b)[2], double xShear, double yShear, double xShift, double yShift) {
  double c[2][3];
  shearCoeffs(xShear, yShear, xShift, yShift, c);
  return affineBound(r, b, c);
}

// Centre of rotation to shifts; right angles in closed form.
inline PxlStatus rotateShift(double xc, double yc, double angle, double* xs, double* ys, bool add) {
  if (xs == nullptr || ys == nullptr) return pxlStsNullPtr;
  const double a = normaliseAngle(angle);
  double dx, dy;
  if (a == 0.0) dx = 0.0, dy = 0.0;
  else if (a == 90.0) dx = xc - yc, dy = yc + xc;
  else if (a == 180.0) dx = 2 * xc, dy = 2 * yc;
  else if (a == 270.0) dx = xc + yc, dy = yc - xc;
  else {
    double c, s;
    cosSin(a, c, s);
    dx = xc - xc * c - yc * s;
    dy = xc * s + (yc - c * yc);
  }
  if (add) *xs += dx, *ys += dy;
  else *xs = dx, *ys = dy;
  return pxlStsOk;
}

// Relative difference test of two values, falling back to an absolute one
// when the reference is too small to divide by.
inline bool nearlyEqual(double t, double u) {
  const double e = std::fabs(t) > 1e-200 ? (t - u) / t : u;
  return std::fabs(e) <= 1e-12;
}

// The transform that takes the rectangle's corners to q's first three
// vertices; the fourth only decides the +28 warning.
inline PxlStatus affineTransform(PxlRect r, const double (*q)[2], double (*c)[3]) {
  if (q == nullptr || c == nullptr) return pxlStsNullPtr;
  if (badRect(r)) return pxlStsSize;
  if (checkQuad(q) == 0) return pxlStsQuadBad;
  PxlStatus st = pxlStsOk;
  double t = (q[1][1] - q[0][1]) * (q[3][0] - q[2][0]), u = (q[3][1] - q[2][1]) * (q[1][0] - q[0][0]);
  if (!nearlyEqual(t, u)) {
    st = pxlStsQuadAdjusted;
  } else {
    t = (q[0][1] - q[3][1]) * (q[2][0] - q[1][0]);
    u = (q[2][1] - q[1][1]) * (q[0][0] - q[3][0]);
    if (!nearlyEqual(t, u)) st = pxlStsQuadAdjusted;
  }
  if (r.width == 1 || r.height == 1) return pxlStsRectBad;
  const double W = r.width - 1, H = r.height - 1, x0 = r.x, y0 = r.y;
  c[0][0] = (q[1][0] - q[0][0]) / W;
  c[0][1] = (q[2][0] - q[1][0]) / H;
  c[0][2] = q[0][0] - c[0][1] * y0 - c[0][0] * x0;
  c[1][0] = (q[1][1] - q[0][1]) / W;
  c[1][1] = (q[2][1] - q[1][1]) / H;
  c[1][2] = q[0][1] - c[1][0] * x0 - c[1][1] * y0;
  return st;
}

}  // namespace pxl::geom
