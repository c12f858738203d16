# SPDX-License-Identifier: MIT
"""The rows about downloads: the launcher's client and curl fetch from nginx over HTTPS.

All three stand in a network of their own, whose only trusted authority is one made for the run.
Both clients are whole programs and write to the disk, and both are left with HTTP/1.1, which is all
that the launcher speaks.
"""

import os
import shutil
import signal
import subprocess
import time
from pathlib import Path

from rig.authority import Authority

from . import material
from .bench import Bench, against_fastest
from .disk import MEBIBYTE, flat_memory
from .runs import Run, fresh_folder, in_turn, median, run
from .table import Line

PORT = 8441

NGINX = """
{user}
worker_processes 1;
error_log {folder}/error.log;
pid {folder}/nginx.pid;
events {{ }}
http {{
    access_log off;
    sendfile on;
    client_body_temp_path {folder}/body;
    proxy_temp_path {folder}/proxy;
    fastcgi_temp_path {folder}/fastcgi;
    uwsgi_temp_path {folder}/uwsgi;
    scgi_temp_path {folder}/scgi;
    ssl_certificate {certificate};
    ssl_certificate_key {key};
    server {{ listen 127.0.0.1:{port} ssl; root {folder}/files; }}
}}
"""


class PrivateSite:
    """nginx on the loopback of a network of its own, under a certificate that is trusted there.

    `inside` goes before a command that is to run there. Files are served from `files`.
    """

    def __init__(self, folder: str):
        self.folder = folder
        self.files = f"{folder}/files"
        os.makedirs(self.files)
        os.makedirs(f"{folder}/trust")
        authority = Authority(Path(f"{folder}/authority"), ["localhost"])
        self.trust(authority)
        as_root = os.geteuid() == 0
        material.write(
            f"{folder}/nginx.conf",
            NGINX.format(
                user="user root;" if as_root else "",
                folder=folder,
                port=PORT,
                certificate=authority.host_certificate,
                key=authority.host_key,
            ),
        )
        self.unshare = ["unshare", "--mount", "--net"]
        self.enter = ["--mount", "--net"]
        if not as_root:
            self.unshare += ["--map-root-user"]
            self.enter += ["--user", "--preserve-credentials"]

    def trust(self, authority: Authority) -> None:
        """Fills the folder of trusted certificates: the hashed folder and the list of all."""
        shutil.copy(authority.certificate, f"{self.folder}/trust/ca-certificates.crt")
        subprocess.run(["openssl", "rehash", f"{self.folder}/trust"], check=True)

    def __enter__(self) -> "PrivateSite":
        script = f"mount --bind {self.folder}/trust /etc/ssl/certs && ip link set lo up"
        self.holder = subprocess.Popen(
            [*self.unshare, "sh", "-c", f"{script} && echo ready && exec cat"],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
        )
        if self.holder.stdout.readline() != b"ready\n":
            raise RuntimeError("This system allows no network of one's own.")
        self.inside = ["nsenter", "--target", str(self.holder.pid), *self.enter, "--"]
        self.nginx = subprocess.Popen(
            [*self.inside, "nginx", "-c", f"{self.folder}/nginx.conf", "-g", "daemon off;"]
        )
        deadline = time.monotonic() + 10
        while not os.path.exists(f"{self.folder}/nginx.pid") and time.monotonic() < deadline:
            time.sleep(0.05)
        return self

    def __exit__(self, *_) -> None:
        self.nginx.send_signal(signal.SIGTERM)
        self.nginx.wait()
        self.holder.stdin.close()
        self.holder.wait()


def download(bench: Bench) -> list[Line]:
    with PrivateSite(bench.place("download")) as site:
        size = bench.sized(1024, 128)
        material.random_file(f"{site.files}/large", size * MEBIBYTE)
        material.random_file(f"{site.files}/small", 10 * MEBIBYTE)
        return download_from(bench, site, size)


def download_from(bench: Bench, site: PrivateSite, size: int) -> list[Line]:
    target = f"{bench.disk}/target"
    address = f"https://localhost:{PORT}"

    def clear_target() -> None:
        fresh_folder(target)
        # What is still to be written of other files would be written meanwhile.
        os.sync()

    def ours(name: str) -> Run:
        clear_target()
        return bench.measure("download", f"{address}/{name}", target, inside=site.inside)

    def curl() -> Run:
        clear_target()
        return run([*site.inside, "curl", "-s", "-f", "-o", f"{target}/large", f"{address}/large"])

    runs = in_turn({"ours": lambda: ours("large"), "`curl -o`": curl}, bench.rounds)
    peak = median(one.report["peak_kib"] for one in runs["ours"])
    small_peak = median(ours("small").report["peak_kib"] for _ in range(bench.rounds))
    shutil.rmtree(target)
    return [
        against_fastest(f"download of {size} MiB over HTTPS", runs, 1.05),
        flat_memory(f"its memory, {size} MiB", peak, "10 MiB", small_peak),
    ]
