"""The accessibility tree, as it comes over the bus."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (the version has to be chosen first)


class Control:
    """One node of the tree."""

    def __init__(self, node):
        self.node = node
        self.role = node.get_role_name()
        self.name = node.get_name() or ""

    @property
    def description(self):
        return self.node.get_description() or ""

    def has(self, *states):
        found = self.node.get_state_set()
        return all(found.contains(getattr(Atspi.StateType, state.upper())) for state in states)

    @property
    def is_shown(self):
        return self.has("visible", "showing")

    @property
    def value(self):
        """What it is at, and the least and most that it can be."""
        value = self.node.get_value_iface()
        return value.get_current_value(), value.get_minimum_value(), value.get_maximum_value()

    @property
    def center(self):
        area = self.node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return area.x + area.width / 2, area.y + area.height / 2

    def act(self):
        """Does what the control is there for: presses a button, toggles a check box."""
        actions = self.node.get_action_iface()
        names = [actions.get_action_name(index).lower() for index in range(actions.get_n_actions())]
        wanted = next(name for name in ("toggle", "press") if name in names)
        actions.do_action(names.index(wanted))

    def child(self, role, name):
        """The first control of that role and name below this one, or None."""
        return next((c for _, c in self.walk() if (c.role, c.name) == (role, name)), None)

    def children(self):
        for index in range(self.node.get_child_count()):
            child = self.node.get_child_at_index(index)
            if child is not None:
                yield Control(child)

    def walk(self, depth=0):
        yield depth, self
        for child in self.children():
            yield from child.walk(depth + 1)

    def __str__(self):
        return f"{self.role} {self.name!r} {self.description!r}"
