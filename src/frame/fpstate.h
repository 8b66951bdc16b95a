// The save-and-restore discipline for the processor's rounding state, kept
// in one place: a member sets the mode it needs after its checks, runs its
// rows, and on every way out (early returns included) puts the caller's
// control word back if the rounding field it found differs from the one it
// asked for. The state is per thread; such members never run in a region.
#pragma once

#include "pxlcore.h"

namespace pxl {

inline constexpr int kSseRoundNear = 0;
inline constexpr int kSseRoundZero = 24576;
inline constexpr int kSseRoundField = 24576;
inline constexpr int kX87RoundNear = 0;
inline constexpr int kX87RoundZero = 3072;
inline constexpr int kX87RoundField = 3072;

class SseRoundingScope {
 public:
  explicit SseRoundingScope(int rc) : wanted_(rc), previous_(pxl_set_rc_ssx(rc)) {}
  ~SseRoundingScope() {
    if (restore_ && (previous_ & kSseRoundField) != wanted_) pxl_set_cw_ssx(previous_);
  }
  // For the members that leave the caller at nearest on an early error.
  void keepCurrent() { restore_ = false; }
  SseRoundingScope(const SseRoundingScope&) = delete;
  SseRoundingScope& operator=(const SseRoundingScope&) = delete;

 private:
  int wanted_;
  int previous_;
  bool restore_ = true;
};

class X87RoundingScope {
 public:
  explicit X87RoundingScope(int rc) : wanted_(rc), previous_(pxl_set_rcpc_fpu(rc, kX87RoundField)) {}
  ~X87RoundingScope() {
    if (restore_ && (previous_ & kX87RoundField) != wanted_) pxl_set_cw_fpu(previous_);
  }
  void keepCurrent() { restore_ = false; }
  X87RoundingScope(const X87RoundingScope&) = delete;
  X87RoundingScope& operator=(const X87RoundingScope&) = delete;

 private:
  int wanted_;
  int previous_;
  bool restore_ = true;
};

}  // namespace pxl
