"""A home with nothing to clean."""

from journey import Journey, main


class Empty(Journey):
    def test_says_that_there_is_nothing_and_scans_again(self):
        self.needs_private_logs()
        program = self.start()
        self.scan(program)
        program.find("label", "Your Mac is clean!")
        program.find("label", "No significant cache files found.")
        self.home.file("Library/Caches/com.example.New/blob", 2_000_000)
        program.press("push button", "Scan Again")
        program.find("list item", "com.example.New")
        program.wait_until_gone("label", "Your Mac is clean!")

    def test_scans_the_disk_again_whatever_is_held(self):
        self.needs_private_logs()
        program = self.start()
        self.scan(program)
        program.find("push button", "Scan Again")
        self.home.file("Library/Caches/com.example.New/blob", 2_000_000)
        with self.desktop.held("Alt_L"):
            program.click("push button", "Scan Again")
            program.find("list item", "com.example.New")
        self.assertEqual(self.rows(program), ["com.example.New"])


if __name__ == "__main__":
    main()
