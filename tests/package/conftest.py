"""The packages, made once for all tests."""
import os
import pathlib
import subprocess
import sys

import pytest

TOP = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TOP / "tests" / "e2e"))

from clean_root import RELEASE, CleanRoot  # noqa: E402
from desktop import PATIENCE, Desktop  # noqa: E402  the virtual desktop of the end-to-end tests


@pytest.fixture(scope="session")
def packages(tmp_path_factory):
    build = pathlib.Path(os.environ.get("KESTREL_TOOLS_DIR", TOP / "build/release/tools")).parent
    out = tmp_path_factory.mktemp("packages")
    made = subprocess.run([TOP / "tools/make_packages", build, out], check=True, stdout=subprocess.PIPE, text=True)
    paths = [pathlib.Path(line) for line in made.stdout.splitlines()]
    assert sorted(paths) == sorted(out.iterdir())
    return paths


@pytest.fixture(scope="session")
def deb(packages):
    return packages[0]


@pytest.fixture(scope="session")
def portable(packages):
    return packages[1]


@pytest.fixture(scope="session")
def tree(deb, tmp_path_factory):
    """What the Debian package holds, extracted."""
    folder = tmp_path_factory.mktemp("tree")
    subprocess.run(["dpkg-deb", "--extract", deb, folder], check=True)
    return folder


@pytest.fixture(scope="session")
def desktop():
    with Desktop() as session:
        yield session


@pytest.fixture(scope="session")
def clean_root():
    """A Debian on which nothing was installed but the packages that the program depends on."""
    reason = CleanRoot.impossible()
    if reason:
        pytest.skip(reason)
    return CleanRoot(TOP / "build" / f"clean-root-{RELEASE}")


@pytest.fixture
def start(desktop):
    """Starts programs on the virtual desktop; at the end of the test none is left and none has complained."""
    programs = []

    def start_one(command, **environment):
        programs.append(subprocess.Popen(command, cwd="/", stderr=subprocess.PIPE, text=True, env={
            "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "DISPLAY": desktop.environment["DISPLAY"],
            "XDG_RUNTIME_DIR": desktop.folder, **environment}))
        return programs[-1]

    yield start_one
    errors = []
    for program in programs:
        program.terminate()
        errors.append(program.communicate(timeout=PATIENCE)[1])
    assert errors == [""] * len(errors)
