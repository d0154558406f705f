"""Waiting for conditions, however slow the machine is."""

import time

# Far beyond what anything takes on a loaded machine: reached only by what never comes.
LIMIT_S = 40
PAUSE_S = 0.02


def wait_until(condition, what, limit=LIMIT_S):
    """The first true value that `condition` returns.

    `what` completes the sentence of the AssertionError that is raised after `limit` seconds; it is
    a text, or a function that makes one of what is the case then.
    """
    end = time.monotonic() + limit
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            text = what() if callable(what) else what
            raise AssertionError(f"waited {limit} s in vain: {text}")
        time.sleep(PAUSE_S)


def holds_for(condition, seconds):
    """Whether `condition` stays true, for events that must not happen."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            return False
        time.sleep(PAUSE_S)
    return True
