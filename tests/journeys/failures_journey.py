"""An ordinary user meets things that cannot be deleted."""

import os

from home import measured, size_text
from journey import Journey, main


class Failures(Journey):
    def test_each_failure_is_a_red_line_and_the_rest_is_deleted(self):
        stuck = os.path.dirname(self.home.file("Library/Caches/com.example.Stuck/blob", 9_000_000))
        loose = os.path.dirname(self.home.file("Library/Caches/com.example.Loose/blob", 3_000_000))
        freed = size_text(measured(loose))
        os.chmod(stuck, 0o500)
        program = self.start()
        self.scan(program)
        program.press("list item", "Program Caches")
        program.press("push button", "Select All Safe")
        program.press("push button", "Delete Selected")
        program.press("push button", "Confirm & Delete")
        program.find("label", "Cleanup Complete!")
        failure = program.find("label", "❌ Failed: com.example.Stuck — Permission denied")
        success = program.find("label", f"✅ Deleted: com.example.Loose ({freed})")
        report = program.find("dialog", "Cleanup Complete!")
        self.assertEqual(report.description, f"You freed {freed}\n{failure.name}")
        self.assertTrue(self.is_red(program, failure))
        self.assertFalse(self.is_red(program, success))
        self.assertTrue(os.path.exists(os.path.join(stuck, "blob")))
        self.assertFalse(os.path.exists(loose))

    def is_red(self, program, control):
        """Whether the greater part of what is drawn there, beside the mark, is red."""
        area = control.node.get_component_iface().get_extents(0)
        left = area.x + area.height * 2
        box = (left, area.y, area.x + area.width, area.y + area.height)
        pixels = program.picture().crop(box).getdata()
        strong = [p for p in pixels if max(p) - min(p) > 100]
        return len([p for p in strong if p[0] == max(p)]) > 20


if __name__ == "__main__":
    main(as_ordinary_user=True)
