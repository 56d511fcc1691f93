"""What the work on a tree of any size takes, above the process before it."""

import subprocess

import table

# name, job, kind and number of files of the tree
CASES = (
    ("memory: measuring 1,000,000 files", "measure", "mixed", 1_000_000),
    ("memory: measuring one folder of 300,000", "measure", "wide", 300_000),
    ("memory: deleting one folder of 300,000", "remove", "wide", 300_000),
)
MOST = {"maximum": 16}
ROUNDS = 3


def cases(bench):
    for name, job, kind, files in CASES:
        if bench.wants(name):
            values = bench.in_turns({"drossbin": lambda: _growth(bench, job, kind, files)}, ROUNDS)
            yield table.case(name, "MiB", values, {"drossbin": MOST}, has_ratios=False)


def _growth(bench, job, kind, files):
    tree = bench.tree(kind, files, bench.scratch / f"{kind}-{files}")
    command = [bench.tools / "trees", "memory", job, tree]
    return int(subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout) / 1024
