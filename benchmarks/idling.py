"""What the program costs while nobody does anything with it."""

import os
import subprocess
import time

import processes
import table
from desktop import Desktop, dies_with_us
from home import Home
from starting import SOFTWARE

NAME = "idle: processor time in five seconds"
SECONDS = 5
TITLE = "Drossbin"
NOTHING = {"maximum": 0}


def cases(bench):
    if bench.wants(NAME):
        desktop = Desktop(bench.world)
        tasks = {"landing, which pulses": lambda: _landing(bench, desktop),
                 "landing, hidden": lambda: _landing(bench, desktop, hides=True),
                 "results": lambda: _results(bench, desktop)}
        values = bench.in_turns(tasks, 3)
        desktop.close()
        goals = {"landing, hidden": NOTHING, "results": NOTHING}
        yield table.case(NAME, "ms", values, goals, has_ratios=False)


def _landing(bench, desktop, hides=False):
    with Running(bench, desktop) as program:
        if hides:
            desktop.hide(program.window)
        return program.idle_time()


def _results(bench, desktop):
    Home(bench.world).furnish()
    with Running(bench, desktop) as program:
        desktop.focus(program.window)
        desktop.key("Tab")
        desktop.key("space")
        return program.idle_time()


class Running:
    """The program on its landing screen, for as long as the block lasts."""

    def __init__(self, bench, desktop):
        self._process = subprocess.Popen(
            dies_with_us([bench.program]), env={**os.environ, **desktop.environment(), **SOFTWARE})
        time.sleep(2)  # until it stands and listens to its keys
        self.window = desktop.window(TITLE)

    def idle_time(self):
        """Milliseconds of the processor, once all that was asked for is done."""
        time.sleep(3)
        before = processes.processor_time(self._process.pid)
        time.sleep(SECONDS)
        return processes.processor_time(self._process.pid) - before

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.kill()
        self._process.wait()
