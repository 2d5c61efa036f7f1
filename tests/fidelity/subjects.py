"""What is judged: metafiles of which the right picture is known."""

import fnmatch
import json
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

SCENES = Path(__file__).parent.parent / "scenes"
GOOD_INK = 0.95
GOOD_SSIM = {"scene": 0.9, "reference": 0.95}


@dataclass(frozen=True)
class Subject:
    """A metafile and its true pictures, of which the one that agrees best counts."""

    group: str
    name: str
    metafile: Path
    page: str  # what becomes the page, as the tool's option has it
    truths: tuple[Path, ...]
    good_ssim: float
    is_certain: bool  # whether the truth can be relied on in all its parts


def scenes(folder: Path = SCENES) -> Iterator[Subject]:
    """One feature a metafile. Those whose truth is in doubt as a whole are left out."""
    for scene in json.loads((folder / "scenes.json").read_text()):
        if scene["trust"] == "no":
            continue
        yield Subject(
            group=f"scenes {scene['kind']}",
            name=scene["name"],
            metafile=folder / f"{scene['name']}.emf",
            page="frame",
            truths=tuple(folder / truth for truth in scene["truth"]),
            good_ssim=GOOD_SSIM["scene"],
            is_certain=scene["trust"] == "yes",
        )


def references(folder: Path) -> Iterator[Subject]:
    """Metafiles of other programs. Each folder below has an index.json; paths in it start beside the folder."""
    for index in sorted(folder.glob("*/index.json")):
        for row in json.loads(index.read_text()):
            truths = [f"{row['name']}.png", *([row["also"]] if "also" in row else [])]
            kind, separator, _ = row["name"].partition("__")
            yield Subject(
                group=f"{index.parent.name} {kind}" if separator else index.parent.name,
                name=row["name"],
                metafile=folder.resolve().parent / row["file"],
                page=row["page"],
                truths=tuple(index.parent / truth for truth in truths),
                good_ssim=GOOD_SSIM["reference"],
                is_certain=True,
            )


def named(subjects: Iterator[Subject], pattern: str) -> list[Subject]:
    """Those whose name the pattern of a shell fits."""
    return [subject for subject in subjects if fnmatch.fnmatch(subject.name, pattern)]
