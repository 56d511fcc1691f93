"""What a screen reader is told beyond names and roles."""

import os

import slow
from announcements import Announcements
from driver import wait_for
from journey import Journey, main

VALUE = "object:property-change:accessible-value"


class ScreenReader(Journey):
    def setUp(self):
        super().setUp()
        self.home.furnish()

    def listen(self, *events):
        announcements = Announcements(*events)
        self.addCleanup(announcements.close)
        return announcements

    def start_slow_on(self, folder):
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here, and so not be held in its work")
        return self.start(wrapper=slow.on(os.path.join(self.home.path, folder), 1_000), **slow.LEAKS_UNSEEN)

    def test_progress_has_a_value_that_is_announced(self):
        announcements = self.listen(VALUE)
        program = self.start_slow_on("Library/Application Support/Sketchpad")
        program.press("push button", "Start System Scan")
        program.find("label", "Scanning app data...")
        ring = program.find("progress bar", "Scanning your Mac...")
        wait_for(lambda: f"the scan's third part, not {ring.value}", lambda: ring.value == (0.6, 0.0, 1.0))
        announcements.wait_for(VALUE, "progress bar", "Scanning your Mac...")
        # What stands in the ring is read too.
        program.find("label", "found")


if __name__ == "__main__":
    main()
