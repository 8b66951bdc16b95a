#!/usr/bin/env bash
# Builds and runs every test: the release build at the baseline level, the
# same tests at the AVX2 level where the processor has it (vector kernels of
# both widths against the same exact rule), and a build under
# AddressSanitizer and UndefinedBehaviorSanitizer. The benchmarks are built
# (not run) so that they never rot, when OpenCV is installed.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
jobs=$(nproc)

run() {  # run <build dir> <cmake options...>
  local dir=$1; shift
  echo "=== $dir"
  cmake -S . -B "$dir" -DPXL_BUILD_TESTS=ON -DPXL_BUILD_EXAMPLES=ON "$@" >/dev/null
  cmake --build "$dir" -j"$jobs"
  (cd "$dir" && ctest -j"$jobs" --output-on-failure)
}

run build -DCMAKE_BUILD_TYPE=Release -DPXL_ISA=baseline
if grep -qw avx2 /proc/cpuinfo; then
  run build-avx2 -DCMAKE_BUILD_TYPE=Release -DPXL_ISA=avx2
fi
ASAN_OPTIONS=detect_leaks=1 run build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPXL_SANITIZE=ON
if dpkg -s libopencv-dev >/dev/null 2>&1 && [ -f bench/CMakeLists.txt ]; then
  echo "=== benchmarks (build only)"
  cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DPXL_BUILD_BENCH=ON -DPXL_BUILD_TESTS=OFF \
    -DPXL_BUILD_EXAMPLES=OFF >/dev/null
  cmake --build build-bench -j"$jobs"
fi
echo "all tests passed"
