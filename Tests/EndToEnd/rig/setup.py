# SPDX-License-Identifier: MIT
"""A setup that has got as far as one of its steps and would stay there for a minute, so that
something can be done to it."""

from rig import engine
from rig.waiting import wait_for

GAME = "Step 1 of 4 · Downloading the game"
ENGINE = f"Step 2 of 4 · Downloading the Godot engine ({engine.VERSION})"
IMPORT = "Step 3 of 4 · First-time setup, this can take a minute or more"

RATES = {
    GAME: {"branch_rate": "2k"},
    ENGINE: {"branch_rate": "40k", "release_rate": "5k"},
    IMPORT: {},
}
LOG_LINES = {
    GAME: "Downloading the game source from GitHub (branch master)…",
    ENGINE: f"Downloading {engine.archive_name()} from godotengine/godot releases…",
    IMPORT: "Working on it.",
}


def offer(world) -> None:
    world.offer_game()
    world.offer_scripted_engine(imports=engine.HANGS)


def play_until(world, step: str) -> None:
    """Serves what is offered, opens the launcher and presses Play."""
    world.web.start(**RATES[step])
    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label(step)
    launcher.wait_for_log_line(LOG_LINES[step])
    if step == IMPORT:
        wait_for("The engine's import run", launcher.children)
    else:
        wait_for("The temporary folder of the download",
                 lambda: any(world.home.temporary.iterdir()))
