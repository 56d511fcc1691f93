"""How long the window answers nothing while it scans, with assistive programs on."""

import os
import pathlib
import subprocess

import measuring
import scanning
import table
from desktop import Desktop
from starting import SOFTWARE

NAME = "scan of 1,000,000: nothing answered"
ASSISTED = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
STARTS = 5
SCANS = 4  # a start

# how many cores, how much of the longest gap must not be exceeded, in milliseconds
CORES = ((2, 50), (1, 100))


def cases(bench):
    rows = [(f"{NAME}, {warmth}, {cores} {'cores' if cores > 1 else 'core'}", warmth, cores, goal)
            for warmth in ("warm", "cold") for cores, goal in CORES if _is_possible(warmth, cores)]
    wanted = [row for row in rows if bench.wants(row[0])]
    if wanted:
        home = pathlib.Path(bench.world.home)
        scanning.furnish(bench, home)
        desktop = Desktop(bench.world)
        for name, warmth, cores, goal in wanted:
            values = _gaps(bench, desktop, warmth, cores)
            goals = {scan: {"maximum": goal} for scan in values}
            yield table.case(name, "ms", values, goals, has_ratios=False)
        desktop.close()
        scanning.clear(bench, home)


def _is_possible(warmth, cores):
    enough = len(os.sched_getaffinity(0)) >= cores
    return enough and (warmth == "warm" or os.access(measuring.DROP_CACHES, os.W_OK))


def _gaps(bench, desktop, warmth, cores):
    """The longest gap of each scan: the first of a start, and those after it."""
    subprocess.run([bench.tools / "scan_home"], stdout=subprocess.DEVNULL, check=True)
    runs = [_gaps_of_start(bench, desktop, warmth, cores) for _ in range(bench.rounds(STARTS))]
    return {"the first scan": [gaps[0] for gaps in runs],
            "later ones": [gap for gaps in runs for gap in gaps[1:]]}


def _gaps_of_start(bench, desktop, warmth, cores):
    chosen = ",".join(map(str, sorted(os.sched_getaffinity(0))[:cores]))
    command = ["taskset", "--cpu-list", chosen, bench.tools / "scan_gaps", str(SCANS)]
    environment = {**os.environ, **desktop.environment(), **SOFTWARE, **ASSISTED}
    done = subprocess.run(command + (["cold"] if warmth == "cold" else []), env=environment,
                          stdout=subprocess.PIPE, text=True, check=True)
    return [float(line) for line in done.stdout.split()]
