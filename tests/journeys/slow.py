"""Makes the program slow on purpose where a journey has to look at it in the middle of its work: a
tracer holds every call of the system on one folder, for a while or until it is let go."""

import contextlib
import os
import shutil
import signal
import subprocess

CALLS = "getdents64,newfstatat,statx,unlinkat"
FOR_LONG = 120_000  # milliseconds, more than anyone waits; an end, should the journey be killed
# The tracer is a process beside the program, not the one that was started.
TRACER = ["strace", "-D", "-f", "-qq", "-o", "/dev/null"]


def is_possible():
    return bool(shutil.which(TRACER[0])) and not subprocess.run(
        [*TRACER, "true"], stderr=subprocess.DEVNULL, check=False
    ).returncode


def on(folder, milliseconds, calls=CALLS):
    """What to put before the program's command."""
    delay = f"inject={calls}:delay_enter={milliseconds * 1000}"
    return [*TRACER, "-P", folder, "-e", f"trace={calls}", "-e", delay]


def held(folder, calls=CALLS):
    """The same, but what has come to that folder stays there until let_go()."""
    return on(folder, FOR_LONG, calls)


def let_go(process):
    """Takes the tracer away; what it holds, and all that comes after it, is done at once."""
    with open(f"/proc/{process.pid}/status", encoding="ascii") as lines:
        tracer = next(int(line.split()[1]) for line in lines if line.startswith("TracerPid:"))
    if tracer:
        with contextlib.suppress(ProcessLookupError):  # it ends with the program
            os.kill(tracer, signal.SIGKILL)
