"""Web hosts that do not do what a host should. Each listens on a port of this machine of its own
and ends with its context."""

import contextlib
import socket
import ssl
import struct
import subprocess
import threading
from collections.abc import Callable, Iterator
from pathlib import Path

ADDRESS = "127.0.0.1"
PIECE = b"x" * 65536
GIGABYTE = 1 << 30
# What would be an update if the answer were a good one.
UPDATE = b"999\r\nhttp://a.example/\r\n"


class Visit:
    """One connection, after the request has come. `over` is set when the host ends."""

    def __init__(self, connection: socket.socket, path: str, port: int, over: threading.Event):
        self.connection = connection
        self.path = path
        self.port = port
        self.over = over
        self.sent = 0

    def send(self, data: bytes) -> None:
        self.connection.sendall(data)
        self.sent += len(data)

    def answer(self, status: str, *headers: str, body: bytes = b"") -> None:
        head = "\r\n".join([f"HTTP/1.1 {status}", "Connection: close", *headers, "", ""])
        self.send(head.encode() + body)


Behaviour = Callable[[Visit], None]


def silent(visit: Visit) -> None:
    visit.over.wait()


def resetting(visit: Visit) -> None:
    visit.connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))


def redirecting_in_a_circle(visit: Visit) -> None:
    visit.answer("302 Found", f"Location: http://{ADDRESS}:{visit.port}/again",
                 "Content-Length: 0")


def redirecting_to_a_file(visit: Visit) -> None:
    visit.answer("302 Found", "Location: file:///C:/windows/win.ini", "Content-Length: 0")


def a_byte_a_second(visit: Visit) -> None:
    visit.answer("200 OK", "Content-Type: text/plain", "Content-Length: 1000")
    while not visit.over.wait(1):
        visit.send(b"9")


def endless(visit: Visit) -> None:
    """A gigabyte of which nobody was told how long it is."""
    visit.answer("200 OK", "Content-Type: text/plain")
    while visit.sent < GIGABYTE and not visit.over.is_set():
        visit.send(PIECE)


def endless_in_pieces(visit: Visit) -> None:
    """The same, as a server writes that does not know the length itself."""
    visit.answer("200 OK", "Content-Type: text/plain", "Transfer-Encoding: chunked")
    while visit.sent < GIGABYTE and not visit.over.is_set():
        visit.send(f"{len(PIECE):x}\r\n".encode() + PIECE + b"\r\n")


def a_gigabyte(visit: Visit) -> None:
    visit.answer("200 OK", "Content-Type: text/plain", f"Content-Length: {GIGABYTE}")
    while visit.sent < GIGABYTE and not visit.over.is_set():
        visit.send(PIECE)


def asking_for_a_password(visit: Visit) -> None:
    visit.answer("401 Unauthorized", 'WWW-Authenticate: Basic realm="Tonmira"',
                 f"Content-Length: {len(UPDATE)}", body=UPDATE)


def breaking_off(visit: Visit) -> None:
    visit.answer("200 OK", "Content-Type: text/plain", "Content-Length: 1000",
                 body=b"999\r\nhttp://a.example/set")


def missing(visit: Visit) -> None:
    visit.answer("404 Not Found", f"Content-Length: {len(UPDATE)}", body=UPDATE)


def failing(visit: Visit) -> None:
    visit.answer("500 Internal Server Error", body=UPDATE)


def talking_nonsense(visit: Visit) -> None:
    visit.send(bytes(range(256)) * 4)


def answering(body: bytes, kind: str = "text/plain") -> Behaviour:
    """The same for every request."""
    def answer(visit: Visit) -> None:
        visit.answer("200 OK", f"Content-Type: {kind}", f"Content-Length: {len(body)}", body=body)

    return answer


class Host:
    def __init__(self, behaviour: Behaviour, context: ssl.SSLContext | None):
        self._behaviour = behaviour
        self._context = context
        self._over = threading.Event()
        self._listener = socket.create_server((ADDRESS, 0))
        self.port = self._listener.getsockname()[1]
        self.visits: list[Visit] = []
        threading.Thread(target=self._listen, daemon=True).start()

    @property
    def site(self) -> str:
        return f"{'https' if self._context else 'http'}://{ADDRESS}:{self.port}"

    def close(self) -> None:
        self._over.set()
        self._listener.close()

    def _listen(self) -> None:
        with contextlib.suppress(OSError):
            while True:
                connection, _ = self._listener.accept()
                threading.Thread(target=self._serve, args=[connection], daemon=True).start()

    def _serve(self, connection: socket.socket) -> None:
        with contextlib.suppress(OSError), connection:
            connection.settimeout(60)
            if self._context:
                connection = self._context.wrap_socket(connection, server_side=True)
            request = connection.recv(65536).split(b" ", 2)
            if len(request) < 3:
                return
            visit = Visit(connection, request[1].decode(), self.port, self._over)
            self.visits.append(visit)
            self._behaviour(visit)


@contextlib.contextmanager
def host(behaviour: Behaviour, certificate: Path | None = None) -> Iterator[Host]:
    """With a certificate (and its key in one file), the host speaks https."""
    context = None
    if certificate:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate)
    opened = Host(behaviour, context)
    try:
        yield opened
    finally:
        opened.close()


def make_certificate(folder: Path) -> Path:
    """A certificate that no one else vouches for, and its key, in one file."""
    key, certificate = folder / "key.pem", folder / "certificate.pem"
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2",
         "-subj", "/CN=localhost", "-addext", f"subjectAltName=IP:{ADDRESS}",
         "-keyout", key, "-out", certificate],
        check=True, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    both = folder / "both.pem"
    both.write_bytes(key.read_bytes() + certificate.read_bytes())
    return both


def closed_port() -> int:
    """A port that nobody listens on."""
    with socket.create_server((ADDRESS, 0)) as probe:
        return int(probe.getsockname()[1])
