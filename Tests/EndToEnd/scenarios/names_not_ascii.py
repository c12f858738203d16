# SPDX-License-Identifier: MIT
"""Names and output that are not ASCII survive on a system without a locale."""

from rig import engine, sample_game
from rig.expect import count_imported, expect_game_starts, expect_stop

PICTURE = "Höhlen/床 — 1.png"
LINE = "Die Höhle ist offen: 床."


def run(world):
    world.offer_game(more={PICTURE: b"A picture for the script's eyes only."})
    world.offer_scripted_engine(plays=f'echo "{LINE}"\n' + engine.STAYS)
    world.web.start()

    launcher = world.open_launcher(LANG=None, LC_ALL="C")
    launcher.press("Play")
    expect_game_starts(world)
    assert LINE in launcher.log(), launcher.log()
    assert (world.home.project / PICTURE).exists()
    assert count_imported(world.home.project) == sample_game.ASSETS + 1
    expect_stop(world)
