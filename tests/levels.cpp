// Every instruction level gives the same bytes.
//
// Loads each level's library by path, each into a namespace of its own (so
// that the copies never resolve to one another), and calls every member of
// the registry's table through each of them on the same random operands:
// odd widths and pointer offsets, odd steps, every scale path, and samples
// that are NaN, infinite, signed zeros or extremes for any sample type.
// Statuses and every byte of every buffer must agree with the first level.
//
//   [PXL_LEVELS_SEED=n] pxl_levels <library of level 1> <library of level 2> ...
//
// A level the processor cannot run is skipped (its path names the level).
#include <dlfcn.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <random>
#include <string>
#include <vector>

#define PXL_SWEEP_FN(name) nullptr
#include "sweep.h"

namespace {

bool runsHere(const std::string& path) {
  __builtin_cpu_init();
  if (path.find("x86-64-v4") != std::string::npos)
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
           __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
  if (path.find("x86-64-v3") != std::string::npos)
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") && __builtin_cpu_supports("bmi2");
  return true;
}

struct Level {
  std::string path;
  void* handle;
  int* threads;
};

// Operand buffers: four images and four planes for each of them (a planar
// member's images never share planes: a destination that overlaps a source
// gives results that depend on the order of the work), each with margins of
// whole rows and bytes around its ROI (some members read around it).
constexpr int kBuffers = 20, kMarginRows = 6, kMarginBytes = 256, kMaxPixelBytes = 32;

// Buffers start on a 64-byte boundary, so that every copy of an operand
// sits at the same address modulo any register width: members whose
// grouping follows the destination's alignment (the 32f division) then
// group alike in every level's call.
template <class T>
struct Aligned64 {
  using value_type = T;
  Aligned64() = default;
  template <class U>
  Aligned64(const Aligned64<U>&) {}
  T* allocate(std::size_t n) { return static_cast<T*>(::operator new(n * sizeof(T), std::align_val_t(64))); }
  void deallocate(T* p, std::size_t) { ::operator delete(p, std::align_val_t(64)); }
  friend bool operator==(Aligned64, Aligned64) { return true; }
  friend bool operator!=(Aligned64, Aligned64) { return false; }
};
using Bytes = std::vector<std::uint8_t, Aligned64<std::uint8_t>>;

struct Operands {
  std::vector<Bytes> buf;
  int offset[kBuffers];
  int step[kBuffers];
  std::uint8_t value[64];
};

// A 32-bit word of a sample pattern: the values where levels could differ.
std::uint32_t special(std::mt19937& rng) {
  static const std::uint32_t kWords[] = {
      0x00000000u, 0x80000000u, 0x7fc00000u, 0xffc00001u, 0x7f800000u, 0xff800000u, 0x7f7fffffu,
      0x00000001u, 0x3f000000u, 0xbf000000u, 0x4b000001u, 0x7fffffffu, 0x80000001u, 0xffffffffu,
      0x00ff00ffu, 0x80008000u, 0x7fff7fffu, 0x0000fff0u};
  const unsigned k = rng() % 4;
  if (k == 0) return kWords[rng() % (sizeof kWords / sizeof kWords[0])];
  if (k == 1) return rng() & 0x01ff01ffu;  // small integers
  return rng();
}

// Plane buffers are made only for a planar member: filling them for every
// call would cost more than the calls.
Operands makeOperands(std::mt19937& rng, PxlSize roi, bool planar) {
  Operands o;
  for (int i = 0; i < kBuffers; ++i) {
    if (i >= 4 && !planar) {
      o.buf.emplace_back(), o.step[i] = o.step[0], o.offset[i] = 0;
      continue;
    }
    o.step[i] = roi.width * kMaxPixelBytes + 2 * kMarginBytes + int(rng() % 8);
    // As many rows as the ROI is wide too: a transposing member's
    // destination has them.
    const std::size_t rows = std::size_t(std::max(roi.width, roi.height)) + 2 * kMarginRows;
    o.buf.emplace_back(rows * std::size_t(o.step[i]) + 16);
    for (std::size_t b = 0; b + 4 <= o.buf[i].size(); b += 4) {
      const std::uint32_t w = special(rng);
      std::memcpy(&o.buf[i][b], &w, 4);
    }
    o.offset[i] = kMarginRows * o.step[i] + kMarginBytes + int(rng() % 8);
  }
  for (int b = 0; b < 64; b += 4) {
    const std::uint32_t w = special(rng);
    std::memcpy(o.value + b, &w, 4);
  }
  return o;
}

PxlStatus callOn(const SweepEntry& e, const void* fn, Operands& o, PxlSize roi, int scale) {
  SweepArgs a{};
  static thread_local void* planes[4][4];
  for (int i = 0; i < 4; ++i)
    for (int p = 0; p < 4; ++p) planes[i][p] = o.buf[4 + 4 * i + p].empty() ? nullptr : o.buf[4 + 4 * i + p].data() + o.offset[4 + 4 * i + p];
  for (int i = 0; i < 4; ++i) {
    a.img[i] = (e.planar & (1 << i)) ? static_cast<void*>(planes[i]) : o.buf[i].data() + o.offset[i];
    a.step[i] = o.step[i];
  }
  for (int p = 0; p < 4; ++p) a.planes[p] = planes[0][p];
  a.roi = roi;
  a.length = roi.width * roi.height;
  a.scale = scale;
  a.value = o.value;
  a.order[0] = 2, a.order[1] = 0, a.order[2] = 1;
  return e.callAt(fn, a);
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<Level> levels;
  for (int i = 1; i < argc; ++i) {
    if (!runsHere(argv[i])) {
      std::printf("skip %s: this processor does not run it\n", argv[i]);
      continue;
    }
    void* h = dlmopen(LM_ID_NEWLM, argv[i], RTLD_NOW | RTLD_LOCAL);
    if (h == nullptr) {
      std::printf("cannot load %s: %s\n", argv[i], dlerror());
      return 1;
    }
    int* threads = static_cast<int*>(dlsym(h, "threads_omp_of_n_pxl"));
    if (threads == nullptr) {
      std::printf("%s has no thread count\n", argv[i]);
      return 1;
    }
    levels.push_back({argv[i], h, threads});
  }
  if (levels.size() < 2) {
    std::printf("fewer than two levels run here: nothing to compare\n");
    return 0;
  }

  // PXL_LEVELS_SEED draws other operands (the default is fixed, so that a
  // failure repeats).
  const char* seed = std::getenv("PXL_LEVELS_SEED");
  std::mt19937 rng(seed != nullptr ? std::uint32_t(std::strtoul(seed, nullptr, 10)) : 20261123u);
  static const int kScales[] = {0, 1, -1, 2, 7, 8, 15, 16, 17, 31, 32, 33, -7, -15, -16, -31, -40, 40};
  int members = 0, calls = 0, failures = 0;
  for (const SweepEntry& e : kSweepTable) {
    std::vector<const void*> fns;
    for (const Level& l : levels) fns.push_back(dlsym(l.handle, e.name));
    bool missing = false;
    for (std::size_t k = 0; k < fns.size(); ++k)
      if (fns[k] == nullptr) {
        std::printf("%s: %s not exported\n", levels[k].path.c_str(), e.name);
        missing = true;
      }
    if (missing) {
      ++failures;
      continue;
    }
    ++members;
    for (int trial = 0; trial < 4 && failures < 20; ++trial) {
      // Widths past every register width and its tails; a height of one
      // lets gapless and row walks meet.
      const int width = trial == 0 ? 1 + int(rng() % 7) : 1 + int(rng() % 150);
      const PxlSize roi{e.vector ? width * (1 + int(rng() % 3)) : width, e.vector ? 1 : 1 + int(rng() % 4)};
      const int scale = kScales[rng() % (sizeof kScales / sizeof kScales[0])];
      const int threads = 1 + int(rng() % 3);
      const Operands start = makeOperands(rng, roi, e.planar != 0);
      Operands first;
      PxlStatus firstStatus = pxlStsOk;
      for (std::size_t k = 0; k < levels.size(); ++k) {
        Operands o = start;
        *levels[k].threads = threads;
        const PxlStatus st = callOn(e, fns[k], o, roi, scale);
        ++calls;
        if (k == 0) {
          first = std::move(o), firstStatus = st;
          continue;
        }
        bool same = st == firstStatus;
        int where = -1;
        std::size_t at = 0;
        for (int b = 0; same && b < kBuffers; ++b)
          if (o.buf[b] != first.buf[b]) {
            same = false, where = b;
            while (o.buf[b][at] == first.buf[b][at]) ++at;
          }
        if (!same) {
          ++failures;
          std::uint32_t got = 0, want = 0;
          if (where >= 0) {
            const std::size_t w = at & ~std::size_t(3);
            std::memcpy(&got, &o.buf[where][w], 4), std::memcpy(&want, &first.buf[where][w], 4);
          }
          std::printf("%s differs at %s from %s: status %d vs %d, buffer %d byte %zd (%08x vs %08x) "
                      "(roi %dx%d, scale %d, threads %d)\n",
                      e.name, levels[k].path.c_str(), levels[0].path.c_str(), int(st), int(firstStatus), where,
                      std::ptrdiff_t(at) - o.offset[where < 0 ? 0 : where], got, want, roi.width, roi.height, scale,
                      threads);
        }
      }
    }
  }
  std::printf("%d members, %d calls over %zu levels, %d differences\n", members, calls, levels.size(), failures);
  return failures == 0 && members > 0 ? 0 : 1;
}
