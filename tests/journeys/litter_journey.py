"""What the journeys themselves leave behind, whether they pass or fail: nothing."""

import os
import subprocess
import sys

from driver import wait_for
from journey import Journey, main

HERE = os.path.dirname(os.path.abspath(__file__))
# A journey in this one's world that shows where its desktop can be reached, and ends as told.
DESKTOP = """
import os, sys
from desktop import Desktop
import world
desktop = Desktop(world.inside())
print(desktop.display_name, desktop.bus_address, flush=True)
sys.stdin.read()
{end}
"""


class Litter(Journey):
    def sockets(self, end):
        """Starts a desktop, looks where its sockets are, and waits until it has ended that way."""
        journey = subprocess.Popen([sys.executable, "-c", DESKTOP.format(end=end)], cwd=HERE,
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        screen, bus = journey.stdout.readline().split()
        paths = [f"/tmp/.X11-unix/X{screen[1:]}", bus.partition("=")[2].partition(",")[0]]
        identities = [identity(path) for path in paths]
        journey.communicate("")
        return dict(zip(paths, identities))

    def leaves_none(self, end):
        for path, before in self.sockets(end).items():
            with self.subTest(path):
                self.assertIsNotNone(before)
                # Another desktop may by now have the number of the screen.
                wait_for(f"the end of {path}", lambda: identity(path) != before)

    def test_a_desktop_that_is_closed_leaves_no_socket(self):
        self.leaves_none("desktop.close()")

    def test_a_desktop_whose_journey_dies_leaves_no_socket(self):
        self.leaves_none("os._exit(1)")

    def test_what_is_left_all_the_same_is_in_the_world_and_goes_with_it(self):
        bus = self.desktop.bus_address
        self.assertTrue(bus.startswith(f"unix:path={self.world.root}/"), bus)


def identity(path):
    try:
        found = os.stat(path)
    except FileNotFoundError:
        return None
    return found.st_ino, found.st_ctime_ns


if __name__ == "__main__":
    main()
