# SPDX-License-Identifier: MIT
"""The actions of the settings sheet that get parts of the installation again."""

from typing import NamedTuple

from rig.expect import expect_question


class Action(NamedTuple):
    button: str
    title: str
    message: str
    confirm: str


UPDATE = Action("Update the game", "Update the game?",
                "The game is downloaded again from GitHub. Your save files are kept.", "Update")
REINSTALL = Action(
    "Reinstall", "Reinstall everything?",
    "The game and the engine are deleted and downloaded again. Your save files are kept.",
    "Reinstall")


def accept_after_declining(world, action: Action) -> dict:
    """Declines the action first, which must change nothing, and then accepts it. Returns what was
    on the disk before."""
    world.web.start()
    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    before = world.home.snapshot()
    _ask(launcher, action, "Cancel")
    assert launcher.shows("Ready")
    assert world.home.snapshot() == before
    assert world.web.requests() == []
    _ask(launcher, action, action.confirm)
    return before


def _ask(launcher, action: Action, answer: str) -> None:
    settings = launcher.open_settings()
    settings.press(action.button)
    expect_question(launcher, action.title, action.message, action.confirm).answer(answer)
    settings.wait_until_closed()
