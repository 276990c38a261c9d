"""Documents name files, tests and commits that are there."""
import re

from names import names_of_tests
from tree import git, lines

PATH = (r"(src|tests|tools|docs|data|bench|cmake|packaging|man|packages|\.github)/|[A-Z]+\.md$|"
        r"(run|test|setup|package|dev|CMakeLists\.txt|CMakePresets\.json)$")


def documents(top):
    return [*top.glob("*.md"), *(top / "docs").rglob("*.md"), *(top / "data").rglob("README.md"),
            *(top / ".github").rglob("*.md")]


def dead_path(top, document, name):
    path = name.removeprefix("./").split("#")[0]
    if not re.match(PATH, path) and not path.startswith("0"):
        return False
    return not (top / path).exists() and not (document.parent / path).exists() and not any(top.glob(path))


def dead_test(suites, name):
    """A name in backticks that looks like a test's, `Suite.Test` or `Suite.*`, and is none."""
    match = re.fullmatch(r"([A-Z][a-z]\w+)\.([A-Za-z]\w{4,}|\*)", name)
    if not match:
        return False
    suite, test = match.groups()
    return suite not in suites or (test != "*" and test not in suites[suite])


def rows_without_test(top):
    """Rows of docs/behaviour.md whose last column names nothing that holds them."""
    path, found = top / "docs/behaviour.md", []
    for number, line in lines(path) if path.exists() else ():
        cells = line.strip().strip("|").split(" | ")
        is_row = line.startswith("| ") and not line.startswith("| What binds")
        if is_row and (len(cells) < 2 or not re.search(r"`[^`]+`", cells[-1])):
            found.append(f"{path}:{number}: names no test that holds this; write one, and its name here")
    return found


def unknown_commits(top):
    """Commits to imitate that are not in the history, where that is here whole."""
    path = top / "CONTRIBUTING.md"
    if not path.exists() or git(top, "rev-parse", "--is-shallow-repository").strip() != "false":
        return []
    subjects = git(top, "log", "--format=%s")
    named = re.findall(r'\*Imitate:\*\s+"([^"]+)"', path.read_text(encoding="utf-8"))
    return [f'{path}: no commit\'s subject holds "{subject}"' for subject in (" ".join(name.split()) for name in named)
            if subject not in subjects]


def breaches(top):
    found, suites = rows_without_test(top) + unknown_commits(top), names_of_tests(top)
    for document in documents(top):
        for number, line in lines(document):
            for name in re.findall(r"`([^`\s]+)`", line) + re.findall(r"\]\(([^):]+)\)", line):
                if dead_path(top, document, name):
                    found.append(f"{document}:{number}: there is no {name}")
                if dead_test(suites, name):
                    found.append(f"{document}:{number}: there is no test {name}; was it given another name?")
    return found
