"""What a screen reader is told beyond names and roles."""

import os

import slow
from announcements import Announcements
from driver import wait_for
from journey import Journey, main

VALUE = "object:property-change:accessible-value"
SHOWING = "object:state-changed:showing"
FOCUSED = "object:state-changed:focused"


class ScreenReader(Journey):
    def setUp(self):
        super().setUp()
        self.home.furnish()

    def listen(self, *events):
        announcements = Announcements(*events)
        self.addCleanup(announcements.close)
        return announcements

    def start_held_at(self, folder, calls=slow.CALLS):
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here, and so not be held in its work")
        return self.start(wrapper=slow.held(os.path.join(self.home.path, folder), calls))

    def test_progress_has_a_value_that_is_announced(self):
        announcements = self.listen(VALUE)
        program = self.start_held_at("Library/Application Support/Sketchpad")
        program.press("push button", "Start System Scan")
        program.find("label", "Scanning app data...")
        ring = program.find("progress bar", "Scanning your Mac...")
        wait_for(lambda: f"the scan's third part, not {ring.value}", lambda: ring.value == (0.6, 0.0, 1.0))
        announcements.wait_for(VALUE, "progress bar", "Scanning your Mac...")
        # What stands in the ring is read too.
        program.find("label", "found")

    def test_a_protected_item_can_be_read_but_not_used(self):
        program = self.start()
        self.scan(program)
        program.press("list item", "App Data")
        protected = program.find("list item", "Bitwarden")
        for name in ("Bitwarden", "Protected", "5.5 MB"):
            self.assertTrue(protected.child("label", name).has("enabled", "showing"))
        self.assertEqual(self.usable(protected), {"check box": False, "push button": False})
        self.assertEqual(self.usable(program.find("list item", "Slack")), {"check box": True, "push button": True})

    def usable(self, row):
        controls = [c for c in row.children() if c.role in ("check box", "push button")]
        return {control.role: control.has("enabled", "sensitive") for control in controls}

    def test_a_scan_cannot_be_started_while_one_runs(self):
        program = self.start_held_at("Library/Application Support/Sketchpad")
        program.press("push button", "Start System Scan")
        program.find("label", "Scanning app data...")
        self.assertFalse(program.find("push button", "Scan").has("sensitive"))
        slow.let_go(program.process)
        self.wait_for_scan(program)
        self.assertTrue(program.find("push button", "Scan").has("sensitive"))

    def test_each_step_of_a_deletion_is_announced(self):
        program = self.start()
        self.scan(program)
        program.press("check box", "com.example.Editor")
        announcements = self.listen(VALUE, SHOWING, FOCUSED)
        program.press("push button", "Delete Selected")
        announcements.wait_for(SHOWING, "dialog", "Delete 1 items?")
        announcements.wait_for(FOCUSED, "push button", "Cancel")
        items = program.find("list", "Selected items")
        self.assertEqual([(c.role, c.name) for c in items.children()], [("list item", "com.example.Editor")])
        program.press("push button", "Confirm & Delete")
        announcements.wait_for(SHOWING, "dialog", "Deleting files...")
        announcements.wait_for(VALUE, "progress bar", "Deleting files...")
        announcements.wait_for(SHOWING, "dialog", "Cleanup Complete!")
        announcements.wait_for(FOCUSED, "push button", "Done")
        self.check_report(program)

    def test_one_item_that_takes_long_shows_that_it_is_worked_on(self):
        program = self.start_held_at("Library/Caches/com.example.Editor", "unlinkat")
        self.scan(program)
        program.press("check box", "com.example.Editor")
        announcements = self.listen(SHOWING, FOCUSED)
        program.press("push button", "Delete Selected")
        program.press("push button", "Confirm & Delete")
        announcements.wait_for(SHOWING, "dialog", "Deleting files...")
        announcements.wait_for(FOCUSED, "progress bar", "Deleting files...")
        ring = program.find("progress bar", "Deleting files...")
        for glows in (True, False, True):
            wait_for(f"the glow to be {glows}", lambda glows=glows: self.glows(program, ring) == glows)
            self.assertEqual(ring.value[0], 0)
        slow.let_go(program.process)
        announcements.wait_for(FOCUSED, "push button", "Done")

    def glows(self, program, ring):
        """Whether the left of the ring, which has no arc yet, is rather blue than grey."""
        area = ring.node.get_component_iface().get_extents(0)
        red, _, blue = program.picture().getpixel((area.x + 2, area.y + area.height // 2))
        return blue - red > 40

    def check_report(self, program):
        self.assertEqual(program.find("dialog", "Cleanup Complete!").description, "You freed 3.8 MB")
        wait_for(lambda: f"only the report to be open in\n{program.describe()}",
                 lambda: program.names("dialog") == ["Cleanup Complete!"])
        (line,) = program.find("list", "Deletion log").children()
        self.assertEqual((line.role, line.name), ("list item", "✅ Deleted: com.example.Editor (3.8 MB)"))


if __name__ == "__main__":
    main()
