"""What only one system has stands in a file of src/ that bears its name, PlatformLinux.cpp, and is compiled there alone."""
import re

from tree import lines, sources

NAMED = r"(Linux|Windows)\.cpp$"
MACRO = r"\b(_WIN\d+|__MINGW\w+|_MSC_VER|__linux__|__unix__|__APPLE__|Q_OS_\w+|Q_CC_MSVC)\b"
HEADER = r"\s*#\s*include\s+<(sys/[\w/]+|unistd|fcntl|dlfcn|pwd|windows|shellapi|shlobj|ole2|sddl|aclapi|qt_windows)\.h>"


def breaches(top):
    found = []
    for path in sources(top, "src"):
        for number, line in lines(path):
            if re.search(NAMED, path.name):
                continue
            what = re.search(MACRO, line) or re.match(HEADER, line)
            if what:
                found.append(f"{path}:{number}: {what[1]} is one system's; it stands in a file named after that, {path.stem}Linux.cpp "
                             f"or {path.stem}Windows.cpp")
    return found
