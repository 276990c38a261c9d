"""Every header compiles alone."""
import concurrent.futures
import json
import os
import re
import shlex
import subprocess

from tree import sources


def compile_flags(build, folder):
    """The flags of some source of the same folder."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if f"/src/{folder}/" in entry["file"]:
            words = shlex.split(entry["command"])
            flags = [word for word in words if word.startswith(("-D", "-I", "-std"))]
            return flags + [word for at, word in enumerate(words) if word == "-isystem" or words[at - 1] == "-isystem"]
    return []


def is_compiled_first(header):
    """Whether the header opens a source file of its own name; then every build compiles it alone."""
    source = header.with_suffix(".cpp")
    return source.exists() and bool(re.match(rf'#include "(\w+/)?{header.name}"\n', source.read_text(encoding="utf-8")))


def check(header, flags):
    result = subprocess.run(["g++", *flags, "-fPIC", "-fsyntax-only", "-x", "c++", str(header)], capture_output=True, text=True,
                            check=False)
    errors = [line for line in result.stderr.splitlines() if "error:" in line]
    return [f"{header}: does not compile alone: {errors[0]}"] if errors else []


def breaches(top, build):
    alone = [header for header in sources(top, "src") if header.suffix == ".h" and not is_compiled_first(header)]
    flags = {folder: compile_flags(build, folder) for folder in {header.parent.name for header in alone}}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda header: check(header, flags[header.parent.name]), alone)
        return [breach for result in results for breach in result]
