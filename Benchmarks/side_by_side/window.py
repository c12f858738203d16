# SPDX-License-Identifier: MIT
"""The rows about the launcher with its window: the installed, unchanged program.

It is seen from outside alone: by the display, by the kernel's accounts of it, and by the engine it
starts.
"""

import contextlib
import os
import signal
import time

from . import material
from .bench import Bench, against_fastest
from .desktop import (
    display,
    environment_for,
    press_over_accessibility,
    probe,
    session_bus,
    started,
)
from .runs import Run, fresh_folder, in_turn, median, median_wall, paired_ratio
from .table import Line, mebibytes, seconds


def start(bench: Bench) -> list[Line]:
    """From the start of the process to the window being painted all over, as the display tells.

    The memory is that resident one second later.
    """
    with display() as name:
        home = bench.place("start")

        def painted(program: str) -> Run:
            environment = environment_for(fresh_folder(f"{home}/home"), name)
            report = probe(bench, environment, "first-paint", program)
            return Run(report["wall"], report=report)

        runs = in_turn(
            {
                "ours": lambda: painted(bench.launcher),
                "an empty Qt Widgets window": lambda: painted(bench.tool("empty-window")),
                "a bare one with as many fonts": lambda: painted(bench.tool("labelled-window")),
            },
            bench.rounds * 2,
        )
    labelled = runs.pop("a bare one with as many fonts")
    ours, empty = ([one.report["resident_kib"] for one in taken] for taken in runs.values())
    return [
        against_fastest("start to the first painted window", runs, 1.3),
        Line(
            "the same",
            seconds(median_wall(runs["ours"])),
            "a bare one with as many fonts",
            seconds(median_wall(labelled)),
            paired_ratio([one.wall for one in runs["ours"]], [one.wall for one in labelled]),
            1.1,
        ),
        Line(
            "memory resident then",
            mebibytes(median(ours)),
            "an empty Qt Widgets window",
            mebibytes(median(empty)),
            paired_ratio(ours, empty),
            1.3,
        ),
    ]


def waits(pid: int) -> dict[str, int]:
    """How often each thread of a process has gone to sleep."""
    counts = {}
    for thread in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{thread}/status", encoding="ascii") as status:
            for line in status:
                if line.startswith("voluntary_ctxt_switches:"):
                    counts[thread] = int(line.split()[1])
    return counts


def wake_ups(pids: list[int], span: float) -> list[int]:
    """How often any thread of each process woke up within `span` seconds."""
    before = [waits(pid) for pid in pids]
    time.sleep(span)
    woken = []
    for pid, old in zip(pids, before):
        new = waits(pid)
        # A thread that has ended since has woken up at least once to do so.
        ended = sum(1 for thread in old if thread not in new)
        woken.append(ended + sum(count - old.get(thread, 0) for thread, count in new.items()))
    return woken


def idle(bench: Bench) -> list[Line]:
    """Counted once the threads that only the start needed have ended, 30 seconds unused."""
    span = bench.sized(60, 10)
    with display() as name:
        environment = environment_for(bench.place("idle"), name)
        playing = environment_for(bench.place("idle-playing"), name)
        playing["CAVERNYX_STAMPS"] = f"{playing['HOME']}/stamps"
        material.installed_game(playing["XDG_DATA_HOME"], bench.tool("stamping-engine"))
        with (
            started([bench.launcher], env=environment) as at_rest,
            started([bench.launcher], env=playing) as busy,
            started([bench.tool("empty-window")], env=environment) as empty,
        ):
            probe(bench, playing, "press-return", str(busy.pid))
            wait_for_stamp(playing["CAVERNYX_STAMPS"])
            time.sleep(35)
            ours, ours_playing, theirs = wake_ups([at_rest.pid, busy.pid, empty.pid], span)
            end_engines(playing["CAVERNYX_STAMPS"])
    states = {"at rest": ours, "while the game runs": ours_playing}
    against = ("an empty window", str(theirs))
    return [
        Line(f"wake-ups in {span} s, {state}", str(count), *against, count, 0, unit="")
        for state, count in states.items()
    ]


def wait_for_stamp(path: str) -> tuple[int, int]:
    """When the engine last started, in nanoseconds of the monotonic clock, and its process."""
    deadline = time.monotonic() + 20
    while time.monotonic() < deadline:
        with contextlib.suppress(FileNotFoundError), open(path, encoding="ascii") as stamps:
            text = stamps.read()
            if text.endswith("\n"):
                moment, process = text.splitlines()[-1].split()
                return int(moment), int(process)
        time.sleep(0.02)
    raise RuntimeError("The engine was not started.")


def end_engines(path: str) -> None:
    """Ends an engine that its launcher would leave running."""
    _, process = wait_for_stamp(path)
    with contextlib.suppress(ProcessLookupError):
        os.kill(process, signal.SIGTERM)


def play(bench: Bench) -> list[Line]:
    """From the Return key, pressed on the display's own keyboard, to the engine's first act."""
    taken = []
    with display() as name:
        for number in range(bench.rounds * 2 + 1):
            environment = environment_for(bench.place(f"play{number}"), name)
            stamps = f"{environment['HOME']}/stamps"
            environment["CAVERNYX_STAMPS"] = stamps
            material.installed_game(environment["XDG_DATA_HOME"], bench.tool("stamping-engine"))
            with started([bench.launcher], env=environment) as launcher:
                pressed = probe(bench, environment, "press-return", str(launcher.pid))["pressed"]
                moment, _ = wait_for_stamp(stamps)
                end_engines(stamps)
                taken.append((moment - pressed) / 1e9)
    middle = median(taken[1:])
    return [
        Line("Play to the engine's start", seconds(middle), "—", "—", middle * 1000, 30, " ms")
    ]


def answers(bench: Bench) -> list[Line]:
    """How soon the event loop answers while the game floods its output and the log is open."""
    span = bench.sized(10, 3)
    with display() as name:
        environment = environment_for(bench.place("answers"), name)
        engine = f"{environment['HOME']}/engine"
        material.write(engine, "#!/bin/sh\nwhile :; do yes | head -n 5000000; done\n")
        os.chmod(engine, 0o755)
        material.installed_game(environment["XDG_DATA_HOME"], engine)
        with session_bus(environment), started([bench.launcher], env=environment) as launcher:
            press_over_accessibility(environment, launcher.pid, "Show log")
            press_over_accessibility(environment, launcher.pid, "Play")
            time.sleep(2)
            report = probe(bench, environment, "answer-times", str(launcher.pid), str(span))
            press_over_accessibility(environment, launcher.pid, "Stop")
            time.sleep(1)
    return [
        Line(
            "event loop busy during that, log open (99th percentile)",
            seconds(report["p99"]),
            f"longest of {report['answers']}",
            seconds(report["longest"]),
            report["p99"] * 1000,
            16,
            " ms",
        )
    ]
