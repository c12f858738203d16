# SPDX-License-Identifier: MIT
"""The row about the whole first run: from Play to the game's own window.

Both contenders have the world of the end-to-end scenarios, the real engine among it, and nothing
installed. As a program, `first_run CONTENDER LAUNCHER FOLDER`, this is one run of one contender.
"""

import json
import os
import subprocess
import sys
import time
from pathlib import Path

from rig import engine, private_world, sample_game
from rig.expect import assets, imported_file
from rig.waiting import wait_for
from rig.world import World

from .bench import Bench
from .runs import Run, in_turn, median_wall, run
from .table import Line, seconds

# What the launcher waits for and the script does not: it counts every 2 s, and ends the import
# after 4 s in which nothing was missing. The rest may take half a second more.
REQUIRED_PAUSES = 2 + 4
GAME_WINDOW = f"{sample_game.NAME} (DEBUG)"
SITE = "https://github.com"
GAME = f"{SITE}/brindlework-demos/tetherwalk/archive/refs/heads/master.zip"
RELEASE = f"{SITE}/godotengine/godot/releases/download/{engine.VERSION}"


def first_run(bench: Bench) -> list[Line]:
    def contender(name: str) -> Run:
        # The system's own interpreter is the one that the accessibility library's bindings are for.
        taken = run(
            ["/usr/bin/python3", "-m", "side_by_side.first_run", name, bench.launcher, bench.folder],
            cwd=Path(__file__).parents[1], stderr=subprocess.DEVNULL)
        return Run(taken.report["the game's window"], report=taken.report)

    names = ["ours", "by hand"]
    rounds = bench.sized(3, 1)
    runs = in_turn({name: lambda name=name: contender(name) for name in names}, rounds)
    ours, by_hand = (median_wall(runs[name]) for name in names)
    for name in names:
        stages = ", ".join(f"{stage} {moment:.1f}" for stage, moment in
                           runs[name][-1].report.items())
        print(f"first run, {name}, seconds from the start: {stages}", file=sys.stderr)
    return [Line("first run, Play to the game's window", seconds(ours), "a script, by hand",
                 seconds(by_hand), ours - by_hand, REQUIRED_PAUSES + 0.5, " s")]


class Stages:
    """When each stage was reached, in seconds from the start."""

    def __init__(self):
        self._start = time.monotonic()
        self.moments = {}

    def reach(self, name: str) -> None:
        self.moments[name] = round(time.monotonic() - self._start, 3)


def is_imported(project: Path) -> bool:
    files = (imported_file(project, asset) for asset in assets(project))
    return all(file and file.exists() for file in files)


def by_hand(world: World) -> Stages:
    folder = world.home.root
    folder.mkdir(parents=True)
    archive = engine.archive_name()

    def sh(command: str) -> None:
        subprocess.run(["sh", "-ec", command], cwd=folder, check=True)

    stages = Stages()
    sh(f"curl -sSfL -o game.zip {GAME} && unzip -q game.zip -d Game")
    stages.reach("game")
    sh(f"curl -sSfLO {RELEASE}/SHA512-SUMS.txt && curl -sSfLO {RELEASE}/{archive} && "
       f"grep '  {archive}$' SHA512-SUMS.txt | sha512sum --check --quiet && mkdir Engine && "
       f"unzip -q {archive} -d '{world.home.engine_folder()}' && "
       f"chmod +x '{world.home.engine_program()}'")
    stages.reach("engine")
    command = [str(world.home.engine_program()), "--path", str(world.home.project)]
    with open(world.output / "import.txt", "wb") as output:
        editor = subprocess.Popen([*command, "--editor", "--no-window"], stdout=output,
                                  stderr=output)
        while not is_imported(world.home.project):
            time.sleep(0.1)
        editor.terminate()
        editor.wait()
        stages.reach("import")
        subprocess.Popen(command, stdout=output, stderr=output)
        wait_for_game(world, stages)
    return stages


def ours(world: World) -> Stages:
    launcher = world.open_launcher()
    stages = Stages()
    launcher.press("Play")
    for stage, path in {"game": world.home.project, "engine": world.home.engine_program(),
                        "import": world.home.marker()}.items():
        wait_for(stage, path.exists, seconds=120, interval=0.02)
        stages.reach(stage)
    wait_for_game(world, stages)
    return stages


def wait_for_game(world: World, stages: Stages) -> None:
    wait_for("The game's window", lambda: GAME_WINDOW in world.desktop.windows(), seconds=60,
             interval=0.02)
    stages.reach("the game's window")


def main(name: str, program: str, folder: str) -> None:
    output = Path(folder) / f"first-run-{os.getpid()}"
    with (private_world.entered(output) as scratch,
          World(Path(program), scratch, output, private_world.System()) as world):
        world.offer_game()
        world.offer_real_engine()
        world.web.start()
        stages = {"ours": ours, "by hand": by_hand}[name](world)
    print(json.dumps(stages.moments))


if __name__ == "__main__":
    main(*sys.argv[1:])
