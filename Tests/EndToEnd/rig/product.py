# SPDX-License-Identifier: MIT
"""The product's own facts, read from its sources."""

import re
from pathlib import Path

_FACTS = (Path(__file__).resolve().parents[3] / "Sources/App/Project/GameFacts.h").read_text()


def fact(name: str) -> str:
    return re.search(rf' {name} = u"([^"]+)";', _FACTS).group(1)


# The title of its windows, and the name of its folders.
NAME = fact("launcherName")
ENGINE_VERSION = fact("engineVersion")
# The file of the program, and the name of its desktop entry and icons.
PROGRAM = fact("programName")
APPLICATION = fact("applicationId")
