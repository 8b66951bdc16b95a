// Vector copies and fills: pxlsCopy, pxlsMove, pxlsSet, pxlsZero.
#include <cstring>

#include "frame/frame.h"
#include "move/rows.h"

namespace pxl::move {

inline PxlStatus checkVector(bool null, int length) {
  if (null) return pxlStsNullPtr;
  return length < 1 ? pxlStsSize : pxlStsOk;
}

template <class T>
PxlStatus vectorCopy(const T* src, T* dst, int length) {
  if (PxlStatus st = checkVector(anyNull(src, dst), length)) return st;
  const std::size_t n = std::size_t(length) * sizeof(T);
  const bool stream = n >= kStreamBytes;
  copyRow(reinterpret_cast<std::uint8_t*>(dst), reinterpret_cast<const std::uint8_t*>(src), n, stream);
  if (stream) simd::storeFence();
  return pxlStsOk;
}

// The system's memmove: the ranges may overlap.
template <class T>
PxlStatus vectorMove(const T* src, T* dst, int length) {
  if (PxlStatus st = checkVector(anyNull(src, dst), length)) return st;
  std::memmove(dst, src, std::size_t(length) * sizeof(T));
  return pxlStsOk;
}

template <class T>
PxlStatus vectorSet(T value, T* dst, int length) {
  if (PxlStatus st = checkVector(dst == nullptr, length)) return st;
  const FillPattern<int(sizeof(T))> pat(&value);
  const std::size_t n = std::size_t(length) * sizeof(T);
  const bool stream = n >= kStreamBytes;
  fillRow(reinterpret_cast<std::uint8_t*>(dst), pat, n, stream);
  if (stream) simd::storeFence();
  return pxlStsOk;
}

template <class T>
PxlStatus vectorZero(T* dst, int length) {
  return vectorSet(T{}, dst, length);
}

}  // namespace pxl::move

#include "shims/move/pscopy.inc"
