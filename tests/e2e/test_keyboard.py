"""The window without a mouse."""

from PIL import Image

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import frame_number
from tests.e2e.driver.waiting import wait_until

# A label until it has the keyboard.
TIME = ("text", "Go to time")

# In the order of reading. Those of a role alone are known by what they hold.
SNAPSHOT = ("list item", "in the filmstrip")
STOPS = [
    TIME,
    ("push button", "Skip back a bit"),
    ("push button", "Step back one frame"),
    ("push button", "Play/Pause"),
    ("push button", "Step forward one frame"),
    ("push button", "Skip forward a bit"),
    ("push button", "Speed"),
    ("push button", "Volume Control"),
    ("push button", "Take Snapshot"),
    # With the keyboard in the filmstrip, its snapshot has it.
    SNAPSHOT,
    ("push button", "Save All"),
    ("push button", "Original Size"),
    ("combo box", "Image profile"),
    ("push button", "Edit image profiles"),
    ("check box", "Automatic File Name"),
    ("combo box", "File-name profile"),
    ("push button", "Edit file-name profiles"),
    ("text", "Output folder"),
    ("push button", "Browse"),
    ("push button", "Save"),
]


class KeyboardTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()

    def test_tab_reaches_every_control_in_the_order_of_reading(self):
        self.open_paused(self.program, self.sample("h264_gop250.mp4"))
        self.take_snapshot(self.program)
        self.press("check box", "Automatic File Name")
        box = self.program.find("check box", "Automatic File Name")
        wait_until(lambda: box.is_checked, "it is not checked")
        expected = [stop for stop in STOPS if self.is_there(stop)]
        self.assertGreater(len(expected), 10)
        self.go_to(*expected[-1])
        for keys, stops in (("Tab", expected), ("shift+Tab", expected[-2::-1])):
            for stop in stops:
                self.desktop.key(keys)
                wait_until(lambda: self.focus() == stop, lambda: f"{self.focus()}, not {stop}")

    def test_picture_is_taken_and_saved_by_keys_alone(self):
        video = self.sample("h264_gop250.mp4")
        self.desktop.key("space")
        self.program.window("Open")
        self.program.enter(str(video))
        self.desktop.key("Return")
        self.program.window(f"Morvantile - {video.name}")
        wait_until(lambda: self.program.shown_frame() is not None, "no frame on the screen")
        self.desktop.key("space")
        number = self.wait_for_standstill(self.program)
        self.press("push button", "Step forward one frame")
        self.wait_for_frame(self.program, number + 1)
        self.press("push button", "Take Snapshot")
        save = self.program.find("push button", "Save")
        wait_until(lambda: save.is_enabled, "no snapshot was taken")
        self.press("check box", "Automatic File Name")
        self.press("push button", "Save")
        file = self.videos / "h264_gop250-00001.jpeg"
        wait_until(file.exists, "nothing was saved")
        with Image.open(file) as picture:
            self.assertEqual(frame_number(picture), number + 1)

    def test_space_is_the_videos_wherever_the_keyboard_is(self):
        number = self.open_paused(self.program, self.sample("h264_gop250.mp4"))
        self.program.click("push button", "Step forward one frame")
        self.wait_for_frame(self.program, number + 1)
        self.desktop.key("space")
        wait_until(lambda: not self.program.offers_to_play(), "it does not play")
        self.desktop.key("k")
        number = self.wait_for_standstill(self.program)
        self.go_to("push button", "Step forward one frame")
        self.desktop.key("space")
        wait_until(lambda: not self.program.offers_to_play(), "it does not play")
        self.desktop.key("space")
        number = self.wait_for_standstill(self.program)
        self.press("push button", "Step forward one frame")
        self.wait_for_frame(self.program, number + 1)

    def test_volume_is_set_by_keys(self):
        self.open_paused(self.program, self.sample("h264_gop250.mp4"))
        self.press("push button", "Volume Control")
        wait_until(lambda: self.desktop.window_area("Form"), "no popup")
        self.desktop.key("Up")
        file = self.home / "config/Morvantile/Morvantile.conf"
        wait_until(
            lambda: file.exists() and "volume=51" in file.read_text().splitlines(),
            lambda: f"settings: {file.read_text()}",
        )

    # --- what the cases are made of ------------------------------------------------------------

    def focus(self):
        """The role and the name of the focused control, as in STOPS."""
        control = self.program.focused()
        if control is None:
            return None
        if control.role == SNAPSHOT[0]:
            return SNAPSHOT
        is_named_by_content = control.role == "combo box"
        return control.role, control.description if is_named_by_content else control.name

    def is_there(self, stop):
        role, name = stop
        if stop == SNAPSHOT:
            return self.program.has(role)
        if stop == TIME:
            return True
        if role == "combo box":
            return self.program.has(role, description=name)
        return self.program.has(role, name)

    def go_to(self, role, name):
        """Presses Tab until the control has the focus."""
        for _ in range(2 * len(STOPS)):
            before = self.focus()
            if before == (role, name):
                return
            self.desktop.key("Tab")
            wait_until(lambda: self.focus() not in (None, before), f"Tab does not leave {before}")
        self.fail(f"Tab does not reach {role} {name}")

    def press(self, role, name):
        self.go_to(role, name)
        self.desktop.key("Return")
