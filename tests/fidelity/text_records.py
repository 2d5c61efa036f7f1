"""The texts of a metafile, as `kelvane dump` prints its records."""

import enum
import re
from collections.abc import Iterable, Iterator
from dataclasses import dataclass, field

FIELD = re.compile(r'(\w+)=("(?:[^"\\]|\\.)*"|\S*)')
ESCAPE = re.compile(r"\\(?:u\{([0-9a-f]+)\}|x([0-9a-f]{2})|(.))")

ANSI = "cp1252"
CODE_PAGES = {
    "MAC_CHARSET": "mac_roman",
    "SHIFTJIS_CHARSET": "cp932",
    "HANGUL_CHARSET": "cp949",
    "JOHAB_CHARSET": "johab",
    "GB2312_CHARSET": "gbk",
    "CHINESEBIG5_CHARSET": "cp950",
    "GREEK_CHARSET": "cp1253",
    "TURKISH_CHARSET": "cp1254",
    "VIETNAMESE_CHARSET": "cp1258",
    "HEBREW_CHARSET": "cp1255",
    "ARABIC_CHARSET": "cp1256",
    "BALTIC_CHARSET": "cp1257",
    "RUSSIAN_CHARSET": "cp1251",
    "THAI_CHARSET": "cp874",
    "EASTEUROPE_CHARSET": "cp1250",
    "OEM_CHARSET": "cp437",
}
# A script at the end of a face's name counts before the character set.
SCRIPTS = {" ce": "cp1250", " cyr": "cp1251", " greek": "cp1253", " tur": "cp1254", " baltic": "cp1257"}

SYMBOL_FACES = re.compile(
    r"(standard ?)?symbols?( ?(mt|ps|l))?|mt symbol|euclid (symbol|extra|fraktur|math one|math two)|mt extra|fences"
    r"|(wing|web)dings( [23])?|((itc )?zapf ?)?dingbats|monotype sorts|d050000l|marlett",
    re.IGNORECASE,
)


class Kind(enum.Enum):
    """What a text can be expected to be in a document."""

    WORDS = "words"
    SYMBOLS = "in fonts of symbols"
    GLYPHS = "of glyph numbers"
    OUTLINES = "in paths"


@dataclass(frozen=True)
class Text:
    kind: Kind
    characters: str  # of glyph numbers: these, as they are printed


@dataclass(frozen=True)
class Font:
    charset: str
    face: str

    @property
    def has_symbols(self) -> bool:
        return self.charset == "SYMBOL_CHARSET" or SYMBOL_FACES.fullmatch(self.face) is not None

    @property
    def code_page(self) -> str:
        for script, code_page in SCRIPTS.items():
            if self.face.lower().endswith(script):
                return code_page
        return CODE_PAGES.get(self.charset, ANSI)


STOCK_FONT = Font("DEFAULT_CHARSET", "")


def unquoted(value: str) -> str:
    """The characters of a quoted text; bytes become the characters of the same numbers."""

    def character(escape: re.Match[str]) -> str:
        number, byte, itself = escape.groups()
        if itself is not None:
            return "\n" if itself == "n" else itself
        return chr(int(number or byte, 16))

    return ESCAPE.sub(character, value[1:-1])


@dataclass
class State:
    """What of a device context decides about texts."""

    fonts: dict[str, Font] = field(default_factory=dict)
    font: Font = STOCK_FONT
    saved: list[Font] = field(default_factory=list)
    in_path: bool = False

    def create(self, name: str, fields: list[tuple[str, str]]) -> None:
        """Whatever takes a font's place in the table is none, unless it is a font."""
        values = dict(fields)
        place = next((value for key, value in fields if key.startswith("ih")), "")
        self.fonts.pop(place, None)
        if "FONT" in name:
            self.fonts[place] = Font(values.get("CharSet", ""), unquoted(values.get("Facename", '""')))

    def select(self, name: str) -> None:
        if name.endswith("_FONT"):
            self.font = STOCK_FONT
        else:
            self.font = self.fonts.get(name, self.font)

    def restore(self, level: int) -> None:
        """To a level counted from the end when it is negative, else from the start."""
        index = level if level < 0 else level - 1
        if -len(self.saved) <= index < len(self.saved) and level != 0:
            self.font = self.saved[index]
            del self.saved[index:]

    def text(self, value: str, options: str, are_bytes: bool) -> Text:
        if not value.startswith('"') or "ETO_GLYPH_INDEX" in options:
            return Text(Kind.GLYPHS, value.partition(":")[2])
        characters = unquoted(value)
        if are_bytes:
            characters = characters.encode("latin-1", "replace").decode(self.font.code_page, "replace")
        if self.in_path:
            return Text(Kind.OUTLINES, characters)
        return Text(Kind.SYMBOLS if self.font.has_symbols else Kind.WORDS, characters)


def texts_in(name: str, fields: list[tuple[str, str]], state: State) -> Iterator[Text]:
    """Those of one record, of which there may be several."""
    options = ""
    for key, value in fields:
        if key in ("Options", "fuOptions"):
            options = value
        elif key in ("OutputString", "TextString"):
            yield state.text(value, options, are_bytes=name.endswith("OUTA"))


def texts(dump: Iterable[str]) -> Iterator[Text]:
    """All texts, in the order of their records."""
    state = State()
    for line in dump:
        _, name, *rest = line.rstrip("\n").split(" ", 2)
        fields = FIELD.findall(rest[0]) if rest else []
        if "TEXTOUT" in name:
            yield from texts_in(name, fields, state)
        elif "CREATE" in name:
            state.create(name, fields)
        elif name == "EMR_SELECTOBJECT":
            state.select(dict(fields)["ihObject"])
        elif name == "EMR_SAVEDC":
            state.saved.append(state.font)
        elif name == "EMR_RESTOREDC":
            state.restore(int(dict(fields)["SavedDC"]))
        elif name in ("EMR_BEGINPATH", "EMR_ENDPATH", "EMR_ABORTPATH"):
            state.in_path = name == "EMR_BEGINPATH"
