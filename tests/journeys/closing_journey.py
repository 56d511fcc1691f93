"""Closing the window in the middle of the work."""

import os

import slow
from driver import wait_for
from journey import Journey, main

SLOWLY = 400  # milliseconds for each call: together far longer than any deadline below
ENTRIES = 1_000
DEADLINE = 30  # seconds; the work would take more than 6 minutes


class Closing(Journey):
    def setUp(self):
        super().setUp()
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here, and so not be slowed down")
        for number in range(ENTRIES):
            last = self.home.file(f"Library/Caches/com.example.Many/{number:04}", 10_000)
        self.folder = os.path.dirname(last)

    def start_slowly(self, milliseconds):
        return self.start(wrapper=slow.on(self.folder, milliseconds))

    def test_the_program_ends_at_once_during_a_scan(self):
        program = self.start_slowly(SLOWLY)
        program.press("push button", "Start System Scan")
        program.find("label", "Scanning program caches...")
        self.desktop.ask_to_close(program.window)
        wait_for("the program's end", lambda: program.process.poll() is not None, DEADLINE)
        self.assertEqual(program.process.returncode, 0)

    def test_a_deletion_is_finished_and_its_log_written_before_the_program_ends(self):
        program = self.start_slowly(2)
        self.scan(program)
        program.press("check box", "com.example.Many")
        program.press("push button", "Delete Selected")
        program.press("push button", "Confirm & Delete")
        program.find("label", "Deleting files...")
        self.assertTrue(os.path.exists(self.folder))
        self.assertEqual(program.close(), 0)
        self.assertFalse(os.path.exists(self.folder))
        (log,) = self.home.deletion_logs()
        with open(log, encoding="utf-8") as file:
            self.assertIn("✅ Deleted: com.example.Many (", file.read())


if __name__ == "__main__":
    main()
