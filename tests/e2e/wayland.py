"""A Wayland session for a test: sway without a screen, on the message bus of the X desktop but without its display."""
import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

from desktop import PATIENCE

NOBODY = 65534
CONFIG = 'xwayland disable\noutput HEADLESS-1 resolution 1280x900\nfor_window [title=".*"] floating enable\n'
HEADLESS = {"WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}


class WaylandDesktop:
    """Starts the session on entering and ends it on leaving. `environment` is what a program of the session gets."""

    def __init__(self, desktop):
        self.desktop = desktop

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kestrel-wayland-"))
        self.folder.chmod(0o755)
        run = self.folder / "run"
        run.mkdir(mode=0o700)
        (self.folder / "config").write_text(CONFIG)
        someone = {}
        if os.getuid() == 0:  # sway refuses to run as root
            os.chown(run, NOBODY, NOBODY)
            someone = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
        self.sway = subprocess.Popen(
            ["sway", "-c", self.folder / "config"], cwd="/", stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL, **someone,
            env={"PATH": os.environ["PATH"], "HOME": str(run), "XDG_RUNTIME_DIR": str(run), **HEADLESS})
        self.environment = {name: value for name, value in self.desktop.environment.items() if name != "DISPLAY"}
        self.environment |= {"XDG_SESSION_TYPE": "wayland", "WAYLAND_DISPLAY": str(self._wait_for(run, "wayland-?")),
                             "SWAYSOCK": str(self._wait_for(run, "sway-ipc.*"))}
        # While there is no keyboard no window has the focus, so one stays, on which nothing more is typed.
        self.keyboard = subprocess.Popen(["wtype", "-k", "Shift_L", "-s", "86400000"], env=self.environment)
        return self

    def __exit__(self, *_):
        self.keyboard.terminate()
        self.keyboard.wait(PATIENCE)
        self.sway.terminate()
        self.sway.wait(PATIENCE)
        shutil.rmtree(self.folder, ignore_errors=True)

    def _wait_for(self, folder, name):
        deadline = time.monotonic() + PATIENCE
        while not (found := list(folder.glob(name))):
            assert time.monotonic() < deadline and self.sway.poll() is None, f"sway made no {name}"
            time.sleep(0.05)
        return found[0]

    def run(self, *command, check=True):
        """What a command of the session prints, as bytes."""
        result = subprocess.run(command, env=self.environment, capture_output=True, timeout=PATIENCE, check=False)
        assert not check or result.returncode == 0, f"{command}: {result.stderr}"
        return result.stdout

    def windows(self):
        """The title of each window, and whether it is the active one."""
        def walk(node):
            yield node
            for child in node["nodes"] + node["floating_nodes"]:
                yield from walk(child)
        tree = json.loads(self.run("swaymsg", "-t", "get_tree", "-r"))
        return [(node["name"] or "", node["focused"]) for node in walk(tree) if node.get("app_id")]

    def wait_for_focus(self, title):
        deadline = time.monotonic() + PATIENCE
        while not any(active and title in name for name, active in self.windows()):
            assert time.monotonic() < deadline, f"no window named {title!r} got the focus: {self.windows()}"
            time.sleep(0.05)

    def key(self, *keys):
        words = ["-s", "50"]
        for key in keys:
            *held, last = key.split("+")
            words += [word for one in held for word in ("-M", one)] + ["-k", last]
            words += [word for one in held for word in ("-m", one)] + ["-s", "20"]
        self.run("wtype", *words)

    def type(self, text):
        self.run("wtype", "-s", "50", "-d", "15", text)

    def clipboard(self):
        """What is on the clipboard, to the byte."""
        return self.run("wl-paste", "--no-newline", check=False).decode()

    def clipboard_picture(self):
        """The picture on the clipboard, as the bytes of a PNG file."""
        return self.run("wl-paste", "--type", "image/png", check=False)

    def screenshot(self, path):
        self.run("grim", "-l", "1", str(path))
