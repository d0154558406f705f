"""Reading fails, is short or slow: results must be right, and a file must never block a run."""

import os
import pathlib
import shutil
import subprocess
import threading
import time

from tests.faults.faultcase import FaultCase, sample


class Reading(FaultCase):
    def setUp(self):
        super().setUp()
        self.videos = self.folder / "videos"
        self.videos.mkdir()
        self.video = self.videos / "video.mp4"
        shutil.copy(sample("h264_1080p.mp4"), self.video)

    def pictures(self, *arguments, **options):
        """The pictures by name, and the run's result."""
        for path in self.out.iterdir():
            path.unlink()
        result = self.stills(self.video, *arguments, "-o", self.out, below=self.videos, **options)
        self.check_clean()
        return {path.name: path.read_bytes() for path in self.visible()}, result

    def test_short_reads_change_nothing(self):
        expected, _ = self.pictures("-c4")
        given, result = self.pictures("-c4", faults="call=read,short=1")
        self.assertTrue(result.faults)
        self.assertEqual(result.status, 0, str(result))
        self.assertEqual(given, expected)

    def test_read_errors_cost_no_wrong_picture(self):
        expected, _ = self.pictures("-c6", "-j1")
        for faults in ("call=read,error=EIO", "call=read,error=EIO,after=3",
                       "call=read,error=EIO,after=8,times=1", "call=read,error=EIO,megabyte=1",
                       "call=open,error=EACCES,name=video.mp4"):
            with self.subTest(faults):
                given, result = self.pictures("-c6", "-j1", faults=faults)
                self.assertTrue(result.faults)
                for name, content in given.items():
                    self.assertEqual(content, expected[name])
                if len(given) < len(expected):
                    self.check_told(result, self.video)

    def test_slow_disk_is_given_up(self):
        began = time.monotonic()
        result = self.stills(self.video, sample("h264_bframes.mp4"), "-c3",
                             "--position-timeout", "300ms", "-o", self.out, below=self.videos,
                             faults="call=read,slow=500")
        self.check_told(result, f"{self.video}: Given up after 0.3 seconds")
        self.assertEqual(len(self.visible()), 3, "the other video goes on")
        # One read is in the way of the end.
        self.assertLess(time.monotonic() - began, 20)

    def test_opening_that_reads_all_of_a_slow_file_is_given_up(self):
        video = self.videos / "video.h264"
        whole = pathlib.Path(sample("raw.h264")).read_bytes()
        video.write_bytes(whole * (16 * 2**20 // len(whole)))
        result = self.stills(video, "-c1", "--position-timeout", "300ms", "-o", self.out,
                             below=self.videos, faults="call=read,slow=20")
        self.check_told(result, "Given up after 0.3 seconds")
        # It has 256 blocks to read.
        self.assertLess(len(result.faults), 150, str(result))

    def test_slow_positions_end_with_the_rest_given_up(self):
        # Opening is quick, and what is read then is not.
        result = self.stills(self.video, "-c40", "-j1", "--position-timeout", "200ms", "-o",
                             self.out, below=self.videos,
                             faults="call=read,slow=1000,after=12")
        self.check_told(result, "Given up after 0.2 seconds")

    def test_best_frames_of_a_slow_disk_are_those_of_the_whole_video(self):
        # Examining all frames takes longer than any of them may.
        shutil.copy(sample("dv.avi"), self.video)
        expected, _ = self.pictures("--best", "4", "-j1")
        given, result = self.pictures("--best", "4", "-j1", "--position-timeout", "1500ms",
                                      faults="call=read,slow=100,after=50")
        self.assertEqual(result.status, 0, str(result))
        self.assertEqual(given, expected)

    def test_disk_that_never_answers_does_not_hold_the_run_up(self):
        result = self.stills(self.video, "-c1", "--position-timeout", "300ms", "-o", self.out,
                             below=self.videos, faults="call=read,slow=600000", timeout=20)
        self.check_told(result, "Given up after 0.3 seconds")


class Pipes(FaultCase):
    """A pipe without a writer must not block."""

    def setUp(self):
        super().setUp()
        self.pipe = self.folder / "pipe"
        os.mkfifo(self.pipe)

    def config(self, name, text):
        folder = self.folder / "home/config/Morvantile/Morvantile"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / name).write_text(text)
        return folder / name

    def test_pipe_as_video_is_an_error(self):
        self.check_told(self.stills(self.pipe, "-o", self.out, timeout=10), self.pipe)

    def test_pipe_as_list_is_an_error_unless_somebody_writes(self):
        result = self.stills("--files-from", self.pipe, "-o", self.out, timeout=20)
        self.check_told(result, self.pipe, "nobody writes")

        def write():
            time.sleep(0.5)
            with open(self.pipe, "w", encoding="utf-8") as pipe:
                for _ in range(2):
                    pipe.write(f"{sample('h264_bframes.mp4')}\n")
                    pipe.flush()
                    time.sleep(0.2)

        writer = threading.Thread(target=write)
        writer.start()
        result = self.stills("--files-from", self.pipe, "-c1", "-o", self.out, timeout=20)
        writer.join()
        self.assertEqual(result.status, 0, str(result))
        self.assertEqual(len(self.visible()), 1)

    def test_list_without_end_is_an_error(self):
        result = self.stills("--files-from", "/dev/zero", "-o", self.out, timeout=60)
        self.check_told(result, "/dev/zero", "too long")

    def test_pipe_as_picture_to_be_like_is_an_error(self):
        result = self.stills("--like", self.pipe, "-o", self.out, timeout=10)
        self.assertEqual(result.status, 2, str(result))
        self.assertIn("--like", result.output)

    def test_pipe_as_watermark_is_an_error(self):
        watermarks = self.folder / "home/data/Morvantile/Morvantile/watermarks"
        watermarks.mkdir(parents=True)
        self.pipe.rename(watermarks / "pipe.png")
        self.config("WatermarkProfiles.ini",
                    "[profiles]\nA\\id=A\nA\\name=mark\nA\\watermarkType=1\n"
                    "A\\imageFile=pipe.png\n")
        result = self.stills(sample("h264_bframes.mp4"), "--watermark", "mark", "-o", self.out,
                             timeout=10)
        self.assertEqual(result.status, 2, str(result))
        self.assertIn("cannot be read", result.output)

    def test_pipe_as_profiles_is_put_aside_and_told_once(self):
        path = self.config("ImageProfiles.ini", "")
        path.unlink()
        self.pipe.rename(path)
        first = self.stills(sample("h264_bframes.mp4"), "--profile", "none", "-o", self.out,
                            timeout=10)
        self.assertIn(f"{path}.bad", first.output)
        self.assertTrue(pathlib.Path(f"{path}.bad").is_fifo())
        second = self.stills(sample("h264_bframes.mp4"), "--profile", "none", "-o", self.out,
                             timeout=10)
        self.assertNotIn(".bad", second.output)


class Hostile(FaultCase):
    """Declarations in a file must be checked before memory is allocated."""

    def memory(self, *arguments):
        """The result of a run and its peak memory, in MiB."""
        report = self.folder / "memory"
        process = subprocess.run(
            ["/usr/bin/python3", "-c",
             "import resource, subprocess, sys\n"
             "status = subprocess.run(sys.argv[2:]).returncode\n"
             "peak = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss // 1024\n"
             "open(sys.argv[1], 'w').write(str(peak))\n"
             "sys.exit(status)",
             str(report), os.environ["STILLS"], *map(str, arguments)],
            capture_output=True, text=True, env=self.environment(), timeout=120, check=False)
        return process.returncode, process.stderr, int(report.read_text())

    def patched(self, name, marker, offset, replacement):
        """A copy of a sample with other bytes behind each marker."""
        content = bytearray(sample(name).read_bytes())
        at = content.find(marker)
        self.assertGreaterEqual(at, 0, "the sample has no such marker")
        while at >= 0:
            content[at + offset:at + offset + len(replacement)] = replacement
            at = content.find(marker, at + 1)
        path = self.folder / f"patched-{name}"
        path.write_bytes(content)
        return path

    def test_picture_that_declares_too_much_itself_is_refused(self):
        # The size behind the start of a JPEG picture; the container says something else. FFmpeg
        # itself refuses what is larger still, for so few bytes.
        video = self.patched("mjpeg.avi", b"\xff\xc0\x00\x11\x08", 5, b"\x03\xe8\x03\xe8")
        result = self.stills(video, "-c2", "--picture-memory", "4M", "-o", self.out)
        self.check_told(result, "too large", "1000 x 1000", "4.0 MB are allowed")
        self.check_clean()

    def test_container_that_declares_too_much_is_refused(self):
        video = self.patched("h264_bframes.mp4", b"avc1\0\0\0\0\0\0\0\1", 28, b"\x7f\x00\x7f\x00")
        status, text, peak = self.memory(video, "-c2", "-o", self.out)
        self.assertEqual(status, 1, text)
        self.assertIn("too large", text)
        self.assertEqual(text.count("too large"), 1, "once for the video")
        self.assertLess(peak, 400)

    def check_too_many(self, content):
        video = self.folder / "many.mp4"
        video.write_bytes(content)
        status, text, peak = self.memory(video, "-c2", "-o", self.out)
        self.assertEqual(status, 1, text)
        self.assertIn("more pictures than it can hold", text)
        self.assertLess(peak, 300)

    @staticmethod
    def declare(content, count, track=0):
        """Makes a track declare samples of one byte each, all in one chunk: FFmpeg lists each."""
        sizes = chunks = 0
        for _ in range(track + 1):
            sizes = content.index(b"stsz", sizes + 1)
            chunks = content.index(b"stsc", chunks + 1)
        content[sizes + 8:sizes + 16] = (1).to_bytes(4, "big") + count.to_bytes(4, "big")
        content[chunks + 16:chunks + 20] = count.to_bytes(4, "big")

    def test_more_pictures_than_the_file_holds_are_refused(self):
        content = bytearray(sample("h264_bframes.mp4").read_bytes())
        self.declare(content, 80_000_000)
        self.check_too_many(content)

    def test_more_sound_than_the_file_holds_is_refused(self):
        content = bytearray(sample("sound.mp4").read_bytes())
        self.declare(content, 30_000_000, track=1)
        self.check_too_many(content)

    def test_boxes_larger_than_the_file_hide_no_pictures(self):
        for box in b"moov", b"trak", b"stbl":
            with self.subTest(box):
                content = bytearray(sample("h264_bframes.mp4").read_bytes())
                self.declare(content, 30_000_000)
                at = content.index(box)
                content[at - 4:at] = (0x7fffffff).to_bytes(4, "big")
                self.check_too_many(content)

    def test_many_boxes_hide_no_pictures(self):
        content = bytearray(sample("h264_bframes.mp4").read_bytes())
        self.declare(content, 30_000_000)
        movie = content.index(b"moov") - 4
        content[movie:movie] = (b"\0\0\0\x08free") * 2000
        self.check_too_many(content)

    def test_tracks_may_not_declare_more_together_than_the_file_holds(self):
        content = bytearray(sample("h264_bframes.mp4").read_bytes())
        self.declare(content, 900_000)
        movie, track = content.index(b"moov") - 4, content.index(b"trak") - 4
        size = int.from_bytes(content[track:track + 4], "big")
        self.assertEqual(movie + int.from_bytes(content[movie:movie + 4], "big"), len(content))
        content += content[track:track + size] * 30
        content[movie:movie + 4] = (len(content) - movie).to_bytes(4, "big")
        self.check_too_many(content)

    def test_uncompressed_sound_may_have_many_samples(self):
        # Of one tick each: FFmpeg lists their chunks alone.
        content = bytearray(sample("sound.mp4").read_bytes())
        sizes = content.index(b"stsz", content.index(b"stsz") + 1)
        content[sizes + 8:sizes + 16] = (1).to_bytes(4, "big") + (30_000_000).to_bytes(4, "big")
        times = content.index(b"stts", content.index(b"stts") + 1)
        content[times + 8:times + 20] = b"".join(n.to_bytes(4, "big") for n in (1, 30_000_000, 1))
        video = self.folder / "sound.mp4"
        video.write_bytes(content)
        status, text, peak = self.memory(video, "-c2", "-o", self.out)
        self.assertEqual(status, 0, text)
        self.assertLess(peak, 300)

    def test_limit_can_be_set(self):
        video = sample("h264_2160p.mp4")  # 12 MB decoded and 33 MB converted
        result = self.stills(video, "-c1", "--picture-memory", "40M", "-o", self.out)
        self.check_told(result, "too large", "3840 x 2160", "40.0 MB are allowed")
        result = self.stills(video, "-c1", "--picture-memory", "50M", "-o", self.out)
        self.assertEqual(result.status, 0, str(result))
