"""Choosing what to delete: check boxes, bulk buttons, the filter, notes and warnings."""

from driver import wait_for
from home import measured, size_text, title
from journey import Journey, main

WARNING = "Selected items may contain saved passwords, autofill data, and login sessions."


class Selection(Journey):
    def setUp(self):
        super().setUp()
        self.expected = self.home.furnish()
        self.program = self.start()
        self.scan(self.program)

    def show(self, category):
        self.program.press("list item", category)
        self.shows_rows(self.program, self.largest_first(category))

    def largest_first(self, category):
        return [title(p) for p in sorted(self.expected[category], key=measured, reverse=True)]

    def is_checked(self, name):
        return self.program.find("check box", name).has("checked")

    def wait_until_checked(self, name, wanted):
        wait_for(f"{name} to be checked: {wanted}", lambda: self.is_checked(name) == wanted)

    def test_a_check_box_selects_one_item_and_the_bar_sums_it_up(self):
        self.show("Package Caches")
        self.program.press("check box", "npm cache")
        self.wait_until_checked("npm cache", True)
        self.assertFalse(self.is_checked("Cargo/Rust cache"))
        npm = next(path for path in self.expected["Package Caches"] if path.endswith(".npm"))
        self.program.find("label", f"1 items · {size_text(measured(npm))}")
        self.program.press("push button", "Clear Selection")
        self.wait_until_checked("npm cache", False)
        self.program.wait_until_gone("push button", "Delete Selected")

    def test_select_all_takes_everything_but_what_is_protected(self):
        self.show("App Data")
        self.program.press("push button", "Select All Safe")
        self.wait_until_checked("Slack", True)
        self.assertTrue(self.is_checked("Sketchpad"))
        self.assertFalse(self.is_checked("Bitwarden"))
        self.assertIn("Disabled", self.program.find("list item", "Bitwarden").description)
        self.program.press("push button", "Deselect All")
        self.wait_until_checked("Slack", False)

    def test_a_protected_item_does_not_react_to_a_click(self):
        self.show("Program Caches")
        self.program.desktop.click(*self.program.find("check box", "Keychains").center)
        self.program.click("check box", "com.example.Editor")
        self.wait_until_checked("com.example.Editor", True)
        self.assertFalse(self.is_checked("Keychains"))

    def test_the_filter_narrows_at_every_key_and_is_shared_by_all_categories(self):
        self.show("Program Caches")
        self.program.click("text", "Filter items...")
        self.program.desktop.type("CHR")
        self.shows_rows(self.program, ["Google Chrome"])
        self.program.desktop.type("x")
        self.shows_rows(self.program, [])
        self.program.key("BackSpace")
        self.program.press("list item", "Package Caches")
        self.shows_rows(self.program, [])
        self.program.find("label", "0 selected · Zero KB")
        self.program.press("push button", "Clear filter")
        self.shows_rows(self.program, self.largest_first("Package Caches"))

    def test_the_note_of_an_item_opens_beside_it(self):
        self.show("Package Caches")
        self.program.find("list item", "npm cache").child("push button", "Information").act()
        self.program.find("label", "npm cache — safe to clear with `npm cache clean`.")
        self.program.key("Escape")
        self.program.wait_until_gone("label", "npm cache — safe to clear with `npm cache clean`.")

    def test_browser_data_is_warned_of_in_the_list_and_on_the_sheet(self):
        self.show("Program Caches")
        self.program.press("check box", "com.example.Editor")
        self.program.find("push button", "Delete Selected")
        self.program.wait_until_gone("label", WARNING)
        self.program.press("check box", "Google Chrome")
        self.program.find("label", WARNING)
        self.program.press("push button", "Delete Selected")
        self.program.find("label", "Browser data selected")
        self.program.press("push button", "Cancel")
        self.program.wait_until_gone("label", "Browser data selected")
        self.program.press("check box", "Google Chrome")
        self.program.wait_until_gone("label", WARNING)


if __name__ == "__main__":
    main()
