# SPDX-License-Identifier: MIT
"""Without a network the first Play fails with one sentence that names the host."""

from rig.expect import expect_failure
from rig.waiting import wait_for


def run(world):
    world.disconnect()
    launcher = world.open_launcher()
    launcher.press("Play")
    error = wait_for("An error in the log", lambda: next(
        (line for line in launcher.log() if line.startswith("Error: ")), None))
    message = error.removeprefix("Error: ")
    assert message.endswith(".") and "github.com" in message, message
    expect_failure(world, message)
    assert not world.home.game.exists()
    world.home.expect_nothing_left_over()
