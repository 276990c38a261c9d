"""The portable zip: unpacked in any zone, its database has the time that the program demands."""
import os
import subprocess
import time

import pytest

FRAME = "Kestrel Reader: Portuguese Version - Freeware"


@pytest.fixture
def unpack(portable, tmp_path):
    def unpack_in(zone):
        subprocess.run(["unzip", "-q", portable, "-d", tmp_path], check=True, env={**os.environ, "TZ": zone})
        return tmp_path / "kestrel-reader"

    return unpack_in


def test_it_holds_these_files_and_no_others(unpack):
    folder = unpack("UTC")
    modes = {path.name: oct(path.stat().st_mode & 0o777) for path in folder.iterdir()}
    assert modes == {"kestrel-reader": "0o755", "KESTRPT.DAT": "0o644", "SEARCH.AVI": "0o644", "KESTREL.HLP": "0o644",
                     "README.md": "0o644", "LICENSE": "0o644", "COPYRIGHT": "0o644"}
    assert [path.name for path in folder.parent.iterdir()] == ["kestrel-reader"]


@pytest.mark.parametrize("zone", ["America/Sao_Paulo", "Asia/Kolkata", "Pacific/Auckland"])
def test_unpacked_in_any_zone_it_starts_there(unpack, start, desktop, zone, monkeypatch):
    folder = unpack(zone)
    monkeypatch.setenv("TZ", zone)
    time.tzset()
    assert time.localtime((folder / "KESTRPT.DAT").stat().st_mtime)[:6] == (1998, 5, 5, 5, 0, 0)
    start([folder / "kestrel-reader"], TZ=zone)
    desktop.wait_for_window(FRAME)
