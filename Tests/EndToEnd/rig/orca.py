#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The screen reader Orca, which says what it says to a file instead of a loudspeaker."""

import runpy
import subprocess
import sys
from pathlib import Path

from rig.waiting import wait_for

PROGRAM = "/usr/bin/orca"
SAID = "Said: "


class Orca:
    """Reads out what any program shows from now on. Keeps what it said in `said`."""

    def __init__(self, said: Path):
        self._said = said
        with said.open("w") as printed, said.with_suffix(".errors.txt").open("w") as errors:
            subprocess.Popen([sys.executable, "-m", "rig.orca"], stdout=printed, stderr=errors,
                             cwd=Path(__file__).parent.parent)
        wait_for("The screen reader", self.said)

    def said(self) -> list[str]:
        """Everything so far, one utterance an entry."""
        return [line.removeprefix(SAID) for line in self._said.read_text().splitlines()
                if line.startswith(SAID)]

    def wait_for(self, *parts: str, after: int = 0) -> int:
        """Waits until all the parts have been said, after so many utterances. Returns the number of
        utterances until then, which may be given as `after` to the next question."""
        def heard() -> int:
            said = self.said()
            for number in range(after + 1, len(said) + 1):
                if all(part in " ".join(said[after:number]) for part in parts):
                    return number
            return 0

        try:
            return wait_for(f"{parts} being said", heard)
        except AssertionError as error:
            raise AssertionError(f"{error}; said since then: {self.said()[after:]}") from None


def run() -> None:
    import orca.orca  # Since Orca 48 its parts cannot be loaded before it.
    from orca import settings, speech, speechserver

    class Recorder(speechserver.SpeechServer):
        def speak(self, text=None, acss=None, interrupt=True):
            print(f"{SAID}{text}", flush=True)

        def speak_character(self, character, acss=None):
            self.speak(character)

        speakCharacter = speak_character  # Orca 43

    # Every change that the launcher tells of, instead of one in ten seconds.
    settings.progressBarUpdateInterval = 0
    speech.init = lambda: setattr(speech, "_speechserver", Recorder())
    program = runpy.run_path(PROGRAM, run_name="orca_program")
    main = program["main"]
    # It refuses to run beside another one, which may be the machine's own.
    main.__globals__["otherOrcas"] = list
    sys.argv = [PROGRAM]
    sys.exit(main())


if __name__ == "__main__":
    run()
