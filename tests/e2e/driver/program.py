"""The real program, started and observed on a desktop."""

import contextlib
import os
import pathlib

from tests.e2e.driver import processes
from tests.e2e.driver.controls import Control, windows_of
from tests.e2e.driver.frames import fitted, frame_number
from tests.e2e.driver.waiting import LIMIT_S, holds_for, wait_until

BINARY = pathlib.Path(os.environ.get("MORVANTILE", "build/release/app/morvantile")).absolute()


class Program:
    """A running `morvantile`. To be used in a `with`, which ends it if it still runs.

    `home` is the folder of its settings, so that a second start may find what the first one left.
    A variable of the environment that is None is not set.
    """

    def __init__(self, desktop, home, arguments=(), environment=None):
        self.desktop = desktop
        self._home = pathlib.Path(home)
        self.log_file = self._home / "morvantile.log"
        self._arguments = list(arguments)
        self._environment = environment or {}
        self._process = None
        self._known = {}

    def __enter__(self):
        self._start()
        try:
            self.window()
        except BaseException:
            processes.stop(self._process)
            raise
        return self

    def __exit__(self, *error):
        processes.stop(self._process)

    def _start(self):
        self._home.mkdir(parents=True, exist_ok=True)
        with open(self.log_file, "ab") as log:
            self._process = processes.start(
                [BINARY, *self._arguments],
                env=self._all_environment(),
                cwd=self._home,
                stdout=log,
                stderr=log,
            )

    def run(self):
        """Runs it without a `with` if it shows no window; returns its exit code."""
        self._start()
        try:
            return self.wait_for_end()
        finally:
            processes.stop(self._process)

    def terminate(self):
        """Requests it to end, as the system does on shutdown."""
        self._process.terminate()

    def kill(self):
        """Kills it without leaving it any time."""
        self._process.kill()
        self._process.wait()

    def _all_environment(self):
        sanitizers = {key: os.environ[key] for key in os.environ if key.endswith("SAN_OPTIONS")}
        environment = {
            **self.desktop.environment,
            "HOME": str(self._home),
            "XDG_CONFIG_HOME": str(self._home / "config"),
            "XDG_DATA_HOME": str(self._home / "data"),
            "XDG_CACHE_HOME": str(self._home / "cache"),
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            **sanitizers,
            **self._environment,
        }
        return {key: value for key, value in environment.items() if value is not None}

    # --- windows and controls ------------------------------------------------------------------

    def _windows(self):
        if self._process.poll() is not None:
            raise AssertionError(f"the program ended with {self._process.returncode}")
        try:
            return [window for window in windows_of(self._process.pid) if window.is_showing]
        except Control.Gone:
            return []

    def window(self, title=None, limit=LIMIT_S):
        """The active window or dialog, once it has the title, if given."""

        def wanted():
            with contextlib.suppress(Control.Gone):
                for window in self._windows():
                    if window.has_state("ACTIVE") and title in (None, window.name):
                        return window
            return None

        def missing():
            return f"no active window {title or ''} among {[str(w) for w in self._windows()]}"

        return wait_until(wanted, missing, limit)

    def _controls(self, role, name, description):
        with contextlib.suppress(Control.Gone):
            for window in self._windows():
                yield from window.all(role, name, description)

    def find_all(self, role=None, name=None, description=None):
        """The visible controls in all windows that match all given conditions."""
        return list(self._controls(role, name, description))

    def has(self, role=None, name=None, description=None):
        return next(self._controls(role, name, description), None) is not None

    def find(self, role=None, name=None, description=None):
        """The first matching control on the screen, once there is one."""
        return wait_until(
            lambda: next(self._controls(role, name, description), None),
            lambda: f"no {role or 'control'} {name or ''} {description or ''} on the screen",
        )

    def click(self, role=None, name=None, description=None):
        """Clicks on the matching control, once it can be clicked."""
        control = self.find(role, name, description)
        wait_until(lambda: control.is_enabled, f"{control} stays disabled")
        self.desktop.click(*control.middle)
        return control

    def click_in(self, title, button):
        """Clicks on the button of the active window, if others have one with that name, too."""
        control = next(self.window(title).all("push button", button))
        wait_until(lambda: control.is_enabled, f"{control} stays disabled")
        self.desktop.click(*control.middle)

    def enter(self, text):
        """Replaces the text of the focused edit field by typing."""
        field = wait_until(self._focused_field, "no edit field has the keyboard")

        def typed():
            # Again where it came out differently: Qt's file dialog completes while it still reads
            # the folder, and on a busy machine that may replace what was typed.
            self.desktop.key("ctrl+a")
            self.desktop.type(text)
            with contextlib.suppress(AssertionError):
                wait_until(lambda: field.text == text, "typed differently", LIMIT_S / 20)
            return holds_for(lambda: field.text == text, 0.1)

        wait_until(typed, lambda: f'"{field.text}" instead of "{text}"')
        return field

    def fill(self, name, text):
        """Clicks into the edit field and replaces its text by typing."""
        field = self.find("text", name)
        self.desktop.click(*field.middle)
        wait_until(lambda: field.is_focused, f"{field} does not take the keyboard")
        return self.enter(text)

    def set_number(self, name, number):
        """Types the number into the spin box and leaves it."""
        box = self.find("spin button", name)
        self.desktop.click(*box.middle)
        wait_until(lambda: box.is_focused, f"{box} does not take the keyboard")
        self.desktop.key("ctrl+a")
        self.desktop.type(str(number))
        self.desktop.key("Tab")
        wait_until(lambda: box.value == number, lambda: f"{box} is at {box.value}")

    def choose(self, description, item):
        """Selects the item in the list of the combo box."""
        box = self.find("combo box", description=description)
        entries = box.children[0]
        items = [entry.name for entry in entries.children]
        steps = items.index(item) - items.index(box.name)

        def opened():
            # Again where it is closed: on a busy machine, the release may count as a choice.
            self.desktop.click(*box.middle)
            with contextlib.suppress(AssertionError):
                wait_until(lambda: _has_room(entries), "closed", LIMIT_S / 20)
            return holds_for(lambda: _has_room(entries), 0.2)

        wait_until(opened, f"{box} does not open")
        self.desktop.key(*["Down" if steps > 0 else "Up"] * abs(steps), "Return")
        wait_until(lambda: box.name == item, lambda: f"{box.name} is chosen, not {item}")

    def _focused_field(self):
        return next((field for field in self.find_all("text") if field.is_focused), None)

    def focused(self):
        """The control with the focus, or none."""
        controls = [control for control in self.find_all() if control.is_focused]
        # The current item of a list says so even while another control has the keyboard. With Qt 6,
        # its list says so, too, while it has the keyboard.
        items = [control for control in controls if control.role == "list item"]
        others = [control for control in controls if control.role != "list item"]
        has_item = not others or others[0].role == "list"
        return next(iter(items if items and has_item else others), None)

    # --- the main window -----------------------------------------------------------------------

    def _known_or(self, key, find):
        """What `find` found before, as long as it is on the screen: searching for a control takes
        some hundred questions, and tests ask again and again until something has changed."""
        with contextlib.suppress(KeyError, Control.Gone):
            if self._known[key].is_showing:
                return self._known[key]
        self._known[key] = find()
        return self._known[key]

    @property
    def position(self):
        """The shown position, in milliseconds."""
        label = self._known_or("position", lambda: self.find("label", description="Position"))
        return _milliseconds(label.name)

    @property
    def duration(self):
        return _milliseconds(self.find("label", description="Duration").name)

    def open_button(self):
        """The button in the place of the video, which is also behind a visible video."""
        wanted = ("Open a video, or drop one here", "Plays and pauses")

        def found():
            buttons = self._controls("push button", None, None)
            return next((button for button in buttons if button.description in wanted), None)

        def search():
            return wait_until(found, "neither a video nor a button that opens one")

        return self._known_or("open button", search)

    def open_with_dialog(self, path):
        """Opens the video like a user, and waits until it is on the screen."""
        self.desktop.key("ctrl+o")
        self.window("Open")
        self.enter(str(path))
        self.desktop.key("Return")
        self.window(f"Morvantile - {pathlib.Path(path).name}")

    def shown_frame(self):
        """The number in the picture of the player; none if it is unreadable."""
        return self._frame_in(self.open_button().parent)

    def shown_snapshot(self):
        """The number in the picture of the snapshot; none if it is unreadable."""
        return self._frame_in(self.snapshot_view())

    def snapshot_view(self):
        """The part of the window that shows the snapshot."""
        return self.find(name="Snapshot")

    def offers_to_play(self):
        """Whether the play button shows the triangle, not the two bars."""
        button = self._known_or("play", lambda: self.find("push button", "Play/Pause"))
        picture = self.desktop.picture(button.area).convert("L")
        # The middle is inside the triangle, and between the bars, where the ground shows; beside
        # the ring of the focus there is nothing but ground.
        middle = picture.getpixel((picture.width // 2, picture.height // 2))
        ground = picture.getpixel((4, picture.height // 2))
        return abs(middle - ground) > 64

    def _frame_in(self, control):
        # The samples that tests look at on the screen have pictures of four to three.
        return frame_number(self.desktop.picture(fitted((4, 3), control.area)))

    # --- its end -------------------------------------------------------------------------------

    def wait_for_end(self, limit=LIMIT_S):
        """The exit code, which is negative for a signal."""
        wait_until(lambda: self._process.poll() is not None, "the program still runs", limit)
        return self._process.returncode

    @property
    def log(self):
        return self.log_file.read_text(encoding="utf-8", errors="replace")


def _has_room(control):
    left, top, right, bottom = control.area
    return right > left and bottom > top


def _milliseconds(text):
    hours, minutes, seconds = text.split(":")
    return round((int(hours) * 3600 + int(minutes) * 60 + float(seconds)) * 1000)
