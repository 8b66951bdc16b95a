// Which members of the scaled arithmetic run rows in a parallel region, and
// for which scale paths a size gate keeps small images on the caller's
// thread. The rows are tuning results of each member, irregular on purpose:
// they are kept as data that the one driver consults, not as a rule.
#pragma once

#include "frame/types.h"

namespace pxl {

enum class Fam : std::uint8_t { Add, Sub, AddC, SubC, Mul, MulC };
enum class TypeTag : std::uint8_t { u8, s16, f32, other };

template <class T>
constexpr TypeTag typeTagOf() {
  if constexpr (std::is_same_v<T, Pxl8u>) return TypeTag::u8;
  else if constexpr (std::is_same_v<T, Pxl16s>) return TypeTag::s16;
  else if constexpr (std::is_same_v<T, Pxl32f>) return TypeTag::f32;
  else return TypeTag::other;
}

// Scale paths as bits; Single is the only path of the float members.
enum PathBit : std::uint8_t {
  kPathZero = 1, kPathOne = 2, kPathPos = 4, kPathNeg = 8, kPathBound = 16, kPathSingle = 32,
};

struct GateKey {
  Fam fam;
  TypeTag type;
  Lay lay;
  bool inPlace;
};

// k < 0: a region for every path, no gate. Otherwise the paths in 'gated'
// open a region only when (height >> 2) + (width >> k) > 20; the others
// always open one.
struct GateRow {
  GateKey key;
  int k;
  std::uint8_t gated;
};

inline constexpr int kNoGate = -1;
inline constexpr std::uint8_t kZ1P = kPathZero | kPathOne | kPathPos;

// clang-format off
inline constexpr GateRow kGateTable[] = {
  // member                                              k   gated paths
  {{Fam::Add,  TypeTag::u8,  Lay::C1, false}, 4, 0},                       // pxliAdd_8u_C1RSfs
  {{Fam::Add,  TypeTag::u8,  Lay::C1, true},  4, kPathPos},                // pxliAdd_8u_C1IRSfs
  {{Fam::Add,  TypeTag::s16, Lay::C1, false}, 3, kZ1P},                    // pxliAdd_16s_C1RSfs
  {{Fam::Add,  TypeTag::s16, Lay::C1, true},  3, 0},                       // pxliAdd_16s_C1IRSfs
  {{Fam::Sub,  TypeTag::u8,  Lay::C1, false}, 4, 0},                       // pxliSub_8u_C1RSfs
  {{Fam::Sub,  TypeTag::u8,  Lay::C1, true},  4, kPathPos},                // pxliSub_8u_C1IRSfs
  {{Fam::Sub,  TypeTag::s16, Lay::C1, false}, 3, kZ1P},                    // pxliSub_16s_C1RSfs
  {{Fam::Sub,  TypeTag::s16, Lay::C1, true},  3, kPathOne | kPathPos},     // pxliSub_16s_C1IRSfs
  {{Fam::AddC, TypeTag::u8,  Lay::C1, false}, 4, 0},                       // pxliAddC_8u_C1RSfs
  {{Fam::AddC, TypeTag::u8,  Lay::C1, true},  4, kPathOne | kPathPos},     // pxliAddC_8u_C1IRSfs
  {{Fam::AddC, TypeTag::s16, Lay::C1, false}, 3, kZ1P},                    // pxliAddC_16s_C1RSfs
  {{Fam::AddC, TypeTag::s16, Lay::C1, true},  3, kPathOne | kPathPos},     // pxliAddC_16s_C1IRSfs
  {{Fam::SubC, TypeTag::u8,  Lay::C1, false}, 4, 0},                       // pxliSubC_8u_C1RSfs
  {{Fam::SubC, TypeTag::u8,  Lay::C1, true},  4, kPathOne | kPathPos},     // pxliSubC_8u_C1IRSfs
  {{Fam::SubC, TypeTag::s16, Lay::C1, false}, 3, kZ1P},                    // pxliSubC_16s_C1RSfs
  {{Fam::SubC, TypeTag::s16, Lay::C1, true},  3, kPathOne},                // pxliSubC_16s_C1IRSfs
  {{Fam::Mul,  TypeTag::u8,  Lay::C1, false}, 4, kPathOne | kPathPos},     // pxliMul_8u_C1RSfs
  {{Fam::Mul,  TypeTag::u8,  Lay::C1, true},  4, kPathOne | kPathPos},     // pxliMul_8u_C1IRSfs
  {{Fam::Mul,  TypeTag::s16, Lay::C1, false}, 3, kPathOne | kPathPos},     // pxliMul_16s_C1RSfs
  {{Fam::Mul,  TypeTag::s16, Lay::C1, true},  3, kPathOne},                // pxliMul_16s_C1IRSfs
  {{Fam::MulC, TypeTag::u8,  Lay::C1, false}, 4, 0},                       // pxliMulC_8u_C1RSfs
  {{Fam::MulC, TypeTag::u8,  Lay::C1, true},  4, kPathPos},                // pxliMulC_8u_C1IRSfs
  {{Fam::MulC, TypeTag::s16, Lay::C1, false}, 3, 0},                       // pxliMulC_16s_C1RSfs
  {{Fam::MulC, TypeTag::s16, Lay::C1, true},  3, kPathOne | kPathPos},     // pxliMulC_16s_C1IRSfs
  {{Fam::Add,  TypeTag::f32, Lay::C1, false}, 2, kPathSingle},             // pxliAdd_32f_C1R
  {{Fam::Sub,  TypeTag::f32, Lay::C1, false}, 2, kPathSingle},             // pxliSub_32f_C1R
  {{Fam::AddC, TypeTag::f32, Lay::C1, false}, 2, kPathSingle},             // pxliAddC_32f_C1R
  {{Fam::SubC, TypeTag::f32, Lay::C1, false}, 2, kPathSingle},             // pxliSubC_32f_C1R
  {{Fam::Add,  TypeTag::f32, Lay::C1, true},  kNoGate, 0},                 // pxliAdd_32f_C1IR
  {{Fam::Sub,  TypeTag::f32, Lay::C1, true},  kNoGate, 0},                 // pxliSub_32f_C1IR
  {{Fam::AddC, TypeTag::f32, Lay::C1, true},  kNoGate, 0},                 // pxliAddC_32f_C1IR
  {{Fam::SubC, TypeTag::f32, Lay::C1, true},  kNoGate, 0},                 // pxliSubC_32f_C1IR
  {{Fam::Mul,  TypeTag::f32, Lay::C1, false}, kNoGate, 0},                 // pxliMul_32f_C1R
  {{Fam::Mul,  TypeTag::f32, Lay::C1, true},  kNoGate, 0},                 // pxliMul_32f_C1IR
  {{Fam::MulC, TypeTag::f32, Lay::C1, false}, kNoGate, 0},                 // pxliMulC_32f_C1R
  {{Fam::MulC, TypeTag::f32, Lay::C1, true},  kNoGate, 0},                 // pxliMulC_32f_C1IR
  // Constant C3 members of 8u, 16s, 32f, in place or not: always a region.
  {{Fam::AddC, TypeTag::u8,  Lay::C3, false}, kNoGate, 0}, {{Fam::AddC, TypeTag::u8,  Lay::C3, true}, kNoGate, 0},
  {{Fam::AddC, TypeTag::s16, Lay::C3, false}, kNoGate, 0}, {{Fam::AddC, TypeTag::s16, Lay::C3, true}, kNoGate, 0},
  {{Fam::AddC, TypeTag::f32, Lay::C3, false}, kNoGate, 0}, {{Fam::AddC, TypeTag::f32, Lay::C3, true}, kNoGate, 0},
  {{Fam::SubC, TypeTag::u8,  Lay::C3, false}, kNoGate, 0}, {{Fam::SubC, TypeTag::u8,  Lay::C3, true}, kNoGate, 0},
  {{Fam::SubC, TypeTag::s16, Lay::C3, false}, kNoGate, 0}, {{Fam::SubC, TypeTag::s16, Lay::C3, true}, kNoGate, 0},
  {{Fam::SubC, TypeTag::f32, Lay::C3, false}, kNoGate, 0}, {{Fam::SubC, TypeTag::f32, Lay::C3, true}, kNoGate, 0},
  {{Fam::MulC, TypeTag::u8,  Lay::C3, false}, kNoGate, 0}, {{Fam::MulC, TypeTag::u8,  Lay::C3, true}, kNoGate, 0},
  {{Fam::MulC, TypeTag::s16, Lay::C3, false}, kNoGate, 0}, {{Fam::MulC, TypeTag::s16, Lay::C3, true}, kNoGate, 0},
  {{Fam::MulC, TypeTag::f32, Lay::C3, false}, kNoGate, 0}, {{Fam::MulC, TypeTag::f32, Lay::C3, true}, kNoGate, 0},
  // In-place constant AC4 of 32f run the C4 kernel in a region, alpha included.
  {{Fam::AddC, TypeTag::f32, Lay::AC4, true}, kNoGate, 0},                 // pxliAddC_32f_AC4IR
  {{Fam::SubC, TypeTag::f32, Lay::AC4, true}, kNoGate, 0},                 // pxliSubC_32f_AC4IR
  {{Fam::MulC, TypeTag::f32, Lay::AC4, true}, kNoGate, 0},                 // pxliMulC_32f_AC4IR
};
// clang-format on

constexpr bool sameKey(const GateKey& a, const GateKey& b) {
  return a.fam == b.fam && a.type == b.type && a.lay == b.lay && a.inPlace == b.inPlace;
}

// The row of a member, or null for a member with no parallel path.
constexpr const GateRow* gateRowOf(const GateKey& key) {
  for (const GateRow& r : kGateTable)
    if (sameKey(r.key, key)) return &r;
  return nullptr;
}

// The one gate formula of the library; width is what the C1 member receives.
constexpr bool gateFormulaOpens(PxlSize roi, int k) { return (roi.height >> 2) + (roi.width >> k) > 20; }

constexpr bool regionOpens(const GateKey& key, PathBit path, PxlSize roi) {
  const GateRow* r = gateRowOf(key);
  if (r == nullptr) return false;
  if (r->k == kNoGate || (r->gated & path) == 0) return true;
  return gateFormulaOpens(roi, r->k);
}

// Members whose row advance drops the low bits of an odd step, so that rows
// stay aligned to the sample size: Abs, Sqr, Sqrt of 16s/16u advance by
// step & -2, those of 32f by step & -4 (C1 and C3, in place or not). Every
// other member advances by the plain byte step.
enum class Unary : std::uint8_t { Abs, Sqr, Sqrt, Other };
struct StepAdvanceRow {
  Unary stem;
  TypeTag type;
  bool u16;
  int mask;
};
inline constexpr StepAdvanceRow kStepAdvanceTable[] = {
    {Unary::Abs, TypeTag::s16, false, -2}, {Unary::Sqr, TypeTag::s16, false, -2},
    {Unary::Sqr, TypeTag::other, true, -2}, {Unary::Sqrt, TypeTag::s16, false, -2},
    {Unary::Sqrt, TypeTag::other, true, -2}, {Unary::Abs, TypeTag::f32, false, -4},
    {Unary::Sqr, TypeTag::f32, false, -4}, {Unary::Sqrt, TypeTag::f32, false, -4},
};
constexpr int stepAdvanceMask(Unary stem, TypeTag type, bool u16) {
  for (const StepAdvanceRow& r : kStepAdvanceTable)
    if (r.stem == stem && r.type == type && r.u16 == u16) return r.mask;
  return -1;
}

}  // namespace pxl
