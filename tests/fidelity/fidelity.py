#!/usr/bin/python3
"""Converts metafiles and says how near their pages come to the right pictures.

Columns: ssim (structure), ink and edges (F1, two pixels of room), each at most 1. A page is good when its ink is at
least .95 and its ssim at least .95, of a scene .9. See tests/scenes/README.md.
"""

import argparse
import os
import statistics
import sys
import tempfile
from collections.abc import Iterable
from dataclasses import dataclass
from multiprocessing import Pool
from pathlib import Path

import floors
import numpy as np
import pictures
import subjects
from measures import Picture, Score, compare
from subjects import Subject

WORST = 12  # whose pictures are written
NOTHING = Score(0, 0, 0)


@dataclass(frozen=True)
class Verdict:
    subject: Subject
    score: Score
    truth: Path | None  # the one that agrees best
    trouble: str  # why there is no score

    @property
    def is_good(self) -> bool:
        return self.score.ink >= subjects.GOOD_INK and self.score.ssim >= self.subject.good_ssim


@dataclass(frozen=True)
class Judge:
    """Converts into a folder, and keeps there what it judged."""

    tool: Path
    ending: str
    renderer: str
    folder: Path

    def output_of(self, subject: Subject, truth: Path) -> Path:
        """Pixels are made as large as each truth is; other formats are made once."""
        name = f"{subject.name}-{truth.stem}" if self.ending == "png" else subject.name
        return self.folder / f"{name}.{self.ending}"

    def convert(self, subject: Subject) -> None:
        """Writes what is to be judged."""
        if self.ending != "png":
            return pictures.convert(self.tool, subject.metafile, subject.page, self.output_of(subject, Path()))
        for truth in subject.truths:
            height, width, _ = pictures.read_truth(truth).shape
            output = self.output_of(subject, truth)
            pictures.convert(self.tool, subject.metafile, subject.page, output, (width, height))
        return None

    def verdict(self, subject: Subject) -> Verdict:
        try:
            self.convert(subject)
            verdicts = [
                Verdict(subject, self.score(self.output_of(subject, truth), truth), truth, "") for truth in subject.truths
            ]
        except pictures.Failure as failure:
            return Verdict(subject, NOTHING, None, str(failure))
        return max(verdicts, key=lambda verdict: verdict.score.overall)

    def score(self, output: Path, truth: Path) -> Score:
        right = pictures.read_truth(truth)
        return compare(Picture(right), Picture(self.pixels_like(right, output)))

    def pixels_like(self, right: np.ndarray, output: Path) -> np.ndarray:
        height, width, _ = right.shape
        return pictures.pixels_of(output, width, height, self.renderer)

    def write_worst(self, verdicts: Iterable[Verdict], folder: Path) -> None:
        """Truth and result side by side, numbered from the worst."""
        folder.mkdir(parents=True, exist_ok=True)
        for old in folder.glob("*.png"):
            old.unlink()
        shown = [verdict for verdict in verdicts if verdict.truth is not None][:WORST]
        for place, verdict in enumerate(shown, start=1):
            right = pictures.read_truth(verdict.truth)
            picture = self.pixels_like(right, self.output_of(verdict.subject, verdict.truth))
            pictures.write_side_by_side(folder / f"{place:02}-{verdict.subject.name}.png", right, picture)


def print_table(verdicts: list[Verdict]) -> None:
    for verdict in verdicts:
        name, group = verdict.subject.name[-56:], verdict.subject.group
        ssim, ink, edges = verdict.score
        mark = "  " if verdict.is_good else " -"
        print(f"{name:56} {group:19} ssim {ssim:.3f} ink {ink:.3f} edges {edges:.3f}{mark} {verdict.trouble}".rstrip())


def print_summary(verdicts: list[Verdict]) -> None:
    """A line a group, of those whose truth is certain."""
    certain = [verdict for verdict in verdicts if verdict.subject.is_certain]
    for group in sorted({verdict.subject.group for verdict in certain}):
        members = [verdict for verdict in certain if verdict.subject.group == group]
        good = sum(verdict.is_good for verdict in members)
        medians = [statistics.median(column) for column in zip(*(member.score for member in members), strict=True)]
        failed = sum(verdict.truth is None for verdict in members)
        print(
            f"== {group:19} {good:3} of {len(members):3} good ({good / len(members):4.0%}), {failed} failed; "
            "medians: ssim {:.3f} ink {:.3f} edges {:.3f}".format(*medians)
        )


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tool", type=Path, required=True, help="the converter")
    parser.add_argument("--format", default="pdf", choices=pictures.RENDERERS_OF, help="what it is to write")
    parser.add_argument("--renderer", choices=pictures.RENDERERS, help="what makes pixels of it, of those that can")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), metavar="N", help="so many at once")
    parser.add_argument("--worst", type=Path, metavar="DIR", help=f"write the {WORST} worst beside their truths")
    judged = parser.add_mutually_exclusive_group()
    judged.add_argument("--only", default="*", metavar="PATTERN", help="names, as a shell matches them")
    judged.add_argument("--floors", type=Path, metavar="FILE", help="judge the scenes in it, and fail when one falls")
    parser.add_argument(
        "--references",
        type=Path,
        default=os.environ.get("KELVANE_REFERENCES"),
        metavar="DIR",
        help="pictures of other metafiles, too (KELVANE_REFERENCES)",
    )
    return parser.parse_args()


def chosen(options: argparse.Namespace, known: dict[str, floors.Floor]) -> list[Subject]:
    """With floors the scenes that have one; otherwise all there are."""
    judged = subjects.named(subjects.scenes(), options.only)
    if options.floors is not None:
        return [subject for subject in judged if subject.name in known]
    if options.references is not None:
        judged += subjects.named(subjects.references(Path(options.references)), options.only)
    return judged


def main() -> int:
    options = arguments()
    known = floors.read(options.floors) if options.floors is not None else {}
    with tempfile.TemporaryDirectory() as folder, Pool(options.jobs) as pool:
        renderer = options.renderer or pictures.RENDERERS_OF[options.format][0]
        judge = Judge(options.tool.resolve(), options.format, renderer, Path(folder))
        verdicts = pool.map(judge.verdict, chosen(options, known), chunksize=1)
        verdicts.sort(key=lambda verdict: verdict.score.overall)
        if options.worst is not None:
            judge.write_worst(verdicts, options.worst)
    print_table(verdicts)
    print_summary(verdicts)
    if options.floors is None:
        return 0
    scores = {verdict.subject.name: verdict.score for verdict in verdicts if verdict.truth is not None}
    wrong = floors.complaints(known, scores, options.floors)
    print(*wrong, sep="\n", file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
