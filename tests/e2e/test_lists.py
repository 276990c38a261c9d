"""The lists of results and of topics by mouse, and what keys and wheel do in the search window, as a person meets them."""
import pytest
from reader import Reader, role_of

MARGIN = 12  # from the edge of a line to where it is clicked


@pytest.fixture
def reader(sitting):
    """The program with a fresh selection window and no other inner window."""
    sitting.begin_afresh()
    return sitting


def box_of(node):
    import pyatspi
    return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def found(reader):
    """The list of results; its lines are clicked at their left end, which the reading window leaves free."""
    reader.search("amor")
    return reader.find("list", "Search results:", reader.find("frame", "Advanced Search")), lambda box: box.x + MARGIN


def results(reader):
    """The same with its first line selected by a key, so that no key of the test before swallows a click."""
    listed = found(reader)
    reader.key("Home")
    return listed


def references(reader):
    """The list of a topic with several references; its lines are clicked where the reading window covers nothing."""
    window = reader.open_aids()
    reader.press("Christ's Parables", "radio button", window)
    return reader.find("list", "Verse references", window), lambda box: box.x + box.width - MARGIN


def key_of(line):
    return line.name.strip().split(" ")[0].split("-")[0]


class Lines:
    """A list under the mouse."""

    def __init__(self, reader, listed):
        self.reader, (self.list, self.across) = reader, listed

    def point(self, line):
        box = box_of(self.list[line])
        return int(self.across(box)), box.y + box.height // 2

    def click(self, line, times=1, button=1):
        x, y = map(str, self.point(line))
        self.reader.desktop.run("xdotool", "mousemove", x, y, "click", "--repeat", str(times), "--delay", "60", str(button))

    def opens(self, line):
        """Waits until the reading window shows the verse of a line and is the active one."""
        self.reader.wait_for_focus_in(self.reader.find("frame", f"Reading Window -- {key_of(self.list[line])}"))

    def is_selected(self, line):
        import pyatspi
        return self.list[line].getState().contains(pyatspi.STATE_SELECTED)


@pytest.fixture(params=[results, references])
def lines(request, reader):
    return Lines(reader, request.param(reader))


def reading_windows(reader):
    area = reader.find("layered pane", "Windows")
    return [window.name for window in area if window.name.startswith("Reading Window")]


def test_after_a_double_click_the_verse_is_in_front(lines):
    lines.click(0, times=2)
    lines.opens(0)
    assert not lines.reader.focused(lines.list.parent)


def test_a_held_ctrl_key_does_not_keep_the_selected_line_from_opening(lines):
    reader = lines.reader
    lines.click(0)
    lines.opens(0)
    reader.key("F12")
    reader.wait_for(lambda: reading_windows(reader) != [f"Reading Window -- {key_of(lines.list[0])}"], "the next verse")
    reader.desktop.run("xdotool", "keydown", "ctrl")
    try:
        lines.click(0)
        lines.opens(0)
    finally:
        reader.desktop.run("xdotool", "keyup", "ctrl")


def test_the_second_of_two_quick_clicks_after_a_key_opens(lines):
    reader = lines.reader
    lines.click(0, button=3)  # gives the list the focus
    reader.key("shift")
    lines.click(0, times=2)
    lines.opens(0)


def test_a_drag_opens_the_line_it_ends_on_and_a_right_click_none(reader):
    lines = Lines(reader, results(reader))
    lines.click(2, button=3)
    lines.reader.desktop.drag(lines.point(0), lines.point(3))
    lines.opens(3)
    assert lines.is_selected(3) and not lines.is_selected(2)


def test_a_key_in_the_list_is_remembered_by_a_closed_search_window(reader):
    lines = Lines(reader, results(reader))
    reader.key("shift", "Escape")
    reader.absent("frame", "Advanced Search")
    lines = Lines(reader, found(reader))
    lines.click(1)
    reader.wait_for(lambda: lines.is_selected(1), "the line to be selected")
    assert reading_windows(reader) == []
    lines.click(1)
    lines.opens(1)


def test_enter_searches_nothing_in_an_icon(reader):
    reader.look_up("Mt:24:43")
    window = reader.open_search()
    tall = box_of(window).height
    reader.desktop.type("amor")
    reader.key("alt+minus", "n")
    reader.wait_for(lambda: box_of(window).height < tall / 2, "an icon")
    reading = reader.find("frame", "Reading Window -- Mt:24:43")
    reader.wait_for_focus_in(reading)
    reader.key("Return")
    reader.key("F12")
    reader.find("frame", "Reading Window -- Mt:24:44")
    reader.key("F3")
    reader.wait_for_focus_in(window)
    assert box_of(window).height == tall


@pytest.mark.parametrize("opened", [Reader.open_search, Reader.open_aids], ids=["search", "aids"])
def test_the_wheel_over_a_combo_box_without_the_focus_changes_nothing(reader, opened):
    window = opened(reader)

    def boxes():
        def walk(node):
            return [node] if role_of(node) == "combo box" else [box for child in node for box in walk(child)]
        return [box for box in walk(window) if box_of(box).width > 0]

    before = [box.name for box in boxes()]
    assert before
    for box in map(box_of, boxes()):
        for button in (5, 5, 4):
            reader.desktop.click(box.x + box.width / 2, box.y + box.height / 2, button)
    reader.key("shift")  # what was done has arrived when this has
    assert [box.name for box in boxes()] == before


def test_the_box_that_counts_the_results_leaves_them_to_be_read(reader, desktop):
    import pyatspi
    window = reader.open_search()
    desktop.type("e")
    reader.key("Return")
    assert reader.text_of_box("Search Results:")
    rows = reader.find("list", "Search results:", window).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    box = reader.find("alert", "Search Results:").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    shown = desktop.run("xdotool", "search", "--onlyvisible", "--name", "^Search Results:$").split()[0]
    borders = desktop.run("xprop", "-id", shown, "_NET_FRAME_EXTENTS").split("=")[1].split(",")  # left, right, top, bottom
    left, right, top, bottom = map(int, borders)
    assert top > 0
    assert (box.y - top >= rows.y + rows.height or box.x - left >= rows.x + rows.width
            or box.y + box.height + bottom <= rows.y or box.x + box.width + right <= rows.x)


def test_enter_and_esc_end_the_moving_of_the_search_window_by_keyboard(reader):
    window = reader.open_search()
    reader.desktop.type("amor")
    for item, key in (("m", "Return"), ("m", "Escape"), ("s", "Return"), ("s", "Escape")):
        reader.key("alt+minus", item)
        reader.wait_for(lambda: reader.focused(window) is None, "the window to have the keys")
        reader.key(key)
        assert reader.find("frame", "Advanced Search")
        assert not reader.lines(reader.application()).count("alert: Search Results:")
        reader.wait_for_focus(window, "text", "Search for verses containing the following text:")
    reader.key("Return")
    assert reader.text_of_box("Search Results:")
    reader.key("Return")
    reader.wait_for_focus(window, "list", "Search results:")
