"""The names of files as they come into being, however short they are there."""

import ctypes
import os
import struct
from collections.abc import Iterator
from contextlib import contextmanager
from pathlib import Path

IN_CREATE = 0x100
HEADER = struct.Struct("iIII")


class Created:
    def __init__(self, watch: int):
        self._watch = watch
        self._names: list[str] = []

    def names(self) -> list[str]:
        """All since the watch began."""
        try:
            events = os.read(self._watch, 65536)
        except BlockingIOError:
            return self._names
        while events:
            *_, length = HEADER.unpack_from(events)
            name = events[HEADER.size:HEADER.size + length]
            self._names.append(name.rstrip(b"\0").decode())
            events = events[HEADER.size + length:]
        return self._names


@contextmanager
def created_in(folder: Path) -> Iterator[Created]:
    libc = ctypes.CDLL(None, use_errno=True)
    watch = libc.inotify_init1(os.O_NONBLOCK)
    try:
        if libc.inotify_add_watch(watch, str(folder).encode(), IN_CREATE) < 0:
            raise OSError(ctypes.get_errno(), "no watch")
        yield Created(watch)
    finally:
        os.close(watch)
