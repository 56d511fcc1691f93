"""Every screen still looks as in its kept picture under docs/pictures, in light and in dark."""

import os

from PIL import Image

import pictures
import slow
from driver import wait_for
from journey import Journey, main

DIFFERENCES = "picture-differences"  # below the folder that the test runs in


class Pictures(Journey):
    def test_every_screen_looks_as_in_its_kept_picture(self):
        self.needs_private_logs()
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here, and so not be held in its work")
        self.desktop.want_no_motion()
        kept = os.environ["DROSSBIN_PICTURES"]
        seen = set()

        def compare(name, program):
            seen.add(f"{name}.png")
            self.compare(name, program, Image.open(os.path.join(kept, f"{name}.png")))

        pictures.walk(self.world, self.desktop, self.program_path, compare)
        self.assertEqual(seen, {name for name in os.listdir(kept) if name.endswith(".png")})

    def compare(self, name, program, kept):
        """A screen may need a while to get there: it is looked at until it does."""
        picture = difference = None

        def looks_the_same():
            nonlocal picture, difference
            picture = program.picture()
            difference = pictures.difference(picture, kept, pictures.changing_areas(program))
            return difference is None

        wait_for(lambda: self.keep(name, picture, difference), looks_the_same)

    def keep(self, name, picture, difference):
        os.makedirs(DIFFERENCES, exist_ok=True)
        path = os.path.abspath(os.path.join(DIFFERENCES, name))
        picture.save(f"{path}.png")
        if difference:
            difference.save(f"{path}-difference.png")
        return f"{name} to look as kept: see {path}-difference.png; scripts/pictures takes it anew if that is meant"


if __name__ == "__main__":
    main()
