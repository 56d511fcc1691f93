"""From a selection to freed space: exactly what was selected goes, and the log says so."""

import os
import re

from home import measured, size_text, title
from journey import Journey, main

STAMP = r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ"
HEADER = r"Drossbin Deletion Log — \d{4}-\d\d-\d\d \d\d:\d\d:\d\d \+0000\n"


class Deletion(Journey):
    def setUp(self):
        super().setUp()
        self.needs_private_logs()
        self.expected = self.home.furnish()
        self.program = self.start()
        self.scan(self.program)

    def select_everything_safe_but_the_system_logs(self):
        """Returns what is then selected, in the order of the list: largest first."""
        self.show_overview()
        self.program.press("push button", "Smart Select")
        self.program.press("list item", "Log Files")
        self.program.press("check box", "System Logs")
        kept = ("Keychains", "Sketchpad", "Bitwarden", "System Logs", "old film.mov")
        paths = [path for paths in self.expected.values() for path in paths]
        chosen = [path for path in paths if title(path) not in kept]
        return sorted(chosen, key=measured, reverse=True)

    def show_overview(self):
        self.program.key("Escape")
        self.program.find("push button", "Smart Select")

    def lines(self, paths):
        return [f"✅ Deleted: {title(path)} ({size_text(measured(path))})" for path in paths]

    def test_removes_exactly_what_was_selected_and_reports_it(self):
        chosen = self.select_everything_safe_but_the_system_logs()
        total, lines = size_text(sum(map(measured, chosen))), self.lines(chosen)
        before = self.home.contents()
        self.program.find("label", f"{len(chosen)} items · {total}")
        self.program.press("push button", "Delete Selected")
        self.program.find("label", f"Delete {len(chosen)} items?")
        self.program.press("push button", "Confirm & Delete")
        self.program.find("label", "Cleanup Complete!")
        self.program.find("label", total)
        for line in lines:
            self.program.find("label", line)
        self.check_log(lines, total)
        self.check_disk(before, chosen)

    def check_log(self, lines, total):
        (log,) = self.home.deletion_logs()
        self.assertRegex(os.path.basename(log), f"^deletion-{STAMP}\\.log$")
        with open(log, encoding="utf-8", newline="") as file:
            text = file.read()
        body = "\n".join(["", *lines, f"\nTotal freed: {total}"])
        self.assertRegex(text, f"^{HEADER}{re.escape(body)}$")
        self.assertFalse(text.endswith("\n"))

    def check_disk(self, before, chosen):
        gone = {e for e in before for path in chosen if e == path or e.startswith(path + "/")}
        logs = os.path.join(self.home.path, "Library/Logs")
        made = {logs, os.path.join(logs, "Drossbin"), *self.home.deletion_logs()}
        self.assertEqual(self.home.contents(), (before - gone) | made)

    def test_scans_the_disk_again_when_the_report_is_dismissed(self):
        chosen = self.select_everything_safe_but_the_system_logs()
        self.program.press("push button", "Delete Selected")
        self.program.press("push button", "Confirm & Delete")
        self.program.press("push button", "Done")
        self.program.wait_until_gone("label", "Cleanup Complete!")
        self.program.wait_until_gone("label", "Scanning your Mac...")
        for category, paths in self.expected.items():
            self.program.press("list item", category)
            left = [path for path in paths if path not in chosen]
            self.shows_rows(self.program, [title(p) for p in sorted(left, key=measured, reverse=True)])

    def test_deletes_nothing_when_it_is_cancelled(self):
        self.select_everything_safe_but_the_system_logs()
        before = self.home.contents()
        self.program.press("push button", "Delete Selected")
        self.program.press("push button", "Cancel")
        self.program.wait_until_gone("push button", "Confirm & Delete")
        self.program.find("push button", "Delete Selected")
        self.assertEqual(self.home.contents(), before)
        self.assertEqual(self.home.deletion_logs(), [])

    def test_deletes_from_the_overview_what_smart_select_chose(self):
        chosen = self.select_everything_safe_but_the_system_logs()
        total = size_text(sum(map(measured, chosen)))
        self.show_overview()
        self.program.press("push button", f"Delete {total}")
        self.program.press("push button", "Confirm & Delete")
        self.program.find("label", "Cleanup Complete!")
        self.assertEqual([path for path in chosen if os.path.lexists(path)],
                         [path for path in chosen if title(path) == "User Logs"])
        self.assertEqual(self.home.contents() & {"/var/log/journal/system"}, {"/var/log/journal/system"})


if __name__ == "__main__":
    main()
