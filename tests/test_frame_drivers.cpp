// The row drivers: every row exactly once, whatever the team size, and
// calls from inside a caller's own parallel region.
#include <gtest/gtest.h>

#include <atomic>
#include <vector>

#include "frame/rowdriver.h"
#include "pxli.h"

namespace {

TEST(RowDrivers, BandSplitCoversEveryRowOnce) {
  const int saved = threads_omp_of_n_pxl;
  for (int threads : {1, 2, 3, 7}) {
    threads_omp_of_n_pxl = threads;
    for (int height : {0, 1, 2, 5, 6, 7, 20, 101}) {
      std::vector<std::atomic<int>> hits(height);
      pxl::rowsShapeB(height, [&](int first, int count) {
        for (int i = first; i < first + count; ++i) hits[i]++;
      });
      for (int i = 0; i < height; ++i) ASSERT_EQ(hits[i].load(), 1) << height << " rows, " << threads << " threads";
    }
  }
  threads_omp_of_n_pxl = saved;
}

TEST(RowDrivers, CallsFromAnOuterRegionGiveTheSameBytes) {
  const int w = 300, h = 64;
  std::vector<Pxl8u> a(w * h), b(w * h), serial(w * h);
  for (int i = 0; i < w * h; ++i) a[i] = Pxl8u(i * 7), b[i] = Pxl8u(i * 13);
  ASSERT_EQ(pxlStsOk, pxliAdd_8u_C1RSfs(a.data(), w, b.data(), w, serial.data(), w, {w, h}, 1));
  std::vector<std::vector<Pxl8u>> out(4, std::vector<Pxl8u>(w * h));
  std::atomic<int> bad{0};
#pragma omp parallel for num_threads(4)
  for (int t = 0; t < 4; ++t)
    if (pxliAdd_8u_C1RSfs(a.data(), w, b.data(), w, out[t].data(), w, {w, h}, 1) != pxlStsOk) bad++;
  EXPECT_EQ(bad.load(), 0);
  for (auto& o : out) EXPECT_EQ(o, serial);
}

}  // namespace
