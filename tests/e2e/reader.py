"""The installed program as a user meets it: started, looked at through the accessibility services, ended."""
import os
import pathlib
import shutil
import subprocess
import time

STAMP = "1998-05-05 05:00:00"


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
    """A running program. Every search waits until its object is there, or fails naming it."""

    def __init__(self, desktop, folder, **environment):
        self.desktop = desktop
        self.started = time.monotonic()
        self.process = subprocess.Popen([str(pathlib.Path(folder) / "kestrel-reader")], cwd="/",
                                        env={**desktop.environment, **environment}, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def application(self):
        import pyatspi
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.process.pid:
                return application
        return None

    def find(self, role=None, name=None, within=None, timeout=10, showing=True, starts=None):
        """The first object with this role and name, in the order of the tree."""
        deadline = time.monotonic() + timeout
        while True:
            found = self._search(role, name, within, showing, starts)
            if found:
                return found
            if time.monotonic() > deadline:
                raise AssertionError(f"no {role} named {name or starts!r}; there is:\n{self.outline()}")
            if self.process.poll() is not None:
                raise AssertionError(f"the program has ended: {self.process.communicate()}")
            time.sleep(0.05)

    def absent(self, role, name, timeout=5):
        """Waits until there is no such object."""
        deadline = time.monotonic() + timeout
        while self._search(role, name, None, True, None):
            assert time.monotonic() < deadline, f"{role} {name!r} is still there"
            time.sleep(0.05)

    def _search(self, role, name, within, showing, starts):
        import pyatspi

        def matches(node):
            if role and node.getRoleName() != role:
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
            lines = [f"{'  ' * depth}{node.getRoleName()}: {node.name!r}"]
            lines += [self.outline(child, depth + 1) for child in node if child][:100]
            return "\n".join(line for line in lines if line)
        except Exception as error:
            return f"({error})"

    def press(self, name, role="push button", within=None):
        """Clicks the middle of a control with the mouse."""
        self.click(self.find(role, name, within))

    def click(self, node):
        import pyatspi
        box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        self.desktop.click(box.x + box.width / 2, box.y + box.height / 2)

    def menu(self, menu, item):
        """Chooses a menu item with the mouse."""
        self.click(self.find("menu item", menu))
        self.click(self.find("menu item", item))

    def text_of_box(self, title):
        """The text of the message box with this title."""
        box = self.find(None, title)
        return self.find("label", within=box, showing=False).name

    def wait_for(self, condition, what, timeout=10):
        deadline = time.monotonic() + timeout
        while not condition():
            assert time.monotonic() < deadline, f"waited for {what}; there is:\n{self.outline()}"
            time.sleep(0.05)

    def wait(self, timeout=10):
        """Waits for the end; the exit code."""
        return self.process.wait(timeout)

    def end(self):
        """Ends it if it still runs; what it wrote to standard error."""
        if self.process.poll() is None:
            self.process.terminate()
        _, errors = self.process.communicate(timeout=10)
        return errors
