"""A separate desktop for the tests: an X server, a window manager, accessibility, input."""

import atexit
import contextlib
import os
import pathlib
import subprocess
import tempfile

from PIL import ImageGrab

from tests.e2e.driver import processes
from tests.e2e.driver.waiting import LIMIT_S, wait_until

SIZE = (1280, 900)


class Desktop:
    """Shared by nobody else, so that tests beside it do not see its windows, keys and clipboard.

    One lives in a process: the accessibility library connects once, to the desktop that the
    environment names. To be used in a `with`, or through `shared()`.
    """

    _shared = None

    @classmethod
    def shared(cls):
        """The desktop that all tests of this process use. It ends with the process."""
        if cls._shared is None:
            stack = contextlib.ExitStack()
            atexit.register(stack.close)
            cls._shared = stack.enter_context(cls())
        return cls._shared

    def __init__(self, size=SIZE):
        self.size = size
        self._stack = contextlib.ExitStack()
        self.environment = {}

    def __enter__(self):
        with contextlib.ExitStack() as stack:
            folder = stack.enter_context(tempfile.TemporaryDirectory(prefix="morvantile-desktop-"))
            self._start_all(stack, pathlib.Path(folder))
            self._stack = stack.pop_all()
        return self

    def __exit__(self, *error):
        self._stack.close()

    def _start_all(self, stack, folder):
        log = stack.enter_context(open(folder / "log", "w", encoding="utf-8"))
        self.environment = self._new_environment(folder)

        def announcing(command):
            process, line = processes.start_announcing(
                command, env=self.environment, stdout=log, stderr=log
            )
            stack.callback(processes.stop, process)
            if not line:
                raise RuntimeError("did not start: " + (folder / "log").read_text())
            return line

        width, height = self.size
        screen = f"{width}x{height}x24"
        # -r: on a slow machine a key would repeat before it is released.
        x_server = ["Xvfb", "-r", "-screen", "0", screen, "-noreset", "-nolisten", "tcp"]
        bus = ["dbus-daemon", "--session", "--nofork", "--nopidfile"]
        self.environment["DISPLAY"] = ":" + announcing(lambda fd: [*x_server, "-displayfd", str(fd)])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = announcing(
            lambda fd: [*bus, f"--print-address={fd}"]
        )
        window_manager = processes.start(
            ["openbox", "--sm-disable"], env=self.environment, stdout=log, stderr=log
        )
        stack.callback(processes.stop, window_manager)
        # Windows that open before it would stay without a frame and without the keyboard.
        wait_until(self._has_window_manager, "no window manager")
        os.environ.update(self.environment)

    @staticmethod
    def _new_environment(folder):
        """Without anything of the user's: settings, language, theme, sound server or session."""
        return {
            "PATH": os.environ["PATH"],
            "HOME": str(folder),
            "XDG_RUNTIME_DIR": str(folder),
            "LC_ALL": "C.UTF-8",
        }

    def _has_window_manager(self):
        return self._run("xdotool", "get_desktop").returncode == 0

    # --- what is on the screen ----------------------------------------------------------------

    def picture(self, area=None):
        """The screen, or the part of it in (left, top, right, bottom), as a Pillow image."""
        return ImageGrab.grab(bbox=area, xdisplay=self.environment["DISPLAY"])

    # --- windows -------------------------------------------------------------------------------

    def resize_window(self, width, height):
        """Resizes the active window to this size, without its frame."""
        self._do("getactivewindow", "windowsize", "--sync", str(width), str(height))

    def window_area(self, title):
        """Where a window is, with or without a frame; none while there is no such window.

        Popups are to be found so: assistive technology is not told of them.
        """
        with contextlib.suppress(subprocess.CalledProcessError):
            window = self._do("search", "--onlyvisible", "--name", f"^{title}$").split()[-1]
            lines = self._do("getwindowgeometry", "--shell", window).split()
            is_ = {key: int(value) for key, value in (line.split("=") for line in lines)}
            return (is_["X"], is_["Y"], is_["X"] + is_["WIDTH"], is_["Y"] + is_["HEIGHT"])
        return None

    # --- input ---------------------------------------------------------------------------------

    def key(self, *keys):
        """Presses and releases keys, such as "ctrl+o", one after another."""
        self._do("key", "--delay", "5", *keys)

    def type(self, text):
        self._do("type", "--delay", "5", "--", text)

    def move(self, x, y):
        self._do("mousemove", str(int(x)), str(int(y)))

    def press(self):
        self._do("mousedown", "1")

    def release(self):
        self._do("mouseup", "1")

    @contextlib.contextmanager
    def holding(self, key):
        """Keeps a key such as "ctrl" down for what is done inside."""
        self._do("keydown", key)
        try:
            yield
        finally:
            self._do("keyup", key)

    def turn_wheel(self, notches):
        """Turns the wheel away from the user, or towards them if negative."""
        self._do("click", "--repeat", str(abs(notches)), "4" if notches > 0 else "5")

    def click(self, x, y):
        # In one go: held long, as on a busy machine, a button means something else to lists.
        self._do("mousemove", str(int(x)), str(int(y)), "click", "1")

    def drag(self, x, y, steps=10):
        """Moves the pointer like a hand, through the places between."""
        from_x, from_y = self.pointer()
        for step in range(1, steps + 1):
            self.move(from_x + (x - from_x) * step / steps, from_y + (y - from_y) * step / steps)

    def pointer(self):
        words = self._do("getmouselocation").split()
        return tuple(int(word.split(":")[1]) for word in words[:2])

    def _do(self, *arguments):
        return self._run("xdotool", *arguments, check=True).stdout.decode()

    # --- the clipboard -------------------------------------------------------------------------

    def clipboard(self, kind):
        """The bytes that another program gets from the clipboard; none if it lacks the format."""
        answer = self._run("xclip", "-selection", "clipboard", "-target", kind, "-out")
        return answer.stdout if answer.returncode == 0 else b""

    def _run(self, *command, check=False):
        return subprocess.run(
            command, env=self.environment, timeout=LIMIT_S, check=check, capture_output=True
        )
