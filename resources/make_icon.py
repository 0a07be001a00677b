#!/usr/bin/env python3
"""Draws the program's icon, tonmira.ico: a tone's wave on a rounded tile.

Run it in this folder after changing the drawing; the result is checked in, so that a build needs
nothing of it. Sizes up to 64 pixels are stored as bitmaps, which every system reads; the larger
ones, which only newer systems ask for, as PNG.
"""

import math
import struct
import zlib

SIZES = (16, 20, 24, 32, 48, 64, 128, 256)
LARGEST_BITMAP = 64

TILE_TOP = (0x2F, 0x6F, 0xED)
TILE_BOTTOM = (0x12, 0x2F, 0x8F)
WAVE = (0xFF, 0xFF, 0xFF)
ECHO = (0x5C, 0xD6, 0xFF)

AMPLITUDE = 0.235  # of the tile's side, like all lengths below
MARGIN = 0.19
CORNER = 0.22


def mix(below, above, share):
    return tuple(b + (a - b) * share for b, a in zip(below, above))


def tile_distance(x, y, inset):
    """Distance outside the rounded tile; negative inside."""
    half = 0.5 - inset
    dx = abs(x - 0.5) - (half - CORNER)
    dy = abs(y - 0.5) - (half - CORNER)
    outside = math.hypot(max(dx, 0.0), max(dy, 0.0))
    return outside + min(max(dx, dy), 0.0) - CORNER


def wave_points(amplitude, phase):
    count = 96
    points = []
    for i in range(count + 1):
        turn = i / count
        x = MARGIN + (1 - 2 * MARGIN) * turn
        points.append((x, 0.5 - amplitude * math.sin(2 * math.pi * turn + phase)))
    return points


def curve_distance(x, y, points):
    """Distance to a polyline; only its part near `x` can be the nearest."""
    step = (points[-1][0] - points[0][0]) / (len(points) - 1)
    near = int((x - points[0][0]) / step)
    reach = len(points) // 7
    best = 9.0
    for i in range(max(0, near - reach), min(len(points) - 1, near + reach)):
        ax, ay = points[i]
        bx, by = points[i + 1]
        along = ((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / ((bx - ax) ** 2 + (by - ay) ** 2)
        along = min(1.0, max(0.0, along))
        best = min(best, math.hypot(x - ax - along * (bx - ax), y - ay - along * (by - ay)))
    return best


def coverage(distance, pixel):
    """How much of a pixel lies inside an edge at `distance` from its centre."""
    return min(1.0, max(0.0, 0.5 - distance / pixel))


def draw(size):
    """Rows of (red, green, blue, alpha), from the top."""
    pixel = 1.0 / size
    inset = 0.0 if size < 32 else 0.02
    # Small sizes need a bolder line to be read.
    stroke = max(0.095 if size >= 64 else 0.115, 2.1 * pixel)
    wave = wave_points(AMPLITUDE, 0.0)
    echoes = [wave_points(AMPLITUDE * f, 0.0) for f in (0.42, -0.42, -1.0)] if size >= 64 else []
    rows = []
    for row in range(size):
        y = (row + 0.5) * pixel
        line = []
        for column in range(size):
            x = (column + 0.5) * pixel
            color = mix(TILE_TOP, TILE_BOTTOM, 0.25 * x + 0.75 * y)
            for points in echoes:
                inside = coverage(curve_distance(x, y, points) - 0.011, pixel)
                color = mix(color, ECHO, 0.45 * inside)
            inside = coverage(curve_distance(x, y, wave) - stroke / 2, pixel)
            color = mix(color, WAVE, inside)
            alpha = coverage(tile_distance(x, y, inset), pixel)
            line.append(tuple(round(c) for c in color) + (round(255 * alpha),))
        rows.append(line)
    return rows


def as_bitmap(rows):
    size = len(rows)
    colors = b"".join(bytes((b, g, r, a)) for line in reversed(rows) for r, g, b, a in line)
    mask = b""
    for line in reversed(rows):
        bits = 0
        for pixel in line:
            bits = bits << 1 | (pixel[3] < 128)
        width = (size + 31) // 32 * 32
        mask += (bits << (width - size)).to_bytes(width // 8, "big")
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(colors) + len(mask),
                         0, 0, 0, 0)
    return header + colors + mask


def as_png(rows):
    size = len(rows)
    above = bytes(4 * size)
    filtered = b""
    for line in rows:
        plain = b"".join(bytes(pixel) for pixel in line)
        filtered += b"\x02" + bytes((p - a) & 0xFF for p, a in zip(plain, above))
        above = plain

    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data)))

    return (b"\x89PNG\r\n\x1a\n" +
            chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(filtered, 9)) + chunk(b"IEND", b""))


def icon_file(draw_one):
    """An icon of all sizes; `draw_one` draws it at a size."""
    images = []
    for size in SIZES:
        rows = draw_one(size)
        images.append(as_bitmap(rows) if size <= LARGEST_BITMAP else as_png(rows))
    offset = 6 + 16 * len(SIZES)
    entries = b""
    for size, image in zip(SIZES, images):
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    return struct.pack("<HHH", 0, 1, len(SIZES)) + entries + b"".join(images)


def main():
    with open("tonmira.ico", "wb") as file:
        file.write(icon_file(draw))


if __name__ == "__main__":
    main()
