"""The program starts, scans and cleans where nothing can be written any more."""

import os

from driver import wait_for
from journey import Journey, main


class FullDisk(Journey):
    def setUp(self):
        super().setUp()
        self.needs_private_logs()
        self.disk = self.world.small_disk
        self.folder = os.path.join(self.disk, "Library/Caches/com.example.Editor")
        self.home.file(os.path.join(self.folder, "index"), 3_000_000)
        self.addCleanup(self.empty)
        self.fill()

    def fill(self):
        with open(os.path.join(self.disk, "filler"), "wb", buffering=0) as file:
            try:
                while file.write(b"x" * 4096):
                    pass
            except OSError:
                return

    def empty(self):
        from subprocess import run

        run(["find", self.disk, "-mindepth", "1", "-delete"], check=True)

    def test_starts_scans_and_cleans_with_the_home_on_a_full_disk(self):
        program = self.start(HOME=self.disk, TMPDIR=self.disk)
        self.scan(program)
        self.delete(program, "com.example.Editor")
        program.find("label", "Cleanup Complete!")
        self.assertFalse(os.path.exists(self.folder))
        program.press("push button", "Done")
        wait_for("the rescan", lambda: program.now("label", "Your Mac is clean!"))
        self.assertEqual(program.close(), 0)


if __name__ == "__main__":
    main()
