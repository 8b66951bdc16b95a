#!/usr/bin/env bash
# Builds pxl_bench in its own build directory, runs it and regenerates
# BENCHMARKS.md from its JSON output.
#
# Environment (all optional):
#   PXL_ISA                 one instruction level only (baseline, avx2, avx512); the default
#                           builds every level and measures the one the loader picks here
#   PXL_BENCH_MIN_TIME      seconds per repetition of each benchmark (default 0.1)
#   PXL_BENCH_REPETITIONS   repetitions within one run of the suite (default 3)
#   PXL_BENCH_RUNS          runs of the whole suite at the level the loader picks; the table
#                           shows the median (default 3)
#   PXL_BENCH_LEVEL_RUNS    runs at each other level this processor runs (default 1; 0 measures
#                           the loader's level alone)
#   PXL_BENCH_QUIET_WAIT    at most this many seconds to wait for an idle machine (default 300)
#   PXL_BENCH_FILTER        regular expression of the benchmarks to run (default all)
#   PXL_BENCH_OUT           the table to write (default BENCHMARKS.md)
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

# Every level is built, and the loader picks the best one this processor
# runs (the table names it), as OpenCV picks its code paths at run time;
# PXL_ISA builds and measures one level alone.
isa=${PXL_ISA:-}
out=${PXL_BENCH_OUT:-BENCHMARKS.md}
min_time=${PXL_BENCH_MIN_TIME:-0.1}
reps=${PXL_BENCH_REPETITIONS:-3}
runs=${PXL_BENCH_RUNS:-3}
level_runs=${PXL_BENCH_LEVEL_RUNS:-1}
quiet_wait=${PXL_BENCH_QUIET_WAIT:-300}
filter=${PXL_BENCH_FILTER:-.}
build=build-bench${isa:+-$isa}
stats=$build/pxl_bench.stats

# ---------------------------------------------------------------- packages
missing=()
for pkg in libopencv-dev libbenchmark-dev libfftw3-dev; do
  dpkg -s "$pkg" >/dev/null 2>&1 || missing+=("$pkg")
done
if ((${#missing[@]})); then
  echo "bench.sh: installing ${missing[*]}" >&2
  sudo_=()
  [ "$(id -u)" -eq 0 ] || sudo_=(sudo)
  "${sudo_[@]}" apt-get update
  DEBIAN_FRONTEND=noninteractive "${sudo_[@]}" apt-get install -y "${missing[@]}"
fi

# ---------------------------------------------------------------- build
# Objects are shared with the test builds through ccache where present.
launcher=()
command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DPXL_ISA="$isa" "${launcher[@]}" \
  -DPXL_BUILD_BENCH=ON -DPXL_BUILD_TESTS=OFF -DPXL_BUILD_EXAMPLES=OFF >/dev/null
cmake --build "$build" -j"$(nproc)" --target pxl_bench

# ---------------------------------------------------------------- run
# Busy, total and stolen jiffies of the whole machine, from the first line of
# /proc/stat. Stolen time is what the hypervisor gave to other machines while
# this one wanted to run.
cpu_jiffies() { awk '/^cpu /{ print $2+$3+$4+$7+$8, $2+$3+$4+$5+$6+$7+$8, $9 }' /proc/stat; }

# Sets children_cpu to the CPU seconds used so far by the finished children
# of this shell. 'times' must run in this shell itself, not in a command
# substitution (a subshell has no finished children), so it goes through a
# file.
children_cpu_now() {
  times >"$build/times.txt"
  read -r children_cpu < <(awk 'NR==2 { n=0; for (i=1;i<=2;i++) { split($i, a, /[ms]/); n += a[1]*60 + a[2] } print n }' \
    "$build/times.txt")
}

# Share of the machine that is busy over one second, in percent.
busy_percent() {
  local b0 t0 b1 t1
  read -r b0 t0 _ < <(cpu_jiffies)
  sleep 1
  read -r b1 t1 _ < <(cpu_jiffies)
  echo $(((b1 - b0) * 100 / (t1 - t0 > 0 ? t1 - t0 : 1)))
}

# Another build on a two-core machine halves what a parallel region gets, so
# wait a while for it to finish; run anyway after that, and say so.
#
# The library and OpenCV on the same case run back to back, so that their
# ratio compares them under the same conditions. The machine's speed (memory
# bandwidth, and at times the second processor) drifts over tens of seconds,
# which repetitions seconds apart do not see; so the whole suite runs several
# times and the table takes the median over the runs.
waited=0
while (($(busy_percent) > 10 && waited < quiet_wait)); do
  ((waited == 0)) && echo "bench.sh: machine busy, waiting up to ${quiet_wait} s for it to be idle" >&2
  sleep 4
  waited=$((waited + 5))
done

# The levels to measure. Every level's file sits in the build tree as it is
# installed (the baseline in lib/, the others in lib/glibc-hwcaps/<level>/),
# and the loader's --glibc-hwcaps-mask chooses among them; a level this
# processor cannot run falls back to a lower one, and is then left out.
bench=("$build/bench/pxl_bench")
loader=/lib64/ld-linux-x86-64.so.2
level_of() {  # the level the loader gives pxl_bench under mask $1 (no mask: its own choice)
  local mask=()
  [ "$#" -eq 0 ] || mask=(--glibc-hwcaps-mask "$1")
  "$loader" "${mask[@]}" "${bench[@]}" --benchmark_filter='^Bandwidth/memset/64MiB/t1/' --benchmark_min_time=0.001 \
    2>&1 | sed -n 's/^pxl_isa: //p' | head -1
}
picked=$(level_of)
levels=("$picked")
if [ -z "$isa" ] && [ -x "$loader" ] && ((level_runs > 0)); then
  for l in x86-64-v4 x86-64-v3 baseline; do
    [ "$l" = "$picked" ] && continue
    mask=$l
    [ "$l" = baseline ] && mask=none
    [ "$(level_of "$mask")" = "$l" ] && levels+=("$l")
  done
fi
echo "bench.sh: the loader picks $picked; measuring ${levels[*]}" >&2

hz=$(getconf CLK_TCK)
children_cpu_now
own0=$children_cpu
read -r busy0 _ steal0 < <(cpu_jiffies)
start=$(date +%s.%N)
jsons=()
# Rounds of every level in turn, so that the machine's drift falls on all of
# them alike; the loader's level runs in every round, the others in the first
# level_runs rounds.
for ((r = 1; r <= runs; r++)); do
  for l in "${levels[@]}"; do
    mask=()
    if [ "$l" != "$picked" ]; then
      ((r <= level_runs)) || continue
      mask=("$loader" --glibc-hwcaps-mask "$([ "$l" = baseline ] && echo none || echo "$l")")
    fi
    jsons+=("$build/pxl_bench.$l.$r.json")
    echo "bench.sh: run $r of $runs, level $l" >&2
    "${mask[@]}" "${bench[@]}" \
      --benchmark_filter="$filter" \
      --benchmark_min_time="$min_time" \
      --benchmark_repetitions="$reps" \
      --benchmark_report_aggregates_only=true \
      --benchmark_out="${jsons[-1]}" --benchmark_out_format=json >/dev/null
  done
done
end=$(date +%s.%N)
read -r busy1 _ steal1 < <(cpu_jiffies)
children_cpu_now
own=$(awk -v a="$own0" -v b="$children_cpu" 'BEGIN { print b - a }')

awk -v b0="$busy0" -v b1="$busy1" -v st0="$steal0" -v st1="$steal1" -v hz="$hz" -v own="$own" \
  -v s="$start" -v e="$end" -v w="$waited" -v mt="$min_time" 'BEGIN {
    other = (b1 - b0) / hz - own; if (other < 0) other = 0
    printf "wall_seconds=%.1f\nother_cpu_seconds=%.1f\nstolen_cpu_seconds=%.1f\n", e - s, other, (st1 - st0) / hz
    printf "quiet_wait_seconds=%d\nmin_time=%s\n", w, mt
  }' >"$stats"

# ---------------------------------------------------------------- table
command="${isa:+PXL_ISA=$isa }scripts/bench.sh"
[ "$out" = BENCHMARKS.md ] || command="PXL_BENCH_OUT=$out $command"
python3 scripts/bench_table.py "${jsons[@]}" --loader-level "$picked" --out "$out" --command "$command" \
  --run-stats "$stats"
