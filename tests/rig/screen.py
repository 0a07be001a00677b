"""What stands on the rig's display at this moment, as pixels, and what a drawn wave holds."""

import ctypes
import time

import numpy as np

from rig.rig import Rig
from rig.window import Place

ALL_PLANES = ctypes.c_ulong(-1)
Z_PIXMAP = 2


class XImage(ctypes.Structure):
    _fields_ = [(name, ctypes.c_int) for name in ("width", "height", "xoffset", "format")] + [
        ("data", ctypes.POINTER(ctypes.c_ubyte))] + [
        (name, ctypes.c_int) for name in ("byte_order", "bitmap_unit", "bitmap_bit_order",
                                          "bitmap_pad", "depth", "bytes_per_line",
                                          "bits_per_pixel")]


class Screen:
    """Looks without waiting for anything to settle; one look takes about a millisecond."""

    def __init__(self, rig: Rig):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._x11.XGetImage.restype = ctypes.POINTER(XImage)
        self._x11.XGetImage.argtypes = [
            ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
            ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
        self._x11.XDestroyImage.argtypes = [ctypes.POINTER(XImage)]
        self._x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
        self._display = self._x11.XOpenDisplay(rig.env["DISPLAY"].encode())
        if not self._display:
            raise OSError("no display")
        self._root = self._x11.XDefaultRootWindow(self._display)

    def close(self) -> None:
        self._x11.XCloseDisplay(self._display)

    def __enter__(self) -> "Screen":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def look(self, place: Place) -> np.ndarray:
        """Rows of pixels 0xRRGGBB, copied."""
        image = self._x11.XGetImage(self._display, self._root, place.x, place.y, place.width,
                                    place.height, ALL_PLANES, Z_PIXMAP)
        shown = image.contents
        assert shown.bits_per_pixel == 32
        data = ctypes.string_at(shown.data, shown.bytes_per_line * shown.height)
        rows = np.frombuffer(data, "<u4").reshape(shown.height, shown.bytes_per_line // 4)
        self._x11.XDestroyImage(image)
        return rows[:, : place.width] & 0xFFFFFF

    def frames(self, place: Place, seconds: float) -> int:
        """How often what stands there changes."""
        changes = 0
        end = time.monotonic() + seconds
        before = self.look(place)
        while time.monotonic() < end:
            now = self.look(place)
            if not np.array_equal(now, before):
                changes += 1
                before = now
            time.sleep(0.004)
        return changes


def drawn(pixels: np.ndarray) -> np.ndarray:
    """Which pixels are not of the picture's most frequent colour, its background."""
    colours, counts = np.unique(pixels, return_counts=True)
    return pixels != colours[counts.argmax()]


def periods(marks: np.ndarray) -> float:
    """How many periods a drawn wave has over the picture's width, to a fraction of one."""
    rows = np.arange(marks.shape[0])[:, None]
    counts = marks.sum(axis=0)
    heights = np.where(counts > 0, (marks * rows).sum(axis=0) / np.maximum(counts, 1),
                       marks.shape[0] / 2)
    wave = (heights - heights.mean()) * np.hanning(len(heights))
    spectrum = np.abs(np.fft.rfft(wave, 16 * len(wave)))
    return float(spectrum.argmax()) / 16
