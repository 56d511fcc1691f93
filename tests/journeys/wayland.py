"""A Wayland desktop in a window on a journey's screen: without a seat, as on no screen at all, Qt 6.4 falls
over the first text field."""

import os
import subprocess

from Xlib import X

from desktop import dies_with_us
from driver import wait_for

TITLE = "Weston Compositor"


class WaylandDesktop:
    """The desktop of the journeys, but for the window: that is a compositor's."""

    def __init__(self, world, desktop, *options):
        self._desktop = desktop
        self._socket = os.path.join(world.environment()["XDG_RUNTIME_DIR"], "compositor")
        self.held, self.key, self.click = desktop.held, desktop.key, desktop.click
        command = ["weston", "--backend=x11-backend.so", "--use-pixman", "--no-config",
                   f"--socket={os.path.basename(self._socket)}", *options]
        self._compositor = subprocess.Popen(
            dies_with_us(command),
            env=world.environment(**desktop.environment()),
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        wait_for("the compositor", lambda: os.path.exists(self._socket))
        # Before there is a window: one that has the keys already would lose them by this.
        desktop.focus(wait_for("the compositor's window", self._shown))

    def close(self):
        """Asks the compositor to stop, so that it takes its socket away."""
        self._compositor.terminate()
        self._compositor.wait()

    def environment(self):
        return {**self._desktop.environment(), "WAYLAND_DISPLAY": self._socket}

    def window(self, title):
        return title

    def focus(self, window):
        """The compositor hands the keys on to its newest window."""

    def _shown(self):
        window = self._desktop.window(TITLE)
        return window if window and window.get_attributes().map_state == X.IsViewable else None
