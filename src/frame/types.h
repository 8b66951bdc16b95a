// C++ view of the public types: layouts, sample traits and byte-step rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "pxldefs.h"

namespace pxl {

enum class Lay : std::uint8_t { C1, C2, C3, C4, AC4 };

// Samples stored per pixel.
constexpr int channelsOf(Lay l) {
  return l == Lay::C1 ? 1 : l == Lay::C2 ? 2 : l == Lay::C3 ? 3 : 4;
}
// Samples an operation touches per pixel: alpha of AC4 is left alone.
constexpr int processedOf(Lay l) { return l == Lay::AC4 ? 3 : channelsOf(l); }

// A complex sample is two parts that most arithmetic treats independently.
template <class T>
struct Sample {
  using Part = T;
  static constexpr int parts = 1;
};
template <> struct Sample<Pxl16sc> { using Part = Pxl16s; static constexpr int parts = 2; };
template <> struct Sample<Pxl32sc> { using Part = Pxl32s; static constexpr int parts = 2; };
template <> struct Sample<Pxl32fc> { using Part = Pxl32f; static constexpr int parts = 2; };
template <> struct Sample<Pxl64fc> { using Part = Pxl64f; static constexpr int parts = 2; };

template <class T>
using PartOf = typename Sample<T>::Part;
template <class T>
inline constexpr bool kComplex = Sample<T>::parts == 2;

// One sample through a byte copy: a caller's row may start at any byte, also
// one that is not a multiple of the sample size, and the copy is defined
// there (it costs nothing on x86).
template <class T>
inline T loadSample(const T* p) {
  T v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
template <class T>
struct SampleOf {
  using type = T;
};
// The value converts to the sample's type, which the pointer alone decides.
template <class T>
inline void storeSample(T* p, typename SampleOf<T>::type v) {
  std::memcpy(p, &v, sizeof v);
}

// A caller's array of per-channel constants (at most four), copied by bytes
// into the call's own array: the caller may hand it at any address, and
// every kernel then reads the copy by type. A null pointer stays null, so
// the member's own pointer check still sees it.
template <class T, int N = 4>
class LocalValues {
 public:
  explicit LocalValues(const T* p, int n = N) : null_(p == nullptr) {
    if (p != nullptr) std::memcpy(v_, p, sizeof(T) * std::size_t(n));
  }
  const T* get() const { return null_ ? nullptr : v_; }

 private:
  T v_[N]{};
  bool null_;
};

// Row i of an image: steps are bytes and may be zero or negative.
template <class T>
inline T* rowAt(T* base, int step, int i) {
  using B = std::conditional_t<std::is_const_v<T>, const char, char>;
  return reinterpret_cast<T*>(reinterpret_cast<B*>(base) + std::ptrdiff_t(step) * i);
}

}  // namespace pxl
