#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A large window of another program, for X11 and Wayland. It may start programs, as
a file manager does."""

import os
import select
import subprocess
import sys
from pathlib import Path

if __name__ == "__main__":
    sys.path.insert(0, str(Path(__file__).parents[1]))

from rig.keyboard import press_keys

TITLE = "Something else"
# In seconds.
TIMEOUT = 20


class OtherWindow:
    """Waits until it is on the display, under Wayland until it has the keyboard. It closes at the end
    of a `with` block."""

    def __enter__(self) -> "OtherWindow":
        self._program = subprocess.Popen([sys.executable, __file__], stdout=subprocess.PIPE,
                                         text=True)
        assert self._read_line(), "The other window did not open."
        return self

    def activation_token(self) -> str:
        """Returns the token with which another program may take the focus under Wayland; empty if the
        compositor issues none. It issues one only for a key press."""
        if "WAYLAND_DISPLAY" not in os.environ:
            return ""
        press_keys("space")
        return self._read_line()

    def _read_line(self) -> str:
        readable, _, _ = select.select([self._program.stdout], [], [], TIMEOUT)
        assert readable, f"The other window did not answer within {TIMEOUT} s."
        return self._program.stdout.readline().strip()

    def __exit__(self, *_error) -> None:
        self._program.kill()
        self._program.wait()


def show() -> None:
    os.environ["NO_AT_BRIDGE"] = "1"
    import gi
    gi.require_version("Gdk", "3.0")
    gi.require_version("Gtk", "3.0")
    from gi.repository import Gdk, Gio, Gtk
    started = Gio.AppInfo.create_from_commandline("true", None, Gio.AppInfoCreateFlags.NONE)

    def token() -> str | None:
        return Gdk.Display.get_default().get_app_launch_context().get_startup_notify_id(started, [])

    def ready() -> None:
        window.disconnect(handler)
        print("ready", flush=True)

    window = Gtk.Window(title=TITLE)
    window.add(Gtk.Label(label=TITLE))
    window.set_default_size(1500, 900)
    in_front = "focus-in-event" if "WAYLAND_DISPLAY" in os.environ else "map-event"
    handler = window.connect(in_front, lambda *_: ready())
    window.connect("key-press-event", lambda *_: print(token() or "", flush=True))
    window.show_all()
    Gtk.main()


if __name__ == "__main__":
    show()
