"""What ./dev runs: the tests that a name means, and those of what was changed."""
import importlib.machinery
import importlib.util
import subprocess

import pytest
from tools_support import SOURCE


@pytest.fixture
def tool(monkeypatch):
    monkeypatch.setattr("sys.dont_write_bytecode", True)
    loader = importlib.machinery.SourceFileLoader("run_tests", str(SOURCE / "tools/run_tests"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("run_tests", loader))
    loader.exec_module(module)
    return module


@pytest.fixture
def checkout(tool, monkeypatch, tmp_path):
    """A repository with a branch of its own, its main one commit behind."""
    def git(*arguments):
        identity = ["-c", "user.name=a", "-c", "user.email=a@example.org", "-c", "init.defaultBranch=main"]
        subprocess.run(["git", "-C", tmp_path, *identity, *arguments], check=True, capture_output=True)

    def write(name, text):
        (tmp_path / name).parent.mkdir(parents=True, exist_ok=True)
        (tmp_path / name).write_text(text)

    monkeypatch.setattr(tool, "TOP", tmp_path)
    git("init")
    for name in ("src/read/Chapter.cpp", "src/main.cpp", "data/topics/events.txt", "README.md", "tests/windows.tsv"):
        write(name, "1\n")
    git("add", ".")
    git("commit", "-m", "first")
    git("checkout", "-b", "work")
    return git, write


def test_tests_are_found_by_folder_file_and_name(tool):
    found = {(case.folder, case.file.stem, case.name) for case in tool.cases()}
    assert ("read", "stepping_test", "Stepping.WrapsAtBothEndsByEquality") in found
    assert ("tools", "test_run_tests", "test_tests_are_found_by_folder_file_and_name") in found


def test_nothing_changed_means_no_folder(tool, checkout):
    assert tool.changed_folders() == set()


def test_what_is_committed_edited_or_new_counts_as_changed(tool, checkout):
    git, write = checkout
    write("src/read/Chapter.cpp", "2\n")
    git("commit", "-am", "second")
    write("data/topics/events.txt", "2\n")
    write("tests/maps/new_test.cpp", "new\n")
    write("src/main.cpp", "2\n")
    assert tool.changed_folders() == {"read", "topics", "maps"}


def test_the_table_of_windows_means_the_tests_that_go_through_them(tool, checkout):
    _, write = checkout
    write("tests/windows.tsv", "2\n")
    assert tool.changed_folders() == {"app", "fonts", "help"}


def test_a_name_that_matches_nothing_lists_the_folders(tool, monkeypatch, capsys):
    class NoBuild:
        tests = {}

        def __init__(self, _):
            pass

        def named(self, _):
            return []

    monkeypatch.setattr(tool, "Build", NoBuild)
    monkeypatch.setattr("sys.argv", ["run_tests", "xyzzy"])
    with pytest.raises(SystemExit) as ended:
        tool.main()
    assert "no test matches 'xyzzy'. Folders:" in ended.value.code and " read " in ended.value.code
