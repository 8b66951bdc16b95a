// Test images that catch stray accesses.
//
// GuardedBuffer maps its bytes between two inaccessible pages, flush against
// the lower page (Place::Front) or the upper one (Place::Back), so that a
// read or write one byte outside faults at once. TestImage lays an image out
// in such a buffer with padding around the ROI in every row, filled with a
// known pattern, so that a write into the padding is caught by comparing
// with a snapshot taken before the call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "pxldefs.h"

namespace pxltest {

enum class Place { Front, Back };

class GuardedBuffer {
 public:
  GuardedBuffer(std::size_t bytes, Place place);
  ~GuardedBuffer();
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;
  std::uint8_t* data() const { return data_; }
  std::size_t size() const { return bytes_; }

 private:
  std::uint8_t* map_ = nullptr;
  std::size_t mapBytes_ = 0;
  std::uint8_t* data_ = nullptr;
  std::size_t bytes_ = 0;
};

// An image of width x height pixels of pixelBytes each, rows `step` bytes
// apart, the ROI starting `left` bytes into each row. The buffer ends right
// after the last ROI byte (Back) or starts right at the first (Front, left 0).
class TestImage {
 public:
  TestImage(int width, int height, int pixelBytes, int left, int right, Place place, std::uint32_t seed = 1);
  std::uint8_t* roi() const { return buf_.data() + left_; }
  int step() const { return step_; }
  int width() const { return width_; }
  int height() const { return height_; }
  int rowBytes() const { return width_ * pixelBytes_; }
  std::uint8_t* row(int y) const { return roi() + std::ptrdiff_t(y) * step_; }
  template <class T>
  T* at(int y) const { return reinterpret_cast<T*>(row(y)); }

  std::vector<std::uint8_t> snapshot() const { return {buf_.data(), buf_.data() + buf_.size()}; }
  // True if nothing outside the ROI differs from the snapshot.
  bool outsideUnchanged(const std::vector<std::uint8_t>& before) const;
  bool unchanged(const std::vector<std::uint8_t>& before) const {
    return std::memcmp(before.data(), buf_.data(), buf_.size()) == 0;
  }
  // The ROI's bytes, row after row.
  std::vector<std::uint8_t> roiBytes() const;
  void fillRandom(std::mt19937& rng);

 private:
  int width_, height_, pixelBytes_, left_, step_;
  GuardedBuffer buf_;
};

// Runs fn (which returns the bytes a call produced) with 1, 2, 3 and 7
// threads and reports whether all runs gave the same bytes.
template <class F>
bool sameForThreadCounts(F&& fn);

}  // namespace pxltest

#include "pxlcore.h"

template <class F>
bool pxltest::sameForThreadCounts(F&& fn) {
  const int saved = threads_omp_of_n_pxl;
  std::vector<std::uint8_t> first;
  bool same = true;
  for (int n : {1, 2, 3, 7}) {
    threads_omp_of_n_pxl = n;
    std::vector<std::uint8_t> out = fn();
    if (n == 1)
      first = std::move(out);
    else
      same = same && out == first;
  }
  threads_omp_of_n_pxl = saved;
  return same;
}
