"""The checker of the topic lists finds each kind of fault, and nothing in sound lists."""

import subprocess
import sys
from pathlib import Path

import pytest

CHECKER = Path(__file__).with_name("check_topics.py")

CHAPTERS = {"Gn": [3, 31], "Is": [25, 22], "Mt": [25, 23, 17], "Mk": [45, 28], "Rv": [20]}
MINIMUM = {"events": 120, "miracles": 37, "parables": 40, "prophecy": 80}


@pytest.fixture
def text(tmp_path):
    path = tmp_path / "text.tsv"
    path.write_text(
        "".join(
            f"{book}\t{chapter}\t{verse}\tpalavra\n"
            for book, lengths in CHAPTERS.items()
            for chapter, length in enumerate(lengths, 1)
            for verse in range(1, length + 1)
        ),
        encoding="utf-8",
    )
    return path


@pytest.fixture
def lists(tmp_path):
    """Sound lists of the least allowed length. Line 1 of each is a comment, line 2 the first topic."""
    folder = tmp_path / "lists"
    folder.mkdir()
    for group, count in MINIMUM.items():
        references = "Is:1:2-9 Gn:2:1 Mt:1:2-23" if group == "prophecy" else "Mt:1:2-23 Mk:1:1-2:3 Rv:1:1"
        topics = "".join(f"{group.capitalize()} {n}\t{references}\n" for n in range(count))
        (folder / f"{group}.txt").write_text("# comment\n" + topics, encoding="utf-8")
    return folder


def run(*arguments):
    return subprocess.run(
        [sys.executable, CHECKER, *map(str, arguments)], capture_output=True, encoding="utf-8", check=False
    )


def replace_line(path, number, line):
    lines = path.read_text(encoding="utf-8").splitlines()
    lines[number - 1] = line
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")


def test_sound_lists_pass(lists, text):
    result = run(lists, text)
    assert (result.stdout, result.stderr, result.returncode) == ("", "", 0)


@pytest.mark.parametrize(
    "line",
    [
        "Name\tMt:1:1",
        "Name\tMt:1:5-5",
        "Name\tMt:1:25-2:1",
        "Name\tMt:1:1-3 Mt:1:2-3",
        "Name\tMk:1:1-2 Mt:1:1-2",
        "n" * 60 + "\tMt:1:1",
        "Name, with a Mark - and a Dash\tMt:1:1",
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
        ("events", "Name\tMt:1:26", "no such verse: Mt:1:26"),
        ("events", "Name\tMt:4:1", "no such verse: Mt:4:1"),
        ("events", "Name\tEz:1:1", "no such verse: Ez:1:1"),
        ("events", "Name\tmt:1:1", "not a reference: 'mt:1:1'"),
        ("events", "Name\tMt:1", "not a reference: 'Mt:1'"),
        ("events", "Name\tMt:1:1,3", "not a reference: 'Mt:1:1,3'"),
        ("events", "Name\tMt:1:1-", "not a reference: 'Mt:1:1-'"),
        ("events", "Name\tMt:1:1-Mt:1:2", "not a reference: 'Mt:1:1-Mt:1:2'"),
        ("events", "Name\tMt:01:1", "no such verse: Mt:01:1"),
        ("events", "Name\tMt:1:1  Mk:1:1", "not a reference: ''"),
        ("events", "Name\tMt:1:1 ", "not a reference: ''"),
        # Ranges
        ("events", "Name\tMt:1:1-26", "no such end verse: Mt:1:26 in Mt:1:1-26"),
        ("events", "Name\tMt:1:1-4:1", "no such end verse: Mt:4:1 in Mt:1:1-4:1"),
        ("events", "Name\tMt:1:9-8", "ends before it starts: Mt:1:9-8"),
        ("events", "Name\tMt:2:1-1:25", "ends before it starts: Mt:2:1-1:25"),
        # A reference twice
        ("events", "Name\tMt:1:1 Mk:1:1 Mt:1:1", "reference twice: Mt:1:1"),
        ("events", "Name\tMt:1:1 Mt:1:1-5", "reference twice: Mt:1:1"),
        # Names
        ("events", "Peter's Name\tMt:1:1", "apostrophe or quote in the name"),
        ("events", "Peter’s Name\tMt:1:1", "apostrophe or quote in the name"),
        ("events", 'A "Name"\tMt:1:1', "apostrophe or quote in the name"),
        ("events", "A “Name”\tMt:1:1", "apostrophe or quote in the name"),
        ("events", "A\\Name\tMt:1:1", "backslash in the name"),
        ("events", "A -- Name\tMt:1:1", "two hyphens in the name"),
        ("events", " Name\tMt:1:1", "blank before or after the name"),
        ("events", "Name \tMt:1:1", "blank before or after the name"),
        ("events", "n" * 61 + "\tMt:1:1", "name longer than 60 characters"),
        ("events", "\tMt:1:1", "empty name"),
        ("events", "Events 0\tMt:1:1", "name already used in events.txt:2: Events 0"),
        ("events", "EVENTS 0\tMt:1:1", "name already used in events.txt:2: EVENTS 0"),
        ("parables", "Events 0\tMt:1:1", "name already used in events.txt:2: Events 0"),
        # Both testaments
        ("prophecy", "Name\tMt:1:1", "no reference to the Old Testament"),
        ("prophecy", "Name\tGn:1:1 Is:1:1", "no reference to the New Testament"),
        ("prophecy", "Name\tMt:1:1 Gn:1:1", "New Testament before Old Testament"),
        # Form of the line
        ("events", "Name Mt:1:1", "not a name, a tab and references"),
        ("events", "Name\t", "not a name, a tab and references"),
        ("events", "", "not a name, a tab and references"),
        ("events", "Name\tMt:1:1\tMk:1:1", r"not a reference: 'Mt:1:1\tMk:1:1'"),
    ],
)
def test_fault_in_a_topic_is_named_by_file_and_line(lists, text, group, line, fault):
    # A topic too many, so that the number of topics is never the fault.
    path = lists / f"{group}.txt"
    with path.open("a", encoding="utf-8") as file:
        file.write("One More\tGn:1:1 Mt:1:1\n")
    replace_line(path, 3, line)
    result = run(lists, text)
    assert result.stdout.splitlines() == [f"{group}.txt:3: {fault}"]
    assert result.returncode == 1


@pytest.mark.parametrize("group", MINIMUM)
def test_too_few_topics(lists, text, group):
    path = lists / f"{group}.txt"
    lines = path.read_text(encoding="utf-8").splitlines(keepends=True)
    path.write_text("".join(lines[:-1]), encoding="utf-8")
    result = run(lists, text)
    found, expected = MINIMUM[group] - 1, MINIMUM[group]
    assert result.stdout == f"{group}.txt: {found} topics, expected at least {expected}\n"
    assert result.returncode == 1


@pytest.mark.parametrize("group", MINIMUM)
def test_missing_list(lists, text, group):
    (lists / f"{group}.txt").unlink()
    result = run(lists, text)
    assert (result.stdout, result.returncode) == (f"{group}.txt: missing\n", 1)


def test_list_that_is_not_utf8(lists, text):
    (lists / "events.txt").write_bytes("Maçã\tMt:1:1\n".encode("latin-1"))
    result = run(lists, text)
    assert (result.stdout, result.returncode) == ("events.txt: not UTF-8\n", 1)


def test_every_fault_is_reported(lists, text):
    replace_line(lists / "events.txt", 3, "A -- Name\tMt:1:26 Mk:2:9-1")
    replace_line(lists / "miracles.txt", 5, "Peter's\tMt:1:1")
    assert run(lists, text).stdout.splitlines() == [
        "events.txt:3: two hyphens in the name",
        "events.txt:3: no such verse: Mt:1:26",
        "events.txt:3: ends before it starts: Mk:2:9-1",
        "miracles.txt:5: apostrophe or quote in the name",
    ]


def test_usage(lists):
    result = run(lists)
    assert result.returncode == 2
    assert "usage" in result.stderr
