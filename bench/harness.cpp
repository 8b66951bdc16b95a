// Images, thread control and registration shared by every family's table.
#include "harness.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <random>
#include <thread>
#include <tuple>

#include "pxlcore.h"

namespace pxlbench {
namespace {

// An image from the library's allocator: rows start on 32-byte boundaries,
// which is what a caller of the library normally has.
struct Image {
  Pxl8u* data = nullptr;
  int step = 0;
};

enum class Role { Src0, Src1, DstLib, DstCv };

// Sources hold pseudo-random samples over the type's useful range, so that
// saturation and rounding happen as often as in real data and no branch in
// either library sees a constant pattern. Destinations are written once so
// that their pages exist before anything is timed.
void fill(Image& im, SampleKind k, int width, int height, unsigned seed) {
  std::mt19937 gen(seed);
  for (int y = 0; y < height; ++y) {
    Pxl8u* row = im.data + std::ptrdiff_t(im.step) * y;
    if (k.cvDepth == CV_8U) {
      for (int x = 0; x < width; ++x) row[x] = static_cast<Pxl8u>(gen() >> 24);
    } else if (k.cvDepth == CV_16S) {
      auto* r = reinterpret_cast<Pxl16s*>(row);
      for (int x = 0; x < width; ++x) r[x] = static_cast<Pxl16s>(gen() >> 16);
    } else {
      auto* r = reinterpret_cast<Pxl32f*>(row);
      std::uniform_real_distribution<float> dist(-1000.0f, 1000.0f);
      for (int x = 0; x < width; ++x) r[x] = dist(gen);
    }
  }
}

// Images are kept for the whole run: a 4096x4096 float image is 64 MiB, and
// making it again for every benchmark would cost more than measuring it.
Image& imageFor(SampleKind k, Shape s, Role role) {
  static std::map<std::tuple<int, int, int, int>, Image> cache;
  auto key = std::make_tuple(k.cvDepth, s.width, s.height, int(role));
  auto it = cache.find(key);
  if (it != cache.end()) return it->second;
  Image im;
  im.data = pxliMalloc_8u_C1(s.width * k.bytes, s.height, &im.step);
  if (im.data == nullptr) throw std::bad_alloc();
  if (role == Role::Src0 || role == Role::Src1) {
    fill(im, k, s.width, s.height, 1234u + unsigned(role));
  } else {
    for (int y = 0; y < s.height; ++y) std::memset(im.data + std::ptrdiff_t(im.step) * y, 0, s.width * k.bytes);
  }
  return cache.emplace(key, im).first->second;
}

Io libIo(const Case& c, Shape s) {
  Io io{};
  for (int i = 0; i < c.sources; ++i) {
    Image& im = imageFor(c.sample, s, i == 0 ? Role::Src0 : Role::Src1);
    io.src[i] = im.data;
    io.srcStep[i] = im.step;
  }
  Image& d = imageFor(dstKindOf(c), s, Role::DstLib);
  io.dst = d.data;
  io.dstStep = d.step;
  io.roi = PxlSize{s.width, s.height};
  return io;
}

CvIo cvIo(const Case& c, Shape s) {
  const int type = CV_MAKETYPE(c.sample.cvDepth, 1);
  CvIo m;
  for (int i = 0; i < c.sources; ++i) {
    Image& im = imageFor(c.sample, s, i == 0 ? Role::Src0 : Role::Src1);
    (i == 0 ? m.a : m.b) = cv::Mat(s.height, s.width, type, im.data, std::size_t(im.step));
  }
  Image& d = imageFor(dstKindOf(c), s, Role::DstCv);
  m.d = cv::Mat(s.height, s.width, CV_MAKETYPE(dstKindOf(c).cvDepth, 1), d.data, std::size_t(d.step));
  return m;
}

// Whether OpenCV writes exactly the library's bytes for this case. Computed
// once per case and shape, outside any timing, and only reported: it tells
// the reader whether the two columns compute the same thing.
const char* sameOutput(const Case& c, Shape s) {
  static std::map<std::tuple<const Case*, int, int>, const char*> verdicts;
  auto key = std::make_tuple(&c, s.width, s.height);
  auto it = verdicts.find(key);
  if (it != verdicts.end()) return it->second;
  const char* verdict = "n/a";
  if (c.cv != nullptr) {
    Io io = libIo(c, s);
    CvIo m = cvIo(c, s);
    const uchar* cvData = m.d.data;
    const PxlStatus st = c.lib(io);
    c.cv(m);
    verdict = "yes";
    if (st != pxlStsOk) {
      verdict = "library error";
    } else if (m.d.data != cvData) {
      verdict = "OpenCV reallocated";
    } else {
      const std::size_t rowBytes = std::size_t(s.width) * dstKindOf(c).bytes;
      for (int y = 0; y < s.height && verdict[0] == 'y'; ++y)
        if (std::memcmp(static_cast<const Pxl8u*>(io.dst) + std::ptrdiff_t(io.dstStep) * y, m.d.ptr(y), rowBytes))
          verdict = "no";
    }
  }
  verdicts.emplace(key, verdict);
  return verdict;
}

std::string label(const Case& c, Shape s, int threads, const char* impl, std::int64_t bytes) {
  std::string l = std::string("impl=") + impl + ";family=" + c.family + ";member=" + c.member +
                  ";variant=" + c.variant + ";w=" + std::to_string(s.width) + ";h=" + std::to_string(s.height) +
                  ";threads=" + std::to_string(threads) + ";bytes=" + std::to_string(bytes) +
                  ";same=" + sameOutput(c, s);
  if (c.cvDoes != nullptr) l += std::string(";cv=") + c.cvDoes;
  return l;
}

std::string nameOf(const Case& c, Shape s, int threads, const char* impl) {
  std::string variant = c.variant;
  for (char& ch : variant)
    if (ch == ' ') ch = '_';
  if (!variant.empty()) variant = "[" + variant + "]";
  return std::string(c.family) + "/" + c.member + variant + "/" + std::to_string(s.width) + "x" +
         std::to_string(s.height) + "/t" + std::to_string(threads) + "/" + impl;
}

void setCounts(benchmark::State& state, Shape s, std::int64_t bytesPerCall) {
  state.SetItemsProcessed(state.iterations() * std::int64_t(s.width) * s.height);
  state.SetBytesProcessed(state.iterations() * bytesPerCall);
}

void runLib(benchmark::State& state, const Case& c, Shape s, int threads, std::int64_t bytes) {
  Io io = libIo(c, s);
  useThreads(threads);
  // One untimed call: starts the thread team and checks the arguments.
  if (PxlStatus st = c.lib(io); st != pxlStsOk) {
    state.SkipWithError(("status " + std::to_string(st)).c_str());
    return;
  }
  for (auto _ : state) {
    PxlStatus st = c.lib(io);
    benchmark::DoNotOptimize(st);
    benchmark::ClobberMemory();
  }
  setCounts(state, s, bytes);
  state.SetLabel(label(c, s, threads, "lib", bytes));
}

void runCv(benchmark::State& state, const Case& c, Shape s, int threads, std::int64_t bytes) {
  CvIo m = cvIo(c, s);
  const uchar* dstData = m.d.data;
  useThreads(threads);
  c.cv(m);
  // A destination that OpenCV reallocated would be fresh memory, not the
  // caller's image: that would not be the same measurement.
  if (m.d.data != dstData) {
    state.SkipWithError("OpenCV reallocated the destination");
    return;
  }
  for (auto _ : state) {
    c.cv(m);
    benchmark::ClobberMemory();
  }
  setCounts(state, s, bytes);
  state.SetLabel(label(c, s, threads, "cv", bytes));
}

}  // namespace

int allThreads() {
  const unsigned n = std::thread::hardware_concurrency();
  return n == 0 ? 1 : int(n);
}

void useThreads(int n) {
  threads_omp_of_n_pxl = n;
  cv::setNumThreads(n);
}

void registerCases(const Case* cases, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const Case& c = cases[i];
    for (Shape s : kShapes) {
      const std::int64_t pixels = std::int64_t(s.width) * s.height;
      const std::int64_t bytes = pixels * (c.sources * c.sample.bytes + dstKindOf(c).bytes);
      for (int threads : {1, allThreads()}) {
        benchmark::RegisterBenchmark(nameOf(c, s, threads, "lib").c_str(),
                                     [&c, s, threads, bytes](benchmark::State& st) { runLib(st, c, s, threads, bytes); })
            ->UseRealTime()
            ->Unit(benchmark::kMicrosecond);
        if (c.cv != nullptr)
          benchmark::RegisterBenchmark(nameOf(c, s, threads, "cv").c_str(),
                                       [&c, s, threads, bytes](benchmark::State& st) { runCv(st, c, s, threads, bytes); })
              ->UseRealTime()
              ->Unit(benchmark::kMicrosecond);
        if (allThreads() == 1) break;  // one processor: the single-thread rows say it all
      }
    }
  }
}

}  // namespace pxlbench
