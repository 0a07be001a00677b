"""Servers on this machine that behave badly."""

import contextlib
import socket
import threading
import time
from collections.abc import Callable, Iterator


@contextlib.contextmanager
def bad_server(answer: Callable[[socket.socket], None]) -> Iterator[str]:
    """A server that does as `answer` says with every connection; gives its address."""
    with socket.create_server(("127.0.0.1", 0)) as listener:
        def serve() -> None:
            with contextlib.suppress(OSError):
                while True:
                    with listener.accept()[0] as connection, contextlib.suppress(OSError):
                        answer(connection)

        threading.Thread(target=serve, daemon=True).start()
        yield f"http://127.0.0.1:{listener.getsockname()[1]}"
        listener.shutdown(socket.SHUT_RDWR)


def silent(connection: socket.socket) -> None:
    while connection.recv(65536):
        pass


def drip(connection: socket.socket) -> None:
    connection.recv(65536)
    for byte in b"HTTP/1.1 201 Created\r\nX-Slow: " + 1000 * b"a":
        connection.send(bytes([byte]))
        time.sleep(0.5)


def hang_up(connection: socket.socket) -> None:
    connection.recv(1)


def babble(connection: socket.socket) -> None:
    connection.recv(65536)
    connection.sendall(b"\0\xff nonsense\r\n\r\n" * 100)
