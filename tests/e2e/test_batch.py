"""Batch mode: many videos at once, prepared, run and cancelled by keys and mouse."""

import os
import pathlib
import subprocess

from PIL import Image

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import LIMIT_S, wait_until

CLI = pathlib.Path(os.environ.get("MORVANTILE_CLI", "build/release/app/morvantile-cli")).absolute()

MODE = "Morvantile Batch Mode"
# Of the list: file name, destination, interval, output example, images.
COLUMNS = 5
RUN = "Batch Processing"

# One every 2000 ms, from 600 ms to 600 ms before the end of 20.8 and of 4 seconds; and one every
# 5000 ms, from 2000 ms to 2000 ms before the end of 20.8 seconds. None is just behind a key frame,
# which would be taken in its place.
FRAMES = {
    "a": [15, 65, 115, 165, 215, 265, 315, 365, 415, 465],
    "b": [50, 175, 300, 425],
    "c": [15, 65],
}


class BatchTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.pictures = self.folder / "pictures"
        self.pictures.mkdir()

    def test_videos_edited_together_give_the_images_of_the_command_line(self):
        videos = {
            "a": self.sample("h264_gop250.mp4", "a.mp4"),
            "b": self.sample("h264_gop250.mp4", "b.mp4"),
            "c": self.sample("h264_bframes.mp4", "c.mp4"),
        }
        self.open_batch_mode()
        self.load(*videos.values())
        self.select("a", "c")
        self.program.find("label", "[Multiple]")
        self.program.fill("Seconds from image to image", "2")
        self.program.fill("Seconds to skip at the front", "0.6")
        self.program.fill("Seconds to skip at the back", "0.6")
        self.program.fill("Folder", str(self.pictures))
        wait_until(
            lambda: self.column(2) == ["Every 2 s", "Every 5 s", "Every 2 s"],
            lambda: f"intervals: {self.column(2)}",
        )
        self.assertEqual(
            self.column(1), [str(self.pictures), str(self.videos), str(self.pictures)]
        )
        self.run_to_its_end()

        made = {**images_in(self.pictures), **images_in(self.videos)}
        expected = {
            f"{video}-{i + 1:05}.jpeg": number
            for video, numbers in FRAMES.items()
            for i, number in enumerate(numbers)
        }
        self.assertEqual({name: frame_in(file) for name, file in made.items()}, expected)

        again = self.folder / "again"
        again.mkdir()
        both = ("--ms", "2000", "--skipfront", "600", "--skipback", "600")
        for video, options in (("a", both), ("b", ()), ("c", both)):
            self.run_command_line(videos[video], again, *options)
        self.assertEqual(
            {name: file.read_bytes() for name, file in images_in(again).items()},
            {name: file.read_bytes() for name, file in made.items()},
        )

    def test_cancelled_batch_leaves_only_whole_images(self):
        videos = [self.sample("h264_gop250.mp4", name) for name in ("a.mp4", "b.mp4")]
        self.open_paused(self.program, videos[0])
        self.open_batch_mode()
        self.load(*videos)
        self.program.fill("Folder", str(self.pictures))
        self.run_to_its_end()
        first = {name: file.read_bytes() for name, file in images_in(self.pictures).items()}
        self.assertEqual(len(first), 8)

        # 168 images of each video, with a pause after each: it does not end by itself soon.
        self.program.click("check box", "Exact frames")
        self.program.fill("Seconds from image to image", "0.1")
        self.program.click("push button", "Start")
        self.answer_cancelling("No")
        count = len(images_in(self.pictures))
        wait_until(lambda: len(images_in(self.pictures)) > count, "it does not go on")
        self.answer_cancelling("Yes")
        outcome = self.wait_for_completion("Cancelled after ")
        self.assertLess(self.program.find("progress bar", "Progress of all videos").value, 50)

        names = sorted(file.name for file in self.pictures.iterdir())
        new = [f"a-{i:05}.jpeg" for i in range(5, len(names) - 3)]
        self.assertEqual(outcome, f"Cancelled after {len(new)} images")
        self.assertEqual(names, sorted([*first, *new]))
        numbers = [frame_in(self.pictures / name) for name in new]
        self.assertNotIn(None, numbers)
        self.assertEqual(numbers, sorted(numbers))
        for name, content in first.items():
            self.assertEqual((self.pictures / name).read_bytes(), content)

        # The video that was open still is.
        self.program.click_in(RUN, "Done")
        self.program.click_in(MODE, "Cancel")
        self.program.window(f"Morvantile - {videos[0].name}")
        self.assertTrue(self.program.find("push button", "Play/Pause").is_enabled)
        self.program.open_with_dialog(videos[1])

    def test_failed_video_is_marked_and_retried_alone(self):
        good = self.sample("h264_gop250.mp4", "good.mp4")
        broken = self.sample("random_bytes.mp4", "broken.mp4")
        self.open_batch_mode()
        self.load(good, broken)
        self.assertEqual(self.column(4), ["4", "?"])
        folder = self.pictures / "new"
        self.program.fill("Folder", str(folder))
        self.program.click("push button", "Start")
        self.program.click_in("Folder does not exist", "Yes")
        self.program.window(RUN)
        self.program.find("push button", "Done")
        log = self.program.find("text", "Log")
        wait_until(lambda: "Finished" in log.text, lambda: f"log: {log.text}")
        self.assertEqual(
            log.text.splitlines(), [f"{broken}: Could not open file", "Finished: 4 images, 1 failed"]
        )
        self.program.click_in(RUN, "Done")
        self.program.window(MODE)
        self.assertEqual([cell.description for cell in self.cells(0)], ["", "Failed"])

        broken.write_bytes(good.read_bytes())
        self.program.click("push button", "Retry Failed")
        self.program.window(RUN)
        self.wait_for_completion("Finished: 4 images")
        self.program.click_in(RUN, "Done")
        self.program.window(MODE)
        self.assertEqual([cell.description for cell in self.cells(0)], ["", ""])
        self.assertFalse(self.program.has("push button", "Retry Failed"))
        self.assertEqual(
            sorted(images_in(folder)),
            [f"{name}-{i:05}.jpeg" for name in ("broken", "good") for i in range(1, 5)],
        )

    def test_running_batch_does_not_keep_the_system_from_ending_the_program(self):
        self.open_batch_mode()
        self.load(self.sample("h264_gop250.mp4", "a.mp4"))
        self.program.fill("Folder", str(self.pictures))
        # 168 images, with a pause after each.
        self.program.fill("Seconds from image to image", "0.1")
        self.program.click("push button", "Start")
        self.program.window(RUN)
        wait_until(lambda: images_in(self.pictures), "it does not begin")
        self.program.terminate()
        self.assertEqual(self.program.wait_for_end(), 0)
        self.assertLess(len(images_in(self.pictures)), 168)
        numbers = [frame_in(file) for file in self.pictures.iterdir()]
        self.assertNotIn(None, numbers)

    def test_list_comes_back_after_a_restart(self):
        videos = [self.sample("h264_gop250.mp4", name) for name in ("a.mp4", "b.mp4")]
        self.open_batch_mode()
        self.load(*videos)
        self.select("b")
        self.program.fill("Seconds from image to image", "2")
        self.program.fill("Folder", str(self.pictures))
        self.program.find("label", "About 13 images of 2 videos")
        self.desktop.key("Escape")
        self.program.window("Morvantile")
        self.desktop.key("alt+F4")
        self.assertEqual(self.program.wait_for_end(), 0)

        self.program = self.start()
        self.open_batch_mode()
        wait_until(lambda: self.column(0) == ["a", "b"], lambda: f"listed: {self.column(0)}")
        self.assertEqual(self.column(1), [str(self.videos), str(self.pictures)])
        self.assertEqual(self.column(2), ["Every 5 s", "Every 2 s"])
        self.assertEqual(self.column(4), ["4", "9"])

    def test_list_comes_back_when_the_system_ended_the_program_in_batch_mode(self):
        videos = [self.sample("h264_gop250.mp4", name) for name in ("a.mp4", "b.mp4")]
        self.open_batch_mode()
        self.load(*videos)
        self.select("b")
        self.program.fill("Seconds from image to image", "2")
        self.program.find("label", "About 13 images of 2 videos")
        self.program.terminate()
        self.assertEqual(self.program.wait_for_end(), 0)

        self.program = self.start()
        self.open_batch_mode()
        wait_until(lambda: self.column(0) == ["a", "b"], lambda: f"listed: {self.column(0)}")
        self.assertEqual(self.column(2), ["Every 5 s", "Every 2 s"])

    # --- what the cases are made of ------------------------------------------------------------

    def open_batch_mode(self):
        self.program.click("menu item", "Tools")
        self.program.click("menu item", "Batch Mode")
        self.program.window(MODE)

    def load(self, *videos):
        """Loads all videos at once."""
        self.program.click("push button", "Load Video")
        self.program.window("Open")
        self.program.enter(" ".join(f'"{video}"' for video in videos))
        self.desktop.key("Return")
        self.program.window(MODE)
        names = [video.stem for video in videos]
        wait_until(lambda: self.column(0) == names, lambda: f"loaded: {self.column(0)}")

    def cells(self, column):
        cells = self.program.find("table", "Files").all("table cell")
        return [cell for i, cell in enumerate(cells) if i % COLUMNS == column]

    def column(self, column):
        """The texts of a column of the list of videos, by row."""
        return [cell.name for cell in self.cells(column)]

    def select(self, first, *others):
        """Selects the rows of these videos, and no others, by clicks."""
        self.program.click("table cell", first)
        selected = [first]
        wait_until(lambda: self.selected() == selected, lambda: f"selected: {self.selected()}")
        with self.desktop.holding("ctrl"):
            for name in others:
                self.program.click("table cell", name)
                selected = [*selected, name]
                wait_until(
                    lambda: self.selected() == selected, lambda: f"selected: {self.selected()}"
                )

    def selected(self):
        return [cell.name for cell in self.cells(0) if cell.has_state("SELECTED")]

    def run_to_its_end(self):
        self.program.click("push button", "Start")
        self.program.window(RUN)
        self.wait_for_completion("Finished: ")
        for name in ("Progress of the current video", "Progress of all videos"):
            self.assertEqual(self.program.find("progress bar", name).value, 100, name)
        self.program.click_in(RUN, "Done")
        self.program.window(MODE)

    def wait_for_completion(self, outcome):
        """Waits until the log contains only the result of the batch; returns it."""
        self.program.find("push button", "Done")
        log = self.program.find("text", "Log")
        wait_until(lambda: log.text.startswith(outcome), lambda: f"log: {log.text}")
        text = log.text.strip()
        self.assertNotIn("\n", text)
        self.program.find("label", text, "Status")
        return text

    def answer_cancelling(self, answer):
        self.program.click_in(RUN, "Cancel")
        self.program.window("Cancel Batch Processing")
        self.program.click("push button", answer)
        self.program.window(RUN)

    def run_command_line(self, video, folder, *options):
        subprocess.run(
            [CLI, video, folder, *options],
            env={**self.desktop.environment, "HOME": str(self.home)},
            check=True,
            timeout=LIMIT_S,
        )


def images_in(folder):
    """The images by their names."""
    return {file.name: file for file in folder.iterdir() if file.suffix == ".jpeg"}


def frame_in(file):
    with Image.open(file) as picture:
        return frame_number(picture)
