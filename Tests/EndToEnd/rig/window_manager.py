#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The one thing of a window manager's that the scenarios cannot do without: the window that opened
last has the keyboard, and when it closes the one before it gets it back."""

import subprocess
import sys
from pathlib import Path


def start(log: Path) -> None:
    """Returns when it serves the display. What goes wrong is added to `log`."""
    with log.open("a") as printed:
        server = subprocess.Popen([sys.executable, __file__], stdout=subprocess.PIPE,
                                  stderr=printed)
    assert server.stdout.readline(), f"The window manager did not start: {log.read_text()}"


def serve() -> None:
    from Xlib import X
    from Xlib.display import Display
    display = Display()
    # A window may be gone again before it could get the keyboard.
    display.set_error_handler(lambda *_: None)
    display.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
    display.sync()
    print("ready", flush=True)
    windows = []
    while True:
        event = display.next_event()
        if event.type == X.MapNotify and not event.override:
            windows.append(event.window)
        elif event.type == X.UnmapNotify and event.window in windows:
            windows.remove(event.window)
        else:
            continue
        if windows:
            windows[-1].set_input_focus(X.RevertToPointerRoot, X.CurrentTime)


if __name__ == "__main__":
    serve()
