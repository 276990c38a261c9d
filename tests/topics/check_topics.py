#!/usr/bin/env python3
"""Check the topic lists against the verses of the text, and what their README says of them.

usage: check_topics.py DIR_OF_LISTS TEXT_TSV

Prints every fault as file:line: what is wrong, and exits 1 if there is one. The form of the lists and the
rules of their titles stand in data/topics/README.md.
"""

import re
import sys
from pathlib import Path

from gospels import coverage_faults
from references import Verses, reference_faults
from titles import title_faults, twins

# The fewest topics each list may hold.
MINIMUM = {"events": 120, "miracles": 37, "parables": 40, "prophecy": 80}

MAX_NAME_LENGTH = 60  # what the drop-down list can show
QUOTES = "'\"`´‘’‚‛“”„‟«»‹›"
# A row of the README's table of the lists: the file, its group and its number of topics.
COUNT = re.compile(r"\| `(\w+)\.txt` \|[^|]*\| *(\d+) *\|")


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
    if len(name) > MAX_NAME_LENGTH:
        yield f"name longer than {MAX_NAME_LENGTH} characters"


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


class Lists:
    """The topics of a folder of lists, and their faults one by one."""

    def __init__(self, folder, verses):
        self.topics = {}  # of each group: pairs of a name and its references
        self.first_use = {}
        self.faults = []
        for group in MINIMUM:
            self.topics[group] = []
            self.faults += self.read(Path(folder) / f"{group}.txt", group, verses)

    def read(self, path, group, verses):
        if not path.exists():
            yield f"{path.name}: missing"
            return
        try:
            lines = path.read_text(encoding="utf-8").splitlines()
        except UnicodeDecodeError:
            yield f"{path.name}: not UTF-8"
            return
        for number, line in enumerate(lines, 1):
            if not line.startswith("#"):
                where = f"{path.name}:{number}"
                for fault in self.read_topic(line, where, group, verses):
                    yield f"{where}: {fault}"
        if len(self.topics[group]) < MINIMUM[group]:
            yield f"{path.name}: {len(self.topics[group])} topics, expected at least {MINIMUM[group]}"

    def read_topic(self, line, where, group, verses):
        name, tab, references = line.partition("\t")
        if not tab or not references:
            yield "not a name, a tab and references"
            return
        references = references.split(" ")
        self.topics[group].append((name, references))
        wrong = list(name_faults(name))
        yield from wrong or title_faults(name)
        # Letter case is ignored, as a database may ignore it when it compares names.
        if name.casefold() in self.first_use:
            yield f"name already used in {self.first_use[name.casefold()]}: {name}"
        else:
            self.first_use[name.casefold()] = where
        yield from topic_faults(group, references, verses)


def count_faults(topics, readme):
    said = {group: int(count) for group, count in COUNT.findall(readme)}
    for group, listed in topics.items():
        if group not in said:
            yield f"README.md: does not say how many topics {group}.txt has"
        elif said[group] != len(listed):
            yield f"README.md: says that {group}.txt has {said[group]} topics, but it has {len(listed)}"


def faults(folder, verses):
    """All faults of the lists in the folder, as lines of text."""
    lists = Lists(folder, verses)
    readme = Path(folder) / "README.md"
    if not readme.exists():
        return [*lists.faults, "README.md: missing"]
    # What follows takes each reference and each name for sound.
    if lists.faults:
        return lists.faults
    text = readme.read_text(encoding="utf-8")
    names = [name for listed in lists.topics.values() for name, _ in listed]
    return [
        *(f"titles too much alike: {one} / {other}" for one, other in twins(names)),
        *count_faults(lists.topics, text),
        *coverage_faults(lists.topics["events"], text, verses),
    ]


def main(arguments):
    if len(arguments) != 2:
        print("usage: check_topics.py DIR_OF_LISTS TEXT_TSV", file=sys.stderr)
        return 2
    folder, text = arguments
    found = faults(folder, Verses(text))
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
