# SPDX-License-Identifier: MIT
"""What must hold after a run, however it ended."""

import re
from pathlib import Path

from rig import material
from rig.home import BASE, ENGINE, GAME, PROGRAM, ROOT, SAVES, SETTINGS, at, installed
from rig.launcher import KILLED, Run
from rig.material import MARKER, NEW, OLD, Tree, snapshot

NOTHING = "nothing"
CHANGED_SETTINGS = ("file", 0o600, b"[General]\nfullscreen=true\nresolution=1280x720\n")
SHIPPED = {version: material.shipped_game(version) for version in (OLD, NEW)}
COMPLETE = {version: material.complete_game(version) for version in (OLD, NEW)}
ENGINES = {version: material.engine(version) for version in (OLD, NEW)}


class Violation(Exception):
    pass


def expect(condition: bool, sentence: str) -> None:
    if not condition:
        raise Violation(sentence)


def killed(run: Run) -> None:
    expect(run.status is not None, "What the launcher has started does not end.")
    expect(run.status == KILLED, f"To be killed, the launcher ended with {run.status}.")


def sound_end(run: Run) -> None:
    """The program came to its own end, and says where it stands."""
    expect(run.status is not None, "The launcher hangs.")
    expect(run.status == 0, f"The launcher ended with the status {run.status}.")
    expect(re.match(r"(Ready|Not downloaded|Needs something): .", run.end) is not None,
           f"The launcher ended in \"{run.end}\".")


def failed(run: Run) -> bool:
    return run.end.startswith("Needs something: ")


def places(home: Path, games: set[str], engines: set[str], moves: bool = False) -> tuple[str, str]:
    """Each place holds one of these versions, complete, and what is not the launcher's is whole.
    With `moves` the game may be in the middle of two moves. Returns the two versions."""
    game = version_of(snapshot(home / GAME), SHIPPED, COMPLETE)
    engine = version_of(snapshot(home / ENGINE), ENGINES, ENGINES)
    if moves and game == NOTHING:
        beside = {folder.name.split("-")[0]: version_of(snapshot(folder), SHIPPED, COMPLETE)
                  for folder in (home / ROOT).glob("Game.*-*")}
        expect(beside == {"Game.new": NEW, "Game.old": OLD},
               f"The game is not there, and beside it is {beside}.")
    else:
        expect(game in games, f"The game is {game}, not {' or '.join(games)}.")
    expect(engine in engines, f"The engine is {engine}, not {' or '.join(engines)}.")
    saves = {path: entry for path, entry in BASE.items() if path.startswith(SAVES)}
    expect_same(at(SAVES, snapshot(home / SAVES)), saves, "The saves")
    settings = snapshot(home / SETTINGS).get(".")
    expect(settings in (BASE[SETTINGS], CHANGED_SETTINGS), f"The settings are {settings}.")
    return game, engine


def recovered(run: Run, home: Path, before: tuple[str, str]) -> None:
    """After the next start and Play the game runs, what was there is still there, and nothing is
    left over."""
    sound_end(run)
    expect(run.end.startswith("Ready: ") and run.has_played,
           f"The next Play ended in \"{run.end}\".")
    game, engine = places(home, *(kept(version) - {NOTHING} for version in before))
    found = snapshot(home)
    expected = installed(COMPLETE[game], ENGINES[engine]) | {SETTINGS: found[SETTINGS]}
    found.pop(f"{SETTINGS}.new", None)  # It goes when a setting is stored the next time.
    expect_same(found, expected, "The home")


def kept(version: str) -> set[str]:
    """What may stand where `version` stood, while the launcher sets up what is missing."""
    return {NOTHING, OLD, NEW} if version == NOTHING else {version}


def version_of(found: Tree, shipped: dict[str, Tree], complete: dict[str, Tree]) -> str:
    """A game is whole without imported assets, but a marker promises all of them."""
    for version, tree in shipped.items():
        if tree.items() <= found.items():
            strange = sorted(path for path in found.keys() - complete[version].keys()
                             if not path.endswith(".new"))
            expect(not strange, f"To the {version} version was added {strange}.")
            if MARKER in found:
                expect_same(found, complete[version], "The marked game")
            return version
    expect(not found, f"A part of a folder is there: {sorted(found)}.")
    return NOTHING


def expect_same(found: Tree, expected: Tree, what: str) -> None:
    different = sorted(path for path in found.keys() | expected.keys()
                       if found.get(path) != expected.get(path))
    expect(not different, f"{what}: missing {sorted(expected.keys() - found.keys())}, not expected "
                          f"{sorted(found.keys() - expected.keys())}, different {different}.")
