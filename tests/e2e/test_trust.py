"""The program in surroundings that are not its own choice, and what it leaves behind in them."""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

import pytest
from phrases import TWICE, TWICE_FOUND, TWICE_KEYS
from reader import install

VERSE = "Mt:24:43"
FONTS = pathlib.Path("/usr/share/fonts/truetype/liberation")


@pytest.fixture
def wrapped(installed, tmp_path):
    """A folder whose program starts the installed one by way of a command."""
    def make(*command, folder=installed):
        script = tmp_path / "wrapped" / "kestrel-reader"
        script.parent.mkdir()
        script.write_text(f"#!/bin/sh\nexec {' '.join(map(str, command))} {folder}/kestrel-reader\n")
        script.chmod(0o755)
        return script.parent
    return make


def frame(reader):
    """The frame, once it has the keys: the window manager gives them to it after it is shown."""
    found = reader.find("frame", starts="Kestrel Reader: Portuguese Version")
    reader.desktop.wait_for_focus(found.name)
    return found


def first_result(reader, desktop, key):
    """Opens the first verse of the list."""
    desktop.key("Down", "Return")
    reader.find("frame", f"Reading Window -- {key}")


# --- It writes nothing ---

WRITING = re.compile(r"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_TMPFILE")
CHANGING = ("creat", "mkdir", "mkdirat", "mknod", "mknodat", "rename", "renameat", "renameat2", "unlink", "unlinkat",
            "rmdir", "link", "linkat", "symlink", "symlinkat", "truncate", "ftruncate", "chmod", "fchmodat", "chown",
            "lchown", "fchownat", "utime", "utimes", "utimensat", "futimesat", "setxattr", "removexattr")
NO_FILES = ("/dev/", "/proc/")  # devices, and the kernel's own pages


def changes(trace):
    """The calls of a trace that succeed and open for writing, make, change or remove something in a file system."""
    found = []
    for line in trace.splitlines():
        call = re.match(r"(?:\d+ +)?(\w+)\((.*)\) += (-?\d+)", line)
        if not call or int(call[3]) < 0:
            continue
        path = re.search(r'"((?:[^"\\]|\\.)*)"', call[2])
        writes = call[1] in CHANGING or (call[1] in ("open", "openat", "openat2") and WRITING.search(call[2]))
        if writes and not (path and path[1].startswith(NO_FILES)):
            found.append(line)
    return found


def test_the_trace_reader_sees_what_it_should():
    assert changes('12 openat(AT_FDCWD, "/a/b", O_RDONLY|O_CLOEXEC) = 3') == []
    assert changes('12 openat(AT_FDCWD, "/dev/null", O_RDWR) = 3') == []
    assert changes('12 openat(AT_FDCWD, "/a/b", O_WRONLY|O_CREAT, 0600) = -1 EACCES (Permission denied)') == []
    for line in ('12 openat(AT_FDCWD, "/a/b", O_WRONLY|O_CREAT, 0600) = 3', '12 mkdir("/a", 0700) = 0',
                 'unlink("/a/b") = 0', '7  renameat2(AT_FDCWD, "/a", AT_FDCWD, "/b", 0) = 0',
                 '12 openat(AT_FDCWD, "/a\\"/dev/", O_RDWR) = 3'):
        assert changes(line) == [line]


def test_it_writes_no_file_from_start_to_end(start, desktop, wrapped, tmp_path):
    log = tmp_path / "trace"
    # -D: the program keeps the process it was started as, and the tracer watches from the side
    reader = start(wrapped("strace", "-D", "-f", "-qq", "-s", "4096", "-o", log, "-e", "trace=%file,ftruncate"))
    frame(reader)
    reader.look_up(VERSE)
    reader.open_chapter("Mt:24:")
    assert reader.search(TWICE) == TWICE_FOUND
    reader.open_map()
    desktop.key("F1")
    desktop.wait_for_window("Help")
    desktop.run("xdotool", "search", "--onlyvisible", "--name", "^Kestrel Reader: Portuguese", "windowactivate", "--sync")
    desktop.key("alt+f", "x")
    assert reader.wait() == 0
    time.sleep(0.2)  # the tracer's last lines
    trace = log.read_text(errors="replace")
    assert "KESTRPT.DAT" in trace and "KESTREL.HLP" in trace and "SEARCH.AVI" in trace
    assert changes(trace) == []


# --- Locales ---

@pytest.fixture(scope="module")
def locales(tmp_path_factory):
    """A folder with locales of other letters, digits and directions."""
    folder = tmp_path_factory.mktemp("locales")
    for name in ("pt_BR", "tr_TR", "ar_EG", "de_DE"):
        subprocess.run(["localedef", "-i", name, "-f", "UTF-8", folder / f"{name}.UTF-8"], check=True)
    return folder


@pytest.mark.parametrize("locale", ["C", "pt_BR.UTF-8", "tr_TR.UTF-8", "ar_EG.UTF-8", "de_DE.UTF-8"])
def test_every_locale_finds_the_same_verses(start, desktop, installed, locales, locale):
    reader = start(installed, LC_ALL=locale, LOCPATH=str(locales))
    frame(reader)
    reader.look_up("mt:24:43", VERSE)
    reader.look_up("TI:1:1", "Ti:1:1")  # i and I are no pair in Turkish
    assert reader.search(TWICE) == TWICE_FOUND
    first_result(reader, desktop, TWICE_KEYS[0])


# --- Other users, folders, fonts ---

NOBODY = 65534


@pytest.fixture
def locked(installed):
    """An installation that everybody can read and nobody can write, and a private folder of another user."""
    with tempfile.TemporaryDirectory() as name:
        top = pathlib.Path(name)
        folder = install(installed, top / "kestrel")
        (top / "run").mkdir(mode=0o700)
        if os.geteuid() == 0:
            os.chown(top / "run", NOBODY, NOBODY)
        for path in (*folder.iterdir(), folder, top):
            path.chmod(0o555)
        yield folder


def test_a_folder_that_cannot_be_written_serves_another_user(locked, start, desktop, wrapped):
    is_root = os.geteuid() == 0  # who else cannot become another user
    other = ("setpriv", "--reuid", NOBODY, "--regid", NOBODY, "--clear-groups") if is_root else ()
    reader = start(wrapped(*other, folder=locked), HOME="/nonexistent", XDG_RUNTIME_DIR=str(locked.parent / "run"),
                   DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")  # the bus serves one user
    desktop.wait_for_window("^Kestrel Reader: Portuguese")
    desktop.run("xdotool", "search", "--name", "^Kestrel Reader: Portuguese", "windowactivate", "--sync")
    desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
    desktop.key("F2")
    time.sleep(0.3)  # a traced or odd program is slow to follow
    desktop.key("ctrl+a")
    desktop.type(VERSE)
    desktop.key("Return", "ctrl+c")
    reader.wait_for(lambda: desktop.clipboard().startswith(VERSE + "\r\n "), "the verse on the clipboard")
    user = os.stat(f"/proc/{reader.process.pid}").st_uid
    assert user == (NOBODY if is_root else os.geteuid())


@pytest.mark.parametrize("font", ["LiberationSerif-Regular.ttf", None])
def test_it_starts_with_one_font_and_with_none(start, installed, tmp_path, font):
    fonts = tmp_path / "fonts"
    fonts.mkdir()
    if font:
        shutil.copy(FONTS / font, fonts)
    config = tmp_path / "fonts.conf"
    config.write_text(f"<fontconfig><dir>{fonts}</dir><cachedir>{tmp_path}/cache</cachedir></fontconfig>")
    reader = start(installed, FONTCONFIG_FILE=str(config))
    frame(reader)
    reader.look_up(VERSE)


# --- Files that change under it ---

@pytest.mark.parametrize("damage", ["noise", "pictures"])
def test_a_damaged_clip_does_not_stop_a_search(start, copy, damage):
    clip = copy / "SEARCH.AVI"
    bytes_ = bytearray(clip.read_bytes())
    if damage == "noise":
        bytes_ = bytearray((i * 7919 >> 3) & 255 for i in range(len(bytes_)))
    else:  # inside every picture, after its headers
        for picture in re.finditer(rb"\xff\xda", bytes(bytes_)):
            bytes_[picture.end() + 40:picture.end() + 60] = b"\xff\x01" * 10
    assert bytes_ != clip.read_bytes()
    clip.write_bytes(bytes_)
    reader = start(copy)
    frame(reader)
    assert reader.search(TWICE) == TWICE_FOUND


def test_files_removed_after_the_start_are_not_missed(start, copy):
    reader = start(copy)
    frame(reader)
    for name in ("KESTRPT.DAT", "SEARCH.AVI"):
        (copy / name).unlink()
    reader.look_up(VERSE)
    assert reader.search(TWICE) == TWICE_FOUND
    reader.open_map()
    reader.look_up("Rv", "Rv:1:1")


@pytest.mark.parametrize("size, content", [(0, b""), (5000, b""), (None, b"\0"), (None, b"x")],
                         ids=["emptied", "cut off", "zeros", "noise"])
def test_a_database_spoilt_in_place_leaves_the_verses_and_ends_the_study_aids_with_a_message(
        start, copy, desktop, size, content):
    reader = start(copy)
    frame(reader)
    reader.look_up(VERSE)
    path = copy / "KESTRPT.DAT"
    if size is None:
        with path.open("r+b") as file:
            file.write(content * path.stat().st_size)
    else:
        os.truncate(path, size)
    reader.look_up("Rv", "Rv:1:1")
    assert reader.search(TWICE) == TWICE_FOUND
    reader.open_selection()  # in the other windows F8 is not theirs
    reader.key("F8")
    text = reader.text_of_box("Kestrel Reader: Portuguese Version")
    assert re.search("malformed|not a database|disk I/O", text), text
    desktop.key("Return")
    assert reader.wait() == 1


def test_killed_in_the_splash_it_starts_again(start, copy):
    first = start(copy)
    first.find(None, "Kestrel Reader (PT)")
    first.process.kill()
    first.process.wait()
    frame(start(copy))
