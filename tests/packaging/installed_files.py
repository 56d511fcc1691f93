"""What the install rules lay down on Linux: icons in their sizes."""

import os
import shutil
import struct
import sys
import unittest

INSTALLED = os.path.join(sys.argv.pop(), "share")
ICON = "org.drossbin.Drossbin"


def icon(size, ending):
    return os.path.join(INSTALLED, f"icons/hicolor/{size}/apps/{ICON}.{ending}")


class Icons(unittest.TestCase):
    @unittest.skipUnless(shutil.which("rsvg-convert"), "rsvg-convert is not here, which draws them")
    def test_there_is_a_picture_of_every_usual_size(self):
        for size in (16, 24, 32, 48, 64, 128, 256, 512):
            with open(icon(f"{size}x{size}", "png"), "rb") as picture:
                head = picture.read(24)
            self.assertEqual((head[:8], struct.unpack(">II", head[16:])), (b"\x89PNG\r\n\x1a\n", (size, size)))

    def test_there_is_a_drawing_for_all_others(self):
        self.assertTrue(os.path.isfile(icon("scalable", "svg")))


if __name__ == "__main__":
    unittest.main()
