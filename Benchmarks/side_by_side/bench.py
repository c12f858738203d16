# SPDX-License-Identifier: MIT
"""What every row of the comparison is given."""

import os
from dataclasses import dataclass
from typing import Callable, Sequence

from .runs import Run, paired_ratio, median_wall, run
from .table import Line, seconds


@dataclass(frozen=True)
class Bench:
    """The built programs, where their material lies, and how thoroughly to measure."""

    build: str
    # In memory: most rows compare programs, not what they wait for.
    folder: str
    disk: str
    rounds: int
    is_quick: bool

    def tool(self, name: str) -> str:
        return f"{self.build}/Benchmarks/Tools/{name}"

    @property
    def launcher(self) -> str:
        """The installed program, as a player has it."""
        return f"{self.build}/prefix/bin/cavernyx-platformer"

    def place(self, name: str) -> str:
        """A new empty folder for one row's material."""
        path = f"{self.folder}/{name}"
        os.makedirs(path)
        return path

    def sized(self, full: int, quick: int) -> int:
        return quick if self.is_quick else full

    def measure(self, *words: str, inside: Sequence[str] = ()) -> Run:
        """One run of the launcher's own code by the measuring program."""
        return run([*inside, self.tool("measure"), *words])


def against_fastest(work: str, runs: dict[str, list[Run]], limit: float) -> Line:
    """Our wall time, the contender named "ours", against the fastest of the others'."""
    ours = runs["ours"]
    name, others = min(
        ((name, taken) for name, taken in runs.items() if name != "ours"),
        key=lambda entry: median_wall(entry[1]),
    )
    ratio = paired_ratio([one.wall for one in ours], [one.wall for one in others])
    return Line(
        work, seconds(median_wall(ours)), name, seconds(median_wall(others)), ratio, limit
    )


Row = Callable[[Bench], list[Line]]
