#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The programs that show folders to a player, in a form that only notes what it was asked for."""

import json
import os
import subprocess
import sys
from pathlib import Path

MANAGER = "org.freedesktop.FileManager1"
PORTAL = "org.freedesktop.portal.Desktop"
# For each name on the bus: its object, and the one method that it offers there.
OFFERS = {
    MANAGER: ("/org/freedesktop/FileManager1", f"""<node><interface name="{MANAGER}">
<method name="ShowItems"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
</interface></node>"""),
    PORTAL: ("/org/freedesktop/portal/desktop", """<node>
<interface name="org.freedesktop.portal.OpenURI"><method name="OpenDirectory">
<arg type="s" direction="in"/><arg type="h" direction="in"/><arg type="a{sv}" direction="in"/>
<arg type="o" direction="out"/></method></interface></node>"""),
}


class Opener:
    """The command that desktops open documents and folders with, first in the player's path."""

    def __init__(self, programs: Path):
        self._notes = programs / "opened.txt"
        command = programs / "xdg-open"
        command.write_text(f'#!/bin/sh\nprintf "%s\\n" "$*" >>"{self._notes}"\n')
        command.chmod(0o755)

    def opened(self) -> list[str]:
        return self._notes.read_text().splitlines() if self._notes.exists() else []


class Shower:
    """What shows a file for other programs, once it is on the session bus: the desktop's file manager,
    or the portal, which is all that a sandbox lets through."""

    def __init__(self, notes: Path, name: str):
        self._notes = notes
        server = subprocess.Popen([sys.executable, __file__, str(notes), name],
                                  stdout=subprocess.PIPE)
        assert server.stdout.readline(), f"{name} is not on the bus."

    def shown(self) -> list:
        """What each call was given: of the file manager [addresses, startup id], of the portal the
        path of the file that was handed to it."""
        if not self._notes.exists():
            return []
        return [json.loads(line) for line in self._notes.read_text().splitlines()]


def serve(notes: Path, name: str) -> None:
    from gi.repository import Gio, GLib

    def called(_connection, _sender, _path, _interface, method, parameters, invocation):
        given = parameters.unpack()
        answer = None
        if method == "OpenDirectory":
            descriptor = invocation.get_message().get_unix_fd_list().get(given[1])
            given = os.readlink(f"/proc/self/fd/{descriptor}")
            answer = GLib.Variant("(o)", ("/request",))
        with notes.open("a") as noted:
            noted.write(json.dumps(given) + "\n")
        invocation.return_value(answer)

    def offer(connection, _name):
        place, description = OFFERS[name]
        described = Gio.DBusNodeInfo.new_for_xml(description).interfaces[0]
        connection.register_object(place, described, called, None, None)

    Gio.bus_own_name(Gio.BusType.SESSION, name, Gio.BusNameOwnerFlags.NONE, offer,
                     lambda *_: print("ready", flush=True), lambda *_: sys.exit(1))
    GLib.MainLoop().run()


if __name__ == "__main__":
    serve(Path(sys.argv[1]), sys.argv[2])
