# SPDX-License-Identifier: MIT
"""Runs of the launcher under the tracer, and the web host that it talks to."""

import functools
import http.server
import subprocess
import threading
from dataclasses import dataclass
from pathlib import Path

from rig import material
from rig.home import environment

DEADLINE = 60  # A run takes a second.
KILLED = 128 + 9
NOWHERE = "http://127.0.0.1:1"  # Nothing listens there.


@dataclass
class Run:
    """`status` is None when the run took longer than the deadline."""
    status: int | None
    output: list[str]
    errors: str
    changes: list[str]

    @property
    def end(self) -> str:
        """The status at the end and its sentence, such as "Needs something: No space is left."."""
        return self.output[-1] if self.output else ""

    @property
    def has_played(self) -> bool:
        return any(line.startswith("Playing the ") for line in self.output)


def run(programs: Path, home: Path, faults: list[str], host: str, action: str) -> Run:
    """Runs the subject in `home`. `programs` is the folder of the tracer and the subject."""
    listed = home.with_suffix(".changes")
    command = [str(programs / "FaultTracer"), str(home), str(listed), *faults, "--",
               str(programs / "FaultSubject"), host, action]
    try:
        ended = subprocess.run(command, env=environment(home), stdin=subprocess.DEVNULL,
                               capture_output=True, timeout=DEADLINE)
        status = ended.returncode
    except subprocess.TimeoutExpired as expired:
        ended, status = expired, None
    output, errors = ((text or b"").decode() for text in (ended.stdout, ended.stderr))
    changes = listed.read_text().splitlines() if listed.exists() else []
    return Run(status, output.splitlines(), errors, changes)


class WebHost(http.server.ThreadingHTTPServer):
    """Serves the new version, from a folder that it makes, until the program ends."""

    def __init__(self, folder: Path):
        material.publish(folder)
        super().__init__(("127.0.0.1", 0), functools.partial(QuietHandler, directory=folder))
        self.address = f"http://127.0.0.1:{self.server_port}"
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def handle_error(self, *_arguments) -> None:
        pass  # A launcher that was killed has hung up.


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_arguments) -> None:
        pass
