# SPDX-License-Identifier: MIT
"""The signals by which a system ends a program leave nothing behind and ask nothing: not during a
download, not during the import, not while the game runs, not even while a question stands."""

import signal

from rig import setup
from rig.launcher import TITLE
from rig.waiting import wait_for


def run(world):
    setup.offer(world)
    setup.play_until(world, setup.GAME)
    expect_end(world, signal.SIGTERM)
    assert not world.home.game.exists()

    world.web.stop()
    setup.play_until(world, setup.IMPORT)
    expect_end(world, signal.SIGHUP)
    assert not world.home.marker().exists()

    world.offer_scripted_engine()
    play_from_a_new_engine(world)
    expect_end(world, signal.SIGINT)
    assert world.home.marker().exists()

    launcher = world.open_launcher()
    launcher.open_settings().press("Reinstall")
    launcher.wait_for_alert()
    expect_end(world, signal.SIGTERM)
    assert world.home.marker().exists()

    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Starting…")
    world.desktop.close(TITLE)
    launcher.wait_for_alert()
    expect_end(world, signal.SIGTERM)
    assert world.home.marker().exists()


def play_from_a_new_engine(world):
    launcher = world.open_launcher()
    launcher.open_settings().press("Reinstall")
    launcher.wait_for_alert().answer("Reinstall")
    launcher.wait_for_label("Starting…")
    launcher.wait_for_log_line("The game is on.")


def expect_end(world, number: int) -> None:
    world.launcher.signal(number)
    assert world.launcher.wait_for_end(seconds=10) == 0
    wait_for("The end of all that it started", lambda: not world.home.processes())
    world.home.expect_nothing_left_over()
