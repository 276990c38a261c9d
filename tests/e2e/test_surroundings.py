"""Surroundings that make no sense, or mean harm: the program starts all the same, or says what is wrong and ends."""
import os
import pathlib
import sqlite3
import subprocess
import sys
import time

import pytest
from reader import Reader
from test_endurance import instance_name

TITLE = "Kestrel Reader: Portuguese Version"
STRANGER = 65534


# --- What the environment says of scaling ---

@pytest.mark.parametrize("name, value", [
    ("QT_SCALE_FACTOR", "0"), ("QT_SCALE_FACTOR", "nan"), ("QT_SCALE_FACTOR", "inf"), ("QT_SCALE_FACTOR", "-1"),
    ("QT_SCALE_FACTOR", "1e9"), ("QT_SCREEN_SCALE_FACTORS", "1000"), ("QT_SCREEN_SCALE_FACTORS", "screen=nan;1"),
    ("QT_FONT_DPI", "100000"), ("QT_FONT_DPI", "-5")])
def test_a_scale_without_sense_is_left_out(start, installed, desktop, name, value):
    reader = start(installed, **{name: value})
    desktop.wait_for_focus(TITLE)
    frame = reader.find("frame", starts=TITLE)
    box = frame.queryComponent().getExtents(0)
    assert 600 < box.width <= 1280 and 400 < box.height <= 900


def test_a_scale_with_sense_is_kept(start, installed, desktop):
    reader = start(installed, QT_SCALE_FACTOR="1.25")
    desktop.wait_for_focus(TITLE)
    reader.open_about()
    assert "Geometry: 625x" in desktop.run("xdotool", "getactivewindow", "getwindowgeometry")


@pytest.mark.parametrize("least_or_most", ["0.25", "8"])
def test_it_starts_at_the_bounds_of_sense(start, installed, least_or_most):
    assert start(installed, QT_SCALE_FACTOR=least_or_most).find("frame", starts=TITLE)


@pytest.fixture
def screen_of_100000_dots(desktop):
    """A desktop whose own settings make no sense; QT_FONT_DPI is one program's."""
    desktop.run("xprop", "-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER", "Xft.dpi:\t100000\n")
    yield
    desktop.run("xprop", "-root", "-remove", "RESOURCE_MANAGER")


@pytest.mark.usefixtures("screen_of_100000_dots")
def test_a_screen_without_sense_is_named(desktop, installed):
    reader = Reader(desktop, installed)
    _, errors = reader.process.communicate(timeout=20)
    assert reader.process.returncode == 1
    assert errors == "kestrel-reader: the screen's dots to an inch (Xft.dpi) make no sense\n"


# --- Few files ---

@pytest.mark.parametrize("files", [6, 8, 10, 11, 12, 13, 16])
def test_with_too_few_files_to_open_it_says_so(desktop, installed, tmp_path, files):
    script = tmp_path / "kestrel-reader"
    script.write_text(f"#!/bin/sh\nulimit -n {files}\nexec {installed}/kestrel-reader\n")
    script.chmod(0o755)
    reader = Reader(desktop, tmp_path)
    _, errors = reader.process.communicate(timeout=20)
    assert reader.process.returncode == 1
    assert errors == "kestrel-reader: cannot open 16 files at one time; raise the limit (ulimit -n)\n"


def test_with_just_enough_files_to_open_it_starts(start, installed, tmp_path):
    script = tmp_path / "kestrel-reader"
    script.write_text(f"#!/bin/sh\nulimit -n 19\nexec {installed}/kestrel-reader\n")
    script.chmod(0o755)
    reader = start(tmp_path)
    reader.look_up("Mt:24:43")


# --- One copy, and other users ---

HOLD = """
import os, socket, sys, time
os.setuid(int(sys.argv[1]))
holder = socket.socket(socket.AF_UNIX)
holder.bind("\\0" + sys.argv[2])
holder.listen()
print("held", flush=True)
time.sleep(600)
"""


@pytest.mark.skipif(os.geteuid() != 0, reason="only root can become another user")
def test_another_user_who_takes_the_name_first_locks_nobody_out(start, copy, desktop):
    stranger = subprocess.Popen([sys.executable, "-c", HOLD, str(STRANGER), instance_name(copy / "kestrel-reader")],
                                stdout=subprocess.PIPE, text=True)
    try:
        assert stranger.stdout.readline() == "held\n"
        first = start(copy)
        first.find("frame", "Select Verse for Reading")
        second = start(copy)
        assert second.text_of_box("Kestrel Reader (PT) is already running")
        desktop.key("Return")
        assert second.wait() == 1
    finally:
        stranger.kill()
        stranger.wait()


# --- What is started ---

def test_a_link_is_opened_in_the_programs_directory(start, copy, tmp_path, desktop):
    programs, record = tmp_path / "some programs", tmp_path / "record"
    programs.mkdir()
    opener = programs / "xdg-open"
    opener.write_text(f"#!/bin/sh\n{{ echo \"$1\"; pwd -P; }} >{record}.part\nmv {record}.part {record}\n")
    opener.chmod(0o755)
    reader = start(copy, PATH=f"{programs}:{os.environ['PATH']}")
    desktop.wait_for_focus(TITLE)
    about = reader.open_about()
    reader.click(reader.find("link", within=about))
    reader.wait_for(record.exists, "the link to be opened")
    assert record.read_text().splitlines() == ["mailto:author@kestrel-reader.example", str(copy.resolve())]


# --- The last message ---

def processor_seconds(process):
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def test_while_the_last_message_stands_the_process_idles(start, copy, desktop):
    path = copy / "KESTRPT.DAT"
    with sqlite3.connect(path) as database:
        database.execute("DROP TABLE ClassifiedVerses")
    database.close()
    subprocess.run(["touch", "-m", "-d", "1998-05-05 05:00:00", path], check=True)
    reader = start(copy)
    reader.open_selection()
    reader.key("F8")
    text = reader.text_of_box(TITLE)
    assert "ClassifiedVerses" in text
    before = processor_seconds(reader.process)
    time.sleep(2)
    assert processor_seconds(reader.process) - before < 0.2
    desktop.key("Return")
    assert reader.wait() == 1
