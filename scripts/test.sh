#!/usr/bin/env bash
# Builds and runs every test.
#
# 1. One release build of every instruction level (baseline, x86-64-v3,
#    x86-64-v4 in the glibc-hwcaps layout), with the benchmarks built (not
#    run) when OpenCV is installed, so that they never rot. Its tests run
#    once against the level the loader picks, and again against every other
#    level this processor runs (the same test binary, the loader told which
#    level to load); one test loads every level side by side and requires
#    identical bytes from each.
# 2. An AddressSanitizer + UndefinedBehaviorSanitizer build of one level.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
jobs=$(nproc)

# Objects are shared between runs and configurations through ccache where
# the machine has it.
launcher=()
if command -v ccache >/dev/null 2>&1; then
  launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

configure_build() {  # configure_build <build dir> <cmake options...>
  local dir=$1; shift
  echo "=== $dir"
  cmake -S . -B "$dir" -DPXL_BUILD_TESTS=ON -DPXL_BUILD_EXAMPLES=ON "${launcher[@]}" "$@" >/dev/null
  cmake --build "$dir" -j"$jobs"
}

bench=OFF
if dpkg -s libopencv-dev >/dev/null 2>&1 && dpkg -s libbenchmark-dev >/dev/null 2>&1 && dpkg -s libfftw3-dev >/dev/null 2>&1; then bench=ON; fi
configure_build build -DCMAKE_BUILD_TYPE=Release -DPXL_ISA= -DPXL_BUILD_BENCH=$bench
(cd build && ctest -j"$jobs" --output-on-failure)

# The levels the loader can run here, besides the one it picked above.
supported=$(/lib64/ld-linux-x86-64.so.2 --help | awk '/\(supported, searched\)/ && /x86-64-v[34]/ { print $1 }')
best=$(echo "$supported" | sort | tail -n 1)
for level in baseline $supported; do
  [ "$level" = "$best" ] && continue
  echo "=== build, tests against level $level"
  (cd build && PXL_TEST_LEVEL=$level ctest -j"$jobs" --output-on-failure \
    -E '^(exports_|levels_identical|headers_current|c_headers|consumer)')
done

configure_build build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPXL_SANITIZE=ON -DPXL_ISA=avx2 -DPXL_BUILD_BENCH=OFF
# Reports are recoverable in the code; halt_on_error (also set by the
# build for its gtest cases) makes the first one fatal.
(cd build-asan && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 ctest -j"$jobs" --output-on-failure)
# 3. The 32-bit x86 build (SSE2 for vectors and float arithmetic alike),
#    where Debian's multilib compiler installs. A kernel without 32-bit
#    support (some sandboxes) runs its tests under qemu's user-mode emulator,
#    about ten times slower; there the suite leaves out the long randomised
#    trials of the families whose code is the same at 32 and 64 bits, and
#    keeps what differs: the allocators' pointer layout, the 128-bit lanes of
#    the complex products, the scale rule on every type, the argument sweep.
#    Opt-in (PXL_TEST_M32=1): under the emulator it adds about ten minutes
#    (build and 178 tests), which would take CI past its twenty.
if [ "${PXL_TEST_M32:-0}" = 1 ] && bash scripts/deps.sh g++-multilib qemu-user >/dev/null 2>&1; then
  configure_build build-m32 -DCMAKE_BUILD_TYPE=Release -DPXL_M32=ON -DPXL_BUILD_EXAMPLES=OFF -DPXL_BUILD_BENCH=OFF
  echo "=== build-m32 tests"
  if build-m32/tests/pxl_tests --gtest_list_tests >/dev/null 2>&1; then
    build-m32/tests/pxl_tests --gtest_brief=1
  else
    qemu-i386 -cpu max build-m32/tests/pxl_tests --gtest_brief=1 \
      --gtest_filter='-AddSub.*:AddSubEdges.*:Logic.*:Lut.*:Alpha.*:Compare.*:Convert.*:Mirror.*:CopyStreaming.*'
  fi
else
  echo "=== no 32-bit build (PXL_TEST_M32=1 asks for it where g++-multilib and qemu-user install)"
fi
echo "all tests passed"
