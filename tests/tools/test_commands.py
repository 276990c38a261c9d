"""The commands of a checkout: wherever it lies, whoever runs them, and when they are disturbed. What is compiled comes from the
build that is tested, by way of a stub for cmake; nothing is installed."""

import os
import shutil
import signal
import subprocess
import time

import pytest
from tools_support import SOURCE, as_at_a_terminal

COMMANDS = ("setup", "run", "packages", "data/topics")
ASSEMBLED = ["KESTREL.HLP", "KESTRPT.DAT", "SEARCH.AVI", "kestrel-reader"]
# In Python, which an interruption ends whatever it is at; the shell may miss one between two of its commands.
CMAKE = """#!/usr/bin/python3
import os, pathlib, shutil, sys, time
if sys.argv[1] != "--build":
    sys.exit()
print("[1/2] one", flush=True)
pathlib.Path("started").touch()
time.sleep(int(os.environ.get("STUB_SECONDS", "0")))
print("[2/2] two", flush=True)
tools = pathlib.Path("build/release/tools")
tools.mkdir(parents=True, exist_ok=True)
for name in ("import_text", "build_database", "make_clip"):
    shutil.copy(f"{os.environ['KESTREL_TOOLS_DIR']}/{name}", tools)
shutil.copy(os.environ["KESTREL_PROGRAM"], "build/release/kestrel-reader")
"""


def write_program(path, content):
    path.write_text(content)
    path.chmod(0o755)


@pytest.fixture
def stubs(tmp_path):
    """A folder of programs that stand before the real ones: all packages are installed, and nothing is compiled."""
    folder = tmp_path / "stubs"
    folder.mkdir()
    write_program(folder / "cmake", CMAKE)
    write_program(folder / "dpkg-query", "#!/bin/sh\nprintf installed\n")
    return folder


@pytest.fixture
def environment(stubs, text, tools_folder, tmp_path):
    clean = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    return {**clean, "PATH": f"{stubs}:{os.environ['PATH']}", "KESTREL_TEXT": str(text),
            "KESTREL_PROGRAM": str(tools_folder.parent / "kestrel-reader"), "CDPATH": f".:{tmp_path}:/usr"}


@pytest.fixture
def place(checkout):
    """Puts the whole checkout to a path."""
    def put(path):
        for part in COMMANDS:
            copy = shutil.copytree if (SOURCE / part).is_dir() else shutil.copy
            copy(SOURCE / part, checkout / part)
        (checkout / "data/text/sums.txt").write_text("published none\ncorrected none\n")  # so that no text is corrected
        path.parent.mkdir(parents=True, exist_ok=True)
        return checkout.rename(path)
    return put


def run_setup(folder, environment, **more):
    return subprocess.run(["./setup"], cwd=folder, env={**environment, **more}, capture_output=True, text=True, check=False)


def assembled(folder):
    return sorted(path.name for path in (folder / "build/kestrel").iterdir())


@pytest.mark.parametrize("name", ["it's an odd, & (coração)", "-dash"])
def test_a_checkout_may_lie_anywhere(place, environment, tmp_path, name):
    folder = place(tmp_path / "usr" / name)
    # by a relative name, which CDPATH also leads to from elsewhere
    answer = subprocess.run([f"usr/{name}/run"], cwd=tmp_path, env=environment, capture_output=True, text=True, check=False)
    assert answer.returncode == 0, answer.stderr
    assert assembled(folder) == ASSEMBLED
    assert all((folder / "build/screenshots" / f"{shot}.png").read_bytes().startswith(b"\x89PNG")
               for shot in ("splash", "selection", "reading"))

    # It says in a few lines what it does, and ends with the text that it shows.
    said = answer.stdout.splitlines()
    assert said[-1] == (SOURCE / "data/text/other/shown.txt").read_text().rstrip("\n")
    assert "Making the data" in said
    assert "Building 2 of 2 (release)" in answer.stderr
    assert len(said) + len(answer.stderr.splitlines()) < 15


@pytest.mark.parametrize("sign", '"$;*?#<>[]\\')
def test_where_nothing_can_be_built_it_says_so_at_once(place, environment, tmp_path, sign):
    folder = place(tmp_path / f"a{sign}b")
    answer = run_setup(folder, environment)
    assert answer.returncode == 1
    assert answer.stderr == f"setup: CMake cannot build in a folder whose path holds {sign}; move the checkout: {folder}\n"
    assert not (folder / "build").exists()


def test_two_at_once_take_turns(place, environment, tmp_path):
    folder = place(tmp_path / "checkout")
    start = {"cwd": folder, "env": {**environment, "STUB_SECONDS": "1"}, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE,
             "text": True}
    both = [subprocess.Popen(["./setup"], **start) for _ in range(2)]
    said = [process.communicate() for process in both]
    assert [process.returncode for process in both] == [0, 0], said
    assert sum("Another ./setup is at work here" in output for output, _ in said) == 1
    assert assembled(folder) == ASSEMBLED


@pytest.mark.parametrize("sign", [signal.SIGINT, signal.SIGKILL])
def test_interrupted_it_goes_on_the_next_time(place, environment, tmp_path, sign):
    folder = place(tmp_path / "checkout")
    process = subprocess.Popen(["./setup"], cwd=folder, env={**environment, "STUB_SECONDS": "60"}, start_new_session=True,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, preexec_fn=as_at_a_terminal)
    while not (folder / "started").exists():
        assert process.poll() is None
        time.sleep(0.02)
    os.killpg(process.pid, sign)
    assert process.wait(20) != 0
    answer = run_setup(folder, environment)
    assert answer.returncode == 0, answer.stderr
    assert "Another" not in answer.stdout
    assert assembled(folder) == ASSEMBLED


def test_data_that_were_cut_off_are_made_again(place, environment, tmp_path):
    folder = place(tmp_path / "checkout")
    assert run_setup(folder, environment).returncode == 0
    whole = {name: (folder / "build/kestrel" / name).read_bytes() for name in ASSEMBLED}
    for path in [*(folder / "build/kestrel").iterdir(), folder / "build/data/scripture.tsv", folder / "build/data/stamps.json"]:
        path.write_bytes(path.read_bytes()[:100])
    answer = run_setup(folder, environment)
    assert answer.returncode == 0, answer.stderr
    assert {name: (folder / "build/kestrel" / name).read_bytes() for name in ASSEMBLED} == whole


@pytest.mark.parametrize("megabytes, named", [(1, "Cannot write"), (5, "build_database failed"), (11, "No space left")])
def test_a_full_disk_is_named_and_room_helps(place, environment, tmp_path, megabytes, named):
    folder = place(tmp_path / "checkout")
    disk = folder / "build"
    disk.mkdir()
    mount = ["mount", "-t", "tmpfs", "-o", f"size={megabytes}m", "none", disk]
    if subprocess.run(mount, capture_output=True, check=False).returncode != 0:
        pytest.skip("Only root may mount a small disk.")
    try:
        # The compiled tools lie elsewhere, so that the data find no room.
        (disk / "release").symlink_to(tmp_path / "release")
        (tmp_path / "release").mkdir()
        answer = run_setup(folder, environment)
        assert answer.returncode == 1
        assert named in answer.stderr
        assert "Traceback" not in answer.stderr
        subprocess.run(["mount", "-o", "remount,size=200m", disk], check=True)
        answer = run_setup(folder, environment)
        assert answer.returncode == 0, answer.stderr
        assert assembled(folder) == ASSEMBLED
    finally:
        subprocess.run(["umount", "-l", disk], check=True)


# --- Packages ---

NEEDED = ("bash", "sh", "sed", "sort", "dirname", "env", "cat", "flock", "mkdir")


@pytest.fixture
def user(place, tmp_path, environment):
    """Runs the installer as somebody for whom only the programs of a folder are there; what those were called for."""
    folder = place(tmp_path / "checkout")
    programs = tmp_path / "programs"
    programs.mkdir()
    for name in NEEDED:
        (programs / name).symlink_to(shutil.which(name))
    record = tmp_path / "record"
    write_program(programs / "dpkg-query", '#!/bin/sh\nfor last; do :; done\n[ "$last" = cmake ] || printf installed\n')

    def run_as(uid, *recorded):
        write_program(programs / "id", f"#!/bin/sh\necho {uid}\n")
        for name in recorded:
            next_one = 'exec "$@"' if name == "sudo" else "exit 0"
            write_program(programs / name, f'#!/bin/sh\necho {name} "$*" >>{record}\n{next_one}\n')
        answer = subprocess.run([folder / "tools/install_packages", "run"], env={"PATH": str(programs)}, cwd="/",
                                capture_output=True, text=True, check=False)
        return answer, record.read_text().splitlines() if record.exists() else []
    return run_as


def test_root_installs_what_is_missing_and_no_more(user):
    answer, called = user(0, "apt-get", "dpkg", "sudo")
    assert answer.returncode == 0, answer.stderr
    assert answer.stdout == "Installing 1 Debian packages and what they need: cmake\n"
    assert [line.split()[0] for line in called] == ["apt-get", "dpkg", "apt-get"]
    assert called[-1].endswith("install -y --no-install-recommends cmake")


def test_a_plain_user_installs_by_sudo(user):
    answer, called = user(1000, "apt-get", "dpkg", "sudo")
    assert answer.returncode == 0, answer.stderr
    assert [line.split()[0] for line in called] == ["sudo", "apt-get", "sudo", "dpkg", "sudo", "apt-get"]


def test_a_plain_user_without_sudo_is_told_what_to_install(user):
    answer, called = user(1000, "apt-get", "dpkg")
    assert answer.returncode == 1
    assert answer.stderr == "install_packages: not root and no sudo; run as root: apt-get install cmake\n"
    assert called == []


def test_without_apt_it_is_told_what_to_install(user):
    answer, _ = user(0)
    assert answer.returncode == 1
    assert "install these packages by hand: cmake" in answer.stderr


def test_no_listed_package_is_named_after_a_release():
    names = [line for path in (SOURCE / "packages").iterdir() for line in path.read_text().splitlines() if line[:1] != "#"]
    assert len(names) == len(set(names)) > 30
    parts = {name: name.replace("x86-64", "").split("-") for name in names}  # a processor's name, no release
    assert [name for name in names if any(part.isdigit() and int(part) > 9 for part in parts[name])] == []
