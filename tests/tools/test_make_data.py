"""One command makes all data files, and does again only what has to be done."""

import hashlib
import os
import shutil
import sqlite3
import time
from datetime import datetime
from zoneinfo import ZoneInfo

import pytest
from tools_support import SOURCE, run

# Of the whole database, as one version of SQLite writes it; new after every change of its data.
DATABASE_SHA256 = "4d75d0d0e0a20a845ffe1b076e862f047148d1549e56d175548a1683901d2fbb"
ENGINE = "3.40.1"
CORRECTED_SHA256 = "977b2848297e2cca07927de47ebf0ea2ef69ac4b4527432151336dd400b0a3b9"


@pytest.fixture
def make(tmp_path, tools_folder):
    def make_data(program=SOURCE / "tools/make_data", **environment):
        return run(program, tools_folder, tmp_path / "out", tmp_path / "data", **environment)
    return make_data


def inodes(folder):
    """Files are replaced, never written over, so a file made again has another number."""
    return {path.name: path.stat().st_ino for path in folder.iterdir()}


def test_it_makes_the_data_files_of_the_reference_text(make, tmp_path, reference):
    answer = make()
    assert answer.returncode == 0, answer.stderr
    assert sorted(os.listdir(tmp_path / "out")) == ["KESTRPT.DAT", "SEARCH.AVI"]
    text = (tmp_path / "data/scripture.tsv").read_bytes()
    assert hashlib.sha256(text).hexdigest() == CORRECTED_SHA256
    assert (tmp_path / "out/KESTRPT.DAT").stat().st_size == 6834176
    with sqlite3.connect(f"file:{tmp_path}/out/KESTRPT.DAT?mode=ro", uri=True) as database:
        rows = database.execute("SELECT VerseId, KJVerseText FROM NewTestament ORDER BY VerseNumber").fetchall()
    listed = [line.split("\t") for line in text.decode().splitlines()]
    expected = [(f"{b}:{c}:{v}", " " + t) for b, c, v, t in listed[23145:] + listed[:23145]]
    assert rows == expected


@pytest.mark.skipif(sqlite3.sqlite_version != ENGINE, reason=f"these are the bytes of {ENGINE}")
def test_the_database_is_the_same_on_every_machine(make, tmp_path, reference):
    make()
    assert hashlib.sha256((tmp_path / "out/KESTRPT.DAT").read_bytes()).hexdigest() == DATABASE_SHA256


def test_a_second_run_makes_nothing(make, tmp_path, reference):
    make()
    before = inodes(tmp_path / "out"), inodes(tmp_path / "data")
    started = time.monotonic()
    answer = make()
    assert time.monotonic() - started < 5
    assert answer.returncode == 0
    assert (answer.stdout, answer.stderr) == ("", "")
    assert (inodes(tmp_path / "out"), inodes(tmp_path / "data")) == before


def test_what_is_gone_or_changed_is_made_again(make, tmp_path, reference):
    make()
    whole = (tmp_path / "out/KESTRPT.DAT").read_bytes()
    shutil.rmtree(tmp_path / "out")
    make()
    assert (tmp_path / "out/KESTRPT.DAT").read_bytes() == whole
    clip = inodes(tmp_path / "out")["SEARCH.AVI"]

    (tmp_path / "out/KESTRPT.DAT").write_bytes(whole[:-1] + b"x")
    make()
    assert (tmp_path / "out/KESTRPT.DAT").read_bytes() == whole
    assert inodes(tmp_path / "out")["SEARCH.AVI"] == clip


@pytest.mark.parametrize("zone", ["UTC", "Europe/Lisbon", "America/Sao_Paulo", "Asia/Kolkata", "Pacific/Auckland"])
def test_the_database_gets_its_date_in_local_time_every_time(make, tmp_path, reference, zone):
    make()
    database = tmp_path / "out/KESTRPT.DAT"
    os.utime(database)
    make(TZ=zone)
    stamped = datetime.fromtimestamp(database.stat().st_mtime, ZoneInfo(zone))
    assert stamped.replace(tzinfo=None) == datetime(1998, 5, 5, 5, 0, 0)


def test_a_changed_topic_makes_a_new_database(make, checkout, tmp_path, reference):
    program = checkout / "tools/make_data"
    topics = checkout / "data/topics"
    topics.mkdir(parents=True)
    for name in ("miracles", "parables", "prophecy"):
        (topics / f"{name}.txt").write_text("")
    named = {"KESTREL_TEXT": str(reference / "scripture-pt.tsv")}

    def names():
        with sqlite3.connect(f"file:{tmp_path}/out/KESTRPT.DAT?mode=ro", uri=True) as database:
            return [row[0] for row in database.execute("SELECT Name FROM ClassifiedVerses")]

    (topics / "events.txt").write_text("First\tMt:1:1\n")
    assert make(program, **named).returncode == 0
    assert names() == ["First"]
    (topics / "events.txt").write_text("Second\tMt:1:1\n")
    assert make(program, **named).returncode == 0
    assert names() == ["Second"]

    (topics / "events.txt").write_text("Third\tMt:99:1\n")
    answer = make(program, **named)
    assert answer.returncode == 1
    assert "events.txt, line 1: there is no verse \"Mt:99:1\"" in answer.stderr
    assert "build_database failed" in answer.stderr
    assert names() == ["Second"]


def test_without_corrections_beside_the_text_it_says_so(make, tmp_path, reference):
    shutil.copy(reference / "scripture-pt.tsv", tmp_path / "alone.tsv")
    answer = make(KESTREL_TEXT=str(tmp_path / "alone.tsv"))
    assert answer.returncode == 0
    assert "typography rules alone: no corrections.tsv lies beside" in answer.stderr


def test_corrections_that_come_later_are_applied(make, tmp_path, reference):
    shutil.copy(reference / "scripture-pt.tsv", tmp_path / "list.tsv")
    make(KESTREL_TEXT=str(tmp_path / "list.tsv"))
    shutil.copy(reference / "corrections.tsv", tmp_path / "corrections.tsv")
    make(KESTREL_TEXT=str(tmp_path / "list.tsv"))
    text = (tmp_path / "data/scripture.tsv").read_bytes()
    assert hashlib.sha256(text).hexdigest() == CORRECTED_SHA256


def test_the_english_stand_in_makes_a_whole_database(make, checkout, tmp_path, stand_in):
    answer = make(checkout / "tools/make_data")
    assert answer.returncode == 0, answer.stderr
    assert "ENGLISH STAND-IN" in answer.stderr
    with sqlite3.connect(f"file:{tmp_path}/out/KESTRPT.DAT?mode=ro", uri=True) as database:
        rows = database.execute("SELECT count(*), max(VerseNumber) FROM NewTestament").fetchone()
    assert rows == (31102, 31102)


def test_without_tools_it_says_what_to_do(tmp_path):
    text = tmp_path / "text.tsv"
    text.write_text("")
    answer = run(SOURCE / "tools/make_data", tmp_path, tmp_path / "out", tmp_path / "data", KESTREL_TEXT=str(text))
    assert answer.returncode == 1
    assert "Build the tools first" in answer.stderr


def test_without_a_text_it_says_what_to_do(make, tmp_path):
    answer = make(KESTREL_TEXT="/missing.tsv")
    assert answer.returncode == 1
    assert "KESTREL_TEXT names /missing.tsv" in answer.stderr
    assert not (tmp_path / "out/KESTRPT.DAT").exists()
