"""The window without sight: by keys, and by the announcements of a screen reader."""

from PIL import Image

from tests.e2e.driver.announcements import Announcements
from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import wait_until


class ListeningTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()

    def listen(self):
        """From now on, and without dialogs: while something listens, Qt does not tell which of its
        windows is active after one of them was closed, and the driver waits for that.
        """
        return self.enterContext(Announcements(self.desktop))

    def go_to(self, control):
        """Presses Tab until the control has the focus."""
        for _ in range(40):
            before = str(self.program.focused())
            if before == str(control):
                return
            self.desktop.key("Tab")
            wait_until(
                lambda before=before: str(self.program.focused()) not in ("None", before),
                f"Tab does not leave {before}",
            )
        self.fail(f"Tab does not reach {control}")

    def test_picture_is_found_taken_and_saved_by_keys_and_ears(self):
        video = self.sample("h264_gop250.mp4")
        self.desktop.key("ctrl+o")
        self.program.window("Open")
        self.program.enter(str(video))
        self.desktop.key("Return")
        self.program.window(f"Morvantile - {video.name}")
        wait_until(lambda: self.program.position > 0, "it does not play")
        self.desktop.key("space")
        self.wait_for_standstill(self.program)

        heard = self.listen()
        self.desktop.key("ctrl+g")
        wait_until(lambda: self.program.focused().name == "Go to time", "no field has the keyboard")
        self.program.enter("0:01.200")
        self.desktop.key("Return")
        heard.wait_for("00:00:01.200, frame 30")
        self.desktop.key("Right")
        heard.wait_for("00:00:01.240, frame 31")
        picture = self.program.find(name="Picture of the video")
        self.assertEqual(picture.description, "00:00:01.240, frame 31")

        self.desktop.key("s")
        heard.wait_for(f"Snapshot taken: {video.name} at 00:00:01.240")
        view = self.program.snapshot_view()
        self.assertEqual(view.description, f"{video.name} at 00:00:01.240")
        box = self.program.find("check box", "Automatic File Name")
        self.go_to(box)
        self.desktop.key("Return")
        wait_until(lambda: box.is_checked, "it is not checked")
        self.desktop.key("ctrl+s")
        file = self.videos / "h264_gop250-00001.jpeg"
        heard.wait_for(f"Saved {file}")
        with Image.open(file) as saved:
            self.assertEqual(frame_number(saved), 31)

    def test_progress_and_end_of_a_batch_are_told(self):
        video = self.sample("h264_gop250.mp4")
        self.program.click("menu item", "Tools")
        self.program.click("menu item", "Batch Mode")
        self.program.window("Morvantile Batch Mode")
        self.program.click("push button", "Load Video")
        self.program.window("Open")
        self.program.enter(str(video))
        self.desktop.key("Return")
        self.program.window("Morvantile Batch Mode")
        heard = self.listen()
        self.program.click("push button", "Start")
        heard.wait_for_value_of("progress bar")
        heard.wait_for("Finished: 4 images")
