"""What the program announces on the accessibility bus of its own accord."""

from control import Atspi, GLib
from driver import wait_for


class Announcements:
    """Keeps what is announced from now on, as (event, role, name)."""

    def __init__(self, *events):
        self._heard = []
        self._listener = Atspi.EventListener.new(self._hear)
        self._events = events
        for event in events:
            self._listener.register(event)

    def close(self):
        for event in self._events:
            self._listener.deregister(event)

    def wait_for(self, event, role, name):
        wanted = (event, role, name)
        wait_for(lambda: f"{wanted} among {self._heard}", lambda: wanted in self._so_far())

    def _so_far(self):
        context = GLib.MainContext.default()
        while context.pending():
            context.iteration(False)
        return self._heard

    def _hear(self, event):
        source = event.source
        if event.type.startswith("object:state-changed") and not event.detail1:
            return  # it is told when a state is left too
        self._heard.append((event.type, source.get_role_name(), source.get_name()))
