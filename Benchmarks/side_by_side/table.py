# SPDX-License-Identifier: MIT
"""The table of results."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Line:
    """One line of the table. `figure` is held against `limit`; both are written with `unit`."""

    work: str
    ours: str
    against: str
    other: str
    figure: float
    limit: float
    unit: str = "×"

    @property
    def is_reached(self) -> bool:
        return self.figure <= self.limit

    def cells(self) -> list[str]:
        digits = 2 if self.unit == "×" else 0 if float(self.figure).is_integer() else 1
        return [
            self.work,
            self.ours,
            self.against,
            self.other,
            f"{self.figure:.{digits}f}{self.unit}",
            f"≤ {self.limit:g}{self.unit}",
            "yes" if self.is_reached else "**no**",
        ]


HEADER = ["work", "ours", "against", "theirs", "result", "target", "reached"]


def markdown_row(cells: list[str]) -> str:
    return "| " + " | ".join(cells) + " |"


def markdown_head() -> str:
    return markdown_row(HEADER) + "\n" + "|---" * len(HEADER) + "|"


def seconds(value: float) -> str:
    """A span of time with three significant digits."""
    return f"{value:.2f} s" if value >= 1 else f"{value * 1000:.3g} ms"


def mebibytes(kib: float) -> str:
    return f"{kib / 1024:.1f} MiB"
