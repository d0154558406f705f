"""A single path through the window, for builds in which tests take long."""

from PIL import Image

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import wait_until


class SmokeTest(MorvantileCase):

    def test_frame_goes_from_the_video_to_a_file_and_the_window_ends(self):
        # Mesa's renderer leaves something behind and is gone when leaks are reported, so that no
        # suppression can name it.
        program = self.start(environment={"QT_XCB_GL_INTEGRATION": "none"})
        number = self.open_paused(program, self.sample("h264_gop250.mp4"))
        self.desktop.key("Right")
        self.wait_for_frame(program, number + 1)
        self.desktop.key("Left")
        self.wait_for_frame(program, number)
        self.take_snapshot(program)
        file = self.folder / "saved.png"
        self.desktop.key("ctrl+s")
        program.window("Save As")
        program.enter(str(file))
        self.desktop.key("Return")
        wait_until(file.exists, "nothing was saved")
        with Image.open(file) as picture:
            self.assertEqual(frame_number(picture), number)
        self.desktop.key("space")
        wait_until(lambda: not program.offers_to_play(), "it does not play")
        self.desktop.key("alt+F4")
        # Sanitizers change the code, and say why in the log.
        self.assertEqual(program.wait_for_end(), 0, program.log)
