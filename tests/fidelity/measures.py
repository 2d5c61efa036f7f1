"""How much two pictures agree, in three numbers from 0 to 1."""

from collections.abc import Iterable
from typing import NamedTuple

import numpy as np

LUMINANCE = np.array([0.299, 0.587, 0.114])
INK_BELOW = 250  # a pixel whose darkest channel is below it has ink
EDGE_STEP = 0.15  # of brightness, between a pixel's neighbours
ROOM = 2  # pixels that ink and edges may be off
WINDOW = 7  # pixels, of the structure


class Score(NamedTuple):
    """ssim: of structure; ink: F1 of inked pixels; edges: F1 of edges."""

    ssim: float
    ink: float
    edges: float

    @property
    def overall(self) -> float:
        """By which pictures are ranked."""
        return self.ink + self.ssim


class Picture:
    """An RGB array, rows first, and what is compared of it."""

    def __init__(self, pixels: np.ndarray) -> None:
        brightness = pixels.astype(np.float64) / 255 @ LUMINANCE
        red, green, blue = np.moveaxis(pixels, 2, 0)
        self.ink = np.minimum(np.minimum(red, green), blue) < INK_BELOW
        self.edges = edges_of(brightness)
        # Structure is compared of a blur of 3 by 3, in which two ways of smoothing edges are alike.
        self.brightness = mean_around(brightness, 3)
        self.mean = mean_around(self.brightness, WINDOW)
        self.variance = np.maximum(mean_around(self.brightness**2, WINDOW) - self.mean**2, 0)


def compare(truth: Picture, picture: Picture) -> Score:
    """Both of the same size."""
    return Score(
        structural_similarity(truth, picture),
        agreement(truth.ink, picture.ink),
        agreement(truth.edges, picture.edges),
    )


def structural_similarity(a: Picture, b: Picture) -> float:
    """The mean of SSIM, its constants as in the paper (0.01 and 0.03 of the range)."""
    covariance = mean_around(a.brightness * b.brightness, WINDOW) - a.mean * b.mean
    means, variances = 0.01**2, 0.03**2
    alike = (2 * a.mean * b.mean + means) * (2 * covariance + variances)
    most = (a.mean**2 + b.mean**2 + means) * (a.variance + b.variance + variances)
    return float((alike / most).mean())


def agreement(truth: np.ndarray, mask: np.ndarray) -> float:
    """F1 of two masks: of what is in one, how much has some of the other within reach."""
    if not truth.any() and not mask.any():
        return 1.0
    if not truth.any() or not mask.any():
        return 0.0
    recall = (truth & grown(mask, ROOM)).sum() / truth.sum()
    precision = (mask & grown(truth, ROOM)).sum() / mask.sum()
    return float(2 * recall * precision / (recall + precision)) if recall + precision else 0.0


def edges_of(brightness: np.ndarray) -> np.ndarray:
    """Where a pixel's neighbours differ. The outermost pixels, which lack some, are none."""
    lowest, highest = brightness, brightness
    for axis in (0, 1):
        before, after = np.roll(lowest, 1, axis), np.roll(lowest, -1, axis)
        lowest = np.minimum(np.minimum(before, after), lowest)
        before, after = np.roll(highest, 1, axis), np.roll(highest, -1, axis)
        highest = np.maximum(np.maximum(before, after), highest)
    edges = highest - lowest > EDGE_STEP
    edges[[0, -1], :] = False
    edges[:, [0, -1]] = False
    return edges


def mean_around(values: np.ndarray, size: int) -> np.ndarray:
    """The mean of a square of an odd number of pixels around each; the outermost pixels go on."""
    reach = size // 2
    height, width = values.shape
    padded = np.pad(values, [(reach, reach), (0, 0)], mode="edge")
    rows = sum_of(padded[start : start + height] for start in range(size))
    padded = np.pad(rows, [(0, 0), (reach, reach)], mode="edge")
    return sum_of(padded[:, start : start + width] for start in range(size)) / size**2


def sum_of(arrays: Iterable[np.ndarray]) -> np.ndarray:
    """In one array of its own."""
    rest = iter(arrays)
    total = next(rest).copy()
    for array in rest:
        total += array
    return total


def grown(mask: np.ndarray, reach: int) -> np.ndarray:
    """The mask with all that lies within a square around its pixels."""
    wide = mask.copy()
    for step in range(1, reach + 1):
        wide[step:] |= mask[:-step]
        wide[:-step] |= mask[step:]
    square = wide.copy()
    for step in range(1, reach + 1):
        square[:, step:] |= wide[:, :-step]
        square[:, :-step] |= wide[:, step:]
    return square
