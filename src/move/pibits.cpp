// Bits to bytes and bytes to bits (error diffusion). A bit image packs eight
// pixels to a byte, most significant bit first; a row starts at a bit
// offset of which only the position in its byte counts: an offset of 8 or
// more does not move the row's first byte.
#include <climits>
#include <cstdint>
#include <cstring>

#include "frame/frame.h"
#include "pxls.h"

namespace pxl::move {

// A set bit is 255, a clear bit 0. The offset is examined after the frame's
// checks of pointers, sizes and steps.
PxlStatus convertBitsToBytes(const Pxl8u* src, int srcStep, int srcBitOffset, Pxl8u* dst, int dstStep,
                             PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (PxlStatus st = checkShape<Order::NST>(roi, srcStep, dstStep)) return st;
  if (srcBitOffset < 0) return pxlStsSize;
  const int first = srcBitOffset & 7;
  for (int y = 0; y < roi.height; ++y) {
    const Pxl8u* s = rowAt(src, srcStep, y);
    Pxl8u* d = rowAt(dst, dstStep, y);
    for (int x = 0; x < roi.width; ++x) {
      const int bit = first + x;
      d[x] = static_cast<Pxl8u>(0 - ((s[bit >> 3] >> (7 - (bit & 7))) & 1));
    }
  }
  return pxlStsOk;
}

namespace {

// Writes one row of bits from bit position `first` of dst[0]. The bits above
// `first` in the first byte are kept; a row that ends inside its first byte
// clears the rest of that byte; a longer row's last partial byte keeps the
// bits below the row's end.
class BitWriter {
 public:
  BitWriter(Pxl8u* dst, int first)
      : dst_(dst), fill_(first), acc_(static_cast<unsigned>(dst[0] & ~(0xFFu >> first))) {}
  void put(unsigned bit) {
    acc_ |= bit << (7 - fill_);
    if (++fill_ == 8) {
      *dst_++ = static_cast<Pxl8u>(acc_);
      wroteByte_ = true;
      fill_ = 0;
      acc_ = 0;
    }
  }
  void finish() {
    if (fill_ == 0) return;
    const unsigned below = wroteByte_ ? (*dst_ & (0xFFu >> fill_)) : 0u;
    *dst_ = static_cast<Pxl8u>(acc_ | below);
  }

 private:
  Pxl8u* dst_;
  int fill_;
  unsigned acc_;
  bool wroteByte_ = false;
};

}  // namespace

// Error diffusion to one bit per pixel. Each pixel's error carries to the two
// rows below and two pixels right with weights that sum to 42; errors are in
// fixed point with 23 as the factor and 13 fraction bits in v. Three error
// rows of the width plus two margin entries on either side live in one
// scratch block; the margins stay zero and are never written.
PxlStatus convertBytesToBits(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep, int dstBitOffset, PxlSize roi,
                             Pxl8u threshold) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  if (badSize(roi) || dstBitOffset < 0) return pxlStsSize;
  constexpr int kMargin = 2;
  const long long rowLen = static_cast<long long>(roi.width) + 2 * kMargin;
  // The allocator computes bytes in 32 bits without a check; a block it
  // cannot describe is refused here rather than handed out short.
  if (3 * rowLen * static_cast<long long>(sizeof(Pxl32s)) + 36 > INT_MAX) return pxlStsAlloc;
  Pxl32s* block = pxlsMalloc_32s(static_cast<int>(3 * rowLen));
  if (block == nullptr) return pxlStsAlloc;
  std::memset(block, 0, sizeof(Pxl32s) * static_cast<std::size_t>(3 * rowLen));

  // Entries -2..-1 and width..width+1 of each row are the margins.
  Pxl32s* up2 = block + kMargin;
  Pxl32s* up1 = up2 + rowLen;
  Pxl32s* cur = up1 + rowLen;
  const std::int32_t limit = static_cast<std::int32_t>(threshold) * 8192;
  const int first = dstBitOffset & 7;
  for (int y = 0; y < roi.height; ++y) {
    const Pxl8u* s = rowAt(src, srcStep, y);
    BitWriter out(rowAt(dst, dstStep, y), first);
    for (int x = 0; x < roi.width; ++x) {
      // Unsigned arithmetic: the sums wrap as 32-bit integers would.
      const std::uint32_t sum =
          std::uint32_t(up2[x - 2]) + 2u * std::uint32_t(up2[x - 1]) + 4u * std::uint32_t(up2[x]) +
          2u * std::uint32_t(up2[x + 1]) + std::uint32_t(up2[x + 2]) + 2u * std::uint32_t(up1[x - 2]) +
          4u * std::uint32_t(up1[x - 1]) + 8u * std::uint32_t(up1[x]) + 4u * std::uint32_t(up1[x + 1]) +
          2u * std::uint32_t(up1[x + 2]) + 4u * std::uint32_t(cur[x - 2]) + 8u * std::uint32_t(cur[x - 1]);
      const std::int32_t v = static_cast<std::int32_t>((std::uint32_t(s[x]) << 13) + 23u * sum);
      std::int32_t e = v >> 10;
      const bool on = v > limit;
      if (on) e -= 2047;
      cur[x] = e;
      out.put(on ? 1u : 0u);
    }
    out.finish();
    // The row two above is reused for the next row without clearing: its
    // entries are written before they are read.
    Pxl32s* oldUp2 = up2;
    up2 = up1;
    up1 = cur;
    cur = oldUp2;
  }
  pxlsFree(block);
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/pibits.inc"
