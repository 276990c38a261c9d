"""The map window by mouse and for a screen reader, as a person meets it."""
import json
import select
import sqlite3
import subprocess

from reader import STAMP


def box_of(node):
    import pyatspi
    return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def test_a_drag_of_any_border_of_the_map_is_undone_in_place(reader):
    window = reader.open_map()
    reader.desktop.drag((box_of(window).x + 100, box_of(window).y + 12), (box_of(window).x + 160, box_of(window).y + 52))
    place = box_of(window)
    middle = place.x + place.width // 2, place.y + place.height // 2
    for x, y in ((place.x + 1, middle[1]), (middle[0], place.y + 1), (place.x + 1, place.y + 1)):
        reader.desktop.drag((x, y), (x - 30, y - 20))
        assert box_of(window) == place
        reader.desktop.drag((x, y), (x + 40, y + 30))
        assert box_of(window) == place


def test_a_map_larger_than_the_frame_is_showing(reader, desktop):
    frame = desktop.run("xdotool", "search", "--onlyvisible", "--name", "^Kestrel Reader: Portuguese").split()[0]
    desktop.run("xdotool", "windowsize", "--sync", frame, "640", "480")
    window = reader.open_map()
    area = box_of(reader.find("layered pane", "Windows"))
    assert box_of(window).width > area.width or box_of(window).height > area.height


def test_a_map_is_dropped_in_another_program_as_a_copy_and_stays(reader, desktop, drop_target):
    desktop.run("xdotool", "search", "--name", "^Kestrel Reader: Portuguese", "windowactivate", "--sync")
    window = reader.open_map()
    picture = reader.find("image", window.name.removeprefix("Map -- "), window)
    desktop.run("xdotool", "search", "--name", "^Drop target$", "windowraise")
    box, before = box_of(picture), box_of(window)
    desktop.drag((box.x + 60, box.y + 60), (1200, 620))
    assert select.select([drop_target.stdout], [], [], 20)[0], "nothing was dropped"
    dropped = json.loads(drop_target.stdout.readline())
    assert dropped["copies"] and dropped["onlyCopies"]
    assert "application/x-qt-image" in dropped["formats"] or "image/png" in dropped["formats"]
    assert box_of(picture) == box and box_of(window) == before
    assert window.name.startswith("Map -- Abraham's Journeys")


def test_the_buttons_beside_an_empty_map_are_whole_and_can_be_clicked(start, copy, desktop):
    database = copy / "KESTRPT.DAT"
    with sqlite3.connect(database) as connection:
        connection.execute("UPDATE NTMaps SET Pic = x'' WHERE MapNumber = 1")
    connection.close()
    subprocess.run(["touch", "-m", "-d", STAMP, database], check=True)
    program = start(copy)
    program.find("frame", "Select Verse for Reading")
    desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
    window = program.open_map()
    outer = box_of(window)
    for name in ("Zoom In/Restore Normal Size", "Copy Map to Clipboard"):
        box = box_of(program.find("push button", name, window))
        assert (box.width, box.height) == (32, 32)
        assert box.y + box.height < outer.y + outer.height and box.x + box.width < outer.x + outer.width
    subprocess.run(["xclip", "-selection", "clipboard"], env=desktop.environment, input=b"before", check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    program.wait_for(lambda: desktop.clipboard() == "before", "xclip's text on the clipboard")
    x, y = box.x + box.width // 2, box.y + box.height - 3
    desktop.click(x, y)
    program.wait_for(lambda: desktop.clipboard() == "", "an empty clipboard")
