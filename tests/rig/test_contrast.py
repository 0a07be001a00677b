"""The contrast, of colours whose contrast is known."""

import numpy as np
import pytest

from rig.contrast import best_contrast


def text_on_ground(text: int, ground: int) -> np.ndarray:
    pixels = np.full((20, 50), ground, dtype=np.uint32)
    pixels[8:10, 5:20] = text
    return pixels


@pytest.mark.parametrize(("text", "ground", "contrast"), [
    (0x000000, 0xFFFFFF, 21.0), (0xFFFFFF, 0x000000, 21.0), (0x767676, 0xFFFFFF, 4.54),
    (0x000000, 0x000000, 1.0), (0x0000FF, 0x000000, 2.44)])
def test_the_contrast_of_two_colours(text: int, ground: int, contrast: float) -> None:
    assert best_contrast(text_on_ground(text, ground)) == pytest.approx(contrast, abs=0.01)


def test_a_single_pixel_is_no_text() -> None:
    pixels = np.zeros((20, 50), dtype=np.uint32)
    pixels[3, 3] = 0xFFFFFF
    assert best_contrast(pixels) == 1.0
