"""C++ is laid out by clang-format."""
import re
import subprocess

from tree import sources


def breaches(top):
    files = sources(top, "src", "tests", "tools", "bench")
    result = subprocess.run(["clang-format", "--dry-run", "-Werror", *map(str, files)], capture_output=True, text=True,
                            check=False)
    places = re.findall(r"^(\S+:\d+):\d+: error:", result.stderr, re.M)
    return [f"{place}: not formatted; tools/format mends it" for place in dict.fromkeys(places)]
