# SPDX-License-Identifier: MIT
"""The row about the output of child programs.

Both sides report the work alone: in the launcher, which runs for hours, it is one piece of work
among others. The child is a whole program on both sides.
"""

from .bench import Bench, against_fastest
from .disk import flat_memory
from .runs import as_reported, in_turn, median, run
from .table import Line


def flood(bench: Bench) -> list[Line]:
    count = bench.sized(5_000_000, 500_000)
    runs = in_turn(
        {
            "ours": lambda: flooded(bench, count),
            "the same into `cat >/dev/null`": lambda: run(
                ["sh", "-c", f"yes | head -n {count} | cat >/dev/null"]
            ),
        },
        bench.rounds * 3,
    )
    peak = median(one.peak_kib for one in runs["ours"])
    small_peak = median(flooded(bench, count // 100).peak_kib for _ in range(bench.rounds))
    return [
        against_fastest(f"child that prints {count} lines, into the log", runs, 2),
        flat_memory(f"its memory, {count} lines", peak, f"{count // 100} lines", small_peak),
    ]


def flooded(bench: Bench, count: int):
    return as_reported(bench.measure("flood", "/bin/sh", "-c", f"yes | head -n {count}"))
