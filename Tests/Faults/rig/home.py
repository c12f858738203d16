# SPDX-License-Identifier: MIT
"""A player's home folder, and what the launcher keeps in it."""

from pathlib import Path

from rig.material import BUILD, OLD, Tree, complete_game, engine, shipped_game

PROGRAM = "Cavernyx Platformer"
ROOT = f"data/{PROGRAM}"
GAME = f"{ROOT}/Game"
ENGINE = f"{ROOT}/Engine/{BUILD}"
SAVES = "data/godot/app_userdata/Tetherwalk Sample"
SETTINGS = f"config/{PROGRAM}/{PROGRAM}.conf"
UUID = "01234567-89AB-CDEF-0123-456789ABCDEF"

FOLDER = ("folder", 0o755)
# What is there in every home.
BASE: Tree = {
    **{folder: FOLDER for folder in (".", "tmp", "config", f"config/{PROGRAM}", "data",
                                     "data/godot", "data/godot/app_userdata", SAVES)},
    f"{SAVES}/save.dat": ("file", 0o644, b"The third cave.\n"),
    SETTINGS: ("file", 0o600, b"[General]\nresolution=1280x720\n"),
}


def at(path: str, tree: Tree) -> Tree:
    """The tree as a part of a larger one."""
    return {path if name == "." else f"{path}/{name}": entry for name, entry in tree.items()}


def installed(game: Tree, build: Tree) -> Tree:
    """The home in which these are installed."""
    return BASE | {ROOT: FOLDER, f"{ROOT}/Engine": FOLDER} | at(GAME, game) | at(ENGINE, build)


def littered(tree: Tree) -> Tree:
    """The home after launchers were killed."""
    some = {".": FOLDER, "half": FOLDER, "half/file": ("file", 0o644, b"half"),
            "link": ("link", "half")}
    for folder in (f"{GAME}.new-{UUID}", f"{ENGINE}.new-{UUID}", f"{ROOT}/Engine.new-{UUID}",
                   f"tmp/CavernyxPlatformer-{UUID}"):
        tree = tree | at(folder, some)
    return tree | {f"data/.{PROGRAM}.lock": ("file", 0o600, b"")}


COMPLETE = installed(complete_game(OLD), engine(OLD))
HOMES = {
    "empty": BASE,
    "complete": COMPLETE,
    "not imported": installed(shipped_game(OLD), engine(OLD)),
    "littered": littered(COMPLETE),
}


def environment(home: Path) -> dict[str, str]:
    return {"HOME": f"{home}", "XDG_DATA_HOME": f"{home}/data", "XDG_CONFIG_HOME": f"{home}/config",
            "XDG_CACHE_HOME": f"{home}.cache",  # For the libraries; the launcher has none.
            "TMPDIR": f"{home}/tmp", "PATH": "/usr/local/bin:/usr/bin:/bin", "LANG": "C.UTF-8"}
