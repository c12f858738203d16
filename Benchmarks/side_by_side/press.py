# SPDX-License-Identifier: MIT
"""press.py PID NAME: presses a program's control over the accessibility bus.

A program of its own, because the accessibility library reads the session bus once, at its start.
"""

import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def find(node, name: str):
    """The first pressable control of that name at or below `node`."""
    if node is None:
        return None
    if node.get_name() == name and "Action" in node.get_interfaces():
        return node
    for index in range(node.get_child_count()):
        if found := find(node.get_child_at_index(index), name):
            return found
    return None


def press(pid: int, name: str) -> bool:
    """Whether the program and the control are there; then the control has been pressed."""
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(index)
        if application is None or application.get_process_id() != pid:
            continue
        if control := find(application, name):
            return Atspi.Action.do_action(control, 0)
    return False


def main(pid: int, name: str) -> None:
    deadline = time.monotonic() + 20
    while time.monotonic() < deadline:
        try:
            if press(pid, name):
                return
        except GLib.Error:
            pass  # A program that has just come or gone does not answer.
        time.sleep(0.1)
    raise SystemExit(f"There is no control “{name}” that can be pressed.")


main(int(sys.argv[1]), sys.argv[2])
