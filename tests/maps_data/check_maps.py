#!/usr/bin/env python3
"""Checks the eleven map pictures and their list, the places of the names on them, and the facts they show."""
import json
import math
import re
import struct
import sys
from itertools import combinations
from pathlib import Path

NAMES = [
    "Abraham's Journeys", "Jacob's Journey", "Route of the Exodus", "The Twelve Tribes and Division of the Land",
    "Division of the Kingdom", "New Testament Palestine", "New Testament Jerusalem", "Paul's First Journey",
    "Paul's Second Journey", "Paul's Third Journey", "Paul's Journey to Rome",
]
# In which tinted area a town stands, by map: what the text says.
AREAS = {
    "map04": {"Ramoth-gilead": "Gad", "Mahanaim": "Gad", "Succoth": "Gad", "Heshbon": "Reuben", "Bezer": "Reuben",
              "Dibon": "Reuben", "Shechem": "Ephraim", "Gezer": "Ephraim", "Shiloh": "Ephraim", "Aijalon": "Dan",
              "Joppa": "Dan", "Golan": "Manasseh, east", "Edrei": "Manasseh, east", "Jabesh-gilead": "Manasseh, east",
              "Kedesh": "Naphtali", "Hebron": "Judah", "Jerusalem": "Benjamin", "Jericho": "Benjamin",
              "Bethel": "Benjamin", "Beersheba": "Simeon"},
    "map05": {"Bethel": "Israel", "Jericho": "Israel", "Mizpah": "Judah", "Geba": "Judah", "Gath": "Philistia",
              "Ramoth-gilead": "Israel", "Tyre": "Phoenicia", "Lebo-hamath": None},
    "map06": {"Gaza": None, "Ashkelon": None, "Ptolemais": None, "Mount Carmel": None, "Azotus": "Judea",
              "Caesarea": "Samaria", "Nazareth": "Galilee", "Machaerus": "Perea",
              "Caesarea Philippi": "Tetrarchy of Philip", "Scythopolis": "Decapolis", "Gadara": "Decapolis"},
}
NAME_WITH_ITS_DOT = {"map04": ["Heshbon", "Gezer", "Shechem"]}  # towns by a border whose names must not lie beyond it
HEAD = ["MapNumber", "file", "width", "height", "MapDesc"]
MAX_BYTES = 1_600_000  # the database has its fixed length, and this leaves its tables room to grow
MAX_SIZE = (1200, 680)  # natural size: with its window it fits into the frame on a screen of 1280 x 800
SHARPNESS = 1.5  # stored pixels to one of the natural size, at least
MAX_DESCRIPTION_LENGTH = 160
CLEAR = 6.0  # points that letters behind a number keep from another town's symbol
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
    if total > MAX_BYTES:
        faults.append(f"the pictures have {total} bytes together, more than {MAX_BYTES}")
    return faults


def check_picture(folder, file, width, height):
    width, height = int(width), int(height)
    faults = []
    if width > MAX_SIZE[0] or height > MAX_SIZE[1]:
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
    if len(text) > MAX_DESCRIPTION_LENGTH:
        faults.append(f"map {number}: the description has {len(text)} characters")
    return faults


def check_names(folder):
    """Names that overlap, or that the frame cuts or touches, in labels.json."""
    faults = []
    sheets = _sheets(folder)
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


def check_points(folder):
    """Names nearer to another town's symbol than to their own, equal names, straight apostrophes, unnamed symbols."""
    faults = []
    for sheet, drawn in _sheets(folder).items():
        used = set()
        for panel in drawn["panels"]:
            points = [point for point in panel["points"] if point["mark"] != "none"]
            used |= {point["mark"] for point in points}
            for point in points:
                faults += [f"{sheet}: \"{point['name']}\" is nearer to the symbol of {other['name']}"
                           for other in points if other is not point and _is_astray(point, other["dot"])]
            faults += [f"{sheet}: {point['name']} is bold without being a stop or a capital"
                       for point in panel["points"]
                       if point["bold"] and not point["numbers"] and point["mark"] != "capital"]
            texts = [point["text"] for point in panel["points"]]
            faults += [f"{sheet}: two places are called \"{text}\"" for text in sorted(set(texts))
                       if texts.count(text) > 1]
        faults += [f"{sheet}: the legend lacks or needs not: {mark}" for mark in used ^ set(drawn["box"]["marks"])]
        faults += [f"{sheet}: straight apostrophe in \"{name['text']}\""
                   for panel in [*drawn["panels"], drawn["box"]] for name in panel["names"] if "'" in name["text"]]
    return faults


def check_frames(folder):
    """Names of towns that lie across the frame of what an inset enlarges."""
    return [f"{sheet}: \"{point['name']}\" lies across the frame of an enlarged part"
            for sheet, drawn in _sheets(folder).items() for panel in drawn["panels"] for point in panel["points"]
            for rect in panel["enlarged"] if _crosses(point["box"], rect)]


def check_areas(folder):
    """Towns that do not lie in the area in which the text puts them."""
    faults = []
    for sheet, drawn in _sheets(folder).items():
        points = [point for panel in drawn["panels"] for point in panel["points"]]
        for name, area in AREAS.get(sheet, {}).items():
            faults += [f"{sheet}: {name} lies in {point['areas'][0]}, not {area}" for point in points
                       if point["name"] == name and point["areas"][0] != area]
            if name not in [point["name"] for point in points]:
                faults.append(f"{sheet}: {name} is missing")
        faults += [f"{sheet}: the name of {point['name']} lies in {point['areas'][1]}" for point in points
                   if point["name"] in NAME_WITH_ITS_DOT.get(sheet, []) and point["areas"][0] != point["areas"][1]]
    return faults


def check_sources(folder):
    """Places drawn on no panel of their maps, facts without a source, stops out of order or without their number."""
    places, lines, routes = (_table(folder / "sources" / f"{name}.tsv") for name in ("places", "lines", "routes"))
    sheets = _sheets(folder)
    faults = [f"{row['name']}: no source" for row in [*places, *lines] if not row["source"]]
    faults += [f"{row['name']}: an own place without its reason" for row in places
               if row["source"] == "own" and not row["note"]]
    for row in places:
        for number in row["maps"].split(","):
            drawn = set().union(*(panel["places"] for panel in sheets[f"map{int(number):02}"]["panels"]))
            if row["name"] not in drawn:
                faults.append(f"map {number}: {row['name']} is drawn nowhere")
    for sheet, drawn in sheets.items():
        faults += _check_stops(sheet, drawn, [row for row in routes if int(row["map"]) == int(sheet[3:])])
    return faults


def _check_stops(sheet, drawn, routes):
    faults, stops, passages = [], [], []
    for row in routes:
        names, found = row["stops"].split(" > "), row["references"].split(" > ")
        if len(names) != len(found):
            faults.append(f"{sheet}: {row['route']}: {len(names)} stops and {len(found)} passages")
        last = {}
        for passage in found:
            match = re.fullmatch(r"(\w+) (\d+):(\d+)", passage)
            place = match and (int(match[2]), int(match[3]))
            if not match or place < last.get(match[1], place):
                faults.append(f"{sheet}: {row['route']}: {passage} is no passage, or out of order")
            else:
                last[match[1]] = place
        stops += names
        passages += found
    if drawn["box"]["numbers"] != [[number + 1, passage] for number, passage in enumerate(passages)]:
        faults.append(f"{sheet}: the legend does not number the stops in order")
    shown = {name["text"] for panel in drawn["panels"] for name in panel["names"]}
    faults += [f"{sheet}: stop {number + 1}, {name}, bears no number" for number, name in enumerate(stops)
               if str(number + 1) not in shown]
    for point in [point for panel in drawn["panels"] for point in panel["points"]]:
        if point["numbers"] != [number + 1 for number, name in enumerate(stops) if name == point["name"]]:
            faults.append(f"{sheet}: {point['name']} bears {point['numbers']}")
    return faults


def _sheets(folder):
    return json.loads((folder / "labels.json").read_text(encoding="utf-8"))


def _table(path):
    head, *rows = [line.split("\t") for line in path.read_text(encoding="utf-8").splitlines()]
    return [dict(zip(head, row)) for row in rows]


def _is_astray(point, other):
    """Whether a name, its numbers (of one row) or the letters behind them seem to belong to another symbol."""
    badges, letters, own = point["badges"], point["letters"], point["dot"]
    if _gap(badges + letters, other) <= _gap(badges + letters, own):
        return True
    if not badges:
        return False
    behind = min(CLEAR, _gap(letters, own))
    return _gap(letters, other) < behind or len(letters) == 1 and _gap(badges, other) <= _gap(badges, own)


def _gap(rects, dot):
    """Points between the nearest of some boxes and the rim of a symbol."""
    x, y, radius = dot
    return min(math.hypot(max(left - x, 0, x - right), max(top - y, 0, y - bottom))
               for left, top, right, bottom in rects) - radius


def _crosses(one, rect):
    """Neither within the rectangle nor wholly outside it."""
    apart = one[2] < rect[0] or one[0] > rect[2] or one[3] < rect[1] or one[1] > rect[3]
    within = one[0] > rect[0] and one[2] < rect[2] and one[1] > rect[1] and one[3] < rect[3]
    return not apart and not within


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
    faults = [fault for check in (check_rows, check_names, check_points, check_frames, check_areas, check_sources)
              for fault in check(folder)]
    for fault in faults:
        print(fault)
    print(f"{len(faults)} faults in the maps of {folder.name}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
