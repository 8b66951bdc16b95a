// Vector copies and fills: pxlsCopy, pxlsMove, pxlsSet, pxlsZero.
#include <cstring>

#include "frame/frame.h"
#include "move/rows.h"
#include "move/set.h"

namespace pxl::move {

template <class T>
PxlStatus vectorCopy(const T* src, T* dst, int length) {
  if (PxlStatus st = checkVector(anyNull(src, dst), length)) return st;
  const std::size_t n = std::size_t(length) * sizeof(T);
  streamedRows(n, 1, [&](int, auto stream) {
    copyRow(reinterpret_cast<std::uint8_t*>(dst), reinterpret_cast<const std::uint8_t*>(src), n, stream);
  });
  return pxlStsOk;
}

// The system's memmove: the ranges may overlap.
template <class T>
PxlStatus vectorMove(const T* src, T* dst, int length) {
  if (PxlStatus st = checkVector(anyNull(src, dst), length)) return st;
  std::memmove(dst, src, std::size_t(length) * sizeof(T));
  return pxlStsOk;
}

}  // namespace pxl::move

#include "shims/move/pscopy.inc"
