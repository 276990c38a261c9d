"""The floors of the house: a folder of src/ includes from the folders that its library links, and from no others.

CMakeLists.txt is the one place that says so: kestrel_library(NAME [FOLDER folder] ... LINK library...).
"""
import re

from tree import lines, sources


def floors(top):
    """Each folder of a library, and the folders that it may include from, its own among them."""
    folder_of, linked = {}, {}
    for name, rest in re.findall(r"^kestrel_library\((\w+)([^)]*)\)", (top / "CMakeLists.txt").read_text(), re.M):
        own = re.search(r"\bFOLDER (\w+)", rest)
        folder_of[name] = own.group(1) if own else name
        linked[name] = re.sub(r".*\bLINK\b", "", rest).split()

    def below(name):
        return {name}.union(*(below(library) for library in linked[name] if library in linked))

    return {folder_of[name]: {folder_of[library] for library in below(name)} for name in linked}


def unknown_folders(top, known):
    found = []
    for folder in sorted(path.name for path in (top / "src").iterdir() if path.is_dir()):
        if folder not in known:
            found.append(f"src/{folder}/ has no line kestrel_library({folder} ...) in CMakeLists.txt; it stands below the "
                         "libraries that it links, and these are all it may include from")
        if f"src/{folder}/" not in (top / "docs/architecture.md").read_text(encoding="utf-8"):
            found.append(f"src/{folder}/ is not in the picture of the house, docs/architecture.md")
        if not re.search(rf"^kestrel_test\({folder}\b", (top / "tests/CMakeLists.txt").read_text(), re.M):
            found.append(f"src/{folder}/ has no line kestrel_test({folder} ...) in tests/CMakeLists.txt, and so no tests/{folder}/")
    return found


def breaches(top):
    may_include = floors(top)
    found = unknown_folders(top, may_include)
    for path in sources(top, "src"):
        folder = path.relative_to(top / "src").parts[0]
        for number, line in lines(path):
            include = re.match(r'\s*#\s*include\s+"(\w+)/', line)
            if include and folder in may_include and include.group(1) not in may_include[folder]:
                found.append(f"{path}:{number}: {folder}/ must not include {include.group(1)}/, which stands above or beside it: "
                             "docs/architecture.md shows the floors, CMakeLists.txt what each links")
            if re.match(r"\s*#\s*include\s+[<\"]sqlite3", line) and folder != "store":
                found.append(f"{path}:{number}: SQLite's header is included in store/ only")
    return found
