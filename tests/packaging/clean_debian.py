"""The installed package in a clean Debian, used by an ordinary user: driven from outside, so that nothing
is there but what the package asks for. scripts/check-package prepares all that and calls it with the
root folder of the clean Debian."""

import os
import subprocess
import sys

from desktop import dies_with_us
from driver import wait_for
from home import measured, size_text
from journey import Journey, main

ROOT = sys.argv.pop(1)
# Into the clean Debian, where the right to go there is given up.
WRAPPER = ["chroot", ROOT, "setpriv", "--inh-caps=-all", "--ambient-caps=-all"]
# With the typefaces that are there, not those that the journeys need to look alike.
FONTS = {"FONTCONFIG_FILE": "/etc/fonts/fonts.conf"}


class Installed:
    """What is seen on every kind of desktop."""

    def test_scans_deletes_and_writes_its_log(self):
        expected = self.home.furnish()
        program = self.start_installed()
        self.scan(program)
        (editor,) = [path for path in expected["Program Caches"] if path.endswith("Editor")]
        line = f"✅ Deleted: com.example.Editor ({size_text(measured(editor))})"
        before = self.home.contents()
        program.press("check box", "com.example.Editor")
        program.press("push button", "Delete Selected")
        program.press("push button", "Confirm & Delete")
        program.find("label", "Cleanup Complete!")
        program.find("label", line)
        self.assert_gone(before, editor)
        (log,) = self.home.deletion_logs()
        with open(log, encoding="utf-8") as lines:
            self.assertIn(line, lines.read().splitlines())
        self.assertEqual(program.errors(), "")

    def assert_gone(self, before, path):
        gone = {entry for entry in before if entry == path or entry.startswith(path + "/")}
        self.assertGreater(len(gone), 1)
        made = {os.path.join(self.home.path, "Library/Logs/Drossbin"), *self.home.deletion_logs()}
        self.assertEqual(self.home.contents(), (before - gone) | made)


class OnX11(Installed, Journey):
    def start_installed(self):
        return self.start(wrapper=WRAPPER, **FONTS)

    def test_ends_well_when_its_window_is_closed(self):
        program = self.start_installed()
        self.assertEqual(program.close(), 0)
        self.assertEqual(program.errors(), "")


class WaylandDesktop:
    """The desktop of the journeys, but for the window: that is a compositor's."""

    def __init__(self, desktop, socket):
        self._desktop = desktop
        self._socket = socket

    def environment(self):
        return {**self._desktop.environment(), "WAYLAND_DISPLAY": self._socket}

    def window(self, title):
        return title

    def focus(self, window):
        pass


class OnWayland(Installed, Journey):
    def start_installed(self):
        socket = self.start_compositor()
        self.desktop = WaylandDesktop(self.desktop, socket)
        return self.start(wrapper=WRAPPER, QT_QPA_PLATFORM="wayland", **FONTS)

    def start_compositor(self):
        """One that shows its screen in a window, because without a seat, as on no screen at all, Qt 6.4
        falls over the first text field."""
        socket = os.path.join(self.world.root, "runtime", "compositor")
        command = ["weston", "--backend=x11-backend.so", "--use-pixman", "--no-config",
                   f"--socket={os.path.basename(socket)}"]
        compositor = subprocess.Popen(
            dies_with_us(command),
            env=self.world.environment(**self.desktop.environment()),
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        self.addCleanup(compositor.wait)
        self.addCleanup(compositor.kill)
        wait_for("the compositor", lambda: os.path.exists(socket))
        return socket


if __name__ == "__main__":
    main()
