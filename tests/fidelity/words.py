#!/usr/bin/python3
"""Converts metafiles and says which words of their text records are not in the text of the PDF.

Words are what blanks separate. They are compared as text: ligatures count as their letters, wide and narrow letters
and all kinds of blanks are the same, and what shows nothing (controls, marks of direction) does not count. The text of
the PDF is that of pdftotext -raw, in the order of drawing, which is that of the records: a line stays a line at any
angle, and text that is drawn twice is there twice. What it has only when the page is made larger lies "beyond" it, and
is not missing: metafiles draw there, too.

Each record is looked for as a whole, the longest first, and then its words; what was found is found once. A word that
is there only when blanks do not count, split or joined to that of another record, is "torn" and not missing. A record
of which all words are there, but not behind each other, is "scattered". Apart are texts that no document can give back
by their codes: in fonts of symbols, of glyph numbers, and in path brackets. Bytes are decoded by the character set of
their font.

Columns: words, missing, their share, beyond, torn, scattered; then the first of the missing words, or why there is no
document.
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
from collections import Counter
from collections.abc import Iterator
from dataclasses import dataclass
from functools import partial
from multiprocessing import Pool
from pathlib import Path

import pictures
import subjects
import text_records
from text_records import Kind, Text
from word_matching import Tally, compare, words_of

SHOWN = 5  # of the missing words of a file
CLASSIC = "kelvaneConverter"  # writes beside its input


@dataclass(frozen=True)
class Tools:
    converter: Path
    inspector: Path
    page: str = "frame"  # what becomes the page, as the converter's option has it


@dataclass(frozen=True)
class Verdict:
    metafile: Path
    tally: Tally
    apart: Counter[Kind]  # texts that do not count
    trouble: str  # why there is no document


def output_of(command: list[str | Path], trouble: str) -> bytes:
    environment = os.environ | {"FONTCONFIG_FILE": str(pictures.FONTS)}
    try:
        done = subprocess.run(command, capture_output=True, timeout=pictures.SECONDS, env=environment, check=False)
    except subprocess.TimeoutExpired:
        raise pictures.Failure(f"{trouble}: takes too long") from None
    if done.returncode != 0:
        raise pictures.Failure(f"{trouble}: exit status {done.returncode}")
    return done.stdout


def widened(document: bytes) -> bytes:
    """With a page that has all there is on it. Without a start of its table readers make a new one."""
    wide = re.sub(rb"/MediaBox ?\[[^]]*\]", b"/MediaBox [-99999 -99999 99999 99999]", document, count=1)
    return wide.replace(b"startxref", b"")


def words_on(document: Path) -> list[str]:
    return words_of(output_of(["pdftotext", "-raw", "-enc", "UTF-8", document, "-"], "no text").decode())


def tally_of(records: list[list[str]], tools: Tools, metafile: Path) -> Tally:
    with tempfile.TemporaryDirectory() as name:
        document = Path(name) / "page.pdf"
        if tools.converter.name == CLASSIC:
            output_of([tools.converter, shutil.copyfile(metafile, document.with_suffix(".emf"))], "no document")
        else:
            output_of([tools.converter, "--page", tools.page, "-o", document, metafile], "no document")
        shown = compare(records, words_on(document))
        if not shown.missing:
            return shown
        document.write_bytes(widened(document.read_bytes()))
        drawn = compare(records, words_on(document))
        drawn.beyond = len(shown.missing) - len(drawn.missing)
        return drawn


def texts_of(tools: Tools, metafile: Path) -> list[Text]:
    dump = output_of([tools.inspector, "dump", metafile], "no records")
    return list(text_records.texts(dump.decode().split("\n")[:-1]))


def verdict_on(metafile: Path, tools: Tools) -> Verdict:
    tally, apart, trouble = Tally(), Counter(), ""
    try:
        texts = texts_of(tools, metafile)
        apart = Counter(text.kind for text in texts if text.kind != Kind.WORDS)
        records = [words_of(text.characters) for text in texts if text.kind == Kind.WORDS]
        tally = compare(records, [])  # all is missing, unless there is a page
        tally = tally_of(records, tools, metafile)
    except pictures.Failure as failure:
        trouble = str(failure)
    return Verdict(metafile, tally, apart, trouble)


def metafiles_in(paths: list[Path]) -> Iterator[Path]:
    """Files as they are given; of folders all below them."""
    for path in paths:
        if path.is_dir():
            yield from sorted(file for file in path.rglob("*") if file.suffix.lower() == ".emf")
        else:
            yield path


def numbers(tally: Tally) -> str:
    missing = f"{tally.words:6} words {len(tally.missing):6} missing {tally.share:6.1%}"
    return f"{missing} {tally.beyond:5} beyond {tally.torn:5} torn {tally.scattered:4} scattered"


def print_table(verdicts: list[Verdict]) -> None:
    """Files that have words, or trouble."""
    for verdict in sorted(
        verdicts, key=lambda verdict: (-verdict.tally.share, -verdict.tally.beyond, verdict.metafile)
    ):
        if verdict.tally.words or verdict.trouble:
            note = verdict.trouble or " ".join(verdict.tally.missing[:SHOWN])
            print(f"{verdict.metafile.stem[-48:]:48} {numbers(verdict.tally)}  {note}".rstrip())


def total_of(verdicts: list[Verdict]) -> Tally:
    total, apart = Tally(), Counter()
    for verdict in verdicts:
        total.add(verdict.tally)
        apart.update(verdict.apart)
    print(f"{f'== {len(verdicts)} files':48} {numbers(total)}")
    print("== apart:", ", ".join(f"{apart[kind]} texts {kind.value}" for kind in Kind if kind != Kind.WORDS))
    return total


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("paths", nargs="*", type=Path, metavar="PATH", help="metafiles, folders of them (the scenes)")
    parser.add_argument("--tool", type=Path, required=True, help=f"the converter: kelvane, or {CLASSIC}")
    parser.add_argument("--inspector", type=Path, help="the kelvane that dumps records (the one beside the converter)")
    parser.add_argument("--page", default="frame", help="what becomes the page: frame, or bounds, which may show more")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), metavar="N", help="so many at once")
    parser.add_argument("--most", type=float, metavar="PERCENT", help="fail when more of the words are missing")
    return parser.parse_args()


def main() -> int:
    options = arguments()
    converter = options.tool.resolve()
    tools = Tools(converter, options.inspector or converter.with_name("kelvane"), options.page)
    metafiles = list(metafiles_in(options.paths or [subjects.SCENES]))
    with Pool(options.jobs) as pool:
        verdicts = pool.map(partial(verdict_on, tools=tools), metafiles, chunksize=1)
    print_table(verdicts)
    total = total_of(verdicts)
    return 1 if options.most is not None and 100 * total.share > options.most else 0


if __name__ == "__main__":
    sys.exit(main())
