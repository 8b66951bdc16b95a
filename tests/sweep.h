// The table of every member with a known check order, generated from the
// family registry, with a thunk that calls the member from one generic set
// of arguments. Shared by the argument sweep and the differential tests.
#pragma once

#include <cstring>

#include "pxli.h"
#include "pxls.h"

struct SweepArgs {
  void* img[4];
  int step[4];
  PxlSize roi;
  int length;
  int scale;
  const void* value;
  void* planes[4];  // the plane array of a planar member
  int order[3];     // a channel order the member accepts
};

struct SweepEntry {
  const char* name;
  const char* order;  // "NS", "NST" or "NTS"; a trailing P: plane pointers after the steps
  bool folds;         // looks at the width only, then hands over to C1
  bool vector;        // pxls: a length instead of steps and roi
  int images;         // image or vector pointers, in argument order
  bool valuePtr;      // the constant is passed by pointer
  int planar;         // bit i set: image i is a plane array
  int steps;          // row steps: fewer than images where a result pointer has none
  const void* fn;     // the linked member, or null where it is looked up by name
  PxlStatus (*thunk)(const void* fn, const SweepArgs&);

  PxlStatus call(const SweepArgs& a) const { return thunk(fn, a); }
  PxlStatus callAt(const void* member, const SweepArgs& a) const { return thunk(member, a); }
};

// A constant passed by value, read from wherever the arguments keep it (at
// any address: the sweep also calls members with misaligned operands).
template <class T>
inline T sweepValue(const void* p) {
  T v;
  std::memcpy(&v, p, sizeof v);
  return v;
}

// Per-channel level counts and bounds a multi-channel histogram accepts:
// two levels, one bin per channel, over the 8u range.
static const int kSweepLevelCounts[4] = {2, 2, 2, 2};
static const Pxl32s kSweepLowerLevels[4] = {0, 0, 0, 0};
static const Pxl32s kSweepUpperLevels[4] = {256, 256, 256, 256};

// Transforms the geometry members accept on any sweep ROI: a slight turn
// that keeps the picture over the region, and a parallelogram inside the
// smallest ROI (the same on both sides: the identity).
inline const double kSweepAffine[2][3] = {{1.0, 0.125, 0.25}, {-0.125, 1.0, 0.5}};
inline const double kSweepQuad[4][2] = {{0.5, 0.5}, {5.5, 1.0}, {6.0, 3.0}, {1.0, 2.5}};

// A program that loads the library by path defines this as null first.
#ifndef PXL_SWEEP_FN
#define PXL_SWEEP_FN(name) reinterpret_cast<const void*>(&name)
#endif

#include "sweep.inc"
