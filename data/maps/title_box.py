"""Title, subtitle, legend, scale bar and north mark on a card: one under the other, or in two columns."""
import math

import routes
import style
import symbols
from furniture import draw_card
from lettering import Badge, Line, badge_width, width
from style import ROUTE_COLOURS, ROUTE_DASHES, ROUTE_WIDTH, TYPES, rgb

PADDING, ROW, INDENT, PASSAGE_ROW, PASSAGE_GAP, COLUMN_GAP = 11, 16, 38, 13.5, 4.5, 16
PASSAGE_WIDTH = 228  # a row of passages is filled to here
MARKS = {"stop": "Bold: named as a stop on the way", "city": "Town", "disputed": "Site disputed or unsure",
         "capital": "Capital", "refuge": "City of refuge", "disputed refuge": "City of refuge, site disputed",
         "mountain": "Mountain", "disputed mountain": "Mountain, site disputed",
         "landmark": "Camp, well or other place"}
LINES = {"border": ("Border, approximate", style.BORDER, 1.1, [5, 2, 1.2, 2]),
         "wadi": ("Stream, dry for most of the year", style.RIVER, 0.8, [3.2, 2.6]),
         "wall": ("City wall", "#5c4a33", 4.4, []),
         "conjecture": ("City wall, conjectured", "#5c4a33", 4.4, [7, 3]),
         "road": ("Road", "#b89c74", 2.0, [6, 2]),
         "brook": ("Brook in winter", style.RIVER, 1.1, [5, 3])}


class TitleBox:
    """Knows its size before it is drawn."""

    def __init__(self, sheet, projection, tables):
        self.projection = projection
        self.lines = []  # every line of text set in the box
        self.numbers = []  # of the stops, in the order of the legend
        self._heads = [(24, text, TYPES["title"]) for text in sheet["box_title"].split("\n")]
        self._heads += [(ROW, text, TYPES["subtitle"]) for text in sheet["subtitle"].split("\n")]
        self._wrap, self._gap = sheet.get("passage_width", PASSAGE_WIDTH), sheet.get("box_gap", 12)
        journeys = self._journeys(sheet, tables)
        # Each key of the legend: row height, caption, and what draws its sample at (x, y).
        keys = [(ROW, entry["caption"], _swatch, entry) for entry in sheet.get("swatches", [])]
        own = sheet.get("captions", {})
        keys += [(ROW, own.get(mark, MARKS[mark]), _mark, mark) for mark in sheet.get("marks", [])]
        keys += [(ROW, own.get(line, LINES[line][0]), _line, line) for line in sheet.get("lines", [])]
        self._columns = [journeys, keys] if sheet.get("columns") == 2 else [journeys + keys]
        self._widths = [max([150] + [self._row_width(row) for row in column]) for column in self._columns]
        high = [sum(row[0] for row in column) for column in self._columns]
        self._scale_column = high.index(min(high))
        high[self._scale_column] += 44
        heads = max(width(text, look) for _, text, look in self._heads)
        across = max(178, heads, sum(self._widths) + COLUMN_GAP * (len(self._columns) - 1))
        self.size = across + 2 * PADDING, sum(row[0] for row in self._heads) + max(high) + 10 + 2 * PADDING - 4

    def _journeys(self, sheet, tables):
        """A row for each journey, and under it rows of numbers with the passages that name the stops."""
        rows, number = [], 0
        for index, entry in enumerate(sheet.get("routes", [])):
            colour = entry.get("colour", index)
            rows.append((ROW, entry["caption"], _route_sample, colour))
            book, row = "", []
            for _, passage in tables.route(sheet["number"], entry["name"])[0]:
                number += 1
                self.numbers.append([number, passage])
                shown = passage.removeprefix(book + " ") if book else passage
                book = passage.rsplit(" ", 1)[0]
                if row and self._passages_width([*row, (number, shown)]) > self._wrap:
                    rows.append((PASSAGE_ROW, row, None, colour))
                    shown, row = passage, []
                row.append((number, shown))
            rows.append((PASSAGE_ROW, row, None, colour))
        return rows

    def _passages_width(self, row):
        return sum(badge_width(number) + 2.5 + width(passage, TYPES["passage"]) + PASSAGE_GAP
                   for number, passage in row) - PASSAGE_GAP

    def _row_width(self, row):
        _, caption, draw_sample, _ = row
        if draw_sample is None:
            return self._passages_width(caption) + 4
        return INDENT + 4 + width(caption, TYPES["legend"])

    def rect(self, area, corner):
        x, y, wide, high = area
        (w, h), gap = self.size, self._gap
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
        for index, (column, wide) in enumerate(zip(self._columns, self._widths)):
            self._draw_column(context, column, x, y + 6)
            if index == self._scale_column:
                end = right - PADDING if index == len(self._columns) - 1 else x + wide
                _scale_bar(context, self.projection, x, bottom - PADDING - 14, self.lines)
                _north(context, end - 8, bottom - PADDING - 12)
            x += wide + COLUMN_GAP

    def _draw_column(self, context, column, x, y):
        for high, caption, draw_sample, sample in column:
            y += high
            if draw_sample is None:
                self._write_passages(context, caption, ROUTE_COLOURS[sample], x, y - 3)
                continue
            draw_sample(context, sample, x, y - 6)
            self._write(context, caption, TYPES["legend"], x + INDENT, y - 2)

    def _write_passages(self, context, row, colour, x, y):
        look = TYPES["passage"]
        for number, passage in row:
            badge = Badge(number, colour, x, y - 3.4)
            badge.draw(context, style.PAPER)
            self.lines.append(badge)
            x += badge_width(number) + 2.5
            self._write(context, passage, look, x, y)
            x += width(passage, look) + PASSAGE_GAP

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


def _line(context, kind, x, y):
    _, colour, wide, dashes = LINES[kind]
    context.new_path()
    context.move_to(x, y)
    context.line_to(x + 30, y)
    context.set_source_rgb(*rgb(colour))
    context.set_line_width(wide)
    context.set_dash(dashes)
    context.stroke_preserve()
    context.set_dash([])
    if kind == "wall":
        context.set_source_rgb(*rgb("#c9b08a"))
        context.set_line_width(1.6)
        context.stroke()
    context.new_path()


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
