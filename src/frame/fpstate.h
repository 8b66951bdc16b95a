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

// The two control registers differ only in how they are set and restored.
struct SseControl {
  static constexpr int kField = kSseRoundField;
  static int set(int rc) { return pxl_set_rc_ssx(rc); }
  static void restore(int word) { pxl_set_cw_ssx(word); }
};
struct X87Control {
  static constexpr int kField = kX87RoundField;
  static int set(int rc) { return pxl_set_rcpc_fpu(rc, kX87RoundField); }
  static void restore(int word) { pxl_set_cw_fpu(word); }
};

template <class Control>
class RoundingScope {
 public:
  explicit RoundingScope(int rc) : wanted_(rc), previous_(Control::set(rc)) {}
  ~RoundingScope() {
    if (restore_ && (previous_ & Control::kField) != wanted_) Control::restore(previous_);
  }
  // For the members that leave the caller at nearest on an early error.
  void keepCurrent() { restore_ = false; }
  RoundingScope(const RoundingScope&) = delete;
  RoundingScope& operator=(const RoundingScope&) = delete;

 private:
  int wanted_;
  int previous_;
  bool restore_ = true;
};

using SseRoundingScope = RoundingScope<SseControl>;
using X87RoundingScope = RoundingScope<X87Control>;

}  // namespace pxl
