"""What the tests of the checker share."""

import subprocess
import sys
from pathlib import Path

CHECKER = Path(__file__).with_name("check_topics.py")

CHAPTERS = {"Gn": [3, 31], "Is": [25, 22], "Mt": [25, 23, 17], "Mk": [45, 28], "Rv": [20]}
MINIMUM = {"events": 120, "miracles": 37, "parables": 40, "prophecy": 80}
# Enough different words for titles that are not too much alike.
WORDS = [f"{a}{b}" for a in ("Ba", "Ce", "Di", "Fo", "Gu", "Ha", "Je", "Ki", "Lo", "Mu", "Na", "Pe", "Ri", "So", "Tu")
         for b in ("bel", "der", "fin", "gol", "hum", "kat", "len", "mir", "nor", "pul", "ran", "sed", "tik", "von")]
README = "| `events.txt` | Events | 120 | text |\n| `miracles.txt` | Miracles | 37 | text |\n" \
         "| `parables.txt` | Parables | 40 | text |\n| `prophecy.txt` | Prophecy | 80 | text |\n" \
         "| `Mk:2:28` | it is left out |\n"


def run(*arguments):
    return subprocess.run(
        [sys.executable, CHECKER, *map(str, arguments)], capture_output=True, encoding="utf-8", check=False
    )


def replace_line(path, number, line):
    lines = path.read_text(encoding="utf-8").splitlines()
    lines[number - 1] = line
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")
