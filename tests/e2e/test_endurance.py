"""The program where something runs out, goes away or is taken from it: space, memory, rights, the clipboard, its life."""
import hashlib
import os
import pathlib
import signal
import subprocess
import time

import pytest
from phrases import TWICE, TWICE_FOUND
from reader import Reader

TITLE = "Kestrel Reader: Portuguese Version"
VERSE = "Mt:24:43"
MISSING = "Couldn't find file '{}'. Please run Setup."


# --- A full disk ---

@pytest.fixture
def full_disk(tmp_path):
    """A folder on a disk of its own without a free byte or file."""
    disk = tmp_path / "disk"
    disk.mkdir()
    mount = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=256k,nr_inodes=16,mode=700", "none", disk],
                           capture_output=True, text=True)
    if mount.returncode != 0:
        pytest.skip(f"only root may mount a small disk: {mount.stderr.strip()}")
    try:
        filler = disk / "filler"
        with pytest.raises(OSError, match="No space left"), open(filler, "wb", buffering=0) as file:
            while True:
                file.write(bytes(4096))
        with pytest.raises(OSError, match="No space left"):
            for number in range(100):
                (disk / f"folder{number}").mkdir()
        filled = set(disk.iterdir())
        yield disk
        assert set(disk.iterdir()) == filled
    finally:
        subprocess.run(["umount", "-l", disk], check=True)


def test_a_full_disk_stops_nothing(start, desktop, installed, full_disk):
    folders = ("HOME", "TMPDIR", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME")
    reader = start(installed, **{name: str(full_disk) for name in folders})
    reader.find("frame", "Select Verse for Reading")
    reader.look_up(VERSE)
    desktop.key("ctrl+c")
    reader.wait_for(lambda: desktop.clipboard().startswith(VERSE + "\r\n "), "the verse on the clipboard")
    assert reader.search(TWICE) == TWICE_FOUND


# --- The clipboard ---

def test_a_clipboard_that_others_take_and_leave(reader, desktop):
    """Its owner is killed with the clipboard; others take it again and again while the program copies."""
    reader.look_up(VERSE)
    owner = subprocess.Popen(["xclip", "-selection", "clipboard", "-quiet"], env=desktop.environment,
                             stdin=subprocess.PIPE, stderr=subprocess.DEVNULL)
    owner.stdin.write(b"of another program")
    owner.stdin.close()
    reader.wait_for(lambda: desktop.clipboard() == "of another program", "the other program's text")
    owner.kill()
    owner.wait()
    desktop.key("ctrl+c")
    reader.wait_for(lambda: desktop.clipboard().startswith(VERSE), "the verse on the clipboard")

    taking = "while :; do echo grabbed | xclip -selection clipboard -quiet -loops 1; done"
    # Three at once, so that it is taken too between the program's asking for it and its getting it.
    grabbers = subprocess.Popen(["sh", "-c", f"({taking}) & ({taking}) & {taking}"],
                                env=desktop.environment, stderr=subprocess.DEVNULL, start_new_session=True)

    def copy():
        """Copies, or answers the message that it could not; whether the verse is on the clipboard."""
        if "Clipboard Error" in desktop.run("xdotool", "getactivewindow", "getwindowname", check=False):
            assert reader.text_of_box("Clipboard Error") == "Error 521: Can't open Clipboard"
            desktop.key("Return")
        else:
            desktop.key("ctrl+c")
        return desktop.clipboard().startswith(VERSE)

    try:
        for _ in range(30):
            copy()
    finally:
        os.killpg(grabbers.pid, signal.SIGKILL)
        grabbers.wait()
    reader.wait_for(copy, "the verse on the clipboard again")
    desktop.key("F12")
    reader.find("label", "Mt:24:44", reader.find("frame", "Reading Window -- Mt:24:44"))


# --- Killed ---

def instance_name(program):
    """The name that only one running copy may hold."""
    digest = hashlib.sha256(str(program.resolve()).encode()).hexdigest()[:32]
    return f"kestrel-reader-{os.getuid()}-{digest}"


def is_taken(program):
    return f"@{instance_name(program)}" in pathlib.Path("/proc/net/unix").read_text()


@pytest.mark.parametrize("moment", ["splash", "search", "copy"])
def test_killed_at_any_moment_it_leaves_nothing_and_starts_again(start, desktop, copy, tmp_path, moment):
    home = tmp_path / "home"
    home.mkdir()
    private = {"TMPDIR": str(home), "XDG_CACHE_HOME": str(home), "XDG_CONFIG_HOME": str(home)}
    reader = start(copy, **private)
    if moment == "splash":
        reader.find(None, "Kestrel Reader (PT)")
    else:
        reader.find("frame", "Select Verse for Reading")
        reader.look_up(VERSE)
    if moment == "search":
        desktop.key("F3")
        reader.find("frame", "Advanced Search")
        desktop.type("e")
        send = subprocess.Popen(["xdotool", "key", "Return"], env=desktop.environment)
        time.sleep(0.02)
    elif moment == "copy":
        send = subprocess.Popen(["xdotool", "key", "ctrl+c", "ctrl+c", "ctrl+c"], env=desktop.environment)
        time.sleep(0.02)
    assert is_taken(copy / "kestrel-reader")
    reader.process.kill()
    reader.process.wait()
    if moment != "splash":
        assert send.wait() == 0
    assert not is_taken(copy / "kestrel-reader")
    assert list(home.iterdir()) == []
    assert sorted(path.name for path in copy.iterdir()) == ["KESTREL.HLP", "KESTRPT.DAT", "SEARCH.AVI", "kestrel-reader"]
    again = start(copy, **private)
    again.find("frame", "Select Verse for Reading")
    again.look_up(VERSE)


# --- Time zones ---

ZONES = {  # with the date's own offset: summer time in the last
    "UTC": "+00:00", "America/Sao_Paulo": "-03:00", "Asia/Kolkata": "+05:30", "Pacific/Apia": "-11:00",
    "Australia/Lord_Howe": "+10:30", "Europe/Lisbon": "+01:00",
}


@pytest.mark.parametrize("zone", ZONES)
def test_the_stamp_is_local_time_to_the_second(start, desktop, copy, zone):
    for second, accepted in (("04:59:59", False), ("05:00:00", True), ("05:00:01", False)):
        subprocess.run(["touch", "-m", "-d", f"1998-05-05 {second} {ZONES[zone]}", copy / "KESTRPT.DAT"], check=True)
        reader = start(copy, TZ=zone)
        if accepted:
            reader.find(None, "Kestrel Reader (PT)")  # the splash
            reader.process.kill()
            reader.process.wait()
        else:
            assert reader.text_of_box(TITLE).startswith("Can't continue; file 'KESTRPT.DAT' has been modified.")
            desktop.key("Return")
            assert reader.wait() == 1


# --- What is no readable file ---

@pytest.mark.parametrize("name", ["SEARCH.AVI", "KESTRPT.DAT"])
@pytest.mark.parametrize("kind", ["folder", "pipe", "dangling link", "socket"])
def test_what_is_no_file_counts_as_missing(start, desktop, copy, name, kind):
    path = copy / name
    path.unlink()
    if kind == "folder":
        path.mkdir()
    elif kind == "pipe":
        os.mkfifo(path)
    elif kind == "dangling link":
        path.symlink_to(copy / "nowhere")
    else:
        os.mknod(path, 0o140644)
    reader = start(copy)
    assert reader.text_of_box(TITLE) == MISSING.format(name)
    desktop.key("Return")
    assert reader.wait() == 1


@pytest.mark.parametrize("name", ["SEARCH.AVI", "KESTRPT.DAT"])
def test_a_file_that_may_not_be_read_counts_as_missing(start, desktop, copy, tmp_path, name):
    (copy / name).chmod(0)
    folder = copy
    if os.geteuid() == 0:  # who may read everything, unless that right is given up
        rights = "-dac_override,-dac_read_search"
        folder = tmp_path / "wrapped"
        folder.mkdir()
        script = folder / "kestrel-reader"
        script.write_text(f"#!/bin/sh\nexec setpriv --inh-caps {rights} --bounding-set {rights} {copy}/kestrel-reader\n")
        script.chmod(0o755)
    reader = start(folder)
    assert reader.text_of_box(TITLE) == MISSING.format(name)
    desktop.key("Return")
    assert reader.wait() == 1


# --- Too little memory ---

@pytest.mark.parametrize("megabytes", [40, 100, 108, 116, 124, 132, 160, 230, 236, 240, 400])
def test_with_any_amount_of_memory_it_runs_or_ends(desktop, installed, tmp_path, megabytes):
    """From far too little to enough: an error, or the right verse; never an endless wait. What Qt and the
    system's libraries write to standard error then, and how they end, is theirs."""
    script = tmp_path / "kestrel-reader"
    script.write_text(f"#!/bin/sh\nulimit -v {megabytes * 1024}\nexec {installed}/kestrel-reader\n")
    script.chmod(0o755)
    reader = Reader(desktop, tmp_path)
    try:
        deadline = time.monotonic() + 20
        title = ""
        while reader.process.poll() is None and not title.startswith(f"{TITLE} - Freeware"):
            assert time.monotonic() < deadline, "it neither runs nor ends"
            title = desktop.run("xdotool", "getactivewindow", "getwindowname", check=False)
            if title.strip() == TITLE:  # a message that it cannot go on
                desktop.key("Return")
            time.sleep(0.05)
        if reader.process.poll() is None:
            desktop.key("ctrl+a")
            desktop.type(VERSE)
            desktop.key("Return", "ctrl+c")
            while reader.process.poll() is None and not desktop.clipboard("replace").startswith(VERSE + "\r\n "):
                assert time.monotonic() < deadline, "no verse, no error"
        if reader.process.poll() is not None:
            assert reader.process.returncode != 0
    finally:
        reader.end()
