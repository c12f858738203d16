# SPDX-License-Identifier: MIT
"""Who owns the installation, and where it lies: the launcher says why it changes nothing without
its lock, that another one does not answer, that a folder's name is not UTF-8, and that the
installation's disk has gone."""

import os
import shutil
import signal
import tempfile
import time
from pathlib import Path

from rig import product
from rig.expect import expect_failure, expect_game_starts, expect_stop
from rig.waiting import wait_for

WAITING = "Cavernyx Platformer is already running. Waiting for its answer…"
NO_ANSWER = "Cavernyx Platformer is already running, but does not answer. Close it first."


def run(world):
    world.offer_game()
    world.offer_scripted_engine()
    world.web.start()
    data = world.home.root.parent
    install_with_a_lock_only(world, data)
    start_beside_one_that_hangs(world)
    refuse_a_name_that_is_not_utf8(world, data)
    with tempfile.TemporaryDirectory(dir="/dev/shm") as disk:
        lose_the_disk(world, data, Path(disk) / "data")


def install_with_a_lock_only(world, data):
    lock = data / f".{product.NAME}.lock"
    lock.mkdir(parents=True)
    launcher = world.open_launcher()
    launcher.press("Play")
    expect_failure(world, f"Could not lock “{lock}”, without which nothing is installed or "
                          "removed: Is a directory.")
    assert list(data.iterdir()) == [lock]
    assert world.start_launcher().wait_for_end() == 0, "The first one was not found."

    lock.rmdir()
    launcher.press("Play")
    expect_game_starts(world)
    expect_stop(world)
    assert lock.is_file()


def start_beside_one_that_hangs(world):
    world.launcher.signal(signal.SIGSTOP)
    start = time.monotonic()
    second = world.start_launcher()
    assert second.wait_for_alert().texts() == [WAITING]
    world.picture("waiting")
    wait_for("The second sentence", lambda: second.wait_for_alert().texts() == [NO_ANSWER])
    assert time.monotonic() - start < 10  # Five seconds, and what a busy machine adds.
    world.picture("no-answer")
    second.wait_for_alert().answer("OK")
    assert second.wait_for_end() == 1
    world.launcher.signal(signal.SIGCONT)
    world.launcher.signal(signal.SIGTERM)
    assert world.launcher.wait_for_end() == 0


def refuse_a_name_that_is_not_utf8(world, data):
    before = sorted(data.parent.parent.iterdir())
    home = os.fsdecode(os.fsencode(data.parent.parent) + b"/gr\xf6\xdfe")
    launcher = world.start_launcher(HOME=home)
    text, = launcher.wait_for_alert().texts()
    assert text.startswith("Could not use the folder “"), text
    assert text.endswith("”, because its name is not UTF-8."), text
    world.picture("not-utf8")
    launcher.wait_for_alert().answer("OK")
    assert launcher.wait_for_end() == 1
    assert sorted(data.parent.parent.iterdir()) == before


def lose_the_disk(world, data, disk):
    shutil.copytree(data, disk, symlinks=True)
    shutil.rmtree(data)
    data.symlink_to(disk)
    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    data.unlink()
    data.mkdir()

    launcher.press("Play")
    expect_failure(world, f"The folder “{world.home.root}” is on another disk than before. "
                          "Connect that disk again, or try once more to use this one.")
    assert not any(data.iterdir())
    launcher.press("Play")
    expect_game_starts(world)
    expect_stop(world)
