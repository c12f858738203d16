# SPDX-License-Identifier: MIT
"""The rows about work on files: digest, unpacking, walks of the game's folder.

Digest and unpacking are whole programs against whole programs, ours too: the start of our measuring
program, which loads Qt, is counted. The size is the call alone, as in the running launcher, against
`du`, whose start takes a millisecond. The count of missing assets is held against a bare loop, and
there both sides report the processor time of the work alone.
"""

import shutil

from . import material
from .bench import Bench, against_fastest
from .runs import Contender, Run, as_reported, fresh_folder, in_turn, median, paired_ratio, run
from .table import Line, mebibytes, seconds

MEBIBYTE = 1 << 20


def sha512(bench: Bench) -> list[Line]:
    place = bench.place("sha512")
    size = bench.sized(1024, 128)
    large = material.random_file(f"{place}/large", size * MEBIBYTE)
    small = material.random_file(f"{place}/small", MEBIBYTE)
    runs = in_turn(
        {
            "ours": lambda: bench.measure("sha512", large),
            "`openssl dgst -sha512`": lambda: run(["openssl", "dgst", "-sha512", large]),
        },
        bench.rounds,
    )
    peak = median(one.report["peak_kib"] for one in runs["ours"])
    small_peak = median(
        bench.measure("sha512", small).report["peak_kib"] for _ in range(bench.rounds)
    )
    return [
        against_fastest(f"SHA-512 of a file of {size} MiB", runs, 1.05),
        flat_memory(f"its memory, {size} MiB", peak, "a file of 1 MiB", small_peak),
    ]


def flat_memory(work: str, peak_kib: float, against: str, other_kib: float) -> Line:
    """Our peak on a large piece of work against our own on a small one."""
    growth = (peak_kib - other_kib) / 1024
    return Line(work, mebibytes(peak_kib), against, mebibytes(other_kib), growth, 8, " MiB")


def unpack(bench: Bench) -> list[Line]:
    place = bench.place("unpack")
    count = bench.sized(20_000, 2_000)
    return [
        unpack_one(bench, "unpack the engine", material.engine_archive(place)),
        unpack_one(
            bench, f"unpack {count} small files", material.archive_of_small_files(place, count)
        ),
    ]


def unpack_one(bench: Bench, work: str, archive: str) -> Line:
    target = f"{bench.folder}/unpack/target"

    def into_fresh_folder(*command: str) -> Contender:
        def contend() -> Run:
            fresh_folder(target)
            return run(command)

        return contend

    contenders = {
        "ours": into_fresh_folder(bench.tool("measure"), "unzip", archive, target),
        "`unzip`": into_fresh_folder("unzip", "-q", archive, "-d", target),
        "`bsdtar`": into_fresh_folder("bsdtar", "-xf", archive, "-C", target),
        "`7z`": into_fresh_folder("7z", "x", "-y", "-bso0", "-bsp0", f"-o{target}", archive),
    }
    return against_fastest(work, in_turn(contenders, bench.rounds), 1.05)


def missing(bench: Bench) -> list[Line]:
    place = bench.place("missing")
    assets, others = bench.sized(20_000, 2_000), bench.sized(30_000, 3_000)
    folder = material.project(f"{place}/game", assets, others)
    runs = in_turn(
        {
            "ours": lambda: as_reported(bench.measure("missing", folder)),
            "bare loop": lambda: as_reported(run([bench.tool("bare-missing"), folder])),
        },
        bench.rounds * 3,
    )
    ours = [one.processor for one in runs["ours"]]
    bare = [one.processor for one in runs["bare loop"]]
    line = Line(
        f"count missing of {assets} assets, {others} other files (processor)",
        seconds(median(ours)),
        "bare C loop",
        seconds(median(bare)),
        paired_ratio(ours, bare),
        1.15,
    )
    shutil.rmtree(place)
    return [line, *missing_is_linear(bench)]


def missing_is_linear(bench: Bench) -> list[Line]:
    """The processor time an asset takes, in ever larger games, against that in the smallest."""
    costs = {}
    for assets in (1_000, 10_000, 20_000) if bench.is_quick else (1_000, 20_000, 200_000):
        folder = material.project(f"{bench.place(f'linear{assets}')}/game", assets, 0)
        runs = in_turn(
            {"ours": lambda: as_reported(bench.measure("missing", folder))}, bench.rounds
        )
        costs[assets] = median(one.processor for one in runs["ours"]) / assets
        shutil.rmtree(folder)
    least, most = min(costs), max(costs)
    return [
        Line(
            f"the same, an asset among {most}",
            f"{costs[most] * 1e6:.2f} µs",
            f"an asset among {least}",
            f"{costs[least] * 1e6:.2f} µs",
            costs[most] / costs[least],
            1.25,
        )
    ]


def size(bench: Bench) -> list[Line]:
    folder = material.project(
        f"{bench.place('size')}/game", bench.sized(20_000, 2_000), bench.sized(30_000, 3_000)
    )
    runs = in_turn(
        {
            "ours": lambda: as_reported(bench.measure("size", folder)),
            "`du -s`": lambda: run(["du", "-s", folder]),
        },
        bench.rounds * 3,
    )
    return [against_fastest("size of that game's folder", runs, 0.8)]
