#!/usr/bin/env python3
"""Draws the installer's own pictures: tnf.ico, the icon of a tone program, a sheet with the wave of
the program's icon; and side.bmp, which stands beside the last page's text.

Run it in this folder after changing a drawing; the results are checked in.
"""

import math
import struct
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "resources"))

from make_icon import (  # noqa: E402
    TILE_BOTTOM, TILE_TOP, coverage, curve_distance, icon_file, mix, wave_points)

PAPER = (0xFF, 0xFF, 0xFF)
FOLD = (0xC9, 0xD6, 0xF2)
EDGE = (0x5A, 0x6E, 0xA8)

# Lengths are shares of the icon's side.
LEFT, RIGHT, TOP, BOTTOM = 0.14, 0.86, 0.03, 0.97
FOLDED = 0.24
FRAME = 0.02

SIDE_WIDTH, SIDE_HEIGHT = 164, 314
WAVES = 5
SHADES = 64


def sheet_distance(x, y):
    """Distance outside the sheet, whose upper right corner is folded; negative inside."""
    flat = max(LEFT - x, x - RIGHT, TOP - y, y - BOTTOM)
    corner = ((x - (RIGHT - FOLDED)) - (y - TOP)) / math.sqrt(2)
    return max(flat, corner)


def draw_sheet(size):
    """Rows of (red, green, blue, alpha), from the top."""
    pixel = 1.0 / size
    frame = max(FRAME, 0.9 * pixel)
    stroke = max(0.085, 2 * pixel)
    shrink = (RIGHT - LEFT) * 0.98
    wave = [(0.5 + (px - 0.5) * shrink, 0.56 + (py - 0.5) * 0.8)
            for px, py in wave_points(0.235, 0.0)]
    rows = []
    for row in range(size):
        y = (row + 0.5) * pixel
        line = []
        for column in range(size):
            x = (column + 0.5) * pixel
            outside = sheet_distance(x, y)
            color = mix(EDGE, PAPER, coverage(outside + frame, pixel))
            fold = max(RIGHT - FOLDED - x, y - TOP - FOLDED)
            if fold < 0:
                color = mix(EDGE, FOLD, coverage(max(fold, outside) + frame, pixel))
            blue = mix(TILE_TOP, TILE_BOTTOM, y)
            color = mix(color, blue, coverage(curve_distance(x, y, wave) - stroke / 2, pixel))
            line.append(tuple(round(c) for c in color) + (round(255 * coverage(outside, pixel)),))
        rows.append(line)
    return rows


def draw_side():
    """A bitmap with a palette of shades, from the tile's colours to white."""
    palette = [mix(mix(TILE_TOP, TILE_BOTTOM, 0.4), PAPER, i / (SHADES - 1)) for i in range(SHADES)]
    rows = []
    for row in range(SIDE_HEIGHT):
        line = bytearray()
        for column in range(SIDE_WIDTH):
            light = 0.0
            for wave in range(WAVES):
                turns = column / SIDE_WIDTH * (1 + 0.75 * wave)
                middle = SIDE_HEIGHT * (0.16 + 0.17 * wave)
                height = middle - 18 * math.sin(2 * math.pi * turns)
                slope = 18 * 2 * math.pi * (1 + 0.75 * wave) / SIDE_WIDTH * math.cos(
                    2 * math.pi * turns)
                distance = abs(row - height) / math.hypot(1, slope)
                light = max(light, min(1.0, max(0.0, 2.6 - distance)) * (1 - 0.17 * wave))
            line.append(round(light * (SHADES - 1)))
        rows.append(bytes(line))
    pixels = b"".join(reversed(rows))  # the width needs no padding
    colors = b"".join(bytes((round(b), round(g), round(r), 0)) for r, g, b in palette)
    start = 14 + 40 + len(colors)
    return (struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start) +
            struct.pack("<IiiHHIIiiII", 40, SIDE_WIDTH, SIDE_HEIGHT, 1, 8, 0, len(pixels), 2835,
                        2835, SHADES, SHADES) + colors + pixels)


def main():
    Path("tnf.ico").write_bytes(icon_file(draw_sheet))
    Path("side.bmp").write_bytes(draw_side())


if __name__ == "__main__":
    main()
