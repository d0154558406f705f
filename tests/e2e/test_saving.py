"""Taking snapshots and saving them."""

import contextlib
import pathlib
import subprocess
import sys
import urllib.parse

from PIL import Image

from tests.e2e.driver import processes
from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import holds_for, wait_until

# How a file of the format begins.
SIGNATURES = {
    "jpg": (b"\xff\xd8\xff", "JPEG"),
    "png": (b"\x89PNG\r\n\x1a\n", "PNG"),
    "bmp": (b"BM", "BMP"),
    "tiff": (b"II*\0", "TIFF"),
}


@contextlib.contextmanager
def file_manager(desktop, shown):
    """A file manager that writes the files it shows to a file."""
    process = processes.start(
        [sys.executable, "-m", "tests.e2e.driver.file_manager", shown],
        env={**desktop.environment, "PYTHONDONTWRITEBYTECODE": "1"},
        stdout=subprocess.PIPE,
    )
    try:
        if process.stdout.readline() != b"ready\n":
            raise AssertionError("the file manager did not start")
        yield
    finally:
        processes.stop(process)
        process.stdout.close()


class FirstMinuteTest(MorvantileCase):

    def test_eight_actions_lead_from_the_video_to_the_file_in_its_folder(self):
        """The actions as counted in the guide, without earlier settings."""
        shown = self.folder / "shown"
        with file_manager(self.desktop, shown):
            program = self.start([self.sample("h264_gop250.mp4")])  # 1, in a file manager
            wait_until(lambda: program.shown_frame() is not None, "it does not play")
            self.desktop.key("ctrl+g")  # 2
            program.enter("0:12.5")  # 3, with Return
            self.desktop.key("Return")
            self.wait_for_frame(program, 313)
            self.desktop.key("s")  # 4
            wait_until(lambda: program.shown_snapshot() == 313, "another frame is shown")
            program.click("push button", "Original Size")  # 5
            program.find("label", "160 × 120 · JPEG 90")
            self.desktop.key("ctrl+s")  # 6
            program.window("Save As")
            self.desktop.key("Return")  # 7
            program.click("push button", "Show in Folder")  # 8
            wait_until(shown.exists, "the file manager was not asked")
            (line,) = wait_until(lambda: shown.read_text().splitlines(), "nothing is shown")
            file = pathlib.Path(urllib.parse.unquote(urllib.parse.urlparse(line).path))
        with Image.open(file) as picture:
            self.assertEqual(picture.size, (160, 120))
            self.assertEqual(frame_number(picture), 313)


class SavingTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.pictures = self.folder / "pictures"
        self.pictures.mkdir()

    def test_snapshot_is_the_frame_on_the_screen(self):
        number = self.open_video()
        self.take_snapshot(self.program)
        wait_until(lambda: self.program.shown_snapshot() == number, "another frame is shown")
        self.desktop.key("Right")
        self.wait_for_frame(self.program, number + 1)
        self.assertEqual(self.program.shown_snapshot(), number)
        self.program.click("push button", "Take Snapshot")
        wait_until(lambda: self.program.shown_snapshot() == number + 1, "the old frame is shown")

    def test_chosen_profile_and_original_size_are_shown_and_saved(self):
        self.open_video()
        self.take_snapshot(self.program)
        self.program.find("label", "640 × 480 of 160 × 120 · JPEG 90")
        self.program.choose("Image profile", "Thumbnail 320")
        self.program.find("label", "320 × 240 of 160 × 120 · JPEG 90")
        with Image.open(self.save_as(self.program, self.pictures / "small.jpg")) as picture:
            self.assertEqual(picture.size, (320, 240))
        self.program.click("push button", "Original Size")
        self.program.find("label", "160 × 120 · JPEG 90")
        self.program.find("combo box", "Original size")
        with Image.open(self.save_as(self.program, self.pictures / "original.png")) as picture:
            self.assertEqual(picture.size, (160, 120))
        self.program.find("label", "160 × 120 · PNG")

    def test_dialog_saves_in_all_formats(self):
        number = self.open_video()
        self.take_snapshot(self.program)
        for suffix, (signature, kind) in SIGNATURES.items():
            with self.subTest(suffix):
                file = self.save_as(self.program, self.pictures / f"one.{suffix}")
                self.assertTrue(file.read_bytes().startswith(signature))
                with Image.open(file) as picture:
                    self.assertEqual(picture.format, kind)
                    self.assertEqual(picture.size, (640, 480))
                    self.assertEqual(frame_number(picture), number)
        self.assertEqual(len(list(self.pictures.iterdir())), len(SIGNATURES))

    def test_dialog_completes_a_name_by_the_chosen_type(self):
        self.open_video()
        self.take_snapshot(self.program)
        self.desktop.key("ctrl+s")
        self.program.window("Save As")
        # Before the name: the completions that come up while it is typed would take the click.
        self.program.click("combo box", "JPEG (*.jpg *.jpeg)")
        self.desktop.key("Down", "Return")
        self.program.find("combo box", "PNG (*.png)")
        # "File name"
        self.desktop.key("alt+n")
        self.program.enter(str(self.pictures / "named"))
        self.desktop.key("Return")
        file = self.pictures / "named.png"
        wait_until(file.exists, lambda: f"only {list(self.pictures.iterdir())}")
        with Image.open(file) as picture:
            self.assertEqual(picture.format, "PNG")

    def test_dialog_asks_before_it_replaces_a_file(self):
        self.open_video()
        self.take_snapshot(self.program)
        file = self.pictures / "taken.png"
        file.write_bytes(b"precious")
        for answer in ("No", "Yes"):
            self.desktop.key("ctrl+s")
            self.program.window("Save As")
            self.program.enter(str(file))
            self.desktop.key("Return")
            wait_until(lambda: self.program.has("push button", "No"), "it does not ask")
            self.program.click("push button", answer)
            if answer == "No":
                wait_until(lambda: not self.program.has("push button", "No"), "it still asks")
                self.assertEqual(file.read_bytes(), b"precious")
                self.desktop.key("Escape")
                self.program.window("Morvantile - h264_gop250.mp4")
        wait_until(lambda: file.read_bytes() != b"precious", "it is not replaced")

    def test_automatic_names_count_on_and_replace_nothing(self):
        number = self.open_video()
        self.take_snapshot(self.program)
        old = {f"h264_gop250-0000{i}.jpeg": f"old {i}".encode() for i in (1, 2, 4)}
        for name, content in old.items():
            (self.pictures / name).write_bytes(content)
        self.save_automatically_into(self.pictures)
        self.expect_next("h264_gop250-00003.jpeg")
        for step, name in enumerate(("00003", "00005", "00006")):
            if step:
                self.desktop.key("Right")
                self.wait_for_frame(self.program, number + step)
                self.desktop.key("ctrl+a")
                wait_until(
                    lambda: self.program.shown_snapshot() == number + step, "the old frame is shown"
                )
            self.desktop.key("ctrl+s")
            file = self.pictures / f"h264_gop250-{name}.jpeg"
            wait_until(file.exists, lambda: f"no {file} in {list(self.pictures.iterdir())}")
            with Image.open(file) as picture:
                self.assertEqual(picture.format, "JPEG")
                self.assertEqual(frame_number(picture), number + step)
        self.expect_next("h264_gop250-00007.jpeg")
        for name, content in old.items():
            self.assertEqual((self.pictures / name).read_bytes(), content)
        self.assertEqual(len(list(self.pictures.iterdir())), 6)

    def test_automatic_names_start_over_with_the_next_video(self):
        self.open_video()
        self.take_snapshot(self.program)
        self.save_automatically_into(self.pictures)
        self.desktop.key("ctrl+s")
        wait_until((self.pictures / "h264_gop250-00001.jpeg").exists, "nothing was saved")
        number = self.open_paused(self.program, self.sample("h264_bframes.mp4"))
        self.take_snapshot(self.program)
        self.program.click("push button", "Save")
        # In the folder that was chosen, not where the video is.
        file = self.pictures / "h264_bframes-00001.jpeg"
        wait_until(file.exists, "nothing was saved")
        with Image.open(file) as picture:
            self.assertEqual(frame_number(picture), number)

    def test_missing_folder_is_made_only_when_wanted(self):
        self.open_video()
        self.take_snapshot(self.program)
        new = self.pictures / "a" / "b"
        self.save_automatically_into(new)
        for answer in ("No", "Yes"):
            self.desktop.key("ctrl+s")
            self.program.window("Folder does not exist")
            self.program.click("push button", answer)
            self.program.window("Morvantile - h264_gop250.mp4")
            if answer == "No":
                self.assertTrue(holds_for(lambda: not new.exists(), 0.3))
        wait_until((new / "h264_gop250-00001.jpeg").exists, "nothing was saved")

    def test_dialog_proposes_the_next_free_name(self):
        number = self.open_video()
        self.take_snapshot(self.program)
        first = self.save_as(self.program, self.pictures / "shot.png")
        content = first.read_bytes()
        for step, name in ((1, "shot-2.png"), (2, "shot-3.png")):
            self.desktop.key("Right")
            self.wait_for_frame(self.program, number + step)
            self.desktop.key("ctrl+a")
            wait_until(lambda: self.program.shown_snapshot() == number + step, "the old frame")
            self.desktop.key("ctrl+s")
            self.program.window("Save As")
            self.desktop.key("Return")
            self.program.window("Morvantile - h264_gop250.mp4")
            file = self.pictures / name
            wait_until(file.exists, lambda: f"only {list(self.pictures.iterdir())}")
            with Image.open(file) as picture:
                self.assertEqual(frame_number(picture), number + step)
        self.assertEqual(first.read_bytes(), content)

    def test_saved_file_is_shown_in_the_file_manager(self):
        shown = self.folder / "shown"
        self.enterContext(file_manager(self.desktop, shown))
        self.open_video()
        self.assertFalse(self.program.has("push button", "Show in Folder"))
        self.take_snapshot(self.program)
        file = self.save_as(self.program, self.pictures / "100% ü #1.png")
        self.program.click("push button", "Show in Folder")
        wait_until(shown.exists, "the file manager was not asked")
        wait_until(lambda: shown.read_text().splitlines() == [file.as_uri()], shown.read_text)

    # --- what the cases are made of ------------------------------------------------------------

    def open_video(self):
        """Paused; returns the number of its frame."""
        return self.open_paused(self.program, self.sample("h264_gop250.mp4"))

    def save_automatically_into(self, folder):
        self.name_automatically(self.program)
        self.program.fill("Output folder", str(folder))
        self.desktop.key("Return")

    def expect_next(self, name):
        label = self.program.find(description="Next file name")
        wait_until(lambda: label.name == name, lambda: f"next comes {label.name}")
