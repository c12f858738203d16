# SPDX-License-Identifier: MIT
"""Reinstalling deletes the game and the engine and gets both again, and keeps the saves."""

from rig import sample_game
from rig.expect import count_imported, expect_game_starts, expect_question, expect_stop


def run(world):
    world.offer_game()
    world.offer_scripted_engine()
    world.install()
    spoilt = [world.home.project / "spoilt.txt", world.home.engine_folder() / "spoilt.txt"]
    for file in spoilt:
        file.touch()
    saved = world.home.save_a_game()
    world.web.start()

    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    before = world.home.snapshot()
    ask(launcher, "Cancel")
    assert launcher.shows("Ready")
    assert world.home.snapshot() == before
    assert world.web.requests() == []

    ask(launcher, "Reinstall")
    expect_game_starts(world)
    fetched = [request.split()[1] for request in world.web.requests() if request.endswith(" 200")]
    assert fetched == [
        "/brindlework-demos/tetherwalk/zip/refs/heads/master",
        "/release-asset/SHA512-SUMS.txt?signature=1",
        "/release-asset/Godot_v3.5.3-stable_x11.64.zip?signature=1",
    ], world.web.requests()
    assert not any(file.exists() for file in spoilt)
    assert saved.read_text() == "The third cave.\n"
    assert count_imported(world.home.project) == sample_game.ASSETS
    assert world.home.marker().read_bytes() == b""
    expect_stop(world)


def ask(launcher, answer):
    settings = launcher.open_settings()
    settings.press("Reinstall")
    expect_question(
        launcher, "Reinstall everything?",
        "The game and the engine are deleted and downloaded again. Your save files are kept.",
        "Reinstall",
    ).answer(answer)
    settings.wait_until_closed()
