# SPDX-License-Identifier: MIT
"""The rows about the output of child programs.

Both sides report the work alone: in the launcher, which runs for hours, it is one piece of work
among others. The child is a whole program on both sides.
"""

from .bench import Bench, against_fastest
from .disk import flat_memory
from .runs import as_reported, in_turn, median, median_wall, run
from .table import Line, seconds


def lines(bench: Bench) -> list[Line]:
    total = bench.sized(1024, 128)
    ordinary = line_runs(bench, total, 80)
    long = line_runs(bench, 64, 64 << 20)
    shorter = line_runs(bench, 16, 16 << 20)
    against = "`memchr` and one decoded string a line"
    return [
        against_fastest(f"cut {total} MiB into lines of 80 bytes", named(ordinary, against), 1.3),
        against_fastest("cut one line of 64 MiB", named(long, against), 1.3),
        Line(
            "its growth from 16 to 64 MiB",
            seconds(median_wall(long["ours"])),
            "one line of 16 MiB",
            seconds(median_wall(shorter["ours"])),
            median_wall(long["ours"]) / median_wall(shorter["ours"]),
            6,
        ),
    ]


def line_runs(bench: Bench, total: int, length: int):
    words = (str(total), str(length))
    return in_turn(
        {
            "ours": lambda: as_reported(bench.measure("lines", *words)),
            "bare": lambda: as_reported(bench.measure("bare-lines", *words)),
        },
        bench.rounds,
    )


def named(runs, name: str):
    return {"ours": runs["ours"], name: runs["bare"]}


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
        against_fastest(f"child that prints {count} lines, into the log", runs, 1.5),
        flat_memory(f"its memory, {count} lines", peak, f"{count // 100} lines", small_peak),
    ]


def flooded(bench: Bench, count: int):
    return as_reported(bench.measure("flood", "/bin/sh", "-c", f"yes | head -n {count}"))
