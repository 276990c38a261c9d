"""Wine, as the tests of the program for Windows use it: a prefix of its own, in a virtual X session."""
import os
import pwd
import shutil
import subprocess
import sys
import time
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TOP / "tests" / "e2e"))
sys.dont_write_bytecode = True
import desktop as virtual  # noqa: E402  the virtual desktop of the end-to-end tests

virtual.PATIENCE = 600  # a first start under Wine, on a busy machine

WORK = TOP / "build" / "windows-tests"
WINE = shutil.which("wine64") or "/usr/lib/wine/wine64"
SERVER = shutil.which("wineserver") or "/usr/lib/wine/wineserver"
INSTALLED = f"drive_c/users/{pwd.getpwuid(os.getuid()).pw_name}/AppData/Local/Programs/Kestrel Reader"
# Neither Wine's own messages nor its offers to fetch what .NET and web pages need.
ENVIRONMENT = {"WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe="}


class Wine:
    """A copy of a fresh prefix, in a session; with a zone, that of the computer, and with a day, that on which it is."""

    def __init__(self, session, name, zone="UTC", day=None):
        self.session = session
        self.zone = zone
        self.prefix = WORK / "prefixes" / name
        shutil.rmtree(self.prefix, ignore_errors=True)
        shutil.copytree(fresh_prefix(), self.prefix, symlinks=True, copy_function=link_or_copy)
        self.environment = {**session.environment, **ENVIRONMENT, "WINEPREFIX": str(self.prefix), "TZ": zone}
        if day:
            # The day alone is another: the times of files are as they are.
            self.environment |= {"LD_PRELOAD": "/usr/$LIB/faketime/libfaketimeMT.so.1", "FAKETIME": f"@{day} 12:00:00",
                                 "FAKETIME_DONT_FAKE_MONOTONIC": "1", "NO_FAKE_STAT": "1"}

    def __enter__(self):
        return self

    def __exit__(self, *_):
        subprocess.run([SERVER, "-k"], env=self.environment, check=False)
        subprocess.run([SERVER, "-w"], env=self.environment, check=False, timeout=60)

    @property
    def folder(self):
        """Where the installer puts the program."""
        return self.prefix / INSTALLED

    def start(self, *command, stdout=subprocess.DEVNULL, text=False):
        """Starts a program of Windows by its path there, with arguments that need no quotes."""
        # Windows has no variable for the zone, and Wine without it tells the zone as Windows does.
        line = [WINE, *command] if self.zone == "UTC" else self.with_variable("TZ=", *command)
        return subprocess.Popen(line, env=self.environment, cwd=self.prefix, stdout=stdout, stderr=subprocess.DEVNULL,
                                stdin=subprocess.DEVNULL, text=text)

    def with_variable(self, setting, program, *arguments):
        """The command that starts it with a variable set there: Wine keeps some of this system's variables to itself."""
        batch = self.prefix / "drive_c" / "start.bat"
        batch.write_text("\r\n".join([f"@set {setting}", f'@"{program}" {" ".join(arguments)}', "@exit %ERRORLEVEL%", ""]))
        return [WINE, "cmd", "/c", "C:\\start.bat"]

    def run(self, *command):
        """Its exit code."""
        return self.start(*command).wait(virtual.PATIENCE)

    def registry(self, key):
        """What the registry has under a key; nothing where there is none."""
        result = subprocess.run([WINE, "reg", "query", key, "/s"], env=self.environment, capture_output=True, text=True, check=False)
        return result.stdout if result.returncode == 0 else ""


def link_or_copy(source, target):
    """Linked, not copied, 700 MB each time: but a registry with two names is written in place by Wine, for both prefixes."""
    (shutil.copy2 if source.endswith(".reg") else os.link)(source, target)


def fresh_prefix():
    """Made once: a prefix as Wine makes one."""
    prefix = WORK / "prefix"
    if not (prefix / "made").exists():
        print(f"Making a Wine prefix in {prefix}", flush=True)
        shutil.rmtree(prefix, ignore_errors=True)
        prefix.mkdir(parents=True)
        environment = {**os.environ, **ENVIRONMENT, "WINEPREFIX": str(prefix)}
        subprocess.run([WINE, "wineboot", "-i"], env=environment, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        subprocess.run([SERVER, "-w"], env=environment, check=True)
        (prefix / "made").touch()
    return prefix


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def comes_about(condition):
    """Whether it does, in the time that a busy machine needs."""
    deadline = time.monotonic() + virtual.PATIENCE
    while not condition():
        if time.monotonic() > deadline:
            return False
        time.sleep(0.1)
    return True
