"""The checker of the topic lists finds each kind of fault, and nothing in sound lists."""

import os
from pathlib import Path

import pytest
from topics_support import CHECKER, MINIMUM, replace_line, run

SOURCE = CHECKER.parents[2]
# Of the text the keys alone count, and those of the tests' text are the ones of every text.
TEXT = Path(os.environ.get("KESTREL_INSTALL_DIR", SOURCE / "build/release/test/kestrel")).parent / "data/scripture.tsv"


def test_the_lists_of_the_project_are_sound():
    result = run(SOURCE / "data/topics", TEXT)
    assert (result.stdout, result.stderr, result.returncode) == ("", "", 0)


def test_sound_lists_pass(lists, text):
    result = run(lists, text)
    assert (result.stdout, result.stderr, result.returncode) == ("", "", 0)


@pytest.mark.parametrize(
    "line",
    [
        "The Name\tMt:1:1",
        "A Name\tMt:1:5-5",
        "An Aim\tMt:1:25-2:1",
        "Peter Denies a Name\tMt:1:1-3 Mt:1:2-3",
        "Born in a Town\tMk:1:1-2 Mt:1:1-2",
        "Healing a Name\tMk:1:1-2 Mt:1:1-2",
        "The Healing of a Name\tMk:1:1-2 Mt:1:1-2",
        "Asking, Seeking and Knocking\tMt:1:1",
        "Messengers of the Name\tMt:1:1",
        "The Man out of a Town, Smitten and Spat Upon\tMt:1:1",
        "The Sending Out of a Neighbor\tMt:1:1",
        "The " + "N" * 56 + "\tMt:1:1",
        "The Name, with a Mark - and a Dash\tMt:1:1",
    ],
)
def test_sound_topics_pass(lists, text, line):
    replace_line(lists / "events.txt", 3, line)
    result = run(lists, text)
    assert (result.stdout, result.returncode) == ("", 0)


@pytest.mark.parametrize(
    ("group", "line", "fault"),
    [
        # References
        ("events", "The Name\tMt:1:26", "no such verse: Mt:1:26"),
        ("events", "The Name\tMt:4:1", "no such verse: Mt:4:1"),
        ("events", "The Name\tEz:1:1", "no such verse: Ez:1:1"),
        ("events", "The Name\tmt:1:1", "not a reference: 'mt:1:1'"),
        ("events", "The Name\tMt:1", "not a reference: 'Mt:1'"),
        ("events", "The Name\tMt:1:1,3", "not a reference: 'Mt:1:1,3'"),
        ("events", "The Name\tMt:1:1-", "not a reference: 'Mt:1:1-'"),
        ("events", "The Name\tMt:1:1-Mt:1:2", "not a reference: 'Mt:1:1-Mt:1:2'"),
        ("events", "The Name\tMt:01:1", "no such verse: Mt:01:1"),
        ("events", "The Name\tMt:1:1  Mk:1:1", "not a reference: ''"),
        ("events", "The Name\tMt:1:1 ", "not a reference: ''"),
        # Ranges
        ("events", "The Name\tMt:1:1-26", "no such end verse: Mt:1:26 in Mt:1:1-26"),
        ("events", "The Name\tMt:1:1-4:1", "no such end verse: Mt:4:1 in Mt:1:1-4:1"),
        ("events", "The Name\tMt:1:9-8", "ends before it starts: Mt:1:9-8"),
        ("events", "The Name\tMt:2:1-1:25", "ends before it starts: Mt:2:1-1:25"),
        # A reference twice
        ("events", "The Name\tMt:1:1 Mk:1:1 Mt:1:1", "reference twice: Mt:1:1"),
        ("events", "The Name\tMt:1:1 Mt:1:1-5", "reference twice: Mt:1:1"),
        # Names
        ("events", "The Peter's Name\tMt:1:1", "apostrophe or quote in the name"),
        ("events", "The Peter’s Name\tMt:1:1", "apostrophe or quote in the name"),
        ("events", 'A "The Name"\tMt:1:1', "apostrophe or quote in the name"),
        ("events", "A “Name”\tMt:1:1", "apostrophe or quote in the name"),
        ("events", "A\\Name\tMt:1:1", "backslash in the name"),
        ("events", "A -- Name\tMt:1:1", "two hyphens in the name"),
        ("events", " The Name\tMt:1:1", "blank before or after the name"),
        ("events", "The Name \tMt:1:1", "blank before or after the name"),
        ("events", "The " + "N" * 57 + "\tMt:1:1", "name longer than 60 characters"),
        ("events", "\tMt:1:1", "empty name"),
        ("events", "The Events of Babel\tMt:1:1", "name already used in events.txt:2: The Events of Babel"),
        ("events", "The EVENTS of Babel\tMt:1:1", "name already used in events.txt:2: The EVENTS of Babel"),
        ("parables", "The Events of Babel\tMt:1:1", "name already used in events.txt:2: The Events of Babel"),
        # Both testaments
        ("prophecy", "The Name\tMt:1:1", "no reference to the Old Testament"),
        ("prophecy", "The Name\tGn:1:1 Is:1:1", "no reference to the New Testament"),
        ("prophecy", "The Name\tMt:1:1 Gn:1:1", "New Testament before Old Testament"),
        # Form of the line
        ("events", "The Name Mt:1:1", "not a name, a tab and references"),
        ("events", "The Name\t", "not a name, a tab and references"),
        ("events", "", "not a name, a tab and references"),
        ("events", "The Name\tMt:1:1\tMk:1:1", r"not a reference: 'Mt:1:1\tMk:1:1'"),
    ],
)
def test_fault_in_a_topic_is_named_by_file_and_line(lists, text, group, line, fault):
    # A topic too many, so that the least number of topics is never the fault.
    path = lists / f"{group}.txt"
    with path.open("a", encoding="utf-8") as file:
        file.write("The Last Topic\tGn:1:1 Mt:1:1\n")
    replace_line(path, 3, line)
    result = run(lists, text)
    assert result.stdout.splitlines() == [f"{group}.txt:3: {fault}"]
    assert result.returncode == 1


@pytest.mark.parametrize("group", MINIMUM)
def test_too_few_topics_are_reported(lists, text, group):
    path = lists / f"{group}.txt"
    lines = path.read_text(encoding="utf-8").splitlines(keepends=True)
    path.write_text("".join(lines[:-1]), encoding="utf-8")
    result = run(lists, text)
    found, expected = MINIMUM[group] - 1, MINIMUM[group]
    assert result.stdout == f"{group}.txt: {found} topics, expected at least {expected}\n"
    assert result.returncode == 1


@pytest.mark.parametrize("group", MINIMUM)
def test_a_missing_list_is_reported(lists, text, group):
    (lists / f"{group}.txt").unlink()
    result = run(lists, text)
    assert (result.stdout, result.returncode) == (f"{group}.txt: missing\n", 1)


def test_a_list_that_is_not_utf8_is_reported(lists, text):
    (lists / "events.txt").write_bytes("Maçã\tMt:1:1\n".encode("latin-1"))
    result = run(lists, text)
    assert (result.stdout, result.returncode) == ("events.txt: not UTF-8\n", 1)


def test_every_fault_is_reported(lists, text):
    replace_line(lists / "events.txt", 3, "A -- Name\tMt:1:26 Mk:2:9-1")
    replace_line(lists / "miracles.txt", 5, "The Peter's\tMt:1:1")
    assert run(lists, text).stdout.splitlines() == [
        "events.txt:3: two hyphens in the name",
        "events.txt:3: no such verse: Mt:1:26",
        "events.txt:3: ends before it starts: Mk:2:9-1",
        "miracles.txt:5: apostrophe or quote in the name",
    ]


def test_without_arguments_the_usage_is_told(lists):
    result = run(lists)
    assert result.returncode == 2
    assert "usage" in result.stderr
