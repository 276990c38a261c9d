"""Each rule is broken in a small house, and its message says what to do."""
import pathlib
import subprocess
import sys

import pytest

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import documents  # noqa: E402
import floors  # noqa: E402
import formatting  # noqa: E402
import names  # noqa: E402
import subjects  # noqa: E402
import systems  # noqa: E402
import windows  # noqa: E402

SOUND = {
    "CMakeLists.txt": "kestrel_library(store LINK SQLite::SQLite3)\nkestrel_library(read QT LINK store)\n"
                      "kestrel_library(search LINK store)\nkestrel_library(help_window FOLDER help QT LINK read)\n",
    "tests/CMakeLists.txt": "".join(f"kestrel_test({folder} LINK app)\n" for folder in ("store", "read", "search", "help")),
    "docs/architecture.md": "src/store/ src/read/ src/search/ src/help/\n",
    "src/store/Verses.h": "#pragma once\n",
    "src/store/Sqlite.h": '#pragma once\n\n#include "store/Verses.h"\n#include <sqlite3.h>\n',
    "src/read/Chapter.h": '#pragma once\n\n#include "store/Verses.h"\n#include <QString>\n',
    "src/search/Query.h": "#pragma once\n",
    "src/help/Help.h": '#pragma once\n\n#include "read/Chapter.h"\n#include "store/Verses.h"\n',
    "tests/read/chapter_test.cpp": "TEST(Chapter, IsGathered) {}\n",
    "src/read/ChildRead.h": "#pragma once\n\nclass ChildRead : public Form {};\n",
    "src/read/TextWindow.h": "#pragma once\n\nclass TextWindow : public QDialog {};\n",
    "src/read/frmDN.h": "#pragma once\n\nclass frmDN : public TextWindow {};\n",
    "tests/windows.tsv": "# class\nChildRead\tchild\tReturn\tReading\nfrmDN\tmodal\tF4\tSupport\n",
    "data/help/kestrel.html": '<section id="ChildRead"></section><section id="frmDN"></section>\n',
    "tools/make_data": "#!/bin/sh\n",
    "tools/clip/Clip.h": "#pragma once\n",
    "bench/compare": "#!/bin/sh\n",
}


@pytest.fixture
def house(tmp_path):
    for name, text in SOUND.items():
        write(tmp_path, name, text)
    for script in ("tools/make_data", "bench/compare"):
        (tmp_path / script).chmod(0o755)
    (tmp_path / ".clang-format").write_text("BasedOnStyle: LLVM\nIndentWidth: 4\n")
    return tmp_path


def write(top, name, text):
    (top / name).parent.mkdir(parents=True, exist_ok=True)
    (top / name).write_text(text)


def told(rule, top):
    return "\n".join(rule.breaches(top)).replace(f"{top}/", "")


@pytest.mark.parametrize("rule", [documents, floors, formatting, names, systems, windows])
def test_a_sound_house_keeps_them(house, rule):
    assert told(rule, house) == ""


@pytest.mark.parametrize("rule, name, text, says", [
    (floors, "src/stats/Stats.h", "#pragma once\n", "src/stats/ has no line kestrel_library(stats ...) in CMakeLists.txt"),
    (floors, "src/stats/Stats.h", "#pragma once\n", "src/stats/ is not in the picture of the house, docs/architecture.md"),
    (floors, "src/stats/Stats.h", "#pragma once\n", "src/stats/ has no line kestrel_test(stats ...) in tests/CMakeLists.txt"),
    (floors, "src/store/Up.h", '#include "read/Chapter.h"\n', "src/store/Up.h:1: store/ must not include read/"),
    (floors, "src/search/Beside.h", '#include "read/Chapter.h"\n', "src/search/Beside.h:1: search/ must not include read/"),
    (floors, "src/read/Sql.h", "#include <sqlite3.h>\n", "src/read/Sql.h:1: SQLite's header is included in store/ only"),
    (formatting, "src/store/Crooked.h", "int  crooked ;\n", "src/store/Crooked.h:1: not formatted; tools/format_sources mends it"),
    (names, "tools/new_script", "#!/bin/sh\n", "tools/new_script: begins with #! but cannot be run: chmod +x"),
    (names, "tools/make_data", '#!/bin/sh\n\ncd "$(dirname "$0")"\n', "tools/make_data:3: CDPATH leads this cd astray"),
    (names, "tests/read/more_test.cpp", "TEST(Chapter, isGathered)\n", "Chapter.isGathered: a test is named by a sentence"),
    (names, "tests/read/more_test.cpp", "TEST(ChapterTest, IsGathered)\n", "ChapterTest.IsGathered: a test is named by a sentence"),
    (names, "tests/read/more_test.cpp", "    QApplication::setActiveWindow(nullptr);\n", "more_test.cpp:1: a later Qt deprecates"),
    (names, "src/read/Mirror.cpp", "return image.mirrored();\n", "src/read/Mirror.cpp:1: a later Qt deprecates .mirrored("),
    (names, "tests/read/ChapterTests.cpp", "TEST(Chapter, Is)\n", "tests/read/ChapterTests.cpp: a file of tests is named after"),
    (names, "src/read/Long.h", "//\n" * 2000, "src/read/Long.h: 2000 lines, more than"),
    (names, "tests/e2e/test_long.py", "#\n" * 451, "tests/e2e/test_long.py: 451 lines, more than 450"),
    (names, "tools/make_data", "#!/bin/sh\n" + "#\n" * 450, "tools/make_data: 451 lines, more than 450"),
    (systems, "src/read/Where.cpp", "#ifdef _WIN32\n", "src/read/Where.cpp:1: _WIN32 is one system's; it stands in a file named after"),
    (systems, "src/read/Where.cpp", "#include <unistd.h>\n", "unistd is one system's; it stands in a file named after that, WhereLinux.cpp"),
    (systems, "src/read/Where.h", "#if defined(Q_OS_LINUX)\n", "src/read/Where.h:1: Q_OS_LINUX is one system's"),
    (windows, "src/read/Stats.h", "class Stats : public Form\n", "the window Stats has no row in tests/windows.tsv"),
    (windows, "src/read/Stats.h", "class Stats final : public TextWindow\n", "the window Stats has no page in the help"),
    (windows, "tests/windows.tsv", "ChildRead\nfrmDN\nGone\tchild\n", "tests/windows.tsv: there is no window Gone"),
    (documents, "docs/new.md", "see `src/store/Gone.h`\n", "docs/new.md:1: there is no src/store/Gone.h"),
    (documents, "docs/new.md", "see [it](0001-gone.md)\n", "docs/new.md:1: there is no 0001-gone.md"),
    (documents, "docs/new.md", "`Chapter.IsLost`\n", "docs/new.md:1: there is no test Chapter.IsLost"),
    (documents, "docs/new.md", "`Verses.*`\n", "docs/new.md:1: there is no test Verses.*"),
    (documents, "docs/behaviour.md", "| It is odd | see below |\n", "docs/behaviour.md:1: names no test that holds this"),
    (documents, "docs/behaviour.md", "| `It` is odd | |\n", "docs/behaviour.md:1: names no test that holds this"),
])
def test_a_breach_is_named_with_what_to_do(house, rule, name, text, says):
    write(house, name, text)
    assert says in told(rule, house)


def test_a_file_named_after_a_system_may_have_what_only_that_has(house):
    write(house, "src/read/WhereLinux.cpp", "#include <unistd.h>\n")
    write(house, "src/read/WhereWindows.cpp", "#ifdef _WIN32\n#include <windows.h>\n")
    assert told(systems, house) == ""


def test_a_document_may_name_what_is_there(house):
    write(house, "README.md", "`src/read/Chapter.h`, `tools/make_data`, `Chapter.IsGathered`, `Chapter.*`, `KESTRPT.DAT`\n")
    assert told(documents, house) == ""


@pytest.mark.parametrize("subject, sound", [
    ("read: Step over the seam", True),
    ("docs, tests: Say which test holds what", True),
    ("check_rules.py: Tell", True),
    ("Step over the seam", False),
    ("read: step over the seam", False),
    ("read: " + "A" * 67, False),
])
def test_subjects_of_commits_are_judged(subject, sound):
    assert (subjects.breach(subject) is None) == sound


@pytest.fixture
def commit(house):
    def make(subject, date="2027-01-01T00:00:00Z"):
        identity = ["-c", "user.name=a", "-c", "user.email=a@example.org"]
        subprocess.run(["git", "-C", house, *identity, "commit", "-q", "--allow-empty", "-m", subject, "--date", date], check=True)

    subprocess.run(["git", "-C", house, "init", "-q"], check=True)
    return make


def test_a_behaviour_may_be_held_by_a_test_or_a_file_of_them(house):
    rows = "| What binds | Held by |\n|---|---|\n| Odd | `Chapter.IsGathered` |\n| So | `tests/read/chapter_test.cpp` |\n"
    write(house, "docs/behaviour.md", rows)
    assert told(documents, house) == ""


def test_a_commit_to_imitate_is_in_the_history(house, commit):
    commit("read: Step over the seam; tests: Say so")
    write(house, "CONTRIBUTING.md", '**A step.** *Imitate:* "read: Step over\nthe seam".\n')
    assert told(documents, house) == ""
    write(house, "CONTRIBUTING.md", '**A step.** *Imitate:* "read: Leap over the seam".\n')
    assert told(documents, house) == 'CONTRIBUTING.md: no commit\'s subject holds "read: Leap over the seam"'


def test_without_the_whole_history_no_commit_is_missed(house, commit, tmp_path_factory):
    commit("read: Step over the seam")
    commit("read: Stop")
    shallow = tmp_path_factory.mktemp("clone") / "shallow"
    subprocess.run(["git", "clone", "-q", "--depth", "1", f"file://{house}", shallow], check=True)
    write(shallow, "CONTRIBUTING.md", '*Imitate:* "read: Step over the seam".\n')
    assert documents.unknown_commits(shallow) == []


def test_a_subject_in_the_history_is_judged_by_when_it_was_written(house, commit):
    commit("No folder, but of old", "2026-11-01T00:00:00Z")
    commit("read: Step")
    assert subjects.breaches(house) == []
    commit("No folder")
    assert '"No folder": it does not read "folder: Do this"' in told(subjects, house)


def test_an_archive_without_history_has_no_subjects_to_judge(house):
    assert subjects.breaches(house) == []


def test_the_script_ends_with_a_fault_and_says_all_of_it(house):
    write(house, "src/store/Up.h", '#include "read/Chapter.h"\nint  crooked ;\n')
    (house / "compile_commands.json").write_text("[]")
    script = pathlib.Path(__file__).with_name("check_rules.py")
    answer = subprocess.run([sys.executable, script, house, house], capture_output=True, text=True, check=False)
    assert answer.returncode == 1
    assert "must not include read/" in answer.stdout and ("not formatted" in answer.stdout) != bool(formatting.unfit())


@pytest.mark.parametrize("version, says", [("14.0.6", None), ("19.1.7", "formatting is left out: clang-format is 19 here, not 14")])
def test_only_the_formatter_that_laid_the_tree_out_judges_it(tmp_path, monkeypatch, version, says):
    write(tmp_path, "clang-format", f"#!/bin/sh\necho 'Debian clang-format version {version}'\n")
    (tmp_path / "clang-format").chmod(0o755)
    monkeypatch.setenv("PATH", str(tmp_path), prepend=":")
    assert formatting.unfit() == says
