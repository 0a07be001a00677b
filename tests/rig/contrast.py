"""How well a control's text stands out from its ground."""

import numpy as np

# A smaller patch is no letter.
LEAST_PIXELS = 6


def luminance(colours: np.ndarray) -> np.ndarray:
    """Relative luminance of colours 0xRRGGBB (W3C, Web Content Accessibility Guidelines 2.1)."""
    shares = np.stack([colours >> 16 & 255, colours >> 8 & 255, colours & 255], axis=-1) / 255
    linear = np.where(shares <= 0.03928, shares / 12.92, ((shares + 0.055) / 1.055) ** 2.4)
    return linear @ np.array([0.2126, 0.7152, 0.0722])


def best_contrast(pixels: np.ndarray) -> float:
    """The contrast, from 1 to 21, of the ground (the most frequent colour) with the colour that
    stands out most from it."""
    colours, counts = np.unique(pixels, return_counts=True)
    light = luminance(colours)
    ground = light[counts.argmax()]
    shown = light[counts >= LEAST_PIXELS]
    return float(((np.maximum(shown, ground) + 0.05) / (np.minimum(shown, ground) + 0.05)).max())
