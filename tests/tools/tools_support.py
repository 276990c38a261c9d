"""What the tests of the tools' scripts share besides fixtures."""

import hashlib
import importlib.machinery
import importlib.util
import json
import os
import signal
import subprocess
import sys
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]


def run(*command, **environment):
    """Runs a program; only the variables named here tell it of a text."""
    clean = {name: value for name, value in os.environ.items() if not name.startswith("KESTREL_TEXT")}
    # Nothing is fetched over the network unless a test says from where.
    clean["KESTREL_TEXT_URL"] = "file:///nowhere"
    return subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False,
                          env={**clean, **environment})


def as_at_a_terminal():
    """For a child that is to be interrupted: whoever runs the tests in the background has made them ignore that."""
    signal.signal(signal.SIGINT, signal.SIG_DFL)


def sha256(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def published_sum(checkout):
    return (checkout / "data/text/sums.txt").read_text().split()[1]


def expect_sums(checkout, published, corrected="unknown"):
    """Makes a text, and a sum of what its corrections give, the published ones of a checkout."""
    (checkout / "data/text/sums.txt").write_text(f"published {sha256(published)}\ncorrected {corrected}\n")


def publish(text, folder):
    """Writes a list of verses in the form in which the real text is published, one file a book."""
    osis = read_books()
    books = {}
    for line in text.read_text(encoding="utf-8").splitlines():
        book, chapter, verse, text = line.split("\t")
        chapters = books.setdefault(osis[book], {})
        chapters.setdefault(int(chapter), []).append({"number": int(verse), "text": text})
    folder.mkdir()
    for name, chapters in books.items():
        content = {"chapters": [{"chapter": number, "verses": verses} for number, verses in chapters.items()]}
        (folder / f"{name}.json").write_text(json.dumps(content), encoding="utf-8")
    return folder


def read_books():
    """Abbreviation to published name."""
    return {book: name for name, book in load_find_text(SOURCE / "tools/find_text").BOOKS}


def load_find_text(path):
    """The tool as a module."""
    sys.dont_write_bytecode = True
    loader = importlib.machinery.SourceFileLoader("find_text", str(path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("find_text", loader))
    loader.exec_module(module)
    return module
