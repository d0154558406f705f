#!/usr/bin/env python3
"""Compares builds of the program, such as those with Qt 5 and Qt 6, in turn on one desktop.

    compare_builds.py BUILD BUILD… --video FILE [--starts N] [--seconds N] [--steps N]

For each build, the median of its runs; what is alike in all of them takes turns, so that a change of
the machine's speed meets all builds:

- start: from the start of `morvantile` to the window manager's list of windows having its window;
- memory after the start: resident, and proportional (shared pages divided among those that share
  them), two seconds after the window is there;
- while the video plays: processor time in percent of one core, the peak of resident memory;
- steps back: `player_times`, where the build has it (MORVANTILE_BUILD_BENCHMARKS), the milliseconds
  of the first step after a seek and of further ones.

The video should last for longer than `--seconds` and five more. Needs Xvfb, openbox and xprop.
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
sys.path[:0] = [str(ROOT), str(ROOT / "bench")]

# pylint: disable=wrong-import-position
import compare_player  # noqa: E402
from tests.e2e.driver import processes  # noqa: E402
from tests.e2e.driver.desktop import Desktop  # noqa: E402

REST_S = 2.0
SEEKS_MS = (14000, 24000, 34000)


class Windows:
    """The window manager's list of windows, told as it changes."""

    def __init__(self, desktop):
        self._spy = processes.start(
            ["xprop", "-root", "-spy", "_NET_CLIENT_LIST"],
            env={**os.environ, **desktop.environment},
            stdout=subprocess.PIPE,
            text=True,
        )
        self._spy.stdout.readline()

    def wait(self, is_there):
        """Waits for the next change after which there are windows, or none."""
        while True:
            line = self._spy.stdout.readline()
            if not line:
                raise RuntimeError("xprop ended")
            if ("0x" in line) == is_there:
                return

    def close(self):
        processes.stop(self._spy)


class Program:
    """A running `morvantile` with a home of its own. Knows how long its window took."""

    def __init__(self, build, desktop, windows, home, arguments=()):
        environment = {**os.environ, **desktop.environment, "QT_QPA_PLATFORM": "xcb",
                       "HOME": str(home), "XDG_CONFIG_HOME": str(home / "config"),
                       "XDG_DATA_HOME": str(home / "data"), "XDG_CACHE_HOME": str(home / "cache")}
        self._windows = windows
        began = time.perf_counter()
        self._process = processes.start([build / "app/morvantile", *arguments], env=environment,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        windows.wait(is_there=True)
        self.start_ms = (time.perf_counter() - began) * 1000.0

    def cpu(self):
        stat = pathlib.Path(f"/proc/{self._process.pid}/stat").read_text(encoding="ascii")
        user, system = stat.rpartition(")")[2].split()[11:13]
        return (int(user) + int(system)) / os.sysconf("SC_CLK_TCK")

    def memory(self, file, key):
        """In MiB, by a line of a file of the kernel's."""
        text = pathlib.Path(f"/proc/{self._process.pid}/{file}").read_text(encoding="ascii")
        line = next(line for line in text.splitlines() if line.startswith(key + ":"))
        return int(line.split()[1]) / 1024.0

    def end(self):
        self._process.terminate()
        self._windows.wait(is_there=False)
        self._process.wait()


class Figures:
    def __init__(self):
        self.values = {}

    def add(self, what, value):
        self.values.setdefault(what, []).append(value)


def measure_start(program, figures):
    figures.add("start, ms", program.start_ms)
    time.sleep(REST_S)
    figures.add("memory after the start, MiB", program.memory("status", "VmRSS"))
    figures.add("proportional, MiB", program.memory("smaps_rollup", "Pss"))


def measure_playing(program, figures, seconds):
    time.sleep(REST_S)
    before, began = program.cpu(), time.monotonic()
    time.sleep(seconds)
    busy = (program.cpu() - before) / (time.monotonic() - began)
    figures.add("processor while playing, %", busy * 100.0)
    figures.add("peak of memory while playing, MiB", program.memory("status", "VmHWM"))


def measure_steps(build, desktop, figures, video, steps):
    program = build / "bench/player_times"
    if not program.exists():
        return
    environment = {**os.environ, **desktop.environment, "QT_QPA_PLATFORM": "xcb"}
    player = compare_player.Ours(program, False, environment)
    try:
        player.open(video)
        for ms in SEEKS_MS:
            player.rest()
            player.seek(ms)
            for number in range(steps):
                elapsed, _ = player.backward()
                name = "first step back after a seek, ms" if number == 0 else "further steps back, ms"
                figures.add(name, elapsed)
    finally:
        player.close()


def measure(builds, options):
    figures = {build: Figures() for build in builds}
    with Desktop() as desktop, tempfile.TemporaryDirectory() as folder:
        windows = Windows(desktop)
        homes = {build: pathlib.Path(folder) / str(i) for i, build in enumerate(builds)}
        for home in homes.values():
            home.mkdir()

        def run(build, arguments, action):
            program = Program(build, desktop, windows, homes[build], arguments)
            try:
                action(program)
            finally:
                program.end()

        # The first start fills the disk's cache and writes the settings.
        for build in builds:
            run(build, [], lambda program: None)
        for _ in range(options.starts):
            for build in builds:
                run(build, [], lambda program, own=figures[build]: measure_start(program, own))
        for _ in range(options.runs):
            for build in builds:
                own = figures[build]
                run(build, [options.video],
                    lambda program, own=own: measure_playing(program, own, options.seconds))
                measure_steps(build, desktop, own, options.video, options.steps)
        windows.close()
    return [figures[build].values for build in builds]


def arguments():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("builds", nargs="+", type=pathlib.Path, metavar="BUILD")
    parser.add_argument("--video", type=pathlib.Path,
                        default=ROOT / "build/bench-media/1080p_h264_gop250.mp4")
    parser.add_argument("--starts", type=int, default=10)
    parser.add_argument("--runs", type=int, default=3, help="of what plays and steps")
    parser.add_argument("--seconds", type=float, default=8.0, help="of playing")
    parser.add_argument("--steps", type=int, default=20, help="back from each of three places")
    return parser.parse_args()


def main():
    options = arguments()
    builds = [build.absolute() for build in options.builds]
    missing = [str(path) for path in [options.video, *(b / "app/morvantile" for b in builds)]
               if not path.exists()]
    if missing:
        sys.exit("not there: " + ", ".join(missing))
    options.video = options.video.absolute()
    values = measure(builds, options)
    print("| what, median | " + " | ".join(build.name for build in builds) + " |")
    print("| --- |" + " ---: |" * len(builds))
    for what in values[0]:
        cells = [f"{statistics.median(own[what]):.1f}" if what in own else "" for own in values]
        print(f"| {what} | " + " | ".join(cells) + " |")


if __name__ == "__main__":
    main()
