"""What a second start restores from the first one."""

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.waiting import wait_until


def _size(control):
    left, top, right, bottom = control.area
    return right - left, bottom - top


class SettingsTest(MorvantileCase):

    def test_volume_and_mute_are_remembered(self):
        program = self.start()
        popup = self.open_volume(program)
        left, top, right, bottom = popup
        untouched = wait_until(lambda: self.handle_height(popup), "no handle in the popup")
        self.assertFalse(self.is_ticked(popup))
        # The slider fills the popup above the check box, its handle is in the middle of it.
        middle, grip = (left + right) // 2, top + (bottom - top) * 0.41
        way_up = (bottom - top) * 0.21
        self.desktop.move(middle, grip)
        self.desktop.press()
        self.addCleanup(self.desktop.release)
        self.desktop.drag(middle, grip - way_up)
        self.desktop.release()
        self.wait_for_setting("volume", lambda volume: 60 < int(volume) < 100)
        # Not a picture of it on its way.
        wait_until(
            lambda: abs((self.handle_height(popup) or 0) - (untouched - way_up)) < 4,
            lambda: f"the handle is at {self.handle_height(popup)}, it was at {untouched}",
        )
        height = self.handle_height(popup)
        self.desktop.click(left + 15, bottom - 24)
        self.wait_for_setting("muted", lambda muted: muted == "true")
        wait_until(lambda: self.is_ticked(popup), "the check box stays empty")
        self.desktop.key("Escape")
        wait_until(lambda: self.desktop.window_area("Form") is None, "the popup stays")
        self.close(program)

        self.assertEqual(self.open_volume(self.start()), popup)
        wait_until(
            lambda: self.handle_height(popup) == height and self.is_ticked(popup),
            lambda: f"after the restart the handle is at {self.handle_height(popup)}, not {height}",
        )

    def test_window_and_automatic_names_are_remembered(self):
        pictures = self.folder / "pictures"
        pictures.mkdir()
        program = self.start()
        self.open_paused(program, self.sample("h264_bframes.mp4"))
        self.take_snapshot(program)
        self.name_automatically(program)
        program.fill("Output folder", str(pictures))
        self.desktop.key("Return", "ctrl+s")
        wait_until((pictures / "h264_bframes-00001.jpeg").exists, "nothing was saved")
        self.desktop.resize_window(960, 700)
        wait_until(lambda: _size(program.window()) == (960, 700), "it keeps its size")
        left, top, _, _ = program.window().area
        self.close(program)

        program = self.start()
        wait_until(
            lambda: _size(program.window()) == (960, 700), lambda: f"{_size(program.window())}"
        )
        self.assertAlmostEqual(program.window().area[0], left, delta=5)
        self.assertAlmostEqual(program.window().area[1], top, delta=30)
        self.open_paused(program, self.sample("h264_gop250.mp4"))
        self.take_snapshot(program)
        self.desktop.key("ctrl+s")
        wait_until((pictures / "h264_gop250-00001.jpeg").exists, "nothing was saved")

    def test_folder_of_the_videos_is_remembered(self):
        self.sample("h264_baseline.mp4")
        self.sample("h264_bframes.mp4")
        program = self.start()
        self.desktop.key("ctrl+o")
        program.window("Open")
        program.enter(str(self.videos))
        self.desktop.key("Return")
        # A bare name opens only in the folder that the dialog shows.
        wait_until(lambda: program.has(name="h264_bframes.mp4"), "it shows another folder")
        program.enter("h264_bframes.mp4")
        self.desktop.key("Return")
        program.window("Morvantile - h264_bframes.mp4")
        self.close(program)

        program = self.start()
        program.open_with_dialog("h264_baseline.mp4")
        wait_until(lambda: program.shown_frame() is not None, "no frame on the screen")

    def test_pictures_go_where_the_last_video_was(self):
        program = self.start()
        program.open_with_dialog(self.sample("h264_bframes.mp4"))
        self.close(program)

        program = self.start()
        elsewhere = self.folder / "elsewhere"
        elsewhere.mkdir()
        self.open_paused(program, self.sample("h264_bframes.mp4").rename(elsewhere / "video.mp4"))
        self.take_snapshot(program)
        self.desktop.key("ctrl+s")
        program.window("Save As")
        program.enter("picture.png")
        self.desktop.key("Return")
        wait_until((elsewhere / "picture.png").exists, "nothing was saved beside the video")

    # --- what the cases are made of ------------------------------------------------------------

    def open_volume(self, program):
        """Opens the popup and returns its place on the screen."""
        program.open_with_dialog(self.sample("h264_gop250.mp4"))
        program.click("push button", "Volume Control")
        return wait_until(lambda: self.desktop.window_area("Form"), "no popup")

    def wait_for_setting(self, key, wanted):
        """Waits until the settings file has an expected value."""
        file = self.home / "config/Morvantile/Morvantile.conf"

        def value():
            lines = file.read_text().splitlines() if file.exists() else []
            pairs = (line.split("=", 1) for line in lines if "=" in line)
            return dict(pairs).get(key)

        wait_until(
            lambda: value() is not None and wanted(value()),
            lambda: f"{key} is {value()}",
        )

    def handle_height(self, popup):
        """The row of the screen with the middle of the slider's handle; none if it is not visible."""
        left, top, right, bottom = popup
        middle = (left + right) // 2
        # Inside the frame that the slider may have. The handle is white, its groove is not.
        column = self.desktop.picture((middle, top + 16, middle + 1, bottom - 48)).convert("L")
        rows = [row for row, brightness in enumerate(column.getdata()) if brightness > 225]
        return top + 16 + sum(rows) // len(rows) if rows else None

    def is_ticked(self, popup):
        """Whether the box is blue inside, except for the tick."""
        left, _, _, bottom = popup
        area = self.desktop.picture((left + 11, bottom - 28, left + 20, bottom - 19))
        red, _, blue = (sum(channel.getdata()) for channel in area.convert("RGB").split())
        return blue > red * 1.2

    def close(self, program):
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)
