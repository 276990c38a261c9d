"""The verses of the text, and the references that the lists make to them."""

import re
from pathlib import Path

FIRST_BOOK_OF_NEW_TESTAMENT = "Mt"
REFERENCE = re.compile(r"([1-3]?[A-Z][a-z]*):([0-9]+):([0-9]+)(?:-(?:([0-9]+):)?([0-9]+))?")


class Verses:
    """Which verses there are, and where they stand."""

    def __init__(self, path):
        self.places = {}
        books = []
        for place, line in enumerate(Path(path).read_text(encoding="utf-8").splitlines()):
            book, chapter, verse, _ = line.split("\t", 3)
            self.places[f"{book}:{chapter}:{verse}"] = place
            if book not in books:
                books.append(book)
        self.new_testament = set(books[books.index(FIRST_BOOK_OF_NEW_TESTAMENT):])

    def __contains__(self, key):
        return key in self.places


def reference_faults(reference, verses):
    match = REFERENCE.fullmatch(reference)
    if not match:
        yield f"not a reference: {reference!r}"
        return
    book, chapter, _, end_chapter, end_verse = match.groups()
    start = reference.partition("-")[0]
    if start not in verses:
        yield f"no such verse: {start}"
    if end_verse is None:
        return
    end = f"{book}:{end_chapter or chapter}:{end_verse}"
    if end not in verses:
        yield f"no such end verse: {end} in {reference}"
    elif start in verses and verses.places[end] < verses.places[start]:
        yield f"ends before it starts: {reference}"


def span(reference, verses):
    """The places of the first and the last verse of a sound reference."""
    start, _, end = reference.partition("-")
    book, chapter, _ = start.split(":")
    if not end:
        end = start
    elif ":" in end:
        end = f"{book}:{end}"
    else:
        end = f"{book}:{chapter}:{end}"
    return verses.places[start], verses.places[end]
