// Row drivers. Shape A is a static work-shared loop over rows (each thread
// one contiguous block); shape B gives each thread one band of rows and lets
// the family's serial worker run over it. Rows are independent, so the bytes
// written never depend on the number of threads.
#pragma once

#include <omp.h>

#include "frame/gates.h"
#include "pxlcore.h"

namespace pxl {

// The team size every region asks for, read afresh at each region.
inline int teamSize() {
  const int n = threads_omp_of_n_pxl;
  return n < 1 ? 1 : n;
}

// A call from inside the caller's own parallel region is not nested: it runs
// on the caller's thread. A team of one runs there too, without the cost of
// opening a region that could only run the same loop.
inline bool mayFork() { return teamSize() > 1 && !omp_in_parallel(); }

// Shape A. With region false the rows run in a plain loop, with no OpenMP
// region at all (a closed gate or a member without a parallel path).
template <class F>
inline void rowsShapeA(int height, bool region, F&& row) {
  if (!region || !mayFork()) {
    for (int i = 0; i < height; ++i) row(i);
    return;
  }
#pragma omp parallel for schedule(static) num_threads(teamSize())
  for (int i = 0; i < height; ++i) row(i);
}

// Shape A for a member and scale path: consults the gate table.
template <class F>
inline void rowsShapeA(const GateKey& key, PathBit path, PxlSize roi, F&& row) {
  rowsShapeA(roi.height, regionOpens(key, path, roi), row);
}

// Shape B. Thread t of n gets rows [t*q, t*q+q), the last thread also the
// remainder; worker(firstRow, rowCount) is the family's serial loop.
template <class F>
inline void rowsShapeB(int height, F&& worker) {
  if (!mayFork()) {
    worker(0, height);
    return;
  }
  int q = 0, r = 0;
#pragma omp parallel num_threads(teamSize())
  {
#pragma omp master
    {
      const int n = omp_get_num_threads();
      q = height / n;
      r = height % n;
    }
#pragma omp barrier
    const int t = omp_get_thread_num();
    const int n = omp_get_num_threads();
    worker(t * q, t == n - 1 ? q + r : q);
  }
}

}  // namespace pxl
