"""Pictures of metafiles: converted by the tool, made pixels, set side by side."""

import os
import subprocess
import tempfile
from pathlib import Path

import numpy as np
from PIL import Image

FONTS = Path(__file__).with_name("fonts.conf")
SECONDS = 60  # more than a conversion or its pixels may take
GAP = 8  # pixels between two pictures


class Failure(Exception):
    """No picture, and why."""


def convert(tool: Path, metafile: Path, page: str, output: Path) -> None:
    """Has the tool write the output, whose ending is the format, with the fonts of the truths."""
    command = [tool, "--page", page, "-o", output, metafile]
    environment = os.environ | {"FONTCONFIG_FILE": str(FONTS)}
    try:
        done = subprocess.run(command, capture_output=True, timeout=SECONDS, env=environment, check=False)
    except subprocess.TimeoutExpired:
        raise Failure("takes too long") from None
    if done.returncode != 0:
        raise Failure(f"exit status {done.returncode}")


def pixels_of(document: Path, width: int, height: int) -> np.ndarray:
    """The document as RGB of exactly this size, over white."""
    with tempfile.TemporaryDirectory() as folder:
        if document.suffix == ".pdf":
            document = rasterise(document, width, height, Path(folder))
        try:
            return fitted(Image.open(document), width, height)
        except OSError:
            raise Failure("cannot be read") from None


def rasterise(document: Path, width: int, height: int, folder: Path) -> Path:
    size = ["-scale-to-x", str(width), "-scale-to-y", str(height)]
    command = ["pdftoppm", "-png", "-singlefile", *size, document, folder / "page"]
    try:
        subprocess.run(command, capture_output=True, timeout=SECONDS, check=False)
    except subprocess.TimeoutExpired:
        raise Failure("its pixels take too long") from None
    return folder / "page.png"


def fitted(image: Image.Image, width: int, height: int) -> np.ndarray:
    if image.mode != "RGB":
        image = image.convert("RGBA")
        image = Image.alpha_composite(Image.new("RGBA", image.size, "white"), image).convert("RGB")
    if image.size != (width, height):
        image = image.resize((width, height), Image.BOX if image.width > width else Image.BICUBIC)
    return np.asarray(image)


def read_truth(path: Path) -> np.ndarray:
    """A true picture as RGB."""
    try:
        return np.asarray(Image.open(path).convert("RGB"))
    except OSError:
        raise Failure(f"has no truth: {path.name}") from None


def write_side_by_side(path: Path, truth: np.ndarray, picture: np.ndarray) -> None:
    """The truth on the left."""
    gap = np.full((truth.shape[0], GAP, 3), 128, np.uint8)
    Image.fromarray(np.hstack([truth, gap, picture])).save(path)
