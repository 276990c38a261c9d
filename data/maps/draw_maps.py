#!/usr/bin/python3
"""Draws the maps: all of them, or those whose numbers are given."""
import argparse
import json
import math
import subprocess
import sys
import tomllib
from concurrent.futures import ProcessPoolExecutor
from pathlib import Path

import cairo

import furniture
from panel import Panel
from placement import ink
from plan import Plan
from tables import Tables
from title_box import TitleBox

HERE = Path(__file__).parent
SCALE = 2  # stored pixels to a point of the sheet
ROOM = (1200, 680)  # the largest natural size: with its window it fits into the frame on a screen of 1280 x 800
COLOURS = 48
INHERITED = ("rivers", "min_area", "routes", "areas", "wall_rivers", "capitals", "plan", "hills", "conjecture")


def draw_sheet(sheet, tables, png, draft):
    """Draws one map, if it has no fault; gives back the faults and where each name stands."""
    size = sheet["size"]
    surface = cairo.ImageSurface(cairo.FORMAT_RGB24, size[0] * SCALE, size[1] * SCALE)
    context = cairo.Context(surface)
    context.scale(SCALE, SCALE)
    rect = furniture.map_rect(size)

    kind_of_panel = Plan if sheet.get("plan") else Panel
    main = kind_of_panel(sheet, sheet["number"], tables, rect)
    title = TitleBox(sheet, main.projection, tables)
    blanks = [title.rect(rect, sheet["box_corner"])]
    insets = []
    for part in sheet.get("insets", []):
        x, y, wide, high = part["rect"]
        x, y = x if x >= 0 else rect[0] + rect[2] + x - wide, y if y >= 0 else rect[1] + rect[3] + y - high
        shared = {key: sheet[key] for key in INHERITED if key in sheet}
        insets.append(kind_of_panel({**shared, **part}, sheet["number"], tables, (x, y, wide, high)))
        if "caption" in part:
            insets[-1].blanks = [furniture.flag_rect(insets[-1])]
        blanks.append((x - 4, y - 4, x + wide + 4, y + high + 4))
    main.blanks = blanks
    main.enlarged = [inset.projection for inset in insets]

    main.draw(context)
    for inset in insets:
        furniture.draw_inset(context, main, inset)
    title.draw(context, blanks[0])
    furniture.draw_frame(context, size, bool(sheet.get("plan")))
    panels = [main, *insets]
    faults = _faults(sheet, tables, panels)
    if draft or not faults:
        write_png(surface, png, draft)
    return faults, {"size": size, "panels": [_listed(panel) for panel in panels],
            "box": {"rect": _rounded(blanks[0]), "names": _boxes(title.lines), "marks": sheet.get("marks", []),
                    "lines": sheet.get("lines", []), "numbers": title.numbers}}


def _faults(sheet, tables, panels):
    """Names without a place, and symbols and lines that the legend leaves out or has for nothing."""
    faults = [fault for panel in panels for fault in panel.faults]
    drawn = set().union(*(panel.drawn for panel in panels))
    faults += [f"{place.name} is drawn nowhere" for place in tables.places(sheet["number"]) if place.name not in drawn]
    for key, used in (("marks", set().union(*(panel.marks for panel in panels)) - {"none"}),
                      ("lines", set().union(*(panel.line_kinds for panel in panels)))):
        faults += [f"the legend does not say what \"{kind}\" is" for kind in sorted(used - set(sheet.get(key, [])))]
        faults += [f"the legend has \"{kind}\" for nothing" for kind in sorted(set(sheet.get(key, [])) - used)]
    return faults


def _listed(panel):
    points = [{"name": label.name, "text": label.text, "mark": label.mark, "bold": label.look.bold,
               "dot": _rounded((label.x, label.y, label.radius)), "box": _rounded(label.chosen.box),
               "numbers": [number for number, _ in label.numbers],
               **{part: [_rounded(rect) for rect in rects]
                  for part, rects in zip(("badges", "letters"), ink(label, label.chosen))},
               "areas": [panel.area_at(label.x, label.y), panel.area_at(*_middle(label.chosen.box))]}
              for label in panel.labels]
    return {"rect": _rounded(panel.bounds), "names": _boxes(panel.names), "points": points,
            "places": sorted(panel.drawn),
            "enlarged": [_rounded(rect) for rect in panel.enlarged_rects()]}


def _middle(box):
    return (box[0] + box[2]) / 2, (box[1] + box[3]) / 2


def _rounded(numbers):
    return [round(number, 2) for number in numbers]


def _boxes(lines):
    return [{"text": line.text, "quads": [[_rounded(corner) for corner in quad] for quad in line.quads]}
            for line in lines]


def read_sheet(path):
    """A map's own sheet; what all maps share about a name stands below what the sheet says itself."""
    shared, sheet = (tomllib.loads(file.read_text(encoding="utf-8")) for file in (path.with_name("common.toml"), path))
    for part in (sheet, *sheet.get("insets", [])):
        own = part.get("labels", {})
        part["labels"] = {name: {**shared["labels"].get(name, {}), **own.get(name, {})}
                          for name in {**shared["labels"], **own}}
    return sheet


def write_png(surface, png, draft):
    raw = png.with_suffix(".raw.png")
    surface.write_to_png(str(raw))
    subprocess.run(["pngquant", "--force", "--speed", "1", "--nofs", "--strip", "--output", str(png),
                    str(COLOURS), str(raw)], check=True)
    raw.unlink()
    if not draft:
        subprocess.run(["zopflipng", "-y", str(png), str(png)], check=True, stdout=subprocess.DEVNULL)


def natural_size(width, height):
    """The size in which a sheet is shown: of the sheet's shape to the pixel, and no larger than it or the room."""
    parts = math.gcd(width, height)
    across, down = width // parts, height // parts
    times = min(parts, ROOM[0] // across, ROOM[1] // down)
    return across * times, down * times


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("numbers", nargs="*", type=int, help="the maps to draw; all if none is given")
    parser.add_argument("--data", type=Path, default=HERE / "sources", help="folder of the three tables")
    parser.add_argument("--out", type=Path, default=HERE, help="folder for pictures and lists")
    parser.add_argument("--draft", action="store_true", help="leave out the slow last step of making files small")
    options = parser.parse_args()

    tables = Tables(options.data)
    rows, boxes = [], {}
    options.out.mkdir(parents=True, exist_ok=True)
    listed = options.out / "labels.json"
    if listed.exists():
        boxes = json.loads(listed.read_text(encoding="utf-8"))
    jobs = []
    for path in sorted((HERE / "sheets").glob("map*.toml")):
        sheet = read_sheet(path)
        number, file = sheet["number"], path.stem + ".png"
        rows.append([str(number), file, *map(str, natural_size(*sheet["size"])), sheet["description"]])
        if not options.numbers or number in options.numbers:
            jobs.append((sheet, tables, options.out / file, options.draft))
    faulty = False
    with ProcessPoolExecutor() as pool:
        for (sheet, _, file, _), (faults, listing) in zip(jobs, pool.map(draw_sheet, *zip(*jobs))):
            for fault in faults:
                print(f"map {sheet['number']}: {fault}", file=sys.stderr)
            faulty |= bool(faults)
            boxes[file.stem] = listing
    if faulty and not options.draft:
        sys.exit("The lists and the maps named above are not written: mend these faults first.")
    head = ["MapNumber", "file", "width", "height", "MapDesc"]
    (options.out / "maps.tsv").write_text("".join("\t".join(row) + "\n" for row in [head, *rows]), encoding="utf-8")
    listed.write_text(json.dumps(dict(sorted(boxes.items())), ensure_ascii=False, separators=(",", ":"))
                      .replace('{"text"', '\n{"text"').replace('{"name"', '\n{"name"') + "\n", encoding="utf-8")
    return 1 if faulty else 0


if __name__ == "__main__":
    sys.exit(main())
