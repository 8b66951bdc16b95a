// The 32-bit build's 128-bit lane against the compiler's own type (on the
// 64-bit builds, which have both): every operation the scale rule uses, on
// values around the limits of 64-bit halves.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>

#include "simd/vec.h"

#if defined(__SIZEOF_INT128__)
namespace {

using Pair = pxl::simd::Int128Pair;
__extension__ typedef __int128 Native;

Native native(Pair p) { return Native(static_cast<unsigned __int128>(std::uint64_t(p.hi)) << 64 | p.lo); }
Pair pair(Native n) { return Pair(std::uint64_t(n), std::int64_t(n >> 64)); }

TEST(Int128Pair, MatchesTheNativeType) {
  std::mt19937_64 rng(7);
  const std::int64_t edges[] = {0, 1, -1, INT64_MAX, INT64_MIN, INT32_MAX, INT32_MIN, 0x100000000ll};
  for (int i = 0; i < 20000; ++i) {
    const auto draw = [&] {
      const std::int64_t lo = (rng() & 1) ? edges[rng() % 8] : std::int64_t(rng());
      return (rng() % 3) ? Native(lo) : Native(lo) * Native(std::int64_t(rng() >> (rng() % 64)));
    };
    const Native a = draw(), b = draw();
    const int n = int(rng() % 128);
    const Pair pa = pair(a), pb = pair(b);
    ASSERT_EQ(native(pa + pb), a + b);
    ASSERT_EQ(native(pa - pb), a - b);
    ASSERT_EQ(native(pa * pb), Native(static_cast<unsigned __int128>(a) * static_cast<unsigned __int128>(b)));
    ASSERT_EQ(native(pa & pb), a & b);
    ASSERT_EQ(native(pa >> n), a >> n);
    ASSERT_EQ(native(pa << n), Native(static_cast<unsigned __int128>(a) << n));
    ASSERT_EQ(native(-pa), Native(0 - static_cast<unsigned __int128>(a)));
    ASSERT_EQ(pa < pb, a < b);
    ASSERT_EQ(pa == pb, a == b);
    ASSERT_EQ(static_cast<std::int32_t>(pa), static_cast<std::int32_t>(a));
  }
}

}  // namespace
#endif
