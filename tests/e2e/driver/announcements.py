"""The announcements of a program for users of screen readers."""

import json
import os
import subprocess
import sys
import threading

from tests.e2e.driver import processes
from tests.e2e.driver.waiting import wait_until


class Announcements:
    """Listens on the desktop like a screen reader: to new notifications, and to changed values. Use it in
    a `with`.
    """

    def __init__(self, desktop):
        self._environment = {**os.environ, **desktop.environment}
        self._process = None
        self._heard = []

    def __enter__(self):
        self._process = processes.start(
            [sys.executable, "-m", "tests.e2e.driver.listener"],
            env=self._environment,
            stdout=subprocess.PIPE,
            text=True,
        )
        threading.Thread(target=self._listen, daemon=True).start()
        self._wait_for("listener", "ready")
        return self

    def __exit__(self, *error):
        processes.stop(self._process)
        self._process.stdout.close()

    def _listen(self):
        for line in self._process.stdout:
            self._heard.append(json.loads(line))

    def _wait_for(self, role, text):
        wait_until(
            lambda: any(heard[0] == role and text in heard[1] for heard in list(self._heard)),
            lambda: f'no {role} with "{text}" among {self._heard[-20:]}',
        )

    def wait_for(self, text):
        """Waits until an announcement contains the text."""
        self._wait_for("notification", text)

    def wait_for_value_of(self, role):
        """Waits until the value of a control with the role has changed."""
        self._wait_for(role, "")
