// The bit forms of Convert: bits to bytes at any offset, and error
// diffusion to bits checked against a straightforward model of the rule
// (whole error rows, no buffer rotation) and a bit-by-bit model of where the
// bits go and which bits of the destination survive.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "harness/guard.h"
#include "pxli.h"

namespace {

using pxltest::GuardedBuffer;
using pxltest::Place;
using pxltest::TestImage;

int bitAt(const Pxl8u* p, int pos) { return (p[pos >> 3] >> (7 - (pos & 7))) & 1; }
void setBit(Pxl8u* p, int pos, int v) {
  const Pxl8u m = Pxl8u(0x80 >> (pos & 7));
  p[pos >> 3] = Pxl8u(v ? p[pos >> 3] | m : p[pos >> 3] & ~m);
}
int bytesFor(int offset, int width) { return ((offset & 7) + width + 7) / 8; }

TEST(ConvertBits, BitsToBytesAtEveryOffsetReadOnlyTheirBytes) {
  std::mt19937 rng(3);
  for (int offset : {0, 1, 3, 7, 8, 11, 16 + 5})
    for (int width = 1; width <= 40; ++width) {
      const int height = 3, bytes = bytesFor(offset, width);
      // The source rows are exactly the bytes that hold their bits: a read
      // past the last one faults.
      TestImage src(bytes, height, 1, 0, 2, Place::Back, rng());
      TestImage dst(width, height, 1, 3, 1, Place::Front, rng());
      const auto before = dst.snapshot();
      ASSERT_EQ(pxlStsOk, pxliConvert_1u8u_C1R(src.row(0), src.step(), offset, dst.row(0), dst.step(),
                                               {width, height}));
      ASSERT_TRUE(dst.outsideUnchanged(before));
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          ASSERT_EQ(dst.row(y)[x], bitAt(src.row(y), (offset & 7) + x) ? 255 : 0)
              << "offset " << offset << " width " << width << " x " << x;
    }
  // An offset of 3 reads bit 4 of the first byte first; 11 reads the same bit.
  const Pxl8u one = 0x10;
  Pxl8u a[2], b[2];
  ASSERT_EQ(pxlStsOk, pxliConvert_1u8u_C1R(&one, 1, 3, a, 2, {2, 1}));
  ASSERT_EQ(pxlStsOk, pxliConvert_1u8u_C1R(&one, 1, 11, b, 2, {2, 1}));
  EXPECT_EQ(a[0], 255);
  EXPECT_EQ(a[1], 0);
  EXPECT_EQ(0, std::memcmp(a, b, 2));
}

TEST(ConvertBits, BitsToBytesLooksAtTheOffsetAfterTheFrame) {
  Pxl8u s[4] = {0xFF, 0xFF, 0xFF, 0xFF}, d[8] = {};
  EXPECT_EQ(pxlStsSize, pxliConvert_1u8u_C1R(s, 1, -1, d, 8, {8, 1}));
  EXPECT_EQ(pxlStsNullPtr, pxliConvert_1u8u_C1R(nullptr, 1, -1, d, 8, {8, 1}));
  EXPECT_EQ(pxlStsNullPtr, pxliConvert_1u8u_C1R(s, 1, 0, nullptr, 8, {0, 1}));
  EXPECT_EQ(pxlStsStep, pxliConvert_1u8u_C1R(s, 0, -1, d, 8, {8, 1}));
  EXPECT_EQ(pxlStsStep, pxliConvert_1u8u_C1R(s, 1, -5, d, -8, {8, 1}));
  EXPECT_EQ(pxlStsSize, pxliConvert_1u8u_C1R(s, 0, 0, d, 8, {8, 0}));  // size before step
  for (Pxl8u v : d) EXPECT_EQ(v, 0);
}

// The rule as stated, on whole error rows with two zero entries either side.
std::vector<std::vector<int>> diffuse(const TestImage& src, int width, int height, int threshold) {
  std::vector<std::vector<int>> bits(height, std::vector<int>(width));
  std::vector<std::vector<long long>> e(height + 2, std::vector<long long>(width + 4, 0));
  auto E = [&](int y, int x) -> long long { return y < 0 ? 0 : e[y][x + 2]; };
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const long long S = E(y - 2, x - 2) + 2 * E(y - 2, x - 1) + 4 * E(y - 2, x) + 2 * E(y - 2, x + 1) +
                          E(y - 2, x + 2) + 2 * E(y - 1, x - 2) + 4 * E(y - 1, x - 1) + 8 * E(y - 1, x) +
                          4 * E(y - 1, x + 1) + 2 * E(y - 1, x + 2) + 4 * E(y, x - 2) + 8 * E(y, x - 1);
      const long long v = (long long)src.row(y)[x] * 8192 + 23 * S;
      long long err = v >= 0 ? v / 1024 : -((-v + 1023) / 1024);  // floor division
      const bool on = v > threshold * 8192LL;
      if (on) err -= 2047;
      e[y][x + 2] = err;
      bits[y][x] = on;
    }
  return bits;
}

// The destination bytes after a row of bits: the first byte keeps the bits
// above the offset; a row ending in its first byte clears the rest of it; a
// longer row's last partial byte keeps the bits below the row's end.
std::vector<Pxl8u> placeRow(const Pxl8u* before, int offset, const std::vector<int>& bits) {
  const int first = offset & 7, width = int(bits.size()), n = bytesFor(offset, width);
  std::vector<Pxl8u> out(before, before + n);
  for (int x = 0; x < width; ++x) setBit(out.data(), first + x, bits[x]);
  if (first + width < 8)
    for (int p = first + width; p < 8; ++p) setBit(out.data(), p, 0);
  return out;
}

TEST(ConvertBits, ErrorDiffusionFollowsTheRuleAndPlacesBits) {
  std::mt19937 rng(21);
  for (int offset : {0, 2, 3, 7, 8, 11})
    for (int width : {1, 2, 3, 5, 6, 8, 9, 13, 16, 17, 31, 64, 67})
      for (int threshold : {0, 1, 100, 128, 200, 255}) {
        const int height = 1 + int(rng() % 9);
        TestImage src(width, height, 1, 1, 2, Place::Back, rng());
        const int bytes = bytesFor(offset, width);
        TestImage dst(bytes, height, 1, 0, 3, width % 2 ? Place::Back : Place::Front, rng());
        if (threshold == 200)  // smooth ramps as well as noise
          for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) src.row(y)[x] = Pxl8u((x * 7 + y * 3) % 256);
        const auto before = dst.snapshot();
        const auto roiBefore = dst.roiBytes();
        ASSERT_EQ(pxlStsOk, pxliConvert_8u1u_C1R(src.row(0), src.step(), dst.row(0), dst.step(), offset,
                                                 {width, height}, Pxl8u(threshold)));
        ASSERT_TRUE(dst.outsideUnchanged(before));
        const auto bits = diffuse(src, width, height, threshold);
        for (int y = 0; y < height; ++y) {
          const auto want = placeRow(roiBefore.data() + std::size_t(y) * bytes, offset, bits[y]);
          ASSERT_EQ(0, std::memcmp(dst.row(y), want.data(), bytes))
              << "offset " << offset << " width " << width << " threshold " << threshold << " row " << y;
        }
      }
}

TEST(ConvertBits, ErrorDiffusionEdges) {
  // All 255 with threshold 128 is all ones; all 0 is all zeros.
  Pxl8u white[16], black[16];
  std::memset(white, 255, sizeof white);
  std::memset(black, 0, sizeof black);
  Pxl8u d[4] = {0x00, 0x00, 0xFF, 0xFF};
  ASSERT_EQ(pxlStsOk, pxliConvert_8u1u_C1R(white, 16, d, 2, 0, {16, 1}, 128));
  EXPECT_EQ(d[0], 0xFF);
  EXPECT_EQ(d[1], 0xFF);
  ASSERT_EQ(pxlStsOk, pxliConvert_8u1u_C1R(black, 16, d + 2, 2, 0, {16, 1}, 128));
  EXPECT_EQ(d[2], 0x00);
  EXPECT_EQ(d[3], 0x00);
  // Offset 2, width 3: bits 7 and 6 stay, 5..3 are the row, 2..0 cleared.
  Pxl8u b = 0xFF;
  ASSERT_EQ(pxlStsOk, pxliConvert_8u1u_C1R(black, 3, &b, 1, 2, {3, 1}, 128));
  EXPECT_EQ(b, 0xC0);
  b = 0x00;
  ASSERT_EQ(pxlStsOk, pxliConvert_8u1u_C1R(white, 3, &b, 1, 10, {3, 1}, 128));
  EXPECT_EQ(b, 0x38);
}

TEST(ConvertBits, ErrorDiffusionChecksNoStep) {
  Pxl8u s[8] = {255, 0, 255, 0, 255, 0, 255, 0};
  Pxl8u d[2] = {0x5A, 0x5A};
  EXPECT_EQ(pxlStsNullPtr, pxliConvert_8u1u_C1R(nullptr, 8, d, 1, -1, {8, 1}, 128));
  EXPECT_EQ(pxlStsNullPtr, pxliConvert_8u1u_C1R(s, 8, nullptr, 1, 0, {0, 1}, 128));
  EXPECT_EQ(pxlStsSize, pxliConvert_8u1u_C1R(s, 8, d, 1, -1, {8, 1}, 128));
  EXPECT_EQ(pxlStsSize, pxliConvert_8u1u_C1R(s, -3, d, 0, 0, {8, 0}, 128));
  EXPECT_EQ(d[0], 0x5A);
  EXPECT_EQ(d[1], 0x5A);
  // A zero step is used as it is: both rows read and write the same bytes.
  ASSERT_EQ(pxlStsOk, pxliConvert_8u1u_C1R(s, 0, d, 0, 0, {8, 2}, 128));
  EXPECT_EQ(d[1], 0x5A);
  // The second row carries the first row's errors, so it need not repeat it;
  // the same two rows through separate rows of a real image agree.
  Pxl8u twice[16], out[2];
  std::memcpy(twice, s, 8);
  std::memcpy(twice + 8, s, 8);
  ASSERT_EQ(pxlStsOk, pxliConvert_8u1u_C1R(twice, 8, out, 1, 0, {8, 2}, 128));
  EXPECT_EQ(d[0], out[1]);
}

}  // namespace
