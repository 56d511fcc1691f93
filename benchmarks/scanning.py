"""A whole scan, beside what the measuring of its locations alone takes."""

import os
import pathlib
import subprocess
import time

import table
from bench import milliseconds

NAME = "scan a home of 1,000,000 entries"
MONTHS = 90 * 24 * 60 * 60

# where, how many trees, and how many files in each
PARTS = (
    ("Library/Caches", 20, 15_000),
    (".npm", 1, 150_000),
    (".cargo/registry", 1, 100_000),
    ("Library/Application Support", 20, 15_000),
    ("Library/Logs", 1, 50_000),
    ("/var/log", 1, 50_000),
)
DOWNLOADS = 1_000


def cases(bench):
    if not bench.wants(NAME):
        return
    home = pathlib.Path(bench.world.home)
    furnish(bench, home)
    scan, measure = [bench.tools / "scan_home"], [bench.tools / "trees", "measure"]
    locations = _locations(home)
    _compare(scan, [*measure, *locations])
    values = bench.in_turns({
        "its measurements": lambda: milliseconds([*measure, *locations]),
        "the scan": lambda: milliseconds(scan),
    }, 7)
    clear(bench, home)
    yield table.case(NAME, "ms", values, {"the scan": {"ratio": 1.05}})


def furnish(bench, home):
    """Fills the home, and /var/log where it is a scratch folder."""
    for place, trees, files in PARTS:
        folder = home / place  # an absolute place replaces the home
        if folder.is_relative_to(home) or bench.world.has_private_logs:
            folder.mkdir(parents=True, exist_ok=True)
            for number in range(trees):
                bench.tree("mixed", files, folder / f"part-{number}")
    _download(bench, home / "Downloads")


def _download(bench, folder):
    then = time.time() - MONTHS
    folder.mkdir()
    for number in range(bench.files(DOWNLOADS)):
        path = folder / f"download-{number}.zip"
        path.touch()
        os.truncate(path, 200_000)
        os.utime(path, (then, then))


def _locations(home):
    """The paths that a scan measures, in its order. The downloads are not: their entries count
    with what the folder says of them."""
    many = [home / "Library/Caches", home / "Library/Application Support"]
    caches, support = (sorted(folder.iterdir()) for folder in many)
    packages = [home / ".npm", home / ".cargo/registry"]
    return [*caches, *packages, *support, home / "Library/Logs", "/var/log"]


def _compare(scan, measurements):
    """A scan that leaves a location out would win."""
    found, measured = (int(subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout)
                       for command in (scan, measurements))
    if found < measured * 0.9:
        raise RuntimeError(f"the scan found {found} bytes where {measured} are")


def clear(bench, home):
    bench.remove(home)
    home.mkdir()
    if bench.world.has_private_logs:
        for entry in pathlib.Path("/var/log").iterdir():
            bench.remove(entry)
