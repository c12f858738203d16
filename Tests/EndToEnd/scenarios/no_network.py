# SPDX-License-Identifier: MIT
"""Without a network the first Play fails with one sentence that names the host."""

from rig.expect import expect_failure, failure_in_log


def run(world):
    world.disconnect()
    launcher = world.open_launcher()
    launcher.press("Play")
    message = failure_in_log(launcher)
    assert message.endswith(".") and "github.com" in message, message
    expect_failure(world, message)
    assert not world.home.game.exists()
    world.home.expect_nothing_left_over()
