#!/usr/bin/env python3
"""Compares taking series of pictures with the programs ffmpeg and mpv, and with the library FFMS2.

    compare_series.py [--build build/release] [--media build/bench-media] [--runs N] [--case NAME]...
                      [--chroma full|halved]

All write the same pictures as JPEG files, in turn, so that other load on the machine affects all of
them; the video is in the page cache. Each time is that of the whole program, from its start to its end.
The output has the medians, and the ratio to the fastest of the others.

Our pictures have full chroma, and so have those of the others by default. `--chroma halved` leaves the
others at their own default, which takes them less time; it does not change ours.

- ours: `stills`, with its defaults except for the positions;
- ffmpeg, one process for all pictures: it decodes the whole video with all cores, and `select` picks
  the frames;
- ffmpeg, one process per picture: `-ss T -i VIDEO -frames:v 1`, which seeks to the key frame before the
  position; two of these at a time, each with one decoding thread;
- mpv, one process for all pictures of a dense series, or one a picture: `--start=T --frames=1`;
- FFMS2, `ffms_series`: makes its index of the video, then takes each frame by its number.

A case leaves out what would take many times as long, and mpv where it takes other frames (TS). That
all have taken the same number of pictures is checked, and for those with positions, that each of ours
is more like the others' than its neighbours in the series are.

Where the video has an index, `decode_alone` decodes the same frames by as many single-threaded decoders
and does nothing with them: the last two columns are our processor time and peak of memory over its.
"""

import argparse
import contextlib
import os
import pathlib
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

from PIL import Image, ImageChops, ImageStat

ROOT = pathlib.Path(__file__).resolve().parent.parent
FRAME_MS = 40
LANES = os.cpu_count() or 1


class Case:
    """A series: its video, the positions in milliseconds, the options of `stills`, and our goal."""

    def __init__(self, name, video, options, positions, goal, peers):
        self.name = name
        self.video = video
        self.options = options
        self.positions = positions
        self.goal = goal
        self.peers = peers

    def has_index(self):
        return self.video in (FILM, LARGE) and len(self.positions) > 1


def every(ms, length):
    return list(range(0, length, ms))


def spread(count, length):
    return [int(length / count * (i + 0.5)) for i in range(count)]


ALL = ("ffmpeg select", "ffmpeg each", "ffms2")
FILM = "1080p_h264_gop250.mp4"
LARGE = "2160p_hevc_gop120.mp4"
CASES = [
    Case("1080p, every 5 s", FILM, ["--every", "5s"], every(5000, 60000), 0.60, (*ALL, "mpv")),
    Case("1080p, every 500 ms", FILM, ["--every", "500ms"], every(500, 60000), 0.60,
         ("ffmpeg select", "ffms2")),
    Case("1080p, ten spread", FILM, [], spread(10, 60000), 0.60, (*ALL, "mpv")),
    Case("1080p, one", FILM, ["--at", "29.5"], [29500], 0.80, (*ALL, "mpv")),
    Case("2160p HEVC, ten spread", LARGE, [], spread(10, 20000), 0.65, (*ALL, "mpv")),
    Case("2160p HEVC, one", LARGE, ["--at", "13.5"], [13500], 0.90, (*ALL, "mpv")),
    Case("720p TS, every 5 s", "720p_mpeg2.ts", ["--every", "5s", "--skip-end", "500ms"],
         every(5000, 60000), 0.55, ALL),
    Case("1080p, key frames", "1080p_h264_gop30.mp4", ["--keyframes"], None, 0.75,
         ("ffmpeg keys",)),
    Case("200 clips, one each", None, ["--count", "1"], [2500], 0.35, ("ffmpeg clips",)),
]


def run(command, **options):
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, **options)


def run_by_twos(commands):
    """Runs all of them, as many at a time as there are cores."""
    waiting = list(commands)
    running = []
    while waiting or running:
        while waiting and len(running) < LANES:
            running.append(subprocess.Popen(waiting.pop(0), stdin=subprocess.DEVNULL,
                                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        first = running.pop(0)
        if first.wait() != 0:
            raise RuntimeError(f"failed: {first.args}")


class Peers:
    """The other programs. Each function writes the pictures of a case into a folder."""

    FFMPEG = ["ffmpeg", "-nostdin", "-loglevel", "error", "-y"]

    def __init__(self, ffms, chroma):
        self.ffms = [ffms, chroma]
        self.jpeg = ["-q:v", "3"]
        self.mpv_filter = []
        if chroma == "full":
            self.jpeg += ["-pix_fmt", "yuvj444p"]
            self.mpv_filter = ["--vf=format=yuv444p"]

    def select(self, videos, positions, folder):
        """One process: the first frame at or after each position."""
        wanted = sorted({-(-position // FRAME_MS) for position in positions})
        # Its parser does not accept long sums.
        terms = [f"eq(n,{number})" for number in wanted]
        chosen = "+".join(f"({'+'.join(terms[i : i + 40])})" for i in range(0, len(terms), 40))
        run([*self.FFMPEG, "-i", videos[0], "-an", "-vf", f"select='{chosen}'", "-vsync", "0", *self.jpeg,
             f"{folder}/%05d.jpg"])

    def keys(self, videos, positions, folder):
        run([*self.FFMPEG, "-skip_frame", "nokey", "-i", videos[0], "-an", "-vsync", "0", *self.jpeg,
             f"{folder}/%05d.jpg"])

    def each(self, videos, positions, folder):
        """In a transport stream ffmpeg's own seek may land behind the position."""
        commands = []
        threads = ["-threads", "1"] if len(positions) > 1 else []
        for number, position in enumerate(positions):
            lead = min(position, 800) if videos[0].suffix == ".ts" else 0
            near = ["-ss", f"{lead / 1000}"] if lead else []
            commands.append([*self.FFMPEG, *threads, "-ss", f"{(position - lead) / 1000}", "-i", videos[0],
                             *near, "-an", "-frames:v", "1", *self.jpeg, f"{folder}/{number:05}.jpg"])
        run_by_twos(commands)

    def clips(self, videos, positions, folder):
        """One process per clip, two at a time."""
        run_by_twos([*self.FFMPEG, "-threads", "1", "-ss", f"{positions[0] / 1000}", "-i", video, "-an",
                     "-frames:v", "1", *self.jpeg, f"{folder}/{video.stem}.jpg"] for video in videos)

    def mpv(self, videos, positions, folder):
        run_by_twos(["mpv", "--no-config", "--no-audio", "--really-quiet", "--vo=image",
                     "--vo-image-format=jpg", f"--vo-image-outdir={folder}/{number:05}", "--frames=1",
                     *self.mpv_filter,
                     "--hr-seek=yes", f"--start={position / 1000}", videos[0]]
                    for number, position in enumerate(positions))

    def ffms2(self, videos, positions, folder):
        numbers = [str(-(-position // FRAME_MS)) for position in positions]
        run([*self.ffms, videos[0], folder, *numbers])

    def named(self, name):
        return {"ffmpeg select": self.select, "ffmpeg each": self.each, "ffmpeg keys": self.keys,
                "ffmpeg clips": self.clips, "mpv": self.mpv, "ffms2": self.ffms2}[name]


class Measure:
    """Wall and processor time in seconds, and the peak of memory of the largest process in MiB."""

    def __init__(self):
        self.wall = []
        self.cpu = []
        self.memory = []

    def take(self, action):
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        start = time.perf_counter()
        action()
        self.wall.append(time.perf_counter() - start)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        self.cpu.append(after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)

    def take_one(self, command):
        """For one process, of which the memory is known."""
        start = time.perf_counter()
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        self.wall.append(time.perf_counter() - start)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            raise RuntimeError(f"failed: {command}")
        self.cpu.append(usage.ru_utime + usage.ru_stime)
        self.memory.append(usage.ru_maxrss / 1024)


def pictures_in(folder):
    return sorted(path for path in pathlib.Path(folder).rglob("*.jp*g"))


def grey(path):
    """Small enough to hide differences between the encoders."""
    return Image.open(path).convert("L").resize((160, 90))


def distance(one, other):
    return ImageStat.Stat(ImageChops.difference(one, other)).mean[0]


def check_same(case, name, ours, theirs):
    if len(ours) != len(theirs):
        raise RuntimeError(f"{case.name}: {name} took {len(theirs)} pictures, not {len(ours)}")
    if case.positions is None or len(ours) > 20:
        return
    own, other = [grey(path) for path in ours], [grey(path) for path in theirs]
    for number, picture in enumerate(own):
        distances = [distance(picture, candidate) for candidate in other]
        if distances.index(min(distances)) != number:
            raise RuntimeError(f"{case.name}: picture {number} of {name} is another frame")


def make_clips(source, folder, count):
    """Clips of five seconds of 1080p video, all the same file under different names."""
    folder.mkdir(parents=True, exist_ok=True)
    first = folder / "clip-000.mp4"
    if not first.exists():
        run([*Peers.FFMPEG, "-i", source, "-t", "5", "-c", "copy", "-an", first])
    clips = [first]
    for number in range(1, count):
        clips.append(folder / f"clip-{number:03}.mp4")
        with contextlib.suppress(FileExistsError):
            os.link(first, clips[-1])
    return clips


def measure(case, programs, peers, media, runs):
    videos = [media / case.video] if case.video else make_clips(
        media / "1080p_h264_gop30.mp4", media / "clips", 200)
    measures = {name: Measure() for name in ("ours", *case.peers)}
    if case.has_index():
        measures["alone"] = Measure()
    # Loads the videos into the page cache, but not through this process: the peak memory of a child
    # starts with the memory of its parent.
    run(["cat", *{video.stat().st_ino: video for video in videos}.values()])
    for number in range(runs):
        order = list(measures) if number % 2 == 0 else list(measures)[::-1]
        taken = {}
        with tempfile.TemporaryDirectory() as work:
            for name in order:
                folder = pathlib.Path(work) / name.replace(" ", "-")
                folder.mkdir()
                if name == "ours":
                    measures[name].take_one([programs / "stills/stills", *videos, "-o", folder,
                                             "--quiet", *case.options])
                elif name == "alone":
                    measures[name].take_one([programs / "bench/decode_alone", *videos, str(LANES),
                                             *map(str, case.positions)])
                else:
                    action = peers.named(name)
                    measures[name].take(lambda: action(videos, case.positions, folder))
                taken[name] = pictures_in(folder)
            for name in case.peers:
                check_same(case, name, taken["ours"], taken[name])
        print(f"{case.name}: run {number + 1} of {runs}", file=sys.stderr, flush=True)
    return measures


def beside_decoding(measures):
    if "alone" not in measures:
        return "|  |  |"
    ours, alone = measures["ours"], measures["alone"]
    cpu = statistics.median(ours.cpu) / statistics.median(alone.cpu)
    memory = statistics.median(ours.memory) / statistics.median(alone.memory)
    return f"| {cpu:.2f} | {memory:.2f} |"


def report(case, measures):
    walls = {name: statistics.median(measure.wall) for name, measure in measures.items()}
    best = min(case.peers, key=walls.get)
    others = ", ".join(f"{name} {walls[name]:.2f}" for name in case.peers)
    ratio = walls["ours"] / walls[best]
    ours = measures["ours"]
    print(f"| {case.name} | {walls['ours']:.2f} | {statistics.median(ours.cpu):.2f} |"
          f" {statistics.median(ours.memory):.0f} | {others} | {ratio:.2f} | {case.goal:.2f} "
          + beside_decoding(measures), flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/release")
    parser.add_argument("--media", type=pathlib.Path, default=ROOT / "build/bench-media")
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--case", action="append")
    parser.add_argument("--chroma", choices=("full", "halved"), default="full")
    arguments = parser.parse_args()
    programs = arguments.build.absolute()
    ffms = programs / "bench/ffms_series"
    if not ffms.exists() or not shutil.which("mpv"):
        sys.exit("It takes the package mpv, and libffms2-dev before the benchmarks are built.")
    print("| series | ours, s | processor | MiB | others, s | ratio | goal | processor / alone |"
          " memory / alone |")
    print("| ------ | ------: | --------: | --: | --------- | ----: | ---: | ----------------: |"
          " -------------: |")
    for case in CASES:
        if arguments.case and case.name not in arguments.case:
            continue
        measures = measure(case, programs, Peers(ffms, arguments.chroma), arguments.media.absolute(),
                           arguments.runs)
        report(case, measures)


if __name__ == "__main__":
    main()
