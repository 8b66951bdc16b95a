// pxl_bench: the library against OpenCV and against the machine's memory
// bandwidth. scripts/bench.sh runs it and turns its JSON into BENCHMARKS.md.
//
// What the table needs to describe the run (instruction level of this build,
// OpenCV's version and code paths, the load when the run began) goes into
// the JSON context, next to what Google Benchmark records itself.
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <fstream>
#include <sstream>
#include <string>

#include <opencv2/core.hpp>

#include "harness.h"

namespace {

// The instruction level of the library file the loader chose: the baseline
// lives in the library folder, every other level in glibc-hwcaps/<level>/.
std::string loadedLevel() {
  Dl_info info;
  if (dladdr(reinterpret_cast<void*>(&pxliAdd_8u_C1RSfs), &info) == 0 || info.dli_fname == nullptr) return "unknown";
  const std::string path = info.dli_fname;
  const auto at = path.find("glibc-hwcaps/");
  if (at == std::string::npos) return "baseline";
  const auto start = at + 13;
  return path.substr(start, path.find('/', start) - start);
}

// The lines of OpenCV's build report that say which instructions it runs
// and how it spreads work over threads; it picks its code path at run time.
std::string cvBuildLine(const std::string& key) {
  std::istringstream in(cv::getBuildInformation());
  for (std::string line; std::getline(in, line);) {
    const auto at = line.find(key);
    if (at == std::string::npos) continue;
    std::string v = line.substr(at + key.size());
    const auto first = v.find_first_not_of(" :");
    return first == std::string::npos ? std::string() : v.substr(first);
  }
  return "unknown";
}

std::string loadAverage() {
  std::ifstream f("/proc/loadavg");
  std::string one, five, fifteen;
  f >> one >> five >> fifteen;
  return one + " " + five + " " + fifteen;
}

}  // namespace

int main(int argc, char** argv) {
  const PxlLibVersion* v = pxliGetLibVersion();
  benchmark::AddCustomContext("pxl_version", v != nullptr && v->versionText ? v->versionText : "unknown");
  benchmark::AddCustomContext("pxl_isa", loadedLevel());
  benchmark::AddCustomContext("pxl_threads_all", std::to_string(pxlbench::allThreads()));
  benchmark::AddCustomContext("opencv_version", cv::getVersionString());
  benchmark::AddCustomContext("opencv_baseline", cvBuildLine("Baseline"));
  benchmark::AddCustomContext("opencv_dispatch", cvBuildLine("Dispatched code generation"));
  benchmark::AddCustomContext("opencv_parallel", cvBuildLine("Parallel framework"));
  benchmark::AddCustomContext("load_at_start", loadAverage());

  pxlbench::registerBandwidth();
  pxlbench::registerArith();
  pxlbench::registerMove();
  pxlbench::registerMoveBorder();
  pxlbench::registerMoveConvert();
  pxlbench::registerArithMulDiv();
  pxlbench::registerPoint();
  pxlbench::registerPointAlpha();
  pxlbench::registerPointLut();
  pxlbench::registerFilter();
  pxlbench::registerMeasure();
  pxlbench::registerFilter2();
  pxlbench::registerGeom();

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
