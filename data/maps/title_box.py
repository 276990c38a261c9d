"""Title, subtitle, legend, scale bar and north mark, one under the other on a card."""
import math

import routes
import style
import symbols
from furniture import draw_card
from lettering import Line, width
from style import ROUTE_COLOURS, ROUTE_DASHES, ROUTE_WIDTH, TYPES, rgb

PADDING, ROW, INDENT = 11, 16, 38
MARKS = {"stop": "Bold: named as a stop of the way", "disputed": "Site disputed or unsure", "capital": "Capital", "refuge": "City of refuge",
         "mountain": "Mountain", "landmark": "Camp, well or other place"}


class TitleBox:
    """Knows its size before it is drawn."""

    def __init__(self, sheet, projection):
        self.projection = projection
        self.lines = []  # every line of text set in the box
        self._heads = [(24, text, TYPES["title"]) for text in sheet["box_title"].split("\n")]
        self._heads += [(ROW, text, TYPES["subtitle"]) for text in sheet["subtitle"].split("\n")]
        # Each key of the legend: its caption, and what draws its sample at (x, y).
        self._keys = [(entry["caption"], _route_sample, entry.get("colour", index))
                      for index, entry in enumerate(sheet.get("routes", []))]
        self._keys += [(entry["caption"], _swatch, entry) for entry in sheet.get("swatches", [])]
        own = sheet.get("mark_captions", {})
        self._keys += [(own.get(mark, MARKS[mark]), _mark, mark) for mark in sheet.get("marks", [])]

        wide = max([178] + [width(text, look) for _, text, look in self._heads] +
                   [INDENT + 4 + width(caption, TYPES["legend"]) for caption, _, _ in self._keys])
        high = sum(high for high, _, _ in self._heads) + ROW * len(self._keys) + 54
        self.size = (wide + 2 * PADDING, high + 2 * PADDING - 4)

    def rect(self, area, corner, gap=12):
        x, y, wide, high = area
        w, h = self.size
        left = x + gap if "w" in corner else x + wide - gap - w
        top = y + gap if "n" in corner else y + high - gap - h
        return left, top, left + w, top + h

    def draw(self, context, rect):
        left, top, right, bottom = rect
        draw_card(context, rect)
        x, y = left + PADDING, top + PADDING
        for high, text, look in self._heads:
            y += high
            self._write(context, text, look, x, y - 5)
        y += 4
        _rule(context, x, right - PADDING, y)
        y += 6
        for caption, draw_sample, sample in self._keys:
            y += ROW
            draw_sample(context, sample, x, y - 6)
            self._write(context, caption, TYPES["legend"], x + INDENT, y - 2)
        _scale_bar(context, self.projection, x, bottom - PADDING - 14, self.lines)
        _north(context, right - PADDING - 8, bottom - PADDING - 12)

    def _write(self, context, text, look, x, y):
        line = Line(text, look, x, y)
        line.draw(context, style.PAPER)
        self.lines.append(line)


def _swatch(context, entry, x, y):
    context.rectangle(x + 2, y - 5.5, 26, 10)
    context.set_source_rgb(*rgb(entry["tint"]))
    context.fill_preserve()
    context.set_source_rgb(*rgb(entry["rim"]))
    context.set_line_width(1.4)
    context.stroke()


def _mark(context, mark, x, y):
    symbols.draw(context, mark, x + 15, y)


def _rule(context, x0, x1, y):
    context.new_path()
    context.move_to(x0, y)
    context.line_to(x1, y)
    context.set_source_rgb(*rgb("#b5a68c"))
    context.set_line_width(0.8)
    context.stroke()


def _route_sample(context, colour, x, y):
    context.new_path()
    context.move_to(x, y)
    context.line_to(x + 30, y)
    context.set_source_rgb(*rgb(ROUTE_COLOURS[colour]))
    context.set_line_width(ROUTE_WIDTH)
    context.set_dash(ROUTE_DASHES[colour])
    context.stroke()
    context.set_dash([])
    routes.draw_head(context, colour, x + 18, y, 0)


def _nice(most):
    power = 10 ** math.floor(math.log10(most))
    return next(step * power for step in (5, 2, 1) if step * power <= most)


def _scale_bar(context, projection, x, y, lines):
    """Kilometres above the bar, miles below it."""
    per_km = projection.points_per_km()
    for unit, name, side in ((1, "km", -1), (1.609344, "miles", 1)):
        length = _nice(120 / (per_km * unit))
        span = length * per_km * unit
        for part in range(4):
            context.new_path()
            context.rectangle(x + span * part / 4, y if side > 0 else y - 3, span / 4, 3)
            context.set_source_rgb(*rgb(style.FRAME if (part + (side > 0)) % 2 == 0 else style.PAPER))
            context.fill_preserve()
            context.set_source_rgb(*rgb(style.FRAME))
            context.set_line_width(0.6)
            context.stroke()
        look = TYPES["scale"]
        metres = name == "km" and length < 1
        text = f"{length * 1000:g} m" if metres else f"{length:g} {name}"
        if name == "miles" and length < 1:
            text = f"{length:g} mile"
        line = Line(text, look, x, y - 6.5 if side < 0 else y + 12)
        line.draw(context, style.PAPER)
        lines.append(line)


def _north(context, x, y):
    for side, colour in ((-1, style.FRAME), (1, style.PAPER)):
        context.new_path()
        for px, py in ((0, -13), (side * 4.5, 9), (0, 5)):
            context.line_to(x + px, y + py)
        context.close_path()
        context.set_source_rgb(*rgb(colour))
        context.fill_preserve()
        context.set_source_rgb(*rgb(style.FRAME))
        context.set_line_width(0.7)
        context.set_line_join(1)
        context.stroke()
    look = TYPES["scale"]
    Line("N", look, x - width("N", look) / 2, y - 15.5).draw(context, style.PAPER)
