"""What the program leaves behind: its deletion log, and nothing else."""

import os
import re

import slow
from calls import Trace
from journey import Journey, main

CALLS = "open,openat,openat2,creat,rename,renameat,renameat2,mkdir,mkdirat,link,linkat,symlink,symlinkat,mknod,mknodat"
WRITING = re.compile(r"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND")
PATH = re.compile(r'(?:<([^>]*)>, )?"([^"]*)"')  # a path, after the folder that it is relative to
# No files on any disk: devices, the process's own entries, and memory shared with the screen.
NO_FILES = ("/dev/", "/proc/", "/memfd:")


class Traces(Journey):
    def setUp(self):
        super().setUp()
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here")
        self.trace = Trace(self.world, CALLS)

    def start_traced(self, **environment):
        return self.start(wrapper=self.trace.wrapper, **environment)

    def written(self):
        """The paths that were opened for writing, made or renamed, from the trace."""
        done = [call for call in self.trace.calls() if " = -1 " not in call]
        writing = [call for call in done if not call.startswith("open") or WRITING.search(call)]
        named = [named for call in writing for named in PATH.findall(call)]
        paths = {os.path.join(folder, path) for folder, path in named}
        return {path for path in paths if not path.startswith(NO_FILES)}

    def test_the_deletion_log_is_the_only_file_written(self):
        self.home.file("Library/Caches/com.example.Editor/index", 3_000_000)
        program = self.start_traced()
        self.scan(program)
        self.delete(program, "com.example.Editor")
        program.press("push button", "Done")
        program.wait_until_gone("label", "Cleanup Complete!")
        self.assertEqual(program.close(), 0)
        (log,) = self.home.deletion_logs()
        logs = os.path.join(self.home.path, "Library/Logs")
        written = self.written()
        self.assertIn(log, written)
        self.assertEqual({path for path in written if not path.startswith(logs)}, set())
        self.assertEqual(os.listdir(os.path.dirname(log)), [os.path.basename(log)])
        self.assertEqual(os.listdir(logs), ["Drossbin"])

    def test_looking_writes_nothing_at_all(self):
        self.home.furnish()
        program = self.start_traced()
        self.scan(program)
        program.find("list item", "com.example.Editor")
        self.assertEqual(program.close(), 0)
        self.assertEqual(self.written(), set())

    def test_drawing_with_a_graphics_card_writes_nothing_either(self):
        program = self.start_traced(QT_QUICK_BACKEND="")
        program.find("push button", "Start System Scan")
        self.assertEqual(program.close(), 0)
        self.assertEqual(self.written(), set())


if __name__ == "__main__":
    main()
