"""What the install rules lay down on Linux: icons in their sizes, the manual, the version."""

import gzip
import os
import shutil
import struct
import subprocess
import sys
import unittest

VERSION = sys.argv.pop()
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


class Manual(unittest.TestCase):
    path = os.path.join(INSTALLED, "man/man1/drossbin.1.gz")

    def test_names_the_version(self):
        with gzip.open(self.path, "rt", encoding="utf-8") as text:
            self.assertIn(f'"Drossbin {VERSION}"', text.readline())

    @unittest.skipUnless(shutil.which("man"), "man is not here")
    def test_is_set_without_a_warning(self):
        command = ["man", "--warnings", "--encoding=UTF-8", "--local-file", self.path]
        done = subprocess.run(command, capture_output=True, text=True, check=True,
                              env={**os.environ, "MANWIDTH": "80", "LANG": "C.UTF-8"})
        self.assertEqual(done.stderr, "")
        self.assertIn("find and delete what programs leave behind", done.stdout)


class Changelog(unittest.TestCase):
    def test_begins_with_the_version(self):
        with gzip.open(os.path.join(INSTALLED, "doc/drossbin/changelog.gz"), "rt", encoding="utf-8") as text:
            self.assertEqual(text.readline().split()[:2], ["drossbin", f"({VERSION})"])


if __name__ == "__main__":
    unittest.main()
