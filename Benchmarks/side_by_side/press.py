# SPDX-License-Identifier: MIT
"""side_by_side.press PID NAME: presses a program's control over the accessibility bus.

A program of its own, because the accessibility library reads the session bus once, at its start.
"""

import sys

from rig.controls import Controls
from rig.waiting import wait_for


def main(pid: int, name: str) -> None:
    controls = Controls(pid)
    wait_for("The program on the accessibility bus", controls.find_program)
    controls.press(name)


main(int(sys.argv[1]), sys.argv[2])
