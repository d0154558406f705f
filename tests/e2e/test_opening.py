"""Opening videos."""

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.waiting import wait_until


class OpeningTest(MorvantileCase):

    def test_video_plays_when_opened_by_its_path(self):
        program = self.start()
        program.open_with_dialog(self.sample("h264_gop250.mp4"))
        first = wait_until(program.shown_frame, "no frame on the screen")
        wait_until(lambda: (program.shown_frame() or 0) > first, "it does not go on")
        self.assertEqual(program.duration, 520 * 40)
        self.assertFalse(program.offers_to_play())

    def test_video_opens_from_the_button_over_the_video(self):
        program = self.start()
        button = program.open_button()
        self.assertEqual(button.name, "Click to open video")
        self.desktop.click(*button.middle)
        program.window("Open")
        program.enter(str(self.sample("h264_bframes.mp4")))
        self.desktop.key("Return")
        program.window("Morvantile - h264_bframes.mp4")
        wait_until(lambda: program.shown_frame() is not None, "no frame on the screen")

    def test_video_opens_whatever_its_name(self):
        program = self.start()
        program.open_with_dialog(self.sample("h264_baseline.mp4", "100% %d 'two' dots.x.mp4"))
        wait_until(lambda: program.shown_frame() is not None, "no frame on the screen")

    def test_second_video_takes_the_place_of_the_first(self):
        program = self.start()
        self.open_paused(program, self.sample("h264_bframes.mp4"))
        self.take_snapshot(program)
        self.save_as(program, self.folder / "one.png")
        program.open_with_dialog(self.sample("h264_gop250.mp4"))
        wait_until(lambda: program.duration == 520 * 40, "still the first video's duration")
        self.assertFalse(program.find("push button", "Save").is_enabled)
        self.assertIsNone(program.shown_snapshot())
        wait_until(lambda: (program.shown_frame() or 0) > 0, "the second video does not play")

    def test_cancelled_dialog_leaves_the_video_paused(self):
        program = self.start()
        program.open_with_dialog(self.sample("h264_gop250.mp4"))
        wait_until(program.shown_frame, "no frame on the screen")
        self.desktop.key("ctrl+o")
        program.window("Open")
        self.desktop.key("Escape")
        program.window("Morvantile - h264_gop250.mp4")
        self.wait_for_standstill(program)

    def test_window_says_so_when_the_file_is_no_video(self):
        program = self.start()
        program.open_with_dialog(self.sample("random_bytes.mp4"))
        button = program.open_button()
        wait_until(
            lambda: button.name.startswith("random_bytes.mp4\ncannot be played as a video."),
            lambda: f"it says: {button.name}",
        )
        # Over the video, which is black.
        wait_until(lambda: _has_writing(self.desktop.picture(button.area)), "nobody can read it")
        self.desktop.click(*button.middle)
        program.window("Open")
        program.enter(str(self.sample("h264_gop250.mp4")))
        self.desktop.key("Return")
        wait_until(program.shown_frame, "the next video does not play")


def _has_writing(picture):
    return picture.convert("L").getextrema()[1] > 180
