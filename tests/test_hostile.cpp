// Every member under hostile conditions that apply to any of them: an
// allocator that fails, and many callers at once. Driven by the sweep table,
// so a new family is covered by its registry entry alone.
#include <gtest/gtest.h>
#include <omp.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "harness/guard.h"
#include "pxlcore.h"
#include "sweep.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

// Seven images (three operands, four planes) large enough that the members
// whose scratch depends on the size (tables for 16-bit samples, maps of a
// lookup, rows of a filter) take it, with constants and a valid call.
struct Operands {
  // A square ROI (a transpose writes its rows as columns) with room for a
  // border around it.
  static constexpr int kW = 48, kH = 48, kPix = 32;
  std::vector<std::unique_ptr<TestImage>> imgs;
  unsigned char values[64];

  explicit Operands(std::uint32_t seed) {
    for (int i = 0; i < 7; ++i)
      imgs.push_back(std::make_unique<TestImage>(kW + 4, kH + 6, kPix, 32, 32, Place::Back, seed + i));
    for (int i = 0; i < 64; ++i) values[i] = static_cast<unsigned char>(i + 1);
  }
  PxlStatus call(const SweepEntry& e) {
    SweepArgs a{};
    for (int i = 0; i < 3; ++i) a.img[i] = imgs[i]->row(2) + 2 * kPix, a.step[i] = imgs[i]->step();
    a.roi = {kW, kH};
    a.length = kW * kH;
    a.value = values;
    for (int p = 0; p < 4; ++p) a.planes[p] = imgs[3 + p]->row(2) + 2 * kPix;
    a.order[0] = 2, a.order[1] = 1, a.order[2] = 0;
    void* planes[4] = {a.planes[0], a.planes[1], a.planes[2], a.planes[3]};
    for (int i = 0; i < 3; ++i)
      if (e.planar & (1 << i)) a.img[i] = planes;
    return e.call(a);
  }
  std::vector<std::vector<std::uint8_t>> snapshot() const {
    std::vector<std::vector<std::uint8_t>> s;
    for (auto& im : imgs) s.push_back(im->snapshot());
    return s;
  }
  bool same(const std::vector<std::vector<std::uint8_t>>& s) const {
    for (std::size_t i = 0; i < imgs.size(); ++i)
      if (!imgs[i]->unchanged(s[i])) return false;
    return true;
  }
};

}  // namespace

// ------------------------------------------------------------ allocation failure
//
// The test program's own malloc and free stand in front of the C library's
// (the dynamic loader finds the program's first): on the calling thread,
// while armed, they count the blocks a call takes and returns and fail the
// Nth request. The sanitizers bring their own allocator, so there the test
// is left out.
#if defined(__SANITIZE_ADDRESS__)
#define PXL_INTERPOSED_MALLOC 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PXL_INTERPOSED_MALLOC 0
#endif
#endif
#ifndef PXL_INTERPOSED_MALLOC
#define PXL_INTERPOSED_MALLOC 1
#endif

#if PXL_INTERPOSED_MALLOC
namespace {
struct AllocWatch {
  bool armed = false;
  long requests = 0, failAt = 0;
  void* live[64] = {};  // blocks taken while armed and not yet returned
  int nLive = 0;
  bool overflow = false;
};
thread_local AllocWatch tWatch;
}  // namespace

extern "C" void* __libc_malloc(std::size_t);
extern "C" void __libc_free(void*);

extern "C" void* malloc(std::size_t n) {
  AllocWatch& w = tWatch;
  if (!w.armed) return __libc_malloc(n);
  if (++w.requests == w.failAt) return nullptr;
  void* p = __libc_malloc(n);
  if (p != nullptr) {
    if (w.nLive < 64)
      w.live[w.nLive++] = p;
    else
      w.overflow = true;
  }
  return p;
}

extern "C" void free(void* p) {
  AllocWatch& w = tWatch;
  if (w.armed && p != nullptr)
    for (int i = 0; i < w.nLive; ++i)
      if (w.live[i] == p) {
        w.live[i] = w.live[--w.nLive];
        break;
      }
  __libc_free(p);
}

// Members whose block only serves a faster path: without it they run the
// plain loop, which adds in the same order, so a refused request must give
// success and the same bytes as the call that had its block.
bool fallsBack(const std::string& name) {
  for (const char* p : {"pxliFilter_32f_", "pxliFilter32f_", "pxliFilterRow_32f_", "pxliFilterColumn_32f_", "pxliFilterRow32f_",
                        "pxliFilterColumn32f_"})
    if (name.rfind(p, 0) == 0) return true;
  return false;
}

// The warps report a refused block for their row spans as the warning that
// the quadrangle holds no pixel, with nothing written: that is their
// contract, not an oversight.
PxlStatus refusedStatus(const std::string& name, long request) {
  for (const char* p : {"pxliWarpAffine", "pxliRotate", "pxliShear"})
    if (name.rfind(p, 0) == 0 && request == 1) return pxlStsQuadClipped;
  return pxlStsAlloc;
}

// Each member that takes blocks on a valid call is called again with its
// first, second, ... request refused: it must report pxlStsAlloc, leave every
// image as it was and return every block it took (or, falling back, give
// the valid call's bytes).
TEST(Hostile, EveryAllocationThatFailsIsReportedAndLeavesNothing) {
  const int saved = threads_omp_of_n_pxl;
  threads_omp_of_n_pxl = 1;  // the thread library's own blocks stay out of the count
  Operands ops(5);
  int allocating = 0, failures = 0;
  for (const SweepEntry& e : kSweepTable) {
    ops.call(e);  // warm: first-use blocks of the runtime are not the member's
    tWatch = AllocWatch{};
    tWatch.armed = true;
    const PxlStatus ok = ops.call(e);
    tWatch.armed = false;
    const long taken = tWatch.requests;
    EXPECT_EQ(tWatch.nLive, 0) << e.name << " keeps a block after a valid call";
    if (taken == 0 || ok < 0) continue;
    ++allocating;
    const bool fallback = fallsBack(e.name);
    Operands valid(5);
    valid.call(e);
    const auto validBytes = valid.snapshot();
    for (long n = 1; n <= taken; ++n) {
      Operands fresh(5);
      const auto before = fallback ? validBytes : fresh.snapshot();
      tWatch = AllocWatch{};
      tWatch.failAt = n;
      tWatch.armed = true;
      const PxlStatus st = fresh.call(e);
      tWatch.armed = false;
      EXPECT_EQ(st, fallback ? ok : refusedStatus(e.name, n)) << e.name << " with request " << n << " of " << taken << " refused";
      EXPECT_TRUE(fresh.same(before)) << e.name << (fallback ? " changed its result" : " wrote")
                                      << " with request " << n << " refused";
      EXPECT_EQ(tWatch.nLive, 0) << e.name << " leaks with request " << n << " refused";
      EXPECT_FALSE(tWatch.overflow);
      ++failures;
    }
  }
  threads_omp_of_n_pxl = saved;
  EXPECT_GT(allocating, 10);
  std::printf("%d members allocate; %d refused requests checked\n", allocating, failures);
}
#endif

// ------------------------------------------------------------ many callers
//
// Eight application threads call every member at once, each call opening
// the library's own parallel regions, and then the same from the threads of
// an outer parallel region: each result equals the serial one.
namespace {

// The status and a digest of every image's bytes after one call.
struct Result {
  PxlStatus st;
  std::uint64_t digest;
  bool operator==(const Result& o) const { return st == o.st && digest == o.digest; }
};

Result resultOf(const SweepEntry& e) {
  Operands ops(9);
  Result r{ops.call(e), 14695981039346656037ull};
  for (auto& im : ops.imgs)
    for (std::uint8_t b : im->snapshot()) r.digest = (r.digest ^ b) * 1099511628211ull;
  return r;
}

// Every 16th member of the table (which is grouped by family, so each
// family is met): eight threads that each open the library's own regions
// oversubscribe a small machine many times over, and the whole table would
// take minutes there.
constexpr int kStride = 16;
constexpr int kMembers = int(sizeof(kSweepTable) / sizeof(kSweepTable[0])) / kStride;
const SweepEntry& member(int m) { return kSweepTable[m * kStride]; }

std::vector<Result> serialResults() {
  const int saved = threads_omp_of_n_pxl;
  threads_omp_of_n_pxl = 1;
  std::vector<Result> r;
  for (int m = 0; m < kMembers; ++m) r.push_back(resultOf(member(m)));
  threads_omp_of_n_pxl = saved;
  return r;
}

}  // namespace

TEST(Hostile, EightApplicationThreadsAtOnceGiveTheSerialResult) {
  const std::vector<Result> ref = serialResults();
  std::vector<int> bad(8, -1);
  std::vector<std::thread> callers;
  for (int t = 0; t < 8; ++t)
    callers.emplace_back([&, t] {
      // Each thread starts at its own member, so that different members run
      // side by side as well as the same one.
      for (int k = 0; k < kMembers; ++k) {
        const int m = (k + t * 7) % kMembers;
        if (!(resultOf(member(m)) == ref[std::size_t(m)])) {
          bad[std::size_t(t)] = m;
          return;
        }
      }
    });
  for (auto& c : callers) c.join();
  for (int t = 0; t < 8; ++t)
    EXPECT_EQ(bad[std::size_t(t)], -1) << "thread " << t << ": "
                                       << (bad[std::size_t(t)] >= 0 ? member(bad[std::size_t(t)]).name : "");
}

TEST(Hostile, CallsFromAnOuterParallelRegionGiveTheSerialResult) {
  const std::vector<Result> ref = serialResults();
  std::vector<int> bad(std::size_t(kMembers), 0);
#pragma omp parallel for num_threads(4) schedule(dynamic)
  for (int m = 0; m < kMembers; ++m) bad[std::size_t(m)] = !(resultOf(member(m)) == ref[std::size_t(m)]);
  for (int m = 0; m < kMembers; ++m) EXPECT_EQ(bad[std::size_t(m)], 0) << member(m).name;
}
