import os
import shutil
from pathlib import Path

import pytest
from tools_support import SOURCE, expect_sums, published_sum, sha256


@pytest.fixture(scope="session")
def text():
    """The list of verses that the tests' program folder is made of, as it was before the importer."""
    assembled = Path(os.environ.get("KESTREL_INSTALL_DIR", SOURCE / "build/release/test/kestrel"))
    return assembled.resolve().parent / "text/scripture.tsv"


@pytest.fixture(scope="session")
def corrected(text):
    """What the importer makes of it without corrections."""
    return text.parent.parent / "data/scripture.tsv"


@pytest.fixture
def checkout(tmp_path, text):
    """A checkout of its own, with nothing beside it. For it, the published text is that of the tests."""
    folder = tmp_path / "parent" / "checkout"
    for part in ("tools", "data/text", "data/help", "packaging"):
        shutil.copytree(SOURCE / part, folder / part)
    expect_sums(folder, text)
    return folder


@pytest.fixture
def reference():
    """The real text as it was published."""
    candidates = [os.environ.get("KESTREL_TEXT"), SOURCE / "../shared/data/scripture-pt.tsv"]
    for path in map(Path, filter(None, candidates)):
        if path.is_file() and sha256(path) == published_sum(SOURCE):
            return path
    pytest.skip("The published text is not here.")


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
