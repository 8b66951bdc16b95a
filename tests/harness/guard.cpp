#include "harness/guard.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace pxltest {

GuardedBuffer::GuardedBuffer(std::size_t bytes, Place place) : bytes_(bytes) {
  const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  const std::size_t body = (bytes + page - 1) / page * page;
  mapBytes_ = body + 2 * page;
  void* m = mmap(nullptr, mapBytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (m == MAP_FAILED) throw std::runtime_error("mmap failed");
  map_ = static_cast<std::uint8_t*>(m);
  mprotect(map_, page, PROT_NONE);
  mprotect(map_ + page + body, page, PROT_NONE);
  data_ = place == Place::Front ? map_ + page : map_ + page + body - bytes;
}

GuardedBuffer::~GuardedBuffer() { munmap(map_, mapBytes_); }

TestImage::TestImage(int width, int height, int pixelBytes, int left, int right, Place place, std::uint32_t seed)
    : width_(width),
      height_(height),
      pixelBytes_(pixelBytes),
      left_(left),
      step_(left + width * pixelBytes + right),
      buf_(std::size_t(step_) * (height > 0 ? height - 1 : 0) + left + std::size_t(width) * pixelBytes, place) {
  std::mt19937 rng(seed);
  fillRandom(rng);
}

void TestImage::fillRandom(std::mt19937& rng) {
  for (std::size_t i = 0; i < buf_.size(); i += 4) {
    const std::uint32_t r = rng();
    std::memcpy(buf_.data() + i, &r, std::min<std::size_t>(4, buf_.size() - i));
  }
}

bool TestImage::outsideUnchanged(const std::vector<std::uint8_t>& before) const {
  // The stretches between the rows of the ROI, then the one after the last.
  std::size_t from = 0;
  for (int y = 0; y <= height_; ++y) {
    const std::size_t to = y < height_ ? std::size_t(left_) + std::size_t(y) * step_ : buf_.size();
    if (to > from && std::memcmp(before.data() + from, buf_.data() + from, to - from) != 0) return false;
    from = to + rowBytes();
  }
  return true;
}

std::vector<std::uint8_t> TestImage::roiBytes() const {
  std::vector<std::uint8_t> out;
  for (int y = 0; y < height_; ++y) out.insert(out.end(), row(y), row(y) + rowBytes());
  return out;
}

}  // namespace pxltest
