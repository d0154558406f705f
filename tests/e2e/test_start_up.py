"""Starting and ending."""

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.desktop import SIZE
from tests.e2e.driver.program import Program
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

    def test_first_file_among_the_arguments_is_opened(self):
        videos = [self.sample("h264_gop250.mp4", "a b.mp4"), self.sample("h264_bframes.mp4")]
        program = self.start(["--nonsense", *map(str, videos)])
        program.window("Morvantile - a b.mp4")
        wait_until(lambda: (program.shown_frame() or 0) > 0, "it does not play")

    def test_file_goes_to_the_window_that_runs(self):
        first = self.start()
        self.open_paused(first, self.sample("h264_gop250.mp4"))
        self.take_snapshot(first)
        self.assertEqual(self.run_with(self.sample("h264_bframes.mp4")), 0)
        first.window("Morvantile - h264_bframes.mp4")
        wait_until(lambda: first.duration == 100 * 40, "still the first video's duration")

    def test_file_opens_a_window_of_its_own_while_a_dialog_is_open(self):
        first = self.start()
        first.click("menu item", "Help")
        first.click("menu item", "About")
        first.window("About Morvantile")
        second = self.start([str(self.sample("h264_bframes.mp4"))])
        second.window("Morvantile - h264_bframes.mp4")

    def test_file_opens_a_window_after_one_that_was_killed(self):
        first = self.start()
        first.kill()
        second = self.start([str(self.sample("h264_bframes.mp4"))])
        second.window("Morvantile - h264_bframes.mp4")
        self.assertEqual(self.run_with(self.sample("h264_gop250.mp4")), 0)
        second.window("Morvantile - h264_gop250.mp4")

    def run_with(self, *files):
        """Starts the program again, waits until it has passed the files on, and returns its exit code."""
        return Program(self.desktop, self.home, map(str, files)).run()

    def test_video_plays_without_opengl(self):
        program = self.start(
            environment={"QT_XCB_GL_INTEGRATION": "none", "LIBGL_ALWAYS_SOFTWARE": "1"}
        )
        number = self.open_paused(program, self.sample("h264_gop250.mp4"))
        self.desktop.key("Right")
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

    def test_second_start_without_files_brings_the_window_to_the_front(self):
        first = self.start()
        number = self.open_paused(first, self.sample("h264_gop250.mp4"))
        self.assertEqual(self.run_with(), 0)
        first.window("Morvantile - h264_gop250.mp4")
        self.desktop.key("Right")
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
            ("Tools", "Compare Filters", "Compare Filters"),
        ):
            with self.subTest(entry):
                program.click("menu item", menu)
                program.click("menu item", entry)
                program.window(title)
                self.desktop.key("Escape")
                program.window("Morvantile")
