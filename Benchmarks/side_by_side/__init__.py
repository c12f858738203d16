# SPDX-License-Identifier: MIT
"""The comparison of the launcher with other programs. What it shares with the end-to-end scenarios
is taken from their rig."""

import os
import sys

_ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.append(f"{_ROOT}/Tests/EndToEnd")
