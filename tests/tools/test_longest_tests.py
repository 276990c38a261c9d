"""The ten longest tests, out of what ctest has kept."""

from tools_support import SOURCE, run

LOG = """\
[       OK ] Search.Quick (12 ms)
[       OK ] Search.Slow (34567 ms)
[  FAILED  ] Search.Broken (99999 ms)
============================= slowest 10 durations =============================
41.50s call     e2e/test_day.py::test_a_day
1.20s setup    e2e/test_day.py::test_another
"fuzz_like" end time: Jan 01 12:00 UTC
"fuzz_like" time elapsed: 00:01:01
"search" end time: Jan 01 12:00 UTC
"search" time elapsed: 01:00:00
"""


def test_the_longest_come_first_and_no_program_is_counted_beside_its_tests(tmp_path):
    for build in ("asan", "release"):
        folder = tmp_path / build / "Testing" / "Temporary"
        folder.mkdir(parents=True)
        folder.joinpath("LastTest.log").write_text(LOG if build == "asan" else '[       OK ] Store.Other (50000 ms)\n' * 9)
    answer = run(SOURCE / "tools/longest_tests", tmp_path / "asan", tmp_path / "release")
    assert (answer.returncode, answer.stderr) == (0, "")
    lines = answer.stdout.splitlines()
    assert lines[:3] == ["The ten longest tests:", "    61.0 s  asan fuzz_like", "    50.0 s  release Store.Other"]
    assert lines[-1] == "    50.0 s  release Store.Other"
    assert len(lines) == 11
    answer = run(SOURCE / "tools/longest_tests", tmp_path / "asan")
    assert answer.stdout.splitlines()[1:] == [
        "    61.0 s  asan fuzz_like", "    41.5 s  asan e2e/test_day.py::test_a_day", "    34.6 s  asan Search.Slow",
        "     1.2 s  asan e2e/test_day.py::test_another", "     0.0 s  asan Search.Quick"]


def test_each_test_that_was_left_out_is_told_with_its_reason(tmp_path):
    folder = tmp_path / "release" / "Testing" / "Temporary"
    folder.mkdir(parents=True)
    folder.joinpath("LastTest.log").write_text(
        "importer_test.cpp:32: Skipped\nThe published text is not here.\n[  SKIPPED ] Text.IsTheSame (0 ms)\n"
        "[  SKIPPED ] 1 test, listed below:\n[  SKIPPED ] Text.IsTheSame\n"
        "SKIPPED [1] tests/tools/test_make_data.py:62: The published text is not here.\n")
    answer = run(SOURCE / "tools/longest_tests", tmp_path / "release")
    assert answer.stdout.splitlines()[1:] == [
        "Left out: release Text.IsTheSame: The published text is not here.",
        "Left out: release tests/tools/test_make_data.py:62: The published text is not here."]
