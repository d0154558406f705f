"""The clipboard as seen by another program."""

import io

from PIL import Image

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import wait_until


class ClipboardTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.number = self.open_paused(self.program, self.sample("h264_gop250.mp4"))
        self.take_snapshot(self.program)

    def test_snapshot_is_copied_as_it_is_shown(self):
        self.desktop.key("ctrl+c")
        picture = self.wait_for_picture((640, 480))
        self.assertEqual(frame_number(picture), self.number)

    def test_copy_and_saved_file_are_the_same_picture(self):
        self.desktop.key("ctrl+c")
        picture = self.wait_for_picture((640, 480))
        file = self.folder / "saved.png"
        self.desktop.key("ctrl+s")
        self.program.window("Save As")
        self.program.enter(str(file))
        self.desktop.key("Return")
        wait_until(file.exists, "nothing was saved")
        with Image.open(file) as saved:
            self.assertEqual(saved.convert("RGB").tobytes(), picture.tobytes())

    def test_full_frame_is_copied_in_the_videos_size(self):
        self.desktop.key("ctrl+x")
        picture = self.wait_for_picture((160, 120))
        self.assertEqual(frame_number(picture), self.number)

    def test_copy_keeps_the_frame_while_the_video_goes_on(self):
        self.desktop.key("Right")
        self.wait_for_frame(self.program, self.number + 1)
        self.desktop.key("ctrl+x")
        self.assertEqual(frame_number(self.wait_for_picture((160, 120))), self.number)

    def wait_for_picture(self, size):
        """The picture in the clipboard, once it has the size."""

        def wanted():
            content = self.desktop.clipboard("image/png")
            if not content:
                return None
            picture = Image.open(io.BytesIO(content)).convert("RGB")
            return picture if picture.size == size else None

        return wait_until(wanted, f"no picture of {size} in the clipboard")
