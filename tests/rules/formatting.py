"""C++ is laid out by clang-format."""
import re
import subprocess

from tree import sources

LAID_OUT_BY = "14"  # Debian 12's; later ones lay out a few lines otherwise


def unfit():
    """Why it cannot be judged here; nothing where it can."""
    version = subprocess.run(["clang-format", "--version"], capture_output=True, text=True, check=True).stdout
    found = re.search(r"version (\d+)", version)[1]
    return None if found == LAID_OUT_BY else f"formatting is left out: clang-format is {found} here, not {LAID_OUT_BY}"


def breaches(top):
    files = sources(top, "src", "tests", "tools", "bench")
    result = subprocess.run(["clang-format", "--dry-run", "-Werror", *map(str, files)], capture_output=True, text=True,
                            check=False)
    places = re.findall(r"^(\S+:\d+):\d+: error:", result.stderr, re.M)
    return [f"{place}: not formatted; tools/format_sources mends it" for place in dict.fromkeys(places)]
