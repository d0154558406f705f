"""Videos that other programs change while the window shows them."""

import os

from tests.e2e.driver.case import FRAME_MS, MEDIA, MorvantileCase
from tests.e2e.driver.waiting import wait_until

LONG = "h264_gop250.mp4"


class ChangingTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.video = self.sample(LONG)

    def test_cut_video_stops_playing_with_a_reason_and_the_next_one_plays(self):
        self.program.open_with_dialog(self.video)
        wait_until(lambda: self.program.shown_frame() is not None, "no frame on the screen")
        os.truncate(self.video, 0)
        wait_until(self.program.offers_to_play, "it plays on")
        number = self.program.shown_frame()
        self.assertIsNotNone(number)
        self.assertLess(number * FRAME_MS, self.program.duration / 2)
        bar = self.program.find("status bar")
        wait_until(lambda: bar.name.startswith(f"{LONG}: "), lambda: f"it says: {bar.name}")
        self.plays_another()

    def test_cut_video_keeps_the_snapshot_and_says_what_happened_when_sought(self):
        self.open_paused(self.program, self.video)
        self.take_snapshot(self.program)
        snapshot = self.program.shown_snapshot()
        os.truncate(self.video, 0)
        self.desktop.key(*["ctrl+Up"] * 12)
        button = self.program.open_button()
        wait_until(
            lambda: button.name.startswith(f"{LONG}\ncannot be played as a video."),
            lambda: f"it says: {button.name}",
        )
        self.assertEqual(self.program.shown_snapshot(), snapshot)
        self.save_as(self.program, self.folder / "kept.png")
        self.plays_another()

    def test_video_recorded_anew_under_its_name_does_no_harm(self):
        self.open_paused(self.program, self.video)
        other = (MEDIA / "vp9.webm").read_bytes()
        self.video.write_bytes(other)
        self.desktop.key(*["ctrl+Up"] * 12)
        self.desktop.key("space")
        self.desktop.key(*["Left"] * 12)
        self.plays_another()

    def test_replaced_video_stays_what_it_was_until_it_is_opened_again(self):
        number = self.open_paused(self.program, self.video)
        beside = self.sample("sound_only.mp4")
        beside.replace(self.video)
        self.desktop.key("ctrl+Up")
        self.wait_for_frame(self.program, number + 1000 // FRAME_MS)
        self.plays_another()

    # --- what the cases are made of ------------------------------------------------------------

    def plays_another(self):
        self.program.open_with_dialog(self.sample("h264_bframes.mp4"))
        wait_until(lambda: self.program.duration == 100 * FRAME_MS, "another duration")
        wait_until(lambda: (self.program.shown_frame() or 0) > 0, "the next video does not play")
