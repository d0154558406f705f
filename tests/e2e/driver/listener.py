"""A screen reader that prints what it would say: a line of JSON for each event, as
["notification", name] or [role, name] of a control with a value that changed. It runs in a process
of its own, as screen readers do.
"""

import contextlib
import json

import gi

gi.require_version("Atspi", "2.0")
# pylint: disable=wrong-import-position
from gi.repository import Atspi, GLib  # noqa: E402

SHOWN = "object:state-changed:showing"
VALUE = "object:property-change:accessible-value"
NAME = "object:property-change:accessible-name"


def note(event):
    # A control may be gone before it can be asked.
    with contextlib.suppress(GLib.Error):
        event.source.clear_cache()
        role = event.source.get_role_name()
        if role == "notification" or event.type.startswith(VALUE):
            print(json.dumps([role, event.source.get_name()]), flush=True)


def main():
    listener = Atspi.EventListener.new(note)
    for event in (SHOWN, VALUE, NAME):
        listener.register(event)
    print(json.dumps(["listener", "ready"]), flush=True)
    Atspi.event_main()


if __name__ == "__main__":
    main()
