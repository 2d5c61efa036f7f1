"""Below what no scene may fall: a line a scene, its score and why that is not the best there is."""

import math
import os
from dataclasses import dataclass, replace
from pathlib import Path

from measures import Score

HEADER = "scene\tssim\tink\tedges\treason"
STEP = 1000  # floors are whole thousandths
SLACK = 0.01  # that a scene may be better than its floor


@dataclass(frozen=True)
class Floor:
    scene: str
    score: Score
    reason: str  # empty when the scene is good

    def is_reached_by(self, score: Score) -> bool:
        return all(have >= least for have, least in zip(score, self.score, strict=True))

    def is_passed_by(self, score: Score) -> bool:
        """Whether the floor no longer holds the scene where it is."""
        return any(have > least + SLACK for have, least in zip(score, self.score, strict=True))

    def raised_to(self, score: Score) -> "Floor":
        """Never lower in any of its numbers."""
        downs = (math.floor(number * STEP) / STEP for number in score)
        return replace(self, score=Score(*map(max, self.score, downs)))

    def line(self) -> str:
        numbers = "\t".join(f"{number:.3f}" for number in self.score)
        return f"{self.scene}\t{numbers}\t{self.reason}".rstrip("\t")


def read(path: Path) -> dict[str, Floor]:
    floors = {}
    for line in path.read_text().splitlines()[1:]:
        scene, ssim, ink, edges, *reason = line.split("\t")
        floors[scene] = Floor(scene, Score(float(ssim), float(ink), float(edges)), *(reason or [""]))
    return floors


def write(path: Path, floors: dict[str, Floor]) -> None:
    path.write_text("\n".join([HEADER, *(floor.line() for floor in floors.values())]) + "\n")


def complaints(floors: dict[str, Floor], scores: dict[str, Score], path: Path) -> list[str]:
    """What is wrong with the scores of scenes. UPDATE_FLOORS=1 raises the floors to what is better."""
    wrong = []
    for scene, floor in floors.items():
        score = scores.get(scene)
        if score is None:
            wrong.append(f"{scene} has no score")
        elif not floor.is_reached_by(score):
            wrong.append(f"{scene} fell from {numbers(floor.score)} to {numbers(score)}")
    raised = {scene: floor.raised_to(scores.get(scene, floor.score)) for scene, floor in floors.items()}
    if os.environ.get("UPDATE_FLOORS") == "1":
        write(path, raised)
        return wrong
    for scene, floor in floors.items():
        if scene in scores and floor.is_passed_by(scores[scene]):
            better = f"{numbers(scores[scene])}, was {numbers(floor.score)}"
            wrong.append(f"{scene} is better than recorded: {better}; UPDATE_FLOORS=1 raises its floor")
    return wrong


def numbers(score: Score) -> str:
    return " ".join(f"{number:.3f}" for number in score)
