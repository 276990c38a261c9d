"""Journeys: a smooth line a little to the right of the way, so that out and back lie side by side; arrow heads."""
import math

from shapely.geometry import LineString

import curves
from style import PAPER, ROUTE_COLOURS, ROUTE_DASHES, ROUTE_WIDTH, rgb


class Route:
    def __init__(self, points, colour, offset=1.7):
        self.colour = colour
        self.curve = []
        for piece in curves.split_at_turns(points):
            self.curve += curves.beside(curves.smooth(piece), offset)
        self.line = LineString(self.curve)

    def draw(self, context):
        for colour, wide, dashes in ((PAPER, ROUTE_WIDTH + 1.8, []),
                                     (ROUTE_COLOURS[self.colour], ROUTE_WIDTH, ROUTE_DASHES[self.colour])):
            context.new_path()
            for point in self.curve:
                context.line_to(*point)
            context.set_source_rgba(*rgb(colour), 0.7 if colour == PAPER else 1)
            context.set_line_width(wide)
            context.set_dash(dashes)
            context.set_line_join(1)
            context.set_line_cap(0)
            context.stroke()
        context.set_dash([])

    def arrows(self, every, clear_by, keep_off, bounds):
        """Where heads go: (x, y, angle), evenly along the way but clear of the towns and within the panel."""
        length, result = self.line.length, []
        count = max(1, round(length / every))
        for index in range(count):
            middle = (index + 0.5) * length / count
            for shift in _shifts(0.48 * length / count):
                at = middle + shift
                if at < 9 or at > length - 3:
                    continue
                here, before = self.line.interpolate(at), self.line.interpolate(at - 7)
                left, top, right, bottom = bounds
                inside = left + 8 < here.x < right - 8 and top + 8 < here.y < bottom - 8
                clear = all(math.hypot(here.x - x, here.y - y) > clear_by + radius for x, y, radius in keep_off)
                if inside and clear:
                    result.append((here.x, here.y, math.atan2(here.y - before.y, here.x - before.x)))
                    break
        return result


def _shifts(most):
    yield 0
    step = 3
    while step < most:
        yield step
        yield -step
        step += 3


def draw_head(context, colour, x, y, angle, size=8.5):
    context.save()
    context.translate(x, y)
    context.rotate(angle)
    context.new_path()
    for px, py in ((size * 0.5, 0), (-size * 0.5, -size * 0.42), (-size * 0.28, 0), (-size * 0.5, size * 0.42)):
        context.line_to(px, py)
    context.close_path()
    context.set_source_rgb(*rgb(PAPER))
    context.set_line_width(1.6)
    context.stroke_preserve()
    context.set_source_rgb(*rgb(ROUTE_COLOURS[colour]))
    context.fill()
    context.restore()
