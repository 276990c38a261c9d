"""The script that stamps the installed text does nothing else, whatever it meets."""

import os
import subprocess
import time

import pytest
from tools_support import SOURCE

POSTINST = SOURCE / "packaging/postinst"
STAMP = time.mktime((1998, 5, 5, 5, 0, 0, 0, 0, -1))


@pytest.fixture
def database(tmp_path):
    path = tmp_path / "usr/lib/kestrel-reader/KESTRPT.DAT"
    path.parent.mkdir(parents=True)
    path.write_bytes(b"text")
    return path


def configure(root, *arguments, **environment):
    inherited = {name: value for name, value in os.environ.items() if name != "TZ"}
    return subprocess.run([POSTINST, *(arguments or ["configure"])], capture_output=True, text=True, timeout=20,
                          check=False, env={**inherited, "DPKG_ROOT": str(root), **environment})


@pytest.mark.parametrize("zone", [None, "", "Pacific/Kiritimati", "nonsense", ":/dev/zero", "../../etc/passwd",
                                  "AAA-167:59:59BBB,J1/0,J365/23", "$(touch pwned)", "x" * 100_000])
def test_the_zone_of_whoever_installs_does_not_count(tmp_path, database, zone):
    answer = configure(tmp_path, **({} if zone is None else {"TZ": zone}))
    assert (answer.returncode, answer.stderr) == (0, "")
    assert database.stat().st_mtime == STAMP
    assert database.read_bytes() == b"text"


def test_a_link_in_its_place_is_not_followed(tmp_path, database):
    victim = tmp_path / "victim"
    victim.write_text("of somebody else")
    before = victim.stat().st_mtime_ns
    database.unlink()
    database.symlink_to(victim)
    assert configure(tmp_path).returncode == 0
    assert victim.stat().st_mtime_ns == before


@pytest.mark.parametrize("target", ["/dev/zero", "/nowhere"])
def test_a_link_to_a_device_or_to_nothing_does_no_harm(tmp_path, database, target):
    database.unlink()
    database.symlink_to(target)
    assert configure(tmp_path).returncode == 0
    assert os.readlink(database) == target


def test_a_missing_file_is_not_made(tmp_path, database):
    database.unlink()
    assert configure(tmp_path).returncode == 0
    assert list(database.parent.iterdir()) == []


def test_other_steps_of_an_installation_touch_nothing(tmp_path, database):
    before = database.stat().st_mtime_ns
    for step in (["abort-upgrade", "1.0"], ["triggered", "x"], [""]):
        assert configure(tmp_path, *step).returncode == 0
    assert database.stat().st_mtime_ns == before
