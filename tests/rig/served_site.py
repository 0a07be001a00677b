"""The maker's site, served by nginx on this machine for as long as a test needs it.

The server is the caller's own child process. It serves what site/ makes, in which a test may put
other contents in a file's place, and takes uploads as on a real host (docs/nginx-site.conf).
"""

import contextlib
import socket
import subprocess
import sys
import tempfile
from collections.abc import Iterator, Mapping
from dataclasses import dataclass
from pathlib import Path

from rig.paths import PROJECT
from rig.processes import end_process
from rig.waiting import wait_for

SITE = PROJECT / "site"
RULES = PROJECT / "docs" / "nginx-site.conf"
ADDRESS = "127.0.0.1"
LOG_FORMAT = "$request_method $request_uri $status"
PORT_ATTEMPTS = 5

CONFIGURATION = """
daemon off;
master_process off;
pid {folder}/nginx.pid;
events {{}}
http {{
  include /etc/nginx/mime.types;
  default_type application/octet-stream;
  log_format plain "{log_format}";
  access_log {folder}/access.log plain;
  client_body_temp_path {folder}/body;
  proxy_temp_path {folder}/proxy;
  fastcgi_temp_path {folder}/fastcgi;
  uwsgi_temp_path {folder}/uwsgi;
  scgi_temp_path {folder}/scgi;
  server {{
    listen {address}:{port}{tls};
    root {folder}/pages;
    set $uploads {folder}/uploads;
    {rules}
    include {site_rules};
  }}
}}
"""
TLS = """ ssl;
    ssl_certificate {folder}/certificate.pem;
    ssl_certificate_key {folder}/key.pem"""


@dataclass(frozen=True)
class ServedSite:
    folder: Path
    base_url: str  # without a slash at its end

    @property
    def pages(self) -> Path:
        """The served site; what is changed here is served at once."""
        return self.folder / "pages"

    @property
    def uploads(self) -> Path:
        """Where uploads arrive."""
        return self.folder / "uploads" / "usage"

    @property
    def access_log(self) -> Path:
        return self.folder / "access.log"

    @property
    def certificate(self) -> Path:
        """The server's own, self-signed one; only there with tls."""
        return self.folder / "certificate.pem"

    def received(self) -> dict[str, bytes]:
        """The uploads by their names."""
        return {path.name: path.read_bytes() for path in sorted(self.uploads.iterdir())}

    def requests(self) -> list[tuple[str, str, int]]:
        """Method, path and status of every request answered so far, oldest first."""
        lines = [line.split(" ") for line in self.access_log.read_text().splitlines()]
        return [(method, path, int(status)) for method, path, status in lines]

    def wait_for_request(self, method: str, path: str, seconds: float = 20) -> int:
        """Waits until such a request was answered; returns the status."""
        def status() -> int | None:
            return next((request[2] for request in self.requests()
                         if request[:2] == (method, path)), None)

        found = wait_for(status, f"{method} {path}", seconds)
        assert isinstance(found, int)
        return found


def make_site(folder: Path) -> None:
    """Writes the site as it is hosted into a new folder."""
    subprocess.run([sys.executable, SITE / "make_site.py", folder], check=True)


@contextlib.contextmanager
def served_site(parent: Path, overrides: Mapping[str, bytes | None] | None = None,
                rules: str = "", tls: bool = False) -> Iterator[ServedSite]:
    """Serves the site, with everything that belongs to it in a new folder of `parent`.

    `overrides` gives files of the site other contents, or takes them away (None). `rules` are
    nginx directives of the server that come before the site's own.
    """
    folder = Path(tempfile.mkdtemp(prefix="site-", dir=parent))
    make_site(folder / "pages")
    (folder / "uploads" / "usage").mkdir(parents=True)
    for name, content in (overrides or {}).items():
        path = folder / "pages" / name
        if content is None:
            path.unlink()
        else:
            path.write_bytes(content)
    if tls:
        make_certificate(folder)
    server, port = start_server(folder, rules, tls)
    try:
        yield ServedSite(folder, f"{'https' if tls else 'http'}://{ADDRESS}:{port}")
    finally:
        end_process(server)


def start_server(folder: Path, rules: str, tls: bool) -> tuple[subprocess.Popen, int]:
    for _ in range(PORT_ATTEMPTS):
        port = free_port()
        configuration = CONFIGURATION.format(
            folder=folder, log_format=LOG_FORMAT, address=ADDRESS, port=port, rules=rules,
            site_rules=RULES, tls=TLS.format(folder=folder) if tls else "")
        (folder / "nginx.conf").write_text(configuration)
        server = subprocess.Popen(
            ["nginx", "-p", folder, "-c", folder / "nginx.conf", "-e", folder / "error.log"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True)
        # Written once the server listens.
        wait_for(lambda: (folder / "nginx.pid").exists() or server.poll() is not None,
                 "the web server")
        if server.poll() is None:
            return server, port
    raise RuntimeError("nginx does not start: " + (folder / "error.log").read_text())


def free_port() -> int:
    with socket.socket() as probe:
        probe.bind((ADDRESS, 0))
        return probe.getsockname()[1]


def make_certificate(folder: Path) -> None:
    """A certificate for the server's address, and for "localhost", that no one else vouches for."""
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2",
         "-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost,IP:" + ADDRESS,
         "-keyout", folder / "key.pem", "-out", folder / "certificate.pem"],
        check=True, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
