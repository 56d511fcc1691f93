"""What the system tells of a running program and those that it started."""

import contextlib
import os
import pathlib


def memory(process):
    """MiB, with each page that others have too counted in part."""
    return _sum(_share, process) / 1024


def processor_time(process):
    """Milliseconds that its threads have run."""
    return _sum(_nanoseconds, process) / 1e6


def _sum(figure, process):
    total = figure(process)
    for member in _family(process) - {process}:
        with contextlib.suppress(OSError):  # what it started may end while we look
            total += figure(member)
    return total


def _family(process):
    parents = {}
    for name in filter(str.isdigit, os.listdir("/proc")):
        with contextlib.suppress(OSError):  # gone by now
            stat = pathlib.Path("/proc", name, "stat").read_text()
            parents[int(name)] = int(stat.rpartition(")")[2].split()[1])
    family = {process}
    while True:
        more = {child for child, parent in parents.items() if parent in family} - family
        if not more:
            return family
        family |= more


def _share(process):
    lines = pathlib.Path(f"/proc/{process}/smaps_rollup").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("Pss:"))


def _nanoseconds(process):
    threads = pathlib.Path(f"/proc/{process}/task").iterdir()
    return sum(int((thread / "schedstat").read_text().split()[0]) for thread in threads)
