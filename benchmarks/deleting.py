"""Removing trees, one entry after another."""

import os

import table
from bench import milliseconds

# name, kind and number of files of the tree, ratio to reach, rounds
CASES = (
    ("delete 100,000 files, mixed", "mixed", 100_000, 0.93, 7),
    ("delete one folder of 300,000", "wide", 300_000, 0.86, 5),
)
GROWTH = "delete four times as many, an entry"


def cases(bench):
    for name, kind, files, ratio, rounds in CASES:
        if bench.wants(name):
            tasks = {program: lambda command=command: _removed(bench, command, kind, files)
                     for program, command in _commands(bench).items()}
            values = bench.in_turns(tasks, rounds)
            yield table.case(name, "ms", values, {"drossbin": {"ratio": ratio}})
    if bench.wants(GROWTH):
        yield _growth(bench)


def _commands(bench):
    return {
        "rm -rf": ["rm", "-rf"],
        "find -delete": ["find", "TREE", "-delete"],
        "std::filesystem": [bench.tools / "trees", "remove-std"],
        "drossbin": [bench.tools / "trees", "remove"],
    }


def _growth(bench):
    remove = [bench.tools / "trees", "remove"]

    def an_entry(files):
        return _removed(bench, remove, "mixed", files) * 1000 / bench.files(files)

    values = bench.in_turns({"of 100,000": lambda: an_entry(100_000),
                             "of 400,000": lambda: an_entry(400_000)}, 5)
    return table.case(GROWTH, "µs", values, {"of 400,000": {"ratio": 1.2}})


def _removed(bench, command, kind, files):
    tree = bench.tree(kind, files, bench.scratch / "to-delete")
    os.sync()  # what was just made is not to be written meanwhile
    parts = [tree if part == "TREE" else part for part in command]
    return milliseconds(parts if "TREE" in command else [*parts, tree])
