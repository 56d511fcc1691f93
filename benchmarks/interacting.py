"""How long a click or a key keeps the window from answering the next one, among many items."""

import os
import subprocess

import table
from desktop import Desktop
from starting import SOFTWARE

# items of the session, and what must not be exceeded
SESSIONS = ((10_000, {"median": 8, "maximum": 16}), (100_000, {"median": 33, "maximum": 100}))
RUNS = 20


def cases(bench):
    for items, goals in SESSIONS:
        name = f"screens: kept by an input among {items:,} items"
        if bench.wants(name):
            desktop = Desktop(bench.world)
            values = _measured(bench, desktop, bench.files(items))
            desktop.close()
            yield table.case(name, "ms", values, {key: goals for key in values}, has_ratios=False)


def _measured(bench, desktop, items):
    command = [bench.tools / "screens", str(items), str(bench.rounds(RUNS))]
    environment = {**os.environ, **desktop.environment(), **SOFTWARE}
    done = subprocess.run(command, env=environment, stdout=subprocess.PIPE, text=True, check=True)
    lines = (line.split("\t") for line in done.stdout.splitlines())
    return {name: [float(value) for value in values] for name, *values in lines}
