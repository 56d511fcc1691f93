"""A walk through every screen that there is, for those who want a picture of each."""

import os
import sys

import slow
import world as worlds
from desktop import Desktop
from driver import Program, wait_for

WINDOW = (900, 650)
BYSTANDER = "Google Chrome"  # in the demo data and in the made-up home: browser data with a note


class Walk:
    """`take(name, program)` is called on every screen, at rest."""

    def __init__(self, world, desktop, program_path, home, take, **environment):
        self._start = lambda **more: Program(
            world, desktop, program_path, **environment, **more
        )
        self._desktop = desktop
        self._home = home
        self._take = take

    def whole(self, demo):
        self.first_screens(demo)
        self.scanning()
        self.deletion()
        self.nothing_found()

    def without_the_disk(self):
        """What can be seen without a scan of the disk, which would read the real /var/log."""
        self.first_screens(demo=True)
        program = self._start()
        with self._desktop.held("Alt_L"):
            program.click("push button", "Start System Scan")
            program.find("label", "Scanning your Mac...")
        with program.held_still():
            self._take("scanning", program)
        program.close()

    def first_screens(self, demo):
        """The landing screen and all that a scan's results show, up to the confirmation."""
        program = self._start()
        program.find("push button", "Start System Scan")
        self._take("landing", program)
        with self._desktop.held(*(["Alt_L"] if demo else [])):
            program.click("push button", "Start System Scan")
            program.find("list item", BYSTANDER)
        self._categories(program)
        self._choosing(program)
        program.close()

    def _categories(self, program):
        for category in ("App Data", "Old Downloads", "Package Caches", "Log Files", "Program Caches"):
            program.press("list item", category)
            program.find("label", "0 selected · Zero KB")
            self._take(category.lower().replace(" ", "-"), program)
        program.find("list item", BYSTANDER).child("push button", "Information").act()
        program.find("dialog", "Safe to Clear")
        self._take("note", program)
        program.key("Escape")
        program.wait_until_gone("dialog", "Safe to Clear")

    def _choosing(self, program):
        program.press("check box", BYSTANDER)
        program.find("push button", "Delete Selected")
        self._take("selection", program)
        program.click("text", "Filter items...")
        self._desktop.type("chrome")
        program.find("push button", "Clear filter")
        self._take("filter", program)
        program.press("push button", "Clear filter")
        program.press("push button", "Clear Selection")
        program.press("list item", "Program Caches")
        program.key("Escape")
        program.find("push button", "Smart Select")
        self._take("overview", program)
        program.click("push button", "Smart Select")
        program.find_starting("push button", "Delete ").act()
        program.find("push button", "Confirm & Delete")
        self._take("confirmation", program)

    def scanning(self):
        """A scan of the made-up home, held in the middle where that can be done."""
        if not slow.is_possible():
            return
        program = self._start_held("Library/Application Support/Sketchpad", slow.CALLS)
        program.press("push button", "Start System Scan")
        program.find("label", "Scanning app data...")
        self._take("scanning", program)
        slow.let_go(program.process)
        program.close()

    def deletion(self):
        """A deletion in the made-up home, held in the middle and then let go."""
        program = self._start_held("Library/Caches/Google Chrome", "unlinkat")
        program.press("push button", "Start System Scan")
        self._delete_all_safe_caches(program)
        if slow.is_possible():
            wait_for("a deletion under way", lambda: self._percentage(program) not in ("", "0%"))
            self._take("deleting", program)
            slow.let_go(program.process)
        program.find("label", "Cleanup Complete!")
        self._take("complete", program)
        program.close()

    def _delete_all_safe_caches(self, program):
        program.press("list item", "Program Caches")
        program.press("push button", "Select All Safe")
        program.press("push button", "Delete Selected")
        program.press("push button", "Confirm & Delete")

    def _percentage(self, program):
        return next((name for name in program.names("label") if name.endswith("%")), "")

    def nothing_found(self):
        self._home.clear()
        program = self._start()
        program.press("push button", "Start System Scan")
        program.find("label", "Your Mac is clean!")
        self._take("empty", program)
        program.close()

    def _start_held(self, folder, calls):
        held = slow.held(os.path.join(self._home.path, folder), calls) if slow.is_possible() else ()
        return self._start(wrapper=held)


def in_new_world(walk, has_motion=False):
    """Runs the calling script's `walk(world, desktop, program, target)` in a new world. The script's
    arguments are the program and the file, or the folder, that it makes."""
    program, target = map(os.path.abspath, sys.argv[1:3])
    world = worlds.inside()
    if world is None:
        sys.exit(worlds.run_inside(os.path.abspath(sys.argv[0]), [program, target]))
    os.environ.update(world.environment())
    desktop = Desktop(world)
    os.environ.update(desktop.environment())
    if not has_motion:
        desktop.want_no_motion()
    walk(world, desktop, program, target)
    desktop.close()


def at_rest(program):
    """The picture of a window on which nothing changes any more."""
    desktop = program.desktop
    desktop.point(*(size - 1 for size in desktop.size))
    last = program.picture()

    def same_again():
        nonlocal last
        before, last = last, program.picture()
        return before.tobytes() == last.tobytes() and last

    return wait_for("the window to come to rest", same_again)
