"""One command makes all data files, and does again only what has to be done."""

import os
import shutil
import sqlite3
import time
from datetime import datetime
from zoneinfo import ZoneInfo

import database_sums
import pytest
from tools_support import SOURCE, expect_sums, run, sha256

EXPECTED = database_sums.expected()  # new after every change of the data: tools/expect_database writes it
HEADER = "book\tchapter\tverse\tbefore\tafter\twitness\n"


@pytest.fixture
def make(tmp_path, tools_folder, checkout, text):
    """Makes the data of the tests' text, or of the one that the environment names."""
    def make_data(source=checkout, **environment):
        return run(source / "tools/make_data", tools_folder, tmp_path / "out", tmp_path / "data",
                   **{"KESTREL_TEXT": str(text), **environment})
    return make_data


@pytest.fixture
def unknown(tmp_path, text):
    """Another text than the published one."""
    path = tmp_path / "mine" / "list.tsv"
    path.parent.mkdir()
    path.write_text(text.read_text().replace("abril", "maio", 1))
    return path


def gn_1_1(tmp_path):
    return (tmp_path / "data/scripture.tsv").read_text().splitlines()[0]


def inodes(folder):
    """Files are replaced, never written over, so a file made again has another number."""
    return {path.name: path.stat().st_ino for path in folder.iterdir()}


def test_it_makes_the_data_files(make, tmp_path, checkout, text, corrected):
    (checkout / "data/text/corrections.tsv").write_text(HEADER)
    expect_sums(checkout, text, sha256(corrected))
    answer = make()
    assert answer.returncode == 0, answer.stderr
    assert sorted(os.listdir(tmp_path / "out")) == ["KESTREL.HLP", "KESTRPT.DAT", "SEARCH.AVI"]
    imported = (tmp_path / "data/scripture.tsv").read_text()
    assert imported == corrected.read_text()
    assert (tmp_path / "out/KESTRPT.DAT").stat().st_size == 6834176
    with sqlite3.connect(f"file:{tmp_path}/out/KESTRPT.DAT?mode=ro", uri=True) as database:
        rows = database.execute("SELECT VerseId, KJVerseText FROM NewTestament ORDER BY VerseNumber").fetchall()
    listed = [line.split("\t") for line in imported.splitlines()]
    expected = [(f"{b}:{c}:{v}", " " + t) for b, c, v, t in listed[23145:] + listed[:23145]]
    assert rows == expected


@pytest.mark.skipif(sqlite3.sqlite_version != EXPECTED["sqlite"], reason=f"these are the bytes of {EXPECTED['sqlite']}")
def test_the_database_of_the_published_text_is_the_same_on_every_machine(make, tmp_path, reference):
    alone = tmp_path / "alone" / "published.tsv"  # with nothing beside it
    alone.parent.mkdir()
    shutil.copy(reference, alone)
    answer = make(SOURCE, KESTREL_TEXT=str(alone))
    assert answer.returncode == 0, answer.stderr
    made = database_sums.of_file(tmp_path / "out/KESTRPT.DAT")
    assert database_sums.changed_tables(EXPECTED, made) == [], "if it is meant to be so: tools/expect_database"
    assert made["whole"] == EXPECTED["whole"], "if it is meant to be so: tools/expect_database"


def test_a_second_run_makes_nothing(make, tmp_path, unknown):
    make(KESTREL_TEXT=str(unknown))
    before = inodes(tmp_path / "out"), inodes(tmp_path / "data")
    started = time.monotonic()
    answer = make(KESTREL_TEXT=str(unknown))
    assert time.monotonic() - started < 5
    assert answer.returncode == 0
    assert (answer.stdout, answer.stderr) == ("", "")
    assert (inodes(tmp_path / "out"), inodes(tmp_path / "data")) == before


def test_what_is_gone_or_changed_is_made_again(make, tmp_path, checkout, text, corrected):
    (checkout / "data/text/corrections.tsv").write_text(HEADER)
    expect_sums(checkout, text, sha256(corrected))
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
def test_the_database_gets_its_date_in_local_time_every_time(make, tmp_path, unknown, zone):
    make(KESTREL_TEXT=str(unknown))
    database = tmp_path / "out/KESTRPT.DAT"
    os.utime(database)
    make(KESTREL_TEXT=str(unknown), TZ=zone)
    stamped = datetime.fromtimestamp(database.stat().st_mtime, ZoneInfo(zone))
    assert stamped.replace(tzinfo=None) == datetime(1998, 5, 5, 5, 0, 0)


def test_a_changed_topic_makes_a_new_database(make, checkout, tmp_path, unknown):
    topics = checkout / "data/topics"
    topics.mkdir(parents=True)
    for name in ("miracles", "parables", "prophecy"):
        (topics / f"{name}.txt").write_text("")
    named = {"KESTREL_TEXT": str(unknown)}

    def names():
        with sqlite3.connect(f"file:{tmp_path}/out/KESTRPT.DAT?mode=ro", uri=True) as database:
            return [row[0] for row in database.execute("SELECT Name FROM ClassifiedVerses")]

    (topics / "events.txt").write_text("First\tMt:1:1\n")
    assert make(**named).returncode == 0
    assert names() == ["First"]
    (topics / "events.txt").write_text("Second\tMt:1:1\n")
    assert make(**named).returncode == 0
    assert names() == ["Second"]

    (topics / "events.txt").write_text("Third\tMt:99:1\n")
    answer = make(**named)
    assert answer.returncode == 1
    assert "events.txt, line 1: there is no verse \"Mt:99:1\"" in answer.stderr
    assert "build_database failed" in answer.stderr
    assert names() == ["Second"]


def test_our_corrections_mend_the_published_text_wherever_it_lies(make, checkout, tmp_path, text):
    (checkout / "data/text/corrections.tsv").write_text(HEADER + "Gn\t1\t1\tneve\tgeada\tspelling\n")
    answer = make()
    assert answer.returncode == 1
    assert "the corrected text has the SHA-256" in answer.stderr and "sums.txt" in answer.stderr
    expect_sums(checkout, text, sha256(tmp_path / "data/scripture.tsv"))
    answer = make()
    assert answer.returncode == 0, answer.stderr
    assert "geada ainda cobria" in gn_1_1(tmp_path)


def test_another_text_is_not_corrected(make, tmp_path, unknown):
    answer = make(KESTREL_TEXT=str(unknown))
    assert answer.returncode == 0, answer.stderr
    assert "31102 verses, 0 corrections, typography rules" in answer.stderr
    assert "neve ainda cobria" in gn_1_1(tmp_path)


def test_a_list_beside_the_text_is_used_in_place_of_ours(make, checkout, tmp_path, text):
    beside = tmp_path / "beside"
    beside.mkdir()
    shutil.copy(text, beside / "list.tsv")
    (checkout / "data/text/corrections.tsv").write_text(HEADER + "Gn\t1\t1\tneve\tgeada\tspelling\n")
    (beside / "corrections.tsv").write_text(HEADER + "Gn\t1\t1\tneve\tareia\tspelling\n")
    answer = make(KESTREL_TEXT=str(beside / "list.tsv"))
    assert answer.returncode == 0, answer.stderr
    assert f"{beside}/corrections.tsv is used, which is not the same as data/text/corrections.tsv" in answer.stderr
    assert "areia ainda cobria" in gn_1_1(tmp_path)


def test_the_published_text_and_our_corrections_give_the_sum_that_is_kept(make, tmp_path, reference):
    alone = tmp_path / "alone" / "published.tsv"
    alone.parent.mkdir()
    shutil.copy(reference, alone)
    answer = make(SOURCE, KESTREL_TEXT=str(alone))
    assert answer.returncode == 0, answer.stderr
    assert "31102 verses, 515 corrections" in answer.stderr
    assert sha256(tmp_path / "data/scripture.tsv") == (SOURCE / "data/text/sums.txt").read_text().split()[3]


# --- What is said of the text that is built in ---

def told(tmp_path):
    """The help's credits, what the package says, its licences, and what ./run says."""
    help_text = (tmp_path / "out/KESTREL.HLP").read_text()
    credits = help_text[help_text.index("<h2>The text of the Bible</h2>"):help_text.index("<h2>The maps</h2>")]
    return [credits, *((tmp_path / "data" / name).read_text() for name in ("description.txt", "copyright", "shown.txt"))]


def told_in_portuguese(tmp_path):
    """The same credits in the other half of the help."""
    help_text = (tmp_path / "out/KESTREL.HLP").read_text()
    return help_text[help_text.index("<h2>O texto da Bíblia</h2>"):help_text.index("<h2>Os mapas</h2>")]


def test_of_the_published_text_its_credits_are_told(make, checkout, tmp_path, text, corrected):
    (checkout / "data/text/corrections.tsv").write_text(HEADER)
    expect_sums(checkout, text, sha256(corrected))
    assert make().returncode == 0
    assert all("Bíblia Livre" in part for part in told(tmp_path))
    assert (tmp_path / "out/KESTREL.HLP").read_bytes() == (checkout / "data/help/kestrel.html").read_bytes()


def test_of_another_text_nothing_is_told_that_is_not_known(make, tmp_path, unknown):
    assert make(KESTREL_TEXT=str(unknown)).returncode == 0
    credits, description, licences, _ = told(tmp_path)
    assert "with a text that its builder chose" in credits and "Bíblia Livre" not in credits
    assert "um texto escolhido por quem a montou" in told_in_portuguese(tmp_path)
    assert "Bíblia Livre" not in told_in_portuguese(tmp_path)
    assert "with a text that its builder chose" in description
    assert "with a text that its builder chose" in licences and "CC-BY-3.0-BR" not in licences


def test_the_english_stand_in_makes_a_whole_database_and_says_what_it_is(make, tmp_path, stand_in):
    answer = make(KESTREL_TEXT="")
    assert answer.returncode == 0, answer.stderr
    assert "ENGLISH STAND-IN" in answer.stderr
    with sqlite3.connect(f"file:{tmp_path}/out/KESTRPT.DAT?mode=ro", uri=True) as database:
        rows = database.execute("SELECT count(*), max(VerseNumber) FROM NewTestament").fetchone()
    assert rows == (31102, 31102)
    assert all("King James Version" in part for part in told(tmp_path))
    assert "Bíblia Livre" not in told(tmp_path)[0]
    assert "versão inglesa do Rei Tiago" in told_in_portuguese(tmp_path)
    assert "Bíblia Livre" not in told_in_portuguese(tmp_path)


def test_without_tools_it_says_what_to_do(tmp_path, checkout):
    text = tmp_path / "text.tsv"
    text.write_text("")
    answer = run(checkout / "tools/make_data", tmp_path, tmp_path / "out", tmp_path / "data", KESTREL_TEXT=str(text))
    assert answer.returncode == 1
    assert "Build the tools first" in answer.stderr


def test_without_a_text_it_says_what_to_do(make, tmp_path):
    answer = make(KESTREL_TEXT="/missing.tsv")
    assert answer.returncode == 1
    assert "KESTREL_TEXT names /missing.tsv" in answer.stderr
    assert not (tmp_path / "out/KESTRPT.DAT").exists()
