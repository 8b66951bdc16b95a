// And, Or, Xor, their constant forms, Not and the shifts against a plain
// statement of each rule: every member, rows of every length around the
// register blocks, odd offsets, images between guard pages, constants both
// equal (the C3 forms then run as one channel) and different, shift counts
// at and beyond the sample width and past 31.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <regex>
#include <string>

#include "harness/guard.h"
#include "sweep.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

struct Member {
  const SweepEntry* e;
  std::string op, type, layout;
  bool inPlace = false, isSigned = false;
  int bytes = 1, channels = 1, used = 1;
  bool binary() const { return op == "And" || op == "Or" || op == "Xor"; }
  bool shift() const { return op == "LShiftC" || op == "RShiftC"; }
};

bool parse(const SweepEntry& e, Member& m) {
  static const std::regex re("pxli(And|Or|Xor|AndC|OrC|XorC|Not|LShiftC|RShiftC)_(8u|8s|16u|16s|32s)_(C1|C3|C4|AC4)(I?)R");
  std::cmatch r;
  if (!std::regex_match(e.name, r, re)) return false;
  m.e = &e;
  m.op = r[1], m.type = r[2], m.layout = r[3], m.inPlace = r[4] == "I";
  m.bytes = m.type == "8u" || m.type == "8s" ? 1 : m.type == "32s" ? 4 : 2;
  m.isSigned = m.type.back() == 's';
  m.channels = m.layout == "C1" ? 1 : m.layout == "C3" ? 3 : 4;
  m.used = m.layout == "AC4" ? 3 : m.channels;
  return true;
}

long long get(const std::uint8_t* p, const Member& m) {
  std::uint32_t u = 0;
  std::memcpy(&u, p, m.bytes);
  const int bits = 8 * m.bytes;
  long long v = bits == 32 ? (long long)u : (long long)(u & ((1u << bits) - 1));
  if (m.isSigned && v >= (1LL << (bits - 1))) v -= 1LL << bits;
  return v;
}

void put(std::uint8_t* p, long long v, const Member& m) {
  const std::uint32_t u = static_cast<std::uint32_t>(v);
  std::memcpy(p, &u, m.bytes);
}

// The rule for one sample: a the source, b the other image's sample, or the
// constant, or the count.
long long rule(const Member& m, long long a, long long b, std::uint32_t count) {
  const int bits = 8 * m.bytes;
  if (m.op == "And" || m.op == "AndC") return a & b;
  if (m.op == "Or" || m.op == "OrC") return a | b;
  if (m.op == "Xor" || m.op == "XorC") return a ^ b;
  if (m.op == "Not") return ~a;
  if (m.op == "LShiftC") return count >= unsigned(bits) ? 0 : (long long)((unsigned long long)a << count);
  if (!m.isSigned) return count >= unsigned(bits) ? 0 : a >> count;
  return a >> std::min<std::uint32_t>(count, 62);  // floor(a / 2^count)
}

void runTrial(const Member& m, int width, int height, std::mt19937& rng) {
  const int px = m.bytes * m.channels;
  // Odd byte offsets for 8-bit samples; a third of the trials have gapless
  // images, which are walked as one row.
  const bool tight = rng() % 3 == 0;
  auto pad = [&] { return tight ? 0 : int(rng() % 7) * m.bytes; };
  auto image = [&] {
    return std::make_unique<TestImage>(width, height, px, pad(), pad(), rng() % 2 ? Place::Back : Place::Front,
                                       rng());
  };
  auto s1 = image();
  auto s2 = m.binary() ? image() : nullptr;
  auto dOwn = m.inPlace ? nullptr : image();
  TestImage* d = m.inPlace ? (m.binary() ? s2.get() : s1.get()) : dOwn.get();

  // Constants: all equal a third of the time; counts drawn around the limits.
  const int bits = 8 * m.bytes;
  std::uint32_t counts[4];
  std::uint8_t value[16];
  const std::uint32_t pick[] = {0, 1, 3, std::uint32_t(bits - 1), std::uint32_t(bits), std::uint32_t(bits + 1),
                                31, 32, 40, 0xFFFFFFFFu, std::uint32_t(rng() % bits)};
  const bool equal = rng() % 3 == 0;
  for (int c = 0; c < 4; ++c) {
    counts[c] = equal && c > 0 ? counts[0] : pick[rng() % (sizeof pick / sizeof pick[0])];
    const std::uint32_t r = rng();
    std::memcpy(value + c * m.bytes, equal && c > 0 ? value : reinterpret_cast<const std::uint8_t*>(&r), m.bytes);
  }

  std::vector<std::vector<std::uint8_t>> expect(height);
  for (int y = 0; y < height; ++y) {
    expect[y].assign(d->row(y), d->row(y) + d->rowBytes());  // alpha of AC4 stays
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < m.used; ++c) {
        const int off = (x * m.channels + c) * m.bytes;
        const long long a = get(s1->row(y) + off, m);
        const long long b = m.binary() ? get(s2->row(y) + off, m) : get(value + c * m.bytes, m);
        put(expect[y].data() + off, rule(m, a, b, counts[c]), m);
      }
  }
  const auto before1 = s1->snapshot(), beforeD = d->snapshot();

  SweepArgs a{};
  int k = 0;
  for (TestImage* t : {s1.get(), s2.get(), dOwn.get()})
    if (t != nullptr) a.img[k] = t->roi(), a.step[k++] = t->step();
  a.roi = {width, height};
  a.value = m.shift() ? static_cast<const void*>(counts) : value;
  ASSERT_EQ(m.e->call(a), pxlStsOk) << m.e->name;
  for (int y = 0; y < height; ++y)
    ASSERT_EQ(0, std::memcmp(expect[y].data(), d->row(y), d->rowBytes()))
        << m.e->name << " row " << y << " width " << width << " counts " << counts[0] << " " << counts[1] << " "
        << counts[2] << " " << counts[3];
  ASSERT_TRUE(d->outsideUnchanged(beforeD)) << m.e->name << " wrote outside the ROI";
  if (d != s1.get()) {
    ASSERT_TRUE(s1->unchanged(before1)) << m.e->name << " wrote its source";
  }
}

TEST(Logic, EveryMemberFollowsItsRuleAtEveryLengthOffsetAndCount) {
  std::mt19937 rng(4301);
  int members = 0;
  for (const SweepEntry& e : kSweepTable) {
    Member m;
    if (!parse(e, m)) continue;
    ++members;
    for (int w : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 40 + int(rng() % 60)})
      for (int rep = 0; rep < (m.shift() ? 6 : 2); ++rep) runTrial(m, w, 1 + int(rng() % 3), rng);
    if (HasFatalFailure()) return;
  }
  // Six logic families of 3 types, Not, LShiftC of 3, RShiftC of 5; 4 layouts, 2 forms.
  EXPECT_EQ(members, (6 * 3 + 1 + 3 + 5) * 4 * 2);
}

// Destinations past the cache's share are written with streaming stores
// after a scalar run up to a register boundary: the same bytes, alpha too.
TEST(Logic, LargeImagesGiveTheSameBytes) {
  std::mt19937 rng(4302);
  const std::pair<const char*, int> big[] = {{"pxliAnd_8u_C1R", 4100},
                                             {"pxliXorC_8u_AC4IR", 1030},
                                             {"pxliOrC_32s_C3R", 700},
                                             {"pxliRShiftC_16s_C4IR", 1030}};
  int ran = 0;
  for (const SweepEntry& e : kSweepTable) {
    Member m;
    if (!parse(e, m)) continue;
    for (const auto& b : big)
      if (std::string(e.name) == b.first) {
        runTrial(m, b.second, 2051, rng);
        ++ran;
      }
  }
  EXPECT_EQ(ran, 4);
}

// The cases where a decision, not arithmetic, fixes the result.
TEST(Logic, CountsAtAndBeyondTheWidth) {
  TestImage im(9, 2, 2, 4, 6, Place::Back, 7);
  std::int16_t* r0 = im.at<std::int16_t>(0);
  std::int16_t* r1 = im.at<std::int16_t>(1);
  for (int x = 0; x < 9; ++x) r0[x] = -1, r1[x] = 5;
  ASSERT_EQ(pxliRShiftC_16s_C1IR(40, r0, im.step(), {9, 2}), pxlStsOk);
  for (int x = 0; x < 9; ++x) {
    EXPECT_EQ(r0[x], -1);
    EXPECT_EQ(r1[x], 0);
  }

  Pxl8s s8[3] = {-100, 100, -1}, d8[3];
  ASSERT_EQ(pxliRShiftC_8s_C1R(s8, 3, 10, d8, 3, {3, 1}), pxlStsOk);
  EXPECT_EQ(d8[0], -1);
  EXPECT_EQ(d8[1], 0);
  EXPECT_EQ(d8[2], -1);

  Pxl8u u[5] = {1, 128, 255, 7, 9}, out[5];
  ASSERT_EQ(pxliLShiftC_8u_C1R(u, 5, 8, out, 5, {5, 1}), pxlStsOk);
  for (Pxl8u v : out) EXPECT_EQ(v, 0);
  ASSERT_EQ(pxliLShiftC_8u_C1R(u, 5, 0, out, 5, {5, 1}), pxlStsOk);
  EXPECT_EQ(0, std::memcmp(u, out, 5));
  ASSERT_EQ(pxliLShiftC_8u_C1R(u, 5, 1, out, 5, {5, 1}), pxlStsOk);
  EXPECT_EQ(out[1], 0);  // the top bit is lost
  EXPECT_EQ(out[2], 254);
}

TEST(Logic, EqualC3ConstantsMatchTheOneChannelForm) {
  std::mt19937 rng(9);
  TestImage src(37, 3, 3, 1, 2, Place::Back, 1), d3(37, 3, 3, 3, 0, Place::Front, 2), d1(37 * 3, 3, 1, 0, 1,
                                                                                         Place::Back, 3);
  const Pxl8u seven[3] = {7, 7, 7};
  ASSERT_EQ(pxliAndC_8u_C3R(src.roi(), src.step(), seven, d3.roi(), d3.step(), {37, 3}), pxlStsOk);
  ASSERT_EQ(pxliAndC_8u_C1R(src.roi(), src.step(), 7, d1.roi(), d1.step(), {111, 3}), pxlStsOk);
  EXPECT_EQ(d3.roiBytes(), d1.roiBytes());
}

TEST(Logic, NotLeavesAlphaAndAnErrorWritesNothing) {
  TestImage s(19, 2, 4, 2, 2, Place::Back, 4), d(19, 2, 4, 6, 0, Place::Front, 5);
  const auto before = d.snapshot();
  ASSERT_EQ(pxliNot_8u_AC4R(s.roi(), s.step(), d.roi(), d.step(), {19, 2}), pxlStsOk);
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 19; ++x)
      for (int c = 0; c < 4; ++c)
        EXPECT_EQ(d.row(y)[x * 4 + c], c == 3 ? before[6 + y * d.step() + x * 4 + c] : Pxl8u(~s.row(y)[x * 4 + c]));
  // Null count array with a bad step: the pointer is reported; step before size.
  const auto snap = d.snapshot();
  EXPECT_EQ(pxliRShiftC_16u_C3R(reinterpret_cast<Pxl16u*>(s.roi()), 0, nullptr,
                                reinterpret_cast<Pxl16u*>(d.roi()), d.step(), {3, 1}),
            pxlStsNullPtr);
  const Pxl32u n[3] = {1, 2, 3};
  EXPECT_EQ(pxliRShiftC_16u_C3R(reinterpret_cast<Pxl16u*>(s.roi()), 0, n, reinterpret_cast<Pxl16u*>(d.roi()),
                                d.step(), {0, 1}),
            pxlStsStep);
  EXPECT_TRUE(d.unchanged(snap));
}

}  // namespace
