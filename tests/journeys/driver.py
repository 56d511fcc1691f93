"""The program as a process, seen and pressed from outside: through the accessibility bus, as a
screen reader does it, and by keys and pointer."""

import contextlib
import os
import signal
import subprocess
import time

import slow
from control import Atspi, Control, GLib
from desktop import dies_with_us

PATIENCE = 40  # seconds; reached only when something is wrong, also on a busy machine

# One look, whatever the machine.
FIXED = {
    "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
    "QT_QPA_PLATFORM": "xcb",
    "QT_QUICK_BACKEND": "software",
    "QT_SCALE_FACTOR": "1",
    "QT_FONT_DPI": "96",
}


def wait_for(what, condition, patience=PATIENCE):
    """Returns the condition's first true value; fails when there is none in time. `what` may be a
    function that tells more when it comes to that."""
    deadline = time.monotonic() + patience
    while True:
        # The tree may change while it is walked: then it is looked at again.
        with contextlib.suppress(GLib.Error):
            value = condition()
            if value:
                return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain for {what() if callable(what) else what}")
        time.sleep(0.02)


class Program:
    """The running program. Every search waits until what it looks for is there."""

    def __init__(self, world, desktop, path, wrapper=(), **environment):
        self.desktop = desktop
        self._errors = os.path.join(world.root, "errors")
        with open(self._errors, "wb") as errors:
            self.process = subprocess.Popen(
                dies_with_us([*wrapper, *dies_with_us([path])]),
                env=world.environment(**desktop.environment(), **{**FIXED, **environment}),
                stdin=subprocess.DEVNULL,
                stdout=subprocess.DEVNULL,
                stderr=errors,
            )
        self.window = wait_for("the window", lambda: desktop.window("Drossbin"))
        wait_for("the window's controls", self._application)
        desktop.focus(self.window)

    # What is on the screen

    def find(self, role, name, **how):
        """The one shown control of that role and name."""
        return wait_for(lambda: f"{role} {name!r} in\n{self.describe()}",
                        lambda: self.now(role, name), **how)

    def find_starting(self, role, start):
        return wait_for(lambda: f"{role} {start!r}... in\n{self.describe()}",
                        lambda: self._first(lambda c: c.role == role and c.name.startswith(start)))

    def wait_until_gone(self, role, name):
        wait_for(lambda: f"{role} {name!r} to go away from\n{self.describe()}",
                 lambda: not self.now(role, name))

    def now(self, role, name):
        return self._first(lambda control: control.role == role and control.name == name)

    def shown(self, role=None):
        """All shown controls, of that role if one is given, in reading order."""
        return [c for c in self._all() if (role is None or c.role == role) and c.is_shown]

    def names(self, role):
        return [control.name for control in self.shown(role)]

    def walk(self):
        """Everything in the tree with its depth, shown or not."""
        root = self._application()
        return root.walk() if root else ()

    def describe(self):
        root = self._application()
        if root is None:
            return f"(no window; exit code {self.process.poll()}; {self.errors()})"
        with contextlib.suppress(GLib.Error):
            shown = [(depth, control) for depth, control in root.walk() if control.is_shown]
            return "\n".join("  " * depth + str(control) for depth, control in shown)
        return "(changing)"

    # What a person does

    def press(self, role, name):
        self.find(role, name).act()

    def click(self, role, name):
        self.desktop.click(*self.find(role, name).center)

    def key(self, *names):
        self.desktop.key(*names)

    def focused(self):
        """The control that the keys go to: of all that say so, the innermost."""
        with contextlib.suppress(GLib.Error):
            said = [control for control in self._all() if control.has("focused", "showing")]
            return said[-1] if said else None
        return None

    def close(self):
        """Closes the window as its frame's button does; returns the exit code."""
        self.desktop.ask_to_close(self.window)
        return self.process.wait(PATIENCE)

    @contextlib.contextmanager
    def held_still(self):
        """Stops the program's clock, for a look at what passes quickly."""
        self.process.send_signal(signal.SIGSTOP)
        try:
            yield
        finally:
            self.process.send_signal(signal.SIGCONT)

    def kill(self):
        if self.process.poll() is None:
            slow.let_go(self.process)  # a call that is held would outlive the program
            self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def errors(self):
        with open(self._errors, encoding="utf-8", errors="replace") as lines:
            return lines.read()

    def picture(self):
        return self.desktop.picture(self.window)

    def _application(self):
        """The program in the tree; others there have no window, such as the portal."""
        with contextlib.suppress(GLib.Error):
            for child in Control(Atspi.get_desktop(0)).children():
                if any(grandchild.role == "frame" for grandchild in child.children()):
                    return child
        return None

    def _first(self, matches):
        return next((c for c in self._all() if matches(c) and c.is_shown), None)

    def _all(self):
        yield from (control for _, control in self.walk())
