# SPDX-License-Identifier: MIT
"""Waiting for what happens elsewhere, with a deadline."""

import time

# In seconds. Long, since other programs may keep the processors busy, or the disk: each unpacked
# folder waits until all that was written to its file system is on the disk.
PATIENCE = 60


def wait_for(what: str, condition, seconds: float = PATIENCE, interval: float = 0.05):
    """Returns the first value of `condition()` that is true. When none has come after `seconds`,
    fails with `what` and the last value."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"{what} did not happen within {seconds} s (last seen: {value!r})")
        time.sleep(interval)

