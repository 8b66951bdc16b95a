// Add, Sub, AddC, SubC against an independent statement of the scale rule:
// every image member and vector form, random sizes and offsets (so that the
// vector blocks and the scalar tails both run at every phase), scales at and
// beyond each limit, 1, 2, 3 and 7 threads, images between guard pages.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <map>
#include <random>
#include <regex>
#include <string>

#include "harness/guard.h"
#include "sweep.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

struct TypeInfo {
  int partBytes;
  int parts;
  bool isFloat;
  long long lo, hi;
};

const std::map<std::string, TypeInfo> kTypes = {
    {"8u", {1, 1, false, 0, 255}},
    {"16u", {2, 1, false, 0, 65535}},
    {"16s", {2, 1, false, -32768, 32767}},
    {"32s", {4, 1, false, INT32_MIN, INT32_MAX}},
    {"32f", {4, 1, true, 0, 0}},
    {"16sc", {2, 2, false, -32768, 32767}},
    {"32sc", {4, 2, false, INT32_MIN, INT32_MAX}},
    {"32fc", {4, 2, true, 0, 0}},
};

struct Member {
  const SweepEntry* e;
  bool sub, constant, inPlace;
  std::string type, layout;
  TypeInfo t;
  int channels = 1, used = 1;  // samples per pixel, samples processed
};

// The rule, written independently of the library: exact value, unsigned
// differences clamped at zero, then divide by 2^s rounding half to even, or
// multiply by 2^-s, then saturate.
long long refScale(long long x, int s, const TypeInfo& t, bool sub) {
  using i128 = __int128;
  if (sub && t.lo == 0 && x < 0) x = 0;
  i128 v;
  if (s == 0) {
    v = x;
  } else if (s > 0) {
    if (s > 60) {
      v = 0;
    } else {
      const i128 d = i128(1) << s;
      i128 q = x >= 0 ? i128(x) / d : -((-i128(x) + d - 1) / d);  // floor
      const i128 r = i128(x) - q * d;
      if (2 * r > d || (2 * r == d && (q & 1))) ++q;
      v = q;
    }
  } else {
    v = -s > 60 ? (x > 0 ? i128(1) << 100 : x < 0 ? -(i128(1) << 100) : 0) : i128(x) * (i128(1) << -s);
  }
  if (v < t.lo) v = t.lo;
  if (v > t.hi) v = t.hi;
  return static_cast<long long>(v);
}

long long getInt(const std::uint8_t* p, const TypeInfo& t, const std::string& type) {
  if (type == "8u") return *p;
  if (type == "16u") { std::uint16_t v; std::memcpy(&v, p, 2); return v; }
  if (t.partBytes == 2) { std::int16_t v; std::memcpy(&v, p, 2); return v; }
  std::int32_t v; std::memcpy(&v, p, 4); return v;
}

void putInt(std::uint8_t* p, long long v, const TypeInfo& t) {
  if (t.partBytes == 1) { *p = static_cast<std::uint8_t>(v); return; }
  if (t.partBytes == 2) { std::uint16_t w = static_cast<std::uint16_t>(v); std::memcpy(p, &w, 2); return; }
  std::uint32_t w = static_cast<std::uint32_t>(v);
  std::memcpy(p, &w, 4);
}

// One part: a op b with b the image that a subtraction subtracts from.
void refPart(const std::uint8_t* a, const std::uint8_t* b, std::uint8_t* d, const Member& m, int s) {
  if (m.t.isFloat) {
    float fa, fb;
    std::memcpy(&fa, a, 4);
    std::memcpy(&fb, b, 4);
    const float r = m.sub ? fb - fa : fa + fb;
    std::memcpy(d, &r, 4);
    return;
  }
  const long long x = m.sub ? getInt(b, m.t, m.type) - getInt(a, m.t, m.type)
                            : getInt(a, m.t, m.type) + getInt(b, m.t, m.type);
  putInt(d, refScale(x, s, m.t, m.sub), m.t);
}

bool parse(const SweepEntry& e, Member& m) {
  static const std::regex img("pxli(Add|Sub)(C?)_([0-9a-z]+)_(C1|C3|C4|AC4)(I?)R(Sfs)?");
  static const std::regex vec("pxls(Add|Sub)(C?)_([0-9a-z]+)(_I|_ISfs|_Sfs)?");
  std::cmatch r;
  m.e = &e;
  if (std::regex_match(e.name, r, img)) {
    m.layout = r[4];
    m.inPlace = r[5] == "I";
    m.channels = m.layout == "C1" ? 1 : m.layout == "C3" ? 3 : 4;
    m.used = m.layout == "AC4" ? 3 : m.channels;
  } else if (std::regex_match(e.name, r, vec)) {
    m.layout = "";
    m.inPlace = std::string(r[4]).rfind("_I", 0) == 0;
  } else {
    return false;
  }
  m.sub = r[1] == "Sub";
  m.constant = r[2] == "C";
  m.type = r[3];
  m.t = kTypes.at(m.type);
  return true;
}

// Scales worth testing for a type: around both limits and the small ones.
std::vector<int> scalesFor(const Member& m) {
  if (m.t.isFloat) return {0};
  int pos = 16, neg = -15;
  if (m.type == "8u") pos = m.sub ? 8 : 9, neg = -7;
  if (m.type == "16u") pos = m.sub ? 16 : 17;
  if (m.t.partBytes == 4) pos = 32, neg = -30;
  return {0, 1, 2, 3, pos - 1, pos, pos + 1, pos + 7, -1, -2, neg + 1, neg, neg - 1, neg - 9};
}

// Samples biased to the extremes, where saturation and rounding differ.
void fillSamples(TestImage& im, const Member& m, std::mt19937& rng) {
  im.fillRandom(rng);
  const int n = im.rowBytes() / m.t.partBytes;
  for (int y = 0; y < im.height(); ++y)
    for (int i = 0; i < n; ++i) {
      std::uint8_t* p = im.row(y) + i * m.t.partBytes;
      if (m.t.isFloat) {
        const float v = std::ldexp(float(int(rng() % 2001) - 1000), int(rng() % 20) - 10);
        std::memcpy(p, &v, 4);
        continue;
      }
      const unsigned k = rng() % 8;
      long long v = k == 0 ? m.t.lo : k == 1 ? m.t.hi : k == 2 ? 0 : k == 3 ? 1 : k == 4 ? -1 : 0;
      if (k >= 5) v = m.t.lo + static_cast<long long>(rng() % static_cast<unsigned long long>(m.t.hi - m.t.lo + 1));
      if (m.t.lo == 0 && v < 0) v = 0;
      putInt(p, v, m.t);
    }
}

struct Trial {
  int width, height, scale;
};

// Runs one call and compares every byte of every buffer with the rule.
void runTrial(const Member& m, const Trial& tr, std::mt19937& rng, int threads) {
  const int sampleBytes = m.t.partBytes * m.t.parts;
  const int pixelBytes = sampleBytes * (m.layout.empty() ? 1 : m.channels);
  const int h = m.layout.empty() ? 1 : tr.height;
  // One trial in three has no padding at all: gapless images, which a
  // serial walk takes as one long row.
  const bool gapless = rng() % 3 == 0;
  auto pad = [&] { return gapless ? 0 : int(rng() % 5) * sampleBytes; };
  const int nsrc = m.constant ? 1 : 2;
  std::vector<std::unique_ptr<TestImage>> src;
  for (int i = 0; i < nsrc; ++i) {
    src.push_back(std::make_unique<TestImage>(tr.width, h, pixelBytes, pad(), pad(),
                                              rng() % 2 ? Place::Back : Place::Front, rng()));
    fillSamples(*src.back(), m, rng);
  }
  // In place, the last source is also the destination.
  std::unique_ptr<TestImage> dstOwn;
  TestImage* dst = m.inPlace ? src.back().get() : nullptr;
  if (!m.inPlace) {
    dstOwn = std::make_unique<TestImage>(tr.width, h, pixelBytes, pad(), pad(), Place::Back, rng());
    dst = dstOwn.get();
  }
  std::vector<std::uint8_t> value(4 * sampleBytes);
  {
    TestImage v(4, 1, sampleBytes, 0, 0, Place::Front, rng());
    fillSamples(v, m, rng);
    std::memcpy(value.data(), v.row(0), value.size());
  }

  // Expected destination.
  std::vector<std::vector<std::uint8_t>> srcBefore;
  for (auto& s : src) srcBefore.push_back(s->snapshot());
  const auto dstBefore = dst->snapshot();
  std::vector<std::vector<std::uint8_t>> expect(h, std::vector<std::uint8_t>(dst->rowBytes()));
  const int used = m.layout.empty() ? 1 : m.used;
  const int channels = m.layout.empty() ? 1 : m.channels;
  for (int y = 0; y < h; ++y) {
    std::memcpy(expect[y].data(), dst->row(y), dst->rowBytes());
    for (int x = 0; x < tr.width; ++x)
      for (int c = 0; c < used; ++c)
        for (int p = 0; p < m.t.parts; ++p) {
          const int off = (x * channels + c) * sampleBytes + p * m.t.partBytes;
          const std::uint8_t* b = (m.constant ? src[0] : src.back())->row(y) + off;
          const std::uint8_t* a = m.constant ? value.data() + c * sampleBytes + p * m.t.partBytes
                                             : src[0]->row(y) + off;
          refPart(a, b, expect[y].data() + off, m, tr.scale);
        }
    // In place, 32f constant AC4 also rewrites alpha as alpha (op) 0.
    if (m.constant && m.inPlace && m.layout == "AC4" && m.type == "32f")
      for (int x = 0; x < tr.width; ++x) {
        const float zero = 0.0f;
        std::uint8_t* d = expect[y].data() + (x * 4 + 3) * 4;
        refPart(reinterpret_cast<const std::uint8_t*>(&zero), dst->row(y) + (x * 4 + 3) * 4, d, m, 0);
      }
  }

  SweepArgs a{};
  int k = 0;
  if (m.constant) {
    a.img[k] = src[0]->roi(), a.step[k++] = src[0]->step();
    if (!m.inPlace) a.img[k] = dst->roi(), a.step[k++] = dst->step();
    if (m.inPlace) { a.img[0] = dst->roi(); a.step[0] = dst->step(); }
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
  ASSERT_EQ(st, pxlStsOk) << m.e->name << " scale " << tr.scale;
  for (int y = 0; y < h; ++y)
    ASSERT_EQ(0, std::memcmp(expect[y].data(), dst->row(y), dst->rowBytes()))
        << m.e->name << " row " << y << " width " << tr.width << " scale " << tr.scale << " threads " << threads;
  ASSERT_TRUE(dst->outsideUnchanged(dstBefore)) << m.e->name << " wrote outside the ROI";
  for (std::size_t i = 0; i + (m.inPlace ? 1 : 0) < src.size(); ++i)
    ASSERT_TRUE(src[i]->unchanged(srcBefore[i])) << m.e->name << " wrote a source";
}

TEST(AddSub, EveryMemberFollowsTheRuleAtEveryScaleLengthAndThreadCount) {
  std::mt19937 rng(2024);
  const int saved = threads_omp_of_n_pxl;
  int members = 0;
  for (const SweepEntry& e : kSweepTable) {
    Member m;
    if (!parse(e, m)) continue;
    ++members;
    for (int s : scalesFor(m)) {
      // Short rows cross every block boundary and tail length.
      for (int w : {1, 2, 3, 7, 8, 15, 16, 17, 31, 33, 64 + int(rng() % 64)})
        runTrial(m, {w, 1 + int(rng() % 3), s}, rng, 1);
      if (HasFatalFailure()) return;
    }
    // Big enough to open every gate: same bytes for any number of threads.
    const std::vector<int> scales = scalesFor(m);
    for (int threads : {1, 2, 3, 7}) runTrial(m, {150, 97, scales[rng() % scales.size()]}, rng, threads);
    if (HasFatalFailure()) return;
  }
  threads_omp_of_n_pxl = saved;
  EXPECT_EQ(members, 238);
}

}  // namespace
