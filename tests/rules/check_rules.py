#!/usr/bin/env python3
"""The rules of the house, as a script: formatting, the direction of includes, headers that compile alone, documents that
name what is there.

    check_rules.py SOURCE_DIR BUILD_DIR

Prints every breach by file and line and ends non-zero when there is one. BUILD_DIR holds compile_commands.json.
"""
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

# The house, a floor a line, from the ground up: a folder of src/ may include from its own floor's folder and from those below.
FLOORS = [["store"], ["desktop"], ["clip", "pictures"], ["widgets"], ["read"], ["select", "search", "maps"], ["help"], ["app"]]
MAY_INCLUDE = {folder: sum(FLOORS[:floor], []) for floor, folders in enumerate(FLOORS) for folder in folders}


def sources(top, *folders):
    files = []
    for folder in folders:
        files += [path for path in sorted((top / folder).rglob("*")) if path.suffix in (".h", ".cpp")]
    return files


def unformatted(top):
    files = sources(top, "src", "tests", "tools", "bench")
    result = subprocess.run(["clang-format", "--dry-run", "-Werror", *map(str, files)], capture_output=True, text=True)
    return [line for line in result.stderr.splitlines() if "error:" in line]


def include_breaches(top):
    breaches = []
    for path in sources(top, "src"):
        folder = path.relative_to(top / "src").parts[0]
        if folder not in MAY_INCLUDE:  # main.cpp, above everything
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            found = re.match(r'\s*#\s*include\s+"(\w+)/', line)
            if found and found.group(1) != folder and found.group(1) not in MAY_INCLUDE[folder]:
                breaches.append(f"{path}:{number}: {folder}/ must not include {found.group(1)}/")
            if re.match(r"\s*#\s*include\s+[<\"]sqlite3", line) and folder != "store":
                breaches.append(f"{path}:{number}: SQLite's header is included in store/ only")
    return breaches


def compile_flags(build, folder):
    """The flags of some source of the same folder."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if f"/src/{folder}/" in entry["file"]:
            words = shlex.split(entry["command"])
            flags = [word for word in words if word.startswith(("-D", "-I", "-std"))]
            flags += [word for at, word in enumerate(words) if word == "-isystem" or words[at - 1] == "-isystem"]
            return flags
    return []


def dependent_header(args):
    header, flags = args
    result = subprocess.run(["g++", *flags, "-fPIC", "-fsyntax-only", "-x", "c++", str(header)],
                            capture_output=True, text=True)
    errors = [line for line in result.stderr.splitlines() if "error:" in line]
    return [f"{header}: does not compile alone: {errors[0]}"] if errors else []


def is_compiled_first(header):
    """Whether the header opens a source file of its own name; then every build compiles it alone."""
    source = header.with_suffix(".cpp")
    return source.exists() and bool(re.match(rf'#include "(\w+/)?{header.name}"\n', source.read_text(encoding="utf-8")))


def dependent_headers(top, build):
    flags = {folder: compile_flags(build, folder) for folder in MAY_INCLUDE}
    headers = [(path, flags[path.parent.name]) for path in sources(top, "src")
               if path.suffix == ".h" and not is_compiled_first(path)]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return [line for lines in pool.map(dependent_header, headers) for line in lines]


def dead_references(top):
    """Paths of the repository that a document names and that are not there."""
    breaches = []
    for document in [*top.glob("*.md"), *(top / "docs").glob("*.md"), *(top / "data").rglob("README.md")]:
        for number, line in enumerate(document.read_text(encoding="utf-8").splitlines(), 1):
            names = re.findall(r"`([^`\s]+)`", line) + re.findall(r"\]\(([^):]+)\)", line)
            for name in names:
                path = name.removeprefix("./").split("#")[0]
                if not re.match(r"(src|tests|tools|docs|data|bench|cmake|packaging|man)/|[A-Z]+\.md$|run$|test$|setup$|package$",
                                path):
                    continue
                if not (top / path).exists() and not (document.parent / path).exists():
                    breaches.append(f"{document}:{number}: there is no {name}")
    return breaches


def main():
    top, build = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    breaches = unformatted(top) + include_breaches(top) + dead_references(top) + dependent_headers(top, build)
    print("\n".join(breaches) if breaches else "formatting, includes, headers and documents keep the rules")
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
