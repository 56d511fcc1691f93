"""The hidden demonstration: Option held while a scan is started."""

from journey import Journey, main

DEMO_TOTAL = "33 items found · 200.18 GB total"


class Demo(Journey):
    def press_with(self, program, name, *keys):
        # The keys are held until the program has seen the click: it asks for them at that moment.
        with self.desktop.held(*keys):
            program.click("push button", name)
            program.find("label", "Scanning your Mac...")

    def finds_demo_items(self, program):
        program.find("list item", "Adobe Premiere Pro")
        program.key("Escape")
        program.find("label", DEMO_TOTAL)

    def test_option_on_the_landing_button_shows_the_demo_items_whatever_else_is_held(self):
        for keys in (("Alt_L",), ("Alt_L", "Shift_L")):
            with self.subTest(keys):
                program = self.start()
                self.press_with(program, "Start System Scan", *keys)
                self.finds_demo_items(program)
                program.kill()

    def test_any_other_key_on_the_landing_button_scans_the_disk(self):
        self.home.furnish()
        for keys in (("Control_L",), ("Shift_L",), ("Super_L",), ("Control_L", "Shift_L")):
            with self.subTest(keys):
                program = self.start()
                with self.desktop.held(*keys):
                    program.click("push button", "Start System Scan")
                    program.find("list item", "com.example.Editor")
                program.wait_until_gone("list item", "Adobe Premiere Pro")
                program.kill()

    def test_an_option_click_on_the_toolbar_button_shows_the_demo_items(self):
        self.home.furnish()
        program = self.start()
        self.scan(program)
        program.find("list item", "com.example.Editor")
        self.press_with(program, "Scan", "Alt_L", "Shift_L")
        self.finds_demo_items(program)

    def test_a_plain_click_on_the_toolbar_button_scans_the_disk_whatever_was_before(self):
        self.home.furnish()
        program = self.start()
        self.press_with(program, "Start System Scan", "Alt_L")
        self.finds_demo_items(program)
        program.click("push button", "Scan")
        program.find("list item", "com.example.Editor")
        program.wait_until_gone("list item", "Adobe Premiere Pro")

    def test_a_second_scan_cannot_be_started_while_one_runs(self):
        program = self.start()
        self.press_with(program, "Start System Scan", "Alt_L")
        program.click("push button", "Scan")
        self.finds_demo_items(program)


if __name__ == "__main__":
    main()
