// Resize, the affine warp and remap against cv::resize, cv::warpAffine and
// cv::remap on the same images. The destination differs in size from the
// source here, so these rows have their own table and registration; the
// labels carry the keys of every other row (w and h name the source).
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <opencv2/imgproc.hpp>

#include "harness.h"

namespace pxlbench {
namespace {

struct View {
  void* data;
  int step;
  int w, h;
};

struct GeomCase {
  const char* family;
  const char* member;
  const char* variant;
  SampleKind sample;
  int channels;
  double factor;  // destination side over source side
  int mode;       // library mode; the OpenCV flag below
  int cvFlag;
  const char* cvDoes;
};

// clang-format off
const GeomCase kGeom[] = {
  {"Resize", "pxliResize_8u_C1R", "nearest x2",      k8u,  1, 2.0,       1,  cv::INTER_NEAREST,  "cv::resize INTER_NEAREST"},
  {"Resize", "pxliResize_8u_C3R", "nearest x2",      k8u,  3, 2.0,       1,  cv::INTER_NEAREST,  "cv::resize INTER_NEAREST"},
  {"Resize", "pxliResize_8u_C1R", "linear x0.5",     k8u,  1, 0.5,       2,  cv::INTER_LINEAR,   "cv::resize INTER_LINEAR"},
  {"Resize", "pxliResize_8u_C3R", "linear x0.5",     k8u,  3, 0.5,       2,  cv::INTER_LINEAR,   "cv::resize INTER_LINEAR"},
  {"Resize", "pxliResize_8u_C1R", "linear x1.5",     k8u,  1, 1.5,       2,  cv::INTER_LINEAR,   "cv::resize INTER_LINEAR"},
  {"Resize", "pxliResize_8u_C3R", "linear x1.5",     k8u,  3, 1.5,       2,  cv::INTER_LINEAR,   "cv::resize INTER_LINEAR"},
  {"Resize", "pxliResize_8u_C1R", "cubic x1.5",      k8u,  1, 1.5,       4,  cv::INTER_CUBIC,    "cv::resize INTER_CUBIC"},
  {"Resize", "pxliResize_8u_C3R", "cubic x1.5",      k8u,  3, 1.5,       4,  cv::INTER_CUBIC,    "cv::resize INTER_CUBIC"},
  {"Resize", "pxliResize_8u_C1R", "lanczos x1.5",    k8u,  1, 1.5,       16, cv::INTER_LANCZOS4, "cv::resize INTER_LANCZOS4 (four lobes, eight taps)"},
  {"Resize", "pxliResize_8u_C3R", "lanczos x1.5",    k8u,  3, 1.5,       16, cv::INTER_LANCZOS4, "cv::resize INTER_LANCZOS4 (four lobes, eight taps)"},
  {"Resize", "pxliResize_8u_C1R", "super x1/3",      k8u,  1, 1.0 / 3.0, 8,  cv::INTER_AREA,     "cv::resize INTER_AREA"},
  {"Resize", "pxliResize_8u_C3R", "super x1/3",      k8u,  3, 1.0 / 3.0, 8,  cv::INTER_AREA,     "cv::resize INTER_AREA"},
  {"Resize", "pxliResize_32f_C1R", "linear x1.5",    k32f, 1, 1.5,       2,  cv::INTER_LINEAR,   "cv::resize INTER_LINEAR"},
  {"WarpAffine", "pxliWarpAffine_8u_C1R", "linear 30deg", k8u, 1, 1.0,   2,  cv::INTER_LINEAR,   "cv::warpAffine INTER_LINEAR, constant border"},
  {"WarpAffine", "pxliWarpAffine_8u_C1R", "cubic 30deg",  k8u, 1, 1.0,   4,  cv::INTER_CUBIC,    "cv::warpAffine INTER_CUBIC, constant border"},
  {"Remap", "pxliRemap_8u_C1R", "linear wave",       k8u,  1, 1.0,       2,  cv::INTER_LINEAR,   "cv::remap INTER_LINEAR, constant border"},
  {"Remap", "pxliRemap_32f_C1R", "linear wave",      k32f, 1, 1.0,       2,  cv::INTER_LINEAR,   "cv::remap INTER_LINEAR, constant border"},
};
// clang-format on

int destSide(int side, double factor) { return int(std::floor(side * factor)); }

// Source, destinations and maps, kept for the whole run.
struct Buffers {
  std::vector<std::uint8_t> src, dst;
  std::vector<float> mx, my;
  int srcStep, dstStep;
};

Buffers& buffersFor(const GeomCase& c, Shape s) {
  static std::map<std::tuple<const GeomCase*, int>, Buffers> cache;
  auto key = std::make_tuple(&c, s.width);
  auto it = cache.find(key);
  if (it != cache.end()) return it->second;
  Buffers b;
  const int px = c.sample.bytes * c.channels;
  b.srcStep = s.width * px;
  b.dstStep = destSide(s.width, c.factor) * px;
  b.src.resize(std::size_t(b.srcStep) * s.height);
  b.dst.resize(std::size_t(b.dstStep) * destSide(s.height, c.factor));
  std::mt19937 rng(99);
  if (c.sample.bytes == 1) {
    for (auto& v : b.src) v = std::uint8_t(rng());
  } else {
    auto* f = reinterpret_cast<float*>(b.src.data());
    for (std::size_t i = 0; i < b.src.size() / 4; ++i) f[i] = float(rng() % 1000);
  }
  if (std::strcmp(c.family, "Remap") == 0) {
    b.mx.resize(std::size_t(s.width) * s.height), b.my.resize(b.mx.size());
    for (int y = 0; y < s.height; ++y)
      for (int x = 0; x < s.width; ++x) {
        b.mx[std::size_t(y) * s.width + x] = float(x + 4.0 * std::sin(y / 16.0));
        b.my[std::size_t(y) * s.width + x] = float(y + 4.0 * std::cos(x / 16.0));
      }
  }
  return cache.emplace(key, std::move(b)).first->second;
}

// 30 degrees about the centre.
void rotation(Shape s, double (*c)[3]) {
  const double a = 30.0 * 3.141592653589793 / 180, cx = s.width / 2.0, cy = s.height / 2.0;
  c[0][0] = std::cos(a), c[0][1] = std::sin(a), c[0][2] = cx - cx * std::cos(a) - cy * std::sin(a);
  c[1][0] = -std::sin(a), c[1][1] = std::cos(a), c[1][2] = cy + cx * std::sin(a) - cy * std::cos(a);
}

PxlStatus runLib(const GeomCase& c, Shape s, Buffers& b) {
  const PxlSize size{s.width, s.height}, dsize{destSide(s.width, c.factor), destSide(s.height, c.factor)};
  const PxlRect roi{0, 0, s.width, s.height};
  const std::string m = c.member;
  auto* s8 = b.src.data();
  auto* d8 = b.dst.data();
  auto* sf = reinterpret_cast<const Pxl32f*>(b.src.data());
  auto* df = reinterpret_cast<Pxl32f*>(b.dst.data());
  if (c.family[0] == 'R' && c.family[2] == 's') {
    if (m == "pxliResize_8u_C1R") return pxliResize_8u_C1R(s8, size, b.srcStep, roi, d8, b.dstStep, dsize, c.factor, c.factor, c.mode);
    if (m == "pxliResize_8u_C3R") return pxliResize_8u_C3R(s8, size, b.srcStep, roi, d8, b.dstStep, dsize, c.factor, c.factor, c.mode);
    return pxliResize_32f_C1R(sf, size, b.srcStep, roi, df, b.dstStep, dsize, c.factor, c.factor, c.mode);
  }
  if (c.family[0] == 'W') {
    double co[2][3];
    rotation(s, co);
    return pxliWarpAffine_8u_C1R(s8, size, b.srcStep, roi, d8, b.dstStep, roi, co, c.mode);
  }
  const int ms = s.width * 4;
  if (c.sample.bytes == 1)
    return pxliRemap_8u_C1R(s8, size, b.srcStep, roi, b.mx.data(), ms, b.my.data(), ms, d8, b.dstStep, size, c.mode);
  return pxliRemap_32f_C1R(sf, size, b.srcStep, roi, b.mx.data(), ms, b.my.data(), ms, df, b.dstStep, size, c.mode);
}

void runCv(const GeomCase& c, Shape s, Buffers& b) {
  const int type = CV_MAKETYPE(c.sample.cvDepth, c.channels);
  cv::Mat src(s.height, s.width, type, b.src.data(), std::size_t(b.srcStep));
  cv::Mat dst(destSide(s.height, c.factor), destSide(s.width, c.factor), type, b.dst.data(), std::size_t(b.dstStep));
  if (c.family[0] == 'R' && c.family[2] == 's') {
    cv::resize(src, dst, dst.size(), 0, 0, c.cvFlag);
  } else if (c.family[0] == 'W') {
    double co[2][3];
    rotation(s, co);
    cv::warpAffine(src, dst, cv::Mat(2, 3, CV_64F, co), dst.size(), c.cvFlag);
  } else {
    cv::Mat mx(s.height, s.width, CV_32F, b.mx.data()), my(s.height, s.width, CV_32F, b.my.data());
    cv::remap(src, dst, mx, my, c.cvFlag);
  }
}

std::string labelOf(const GeomCase& c, Shape s, int threads, const char* impl, std::int64_t bytes) {
  return std::string("impl=") + impl + ";family=" + c.family + ";member=" + c.member + ";variant=" + c.variant +
         ";w=" + std::to_string(s.width) + ";h=" + std::to_string(s.height) + ";threads=" + std::to_string(threads) +
         ";bytes=" + std::to_string(bytes) + ";same=n/a;cv=" + c.cvDoes;
}

}  // namespace

void registerGeom() {
  for (const GeomCase& c : kGeom)
    for (Shape s : kShapes)
      for (int threads : {1, allThreads()}) {
        const std::int64_t px = std::int64_t(c.sample.bytes) * c.channels;
        const std::int64_t bytes = px * (std::int64_t(s.width) * s.height +
                                         std::int64_t(destSide(s.width, c.factor)) * destSide(s.height, c.factor));
        std::string variant = c.variant;
        for (char& ch : variant)
          if (ch == ' ') ch = '_';
        for (const char* impl : {"lib", "cv"}) {
          const std::string name = std::string(c.family) + "/" + c.member + "[" + variant + "]/" +
                                   std::to_string(s.width) + "x" + std::to_string(s.height) + "/t" +
                                   std::to_string(threads) + "/" + impl;
          const bool lib = impl[0] == 'l';
          benchmark::RegisterBenchmark(name.c_str(), [&c, s, threads, bytes, lib](benchmark::State& st) {
            Buffers& b = buffersFor(c, s);
            useThreads(threads);
            if (lib) {
              if (PxlStatus e = runLib(c, s, b); e < 0) return st.SkipWithError(("status " + std::to_string(e)).c_str());
            } else {
              runCv(c, s, b);
            }
            for (auto _ : st) {
              if (lib) benchmark::DoNotOptimize(runLib(c, s, b));
              else runCv(c, s, b);
              benchmark::ClobberMemory();
            }
            st.SetItemsProcessed(st.iterations() * std::int64_t(s.width) * s.height);
            st.SetBytesProcessed(st.iterations() * bytes);
            st.SetLabel(labelOf(c, s, threads, lib ? "lib" : "cv", bytes));
          })->UseRealTime()->Unit(benchmark::kMicrosecond);
        }
        if (allThreads() == 1) break;
      }
}

}  // namespace pxlbench
