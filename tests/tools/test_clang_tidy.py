"""The command tools/check_with_clang_tidy: it looks at nothing twice, and never takes for clean what was not. Stubs stand for clang-tidy
and for the list of installed packages."""

import os
import shutil
import subprocess

import pytest
from tools_support import SOURCE

STUBS = {
    "cmake": "mkdir -p build/tidy/Unity && touch build/tidy/Unity/unity_0_cxx.cxx",
    "dpkg-query": "cat packages",
    "clang-tidy": '[ "$1" != --version ] || { echo "version 14.0"; exit; }; echo looked; [ ! -e complains ]',
}


@pytest.fixture
def checkout(tmp_path):
    folder = tmp_path / "checkout"
    for path in (folder / "tools", folder / "src", folder / "cmake", tmp_path / "stubs"):
        path.mkdir(parents=True)
    shutil.copy(SOURCE / "tools/check_with_clang_tidy", folder / "tools")
    for name in ("CMakeLists.txt", ".clang-tidy", "src/a.cpp", "packages"):
        (folder / name).write_text("as it was\n")
    for name, commands in STUBS.items():
        (tmp_path / "stubs" / name).write_text(f"#!/bin/sh\n{commands}\n")
        (tmp_path / "stubs" / name).chmod(0o755)
    return folder


def check(checkout):
    """Whether it found all clean, and whether it looked."""
    environment = {**os.environ, "PATH": f"{checkout.parent}/stubs:{os.environ['PATH']}"}
    done = subprocess.run(["tools/check_with_clang_tidy"], cwd=checkout, env=environment, capture_output=True, text=True, check=False)
    return done.returncode == 0, "looked" in done.stdout


def test_what_is_clean_is_looked_at_once(checkout):
    assert check(checkout) == (True, True)
    assert check(checkout) == (True, False)


@pytest.mark.parametrize("changed", ["src/a.cpp", ".clang-tidy", "CMakeLists.txt", "packages", "tools/new.h"])
def test_after_a_change_it_looks_again(checkout, changed):
    check(checkout)
    (checkout / changed).write_text("changed\n")
    assert check(checkout) == (True, True)


def test_what_is_not_clean_is_told_every_time(checkout):
    (checkout / "complains").touch()
    assert check(checkout) == (False, True)
    assert check(checkout) == (False, True)
