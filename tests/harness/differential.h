// The differential trial of the sample-wise operations (arithmetic, logic).
// Every member of a family is called through its sweep thunk on guard-page
// images of random sizes, offsets and placements (so that vector blocks,
// peels and tails run at every phase), with samples biased to the limits,
// and its destination is compared byte for byte with a rule the test file
// states on its own; the padding, the sources and the status are checked
// too. Short rows run on one thread; a large image, big enough to open every
// gate, on 1, 2, 3 and 7.
//
// The test file supplies the rule (what one destination row must become)
// and the scales worth trying; this header builds the operands, makes the
// call and checks everything around it.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "harness/guard.h"
#include "sweep.h"

namespace pxltest::diff {

struct TypeInfo {
  int partBytes;
  int parts;  // 2 for complex samples
  bool isFloat;
  long long lo, hi;
};

inline const TypeInfo& typeInfo(const std::string& type) {
  static const std::map<std::string, TypeInfo> kTypes = {
      {"8u", {1, 1, false, 0, 255}},           {"8s", {1, 1, false, -128, 127}},
      {"16u", {2, 1, false, 0, 65535}},        {"16s", {2, 1, false, -32768, 32767}},
      {"32s", {4, 1, false, INT32_MIN, INT32_MAX}}, {"32f", {4, 1, true, 0, 0}},
      {"16sc", {2, 2, false, -32768, 32767}},  {"32sc", {4, 2, false, INT32_MIN, INT32_MAX}},
      {"32fc", {4, 2, true, 0, 0}},            {"64fc", {8, 2, true, 0, 0}},
  };
  return kTypes.at(type);
}

// A member as its name describes it.
struct Member {
  const SweepEntry* e = nullptr;
  std::string op;          // one of the family's operations, e.g. "Sub"
  bool constant = false;   // a constant in place of the first source
  bool scaleForm = false;  // MulScale, MulCScale
  bool inPlace = false, vector = false;
  int sources = 2;  // images read: one for constant and unary forms
  std::string type, layout;
  TypeInfo t{};
  int channels = 1, used = 1;  // samples per pixel, samples processed
  int sampleBytes() const { return t.partBytes * t.parts; }
};

// Image members pxli<op>[C][Scale]_<type>_<layout>[I]R[Sfs] and vector
// members pxls<op>[C]_<type>[_I|_ISfs|_Sfs], op one of `ops` ("Add|Sub").
class Names {
 public:
  explicit Names(const std::string& ops)
      : img_("pxli(" + ops + ")(C?)(Scale)?_([0-9a-z]+)_(C1|C3|C4|AC4)(I?)R(Sfs)?"),
        vec_("pxls(" + ops + ")(C?)_([0-9a-z]+)(_I|_ISfs|_Sfs)?") {}

  bool parse(const SweepEntry& e, Member& m) const {
    std::cmatch r;
    m.e = &e;
    if (std::regex_match(e.name, r, img_)) {
      m.scaleForm = r[3].matched;
      m.type = r[4];
      m.layout = r[5];
      m.inPlace = r[6] == "I";
      m.channels = m.layout == "C1" ? 1 : m.layout == "C3" ? 3 : 4;
      m.used = m.layout == "AC4" ? 3 : m.channels;
    } else if (std::regex_match(e.name, r, vec_)) {
      m.vector = true;
      m.type = r[3];
      m.inPlace = std::string(r[4]).rfind("_I", 0) == 0;
    } else {
      return false;
    }
    m.op = r[1];
    m.constant = r[2] == "C";
    m.t = typeInfo(m.type);
    return true;
  }

 private:
  std::regex img_, vec_;
};

// One sample as numbers: up to two parts, integer or float.
struct Num {
  long long i[2] = {0, 0};
  double f[2] = {0, 0};
};

inline Num get(const std::uint8_t* p, const Member& m) {
  Num n;
  for (int k = 0; k < m.t.parts && k < 2; ++k, p += m.t.partBytes) {
    if (m.t.isFloat && m.t.partBytes == 4) { float v; std::memcpy(&v, p, 4); n.f[k] = v; }
    else if (m.t.isFloat) std::memcpy(&n.f[k], p, 8);
    else {
      unsigned long long u = 0;  // little endian, then the sign of a signed type
      std::memcpy(&u, p, m.t.partBytes);
      const int unused = 64 - 8 * m.t.partBytes;
      n.i[k] = m.t.lo < 0 ? static_cast<long long>(u << unused) >> unused : static_cast<long long>(u);
    }
  }
  return n;
}

inline void put(std::uint8_t* p, const Num& n, const Member& m) {
  for (int k = 0; k < m.t.parts && k < 2; ++k, p += m.t.partBytes) {
    if (m.t.isFloat && m.t.partBytes == 4) { const float v = float(n.f[k]); std::memcpy(p, &v, 4); }
    else if (m.t.isFloat) std::memcpy(p, &n.f[k], 8);
    else { const long long v = n.i[k]; std::memcpy(p, &v, m.t.partBytes); }  // little endian
  }
}

// Samples biased to the extremes, where saturation and rounding differ.
// Floats: short mantissas (exact results, ties) and full ones (last-bit
// differences). noZero: never zero (the constant of a division).
inline void fillSamples(TestImage& im, const Member& m, std::mt19937& rng, bool noZero) {
  const int n = im.rowBytes() / m.t.partBytes;
  for (int y = 0; y < im.height(); ++y)
    for (int i = 0; i < n; ++i) {
      std::uint8_t* p = im.row(y) + i * m.t.partBytes;
      const unsigned k = rng() % 10;
      if (m.t.isFloat) {
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
      std::memcpy(p, &v, m.t.partBytes);
    }
}

// The constants of a trial, one sample per channel; one trial in three has
// them all equal (a C3 or C4 member may then run as one channel).
inline std::vector<std::uint8_t> constants(const Member& m, std::mt19937& rng, bool noZero) {
  const int sb = m.sampleBytes();
  TestImage v(4, 1, sb, 0, 0, Place::Front, rng());
  fillSamples(v, m, rng, noZero);
  std::vector<std::uint8_t> out(v.row(0), v.row(0) + 4 * sb);
  if (rng() % 3 == 0)
    for (int c = 1; c < 4; ++c) std::memcpy(out.data() + c * sb, out.data(), sb);
  return out;
}

// The images of one call. In place, the last source is the destination;
// the rule sees it as it was before the call.
struct Operands {
  std::vector<std::unique_ptr<TestImage>> src;  // one or two
  std::unique_ptr<TestImage> dstOwn;
  TestImage* dst = nullptr;
  std::vector<std::uint8_t> value;  // what the constant argument points to

  // f(a, b, offset) for every processed sample of row y: a of the first
  // source or the constant, b of the last source (the one a subtraction
  // subtracts from, a division divides), offset its place in the row.
  template <class F>
  void forEachSample(const Member& m, int y, F&& f) const {
    const int sb = m.sampleBytes();
    const std::uint8_t* second = src.back()->row(y);
    for (int x = 0; x < dst->width(); ++x)
      for (int c = 0; c < m.used; ++c) {
        const int off = (x * m.channels + c) * sb;
        f(m.constant ? value.data() + c * sb : src[0]->row(y) + off, second + off, off);
      }
  }
};

struct Trial {
  int width, height, scale;
};

// What destination row y must become: `row` holds it as it was and takes the
// rule's samples; `zero` is set where a zero divisor makes the call warn.
using RowRule = std::function<void(const Member&, const Operands&, int y, int scale, std::uint8_t* row, bool& zero)>;

// The constants of a trial (see constants()), or whatever else a family's
// constant argument points to.
using Constants = std::function<std::vector<std::uint8_t>(const Member&, std::mt19937&)>;

// Runs one call and compares every byte of every buffer with the rule.
inline void runTrial(const Member& m, const Trial& tr, std::mt19937& rng, int threads, const Constants& constants,
                     const RowRule& rule) {
  const int sampleBytes = m.sampleBytes(), pixelBytes = sampleBytes * m.channels;
  const int h = m.vector ? 1 : tr.height;
  // One trial in three has no padding at all: gapless images, which a serial
  // walk takes as one long row. The others start at every phase of alignment.
  const bool gapless = rng() % 3 == 0;
  auto pad = [&] { return gapless ? 0 : int(rng() % 9) * m.t.partBytes; };
  Operands o;
  for (int i = 0; i < m.sources; ++i) {
    o.src.push_back(std::make_unique<TestImage>(tr.width, h, pixelBytes, pad(), pad(),
                                                rng() % 2 ? Place::Back : Place::Front, rng()));
    fillSamples(*o.src.back(), m, rng, false);
  }
  if (m.inPlace) {
    o.dst = o.src.back().get();
  } else {
    o.dstOwn = std::make_unique<TestImage>(tr.width, h, pixelBytes, pad(), pad(), Place::Back, rng());
    o.dst = o.dstOwn.get();
  }
  if (m.constant) o.value = constants(m, rng);
  TestImage* dst = o.dst;

  std::vector<std::vector<std::uint8_t>> srcBefore;
  for (auto& s : o.src) srcBefore.push_back(s->snapshot());
  const auto dstBefore = dst->snapshot();
  std::vector<std::vector<std::uint8_t>> expect(h);
  bool zero = false;
  for (int y = 0; y < h; ++y) {
    expect[y].assign(dst->row(y), dst->row(y) + dst->rowBytes());
    rule(m, o, y, tr.scale, expect[y].data(), zero);
  }

  SweepArgs a{};
  int k = 0;
  for (auto& s : o.src) a.img[k] = s->roi(), a.step[k++] = s->step();
  if (!m.inPlace) a.img[k] = dst->roi(), a.step[k++] = dst->step();
  a.roi = {tr.width, h};
  a.length = tr.width;
  a.scale = tr.scale;
  a.value = o.value.data();

  threads_omp_of_n_pxl = threads;
  const PxlStatus st = m.e->call(a);
  ASSERT_EQ(st, zero ? pxlStsDivByZero : pxlStsOk) << m.e->name << " scale " << tr.scale;
  for (int y = 0; y < h; ++y) {
    if (std::memcmp(expect[y].data(), dst->row(y), dst->rowBytes()) == 0) continue;
    // NaNs of any payload are the same result.
    bool same = m.t.isFloat;
    for (int i = 0; same && i < dst->rowBytes(); i += m.t.partBytes) {
      const int start = i - i % sampleBytes, part = (i % sampleBytes) / m.t.partBytes;
      const Num e1 = get(expect[y].data() + start, m), g1 = get(dst->row(y) + start, m);
      same = (std::isnan(e1.f[part]) && std::isnan(g1.f[part])) ||
             std::memcmp(expect[y].data() + i, dst->row(y) + i, m.t.partBytes) == 0;
    }
    ASSERT_TRUE(same) << m.e->name << " row " << y << " width " << tr.width << " scale " << tr.scale << " threads "
                      << threads;
  }
  ASSERT_TRUE(dst->outsideUnchanged(dstBefore)) << m.e->name << " wrote outside the ROI";
  for (std::size_t i = 0; i + (m.inPlace ? 1 : 0) < o.src.size(); ++i)
    ASSERT_TRUE(o.src[i]->unchanged(srcBefore[i])) << m.e->name << " wrote a source";
}

struct Family {
  std::string ops;          // "Add|Sub"
  std::uint32_t seed;
  std::vector<int> widths;  // short rows; one of 64 to 127 is added
  // Each entry is one pass over the widths (a scale may repeat).
  std::function<std::vector<int>(const Member&)> scales;
  RowRule rule;
  Constants constants = [](const Member& m, std::mt19937& rng) { return diff::constants(m, rng, false); };
  std::string unary = "";  // an operation with one source and no constant
};

// Every member of the family at every scale and short width on one thread,
// then one large image for each thread count. Returns the members found.
inline int runEveryMember(const Family& f) {
  std::mt19937 rng(f.seed);
  const int saved = threads_omp_of_n_pxl;
  const Names names(f.ops);
  int members = 0;
  for (const SweepEntry& e : kSweepTable) {
    Member m;
    if (!names.parse(e, m)) continue;
    ++members;
    if (m.constant || m.op == f.unary) m.sources = 1;
    const std::vector<int> scales = f.scales(m);
    for (int s : scales) {
      for (int w : f.widths) runTrial(m, {w, 1 + int(rng() % 3), s}, rng, 1, f.constants, f.rule);
      runTrial(m, {64 + int(rng() % 64), 1 + int(rng() % 3), s}, rng, 1, f.constants, f.rule);
      if (::testing::Test::HasFatalFailure()) break;
    }
    for (int threads : {1, 2, 3, 7}) {
      if (::testing::Test::HasFatalFailure()) break;
      runTrial(m, {150, 97, scales[rng() % scales.size()]}, rng, threads, f.constants, f.rule);
    }
    if (::testing::Test::HasFatalFailure()) break;
  }
  threads_omp_of_n_pxl = saved;
  return members;
}

}  // namespace pxltest::diff
