"""Every screen is read out as its kept tree under trees/ says."""

import difflib
import os

import slow
import trees
from driver import wait_for
from journey import Journey, main

KEPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "trees")


class Trees(Journey):
    def test_every_screen_is_read_out_as_in_its_kept_tree(self):
        self.needs_private_logs()
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here, and so not be held in its work")
        self.desktop.want_no_motion()
        seen = set()

        def compare(name, program):
            seen.add(f"{name}.txt")
            with open(os.path.join(KEPT, f"{name}.txt"), encoding="utf-8") as file:
                kept = file.read()
            wait_for(lambda: self.differences(name, kept, trees.tree(program)),
                     lambda: trees.tree(program) == kept)

        trees.walk(self.world, self.desktop, self.program_path, compare)
        self.assertEqual(seen, set(os.listdir(KEPT)))

    def differences(self, name, kept, now):
        lines = difflib.unified_diff(kept.splitlines(), now.splitlines(), f"{name} as kept", "now", lineterm="")
        return "no difference; scripts/pictures writes trees anew:\n" + "\n".join(lines)


if __name__ == "__main__":
    main()
