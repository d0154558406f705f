"""Standard input, output and error that are closed, or that nobody reads."""

import fcntl
import itertools
import os
import signal
import struct
import subprocess
import termios
import time
import unittest

from tests.faults.faultcase import FaultCase, remove, sample

VIDEO = sample("h264_bframes.mp4")
NAMES = {0: "input", 1: "output", 2: "error"}


class Closed(FaultCase):
    """Streams that were closed before the program started."""

    def test_no_file_gets_the_number_of_a_closed_stream(self):
        for count in (1, 2, 3):
            for closed in itertools.combinations(NAMES, count):
                with self.subTest([NAMES[stream] for stream in closed]):
                    arguments = [VIDEO, "--every", "20ms", "-f", "png", "-o", self.out]
                    self.check_occupied("STILLS", arguments, closed)

    def test_no_file_gets_the_number_of_a_closed_stream_of_the_older_command(self):
        self.check_occupied("MORVANTILE_CLI", [VIDEO, self.out, "--count", "50"], (0, 1, 2))

    def check_occupied(self, program, arguments, closed):
        remove(self.out)
        self.out.mkdir()
        process = self.start(program, *arguments, closed=closed)
        self.addCleanup(process.kill)
        deadline = time.monotonic() + 20
        while not any(self.out.iterdir()) and time.monotonic() < deadline:
            time.sleep(0.001)
        process.send_signal(signal.SIGSTOP)
        os.waitpid(process.pid, os.WUNTRACED)
        files = {stream: os.readlink(f"/proc/{process.pid}/fd/{stream}") for stream in closed}
        process.send_signal(signal.SIGCONT)
        result = self.finish(process)
        self.assertEqual(files, {stream: "/dev/null" for stream in closed})
        self.assertEqual(result.status, 0, str(result))
        self.check_clean()

    def test_closed_error_stream_changes_nothing_else(self):
        result = self.stills(VIDEO, "-c4", "-v", "--progress", "-o", self.out, closed=(2,))
        self.assertEqual((result.status, result.output), (0, ""))
        self.assertEqual(len(self.visible()), 4)
        self.check_clean()

    def test_pictures_and_objects_for_a_closed_output_are_errors(self):
        for arguments in (("-o", "-"), ("--json", "-o", self.out)):
            with self.subTest(arguments):
                result = self.stills(VIDEO, "-c4", *arguments, closed=(1,))
                self.assertEqual(result.status, 1, str(result))
                self.check_clean()

    def test_help_for_a_closed_output_is_an_error(self):
        self.assertEqual(self.stills("--help", closed=(1,)).status, 1)

    def test_list_from_a_closed_input_is_an_error(self):
        for closed in ((0,), (0, 2), (0, 1, 2)):
            result = self.stills("--files-from", "-", "-o", self.out, closed=closed, timeout=20)
            self.assertEqual(result.status, 1, str(result))
            if 2 not in closed:
                self.assertIn("cannot be read", result.output)


class Unread(FaultCase):
    """The output is an open pipe that nobody reads. One signal must end the run."""

    SMALL = 4096

    def blocked(self, *arguments):
        """A run that waits for room in the pipe to which its output and messages go."""
        process = self.start("STILLS", VIDEO, "--every", "20ms", "-f", "png", "-j2", *arguments)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.kill)
        fcntl.fcntl(process.stdout, fcntl.F_SETPIPE_SZ, self.SMALL)
        deadline = time.monotonic() + 30
        before = -1
        while time.monotonic() < deadline and process.poll() is None:
            answer = fcntl.ioctl(process.stdout, termios.FIONREAD, b"\0" * 4)
            filled = struct.unpack("i", answer)[0]
            if before == filled > 0:
                return process
            before = filled
            time.sleep(0.5)
        return self.fail("The pipe does not fill.")

    def check_ends(self, process, number):
        process.send_signal(number)
        try:
            self.assertEqual(process.wait(timeout=20), 128 + number)
        except subprocess.TimeoutExpired:
            self.fail("One signal does not end the run.")
        self.check_clean()

    def test_one_signal_ends_a_run_whose_output_nobody_reads(self):
        for arguments in (("-o", "-"), ("--json", "-o", self.out), ("-v", "-o", self.out)):
            for number in (signal.SIGINT, signal.SIGTERM):
                with self.subTest((arguments, number)):
                    self.check_ends(self.blocked(*arguments), number)

    def test_picture_is_whole_if_its_reader_goes_on_after_the_signal(self):
        process = self.blocked("--quiet", "-o", "-")
        process.send_signal(signal.SIGTERM)
        content, _ = process.communicate(timeout=20)
        self.assertEqual(process.returncode, 128 + signal.SIGTERM)
        self.assertTrue(content.endswith(b"IEND\xae\x42\x60\x82"), content[-20:])


class Unwritten(FaultCase):
    """The list is read from standard input, and nobody writes it."""

    def check_ends(self, process, number):
        for stream in (process.stdin, process.stdout):
            self.addCleanup(stream.close)
        self.addCleanup(process.kill)
        time.sleep(1)
        process.send_signal(number)
        try:
            self.assertEqual(process.wait(timeout=20), 128 + number)
        except subprocess.TimeoutExpired:
            self.fail("One signal does not end the run.")

    def test_one_signal_ends_a_run_that_waits_for_its_list(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(number):
                self.check_ends(self.start("STILLS", "--files-from", "-", "-o", self.out,
                                           stdin=subprocess.PIPE), number)

    def test_one_signal_before_the_run_waits_for_its_list_ends_it(self):
        config = self.folder / "home/config/Morvantile/Morvantile"
        config.mkdir(parents=True)
        (config / "ImageProfiles.ini").write_text("[profiles]\nA\\id=A\nA\\name=mine\n")
        process = self.start("STILLS", "--profile", "mine", "--files-from", "-", "-o", self.out,
                             stdin=subprocess.PIPE, faults="call=read,slow=3000,times=1",
                             below=config)
        self.check_ends(process, signal.SIGTERM)
        self.assertTrue((self.folder / "faults.log").exists(), "no call was slow")


if __name__ == "__main__":
    unittest.main()
