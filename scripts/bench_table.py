#!/usr/bin/env python3
"""Turn pxl_bench's JSON output into BENCHMARKS.md.

Every number in the document comes from the JSON of one run (and from lscpu
for the machine's name); nothing is typed in by hand. The benchmark labels
carry the metadata as key=value pairs separated by ';' (see bench/harness.h).

Usage: bench_table.py RESULT.json [--out BENCHMARKS.md] [--command CMD]
                      [--run-stats FILE]
"""

import argparse
import datetime
import json
import os
import subprocess
import sys
from collections import OrderedDict

# A row whose repetitions spread more than this (coefficient of variation of
# the time, on either side) is marked as noisy.
NOISY_CV = 0.05


def parse_label(label):
    out = {}
    for part in (label or "").split(";"):
        if "=" in part:
            k, v = part.split("=", 1)
            out[k] = v
    return out


def load_runs(path):
    """Median rate of every benchmark, with its spread and label fields."""
    with open(path) as f:
        doc = json.load(f)
    runs = OrderedDict()
    spread = {}
    for b in doc["benchmarks"]:
        if b.get("error_occurred"):
            runs[b["run_name"]] = {"error": b.get("error_message", "error"), "meta": parse_label(b.get("label"))}
            continue
        kind = b.get("aggregate_name") if b.get("run_type") == "aggregate" else "single"
        name = b.get("run_name", b["name"])
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
    # Registration order, whatever order the runs took.
    runs = OrderedDict(sorted(runs.items(), key=lambda kv: kv[1].get("order", 0)))
    return doc["context"], runs


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


def last_level_cache(context):
    sizes = [c.get("size", 0) for c in context.get("caches", [])]
    return max(sizes) if sizes else 0


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("json")
    ap.add_argument("--out", default="BENCHMARKS.md")
    ap.add_argument("--command", default="scripts/bench.sh")
    ap.add_argument("--run-stats", help="key=value lines written by scripts/bench.sh")
    args = ap.parse_args()

    context, runs = load_runs(args.json)
    stats = {}
    if args.run_stats and os.path.exists(args.run_stats):
        with open(args.run_stats) as f:
            for line in f:
                if "=" in line:
                    k, v = line.strip().split("=", 1)
                    stats[k] = v

    cpu = lscpu()
    llc = last_level_cache(context)

    # Reference bandwidth per thread count.
    copy_bw = {}
    ref_rows = []
    for name, r in runs.items():
        m = r["meta"]
        if m.get("impl") != "ref" or "error" in r:
            continue
        t = int(m["threads"])
        if m["kind"] == "memcpy":
            copy_bw[t] = r["bytes"]
        ref_rows.append((m["kind"], t, r["bytes"], r.get("cv")))

    # Library and OpenCV rows, paired by (family, member, variant, size, threads).
    families = OrderedDict()
    pairs = OrderedDict()
    errors = []
    for name, r in runs.items():
        m = r["meta"]
        if m.get("impl") not in ("lib", "cv"):
            continue
        if "error" in r:
            errors.append((name, r["error"]))
            continue
        key = (m["family"], m["member"], m["variant"], int(m["w"]), int(m["h"]), int(m["threads"]))
        p = pairs.setdefault(key, {"meta": m})
        p[m["impl"]] = r
        keys = families.setdefault(m["family"], [])
        if key not in keys:
            keys.append(key)

    notes = OrderedDict()
    above_copy = 0
    slower = []
    noisy_rows = 0
    lines = []
    for fam, keys in families.items():
        lines.append(f"### {fam}\n")
        lines.append("| Member | Arguments | Size | Threads | Library Mpixel/s | OpenCV Mpixel/s "
                     "| Library / OpenCV | Fraction of copy bandwidth | Same output |")
        lines.append("|---|---|---|---|---:|---:|---:|---:|---|")
        for key in keys:
            _, member, variant, w, h, t = key
            p = pairs[key]
            lib, cv = p.get("lib"), p.get("cv")
            lib_rate = lib["items"] if lib else None
            cv_rate = cv["items"] if cv else None
            ratio = lib_rate / cv_rate if lib_rate and cv_rate else None
            bytes_per_call = int(p["meta"]["bytes"])
            frac = "-"
            if lib and llc and bytes_per_call >= llc and copy_bw.get(t):
                frac = f"{lib['bytes'] / copy_bw[t]:.2f}"
                above_copy += lib["bytes"] > copy_bw[t]
            noisy = any(x is not None and x.get("cv", 0) > NOISY_CV for x in (lib, cv))
            noisy_rows += noisy
            mark = " *" if noisy else ""
            lines.append(f"| `{member}` | {variant or '-'} | {w}x{h} | {t} | {fmt_rate(lib_rate)}{mark} "
                         f"| {fmt_rate(cv_rate)} | {fmt_ratio(ratio)} | {frac} | {p['meta'].get('same', 'n/a')} |")
            if ratio is not None and ratio < 1:
                slower.append((member, variant, w, h, t, ratio))
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
               f"{context.get('mhz_per_cpu', '?')} MHz; last-level cache {llc // (1 << 20)} MiB")
    out.append(f"- Library: {context.get('pxl_version', '?')}, revision {git_revision()}, built for the "
               f"instruction level `{context.get('pxl_isa', '?')}` (set with `PXL_ISA`)")
    out.append(f"- OpenCV: {context.get('opencv_version', '?')}, baseline {context.get('opencv_baseline', '?')}, "
               f"code paths picked at run time among {context.get('opencv_dispatch', '?')}; threads: "
               f"{context.get('opencv_parallel', '?')}")
    reps = next((r.get("reps", 1) for r in runs.values() if "reps" in r), 1)
    min_time = stats.get("min_time", "?")
    out.append(f"- Each figure is the median of {reps} repetitions of at least {min_time} s each; the library "
               "and OpenCV on the same case run back to back; time is wall-clock time")
    out.append("")

    out.append("## How to read the tables\n")
    out.append("- Mpixel/s is millions of pixels per second (one sample per pixel in these members).")
    out.append("- Library / OpenCV above 1 means the library is faster.")
    out.append("- Bytes moved per call are every source image plus the destination, each counted once. "
               "The fraction of copy bandwidth is the member's bytes moved per second divided by those of "
               "a 64 MiB memcpy (source plus destination) with the same number of threads. It is given only "
               f"where one call moves at least the last-level cache ({llc // (1 << 20)} MiB), so that the "
               "data really come from memory; smaller images run from cache and the fraction would mean "
               "nothing. A memcpy may write around the cache while an ordinary store first reads the line "
               "it writes, so a kernel with plain stores tops out below 1.")
    out.append("- Threads: 1 sets `threads_omp_of_n_pxl = 1` and `cv::setNumThreads(1)`; the larger count "
               "sets both to the number of processors. Whether an OpenCV call actually splits its work is "
               "OpenCV's own choice.")
    out.append("- Same output: whether OpenCV wrote exactly the library's bytes for that case (checked once, "
               "outside the timing).")
    out.append(f"- `*` marks a row whose repetitions varied by more than {NOISY_CV:.0%} "
               "(coefficient of variation of the time, library or OpenCV).")
    out.append("")

    out.append("## Noise\n")
    other = stats.get("other_cpu_seconds")
    wall = stats.get("wall_seconds")
    waited = stats.get("quiet_wait_seconds")
    if other is not None and wall is not None:
        o, w = float(other), float(wall)
        share = o / w if w > 0 else 0.0
        out.append(f"Other processes used {o:.1f} CPU-seconds during the {w:.0f} s run "
                   f"({share:.0%} of one core on average); the run started after waiting {waited or '0'} s "
                   "for the machine to be quiet.")
        if share > 0.05:
            out.append("That is enough to disturb the figures, most of all the rows with all threads, where "
                       "one thread of a parallel region waits for a core that another process holds. Treat "
                       "those rows as lower bounds.")
        else:
            out.append("The machine was essentially idle, but it is a shared virtual machine, so differences "
                       "of a few percent are within noise.")
    else:
        out.append("The run's load was not recorded (the tool was run without scripts/bench.sh).")
    out.append(f"{noisy_rows} row(s) are marked `*`.\n")

    out.append("## Memory bandwidth reference\n")
    out.append("| Operation | Threads | GB/s |")
    out.append("|---|---|---:|")
    for kind, t, bw, cv in ref_rows:
        mark = " *" if cv is not None and cv > NOISY_CV else ""
        out.append(f"| {kind} 64 MiB | {t} | {bw / 1e9:.1f}{mark} |")
    out.append("")

    out.append("## Families\n")
    if above_copy:
        out.append(f"{above_copy} row(s) moved more bytes per second than the C library's memcpy of a "
                   "large block did, so on this machine memcpy is not the memory's ceiling: read the "
                   "fraction as a comparison with memcpy, not as a share of a hard limit.\n")
    out.extend(lines)

    out.append("### What the OpenCV column computes\n")
    for (member, variant), what in notes.items():
        out.append(f"- `{member}`{' (' + variant + ')' if variant else ''}: {what}")
    out.append("")

    # How much each side gains from more threads, per case and size.
    gains = {"lib": [], "cv": []}
    for key, p in pairs.items():
        fam, member, variant, w, h, t = key
        if t == 1:
            continue
        one = pairs.get((fam, member, variant, w, h, 1))
        if not one:
            continue
        for impl in gains:
            if p.get(impl) and one.get(impl) and one[impl]["items"]:
                gains[impl].append(p[impl]["items"] / one[impl]["items"])
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
    if slower:
        out.append("| Member | Arguments | Size | Threads | Library / OpenCV | Note |")
        out.append("|---|---|---|---|---:|---|")
        for member, variant, w, h, t, ratio in slower:
            note = "within 5%, about the run-to-run noise" if ratio >= 0.95 else ""
            out.append(f"| `{member}` | {variant or '-'} | {w}x{h} | {t} | {ratio:.2f} | {note} |")
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
