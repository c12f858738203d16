# SPDX-License-Identifier: MIT
"""What the sweep is made of: a game and an engine, a home, the runs of the launcher in it, and what
must hold after each of them."""
