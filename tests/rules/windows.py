"""Every window has its row in tests/windows.tsv, over which the tests of all windows go, and its page in the help."""
import re

from tree import lines, sources

TABLE = "tests/windows.tsv"
WINDOWS_OF_QT = {"QDialog", "QMainWindow"}


def classes(top):
    """Class to its first base and the place where it is declared."""
    found = {}
    for path in sources(top, "src"):
        for number, line in lines(path):
            match = re.match(r"class (\w+)(?: final)? : public (\w+)", line)
            if match:
                found[match.group(1)] = (match.group(2), f"{path}:{number}")
    return found


def windows(top):
    """The classes that are windows, and not only the base of some."""
    known = classes(top)

    def is_window(name):
        return name in WINDOWS_OF_QT or name == "Form" or (name in known and is_window(known[name][0]))

    bases = {base for base, _ in known.values()} | {"Form"}
    return {name: place for name, (base, place) in known.items() if is_window(base) and name not in bases}


def listed(top):
    """Class to the row of the table."""
    return {line.split("\t")[0]: line.split("\t") for _, line in lines(top / TABLE) if line and not line.startswith("#")}


def breaches(top):
    rows, known, found = listed(top), windows(top), []
    help_text = (top / "data/help/kestrel.html").read_text(encoding="utf-8")
    for name, place in known.items():
        if name not in rows:
            found.append(f"{place}: the window {name} has no row in {TABLE}, so that no test goes through it")
        if f'<section id="{name}">' not in help_text:
            found.append(f'{place}: the window {name} has no page in the help: <section id="{name}"> in data/help/kestrel.html')
    found += [f"{top / TABLE}: there is no window {name}" for name in rows if name not in known]
    return found
