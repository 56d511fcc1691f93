"""The installed package in a clean Debian, used by an ordinary user: driven from outside, so that nothing
is there but what the package asks for. scripts/check-package prepares all that and calls it with the
root folder of the clean Debian."""

import os
import sys

from home import measured, size_text
from journey import Journey, main
from wayland import WaylandDesktop

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
        self.delete(program, "com.example.Editor")
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


class OnWayland(Installed, Journey):
    def start_installed(self):
        self.desktop = WaylandDesktop(self.world, self.desktop)
        self.addCleanup(self.desktop.close)
        return self.start(wrapper=WRAPPER, QT_QPA_PLATFORM="wayland", **FONTS)


if __name__ == "__main__":
    main()
