"""The unit tests under Wine, on the files of the build for this system."""
import json
import shutil
import subprocess

import programs
from wine import TOP, WORK, Wine, virtual, windows_path

PROGRAMS = ("store", "desktop", "clip", "pictures", "widgets", "read", "select", "search", "maps", "help", "app", "fonts")
# What cannot hold there, and why.
LEFT_OUT = {
    "store: SmallSource.GoesOnAfterTheFileIsRemovedOrReplaced": "Windows lets nobody remove a file that is open",
    "desktop: ClipboardContents.IsEmptiedBeforeTextIsPutOnIt": "Windows tells of a change later, when the next has been made",
    "desktop: ClipboardContents.IsEmptiedBeforeAPictureIsPutOnIt": "the same",
    "app: StartUp.ReadsTheTimeInLocalTimeInEveryZone": "a zone is no variable there; the tests of the zones have five",
    "app: Frame.OpensMaximisedWhereTheScreenIsSmall": "the session's screen is higher than 800 dots",
    "app: Frame.TakesMostOfASmallScreenOnceItIsNoLongerMaximised": "the same",
}


def prepare():
    """Builds them, and lays beside them the files of the build for this system."""
    for command in (["tools/configure", "dev"], ["tools/build", "dev", "test_data"]):
        subprocess.run(command, cwd=TOP, check=True)
    programs.build(*(f"test_{program}" for program in PROGRAMS))
    shutil.copytree(TOP / "build/dev/test", WORK / "test", dirs_exist_ok=True)
    subprocess.run(["touch", "-m", "-d", "1998-05-05 05:00:00Z", WORK / "test/kestrel/KESTRPT.DAT"], check=True)


def run_program(wine, program):
    """Runs the tests of a folder; the names of those that failed."""
    result = WORK / f"{program}.json"
    result.unlink(missing_ok=True)
    left_out = [name for name in LEFT_OUT if name.startswith(f"{program}: ")]
    command = wine.with_variable("QT_QPA_PLATFORM=windows", windows_path(WORK / "tests" / f"test_{program}.exe"),
                                 f"--gtest_output=json:{windows_path(result)}", "--gtest_brief=1",
                                 "--gtest_filter=-" + ":".join(name.partition(": ")[2] for name in left_out))
    with (WORK / f"{program}.log").open("w") as log:
        try:
            subprocess.run(command, env=wine.environment, cwd=WORK, stdout=log, stderr=subprocess.STDOUT,
                           stdin=subprocess.DEVNULL, timeout=3600, check=False)
        except subprocess.TimeoutExpired:
            return [f"{program}: hung, see {log.name}"]
    if not result.exists():
        return [f"{program}: ended before its end, see {log.name}"]
    told = json.loads(result.read_text())
    cases = [case for suite in told["testsuites"] for case in suite["testsuite"]]
    failed = [f"{program}: {case['classname']}.{case['name']}" for case in cases if "failures" in case]
    skipped = sum(case["result"] == "SKIPPED" for case in cases)
    print(f"{program}: {len(cases) - len(failed) - skipped} of {len(cases) + len(left_out)} tests pass, {skipped} are skipped, "
          f"{len(left_out)} left out", flush=True)
    return failed


def run():
    prepare()
    with virtual.Desktop() as session, Wine(session, "units") as wine:
        return [failure for program in PROGRAMS for failure in run_program(wine, program)]
