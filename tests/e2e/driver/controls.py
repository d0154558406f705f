"""The controls of a running program as assistive technology sees them."""

import gi

gi.require_version("Atspi", "2.0")
# pylint: disable=wrong-import-position
from gi.repository import Atspi, GLib  # noqa: E402

# How long a program may take for an answer, and for its first one. A busy one, not a hanging one,
# needs more than the usual 0.8 s at times.
Atspi.set_timeout(10_000, 20_000)


# Controls of these roles have no others inside, unlike a check box, which may be that of a group, and
# the button in the place of the video.
LEAVES = {"label", "radio button", "separator", "slider", "text"}


class Control:
    """A control of a program. What it says of itself is asked of the program each time.

    A question about a control that is gone raises `Control.Gone`.
    """

    Gone = GLib.Error

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def role(self):
        """The name of its role, such as "push button"."""
        return self._accessible.get_role_name()

    @property
    def name(self):
        return self._accessible.get_name()

    @property
    def description(self):
        return self._accessible.get_description()

    @property
    def text(self):
        """The text of an edit field."""
        return Atspi.Text.get_text(self._accessible, 0, -1)

    @property
    def value(self):
        """The position of a slider."""
        return Atspi.Value.get_current_value(self._accessible)

    @property
    def maximum(self):
        return Atspi.Value.get_maximum_value(self._accessible)

    def has_state(self, state):
        """`state` is the name of a member of Atspi.StateType, such as "ENABLED"."""
        return self._accessible.get_state_set().contains(getattr(Atspi.StateType, state))

    @property
    def is_enabled(self):
        return self.has_state("ENABLED")

    @property
    def is_showing(self):
        return self.has_state("SHOWING")

    @property
    def is_focused(self):
        return self.has_state("FOCUSED")

    @property
    def is_checked(self):
        return self.has_state("CHECKED")

    @property
    def area(self):
        """Its place on the screen: (left, top, right, bottom)."""
        box = self._accessible.get_extents(Atspi.CoordType.SCREEN)
        return (box.x, box.y, box.x + box.width, box.y + box.height)

    @property
    def middle(self):
        left, top, right, bottom = self.area
        return (left + right) // 2, (top + bottom) // 2

    @property
    def parent(self):
        return Control(self._accessible.get_parent())

    @property
    def children(self):
        count = self._accessible.get_child_count()
        found = (self._accessible.get_child_at_index(i) for i in range(count))
        return [Control(child) for child in found if child is not None]

    def all(self, role=None, name=None, description=None):
        """The visible controls inside it, at any depth, that match all given conditions."""
        for child in self.children:
            if not child.is_showing:
                continue
            child_role = child.role
            if (
                role in (None, child_role)
                and (name is None or child.name == name)
                and (description is None or child.description == description)
            ):
                yield child
            if child_role not in LEAVES:
                yield from child.all(role, name, description)

    def __str__(self):
        return f'{self.role} "{self.name}"'


def windows_of(process_id):
    """The windows and dialogs of a program; none before it has started."""
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        if application is not None and application.get_process_id() == process_id:
            # What the program says counts, not what it said before.
            application.set_cache_mask(Atspi.Cache.NONE)
            return Control(application).children
    return []
