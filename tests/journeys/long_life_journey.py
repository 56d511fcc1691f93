"""The window after many scans and deletions: it holds no more than after a few. DROSSBIN_RUNS says how many."""

import os

from driver import wait_for
from journey import Journey, main

RUNS = int(os.environ.get("DROSSBIN_RUNS", "6"))
SETTLED = 3  # runs after which all screens have been made
# Memory that is given back comes and goes by whole blocks of pages: what each run keeps shows after many.
MANY = 50
KEPT = 32 * 1024  # bytes for each run; a screen that is not given back takes more


class LongLife(Journey):
    def setUp(self):
        super().setUp()
        self.program = self.start()
        self.scan(self.program)

    def run_once(self):
        """Finds a cache, deletes it, and waits for the scan that follows."""
        path = self.home.file("Library/Caches/com.example.Editor/index", 3_000_000)
        self.program.press("push button", "Scan")
        self.delete(self.program, "com.example.Editor")
        self.program.press("push button", "Done")
        self.program.wait_until_gone("label", "Cleanup Complete!")
        self.wait_for_scan(self.program)
        self.assertFalse(os.path.exists(path))

    def entries(self, folder):
        return len(os.listdir(f"/proc/{self.program.process.pid}/{folder}"))

    def memory(self):
        """The bytes in use, but for files that others use too."""
        with open(f"/proc/{self.program.process.pid}/status", encoding="utf-8") as lines:
            (size,) = [line.split()[1] for line in lines if line.startswith("RssAnon:")]
        return int(size) * 1024

    def test_descriptors_threads_and_memory_stay_as_they_were(self):
        for _ in range(SETTLED):
            self.run_once()
        descriptors, threads, memory = self.entries("fd"), self.entries("task"), self.memory()
        for _ in range(RUNS - SETTLED):
            self.run_once()
        self.assertEqual(self.entries("fd"), descriptors)
        # One in the background may still be on its last steps.
        wait_for("the end of the threads", lambda: self.entries("task") <= threads)
        if RUNS >= MANY:
            self.assertLess(self.memory() - memory, RUNS * KEPT)
        self.assertEqual(self.program.close(), 0)
        self.assertEqual(self.program.errors(), "")


if __name__ == "__main__":
    main()
