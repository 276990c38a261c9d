"""The installed program as a user meets it: started, looked at through the accessibility services, ended."""
import pathlib
import shutil
import subprocess
import time

from desktop import PATIENCE

STAMP = "1998-05-05 05:00:00"

# Qt asks the accessibility bus about every key, and says so when a busy machine lets it wait for the answer.
BUS_IS_BUSY = "QSpiApplication::keyEventError"

CONTROLS = ("push button", "check box", "radio button", "combo box", "text", "list", "tree", "page tab list", "link")
WITH_ENTRIES = ("combo box", "list", "tree", "text")
LAYOUT = ("filler", "layered pane", "unknown")


def role_of(node):
    """What kind of object it is, in the words of Qt 6.4; later ones call a push button a button."""
    role = node.getRoleName()
    return "push button" if role == "button" else role


def install(source, target, stamp=STAMP):
    """Copies the assembled program to another folder, as Setup would: the database with its time."""
    target = pathlib.Path(target)
    target.mkdir(parents=True, exist_ok=True)
    for file in pathlib.Path(source).iterdir():
        shutil.copy(file, target / file.name)
    if (target / "KESTRPT.DAT").exists() and stamp:
        subprocess.run(["touch", "-m", "-d", stamp, target / "KESTRPT.DAT"], check=True)
    return target


class Reader:
    """A running program. Every search waits until its object is there, or fails naming it; a busy machine has its time."""

    def __init__(self, desktop, folder, arguments=(), **environment):
        self.desktop = desktop
        self.started = time.monotonic()
        self.process = subprocess.Popen([str(pathlib.Path(folder) / "kestrel-reader"), *arguments], cwd="/",
                                        env={**desktop.environment, **environment}, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def application(self):
        import pyatspi
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.process.pid:
                return application
        return None

    def find(self, role=None, name=None, within=None, showing=True, starts=None):
        """The first object with this role and name, in the order of the tree."""
        deadline = time.monotonic() + PATIENCE
        while True:
            found = self._search(role, name, within, showing, starts)
            if found:
                return found
            if time.monotonic() > deadline:
                raise AssertionError(f"no {role} named {name or starts!r}; there is:\n{self.outline()}")
            if self.process.poll() is not None:
                raise AssertionError(f"the program has ended: {self.process.communicate()}")
            time.sleep(0.05)

    def absent(self, role, name):
        """Waits until there is no such object."""
        deadline = time.monotonic() + PATIENCE
        while self._search(role, name, None, True, None):
            assert time.monotonic() < deadline, f"{role} {name!r} is still there"
            time.sleep(0.05)

    def _search(self, role, name, within, showing, starts):
        import pyatspi

        def matches(node):
            if role and role_of(node) != role:
                return False
            if name is not None and node.name != name:
                return False
            if starts is not None and not node.name.startswith(starts):
                return False
            return not showing or node.getState().contains(pyatspi.STATE_SHOWING)

        def walk(node, depth):
            if matches(node):
                return node
            if depth > 12 or node.childCount > 400:
                return None
            for child in node:
                found = walk(child, depth + 1) if child else None
                if found:
                    return found
            return None

        try:
            top = within or self.application()
            return walk(top, 0) if top else None
        except Exception:  # an object that went away while it was looked at
            return None

    def outline(self, node=None, depth=0):
        """The tree as text, for messages."""
        try:
            node = node or self.application()
            if not node or depth > 8:
                return ""
            lines = [f"{'  ' * depth}{role_of(node)}: {node.name!r}"]
            lines += [self.outline(child, depth + 1) for child in node if child][:100]
            return "\n".join(line for line in lines if line)
        except Exception as error:
            return f"({error})"

    def press(self, name, role="push button", within=None):
        """Clicks a control with the mouse: in its middle, or on the mark of a button that may be wider than its text."""
        node = self.find(role, name, within)
        if role in ("radio button", "check box"):
            import pyatspi
            box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            self.desktop.click(box.x + 8, box.y + box.height / 2)
        else:
            self.click(node)

    def act(self, name, within, role="push button"):
        """Presses a button as a screen reader does."""
        self.find(role, name, within).queryAction().doAction(0)

    def click(self, node):
        import pyatspi
        box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        self.desktop.click(box.x + box.width / 2, box.y + box.height / 2)

    def menu(self, menu, item):
        """Chooses a menu item with the mouse."""
        self.click(self.find("menu item", menu))
        self.click(self.find("menu item", item))

    def text_of_box(self, title):
        """The text of the message box with this title, once it has the focus: before, its keys go elsewhere."""
        box = self.find(None, title)
        self.wait_for_focus_in(box)
        return self.find("label", within=box, showing=False).name

    def key(self, *keys):
        self.desktop.key(*keys)

    def open_selection(self):
        self.key("F2")
        window = self.find("frame", "Select Verse for Reading")
        self.wait_for_focus(window, "combo box", self.find("combo box", within=window).name)
        return window

    def type_reference(self, reference):
        """Types a reference into the selection window, in place of the old one, and confirms it."""
        self.desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
        self.open_selection()
        self.desktop.type(reference)
        self.key("Return")

    def look_up(self, reference, key=None):
        """The reading window with the verse of a reference, whose key is another where the reference is shortened."""
        self.type_reference(reference)
        return self.wait_for_focus_in(self.find("frame", f"Reading Window -- {key or reference}"))

    def open_chapter(self, title):
        """The chapter window, opened from the reading window."""
        self.key("F9")
        window = self.find("frame", f"Chapter Window -- {title}")
        self.wait_for_focus(window, "text", "Chapter text")
        return window

    def open_search(self):
        """The search window, ready for the text to search for."""
        self.key("F3")
        window = self.find("frame", "Advanced Search")
        self.wait_for_focus(window, "text", "Search for verses containing the following text:")
        return window

    def open_aids(self, page="c"):
        """The study aids with the focus on their tabs, the page of this letter chosen."""
        self.key("F8")
        window = self.wait_for_focus_in(self.find("frame", "Study Aids"))
        self.key(f"alt+{page}")
        self.wait_for(lambda: (self.focused(window) or [""])[0] == "page tab list", "the focus on the tabs")
        return window

    def open_map(self):
        """The window of the first map."""
        window = self.open_aids("m")
        self.key("Tab")
        self.wait_for_focus(window, "list", "Maps")
        self.key("Home", "Return")
        return self.wait_for_focus_in(self.find("frame", starts="Map -- Abraham's Journeys"))

    def open_about(self):
        self.key("alt+h", "a")
        window = self.find("dialog", "Kestrel Reader (PT)")
        self.wait_for_focus(window, "push button", "OK")
        return window

    def search(self, words):
        """Searches the Gospels; how many verses it found, as the message says it."""
        window = self.open_search()
        self.key("ctrl+a")
        self.desktop.type(words)
        self.key("Return")
        found = self.text_of_box("Search Results:")
        self.key("Return")
        self.wait_for_focus(window, "list", "Search results:")
        return found

    def begin_afresh(self):
        """Closes what stands over the frame and the inner windows, and opens a new selection window."""
        for _ in range(self.application().childCount - 1):  # what a failed test has left
            self.key("Escape")
        area = self.find("layered pane", "Windows")
        for _ in range(area.childCount):
            count = area.childCount
            self.key("ctrl+F4")
            self.wait_for(lambda: area.childCount < count, "one window less")
        self.open_selection()

    def lines(self, node, showing=True, depth=0):
        """What a screen reader meets below an object, as indented lines: its role and name, and what it cannot do.

        Containers that only hold a layout together are left out; entries of lists and trees are not gone into.
        """
        import pyatspi
        state, role = node.getState(), role_of(node)
        if showing and not state.contains(pyatspi.STATE_SHOWING):
            return []
        if role == "frame" and depth and not node.name:
            role = "panel"  # a QFrame is one since Qt 6.8
        if role == "scroll bar" and not node.name:  # whether a text needs one is its font's business
            return []
        has_words = role not in LAYOUT
        marks = [mark for mark, on in (("disabled", not state.contains(pyatspi.STATE_SENSITIVE)),
                                       ("checked", state.contains(pyatspi.STATE_CHECKED)))
                 if on and role != "separator"]
        words = " ".join([f"{role}: {node.name}", *(f"({mark})" for mark in marks)])
        lines = ["  " * depth + words] if has_words else []
        if role not in WITH_ENTRIES:
            for child in filter(None, node):  # one may go away meanwhile
                lines += self.lines(child, showing, depth + has_words)
        return lines

    def focused(self, within):
        """The role and name of the control of a window that has the focus; None while none has."""
        import pyatspi

        def is_help_text(node):
            return role_of(node) == "label" and node.getState().contains(pyatspi.STATE_FOCUSABLE)

        def walk(node):
            state, role = node.getState(), role_of(node)
            if (role in CONTROLS or is_help_text(node)) and state.contains(pyatspi.STATE_FOCUSED):
                return role, node.name
            if role in WITH_ENTRIES or not state.contains(pyatspi.STATE_SHOWING):
                return None
            return next(filter(None, map(walk, node)), None)

        try:
            return walk(within)
        except Exception:  # an object that went away while it was looked at
            return None

    def wait_for_focus(self, within, role, name):
        self.wait_for(lambda: self.focused(within) == (role, name), f"the focus on the {role} {name!r}")

    def wait_for_focus_in(self, window):
        """Waits until a control of the window has the focus; the window."""
        self.wait_for(lambda: self.focused(window), f"the focus in {window.name!r}")
        return window

    def picture(self, node):
        """What the screen shows of an object, once it stands still."""
        import pyatspi
        box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        shape = f"{box.width}x{box.height}+{box.x}+{box.y}"
        before = None
        while (now := self.desktop.picture(shape)) != before:
            before = now
            time.sleep(0.1)
        return now

    def wait_for(self, condition, what):
        deadline = time.monotonic() + PATIENCE
        while not condition():
            assert time.monotonic() < deadline, f"waited for {what}; there is:\n{self.outline()}"
            time.sleep(0.05)

    def wait(self):
        """Waits for the end; the exit code."""
        return self.process.wait(PATIENCE)

    def end(self):
        """Ends it if it still runs; what it wrote to standard error."""
        if self.process.poll() is None:
            self.process.terminate()
        _, errors = self.process.communicate(timeout=PATIENCE)
        return "".join(line for line in errors.splitlines(True) if not line.startswith(BUS_IS_BUSY))
