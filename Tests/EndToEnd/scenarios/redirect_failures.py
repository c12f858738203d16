# SPDX-License-Identifier: MIT
"""What fails behind the redirect of a download is told as what it is, and by the host where it
failed."""

from rig.expect import expect_failure, failure_in_log
from rig.web_host import BRANCHES, RELEASES, UNCERTIFIED

GAME = "https://github.com/brindlework-demos/tetherwalk/archive/refs/heads/master.zip"
FAILED = f"Could not download “{GAME}”: "
FAILURES = {
    "https://missing.githubusercontent.com/game":
        FAILED + "The server “missing.githubusercontent.com” was not found. Check the internet "
        "connection.",
    f"https://{RELEASES}:1/game":
        FAILED + f"The server “{RELEASES}” cannot be reached. Check the internet connection.",
    f"https://{UNCERTIFIED}/game":
        FAILED + f"The certificate of “{UNCERTIFIED}” belongs to another server. Another network "
        "may help.",
    f"https://{BRANCHES}/closed":
        FAILED + f"The connection to “{BRANCHES}” was lost. Check the internet connection and try "
        "again.",
    f"https://{BRANCHES}/missing":
        f"The server answered with HTTP 404 for {GAME}.",
    "https://mirror.example.org/game":
        f"The download of “{GAME}” was redirected to “https://mirror.example.org”, which is not "
        "one of GitHub's own secure servers, so it was stopped.",
    f"http://{BRANCHES}/game":
        f"The download of “{GAME}” was redirected to “http://{BRANCHES}”, which is not one of "
        "GitHub's own secure servers, so it was stopped.",
}


def run(world):
    launcher = world.open_launcher()
    for count, (target, sentence) in enumerate(FAILURES.items(), start=1):
        world.web.start(branch_target=target)
        launcher.press("Play")
        error = failure_in_log(launcher, count)
        assert error == sentence, error
        expect_failure(world, sentence)
        world.web.stop()
    assert not world.home.game.exists()
    world.home.expect_nothing_left_over()
