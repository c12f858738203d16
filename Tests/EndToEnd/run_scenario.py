#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""run_scenario.py NAME --prefix FOLDER --output FOLDER: runs one scenario against the launcher that
is installed below the prefix, in a world of its own."""

import argparse
import importlib
import shutil
from pathlib import Path

from rig import private_world
from rig.world import World


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("name")
    parser.add_argument("--prefix", type=Path, required=True)
    parser.add_argument("--output", type=Path, required=True)
    arguments = parser.parse_args()

    scratch = private_world.enter()
    output = (arguments.output / arguments.name).absolute()
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    scenario = importlib.import_module(f"scenarios.{arguments.name}")
    try:
        with World(arguments.prefix.absolute(), scratch, output) as world:
            scenario.run(world)
    finally:
        private_world.end_descendants()


if __name__ == "__main__":
    main()
