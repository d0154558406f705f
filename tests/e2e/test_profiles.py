"""Making profiles in their dialogs, and pictures with them."""

from PIL import Image, ImageChops

from tests.e2e.driver.case import MorvantileCase
from tests.e2e.driver.frames import fitted, frame_number
from tests.e2e.driver.waiting import wait_until

# A profile of which every part is to be seen, and what it makes of the samples' white.
SIZE = (320, 240)
CONTRAST = -40
FLAT_WHITE = 204
# The contrast goes for the opacity too, so that the window's light grey shines through.
SHOWN_WHITE = 210

# Leaves room for the snapshot beside it.
DIALOG_SIZE = (700, 640)

# The least that people have: a screen of 800 by 600 less a title bar, with larger letters.
SMALL_SCREEN = (792, 560)
LARGE_FONTS = {"QT_FONT_DPI": "144", "QT_ENABLE_HIGHDPI_SCALING": "0"}

WINDOW = "Morvantile - h264_gop250.mp4"


class SmallScreenTest(MorvantileCase):

    def test_watermark_is_reached_on_a_small_screen_with_large_fonts(self):
        program = self.start(environment=LARGE_FONTS)
        self.open_paused(program, self.sample("h264_gop250.mp4"))
        self.take_snapshot(program)
        program.click("push button", "Edit image profiles")
        dialog = program.window("Image Profile Settings")
        self.desktop.resize_window(*SMALL_SCREEN)
        wait_until(lambda: dialog.area[2] - dialog.area[0] <= SMALL_SCREEN[0], "it stays large")
        # Below what is in view, behind the dialog's own buttons.
        button = program.find("push button", "Edit Watermark")
        end = next(program.window().all("push button", "Save")).area[1]
        self.assertGreater(button.area[3], end)
        brightness = program.find("spin button", "Brightness")
        before = brightness.value
        # Over fields, which keep their values.
        self.desktop.move(*brightness.middle)

        def in_view():
            self.desktop.turn_wheel(-1)
            return button.area[3] < end - 20

        wait_until(in_view, lambda: f"it stays at {button.area}")
        self.assertEqual(brightness.value, before)
        self.assertFalse(brightness.is_focused)
        program.click("push button", "Edit Watermark")
        program.window("Watermark Settings")


class ProfilesTest(MorvantileCase):

    def setUp(self):
        super().setUp()
        self.program = self.start()

    def test_new_image_profile_is_seen_at_once_and_saved_with(self):
        number = self.open_with_snapshot()
        self.edit_image_profile()
        self.program.enter("Small and flat")
        self.enter_size_and_contrast()
        # In the main window, while the dialog is open.
        wait_until(lambda: brightest(self.preview(SIZE)) <= SHOWN_WHITE + 4, "no preview")
        self.assertEqual(self.program.shown_snapshot(), number)
        self.save_dialog("Image Profile Settings")
        self.expect_profile("Small and flat")
        with Image.open(self.snap_and_save("plain.png")) as picture:
            self.assertEqual(picture.size, SIZE)
            self.assertEqual(frame_number(picture), number)
            self.assertAlmostEqual(brightest(picture), FLAT_WHITE, delta=4)

    def test_new_text_watermark_is_seen_at_once_and_saved(self):
        self.open_with_snapshot()
        plain = self.snap_and_save("plain.png")
        before = self.snapshot_pixels()
        self.edit_image_profile()
        self.program.click("push button", "Edit Watermark")
        self.program.window("Watermark Settings")
        self.program.enter("Signature")
        self.program.fill("Watermark text", "Morvantile")
        self.save_dialog("Watermark Settings")
        self.program.window("Image Profile Settings")
        self.program.find("combo box", "Signature", "Watermark")
        wait_until(lambda: self.snapshot_pixels() != before, "it is not to be seen")
        self.save_dialog("Image Profile Settings")
        marked = self.snap_and_save("marked.png")
        with Image.open(plain) as one, Image.open(marked) as other:
            left, top, right, bottom = ImageChops.difference(
                one.convert("RGB"), other.convert("RGB")
            ).getbbox()
        # Near the lower right corner, but for the margins of 15 pixels.
        self.assertTrue(640 - 15 - 5 <= right <= 640 - 15 + 1, right)
        self.assertTrue(480 - 15 - 10 <= bottom <= 480 - 15, bottom)
        self.assertTrue(30 <= right - left <= 200, (left, right))
        self.assertTrue(5 <= bottom - top <= 40, (top, bottom))

    def test_image_profile_is_found_and_used_after_a_restart(self):
        self.open_with_snapshot()
        self.edit_image_profile()
        self.program.enter("Kept")
        self.enter_size_and_contrast()
        self.save_dialog("Image Profile Settings")
        self.expect_profile("Kept")
        self.desktop.key("alt+F4")
        self.assertEqual(self.program.wait_for_end(), 0)

        self.program = self.start()
        self.expect_profile("Kept")
        number = self.open_with_snapshot()
        with Image.open(self.snap_and_save("kept.png")) as picture:
            self.assertEqual(picture.size, SIZE)
            self.assertEqual(frame_number(picture), number)
            self.assertAlmostEqual(brightest(picture), FLAT_WHITE, delta=4)

    def test_cancelled_image_profile_is_taken_back(self):
        self.open_with_snapshot()
        before = self.snapshot_pixels()
        self.edit_image_profile()
        self.program.enter("Never")
        self.program.fill("Image Width", "400")
        self.program.fill("Image Height", "100")
        self.program.click("check box", "Maintain Aspect Ratio")
        wait_until(lambda: self.fills_its_part((400, 100)), "no preview")
        self.program.click("push button", "Cancel")
        self.program.window(WINDOW)
        self.expect_profile("Standard")
        wait_until(lambda: self.snapshot_pixels() == before, "the preview stays")
        with Image.open(self.snap_and_save("as before.png")) as picture:
            self.assertEqual(picture.size, (640, 480))
            self.assertEqual(brightest(picture), 255)

    def test_profiles_are_duplicated_renamed_and_deleted(self):
        self.open_with_snapshot()
        self.edit_image_profile()
        self.use_profile_menu("Duplicate")
        self.expect_name("Standard copy")
        self.use_profile_menu("Rename")
        self.program.window("Rename Profile")
        self.program.enter("Mine")
        self.desktop.key("Return")
        self.program.window("Image Profile Settings")
        self.expect_name("Mine")
        self.save_dialog("Image Profile Settings")
        self.expect_profile("Mine")

        # A name that is another profile's is asked about.
        self.edit_image_profile()
        self.program.enter("full hd")
        self.program.click_in("Image Profile Settings", "Save")
        self.program.click_in("Replace Profile", "No")
        self.program.window("Image Profile Settings")
        self.program.click("push button", "Cancel")
        self.program.window(WINDOW)

        self.edit_image_profile()
        self.use_profile_menu("Delete")
        self.program.click_in("Delete Profile", "Yes")
        self.program.window("Image Profile Settings")
        self.program.click("push button", "Cancel")
        self.program.window(WINDOW)
        self.expect_profile("Standard")
        box = self.program.find("combo box", description="Image profile")
        names = [entry.name for entry in box.children[0].children]
        self.assertNotIn("Mine", names)
        self.assertIn("Full HD", names)

    def test_new_picture_watermark_is_put_where_it_belongs(self):
        color = (255, 0, 200)
        mark = self.folder / "mark.png"
        Image.new("RGB", (40, 30), color).save(mark)
        self.open_with_snapshot()
        self.edit_image_profile()
        self.program.click("push button", "Edit Watermark")
        self.program.window("Watermark Settings")
        self.program.enter("Mark")
        self.program.click("radio button", "Image")
        # Without a click on "Browse", since there is no picture yet.
        self.program.window("Open")
        self.program.enter(str(mark))
        self.desktop.key("Return")
        self.program.window("Watermark Settings")
        self.program.choose("Alignment", "Top Right")
        self.program.set_number("X Margin", 20)
        self.program.set_number("Y Margin", 10)
        # In its own pixels.
        self.program.click("check box", "Scale with Picture")
        preview = self.program.find(name="Preview")
        wait_until(lambda: color in colors(self.desktop.picture(preview.area)), "no preview")
        self.save_dialog("Watermark Settings")
        # The profile has a copy.
        mark.unlink()
        self.program.window("Image Profile Settings")
        self.program.find("combo box", "Mark", "Watermark")
        self.save_dialog("Image Profile Settings")
        with Image.open(self.snap_and_save("marked.png")) as picture:
            pixels = picture.convert("RGB")
        place = (640 - 20 - 40, 10, 640 - 20, 10 + 30)
        self.assertEqual(colors(pixels.crop(place)), {color})
        around = pixels.crop((place[0] - 5, place[1] - 5, place[2] + 5, place[3] + 5))
        self.assertEqual(list(around.getdata()).count(color), 40 * 30)

    def test_new_file_name_profile_names_the_files(self):
        number = self.open_with_snapshot()
        pictures = self.folder / "pictures"
        pictures.mkdir()
        self.name_automatically(self.program)
        self.program.click("push button", "Edit file-name profiles")
        self.program.window("File Name Profile Settings")
        self.program.enter("Numbered")
        self.program.fill("Prefix", "shot_")
        self.program.fill("Suffix", "_no")
        self.program.choose("Type", ".png")
        self.program.find("label", "shot_h264_gop250_no00001.png")
        self.program.find("label", "shot_h264_gop250_no.png")
        self.save_dialog("File Name Profile Settings")
        self.program.window(WINDOW)
        self.program.find("combo box", "Numbered", "File-name profile")
        self.program.fill("Output folder", str(pictures))
        self.desktop.key("Return")
        for i in (1, 2):
            file = pictures / f"shot_h264_gop250_no0000{i}.png"
            self.program.find("label", file.name, "Next file name")
            self.desktop.key("ctrl+s")
            wait_until(file.exists, lambda: f"no {file} in {list(pictures.iterdir())}")
            with Image.open(file) as picture:
                self.assertEqual(picture.format, "PNG")
                self.assertEqual(frame_number(picture), number)
        self.assertEqual(len(list(pictures.iterdir())), 2)

    # --- what the cases are made of ------------------------------------------------------------

    def open_with_snapshot(self):
        """Opens the video and takes a snapshot of the frame with the number."""
        number = self.open_paused(self.program, self.sample("h264_gop250.mp4"))
        self.take_snapshot(self.program)
        wait_until(self.program.shown_snapshot, "no snapshot is shown")
        return number

    def edit_image_profile(self):
        """Opens the dialog, shrinks it and moves it away from the snapshot behind it."""
        self.program.click("push button", "Edit image profiles")
        dialog = self.program.window("Image Profile Settings")
        self.desktop.resize_window(*DIALOG_SIZE)
        wait_until(lambda: dialog.area[2] - dialog.area[0] == DIALOG_SIZE[0], "it keeps its size")
        left, top, right, _ = dialog.area
        self.desktop.move((left + right) // 2, top - 10)
        self.desktop.press()
        self.addCleanup(self.desktop.release)
        self.desktop.drag((right - left) // 2 + 10, top - 10)
        self.desktop.release()
        view = self.program.snapshot_view()
        wait_until(lambda: dialog.area[2] < view.area[0], lambda: f"the dialog is at {dialog.area}")

    def enter_size_and_contrast(self):
        self.program.fill("Image Width", str(SIZE[0]))
        self.program.fill("Image Height", str(SIZE[1]))
        self.program.set_number("Contrast", CONTRAST)

    def save_dialog(self, title):
        """Clicks on the button of the dialog, not on that of the main window."""
        self.program.click_in(title, "Save")
        wait_until(lambda: self.program.window().name != title, "the dialog stays open")

    def use_profile_menu(self, entry):
        """Selects an entry of the profile menu in the dialog."""
        left, _, right, bottom = self.program.find(
            name="Rename, duplicate or delete this profile"
        ).area
        # Assistive technology is not told of the menu.
        place = (left, bottom + 4, right, bottom + 64)
        before = self.desktop.picture(place).tobytes()
        self.desktop.click((left + right) // 2, bottom - 8)
        wait_until(lambda: self.desktop.picture(place).tobytes() != before, "no menu comes up")
        steps = ("Rename", "Duplicate", "Delete").index(entry) + 1
        self.desktop.key(*["Down"] * steps, "Return")

    def expect_name(self, name):
        """Waits until the dialog shows the name of the profile."""
        field = self.program.find("text", "Profile")
        wait_until(lambda: field.text == name, lambda: f"it shows {field.text}")

    def expect_profile(self, name):
        box = self.program.find("combo box", description="Image profile")
        wait_until(lambda: box.name == name, lambda: f"{box.name} is selected")

    def snapshot_pixels(self):
        return self.desktop.picture(self.program.snapshot_view().area).tobytes()

    def preview(self, shape):
        """The area of a snapshot with the shape in the main window, without its edges."""
        left, top, right, bottom = fitted(shape, self.program.snapshot_view().area)
        return self.desktop.picture((left + 2, top + 2, right - 2, bottom - 2))

    def fills_its_part(self, shape):
        """Whether the snapshot in the main window has the (wide) shape."""
        area = self.program.snapshot_view().area
        left, top, right, _ = fitted(shape, area)
        above = self.desktop.picture((left, area[1], right, top - 2))
        return len(colors(above)) == 1 and len(colors(self.preview(shape))) > 100

    def snap_and_save(self, name):
        self.program.window(WINDOW)
        self.take_snapshot(self.program)
        return self.save_as(self.program, self.folder / name)


def colors(picture):
    return set(picture.getdata())


def brightest(picture):
    return picture.convert("L").getextrema()[1]
