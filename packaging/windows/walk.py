"""A reader's way through the installed program: refusals first, then every window, and at last nothing is left."""
import json
import os
import re
import select
import shutil
import subprocess
import time

import programs
from wine import WORK, Wine, comes_about, virtual, windows_path
from zones import FRAME, installer

PICTURES = WORK / "pictures"
REFUSED = "Kestrel Reader: Portuguese Version"
PAUSE = 1.5  # seconds that a key may take to do its work under Wine, on a busy machine
LAG = 120  # seconds that its windows may be behind the keys there
SCREEN = "1280x900+0+0"
EMPTY = bytes(1280 * 900 * 3)  # black dots
PIECE = 32 * 3  # bytes of 32 dots beside each other
ON_THE_MAP = (400, 400)
KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\KestrelReader"


def whole(title):
    """The pattern of this title and of nothing else."""
    return f"^{re.escape(title)}$"


class Walk:
    """One installed program in one session. What it finds wrong is in `failures`."""

    def __init__(self, session, wine, folder):
        self.session = session
        self.wine = wine
        self.folder = folder
        self.failures = []
        self.number = 0
        self.screen = EMPTY

    def check(self, holds, what):
        print("  " if holds else "NO", what, flush=True)
        if not holds:
            self.failures.append(f"walk: not so: {what}")

    def picture(self, name):
        """Once the screen is another than in the picture before: on a busy machine the program lags behind the keys."""
        deadline = time.monotonic() + LAG
        while not self.screen_is_new() and time.monotonic() < deadline:
            time.sleep(PAUSE)
        time.sleep(2 * PAUSE)
        self.screen = self.session.picture(SCREEN)
        self.number += 1
        self.session.screenshot(PICTURES / f"{self.number:02}-{name}.png")

    def screen_is_new(self):
        """By more than a caret that blinks, counted in pieces of lines, which is quick."""
        screen = self.session.picture(SCREEN)
        return sum(self.screen[at:at + PIECE] != screen[at:at + PIECE] for at in range(0, len(screen), PIECE)) > 60

    def start(self):
        return self.wine.start(windows_path(self.folder / "kestrel-reader.exe"))

    def keys(self, *keys):
        for key in keys:
            self.session.key(key)
            time.sleep(PAUSE)

    def drag_until(self, start, end, condition):
        """As a hand does it: goes on moving the mouse there until the condition comes about, and then lets go.

        A button that is let go before a busy program has begun the drag ends none: Qt then waits for the mouse to move again."""
        def move(x, y):
            self.session.run("xdotool", "mousemove", str(x), str(y))
            time.sleep(PAUSE)

        def moved():
            move(end[0] - 5, end[1])
            move(*end)
            return condition()

        move(*start)
        self.session.run("xdotool", "mousedown", "1")
        time.sleep(PAUSE)
        for part in range(1, 10):
            move(*(a + (b - a) * part // 10 for a, b in zip(start, end)))
        reached = comes_about(moved)
        self.session.run("xdotool", "mouseup", "1")
        return reached

    def shown(self, title):
        return self.session.run("xdotool", "search", "--onlyvisible", "--name", title, check=False).split()

    def appears(self, title):
        try:
            self.session.wait_for_window(title)
        except RuntimeError:
            return False
        return True

    def focus(self, title):
        self.session.wait_for_focus(title, virtual.PATIENCE)

    def is_without_title(self):
        """Whether the active window has none: the About window alone."""
        window = self.session.run("xdotool", "getactivewindow", check=False).split()
        return window and not self.session.run("xdotool", "getwindowname", *window, check=False).strip()

    def refuses(self, name, what):
        """Starts it, sees a message box with this title and nothing of the frame, and answers."""
        process = self.start()
        shown = self.appears(whole(REFUSED))
        self.focus(REFUSED)
        self.picture(name)
        self.keys("Return")
        self.screen = EMPTY
        self.check(shown and process.wait(virtual.PATIENCE) != 0, what)


def refusals(walk):
    for name in ("SEARCH.AVI", "KESTRPT.DAT"):
        (walk.folder / name).rename(walk.folder / "away")
        walk.refuses(f"no-{name}", f"it refuses to start without {name}")
        (walk.folder / "away").rename(walk.folder / name)
    database = walk.folder / "KESTRPT.DAT"
    sound = database.stat()
    os.utime(database, (sound.st_mtime + 1, sound.st_mtime + 1))
    walk.refuses("another-time", "it refuses a text of another time")
    os.utime(database, (sound.st_mtime, sound.st_mtime))
    with database.open("ab") as file:
        file.write(b"x")
    os.utime(database, (sound.st_mtime, sound.st_mtime))
    walk.refuses("another-length", "it refuses a text of another length")
    os.truncate(database, sound.st_size)
    walk.check(walk.wine.run(windows_path(walk.folder / "kestrel-stamp.exe"), "/quiet") == 0 and database.stat().st_mtime == sound.st_mtime,
               "the stamp program gives a text its time")


def reading(walk):
    """Leaves the frame open."""
    process = walk.start()
    walk.check(walk.appears(FRAME), "it starts")
    walk.focus(FRAME)
    walk.picture("frame")
    walk.session.type("Mt:24:43")
    walk.keys("Return")
    walk.keys("ctrl+c")
    walk.check(comes_about(lambda: walk.session.clipboard().startswith("Mt:24:43")), "a verse is looked up and copied")
    walk.picture("verse")
    walk.keys("F9", "ctrl+a", "ctrl+c")
    walk.check(comes_about(lambda: len(walk.session.clipboard()) > 2000), "its chapter is opened and copied")
    walk.picture("chapter")
    second = walk.start()
    walk.check(walk.appears("already running"), "a second copy is refused")
    walk.focus("already running")
    walk.picture("second-copy")
    walk.keys("Return")
    walk.check(second.wait(virtual.PATIENCE) != 0, "and ends")
    return process


def searching(walk):
    walk.keys("F3")
    walk.picture("search")
    walk.session.type("farinha")
    walk.keys("Return")
    walk.check(walk.appears("Search Results:"), "a search ends with its message")
    walk.picture("results")
    walk.keys("Return", "Down", "Return")
    walk.picture("result-opened")


def studying(walk):
    walk.keys("F2", "F8")
    walk.picture("study-aids")
    walk.keys("alt+i")
    walk.picture("miracles")
    walk.keys("alt+m", "Tab", "Return")
    walk.picture("map")
    walk.keys("alt+v", "z")
    walk.picture("map-zoomed")
    walk.keys("ctrl+c")
    walk.check(comes_about(lambda: walk.session.clipboard_picture()[:8] == b"\x89PNG\r\n\x1a\n"), "a map is copied, as a PNG file, too")
    (PICTURES / "clipboard.png").write_bytes(walk.session.clipboard_picture())


def dragging(walk):
    """The map into another program, which takes whatever is dropped on it."""
    target = walk.wine.start(windows_path(WORK / "tests/drop_target.exe"), stdout=subprocess.PIPE, text=True)
    walk.check(walk.appears(whole("Drop target")), "another program is started")
    window = walk.shown(whole("Drop target"))[0]
    walk.session.run("xdotool", "windowmove", "--sync", window, "940", "480")
    walk.picture("drop-target")
    walk.check(walk.drag_until(ON_THE_MAP, (1200, 620), lambda: walk.shown(whole("Dragged over"))), "a map is dragged over it")
    dropped = target.stdout.readline() if select.select([target.stdout], [], [], LAG)[0] else "{}"
    dropped = json.loads(dropped)
    walk.check("application/x-qt-image" in dropped.get("formats", []) and dropped["onlyCopies"], f"a map is dropped there: {dropped}")
    walk.session.run("xdotool", "windowclose", window)


def about(walk):
    """With what its buttons open, from the left."""
    walk.focus(FRAME)
    walk.keys("alt+h", "a")
    walk.check(comes_about(walk.is_without_title), "the About window opens")
    walk.picture("about")
    walk.keys("Tab", "Tab")
    for title, name in ((REFUSED, "more-information"), ("Your support is needed!", "donation"), ("QORV CD-ROM Offer", "disc-offer")):
        walk.keys("space")
        walk.check(walk.appears(whole(title)), f"About opens {name}")
        walk.focus(title)
        walk.picture(name)
        walk.keys("Escape")
        walk.check(comes_about(walk.is_without_title), "and is there again afterwards")
        walk.keys("Tab")
    walk.keys("Escape")
    walk.focus(FRAME)


def other_windows(walk):
    walk.keys("F2", "ctrl+n")
    walk.check(walk.appears("Notepad"), "Notepad is started")
    walk.picture("notepad")
    walk.session.run("xdotool", "search", "--onlyvisible", "--name", "Notepad", "windowactivate", "--sync")
    walk.keys("alt+F4")
    walk.session.run("xdotool", "search", "--onlyvisible", "--name", FRAME, "windowactivate", "--sync")
    walk.keys("F1")
    walk.check(walk.appears("Kestrel Reader Help"), "the help opens")
    walk.picture("help")
    walk.keys("Escape")
    walk.focus(FRAME)


def files_below(*folders):
    """Each file, and when it was last written."""
    return {path: path.stat().st_mtime for folder in folders for path in folder.rglob("*") if path.is_file()}


def setup_while_it_runs(walk):
    before = files_below(walk.folder)
    walk.check(walk.wine.run(windows_path(installer()), "/S", r"/D=C:\Leitor_é_Ж") == 2, "the installer refuses to replace it while it runs")
    walk.check(walk.wine.run(windows_path(walk.folder / "uninstall.exe"), "/S", r"_?=C:\Leitor_é_Ж") == 2,
               "the uninstaller refuses to remove it while it runs")
    walk.check(before == files_below(walk.folder), "and nothing has been changed")


def nothing_is_left(walk, before):
    # It goes on from a copy of itself, after this has ended.
    walk.check(walk.wine.run(windows_path(walk.folder / "uninstall.exe"), "/S") == 0, "it is uninstalled")
    walk.check(comes_about(lambda: not walk.folder.exists()), f"its folder is gone: {[path.name for path in walk.folder.rglob('*')]}")
    walk.check(not list((walk.wine.prefix / "drive_c/users").rglob("Kestrel*.lnk")), "nor in the start menu")
    walk.check(not walk.wine.registry(KEY), "nor in the registry")
    # Windows takes the uninstaller's copy of itself away when it starts again.
    left = [str(path) for path in files_below(walk.wine.prefix / "drive_c/users") if path not in before and "~nsu" not in str(path)]
    walk.check(not left, f"nor elsewhere among the user's files: {left}")


def run():
    shutil.rmtree(PICTURES, ignore_errors=True)
    PICTURES.mkdir(parents=True)
    programs.build("drop_target")
    with virtual.Desktop() as session, Wine(session, "walk") as wine:
        folder = wine.prefix / "drive_c" / "Leitor_é_Ж"
        users = wine.prefix / "drive_c" / "users"
        empty = files_below(users)
        code = wine.run(windows_path(installer()), "/S", r"/D=C:\Leitor_é_Ж")
        walk = Walk(session, wine, folder)
        walk.check(code == 0 and folder.exists(), f"it is installed in {folder.name}")
        refusals(walk)
        installed = files_below(folder, users)
        process = reading(walk)
        setup_while_it_runs(walk)
        searching(walk)
        studying(walk)
        dragging(walk)
        about(walk)
        other_windows(walk)
        walk.keys("alt+f", "x")
        walk.check(process.wait(virtual.PATIENCE) == 0, "it ends with 0 by its menu")
        written = dict(files_below(folder, users).items() - installed.items())
        walk.check(not written, f"nothing has been written in its folder or among the user's files: {[str(path) for path in written]}")
        nothing_is_left(walk, empty)
        return walk.failures
