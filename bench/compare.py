#!/usr/bin/env python3
"""Compares taking frames with the programs ffmpeg and ffmpegthumbnailer.

    compare.py [--build build/release] [--media build/bench-media] [--positions N] [--width W]
               [--video NAME]...

All take the same positions and write a JPEG file of the same width, in turn, so that other load on the
machine affects all of them:

- ours: one `extract_frames` keeps the video open in one FrameGrabber; it measures the extraction
  alone, and the whole way to the file (conversion, INTER_AREA, JPEG with quality 90);
- ffmpeg: one process per position, `-ss T -i VIDEO -frames:v 1`, from its start to its end
  (in a transport stream `-ss T-0.8 -i VIDEO -ss 0.8`);
- ffmpegthumbnailer: one process for each position, `-t HH:MM:SS`. It goes by whole seconds and
  takes a key frame near them, so it does less than the others; its figures are for orientation.

The positions lie between two frames, far behind a key frame: ours and ffmpeg take the first frame
behind the position. That it is the same one is checked for the first three, by its time and by its
picture: ffmpeg's must be more like ours than those of the frames before and after. Each program has
taken a position before the clock runs, so that the video is in the page cache and our grabber
open.
"""

import argparse
import pathlib
import random
import statistics
import subprocess
import sys
import tempfile
import time

SEED = 20231
FRAME_MS = 40
ROOT = pathlib.Path(__file__).resolve().parent.parent


class Video:
    """A benchmark video: the distance of its key frames, and the requested positions."""

    def __init__(self, name, frames, gop, positions, behind, goal=None, precision=None, lead=0):
        self.name = name
        self.frames = frames
        self.gop = gop
        self.positions = positions
        self.behind = behind  # least distance of a target behind its key frame, in frames
        self.goal = goal  # the ratio to ffmpeg that we aim at
        self.precision = precision  # in ms; None: the grabber's own, 500 ms
        self.lead = lead  # by how many ms ffmpeg has to seek further back

    def choose(self, count):
        """Frame numbers to take, the same ones in every run."""
        numbers = random.Random(SEED)
        last = self.frames // self.gop - 1
        return [
            numbers.randint(0, last) * self.gop + numbers.randint(self.behind, self.gop - 2)
            for _ in range(count)
        ]


# The grabber takes a key frame that is nearer to the position than its precision, as intended for
# pictures at regular intervals. The positions below are outside that range; in the transport stream
# key frames are too close to each other for that. There, ffmpeg's own seek may land behind the
# position, so it is made to land earlier and to decode up to it.
VIDEOS = [
    Video("1080p_h264_gop250.mp4", 1500, 250, 24, behind=50, goal=0.7),
    Video("1080p_h264_gop30.mp4", 1500, 30, 24, behind=15),
    Video("2160p_hevc_gop120.mp4", 500, 120, 12, behind=30, goal=0.95),
    Video("720p_mpeg2.ts", 1500, 15, 24, behind=7, precision=FRAME_MS, lead=800),
]


class Ours:
    """extract_frames, waiting for positions."""

    def __init__(self, program, video, path, folder, width):
        command = [str(program), str(path), str(folder)]
        if video.precision is not None:
            command += ["--precision", str(video.precision)]
        if width == 0:
            command += ["--video-size"]
        self.process = subprocess.Popen(
            command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )

    def take(self, position):
        """The frame's time, the milliseconds to the frame and to the file, and the file."""
        self.process.stdin.write(f"{position}\n")
        self.process.stdin.flush()
        line = self.process.stdout.readline()
        if not line:
            raise RuntimeError("extract_frames ended early")
        _, time_ms, extraction, to_file, path = line.rstrip("\n").split("\t")
        return float(time_ms), float(extraction), float(to_file), path

    def close(self):
        self.process.stdin.close()
        if self.process.wait() != 0:
            raise RuntimeError("extract_frames failed")


def timed(command):
    """Run time of a program in milliseconds."""
    start = time.perf_counter()
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    return (time.perf_counter() - start) * 1000.0


def ffmpeg_command(path, position, width, lead, output):
    scale = ["-vf", f"scale={width}:-2"] if width else []
    rest = ["-ss", f"{lead / 1000.0:.3f}"] if lead else []
    return (
        ["ffmpeg", "-nostdin", "-hide_banner", "-loglevel", "error", "-y"]
        + ["-ss", f"{(position - lead) / 1000.0:.3f}", "-i", str(path), *rest, "-frames:v", "1"]
        + scale
        + ["-q:v", "2", str(output)]
    )


def thumbnailer_command(path, position, width, output):
    seconds = position // 1000
    clock = f"{seconds // 3600:02}:{seconds // 60 % 60:02}:{seconds % 60:02}"
    return (
        ["ffmpegthumbnailer", "-i", str(path), "-o", str(output)]
        + ["-t", clock, "-s", str(width), "-q", "9"]
    )


def grey(path):
    """A picture's grey levels, small enough for a quick comparison."""
    command = ["ffmpeg", "-nostdin", "-loglevel", "error", "-i", str(path)]
    command += ["-vf", "scale=320:-2", "-f", "rawvideo", "-pix_fmt", "gray", "-"]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def difference(a, b):
    if len(a) != len(b):
        raise RuntimeError("the pictures differ in size")
    return sum(abs(x - y) for x, y in zip(a, b)) / len(a)


def check_same_frame(video, path, frame, ours, width, folder):
    """Raises unless ffmpeg takes exactly the same frame as ours."""
    position = position_of(frame)
    time_ms, _, _, picture = ours.take(position)
    if not 0 <= time_ms - position < FRAME_MS:
        raise RuntimeError(f"at {position} ms ours took the frame at {time_ms} ms")
    own = grey(picture)
    differences = {}
    for step in (-1, 0, 1):
        output = folder / f"check{step}.jpeg"
        timed(ffmpeg_command(path, position + step * FRAME_MS, width, video.lead, output))
        differences[step] = difference(own, grey(output))
    if min(differences, key=differences.get) != 0:
        raise RuntimeError(f"at {position} ms ffmpeg takes another frame: {differences}")


def position_of(frame):
    """Half a frame before the frame, in milliseconds. (Sound may start earlier than the pictures:
    that moves them, but by less than half a frame.)"""
    return frame * FRAME_MS - FRAME_MS // 2


def compare(video, path, program, positions, width):
    """Runs the three in turn and prints a line of the table for each of our two figures."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        frames = video.choose(positions or video.positions)
        ours = Ours(program, video, path, folder, width)
        output = folder / "other.jpeg"
        for frame in frames[:3]:
            check_same_frame(video, path, frame, ours, width, folder)
        timed(thumbnailer_command(path, position_of(frames[0]), width, output))

        figures = {"extraction": [], "to file": [], "ffmpeg": [], "thumbnailer": []}

        def run_ours(position):
            _, extraction, to_file, _ = ours.take(position)
            figures["extraction"].append(extraction)
            figures["to file"].append(to_file)

        def run_ffmpeg(position):
            command = ffmpeg_command(path, position, width, video.lead, output)
            figures["ffmpeg"].append(timed(command))

        def run_thumbnailer(position):
            command = thumbnailer_command(path, position, width, output)
            figures["thumbnailer"].append(timed(command))

        turns = [run_ours, run_ffmpeg, run_thumbnailer]
        for number, frame in enumerate(frames):
            first = number % len(turns)
            for run in turns[first:] + turns[:first]:
                run(position_of(frame))
        ours.close()
    print_figures(video, len(frames), figures)


def print_figures(video, count, figures):
    median = {name: statistics.median(values) for name, values in figures.items()}
    goal = f"{video.goal:.2f}" if video.goal else "-"
    cells = [pathlib.Path(video.name).stem, str(count)]
    cells += [f"{median[name]:.0f}" for name in ("extraction", "to file", "ffmpeg", "thumbnailer")]
    cells += [f"{median[name] / median['ffmpeg']:.2f}" for name in ("extraction", "to file")]
    print("| " + " | ".join(cells + [goal]) + " |", flush=True)


def arguments():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/release")
    parser.add_argument("--media", type=pathlib.Path, default=ROOT / "build/bench-media")
    parser.add_argument("--positions", type=int, help="positions for each video")
    parser.add_argument(
        "--width", type=int, choices=(640, 0), default=640, help="0 keeps the video's own"
    )
    parser.add_argument("--video", action="append", help="only this one; may be repeated")
    return parser.parse_args()


def main():
    options = arguments()
    program = options.build / "bench/extract_frames"
    wanted = [v for v in VIDEOS if not options.video or v.name in options.video]
    missing = [p for p in [program, *(options.media / v.name for v in wanted)] if not p.exists()]
    if missing or not wanted:
        sys.exit("not there: " + ", ".join(map(str, missing or options.video)))
    print("Medians in milliseconds; ratios to ffmpeg's.\n")
    print("| video | positions | extraction | to file | ffmpeg | ffmpegthumbnailer "
          "| extraction / ffmpeg | to file / ffmpeg | goal for extraction |")
    print("| --- " + "| ---: " * 8 + "|")
    for video in wanted:
        path = options.media / video.name
        compare(video, path, program, options.positions, options.width)


if __name__ == "__main__":
    main()
