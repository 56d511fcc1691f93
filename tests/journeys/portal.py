"""Answers on the session bus, in the place of a desktop's settings, that the user wants no motion:
so that every picture is of a screen at rest. Runs until it is killed."""

from gi.repository import Gio, GLib

INTERFACE = """
<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
</interface></node>
"""
SETTINGS = {("org.gnome.desktop.interface", "enable-animations"): GLib.Variant("b", False)}


def answer(_bus, _sender, _path, _interface, _method, question, invocation):
    setting = SETTINGS.get(question.unpack())
    if setting is None:
        invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")
    else:
        invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", setting),)))


def main():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
    bus.register_object("/org/freedesktop/portal/desktop", interface, answer)
    Gio.bus_own_name_on_connection(
        bus, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE,
        lambda *_: print("ready", flush=True), None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
