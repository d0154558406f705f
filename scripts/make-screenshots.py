#!/usr/bin/python3
"""Takes screenshots of the running program, driven by keys and mouse.

Run it by hand after a window changed, from any folder. It needs a release build, and the packages that
packages.txt lists for the tests. Without arguments it makes the pictures of the user guide in
docs/user-guide. `--matrix FOLDER` takes the main window in both themes, in several sizes, with larger
fonts and from right to left, for inspection.
"""

import argparse
import itertools
import os
import pathlib
import shutil
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PICTURES = ROOT / "docs/user-guide"
SAMPLE = ROOT / "samples/sunrise.mp4"
LOGO = ROOT / "resources/Images/MVIcon128.png"

os.environ.setdefault("MORVANTILE", str(ROOT / "build/release/app/morvantile"))
sys.path.insert(0, str(ROOT))
# pylint: disable=wrong-import-position
from tests.e2e.driver.desktop import Desktop  # noqa: E402
from tests.e2e.driver.program import Program  # noqa: E402
from tests.e2e.driver.waiting import wait_until  # noqa: E402

# Size of the main window with a video.
SIZE = (1120, 700)
# The dimensions of the matrix: themes, sizes of the window and of fonts, layout directions.
THEMES = ("dark", "light")
SIZES = ((800, 600), (1280, 800), (2560, 1600))
FONT_SCALES = (1, 1.5)
DIRECTIONS = {"": (), "-reverse": ("-reverse",)}
USUAL_DPI = 96
# Larger than the largest window.
MATRIX_SCREEN = (2600, 1700)
# A window has stopped changing when successive screenshots are equal.
STILL_TIMES = 15


class Photographer:
    def __init__(self, desktop, program, folder=PICTURES):
        self.desktop = desktop
        self.program = program
        self.folder = folder

    def take(self, name, title):
        """Takes the window with the title, once nothing in it moves."""
        window = self.program.window(title)
        self.desktop.move(1, self.desktop.size[1] - 1)
        self._save(name, self._settled(window))

    def take_moving(self, name, title):
        """Takes the window with the title in its current state."""
        self._save(name, self.desktop.picture(self.program.window(title).area))

    def _save(self, name, picture):
        picture.save(self.folder / f"{name}.png", optimize=True)
        print(name, picture.size)

    def _settled(self, window):
        seen = [self.desktop.picture(window.area)]

        def same_again():
            seen.append(self.desktop.picture(window.area))
            if seen[-1] != seen[0]:
                seen[:] = seen[-1:]
            return len(seen) > STILL_TIMES

        wait_until(same_again, "the window does not come to rest")
        return seen[0]


def take_main_window(photographer, video):
    desktop, program = photographer.desktop, photographer.program
    photographer.take("window-empty", "Morvantile")
    desktop.resize_window(*SIZE)
    program.open_with_dialog(video)
    title = f"Morvantile - {video.name}"
    wait_until(lambda: program.position > 3500, "the video does not play")
    desktop.key("space")
    wait_until(program.offers_to_play, "the video goes on")
    desktop.key("ctrl+a")
    wait_until(lambda: program.find("push button", "Save").is_enabled, "no snapshot was taken")
    tick_automatic_names(program)
    photographer.take("window", title)


def choose_file(program, path):
    program.enter(str(path))
    program.desktop.key("Return")


def take_profiles(photographer):
    desktop, program = photographer.desktop, photographer.program
    program.click("push button", "Edit image profiles")
    photographer.take("image-profile", "Image Profile Settings")

    program.click("push button", "Edit Watermark")
    program.window("Watermark Settings")
    program.click("text", "Watermark text")
    desktop.type("Morvantile")
    # Does not cover the times in the sample.
    program.click("combo box", "Bottom Right")
    desktop.key("Home", "Down", "Down", "Return")
    photographer.take("watermark-text", "Watermark Settings")
    program.click("radio button", "Image")
    choose_file(program, LOGO)
    photographer.take("watermark-image", "Watermark Settings")
    for title in ("Watermark Settings", "Image Profile Settings"):
        program.window(title)
        desktop.key("Escape")

    program.click("push button", "Edit file-name profiles")
    photographer.take("file-name-profile", "File Name Profile Settings")
    desktop.key("Escape")


def choose_in_menu(program, menu, item):
    program.click("menu item", menu)
    program.click("menu item", item)


def take_filters(photographer):
    program = photographer.program
    choose_in_menu(program, "Tools", "Compare Filters")
    photographer.take("image-filters", "Compare Filters")
    photographer.desktop.key("Escape")


def take_batch(photographer, video):
    desktop, program = photographer.desktop, photographer.program
    copies = [video.with_name(name) for name in ("Harbour.mp4", "Headland.mp4", "Lighthouse.mp4")]
    for copy in copies:
        shutil.copy(video, copy)
    choose_in_menu(program, "Tools", "Batch Mode")
    program.window("Morvantile Batch Mode")
    program.click("push button", "Load Video")
    program.window("Open")
    choose_file(program, " ".join(f'"{copy}"' for copy in copies))
    program.window("Morvantile Batch Mode")
    program.click("push button", "Select All")
    photographer.take("batch-mode", "Morvantile Batch Mode")

    program.click("push button", "Start")
    program.window("Batch Processing")
    total = program.find("progress bar", "Progress of all videos")
    wait_until(lambda: total.value > 30, "the batch does not go on")
    photographer.take_moving("batch-processing", "Batch Processing")
    wait_until(lambda: program.has("push button", "Done"), "the batch does not end")
    program.click("push button", "Done")
    program.window("Morvantile Batch Mode")
    desktop.key("Escape")


def take_all(photographer, video):
    take_main_window(photographer, video)
    take_profiles(photographer)
    take_filters(photographer)
    take_batch(photographer, video)


class MatrixEntry:
    """The main window in one theme, size, font scale and layout direction."""

    def __init__(self, theme, size, scale, direction):
        self.theme = theme
        self.size = size
        self.scale = scale
        self.direction = direction

    @property
    def name(self):
        width, height = self.size
        large = "-large" if self.scale > 1 else ""
        return f"{self.theme}-{width}x{height}{large}{self.direction}"

    def start(self, desktop, home, recent):
        """A program with these settings, not resized yet."""
        folder = pathlib.Path(home, "config/Morvantile")
        folder.mkdir(parents=True)
        files = ", ".join(str(file) for file in recent)
        settings = f"[General]\ntheme={self.theme}\nrecentFiles={files}\n"
        (folder / "Morvantile.conf").write_text(settings, encoding="utf-8")
        # Only the fonts are scaled: by default, Qt would scale everything for a screen of higher
        # density.
        dpi = str(round(USUAL_DPI * self.scale))
        environment = {"QT_FONT_DPI": dpi, "QT_ENABLE_HIGHDPI_SCALING": "0"}
        return Program(desktop, home, DIRECTIONS[self.direction], environment)


def take_matrix_entry(desktop, entry, folder):
    with tempfile.TemporaryDirectory() as home:
        video, *others = [
            pathlib.Path(shutil.copy(SAMPLE, pathlib.Path(home, name)))
            for name in ("sunrise.mp4", "Harbour in the Morning.mp4", "Lighthouse.mp4")
        ]
        with entry.start(desktop, home, [video, *others]) as program:
            photographer = Photographer(desktop, program, folder)
            desktop.resize_window(*entry.size)
            photographer.take(f"{entry.name}-empty", "Morvantile")
            program.open_with_dialog(video)
            title = f"Morvantile - {video.name}"
            wait_until(lambda: program.position > 2500, "the video does not play")
            desktop.key("space")
            photographer.take(f"{entry.name}-open", title)
            desktop.key("ctrl+a")
            save = program.find("push button", "Save")
            wait_until(lambda: save.is_enabled, "no snapshot was taken")
            photographer.take(f"{entry.name}-taken", title)
            tick_automatic_names(program, from_right=bool(entry.direction))
            desktop.key("ctrl+s")
            photographer.take(f"{entry.name}-saved", title)


def tick_automatic_names(program, from_right=False):
    left, top, right, _ = program.find("check box", "Automatic File Name").area
    program.desktop.click(right - 12 if from_right else left + 12, top + 8)
    wait_until(lambda: program.has("label", description="Next file name"), "no automatic names")


def take_matrix(folder):
    folder.mkdir(parents=True, exist_ok=True)
    with Desktop(MATRIX_SCREEN) as desktop:
        for parts in itertools.product(THEMES, SIZES, FONT_SCALES, DIRECTIONS):
            take_matrix_entry(desktop, MatrixEntry(*parts), folder)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--matrix", metavar="FOLDER", type=pathlib.Path)
    folder = parser.parse_args().matrix
    if folder is None:
        take_guide()
    else:
        take_matrix(folder)


def take_guide():
    desktop = Desktop.shared()
    # Visible in the pictures, so it has a readable name.
    videos = pathlib.Path(tempfile.gettempdir(), "Videos")
    videos.mkdir()
    try:
        video = pathlib.Path(shutil.copy(SAMPLE, videos))
        with tempfile.TemporaryDirectory() as home, Program(desktop, home) as program:
            take_all(Photographer(desktop, program), video)
    finally:
        shutil.rmtree(videos)


if __name__ == "__main__":
    main()
