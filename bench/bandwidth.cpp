// The machine's memory bandwidth, measured in the same run as the families:
// a 64 MiB memcpy and memset, far larger than the last-level cache, on one
// thread and on all of them. A streaming member cannot beat memcpy by much,
// so its bytes per second divided by memcpy's says how close to the memory
// limit it runs.
//
// memcpy counts its source and its destination (the same rule as the
// families: every image read plus the image written); memset counts what it
// writes.
#include <benchmark/benchmark.h>
#include <omp.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "harness.h"

namespace pxlbench {
namespace {

constexpr std::size_t kBytes = std::size_t(64) << 20;

unsigned char* block(int fillByte) {
  auto* p = static_cast<unsigned char*>(std::aligned_alloc(64, kBytes));
  if (p == nullptr) throw std::bad_alloc();
  std::memset(p, fillByte, kBytes);  // pages exist before anything is timed
  return p;
}

// Each of n threads handles one contiguous share, as a row-parallel member
// would; one thread needs no region.
template <class F>
void shared(int n, F&& part) {
  if (n == 1) {
    part(std::size_t(0), kBytes);
    return;
  }
#pragma omp parallel num_threads(n)
  {
    const std::size_t t = std::size_t(omp_get_thread_num()), k = std::size_t(omp_get_num_threads());
    const std::size_t chunk = (kBytes / k) & ~std::size_t(63);
    const std::size_t begin = t * chunk, end = t + 1 == k ? kBytes : begin + chunk;
    part(begin, end - begin);
  }
}

void registerOne(const char* kind, int threads) {
  const std::int64_t moved = std::string(kind) == "memcpy" ? 2 * std::int64_t(kBytes) : std::int64_t(kBytes);
  const std::string name = std::string("Bandwidth/") + kind + "/64MiB/t" + std::to_string(threads);
  benchmark::RegisterBenchmark(name.c_str(), [kind, threads, moved](benchmark::State& state) {
    static unsigned char* src = block(1);
    static unsigned char* dst = block(0);
    const bool copy = std::string(kind) == "memcpy";
    auto once = [&] {
      shared(threads, [&](std::size_t off, std::size_t len) {
        if (copy)
          std::memcpy(dst + off, src + off, len);
        else
          std::memset(dst + off, 7, len);
      });
    };
    once();
    for (auto _ : state) {
      once();
      benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * moved);
    state.SetLabel(std::string("impl=ref;kind=") + kind + ";threads=" + std::to_string(threads) +
                   ";bytes=" + std::to_string(moved));
  })
      ->UseRealTime()
      ->Unit(benchmark::kMicrosecond);
}

}  // namespace

void registerBandwidth() {
  for (const char* kind : {"memcpy", "memset"}) {
    registerOne(kind, 1);
    if (allThreads() > 1) registerOne(kind, allThreads());
  }
}

}  // namespace pxlbench
