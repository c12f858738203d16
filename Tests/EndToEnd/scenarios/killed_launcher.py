# SPDX-License-Identifier: MIT
"""A launcher that was killed: the next one clears away what it was in the middle of, no import
outlives it, and a game that does is left alone until it is closed."""

import os
import signal

from rig import setup
from rig.expect import expect_failure
from rig.waiting import wait_for

LEFT_RUNNING = "The game is still running from an earlier start. Close it first."


def run(world):
    setup.offer(world)
    kill_during_the_download(world)
    kill_during_the_import(world)
    kill_during_the_game(world)


def kill_during_the_download(world):
    setup.play_until(world, setup.GAME)
    world.launcher.kill()
    half = world.home.root / "Game.new-01234567-89AB-CDEF-0123-456789ABCDEF"
    (half / "some folder").mkdir(parents=True)
    foreign = world.home.temporary / "somebody's"
    foreign.mkdir()

    world.web.stop()
    world.web.start()
    launcher = world.open_launcher()
    launcher.wait_for_label("Not downloaded")
    wait_for("The end of what was left behind",
             lambda: list(world.home.temporary.iterdir()) == [foreign] and not half.exists())
    foreign.rmdir()


def kill_during_the_import(world):
    launcher = world.launcher
    launcher.press("Play")
    launcher.wait_for_log_line("Working on it.")
    assert world.home.processes()
    launcher.kill()
    wait_for("The end of the import", lambda: not world.home.processes())


def kill_during_the_game(world):
    world.offer_scripted_engine(plays='while sleep 0.1; do echo "On and on."; done\n')
    launcher = world.open_launcher()
    launcher.open_settings().press("Reinstall")
    launcher.wait_for_alert().answer("Reinstall")
    launcher.wait_for_label("Starting…")
    launcher.wait_for_log_line("On and on.")
    launcher.kill()

    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    launcher.press("Play")
    expect_failure(world, LEFT_RUNNING)
    os.killpg(game_group(world), signal.SIGTERM)
    wait_for("The end of the game", lambda: not world.home.processes())
    launcher.press("Play")
    launcher.wait_for_label("Starting…")
    launcher.press("Stop")
    launcher.wait_for_label("Ready")
    world.home.expect_nothing_left_over()


def game_group(world) -> int:
    groups = set()
    for process in world.home.processes():
        try:
            groups.add(os.getpgid(process))
        except ProcessLookupError:
            pass  # One of the sleeps between the game's lines, which has ended meanwhile.
    group, = groups
    return group
