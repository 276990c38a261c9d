"""Which tables of a database changed."""
import sqlite3

import database_sums
import pytest


@pytest.fixture
def sums(tmp_path):
    def of_tables(**tables):
        path = tmp_path / "database"
        path.unlink(missing_ok=True)
        with sqlite3.connect(path) as database:
            for name, rows in tables.items():
                database.execute(f"CREATE TABLE {name} (a, b)")
                database.executemany(f"INSERT INTO {name} VALUES (?, ?)", rows)
        database.close()
        return database_sums.of_file(path)
    return of_tables


def test_the_same_rows_have_the_same_sums(sums):
    assert sums(Maps=[(1, b"x")], Verses=[]) == sums(Maps=[(1, b"x")], Verses=[])


@pytest.mark.parametrize("tables, changed", [
    ({"Maps": [(1, b"y")], "Verses": [("a", "b")]}, ["Maps"]),
    ({"Maps": [(1, b"x")], "Verses": [("a", "b"), ("c", "d")]}, ["Verses"]),
    ({"Verses": [("a", "b")]}, ["Maps"]),
    ({"Maps": [(1, b"x")], "Verses": [("a", "b")], "Words": []}, ["Words"]),
    ({"Maps": [(1, b"x")], "Verses": [("a", "b")]}, []),
])
def test_a_table_that_changed_came_or_went_is_named(sums, tables, changed):
    before = sums(Maps=[(1, b"x")], Verses=[("a", "b")])
    assert database_sums.changed_tables(before, sums(**tables)) == changed
