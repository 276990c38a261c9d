"""The checker holds the README's counts against the lists, and finds verses of the gospels outside every event."""

import pytest
from topics_support import MINIMUM, README, replace_line, run


@pytest.mark.parametrize("group", MINIMUM)
def test_the_readme_counts_the_topics(lists, text, group):
    count = MINIMUM[group]
    with (lists / f"{group}.txt").open("a", encoding="utf-8") as file:
        file.write("The Last Topic\tGn:1:1 Mt:1:1\n")
    result = run(lists, text)
    assert result.stdout == f"README.md: says that {group}.txt has {count} topics, but it has {count + 1}\n"
    assert result.returncode == 1
    readme = lists / "README.md"
    readme.write_text(README.replace(f"{group}.txt", f"{group}.text"), encoding="utf-8")
    assert run(lists, text).stdout == f"README.md: does not say how many topics {group}.txt has\n"


def test_a_missing_readme_is_reported(lists, text):
    (lists / "README.md").unlink()
    result = run(lists, text)
    assert (result.stdout, result.returncode) == ("README.md: missing\n", 1)


# Mk 2:28 is left out; the events but for the two discourses hold every other verse of the gospels, here Mt and Mk.
def test_every_verse_of_the_gospels_lies_in_an_event(lists, text):
    replace_line(lists / "events.txt", 2, "The Events of Babel\tMt:1:1-2:22 Mt:3:1-5 Mt:3:8-16")
    result = run(lists, text)
    faults = [f"events.txt: no event holds {verse}" for verse in ("Mt:2:23", "Mt:3:6", "Mt:3:7")]
    assert (result.stdout.splitlines(), result.returncode) == (faults, 1)


@pytest.mark.parametrize(
    ("row", "faults"),
    [
        ("", ["events.txt: no event holds Mk:2:28"]),
        ("| `Mk:2:28` | |\n", ["README.md: no reason why Mk:2:28 is left out"]),
        ("| `Mk:2:27-28` | it is left out |\n", ["README.md: Mk:2:27-28 is not left out"]),
        (
            "| `Mk:2:29` | it is left out |\n",
            ["README.md: no such verse: Mk:2:29", "events.txt: no event holds Mk:2:28"],
        ),
    ],
)
def test_the_readme_names_the_verses_left_out(lists, text, row, faults):
    (lists / "README.md").write_text(README.replace("| `Mk:2:28` | it is left out |\n", row), encoding="utf-8")
    result = run(lists, text)
    assert (result.stdout.splitlines(), result.returncode) == (faults, 1)


@pytest.mark.parametrize(("line", "whole"), [(119, "The Sermon on the Mount"), (120, "The Olivet Discourse")])
def test_a_discourse_in_sections_keeps_its_name(lists, text, line, whole):
    replace_line(lists / "events.txt", line, "A Sermon\tMt:1:1")
    result = run(lists, text)
    assert (result.stdout, result.returncode) == (f"events.txt: no topic named {whole}\n", 1)
