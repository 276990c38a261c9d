"""The pictures that ./run leaves where there is no display."""
import os
import shutil
import subprocess

from tools_support import SOURCE


def parts_that_differ(one, other):
    """In how many of 256 parts two pictures differ."""
    look = ["convert", one, other, "-compose", "difference", "-composite", "-scale", "16x16!", "-threshold", "5%", "gray:-"]
    return sum(value > 0 for value in subprocess.run(look, check=True, capture_output=True).stdout)


def test_each_shows_what_its_name_says(tmp_path):
    (tmp_path / "tools").mkdir()
    shutil.copy(SOURCE / "tools/show_without_display", tmp_path / "tools")
    subprocess.run([tmp_path / "tools/show_without_display", os.environ["KESTREL_INSTALL_DIR"]], check=True)
    splash, selection, reading = (tmp_path / f"build/screenshots/{name}.png" for name in ("splash", "selection", "reading"))
    assert parts_that_differ(splash, selection) > 50
    assert parts_that_differ(selection, reading) > 10
