# SPDX-License-Identifier: MIT
"""Reinstalling deletes the game and the engine and gets both again, and keeps the saves."""

from rig import engine, sample_game
from rig.expect import count_imported, expect_game_starts, expect_stop
from rig.maintenance import REINSTALL, accept_after_declining


def run(world):
    world.install()
    spoilt = [world.home.project / "spoilt.txt", world.home.engine_folder() / "spoilt.txt"]
    for file in spoilt:
        file.touch()
    saved = world.home.save_a_game()

    accept_after_declining(world, REINSTALL)
    expect_game_starts(world)
    fetched = [request.split()[1] for request in world.web.requests() if request.endswith(" 200")]
    assert fetched == [
        "/brindlework-demos/tetherwalk/zip/refs/heads/master",
        "/release-asset/SHA512-SUMS.txt?signature=1",
        f"/release-asset/{engine.archive_name()}?signature=1",
    ], world.web.requests()
    assert not any(file.exists() for file in spoilt)
    assert saved.read_text() == "The third cave.\n"
    assert count_imported(world.home.project) == sample_game.ASSETS
    assert world.home.marker().read_bytes() == b""
    expect_stop(world)
