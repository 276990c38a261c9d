"""A reader's way through the installed program: refusals first, then every window, and at last nothing is left."""
import json
import os
import select
import shutil
import subprocess
import time

import programs
from wine import WORK, Wine, virtual, wait_until, windows_path
from zones import FRAME, installer

PICTURES = WORK / "pictures"
REFUSED = "Kestrel Reader: Portuguese Version"
PAUSE = 1.5  # seconds that a key may take to do its work under Wine, on a busy machine
SCREEN = "1280x900+0+0"
EMPTY = bytes(1280 * 900 * 3)  # black dots
ON_THE_MAP = (400, 400)
KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\KestrelReader"


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
        deadline = time.monotonic() + virtual.PATIENCE
        while not self.screen_is_new() and time.monotonic() < deadline:
            time.sleep(PAUSE)
        time.sleep(2 * PAUSE)
        self.screen = self.session.picture(SCREEN)
        self.number += 1
        self.session.screenshot(PICTURES / f"{self.number:02}-{name}.png")

    def screen_is_new(self):
        """By more than a caret that blinks."""
        return sum(a != b for a, b in zip(self.screen, self.session.picture(SCREEN))) > 5000

    def start(self):
        return self.wine.start(windows_path(self.folder / "kestrel-reader.exe"))

    def keys(self, *keys):
        for key in keys:
            self.session.key(key)
            time.sleep(PAUSE)

    def copied(self, holds):
        """Whether a condition of the clipboard comes to hold: Ctrl+C waits for what was pressed before."""
        try:
            return wait_until(holds, "what was copied")
        except RuntimeError:
            return False

    def appears(self, title):
        try:
            self.session.wait_for_window(title)
        except RuntimeError:
            return False
        return True

    def refuses(self, name, what):
        """Starts it, sees a message box with this title and nothing of the frame, and answers."""
        process = self.start()
        shown = self.appears("^" + REFUSED + "$")
        self.session.wait_for_focus(REFUSED)
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
    walk.session.wait_for_focus(FRAME)
    walk.picture("frame")
    walk.session.type("Mt:24:43")
    walk.keys("Return")
    walk.keys("ctrl+c")
    walk.check(walk.copied(lambda: walk.session.clipboard().startswith("Mt:24:43")), "a verse is looked up and copied")
    walk.picture("verse")
    walk.keys("F9", "ctrl+a", "ctrl+c")
    walk.check(walk.copied(lambda: len(walk.session.clipboard()) > 2000), "its chapter is opened and copied")
    walk.picture("chapter")
    second = walk.start()
    walk.check(walk.appears("already running"), "a second copy is refused")
    walk.session.wait_for_focus("already running")
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
    walk.check(walk.copied(lambda: walk.session.clipboard_picture()[:8] == b"\x89PNG\r\n\x1a\n"), "a map is copied, as a PNG file, too")
    (PICTURES / "clipboard.png").write_bytes(walk.session.clipboard_picture())


def dragging(walk):
    """The map into another program, which takes whatever is dropped on it."""
    target = walk.wine.start(windows_path(WORK / "tests/drop_target.exe"), stdout=subprocess.PIPE, text=True)
    walk.check(walk.appears("^Drop target$"), "another program is started")
    window = walk.session.run("xdotool", "search", "--onlyvisible", "--name", "^Drop target$").split()[0]
    walk.session.run("xdotool", "windowmove", "--sync", window, "940", "480")
    walk.picture("drop-target")
    walk.session.drag(ON_THE_MAP, (1200, 620))
    dropped = target.stdout.readline() if select.select([target.stdout], [], [], 20)[0] else "{}"
    walk.picture("dropped")
    dropped = json.loads(dropped)
    walk.check("application/x-qt-image" in dropped.get("formats", []) and dropped["onlyCopies"], f"a map is dropped there: {dropped}")
    walk.session.run("xdotool", "windowclose", window)


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
    walk.keys("Escape", "alt+h", "a")
    walk.check(walk.appears("^Kestrel Reader .PT.$"), "the About window opens")
    walk.picture("about")
    walk.keys("Escape")


def nothing_is_left(walk):
    walk.check(walk.wine.run(windows_path(walk.folder / "uninstall.exe"), "/S", f"_?={windows_path(walk.folder)}") in (0, 2), "it is uninstalled")
    wait_until(lambda: not (walk.folder / "kestrel-reader.exe").exists(), "the program is taken away")
    left = sorted(path.name for path in walk.folder.rglob("*")) if walk.folder.exists() else []
    walk.check(left in ([], ["uninstall.exe"]), f"nothing is left in its folder: {left}")
    walk.check(not list((walk.wine.prefix / "drive_c/users").rglob("Kestrel*.lnk")), "nor in the start menu")
    walk.check(not walk.wine.registry(KEY), "nor in the registry")


def run():
    shutil.rmtree(PICTURES, ignore_errors=True)
    PICTURES.mkdir(parents=True)
    programs.build("drop_target")
    with virtual.Desktop() as session, Wine(session, "walk") as wine:
        folder = wine.prefix / "drive_c" / "Leitor_é_Ж"
        code = wine.run(windows_path(installer()), "/S", r"/D=C:\Leitor_é_Ж")
        walk = Walk(session, wine, folder)
        walk.check(code == 0 and folder.exists(), f"it is installed in {folder.name}")
        refusals(walk)
        process = reading(walk)
        searching(walk)
        studying(walk)
        dragging(walk)
        other_windows(walk)
        before = {path: path.stat().st_mtime for path in folder.rglob("*")}
        walk.keys("alt+f", "x")
        walk.check(process.wait(virtual.PATIENCE) == 0, "it ends with 0 by its menu")
        walk.check(before == {path: path.stat().st_mtime for path in folder.rglob("*")}, "it has written nothing in its folder")
        nothing_is_left(walk)
        return walk.failures
