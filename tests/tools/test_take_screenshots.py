"""Pictures of the dark desktop are dark, or none are saved."""
import importlib.machinery
import importlib.util
import subprocess

import pytest
from tools_support import SOURCE


@pytest.fixture
def tool(monkeypatch):
    monkeypatch.setattr("sys.dont_write_bytecode", True)
    loader = importlib.machinery.SourceFileLoader("take_screenshots", str(SOURCE / "tools/take_screenshots"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("take_screenshots", loader))
    loader.exec_module(module)
    return module


def test_a_light_picture_is_refused_with_what_to_install(tool, tmp_path):
    light = tmp_path / "light.png"
    subprocess.run(["convert", "-size", "20x20", "xc:#efefef", light], check=True)
    (tmp_path / "another.png").write_bytes(light.read_bytes())
    with pytest.raises(SystemExit) as ended:
        tool.refuse_light(light)
    assert "nothing was saved: install Debian's packages qt6-gtk-platformtheme" in ended.value.code
    assert list(tmp_path.iterdir()) == []


def test_a_dark_one_with_a_pale_page_is_taken(tool, tmp_path):
    dark = tmp_path / "dark.png"
    page = ["-fill", "#ffffe0", "-draw", "rectangle 0,0 19,6"]
    subprocess.run(["convert", "-size", "20x20", "xc:#303030", *page, dark], check=True)
    tool.refuse_light(dark)
