# SPDX-License-Identifier: MIT
"""Removing everything takes all that was installed and nothing else. The button and the question
say how much that is."""

from rig.expect import expect_game_starts, expect_question, expect_stop
from rig.waiting import wait_for


def run(world):
    world.install()
    saved = world.home.save_a_game()
    size = allocated(world.home.root)

    launcher = world.open_launcher()
    launcher.press("Play")
    expect_game_starts(world)
    expect_stop(world)
    settings = launcher.open_settings()
    wait_for("The size on the button",
             lambda: settings.remove_button() == f"Remove everything (frees {size})")
    world.picture("installed")

    before = world.home.snapshot()
    ask(launcher, settings, size, "Cancel")
    assert settings.is_open()
    assert launcher.log()[-1] == "Game stopped by you.", launcher.log()
    assert world.home.snapshot() == before

    ask(launcher, settings, size, "Remove")
    launcher.wait_for_label("Not downloaded")
    wait_for("The button without a size", lambda: settings.remove_button() == "Remove everything")
    assert settings.is_open()
    wait_for("The removal", lambda: not world.home.root.exists())
    assert saved.read_text() == "The third cave.\n"
    world.picture("removed")

    ask(launcher, settings, "all downloaded files", "Remove")
    assert settings.is_open()
    settings.close()
    launcher.wait_for_label("Not downloaded")
    assert launcher.log() == [""], launcher.log()
    assert not world.home.root.exists()


def ask(launcher, settings, size, answer):
    settings.press(settings.remove_button())
    expect_question(
        launcher, "Remove everything?",
        f"This deletes the downloaded game and engine and frees {size}. Your save files in Godot's "
        "folder are not touched.", "Remove",
    ).answer(answer)


def allocated(root):
    """The room that the files take, in words."""
    size = sum(file.stat().st_blocks * 512 for file in root.rglob("*") if file.is_file())
    assert 1000 <= size < 1_000_000, size
    return f"{round(size / 1000)} KB"
