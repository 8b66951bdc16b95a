// Aligned allocators. Blocks start on 32-byte boundaries and the pointer
// that malloc returned is kept just below the address handed out.
//
// Sizes are computed in 32-bit unsigned arithmetic without overflow checks,
// exactly as the interface defines them: a length so large that the product
// wraps yields a smaller block. The raw block is the data plus the stored
// pointer plus 32 bytes for the rounding (36 on a 32-bit build, 40 on a
// 64-bit one, where the pointer below the returned address takes 8 bytes);
// the returned address is the raw one plus the pointer plus 31, rounded down
// to 32. Alignment, null for a length below 1, steps and the size arithmetic
// are the same on both.
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "pxldefs.h"

namespace pxl::frame {
namespace {

constexpr std::uint32_t kAlign = 32;
constexpr std::uint32_t kStored = sizeof(void*);
constexpr std::uint32_t kOverhead = kStored + kAlign;

void* alignedAlloc(int length, std::uint32_t elemSize) {
  if (length < 1) return nullptr;
  const std::uint32_t bytes = static_cast<std::uint32_t>(length) * elemSize + kOverhead;
  void* raw = std::malloc(bytes);
  if (raw == nullptr) return nullptr;
  const std::uintptr_t at = (reinterpret_cast<std::uintptr_t>(raw) + kOverhead - 1) & ~std::uintptr_t(kAlign - 1);
  std::memcpy(reinterpret_cast<void*>(at - kStored), &raw, kStored);
  return reinterpret_cast<void*>(at);
}

}  // namespace

template <class T>
T* mallocVector(int length) {
  return static_cast<T*>(alignedAlloc(length, sizeof(T)));
}

void freeBlock(void* ptr) {
  if (ptr == nullptr) return;
  void* raw;
  std::memcpy(&raw, static_cast<char*>(ptr) - kStored, kStored);
  std::free(raw);
}

// Rows of an image start on 32-byte boundaries: the step is the row's bytes
// rounded up to 32. AC4 allocates as C4.
template <class T, int Channels>
T* mallocImage(int widthPixels, int heightPixels, int* stepBytes) {
  if (stepBytes == nullptr) return nullptr;
  if (widthPixels < 1 || heightPixels < 1) {
    *stepBytes = 0;
    return nullptr;
  }
  const std::uint32_t row = static_cast<std::uint32_t>(widthPixels) * (sizeof(T) * Channels);
  const std::uint32_t step = (row + kAlign - 1) & ~(kAlign - 1);
  *stepBytes = static_cast<int>(step);
  return static_cast<T*>(alignedAlloc(static_cast<int>(step * static_cast<std::uint32_t>(heightPixels)), 1));
}

}  // namespace pxl::frame

#include "shims/frame/pimalloc.inc"
