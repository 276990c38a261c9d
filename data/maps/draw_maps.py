#!/usr/bin/python3
"""Draws the maps: all of them, or those whose numbers are given."""
import argparse
import json
import subprocess
import tomllib
from pathlib import Path

import cairo

import furniture
from panel import Panel
from plan import Plan
from tables import Tables
from title_box import TitleBox

HERE = Path(__file__).parent
SCALE = 2  # stored pixels to one of the natural size
COLOURS = 48
INHERITED = ("rivers", "min_area", "routes", "areas", "wall_rivers", "capitals", "plan", "hills", "conjecture")


def draw_sheet(sheet, tables, png, draft):
    size = sheet["size"]
    surface = cairo.ImageSurface(cairo.FORMAT_RGB24, size[0] * SCALE, size[1] * SCALE)
    context = cairo.Context(surface)
    context.scale(SCALE, SCALE)
    rect = furniture.map_rect(size)

    kind_of_panel = Plan if sheet.get("plan") else Panel
    main = kind_of_panel(sheet, sheet["number"], tables, rect)
    title = TitleBox(sheet, main.projection)
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
    write_png(surface, png, draft)
    panels = [main, *insets]
    for panel in panels:
        for one, other in panel.clashes:
            print(f"map {sheet['number']}: {one} touches {other}")
    return {"size": size, "panels": [{"rect": [round(v, 2) for v in panel.bounds], "names": _boxes(panel.names)}
                                     for panel in panels],
            "box": {"rect": [round(v, 2) for v in blanks[0]], "names": _boxes(title.lines)}}


def _boxes(lines):
    return [{"text": line.text, "quads": [[[round(x, 2), round(y, 2)] for x, y in quad] for quad in line.quads]}
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
    for path in sorted((HERE / "sheets").glob("map*.toml")):
        sheet = read_sheet(path)
        number, file = sheet["number"], path.stem + ".png"
        rows.append([str(number), file, *map(str, sheet["size"]), sheet["description"]])
        if not options.numbers or number in options.numbers:
            boxes[path.stem] = draw_sheet(sheet, tables, options.out / file, options.draft)
            print(f"{file}: {(options.out / file).stat().st_size} bytes")
    head = ["MapNumber", "file", "width", "height", "MapDesc"]
    (options.out / "maps.tsv").write_text("".join("\t".join(row) + "\n" for row in [head, *rows]), encoding="utf-8")
    listed.write_text(json.dumps(dict(sorted(boxes.items())), ensure_ascii=False, separators=(",", ":"))
                      .replace('{"text"', '\n{"text"') + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
