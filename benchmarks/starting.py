"""From exec to what the user sees, and the memory that it takes."""

import contextlib
import os
import shutil
import subprocess

import processes
import table
from desktop import Desktop, dies_with_us

SOFTWARE = {"QT_QUICK_BACKEND": "software"}
LLVMPIPE = {"LIBGL_ALWAYS_SOFTWARE": "1"}
OPENGL = {"QT_QUICK_BACKEND": ""}  # even where there is no graphics card
PEERS = ("filelight", "qdirstat", "baobab", "bleachbit", "stacer")
SECONDS = 5  # of watching after the first change: most are done by then, and have idled for three
ROUNDS = 9

# what a start is asked for, in the order of `_start`'s values, with its unit and ratio to reach
QUESTIONS = (("first painted", "ms", 1.5), ("complete", "ms", 1.5), ("memory", "MiB", 1.3))


def cases(bench):
    desktop = None
    for renderer, environment, others in (("software", SOFTWARE, _peers()),
                                          ("llvmpipe", LLVMPIPE, _with_opengl(bench))):
        wanted = [(index, f"start: {question}, {renderer}")
                  for index, (question, *_) in enumerate(QUESTIONS)
                  if bench.wants(f"start: {question}, {renderer}")]
        if wanted:
            desktop = desktop or Desktop(bench.world)
            starts = _starts(bench, desktop, environment, others)
            for index, name in wanted:
                yield _case(name, index, starts)
    if desktop:
        desktop.close()


def _peers():
    return {peer: ([peer], {}) for peer in PEERS if shutil.which(peer)}


def _with_opengl(bench):
    """Without a graphics card Drossbin leaves OpenGL alone, unless it is told to use it."""
    return {"drossbin, told to use OpenGL": ([bench.program], OPENGL)}


def _starts(bench, desktop, environment, others):
    programs = {"empty window": ([bench.tools / "empty_window"], {}),
                "drossbin": ([bench.program], {}), **others}
    tasks = {name: lambda command=command, more=more:
             _start(bench, desktop, command, {**environment, **more})
             for name, (command, more) in programs.items()}
    return bench.in_turns(tasks, ROUNDS)


def _start(bench, desktop, command, environment):
    """Milliseconds to the first change and to the complete picture, and MiB."""
    with _watched(bench, desktop, command, environment) as (process, first, complete):
        return first, complete, processes.memory(process)


@contextlib.contextmanager
def _watched(bench, desktop, command, environment):
    watch = subprocess.Popen(
        dies_with_us([bench.tools / "start_watch", str(SECONDS), *command]),
        env={**os.environ, **desktop.environment(), **environment},
        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    try:
        line = watch.stdout.readline().split()
        if not line:
            raise RuntimeError(f"{command[0]} shows nothing")
        yield int(line[0]), float(line[1]), float(line[2])
    finally:
        watch.stdin.close()
        watch.wait()


def _case(name, index, starts):
    _, unit, ratio = QUESTIONS[index]
    values = {program: [start[index] for start in runs] for program, runs in starts.items()}
    return table.case(name, unit, values, {"drossbin": {"ratio": ratio}})
