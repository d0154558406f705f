"""The basis of all end-to-end tests."""

import contextlib
import functools
import os
import pathlib
import shutil
import tempfile
import unittest

from tests.e2e.driver.desktop import Desktop
from tests.e2e.driver.program import Program
from tests.e2e.driver.waiting import wait_until

MEDIA = pathlib.Path(os.environ.get("MORVANTILE_MEDIA", "build/media"))
# Between two frames of the samples that tests play.
FRAME_MS = 40
# Where a test that fails leaves the screen and the program's log.
TRACES = pathlib.Path(os.environ.get("MORVANTILE_TRACES", tempfile.gettempdir()))


def _leaving_traces(test):
    @functools.wraps(test)
    def wrapped(self):
        try:
            return test(self)
        except BaseException:
            with contextlib.suppress(OSError):
                self.leave_traces()
            raise

    return wrapped


def _stands_at(program, number):
    """Whether the video is paused at the frame, on the screen and in the position shown."""
    return (
        number is not None
        and program.offers_to_play()
        and program.shown_frame() == number
        and program.position == number * FRAME_MS
    )


class MorvantileCase(unittest.TestCase):
    """A test with a desktop, an empty folder and a new home folder."""

    def __init_subclass__(cls):
        super().__init_subclass__()
        for name, member in list(vars(cls).items()):
            if name.startswith("test_"):
                setattr(cls, name, _leaving_traces(member))

    def setUp(self):
        self.desktop = Desktop.shared()
        self.folder = pathlib.Path(
            self.enterContext(tempfile.TemporaryDirectory(prefix="morvantile-e2e-"))
        )
        self.home = self.folder / "home"
        self.videos = self.folder / "videos"
        self.videos.mkdir()

    def start(self, arguments=(), environment=None):
        """Starts the program, which ends no later than the test."""
        return self.enterContext(Program(self.desktop, self.home, arguments, environment))

    def sample(self, name, copy=None):
        """The path of a copy of the sample video in the test's folder for videos."""
        return pathlib.Path(shutil.copy(MEDIA / name, self.videos / (copy or name)))

    def open_paused(self, program, video):
        """Opens the video and pauses it with frames on either side; returns the frame's number."""
        program.open_with_dialog(video)
        wait_until(lambda: (program.shown_frame() or 0) >= 5, "it does not play")
        self.desktop.key("space")
        return self.wait_for_standstill(program)

    def wait_for_standstill(self, program):
        """Waits until the video is paused; returns the number of its frame."""
        wait_until(
            lambda: _stands_at(program, program.shown_frame()),
            lambda: f"frame {program.shown_frame()} at {program.position} ms",
        )
        return program.shown_frame()

    def wait_for_frame(self, program, number):
        """Waits until the video is paused at the frame."""
        wait_until(
            lambda: _stands_at(program, number),
            lambda: f"frame {program.shown_frame()} at {program.position} ms, not {number}",
        )

    def take_snapshot(self, program):
        """Takes the frame on the screen and waits until it is shown as the snapshot."""
        self.desktop.key("ctrl+a")
        wait_until(lambda: program.find("push button", "Save").is_enabled, "no snapshot was taken")

    def save_as(self, program, file):
        """Saves the snapshot through the dialog and returns the file."""
        title = program.window().name
        self.desktop.key("ctrl+s")
        program.window("Save As")
        program.enter(str(file))
        self.desktop.key("Return")
        program.window(title)
        wait_until(file.exists, f"no {file}")
        return file

    def name_automatically(self, program):
        """Checks the box for automatic names."""
        box = program.find("check box", "Automatic File Name")
        left, top, _, _ = box.area
        self.desktop.click(left + 12, top + 8)
        wait_until(lambda: box.is_checked, "it is not checked")

    def leave_traces(self):
        folder = TRACES / self.id()
        folder.mkdir(parents=True, exist_ok=True)
        self.desktop.picture().save(folder / "screen.png")
        for log in self.home.glob("*.log"):
            shutil.copy(log, folder)
        print(f"\nscreen and log: {folder}")
