"""A real X session for one test: Xvfb, a window manager, a message bus with the accessibility services."""
import os
import shutil
import subprocess
import tempfile
import time

SCREEN = "1280x900x24"
PATIENCE = 30  # seconds that anything may take on a busy machine

# By their places on the keyboard: of xkeyboard-config 2.48, which names a function key for Alt, too, xdotool presses Alt with it.
FUNCTION_KEYS = {f"F{number}": str(66 + number) for number in range(1, 11)} | {"F11": "95", "F12": "96"}


def place_of(key):
    """What xdotool is to press for a key that may have modifiers, such as "shift+F4"."""
    return "+".join(FUNCTION_KEYS.get(part, part) for part in key.split("+"))


class Desktop:
    """Starts everything on entering and ends it on leaving. `environment` is what a program of the session gets."""

    def __init__(self, **extra):
        self.extra = extra
        self.processes = []

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="kestrel-desktop-")
        display, end = os.pipe()
        self._start(["Xvfb", "-displayfd", str(end), "-screen", "0", SCREEN, "-nolisten", "tcp", "-noreset"], pass_fds=[end])
        os.close(end)
        with os.fdopen(display) as number:
            name = ":" + number.readline().strip()
        self.environment = {
            **os.environ,
            "DISPLAY": name,
            "HOME": self.folder,
            "XDG_RUNTIME_DIR": self.folder,
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "LC_ALL": "C.UTF-8",
            **self.extra,
        }
        for variable in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"):
            self.environment.pop(variable, None)
        bus = self._start(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self._start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        self._start(["openbox"])
        self._wait_for_window_manager()
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start(self, command, **options):
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, "stdin": subprocess.DEVNULL}
        process = subprocess.Popen(command, env=getattr(self, "environment", None), **{**quiet, **options})
        self.processes.append(process)
        return process

    def _wait_for_window_manager(self):
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            answer = self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK", check=False)
            if "window id" in answer:
                return
            time.sleep(0.05)
        raise RuntimeError("the window manager did not start")

    def run(self, *command, check=True, data=None):
        """Runs a command in the session; what it printed."""
        result = subprocess.run(command, env=self.environment, input=data, capture_output=True, text=True, timeout=PATIENCE)
        if check and result.returncode != 0:
            raise RuntimeError(f"{command} failed: {result.stderr}")
        return result.stdout

    def wait_for_window(self, title):
        """Waits until a window whose title holds this is shown."""
        deadline = time.monotonic() + PATIENCE
        while not self.run("xdotool", "search", "--onlyvisible", "--name", title, check=False).split():
            if time.monotonic() > deadline:
                raise RuntimeError(f"no window named {title!r} appeared")
            time.sleep(0.02)

    def wait_for_focus(self, title, timeout=PATIENCE):
        """Waits until the window with the focus has this in its title."""
        deadline = time.monotonic() + timeout
        while title not in self.run("xdotool", "getactivewindow", "getwindowname", check=False):
            if time.monotonic() > deadline:
                raise RuntimeError(f"no window named {title!r} got the focus")
            time.sleep(0.05)

    def key(self, *keys):
        self.run("xdotool", "key", "--clearmodifiers", *map(place_of, keys))

    def type(self, text):
        self.run("xdotool", "type", "--delay", "15", text)

    def click(self, x, y, button=1):
        self.run("xdotool", "mousemove", str(int(x)), str(int(y)), "click", str(button))

    def drag(self, start, end):
        """With the left button, in steps as a hand does it."""
        self.run("xdotool", "mousemove", *map(str, start), "mousedown", "1")
        for part in range(1, 21):
            self.run("xdotool", "mousemove", *(str(a + (b - a) * part // 20) for a, b in zip(start, end)))
            time.sleep(0.05)
        self.run("xdotool", "mouseup", "1")

    def clipboard(self, errors="strict"):
        """What is on the clipboard, to the byte. A program that has no memory left for UTF-8 may give it otherwise."""
        result = subprocess.run(["xclip", "-selection", "clipboard", "-o"], env=self.environment, capture_output=True,
                                timeout=PATIENCE)
        return result.stdout.decode("utf-8", errors)

    def clipboard_picture(self):
        """The picture on the clipboard, as the bytes of a PNG file."""
        result = subprocess.run(["xclip", "-selection", "clipboard", "-t", "image/png", "-o"], env=self.environment,
                                capture_output=True, timeout=PATIENCE)
        return result.stdout

    def picture(self, shape):
        """What the screen shows there, as its dots."""
        result = subprocess.run(["import", "-window", "root", "-crop", shape, "rgb:-"], env=self.environment,
                                capture_output=True, timeout=PATIENCE, check=True)
        return result.stdout

    def screenshot(self, path):
        # Packed lightly: on a busy machine packing a map tightly takes longer than run() waits.
        self.run("import", "-window", "root", "-define", "png:compression-level=1", str(path))
