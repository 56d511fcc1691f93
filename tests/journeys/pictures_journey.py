"""Every screen still looks as in its kept picture under docs/pictures, in light and in dark."""

import os

from PIL import Image

import pictures
import slow
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

        def compare(name, picture, areas):
            seen.add(f"{name}.png")
            with self.subTest(name):
                self.compare(name, picture, os.path.join(kept, f"{name}.png"), areas)

        pictures.walk(self.world, self.desktop, self.program_path, compare)
        self.assertEqual(seen, {name for name in os.listdir(kept) if name.endswith(".png")})

    def compare(self, name, picture, kept, areas):
        difference = pictures.difference(picture, Image.open(kept), areas)
        if difference:
            os.makedirs(DIFFERENCES, exist_ok=True)
            path = os.path.abspath(os.path.join(DIFFERENCES, name))
            picture.save(f"{path}.png")
            difference.save(f"{path}-difference.png")
            self.fail(f"{name} looks different: see {path}-difference.png; take it anew with "
                      "scripts/pictures if that is meant")


if __name__ == "__main__":
    main()
