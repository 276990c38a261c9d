"""The verses of the gospels that no event holds."""

import re

from references import reference_faults, span

GOSPELS = ("Mt", "Mk", "Lk", "Jn")
# Long discourses that are listed whole and in sections: their verses must lie in a section, too.
WHOLES = ("The Sermon on the Mount", "The Olivet Discourse")

# A row of the README's table: the verses left out, and why.
LEFT_OUT = re.compile(r"\| `([1-3]?[A-Z][a-z]*:[^`]+)` \|(.*)\|")


def places(references, verses):
    found = set()
    for reference in references:
        first, last = span(reference, verses)
        found.update(range(first, last + 1))
    return found


def coverage_faults(events, readme, verses):
    """Faults of the events, pairs of a name and its references, against the verses and the README's text."""
    held = {name: places(references, verses) for name, references in events}
    for whole in WHOLES:
        if whole not in held:
            yield f"events.txt: no topic named {whole}"
    in_a_section = set().union(*(found for name, found in held.items() if name not in WHOLES))

    left_out = {}
    for reference, reason in LEFT_OUT.findall(readme):
        if not reason.strip():
            yield f"README.md: no reason why {reference} is left out"
        wrong = [f"README.md: {fault}" for fault in reference_faults(reference, verses)]
        yield from wrong
        left_out[reference] = set() if wrong else places([reference], verses)
    for reference, found in left_out.items():
        if found & in_a_section:
            yield f"README.md: {reference} is not left out"

    allowed = set().union(*left_out.values())
    for verse, place in verses.places.items():
        if verse.split(":")[0] in GOSPELS and place not in in_a_section | allowed:
            yield f"events.txt: no event holds {verse}"
