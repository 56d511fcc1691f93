"""Names that the disk may hold are shown as one plain line of text, wherever they are shown."""

import os

from driver import wait_for
from journey import Journey, main

# what is on the disk, and what is to be read on the screen
NAMES = {
    b"<h1>x<br>y": "<h1>x<br>y",
    b"<img src='x.png'>": "<img src='x.png'>",
    b"a&b": "a&b",
    b"line\nfeed": "line\\nfeed",
    b"esc\x1b[31mred": "esc\\x1B[31mred",
    b"-rf": "-rf",
    "left\u202egnp.exe".encode(): "left\\u202Egnp.exe",
    b"no \xff utf-8": "no \ufffd utf-8",
    b"n" * 255: "n" * 255,
}


class Names(Journey):
    def setUp(self):
        super().setUp()
        caches = os.path.join(os.fsencode(self.home.path), b"Library/Caches")
        for place, name in enumerate(NAMES):
            self.home.file(os.path.join(caches, name), 9_000_000 - place * 100_000)
        self.caches = caches
        self.program = self.start()
        self.desktop.resize(self.program.window, 1280, 900)
        self.scan(self.program)

    def test_every_name_has_its_row(self):
        self.program.press("list item", "Program Caches")
        self.shows_rows(self.program, list(NAMES.values()))

    def test_every_name_is_deleted_and_has_one_line_wherever_it_is_shown(self):
        self.program.press("list item", "Program Caches")
        self.program.press("push button", "Select All Safe")
        self.program.press("push button", "Delete Selected")
        self.lists("Selected items", list(NAMES.values()), "Cancel")
        self.program.press("push button", "Confirm & Delete")
        self.program.find("label", "Cleanup Complete!")
        self.assertEqual(os.listdir(self.caches), [])
        (log,) = self.home.deletion_logs()
        with open(log, encoding="utf-8") as file:
            lines = file.read().split("\n")[2:-2]
        self.assertEqual([line.split(": ", 1)[1].rsplit(" (", 1)[0] for line in lines],
                         list(NAMES.values()))
        self.lists("Deletion log", lines, "Done")

    def lists(self, name, lines, first):
        """Whether the list of that name, on the sheet whose first button has the focus when it is
        up, has these lines and no other. It is scrolled by keys."""
        wait_for(f"the focus on {first}", lambda: self.is_focused(first))
        self.program.key("Shift_L", "Tab")
        wait_for(f"the focus on {name}", lambda: self.is_focused(name))
        seen = set()

        def sees_all():
            seen.update(line.name for line in self.program.find("list", name).children())
            self.program.key("Down")
            return seen >= set(lines)

        wait_for(lambda: f"{set(lines) - seen} in\n{self.program.describe()}", sees_all)
        self.assertEqual(seen, set(lines))

    def is_focused(self, name):
        focused = self.program.focused()
        return focused and focused.name == name


if __name__ == "__main__":
    main()
