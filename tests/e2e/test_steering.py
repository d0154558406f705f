"""Navigation to a frame: the slider, the typed time, the marked stretch, the keys."""

from PIL import Image

from tests.e2e.driver.case import FRAME_MS, MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import wait_until

FRAMES = 520


class SteeringTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.video = self.sample("h264_gop250.mp4")
        self.open_paused(self.program, self.video)

    def test_frame_is_found_by_slider_and_keys_and_saved_at_once(self):
        slider = self.program.find("slider", "Position")
        left, top, right, bottom = slider.area
        self.desktop.move(left + (right - left) * 0.6, (top + bottom) // 2)
        shown = wait_until(self.preview_above(slider), "no preview with a frame")
        self.assertAlmostEqual(shown, 0.6 * FRAMES, delta=15)
        # The preview moved nothing; a click goes to the very frame that it showed.
        self.desktop.click(*self.desktop.pointer())
        self.wait_for_frame(self.program, shown)
        self.desktop.turn_wheel(3)
        self.wait_for_frame(self.program, shown + 3)
        with self.desktop.holding("shift"):
            self.desktop.press()
            x, y = self.desktop.pointer()
            self.desktop.drag(x - 31, y)
            self.desktop.release()
        self.wait_for_frame(self.program, shown - 2)
        self.desktop.key("comma", "comma", "period", "shift+Right")
        number = shown - 3 + 1000 // FRAME_MS
        self.wait_for_frame(self.program, number)
        self.desktop.key("ctrl+shift+s")
        file = self.videos / "h264_gop250-00001.jpeg"
        wait_until(file.exists, "nothing was saved")
        with Image.open(file) as picture:
            self.assertEqual(frame_number(picture), number)

    def test_typed_times_lead_to_their_frames_and_wrong_ones_nowhere(self):
        for text, number in (("0:12.5", 313), ("+2s", 363), ("f100", 100), ("75%", 390)):
            self.desktop.key("ctrl+g")
            self.program.enter(text)
            self.desktop.key("Return")
            self.wait_for_frame(self.program, number)
        facts = self.program.find("label", description="Frame, rate, size and codec")
        wait_until(
            lambda: facts.name == "f390 · 25 fps · 160 × 120 · H.264", lambda: facts.name
        )
        self.desktop.key("ctrl+g")
        field = self.program.enter("1:75")
        self.desktop.key("Return")
        wait_until(lambda: "1:75" in self.status(), self.status)
        self.assertEqual(field.text, "1:75")
        self.desktop.key("Escape")
        self.wait_for_frame(self.program, 390)
        # The keys are the video's again.
        self.desktop.key("Right")
        self.wait_for_frame(self.program, 391)

    def test_marked_stretch_loops_and_is_what_batch_mode_takes(self):
        self.desktop.key("Home", "shift+Right", "shift+Right")
        self.wait_for_frame(self.program, 50)
        self.desktop.key("i", "shift+Right")
        self.wait_for_frame(self.program, 75)
        self.desktop.key("o")
        self.choose_in_menus("Video Controls", "Stretch", "Loop Stretch")
        self.desktop.key("space")
        seen = []

        def went_round():
            number = self.program.shown_frame()
            if number is not None:
                seen.append(number)
            return sum(a > b for a, b in zip(seen, seen[1:])) >= 2

        wait_until(went_round, lambda: f"it does not loop: {seen[-20:]}")
        self.assertLessEqual(max(seen), 76)
        self.assertGreaterEqual(min(seen), 50)
        self.choose_in_menus("Tools", "Batch Mode")
        self.program.window("Morvantile Batch Mode")
        texts = [field.text for field in self.program.find_all("text")]
        wait_until(
            lambda: {"2", "17.8"} <= {field.text for field in self.program.find_all("text")},
            lambda: f"{texts}",
        )

    # --- what the cases are made of ------------------------------------------------------------

    def preview_above(self, slider):
        """A function that returns the frame in the preview; none if there is none."""

        def frame():
            x, _ = self.desktop.pointer()
            _, top, _, _ = slider.area
            # Where the preview stands, with and without its text.
            for bottom in range(top - 45, top - 10, 2):
                area = (x - 72, bottom - 108, x + 72, bottom)
                number = frame_number(self.desktop.picture(area))
                if number is not None:
                    return number
            return None

        return frame

    def status(self):
        return " ".join(bar.name for bar in self.program.find_all("status bar"))

    def choose_in_menus(self, *names):
        for name in names:
            roles = ("menu item", "check menu item")
            wait_until(
                lambda: any(self.program.has(role, name) for role in roles), f"no {name} in a menu"
            )
            role = next(role for role in roles if self.program.has(role, name))
            self.program.click(role, name)
