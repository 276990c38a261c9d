"""Who owns which selection of an X display. xclip knows the common ones only."""
import ctypes
import time

from desktop import PATIENCE


class Selections:
    """A client of its own. What it holds it never serves, as a program that hangs."""

    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        for name in ("XOpenDisplay", "XInternAtom", "XGetSelectionOwner", "XDefaultRootWindow", "XCreateSimpleWindow"):
            getattr(self.x11, name).restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        assert self.display, f"no display {display}"

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.x11.XCloseDisplay(self.display)

    def _atom(self, name):
        return ctypes.c_void_p(self.x11.XInternAtom(self.display, name.encode(), False))

    def owner(self, name):
        """The number of the owner's window, or None."""
        return self.x11.XGetSelectionOwner(self.display, self._atom(name))

    def hold(self, name):
        root = ctypes.c_void_p(self.x11.XDefaultRootWindow(self.display))
        window = ctypes.c_void_p(self.x11.XCreateSimpleWindow(self.display, root, 0, 0, 1, 1, 0, None, None))
        self.x11.XSetSelectionOwner(self.display, self._atom(name), window, None)
        assert self.owner(name) == window.value

    def wait_for_owner(self, name):
        deadline = time.monotonic() + PATIENCE
        while not self.owner(name):
            assert time.monotonic() < deadline, f"nobody owns {name}"
            time.sleep(0.05)
