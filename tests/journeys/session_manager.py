"""A session manager, which tells its programs when the session ends."""

import os
import shutil
import subprocess

from desktop import dies_with_us
from driver import PATIENCE, wait_for


def is_possible():
    return bool(shutil.which("xsm") and shutil.which("iceauth"))


class SessionManager:
    def __init__(self, world, desktop):
        # A program of the session finds out where its manager listens.
        teller, told = (os.path.join(world.root, name) for name in ("teller", "told"))
        with open(teller, "w", encoding="ascii") as script:
            script.write(f'#!/bin/sh\necho "$SESSION_MANAGER" >"{told}.part" && mv "{told}.part" "{told}"\n')
        os.chmod(teller, 0o700)
        with open(os.path.join(world.home, ".xsmstartup"), "w", encoding="utf-8") as programs:
            programs.write(teller + "\n")
        self._process = subprocess.Popen(
            dies_with_us(["xsm", "-session", "new"]),
            env=world.environment(**desktop.environment()),
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        wait_for("the session manager", lambda: os.path.exists(told))
        with open(told, encoding="ascii") as address:
            self.environment = {"SESSION_MANAGER": address.read().strip()}

    def end_session(self):
        self._process.terminate()
        self._process.wait(PATIENCE)
