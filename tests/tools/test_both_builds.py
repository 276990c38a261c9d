"""The command ./test: the tests of both builds run, and what either says counts. Stubs stand for all that it starts."""

import os
import shutil
import signal
import subprocess
import time

import pytest
from tools_support import SOURCE, as_at_a_terminal

# In Python, which an interruption ends whatever it is at; the shell may miss one between two of its commands.
CTEST = """#!/usr/bin/python3
import pathlib, sys, time
build = sys.argv[2].removeprefix("build/")
seconds = pathlib.Path(f"{build}.seconds")
pathlib.Path(f"{build}.started").touch()
time.sleep(int(seconds.read_text()) if seconds.exists() else 0)
print("tests of", build)
pathlib.Path(f"{build}.ended").touch()
sys.exit(pathlib.Path(f"{build}.fails").exists())
"""


@pytest.fixture
def checkout(tmp_path):
    """A checkout with ./test alone: setup, the builds and the tests are stubs."""
    folder = tmp_path / "checkout"
    stubs = tmp_path / "stubs"
    for path in (folder / "tools", folder / "build", stubs):
        path.mkdir(parents=True)
    shutil.copy(SOURCE / "test", folder)
    for path in (folder / "setup", folder / "tools/build", folder / "tools/longest_tests", stubs / "cmake"):
        path.write_text("#!/bin/sh\n")
        path.chmod(0o755)
    (stubs / "ctest").write_text(CTEST)
    (stubs / "ctest").chmod(0o755)
    return folder


def start(checkout):
    environment = {**os.environ, "PATH": f"{checkout.parent}/stubs:{os.environ['PATH']}"}
    return subprocess.Popen(["./test"], cwd=checkout, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            text=True, start_new_session=True, preexec_fn=as_at_a_terminal)


def wait_until(met):
    for _ in range(1000):
        if met():
            return
        time.sleep(0.02)
    raise AssertionError("It never came.")


def test_both_builds_are_tested_and_shown(checkout):
    process = start(checkout)
    said, _ = process.communicate(timeout=30)
    assert process.returncode == 0, said
    assert said.splitlines() == ["tests of release", "tests of asan"]


@pytest.mark.parametrize("build", ["asan", "release"])
def test_a_failure_of_either_fails_it_and_the_other_goes_on(checkout, build):
    (checkout / f"{build}.fails").touch()
    process = start(checkout)
    said, _ = process.communicate(timeout=30)
    assert process.returncode == 1
    assert sorted(said.splitlines()) == ["tests of asan", "tests of release"]


def test_interrupted_it_leaves_nothing_at_work(checkout):
    for build in ("asan", "release"):
        (checkout / f"{build}.seconds").write_text("60")
    process = start(checkout)
    wait_until(lambda: all((checkout / f"{build}.started").exists() for build in ("asan", "release")))
    os.killpg(process.pid, signal.SIGINT)  # as the terminal does: to its own process group
    process.communicate(timeout=20)  # ends when nobody holds the output any more
    assert process.returncode != 0
    at_work = ["pgrep", "-f", str(checkout.parent / "stubs/ctest")]
    wait_until(lambda: subprocess.run(at_work, capture_output=True, check=False).returncode == 1)
