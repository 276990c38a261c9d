"""The four ways to the text, and what is said when one does not lead there."""

import shutil

from tools_support import publish, published_sum, run


def find(checkout, cache, **environment):
    return run(checkout / "tools/find_text", cache, **environment)


def test_a_named_text_comes_first(checkout, tmp_path):
    beside = checkout.parent / "shared/data/scripture-pt.tsv"
    beside.parent.mkdir(parents=True)
    beside.write_text("beside")
    named = tmp_path / "named.tsv"
    named.write_text("named")
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT=str(named))
    assert (answer.returncode, answer.stdout, answer.stderr) == (0, f"{named}\n", "")


def test_a_named_text_that_is_missing_is_not_replaced_by_another(checkout, tmp_path):
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT="/missing.tsv")
    assert answer.returncode == 1
    assert answer.stdout == ""
    assert "KESTREL_TEXT names /missing.tsv, which is not a file" in answer.stderr


def test_the_text_beside_the_checkout_comes_second(checkout, tmp_path):
    beside = checkout.parent / "shared/data/scripture-pt.tsv"
    beside.parent.mkdir(parents=True)
    beside.write_text("beside")
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL="file:///missing/")
    assert (answer.returncode, answer.stdout) == (0, f"{beside}\n")


def test_the_published_text_comes_third_and_is_kept(checkout, tmp_path, text):
    url = publish(text, tmp_path / "books").as_uri()
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL=url)
    kept = tmp_path / "cache/published/scripture-pt.tsv"
    assert (answer.returncode, answer.stdout) == (0, f"{kept}\n")
    assert f"fetching the published text from {url}/" in answer.stderr
    assert kept.read_bytes() == text.read_bytes()

    shutil.rmtree(tmp_path / "books")
    again = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL=url)
    assert again.stdout == answer.stdout
    assert "fetching" not in again.stderr


def test_a_kept_text_that_was_changed_is_fetched_again(checkout, tmp_path, text):
    url = publish(text, tmp_path / "books").as_uri()
    kept = tmp_path / "cache/published/scripture-pt.tsv"
    kept.parent.mkdir(parents=True)
    kept.write_text("changed")
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL=url)
    assert answer.stdout == f"{kept}\n"
    assert kept.read_bytes() == text.read_bytes()


def test_a_published_text_of_another_checksum_is_named_and_not_used(checkout, tmp_path, text, stand_in):
    books = publish(text, tmp_path / "books")
    genesis = books / "Gen.json"
    genesis.write_text(genesis.read_text().replace("abril", "maio", 1))
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL=books.as_uri())
    assert "has the SHA-256" in answer.stderr and published_sum(checkout) in answer.stderr
    assert answer.stdout.endswith("scripture-en.tsv\n")
    assert not (tmp_path / "cache/published/scripture-pt.tsv").exists()


def test_a_book_that_is_no_json_is_named(checkout, tmp_path, stand_in):
    (tmp_path / "books").mkdir()
    (tmp_path / "books/Gen.json").write_text("<html>")
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL=(tmp_path / "books").as_uri())
    assert "Gen.json is not a book in the published form" in answer.stderr
    assert answer.stdout.endswith("scripture-en.tsv\n")


def test_the_english_stand_in_comes_last_and_loudly(checkout, tmp_path, stand_in, text):
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL="file:///missing/")
    assert "file:///missing/Gen.json cannot be fetched" in answer.stderr
    assert "ENGLISH STAND-IN" in answer.stderr
    path = tmp_path / "cache/stand-in/scripture-en.tsv"
    assert (answer.returncode, answer.stdout) == (0, f"{path}\n")
    lines = path.read_text(encoding="utf-8").splitlines()
    assert len(lines) == 31102
    keys = [line.rsplit("\t", 1)[0] for line in lines]
    assert keys == [line.rsplit("\t", 1)[0] for line in text.read_text(encoding="utf-8").splitlines()]
    assert sum(" the " in line for line in lines) > 15000


def test_without_any_text_it_says_what_to_do(checkout, tmp_path):
    answer = find(checkout, tmp_path / "cache", KESTREL_TEXT_URL="file:///missing/", PATH="/missing")
    assert answer.returncode == 1
    assert answer.stdout == ""
    assert "bible-kjv is not installed" in answer.stderr
    assert "set KESTREL_TEXT to a list, or install bible-kjv" in answer.stderr
