"""Makes the README's picture again and compares it with the one that is shown.

Usage: readme_picture.py PROGRAMS PROJECT
"""

import pathlib
import subprocess
import sys
import tempfile

import numpy as np
from PIL import Image

MOST_DIFFERENCE = 0.2  # mean of 255: edges that a renderer's next version smooths otherwise


def pixels(path):
    return np.asarray(Image.open(path).convert('RGB'), dtype=float)


def main(programs, project):
    shown = project / 'docs/report.png'
    with tempfile.TemporaryDirectory() as folder:
        made = pathlib.Path(folder) / 'made.png'
        subprocess.run([project / 'samples/compare_pages', programs, project / 'samples/report.emf', made], check=True)
        before, now = pixels(shown), pixels(made)
    if before.shape != now.shape:
        return f'{shown} is {before.shape}, but {now.shape} is made'
    difference = abs(before - now).mean()
    if difference > MOST_DIFFERENCE:
        return f'{shown} differs from what is made by {difference:.2f}; make it again with samples/compare_pages'
    return None


if __name__ == '__main__':
    sys.exit(main(*map(pathlib.Path, sys.argv[1:])))
