// A 128-bit integer for the reference rules: the compiler's own where it has
// one, else the library's pair of 64-bit halves (checked against the
// compiler's type by the 64-bit tests) with a long division of its own.
#pragma once

#include "simd/vec.h"

#if defined(__SIZEOF_INT128__)
__extension__ typedef __int128 i128;
#else
using i128 = pxl::simd::Int128Pair;

// Truncating division, bit by bit on magnitudes: the references divide a
// few values per sample, so speed does not matter.
inline i128 operator/(i128 n, i128 d) {
  const bool neg = (n < 0) != (d < 0);
  i128 a = n < 0 ? -n : n, b = d < 0 ? -d : d, q = 0, r = 0;
  for (int bit = 127; bit >= 0; --bit) {
    r = (r << 1) | ((a >> bit) & 1);
    q = q << 1;
    if (!(r < b)) r = r - b, q = q | 1;
  }
  return neg ? -q : q;
}
#endif
