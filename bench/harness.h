// Shared machinery of pxl_bench: images that both sides read, the table row
// that pairs a library call with an OpenCV call, and their registration.
//
// Every benchmark reports pixels per second (SetItemsProcessed) and bytes
// moved per second (SetBytesProcessed, every source plus the destination,
// each counted once). Time is wall-clock time, since the parallel runs
// spread the work over several threads. Metadata that scripts/bench_table.py
// needs rides in the label as key=value pairs separated by ';', so the table
// does not depend on how names are spelled.
#pragma once

#include <cstddef>
#include <string>

#include <opencv2/core.hpp>

#include "pxli.h"

namespace pxlbench {

// One sample type: its size and the matching OpenCV depth.
struct SampleKind {
  int bytes;
  int cvDepth;
};
inline constexpr SampleKind k8u{1, CV_8U};
inline constexpr SampleKind k16s{2, CV_16S};
inline constexpr SampleKind k32f{4, CV_32F};

// Raw views for the library side: up to two sources and one destination,
// single channel, steps in bytes.
struct Io {
  const void* src[2];
  int srcStep[2];
  void* dst;
  int dstStep;
  PxlSize roi;

  template <class T>
  const T* s(int i) const {
    return static_cast<const T*>(src[i]);
  }
  template <class T>
  T* d() const {
    return static_cast<T*>(dst);
  }
};

// The same memory as OpenCV headers (no copy: both sides read the same
// bytes, with the same alignment): sources a and b, destination d.
struct CvIo {
  cv::Mat a, b, d;
};

using LibFn = PxlStatus (*)(const Io&);
using CvFn = void (*)(CvIo&);

// One row of a family's table: a library member on some arguments, and the
// OpenCV call that computes the same thing on the same images (null when
// OpenCV has no counterpart; the table then shows the library alone).
struct Case {
  const char* family;
  const char* member;
  const char* variant;  // the arguments that matter, e.g. "scale 0"
  SampleKind sample;
  int sources;  // images read: 1 or 2
  LibFn lib;
  CvFn cv;
  const char* cvDoes;  // what the OpenCV column computes, for the table's notes
  SampleKind dstSample{0, -1};  // the destination's type where it differs (Convert)
};

inline SampleKind dstKindOf(const Case& c) { return c.dstSample.bytes != 0 ? c.dstSample : c.sample; }

// Shorthands that keep a table row on one line. PXL_LIB and PXL_CV take any
// call (the library's on io, OpenCV's on m.a, m.b, m.d); the others spell
// the usual argument lists of the library.
#define PXL_SRC(T, i) io.s<T>(i), io.srcStep[i]
#define PXL_DST(T) io.d<T>(), io.dstStep, io.roi
#define PXL_LIB(...) [](const Io& io) -> PxlStatus { return __VA_ARGS__; }
#define PXL_CV(...) [](CvIo& m) { __VA_ARGS__; }
// Two sources and a scale factor: src1, src1Step, src2, src2Step, dst, dstStep, roi, scale.
#define PXL_LIB2S(fn, T, scale) PXL_LIB(fn(PXL_SRC(T, 0), PXL_SRC(T, 1), PXL_DST(T), scale))
// Two float sources, no scale factor.
#define PXL_LIB2(fn, T) PXL_LIB(fn(PXL_SRC(T, 0), PXL_SRC(T, 1), PXL_DST(T)))
// One source, a constant and a scale factor: src, srcStep, value, dst, dstStep, roi, scale.
#define PXL_LIB1CS(fn, T, value, scale) PXL_LIB(fn(PXL_SRC(T, 0), value, PXL_DST(T), scale))

// Image sizes and thread counts every case is measured at.
struct Shape {
  int width;
  int height;
};
inline constexpr Shape kShapes[] = {{512, 512}, {4096, 4096}};

// 1 and the number of processors.
int allThreads();

// Sets the thread count of both libraries for the next calls.
void useThreads(int n);

// Registers lib and OpenCV benchmarks of every case, shape and thread count.
void registerCases(const Case* cases, std::size_t count);

template <std::size_t N>
void registerCases(const Case (&cases)[N]) {
  registerCases(cases, N);
}

// Families and references; main calls each once.
void registerArith();
void registerMove();
void registerArithMulDiv();
void registerPoint();
void registerBandwidth();
void registerPointAlpha();
void registerMoveBorder();
void registerMoveConvert();
void registerPointLut();
void registerFilter();
void registerMeasure();
void registerFilter2();
void registerGeom();

}  // namespace pxlbench
