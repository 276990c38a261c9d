#!/usr/bin/env python3
"""Measures which lines and branches of src/ the unit tests run: clang's source-based coverage.

    tests/measure/coverage.py

Builds the unit tests with instrumentation in build/coverage/ (about ten minutes, once), runs them, and prints for each folder of src/
the share of lines and branches that ran, then every line that did not. Needs what ./test needs.
"""
import collections
import json
import os
import pathlib
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parents[2]
BUILD = TOP / "build" / "coverage"
FLAGS = "-O0 -fprofile-instr-generate -fcoverage-mapping"
# End-to-end tests run the installed program; the rest looks at no code.
NOT_RUN = "e2e|package|valgrind|rules|topics|maps_data|tools_scripts"


def run(*command, **options):
    subprocess.run([str(part) for part in command], cwd=TOP, check=True, **options)


def profile():
    """Runs the tests; the merged profile."""
    profiles = BUILD / "profiles"
    profiles.mkdir(exist_ok=True)
    for old in profiles.iterdir():
        old.unlink()
    environment = {**os.environ, "LLVM_PROFILE_FILE": str(profiles / "%p.profraw")}
    run("ctest", "--test-dir", BUILD, "-E", NOT_RUN, "-j", "2", "--output-on-failure", env=environment)
    merged = BUILD / "tests.profdata"
    run("llvm-profdata", "merge", "-sparse", *sorted(profiles.iterdir()), "-o", merged)
    return merged


def exported(merged):
    programs = sorted(path for path in (BUILD / "tests").glob("test_*") if path.is_file() and os.access(path, os.X_OK))
    objects = [word for program in programs[1:] for word in ("-object", program)]
    command = ["llvm-cov", "export", f"-instr-profile={merged}", f"-compilation-dir={BUILD}", programs[0], *objects]
    return json.loads(subprocess.run([str(part) for part in command], capture_output=True, check=True).stdout)


def missed_lines(file):
    """Lines on which a region starts that never ran, by the segments [line, column, count, has count, starts region, gap]."""
    return sorted({line for line, _, count, counted, entry, gap in (segment[:6] for segment in file["segments"])
                   if counted and entry and not gap and count == 0})


def main():
    run("cmake", "-S", TOP, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DKESTREL_TESTS=ON", "-DCMAKE_CXX_COMPILER=clang++",
        f"-DCMAKE_CXX_FLAGS={FLAGS}", stdout=subprocess.DEVNULL)
    run("cmake", "--build", BUILD, stdout=subprocess.DEVNULL)
    files = exported(profile())["data"][0]["files"]
    if not files:
        sys.exit("coverage: no source was measured; were the tests built?")
    folders = collections.defaultdict(lambda: collections.Counter())
    missed = []
    for file in files:
        path = pathlib.Path(os.path.normpath(BUILD / file["filename"])).relative_to(TOP)
        if path.parts[0] != "src":  # the tests themselves, and what moc writes
            continue
        for name in (path.parts[1], "all"):
            for kind in ("lines", "branches"):
                folders[name][kind] += file["summary"][kind]["count"]
                folders[name][kind + " run"] += file["summary"][kind]["covered"]
        missed += [f"{path}:{line}" for line in missed_lines(file)]
    for name, counts in sorted(folders.items()):
        shares = [f"{kind} {100 * counts[kind + ' run'] / max(counts[kind], 1):6.2f} %" for kind in ("lines", "branches")]
        print(f"{name:<12}{shares[0]}   {shares[1]}")
    print("\nNever run:", *missed, sep="\n")


if __name__ == "__main__":
    main()
