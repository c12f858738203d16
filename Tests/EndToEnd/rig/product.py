# SPDX-License-Identifier: MIT
"""The name that the product goes by: the title of its windows and the name of its folders."""

NAME = "Cavernyx Platformer"
