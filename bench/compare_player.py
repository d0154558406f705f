#!/usr/bin/env python3
"""Compares the player with the program mpv: seeking, stepping, starting, playing, and memory.

    compare_player.py [--build build/release] [--media build/bench-media] [--video NAME]...
                      [--positions N] [--steps N] [--opengl]

Both show the same video in windows of the same size on one virtual screen, and get the same requests in
turn. Each waits until the other is idle, so that background work of one does not affect the other. Both
are paused except for measuring playback.

- ours: `player_times`, the library's player with its window, from the command to the answer;
- mpv: through its IPC socket, from the command to `playback-restart`, after a step forward to the new
  `time-pos`. It counts a picture as shown when its output has taken it, ours when it is painted.

For each position: the file is opened anew, so that nothing is cached; then an exact seek to half a frame
before a frame that lies far behind its key frame, and at once after it the steps back; then the same
with another position and steps forward. After each operation the time of the frame on screen must be the one that
was asked for, in both. Then a key is held down: two seconds after a seek steps back follow, each as soon as
the picture before it is there, over several groups of pictures; mpv makes fewer of them. mpv is run
without configuration, without sound, and drawn by the processor.
Memory is the peak of resident memory of the whole process, as the kernel tells it.
"""

import argparse
import contextlib
import json
import os
import pathlib
import random
import socket
import statistics
import subprocess
import sys
import tempfile
import time

SEED = 20231
FRAME_MS = 40
WIDTH, HEIGHT = 960, 540
PATIENCE = 120.0
PLAYING_MS = 4000
ROOT = pathlib.Path(__file__).resolve().parent.parent


class Hold:
    """Holding the key for steps back: the number of positions and steps, and the goals: steps per
    second, and the milliseconds of the longest."""

    # Rest after a seek, in which the player may prepare.
    REST = 2.0
    # mpv takes equally long for each step, so this fraction of them is enough.
    MPV_PART = 25

    def __init__(self, positions, steps, rate_goal, longest_goal):
        self.positions = positions
        self.steps = steps
        self.rate_goal = rate_goal
        self.longest_goal = longest_goal


class Video:
    """A benchmark video: how far its key frames are apart, which of its frames are asked for, and
    what we aim at, as ratios to mpv's figures."""

    def __init__(self, name, frames, gop, positions, steps, behind, seek_goal, memory_goal, hold):
        self.name = name
        self.frames = frames
        self.gop = gop
        self.positions = positions
        self.steps = steps
        self.behind = behind  # least distance of a target behind its key frame, in frames
        self.seek_goal = seek_goal
        self.memory_goal = memory_goal  # in MiB
        self.hold = hold

    def choose(self, count):
        """Frame numbers to seek to, the same ones in every run."""
        numbers = random.Random(SEED)
        last = self.frames // self.gop - 1
        return [
            numbers.randint(0, last) * self.gop + numbers.randint(self.behind, self.gop - 10)
            for _ in range(count)
        ]


VIDEOS = [
    Video("1080p_h264_gop250.mp4", 1500, 250, 10, 20, 40, seek_goal=0.78, memory_goal=400,
          hold=Hold(positions=3, steps=250, rate_goal=30.0, longest_goal=150.0)),
    Video("2160p_hevc_gop120.mp4", 480, 120, 6, 20, 30, seek_goal=0.78, memory_goal=700,
          hold=Hold(positions=3, steps=100, rate_goal=8.0, longest_goal=1500.0)),
]

FIRST_BACK_GOAL = 0.03
BACK_GOAL = 0.15
FIRST_FRAME_GOAL = 0.85
PLAYING_GOAL = 1.0


class Process:
    """A running program, and its statistics from the kernel."""

    def __init__(self, command, environment):
        self.process = subprocess.Popen(
            command,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
            env=environment,
        )

    def cpu(self):
        """Seconds of processor time so far."""
        stat = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text(encoding="ascii")
        user, system = stat.rpartition(")")[2].split()[11:13]
        return (int(user) + int(system)) / os.sysconf("SC_CLK_TCK")

    def peak(self):
        """Peak of resident memory in MiB."""
        status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text(encoding="ascii")
        line = next(line for line in status.splitlines() if line.startswith("VmHWM:"))
        return int(line.split()[1]) / 1024.0

    def rest(self):
        """Waits until the process is idle."""
        deadline = time.monotonic() + PATIENCE
        before = self.cpu()
        while time.monotonic() < deadline:
            time.sleep(0.15)
            now = self.cpu()
            if now - before < 0.015:
                return
            before = now
        raise RuntimeError("a player does not come to rest")

    def close(self):
        self.process.stdin.close()
        self.process.terminate()
        self.process.wait()


class Ours(Process):
    """player_times. Every operation returns the milliseconds and the time of the frame on screen."""

    def __init__(self, program, opengl, environment):
        command = [str(program), "--width", str(WIDTH), "--height", str(HEIGHT)]
        super().__init__(command + (["--opengl"] if opengl else []), environment)

    def ask(self, command):
        start = time.perf_counter()
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        line = self.process.stdout.readline()
        elapsed = (time.perf_counter() - start) * 1000.0
        if not line:
            raise RuntimeError("player_times ended early")
        answer = json.loads(line)
        if "error" in answer:
            raise RuntimeError(f"player_times: {command}: {answer['error']}")
        return elapsed, answer

    def timed(self, command):
        elapsed, answer = self.ask(command)
        return elapsed, answer["position"]

    def open(self, path):
        return self.timed(f"open {path}")[0]

    def stop(self):
        self.ask("stop")

    def seek(self, ms):
        return self.timed(f"seek {ms}")

    def backward(self):
        return self.timed("backward")

    def forward(self):
        return self.timed("forward")

    def play(self, ms):
        self.ask(f"play {ms}")


class Mpv(Process):
    """mpv, driven through its socket. Every operation returns the same values as ours."""

    def __init__(self, folder, environment):
        path = folder / "mpv.socket"
        options = ["--no-config", "--idle=yes", "--force-window=yes", "--pause", "--keep-open=yes"]
        options += ["--vo=x11", "--no-audio", "--hr-seek=yes", "--no-osc", "--osd-level=0"]
        options += ["--no-input-default-bindings", "--load-scripts=no", "--no-terminal"]
        options += [f"--geometry={WIDTH}x{HEIGHT}", "--no-keepaspect-window"]
        super().__init__(["mpv", *options, f"--input-ipc-server={path}"], environment)
        self.socket = self.connect(path)
        self.lines = self.socket.makefile("r", encoding="utf-8")
        self.number = 0
        self.events = []
        self.command("observe_property", 1, "time-pos")

    @staticmethod
    def connect(path):
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            connection = socket.socket(socket.AF_UNIX)
            with contextlib.suppress(OSError):
                connection.connect(str(path))
                connection.settimeout(PATIENCE)
                return connection
            time.sleep(0.05)
        raise RuntimeError("mpv does not open its socket")

    def read(self):
        line = self.lines.readline()
        if not line:
            raise RuntimeError("mpv ended early")
        return json.loads(line)

    def command(self, *words):
        """Sends a command and returns the answer's data; keeps events received until then."""
        self.number += 1
        request = {"command": list(words), "request_id": self.number}
        self.socket.sendall((json.dumps(request) + "\n").encode())
        while True:
            message = self.read()
            if message.get("request_id") == self.number and "error" in message:
                if message["error"] != "success":
                    raise RuntimeError(f"mpv: {words}: {message['error']}")
                return message.get("data")
            self.events.append(message)

    def wait(self, is_wanted):
        while True:
            message = self.events.pop(0) if self.events else self.read()
            ended = message.get("event") == "end-file" and message.get("reason") != "stop"
            if ended or message.get("event") == "shutdown":
                raise RuntimeError(f"mpv: {message}")
            if is_wanted(message):
                return

    def forget_events(self):
        """Discards everything that was sent before the answer to this command."""
        self.command("get_property", "pause")
        self.events.clear()

    def position(self):
        return self.command("get_property", "time-pos") * 1000.0

    def until_restart(self, *words):
        self.forget_events()
        start = time.perf_counter()
        self.command(*words)
        self.wait(lambda message: message.get("event") == "playback-restart")
        return (time.perf_counter() - start) * 1000.0

    def open(self, path):
        return self.until_restart("loadfile", str(path), "replace")

    def stop(self):
        self.command("stop")

    def seek(self, ms):
        elapsed = self.until_restart("seek", ms / 1000.0, "absolute+exact")
        return elapsed, self.position()

    def backward(self):
        elapsed = self.until_restart("frame-back-step")
        return elapsed, self.position()

    def forward(self):
        before = self.position()
        self.forget_events()

        def is_later(message):
            if message.get("event") != "property-change" or message.get("name") != "time-pos":
                return False
            seconds = message.get("data")
            return seconds is not None and seconds * 1000.0 > before + FRAME_MS / 2

        start = time.perf_counter()
        self.command("frame-step")
        self.wait(is_later)
        elapsed = (time.perf_counter() - start) * 1000.0
        return elapsed, self.position()

    def play(self, ms):
        self.command("set_property", "pause", False)
        time.sleep(ms / 1000.0)
        self.command("set_property", "pause", True)

    def close(self):
        self.socket.close()
        super().close()


class Figures:
    """The measurements of one player, in milliseconds."""

    def __init__(self):
        self.first_frames = []
        self.seeks = []
        self.seek_cpu = []  # processor time
        self.first_backs = []
        self.further_backs = []
        self.forwards = []
        self.holds = []  # for each key held down the steps
        self.cpu = 0.0  # while playing, in percent of one core
        self.peak = 0.0  # MiB

    def backs(self):
        return self.first_backs + self.further_backs


def position_of(frame):
    """Half a frame before the frame: both players go to the first frame at or after a position."""
    return frame * FRAME_MS - FRAME_MS // 2


def check(what, frame, position):
    # Sound may start earlier than the pictures, which shifts them by less than half a frame.
    if abs(position - frame * FRAME_MS) >= FRAME_MS / 2:
        raise RuntimeError(f"{what}: {position:.1f} ms instead of {frame * FRAME_MS} ms")


def measure_opening(player, figures, path):
    player.stop()
    player.rest()
    figures.first_frames.append(player.open(path))


def measure_seek(player, figures, frame):
    before = player.cpu()
    elapsed, position = player.seek(position_of(frame))
    figures.seek_cpu.append((player.cpu() - before) * 1000.0)
    figures.seeks.append(elapsed)
    check("seek", frame, position)


def measure_back(player, figures, path, frame, steps):
    measure_opening(player, figures, path)
    player.rest()
    measure_seek(player, figures, frame)
    for number in range(1, steps + 1):
        elapsed, position = player.backward()
        check(f"step back {number}", frame - number, position)
        (figures.first_backs if number == 1 else figures.further_backs).append(elapsed)


def measure_forward(player, figures, path, frame, steps):
    measure_opening(player, figures, path)
    player.rest()
    measure_seek(player, figures, frame)
    for number in range(1, steps + 1):
        elapsed, position = player.forward()
        check(f"step forward {number}", frame + number, position)
        figures.forwards.append(elapsed)


def measure_hold(player, figures, path, frame, steps):
    measure_opening(player, Figures(), path)
    player.rest()
    player.seek(position_of(frame))
    time.sleep(Hold.REST)
    times = []
    for number in range(1, steps + 1):
        elapsed, position = player.backward()
        check(f"step back {number} of a held key", frame - number, position)
        times.append(elapsed)
    figures.holds.append(times)


def fill_memory(player, path, frames):
    """Keeps one file open and rests in several places, to measure the peak memory."""
    player.stop()
    player.open(path)
    for frame in frames[:6]:
        player.seek(position_of(frame))
        player.rest()


def measure_playing(player, figures):
    player.seek(0)
    player.rest()
    before = player.cpu()
    player.play(PLAYING_MS)
    figures.cpu = (player.cpu() - before) / (PLAYING_MS / 1000.0) * 100.0


def in_turn(players, number):
    """Both players, in alternating order."""
    return players if number % 2 == 0 else players[::-1]


def measure(video, path, players, count, steps):
    figures = {player: Figures() for player in players}

    def each(number, action):
        for player in in_turn(players, number):
            for one in players:
                one.rest()
            action(player, figures[player])

    each(0, lambda player, own: measure_opening(player, Figures(), path))
    forward_steps = min(steps, 9)  # GOPs end 10 frames after the last position
    frames = video.choose(2 * count)
    for number in range(count):
        back, forward = frames[2 * number], frames[2 * number + 1]
        each(number, lambda player, own: measure_back(player, own, path, back, steps))
        each(number, lambda player, own: measure_forward(player, own, path, forward, forward_steps))
        print(f"{video.name}: position {number + 1} of {count}", file=sys.stderr, flush=True)
    # With enough groups of pictures before them.
    last_groups = [frame for frame in frames if frame > video.hold.steps][: video.hold.positions]
    for frame in last_groups:
        for player in players:
            for one in players:
                one.rest()
            part = Hold.MPV_PART if isinstance(player, Mpv) else 1
            measure_hold(player, figures[player], path, frame, video.hold.steps // part)
        print(f"{video.name}: key held at frame {frame}", file=sys.stderr, flush=True)
    each(0, lambda player, own: fill_memory(player, path, frames))
    each(0, measure_playing)
    for player in players:
        figures[player].peak = player.peak()
    return [figures[player] for player in players]


def percentile(values, share):
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, int(share * len(ordered)))]


def row(what, own, other, goal=None, digits=1):
    ratio = own / other
    cells = [what, f"{own:.{digits}f}", f"{other:.{digits}f}", f"{ratio:.2f}"]
    cells += ["" if goal is None else f"{goal:.2f}"]
    cells += ["" if goal is None else ("yes" if ratio <= goal else "NO")]
    print("| " + " | ".join(cells) + " |", flush=True)


def rate(times):
    """Steps per second."""
    return len(times) * 1000.0 / sum(times)


def print_limit(what, own, other, goal, is_met):
    """A row with a goal for our own figure instead of the ratio."""
    print(f"| {what} | {own:.1f} | {other:.1f} | {own / other:.2f} | {goal} | "
          f"{'yes' if is_met else 'NO'} |", flush=True)


def print_hold(hold, own, mpv):
    slowest = min(rate(times) for times in own)
    longest = max(max(times) for times in own)
    print_limit(f"key held, {hold.steps} steps: slowest, steps a second", slowest,
                min(rate(times) for times in mpv), f"at least {hold.rate_goal:.0f}",
                slowest >= hold.rate_goal)
    print_limit("key held: longest step", longest, max(max(times) for times in mpv),
                f"at most {hold.longest_goal:.0f}", longest <= hold.longest_goal)


def print_figures(video, own, mpv, cache):
    print(f"\n{video.name}: {len(own.seeks)} seeks, {len(own.backs())} steps back, "
          f"{len(own.forwards)} forward\n")
    print("| what | ours | mpv | ratio | goal | met |\n| --- | ---: | ---: | ---: | ---: | --- |")
    median, mean = statistics.median, statistics.fmean
    row("first frame, p50", median(own.first_frames), median(mpv.first_frames), FIRST_FRAME_GOAL)
    row("exact seek, p50", median(own.seeks), median(mpv.seeks), video.seek_goal)
    row("exact seek, p90", percentile(own.seeks, 0.9), percentile(mpv.seeks, 0.9))
    row("processor time of a seek, mean", mean(own.seek_cpu), mean(mpv.seek_cpu))
    row("first step back after a seek, p50", median(own.first_backs), median(mpv.first_backs),
        FIRST_BACK_GOAL)
    row("further steps back, p50", median(own.further_backs), median(mpv.further_backs))
    row("further steps back, longest", max(own.further_backs), max(mpv.further_backs))
    row("all steps back, mean", mean(own.backs()), mean(mpv.backs()), BACK_GOAL)
    row("step forward, p50", median(own.forwards), median(mpv.forwards))
    print_hold(video.hold, own.holds, mpv.holds)
    row("processor while playing, %", own.cpu, mpv.cpu, PLAYING_GOAL, digits=0)
    print_limit("peak memory, MiB", own.peak, mpv.peak, f"at most {video.memory_goal}",
                own.peak <= video.memory_goal)
    print(f"\nOur step back to our step forward, p50: "
          f"{median(own.backs()) / median(own.forwards):.2f}. "
          f"A filled cache holds {cache['frames']} frames, {cache['bytes'] / 2**20:.0f} MiB.")


@contextlib.contextmanager
def virtual_screen():
    """The environment for starting windows."""
    reading, writing = os.pipe()
    command = ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x800x24", "-nolisten", "tcp"]
    server = subprocess.Popen(command, pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    try:
        with os.fdopen(reading) as number:
            display = number.readline().strip()
        if not display:
            raise RuntimeError("Xvfb does not start")
        yield {**os.environ, "DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb"}
    finally:
        server.terminate()
        server.wait()


def compare(video, path, program, options):
    with virtual_screen() as environment, tempfile.TemporaryDirectory() as name:
        ours = Ours(program, options.opengl, environment)
        mpv = Mpv(pathlib.Path(name), environment)
        try:
            count = options.positions or video.positions
            figures = measure(video, path, [ours, mpv], count, options.steps or video.steps)
            _, cache = ours.ask(f"cache {video.frames * FRAME_MS // 2}")
        finally:
            mpv.close()
            ours.close()
    print_figures(video, *figures, cache)


def arguments():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/release")
    parser.add_argument("--media", type=pathlib.Path, default=ROOT / "build/bench-media")
    parser.add_argument("--video", action="append", help="only this one; may be repeated")
    parser.add_argument("--positions", type=int, help="positions to step from, in each direction")
    parser.add_argument("--steps", type=int, help="steps back from each position")
    parser.add_argument("--opengl", action="store_true", help="ours draws with OpenGL")
    return parser.parse_args()


def main():
    options = arguments()
    program = options.build / "bench/player_times"
    wanted = [v for v in VIDEOS if not options.video or v.name in options.video]
    missing = [p for p in [program, *(options.media / v.name for v in wanted)] if not p.exists()]
    if missing or not wanted:
        sys.exit("not there: " + ", ".join(map(str, missing or options.video)))
    print("Milliseconds where nothing else is said.")
    for video in wanted:
        compare(video, options.media / video.name, program, options)


if __name__ == "__main__":
    main()
