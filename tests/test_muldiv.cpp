// Mul, MulC, Div, DivC, MulScale, MulCScale against an independent
// statement of each rule: every image member and vector form, scales at and
// beyond each limit, run by the differential trial (random sizes, offsets
// and thread counts, images between guard pages).
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cmath>
#include <cstring>

#include "harness/differential.h"
#include "harness/int128.h"

namespace {

using pxltest::diff::Member;
using pxltest::diff::Num;
using pxltest::diff::TypeInfo;

enum class Kind { Mul, Div, MulScale };

Kind kindOf(const Member& m) { return m.scaleForm ? Kind::MulScale : m.op == "Mul" ? Kind::Mul : Kind::Div; }

// ------------------------------------------------------------ the rules

// Exact x over 2^s rounded half to even (or times 2^-s), then saturated.
long long refScale(i128 x, int s, const TypeInfo& t) {
  i128 v;
  if (s == 0) {
    v = x;
  } else if (s > 0) {
    if (s > 100) return 0;
    const i128 d = i128(1) << s;
    i128 q = x >= 0 ? x / d : -((-x + d - 1) / d);  // floor
    const i128 r = x - q * d;
    if (2 * r > d || (2 * r == d && (q & 1))) ++q;
    v = q;
  } else {
    v = x == 0 ? 0 : -s > 60 ? (x > 0 ? i128(1) << 100 : -(i128(1) << 100)) : x * (i128(1) << -s);
  }
  return static_cast<long long>(v < t.lo ? t.lo : v > t.hi ? t.hi : v);
}

// Products. Floats: each IEEE operation in the part's own precision.
template <class F>
Num mulFloat(const Num& a, const Num& b, bool complex) {
  Num r;
  if (!complex) { r.f[0] = F(F(a.f[0]) * F(b.f[0])); return r; }
  const F ar = F(a.f[0]), ai = F(a.f[1]), br = F(b.f[0]), bi = F(b.f[1]);
  const F p1 = ar * br, p2 = ai * bi, p3 = ar * bi, p4 = ai * br;
  r.f[0] = F(p1 - p2);
  r.f[1] = F(p3 + p4);
  return r;
}

Num refMul(const Num& a, const Num& b, int s, const Member& m) {
  if (m.t.isFloat)
    return m.t.partBytes == 4 ? mulFloat<float>(a, b, m.t.parts == 2) : mulFloat<double>(a, b, m.t.parts == 2);
  Num r;
  if (m.t.parts == 1) {
    r.i[0] = refScale(i128(a.i[0]) * b.i[0], s, m.t);
  } else {
    r.i[0] = refScale(i128(a.i[0]) * b.i[0] - i128(a.i[1]) * b.i[1], s, m.t);
    r.i[1] = refScale(i128(a.i[0]) * b.i[1] + i128(a.i[1]) * b.i[0], s, m.t);
  }
  return r;
}

Num refMulScale(const Num& a, const Num& b, const Member& m) {
  const long long t = a.i[0] * b.i[0], bits = m.type == "8u" ? 8 : 16, unit = 1LL << bits;
  Num r;
  r.i[0] = (t + 1 + t / unit) / unit;
  return r;
}

// Add one half and truncate; an exact odd result of the sum was a tie and
// goes down to even. All in single precision.
long long roundFloatHalf(float q) {
  const float t = q + 0.5f;
  const float w = std::floor(t);
  long long i = static_cast<long long>(w);
  if (t == w && (i % 2 != 0)) --i;
  return i;
}

long long saturatedSign(long long n, const TypeInfo& t) { return n > 0 ? t.hi : n < 0 ? t.lo : 0; }

// n / d of one real integer part; d of zero sets zero.
long long refDivInt(long long n, long long d, int s, const Member& m, bool& zero) {
  if (m.type == "8u") {
    if (d == 0) { zero = true; return n ? 255 : 0; }
    if (s < -15) return n ? 255 : 0;
    if (s > 8) return 0;
    const float q = float(n) * std::ldexp(1.0f, -s) / float(d);
    return std::min(roundFloatHalf(q), 255LL);
  }
  if (m.type == "16s") {
    if (d == 0) { zero = true; return saturatedSign(n, m.t); }
    const float q = float(n) * std::ldexp(1.0f, -s) / float(d);
    if (std::isnan(q)) return 0;
    if (q < -32768.0f) return -32768;
    if (q > 32767.0f) return 32767;
    return roundFloatHalf(q + 32768.0f) - 32768;
  }
  // 16u: 16 fraction bits of (n 2^-s) / d, truncated, then rounded.
  if (d == 0) zero = true;
  if (s < -31) return n ? 65535 : 0;
  if (s > 16) return d ? 0 : n ? 65535 : 0;
  if (d == 0) return n ? 65535 : 0;
  const i128 num = s < 0 ? i128(n) << (16 - s) : i128(n) << 16;
  const i128 den = s > 0 ? i128(d) << s : i128(d);
  const i128 q = num / den;
  const i128 r = (q + (((q >> 16) & 1) << 1) + 32767) >> 16;
  return r > 65535 ? 65535 : static_cast<long long>(r);
}

// Round half even of an extended value, saturated.
long long roundLd(long double v, const TypeInfo& t) {
  if (v >= t.hi) return t.hi;
  if (v <= t.lo) return t.lo;
  const long double f = std::floor(v), r = v - f;
  long long i = static_cast<long long>(f);
  if (r > 0.5L || (r == 0.5L && (i % 2 != 0))) ++i;
  return i;
}

Num refDiv(const Num& n, const Num& d, int s, const Member& m, bool& zero) {
  Num r;
  if (m.t.parts == 1) {
    r.i[0] = refDivInt(n.i[0], d.i[0], s, m, zero);
    return r;
  }
  if (m.t.isFloat) {
    const double t = d.f[0] * d.f[0] + d.f[1] * d.f[1];
    if (!(t > 0)) {
      zero = true;
      r.f[0] = r.f[1] = NAN;
      return r;
    }
    const double inv = 1.0 / t;
    r.f[0] = (n.f[0] * d.f[0] + n.f[1] * d.f[1]) * inv;
    r.f[1] = (n.f[1] * d.f[0] - n.f[0] * d.f[1]) * inv;
    return r;
  }
  const long double t = (long double)d.i[0] * d.i[0] + (long double)d.i[1] * d.i[1];
  if (t == 0) {
    zero = true;
    r.i[0] = saturatedSign(n.i[0], m.t);
    r.i[1] = saturatedSign(n.i[1], m.t);
    return r;
  }
  const long double re = ((long double)n.i[0] * d.i[0] + (long double)n.i[1] * d.i[1]) / t;
  const long double im = ((long double)n.i[1] * d.i[0] - (long double)n.i[0] * d.i[1]) / t;
  r.i[0] = roundLd(std::ldexp(re, -s), m.t);
  r.i[1] = roundLd(std::ldexp(im, -s), m.t);
  return r;
}

// 32f division of a row whose destination starts at out: groups of 8, 4, 2
// or 1 (the largest aligned one that fits); a group with a zero divisor is
// divided sample by sample, the others by the refined reciprocal estimate.
void refDiv32fRow(const float* den, const float* num, float* res, const void* out, int len, bool& zero) {
  int i = 0;
  while (i < len) {
    const std::uintptr_t a = reinterpret_cast<std::uintptr_t>(out) + 4u * unsigned(i);
    int g = 1;
    for (int c : {8, 4, 2})
      if (a % (4u * unsigned(c)) == 0 && i + c <= len) { g = c; break; }
    bool z = false;
    for (int k = 0; k < g; ++k) z = z || den[i + k] == 0.0f;
    for (int k = i; k < i + g; ++k) {
      const float n = num[k], d = den[k];
      if (z && d == 0.0f) {
        zero = true;
        res[k] = n > 0 ? INFINITY : n < 0 ? -INFINITY : NAN;
      } else if (z) {
        res[k] = n / d;
      } else {
        const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d)));
        const float q = n * r, e = 1.0f - d * r;
        res[k] = q + (e * q + q) * e;
      }
    }
    i += g;
  }
}

// The six-decimal reciprocal of the 8u constant division.
float reciprocal6(int v) {
  return v == 0 ? 0.000001f : float(std::floor(1e6 / v + 0.5) / 1e6);
}

// ------------------------------------------------------------ rows

void refRow(const Member& m, const pxltest::diff::Operands& o, int y, int s, std::uint8_t* row, bool& zero) {
  const int width = o.dst->width(), ch = m.channels;
  const Kind kind = kindOf(m);
  const bool f32 = m.type == "32f", fc32 = m.type == "32fc", u8 = m.type == "8u";
  if (kind == Kind::Div && !m.constant && f32) {
    // Rows (or, in AC4, each pixel's three samples) in groups.
    const float* den = reinterpret_cast<const float*>(o.src[0]->row(y));
    const float* num = reinterpret_cast<const float*>(o.src.back()->row(y));
    float* res = reinterpret_cast<float*>(row);
    const float* out = reinterpret_cast<const float*>(o.dst->row(y));
    if (m.used == ch)
      refDiv32fRow(den, num, res, out, width * ch, zero);
    else
      for (int x = 0; x < width; ++x) refDiv32fRow(den + 4 * x, num + 4 * x, res + 4 * x, out + 4 * x, 3, zero);
    return;
  }
  o.forEachSample(m, y, [&](const std::uint8_t* pa, const std::uint8_t* pb, int off) {
    const Num a = get(pa, m), b = get(pb, m);
    Num r;
    if (kind == Kind::MulScale) {
      r = refMulScale(a, b, m);
    } else if (kind == Kind::Mul) {
      r = refMul(a, b, s, m);
    } else if (m.constant && f32) {
      r.f[0] = float(b.f[0]) * (1.0f / float(a.f[0]));
    } else if (m.constant && fc32) {
      const float re = float(a.f[0]), im = float(a.f[1]), t = re * re + im * im;
      Num w;
      w.f[0] = re / t, w.f[1] = -im / t;
      r = mulFloat<float>(w, b, true);
    } else if (m.constant && u8 && ch == 1) {
      const int sc = std::max(-32, std::min(32, s));
      const float mult = std::ldexp(1.0f, -sc) * reciprocal6(int(a.i[0]));
      float p = float(b.i[0]) * mult;
      if (mult > 1.0f && p > 255.0f) p = 255.0f;
      r.i[0] = roundFloatHalf(p);
    } else {
      r = refDiv(b, a, s, m, zero);
    }
    put(row + off, r, m);
  });
  // In place, 32f MulC on AC4 rewrites alpha as alpha times 1.
  if (m.constant && m.inPlace && m.layout == "AC4" && f32) {
    Num one;
    one.f[0] = 1.0;
    for (int x = 0; x < width; ++x) {
      const int off = (x * 4 + 3) * 4;
      put(row + off, mulFloat<float>(one, get(o.dst->row(y) + off, m), false), m);
    }
  }
}

std::vector<int> scalesFor(const Member& m) {
  if (m.t.isFloat || kindOf(m) == Kind::MulScale) return {0};
  if (kindOf(m) == Kind::Div) {
    if (m.type == "8u") return {-20, -16, -15, -7, -1, 0, 1, 3, 8, 9};
    if (m.type == "16u") return {-33, -32, -31, -5, -1, 0, 1, 7, 16, 17, 20};
    if (m.type == "16s") return {-200, -20, -3, -1, 0, 1, 5, 14, 20, 200};
    return {-3, -1, 0, 1, 4};
  }
  int pos = 16, neg = -7;
  if (m.type == "16s") pos = 30, neg = -14;
  if (m.type == "16u") pos = 32, neg = -15;
  if (m.type == "16sc") pos = 31, neg = -15;
  if (m.type == "32sc") pos = 63, neg = -31;
  return {0, 1, 2, 3, 8, pos - 1, pos, pos + 1, pos + 7, -1, -2, neg + 1, neg, neg - 1, neg - 9};
}

TEST(MulDiv, EveryMemberFollowsItsRuleAtEveryScaleLengthAndThreadCount) {
  pxltest::diff::Family f{"Mul|Div", 77, {1, 2, 3, 5, 7, 8, 9, 15, 16, 17, 23, 31, 33, 40}, scalesFor, refRow};
  // Constants never zero for DivC (a zero constant is an error, tested apart).
  f.constants = [](const Member& m, std::mt19937& rng) { return pxltest::diff::constants(m, rng, kindOf(m) == Kind::Div); };
  const int members = pxltest::diff::runEveryMember(f);
  if (HasFatalFailure()) return;
  EXPECT_EQ(members, 262);
}

}  // namespace
