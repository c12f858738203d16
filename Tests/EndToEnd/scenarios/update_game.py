# SPDX-License-Identifier: MIT
"""Updating downloads and imports the game again, and keeps the engine and the saves."""

from rig.expect import expect_game_starts, expect_in_order, expect_stop
from rig.maintenance import UPDATE, accept_after_declining

GAME_REQUESTS = [
    "github.com /brindlework-demos/tetherwalk/archive/refs/heads/master.zip 302",
    "codeload.github.com /brindlework-demos/tetherwalk/zip/refs/heads/master 200",
]


def run(world):
    world.install(more={"news.txt": b"The second chapter.\n"})
    news = world.home.project / "news.txt"
    news.write_text("The first chapter.\n")
    gone = world.home.project / "removed-since.txt"
    gone.touch()
    saved = world.home.save_a_game()

    before = accept_after_declining(world, UPDATE)
    launcher = world.launcher
    launcher.wait_for_label("Setting up")
    assert not world.home.marker().exists()
    world.picture("setting-up")
    expect_game_starts(world)
    assert world.web.requests() == GAME_REQUESTS, world.web.requests()
    assert news.read_text() == "The second chapter.\n"
    assert not gone.exists()
    assert saved.read_text() == "The third cave.\n"
    assert world.home.marker().read_bytes() == b""
    engine = {path: entry for path, entry in before.items()
              if path.startswith(str(world.home.engines))}
    assert engine.items() <= world.home.snapshot().items()
    expect_in_order(launcher.log(), [
        "Downloading the game source from GitHub (branch master)…",
        f"Game ready at {world.home.project}",
        "Step 2 of 4 · Engine already installed, skipping.",
        "All assets imported, closing the setup run.",
    ])
    expect_stop(world)
