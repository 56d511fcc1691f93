"""Adding up the sizes of a tree, with warm caches and with cold ones."""

import os
import pathlib
import shutil
import sys

import table
from bench import milliseconds

DROP_CACHES = pathlib.Path("/proc/sys/vm/drop_caches")

# name, kind and number of files of the tree, ratio to reach, rounds
WARM = (
    ("measure 1,000,000 files, mixed", "mixed", 1_000_000, 0.49, 7),
    ("measure 100,000 files, mixed", "mixed", 100_000, 0.55, 15),
    ("measure one folder of 300,000", "wide", 300_000, 0.42, 9),
    ("measure 1,000 folders of 50", "folders", 50_000, 0.53, 25),
    ("measure 10,000 files, mixed", "mixed", 10_000, 0.70, 41),
)
COLD = (
    ("measure 1,000,000 files, cold", "mixed", 1_000_000, 0.40, 3),
    ("measure 100,000 files, cold", "mixed", 100_000, 0.42, 5),
)


def cases(bench):
    yield from _measured(bench, WARM, lambda: None)
    if os.access(DROP_CACHES, os.W_OK):
        yield from _measured(bench, COLD, _drop_caches)
    else:
        print("Nothing is measured cold: only root may empty the system's caches.", file=sys.stderr)


def _measured(bench, rows, prepare):
    for name, kind, files, ratio, rounds in rows:
        if bench.wants(name):
            tree = bench.tree(kind, files, bench.scratch / f"{kind}-{files}")
            tasks = {program: lambda command=command: milliseconds(command)
                     for program, command in _commands(bench, tree).items()
                     if shutil.which(command[0])}
            values = bench.in_turns(tasks, rounds, prepare)
            yield table.case(name, "ms", values, {"drossbin": {"ratio": ratio}})


def _commands(bench, tree):
    return {
        "du": ["du", "-sb", "--count-links", tree],
        "ncdu": ["ncdu", "-0", "-o", "/dev/null", tree],
        "gdu": ["gdu", "-npca", tree],
        "find -printf": ["find", tree, "-printf", "%s\n"],
        "std::filesystem": [bench.tools / "trees", "measure-std", tree],
        "drossbin": [bench.tools / "trees", "measure", tree],
    }


def _drop_caches():
    os.sync()
    DROP_CACHES.write_text("3")
