"""What would be lost by mistake: unsaved snapshots where they cannot be kept, the video and the list
behind batch mode."""

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.waiting import holds_for, wait_until

QUESTION = "Unsaved Snapshot"
BATCH = "Morvantile Batch Mode"


class LosingTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.video = self.sample("h264_gop250.mp4")
        # No folder can be made here, so that the filmstrip ends with the program.
        self.program = self.start(environment={"XDG_DATA_HOME": "/dev/null/data"})
        self.number = self.open_paused(self.program, self.video)

    def test_quitting_asks_about_an_unsaved_snapshot(self):
        self.take_snapshot(self.program)
        self.desktop.key("alt+F4")
        self.program.click_in(QUESTION, "Cancel")
        self.program.window(f"Morvantile - {self.video.name}")
        self.assertEqual(self.program.shown_snapshot(), self.number)
        self.desktop.key("alt+F4")
        self.program.click_in(QUESTION, "Save")
        self.program.window("Save As")
        file = self.folder / "kept.png"
        self.program.enter(str(file))
        self.desktop.key("Return")
        self.assertEqual(self.program.wait_for_end(), 0)
        self.assertTrue(file.exists())

    def test_quitting_by_the_menu_asks_once(self):
        self.take_snapshot(self.program)
        self.program.click("menu item", "File")
        self.program.click("menu item", "Exit")
        self.program.click_in(QUESTION, "Discard")
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_quitting_asks_nothing_once_the_snapshot_is_saved(self):
        self.take_snapshot(self.program)
        self.save_as(self.program, self.folder / "saved.png")
        self.desktop.key("alt+F4")
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_another_video_is_opened_without_a_question_and_quitting_asks(self):
        other = self.sample("h264_bframes.mp4")
        self.take_snapshot(self.program)
        self.program.open_with_dialog(other)
        wait_until(lambda: self.program.shown_snapshot() is None, "the snapshot is still shown")
        self.desktop.key("alt+F4")
        self.program.click_in(QUESTION, "Discard")
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_batch_mode_leaves_video_and_snapshot_alone(self):
        self.take_snapshot(self.program)
        self.program.click("menu item", "Tools")
        self.program.click("menu item", "Batch Mode")
        self.program.window(BATCH)
        self.desktop.key("Escape")
        self.program.window(f"Morvantile - {self.video.name}")
        self.assertEqual(self.program.shown_snapshot(), self.number)
        self.wait_for_frame(self.program, self.number)
        self.desktop.key("Right")
        self.wait_for_frame(self.program, self.number + 1)

    def test_file_that_is_no_video_leaves_nothing_to_press(self):
        self.program.open_with_dialog(self.sample("random_bytes.mp4"))
        bar = self.program.find("status bar")
        wait_until(
            lambda: bar.name == "The file is damaged, or no video.", lambda: f"it says: {bar.name}"
        )
        for name in ("Play/Pause", "Step forward one frame", "Take Snapshot", "Save"):
            self.assertFalse(self.program.find("push button", name).is_enabled, name)
        self.desktop.key("ctrl+a")
        self.assertTrue(
            holds_for(lambda: self.program.window().name.startswith("Morvantile - "), 0.5)
        )
