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
SMALLEST_WINDOW = 600  # pixels, of a browser


class Failure(Exception):
    """No picture, and why."""


def convert(tool: Path, metafile: Path, page: str, output: Path, size: tuple[int, int] | None = None) -> None:
    """Has the tool write the output, whose ending is the format, with the fonts of the truths.

    The size, of pixels, is for a format that has them.
    """
    pixels = ["--width", str(size[0]), "--height", str(size[1])] if size is not None else []
    command = [tool, "--page", page, *pixels, "-o", output, metafile]
    environment = os.environ | {"FONTCONFIG_FILE": str(FONTS)}
    try:
        done = subprocess.run(command, capture_output=True, timeout=SECONDS, env=environment, check=False)
    except subprocess.TimeoutExpired:
        raise Failure("takes too long") from None
    if done.returncode != 0:
        raise Failure(f"exit status {done.returncode}")


def pixels_of(document: Path, width: int, height: int, renderer: str) -> np.ndarray:
    """The document as RGB of exactly this size, over white. A PNG needs no renderer."""
    with tempfile.TemporaryDirectory() as folder:
        page = document
        if document.suffix != ".png":
            page = Path(folder) / "page.png"
            run(RENDERERS[renderer](document, width, height, page))
        try:
            image = Image.open(page)
            return fitted(image.crop((0, 0, width, height)) if renderer == "chromium" else image, width, height)
        except OSError:
            raise Failure("cannot be read") from None


def with_poppler(document: Path, width: int, height: int, page: Path) -> list:
    size = ["-scale-to-x", width, "-scale-to-y", height]
    return ["pdftoppm", "-png", "-singlefile", *size, document, page.with_suffix("")]


def with_librsvg(document: Path, width: int, height: int, page: Path) -> list:
    return ["rsvg-convert", "--width", width, "--height", height, "--unlimited", document, "--output", page]


def with_chromium(document: Path, width: int, height: int, page: Path) -> list:
    """Shows the document as an image in the corner of a window, which is never small."""
    shown = page.with_suffix(".html")
    size = f"width={width} height={height}"
    source = f"{document.absolute().as_uri()}#svgView(preserveAspectRatio(none))"
    shown.write_text(f'<body style="margin:0"><img style="display:block" {size} src="{source}">')
    window = f"--window-size={max(width, SMALLEST_WINDOW)},{max(height, SMALLEST_WINDOW)}"
    own = ["--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--force-color-profile=srgb"]
    profile = f"--user-data-dir={page.parent / 'browser'}"
    return ["chromium", *own, profile, window, f"--screenshot={page}", shown.as_uri()]


# The first one of a format is the one that is asked when none is named.
RENDERERS = {"poppler": with_poppler, "librsvg": with_librsvg, "chromium": with_chromium}
RENDERERS_OF = {"pdf": ["poppler"], "svg": ["librsvg", "chromium"], "png": [""]}


def run(command: list) -> None:
    environment = os.environ | {"FONTCONFIG_FILE": str(FONTS)}
    words = [str(word) for word in command]
    try:
        subprocess.run(words, capture_output=True, timeout=SECONDS, env=environment, check=False)
    except subprocess.TimeoutExpired:
        raise Failure("its pixels take too long") from None


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
