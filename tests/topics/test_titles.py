"""The checker finds titles that break the rules of the lists' English, and no sound ones."""

import pytest
from topics_support import replace_line, run


@pytest.mark.parametrize(
    ("line", "fault"),
    [
        # Articles
        ("Birth of a Name\tMt:1:1", "title without an article: Birth of a Name"),
        ("First Name\tMt:1:1", "title without an article: First Name"),
        ("Healing of a Name\tMt:1:1", "title without an article: Healing of a Name"),
        # Capitals
        ("The Name Of a Town\tMt:1:1", "small word with a capital: Of"),
        ("The name\tMt:1:1", "word without a capital: name"),
        ("The Name Spat upon\tMt:1:1", "word without a capital: upon"),
        # Spelling
        ("The Good Neighbour\tMt:1:1", "not the American spelling of today: Neighbour"),
        ("Worshiped, Not Worshipped\tMt:1:1", "not the American spelling of today: Worshipped"),
        ("The Judgement\tMt:1:1", "not the American spelling of today: Judgement"),
        ("Physician, Heal Thyself\tMt:1:1", "not the American spelling of today: Thyself"),
        ("Blessed Is He That Comes\tMt:1:1", "not the American spelling of today: He That"),
        ("The Law Fulfilled to Fulfil\tMt:1:1", "not the American spelling of today: Fulfil"),
    ],
)
def test_a_fault_in_a_title_is_reported(lists, text, line, fault):
    replace_line(lists / "events.txt", 3, line)
    result = run(lists, text)
    assert (result.stdout, result.returncode) == (f"events.txt:3: {fault}\n", 1)


@pytest.mark.parametrize(
    ("one", "other"),
    [
        ("The Cost of Following Jesus", "The Cost of Being Jesus Following"),
        ("A Narrow Door", "The Narrow Doors"),
        ("The Appearance to Thomas", "The Appearance of Thomas"),
        ("The First Catch of Fish", "The First Catch of Many Fish"),
    ],
)
def test_titles_too_much_alike_are_reported(lists, text, one, other):
    replace_line(lists / "events.txt", 3, f"{one}\tMt:1:1")
    replace_line(lists / "miracles.txt", 3, f"{other}\tMt:1:1")
    result = run(lists, text)
    assert (result.stdout, result.returncode) == (f"titles too much alike: {one} / {other}\n", 1)


@pytest.mark.parametrize(
    ("one", "other"),
    [
        ("The Wise Builder of Houses", "The Foolish Builder of Houses and Towers"),
        ("Healing a Blind Man at Bethsaida", "Healing a Man Born Blind"),
        ("Feeding the Five Thousand", "Feeding the Four Thousand"),
        ("The First Catch of Fish", "The Second Catch of Fish"),
    ],
)
def test_titles_alike_enough_to_pass(lists, text, one, other):
    replace_line(lists / "events.txt", 3, f"{one}\tMt:1:1")
    replace_line(lists / "miracles.txt", 3, f"{other}\tMt:1:1")
    result = run(lists, text)
    assert (result.stdout, result.returncode) == ("", 0)
