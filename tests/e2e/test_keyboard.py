"""Every window by keyboard alone: where Tab goes, what shows the focus, which keys press, open, change and close."""
import pytest
from reader import Reader
from walks import stops, walk

READING = ["push button: Next Verse", "push button: Previous Verse", "check box: AutoJump to next verse after",
           "combo box: 4", "push button: Font Size", "push button: Font Face", "push button: Copy Verse to Clipboard",
           "push button: Current Chapter"]
SEARCH = ["text: Search for verses containing the following text:", "combo box: And containing",
          "text: Second word or phrase", "combo box: The Four Gospels", "check box: Match whole word(s) only",
          "push button: Search", "push button: Cancel/Close", "push button: Help"]
RESULTS = ["push button: Cancel/Close", "push button: Help", "push button: New Search",
           "push button: Copy Search Results to Clipboard", "list: Search results:"]


@pytest.fixture
def reader(sitting):
    """The program with a fresh selection window and no other inner window."""
    sitting.begin_afresh()
    return sitting


def reading(reader):
    return reader.look_up("2Jn", "2Jn:1:1")


def chapter(reader):
    reading(reader)
    return reader.open_chapter("2Jn:1:")


def search(reader):
    """The search window with a word in its box and nothing found yet."""
    window = reader.open_search()
    reader.desktop.type("amor")
    reader.wait_for(lambda: "push button: Search" in [line.strip() for line in reader.lines(window)], "a search to run")
    return window


def results(reader):
    window = search(reader)
    reader.key("Return")
    reader.find("alert", "Search Results:")
    reader.key("Return")
    reader.wait_for_focus(window, "list", "Search results:")
    return window


def maps(reader):
    return reader.open_aids("m")


def download(reader):
    return reader.open_aids("d")


def help_window(reader):
    reader.key("F1")
    window = reader.find("frame", "Kestrel Reader Help")
    reader.wait_for_focus(window, "label", "Select Verse for Reading")
    reader.key("F1")  # its own page, which has no links to stop at
    reader.wait_for_focus(window, "label", "This help")
    return window


WINDOWS = [
    (Reader.open_selection, ["combo box: Mt", "push button: Display Verse", "push button: Examples", "tree: Books"]),
    (reading, READING),
    (chapter, ["text: Chapter text", "push button: Font Size", "push button: Font Face",
               "push button: Copy Chapter to Clipboard", "push button: Tip"]),
    (search, SEARCH),
    (results, RESULTS[-1:] + RESULTS[:-1]),
    (Reader.open_aids, ["page tab list: Classified Verses", "radio button: Major Gospels Events",
                        "combo box:  The Preface of Luke", "list: Verse references"]),
    (maps, ["page tab list: Maps", "list: Maps"]),
    (download, ["page tab list: Download Other Translations", "push button: Visit the Web Site"]),
    (Reader.open_map, ["push button: Zoom In/Restore Normal Size", "push button: Copy Map to Clipboard"]),
    (Reader.open_about, ["push button: OK", "link: E-mail: author@kestrel-reader.example", "push button: More Info",
                         "push button: DonationWare", "push button: QORV CD-ROM Offer"]),
    (help_window, ["label: This help", "push button: Back", "text: Find:", "push button: Next", "push button: Previous",
                   "push button: Larger", "push button: Smaller", "push button: Normal Size", "push button: Português",
                   "list: Contents"]),
]
NAMES = ["selection", "reading", "chapter", "search", "results", "verses", "maps", "download", "map", "about", "help"]
ESCAPED = (Reader.open_about, help_window)


@pytest.mark.parametrize("opened, order", WINDOWS, ids=NAMES)
def test_tab_visits_every_control_in_order_and_comes_round(reader, opened, order):
    window = opened(reader)
    assert walk(reader, window, "Tab") == order
    assert walk(reader, window, "shift+Tab") == [order[0], *reversed(order[1:])]
    assert sorted(stops(reader, window)) == sorted(stop for stop in order if not stop.startswith("label"))
    if opened in ESCAPED:
        title = window.name
        reader.key("Escape")
        reader.absent(None, title)


@pytest.mark.parametrize("button, title", [("DonationWare", "Your support is needed!"),
                                           ("QORV CD-ROM Offer", "QORV CD-ROM Offer")])
def test_the_text_windows_are_opened_scrolled_and_closed_by_keyboard(reader, button, title):
    window = reader.open_about()
    while reader.focused(window) != ("push button", button):
        before = reader.focused(window)
        reader.key("Tab")
        reader.wait_for(lambda: reader.focused(window) not in (None, before), "Tab to go on")
    reader.key("space")
    letter = reader.find("dialog", title)
    reader.wait_for_focus(letter, "text", title)
    top = reader.picture(letter)
    reader.key("Tab", "Next")  # Tab has nowhere to go
    reader.wait_for(lambda: reader.picture(letter) != top, "the next page")
    assert reader.focused(letter) == ("text", title)
    reader.key("Escape")
    reader.wait_for_focus(window, "push button", button)
    reader.key("Escape")
    reader.absent("dialog", "Kestrel Reader (PT)")


def test_without_inner_windows_tab_goes_through_the_toolbar(reader):
    reader.key("ctrl+F4")
    reader.absent("frame", "Select Verse for Reading")
    frame = reader.find("frame", starts="Kestrel Reader: Portuguese Version")
    reader.key("Tab")
    reader.wait_for_focus_in(frame)
    order = ["push button: Select Verse to read", "push button: Notepad", "push button: Search", "push button: Study Aids",
             "push button: About/QORV CD-ROM Offer"]
    assert walk(reader, frame, "Tab") == order
    assert walk(reader, frame, "shift+Tab") == [order[0], *reversed(order[1:])]
    reader.key("space")
    reader.wait_for_focus_in(reader.find("frame", "Select Verse for Reading"))


@pytest.mark.parametrize("opened, name, role", [
    (reading, "Next Verse", "push button"),
    (reading, "AutoJump to next verse after", "check box"),
    (reading, "4", "combo box"),
    (search, "Match whole word(s) only", "check box"),
    (results, "Search results:", "list"),
    (maps, "Maps", "list"),
    (Reader.open_map, "Zoom In/Restore Normal Size", "push button"),
])
def test_the_focus_is_seen(reader, desktop, opened, name, role):
    window = opened(reader)
    desktop.run("xdotool", "mousemove", "1270", "890")
    control = reader.find(role, name, window)
    while reader.focused(window) != (role, name):
        before = reader.focused(window)
        reader.key("Tab")
        reader.wait_for(lambda: reader.focused(window) not in (None, before), "Tab to go on")
    with_focus = reader.picture(control)
    reader.key("Tab")
    reader.wait_for(lambda: reader.focused(window) not in (None, (role, name)), "Tab to go on")
    assert reader.picture(control) != with_focus


def test_space_presses_and_enter_leaves_the_button_to_the_window(reader):
    window = reading(reader)
    reader.key("space")
    assert reader.find("frame", "Reading Window -- 2Jn:1:2")
    reader.key("Return")
    reader.key("Tab", "space")  # back again: Enter has not stepped
    assert reader.find("frame", "Reading Window -- 2Jn:1:1")
    reader.key("Tab", "space")
    box = reader.find("check box", "AutoJump to next verse after", window)
    reader.wait_for(lambda: "(checked)" in "".join(reader.lines(box)), "the box checked")
    reader.key("space")
    reader.wait_for(lambda: "(checked)" not in "".join(reader.lines(box)), "the box unchecked")


MENUS = {"f": "File", "s": "Search", "t": "Tools", "w": "Window", "h": "Help"}
WITH_EDIT = {**MENUS, "e": "Edit"}
WITH_VIEW = {**WITH_EDIT, "v": "View"}
VERSES = {"g": "radio button: Major Gospels Events", "p": "radio button: Christ's Parables",
          "e": "radio button: Messianic Prophecies", "i": "radio button: Christ's Miracles",
          "r": "combo box:  Turning Water into Wine", "l": "radio button: Christ's Miracles"}
TABS = {"c": "page tab list: Classified Verses", "m": "page tab list: Maps",
        "d": "page tab list: Download Other Translations"}


def is_open(menu):
    import pyatspi
    return any(popup.getState().contains(pyatspi.STATE_SHOWING) for popup in menu)


def leave(reader, menu, window):
    """Out of an open menu to the bar, and from there to the window."""
    import pyatspi
    reader.key("Escape")
    reader.wait_for(lambda: not is_open(menu) and menu.getState().contains(pyatspi.STATE_FOCUSED), "the menu bar")
    reader.key("Escape")
    reader.wait_for(lambda: reader.focused(window), "the focus back in the window")


@pytest.mark.parametrize("opened, menus, controls", [
    (Reader.open_selection, MENUS, {}),
    (reading, WITH_VIEW, {"d": "combo box: 4", "a": "check box: AutoJump to next verse after"}),
    (chapter, WITH_EDIT, {}),
    # while there is something to type, its controls have the letters that two menus have too
    (search, {letter: menu for letter, menu in MENUS.items() if letter != "w"},
     {"e": SEARCH[0], "b": "combo box: The Four Gospels", "w": SEARCH[0]}),
    (results, WITH_EDIT, {"r": "list: Search results:"}),
    (Reader.open_aids, MENUS, VERSES),
    (download, {}, TABS),
    (maps, {}, {"d": TABS["d"], "m": TABS["m"], "a": "list: Maps"}),
    (Reader.open_map, WITH_VIEW, {}),
], ids=["selection", "reading", "chapter", "search", "results", "verses", "tabs", "maps", "map"])
def test_every_alt_letter_has_one_meaning(reader, opened, menus, controls):
    window = opened(reader)
    assert not set(menus) & set(controls)
    for letter, menu in menus.items():
        reader.key(f"alt+{letter}")
        item = reader.find("menu item", menu)
        reader.wait_for(lambda: is_open(item), f"the menu {menu}")
        leave(reader, item, window)
    for letter, target in controls.items():
        reader.key(f"alt+{letter}")
        reader.wait_for_focus(window, *target.split(": ", 1))


def test_a_menu_whose_letter_a_control_has_is_reached_along_the_bar(reader):
    window = search(reader)
    reader.key("Alt_L", "Right", "Down")
    edit = reader.find("menu item", "Edit")
    reader.wait_for(lambda: is_open(edit), "the menu Edit")
    leave(reader, edit, window)


def test_inner_windows_are_changed_and_closed_by_keyboard(reader):
    first = reader.open_selection()
    second = reading(reader)
    for key in ("ctrl+Tab", "ctrl+shift+Tab"):
        reader.key(key)
        reader.wait_for(lambda: reader.focused(first) and not reader.focused(second), f"{key} to go on")
        reader.key(key)
        reader.wait_for(lambda: reader.focused(second) and not reader.focused(first), f"{key} to come back")
    reader.key("ctrl+F4")
    reader.absent("frame", "Reading Window -- 2Jn:1:1")
    reader.wait_for_focus_in(first)


def test_an_inner_windows_own_menu_is_opened_by_keyboard(reader):
    import pyatspi
    window = reader.open_selection()
    height = window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).height
    reader.key("alt+minus", "n")
    reader.wait_for(lambda: window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).height < height / 2, "an icon")
    reader.key("F2")
    reader.wait_for(lambda: window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).height == height, "the window")


def test_help_opened_from_a_menu_leaves_no_menu_bar_with_the_focus(reader):
    window = reader.open_selection()
    reader.key("alt+f")
    reader.wait_for(lambda: is_open(reader.find("menu item", "File")), "the menu File")
    reader.key("F1")
    reader.desktop.wait_for_focus("Kestrel Reader Help")
    reader.key("Escape")
    reader.wait_for_focus_in(window)
    reader.desktop.type("2Jn:1:5")
    reader.key("Return")
    reader.find("frame", "Reading Window -- 2Jn:1:5")


def test_the_study_aids_are_opened_where_f8_is_not_theirs(reader):
    reading(reader)
    reader.key("alt+t", "Return")
    reader.wait_for_focus_in(reader.find("frame", "Study Aids"))
