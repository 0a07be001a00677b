"""What a picture of a window must hold at least."""

import subprocess
from pathlib import Path

import numpy as np


def assert_shows_something(picture: Path, width: int, height: int) -> None:
    """At least this large, and no single colour fills nearly all of it."""
    size = subprocess.run(["identify", "-format", "%w %h", picture], check=True,
                          stdout=subprocess.PIPE, text=True).stdout.split()
    assert int(size[0]) >= width and int(size[1]) >= height, size
    data = subprocess.run(["convert", picture, "-depth", "8", "rgb:-"], check=True,
                          stdout=subprocess.PIPE).stdout
    pixels = np.frombuffer(data, np.uint8).reshape(-1, 3).astype(np.uint32)
    colours = pixels[:, 0] << 16 | pixels[:, 1] << 8 | pixels[:, 2]
    counts = np.unique(colours, return_counts=True)[1]
    assert len(counts) >= 8
    assert counts.max() < 0.97 * len(colours)
