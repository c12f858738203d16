# SPDX-License-Identifier: MIT
"""Measures the launcher and other programs in turn, in one run."""
