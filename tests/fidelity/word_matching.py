"""Whether the words of records come back in the text of a page."""

import unicodedata
from dataclasses import dataclass, field

TAKEN = "\0"  # in no word
DROPPED = ("Cc", "Cf", "Cs", "Co", "Cn")  # controls, marks of direction, halves, private use


def words_of(text: str) -> list[str]:
    """Compatible forms count as one: ligatures, wide letters, blanks of all kinds. What shows nothing is dropped."""
    words = []
    for word in unicodedata.normalize("NFKC", text).split():
        shown = "".join(c for c in word if unicodedata.category(c) not in DROPPED and c != "\ufffd")
        if shown:
            words.append(shown)
    return words


class PageText:
    """A page's words without what is between them. What was found is taken, so that it is found once."""

    def __init__(self, words: list[str]) -> None:
        self._rest = "".join(words)
        self._starts, self._ends = set(), set()
        at = 0
        for word in words:
            self._starts.add(at)
            at += len(word)
            self._ends.add(at)
        self._from: dict[tuple[str, bool], int] = {}  # nothing is left before

    def take(self, text: str, *, whole: bool) -> int | None:
        """Where it stood; whole: beginning and ending where words do."""
        at = self._rest.find(text, self._from.get((text, whole), 0))
        while at >= 0 and whole and not (at in self._starts and at + len(text) in self._ends):
            at = self._rest.find(text, at + 1)
        self._from[text, whole] = at if at >= 0 else len(self._rest)
        if at < 0:
            return None
        self._rest = self._rest[:at] + TAKEN * len(text) + self._rest[at + len(text) :]
        return at

    def is_word(self, at: int, length: int) -> bool:
        inside = range(at + 1, at + length)
        return at in self._starts and at + length in self._ends and not any(place in self._starts for place in inside)


@dataclass
class Tally:
    words: int = 0
    missing: list[str] = field(default_factory=list)
    beyond: int = 0  # found only beyond the page
    torn: int = 0  # found only when blanks do not count
    scattered: int = 0  # records of which all words were found, but not behind each other

    def add(self, other: "Tally") -> None:
        self.words += other.words
        self.missing += other.missing
        self.beyond += other.beyond
        self.torn += other.torn
        self.scattered += other.scattered

    @property
    def share(self) -> float:
        """Of the words, those that are missing."""
        return len(self.missing) / self.words if self.words else 0.0


class Comparison:
    def __init__(self, records: list[list[str]], page: list[str]) -> None:
        self.tally = Tally(words=sum(map(len, records)))
        self._page = PageText(page)
        # What is long is found first: it can be in few places, and what is short must not take parts of it.
        left = sorted(range(len(records)), key=lambda place: -sum(map(len, records[place])))
        left = [place for place in left if records[place] and not self._take(records[place], whole=True)]
        left = [place for place in left if len(records[place]) == 1 or not self._take(records[place], whole=False)]
        self._take_words([records[place] for place in sorted(left)])

    def _take(self, words: list[str], *, whole: bool) -> bool:
        at = self._page.take("".join(words), whole=whole)
        if at is None:
            return False
        for word in words:
            self.tally.torn += not self._page.is_word(at, len(word))
            at += len(word)
        return True

    def _take_words(self, records: list[list[str]]) -> None:
        numbered = enumerate((word, place) for place, words in enumerate(records) for word in words)
        left = sorted(numbered, key=lambda entry: -len(entry[1][0]))
        for whole in (True, False):
            left = [entry for entry in left if not self._take([entry[1][0]], whole=whole)]
        left = [entry for _, entry in sorted(left)]
        self.tally.missing = [word for word, _ in left]
        incomplete = {place for _, place in left}
        self.tally.scattered = sum(len(words) > 1 and place not in incomplete for place, words in enumerate(records))


def compare(records: list[list[str]], page: list[str]) -> Tally:
    return Comparison(records, page).tally
