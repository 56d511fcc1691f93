"""A world of its own for one journey: scratch folders for the home, for /var/log and for all else
that a desktop session has, in a mount namespace of its own. The script runs again in there; when
it ends the world goes with it. Nothing outside is ever touched."""

import os
import pwd
import shutil
import subprocess
import sys
import tempfile

# Who the superuser becomes where rights matter. The message bus wants a user that the system knows.
ORDINARY_USER = "nobody"
FOLDERS = ("home", "var-log", "runtime", "tmp", "small-disk")
# Which typefaces there are: those that the program asks for, whatever others the machine has.
TYPEFACES = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "fonts", "required.conf")


class World:
    """What the script sees from inside."""

    def __init__(self, root):
        self.root = root
        self.home = os.path.join(root, "home")
        self.logs = "/var/log"
        self.has_private_logs = os.path.samefile(self.logs, os.path.join(root, "var-log"))
        self.small_disk = os.path.join(root, "small-disk")

    def environment(self, **more):
        """The environment of everything that runs in the world."""
        kept = ("PATH", "UBSAN_OPTIONS")
        return {
            **{name: os.environ[name] for name in kept if name in os.environ},
            "HOME": self.home,
            "LANG": "en_US.UTF-8",
            # Qt ends without freeing the pictures of its last window, and no leak can be looked for
            # in a process that is traced.
            "ASAN_OPTIONS": "detect_leaks=0",
            "TZ": "UTC",
            "FONTCONFIG_FILE": os.path.join(self.root, "required.conf"),
            "TMPDIR": os.path.join(self.root, "tmp"),
            "XDG_RUNTIME_DIR": os.path.join(self.root, "runtime"),
            **more,
        }


def inside():
    """The world that this process runs in, or None outside of any."""
    root = os.environ.get("DROSSBIN_WORLD")
    return World(root) if root else None


def run_inside(script, arguments, as_ordinary_user=False):
    """Runs a Python script in a new world; returns its exit code."""
    root = tempfile.mkdtemp(prefix="drossbin-world-")
    try:
        os.chmod(root, 0o755)
        for name in FOLDERS:
            os.mkdir(os.path.join(root, name), 0o700)
        shutil.copy(TYPEFACES, root)
        return _run(root, script, arguments, as_ordinary_user and os.getuid() == 0)
    finally:
        subprocess.run(["chmod", "-R", "u+rwX", root], stderr=subprocess.DEVNULL, check=False)
        subprocess.run(["rm", "-rf", root], check=True)


def _run(root, script, arguments, drops_rights):
    program = [sys.executable, script, *arguments]
    if drops_rights:
        program = _hand_over(root, program)
    mounts = _private_mounts(root) if _can_mount() else []
    command = [*mounts, *_unprivileged(drops_rights, bool(mounts)), *program]
    environment = {**os.environ, "DROSSBIN_WORLD": root, "PYTHONDONTWRITEBYTECODE": "1"}
    return subprocess.run(command, env=environment, check=False).returncode


def _hand_over(root, program):
    """Copies what the ordinary user runs to where that user may read it."""
    copies = os.path.join(root, "copies")
    os.mkdir(copies)
    copied = [shutil.copy(path, copies) if os.path.isfile(path) else path for path in program[1:]]
    for module in os.listdir(os.path.dirname(program[1])):
        if module.endswith(".py"):
            shutil.copy(os.path.join(os.path.dirname(program[1]), module), copies)
    subprocess.run(["chown", "-R", f"{ORDINARY_USER}:", root], check=True)
    return [program[0], *copied]


def _new_namespace():
    user = [] if os.getuid() == 0 else ["--user", "--map-root-user"]
    return ["unshare", *user, "--mount", "--propagation", "private"]


def _can_mount():
    if shutil.which("unshare") is None:
        return False
    attempt = [*_new_namespace(), "mount", "-t", "tmpfs", "none", tempfile.gettempdir()]
    return subprocess.run(attempt, stderr=subprocess.DEVNULL, check=False).returncode == 0


def _private_mounts(root):
    script = (
        'mount --bind "$0/var-log" /var/log'
        ' && mount -t tmpfs -o size=256k,mode=777 none "$0/small-disk" && exec "$@"'
    )
    return [*_new_namespace(), "sh", "-c", script, root]


def _unprivileged(drops_rights, is_private):
    if drops_rights:
        group = str(pwd.getpwnam(ORDINARY_USER).pw_gid)
        return ["setpriv", "--reuid", ORDINARY_USER, "--regid", group, "--clear-groups"]
    if os.getuid() == 0 or not is_private:
        return []
    return ["unshare", "--user", f"--map-user={os.getuid()}", f"--map-group={os.getgid()}"]
