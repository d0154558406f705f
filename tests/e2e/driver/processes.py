"""Starts programs so that none outlives the test."""

import ctypes
import os
import signal
import subprocess

from tests.e2e.driver.waiting import LIMIT_S

_PR_SET_PDEATHSIG = 1
_libc = ctypes.CDLL(None)


def _die_with_parent():
    # Covers the end of a test that is killed itself, where no clean-up runs.
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


def start(command, **options):
    """A Popen whose process also ends when this one is killed. Call it in the main thread."""
    return subprocess.Popen(command, preexec_fn=_die_with_parent, **options)


def start_announcing(command, **options):
    """Starts a server that writes where it can be reached into a file descriptor.

    `command` is a function that is given the descriptor's number and gives the command. Returns the
    process and the line that it wrote, which is empty when it ended without one.
    """
    reading, writing = os.pipe()
    with os.fdopen(reading) as announcement:
        try:
            process = start(command(writing), pass_fds=[writing], **options)
        finally:
            os.close(writing)
        return process, announcement.readline().strip()


def stop(process):
    """Ends the process, by force if necessary, and forgets it."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(LIMIT_S / 4)
        except subprocess.TimeoutExpired:
            process.kill()
    process.wait()
