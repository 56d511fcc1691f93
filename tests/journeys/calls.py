"""Writes down what the program asks of the system."""

import os
import re


class Trace:
    def __init__(self, world, calls):
        self._path = os.path.join(world.root, "trace")
        # What to put before the program's command.
        self.wrapper = ["strace", "-f", "-qq", "-y", "-s", "4096", "-o", self._path, "-e", f"trace={calls}"]

    def calls(self):
        """A line each, in their order."""
        with open(self._path, encoding="utf-8", errors="replace") as lines:
            return [re.sub(r"^\d+ +", "", line) for line in lines]
