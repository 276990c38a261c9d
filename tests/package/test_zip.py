"""The portable zip: unpacked in any zone, its database has the time that the program demands; it needs no Qt of the system."""
import os
import pathlib
import re
import subprocess
import time

import pytest
from desktop import PATIENCE
from wayland import WaylandDesktop

FRAME = "Kestrel Reader: Portuguese Version - Freeware"
SYSTEMS = {"ld-linux-x86-64", "libc", "libm", "libdl", "libpthread", "librt", "libresolv", "libX11", "libX11-xcb", "libxcb",
           "libXau", "libXdmcp", "libbsd", "libmd", "libXcursor", "libXrender", "libXfixes", "libXext"}


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
                     "README.md": "0o644", "LICENSE": "0o644", "COPYRIGHT": "0o644", "qt.conf": "0o644", "lib": "0o755",
                     "plugins": "0o755", "fonts": "0o755", "licences": "0o755"}
    assert [path.name for path in folder.parent.iterdir()] == ["kestrel-reader"]


def test_it_takes_40_megabytes_at_most(portable):
    assert portable.stat().st_size <= 40_000_000


def test_it_holds_the_licence_of_every_library_and_font(unpack):
    folder = unpack("UTC")
    held = {path.name for path in (folder / "licences").iterdir()}
    for library, package in {"libQt6Core.so.6": "libqt6core6", "libicudata.so": "libicu", "libsqlite3.so.0": "libsqlite3-0"}.items():
        assert any(path.name.startswith(library) for path in (folder / "lib").iterdir())
        assert any(name.startswith(package) for name in held)
    assert "fonts-liberation" in held and (folder / "fonts/LiberationSans-Regular.ttf").exists()
    told = (folder / "licences/README").read_text()
    assert all(f"\n{name} " in told for name in held - {"README"})


def loaded(process):
    """What it has loaded, by path."""
    maps = pathlib.Path(f"/proc/{process.pid}/maps").read_text()
    return {pathlib.Path(path) for path in re.findall(r"\S+\.so[.\d]*$", maps, re.M)}


def test_it_takes_nothing_of_the_system_but_the_c_library_and_the_displays(unpack, start, desktop):
    folder = unpack("UTC")
    program = start([folder / "kestrel-reader"], TZ="UTC")
    desktop.wait_for_window(FRAME)
    own = {path.name for path in loaded(program) if folder in path.parents}
    systems = {path.name.split(".so")[0] for path in loaded(program) if folder not in path.parents}
    assert {"libQt6Widgets.so.6", "libqxcb.so", "libsqlite3.so.0", "libfontconfig.so.1"} <= own
    assert systems - SYSTEMS == set()


@pytest.mark.parametrize("zone", ["America/Sao_Paulo", "Asia/Kolkata", "Pacific/Auckland"])
def test_unpacked_in_any_zone_it_starts_there(unpack, start, desktop, zone, monkeypatch):
    folder = unpack(zone)
    monkeypatch.setenv("TZ", zone)
    time.tzset()
    assert time.localtime((folder / "KESTRPT.DAT").stat().st_mtime)[:6] == (1998, 5, 5, 5, 0, 0)
    start([folder / "kestrel-reader"], TZ=zone)
    desktop.wait_for_window(FRAME)


def test_it_starts_on_wayland_too_and_says_nothing(unpack, start, desktop):
    folder = unpack("UTC")
    with WaylandDesktop(desktop) as session:
        names = ("WAYLAND_DISPLAY", "XDG_SESSION_TYPE")
        program = start([folder / "kestrel-reader"], TZ="UTC", DISPLAY="", **{name: session.environment[name] for name in names})
        session.wait_for_focus(FRAME)
        program.terminate()
        assert program.communicate(timeout=PATIENCE)[1] == ""
