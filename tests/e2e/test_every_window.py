"""What holds for every window of tests/windows.tsv: its keys open it, every stop has a spoken name, and Tab visits them all."""
import time

import pytest
from walks import stops, walk
from windowtable import WINDOWS


@pytest.fixture
def reader(sitting):
    """The program with a fresh selection window and no other inner window."""
    sitting.begin_afresh()
    return sitting


def settle(desktop):
    """Waits until the screen shows what it has shown before: a blinking caret alone may still change."""
    seen, deadline = set(), time.monotonic() + 10
    while (now := desktop.picture("1280x900+0+0")) not in seen and time.monotonic() < deadline:
        seen.add(now)
        time.sleep(0.1)


def of_the_x_server(key):
    """ "Alt+H" and "Space" of the table, as xdotool has them."""
    *held, last = key.split("+")
    return "+".join([modifier.lower() for modifier in held] + [last.lower() if len(last) == 1 or last == "Space" else last])


@pytest.mark.parametrize("name, kind, keys, caption", WINDOWS.values(), ids=WINDOWS)
def test_it_is_opened_named_and_walked_through(reader, desktop, name, kind, keys, caption):
    for key in keys.split():
        reader.key(of_the_x_server(key))
        settle(desktop)
    window = reader.find("dialog" if kind == "modal" else "frame", starts=caption)
    if not reader.focused(window):
        reader.key("Tab")
    reader.wait_for_focus_in(window)
    wanted = stops(reader, window)
    assert wanted and not [stop for stop in wanted if stop.endswith(": ")], "a stop without a name"
    if len(wanted) > 1:
        assert set(wanted) <= set(walk(reader, window, "Tab"))
