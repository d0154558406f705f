#!/usr/bin/env python3
"""Turns the results of morvantile-bench into tables of medians and ratios.

    morvantile-bench --benchmark_repetitions=9 --benchmark_enable_random_interleaving=true \\
        --benchmark_out=results.json --benchmark_out_format=json
    ratios.py results.json

The ratios show the overhead over the underlying libraries: each compares a benchmark of the program
with the sum of bare library calls that do the same, measured in the same run.
"""

import json
import statistics
import sys

MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}

# (what, its benchmark, the bare parts, the goal)
RATIOS = []
for size in ("1080p", "2160p"):
    for pixels in ("yuv420p", "nv12", "yuv420p10le"):
        still = f"{size}_{pixels}"
        goal = 1.3 if still == "1080p_yuv420p" else None
        RATIOS.append((f"toImage, {size} {pixels}, to sws_scale with default flags",
                       f"ToImage/{still}", [f"BareSwsScale/{still}"], goal))
        RATIOS.append((f"toImage, {size} {pixels}, to sws_scale with exact flags",
                       f"ToImage/{still}", [f"BareSwsScaleExact/{still}"], goal))
for size in ("1080p", "2160p"):
    for shape, result in (("fit", "640x360"), ("fill", "640x480")):
        road = f"{size}_{shape}"
        for scaler, flags in (("BareSwsScale", "default"), ("BareSwsScaleExact", "exact")):
            RATIOS.append((f"{size} frame to saved {result} JPEG, to the bare parts ({flags} flags)",
                           f"FrameToJpeg/{road}",
                           [f"{scaler}/{size}_yuv420p", f"BareResize/{road}", f"BareJpeg/{road}"],
                           1.6 if size == "1080p" else None))


def medians(path):
    """Median of each benchmark over its repetitions, in milliseconds."""
    with open(path, encoding="utf-8") as file:
        results = json.load(file)["benchmarks"]
    times = {}
    for result in results:
        if result["run_type"] != "iteration":
            continue
        if result.get("error_occurred"):
            sys.exit(f"{result['name']}: {result['error_message']}")
        # The part after the name in "Extract/video/iterations:20/real_time" tells how it ran.
        parts = [p for p in result["run_name"].split("/") if p != "real_time" and ":" not in p]
        # Benchmarks that may use other threads are measured in wall time, as their names tell.
        key = "real_time" if "real_time" in result["run_name"] else "cpu_time"
        milliseconds = result[key] * MILLISECONDS[result["time_unit"]]
        times.setdefault("/".join(parts), []).append(milliseconds)
    return {name: statistics.median(values) for name, values in times.items()}


def digits(milliseconds):
    return f"{milliseconds:.0f}" if milliseconds >= 100 else f"{milliseconds:.3g}"


def print_medians(median):
    print("| benchmark | median, ms |\n| --- | ---: |")
    for name, milliseconds in median.items():
        print(f"| {name} | {digits(milliseconds)} |")


def print_ratios(median):
    print("\n| what | ours, ms | bare, ms | ratio | goal |\n| --- | ---: | ---: | ---: | ---: |")
    for what, own, parts, goal in RATIOS:
        if own not in median or any(part not in median for part in parts):
            continue
        bare = sum(median[part] for part in parts)
        print(f"| {what} | {digits(median[own])} | {digits(bare)} | {median[own] / bare:.2f} "
              f"| {goal or '-'} |")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    median = medians(sys.argv[1])
    print_medians(median)
    print_ratios(median)


if __name__ == "__main__":
    main()
