#!/usr/bin/env python3
"""Check the topic lists against the verses of the text.

usage: check_topics.py DIR_OF_LISTS TEXT_TSV

Prints every fault as file:line: what is wrong, and exits 1 if there is one. The form of the lists is
described in data/topics/README.md.
"""

import re
import sys
from pathlib import Path

# The fewest topics each list may hold.
MINIMUM = {"events": 120, "miracles": 37, "parables": 40, "prophecy": 80}

LONGEST_NAME = 60  # what the drop-down list can show
FIRST_BOOK_OF_NEW_TESTAMENT = "Mt"
QUOTES = "'\"`´‘’‚‛“”„‟«»‹›"
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


def name_faults(name):
    if not name:
        yield "empty name"
    if name != name.strip():
        yield "blank before or after the name"
    if any(c in QUOTES for c in name):
        yield "apostrophe or quote in the name"
    if "\\" in name:
        yield "backslash in the name"
    if "--" in name:
        yield "two hyphens in the name"
    if len(name) > LONGEST_NAME:
        yield f"name longer than {LONGEST_NAME} characters"


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


def topic_faults(group, references, verses):
    seen = set()
    for reference in references:
        yield from reference_faults(reference, verses)
        # The start alone is compared: it decides which verse a reference opens.
        start = reference.partition("-")[0]
        if start in seen:
            yield f"reference twice: {start}"
        seen.add(start)
    if group == "prophecy":
        in_new = [reference.partition(":")[0] in verses.new_testament for reference in references]
        if all(in_new):
            yield "no reference to the Old Testament"
        if not any(in_new):
            yield "no reference to the New Testament"
        if in_new != sorted(in_new):
            yield "New Testament before Old Testament"


def faults(folder, verses):
    """All faults of the lists in the folder, as lines of text."""
    first_use = {}
    for group, minimum in MINIMUM.items():
        path = Path(folder) / f"{group}.txt"
        if not path.exists():
            yield f"{path.name}: missing"
            continue
        try:
            lines = path.read_text(encoding="utf-8").splitlines()
        except UnicodeDecodeError:
            yield f"{path.name}: not UTF-8"
            continue
        topics = 0
        for number, line in enumerate(lines, 1):
            if line.startswith("#"):
                continue
            where = f"{path.name}:{number}"
            name, tab, references = line.partition("\t")
            if not tab or not references:
                yield f"{where}: not a name, a tab and references"
                continue
            topics += 1
            for fault in name_faults(name):
                yield f"{where}: {fault}"
            # Letter case is ignored, as a database may ignore it when it compares names.
            if name.casefold() in first_use:
                yield f"{where}: name already used in {first_use[name.casefold()]}: {name}"
            else:
                first_use[name.casefold()] = where
            for fault in topic_faults(group, references.split(" "), verses):
                yield f"{where}: {fault}"
        if topics < minimum:
            yield f"{path.name}: {topics} topics, expected at least {minimum}"


def main(arguments):
    if len(arguments) != 2:
        print("usage: check_topics.py DIR_OF_LISTS TEXT_TSV", file=sys.stderr)
        return 2
    folder, text = arguments
    found = list(faults(folder, Verses(text)))
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
