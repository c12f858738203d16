# SPDX-License-Identifier: MIT
"""Running contenders in turn, and the figures of their runs."""

import json
import os
import shutil
import statistics
import subprocess
import time
from dataclasses import dataclass, field
from typing import Callable, Mapping, Sequence


@dataclass(frozen=True)
class Run:
    """What one run took: seconds by the wall clock and of the processor, and KiB at the peak."""

    wall: float
    processor: float = 0.0
    peak_kib: int = 0
    # What the program said of itself, where it is one of our measuring programs.
    report: Mapping[str, float] = field(default_factory=dict)


def run(command: Sequence[str], **how) -> Run:
    """Runs a program to its end, which must be a success, and times all of it from its start."""
    start = time.monotonic()
    with subprocess.Popen(
        command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, **how
    ) as child:
        output = child.stdout.read()
        _, status, usage = os.wait4(child.pid, 0)
        wall = time.monotonic() - start
        child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        raise RuntimeError(f"“{' '.join(command)}” ended with {child.returncode}.")
    report = json.loads(output) if output.startswith(b"{") else {}
    return Run(wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss, report)


def as_reported(measured: Run) -> Run:
    """The figures that one of our measuring programs prints for the work alone, without its start."""
    report = measured.report
    return Run(
        report["wall"], report.get("processor", 0.0), int(report.get("peak_kib", 0)), report
    )


Contender = Callable[[], Run]


def in_turn(contenders: Mapping[str, Contender], rounds: int) -> dict[str, list[Run]]:
    """Runs the contenders A B A B …; a first round, which warms the caches, does not count.

    Each round starts with another contender, so that none always runs in another one's wake.
    """
    names = list(contenders)
    runs: dict[str, list[Run]] = {name: [] for name in names}
    for count in range(rounds + 1):
        for place in range(len(names)):
            name = names[(count + place) % len(names)]
            taken = contenders[name]()
            if count > 0:
                runs[name].append(taken)
    return runs


def median(values) -> float:
    return statistics.median(values)


def median_wall(runs: Sequence[Run]) -> float:
    return median(one.wall for one in runs)


def paired_ratio(ours: Sequence[float], others: Sequence[float]) -> float:
    """The median of the ratios within the rounds: what disturbs a whole round cancels out."""
    return median(our / other for our, other in zip(ours, others))


def fresh_folder(path: str) -> str:
    """An empty folder at `path`, where there may have been another."""
    shutil.rmtree(path, ignore_errors=True)
    os.makedirs(path)
    return path
