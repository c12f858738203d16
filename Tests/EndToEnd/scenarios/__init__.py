# SPDX-License-Identifier: MIT
"""One module a scenario, each with a function run(world) that fails by an assertion."""
