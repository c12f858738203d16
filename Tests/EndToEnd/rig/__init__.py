# SPDX-License-Identifier: MIT
"""What the end-to-end scenarios are made of: a private world with a display, an accessibility
bus, the web hosts of the three downloads, a game and an engine, and the launcher in it."""
