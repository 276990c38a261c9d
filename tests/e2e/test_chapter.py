"""A whole chapter: opened, read by a screen reader, copied, and dragged into another program."""
import json
import select

import pytest
from phrases import PSALM_117


@pytest.fixture
def chapter_text(reader):
    """The text box, with the second verse of Psalm 117 highlighted."""
    reader.look_up("Ps:117:2")
    return reader.find("text", "Chapter text", reader.open_chapter("Ps:117:"))


def selected(box):
    start, end = box.queryText().getSelection(0)
    return box.queryText().getText(start, end)


def test_a_screen_reader_reads_the_chapter_and_its_highlight(reader, chapter_text):
    shown = chapter_text.queryText()
    assert shown.getText(0, shown.characterCount) == PSALM_117.replace("\r\n", "\n") + "(PT)"
    assert selected(chapter_text) == PSALM_117.splitlines()[1]


def test_the_chapter_is_copied_with_its_reference(reader, desktop, chapter_text):
    reader.press("Copy Chapter to Clipboard")
    reader.wait_for(lambda: desktop.clipboard() == "Ps:117:\r\n" + PSALM_117 + "(PT)", "the chapter on the clipboard")


def test_ctrl_c_copies_the_selection_with_its_line_ends(reader, desktop, chapter_text):
    desktop.key("ctrl+a", "ctrl+c")
    reader.wait_for(lambda: desktop.clipboard() == PSALM_117 + "(PT)", "the text on the clipboard")


def test_selected_text_is_dropped_in_another_program_to_the_letter(reader, desktop, chapter_text, drop_target):
    desktop.run("xdotool", "search", "--name", "^Kestrel Reader: Portuguese", "windowactivate", "--sync")
    desktop.key("ctrl+Home", "shift+Down", "shift+Down", "shift+Down", "shift+Right", "shift+Right")
    reader.wait_for(lambda: "Ps:117:2" in selected(chapter_text), "a selection over two verses")

    import pyatspi
    x, y, width, height = chapter_text.queryText().getCharacterExtents(3, pyatspi.DESKTOP_COORDS)
    desktop.drag((x + width // 2, y + height // 2), (1200, 620))
    assert select.select([drop_target.stdout], [], [], 20)[0], "nothing was dropped"
    dropped = json.loads(drop_target.stdout.readline())

    assert dropped["formats"] == ["text/plain"]
    assert dropped["copies"] and dropped["onlyCopies"]
    assert PSALM_117.startswith(dropped["text"])
    assert dropped["text"].count("\r\n") == 1
    assert "\r\nPs:117:2 Porque" in dropped["text"]
