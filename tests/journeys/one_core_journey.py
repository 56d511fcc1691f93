"""A machine with one core: the window shows what happens and answers while the disk keeps the program busy."""

import os
import shutil
import time

import slow
from journey import Journey, main

ENTRIES = 300
SLOWLY = 30  # milliseconds for each entry: nine seconds in all
# Between two answers the journey rests for 50 ms, so that there is time for many times as many; a
# window that stands still until the work is done gives none at all.
ANSWERS = 20


class OneCore(Journey):
    def setUp(self):
        super().setUp()
        if not slow.is_possible() or not shutil.which("taskset"):
            self.skipTest("the program cannot be slowed down here, or not be kept to one core")
        for number in range(ENTRIES):
            last = self.home.file(f"Library/Caches/com.example.Many/{number:03}", 10_000)
        self.folder = os.path.dirname(last)

    def start_slowly(self, call):
        core = min(os.sched_getaffinity(0))
        return self.start(wrapper=["taskset", "-c", str(core), *slow.on(self.folder, SLOWLY, call)])

    def entries_left(self):
        return len(os.listdir(self.folder)) if os.path.exists(self.folder) else 0

    def count_answers(self, control, is_working):
        """How often the program tells how far it is while it works. The accessibility bus gives up
        on one that does not answer for a second."""
        answers = 0
        while is_working(control.value[0]):
            answers += 1
            time.sleep(0.05)
        return answers

    def test_a_deletion_shows_its_progress_and_answers_while_it_runs(self):
        program = self.start_slowly("unlinkat")
        self.scan(program)
        self.delete(program, "com.example.Many")
        progress = program.find("progress bar", "Deleting files...")
        self.assertGreater(self.entries_left(), ENTRIES / 2)
        answers = self.count_answers(progress, lambda _: self.entries_left() > 0)
        self.assertGreater(answers, ANSWERS)
        program.find("label", "Cleanup Complete!")

    def test_a_scan_shows_its_progress_and_answers_while_it_runs(self):
        program = self.start_slowly("newfstatat,statx")
        program.press("push button", "Start System Scan")
        program.find("label", "Scanning program caches...")
        progress = program.find("progress bar", "Scanning your Mac...")
        self.assertGreater(self.count_answers(progress, lambda value: value < 0.4), ANSWERS)
        self.wait_for_scan(program)
        program.find("list item", "com.example.Many")


if __name__ == "__main__":
    main()
