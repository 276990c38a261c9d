"""What was copied outlives the program where a clipboard manager runs, and goes with it where none does."""
import subprocess
import time

import pytest
from phrases import PSALM_117, TWICE, TWICE_KEYS
from selections import Selections

EXIT = ("alt+f", "x")
CLOSE = ("alt+F4",)
VERSE = "Ps:117:2\r\n " + PSALM_117.splitlines()[1].removeprefix("Ps:117:2 ") + " (PT)"
CHAPTER = "Ps:117:\r\n" + PSALM_117 + "(PT)"


@pytest.fixture
def selections(desktop):
    with Selections(desktop.environment["DISPLAY"]) as client:
        assert not client.owner("CLIPBOARD_MANAGER")
        yield client


@pytest.fixture
def manager(desktop, selections):
    """A desktop's clipboard manager, which keeps what a program hands to it by SAVE_TARGETS and nothing else."""
    process = subprocess.Popen(["csd-clipboard"], env=desktop.environment, stderr=subprocess.DEVNULL)
    selections.wait_for_owner("CLIPBOARD_MANAGER")
    assert desktop.clipboard() == ""
    yield process
    process.terminate()
    process.wait()


def copy_verse(reader, desktop):
    reader.look_up("Ps:117:2")
    desktop.key("ctrl+c")
    reader.wait_for(lambda: desktop.clipboard() == VERSE, "the verse on the clipboard")


def copy_chapter(reader, desktop):
    reader.look_up("Ps:117:2")
    reader.open_chapter("Ps:117:")
    reader.press("Copy Chapter to Clipboard")
    reader.wait_for(lambda: desktop.clipboard() == CHAPTER, "the chapter on the clipboard")


def copy_results(reader):
    reader.search(TWICE)
    reader.press("Copy Search Results to Clipboard")


def frames(desktop):
    return desktop.run("xdotool", "search", "--onlyvisible", "--name", "^Kestrel Reader: Port", check=False).split()


def leave(reader, desktop, keys):
    """Ends the program as a user does; how long that takes."""
    desktop.key(*keys)
    begin = time.monotonic()
    assert reader.wait() == 0
    assert reader.end() == ""
    return time.monotonic() - begin


def test_a_copied_verse_outlives_the_program(manager, reader, desktop):
    copy_verse(reader, desktop)
    leave(reader, desktop, EXIT)
    assert desktop.clipboard() == VERSE


def test_a_copied_chapter_outlives_a_closed_frame_with_its_line_ends(manager, reader, desktop):
    copy_chapter(reader, desktop)
    leave(reader, desktop, CLOSE)
    assert desktop.clipboard() == CHAPTER


def test_copied_results_outlive_the_program(manager, reader, desktop, verses):
    copy_results(reader)
    found = [f"\r\n{key} {verses[key]}" for key in TWICE_KEYS]
    expected = "Search Results:" + "".join(found) + "\r\n(PT)"
    reader.wait_for(lambda: desktop.clipboard() == expected, "the results on the clipboard")
    leave(reader, desktop, EXIT)
    assert desktop.clipboard() == expected


def test_a_copied_map_outlives_the_program(manager, reader, desktop):
    reader.open_map()
    desktop.key("ctrl+c")
    reader.wait_for(lambda: desktop.clipboard_picture(), "the map on the clipboard")
    copied = desktop.clipboard_picture()
    leave(reader, desktop, EXIT)
    assert desktop.clipboard_picture() == copied


def test_a_killed_program_hands_nothing_over(manager, reader, desktop):
    """So it is the program's doing, and not the manager's, that the others outlive it."""
    copy_verse(reader, desktop)
    reader.process.kill()
    reader.process.wait()
    assert desktop.clipboard() == ""


def test_without_a_manager_the_text_goes_with_the_program(selections, reader, desktop):
    copy_verse(reader, desktop)
    assert leave(reader, desktop, EXIT) < 2
    assert desktop.clipboard() == ""
    assert not selections.owner("CLIPBOARD")


def test_a_manager_that_never_answers_keeps_nobody_from_starting_again(selections, reader, start, installed, desktop):
    """Qt waits five seconds for it, without a window."""
    selections.hold("CLIPBOARD_MANAGER")
    copy_verse(reader, desktop)
    desktop.key(*EXIT)
    reader.wait_for(lambda: not frames(desktop), "the end of the frame")
    assert start(installed).find(None, "Kestrel Reader (PT)")
    assert reader.process.poll() is None
