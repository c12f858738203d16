#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The programs that show folders to a player, in a form that only notes what it was asked for."""

import json
import subprocess
import sys
from pathlib import Path

INTERFACE = "org.freedesktop.FileManager1"
DESCRIPTION = f"""<node><interface name="{INTERFACE}"><method name="ShowItems">
<arg type="as" direction="in"/><arg type="s" direction="in"/></method></interface></node>"""


class Opener:
    """The command that desktops open documents and folders with, first in the player's path."""

    def __init__(self, programs: Path):
        self._notes = programs / "opened.txt"
        command = programs / "xdg-open"
        command.write_text(f'#!/bin/sh\nprintf "%s\\n" "$*" >>"{self._notes}"\n')
        command.chmod(0o755)

    def opened(self) -> list[str]:
        return self._notes.read_text().splitlines() if self._notes.exists() else []


class FileManager:
    """The desktop's file manager, once it is on the session bus."""

    def __init__(self, notes: Path):
        self._notes = notes
        server = subprocess.Popen([sys.executable, __file__, str(notes)], stdout=subprocess.PIPE)
        assert server.stdout.readline(), "The file manager did not get its name."

    def shown(self) -> list:
        """What each call of ShowItems was given, as [addresses, startup id]."""
        if not self._notes.exists():
            return []
        return [json.loads(line) for line in self._notes.read_text().splitlines()]


def serve(notes: Path) -> None:
    from gi.repository import Gio, GLib

    def called(_connection, _sender, _path, _interface, _method, parameters, invocation):
        with notes.open("a") as noted:
            noted.write(json.dumps(parameters.unpack()) + "\n")
        invocation.return_value(None)

    def offer(connection, _name):
        described = Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0]
        connection.register_object("/org/freedesktop/FileManager1", described, called, None, None)

    Gio.bus_own_name(Gio.BusType.SESSION, INTERFACE, Gio.BusNameOwnerFlags.NONE, offer,
                     lambda *_: print("ready", flush=True), lambda *_: sys.exit(1))
    GLib.MainLoop().run()


if __name__ == "__main__":
    serve(Path(sys.argv[1]))
