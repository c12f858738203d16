# SPDX-License-Identifier: MIT
"""The web hosts of the three downloads: nginx over HTTPS under their real names. As the real ones
do, branch archives redirect to a host that sends them without a length, and release files to one
that sends them with it."""

import itertools
import re
import signal
import subprocess
from pathlib import Path

from rig import engine
from rig.authority import Authority
from rig.waiting import wait_for

ENTRY = "github.com"
BRANCHES = "codeload.github.com"
RELEASES = "objects.githubusercontent.com"
NAMES = [ENTRY, BRANCHES, RELEASES]
# Leads to the same server, whose certificate does not name it.
UNCERTIFIED = "release-assets.githubusercontent.com"
BRANCH_FOLDER = "https://codeload.github.com/brindlework-demos/tetherwalk/zip/refs/heads/"

CONFIGURATION = """
daemon off;
user root;
worker_processes 1;
pid {folder}/nginx.pid;
error_log {folder}/error.log;
events {{ worker_connections 64; }}
http {{
    log_format requests '$host $request_uri $status';
    access_log {folder}/access.log requests;
    client_body_temp_path {folder}/bodies;
    proxy_temp_path {folder}/proxied;
    fastcgi_temp_path {folder}/fastcgi;
    uwsgi_temp_path {folder}/uwsgi;
    scgi_temp_path {folder}/scgi;
    types {{ application/zip zip; text/plain txt; }}
    ssl_certificate {certificate};
    ssl_certificate_key {key};
    server {{
        listen 127.0.0.1:443 ssl http2;
        server_name github.com;
        rewrite ^/brindlework-demos/tetherwalk/archive/refs/heads/(.*)\\.zip$
            {branch_target} redirect;
        rewrite ^/godotengine/godot/releases/download/{version}/(.*)$
            https://objects.githubusercontent.com/release-asset/$1?signature=1 redirect;
        location / {{ return 404; }}
    }}
    server {{
        listen 127.0.0.1:443 ssl http2;
        server_name codeload.github.com;
        location = /closed {{ return 444; }}
        location /brindlework-demos/tetherwalk/zip/refs/heads/ {{
            alias {folder}/branches/;
            default_type application/zip;
            # A body that a filter might change is sent without its length.
            sub_filter_types application/zip;
            sub_filter 'a text that no archive holds' '';
            {branch_rate}
        }}
    }}
    server {{
        listen 127.0.0.1:443 ssl http2;
        server_name objects.githubusercontent.com;
        location /release-asset/ {{
            alias {folder}/releases/;
            {release_rate}
        }}
        location = /release-asset/SHA512-SUMS.txt {{
            alias {folder}/releases/SHA512-SUMS.txt;
        }}
    }}
}}
"""


class WebHost:
    """Serves what lies in `branch_archive` and `releases`. Not started when made."""

    def __init__(self, folder: Path, authority: Authority):
        self._folder = folder
        self._authority = authority
        self._server = None
        (folder / "branches").mkdir(parents=True)
        self.releases = folder / "releases"
        self.releases.mkdir()
        self.branch_archive = folder / "branches" / "master"

    def start(self, branch_rate: str = "", release_rate: str = "",
              branch_target: str = BRANCH_FOLDER + "$1") -> None:
        """The rates limit the two archives' bytes per second, as in "10k"; the list comes at once.
        The game's address redirects to `branch_target`."""
        def limit(rate: str) -> str:
            return f"limit_rate {rate};" if rate else ""

        configuration = self._folder / "nginx.conf"
        configuration.write_text(CONFIGURATION.format(
            folder=self._folder, certificate=self._authority.host_certificate,
            key=self._authority.host_key, branch_rate=limit(branch_rate),
            release_rate=limit(release_rate), branch_target=branch_target,
            version=re.escape(engine.VERSION)))
        log = self._folder / "error.log"
        self._server = subprocess.Popen(
            ["/usr/sbin/nginx", "-e", str(log), "-c", str(configuration), "-p", str(self._folder)])
        wait_for("The web server's start", self._has_started)

    def stop(self) -> None:
        self._server.send_signal(signal.SIGTERM)
        self._server.wait()
        self._server = None

    def requests(self) -> list[str]:
        """The finished requests so far, each as "host path status". Of the same request several
        times in a row only one: the network library may ask for a redirected address twice over
        the same connection."""
        log = self._folder / "access.log"
        lines = log.read_text().splitlines() if log.exists() else []
        return [request for request, _ in itertools.groupby(lines)]

    def _has_started(self) -> bool:
        if self._server.poll() is not None:
            raise AssertionError((self._folder / "error.log").read_text())
        identifier = self._folder / "nginx.pid"
        return identifier.exists() and identifier.read_text().strip() == str(self._server.pid)
