// Mul, MulC, Div, DivC, MulScale, MulCScale against an independent
// statement of each rule: every image member and vector form, random sizes
// and offsets (vector blocks, peels and tails at every phase), scales at and
// beyond each limit, 1, 2, 3 and 7 threads, images between guard pages.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cmath>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <regex>
#include <string>

#include "harness/guard.h"
#include "sweep.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;
using i128 = __int128;

struct TypeInfo {
  int partBytes;
  int parts;
  bool isFloat;
  long long lo, hi;
};

const std::map<std::string, TypeInfo> kTypes = {
    {"8u", {1, 1, false, 0, 255}},         {"16u", {2, 1, false, 0, 65535}},
    {"16s", {2, 1, false, -32768, 32767}}, {"32f", {4, 1, true, 0, 0}},
    {"16sc", {2, 2, false, -32768, 32767}}, {"32sc", {4, 2, false, INT32_MIN, INT32_MAX}},
    {"32fc", {4, 2, true, 0, 0}},          {"64fc", {8, 2, true, 0, 0}},
};

enum class Kind { Mul, Div, MulScale };

struct Member {
  const SweepEntry* e;
  Kind kind;
  bool constant, inPlace, vector;
  std::string type, layout;
  TypeInfo t;
  int channels = 1, used = 1;
};

bool parse(const SweepEntry& e, Member& m) {
  static const std::regex img("pxli(Mul|Div)(C?)(Scale)?_([0-9a-z]+)_(C1|C3|C4|AC4)(I?)R(Sfs)?");
  static const std::regex vec("pxls(Mul|Div)(C?)_([0-9a-z]+)(_I|_ISfs|_Sfs)?");
  std::cmatch r;
  m.e = &e;
  if (std::regex_match(e.name, r, img)) {
    m.vector = false;
    m.kind = r[3].matched ? Kind::MulScale : r[1] == "Mul" ? Kind::Mul : Kind::Div;
    m.type = r[4];
    m.layout = r[5];
    m.inPlace = r[6] == "I";
    m.channels = m.layout == "C1" ? 1 : m.layout == "C3" ? 3 : 4;
    m.used = m.layout == "AC4" ? 3 : m.channels;
  } else if (std::regex_match(e.name, r, vec)) {
    m.vector = true;
    m.kind = r[1] == "Mul" ? Kind::Mul : Kind::Div;
    m.type = r[3];
    m.inPlace = std::string(r[4]).rfind("_I", 0) == 0;
  } else {
    return false;
  }
  m.constant = r[2] == "C";
  m.t = kTypes.at(m.type);
  return true;
}

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

// One sample as numbers: up to two parts, integer or float.
struct Num {
  long long i[2] = {0, 0};
  double f[2] = {0, 0};
};

Num get(const std::uint8_t* p, const Member& m) {
  Num n;
  for (int k = 0; k < m.t.parts && k < 2; ++k, p += m.t.partBytes) {
    if (m.t.isFloat) {
      if (m.t.partBytes == 4) { float v; std::memcpy(&v, p, 4); n.f[k] = v; }
      else std::memcpy(&n.f[k], p, 8);
    } else if (m.type == "8u") {
      n.i[k] = *p;
    } else if (m.type == "16u") {
      std::uint16_t v; std::memcpy(&v, p, 2); n.i[k] = v;
    } else if (m.t.partBytes == 2) {
      std::int16_t v; std::memcpy(&v, p, 2); n.i[k] = v;
    } else {
      std::int32_t v; std::memcpy(&v, p, 4); n.i[k] = v;
    }
  }
  return n;
}

void put(std::uint8_t* p, const Num& n, const Member& m) {
  for (int k = 0; k < m.t.parts && k < 2; ++k, p += m.t.partBytes) {
    if (m.t.isFloat && m.t.partBytes == 4) { const float v = float(n.f[k]); std::memcpy(p, &v, 4); }
    else if (m.t.isFloat) std::memcpy(p, &n.f[k], 8);
    else { const long long v = n.i[k]; std::memcpy(p, &v, m.t.partBytes); }  // little endian
  }
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

// ------------------------------------------------------------ trials

void fillSamples(TestImage& im, const Member& m, std::mt19937& rng, bool noZero) {
  im.fillRandom(rng);
  const int n = im.rowBytes() / m.t.partBytes;
  for (int y = 0; y < im.height(); ++y)
    for (int i = 0; i < n; ++i) {
      std::uint8_t* p = im.row(y) + i * m.t.partBytes;
      const unsigned k = rng() % 10;
      if (m.t.isFloat) {
        // Short mantissas (exact products, ties) and full ones (last-bit
        // differences of the reciprocal estimate).
        double v = k < 5 ? std::ldexp(double(int(rng() % 2001) - 1000), int(rng() % 20) - 10)
                         : (double(rng()) / 4294967296.0 + 0.5) * std::ldexp(rng() % 2 ? 1.0 : -1.0, int(rng() % 20) - 10);
        if (k == 0 && !noZero) v = 0;
        if (v == 0 && noZero) v = 3;
        if (m.t.partBytes == 4) { const float f = float(v); std::memcpy(p, &f, 4); }
        else std::memcpy(p, &v, 8);
        continue;
      }
      long long v = k == 0 ? m.t.lo : k == 1 ? m.t.hi : k == 2 ? 0 : k == 3 ? 1 : k == 4 ? -1 : k == 5 ? 2 : 0;
      if (k >= 6) v = m.t.lo + static_cast<long long>(rng() % static_cast<unsigned long long>(m.t.hi - m.t.lo + 1));
      if (m.t.lo == 0 && v < 0) v = 0;
      if (noZero && v == 0) v = 1 + rng() % 7;
      const long long w = v;
      std::memcpy(p, &w, m.t.partBytes);
    }
}

std::vector<int> scalesFor(const Member& m) {
  if (m.t.isFloat || m.kind == Kind::MulScale) return {0};
  if (m.kind == Kind::Div) {
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

struct Trial {
  int width, height, scale;
};

void runTrial(const Member& m, const Trial& tr, std::mt19937& rng, int threads) {
  const int sampleBytes = m.t.partBytes * m.t.parts;
  const int ch = m.vector ? 1 : m.channels, used = m.vector ? 1 : m.used;
  const int pixelBytes = sampleBytes * ch;
  const int h = m.vector ? 1 : tr.height;
  auto pad = [&] { return int(rng() % 9) * m.t.partBytes; };  // every phase of alignment
  const int nsrc = m.constant ? 1 : 2;
  std::vector<std::unique_ptr<TestImage>> src;
  for (int i = 0; i < nsrc; ++i) {
    src.push_back(std::make_unique<TestImage>(tr.width, h, pixelBytes, pad(), pad(),
                                              rng() % 2 ? Place::Back : Place::Front, rng()));
    fillSamples(*src.back(), m, rng, false);
  }
  std::unique_ptr<TestImage> dstOwn;
  TestImage* dst = m.inPlace ? src.back().get() : nullptr;
  if (!m.inPlace) {
    dstOwn = std::make_unique<TestImage>(tr.width, h, pixelBytes, pad(), pad(), Place::Back, rng());
    dst = dstOwn.get();
  }
  // Constants: never zero for DivC (a zero constant is an error, tested apart).
  std::vector<std::uint8_t> value(4 * sampleBytes);
  {
    TestImage v(4, 1, sampleBytes, 0, 0, Place::Front, rng());
    fillSamples(v, m, rng, m.kind == Kind::Div);
    std::memcpy(value.data(), v.row(0), value.size());
  }

  std::vector<std::vector<std::uint8_t>> srcBefore;
  for (auto& s : src) srcBefore.push_back(s->snapshot());
  const auto dstBefore = dst->snapshot();
  std::vector<std::vector<std::uint8_t>> expect(h, std::vector<std::uint8_t>(dst->rowBytes()));
  bool zero = false;
  const bool float32Div = m.kind == Kind::Div && !m.constant && m.type == "32f";
  for (int y = 0; y < h; ++y) {
    std::memcpy(expect[y].data(), dst->row(y), dst->rowBytes());
    const std::uint8_t* img = (m.constant ? src[0] : src.back())->row(y);
    if (float32Div) {
      // Rows (or, in AC4, each pixel's three samples) in groups.
      const float* den = reinterpret_cast<const float*>(src[0]->row(y));
      const float* num = reinterpret_cast<const float*>(img);
      float* res = reinterpret_cast<float*>(expect[y].data());
      const float* out = reinterpret_cast<const float*>(dst->row(y));
      if (used == ch)
        refDiv32fRow(den, num, res, out, tr.width * ch, zero);
      else
        for (int x = 0; x < tr.width; ++x) refDiv32fRow(den + 4 * x, num + 4 * x, res + 4 * x, out + 4 * x, 3, zero);
      continue;
    }
    for (int x = 0; x < tr.width; ++x)
      for (int c = 0; c < used; ++c) {
        const int off = (x * ch + c) * sampleBytes;
        const Num a = get(m.constant ? value.data() + c * sampleBytes : src[0]->row(y) + off, m);
        const Num b = get(img + off, m);
        Num r;
        if (m.kind == Kind::MulScale) {
          r = refMulScale(a, b, m);
        } else if (m.kind == Kind::Mul) {
          r = refMul(a, b, tr.scale, m);
        } else if (m.constant && m.type == "32f") {
          r.f[0] = float(b.f[0]) * (1.0f / float(a.f[0]));
        } else if (m.constant && m.type == "32fc") {
          const float re = float(a.f[0]), im = float(a.f[1]), t = re * re + im * im;
          Num w;
          w.f[0] = re / t, w.f[1] = -im / t;
          r = mulFloat<float>(w, b, true);
        } else if (m.constant && m.type == "8u" && used == 1 && ch == 1) {
          const int s = std::max(-32, std::min(32, tr.scale));
          const float mult = std::ldexp(1.0f, -s) * reciprocal6(int(a.i[0]));
          float p = float(b.i[0]) * mult;
          if (mult > 1.0f && p > 255.0f) p = 255.0f;
          r.i[0] = roundFloatHalf(p);
        } else {
          r = refDiv(b, a, tr.scale, m, zero);
        }
        put(expect[y].data() + off, r, m);
      }
    // In place, 32f MulC on AC4 rewrites alpha as alpha times 1.
    if (m.constant && m.inPlace && m.layout == "AC4" && m.type == "32f") {
      Num one;
      one.f[0] = 1.0;
      for (int x = 0; x < tr.width; ++x) {
        const int off = (x * 4 + 3) * 4;
        put(expect[y].data() + off, mulFloat<float>(one, get(dst->row(y) + off, m), false), m);
      }
    }
  }

  SweepArgs a{};
  int k = 0;
  if (m.constant) {
    a.img[k] = src[0]->roi(), a.step[k++] = src[0]->step();
    if (!m.inPlace) a.img[k] = dst->roi(), a.step[k++] = dst->step();
  } else {
    for (auto& s : src) a.img[k] = s->roi(), a.step[k++] = s->step();
    if (!m.inPlace) a.img[k] = dst->roi(), a.step[k++] = dst->step();
  }
  a.roi = {tr.width, h};
  a.length = tr.width;
  a.scale = tr.scale;
  a.value = value.data();

  threads_omp_of_n_pxl = threads;
  const PxlStatus st = m.e->call(a);
  const PxlStatus want = m.kind == Kind::Div && zero ? pxlStsDivByZero : pxlStsOk;
  ASSERT_EQ(st, want) << m.e->name << " scale " << tr.scale;
  for (int y = 0; y < h; ++y) {
    if (std::memcmp(expect[y].data(), dst->row(y), dst->rowBytes()) == 0) continue;
    // NaNs of any payload are the same result.
    bool same = m.t.isFloat;
    for (int i = 0; same && i < dst->rowBytes(); i += m.t.partBytes) {
      const Num e1 = get(expect[y].data() + i - i % sampleBytes, m), g1 = get(dst->row(y) + i - i % sampleBytes, m);
      const int part = (i % sampleBytes) / m.t.partBytes;
      same = (std::isnan(e1.f[part]) && std::isnan(g1.f[part])) ||
             std::memcmp(expect[y].data() + i, dst->row(y) + i, m.t.partBytes) == 0;
    }
    ASSERT_TRUE(same) << m.e->name << " row " << y << " width " << tr.width << " scale " << tr.scale << " threads "
                      << threads;
  }
  ASSERT_TRUE(dst->outsideUnchanged(dstBefore)) << m.e->name << " wrote outside the ROI";
  for (std::size_t i = 0; i + (m.inPlace ? 1 : 0) < src.size(); ++i)
    ASSERT_TRUE(src[i]->unchanged(srcBefore[i])) << m.e->name << " wrote a source";
}

TEST(MulDiv, EveryMemberFollowsItsRuleAtEveryScaleLengthAndThreadCount) {
  std::mt19937 rng(77);
  const int saved = threads_omp_of_n_pxl;
  int members = 0;
  for (const SweepEntry& e : kSweepTable) {
    Member m;
    if (!parse(e, m)) continue;
    ++members;
    for (int s : scalesFor(m)) {
      for (int w : {1, 2, 3, 5, 7, 8, 9, 15, 16, 17, 23, 31, 33, 40, 64 + int(rng() % 64)})
        runTrial(m, {w, 1 + int(rng() % 3), s}, rng, 1);
      if (HasFatalFailure()) return;
    }
    // Big enough to open every gate: the same bytes for any number of threads.
    const std::vector<int> scales = scalesFor(m);
    for (int threads : {1, 2, 3, 7}) runTrial(m, {150, 97, scales[rng() % scales.size()]}, rng, threads);
    if (HasFatalFailure()) return;
  }
  threads_omp_of_n_pxl = saved;
  EXPECT_EQ(members, 262);
}

}  // namespace
