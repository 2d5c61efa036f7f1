#!/usr/bin/python3
"""The judge, judged: on pictures of a few pixels and floors of a few scenes."""

import json
import os
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import numpy as np
from PIL import Image

import fidelity
import floors
import pictures
import subjects
from floors import Floor
from measures import Picture, Score, compare


def blank(height: int = 40, width: int = 60) -> np.ndarray:
    return np.full((height, width, 3), 255, np.uint8)


def with_box(left: int, top: int) -> np.ndarray:
    pixels = blank()
    pixels[top : top + 10, left : left + 10] = 0
    return pixels


def scored(truth: np.ndarray, picture: np.ndarray) -> Score:
    return compare(Picture(truth), Picture(picture))


class Measures(unittest.TestCase):
    def test_equal_pictures_agree_wholly(self) -> None:
        for pixels in (blank(), with_box(20, 10)):
            for number in scored(pixels, pixels):
                self.assertAlmostEqual(number, 1)

    def test_two_pixels_off_is_near_enough_for_ink_and_edges_but_not_for_structure(self) -> None:
        score = scored(with_box(20, 10), with_box(22, 10))
        self.assertEqual((score.ink, score.edges), (1, 1))
        self.assertLess(score.ssim, 0.95)

    def test_three_pixels_off_is_too_far(self) -> None:
        score = scored(with_box(20, 10), with_box(23, 10))
        self.assertAlmostEqual(score.ink, 0.9)
        self.assertLess(score.edges, 1)

    def test_a_blank_page_has_none_of_the_ink(self) -> None:
        self.assertEqual(scored(with_box(20, 10), blank()).ink, 0)
        self.assertEqual(scored(blank(), with_box(20, 10)).ink, 0)

    def test_pale_colours_are_ink_as_long_as_they_are_no_white(self) -> None:
        pale = blank()
        pale[10:20, 10:20] = (255, 255, 249)
        self.assertEqual(scored(pale, pale).ink, 1)
        self.assertEqual(scored(pale, blank()).ink, 0)


class Pictures(unittest.TestCase):
    def test_what_is_transparent_shows_white(self) -> None:
        image = Image.new("RGBA", (2, 1), (255, 0, 0, 0))
        self.assertTrue((pictures.fitted(image, 2, 1) == 255).all())

    def test_a_picture_gets_the_size_of_its_truth(self) -> None:
        self.assertEqual(pictures.fitted(Image.new("RGB", (30, 20)), 60, 40).shape, (40, 60, 3))


class Floors(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = Path(folder.name) / "floors.tsv"
        self.known = {"pie": Floor("pie", Score(0.9, 0.8, 0.7), "a reason")}
        self.enterContext(mock.patch.dict(os.environ, UPDATE_FLOORS=""))

    def complaints(self, score: Score) -> list[str]:
        return floors.complaints(self.known, {"pie": score}, self.path)

    def test_a_scene_may_be_on_its_floor_or_a_little_above(self) -> None:
        self.assertEqual(self.complaints(Score(0.9, 0.8, 0.7)), [])
        self.assertEqual(self.complaints(Score(0.909, 0.809, 0.709)), [])

    def test_a_scene_that_falls_in_one_number_is_named(self) -> None:
        self.assertEqual(
            self.complaints(Score(0.9, 0.799, 0.7)), ["pie fell from 0.900 0.800 0.700 to 0.900 0.799 0.700"]
        )

    def test_a_scene_without_a_score_is_named(self) -> None:
        self.assertEqual(floors.complaints(self.known, {}, self.path), ["pie has no score"])

    def test_a_scene_that_rose_wants_its_floor_raised(self) -> None:
        self.assertIn("better than recorded", self.complaints(Score(0.92, 0.8, 0.7))[0])

    def test_updating_raises_floors_and_never_lowers_one(self) -> None:
        with mock.patch.dict(os.environ, UPDATE_FLOORS="1"):
            wrong = self.complaints(Score(0.9567, 0.8, 0.6))
        self.assertEqual(wrong, ["pie fell from 0.900 0.800 0.700 to 0.957 0.800 0.600"])
        self.assertEqual(floors.read(self.path)["pie"], Floor("pie", Score(0.956, 0.8, 0.7), "a reason"))

    def test_a_file_is_read_as_it_was_written(self) -> None:
        known = self.known | {"arc": Floor("arc", Score(1, 1, 1), "")}
        floors.write(self.path, known)
        self.assertEqual(floors.read(self.path), known)


class Scenes(unittest.TestCase):
    def test_a_missing_truth_is_a_failure(self) -> None:
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            scene = {"name": "pie", "kind": "emf", "trust": "yes", "truth": ["pie.png"], "shows": ""}
            (folder / "scenes.json").write_text(json.dumps([scene]))
            (subject,) = subjects.scenes(folder)
            # A tool that says it did well.
            verdict = fidelity.Judge(Path("/bin/true"), "pdf", "poppler", folder).verdict(subject)
        self.assertEqual(verdict.trouble, "has no truth: pie.png")
        self.assertIsNone(verdict.truth)

    def test_every_scene_has_its_file_and_its_truths(self) -> None:
        for subject in subjects.scenes():
            for path in (subject.metafile, *subject.truths):
                self.assertTrue(path.exists(), path)

    def test_every_floor_is_that_of_a_scene_that_is_judged(self) -> None:
        judged = {subject.name for subject in subjects.scenes()}
        for form in ("pdf", "svg", "png"):
            known = floors.read(subjects.SCENES / f"floors-{form}.tsv")
            self.assertTrue(known, form)
            self.assertLessEqual(known.keys(), judged)


if __name__ == "__main__":
    unittest.main()
