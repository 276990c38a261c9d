"""Names and lengths: tests named alike, scripts that can be run, files of one idea."""
import os
import re

from tree import lines, modules, scripts, sources

MAX_LINES = {"src": 450, "tools": 300, "bench": 300, "tests": 800}  # of a C++ file
MAX_SCRIPT_LINES = 450  # and of one in Python or the shell
DEPRECATED = {"setActiveWindow(": "makeActive() of tests/support/ActiveWindow.h stands for it",
              ".mirrored(": "lines are copied in turn; flipped() is younger than Qt 6.4",
              '"_qs': "QString::fromUtf8() or QStringLiteral() does the same"}
TEST = r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)"


def names_of_tests(top):
    """The C++ tests: suites to their tests."""
    suites = {}
    for path in sources(top, "tests"):
        for suite, test in re.findall(TEST, path.read_text(encoding="utf-8"), re.M):
            suites.setdefault(suite, set()).add(test)
    return suites


def test_names(top):
    found = []
    for path in sources(top, "tests"):
        text = path.read_text(encoding="utf-8")
        if re.search(TEST, text, re.M) and not path.name.endswith("_test.cpp"):
            found.append(f"{path}: a file of tests is named after what it tests, and _test.cpp")
        for suite, test in re.findall(TEST, text, re.M):
            if not (suite[0].isupper() and test[0].isupper()) or "_" in test or suite.endswith("Test"):
                found.append(f"{path}: {suite}.{test}: a test is named by a sentence in capitals: Reading.OpensOnTheFirstVerse")
    return found


def lengths(top):
    limits = [(path, maximum) for folder, maximum in MAX_LINES.items() for path in sources(top, folder)]
    limits += [(path, MAX_SCRIPT_LINES) for path in {*scripts(top), *modules(top)}]
    found = []
    for path, maximum in limits:
        count = sum(1 for _ in lines(path))
        if count > maximum:
            found.append(f"{path}: {count} lines, more than {maximum}: part it by what it is about")
    return found


def deprecated(top):
    """What a later Qt warns of, which Qt 6.4 does not."""
    return [f"{path}:{number}: a later Qt deprecates {call}; {instead}"
            for folder in MAX_LINES for path in sources(top, folder) if path.name != "ActiveWindow.h"
            for number, line in lines(path) for call, instead in DEPRECATED.items() if call in line]


def loose_cd(top):
    """Where CDPATH, if the reader exports it, leads a script of the shell to another folder, and prints its path."""
    return [f"{path}:{number}: CDPATH leads this cd astray: CDPATH='' cd -- ..."
            for path in scripts(top) if path.read_text(encoding="utf-8").startswith(("#!/bin/sh", "#!/usr/bin/env bash"))
            for number, line in lines(path) if re.search(r"""(?<!CDPATH='' )\bcd (-- )?"\$\(dirname""", line)]


def breaches(top):
    unrunnable = [path for path in scripts(top) if not os.access(path, os.X_OK)]
    return test_names(top) + lengths(top) + deprecated(top) + [f"{path}: begins with #! but cannot be run: chmod +x" for path in unrunnable] + loose_cd(top)
