"""Starting the installed program: the splash, the frame, and every refusal."""
import subprocess
import time

import pytest
from desktop import Desktop
from reader import Reader, install

TITLE = "Kestrel Reader: Portuguese Version"
SECOND = "Cannot start more than one copy of Kestrel Reader (PT)."


def refusal(start, desktop, folder, title=TITLE):
    program = start(folder)
    text = program.text_of_box(title)
    desktop.key("Return")
    assert program.wait() == 1
    return text


def test_the_splash_comes_first_and_gives_way_to_the_frame(start, copy):
    program = start(copy)
    program.find(None, "Kestrel Reader (PT)")
    shown = time.monotonic()
    program.find("frame", "Select Verse for Reading")
    assert 1.5 < time.monotonic() - shown < 3.5
    program.absent(None, "Kestrel Reader (PT)")


def test_escape_on_the_splash_ends_the_program(start, copy, desktop):
    program = start(copy)
    program.find(None, "Kestrel Reader (PT)")
    desktop.key("Escape")
    assert program.process.wait(1.5) == 0


def test_arguments_are_not_looked_at(start, copy):
    reader = start(copy, arguments=["-platform", "offscreen", "-style", "windows", "--version", "Jn:3:16"])
    assert reader.find("frame", "Select Verse for Reading")


def test_refuses_to_start_without_the_clip(start, copy, desktop):
    (copy / "SEARCH.AVI").unlink()
    assert refusal(start, desktop, copy) == "Couldn't find file 'SEARCH.AVI'. Please run Setup."


def test_refuses_to_start_without_the_database(start, copy, desktop):
    (copy / "KESTRPT.DAT").unlink()
    assert refusal(start, desktop, copy) == "Couldn't find file 'KESTRPT.DAT'. Please run Setup."


def test_without_both_only_the_clip_is_named(start, copy, desktop):
    (copy / "SEARCH.AVI").unlink()
    (copy / "KESTRPT.DAT").unlink()
    assert refusal(start, desktop, copy) == "Couldn't find file 'SEARCH.AVI'. Please run Setup."


def test_refuses_a_database_one_second_off(start, copy, desktop):
    subprocess.run(["touch", "-m", "-d", "1998-05-05 05:00:01", copy / "KESTRPT.DAT"], check=True)
    assert refusal(start, desktop, copy) == ("Can't continue; file 'KESTRPT.DAT' has been modified. "
                                             "Please uninstall the program then run Setup again.")


def test_refuses_a_database_one_byte_longer(start, copy, desktop):
    with open(copy / "KESTRPT.DAT", "ab") as database:
        database.write(b"\0")
    subprocess.run(["touch", "-m", "-d", "1998-05-05 05:00:00", copy / "KESTRPT.DAT"], check=True)
    assert refusal(start, desktop, copy).startswith("Can't continue; file 'KESTRPT.DAT' has been modified.")


def test_a_second_copy_is_refused_and_the_first_goes_on(start, copy, desktop):
    first = start(copy)
    first.find("frame", "Select Verse for Reading")
    assert refusal(start, desktop, copy, "Kestrel Reader (PT) is already running") == SECOND
    assert first.find("frame", "Select Verse for Reading")
    assert first.process.poll() is None


def test_after_the_first_copy_is_killed_another_starts(start, copy):
    first = start(copy)
    first.find("frame", "Select Verse for Reading")
    first.process.kill()
    first.process.wait()
    start(copy).find("frame", "Select Verse for Reading")


@pytest.mark.parametrize("name", ["with blank", "é ação", "100%", "what?", "number#1", "a'b", "x" * 200])
def test_starts_and_reads_in_odd_folders(start, installed, tmp_path, name):
    program = start(install(installed, tmp_path / name))
    program.find("frame", "Select Verse for Reading")
    program.desktop.key("Return")
    program.find("frame", "Reading Window -- Mt:1:1")


@pytest.mark.parametrize("damage", ["noise", "cut", "empty"])
def test_a_damaged_database_of_the_right_length_and_time_gives_sqlites_message(start, copy, desktop, damage):
    database = copy / "KESTRPT.DAT"
    sound = database.read_bytes()
    bytes_ = {"noise": bytes((i * 7919 >> 3) & 255 for i in range(len(sound))),
              "cut": sound[:100_000].ljust(len(sound), b"\0"),
              "empty": bytes(len(sound))}[damage]
    database.write_bytes(bytes_)
    subprocess.run(["touch", "-m", "-d", "1998-05-05 05:00:00", database], check=True)
    program = start(copy)
    program.find("frame", "Select Verse for Reading")
    desktop.key("Return")
    text = program.text_of_box(TITLE)
    assert text and "has been modified" not in text
    desktop.key("Return")
    assert program.wait() == 1


@pytest.fixture
def crowded():
    """A desktop of its own: after so many windows at once, a window manager may forget who has the focus."""
    with Desktop() as session:
        yield session


def test_sixty_copies_at_once_make_one_frame_and_59_refusals_and_so_again_afterwards(crowded, copy):
    for _ in range(3):
        programs = [Reader(crowded, copy) for _ in range(60)]
        refused = set()
        deadline = time.monotonic() + 120
        while len(refused) < 59 and time.monotonic() < deadline:
            for window in crowded.run("xdotool", "search", "--name", "already running", check=False).split():
                # two commands: the box may be gone before the key, and a command that fails leaves the key held down
                crowded.run("xdotool", "windowfocus", window, check=False)
                crowded.key("Return")
            refused = {program for program in programs if program.process.poll() == 1}
        crowded.wait_for_window(f"{TITLE} - Freeware")
        frames = crowded.run("xdotool", "search", "--name", f"{TITLE} - Freeware").split()
        running = [program for program in programs if program.process.poll() is None]
        assert [program.end() for program in programs] == [""] * 60
        assert (len(refused), len(frames), len(running)) == (59, 1, 1)
        assert not crowded.run("xdotool", "search", "--onlyvisible", "--name", "Kestrel Reader", check=False)


# --- By way of a link ---

LINKS = ["bin", "absolute", "again", "folder"]


@pytest.fixture
def linked(installed, tmp_path):
    """A folder with the program in lib/kestrel-reader, as a package has it, and the LINKS to it in other folders."""
    program = install(installed, tmp_path / "lib" / "kestrel-reader") / "kestrel-reader"
    targets = {"bin": "../lib/kestrel-reader/kestrel-reader", "absolute": program, "again": "../bin/kestrel-reader"}
    for name, target in targets.items():
        (tmp_path / name).mkdir()
        (tmp_path / name / "kestrel-reader").symlink_to(target)
    (tmp_path / "folder").symlink_to("lib/kestrel-reader")
    return tmp_path


@pytest.mark.parametrize("link", LINKS)
def test_started_by_a_link_it_finds_its_files_and_a_direct_start_is_a_second_copy(start, desktop, linked, link):
    program = start(linked / link)
    window = program.find("frame", "Select Verse for Reading")  # the clip and the database are there
    program.wait_for_focus(window, "combo box", "Mt")
    program.key("F1")
    program.find("frame", "Kestrel Reader Help")
    assert refusal(start, desktop, linked / "lib" / "kestrel-reader", "Kestrel Reader (PT) is already running") == SECOND


def test_a_start_by_a_link_is_a_second_copy(start, desktop, linked):
    first = start(linked / "lib" / "kestrel-reader")
    first.find("frame", "Select Verse for Reading")
    for link in LINKS:
        assert refusal(start, desktop, linked / link, "Kestrel Reader (PT) is already running") == SECOND
