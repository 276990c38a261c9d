"""The desktop and the program for the end-to-end tests. All run on one virtual desktop, one after another."""
import os
import pathlib
import subprocess

import pytest
from desktop import Desktop
from reader import Reader, install

# The program that this build assembled, over the text of the tests; what they look for in it stands in phrases.py.
ASSEMBLED = pathlib.Path(os.environ.get("KESTREL_INSTALL_DIR", "build/release/test/kestrel")).resolve()


@pytest.fixture(scope="session")
def installed(tmp_path_factory):
    """A copy of the assembled program: the one in its own place may be in use."""
    assert (ASSEMBLED / "kestrel-reader").exists(), f"no program in {ASSEMBLED}: build it"
    return install(ASSEMBLED, tmp_path_factory.mktemp("installed"))


@pytest.fixture
def copy(installed, tmp_path):
    """A copy that a test may change."""
    return install(installed, tmp_path / "kestrel")


@pytest.fixture(scope="session")
def verses():
    """The text list: the verses by their keys."""
    text = (ASSEMBLED.parent / "data" / "scripture.tsv").read_text(encoding="utf-8")
    rows = (line.split("\t") for line in text.splitlines())
    return {f"{book}:{chapter}:{verse}": text for book, chapter, verse, text in rows}


@pytest.fixture(scope="session")
def desktop():
    with Desktop() as session:
        os.environ.update(session.environment)  # before the accessibility client looks for its bus
        yield session


@pytest.fixture
def start(desktop):
    """Starts programs; at the end of the test none is left, and none has written to standard error."""
    readers = []

    def start_one(folder, **how):
        readers.append(Reader(desktop, folder, **how))
        return readers[-1]

    yield start_one
    errors = [reader.end() for reader in readers]
    assert errors == [""] * len(errors)


@pytest.fixture
def reader(start, installed, desktop):
    """The program, its frame shown and the selection window active."""
    program = start(installed)
    program.find("frame", "Select Verse for Reading")
    desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
    return program


@pytest.fixture(scope="module")
def sitting(desktop, installed):
    """One program for all tests of a module, one after another, as in one sitting. Each opens what it needs."""
    program = Reader(desktop, installed)
    program.find("frame", "Select Verse for Reading")
    desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
    yield program
    assert program.end() == ""


@pytest.fixture
def drop_target(desktop):
    """Another program's window, partly beside the frame on the right."""
    program = os.environ.get("KESTREL_DROP_TARGET", "build/release/tests/drop_target")
    process = subprocess.Popen([program], env=desktop.environment, stdout=subprocess.PIPE, text=True)
    desktop.wait_for_window("^Drop target$")
    window = desktop.run("xdotool", "search", "--onlyvisible", "--name", "^Drop target$").split()[0]
    desktop.run("xdotool", "windowmove", "--sync", window, "940", "480")
    yield process
    process.terminate()
    process.wait()
