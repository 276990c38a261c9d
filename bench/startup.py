"""What a user waits for at the start, and what the open program takes: measured on the assembled program in a real X session."""
import contextlib
import os
import pathlib
import re
import statistics
import subprocess
import sys
import time

TOP = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(TOP / "tests" / "e2e"))

from desktop import Desktop  # noqa: E402  the virtual desktop of the end-to-end tests

RUNS = 5
STARTS = 15


def resident_megabytes(process):
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    return int(re.search(r"VmRSS:\s+(\d+) kB", status).group(1)) / 1024


@contextlib.contextmanager
def running(desktop, *command, **options):
    process = subprocess.Popen(command, env=desktop.environment, stdin=subprocess.DEVNULL, **options)
    try:
        yield process
    finally:
        process.kill()
        process.wait()


def frame_delay(desktop, program):
    """Milliseconds between the splash and the frame, as the window manager lists them."""
    seen = {}
    with running(desktop, "xprop", "-spy", "-root", "_NET_CLIENT_LIST", stdout=subprocess.PIPE, text=True) as watch:
        watch.stdout.readline()
        with running(desktop, program):
            for line in watch.stdout:
                for window in re.findall(r"0x[0-9a-f]+", line):
                    seen.setdefault(window, time.perf_counter())
                if len(seen) == 2:
                    first, second = seen.values()
                    return (second - first) * 1000
    raise RuntimeError("the frame did not appear")


def first_window_delay(desktop, command):
    """Milliseconds from the start of a program to its first window, as the window manager lists it."""
    with running(desktop, "xprop", "-spy", "-root", "_NET_CLIENT_LIST", stdout=subprocess.PIPE, text=True) as watch:
        watch.stdout.readline()
        start = time.perf_counter()
        with running(desktop, command):
            for line in watch.stdout:
                if "0x" in line:
                    return (time.perf_counter() - start) * 1000
    raise RuntimeError("no window appeared")


def open_memory(desktop, program):
    """Megabytes resident with the selection and reading windows open."""
    with running(desktop, program) as reader:
        desktop.wait_for_window("Portuguese Version - Freeware")
        desktop.key("ctrl+a")
        desktop.type("Mt:24:43")
        desktop.key("Return")
        time.sleep(1)
        return resident_megabytes(reader)


def bare_memory(desktop, program):
    with running(desktop, program) as window:
        desktop.wait_for_window("bare_window")
        time.sleep(1)
        return resident_megabytes(window)


def figures(build, installed):
    """Lines of (name, value, unit, ratio or None, limit, whether it is kept)."""
    program = os.path.join(installed, "kestrel-reader")
    bare_program = os.path.join(build, "bench", "bare_window")
    with Desktop() as desktop:
        delay = statistics.median(frame_delay(desktop, program) for _ in range(RUNS))
        memory = statistics.median(open_memory(desktop, program) for _ in range(RUNS))
        bare = statistics.median(bare_memory(desktop, bare_program) for _ in range(RUNS))
        # In turns, so that whatever else the machine does slows both.
        starts = [(first_window_delay(desktop, program), first_window_delay(desktop, bare_program)) for _ in range(STARTS)]
        splash, window = (statistics.median(times) for times in zip(*starts))
    return [
        ("frame after the splash", delay, "ms", None, "2000 to 2100", 2000 <= delay <= 2100),
        ("bare window, resident", bare, "MB", None, "", True),
        ("program, resident", memory, "MB", memory / bare, "1.45", memory / bare <= 1.45),
        ("bare window, to its showing", window, "ms", None, "", True),
        ("splash, to its showing", splash, "ms", splash / window, "1.3", splash / window <= 1.3),
    ]


if __name__ == "__main__":
    for figure in figures(str(TOP / "build" / "release"), str(TOP / "build" / "kestrel")):
        print(figure)
