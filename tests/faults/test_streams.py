"""Standard input, output and error that are closed, or that nobody reads."""

import itertools
import os
import signal
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
                    self.check_occupied("STILLS", [VIDEO, "--every", "20ms", "-f", "png", "-o", self.out],
                                        closed)

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


if __name__ == "__main__":
    unittest.main()
