"""Answers on the session bus, in the place of a desktop's settings, what the user asked for: at first
that nothing moves, so that every picture is of a screen at rest. Runs until it is killed."""

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
CONTROL = "org.drossbin.Portal"
MOTION = "org.gnome.desktop.interface", "enable-animations"
INTERFACES = f"""
<node>
  <interface name="{SETTINGS}">
    <method name="ReadAll"><arg type="as" direction="in"/><arg type="a{{sa{{sv}}}}" direction="out"/></method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
  </interface>
  <interface name="{CONTROL}">
    <method name="Change"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="in"/></method>
    <method name="Hold"/>
    <method name="LetGo"/>
    <method name="Held"><arg type="u" direction="out"/></method>
  </interface>
</node>
"""


class Portal:
    """The portal of a running journey, as its user changes what it says."""

    def __init__(self, address):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._bus = Gio.DBusConnection.new_for_address_sync(address, flags)

    def ask_for(self, appearance, value):
        self._change("org.freedesktop.appearance", appearance, GLib.Variant("u", value))

    def ask_for_motion(self, wanted):
        self._change(*MOTION, GLib.Variant("b", wanted))

    def hold(self):
        """From now on it answers nobody."""
        self._call("Hold")

    def held(self):
        """How many questions it has not answered."""
        return self._call("Held")[0]

    def let_go(self):
        """It answers again, at first those who asked meanwhile."""
        self._call("LetGo")

    def _change(self, *setting):
        self._call("Change", GLib.Variant("(ssv)", setting))

    def _call(self, method, arguments=None):
        return self._bus.call_sync(NAME, PATH, CONTROL, method, arguments, None, Gio.DBusCallFlags.NONE, -1).unpack()


class Server:
    def __init__(self, bus):
        self._bus = bus
        self._values = {MOTION[0]: {MOTION[1]: GLib.Variant("b", False)}}
        self._held = None
        self._methods = {
            "ReadAll": self._read_all,
            "Change": self._change,
            "Hold": self._hold,
            "Held": self._count,
            "LetGo": self._let_go,
        }
        for interface in Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces:
            bus.register_object(PATH, interface, self._take)

    def _take(self, _bus, _sender, _path, _interface, method, arguments, call):
        self._methods[method](call, arguments)

    def _read_all(self, call, arguments):
        if self._held is not None:
            self._held.append((call, arguments))
            return
        values = {name: self._values[name] for name in arguments.unpack()[0] if name in self._values}
        call.return_value(GLib.Variant("(a{sa{sv}})", (values,)))

    def _change(self, call, arguments):
        space, key = arguments.unpack()[:2]
        self._values.setdefault(space, {})[key] = arguments.get_child_value(2).get_variant()
        self._bus.emit_signal(None, PATH, SETTINGS, "SettingChanged", arguments)
        call.return_value(None)

    def _hold(self, call, _arguments):
        self._held = []
        call.return_value(None)

    def _let_go(self, call, _arguments):
        held, self._held = self._held, None
        for question in held:
            self._read_all(*question)
        call.return_value(None)

    def _count(self, call, _arguments):
        call.return_value(GLib.Variant("(u)", (len(self._held),)))


def main():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    Server(bus)
    Gio.bus_own_name_on_connection(
        bus, NAME, Gio.BusNameOwnerFlags.NONE, lambda *_: print("ready", flush=True), None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
