#!/usr/bin/env python3
"""Measures how many videos `stills` processes, for the table in docs/clusters.md.

    videos_per_hour.py [--build build/release] [--media build/bench-media] [--videos N] [--runs N]

Each run takes ten pictures, evenly spread and in full size, from N videos in one call: links to one of
60 seconds, which is in the page cache. The videos take turns, so that other load on the machine affects
all of them. The output has the medians over the runs. The last two columns are computed from the
processor time, on which other load has the least effect.
"""

import argparse
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
PICTURES = 10
CASES = {
    "1080p H.264, GOP 250": "1080p_h264_gop250.mp4",
    "1080p H.264, GOP 30": "1080p_h264_gop30.mp4",
    "720p MPEG-2 in a TS": "720p_mpeg2.ts",
}


class Cost:
    """The cost of one video of a run."""

    def __init__(self, wall, processor, read, memory, written):
        self.wall = wall
        self.processor = processor
        self.read = read
        self.memory = memory
        self.written = written


def read_by_children():
    """Number of bytes that finished child processes have requested to read."""
    for line in pathlib.Path("/proc/self/io").read_text().splitlines():
        if line.startswith("rchar:"):
            return int(line.split()[1])
    return 0


def measure(stills, video, count):
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        videos = [folder / f"{i:03}{video.suffix}" for i in range(count)]
        for link in videos:
            link.symlink_to(video)
        read = read_by_children()
        start = time.monotonic()
        process = subprocess.Popen([stills, "--quiet", "-o", folder / "out", *videos])
        _, status, usage = os.wait4(process.pid, 0)
        wall = time.monotonic() - start
        pictures = list((folder / "out").iterdir())
        if status != 0 or len(pictures) != count * PICTURES:
            sys.exit(f"{video}: status {status}, {len(pictures)} pictures")
        return Cost(wall / count, (usage.ru_utime + usage.ru_stime) / count,
                    (read_by_children() - read) / count, usage.ru_maxrss * 1024,
                    sum(path.stat().st_size for path in pictures) / count)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/release")
    parser.add_argument("--media", type=pathlib.Path, default=ROOT / "build/bench-media")
    parser.add_argument("--videos", type=int, default=4)
    parser.add_argument("--runs", type=int, default=5)
    arguments = parser.parse_args()

    stills = (arguments.build / "stills/stills").resolve()
    costs = {name: [] for name in CASES}
    for _ in range(arguments.runs):
        for name, file in CASES.items():
            costs[name].append(measure(stills, (arguments.media / file).resolve(), arguments.videos))

    print("| ten pictures of 60 s of | wall | processor | read | written | memory "
          "| videos per hour and core | 100,000 videos |")
    print("| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: |")
    for name, runs in costs.items():
        def median(what):
            return statistics.median(getattr(run, what) for run in runs)
        print(f"| {name} | {median('wall'):.2f} s | {median('processor'):.2f} s "
              f"| {median('read') / 1e6:.0f} MB | {median('written') / 1e6:.1f} MB "
              f"| {median('memory') / 1e6:.0f} MB | {3600 / median('processor'):,.0f} "
              f"| {100000 * median('processor') / 3600:.0f} core hours |")


if __name__ == "__main__":
    main()
