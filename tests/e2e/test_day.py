"""A reader's day in one sitting: from the tree of books to Exit, with the mouse, the keys and the real clipboard."""
import os
import pathlib
import re
import signal
import struct
import time

import pytest
from phrases import COUSINS, ONCE_KEY
from reader import Reader
from windowtable import WINDOWS, title_of

TOPICS = pathlib.Path(__file__).resolve().parents[2] / "data" / "topics"
LIMIT = 30500  # characters of results after which no further verse is copied


@pytest.fixture(scope="module")
def editor(tmp_path_factory):
    """A folder with a text editor that notes how it was started and stays open. None is left at the end."""
    folder = tmp_path_factory.mktemp("editor")
    program = folder / "notepad.exe"
    program.write_text(f'#!/bin/sh\necho "$$ $# $0" >> {folder}/record\nexec sleep 300\n')
    program.chmod(0o755)
    yield folder
    for process, *_ in record(folder):
        os.kill(process, signal.SIGTERM)


def record(folder):
    """The editors that were started: process, number of arguments, program."""
    lines = (folder / "record").read_text().splitlines() if (folder / "record").exists() else []
    return [(int(process), int(arguments), program) for process, arguments, program in map(str.split, lines)]


def is_running(process):
    return pathlib.Path(f"/proc/{process}/cmdline").read_bytes() == b"sleep\x00300\x00"


@pytest.fixture(scope="module")
def reader(desktop, installed, editor):
    """The program of the whole day."""
    program = Reader(desktop, installed, PATH=f"{editor}:{os.environ['PATH']}")
    program.find("frame", "Select Verse for Reading")
    desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
    yield program
    assert program.end() == ""


def shown(reader, key):
    return reader.find("frame", f"Reading Window -- {key}")


def open_study_aids(reader):
    reader.open_selection()
    reader.key("F8")
    return reader.find("frame", "Study Aids")


def test_a_book_is_found_in_the_tree_and_opened(reader):
    window = reader.open_selection()
    tree = reader.find("tree", "Books", window)
    reader.press("Poetical Books", "table cell", tree)
    assert reader.find("combo box", "Mt", window)
    reader.key("Right")
    reader.press("Salmos -- Ps", "table cell", tree)
    assert reader.find("combo box", "Ps:", window)
    reader.key("Return")
    shown(reader, "Ps:1:1")


def test_a_typed_reference_opens_and_a_bad_one_brings_the_verse_before_back(reader, verses):
    reader.look_up("2Thes:3:16")
    reader.type_reference("Xy:1:1")
    assert reader.text_of_box("Try Again!") == "Incorrect user input. No such verse."
    reader.press("OK")
    reader.absent(None, "Try Again!")
    window = shown(reader, "2Thes:3:16")
    assert reader.find("label", " " + verses["2Thes:3:16"], window)
    reader.wait_for_focus(window, "push button", "Next Verse")


def test_buttons_and_keys_step_through_the_verses(reader):
    reader.look_up("Mt:24:43")
    reader.press("Next Verse")
    shown(reader, "Mt:24:44")
    reader.press("Previous Verse")
    shown(reader, "Mt:24:43")
    reader.key("F12", "F12")
    shown(reader, "Mt:24:45")
    reader.key("F11")
    shown(reader, "Mt:24:44")


def test_the_type_grows_begins_again_and_changes_its_face(reader, verses):
    window = reader.look_up(ONCE_KEY)
    text = reader.find("label", " " + verses[ONCE_KEY], window)
    looks = [reader.picture(text)]
    for name in ("Font Size", "Font Size", "Font Size", "Font Face", "Font Face"):
        reader.press(name, within=window)
        looks.append(reader.picture(text))
    first, larger, smaller, again, other_face, back = looks
    assert len({first, larger, smaller, other_face}) == 4
    assert first == again == back


def test_the_verse_is_copied_by_its_button(reader, desktop, verses):
    window = reader.look_up("Mt:24:43")
    reader.press("Copy Verse to Clipboard", within=window)
    expected = f"Mt:24:43\r\n {verses['Mt:24:43']} (PT)"
    reader.wait_for(lambda: desktop.clipboard() == expected, "the verse on the clipboard")


def test_the_chapter_is_read_and_copied(reader, desktop, verses):
    lines = [f"{key} {text}" for key, text in verses.items() if key.startswith("2Jn:1:")]
    reader.look_up("2Jn:1:6")
    window = reader.open_chapter("2Jn:1:")
    chapter = reader.find("text", "Chapter text", window).queryText()
    assert chapter.getText(0, chapter.characterCount) == "\n".join([*lines, "(PT)"])
    assert chapter.getText(*chapter.getSelection(0)) == lines[5]
    reader.press("Copy Chapter to Clipboard", within=window)
    expected = "\r\n".join(["2Jn:1:", *lines, "(PT)"])
    reader.wait_for(lambda: desktop.clipboard() == expected, "the chapter on the clipboard")


def matching(verses, condition):
    """The lines of results of the New Testament, worked out without the program."""
    keys = list(verses)
    lines = [f"{key} {verses[key]}" for key in keys[keys.index("Mt:1:1"):]]
    return [line for line in lines if condition(line[line.index(" "):])]


def whole_word(word):
    return lambda text: re.search(f"[^0-9a-zA-Z]{word}[^0-9a-zA-Z]", text, re.IGNORECASE)


def choose(reader, box, entry, key):
    """Goes through a drop-down list with a key until it shows the entry."""
    for _ in range(80):
        if box.name == entry:
            return
        before = box.name
        reader.key(key)
        reader.wait_for(lambda: box.name != before, "another entry")
    raise AssertionError(f"no {entry!r} in the list")


def found(reader):
    """What the message says; closes it."""
    text = reader.text_of_box("Search Results:")
    reader.press("OK")
    reader.absent(None, "Search Results:")
    return text


def listed(results):
    return [line.name for line in results]


def test_a_whole_word_is_searched_in_the_new_testament(reader, desktop, verses):
    reader.key("F3")
    window = reader.find("frame", "Advanced Search")
    assert not reader.lines(window).count("push button: Search")  # there is nothing to search for yet
    reader.key("alt+b")
    choose(reader, reader.find("combo box", "The Four Gospels", window), "All New Testament", "Down")
    reader.press("Match whole word(s) only", "check box", window)
    desktop.type("amor")
    reader.press("Search", within=window)
    expected = matching(verses, whole_word("amor"))
    assert found(reader) == f"{len(expected)} verse(s) found."
    results = reader.find("list", "Search results:", window)
    assert listed(results) == expected

    reader.press("Copy Search Results to Clipboard", within=window)
    assert len("\r\n".join(["Search Results:", *expected])) < LIMIT
    text = "\r\n".join(["Search Results:", *expected, "(PT)"])
    reader.wait_for(lambda: desktop.clipboard() == text, "the results on the clipboard")

    reader.click(results[1])
    window = shown(reader, expected[1].split(" ")[0])
    assert reader.find("label", expected[1][expected[1].index(" "):], window)


def test_a_second_search_joins_two_words(reader, desktop, verses):
    reader.key("F3")
    window = reader.find("frame", "Advanced Search")
    reader.press("New Search", within=window)
    reader.absent("list", "Search results:")
    reader.key("ctrl+a")
    desktop.type(COUSINS[0])
    reader.key("Tab")
    choose(reader, reader.find("combo box", "And containing", window), "Or containing", "Down")
    reader.key("Tab")
    desktop.type(COUSINS[1])
    reader.key("Return")
    expected = matching(verses, lambda text: any(whole_word(name)(text) for name in COUSINS))
    assert found(reader) == f"{len(expected)} verse(s) found."
    assert listed(reader.find("list", "Search results:", window)) == expected
    reader.key("Escape")
    reader.absent("frame", "Advanced Search")


def topics(name):
    """The topics of a group and their references, from the list the database is made of."""
    lines = (TOPICS / f"{name}.txt").read_text(encoding="utf-8").splitlines()
    pairs = (line.split("\t") for line in lines if line and not line.startswith("#"))
    return {topic: references.split() for topic, references in pairs}


def test_every_group_has_its_topics_and_a_parable_is_read(reader):
    window = open_study_aids(reader)
    for caption, file in (("Christ's Miracles", "miracles"), ("Messianic Prophecies", "prophecy"),
                          ("Major Gospels Events", "events"), ("Christ's Parables", "parables")):
        reader.press(caption, "radio button", window)
        box = reader.find("combo box", " " + next(iter(topics(file))), window)
        assert [entry.name for entry in box[0]] == [" " + topic for topic in topics(file)]
    reader.key("Tab")
    choose(reader, box, " The Sower", "Down")
    references = reader.find("list", "Verse references", window)
    assert [line.name for line in references] == [f" {verse} " for verse in topics("parables")["The Sower"]]
    reader.click(references[0])
    shown(reader, topics("parables")["The Sower"][0].split("-")[0])


def size_of(node):
    import pyatspi
    box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return box.width, box.height


def test_a_map_is_opened_enlarged_and_copied(reader, desktop):
    window = open_study_aids(reader)
    reader.press("Maps", "page tab", window)
    maps = reader.find("list", "Maps", window)
    assert maps.childCount == 11
    reader.press("Paul's Journey to Rome", "list item", maps)
    window = reader.find("frame", starts="Map -- Paul's ")
    picture = reader.find("image", window.name.removeprefix("Map -- "), window)
    width, height = normal = size_of(picture)
    reader.press("Zoom In/Restore Normal Size", within=window)
    reader.wait_for(lambda: size_of(picture) == (round(width * 1.2), round(height * 1.2)), "the enlarged map")
    reader.key("alt+v", "z")
    reader.wait_for(lambda: size_of(picture) == normal, "the map as it was")

    reader.press("Copy Map to Clipboard", within=window)
    reader.wait_for(lambda: desktop.clipboard_picture().startswith(b"\x89PNG\r\n\x1a\n"), "a picture on the clipboard")
    across, down = struct.unpack(">II", desktop.clipboard_picture()[16:24])
    assert across >= width and abs(across / down - width / height) < 0.01
    reader.key("ctrl+F4")
    reader.absent("frame", window.name)


def test_the_editor_starts_at_once_and_asks_before_it_starts_again(reader, editor):
    reader.press("Notepad")
    reader.wait_for(lambda: len(record(editor)) == 1, "the editor")
    ((process, arguments, program),) = record(editor)
    assert (arguments, program) == (0, str(editor / "notepad.exe"))
    reader.wait_for(lambda: is_running(process), "the editor at work")
    reader.open_selection()  # the program has not waited for it

    reader.key("ctrl+n")
    question = reader.text_of_box("Kestrel Reader: Portuguese Version").splitlines()
    assert question[0] == "Notepad has already been launched."
    reader.press("No")
    reader.absent(None, "Kestrel Reader: Portuguese Version")
    assert len(record(editor)) == 1
    reader.key("ctrl+n")
    reader.find(None, "Kestrel Reader: Portuguese Version")
    reader.press("Yes")
    reader.wait_for(lambda: len(record(editor)) == 2, "another editor")


def test_the_about_window_and_what_hangs_off_it(reader):
    reader.press("About/QORV CD-ROM Offer")
    about = reader.find("dialog", "Kestrel Reader (PT)")
    reader.wait_for_focus(about, "push button", "OK")
    reader.act("More Info", about)
    assert reader.text_of_box("Kestrel Reader: Portuguese Version").startswith("Version: ")
    reader.key("Escape")
    reader.absent("alert", "Kestrel Reader: Portuguese Version")
    for button, title in (("DonationWare", "Your support is needed!"), ("QORV CD-ROM Offer", "QORV CD-ROM Offer")):
        reader.act(button, about)
        letter = reader.find("dialog", title)
        reader.wait_for_focus(letter, "text", title)
        text = reader.find("text", title, letter).queryText()
        assert text.getText(0, text.characterCount).startswith("To close this window, press ESC.")
        reader.key("Escape")
        reader.absent("dialog", title)
        reader.wait_for(lambda: reader.focused(about), "the focus back in the About window")
    reader.key("Escape")
    reader.absent("dialog", "Kestrel Reader (PT)")
    reader.open_selection()
    reader.menu("Help", "About...")
    reader.wait_for_focus(reader.find("dialog", "Kestrel Reader (PT)"), "push button", "OK")
    reader.key("space")
    reader.absent("dialog", "Kestrel Reader (PT)")


def expect_help(reader, page):
    """F1 opens the help at this page; Esc closes it."""
    reader.key("F1")
    window = reader.find("frame", "Kestrel Reader Help")
    reader.wait_for_focus(window, "label", page)
    reader.key("Escape")
    reader.absent("frame", "Kestrel Reader Help")


def test_f1_opens_the_page_of_every_window(reader):
    reading = reader.look_up("2Jn:1:1")
    expect_help(reader, "Reading Window")
    reader.wait_for_focus_in(reading)
    for name, chapter, page in (("ChapRead", "2Jn:1:", "Chapter Window"),
                                ("frmAdvSearch", "", "Search"),
                                ("ChildMapSel", "", "Study Aids"),
                                ("ChildSelect", "", "Select Verse for Reading")):
        reader.key(WINDOWS[name].keys.split()[-1])
        frame = reader.find("frame", title_of(name) + chapter)
        reader.wait_for(lambda: reader.focused(frame), f"the focus in {name}")
        expect_help(reader, page)
        reader.wait_for(lambda: reader.focused(frame), f"the focus back in {name}")
    aids = open_study_aids(reader)
    reader.key("ctrl+F4")  # a new one begins on its tabs
    reader.absent("frame", "Study Aids")
    aids = open_study_aids(reader)
    reader.wait_for_focus(aids, "page tab list", "Classified Verses")
    reader.key("alt+m", "Tab", "Return")
    reader.wait_for(lambda: reader.focused(reader.find("frame", starts="Map -- ")), "the focus in the map window")
    expect_help(reader, "Map")
    reader.key("ctrl+F4")
    reader.wait_for(lambda: reader.focused(aids), "the focus back in the study aids")

    about = reader.open_about()
    expect_help(reader, "About Window")
    for button, title in (("DonationWare", title_of("frmDN")), ("QORV CD-ROM Offer", title_of("frmQORV"))):
        reader.act(button, about)
        reader.wait_for_focus(reader.find("dialog", title), "text", title)
        expect_help(reader, title)
        reader.wait_for_focus(reader.find("dialog", title), "text", title)
        reader.key("Escape")
        reader.wait_for(lambda: reader.focused(about), "the focus back in the About window")
    reader.key("Escape")
    reader.absent("dialog", "Kestrel Reader (PT)")


def minimise(reader, window):
    """By the window's own menu, as its button does."""
    import pyatspi
    height = window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).height
    reader.key("alt+minus", "n")
    reader.wait_for(lambda: window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).height < height / 2,
                    f"{window.name!r} as an icon")


def test_minimised_windows_are_arranged_along_the_bottom(reader):
    import pyatspi
    aids = open_study_aids(reader)
    reader.wait_for(lambda: reader.focused(aids), "the focus in the study aids")
    minimise(reader, aids)
    reading = reader.look_up("Jn:1:1")
    minimise(reader, reading)
    reader.open_selection()
    reader.menu("Window", "Arrange Icons")
    area = reader.find("layered pane", "Windows").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)

    def boxes():
        return [icon.queryComponent().getExtents(pyatspi.DESKTOP_COORDS) for icon in (reading, aids)]

    def stand_in_a_row():
        first, second = sorted(boxes(), key=lambda box: box.x)
        bottoms = {box.y + box.height for box in (first, second)}
        return first.x == area.x and second.x == first.x + first.width and bottoms == {area.y + area.height}

    reader.wait_for(stand_in_a_row, "the icons in a row")
    assert reader.look_up("Jn:1:2").name  # handing it a verse restores the window
    assert boxes()[0].height > 200


def test_exit_ends_the_reader_and_not_the_editor(reader, editor):
    reader.open_selection()
    reader.menu("File", "Exit")
    assert reader.wait() == 0
    time.sleep(0.2)  # what would end with its parent would have ended
    assert record(editor)
    assert all(is_running(process) for process, *_ in record(editor))
