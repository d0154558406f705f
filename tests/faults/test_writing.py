"""Writing fails: no incomplete final files, nothing overwritten, every failure reported."""

import fcntl
import os
import random
import re
import resource
import shutil
import signal
import subprocess
import time
import unittest

from tests.faults.faultcase import FaultCase, remount_read_only, remove, sample, small_disk

VIDEO = sample("h264_bframes.mp4")

# What is done to the calls on the pictures' folder, and what the message says. The first picture is
# never hit, so that one is whole.
FAULTS = [
    ("call=write,error=ENOSPC,after=1", "The disk is full"),
    ("call=write,error=EDQUOT,after=1", "Your quota is used up"),
    ("call=write,error=EIO,after=1", "Input/output error"),
    ("call=close,error=EDQUOT,after=1,name=.part", "Your quota is used up"),
    ("call=close,error=EIO,after=1,name=.part", "Input/output error"),
    ("call=rename,error=EIO,after=1", "Input/output error"),
    ("call=rename,error=EACCES,after=1", "does not let you write"),
    ("call=open,error=EMFILE,after=6,name=.part", "Too many open files"),
    ("call=open,error=EROFS,after=6,name=.part", "read-only"),
]


class Writing(FaultCase):
    def test_failures_are_told_and_leave_whole_files(self):
        arguments = [VIDEO, "-c9", "-j1", "-f", "png", "--names", "{stem}-{number}", "-o"]
        earlier = self.folder / "earlier"
        earlier.mkdir()
        self.assertEqual(self.stills(*arguments, earlier).status, 0)
        first = self.visible(earlier)[0]
        for faults, text in FAULTS:
            with self.subTest(faults):
                remove(self.out)
                self.out.mkdir()
                (self.folder / "faults.log").unlink(missing_ok=True)
                shutil.copy(first, self.out)
                result = self.stills(*arguments, self.out, faults=faults)
                self.assertTrue(result.faults, "no call was hit")
                self.check_told(result, text, VIDEO.name)
                self.check_clean()
                self.assertEqual((self.out / first.name).read_bytes(), first.read_bytes())

    def test_disk_that_is_full_after_a_megabyte_is_told(self):
        result = self.stills(sample("h264_1080p.mp4"), "-c4", "--size", "3840x2160", "--enlarge",
                             "-f", "tiff", "-o", self.out,
                             faults="call=write,error=ENOSPC,megabyte=30")
        self.assertTrue(result.faults)
        self.check_told(result, "The disk is full", "h264_1080p.mp4")
        self.assertIn(len(self.visible()), (1, 2, 3))
        self.check_clean()

    def test_short_writes_are_written_on(self):
        good = self.stills(VIDEO, "-c3", "-o", self.out)
        expected = [path.read_bytes() for path in self.visible()]
        remove(self.out)
        self.out.mkdir()
        short = self.stills(VIDEO, "-c3", "-o", self.out, faults="call=write,short=1")
        self.assertTrue(short.faults)
        self.assertEqual((good.status, short.status), (0, 0))
        self.assertEqual([path.read_bytes() for path in self.visible()], expected)

    def test_existing_files_stay_as_they_are(self):
        for rule in ((), ("--skip-existing",), ("--overwrite",)):
            with self.subTest(rule):
                remove(self.out)
                self.out.mkdir()
                self.assertEqual(self.stills(VIDEO, "-c4", "-o", self.out).status, 0)
                before = {path: path.read_bytes() for path in self.visible()}
                for faults in ("call=write,error=ENOSPC", "call=rename,error=EIO"):
                    self.stills(VIDEO, "-c4", "-o", self.out, *rule, faults=faults)
                    self.assertEqual({p: p.read_bytes() for p in self.visible()}, before)
                self.check_clean()

    def test_files_that_cannot_be_replaced_are_named_and_the_others_are_written(self):
        self.assertEqual(self.stills(VIDEO, "-c4", "-o", self.out).status, 0)
        before = {path: path.read_bytes() for path in self.visible()}
        protected, pipe, *others = self.visible()
        for path in others:
            path.write_bytes(b"old")
        pipe.unlink()
        os.mkfifo(pipe)
        self.give_to_nobody()
        protected.chmod(0o444)
        result = self.stills(VIDEO, "-c4", "--overwrite", "-o", self.out, as_nobody=True)
        self.check_told(result, f"Cannot be written: {protected} (Permission denied)",
                        f"Cannot be written: {pipe} (Operation not supported)", "2 pictures")
        self.assertTrue(pipe.is_fifo())
        for path in [protected, *others]:
            self.assertEqual(path.read_bytes(), before[path])
        self.assertEqual(self.hidden(), [])

    def test_full_disk_says_how_much_is_missing(self):
        with small_disk(self.out, "100k") as is_mounted:
            print("\nA full disk by", "tmpfs" if is_mounted else "the library's ENOSPC")
            faults = None if is_mounted else "call=write,error=ENOSPC,after=2"
            result = self.stills(VIDEO, "-c10", "-f", "png", "-o", self.out, faults=faults)
            self.check_told(result, "The disk is full: ", " are missing for ", VIDEO.name)
            self.check_clean()
            self.assertEqual(result.output.count("The disk is full"), 1, "each picture was tried")

    def test_full_disk_says_how_much_the_rest_of_the_run_needs(self):
        arguments = [VIDEO, "-c20", "-f", "png", "-o"]
        whole = self.folder / "whole"
        whole.mkdir()
        self.assertEqual(self.stills(*arguments, whole).status, 0)
        sizes = [path.stat().st_size for path in self.visible(whole)]
        disk = sum(sizes) // 3 // 4096 * 4096
        with small_disk(self.out, disk) as is_mounted:
            faults = None if is_mounted else "call=write,error=ENOSPC,after=10"
            result = self.stills(*arguments, self.out, faults=faults)
            left = len(sizes) - len(self.visible())
            said = re.search(r"and about ([0-9.]+) (kB|MB) for the (\d+) pictures left\n",
                             result.output)
            self.assertTrue(said, str(result))
            self.assertEqual(int(said[3]), left, str(result))
            missing = float(said[1]) * {"kB": 1e3, "MB": 1e6}[said[2]]
            # What is free where no disk could be mounted is unknown; the pictures differ in size.
            needed = sum(sizes) - disk if is_mounted else sum(sizes) * left / len(sizes)
            self.assertGreater(missing, needed * 0.7)
            self.assertLess(missing, needed * 1.3)

    def test_full_disk_tells_of_all_videos_whose_pictures_are_known(self):
        result = self.stills(VIDEO, sample("h264_gop250.mp4"), "-c20", "-j1", "-o", self.out,
                             faults="call=write,error=ENOSPC,after=2")
        self.check_told(result, " for the 38 pictures left\n")

    def test_full_disk_tells_of_the_video_alone_whose_pictures_are_known(self):
        result = self.stills(VIDEO, sample("h264_gop250.mp4"), "--every", "100ms", "-j1", "-o",
                             self.out, faults="call=write,error=ENOSPC,after=2")
        self.check_told(result, "pictures left of this video")

    def test_older_command_tells_what_it_cannot_save(self):
        result = self.run_program("MORVANTILE_CLI", VIDEO, self.out, "--count", "3",
                                  faults="call=write,error=ENOSPC,after=1")
        self.assertIn("Could not save", result.output)
        self.assertIn("The disk is full", result.output)
        self.assertIn(VIDEO.name, result.output)
        self.check_clean()

    def test_limit_on_the_size_of_files_is_an_error_of_the_file(self):
        limits = [(resource.RLIMIT_FSIZE, 2000)]
        result = self.stills(VIDEO, "-c3", "-o", self.out, limits=limits)
        self.check_told(result, "File too large", self.out)
        old = self.run_program("MORVANTILE_CLI", VIDEO, self.out, "--count", "3", limits=limits)
        self.assertEqual(old.status, 0, str(old))
        self.assertIn("File too large", old.output)
        self.check_clean()
        self.assertEqual(self.visible(), [])

    def test_few_descriptors_and_little_memory_are_errors(self):
        descriptors = [(resource.RLIMIT_NOFILE, number) for number in (9, 14)]
        memory = [(resource.RLIMIT_AS, mebibytes << 20) for mebibytes in (330, 400, 490, 700)]
        for limits in ([limit] for limit in descriptors + memory):
            with self.subTest(limits):
                result = self.stills(sample("h264_2160p.mp4"), "-c3", "-o", self.out, limits=limits)
                self.assertIn(result.status, (0, 1), str(result))
                self.assertTrue(result.status == 0 or result.output.strip(), "nothing was told")
                self.check_clean()


class Folders(FaultCase):
    """The folder changes while pictures are written into it."""

    def running(self, *options):
        process = self.start("STILLS", sample("h264_gop250.mp4"), "--every", "40ms", "-f", "png",
                             "-o", self.out, *options, faults="call=write,slow=20")
        deadline = time.monotonic() + 20
        while not self.visible() and time.monotonic() < deadline:
            time.sleep(0.01)
        return process

    def test_folder_that_vanishes_is_told(self):
        process = self.running()
        self.out.rename(self.folder / "elsewhere")
        self.check_told(self.finish(process), "The folder is gone", self.out)
        self.check_whole(self.folder / "elsewhere")

    def test_folder_that_becomes_a_file_is_told(self):
        process = self.running()
        self.out.rename(self.folder / "elsewhere")
        self.out.write_bytes(b"a file")
        self.check_told(self.finish(process), "The folder is gone", self.out)
        self.assertEqual(self.out.read_bytes(), b"a file")

    def test_disk_that_becomes_read_only_is_told(self):
        with small_disk(self.out, "50m") as is_mounted:
            if not is_mounted:
                self.skipTest("Mounting needs root's rights.")
            # With several decoders some picture waits in an open file all the time.
            process = self.running("-j1")
            for _ in range(1000):
                try:
                    remount_read_only(self.out)
                    break
                except subprocess.CalledProcessError:
                    time.sleep(0.005)  # busy while a picture is open
            else:
                process.kill()
                self.finish(process)
                self.fail("The disk was busy all the time.")
            self.check_told(self.finish(process), "read-only", self.out)
            self.check_whole()


class Killing(FaultCase):
    """SIGKILL at random moments; FAULTS_KILLS sets how often, five times by default."""

    def test_killed_runs_leave_whole_files_and_can_be_completed(self):
        kills = int(os.environ.get("FAULTS_KILLS", "5"))
        seed = int(os.environ.get("FAULTS_SEED", time.time_ns() % 100000))
        print(f"\n{kills} kills, FAULTS_SEED={seed}")
        moments = random.Random(seed)
        left = 0
        for _ in range(kills):
            process = self.start("STILLS", VIDEO, "--every", "20ms", "-f", "png",
                                 "--skip-existing", "-o", self.out)
            time.sleep(moments.uniform(0.0, 0.6))
            process.send_signal(signal.SIGKILL)
            process.communicate()
            self.check_whole()
            left = len(self.hidden())
            if moments.random() < 0.5 and self.visible():
                moments.choice(self.visible()).unlink()
        print(f"{left} hidden files were left")
        self.make_old()
        result = self.stills(VIDEO, "--every", "20ms", "-f", "png", "--skip-existing", "-o", self.out)
        self.assertEqual(result.status, 0, str(result))
        self.check_clean()
        whole = self.folder / "whole"
        whole.mkdir()
        self.assertEqual(
            self.stills(VIDEO, "--every", "20ms", "-f", "png", "-o", whole).status, 0)
        self.assertEqual([p.name for p in self.visible()], [p.name for p in self.visible(whole)])

    def test_left_over_files_go_with_the_next_run_unless_somebody_writes_them(self):
        old = time.time() - 7200
        names = {"old": ".morvantile-0123456789abcdef.part",
                 "linked": ".morvantile-0123456789abcde2.part",
                 "new": ".morvantile-0123456789abcde0.part",
                 "locked": ".morvantile-0123456789abcde1.part",
                 "other": ".morvantile-of-somebody.part"}
        for what, name in names.items():
            (self.out / name).write_bytes(b"half")
            if what != "new":
                os.utime(self.out / name, (old, old))
        # A kill between the final name and the end of the hidden one leaves both.
        os.link(self.out / names["linked"], self.folder / "final")
        with open(self.out / names["locked"], "rb") as locked:
            fcntl.flock(locked, fcntl.LOCK_EX)
            self.assertEqual(self.stills(VIDEO, "-c1", "-o", self.out).status, 0)
        left = {path.name for path in self.out.iterdir() if path.name.startswith(".")}
        self.assertEqual(left, {names["new"], names["locked"], names["other"]})
        self.assertEqual((self.folder / "final").read_bytes(), b"half")
        for name in left:
            (self.out / name).unlink()
        self.check_clean()


class Waiting(FaultCase):
    """Finished pictures that wait for their turn in hidden files."""

    def running(self, **options):
        """A run with several such pictures."""
        process = self.start("STILLS", VIDEO, "--every", "20ms", "-f", "png", "-j2", "-o", self.out,
                             faults="call=write,slow=20", **options)
        self.addCleanup(process.kill)
        self.wait_for_hidden(5)
        return process

    def wait_for_hidden(self, count):
        deadline = time.monotonic() + 20
        while len(self.hidden()) < count and time.monotonic() < deadline:
            time.sleep(0.001)

    def test_pictures_of_a_suspended_run_outlast_another_run(self):
        process = self.running()
        process.send_signal(signal.SIGSTOP)
        os.waitpid(process.pid, os.WUNTRACED)
        # A file without content may have been created this moment, with the lock still to come.
        waiting = {path for path in self.hidden() if path.stat().st_size > 0}
        self.assertGreater(len(waiting), 2)
        self.make_old()
        self.assertEqual(self.stills(VIDEO, "-c1", "-f", "png", "-o", self.out).status, 0)
        self.assertLessEqual(waiting, set(self.hidden()))
        process.send_signal(signal.SIGCONT)
        result = self.finish(process)
        self.assertEqual(result.status, 0, str(result))
        self.assertIn("100 pictures", result.output)
        self.assertEqual(len(self.visible()), 101)
        self.check_clean()

    def test_file_that_another_run_removes_before_it_is_locked_is_created_again(self):
        process = self.start("STILLS", VIDEO, "-c1", "-f", "png", "-o", self.out,
                             faults="call=lock,slow=3000,times=1")
        self.addCleanup(process.kill)
        self.wait_for_hidden(1)
        created = set(self.hidden())
        self.make_old()
        self.assertEqual(self.stills(VIDEO, "-c1", "-f", "png", "-o", self.out).status, 0)
        self.assertFalse(created & set(self.hidden()))
        self.assertIsNone(process.poll())
        result = self.finish(process)
        self.assertEqual(result.status, 0, str(result))
        self.assertEqual(len(result.faults), 1)
        self.assertEqual(len(self.visible()), 2)
        self.check_clean()

    def test_pictures_wait_in_files_beyond_the_usual_limit_on_descriptors(self):
        hard = resource.getrlimit(resource.RLIMIT_NOFILE)[1]
        process = self.running(limits=[(resource.RLIMIT_NOFILE, (40, hard))])
        waiting = len(self.hidden())
        result = self.finish(process)
        self.assertGreaterEqual(waiting, 5, str(result))
        self.assertEqual(result.status, 0, str(result))
        self.check_clean()

    def test_pictures_wait_in_memory_where_descriptors_are_few(self):
        result = self.stills(VIDEO, "--every", "20ms", "-f", "png", "-j2", "-o", self.out,
                             limits=[(resource.RLIMIT_NOFILE, 40)])
        self.assertEqual(result.status, 0, str(result))
        self.assertEqual(len(self.visible()), 100)
        self.check_clean()


class Settings(FaultCase):
    OLD = "[profiles]\nA\\id=A\nA\\name=mine\nA\\imageQuality=33\n"

    def setUp(self):
        super().setUp()
        self.config = self.folder / "home/config/Morvantile/Morvantile"
        self.config.mkdir(parents=True)
        self.profiles = self.config / "ImageProfiles.ini"
        self.profiles.write_text(self.OLD)

    def start_with_profile(self, **options):
        return self.start("STILLS", VIDEO, "-c1", "--profile", "mine", "-o", self.out, **options)

    def test_profiles_are_written_whole_or_not_at_all(self):
        # A start completes the file: the keys of newer versions are missing.
        for faults in ("call=write,error=ENOSPC", "call=write,error=EIO", "call=rename,error=EIO",
                       "call=open,error=EROFS,after=4", "call=fsync,error=EIO",
                       "call=close,error=EIO"):
            with self.subTest(faults):
                self.profiles.write_text(self.OLD)
                result = self.finish(self.start_with_profile(faults=faults, below=self.config))
                self.assertEqual(result.status, 0, str(result))
                text = self.profiles.read_text()
                self.assertTrue(text == self.OLD or "imageWidth" in text, text)
                self.assertIn("imageQuality=33", text)

    def test_killed_programs_leave_whole_profiles(self):
        for moment in range(5):
            process = self.start_with_profile(faults="call=write,slow=20", below=self.config)
            time.sleep(0.05 + 0.03 * moment)
            process.kill()
            process.communicate()
            text = self.profiles.read_text()
            self.assertTrue(text == self.OLD or "imageWidth" in text, text)
        self.assertEqual(self.finish(self.start_with_profile()).status, 0)


class Together(FaultCase):
    def test_eight_programs_in_one_folder_lose_and_replace_nothing(self):
        processes = [self.start("STILLS", VIDEO, "-c6", "-j1", "-o", self.out) for _ in range(8)]
        for process in processes:
            self.assertEqual(self.finish(process, 120).status, 0)
        self.assertEqual(len(self.visible()), 48)
        self.check_clean()


if __name__ == "__main__":
    unittest.main()
