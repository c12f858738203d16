#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""run_scenario.py NAME --prefix FOLDER --output FOLDER: runs one scenario against the launcher that
is installed below the prefix, in a world of its own. With --root, --program says where the launcher
is in that system, which is not the one that the scenario itself runs in."""

import argparse
import importlib
from pathlib import Path

from rig import private_world, product
from rig.world import World


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("name")
    parser.add_argument("--prefix", type=Path, default=Path("/usr"))
    parser.add_argument("--program", type=Path)
    parser.add_argument("--root", type=Path, default=Path("/"), help="a system of its own")
    parser.add_argument("--trust", type=Path, help="its file of trusted certificates")
    parser.add_argument("--other", type=Path, help="another installed program")
    parser.add_argument("--upgrade", nargs=argparse.REMAINDER,
                        help="the command that installs a newer one: all that follows")
    parser.add_argument("--output", type=Path, required=True)
    arguments = parser.parse_args()

    output = (arguments.output / arguments.name).absolute()
    with private_world.entered(output) as scratch:
        scenario = importlib.import_module(f"scenarios.{arguments.name}")
        program = arguments.program or arguments.prefix.absolute() / "bin" / product.PROGRAM
        system = private_world.System(arguments.root.absolute(), arguments.trust)
        with World(program, scratch, output, system) as world:
            world.other = arguments.other
            world.upgrade = arguments.upgrade
            scenario.run(world)


if __name__ == "__main__":
    main()
