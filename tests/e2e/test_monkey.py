"""A thousand keys and clicks from outside at the running program, in an order that a fixed seed gives."""
import os
import pathlib
import random
import re

import pytest
from desktop import place_of
from windowtable import WINDOWS, title_of

SEED = 1998
EVENTS = 1000
AT_ONCE = 10  # events of one command
LOOK_EVERY = 100
GROWTH_LIMIT = 32  # MB over the whole run: each window, the clip, maps and fonts come into memory once
FRAME = title_of("MDIParent")
CHILDREN = [title_of(name) for name, window in WINDOWS.items() if window.kind == "child"]
KEYS = ("Return", "Return", "Return", "Escape", "Tab", "shift+Tab", "Up", "Down", "Down", "Left", "Right", "Home", "End",
        "Prior", "Next", "space", "BackSpace", "Delete", "F1", "F2", "F2", "F2", "F3", "F3", "F8", "F8", "F9", "F9",
        "F11", "F12", "F12", "ctrl+a", "ctrl+c", "ctrl+n", "ctrl+Tab", "alt+e", "alt+v", "alt+w")
TYPED = "abdeghijklmorstuJLMR0123456789"


class Ended(Exception):
    """The monkey has found the Exit."""


@pytest.fixture
def stubs(tmp_path):
    """A folder of programs that stand for the editor and the browser."""
    folder = tmp_path / "stubs"
    folder.mkdir()
    for name in ("notepad.exe", "xdg-open"):
        (folder / name).write_text(f"#!/bin/sh\necho {name} >>{folder}/started\n")
        (folder / name).chmod(0o755)
    return folder


class Monkey:
    def __init__(self, desktop, start_program):
        self.desktop = desktop
        self.start_program = start_program
        self.random = random.Random(SEED)
        self.seen = set()
        self.start()

    def start(self):
        self.reader = self.start_program()
        self.reader.find("frame", "Select Verse for Reading")
        self.desktop.wait_for_focus(FRAME)
        self.window = self.desktop.run("xdotool", "getactivewindow").strip()
        place = self.desktop.run("xdotool", "getwindowgeometry", "--shell", self.window)
        x, y, width, height = (int(re.search(rf"^{name}=(\d+)", place, re.M)[1]) for name in ("X", "Y", "WIDTH", "HEIGHT"))
        self.area = range(x + 2, x + width - 2), range(y + 2, y + height - 2)

    def event(self):
        """The words of one random event, as xdotool takes them."""
        kind = self.random.random()
        if kind < 0.35:
            return ["key", "--clearmodifiers", self.random.choice(TYPED)]
        if kind < 0.8:
            return ["key", "--clearmodifiers", place_of(self.random.choice(KEYS))]
        x, y = (str(self.random.choice(side)) for side in self.area)
        button = self.random.choice("111145")  # the wheel is buttons 4 and 5
        return ["mousemove", x, y, "click", "--repeat", self.random.choice("1112"), "--delay", "20", button]

    def act(self):
        commands = []
        for _ in range(AT_ONCE):
            commands += self.event()
        self.desktop.run("xdotool", *commands)
        if self.reader.process.poll() is not None:
            output, errors = self.reader.process.communicate()
            assert (self.reader.process.returncode, output, errors) == (0, "", "")
            raise Ended

    # --- What is seen from outside ---

    def frames(self):
        """The windows in the program as (title, object)."""
        found = []

        def walk(node, depth):
            if node.getRoleName() == "frame":
                found.append((node.name, node))
            if depth < 5:
                for child in node:
                    if child:
                        walk(child, depth + 1)

        walk(self.reader.application(), 0)
        return found

    def fault(self):
        """What is not as it always must be, as it is seen now; nothing when all is well."""
        frames = self.frames()
        for window in CHILDREN:
            titles = [title for title, _ in frames if title.startswith(window)]
            if len(titles) > 1:
                return f"more than one window: {titles}"
            if titles:
                self.seen.add(window)
        for title, window in frames:
            if title.startswith("Reading Window -- "):
                _, number, key = (label.name for label in window[0] if label.getRoleName() == "label" and
                                  label.name != "seconds")
                if title != f"Reading Window -- {key}":
                    return f"the caption {title!r} over the verse {key!r}"
                if not (number == "" and key == "" or number.isdigit() and 1 <= int(number) <= 31102):
                    return f"the number {number!r} beside the verse {key!r}"
        return None

    def look(self):
        """Fails when a fault stays: what changes while it is looked at is looked at again."""
        def is_well():
            try:
                self.last_fault = self.fault()
            except Exception as error:  # an object went away meanwhile
                self.last_fault = repr(error)
            return self.last_fault is None

        self.reader.wait_for(is_well, "everything in order")

    def resident_megabytes(self):
        status = pathlib.Path(f"/proc/{self.reader.process.pid}/status").read_text()
        return int(re.search(r"VmRSS:\s+(\d+) kB", status)[1]) / 1024


def test_a_thousand_events_from_outside_leave_everything_in_order(start, desktop, installed, stubs):
    path = f"{stubs}:{os.environ['PATH']}"
    monkey = Monkey(desktop, lambda: start(installed, PATH=path))
    at_start = monkey.resident_megabytes()
    for events in range(AT_ONCE, EVENTS + 1, AT_ONCE):
        try:
            monkey.act()
            if events % LOOK_EVERY == 0:
                monkey.look()
        except Ended:
            monkey.start()
            continue
        # a help window that covers the frame would take all that follows
        if events % LOOK_EVERY == 0:
            desktop.run("xdotool", "windowactivate", monkey.window, check=False)
        assert monkey.resident_megabytes() - at_start < GROWTH_LIMIT
    assert len(monkey.seen) >= 2  # a monkey that reaches nothing proves nothing
    assert "notepad.exe" in (stubs / "started").read_text()
    assert monkey.reader.process.poll() is None
