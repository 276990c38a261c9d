#!/usr/bin/env python3
"""The rules of the house, as a script.

    check_rules.py SOURCE_DIR BUILD_DIR

Prints every breach by file and line, with what to do about it, and ends non-zero when there is one. BUILD_DIR holds
compile_commands.json.
"""
import pathlib
import sys

import documents
import floors
import formatting
import headers
import names
import subjects
import systems
import windows


def breaches(top, build):
    found = [] if formatting.unfit() else formatting.breaches(top)
    for rule in (floors, names, documents, windows, systems, subjects):
        found += rule.breaches(top)
    return found + headers.breaches(top, build)


def main():
    found = breaches(*(pathlib.Path(argument).resolve() for argument in sys.argv[1:]))
    if formatting.unfit():
        print(formatting.unfit())
    print("\n".join(found) if found else "formatting, floors, names, documents, windows, systems, subjects and headers keep the rules")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
