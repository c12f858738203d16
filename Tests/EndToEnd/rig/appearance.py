#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""How the session wants windows to look, as the desktop's portal tells programs."""

import json
import subprocess
import sys

NO_PREFERENCE, DARK, LIGHT = range(3)

SERVICE = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.portal.Settings"
APPEARANCE = "org.freedesktop.appearance"
GNOME = "org.gnome.desktop.interface"
DESCRIPTION = f"""<node><interface name="{INTERFACE}">
<method name="ReadAll"><arg type="as" direction="in"/>
<arg type="a{{sa{{sv}}}}" direction="out"/></method>
<signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""


class Appearance:
    """The portal, once it is on the session bus, with a first preference of dark or light."""

    def __init__(self, scheme: int):
        self._server = subprocess.Popen([sys.executable, __file__], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True)
        self.change(scheme)
        assert self._server.stdout.readline(), "The portal did not get its name."

    def change(self, scheme: int) -> None:
        self._set(APPEARANCE, "color-scheme", scheme)

    def ask_for_contrast(self, asks: bool) -> None:
        self._set(APPEARANCE, "contrast", int(asks))

    def enable_animations(self, enable: bool) -> None:
        self._set(GNOME, "enable-animations", enable)

    def _set(self, *setting) -> None:
        self._server.stdin.write(json.dumps(setting) + "\n")
        self._server.stdin.flush()


def serve() -> None:
    from gi.repository import Gio, GLib
    connections = []
    settings = {APPEARANCE: {}, GNOME: {}}

    def called(_connection, _sender, _path, _interface, _method, parameters, invocation):
        wanted, = parameters.unpack()
        invocation.return_value(GLib.Variant(
            "(a{sa{sv}})", [{namespace: settings[namespace] for namespace in wanted}]))

    def offer(connection, _name):
        described = Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0]
        connection.register_object(PATH, described, called, None, None)
        connections.append(connection)

    def ordered(_source=None, _condition=None):
        line = sys.stdin.readline()
        if not line:
            sys.exit()
        namespace, name, value = json.loads(line)
        settings[namespace][name] = GLib.Variant("b" if isinstance(value, bool) else "u", value)
        for connection in connections:
            connection.emit_signal(None, PATH, INTERFACE, "SettingChanged", GLib.Variant(
                "(ssv)", [namespace, name, settings[namespace][name]]))
        return True

    ordered()
    Gio.bus_own_name(Gio.BusType.SESSION, SERVICE, Gio.BusNameOwnerFlags.NONE, offer,
                     lambda *_: print("ready", flush=True), lambda *_: sys.exit(1))
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP,
                      ordered)
    GLib.MainLoop().run()


if __name__ == "__main__":
    serve()
