# SPDX-License-Identifier: MIT
"""A program as the system sees it: a process that starts others, ends, or is ended."""

import os
import signal
import subprocess
from pathlib import Path

from rig.waiting import PATIENCE, wait_for


class Program:
    """Started when made. What it prints is added to the file `output`. Its environment is the
    session's with the changes given, where None takes a variable away."""

    def __init__(self, command: list[str], output: Path, **environment: str | None):
        changed = {**os.environ, **environment}
        with output.open("a") as printed:
            self._process = subprocess.Popen(
                command, stdout=printed, stderr=printed,
                env={name: value for name, value in changed.items() if value is not None})

    @property
    def pid(self) -> int:
        return self._process.pid

    def wait_for_end(self, seconds: float = PATIENCE) -> int:
        """Returns the status it ended with; below zero, the signal that ended it."""
        wait_for("The end of the program", lambda: not self.is_running(), seconds)
        return self._process.returncode

    def is_running(self) -> bool:
        return self._process.poll() is None

    def signal(self, number: int) -> None:
        self._process.send_signal(number)

    def kill(self) -> None:
        """Ends it as a crash would, without a chance to tidy up."""
        self.signal(signal.SIGKILL)
        self.wait_for_end()

    def children(self) -> list[list[str]]:
        """The command lines of the programs that it runs now."""
        found = []
        for status in Path("/proc").glob("[0-9]*/stat"):
            try:
                parent = int(status.read_text().rpartition(")")[2].split()[1])
                line = (status.parent / "cmdline").read_bytes()
            except (FileNotFoundError, ProcessLookupError):
                continue
            if parent == self.pid and line:
                found.append(line.decode().rstrip("\0").split("\0"))
        return found
