// The companion library: the one global the image library reads, a quiet NaN
// and the four functions that change the processor's rounding state.
#include "pxlcore.h"

#include <limits>
#include <unistd.h>
#include <xmmintrin.h>

namespace {
int processorCount() {
  long n = sysconf(_SC_NPROCESSORS_ONLN);
  return n > 0 ? static_cast<int>(n) : 1;
}
}  // namespace

// Dynamic initialisation of a plain int: the value is in place before any
// code of a program that links this library can run.
int threads_omp_of_n_pxl = processorCount();

const double pxlConstantOfNAN_64f = std::numeric_limits<double>::quiet_NaN();

namespace {
constexpr unsigned kSseRoundField = 0x6000u;  // MXCSR bits 13..14
}

int pxl_set_rc_ssx(int rc) {
  const unsigned prev = _mm_getcsr();
  _mm_setcsr((prev & ~kSseRoundField) | (static_cast<unsigned>(rc) & kSseRoundField));
  return static_cast<int>(prev);
}

void pxl_set_cw_ssx(int cw) { _mm_setcsr(static_cast<unsigned>(cw)); }

int pxl_set_rcpc_fpu(int value, int mask) {
  unsigned short cw;
  __asm__ __volatile__("fnstcw %0" : "=m"(cw));
  const unsigned short prev = cw;
  cw = static_cast<unsigned short>((cw & ~mask) | (value & mask));
  __asm__ __volatile__("fldcw %0" : : "m"(cw));
  return prev;
}

void pxl_set_cw_fpu(int cw) {
  unsigned short w = static_cast<unsigned short>(cw);
  __asm__ __volatile__("fldcw %0" : : "m"(w));
}
