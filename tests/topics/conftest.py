import pytest
from topics_support import CHAPTERS, MINIMUM, README, WORDS


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
        topics = [f"The {group.capitalize()} of {word}\t{references}\n" for word in WORDS[:count]]
        if group == "events":
            topics[0] = "The Events of Babel\tMt:1:1-3:16\n"
            topics[-3:] = ["The Sermon on the Mount\tMt:1:1-3:17\n", "The Olivet Discourse\tMk:1:1-2:28\n",
                           "The End\tMt:3:17 Mk:1:1-2:27\n"]
        (folder / f"{group}.txt").write_text("# comment\n" + "".join(topics), encoding="utf-8")
    (folder / "README.md").write_text(README, encoding="utf-8")
    return folder
