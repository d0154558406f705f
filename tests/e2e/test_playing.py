"""Playing, stepping, skipping and seeking, by keys, buttons and the slider."""

from tests.e2e.driver.case import FRAME_MS, MorvantileCase
from tests.e2e.driver.waiting import holds_for, wait_until

FRAMES_A_SECOND = 1000 // FRAME_MS

# Of the slider, in milliseconds.
SLIDER_STEP_MS = 30


class PlayingTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()

    def test_space_pauses_and_plays(self):
        number = self.open_long_video()
        self.assertTrue(
            holds_for(lambda: self.program.shown_frame() == number, 0.5), "the picture moves"
        )
        self.desktop.key("space")
        wait_until(lambda: (self.program.shown_frame() or 0) > number, "it does not go on")
        self.assertFalse(self.program.offers_to_play())

    def test_play_button_pauses_and_plays(self):
        self.open_long_video()
        self.program.click("push button", "Play/Pause")
        wait_until(lambda: not self.program.offers_to_play(), "it does not play")
        self.program.click("push button", "Play/Pause")
        self.wait_for_standstill(self.program)

    def test_click_on_the_video_pauses_and_plays(self):
        number = self.open_long_video()
        self.desktop.click(*self.program.open_button().middle)
        # Two clicks within less would be a double click, which zooms.
        wait_until(lambda: (self.program.shown_frame() or 0) > number + 25, "it does not play")
        self.desktop.click(*self.program.open_button().middle)
        self.wait_for_standstill(self.program)
        # The keys stay the video's.
        self.desktop.key("space")
        wait_until(lambda: not self.program.offers_to_play(), "it does not play")

    def test_double_click_zooms_and_leaves_the_frame_alone(self):
        number = self.open_long_video()
        place = self.program.open_button().middle
        before = self.program.position
        for zooms in (True, False):
            self.desktop.click(*place)
            self.desktop.click(*place)
            # In full size only a part of the number can be seen.
            wait_until(
                lambda: (self.program.shown_frame() is None) == zooms,
                lambda: f"frame {self.program.shown_frame()} is to be seen",
            )
            wait_until(self.program.offers_to_play, "it goes on")
            wait_until(lambda: self.program.position == before, "another frame is shown")
        self.wait_for_frame(self.program, number)

    def test_step_keys_go_one_frame(self):
        number = self.open_long_video()
        for key, change in (("Right", 1), ("Right", 1), ("Left", -1), ("Left", -1), ("Left", -1)):
            number += change
            self.desktop.key(key)
            self.wait_for_frame(self.program, number)

    def test_step_buttons_go_one_frame(self):
        number = self.open_long_video()
        self.program.click("push button", "Step forward one frame")
        self.wait_for_frame(self.program, number + 1)
        self.program.click("push button", "Step back one frame")
        self.wait_for_frame(self.program, number)

    def test_many_steps_at_once_lose_none(self):
        number = self.open_long_video()
        self.desktop.key(*["Right"] * 20)
        self.wait_for_frame(self.program, number + 20)
        self.desktop.key(*["Left"] * 15)
        self.wait_for_frame(self.program, number + 5)

    def test_step_pauses_a_video_that_plays(self):
        self.open_long_video()
        self.desktop.key("space")
        wait_until(lambda: not self.program.offers_to_play(), "it does not play")
        self.desktop.key("Right")
        self.wait_for_standstill(self.program)

    def test_skip_keys_go_a_second(self):
        number = self.open_long_video()
        self.desktop.key("ctrl+Up")
        self.wait_for_frame(self.program, number + FRAMES_A_SECOND)
        self.desktop.key("ctrl+Up")
        self.wait_for_frame(self.program, number + 2 * FRAMES_A_SECOND)
        self.desktop.key("ctrl+Down")
        self.wait_for_frame(self.program, number + FRAMES_A_SECOND)

    def test_skip_buttons_go_a_second(self):
        number = self.open_long_video()
        self.program.click("push button", "Skip forward a bit")
        self.wait_for_frame(self.program, number + FRAMES_A_SECOND)
        self.program.click("push button", "Skip back a bit")
        self.wait_for_frame(self.program, number)

    def test_quick_skips_add_up(self):
        number = self.open_long_video()
        self.desktop.key(*["ctrl+Up"] * 5)
        self.wait_for_frame(self.program, number + 5 * FRAMES_A_SECOND)
        self.desktop.key(*["ctrl+Down"] * 3)
        self.wait_for_frame(self.program, number + 2 * FRAMES_A_SECOND)

    def test_video_stops_at_its_last_frame_and_plays_again_from_the_start(self):
        video = self.sample("h264_bframes.mp4")
        self.program.open_with_dialog(video)
        self.wait_for_frame(self.program, 99)
        self.desktop.key("space")
        wait_until(lambda: 0 <= (self.program.shown_frame() or 99) < 50, "it does not start over")

    def test_dragged_slider_seeks_while_playing(self):
        self.open_long_video()
        self.desktop.key("space")
        wait_until(lambda: not self.program.offers_to_play(), "it does not play")
        self.grab_slider()
        self.desktop.drag(*self.slider_place(0.7))
        wait_until(lambda: (self.program.shown_frame() or 0) > 300, "it did not go there")
        # Only a seek goes back.
        self.desktop.drag(*self.slider_place(0.2))
        wait_until(lambda: 0 < (self.program.shown_frame() or 0) < 250, "it did not go back")
        self.desktop.release()
        wait_until(lambda: self.program.shown_frame() is not None, "no frame on the screen")
        self.assertFalse(self.program.offers_to_play())

    def test_dragged_slider_seeks_while_paused(self):
        self.open_long_video()
        self.grab_slider()
        self.desktop.drag(*self.slider_place(0.8))
        wait_until(lambda: (self.program.shown_frame() or 0) > 300, "it did not go there")
        self.desktop.release()
        number = self.wait_for_standstill(self.program)
        self.assertAlmostEqual(number, 0.8 * 520, delta=15)
        self.wait_for_slider_at(number)
        self.desktop.key("Right")
        self.wait_for_frame(self.program, number + 1)
        self.wait_for_slider_at(number + 1)

    def test_click_beside_the_handle_seeks_while_paused(self):
        self.open_long_video()
        for part in (0.7, 0.2):
            self.desktop.click(*self.slider_place(part))
            wait_until(
                lambda: abs((self.program.shown_frame() or 0) - part * 520) < 15,
                lambda: f"frame {self.program.shown_frame()} is shown",
            )
            self.wait_for_slider_at(self.wait_for_standstill(self.program))

    def test_click_beside_the_handle_seeks_while_playing(self):
        self.open_long_video()
        self.desktop.key("space")
        wait_until(lambda: not self.program.offers_to_play(), "it does not play")
        self.desktop.click(*self.slider_place(0.7))
        wait_until(lambda: (self.program.shown_frame() or 0) > 300, "it did not go there")
        self.desktop.click(*self.slider_place(0.2))
        wait_until(lambda: 0 < (self.program.shown_frame() or 0) < 250, "it did not go back")

    # --- what the cases are made of ------------------------------------------------------------

    def open_long_video(self):
        """Paused; returns the number of its frame."""
        return self.open_paused(self.program, self.sample("h264_gop250.mp4"))

    def slider(self):
        return self.program.find("slider", "Position")

    def wait_for_slider_at(self, number):
        """Waits until the handle is at the frame's position."""
        slider = self.slider()
        wait_until(
            lambda: slider.value == number * FRAME_MS // SLIDER_STEP_MS,
            lambda: f"the slider stands at {slider.value}, the video at frame {number}",
        )

    def slider_place(self, part):
        left, top, right, bottom = self.slider().area
        return left + (right - left) * part, (top + bottom) // 2

    def grab_slider(self):
        """Presses the mouse button on the handle and holds it."""
        slider = self.slider()
        handle = 16
        left, top, right, bottom = slider.area
        way = (right - left - handle) * slider.value / slider.maximum
        self.desktop.move(left + handle // 2 + way, (top + bottom) // 2)
        self.desktop.press()
        self.addCleanup(self.desktop.release)
