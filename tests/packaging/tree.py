"""What stands in several files of the tree has to be the same in all of them."""

import os
import plistlib
import re
import subprocess
import sys
import unittest
from email.utils import parsedate_to_datetime
from urllib.parse import unquote
from xml.etree import ElementTree

VERSION = sys.argv.pop()
TREE = sys.argv.pop()
SVG = "{http://www.w3.org/2000/svg}"


def text(path):
    with open(os.path.join(TREE, path), encoding="utf-8") as file:
        return file.read()


def documents():
    """The Markdown files of the tree, but for what is built."""
    for folder, folders, files in os.walk(TREE):
        folders[:] = [name for name in folders if name not in ("build", ".git")]
        yield from (os.path.join(folder, name) for name in files if name.endswith(".md"))


class Releases(unittest.TestCase):
    """The version stands in CMakeLists.txt; the histories have to begin with it, on the same day."""

    def test_the_changelog_begins_with_the_version(self):
        self.assertEqual(self.changelog()[0], VERSION)

    def test_the_store_metadata_begins_with_it_on_the_same_day(self):
        metadata = ElementTree.fromstring(text("packaging/linux/org.drossbin.Drossbin.metainfo.xml"))
        newest = metadata.find("releases/release")
        self.assertEqual((newest.get("version"), newest.get("date")), self.changelog())

    def test_the_changelog_of_debian_begins_with_it_on_the_same_day(self):
        history = text("packaging/linux/changelog")
        version = re.match(r"drossbin \((.*)\)", history)[1]
        day = parsedate_to_datetime(re.search(r"^ -- .*>  (.*)$", history, re.MULTILINE)[1]).date()
        self.assertEqual((version, day.isoformat()), self.changelog())

    def changelog(self):
        return re.search(r"^## \[(\d+\.\d+\.\d+)\] - (.*)$", text("CHANGELOG.md"), re.MULTILINE).groups()


class Icons(unittest.TestCase):
    def test_hold_nothing_that_a_desktop_may_not_draw(self):
        allowed = {"svg", "defs", "linearGradient", "stop", "g", "path", "rect"}
        for name in ("org.drossbin.Drossbin", "drossbin-16", "drossbin-24", "drossbin-32"):
            drawing = ElementTree.fromstring(text(f"packaging/icons/{name}.svg"))
            used = {element.tag.removeprefix(SVG) for element in drawing.iter()}
            self.assertEqual(used - allowed, set(), name)


class Bundle(unittest.TestCase):
    def test_says_what_the_folders_of_the_user_are_read_for(self):
        keys = plistlib.loads(text("packaging/macos/Info.plist.in").encode())
        self.assertEqual(keys["CFBundleShortVersionString"], "@PROJECT_VERSION@")
        self.assertRegex(keys["NSDownloadsFolderUsageDescription"], r"^Drossbin .*\.$")


class Documents(unittest.TestCase):
    def test_every_link_within_the_tree_leads_somewhere(self):
        for document in documents():
            with open(document, encoding="utf-8") as file:
                targets = re.findall(r"\]\(([^)\s]+)\)", file.read())
            for target in (unquote(target.split("#")[0]) for target in targets):
                if target and not re.match(r"[a-z]+:", target):
                    path = os.path.join(os.path.dirname(document), target)
                    self.assertTrue(os.path.exists(path), f"{document}: {target}")

    def test_the_files_that_the_guide_to_changes_names_are_there(self):
        files = {name for _, _, names in os.walk(TREE) for name in names}
        named = re.findall(r"`(\w+\.(?:cpp|h|qml|py|svg))`", text("docs/changing.md"))
        self.assertGreaterEqual(len(named), 10)
        self.assertEqual([name for name in named if name not in files], [])

    def test_every_test_that_a_document_names_is_there(self):
        tests = subprocess.run(["grep", "-rh", "", os.path.join(TREE, "tests"), "--include=*.cpp", "--include=*.qml"],
                               capture_output=True, text=True, check=True).stdout
        for document in ("docs/changing.md", "docs/safety.md"):
            # Sentences, after the name of their suite or without it, or suites as a whole.
            named = re.findall(r"`(?:(\w+)\.)?([a-z0-9]+(?:_[a-z0-9]+){2,}|\*)(?:_\*|/\w+)?`", text(document))
            words = {word for pair in named for word in pair if word not in ("", "*", "views")}
            self.assertGreaterEqual(len(words), 15, document)
            self.assertEqual([word for word in words if not re.search(rf"\b{word}", tests)], [], document)


if __name__ == "__main__":
    unittest.main()
