#!/usr/bin/env python3
"""Reports where a batch job spends its processor time.

    profile_batch.py [--cli build/release/app/morvantile-cli] [--count N] [--top N] VIDEO

Runs one job of the command line under `perf record` and prints the shares of libraries and of
functions, the hottest first, from its start to its end and in all threads. Debian's libraries have no
symbols for their internal functions: these are identified by the table for unwinding the stack, and
named by their address; hand-written assembly is in no such table. The job's pictures go into a
temporary folder. Needs perf (package linux-perf) and readelf (binutils).
"""

import argparse
import bisect
import collections
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
SAMPLES_A_SECOND = 1999


def output_of(*command):
    return subprocess.run(
        command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True
    ).stdout


class Functions:
    """The functions of a library without symbols."""

    def __init__(self, library):
        self.segments = []
        for line in output_of("readelf", "-lW", library).splitlines():
            fields = line.split()
            if fields[:1] == ["LOAD"]:
                offset, address, _, size = (int(field, 16) for field in fields[1:5])
                self.segments.append((offset, address, size))
        frames = output_of("readelf", "--debug-dump=frames", library)
        found = re.findall(r" FDE .*pc=([0-9a-f]+)\.\.([0-9a-f]+)", frames)
        self.ranges = sorted((int(start, 16), int(end, 16)) for start, end in found)
        self.starts = [start for start, _ in self.ranges]

    def name_at(self, offset):
        """The symbol at an offset in the file."""
        for begin, address, size in self.segments:
            if begin <= offset < begin + size:
                place = offset - begin + address
                index = bisect.bisect_right(self.starts, place) - 1
                if index >= 0 and place < self.ranges[index][1]:
                    start, end = self.ranges[index]
                    return f"function at {start:#x}, {end - start} bytes"
        return "hand-written assembly"


def record(command, data):
    perf = ["perf", "record", "-q", "-e", "cpu-clock", "-F", str(SAMPLES_A_SECOND), "-o", data]
    subprocess.run([*perf, "--", *command], check=True, stdout=subprocess.DEVNULL)


def samples(data):
    """(samples, library's path, symbol or offset) of every place that was hit."""
    report = output_of(
        *("perf", "report", "-i", data, "--no-children", "--stdio", "-v"),
        *("-g", "none", "-t", ";", "--fields", "sample,dso,symbol"),
    )
    for line in report.splitlines():
        if line.startswith("#") or line.count(";") < 2:
            continue
        count, library, symbol = (field.strip() for field in line.split(";", 2))
        yield int(count), library, symbol


def aggregated(data):
    libraries = collections.Counter()
    places = collections.Counter()
    known = {}
    for count, path, symbol in samples(data):
        name = pathlib.Path(path).name
        libraries[name] += count
        # With -v: address in the file, a letter, [.] or [k], and the symbol, or a number if there
        # is none.
        address, place = re.match(r"(\S+)\s+\S\s+\[.\]\s*(.*)", symbol).groups()
        if place.startswith("0x") and path.startswith("/"):
            if path not in known:
                known[path] = Functions(path)
            place = known[path].name_at(int(address, 16))
        places[f"{name}: {place}"] += count
    return libraries, places


def print_shares(title, counter, top):
    total = sum(counter.values())
    print(f"\n| {title} | share |\n| --- | ---: |")
    for name, count in counter.most_common(top):
        print(f"| {name} | {100.0 * count / total:.1f} % |")


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("video", type=pathlib.Path)
    parser.add_argument("--cli", type=pathlib.Path, default=ROOT / "build/release/app/morvantile-cli")
    parser.add_argument("--count", type=int, default=20, help="images to take")
    parser.add_argument("--top", type=int, default=15, help="functions to print")
    options = parser.parse_args()
    for path in (options.video, options.cli):
        if not path.exists():
            sys.exit(f"not there: {path}")
    with tempfile.TemporaryDirectory() as folder:
        pictures = pathlib.Path(folder) / "pictures"
        pictures.mkdir()
        data = str(pathlib.Path(folder) / "perf.data")
        count = str(options.count)
        record([options.cli, "--count", count, options.video, pictures], data)
        made = len(list(pictures.iterdir()))
        libraries, places = aggregated(data)
    print(f"{made} images of {options.video.name}, "
          f"{sum(libraries.values()) / SAMPLES_A_SECOND:.1f} s of processor time")
    print_shares("library", libraries, 8)
    print_shares("place", places, options.top)


if __name__ == "__main__":
    main()
