"""Every screen as a screen reader goes through it: a line for each control with its role, name, states,
value and description, on data that is always the same.
Usage: trees.py PROGRAM FOLDER saves them there."""

import os
import re

from driver import GLib
from home import Home
from screens import Walk, at_rest, in_new_world

STATES = ("focused", "checked", "selected")
# What is different each time: ages in the sample data are drawn by chance.
CHANGING = ((re.compile(r"\d+ \w+\.? ago|in \d+ \w+\.?"), "AGE"), (re.compile(r"/\S*drossbin-world-[^/]*"), "WORLD"))


def tree(program):
    """The text of what is shown now; empty while that changes."""
    try:
        shown = [(depth, control) for depth, control in program.walk() if control.is_shown]
        # The first is the process, which is named after its file.
        return "".join("  " * (depth - 1) + line(control) + "\n" for depth, control in shown[1:])
    except GLib.Error:
        return ""


def line(control):
    states = [state for state in STATES if control.has(state)]
    if not control.has("enabled", "sensitive"):
        states.append("disabled")
    value = f"{control.value[0]:g}" if control.role == "progress bar" else ""
    said = [control.role, repr(control.name), *states, value, control.description and repr(control.description)]
    text = " ".join(part for part in said if part)
    for pattern, name in CHANGING:
        text = pattern.sub(name, text)
    return text


def walk(world, desktop, program, take):
    """Calls take(name, running program) on every screen."""
    home = Home(world)
    home.furnish()
    Walk(world, desktop, program, home, take).whole(demo=True)


def save_all(world, desktop, program, folder):
    os.makedirs(folder, exist_ok=True)

    def save(name, running):
        at_rest(running)
        with open(os.path.join(folder, f"{name}.txt"), "w", encoding="utf-8") as file:
            file.write(tree(running))

    walk(world, desktop, program, save)


if __name__ == "__main__":
    in_new_world(save_all)
