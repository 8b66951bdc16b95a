#!/usr/bin/env python3
"""Turn pxl_bench's JSON output into BENCHMARKS.md.

Every number in the document comes from the JSON of the runs given (and from
lscpu for the machine's name); nothing is typed in by hand. The benchmark
labels carry the metadata as key=value pairs separated by ';' (see
bench/harness.h).

Several runs of the whole suite may be given. This virtual machine's speed
drifts over tens of seconds, which repetitions inside one run, seconds apart,
do not see; but the library and OpenCV on the same case run back to back and
drift together. So a rate is the median over the runs, while a ratio (to
OpenCV, or to memcpy) is taken within each run first and then the median of
those is shown.

Runs of several instruction levels may be given (each JSON names the level
of the library file it ran); every level gets its own columns, and the
level the dynamic loader picks on this machine comes first.

Usage: bench_table.py RESULT.json [RESULT.json ...] [--loader-level LEVEL]
                      [--out BENCHMARKS.md] [--command CMD] [--run-stats FILE]
"""

import argparse
import datetime
import json
import os
import subprocess
import sys
from collections import OrderedDict

# Marks a row as noisy: with several runs, when its ratio to OpenCV ranges
# over the runs by more than NOISY_RATIO_RANGE of its median; with one run,
# when the repetitions of either side have a coefficient of variation above
# NOISY_CV.
NOISY_RATIO_RANGE = 0.15
NOISY_CV = 0.05


def parse_label(label):
    out = {}
    for part in (label or "").split(";"):
        if "=" in part:
            k, v = part.split("=", 1)
            out[k] = v
    return out


def median(xs):
    xs = sorted(xs)
    n = len(xs)
    if n == 0:
        return None
    return xs[n // 2] if n % 2 else (xs[n // 2 - 1] + xs[n // 2]) / 2


def rel_range(xs):
    xs = [x for x in xs if x]
    return (max(xs) - min(xs)) / median(xs) if len(xs) > 1 else 0.0


def load_run(path):
    """One run: the median rate of every benchmark, its spread and its label fields."""
    with open(path) as f:
        doc = json.load(f)
    runs = OrderedDict()
    spread = {}
    for b in doc["benchmarks"]:
        name = b.get("run_name", b["name"])
        if b.get("error_occurred"):
            runs[name] = {"order": b.get("family_index", len(runs)), "meta": parse_label(b.get("label")),
                          "error": b.get("error_message", "error")}
            continue
        kind = b.get("aggregate_name") if b.get("run_type") == "aggregate" else "single"
        if kind in ("median", "single"):
            runs[name] = {
                "order": b.get("family_index", len(runs)),
                "meta": parse_label(b.get("label")),
                "items": b.get("items_per_second"),
                "bytes": b.get("bytes_per_second"),
                "reps": b.get("repetitions", 1),
            }
        elif kind == "cv":
            spread[name] = b.get("real_time")
    for name, cv in spread.items():
        if name in runs:
            runs[name]["cv"] = cv
    return doc["context"], runs


class Results:
    """All runs of the suite, benchmark by benchmark, in registration order."""

    def __init__(self, paths):
        loaded = [load_run(p) for p in paths]
        self.context = loaded[0][0]
        self.nruns = len(loaded)
        self.per_run = [runs for _, runs in loaded]
        names = OrderedDict()
        for runs in self.per_run:
            for name, r in runs.items():
                names.setdefault(name, r["order"])
        self.names = [n for n, _ in sorted(names.items(), key=lambda kv: kv[1])]

    def entries(self, name):
        """The benchmark's result in each run (None where it is missing or failed)."""
        out = []
        for runs in self.per_run:
            r = runs.get(name)
            out.append(r if r is not None and "error" not in r else None)
        return out

    def any_entry(self, name):
        for runs in self.per_run:
            if name in runs:
                return runs[name]
        return None

    def rate(self, name, field):
        return median([e[field] for e in self.entries(name) if e and e.get(field)])


def lscpu():
    info = {}
    try:
        out = subprocess.run(["lscpu"], capture_output=True, text=True, check=True).stdout
    except (OSError, subprocess.CalledProcessError):
        return info
    for line in out.splitlines():
        if ":" in line:
            k, v = line.split(":", 1)
            info[k.strip()] = v.strip()
    return info


def git_revision():
    try:
        rev = subprocess.run(["git", "rev-parse", "--short", "HEAD"], capture_output=True, text=True,
                             check=True).stdout.strip()
        dirty = subprocess.run(["git", "status", "--porcelain", "--", "src", "include", "CMakeLists.txt"],
                               capture_output=True, text=True, check=True).stdout.strip()
        return rev + (" with uncommitted changes to the library" if dirty else "")
    except (OSError, subprocess.CalledProcessError):
        return "unknown"


def fmt_rate(x):
    return "-" if x is None else f"{x / 1e6:,.0f}"


def fmt_ratio(x):
    return "-" if x is None else f"{x:.2f}"


# Assumed where the machine reports no sensible last-level cache (some
# virtual machines report none, or a figure of hundreds of MiB).
ASSUMED_LLC = 32 << 20


def last_level_cache(context):
    """The last-level cache in bytes, and whether the machine reported it."""
    sizes = [c.get("size", 0) for c in context.get("caches", [])]
    if sizes and 0 < max(sizes) <= (256 << 20):
        return max(sizes), True
    try:
        out = subprocess.run(["getconf", "LEVEL3_CACHE_SIZE"], capture_output=True, text=True, check=True)
        size = int(out.stdout.strip() or 0)
        if 0 < size <= (256 << 20):
            return size, True
    except (OSError, ValueError, subprocess.CalledProcessError):
        pass
    return ASSUMED_LLC, False


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("json", nargs="+")
    ap.add_argument("--out", default="BENCHMARKS.md")
    ap.add_argument("--command", default="scripts/bench.sh")
    ap.add_argument("--run-stats", help="key=value lines written by scripts/bench.sh")
    ap.add_argument("--loader-level", help="the level the loader picks here (default: that of the first run)")
    args = ap.parse_args()

    # The runs of each level; the loader's level first, then the others from
    # the widest down.
    by_level = OrderedDict()
    for path in args.json:
        with open(path) as f:
            by_level.setdefault(json.load(f)["context"].get("pxl_isa", "?"), []).append(path)
    loader = args.loader_level if args.loader_level in by_level else next(iter(by_level))
    rank = {"x86-64-v4": 0, "x86-64-v3": 1, "x86-64-v2": 2, "baseline": 3}
    level_names = [loader] + sorted((l for l in by_level if l != loader), key=lambda l: rank.get(l, 9))
    levels = OrderedDict((l, Results(by_level[l])) for l in level_names)
    res = levels[loader]
    context = res.context
    stats = {}
    if args.run_stats and os.path.exists(args.run_stats):
        with open(args.run_stats) as f:
            for line in f:
                if "=" in line:
                    k, v = line.strip().split("=", 1)
                    stats[k] = v
    cpu = lscpu()
    llc, llc_known = last_level_cache(context)
    llc_text = f"{llc // (1 << 20)} MiB" + ("" if llc_known else " (assumed: the machine reports no sensible figure)")

    # Reference bandwidth: memcpy's per run and thread count, for the fractions.
    copy_name = {}
    ref_rows = []
    rate_ranges = []
    for name in res.names:
        e = res.any_entry(name)
        m = e["meta"]
        if m.get("impl") != "ref":
            continue
        t = int(m["threads"])
        if m["kind"] == "memcpy":
            copy_name[t] = name
        ref_rows.append((m["kind"], t, res.rate(name, "bytes")))
        rate_ranges.append(rel_range([x["bytes"] for x in res.entries(name) if x]))

    # Library and OpenCV rows, paired by (family, member, variant, size, threads).
    families = OrderedDict()
    pairs = OrderedDict()
    errors = []
    for name in res.names:
        e = res.any_entry(name)
        m = e["meta"]
        if m.get("impl") not in ("lib", "cv"):
            continue
        if "error" in e:
            errors.append((name, e["error"]))
        key = (m["family"], m["member"], m["variant"], int(m["w"]), int(m["h"]), int(m["threads"]))
        pairs.setdefault(key, {"meta": m})[m["impl"]] = name
        keys = families.setdefault(m["family"], [])
        if key not in keys:
            keys.append(key)

    def ratio_of(r, lib, cv):
        """Median over the runs of r of the ratio within each run, the ratios, and the noise mark."""
        lib_runs = r.entries(lib) if lib else [None] * r.nruns
        cv_runs = r.entries(cv) if cv else [None] * r.nruns
        ratios = [a["items"] / b["items"] for a, b in zip(lib_runs, cv_runs)
                  if a and b and a.get("items") and b.get("items")]
        if len(ratios) > 1:
            noisy = rel_range(ratios) > NOISY_RATIO_RANGE
        else:
            noisy = any(x is not None and x.get("cv", 0) > NOISY_CV for x in lib_runs + cv_runs)
        return median(ratios), ratios, noisy

    notes = OrderedDict()
    slower = []
    slower_at = OrderedDict((l, 0) for l in level_names[1:])
    noisy_rows = 0
    above_copy = 0
    ratio_ranges = []
    lines = []
    level_heads = "".join(f" | `{l}` Mpixel/s | `{l}` / OpenCV" for l in level_names)
    for fam, keys in families.items():
        lines.append(f"### {fam}\n")
        lines.append(f"| Member | Arguments | Size | Threads | OpenCV Mpixel/s{level_heads} "
                     "| Fraction of copy bandwidth | Same output |")
        lines.append("|---|---|---|---|---:" + "|---:|---:" * len(level_names) + "|---:|---|")
        for key in keys:
            _, member, variant, w, h, t = key
            p = pairs[key]
            lib, cv = p.get("lib"), p.get("cv")
            cv_rate = res.rate(cv, "items") if cv else None
            cells = []
            for l, r in levels.items():
                lib_rate = r.rate(lib, "items") if lib else None
                for n in (lib, cv):
                    if n:
                        rate_ranges.append(rel_range([x["items"] for x in r.entries(n) if x]))
                ratio, ratios, noisy = ratio_of(r, lib, cv)
                if len(ratios) > 1:
                    ratio_ranges.append(rel_range(ratios))
                if l == loader:
                    noisy_rows += noisy
                    if ratio is not None and ratio < 1:
                        slower.append((member, variant, w, h, t, ratio, sum(x < 1 for x in ratios), len(ratios)))
                elif ratio is not None and ratio < 1:
                    slower_at[l] += 1
                cells.append(f"{fmt_rate(lib_rate)} | {fmt_ratio(ratio)}{' *' if noisy else ''}")

            frac = "-"
            bytes_per_call = int(p["meta"]["bytes"])
            if lib and llc and bytes_per_call >= llc and t in copy_name:
                fr = [a["bytes"] / c["bytes"] for a, c in zip(res.entries(lib), res.entries(copy_name[t]))
                      if a and c and a.get("bytes") and c.get("bytes")]
                if fr:
                    frac = f"{median(fr):.2f}"
                    above_copy += median(fr) > 1

            same = res.any_entry(lib or cv)["meta"].get("same", "n/a")
            lines.append(f"| `{member}` | {variant or '-'} | {w}x{h} | {t} | {fmt_rate(cv_rate)} | "
                         f"{' | '.join(cells)} | {frac} | {same} |")
            if p["meta"].get("cv"):
                notes[(member, variant)] = p["meta"]["cv"]
        lines.append("")

    out = []
    out.append("# Benchmarks\n")
    out.append("Throughput of the library's members against OpenCV on the same images, and against the "
               "machine's memory bandwidth measured in the same run. This file is generated; do not edit "
               "it by hand.\n")
    out.append(f"- Regenerate with: `{args.command}`")
    date = context.get("date", datetime.datetime.now().isoformat())
    out.append(f"- Date of the run: {date}")
    model = cpu.get("Model name", "unknown")
    cores = cpu.get("Core(s) per socket", "?")
    sockets = cpu.get("Socket(s)", "1")
    cpus = cpu.get("CPU(s)", str(context.get("num_cpus", "?")))
    out.append(f"- Machine: {model}, {cpus} logical CPUs ({cores} cores per socket, {sockets} socket(s)), "
               f"{context.get('mhz_per_cpu', '?')} MHz; last-level cache {llc_text}; a virtual "
               "machine")
    others = ", ".join(f"`{l}`" for l in level_names[1:])
    out.append(f"- Library: {context.get('pxl_version', '?')}, revision {git_revision()}. The dynamic loader "
               f"picks the file of instruction level `{loader}` on this machine; its columns come first"
               + (f", then those of {others} (the same suite, that level's file chosen with the loader's "
                  "`--glibc-hwcaps-mask`)." if others else "."))
    out.append(f"- OpenCV: {context.get('opencv_version', '?')}, baseline {context.get('opencv_baseline', '?')}, "
               f"code paths picked at run time among {context.get('opencv_dispatch', '?')}; threads: "
               f"{context.get('opencv_parallel', '?')}")
    reps = next((e.get("reps", 1) for n in res.names for e in res.entries(n) if e), 1)
    min_time = stats.get("min_time", "?")
    if len(levels) > 1:
        out.append(f"- Runs of the whole suite: " + ", ".join(f"{r.nruns} at `{l}`" for l, r in levels.items())
                   + "; they took turns, level after level.")
    if res.nruns > 1:
        out.append(f"- {res.nruns} runs of the whole suite at `{loader}`, each benchmark the median of {reps} repetitions of "
                   f"at least {min_time} s; the library and OpenCV on the same case run back to back. Rates "
                   "are the median over the runs; ratios are taken within each run, then their median. "
                   "Time is wall-clock time.")
    else:
        out.append(f"- Each benchmark is the median of {reps} repetitions of at least {min_time} s; the "
                   "library and OpenCV on the same case run back to back. Time is wall-clock time.")
    out.append("")

    out.append("## How to read the tables\n")
    out.append("- Mpixel/s is millions of pixels per second (one sample per pixel in these members).")
    out.append("- Library / OpenCV above 1 means the library is faster. Each level's ratio is taken within "
               "its own runs, against OpenCV measured back to back in the same run; the OpenCV column shows "
               f"the rate of the runs at `{loader}`.")
    out.append("- Bytes moved per call are every source image plus the destination, each counted once. The "
               "fraction of copy bandwidth is the member's bytes moved per second divided by those of a "
               "64 MiB memcpy (source plus destination) with the same number of threads in the same run. It "
               f"is given only where one call moves at least the last-level cache ({llc // (1 << 20)} MiB), "
               "so that the data really come from memory; smaller images run from cache and the fraction "
               "would mean nothing.")
    out.append("- Threads: 1 sets `threads_omp_of_n_pxl = 1` and `cv::setNumThreads(1)`; the larger count "
               "sets both to the number of processors. Whether an OpenCV call actually splits its work is "
               "OpenCV's own choice.")
    out.append("- Same output: whether OpenCV wrote exactly the library's bytes for that case (checked once, "
               "outside the timing).")
    if res.nruns > 1:
        out.append(f"- `*` after a ratio: its value in the separate runs ranged by more than "
                   f"{NOISY_RATIO_RANGE:.0%} of the median shown.")
    else:
        out.append(f"- `*` after a ratio: the repetitions of the library or of OpenCV varied by more than "
                   f"{NOISY_CV:.0%} (coefficient of variation of the time).")
    out.append("")

    out.append("## Noise\n")
    other = stats.get("other_cpu_seconds")
    wall = stats.get("wall_seconds")
    waited = stats.get("quiet_wait_seconds")
    if other is not None and wall is not None:
        o, w = float(other), float(wall)
        share = o / w if w > 0 else 0.0
        stolen = float(stats.get("stolen_cpu_seconds", "0"))
        out.append(f"Other processes used {o:.1f} CPU-seconds during the {w:.0f} s of measuring "
                   f"({share:.0%} of one core on average), and the hypervisor withheld {stolen:.1f} "
                   f"CPU-seconds (steal time); measuring started after waiting {waited or '0'} s for the "
                   "machine to be quiet.")
        if share > 0.05:
            out.append("That is enough to disturb the figures, most of all the rows with all threads, where "
                       "one thread of a parallel region waits for a core that another process holds. Treat "
                       "those rows as lower bounds.")
    else:
        out.append("The load during the run was not recorded (the tool was run without scripts/bench.sh).")
    if res.nruns > 1 and rate_ranges:
        out.append(f"Even so, the same benchmark's rate differed between runs by {median(rate_ranges):.0%} "
                   f"(median over all rows; largest {max(rate_ranges):.0%}): this virtual machine's speed "
                   "drifts. A ratio of two back-to-back measurements drifts less: "
                   f"{median(ratio_ranges or [0]):.0%} (median; largest {max(ratio_ranges or [0]):.0%}). "
                   "Read rates as approximate; the list of members slower than OpenCV says in how many "
                   "runs each one was slower.")
    out.append(f"{noisy_rows} row(s) are marked `*` at `{loader}`.\n")

    out.append("## Memory bandwidth reference\n")
    out.append("| Operation | Threads | GB/s |")
    out.append("|---|---|---:|")
    for kind, t, bw in ref_rows:
        out.append(f"| {kind} 64 MiB | {t} | {bw / 1e9:.1f} |")
    out.append("")

    out.append("## Families\n")
    if above_copy:
        out.append(f"{above_copy} row(s) moved more bytes per second than the C library's memcpy of a large "
                   "block did in the same run, so on this machine memcpy is not the memory's ceiling: read "
                   "the fraction as a comparison with memcpy, not as a share of a hard limit.\n")
    out.extend(lines)

    out.append("### What the OpenCV column computes\n")
    for (member, variant), what in notes.items():
        out.append(f"- `{member}`{' (' + variant + ')' if variant else ''}: {what}")
    out.append("")

    # How much each side gains from more threads, per case and size.
    gains = {"lib": [], "cv": []}
    for key, p in pairs.items():
        fam, member, variant, w, h, t = key
        one = pairs.get((fam, member, variant, w, h, 1))
        if t == 1 or not one:
            continue
        for impl in gains:
            if p.get(impl) and one.get(impl):
                a, b = res.rate(p[impl], "items"), res.rate(one[impl], "items")
                if a and b:
                    gains[impl].append(a / b)
    if gains["lib"] or gains["cv"]:
        out.append("## From one thread to all\n")
        nthreads = context.get("pxl_threads_all", "all")
        for impl, who in (("lib", "The library's"), ("cv", "OpenCV's")):
            g = gains[impl]
            if g:
                out.append(f"- {who} rate with {nthreads} threads divided by its rate with one: "
                           f"{min(g):.2f} to {max(g):.2f} over the rows above.")
        out.append("")

    out.append("## Slower than OpenCV\n")
    for l, k in slower_at.items():
        out.append(f"- At `{l}`: {k} row(s) below 1.")
    if slower_at:
        out.append("")
    if slower:
        out.append(f"At `{loader}`, the level the loader picks here: members whose median ratio is below 1. "
                   "A member slower in only some of the runs is close to a tie on this machine.\n")
        out.append("| Member | Arguments | Size | Threads | Library / OpenCV | Slower in runs |")
        out.append("|---|---|---|---|---:|---|")
        for member, variant, w, h, t, ratio, k, n in slower:
            out.append(f"| `{member}` | {variant or '-'} | {w}x{h} | {t} | {ratio:.2f} | {k} of {n} |")
    else:
        out.append("No member measured here is slower than OpenCV.")
    out.append("")

    if errors:
        out.append("## Benchmarks that did not run\n")
        for name, err in errors:
            out.append(f"- `{name}`: {err}")
        out.append("")

    with open(args.out, "w") as f:
        f.write("\n".join(out).rstrip() + "\n")
    print(f"wrote {args.out}: {sum(len(k) for k in families.values())} rows, {len(slower)} slower than OpenCV",
          file=sys.stderr)


if __name__ == "__main__":
    main()
