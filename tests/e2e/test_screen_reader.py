"""What a screen reader meets in every window, and what it is told when something changes."""
import json
import pathlib
import re
import subprocess
import sys
import threading

import pytest
from phrases import MILLER
from reader import install

PLACE = "Abraham's Journeys from Ur by way of Haran to Canaan, to Egypt and back, and to Moriah, in the time of the " \
        "patriarchs (Gn 11:31-23:2)"

FRAME = """\
frame: Kestrel Reader: Portuguese Version - Freeware
  push button: Select Verse to read
  push button: Notepad
  push button: Search
  push button: Study Aids
  push button: About/QORV CD-ROM Offer
  frame: Select Verse for Reading
    push button: Examples
    push button: Display Verse
    tree: Books
    combo box: Mt
  menu bar:
    menu item: File
    menu item: Search
    menu item: Tools
    menu item: Window
    menu item: Help"""
READING = """\
frame: Reading Window -- 2Jn:1:13
  label:  {verse}
  label: 2Jn:1:13
  push button: Previous Verse
  push button: Next Verse
  push button: Current Chapter
  push button: Copy Verse to Clipboard
  push button: Font Size
  push button: Font Face
  check box: AutoJump to next verse after
  combo box: 4
  label: seconds"""
CHAPTER = """\
frame: Chapter Window -- 2Jn:1:
  text: Chapter text
  push button: Font Size
  push button: Font Face
  push button: Copy Chapter to Clipboard
  push button: Tip"""
SEARCH = """\
frame: Advanced Search
  label: Search for verses containing the following text:
  text: Search for verses containing the following text:
  combo box: And containing
  text: Second word or phrase
  panel:
  label: Select book(s) to scan:
  combo box: The Four Gospels
  check box: Match whole word(s) only
  push button: Search (disabled)
  push button: Cancel/Close
  push button: Help"""
RESULTS = """\
frame: Advanced Search
  label: Search for verses containing the following text:
  text: Search for verses containing the following text: (disabled)
  combo box: And containing (disabled)
  text: Second word or phrase (disabled)
  panel:
  label: Select book(s) to scan:
  combo box: The Four Gospels (disabled)
  check box: Match whole word(s) only (disabled)
  push button: Search (disabled)
  push button: Cancel/Close
  push button: Help
  push button: New Search
  push button: Copy Search Results to Clipboard
  label: Search results:
  list: Search results:"""
TABS = """\
frame: Study Aids
  page tab list: {tab}
    page tab: Classified Verses
    page tab: Maps
    page tab: Download Other Translations
"""
VERSES = TABS.format(tab="Classified Verses") + """\
  panel: Select a Group
    radio button: Major Gospels Events (checked)
    radio button: Christ's Miracles
    radio button: Christ's Parables
    radio button: Messianic Prophecies
  panel: Group Contents
    combo box:  The Preface of Luke
    list: Verse references"""
MAPS = TABS.format(tab="Maps") + """\
  panel: Select a Map
    list: Maps"""
DOWNLOAD = TABS.format(tab="Download Other Translations") + """\
  panel:
    label: Kestrel Reader is also made in other languages, [^\n]*
    push button: Web site
    push button: Visit the Web Site"""
MAP = f"""\
frame: Map -- {PLACE}
  image: {PLACE}
  push button: Zoom In/Restore Normal Size
  push button: Copy Map to Clipboard"""
ABOUT = """\
dialog: Kestrel Reader (PT)
  image: Kestrel Reader (PT)
  image: E-mail: author@kestrel-reader.example
  link: E-mail: author@kestrel-reader.example
  push button: More Info
  push button: DonationWare
  push button: QORV CD-ROM Offer
  push button: OK"""
HELP = """\
frame: Kestrel Reader Help
  tool bar: Help Toolbar
    push button: Back (disabled)
    push button: Forward (disabled)
    label: Find:
    text: Find:
    push button: Next
    push button: Previous
    push button: Copy (disabled)
    push button: Larger
    push button: Smaller
    push button: Normal Size
    push button: Português
  status bar:
  split pane:
    label: Select Verse for Reading
    list: Contents"""


@pytest.fixture
def reader(sitting):
    """The program with a fresh selection window and no other inner window."""
    sitting.begin_afresh()
    return sitting


def expect(reader, window, outline):
    def shown():
        return "\n".join(line.rstrip() for line in reader.lines(window))

    reader.wait_for(lambda: shown() == outline, f"this, instead of\n{shown()}\n:\n{outline}")


def test_the_splash_is_told_as_a_picture_with_a_name(start, tmp_path, installed):
    splash = start(install(installed, tmp_path / "kestrel"))
    expect(splash, splash.find("dialog", "Kestrel Reader (PT)"), "dialog: Kestrel Reader (PT)\n  image: Kestrel Reader (PT)")


def test_the_frame_and_the_selection_window(reader):
    expect(reader, reader.find("frame", starts="Kestrel Reader: Portuguese Version"), FRAME)
    entries = reader.find("combo box", "Mt")[0]
    assert [entries[0].name, entries[65].name, entries.childCount] == ["Gn:", "Rv:", 66]
    nodes = [node.name for node in reader.find("tree", "Books") if node.getRoleName() == "table cell"]
    assert nodes[:2] == ["Books of the Kestrel Reader", "Old Testament"] and nodes[-1] == "Apocalipse -- Rv"
    reader.key("ctrl+a", "Delete")
    expect(reader, reader.find("push button", "Display Verse"), "push button: Display Verse (disabled)")


def test_the_reading_and_the_chapter_window(reader, verses):
    window = reader.look_up("2Jn:1:13")
    expect(reader, window, READING.format(verse=verses["2Jn:1:13"]))
    entries = reader.find("combo box", "4", window)[0]
    assert [entry.name for entry in entries] == ["3", "4", "5", "6", "7", "8", "12"]
    expect(reader, reader.open_chapter("2Jn:1:"), CHAPTER)


def gospels_with(verses, piece):
    """In how many verses of the Gospels a piece of text is found."""
    return sum(piece in text.lower() for key, text in verses.items() if key.split(":")[0] in ("Mt", "Mk", "Lk", "Jn"))


def test_the_search_window_in_both_layouts(reader, desktop, verses):
    window = reader.open_search()
    expect(reader, window, SEARCH)
    assert reader.find("combo box", "The Four Gospels", window)[0].childCount == 75
    desktop.type("amor")
    expect(reader, window, SEARCH.replace("Search (disabled)", "Search"))
    reader.key("Return")
    box = reader.find("alert", "Search Results:")
    found = gospels_with(verses, "amor")
    expect(reader, box, f"alert: Search Results:\n  image:\n  label: {found} verse(s) found.\n  panel:\n    push button: OK")
    reader.key("Return")
    expect(reader, window, RESULTS)
    assert reader.find("list", "Search results:", window).childCount == found > 20
    reader.press("New Search", within=window)
    expect(reader, window, SEARCH.replace("Search (disabled)", "Search"))


def test_every_verse_of_a_long_list_is_there(reader, desktop, verses):
    window = reader.open_search()
    reader.key("alt+b", "End", "Up", "Home")  # the end of the list and its beginning
    reader.key("Down", "Down", "Down", "Down")
    reader.find("combo box", "All Old Testament", window)
    reader.key("alt+e")
    desktop.type("e")
    reader.key("Return")
    first = list(verses).index("Gn:1:1")
    text = list(verses.items())[first:list(verses).index("Mt:1:1")]
    expected = [f"{key} {verse}" for key, verse in text if "e" in verse.lower()]
    assert reader.text_of_box("Search Results:") == f"{len(expected)} verse(s) found."
    reader.key("Return")
    results = reader.find("list", "Search results:", window)
    assert results.childCount == len(expected) > 20000
    for row in (0, 1, len(expected) // 2, len(expected) - 1):
        assert (results[row].getRoleName(), results[row].name) == ("list item", expected[row])


def test_the_study_aids_and_a_map_are_told(reader):
    window = reader.open_aids()
    expect(reader, window, VERSES)
    reader.key("alt+d")
    reader.wait_for(lambda: re.fullmatch(re.escape(DOWNLOAD).replace(re.escape("[^\n]*"), "[^\n]*"),
                                         "\n".join(line.rstrip() for line in reader.lines(window))), "the third page")
    reader.key("alt+m")
    expect(reader, window, MAPS)
    maps = reader.find("list", "Maps", window)
    assert [maps.childCount, maps[0].name, maps[10].name] == [11, "Abraham's Journeys", "Paul's Journey to Rome"]
    reader.key("Tab", "Return")
    expect(reader, reader.find("frame", starts="Map -- "), MAP)


def test_the_about_window_and_the_help(reader):
    reader.key("F1")
    window = reader.find("frame", "Kestrel Reader Help")
    expect(reader, window, HELP)
    reader.key("Escape")
    reader.absent("frame", "Kestrel Reader Help")
    about = reader.open_about()
    expect(reader, about, ABOUT)
    for button, title in (("DonationWare", "Your support is needed!"), ("QORV CD-ROM Offer", "QORV CD-ROM Offer")):
        reader.act(button, about)
        letter = reader.find("dialog", title)
        expect(reader, letter, f"dialog: {title}\n  text: {title}")
        reader.wait_for_focus(letter, "text", title)
        reader.key("Escape")
        reader.absent("dialog", title)
    reader.key("Escape")
    reader.absent("dialog", "Kestrel Reader (PT)")


def test_the_about_window_is_where_it_is_said_to_be(reader, desktop):
    """It has no frame, and its own word about its place is the one that is sure to arrive everywhere."""
    import pyatspi
    for _ in range(8):
        about = reader.open_about()
        window = desktop.run("xdotool", "getactivewindow").strip()
        assert "user specified location" in desktop.run("xprop", "-id", window, "WM_NORMAL_HINTS")
        place = about.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        assert f"Position: {place.x},{place.y} " in desktop.run("xdotool", "getwindowgeometry", window)
        reader.press("More Info", within=about)
        reader.find("alert")
        reader.key("Escape")
        reader.absent("alert", "Kestrel Reader: Portuguese Version")
        reader.key("Escape")
        reader.absent("dialog", "Kestrel Reader (PT)")


ITEMS = {"File": ["Select Verse for Reading", "Launch Notepad", "Exit"], "Edit": ["Copy Verse to Clipboard"],
         "View": ["Current Chapter", "Previous Verse", "Next Verse"], "Search": ["Search"], "Tools": ["Study Aids"],
         "Window": ["Arrange Icons"], "Help": ["About..."]}


def test_menus_are_named_by_their_captions(reader):
    reader.look_up("2Jn:1:1")
    bar = reader.find("menu bar")
    assert [menu.name for menu in bar] == list(ITEMS)
    for menu in bar:
        items = [item.name for item in menu[0] if item.getRoleName() == "menu item"]
        assert items[:len(ITEMS[menu.name])] == ITEMS[menu.name]
    keys = {item.name: item.queryAction().getKeyBinding(0)
            for menu in bar for item in menu[0] if item.getRoleName() == "menu item"}
    assert keys["Next Verse"] == "F12" and keys["Copy Verse to Clipboard"] == "Ctrl+C"


# --- What is told while it happens ---

@pytest.fixture
def told(reader, desktop, request):
    """Waits until a screen reader has been told of these; the telling of one may come with others between."""
    script = pathlib.Path(__file__).with_name("listener.py")
    process = subprocess.Popen([sys.executable, script, *getattr(request, "param", [])], env=desktop.environment, stdout=subprocess.PIPE, text=True)
    assert process.stdout.readline() == "listening\n"
    heard = []

    def listen():
        for line in process.stdout:
            heard.append(tuple(json.loads(line)))

    thread = threading.Thread(target=listen)
    thread.start()

    def wait(*events):
        reader.wait_for(lambda: all(event in heard for event in events), f"{events} among {heard}")
        news = list(heard)
        heard.clear()
        return news

    yield wait
    process.terminate()
    process.wait()
    thread.join()


def test_a_step_tells_the_new_verse(reader, told, verses):
    reader.look_up("2Jn:1:1")
    told(("focus", "push button", "Next Verse"))
    reader.key("F12")
    told(("name", "frame", "Reading Window -- 2Jn:1:2"), ("name", "label", "2Jn:1:2"),
         ("name", "label", " " + verses["2Jn:1:2"]))


def test_each_new_verse_and_each_copy_is_announced_once(reader, told, verses):
    reader.look_up("2Jn:1:1")
    told(("announcement", "label", "2Jn:1:1 " + verses["2Jn:1:1"]))
    reader.key("F12")
    news = told(("announcement", "label", "2Jn:1:2 " + verses["2Jn:1:2"]))
    reader.key("ctrl+c")
    news += told(("announcement", "push button", "Copied"))
    assert [event[0] for event in news].count("announcement") == 2


@pytest.mark.parametrize("told", [["--old"]], indirect=True)
def test_a_screen_reader_without_announcements_is_told_by_the_control_with_the_focus(reader, told, verses):
    reader.look_up("2Jn:1:1")
    news = told(("description", "push button", "2Jn:1:1 " + verses["2Jn:1:1"]), ("description", "push button", ""))
    reader.key("F12")
    news += told(("description", "push button", "2Jn:1:2 " + verses["2Jn:1:2"]), ("description", "push button", ""))
    reader.key("ctrl+c")
    news += told(("description", "push button", "Copied"), ("description", "push button", ""))
    assert [text for _, _, text in news] == ["2Jn:1:1 " + verses["2Jn:1:1"], "", "2Jn:1:2 " + verses["2Jn:1:2"], "",
                                             "Copied", ""]


def test_another_window_tells_where_its_focus_is(reader, told):
    reader.open_search()
    told(("focus", "text", "Search for verses containing the following text:"))
    reader.key("F2")
    told(("focus", "combo box", "Mt"))
    reader.key("ctrl+Tab")
    told(("focus", "text", "Search for verses containing the following text:"))
    reader.open_aids()
    told(("focus", "page tab list", "Classified Verses"))


def test_a_search_tells_its_message_and_then_the_results(reader, told, desktop):
    window = reader.open_search()
    desktop.type(MILLER)
    told(("focus", "text", "Search for verses containing the following text:"))
    reader.key("Return")
    news = told(("focus", "push button", "OK"))
    passed = [name for kind, role, name in news if kind == "focus"]
    assert not {"And containing", "The Four Gospels", "Match whole word(s) only", "Cancel/Close"} & set(passed)
    reader.key("Return")
    told(("focus", "list", "Search results:"))
    results = reader.find("list", "Search results:", window)
    reader.key("Down")
    told(("focus", "list item", results[0].name))


def test_a_new_map_and_a_new_chapter_are_told_by_their_frames(reader, told):
    reader.look_up("2Jn:1:1")
    reader.open_chapter("2Jn:1:")
    told(("name", "frame", "Chapter Window -- 2Jn:1:"), ("focus", "text", "Chapter text"))
    reader.open_selection()
    reader.open_map()
    told(("name", "frame", f"Map -- {PLACE}"), ("focus", "push button", "Zoom In/Restore Normal Size"))
