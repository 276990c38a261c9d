"""The rows of tests/windows.tsv."""
import collections
import pathlib

TABLE = pathlib.Path(__file__).resolve().parents[1] / "windows.tsv"

Window = collections.namedtuple("Window", "name kind keys caption")

WINDOWS = {row[0]: Window(*row) for row in (line.split("\t") for line in TABLE.read_text(encoding="utf-8").splitlines()
                                            if line and not line.startswith("#"))}


def title_of(name):
    """What the window's caption begins with, whatever it shows."""
    beginning, dashes, _ = WINDOWS[name].caption.partition(" -- ")
    return beginning + dashes
