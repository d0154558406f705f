"""The window when the system's calls fail: what could not be done is told with its cause, nothing is
lost, and the window never hangs."""

import os
import subprocess
import time

from PIL import Image

from tests.e2e.driver.case import MEDIA, MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import holds_for, wait_until

# How long the window may take for an answer on a busy machine; one that waits for a slow read takes
# twice as long.
ANSWER_S = 10.0
SLOW_MS = 20000


class WindowFaults(MorvantileCase):
    def start_with(self, faults, below, arguments=()):
        """Starts the program with faults for what lies below a folder."""
        self.faults_log = self.folder / "faults.log"
        return self.start(
            arguments,
            environment={
                "LD_PRELOAD": os.environ["FAULTS_LIBRARY"],
                "FAULTS": faults,
                "FAULTS_BELOW": os.path.realpath(below),
                "FAULTS_LOG": str(self.faults_log),
            }
        )

    def wait_for_fault(self):
        wait_until(
            lambda: self.faults_log.exists() and self.faults_log.read_text(), "no call was hit"
        )

    def wait_for_message(self, program, *texts):
        """Waits until the line at the foot of the window has all of these."""
        bar = program.find("status bar")
        wait_until(lambda: all(text in bar.name for text in texts), lambda: f"it says: {bar.name}")

    def check_answers(self, program, seconds):
        """The window answers all the time."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            began = time.monotonic()
            program.find("push button", "Play/Pause")
            self.assertLess(time.monotonic() - began, ANSWER_S, "the window hangs")
            time.sleep(0.05)


class SavingFaults(WindowFaults):
    """The first saving fails, and the second one succeeds."""

    NAME = "h264_gop250-00001.jpeg"

    def fail_once(self, faults, cause):
        pictures = self.folder / "pictures"
        pictures.mkdir()
        (pictures / "other.txt").write_text("of somebody")
        program = self.start_with(f"{faults},times=1", pictures)
        number = self.open_paused(program, self.sample("h264_gop250.mp4"))
        self.take_snapshot(program)
        self.name_automatically(program)
        program.fill("Output folder", str(pictures))
        self.desktop.key("Return")
        self.desktop.key("ctrl+s")
        self.wait_for_message(program, f"Could not save {self.NAME}: ", cause, str(pictures))
        self.wait_for_fault()
        self.assertEqual([path.name for path in pictures.iterdir()], ["other.txt"])
        self.assertEqual(program.shown_snapshot(), number)
        self.desktop.key("ctrl+s")
        wait_until((pictures / self.NAME).exists, lambda: f"only {list(pictures.iterdir())}")
        self.wait_for_message(program, "Saved ")
        with Image.open(pictures / self.NAME) as picture:
            self.assertEqual(frame_number(picture), number)
        self.assertEqual((pictures / "other.txt").read_text(), "of somebody")

    def test_full_disk_is_told_and_the_snapshot_can_be_saved_later(self):
        self.fail_once("call=write,error=ENOSPC", "The disk is full")

    def test_folder_that_may_not_be_written_is_told(self):
        self.fail_once("call=open,error=EACCES,name=.part", "does not let you write")

    def test_name_that_cannot_be_taken_is_told(self):
        self.fail_once("call=rename,error=EIO", "Input/output error")

    def test_error_at_the_very_end_of_writing_is_told(self):
        self.fail_once("call=close,error=EDQUOT,name=.part", "Your quota is used up")


class ReadingFaults(WindowFaults):
    """Videos whose file fails or becomes slow while they play."""

    def play(self, faults):
        # Long enough that it is not all read ahead.
        bad = self.videos / "bad.mp4"
        subprocess.run(
            ["ffmpeg", "-v", "error", "-stream_loop", "19", "-i", MEDIA / "h264_1080p.mp4",
             "-c", "copy", bad],
            check=True,
        )
        program = self.start_with(f"{faults},name=bad.mp4", self.videos)
        program.open_with_dialog(bad)
        return program

    def check_another_video_plays(self, program):
        good = self.sample("h264_gop250.mp4", "good.mp4")
        program.open_with_dialog(good)
        wait_until(lambda: (program.shown_frame() or 0) >= 5, "another video does not play")

    def test_read_errors_are_told_and_another_video_plays(self):
        program = self.play("call=read,error=EIO,megabyte=3")
        self.wait_for_fault()
        self.wait_for_message(program, "bad.mp4")
        self.check_answers(program, 1.0)
        self.check_another_video_plays(program)

    def test_slow_reads_do_not_hang_the_window(self):
        program = self.play(f"call=read,slow={SLOW_MS},megabyte=3")
        self.wait_for_fault()
        self.check_answers(program, 3.0)
        self.desktop.key("Right", "Left")
        self.check_answers(program, 1.0)
        self.check_another_video_plays(program)
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)

    def test_disk_that_does_not_answer_holds_neither_the_window_nor_its_end(self):
        program = self.play("call=read,slow=600000,megabyte=3")
        self.wait_for_fault()
        self.check_answers(program, 2.0)
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(15), 0)


class FolderFaults(WindowFaults):
    """Disks that answer no question about what is on them."""

    HANG = "slow=600000"

    def test_folder_that_cannot_be_listed_holds_neither_the_window_nor_its_end(self):
        video = self.sample("h264_gop250.mp4")
        program = self.start_with(f"call=list,{self.HANG}", self.videos, [str(video)])
        self.wait_for_fault()
        self.check_answers(program, 2.0)
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(15), 0)

    def test_recent_videos_that_cannot_be_asked_about_hold_up_nothing_and_are_offered(self):
        video = self.sample("h264_gop250.mp4")
        program = self.start()
        self.open_paused(program, video)
        # The next window looks for this folder, too.
        stills = self.videos / "stills"
        stills.mkdir()
        self.take_snapshot(program)
        self.save_as(program, stills / "kept.png")
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)

        program = self.start_with(f"call=stat,{self.HANG}", self.videos)
        self.wait_for_fault()
        program.find("push button", video.name)
        self.check_answers(program, 2.0)
        program.click("menu item", "File")
        program.click("menu item", "Open Recent")
        program.find("menu item", video.name)
        self.desktop.key("Escape", "Escape")
        self.check_answers(program, 1.0)
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(15), 0)


class SettingsFaults(WindowFaults):
    def check_told_once(self, faults, cause):
        config = self.home / "config"
        config.mkdir(parents=True)
        program = self.start_with(faults, config)
        label = "Settings cannot be saved"

        def told():
            return [text for text in program.find_all("label") if label in text.name]

        wait_until(lambda: len(told()) == 1, lambda: f"{len(told())} messages")
        self.assertIn(cause, told()[0].name)
        self.desktop.key("Return")
        wait_until(lambda: not told(), "the message stays")
        program.window("Morvantile")
        self.open_paused(program, self.sample("h264_gop250.mp4"))
        self.take_snapshot(program)
        self.assertTrue(holds_for(lambda: not told(), 0.5))
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)
        left = [path for path in config.rglob("*") if "probe" in path.name]
        self.assertEqual(left, [], "what the program tried stays")

    def test_full_disk_is_told_once(self):
        self.check_told_once("call=write,error=ENOSPC", "No space left on device")

    def test_settings_that_cannot_be_renamed_are_told_once(self):
        self.check_told_once("call=rename,error=EACCES", "Permission denied")

    def test_failing_disk_is_told_once(self):
        self.check_told_once("call=write,error=EIO", "Input/output error")


if __name__ == "__main__":
    import unittest

    unittest.main()
