"""A made-up home folder, and what a scan of it has to show. Files are as large as they say without
using space on the disk."""

import os
import subprocess
import time
from decimal import ROUND_HALF_EVEN, Decimal

DAY = 24 * 60 * 60


class Home:
    def __init__(self, world):
        self._world = world
        self.path = world.home
        self.is_private = world.has_private_logs

    def clear(self):
        """Makes the home and, where it is a scratch folder, /var/log empty."""
        folders = [self.path] + ([self._world.logs] if self.is_private else [])
        for folder in folders:
            for name in os.listdir(os.fsencode(folder)):
                entry = os.path.join(os.fsencode(folder), name)
                subprocess.run([b"chmod", b"-R", b"u+rwX", b"--", entry], check=True)
                subprocess.run([b"rm", b"-rf", b"--", entry], check=True)

    def file(self, path, size, days_old=0):
        """A file of that size; returns its absolute path. The path may be bytes."""
        path = os.path.join(os.fsencode(self.path), os.fsencode(path))
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.truncate(size)
        then = time.time() - days_old * DAY
        os.utime(path, (then, then))
        return os.fsdecode(path)

    def contents(self):
        """The path of everything in the home and in /var/log."""
        roots = [self.path, self._world.logs]
        return {
            os.path.join(folder, name)
            for root in roots
            for folder, folders, files in os.walk(root)
            for name in folders + files
        }

    def deletion_logs(self):
        folder = os.path.join(self.path, "Library/Logs/Drossbin")
        names = sorted(os.listdir(folder)) if os.path.isdir(folder) else []
        return [os.path.join(folder, name) for name in names]

    def furnish(self):
        """Fills the home with something in every category and at every risk, and with things that
        a scan has to leave out. What folders count for, which depends on the file system, changes no
        size shown. Returns the items' paths by category."""
        for name, size in (("index", 1_500_000), ("data/blob-1", 2_250_000), ("data/blob-2", 125)):
            self.file(f"Library/Caches/com.example.Editor/{name}", size)
        self.file("Library/Caches/Google Chrome/Cache/data_1", 3_700_000)
        self.file("Library/Caches/Keychains/store", 6_000_000)
        self.file("Library/Caches/com.example.Small/blob", 900_000)
        self.file("Library/Caches/exactly", 1_000_000)
        self.file(".npm/_cacache/content", 8_430_000)
        self.file(".cargo/registry/cache/crate", 12_345_678)
        self.file("Library/Application Support/Slack/Cache/one", 7_100_000)
        self.file("Library/Application Support/Sketchpad/library", 9_900_000)
        self.file("Library/Application Support/Bitwarden/vault", 5_500_000)
        self.file("Library/Application Support/Small/data", 4_000_000)
        self.file("Library/Logs/Editor/today.log", 2_200_000)
        self.file("Downloads/old film.mov", 42_000_000, days_old=200)
        self.file("Downloads/new film.mov", 43_000_000)
        self.file("Documents/novel.txt", 77_000_000, days_old=400)
        if self.is_private:
            self.file("/var/log/journal/system", 4_400_000)
        return self._expected()

    def _expected(self):
        under_home = {
            "Program Caches": [
                "Library/Caches/com.example.Editor",
                "Library/Caches/Google Chrome",
                "Library/Caches/Keychains",
            ],
            "Package Caches": [".npm", ".cargo/registry"],
            "App Data": [
                "Library/Application Support/Slack",
                "Library/Application Support/Sketchpad",
                "Library/Application Support/Bitwarden",
            ],
            "Log Files": ["Library/Logs"],
            "Old Downloads": ["Downloads/old film.mov"],
        }
        expected = {
            category: [os.path.join(self.path, path) for path in paths]
            for category, paths in under_home.items()
        }
        if self.is_private:
            expected["Log Files"].append(self._world.logs)
        return expected


TITLES = {
    ".npm": "npm cache",
    ".cargo/registry": "Cargo/Rust cache",
    "Library/Logs": "User Logs",
    "/var/log": "System Logs",
}


def title(path):
    """The name under which a path of the made-up home is shown."""
    known = [name for end, name in TITLES.items() if path.endswith(end)]
    return known[0] if known else os.path.basename(path)


def measured(path):
    """The sum of the sizes of all entries below a folder, or the size of a file."""
    if not os.path.isdir(path):
        return os.lstat(path).st_size
    return sum(
        os.lstat(os.path.join(folder, name)).st_size
        for folder, folders, files in os.walk(path)
        for name in folders + files
    )


def size_text(size):
    """A size as the program writes it in English, worked out another way than there."""
    if size < 1000:
        return {0: "Zero KB", 1: "1 byte"}.get(size, f"{size} bytes")
    for power, (unit, digits) in enumerate((("KB", 0), ("MB", 1), ("GB", 2), ("TB", 2)), start=1):
        step = Decimal(1).scaleb(-digits)
        value = (Decimal(size) / 1000**power).quantize(step, rounding=ROUND_HALF_EVEN)
        if value < 1000:
            return f"{value.normalize():f} {unit}"
    raise ValueError(size)
