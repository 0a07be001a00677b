"""Waiting for what happens, instead of sleeping."""

import time
from collections.abc import Callable


def wait_for(condition: Callable[[], object], what: str, seconds: float = 20) -> object:
    """Returns the first true value of `condition`; fails when none comes in time."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise TimeoutError(f"waited {seconds} s in vain for {what}")
        time.sleep(0.02)
