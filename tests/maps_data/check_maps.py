#!/usr/bin/env python3
"""Checks the eleven map pictures and their list, and that no two names on a map lie on each other."""
import json
import struct
import sys
from itertools import combinations
from pathlib import Path

NAMES = [
    "Abraham's Journeys", "Jacob's Journey", "Route of the Exodus", "The Twelve Tribes and Division of the Land",
    "Division of the Kingdom", "New Testament Palestine", "New Testament Jerusalem", "Paul's First Journey",
    "Paul's Second Journey", "Paul's Third Journey", "Paul's Journey to Rome",
]
HEAD = ["MapNumber", "file", "width", "height", "MapDesc"]
MOST_BYTES = 1_400_000
LANDSCAPE, PORTRAIT = (1000, 780), (700, 800)  # largest natural sizes
SHARPNESS = 1.5  # stored pixels to one of the natural size, at least
LONGEST_DESCRIPTION = 160
TOUCH = 0.6  # points that two names may share: rims of letters, not ink
MARGIN = 2.0  # points between a name and the frame around it, at least


def png_size(path):
    """Width and height from the header; None if the file is no PNG."""
    with open(path, "rb") as file:
        head = file.read(24)
    if len(head) < 24 or head[:8] != b"\x89PNG\r\n\x1a\n" or head[12:16] != b"IHDR":
        return None
    return struct.unpack(">II", head[16:24])


def check_rows(folder):
    """The faults of maps.tsv and the pictures it names, as sentences."""
    lines = (folder / "maps.tsv").read_text(encoding="utf-8").split("\n")
    if lines[-1] != "":
        return ["maps.tsv does not end with a line feed"]
    rows = [line.split("\t") for line in lines[:-1]]
    if rows[:1] != [HEAD]:
        return ["maps.tsv: wrong header"]
    rows = rows[1:]
    if any(len(row) != len(HEAD) for row in rows):
        return ["maps.tsv: a row has not five columns"]
    if [row[0] for row in rows] != [str(number) for number in range(1, len(NAMES) + 1)]:
        return ["maps.tsv: the rows are not numbered 1 to 11 in order"]
    faults = []
    for row, name in zip(rows, NAMES):
        faults += check_picture(folder, *row[1:4]) + check_description(row[0], row[4], name)
    if len({row[4] for row in rows}) != len(rows):
        faults.append("two maps have the same description")
    total = sum((folder / row[1]).stat().st_size for row in rows if (folder / row[1]).is_file())
    if total > MOST_BYTES:
        faults.append(f"the pictures have {total} bytes together, more than {MOST_BYTES}")
    return faults


def check_picture(folder, file, width, height):
    width, height = int(width), int(height)
    faults = []
    if not any(width <= wide and height <= high for wide, high in (LANDSCAPE, PORTRAIT)):
        faults.append(f"{file}: natural size {width} x {height} is too large")
    if not (folder / file).is_file():
        return faults + [f"{file}: no such file"]
    stored = png_size(folder / file)
    if stored is None:
        return faults + [f"{file}: not a PNG picture"]
    if stored[0] < SHARPNESS * width or stored[1] < SHARPNESS * height:
        faults.append(f"{file}: {stored[0]} x {stored[1]} stored pixels are too few for {width} x {height}")
    if stored[0] * height != stored[1] * width:
        faults.append(f"{file}: stored and natural size differ in shape")
    return faults


def check_description(number, text, name):
    faults = []
    if not text.startswith(name) or len(text) <= len(name):
        faults.append(f"map {number}: the description does not begin with its name and go on")
    if len(text) > LONGEST_DESCRIPTION:
        faults.append(f"map {number}: the description has {len(text)} characters")
    return faults


def check_names(folder):
    """Names that overlap, or that the frame cuts or touches, in labels.json."""
    faults = []
    sheets = json.loads((folder / "labels.json").read_text(encoding="utf-8"))
    if len(sheets) != len(NAMES):
        faults.append("labels.json has not eleven maps")
    for sheet, drawn in sheets.items():
        covers = [panel["rect"] for panel in drawn["panels"][1:]] + [drawn["box"]["rect"]]
        for index, panel in enumerate([*drawn["panels"], drawn["box"]]):
            names = panel["names"]
            faults += [f"{sheet}: \"{one['text']}\" is too near the frame" for one in names
                       if not all(_within(quad, panel["rect"]) for quad in one["quads"])]
            faults += [f"{sheet}: \"{one['text']}\" and \"{other['text']}\" overlap"
                       for one, other in combinations(names, 2) if _touch(one["quads"], other["quads"])]
            if index == 0:
                faults += [f"{sheet}: \"{one['text']}\" lies under a box" for one in names
                           if any(_touch(one["quads"], [_corners(rect)]) for rect in covers)]
    return faults


def _corners(rect):
    left, top, right, bottom = rect
    return [[left, top], [right, top], [right, bottom], [left, bottom]]


def _within(quad, rect):
    left, top, right, bottom = rect
    return all(left + MARGIN <= x <= right - MARGIN and top + MARGIN <= y <= bottom - MARGIN for x, y in quad)


def _touch(quads, others):
    return any(_overlap(one, other) for one in quads for other in others)


def _overlap(one, other):
    """Two convex shapes overlap unless some side of one of them parts them."""
    for shape in (one, other):
        for (x0, y0), (x1, y1) in zip(shape, shape[1:] + shape[:1]):
            length = ((x1 - x0) ** 2 + (y1 - y0) ** 2) ** 0.5
            if not length:
                continue
            across = ((y1 - y0) / length, (x0 - x1) / length)
            a = [x * across[0] + y * across[1] for x, y in one]
            b = [x * across[0] + y * across[1] for x, y in other]
            if min(max(a), max(b)) - max(min(a), min(b)) <= TOUCH:
                return False
    return True


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parents[2] / "data" / "maps"
    faults = check_rows(folder) + check_names(folder)
    for fault in faults:
        print(fault)
    print(f"{len(faults)} faults in the maps of {folder.name}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
