"""The filmstrip: earlier snapshots, their frames, and what survives the program."""

from PIL import Image

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import wait_until

FIRST = "h264_gop250.mp4"
SECOND = "h264_bframes.mp4"


class FilmstripTest(MorvantileCase):

    def test_snapshots_survive_sigterm_and_lead_back_to_their_frames_until_they_are_saved(self):
        self.program = self.start()
        first = self.snap(FIRST)
        self.program.terminate()
        self.assertEqual(self.program.wait_for_end(), 0)

        self.program = self.start()
        wait_until(lambda: len(self.snapshots()) == 1, "the snapshot is not back")
        # No question, although there is an unsaved one.
        second = self.snap(SECOND)
        wait_until(lambda: len(self.snapshots()) == 2, "the second one is not there")

        self.choose(0)
        self.program.window(f"Morvantile - {FIRST}")
        self.wait_for_frame(self.program, first)
        wait_until(lambda: self.program.shown_snapshot() == first, "another snapshot is shown")
        self.desktop.key("Right")
        self.wait_for_frame(self.program, first + 1)

        self.choose(1)
        self.program.window(f"Morvantile - {SECOND}")
        self.wait_for_frame(self.program, second)
        self.delete_and_undo()

        self.name_automatically(self.program)
        self.program.click("push button", "Save All")
        wait_until(lambda: self.states() == ["saved", "saved"], lambda: f"{self.states()}")
        saved = [self.videos / name.replace(".mp4", "-00001.jpeg") for name in (FIRST, SECOND)]
        folder = saved[0].parent
        self.assertEqual(sorted(folder.glob("*.jpeg")), sorted(saved))
        for file, number in zip(saved, (first, second)):
            with Image.open(file) as picture:
                self.assertEqual(frame_number(picture), number)
        self.desktop.key("alt+F4")
        self.assertEqual(self.program.wait_for_end(), 0)
        self.program = self.start()
        self.assertFalse(self.program.has("push button", "Save All"))

    def test_damaged_list_is_put_aside_and_told_once(self):
        kept = self.home / "data" / "Morvantile" / "Morvantile" / "snapshots"
        kept.mkdir(parents=True)
        (kept / "index.json").write_text('{"version": 1, "snapsh')
        (kept / "precious.png").write_bytes(b"picture")
        program = self.start()
        bar = program.find("status bar")
        wait_until(lambda: "damaged" in bar.name, lambda: f"it says: {bar.name}")
        aside = list(kept.parent.glob("snapshots-damaged-*/precious.png"))
        self.assertEqual(len(aside), 1)
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)
        program = self.start()
        self.assertNotIn("damaged", program.find("status bar").name)
        self.assertTrue(aside[0].exists())

    # --- what the cases are made of ------------------------------------------------------------

    def snap(self, name):
        """Opens the sample and takes a snapshot of the frame with the number."""
        number = self.open_paused(self.program, self.sample(name))
        self.take_snapshot(self.program)
        number = self.wait_for_standstill(self.program)
        wait_until(lambda: self.program.shown_snapshot() == number, "it is not shown")
        return number

    def snapshots(self):
        """The controls of the strip, from left to right."""
        if not self.program.has("list", "Filmstrip"):
            return []
        return self.program.find("list", "Filmstrip").children

    def states(self):
        return [item.name.rsplit(", ", 1)[1] for item in self.snapshots()]

    def choose(self, place):
        self.desktop.click(*self.snapshots()[place].middle)

    def delete_and_undo(self):
        """Deletes both by keyboard, and undoes it."""
        with self.desktop.holding("ctrl"):
            self.choose(0)
        self.desktop.key("Delete")
        wait_until(lambda: not self.snapshots(), "they are still there")
        self.desktop.key("ctrl+z")
        wait_until(lambda: len(self.snapshots()) == 2, "they do not come back")
