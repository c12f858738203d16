# SPDX-License-Identifier: MIT
"""The signals by which a system ends a program, and the end of the session, leave nothing behind
and ask nothing: not during a download, not during the import, not while the game runs."""

import signal

from rig import engine
from rig.waiting import wait_for


def run(world):
    world.offer_game()
    world.offer_scripted_engine(imports=engine.HANGS)
    world.web.start(branch_rate="20k")
    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Step 1 of 4 · Downloading the game")
    wait_for("The temporary folder", lambda: any(world.home.temporary.iterdir()))
    expect_end(world, signal.SIGTERM)
    assert not world.home.game.exists()

    world.web.stop()
    world.web.start()
    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_log_line("Working on it.")
    expect_end(world, signal.SIGHUP)
    assert not world.home.marker().exists()

    world.offer_scripted_engine()
    play_from_a_new_engine(world)
    expect_end(world, signal.SIGINT)
    assert world.home.marker().exists()


def play_from_a_new_engine(world):
    launcher = world.open_launcher()
    launcher.open_settings().press("Reinstall")
    launcher.wait_for_alert().answer("Reinstall")
    launcher.wait_for_label("Starting…", seconds=60)
    launcher.wait_for_log_line("The game is on.")


def expect_end(world, number: int) -> None:
    world.launcher.signal(number)
    assert world.launcher.wait_for_end(seconds=10) == 0
    wait_for("The end of all that it started", lambda: not world.home.processes())
    world.home.expect_nothing_left_over()
