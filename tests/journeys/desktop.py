"""A desktop session for one journey: a virtual screen with its keyboard and pointer, and the two
message buses that screen readers use."""

import contextlib
import os
import subprocess
import sys

from PIL import ImageGrab
from Xlib import XK, X, display, error, protocol
from Xlib.ext import xtest


def dies_with_us(command, how="KILL"):
    """The command, ended by the system when this process is gone, however it goes."""
    return ["setpriv", "--pdeathsig", how, *command]


class Desktop:
    def __init__(self, world, size=(1280, 900)):
        self.size = size
        self._world = world
        self._processes = contextlib.ExitStack()
        self.display_name = self._start_screen()
        self.bus_address = self._start_bus()
        self._x = display.Display(self.display_name)

    def want_no_motion(self):
        """Has every program that starts from now on told that the user wants no animations."""
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "portal.py")
        self.serve([sys.executable, script])

    def serve(self, command):
        """Has it run until the desktop is closed; returns when it has written its first line."""
        self._start(command, self.environment())

    def close(self):
        self._x.close()
        self._processes.close()

    def environment(self):
        return {"DISPLAY": self.display_name, "DBUS_SESSION_BUS_ADDRESS": self.bus_address}

    def _start_screen(self):
        geometry = "{}x{}x24".format(*self.size)
        command = ["Xvfb", "-displayfd", "1", "-screen", "0", geometry, "-nolisten", "tcp"]
        return ":" + self._start(command, {})

    def _start_bus(self):
        # In the world, which is removed with all that is in it, wherever the system wants it.
        address = "unix:dir=" + self._world.environment()["XDG_RUNTIME_DIR"]
        command = ["dbus-daemon", "--session", "--nofork", "--print-address=1", "--address", address]
        return self._start(command, {"DISPLAY": self.display_name})

    def _start(self, command, more):
        """Starts a server; returns the line that it writes when it is ready. In the end it is asked
        to stop, not killed, so that it takes its locks and sockets away."""
        reader, writer = os.pipe()
        process = subprocess.Popen(
            dies_with_us(command, "TERM"),
            env=self._world.environment(**more),
            stdin=subprocess.DEVNULL,
            stdout=writer,
            stderr=subprocess.DEVNULL,
        )
        os.close(writer)
        self._processes.callback(process.wait)
        self._processes.callback(process.terminate)
        with os.fdopen(reader) as lines:
            line = lines.readline().strip()
        if not line:
            raise RuntimeError(f"{command[0]} does not start")
        return line

    # Windows

    def window(self, title):
        """The window of that title or class, or None."""
        return self._window_below(self._x.screen().root, title)

    def _window_below(self, above, title):
        with contextlib.suppress(Exception):  # a window may vanish while we look at it
            for window in above.query_tree().children:
                if title in (window.get_wm_name(), *(window.get_wm_class() or ())):
                    return window
                found = self._window_below(window, title)
                if found:
                    return found
        return None

    def focus(self, window):
        # A window that is not shown yet gets it from its window manager.
        not_shown = error.CatchError(error.BadMatch)
        window.set_input_focus(X.RevertToParent, X.CurrentTime, onerror=not_shown)
        self._x.sync()

    def unfocus(self):
        """Takes the keyboard from every window, as another program's does."""
        self._x.screen().root.set_input_focus(X.RevertToParent, X.CurrentTime)
        self._x.sync()

    def resize(self, window, width, height):
        window.configure(width=width, height=height)
        self._x.sync()

    def hide(self, window):
        window.unmap()
        self._x.sync()

    def ask_to_close(self, window):
        """What a window manager sends when its close button is pressed."""
        atom = self._x.intern_atom
        event = protocol.event.ClientMessage(
            window=window,
            client_type=atom("WM_PROTOCOLS"),
            data=(32, [atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]),
        )
        window.send_event(event)
        self._x.sync()

    def drop(self, window):
        """Ends its program's connection to the screen, as the end of the screen would."""
        window.kill_client()
        self._x.sync()

    def picture(self, window):
        """The window as it is on the screen now."""
        area = window.get_geometry()
        origin = self._x.screen().root.translate_coords(window, 0, 0)
        left, top = -origin.x, -origin.y
        return ImageGrab.grab(
            (left, top, left + area.width, top + area.height), xdisplay=self.display_name
        ).convert("RGB")

    # Keyboard and pointer

    def key(self, *names):
        """Presses the last of the named keys while the others are held."""
        with self.held(*names[:-1]):
            self._tap(self._x.keysym_to_keycode(XK.string_to_keysym(names[-1])))

    def type(self, text):
        for character in text:
            self._type_character(character)

    @contextlib.contextmanager
    def held(self, *names):
        codes = [self._x.keysym_to_keycode(XK.string_to_keysym(name)) for name in names]
        for code in codes:
            self._fake(X.KeyPress, code)
        yield
        for code in reversed(codes):
            self._fake(X.KeyRelease, code)

    def point(self, x, y):
        self._fake(X.MotionNotify, x=int(x), y=int(y))

    def click(self, x, y):
        self.point(x, y)
        self._fake(X.ButtonPress, 1)
        self._fake(X.ButtonRelease, 1)

    def _type_character(self, character):
        symbol = ord(character)
        code = self._x.keysym_to_keycode(symbol)
        shifted = self._x.keycode_to_keysym(code, 0) != symbol
        with self.held(*(["Shift_L"] if shifted else [])):
            self._tap(code)

    def _tap(self, code):
        self._fake(X.KeyPress, code)
        self._fake(X.KeyRelease, code)

    def _fake(self, event, detail=0, **position):
        xtest.fake_input(self._x, event, detail, **position)
        self._x.sync()
