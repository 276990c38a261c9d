"""The program in a Wayland session, by Qt's own plugin: what a reader does on today's desktops."""
import os
import struct

import pytest
from phrases import PSALM_117, TWICE, TWICE_FOUND, TWICE_KEYS
from reader import Reader
from wayland import WaylandDesktop

FRAME = "Kestrel Reader: Portuguese Version"


@pytest.fixture(scope="module")
def session(desktop):
    with WaylandDesktop(desktop) as wayland:
        yield wayland


@pytest.fixture(scope="module")
def editor(tmp_path_factory):
    """A folder with an editor that notes each start."""
    folder = tmp_path_factory.mktemp("editor")
    (folder / "notepad.exe").write_text(f"#!/bin/sh\necho started >> {folder}/record\n")
    (folder / "notepad.exe").chmod(0o755)
    return folder


@pytest.fixture(scope="module")
def sequences(tmp_path_factory):
    """A system's list of key sequences that names a key younger than the program's libraries."""
    path = tmp_path_factory.mktemp("sequences") / "Compose"
    path.write_text('<dead_of_tomorrow> <a> : "a"\n')
    return path


@pytest.fixture(scope="module")
def reader(session, installed, editor, sequences):
    """One program for all tests, one after another; nothing is written to standard error."""
    program = Reader(session, installed, PATH=f"{editor}:{os.environ['PATH']}", XCOMPOSEFILE=str(sequences))
    program.wait_for(lambda: [title for title, _ in session.windows()] == [""], "the splash, which has no title")
    program.find("frame", "Select Verse for Reading")
    session.wait_for_focus(FRAME)
    yield program
    assert program.end() == ""


def test_the_splash_gives_way_to_the_frame(reader, session):
    reader.wait_for(lambda: session.windows() == [(f"{FRAME} - Freeware", True)], "the frame alone")


def test_a_verse_is_looked_up_stepped_from_and_copied(reader, session):
    reader.look_up("Ps:117:1")
    reader.key("F12")
    reader.wait_for_focus_in(reader.find("frame", "Reading Window -- Ps:117:2"))
    reader.key("ctrl+c")
    text = PSALM_117.splitlines()[1].removeprefix("Ps:117:2 ")
    reader.wait_for(lambda: session.clipboard() == f"Ps:117:2\r\n {text} (PT)", "the verse on the clipboard")


def test_a_chapter_is_copied(reader, session):
    reader.look_up("Ps:117:2")
    window = reader.open_chapter("Ps:117:")
    reader.act("Copy Chapter to Clipboard", window)
    reader.wait_for(lambda: session.clipboard() == "Ps:117:\r\n" + PSALM_117 + "(PT)", "the chapter on the clipboard")


def test_a_result_of_a_search_is_opened(reader):
    assert reader.search(TWICE) == TWICE_FOUND
    reader.key("Home", "Return")
    assert reader.find("frame", f"Reading Window -- {TWICE_KEYS[0]}")


def test_a_map_is_shown_and_copied(reader, session, tmp_path):
    def colors():
        session.screenshot(tmp_path / "screen.png")
        return int(session.run("identify", "-format", "%k", str(tmp_path / "screen.png")))

    reader.open_selection()
    before = colors()
    window = reader.open_map()
    reader.wait_for(lambda: colors() > before + 5000, "the map's colors on the screen")
    reader.act("Copy Map to Clipboard", window)
    reader.wait_for(lambda: session.clipboard_picture().startswith(b"\x89PNG\r\n\x1a\n"), "a picture on the clipboard")
    across, down = struct.unpack(">II", session.clipboard_picture()[16:24])
    assert across > 400 and down > 300


def test_an_unknown_reference_is_told_and_the_verse_stays(reader):
    reader.look_up("Ps:117:1")
    reader.type_reference("Zz:1:1")
    assert reader.text_of_box("Try Again!") == "Incorrect user input. No such verse."
    reader.key("Return")
    reader.absent(None, "Try Again!")
    assert reader.find("frame", "Reading Window -- Ps:117:1")


def test_a_second_copy_is_refused(reader, session, installed):
    second = Reader(session, installed)
    assert second.text_of_box("Kestrel Reader (PT) is already running")
    second.key("Return")
    assert second.wait() == 1
    assert second.end() == ""
    session.wait_for_focus(FRAME)


def test_the_editor_starts_and_asks_before_it_starts_again(reader, session, editor):
    reader.open_selection()
    reader.key("ctrl+n")
    reader.wait_for(lambda: (editor / "record").exists(), "the editor")
    reader.key("ctrl+n")
    assert reader.text_of_box(FRAME).startswith("Notepad has already been launched.")
    reader.key("n")
    reader.absent(None, FRAME)
    session.wait_for_focus(FRAME)
    assert (editor / "record").read_text() == "started\n"


def test_the_help_opens_and_closes(reader, session):
    reader.open_selection()
    reader.key("F1")
    session.wait_for_focus("Help")
    reader.wait_for_focus(reader.find("frame", "Kestrel Reader Help"), "label", "Select Verse for Reading")
    reader.key("Escape")
    session.wait_for_focus(FRAME)


def test_the_focus_is_where_it_was_after_another_workspace(reader, session):
    window = reader.look_up("Ps:117:1")
    before = reader.focused(window)
    session.run("swaymsg", "workspace", "2")
    reader.wait_for(lambda: not reader.focused(window), "the focus to leave")
    session.run("swaymsg", "workspace", "1")
    session.wait_for_focus(FRAME)
    reader.wait_for_focus(window, *before)
    reader.key("F12")
    assert reader.find("frame", "Reading Window -- Ps:117:2")


def test_exit_ends_it(reader):
    reader.key("alt+f", "x")
    assert reader.wait() == 0
