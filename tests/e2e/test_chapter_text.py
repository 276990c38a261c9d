"""The text of the chapter window: its size under the wheel, and where a screen reader is told that it stands."""


def test_the_wheel_with_ctrl_leaves_the_type_as_it_is(reader, desktop):
    import pyatspi
    reader.look_up("Ps:119:1")
    window = reader.open_chapter("Ps:119:")
    text = reader.find("text", "Chapter text", window)
    before = reader.picture(text)
    box = text.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    desktop.run("xdotool", "mousemove", str(box.x + 50), str(box.y + 50), "keydown", "ctrl", "click", "4", "click", "5",
                "click", "5", "keyup", "ctrl")
    assert reader.picture(text) == before


def test_a_screen_reader_learns_where_the_characters_of_a_scrolled_text_stand(reader):
    import pyatspi
    reader.look_up("Ps:119:176")
    window = reader.open_chapter("Ps:119:")
    node = reader.find("text", "Chapter text", window)
    box, text = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS), node.queryText()
    start, end = text.getSelection(0)
    x, y, width, height = text.getCharacterExtents(start, pyatspi.DESKTOP_COORDS)
    assert box.x <= x < x + width <= box.x + box.width
    assert box.y <= y < y + height <= box.y + box.height
    assert text.getOffsetAtPoint(x + 1, y + 2, pyatspi.DESKTOP_COORDS) == start
    below = text.getCharacterExtents(end - 1, pyatspi.DESKTOP_COORDS)
    assert below[1] > y
    assert text.getCharacterExtents(0, pyatspi.DESKTOP_COORDS)[1] < box.y
