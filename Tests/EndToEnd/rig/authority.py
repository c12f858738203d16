# SPDX-License-Identifier: MIT
"""A certificate authority made for one scenario, and the web hosts' certificate by it."""

import subprocess
from pathlib import Path


class Authority:
    def __init__(self, folder: Path, hosts: list[str]):
        folder.mkdir()
        self.certificate = folder / "authority.pem"
        self.host_certificate = folder / "hosts.pem"
        self.host_key = folder / "hosts.key"
        authority_key = folder / "authority.key"
        _make(authority_key, self.certificate, "Test authority",
              ["-addext", "basicConstraints=critical,CA:TRUE",
               "-addext", "keyUsage=critical,keyCertSign,cRLSign"])
        names = ",".join(f"DNS:{name}" for name in hosts)
        _make(self.host_key, self.host_certificate, hosts[0],
              ["-CA", str(self.certificate), "-CAkey", str(authority_key),
               "-addext", f"subjectAltName={names}",
               "-addext", "basicConstraints=critical,CA:FALSE"])


def _make(key: Path, certificate: Path, subject: str, options: list[str]) -> None:
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256",
         "-nodes", "-keyout", str(key), "-out", str(certificate), "-subj", f"/CN={subject}",
         "-days", "2", *options],
        check=True, capture_output=True)
