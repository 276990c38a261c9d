import os
import shutil
from pathlib import Path

import pytest
from tools_support import SOURCE

REFERENCE = SOURCE / "../shared/data"


@pytest.fixture
def checkout(tmp_path):
    """A checkout of its own, with nothing beside it."""
    folder = tmp_path / "parent" / "checkout"
    shutil.copytree(SOURCE / "tools", folder / "tools")
    return folder


@pytest.fixture
def reference():
    if not (REFERENCE / "scripture-pt.tsv").is_file():
        pytest.skip("The reference text does not lie beside the checkout.")
    return REFERENCE


@pytest.fixture
def stand_in():
    if not shutil.which("bible"):
        pytest.skip("bible-kjv is not installed.")


@pytest.fixture
def tools_folder():
    """Where the built tools lie, told by the build."""
    if "KESTREL_TOOLS_DIR" not in os.environ:
        pytest.skip("KESTREL_TOOLS_DIR does not say where the built tools lie.")
    return Path(os.environ["KESTREL_TOOLS_DIR"]).resolve()
