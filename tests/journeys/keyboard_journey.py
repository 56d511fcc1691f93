"""The whole way with the keyboard alone."""

import os

from driver import wait_for
from home import title
from journey import Journey, main
from screens import at_rest

FAR = 60  # more steps than any control is away


class Keyboard(Journey):
    def setUp(self):
        super().setUp()
        self.expected = self.home.furnish()
        self.program = self.start()
        self.key = self.program.key

    def walk_to(self, role, name, step="Tab"):
        for _ in range(FAR):
            at = self.program.focused()
            if at and (at.role, at.name) == (role, name):
                return
            self.key(*step.split("+"))
            wait_for(f"the focus to leave {at}", lambda at=at: self.moved_from(at))
        self.fail(f"{role} {name!r} is not reached with {step} in\n{self.program.describe()}")

    def moved_from(self, before):
        now = self.program.focused()
        return now and (before is None or now.node != before.node)

    def scan_by_keys(self):
        self.walk_to("push button", "Start System Scan")
        self.key("Return")
        self.program.find("list item", "com.example.Editor")

    def test_goes_from_the_first_screen_to_freed_space(self):
        self.scan_by_keys()
        path = self.expected["Program Caches"][0]
        self.walk_to("text", "Filter items...")
        self.program.desktop.type("editor")
        self.shows_rows(self.program, ["com.example.Editor"])
        self.key("Down")
        self.key("space")
        wait_for("the row to be selected",
                 lambda: self.program.find("check box", title(path)).has("checked"))
        self.walk_to("push button", "Delete Selected")
        self.key("space")
        self.walk_to("push button", "Confirm & Delete")
        self.key("Return")
        self.program.find("label", "Cleanup Complete!")
        self.walk_to("push button", "Done")
        self.key("Return")
        self.program.wait_until_gone("label", "Cleanup Complete!")
        self.assertFalse(os.path.exists(path))

    def is_reached(self, role, name):
        wait_for(lambda: f"the focus on {name}, not on {self.program.focused()}",
                 lambda: self.is_at(role, name))

    def test_each_screen_has_the_keyboard_at_its_first_control(self):
        self.is_reached("push button", "Start System Scan")
        self.key("Return")
        self.is_reached("list", "Items")  # the first row is protected
        self.key("Down")
        self.is_reached("list item", "com.example.Editor")
        self.key("Escape")
        self.is_reached("push button", "Smart Select")
        self.walk_to("push button", "Package Caches")
        self.key("Return")
        self.is_reached("list item", "Cargo/Rust cache")

    def test_the_ring_comes_back_with_the_window(self):
        self.scan_by_keys()
        self.key("Down")
        self.is_reached("list item", "com.example.Editor")
        ringed = at_rest(self.program).tobytes()
        self.program.desktop.unfocus()
        wait_for("the ring to go", lambda: self.program.picture().tobytes() != ringed)
        self.program.desktop.focus(self.program.window)
        wait_for("the ring to come back", lambda: self.program.picture().tobytes() == ringed)

    def test_a_filter_is_typed_on_when_the_window_comes_back(self):
        self.scan_by_keys()
        self.key("Control_L", "f")
        self.is_reached("text", "Filter items...")
        self.program.desktop.type("edi")
        self.shows_rows(self.program, ["com.example.Editor"])
        self.program.desktop.unfocus()
        wait_for("the focus to go", lambda: self.program.focused() is None)
        self.program.desktop.focus(self.program.window)
        self.is_reached("text", "Filter items...")
        self.program.desktop.type("tors")
        self.shows_rows(self.program, [])

    def test_a_filter_that_is_not_seen_takes_no_letters(self):
        self.scan_by_keys()
        self.key("Control_L", "f")
        self.is_reached("text", "Filter items...")
        self.key("Escape")
        self.is_reached("push button", "Smart Select")
        self.program.desktop.type("xy")
        self.key("space")
        self.program.find_starting("push button", "Delete ")
        self.assertNotIn("0 items", " ".join(c.description for c in self.program.shown("push button")))

    def test_return_again_after_the_report_asks_for_nothing(self):
        self.scan_by_keys()
        self.walk_to("push button", "Select All Safe")
        self.key("space")
        self.walk_to("push button", "Delete Selected")
        self.key("Return")
        self.walk_to("push button", "Confirm & Delete")
        self.key("Return")
        self.is_reached("push button", "Done")
        self.key("Return")
        self.key("Return")
        self.program.wait_until_gone("dialog", "Cleanup Complete!")
        self.wait_for_scan(self.program)
        self.assertEqual(self.program.names("dialog"), [])

    def test_escape_is_cancel_on_the_confirmation_and_gives_the_focus_back(self):
        self.scan_by_keys()
        self.walk_to("push button", "Select All Safe")
        self.key("space")
        self.walk_to("push button", "Delete Selected")
        self.key("Return")
        self.program.find("push button", "Confirm & Delete")
        self.key("Escape")
        self.program.wait_until_gone("push button", "Confirm & Delete")
        wait_for("the focus to come back", lambda: self.is_focused("Delete Selected"))

    def is_focused(self, name):
        focused = self.program.focused()
        return focused and focused.name == name

    def test_the_focus_stays_inside_the_sheet(self):
        self.scan_by_keys()
        self.walk_to("push button", "Select All Safe")
        self.key("space")
        self.walk_to("push button", "Delete Selected")
        self.key("Return")
        self.walk_to("push button", "Confirm & Delete")
        self.key("Tab")
        self.walk_to("push button", "Confirm & Delete")
        self.walk_to("push button", "Cancel", step="Shift_L+Tab")

    def test_control_f_goes_to_the_filter_from_anywhere_in_the_list(self):
        self.scan_by_keys()
        self.key("Control_L", "f")
        wait_for("the filter to have the focus", lambda: self.is_focused("Filter items..."))

    def test_control_f_does_nothing_where_no_filter_is_to_be_seen(self):
        self.scan_by_keys()
        self.key("Escape")
        self.walk_to("push button", "Smart Select")
        self.key("Control_L", "f")
        self.program.desktop.type("chrome")
        self.walk_to("list item", "Program Caches")
        self.key("space")
        self.program.find("list item", "com.example.Editor")
        self.program.wait_until_gone("push button", "Clear filter")

    def test_tab_goes_from_the_toolbar_to_the_sidebar_to_the_detail(self):
        self.scan_by_keys()
        self.walk_to("push button", "Scan")
        for role, name in (("list item", "Program Caches"), ("push button", "Select All Safe")):
            self.key("Tab")
            wait_for(f"the focus on {name}", lambda role=role, name=name: self.is_at(role, name))

    def is_at(self, role, name):
        focused = self.program.focused()
        return focused and (focused.role, focused.name) == (role, name)

    def test_arrows_walk_the_sidebar(self):
        self.scan_by_keys()
        self.walk_to("list item", "Program Caches")
        self.key("Down")
        self.shows_rows(self.program, ["Cargo/Rust cache", "npm cache"])
        self.key("Up")
        self.program.find("list item", "com.example.Editor")

    def test_escape_leaves_the_list_for_the_overview(self):
        self.scan_by_keys()
        self.key("Escape")
        self.walk_to("push button", "Smart Select")
        self.key("space")
        self.program.find_starting("push button", "Delete ")

    def test_the_window_keys_close_and_quit(self):
        self.key("Control_L", "w")
        wait_for("the program's end", lambda: self.program.process.poll() is not None)
        self.assertEqual(self.program.process.returncode, 0)
        self.program = self.start()
        self.program.key("Control_L", "q")
        wait_for("the program's end", lambda: self.program.process.poll() is not None)
        self.assertEqual(self.program.process.returncode, 0)


if __name__ == "__main__":
    main()
