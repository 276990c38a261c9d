"""Finds a place for the names of regions, waters and peoples: near where they belong, off lines and towns."""
import math

from shapely.geometry import LineString, Point, Polygon, box
from shapely.ops import substring, unary_union

from lettering import Line, PathLine, ascent, badge_row, badges_width, width

LEADING = 1.12
RINGS = (0, 6, 12, 18, 25, 33, 42, 52)
OVERLAP, CUT = 400.0, 500.0


class AreaNames:
    def __init__(self, bounds):
        self.bounds = bounds
        self._room = box(bounds[0] + 5, bounds[1] + 5, bounds[2] - 5, bounds[3] - 5)
        self._solid = []  # (shape, its bounds, cost of touching it)
        self._lines = []  # (line, its bounds, cost per point of length)
        self.faults = []

    def keep_off(self, shape, cost=OVERLAP):
        self._solid.append((shape, shape.bounds, cost))

    def avoid(self, line, cost):
        if not line.is_empty:
            self._lines.append((line, line.bounds, cost))

    def stand(self, lines):
        """Sets the lines; `faults` gains a sentence if they lie on something solid or leave the frame."""
        shape = unary_union([Polygon(quad) for line in lines for quad in line.quads])
        if not self._room.buffer(2).contains(shape) or any(
                price >= OVERLAP and other.intersects(shape) for other, _, price in self._solid):
            self.faults.append(f"{' '.join(line.text for line in lines)} finds no room")
        for line in lines:
            for quad in line.quads:
                self.keep_off(Polygon(quad))

    def near(self, text, look, x, y, angle=0.0, reach=33, inside=None, numbers=()):
        """The name centred on (x, y), or a little off where that is better; within the shape `inside` if it can."""
        def options():
            for ring in RINGS:
                if ring > reach:
                    break
                for step in range(12 if ring else 1):
                    turn = step * math.pi / 6
                    place = x + ring * 1.4 * math.cos(turn), y + ring * math.sin(turn)
                    lines = centred(text, look, *place, angle, numbers)
                    out = 0 if inside is None else sum(Polygon(quad).difference(inside).area
                                                       for line in lines for quad in line.quads)
                    yield ring * 0.35 + out, lines
        return self._best(options())

    def along(self, text, look, river, x, y):
        """The name along a river, above or below it, about as near (x, y) as may be."""
        need = width(text, look) + 8
        calm = _calm(river)
        middle = calm.project(Point(x, y))
        tries = []
        for shift in range(-160, 161, 8):
            start = middle + shift - need / 2
            if start < 0 or start + need > calm.length:
                continue
            points = list(substring(calm, start, start + need).coords)
            (x0, y0), (x1, y1) = points[0], points[-1]
            if x1 < x0 - 2 or (abs(x1 - x0) <= 2 and y1 > y0):
                points.reverse()
            bend = _bend(points)
            for above in (3.5, 5.5, -(ascent(look) + 3.5), -(ascent(look) + 5.5)):
                tries.append((abs(shift) * 0.2 + bend * 22 + (above < 0), [PathLine(text, look, points, above)]))
        return self._best(tries) if tries else self.near(text, look, x, y)

    def _best(self, options):
        _, _, lines = min(((cost + self._cost(lines), index, lines)
                           for index, (cost, lines) in enumerate(options)), key=lambda option: option[:2])
        return lines

    def _cost(self, lines):
        shape = unary_union([Polygon(quad) for line in lines for quad in line.quads]).buffer(1.5)
        cost = 0 if self._room.contains(shape) else CUT + shape.difference(self._room).area
        left, top, right, bottom = shape.bounds
        for other, (a, b, c, d), price in self._solid:
            if a < right and c > left and b < bottom and d > top and other.intersects(shape):
                cost += price
        for line, (a, b, c, d), price in self._lines:
            if a < right and c > left and b < bottom and d > top and line.intersects(shape):
                cost += price * (3 + line.intersection(shape).length)
        return cost


def _calm(river, step=3.0, reach=7):
    """The river without its meanders: each point the mean of its neighbours."""
    count = max(2, round(river.length / step))
    points = [river.interpolate(index / count, normalized=True).coords[0] for index in range(count + 1)]
    calm = []
    for index in range(len(points)):
        span = min(reach, index, len(points) - 1 - index)
        part = points[index - span:index + span + 1]
        calm.append((sum(x for x, _ in part) / len(part), sum(y for _, y in part) / len(part)))
    return LineString(calm)


def _bend(points):
    """How much the line turns in all, in radians."""
    turns = [math.atan2(b[1] - a[1], b[0] - a[0]) for a, b in zip(points[::3], points[3::3])]
    return sum(abs((b - a + math.pi) % (2 * math.pi) - math.pi) for a, b in zip(turns, turns[1:]))


def centred(text, look, x, y, angle=0.0, numbers=()):
    """Rows of text about (x, y); the numbers of a stop before the first, where the text is level."""
    rows = text.split("\n")
    lines = []
    if numbers:
        x += badges_width(numbers) / 2
        top = y - (len(rows) - 1) / 2 * look.size * LEADING
        lines += badge_row(numbers, x - width(rows[0], look) / 2 - badges_width(numbers) - 1.5, top)
    for index, row in enumerate(rows):
        along = -width(row, look) / 2
        down = (index - (len(rows) - 1) / 2) * look.size * LEADING + ascent(look) / 2
        lines.append(Line(row, look, x + along * math.cos(angle) - down * math.sin(angle),
                          y + along * math.sin(angle) + down * math.cos(angle), angle))
    return lines
