#!/usr/bin/env python3
"""Measures the tests: changes one token of src/ at a time and reports the changes that no unit test notices.

    tests/measure/mutants.py [--count N] [--seed N] [--in FOLDER]...

A copy of the committed tree is built in build/mutants/ (some minutes the first time), then each change is built and tested there:
first the tests of its own folder, then the others, then, for what survived in the search or the store, the search's oracle. A change
that does not compile counts for nothing. Takes about a minute a change; drawing code (src/pictures, FrameStyle) is left out unless
--in names it. Ends with 0 whatever it finds.
"""
import argparse
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys

from mutations import mutations_of

TOP = pathlib.Path(__file__).resolve().parents[2]
COPY = TOP / "build" / "mutants"
DRAWING = ("src/pictures/", "src/app/FrameStyle")
TESTS_SECONDS = 300  # a change that makes a loop endless is noticed, too
# Long measures that judge no single line; the end-to-end tests, which need a desktop; and what looks at no code.
NOT_RUN = "e2e|package|valgrind|rules|topics|maps_data|tools|trust|oracle"


def run(*command, seconds=None):
    """Whether the command ended with 0, in time."""
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    # A process group of its own, so that an endless test goes with the ctest that began it.
    process = subprocess.Popen(command, cwd=COPY, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               start_new_session=True)
    try:
        return process.wait(seconds) == 0
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return False


def make_copy():
    """The committed tree, and of an earlier copy only what was built of it: files deleted since would be compiled, too."""
    COPY.mkdir(parents=True, exist_ok=True)
    for old in COPY.iterdir():
        if old.is_dir() and old.name != "build":
            shutil.rmtree(old)
        elif not old.is_dir():
            old.unlink()
    archive = subprocess.run(["git", "-C", TOP, "archive", "HEAD"], capture_output=True, check=True).stdout
    # With the time of now (-m): a file with its commit's time would be older than what the last run built of a change to it.
    subprocess.run(["tar", "-x", "-m", "-C", COPY], input=archive, check=True)
    if not (run("cmake", "--preset", "dev") and run("cmake", "--build", "--preset", "dev")):
        sys.exit(f"mutants: the tree does not build as it is; see cmake --build --preset dev in {COPY}")
    if not run("ctest", "--test-dir", "build/dev", "-E", NOT_RUN, "-j", "2"):
        sys.exit(f"mutants: the tests fail as they are; see ctest --test-dir {COPY}/build/dev")


def candidates(folders):
    for path in sorted((COPY / "src").rglob("*.cpp")) + sorted((COPY / "src").rglob("*.h")):
        name = str(path.relative_to(COPY))
        if name.endswith("Windows.cpp"):
            continue  # no part of the program here
        wanted = any(name.startswith(f"src/{folder}/") for folder in folders) if folders else not name.startswith(DRAWING)
        if wanted:
            yield from mutations_of(name, path.read_text(encoding="utf-8"))


def outcome(mutation):
    """"noticed", "survived" or "no program"; the file is as before afterwards."""
    path = COPY / mutation.path
    text = path.read_text(encoding="utf-8")
    tested = {folder.name for folder in (COPY / "tests").iterdir() if any(folder.glob("*_test.cpp"))}
    lines = text.splitlines(keepends=True)
    lines[mutation.number - 1] = mutation.after + "\n"
    path.write_text("".join(lines), encoding="utf-8")
    try:
        own = path.parent.name
        # The tests of its own folder notice most changes, and are soonest built.
        if not run("cmake", "--build", "--preset", "dev", "--target", f"test_{own}" if own in tested else "all"):
            return "no program"
        if own in tested and not run("ctest", "--test-dir", "build/dev", "-R", f"^{own}$", seconds=TESTS_SECONDS):
            return "noticed"
        if not run("cmake", "--build", "--preset", "dev"):
            return "no program"
        noticed = not run("ctest", "--test-dir", "build/dev", "-E", f"{NOT_RUN}|^{own}$", "-j", "2", "--stop-on-failure",
                          seconds=TESTS_SECONDS)
        if not noticed and own in ("search", "store"):
            noticed = not run("ctest", "--test-dir", "build/dev", "-R", "oracle", seconds=TESTS_SECONDS)
        return "noticed" if noticed else "survived"
    finally:
        path.write_text(text, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--count", type=int, default=100)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--in", dest="folders", action="append", default=[], metavar="FOLDER", help="a folder of src/")
    wanted = parser.parse_args()
    make_copy()
    chosen = list(candidates(wanted.folders))
    random.Random(wanted.seed).shuffle(chosen)
    counts = {"noticed": 0, "survived": 0, "no program": 0}
    for mutation in chosen:
        if counts["noticed"] + counts["survived"] >= wanted.count:
            break
        found = outcome(mutation)
        counts[found] += 1
        if found == "survived":
            print(f"survived: {mutation}", flush=True)
    print(f"seed {wanted.seed}: {counts['noticed']} noticed, {counts['survived']} survived, "
          f"{counts['no program']} did not compile")


if __name__ == "__main__":
    main()
