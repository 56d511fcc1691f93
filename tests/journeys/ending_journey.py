"""The end of the program in the middle of its work: its window is closed, or the system ends it by a
signal or by taking its display away."""

import os
import signal
import unittest

import session_manager
import slow
from driver import PATIENCE, wait_for
from journey import Journey, main

ENTRIES = 1_000
NO_HURRY = 400  # milliseconds for each call: together far longer than anyone waits below
SOON = 5  # for each removal: time enough for what happens in the middle, also on a busy machine


class Ending(Journey):
    def setUp(self):
        super().setUp()
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here, and so not be slowed down")
        for number in range(ENTRIES):
            last = self.home.file(f"Library/Caches/com.example.Many/{number:04}", 10_000)
        self.folder = os.path.dirname(last)

    def start_slowly(self, milliseconds, calls=slow.CALLS, **environment):
        self.program = self.start(wrapper=slow.on(self.folder, milliseconds, calls), **environment)

    def begin_scan(self):
        self.start_slowly(NO_HURRY)
        self.program.press("push button", "Start System Scan")
        self.program.find("label", "Scanning program caches...")

    def begin_deletion(self):
        self.scan(self.program)
        self.delete(self.program, "com.example.Many")
        self.program.find("label", "Deleting files...")
        wait_for("the first removal", lambda: len(os.listdir(self.folder)) < ENTRIES)

    def send(self, number):
        self.program.process.send_signal(number)

    def catches(self, number):
        with open(f"/proc/{self.program.process.pid}/status", encoding="ascii") as lines:
            caught = next(line.split()[1] for line in lines if line.startswith("SigCgt:"))
        return bool(int(caught, 16) >> (number - 1) & 1)

    def ends_by(self, number):
        self.assertEqual(self.program.process.wait(PATIENCE), -number)

    def has_finished(self):
        self.assertFalse(os.path.exists(self.folder))
        (log,) = self.home.deletion_logs()
        with open(log, encoding="utf-8") as file:
            text = file.read()
        self.assertIn("✅ Deleted: com.example.Many (", text)
        self.assertIn("\n\nTotal freed: ", text)

    def test_a_signal_ends_the_program_at_once_where_nothing_is_deleted(self):
        for number in (signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number):
                self.start_slowly(NO_HURRY)
                self.send(number)
                self.ends_by(number)

    def test_the_program_ends_at_once_when_its_window_is_closed_during_a_scan(self):
        self.begin_scan()
        self.assertEqual(self.program.close(), 0)

    def test_a_deletion_is_finished_and_its_log_written_when_the_window_is_closed(self):
        self.start_slowly(SOON, calls="unlinkat")
        self.begin_deletion()
        self.assertTrue(os.path.exists(self.folder))
        self.assertEqual(self.program.close(), 0)
        self.has_finished()

    def test_a_signal_ends_the_program_at_once_during_a_scan(self):
        self.begin_scan()
        self.send(signal.SIGTERM)
        self.ends_by(signal.SIGTERM)

    def test_the_program_does_not_crash_when_the_display_goes_away_during_a_scan(self):
        self.begin_scan()
        self.desktop.drop(self.program.window)
        self.assertEqual(self.program.process.wait(PATIENCE), 1)

    def test_a_deletion_is_finished_and_its_log_written_before_a_signal_ends_the_program(self):
        self.start_slowly(SOON, calls="unlinkat")
        self.begin_deletion()
        self.send(signal.SIGTERM)
        self.send(signal.SIGHUP)
        self.assertTrue(os.path.exists(self.folder))
        self.assertIn(-self.program.process.wait(PATIENCE), (signal.SIGTERM, signal.SIGHUP))
        self.has_finished()

    def test_a_second_signal_ends_the_program_during_a_deletion(self):
        self.start_slowly(NO_HURRY, calls="unlinkat")
        self.begin_deletion()
        self.send(signal.SIGTERM)
        # Before, the system would make one of the two.
        wait_for("the first signal to arrive", lambda: not self.catches(signal.SIGTERM))
        self.send(signal.SIGTERM)
        self.ends_by(signal.SIGTERM)
        self.assertTrue(os.path.exists(self.folder))
        self.assertEqual(self.home.deletion_logs(), [])

    def test_a_deletion_is_finished_and_its_log_written_when_the_display_goes_away(self):
        self.start_slowly(SOON, calls="unlinkat")
        self.begin_deletion()
        self.desktop.drop(self.program.window)
        self.assertEqual(self.program.process.wait(PATIENCE), 1)
        self.has_finished()

    @unittest.skipUnless(session_manager.is_possible(), "there is no session manager here")
    def test_a_deletion_is_finished_and_its_log_written_when_the_session_ends(self):
        manager = session_manager.SessionManager(self.world, self.desktop)
        self.start_slowly(SOON, calls="unlinkat", **manager.environment)
        self.begin_deletion()
        self.assertTrue(os.path.exists(self.folder))
        manager.end_session()
        self.assertEqual(self.program.process.wait(PATIENCE), 0)
        self.assertEqual(self.program.errors(), "")
        self.has_finished()


if __name__ == "__main__":
    main()
