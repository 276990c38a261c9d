"""The Debian package: what it holds, what the validators say, and its life on a clean Debian."""
import gzip
import os
import pathlib
import re
import shutil
import stat
import struct
import subprocess

import pytest

TOP = pathlib.Path(__file__).resolve().parents[2]
APPLICATION = "io.github.kestrelreader.KestrelReader"
PROGRAM = "usr/lib/kestrel-reader"
DATABASE = f"/{PROGRAM}/KESTRPT.DAT"
SIDES = [16, 22, 24, 32, 48, 64, 128, 256, 512]
FRAME = "Kestrel Reader: Portuguese Version - Freeware"

FILES = {
    "usr/bin/kestrel-reader": "../lib/kestrel-reader/kestrel-reader",
    f"{PROGRAM}/kestrel-reader": 0o755,
    f"{PROGRAM}/KESTRPT.DAT": 0o644,
    f"{PROGRAM}/SEARCH.AVI": 0o644,
    f"{PROGRAM}/KESTREL.HLP": 0o644,
    f"usr/share/applications/{APPLICATION}.desktop": 0o644,
    f"usr/share/metainfo/{APPLICATION}.metainfo.xml": 0o644,
    "usr/share/man/man1/kestrel-reader.1.gz": 0o644,
    "usr/share/doc/kestrel-reader/copyright": 0o644,
    "usr/share/doc/kestrel-reader/changelog.gz": 0o644,
    **{f"usr/share/icons/hicolor/{side}x{side}/apps/{APPLICATION}.png": 0o644 for side in SIDES},
}


def field(deb, name):
    return subprocess.run(["dpkg-deb", "--field", deb, name], check=True, capture_output=True, text=True).stdout.strip()


def silent(*command):
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    assert (result.returncode, result.stdout) == (0, "")


def test_it_holds_these_files_and_no_others(tree):
    held = {}
    for path in tree.rglob("*"):
        if path.is_symlink():
            held[str(path.relative_to(tree))] = os.readlink(path)
        elif path.is_dir():
            assert stat.S_IMODE(path.stat().st_mode) == 0o755, path
        else:
            held[str(path.relative_to(tree))] = stat.S_IMODE(path.stat().st_mode)
    assert held == FILES


def test_every_icon_has_its_size(tree):
    for side in SIDES:
        head = (tree / f"usr/share/icons/hicolor/{side}x{side}/apps/{APPLICATION}.png").read_bytes()[:24]
        assert struct.unpack(">II", head[16:24]) == (side, side)


def test_it_depends_on_the_libraries_and_the_font(deb):
    depends = field(deb, "Depends")
    for package in ("libqt6widgets6", "libsqlite3-0", "fonts-liberation"):
        assert package in depends


def test_version_is_the_same_everywhere(deb, tree):
    version = field(deb, "Version")
    metainfo = (tree / f"usr/share/metainfo/{APPLICATION}.metainfo.xml").read_text(encoding="utf-8")
    assert re.search(r'<release version="([^"]+)"', metainfo)[1] == version
    changelog = gzip.decompress((tree / "usr/share/doc/kestrel-reader/changelog.gz").read_bytes()).decode()
    assert changelog.startswith(f"kestrel-reader ({version}) ")
    assert f"\n## {version}\n" in (TOP / "CHANGELOG.md").read_text(encoding="utf-8")
    assert f"VERSION {version} " in (TOP / "CMakeLists.txt").read_text(encoding="utf-8")
    manual = gzip.decompress((tree / "usr/share/man/man1/kestrel-reader.1.gz").read_bytes()).decode()
    assert f'"Kestrel Reader {version}"' in manual


def test_it_says_which_text_it_holds(deb, tree):
    told = TOP / "data/text" / (TOP / "build/data/kind.txt").read_text().strip()
    description = (told / "description.txt").read_text(encoding="utf-8")
    assert description.split() == field(deb, "Description").split()[-len(description.split()):]
    licences = (tree / "usr/share/doc/kestrel-reader/copyright").read_text(encoding="utf-8")
    assert licences.endswith("\n" + (told / "copyright").read_text(encoding="utf-8"))


def test_lintian_has_no_error_and_no_warning(deb):
    silent("lintian", "--allow-root", "--fail-on", "error,warning", deb)


def test_the_desktop_entry_is_valid(tree):
    silent("desktop-file-validate", tree / f"usr/share/applications/{APPLICATION}.desktop")


def test_the_metainfo_is_valid(tree):
    metainfo = tree / f"usr/share/metainfo/{APPLICATION}.metainfo.xml"
    subprocess.run(["appstreamcli", "validate", "--no-net", metainfo], check=True)
    subprocess.run(["appstreamcli", "validate-tree", "--no-net", tree], check=True)


@pytest.fixture
def installed(clean_root, deb):
    """The package installed as a user does it, by someone whose own zone is not the computer's."""
    clean_root.set_zone("America/Sao_Paulo")
    shutil.copy(deb, clean_root.folder / "tmp/package.deb")
    clean_root.run("apt-get", "install", "-y", "-qq", "--no-install-recommends", "--reinstall", "/tmp/package.deb",
                   TZ="Asia/Tokyo")
    yield clean_root
    clean_root.purge("kestrel-reader")
    (clean_root.folder / "tmp/package.deb").unlink()


def local_time(root):
    """The database's time as one sees it on the computer."""
    return root.run("date", "-r", DATABASE, "+%Y-%m-%d %H:%M:%S %Z")


def test_installed_on_a_clean_debian_it_starts(installed, start, desktop):
    assert local_time(installed) == "1998-05-05 05:00:00 -03\n"
    assert installed.run("dpkg", "--verify", "kestrel-reader") == ""
    start(installed.command("kestrel-reader"), XDG_RUNTIME_DIR="/root")
    desktop.wait_for_window(FRAME)


def test_after_a_move_to_another_zone_it_is_stamped_anew(installed, start, desktop):
    installed.set_zone("Pacific/Auckland")
    assert local_time(installed) == "1998-05-05 20:00:00 NZST\n"
    installed.run("dpkg-reconfigure", "kestrel-reader")
    assert local_time(installed) == "1998-05-05 05:00:00 NZST\n"
    start(installed.command("kestrel-reader"), XDG_RUNTIME_DIR="/root")
    desktop.wait_for_window(FRAME)


def test_removed_it_leaves_nothing(installed):
    assert DATABASE in installed.traces("kestrpt")
    installed.purge("kestrel-reader")
    assert installed.traces("kestr") == []
