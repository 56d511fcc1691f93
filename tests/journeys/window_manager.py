"""A window manager on a journey's screen, asked for things in the way of taskbars and pagers."""

from Xlib import X, display, protocol

from driver import wait_for

FROM_PAGER = 2
ADD = 1
HAS_X_Y_WIDTH_HEIGHT = 0b1111 << 8


class WindowManager:
    def __init__(self, desktop):
        desktop.serve(["sh", "-c", "echo starts && exec openbox --sm-disable >/dev/null"])
        self._x = display.Display(desktop.display_name)
        root = self._x.screen().root
        wait_for("the window manager", lambda: self._property(root, "_NET_SUPPORTING_WM_CHECK"))

    def close(self):
        self._x.close()

    def maximise(self, window):
        horizontally, vertically = map(
            self._x.intern_atom, ("_NET_WM_STATE_MAXIMIZED_HORZ", "_NET_WM_STATE_MAXIMIZED_VERT"))
        self._ask(window, "_NET_WM_STATE", ADD, horizontally, vertically, FROM_PAGER)

    def place(self, window, x, y, width, height):
        self._ask(window, "_NET_MOVERESIZE_WINDOW", HAS_X_Y_WIDTH_HEIGHT, x, y, width, height)

    def ask_to_close(self, window):
        self._ask(window, "_NET_CLOSE_WINDOW", X.CurrentTime, FROM_PAGER)

    def frame(self, window):
        """How much the frame adds: left, right, top, bottom. None before there is one."""
        return self._property(window, "_NET_FRAME_EXTENTS")

    def _property(self, window, name):
        found = window.get_full_property(self._x.intern_atom(name), X.AnyPropertyType)
        return found and tuple(found.value)

    def _ask(self, window, message, *values):
        data = (*values, *[0] * (5 - len(values)))
        event = protocol.event.ClientMessage(
            window=window, client_type=self._x.intern_atom(message), data=(32, data))
        self._x.screen().root.send_event(
            event, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self._x.sync()
