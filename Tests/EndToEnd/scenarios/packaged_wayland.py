# SPDX-License-Identifier: MIT
"""On a desktop that has only Wayland, the window comes up and plays: what Scripts/test-packages asks of
a package. The engine is a script, which needs no display."""

import os
import subprocess
from pathlib import Path

from rig.waiting import wait_for

SOCKET = "wayland-trial"


def run(world):
    start_compositor(world)
    world.install()
    launcher = world.launcher = world.start_launcher(DISPLAY=None, WAYLAND_DISPLAY=SOCKET)
    launcher.wait_for_window()
    assert "libQt6WaylandClient" in Path(f"/proc/{launcher.pid}/maps").read_text()
    launcher.press("Play")
    launcher.wait_for_label("Playing")
    launcher.press("Stop")
    launcher.wait_for_label("Ready")


def start_compositor(world):
    log = world.output / "weston.txt"
    with log.open("w") as printed:
        compositor = subprocess.Popen(
            ["weston", "--backend=headless-backend.so", f"--socket={SOCKET}"],
            stdout=printed, stderr=printed)

    def is_ready() -> bool:
        assert compositor.poll() is None, f"The compositor did not start: {log.read_text()}"
        return (Path(os.environ["XDG_RUNTIME_DIR"]) / SOCKET).exists()

    wait_for("The compositor", is_ready)
