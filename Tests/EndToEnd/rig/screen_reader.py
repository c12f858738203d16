#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a screen reader would read out without being asked: notices as they show, and how far a
progress bar is. It listens in a process of its own, so that no question of a scenario's keeps it."""

import subprocess
import sys
from pathlib import Path

from rig.controls import load_atspi
from rig.waiting import wait_for

NOTICE = "Notice: "
PROGRESS = "Progress: "


class ScreenReader:
    """Hears what any program says from now on. Keeps what it heard in `heard`."""

    def __init__(self, heard: Path):
        self._heard = heard
        with heard.open("w") as printed:
            subprocess.Popen([sys.executable, "-m", "rig.screen_reader"], stdout=printed,
                             cwd=Path(__file__).parent.parent)
        wait_for("The screen reader", lambda: self._lines("ready"))

    def notices(self) -> list[str]:
        return self._lines(NOTICE)

    def progress(self) -> list[float]:
        """Between 0 and 1, in the order heard."""
        return [float(value) for value in self._lines(PROGRESS)]

    def _lines(self, prefix: str) -> list[str]:
        return [line.removeprefix(prefix) for line in self._heard.read_text().splitlines()
                if line.startswith(prefix)]


def listen() -> None:
    Atspi = load_atspi()

    def shown(event) -> None:
        # What it was called when it showed before is not what it says now.
        event.source.clear_cache()
        if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
            print(f"{NOTICE}{event.source.get_name()}", flush=True)

    def moved(event) -> None:
        if event.source.get_role() != Atspi.Role.PROGRESS_BAR:
            return
        value, least, most = (ask(event.source) for ask in (
            Atspi.Value.get_current_value, Atspi.Value.get_minimum_value,
            Atspi.Value.get_maximum_value))
        if most > least:
            print(f"{PROGRESS}{(value - least) / (most - least)}", flush=True)

    showing = Atspi.EventListener.new(shown)
    showing.register("object:state-changed:showing")
    value = Atspi.EventListener.new(moved)
    value.register("object:property-change:accessible-value")
    print("ready", flush=True)
    Atspi.event_main()


if __name__ == "__main__":
    listen()
