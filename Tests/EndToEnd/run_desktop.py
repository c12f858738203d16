#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""run_desktop.py NAME --prefix FOLDER --output FOLDER: goes through what a player does with a window
on one real desktop, with the launcher that is installed below the prefix. Exits with 77 if the
desktop does not run on this system."""

import argparse
import sys
from pathlib import Path

from rig import private_world, product
from rig.desktop_tour import DesktopTour
from rig.real_desktops import DESKTOPS, NotRunning
from rig.world import World

NOT_RUN = 77


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("name", choices=DESKTOPS)
    parser.add_argument("--prefix", type=Path, required=True)
    parser.add_argument("--output", type=Path, required=True)
    arguments = parser.parse_args()

    desktop = DESKTOPS[arguments.name]
    prefix = arguments.prefix.absolute()
    program = prefix / "bin" / product.PROGRAM
    output = (arguments.output / arguments.name).absolute()
    with private_world.entered(output) as scratch:
        try:
            with World(program, scratch, output, private_world.System(), desktop.start) as world:
                return 0 if DesktopTour(world, desktop, prefix).run(arguments.name) else 1
        except NotRunning as reason:
            print(f"{arguments.name}: NOT RUN: {reason}", flush=True)
            return NOT_RUN


if __name__ == "__main__":
    sys.exit(main())
