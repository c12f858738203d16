#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a desktop has for a program that works while the player is elsewhere: notifications, a task
bar, and a login manager that keeps the computer awake. They only note what they are asked for."""

import json
import os
import subprocess
import sys
from pathlib import Path

NOTIFICATIONS = "org.freedesktop.Notifications"
NOTIFICATIONS_PATH = "/org/freedesktop/Notifications"
LOGIN = "org.freedesktop.login1"
LOGIN_PATH = "/org/freedesktop/login1"
TASK_BAR = "com.canonical.Unity.LauncherEntry"
SHOWN = 7
DESCRIPTION = f"""<node>
<interface name="{NOTIFICATIONS}">
<method name="GetCapabilities"><arg type="as" direction="out"/></method>
<method name="Notify"><arg type="s" direction="in"/><arg type="u" direction="in"/>
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="as" direction="in"/><arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/>
<arg type="u" direction="out"/></method>
<method name="CloseNotification"><arg type="u" direction="in"/></method>
</interface>
<interface name="{LOGIN}.Manager"><method name="Inhibit">
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="h" direction="out"/></method></interface>
</node>"""


class SessionServices:
    """On the session's bus, which is also the system's, once made."""

    def __init__(self, notes: Path):
        self._notes = notes
        self._server = subprocess.Popen([sys.executable, __file__, str(notes)],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        assert self._server.stdout.readline(), "The services did not get their names."

    def noted(self, what: str) -> list:
        """The arguments of each call of a method, or of each signal; "Release" is the end of what
        "Inhibit" has granted."""
        if not self._notes.exists():
            return []
        lines = [json.loads(line) for line in self._notes.read_text().splitlines()]
        return [arguments for name, arguments in lines if name == what]

    def click(self, token: str = "token") -> None:
        """Clicks on the notification, for which the desktop issues an activation token."""
        self._server.stdin.write(f"{token}\n")
        self._server.stdin.flush()


def serve(notes: Path) -> None:
    from gi.repository import Gio, GLib
    interfaces = Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces
    connection = Gio.bus_get_sync(Gio.BusType.SESSION)
    granted = []

    def note(what, arguments):
        with notes.open("a") as noted:
            noted.write(json.dumps([what, arguments]) + "\n")

    def ended(reader, _condition):
        note("Release", [])
        os.close(reader)
        return False

    def called(_connection, _sender, _path, _interface, method, parameters, invocation):
        note(method, parameters.unpack())
        if method == "Inhibit":
            reader, writer = os.pipe()
            GLib.io_add_watch(reader, GLib.PRIORITY_DEFAULT, GLib.IOCondition.HUP, ended)
            descriptors = Gio.UnixFDList.new_from_array([writer])  # It closes its own copy.
            invocation.return_value_with_unix_fd_list(GLib.Variant("(h)", [0]), descriptors)
        elif method == "GetCapabilities":
            invocation.return_value(GLib.Variant("(as)", [["actions"]]))
        elif method == "Notify":
            invocation.return_value(GLib.Variant("(u)", [SHOWN]))
        else:
            invocation.return_value(None)

    def ordered(_source, _condition):
        token = sys.stdin.readline()
        if not token:
            sys.exit()
        for signal, value in ("ActivationToken", token.strip()), ("ActionInvoked", "default"):
            connection.emit_signal(None, NOTIFICATIONS_PATH, NOTIFICATIONS, signal,
                                   GLib.Variant("(us)", [SHOWN, value]))
        return True

    def obtained(_connection, name):
        granted.append(name)
        if len(granted) == 2:
            print("ready", flush=True)

    for path, interface in zip((NOTIFICATIONS_PATH, LOGIN_PATH), interfaces):
        connection.register_object(path, interface, called, None, None)
    connection.signal_subscribe(
        None, TASK_BAR, "Update", None, None, Gio.DBusSignalFlags.NONE,
        lambda *arguments: note("Update", arguments[5].unpack()))
    for name in NOTIFICATIONS, LOGIN:
        Gio.bus_own_name_on_connection(connection, name, Gio.BusNameOwnerFlags.NONE, obtained,
                                       lambda *_: sys.exit(1))
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP,
                      ordered)
    GLib.MainLoop().run()


if __name__ == "__main__":
    serve(Path(sys.argv[1]))
