"""What the tests with faults are made of: the real programs, a library that makes their calls to the
system fail, and a look at what they leave.

The environment names the programs (STILLS, MORVANTILE_CLI), the library (FAULTS_LIBRARY) and the
folder of the samples (MORVANTILE_MEDIA).
"""

import contextlib
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

from PIL import Image

HIDDEN = ".morvantile-*.part"
NOBODY = 65534


def sample(name):
    return pathlib.Path(os.environ["MORVANTILE_MEDIA"]) / name


class Result:
    """The exit code and output of a program."""

    def __init__(self, status, output, faults):
        self.status = status
        self.output = output
        self.faults = faults  # one line each, see faults.cpp

    def __str__(self):
        return f"status {self.status}\n{self.output}\n{len(self.faults)} faults"


class FaultCase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="morvantile-faults-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(os.path.realpath(folder.name))
        self.out = self.folder / "out"
        self.out.mkdir()
        (self.folder / "home").mkdir()

    def environment(self, faults=None, below=None):
        home = str(self.folder / "home")
        environment = {**os.environ, "HOME": home, "XDG_CONFIG_HOME": f"{home}/config",
                       "XDG_DATA_HOME": f"{home}/data", "LC_ALL": "C.UTF-8"}
        if faults:
            environment.update({
                "LD_PRELOAD": os.environ["FAULTS_LIBRARY"], "FAULTS": faults,
                "FAULTS_BELOW": str(below or self.out),
                "FAULTS_LOG": str(self.folder / "faults.log")})
        return environment

    def give_to_nobody(self):
        """Lets runs as nobody use the folders."""
        for path in (self.folder, *self.folder.rglob("*")):
            path.chmod(0o777 if path.is_dir() else 0o666)

    def start(self, program, *arguments, faults=None, below=None, limits=(), as_nobody=False,
              closed=(), stdin=subprocess.DEVNULL):
        """With as_nobody, root's programs run as a user without privileges. The standard streams of
        the numbers in closed are closed."""
        def prepare():
            # Shells ignore this signal for programs in the background, and stills would inherit that.
            signal.signal(signal.SIGINT, signal.SIG_DFL)
            for stream in closed:
                os.close(stream)
            for kind, value in limits:
                resource.setrlimit(kind, value if isinstance(value, tuple) else (value, value))
        return subprocess.Popen(
            [os.environ[program], *map(str, arguments)], stdin=stdin,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            env=self.environment(faults, below), preexec_fn=prepare,
            user=NOBODY if as_nobody and os.geteuid() == 0 else None)

    def finish(self, process, timeout=60):
        try:
            output, _ = process.communicate(timeout=timeout)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            self.fail(f"{process.args} does not end")
        log = self.folder / "faults.log"
        lines = log.read_text().splitlines() if log.exists() else []
        return Result(process.returncode, output.decode(errors="replace"), lines)

    def run_program(self, program, *arguments, timeout=60, **options):
        return self.finish(self.start(program, *arguments, **options), timeout)

    def stills(self, *arguments, **options):
        return self.run_program("STILLS", *arguments, **options)

    def visible(self, folder=None):
        folder = folder or self.out
        return sorted(path for path in folder.iterdir() if not path.name.startswith("."))

    def hidden(self, folder=None):
        return sorted((folder or self.out).glob(HIDDEN))

    def make_old(self):
        """Lets two hours pass for the hidden files."""
        for path in self.hidden():
            with contextlib.suppress(FileNotFoundError):
                os.utime(path, (time.time() - 7200,) * 2)

    def check_whole(self, folder=None):
        """Every file under a final name must be a complete picture."""
        for path in self.visible(folder):
            with Image.open(path) as picture:
                picture.load()

    def check_clean(self, folder=None):
        """The same, and no other files of ours may remain."""
        self.check_whole(folder)
        self.assertEqual(self.hidden(folder), [])

    def check_told(self, result, *texts):
        """A failure must end with status 1, and the text must name each of these."""
        self.assertEqual(result.status, 1, str(result))
        for text in texts:
            self.assertIn(str(text), result.output, str(result))


@contextlib.contextmanager
def small_disk(folder, size):
    """Mounts a disk of that size on the folder; yields False without permission."""
    is_mounted = subprocess.run(
        ["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", str(folder)],
        capture_output=True, check=False).returncode == 0
    try:
        yield is_mounted
    finally:
        if is_mounted:
            subprocess.run(["umount", "-l", str(folder)], check=True)


def remount_read_only(folder):
    subprocess.run(["mount", "-o", "remount,ro", str(folder)], check=True,
                   capture_output=True)


def remove(folder):
    shutil.rmtree(folder, ignore_errors=True)
