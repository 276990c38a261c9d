"""The patterns of patterns.txt, and the same said to grep, ripgrep and the sqlite3 shell, each a whole process over the
texts of the verses alone. All that answer must find as many verses: some patterns make one too slow or too large, and grep
knows no ranges of accented letters.
"""
import atexit
import os
import statistics
import subprocess
import sys
import tempfile

from others import time_process

LIST = os.path.join(os.path.dirname(os.path.abspath(__file__)), "patterns.txt")
RUNS = 3
SECONDS = 10  # what takes longer is broken off

PREFIX = "pattern "
WINDOW_PREFIX = "search pattern "


def patterns():
    with open(LIST, encoding="utf-8") as lines:
        return lines.read().splitlines()


def pieces(pattern):
    """The wildcards and characters of a pattern; a class as its inside, with "[" before it."""
    at = 0
    while at < len(pattern):
        end = pattern.index("]", at) if pattern[at] == "[" else at
        yield pattern[at:max(end, at + 1)]
        at = end + 1


def expression(pattern):
    """An extended regular expression that finds what the pattern finds, letter case aside."""
    def translate(piece):
        if piece[0] == "[":
            return "[" + piece[1:].replace("!", "^", 1) + "]"
        return {"*": ".*", "?": ".", "#": "[0-9]", ".": "[.]"}.get(piece, piece)
    return "".join(map(translate, pieces(pattern)))


def glob(pattern):
    """The same for SQLite's GLOB, which knows classes but tells capitals from small letters."""
    def translate(piece):
        if piece[0] == "[":
            inside = piece[1:].replace("!", "^", 1)
            return "[" + inside + inside.swapcase().replace("^", "") + "]"
        if piece.isalpha():
            return f"[{piece.lower()}{piece.upper()}]"
        return {"#": "[0-9]"}.get(piece, piece)
    return "*" + "".join(map(translate, pieces(pattern))) + "*"


class OtherPatterns:
    """Measures the other ways on the text of the options."""

    def __init__(self, options):
        folder = tempfile.TemporaryDirectory(prefix="kestrel-bench-")
        atexit.register(folder.cleanup)
        self.clock = options.clock
        self.texts = os.path.join(folder.name, "texts")
        self.database = os.path.join(folder.name, "texts.db")
        with open(options.text, encoding="utf-8") as verses, open(self.texts, "w", encoding="utf-8") as texts:
            texts.writelines(" " + verse.split("\t")[-1] for verse in verses)
        subprocess.run(["sqlite3", "-batch", self.database], text=True, check=True, input=
                       'create table verses(text text);\n.mode ascii\n.separator "\\t" "\\n"\n'
                       f'.import "{self.texts}" verses\n')

    def ways(self, pattern):
        regular = expression(pattern)
        return {
            "grep": (["grep", "-icE", "-e", regular, self.texts], ""),
            "rg": (["rg", "-ic", "--include-zero", "-e", regular, self.texts], ""),
            "sqlite3": (["sqlite3", "-batch", "-readonly", self.database],
                        f"select count(*) from verses where text glob '{glob(pattern)}';\n"),
        }

    def measure(self, pattern, expected):
        """The median seconds of each way, None where it gives no answer; all that answer find this many verses."""
        seconds = {}
        for way, (command, data) in self.ways(pattern).items():
            times = []
            for _ in range(RUNS):
                taken, found = time_process(["env", "LC_ALL=C.UTF-8", "timeout", str(SECONDS), *command], self.clock, data,
                                            errors=subprocess.DEVNULL)
                if not found.strip():
                    break
                if int(found) != expected:
                    sys.exit(f"{pattern}: {way} finds {found.strip()} verses, the store {expected}")
                times.append(taken)
            seconds[way] = statistics.median(times) if times else None
        return seconds
