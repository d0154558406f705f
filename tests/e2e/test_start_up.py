"""Starting and ending."""

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.desktop import SIZE
from tests.e2e.driver.waiting import wait_until


class StartUpTest(MorvantileCase):

    def test_window_stands_in_the_middle_and_can_only_open(self):
        program = self.start()
        left, top, right, bottom = program.window("Morvantile").area
        self.assertEqual((right - left, bottom - top), (800, 600))
        # The window manager's frame may shift it a little.
        self.assertAlmostEqual((left + right) / 2, SIZE[0] / 2, delta=5)
        self.assertAlmostEqual((top + bottom) / 2, SIZE[1] / 2, delta=40)
        self.assertTrue(program.open_button().is_enabled)
        for name in ("Play/Pause", "Step forward one frame", "Take Snapshot", "Save"):
            self.assertFalse(program.find("push button", name).is_enabled, name)

    def test_arguments_mean_nothing_to_the_window(self):
        video = self.sample("h264_bframes.mp4")
        program = self.start(["--help", str(video), str(self.folder), "--ms", "10", "--nonsense"])
        self.assertEqual(program.window().name, "Morvantile")
        program.open_with_dialog(video)
        wait_until(lambda: program.shown_frame() is not None, "no frame on the screen")
        self.assertEqual([file.name for file in self.videos.iterdir()], [video.name])

    def test_video_plays_without_opengl(self):
        program = self.start(
            environment={"QT_XCB_GL_INTEGRATION": "none", "LIBGL_ALWAYS_SOFTWARE": "1"}
        )
        number = self.open_paused(program, self.sample("h264_gop250.mp4"))
        self.desktop.key("ctrl+Right")
        self.wait_for_frame(program, number + 1)

    def test_session_without_a_runtime_folder_is_not_complained_of(self):
        temporary = self.folder / "temporary"
        temporary.mkdir()
        program = self.start(environment={"XDG_RUNTIME_DIR": None, "TMPDIR": str(temporary)})
        self.open_paused(program, self.sample("flashes_and_beeps.mp4"))
        self.take_snapshot(program)
        self.save_as(program, self.folder / "one.png")
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertNotIn("XDG_RUNTIME_DIR", program.log)
        # The sound server's client keeps a folder of its own there.
        left = [file.name for file in temporary.iterdir() if not file.name.startswith("pulse-")]
        self.assertEqual(left, [])

    def test_two_windows_live_beside_each_other(self):
        first = self.start()
        number = self.open_paused(first, self.sample("h264_gop250.mp4"))
        second = self.start()
        self.desktop.key("alt+F4")
        self.assertEqual(second.wait_for_end(), 0)
        first.window("Morvantile - h264_gop250.mp4")
        self.desktop.key("ctrl+Right")
        self.wait_for_frame(first, number + 1)

    def test_closing_ends_the_program_while_the_video_plays(self):
        program = self.start()
        program.open_with_dialog(self.sample("h264_gop250.mp4"))
        wait_until(program.shown_frame, "no frame on the screen")
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)

    def test_closing_ends_the_program_without_a_video(self):
        program = self.start()
        self.desktop.key("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)

    def test_menu_ends_the_program(self):
        program = self.start()
        self.open_paused(program, self.sample("h264_bframes.mp4"))
        program.click("menu item", "File")
        program.click("menu item", "Exit")
        self.assertEqual(program.wait_for_end(), 0)

    def test_dialogs_give_the_keyboard_back(self):
        program = self.start()
        for menu, entry, title in (
            ("Help", "About", "About Morvantile"),
            ("Tools", "Image Filters Test", "Dialog"),
        ):
            with self.subTest(entry):
                program.click("menu item", menu)
                program.click("menu item", entry)
                program.window(title)
                self.desktop.key("Escape")
                program.window("Morvantile")
