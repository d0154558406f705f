"""Files dragged here from another program."""

import os
import pathlib
import shutil

from tests.e2e.driver import processes
from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.waiting import wait_until

DRAG_SOURCE = pathlib.Path(
    os.environ.get("MORVANTILE_DRAG_SOURCE", "build/release/tests/e2e/DragSource")
).absolute()


class DroppingTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.said = self.folder / "said"

    def test_dropped_video_plays(self):
        self.start_source(self.sample("h264_gop250.mp4"))
        self.drag_to(self.program.open_button())
        self.desktop.release()
        self.program.window("Morvantile - h264_gop250.mp4")
        wait_until(self.program.shown_frame, "it does not play")

    def test_video_among_other_files_takes_the_place_of_the_one_that_plays(self):
        text = self.folder / "text.txt"
        text.write_text("no video")
        self.program.open_with_dialog(self.sample("h264_gop250.mp4"))
        self.start_source(text, self.sample("h264_bframes.mp4"))
        self.drag_to(self.program.find("push button", "Take Snapshot"))
        self.desktop.release()
        self.program.window("Morvantile - h264_bframes.mp4")
        wait_until(lambda: self.program.duration == 100 * 40, "still the first video's duration")
        self.assertTrue((self.videos / "h264_bframes.mp4").exists())

    def test_dropped_folder_goes_to_batch_mode(self):
        folder = self.folder / "day"
        folder.mkdir()
        for name in ("take 9.mp4", "take 10.mp4"):
            shutil.copy(self.sample("h264_gop250.mp4"), folder / name)
        (folder / "notes.txt").write_text("no video")
        self.start_source(folder)
        self.drag_to(self.program.open_button())
        self.program.find("label", "Drop to open")
        self.desktop.release()
        self.program.window("Several Videos")
        wait_until(lambda: not self.program.has("label", "Drop to open"), "still highlighted")
        self.program.click_in("Several Videos", "Batch")
        self.program.window("Morvantile Batch Mode")
        wait_until(lambda: len(self.listed()) == 2, lambda: f"listed: {self.listed()}")
        self.assertEqual(self.listed(), ["take 9", "take 10"])

    # --- what the cases are made of ------------------------------------------------------------

    def listed(self):
        """The names of the videos in the list of batch mode."""
        cells = self.program.find("table", "Files").all("table cell")
        return [cell.name for cell in cells if cell.name in ("take 9", "take 10")]

    def start_source(self, *files):
        """Starts the other program, a window in the corner."""
        environment = {**self.desktop.environment, "QT_QPA_PLATFORM": "xcb"}
        with open(self.said, "wb") as said:
            source = processes.start([DRAG_SOURCE, *files], env=environment, stdout=said)
        self.addCleanup(processes.stop, source)
        self.source = wait_until(lambda: self.desktop.window_area("DragSource"), "no source")

    def drag_to(self, control):
        """Drags the files over the control and waits until the program would accept them."""
        left, top, right, bottom = self.source
        self.desktop.move((left + right) // 2, (top + bottom) // 2)
        self.desktop.press()
        self.addCleanup(self.desktop.release)
        self.desktop.drag(*control.middle)
        wait_until(lambda: "taken" in self.said.read_text(), "the program refuses them")
