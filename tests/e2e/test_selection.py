"""The selection window: where the focus goes, what a failed lookup shows, and keys that belong to the frame's area."""
import time

import pytest


def test_the_reading_window_stands_behind_the_message(reader, desktop):
    reader.type_reference("Xy:1:1")
    reader.find(None, "Try Again!")
    reader.find("frame", starts="Reading Window -- ")
    reader.absent("menu item", "Edit")  # the menus are still the selection window's
    desktop.key("Return")
    reader.find("frame", "Reading Window -- Mt:1:1")
    reader.find("menu item", "Edit")


def test_another_program_in_front_of_the_message_makes_no_window_active(reader, desktop, drop_target):
    desktop.run("xdotool", "search", "--onlyvisible", "--name", "Freeware$", "windowactivate", "--sync")
    reader.type_reference("Xy:1:1")
    box = reader.find("alert", "Try Again!")
    reading = reader.find("frame", starts="Reading Window -- ")
    menu_bar = reader.find("menu bar")
    for _ in range(2):
        for in_front in ("^Drop target$", "^Try Again!$"):
            desktop.run("xdotool", "search", "--onlyvisible", "--name", in_front, "windowactivate", "--sync")
            time.sleep(0.5)  # the program is told of it
            assert [menu.name for menu in menu_bar] == ["File", "Search", "Tools", "Window", "Help"]
            assert reading.name == "Reading Window -- "
    reader.click(reader.find("push button", "OK", box))
    reader.wait_for_focus_in(reader.find("frame", "Reading Window -- Mt:1:1"))


def test_f2_brings_the_focus_back_to_the_box(reader, desktop):
    window = reader.open_selection()
    desktop.key("Tab", "Tab", "Tab")
    reader.wait_for_focus(window, "tree", "Books")
    desktop.key("F2")
    desktop.type("Lk:2:7")
    desktop.key("Return")
    reader.find("frame", "Reading Window -- Lk:2:7")


def test_a_first_click_into_the_tree_leaves_the_focus_there(reader, desktop):
    import pyatspi
    reader.look_up("Mt", "Mt:1:1")
    tree = reader.find("tree", "Books")
    box = tree.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    desktop.click(box.x + 30, box.y + box.height - 12)
    window = reader.find("frame", "Select Verse for Reading")
    reader.wait_for_focus(window, "tree", "Books")


@pytest.mark.parametrize("operation", ["m", "s"])
@pytest.mark.parametrize("end", ["Return", "Escape"])
def test_while_a_window_is_moved_or_sized_its_keys_belong_to_that(reader, desktop, operation, end):
    reader.open_selection()
    desktop.key("alt+minus", operation, "Left", end)
    reader.open_selection()
    assert not [window for window in reader.find("layered pane", "Windows") if window.name.startswith("Reading")]
    desktop.key("Return")  # and now to the window again
    reader.find("frame", starts="Reading Window -- ")


def test_the_wheel_over_the_box_chooses_nothing(reader, desktop):
    import pyatspi
    window = reader.open_selection()
    combo = reader.find("combo box", within=window)
    desktop.key("Tab")
    box = combo.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    for button in (5, 5, 4):
        desktop.click(box.x + 20, box.y + box.height / 2, button)
    desktop.key("Return")
    reader.find("frame", "Reading Window -- Mt:1:1")


@pytest.mark.parametrize("reference, error", [("Mt'", "unrecognized token"), ("Mt:[", "Invalid pattern string"),
                                              ("Mt:24:43';", "SQL logic error")])
@pytest.mark.parametrize("by_button", [True, False])
def test_a_text_that_breaks_the_query_ends_the_program_with_sqlites_text(reader, desktop, reference, error, by_button):
    reader.open_selection()
    desktop.type(reference)
    if by_button:
        reader.press("Display Verse")
    else:
        desktop.key("Return")
    assert error in reader.text_of_box("Kestrel Reader: Portuguese Version")
    reader.find("frame", "Reading Window -- Mt:1:1")  # it was opened, and shows what it shows
    desktop.key("Return")
    assert reader.wait() == 1
