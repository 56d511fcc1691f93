"""What every chapter of the comparison shares: where things are, how much is wanted, and turns."""

import os
import pathlib
import subprocess
import sys
import time


class Bench:
    def __init__(self, options, world):
        self.build = options.build
        self.tools = options.build / "benchmarks"
        self.program = options.build / "src" / "main" / "drossbin"
        self.quick = options.quick
        self.world = world
        self.scratch = pathlib.Path(world.root) / "trees"
        self.scratch.mkdir(exist_ok=True)
        self._words = options.words

    def wants(self, name):
        """Whether a case is to be run; says so, because it may take minutes."""
        wanted = all(word in name for word in self._words)
        if wanted:
            print(name, file=sys.stderr, flush=True)
        return wanted

    def rounds(self, number):
        return min(number, 2) if self.quick else number

    def files(self, number):
        return number // 50 if self.quick else number

    def tree(self, kind, files, path):
        """The path of a tree, which is made where it is not there yet."""
        if not path.exists():
            command = [self.tools / "make_tree", kind, str(self.files(files)), path]
            subprocess.run(command, check=True)
        return path

    def remove(self, path):
        subprocess.run(["rm", "-rf", "--", path], check=True)

    def in_turns(self, tasks, rounds, prepare=lambda: None):
        """The values of each task's runs. A task is a function that returns one; the first round
        only warms up."""
        values = {name: [] for name in tasks}
        for number in range(self.rounds(rounds) + 1):
            for name, task in tasks.items():
                prepare()
                value = task()
                if number > 0:
                    values[name].append(value)
        return values


def milliseconds(command, **environment):
    start = time.perf_counter()
    subprocess.run([str(part) for part in command], stdout=subprocess.DEVNULL, check=True,
                   env={**os.environ, **environment})
    return (time.perf_counter() - start) * 1000
