"""What every journey starts from: unittest cases in a world of their own."""

import os
import sys
import unittest

import world as worlds
from desktop import Desktop
from driver import Program, wait_for
from home import Home

CATEGORIES = ("Program Caches", "Package Caches", "App Data", "Log Files", "Old Downloads")
SKIPPED = 77  # tells ctest that nothing of the journey could be run here


class Journey(unittest.TestCase):
    """Each test gets an empty home, and the program where it asks for it."""

    world = None
    desktop = None
    program_path = None

    def setUp(self):
        self.home = Home(self.world)
        self.home.clear()
        self.addCleanup(self.home.clear)

    def start(self, **how):
        program = Program(self.world, self.desktop, self.program_path, **how)
        self.addCleanup(program.kill)
        return program

    def scan(self, program):
        """From the landing screen to the end of a scan of the disk."""
        program.press("push button", "Start System Scan")
        self.wait_for_scan(program)

    def wait_for_scan(self, program):
        wait_for(lambda: f"the end of the scan in\n{program.describe()}",
                 lambda: program.now("push button", "Scan") and self.has_results(program))

    def has_results(self, program):
        return not program.now("label", "Scanning your Mac...")

    def delete(self, program, name):
        """Has one item of the list shown deleted."""
        program.press("check box", name)
        program.press("push button", "Delete Selected")
        program.press("push button", "Confirm & Delete")

    def rows(self, program):
        """The names in the list of the category shown, from top to bottom."""
        return [name for name in program.names("list item") if name not in CATEGORIES]

    def shows_rows(self, program, names):
        wait_for(lambda: f"the rows {names} in\n{program.describe()}",
                 lambda: self.rows(program) == names)

    def needs_private_logs(self):
        if not self.world.has_private_logs:
            self.skipTest("no mount namespace can be made here, and it would reach into /var/log")


def main(as_ordinary_user=False, screen=(1280, 900)):
    """Runs the calling script's journeys: first to enter a new world, then in there, on a screen of
    that size. DROSSBIN_ORDINARY_USER has any of them run by one."""
    world = worlds.inside()
    if world is None:
        script = os.path.abspath(sys.argv[0])
        as_ordinary_user = as_ordinary_user or "DROSSBIN_ORDINARY_USER" in os.environ
        sys.exit(worlds.run_inside(script, sys.argv[1:], as_ordinary_user))
    os.environ.update(world.environment())
    desktop = Desktop(world, screen)
    os.environ.update(desktop.environment())
    Journey.world, Journey.desktop, Journey.program_path = world, desktop, sys.argv[1]
    result = unittest.main(
        argv=sys.argv[:1] + sys.argv[2:], verbosity=2, exit=False, warnings="ignore"
    ).result
    desktop.close()
    all_skipped = result.testsRun == len(result.skipped)
    sys.exit(SKIPPED if all_skipped else not result.wasSuccessful())
