#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The session's preference for dark or light windows, as the desktop's portal tells programs."""

import subprocess
import sys

NO_PREFERENCE, DARK, LIGHT = range(3)

SERVICE = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.portal.Settings"
SETTING = ("org.freedesktop.appearance", "color-scheme")
DESCRIPTION = f"""<node><interface name="{INTERFACE}">
<method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="v" direction="out"/></method>
<signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""


class Appearance:
    """The portal, once it is on the session bus, with a first preference."""

    def __init__(self, preference: int):
        self._server = subprocess.Popen([sys.executable, __file__, str(preference)],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        assert self._server.stdout.readline(), "The portal did not get its name."

    def change(self, preference: int) -> None:
        self._server.stdin.write(f"{preference}\n")
        self._server.stdin.flush()


def serve(preference: int) -> None:
    from gi.repository import Gio, GLib
    connections = []

    def value():
        return GLib.Variant("u", preference)

    def called(_connection, _sender, _path, _interface, _method, parameters, invocation):
        assert parameters.unpack() == SETTING, parameters
        # This method wraps the value once more than the signal does.
        invocation.return_value(GLib.Variant("(v)", [GLib.Variant("v", value())]))

    def offer(connection, _name):
        described = Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0]
        connection.register_object(PATH, described, called, None, None)
        connections.append(connection)

    def ordered(_source, _condition):
        nonlocal preference
        line = sys.stdin.readline()
        if not line:
            sys.exit()
        preference = int(line)
        for connection in connections:
            connection.emit_signal(None, PATH, INTERFACE, "SettingChanged",
                                   GLib.Variant("(ssv)", [*SETTING, value()]))
        return True

    Gio.bus_own_name(Gio.BusType.SESSION, SERVICE, Gio.BusNameOwnerFlags.NONE, offer,
                     lambda *_: print("ready", flush=True), lambda *_: sys.exit(1))
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP,
                      ordered)
    GLib.MainLoop().run()


if __name__ == "__main__":
    serve(int(sys.argv[1]))
