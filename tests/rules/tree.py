"""The files that the rules look at."""
import subprocess


def sources(top, *folders):
    """C++ files of these folders."""
    files = []
    for folder in folders:
        files += [path for path in sorted((top / folder).rglob("*")) if path.suffix in (".h", ".cpp")]
    return files


def lines(path):
    """Line numbers and lines."""
    return enumerate(path.read_text(encoding="utf-8").splitlines(), 1)


def modules(top):
    """Files in Python that others import, and tests."""
    return [path for folder in ("tools", "bench", "tests", "data", "packaging") for path in sorted((top / folder).rglob("*.py"))]


def scripts(top):
    """Files that say by their first line what runs them."""
    found = []
    for folder in (".", ".ci", "tools", "bench", "tests", "data", "packaging"):
        for path in sorted((top / folder).glob("*") if folder == "." else (top / folder).rglob("*")):
            if path.is_file() and path.suffix not in (".h", ".cpp", ".png"):
                with path.open("rb") as file:
                    if file.read(2) == b"#!":
                        found.append(path)
    return found


def git(top, *arguments):
    """What git prints; nothing where there is no repository, as in an archive of the tree."""
    try:
        result = subprocess.run(["git", "-C", str(top), *arguments], capture_output=True, text=True, check=False)
    except FileNotFoundError:
        return ""
    return result.stdout if result.returncode == 0 else ""
