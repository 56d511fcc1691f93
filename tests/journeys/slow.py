"""Makes the program slow on purpose where a journey has to look at it in the middle of its work: a
tracer holds every call of the system on one folder for a while."""

import shutil
import subprocess

CALLS = "getdents64,newfstatat,statx,unlinkat"


def is_possible():
    tracer = shutil.which("strace")
    return bool(tracer) and not subprocess.run(
        [tracer, "-qq", "-o", "/dev/null", "true"], stderr=subprocess.DEVNULL, check=False
    ).returncode


def on(folder, milliseconds, calls=CALLS):
    """What to put before the program's command."""
    delay = f"inject={calls}:delay_enter={milliseconds * 1000}"
    return ["strace", "-f", "-qq", "-o", "/dev/null", "-P", folder, "-e", f"trace={calls}", "-e", delay]
