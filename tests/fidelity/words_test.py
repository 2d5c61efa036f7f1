#!/usr/bin/python3
"""The checker of words, checked: on records, pages and documents of a few words."""

import contextlib
import io
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import text_records
import words
from text_records import Kind, Text
from word_matching import Tally, compare, words_of

SCALE = "Bounds=(0,0,9,9) iGraphicsMode=GM_COMPATIBLE exScale=1 eyScale=1"


def font(place: int, face: str, charset: str = "ANSI_CHARSET") -> str:
    return f'100 EMR_EXTCREATEFONTINDIRECTW Size=332 ihFonts={place} Height=12 CharSet={charset} Facename="{face}"'


def select(place: object) -> str:
    return f"100 EMR_SELECTOBJECT Size=12 ihObject={place}"


def text_out(value: str, name: str = "EMR_EXTTEXTOUTW", options: str = "0") -> str:
    return f"100 {name} Size=100 {SCALE} Reference=(1,2) Options={options} Rectangle=(0,0,0,0) OutputString={value}"


def texts_of(*lines: str) -> list[Text]:
    return list(text_records.texts(lines))


def ansi(code: str, *lines: str) -> str:
    """What the bytes are in the font that the lines select."""
    (text,) = texts_of(*lines, text_out(f'"{code}"', "EMR_EXTTEXTOUTA"))
    return text.characters


class Texts(unittest.TestCase):
    def test_a_text_is_unescaped(self) -> None:
        dumped = text_out(r'"say \"a=b\" \\ C:\\new\n\u{1f}\u{200b}" OutputDx=2:1,2')
        self.assertEqual(texts_of(dumped), [Text(Kind.WORDS, 'say "a=b" \\ C:\\new\n\x1f\u200b')])

    def test_records_come_in_their_order_and_others_do_not(self) -> None:
        between = ["120 EMR_SAVEDC", "128 EMR_LINETO Size=16 Point=(1,2)"]
        lines = [text_out('"b"'), *between, text_out('""'), text_out('"a"')]
        self.assertEqual([text.characters for text in texts_of(*lines)], ["b", "", "a"])

    def test_a_record_may_have_several_texts(self) -> None:
        one = "Reference=(1,2) Options={} Rectangle=(0,0,0,0) OutputString={}"
        line = f"100 EMR_POLYTEXTOUTW Size=99 {SCALE} cStrings=3 "
        line += " ".join([one.format("0", '"a"'), one.format("ETO_GLYPH_INDEX", "2:3,4"), one.format("0", '"b"')])
        self.assertEqual(texts_of(line), [Text(Kind.WORDS, "a"), Text(Kind.GLYPHS, "3,4"), Text(Kind.WORDS, "b")])

    def test_a_small_text_is_one(self) -> None:
        line = f'9 EMR_SMALLTEXTOUT Size=48 Reference=(1,2) fuOptions=ETO_SMALL_CHARS {SCALE} TextString="caf\u00e9"'
        self.assertEqual(texts_of(line), [Text(Kind.WORDS, "caf\u00e9")])

    def test_bytes_are_in_the_code_page_of_the_font(self) -> None:
        self.assertEqual(ansi(r"\xc0\xe1"), "\u00c0\u00e1")
        russian = font(1, "Arial", "RUSSIAN_CHARSET")
        self.assertEqual(ansi(r"\xc0\xe1", russian, select(1)), "\u0410\u0431")
        self.assertEqual(ansi(r"\x83e", font(1, "Mincho", "SHIFTJIS_CHARSET"), select(1)), "\u30c6")

    def test_a_script_in_the_name_of_a_face_counts_before_the_character_set(self) -> None:
        self.assertEqual(ansi(r"\xe6", font(1, "Arial CE"), select(1)), "\u0107")

    def test_every_code_page_is_one(self) -> None:
        for code_page in [*text_records.CODE_PAGES.values(), *text_records.SCRIPTS.values()]:
            self.assertEqual(b"word".decode(code_page), "word")

    def test_fonts_of_symbols_are_known_by_name_and_by_character_set(self) -> None:
        for face in ("Symbol", "WINGDINGS", "Wingdings 3", "Webdings", "MT Extra", "Euclid Symbol", "Fences"):
            self.assertEqual(texts_of(font(1, face), select(1), text_out('"a"'))[0].kind, Kind.SYMBOLS, face)
        signs = font(1, "Map Signs", "SYMBOL_CHARSET")
        self.assertEqual(texts_of(signs, select(1), text_out('"a"'))[0].kind, Kind.SYMBOLS)
        self.assertEqual(texts_of(font(1, "Symbolist"), select(1), text_out('"a"'))[0].kind, Kind.WORDS)

    def test_text_in_a_path_bracket_is_outlines(self) -> None:
        lines = ["1 EMR_BEGINPATH Size=8", text_out('"a"'), "9 EMR_ENDPATH Size=8", text_out('"b"')]
        self.assertEqual([text.kind for text in texts_of(*lines)], [Kind.OUTLINES, Kind.WORDS])


class FontOfAText(unittest.TestCase):
    """Whether the font with the place 1, of symbols, is the one."""

    def kind_after(self, *lines: str) -> Kind:
        (text,) = texts_of(font(1, "Symbol"), font(2, "Arial"), *lines, text_out('"a"'))
        return text.kind

    def test_is_the_one_selected_last(self) -> None:
        self.assertEqual(self.kind_after(), Kind.WORDS)
        self.assertEqual(self.kind_after(select(1)), Kind.SYMBOLS)
        self.assertEqual(self.kind_after(select(1), select(2)), Kind.WORDS)
        self.assertEqual(self.kind_after(select(1), select("SYSTEM_FONT")), Kind.WORDS)

    def test_stays_when_another_kind_of_object_is_selected(self) -> None:
        pen = "9 EMR_CREATEPEN Size=28 ihPen=2 Style=PS_SOLID"
        self.assertEqual(self.kind_after(select(1), pen, select(2), select("NULL_BRUSH")), Kind.SYMBOLS)

    def test_comes_back_with_the_state(self) -> None:
        save, restore = "9 EMR_SAVEDC Size=8", "9 EMR_RESTOREDC Size=12 SavedDC="
        change = [select(1), save, select(2), save, save]
        self.assertEqual(self.kind_after(*change, restore + "-1"), Kind.WORDS)
        self.assertEqual(self.kind_after(*change, restore + "-3"), Kind.SYMBOLS)
        self.assertEqual(self.kind_after(*change, restore + "1"), Kind.SYMBOLS)
        self.assertEqual(self.kind_after(*change, restore + "-4"), Kind.WORDS)
        self.assertEqual(self.kind_after(*change, restore + "0"), Kind.WORDS)


class Words(unittest.TestCase):
    def test_are_what_blanks_of_any_kind_separate(self) -> None:
        self.assertEqual(words_of(" a\u00a0b\u3000 c\r\nd\t"), ["a", "b", "c", "d"])

    def test_are_the_same_in_compatible_forms(self) -> None:
        self.assertEqual(words_of("of\ufb01ce \uff21\uff22"), ["office", "AB"])

    def test_lack_what_shows_nothing(self) -> None:
        self.assertEqual(words_of("a\x01b \u200f\u05d0\u200e \ufffd \uf0b7 co\u00adop"), ["ab", "\u05d0", "coop"])


def tally_of(records: list[str], page: str) -> Tally:
    return compare([words_of(record) for record in records], words_of(page))


class Matching(unittest.TestCase):
    def test_finds_records_in_any_order(self) -> None:
        self.assertEqual(tally_of(["one two", "three"], "three one two"), Tally(words=3))

    def test_finds_a_word_once(self) -> None:
        self.assertEqual(tally_of(["one", "one"], "one"), Tally(2, ["one"]))

    def test_names_the_missing_in_the_order_of_the_records(self) -> None:
        self.assertEqual(tally_of(["b two", "a", "longer"], "two"), Tally(4, ["b", "a", "longer"]))

    def test_calls_words_torn_that_the_page_splits_or_joins(self) -> None:
        self.assertEqual(tally_of(["wide"], "w i d e"), Tally(1, torn=1))
        self.assertEqual(tally_of(["Hel", "lo"], "Hello"), Tally(2, torn=2))
        self.assertEqual(tally_of(["no blank here"], "noblank here"), Tally(3, torn=2))
        self.assertEqual(tally_of(["one wo", "rd two"], "one word two"), Tally(4, torn=2))

    def test_leaves_the_letters_of_a_torn_word_together(self) -> None:
        self.assertEqual(tally_of(["i", "wide"], "w i d e i"), Tally(2, torn=1))

    def test_does_not_find_a_short_word_in_a_long_one_that_is_a_record_itself(self) -> None:
        self.assertEqual(tally_of(["on", "cannon"], "cannon"), Tally(2, ["on"]))

    def test_does_not_join_what_stood_around_a_word(self) -> None:
        self.assertEqual(tally_of(["middle", "left"], "le middle ft"), Tally(2, ["left"]))

    def test_calls_a_record_scattered_whose_words_are_apart(self) -> None:
        self.assertEqual(tally_of(["one two"], "two one"), Tally(2, scattered=1))
        self.assertEqual(tally_of(["one two", "four"], "one three two"), Tally(3, ["four"], scattered=1))

    def test_has_nothing_to_find_where_there_are_no_words(self) -> None:
        self.assertEqual(tally_of(["", " "], "more"), Tally())
        self.assertEqual(Tally().share, 0)

    def test_adds_up(self) -> None:
        total = Tally(3, ["a"], beyond=2, torn=1)
        total.add(Tally(1, ["b"], beyond=1, scattered=1))
        self.assertEqual(total, Tally(4, ["a", "b"], beyond=3, torn=1, scattered=1))
        self.assertEqual(total.share, 0.5)


def pdf(content: str) -> bytes:
    """A page with the standard Helvetica under the name F. Readers find objects without a table of them."""
    objects = [
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 300 300] /Contents 4 0 R /Resources << /Font << /F 5 0 R >> >> >>",
        f"<< /Length {len(content)} >>\nstream\n{content}\nendstream",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    ]
    body = "".join(f"{number} 0 obj\n{text}\nendobj\n" for number, text in enumerate(objects, start=1))
    return f"%PDF-1.4\n{body}trailer << /Root 1 0 R /Size 6 >>\n".encode()


class Files(unittest.TestCase):
    """With tools that print a dump and write a document, whatever the metafile."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        (self.folder / "plan.emf").write_bytes(b"")

    def tool(self, commands: str) -> Path:
        path = self.folder / "kelvane"
        path.write_text(f"#!/bin/sh\ncd {self.folder}\n{commands}\n")
        path.chmod(0o755)
        return path

    def verdict(self, tool: Path) -> words.Verdict:
        return words.verdict_on(self.folder / "plan.emf", words.Tools(tool, tool))

    def tool_of(self, dump: list[str], content: str) -> Path:
        (self.folder / "dump").write_text("".join(line + "\n" for line in dump))
        (self.folder / "page").write_bytes(pdf(content))
        return self.tool('if [ "$1" = dump ]; then cat dump; else cp page "$4"; fi')

    def test_have_a_tally_and_texts_apart(self) -> None:
        apart = [text_out("1:3"), font(1, "Symbol"), select(1), text_out('"a"')]
        dump = [text_out('"one two"'), text_out('"gone"'), *apart]
        verdict = self.verdict(self.tool_of(dump, "BT /F 12 Tf 20 200 Td (one two) Tj ET"))
        self.assertEqual(verdict.trouble, "")
        self.assertEqual(verdict.tally, Tally(3, ["gone"]))
        self.assertEqual(verdict.apart, {Kind.GLYPHS: 1, Kind.SYMBOLS: 1})

    def test_have_lines_that_stay_lines_at_any_angle(self) -> None:
        content = "BT /F 12 Tf .8 .6 -.6 .8 20 20 Tm (climbing) Tj 0 1 -1 0 200 20 Tm (up and up) Tj ET"
        tally = self.verdict(self.tool_of([text_out('"climbing"'), text_out('"up and up"')], content)).tally
        self.assertEqual((tally.missing, tally.scattered), ([], 0))

    def test_have_text_as_often_as_it_is_drawn(self) -> None:
        content = "BT /F 12 Tf 20 20 Td (bold) Tj .3 0 Td (bold) Tj ET"
        self.assertEqual(self.verdict(self.tool_of([text_out('"bold"')] * 2, content)).tally.missing, [])

    def test_may_draw_beyond_the_page(self) -> None:
        content = "BT /F 12 Tf 20 200 Td (on) Tj 0 200 Td (above) Tj -900 -500 Td (below) Tj ET"
        dump = [text_out('"on above"'), text_out('"below"'), text_out('"gone"')]
        self.assertEqual(self.verdict(self.tool_of(dump, content)).tally, Tally(4, ["gone"], beyond=2))

    def test_have_the_page_that_is_asked_for(self) -> None:
        tool = self.tool('if [ "$1" = dump ]; then exit 0; fi; [ "$1 $2" = "--page bounds" ] && exit 4; exit 5')
        tools = words.Tools(tool, tool, "bounds")
        self.assertEqual(words.verdict_on(self.folder / "plan.emf", tools).trouble, "no document: exit status 4")
        self.assertEqual(self.verdict(tool).trouble, "no document: exit status 5")

    def test_without_a_document_lack_all_their_words(self) -> None:
        (self.folder / "dump").write_text(text_out('"one two"') + "\n")
        verdict = self.verdict(self.tool('if [ "$1" = dump ]; then cat dump; else exit 4; fi'))
        self.assertEqual(verdict.trouble, "no document: exit status 4")
        self.assertEqual(verdict.tally, Tally(2, ["one", "two"]))

    def test_that_are_no_metafiles_are_named(self) -> None:
        self.assertEqual(self.verdict(self.tool("exit 2")).trouble, "no records: exit status 2")

    def test_may_be_written_beside_their_metafiles(self) -> None:
        tool = self.tool_of([text_out('"one"')], "BT /F 12 Tf 20 200 Td (one) Tj ET")
        classic = self.folder / words.CLASSIC
        classic.write_text(f'#!/bin/sh\ncp {self.folder}/page "${{1%emf}}pdf"\n')
        classic.chmod(0o755)
        verdict = words.verdict_on(self.folder / "plan.emf", words.Tools(classic, tool))
        self.assertEqual(verdict.tally, Tally(1))
        self.assertFalse((self.folder / "plan.pdf").exists())

    def test_are_found_in_folders(self) -> None:
        (self.folder / "below").mkdir()
        for name in ("below/b.EMF", "below/b.txt"):
            (self.folder / name).write_bytes(b"")
        found = words.metafiles_in([self.folder, self.folder / "below/b.txt"])
        self.assertEqual([path.name for path in found], ["b.EMF", "plan.emf", "b.txt"])

    def run_with(self, *options: str) -> tuple[int, str]:
        tool = self.tool_of([text_out('"one gone"')], "BT /F 12 Tf 20 200 Td (one) Tj ET")
        arguments = ["words.py", "--tool", str(tool), "--jobs", "1", *options, str(self.folder / "plan.emf")]
        printed = io.StringIO()
        with mock.patch("sys.argv", arguments), contextlib.redirect_stdout(printed):
            return words.main(), printed.getvalue()

    def test_have_a_line_each_and_one_in_all(self) -> None:
        status, printed = self.run_with()
        self.assertEqual(status, 0)
        lines = [" ".join(line.split()) for line in printed.splitlines()]
        self.assertEqual(lines[0], "plan 2 words 1 missing 50.0% 0 beyond 0 torn 0 scattered gone")
        self.assertEqual(lines[1], "== 1 files 2 words 1 missing 50.0% 0 beyond 0 torn 0 scattered")

    def test_may_lack_no_more_than_is_said(self) -> None:
        self.assertEqual(self.run_with("--most", "50")[0], 0)
        self.assertEqual(self.run_with("--most", "49.9")[0], 1)


if __name__ == "__main__":
    unittest.main()
