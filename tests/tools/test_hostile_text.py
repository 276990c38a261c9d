"""Whatever a text holds that a reader names: one clear error, and no half-made file; a database that stood stays."""

import os
import random
import time

import pytest
from tools_support import run

VERSE = 5  # the line that is spoilt, counted from 0: Gn:1:6


@pytest.fixture
def make(tmp_path, tools_folder, checkout):
    """Makes the data of a text, within limits that a machine's memory need not set; says how it ended."""
    def make_data(path):
        return run("prlimit", "--as=2000000000", "timeout", "300", checkout / "tools/make_data", tools_folder,
                   tmp_path / "out", tmp_path / "data", KESTREL_TEXT=str(path))
    return make_data


def spoil_line(change):
    def spoil(lines):
        lines[VERSE] = change(lines[VERSE])
    return spoil


HOSTILE = {
    "NUL": (spoil_line(lambda line: line[:-3] + b"\0" + line[-3:]), "line 6: there is a control character."),
    "escape sequence": (spoil_line(lambda line: line + b"\x1b[2J"), "line 6: there is a control character."),
    "binary": (spoil_line(lambda line: line[:6] + bytes(range(128, 256))), "line 6: this is not valid UTF-8."),
    "line without end": (spoil_line(lambda line: line + b"a" * 3_000_000), "line 6: the line is too long."),
    "long verse": (spoil_line(lambda line: line + b" a" * 5_000), "line 6: Gn:1:6 is too long;"),
    "missing columns": (spoil_line(lambda line: b"Gn\t1\t6"), "line 6: there are 3 columns,"),
    "empty verse": (spoil_line(lambda line: b"Gn\t1\t6\t"), "line 6: Gn:1:6 has no text."),
    "CRLF": (lambda lines: lines.__setitem__(slice(None), [line + b"\r" for line in lines]),
             "line 1: there is a carriage return;"),
    "BOM": (lambda lines: lines.__setitem__(0, b"\xef\xbb\xbf" + lines[0]), "line 1: there is a byte order mark;"),
    "key twice": (lambda lines: lines.insert(VERSE, lines[VERSE]), "line 7: Gn:1:6 is repeated or out of order;"),
    "verse missing": (lambda lines: lines.pop(VERSE), "line 6: Gn:1:6 is missing;"),
    "verse too many": (lambda lines: lines.append(lines[0]), "line 31103: Gn:1:1 stands after the last verse."),
    "nothing": (lambda lines: lines.clear(), "line 1: Gn:1:1 is missing;"),
    "statements": (spoil_line(lambda line: b"Gn'); DROP TABLE NewTestament; --\t1\t6\tText"),
                   "line 6: there is no verse Gn'); DROP TABLE NewTestament; --:1:6."),
}


def only_error(answer):
    """What is said besides make_data's own last line, which names the step."""
    assert answer.returncode == 1, answer
    assert "Traceback" not in answer.stderr
    *errors, last = answer.stderr.splitlines()
    assert last.startswith("make_data: "), answer.stderr
    assert len(errors) == 1 and len(errors[0]) < 300, answer.stderr
    return errors[0]


def files(folder):
    return sorted(path.name for path in folder.rglob("*") if path.is_file())


@pytest.mark.parametrize("name", HOSTILE)
def test_a_hostile_text_is_refused_where_it_is_wrong(make, tmp_path, text, name):
    spoil, error = HOSTILE[name]
    lines = text.read_bytes().split(b"\n")[:-1]
    spoil(lines)
    path = tmp_path / "hostile.tsv"
    path.write_bytes(b"".join(line + b"\n" for line in lines))
    assert only_error(make(path)).startswith(f"import_text: {path}, {error}")
    assert files(tmp_path / "out") == files(tmp_path / "data") == []


def test_noise_is_refused(make, tmp_path):
    path = tmp_path / "noise.tsv"
    path.write_bytes(random.Random(1).randbytes(5_000_000))
    assert only_error(make(path)).startswith(f"import_text: {path}, line 1: ")
    assert files(tmp_path / "out") == files(tmp_path / "data") == []


def endless_pipe(path):
    os.mkfifo(path)


def huge(path):
    path.touch()
    os.truncate(path, 8 << 30)  # without blocks on the disk


@pytest.mark.parametrize("put, error", [
    (endless_pipe, "is not a file"), (lambda path: path.symlink_to("/dev/zero"), "is not a file"),
    (lambda path: path.mkdir(), "is not a file"), (lambda path: path.symlink_to(path), "is not a file"),
    (huge, "is larger than any Bible")], ids=["pipe", "endless file", "folder", "link to itself", "huge"])
def test_what_is_no_text_at_all_is_named_at_once(make, tmp_path, put, error):
    path = tmp_path / "text.tsv"
    put(path)
    before = time.monotonic()
    assert only_error(make(path)) == f"find_text: KESTREL_TEXT names {path}, which {error}. Correct or unset it."
    assert time.monotonic() - before < 30
    assert files(tmp_path / "out") == files(tmp_path / "data") == []


def test_a_hostile_text_leaves_what_was_made_before(make, tmp_path, text):
    sound = tmp_path / "sound.tsv"
    sound.write_text(text.read_text().replace("abril", "maio", 1))  # another text than the published one
    assert make(sound).returncode == 0
    kept = {path: path.read_bytes() for path in [*(tmp_path / "out").iterdir(), *(tmp_path / "data").iterdir()]}
    path = tmp_path / "hostile.tsv"
    path.write_bytes(text.read_bytes()[:-40])
    only_error(make(path))
    assert {path: path.read_bytes() for path in [*(tmp_path / "out").iterdir(), *(tmp_path / "data").iterdir()]} == kept


@pytest.mark.parametrize("put", [lambda path: path.write_bytes(b"\xff\0noise\n"), huge], ids=["noise", "huge"])
def test_a_hostile_list_of_corrections_beside_the_text_is_refused(make, tmp_path, text, put):
    (tmp_path / "mine").mkdir()
    path = tmp_path / "mine" / "list.tsv"
    path.write_bytes(text.read_bytes())
    put(path.with_name("corrections.tsv"))
    answer = make(path)
    assert answer.returncode == 1
    assert "Traceback" not in answer.stderr
    assert str(path.with_name("corrections.tsv")) in answer.stderr
    assert files(tmp_path / "out") == files(tmp_path / "data") == []
