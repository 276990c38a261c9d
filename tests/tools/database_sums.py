"""The expected bytes of the database of the published text, as one version of SQLite writes them, and those of its tables."""
import hashlib
import json
import sqlite3
from pathlib import Path

EXPECTED = Path(__file__).with_name("database_sums.json")


def of_file(path):
    """The sums of a database: of the whole file, and of the rows of each table."""
    with sqlite3.connect(f"file:{path}?mode=ro&immutable=1", uri=True) as database:
        names = [row[0] for row in database.execute("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")]
        tables = {}
        for name in names:
            rows = hashlib.sha256()
            for row in database.execute(f'SELECT * FROM "{name}" ORDER BY rowid'):
                rows.update(repr(row).encode())
            tables[name] = rows.hexdigest()
    whole = hashlib.sha256(Path(path).read_bytes()).hexdigest()
    return {"sqlite": sqlite3.sqlite_version, "whole": whole, "tables": tables}


def expected():
    return json.loads(EXPECTED.read_text(encoding="utf-8"))


def changed_tables(before, after):
    """Tables whose rows differ, that are new or that are gone."""
    names = sorted(before["tables"].keys() | after["tables"].keys())
    return [name for name in names if before["tables"].get(name) != after["tables"].get(name)]
