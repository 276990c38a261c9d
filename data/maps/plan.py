"""The plan of a city: hills, valleys, roads, walls, buildings and pools instead of coast and rivers."""
from shapely.geometry import LineString, Point, Polygon
from shapely.ops import unary_union

import curves
import style
from panel import Panel
from style import rgb

HILL_STEPS = [(1.0, "#f4ecd9"), (0.7, "#f1e7d0"), (0.4, "#eee2c7")]
VALLEY_STEPS = [(36, "#f0f0de"), (24, "#e8ebd4"), (12, "#dfe5c8")]
CITY, PLATFORM, BUILDING = "#f1ddc0", "#f7edd6", "#d3b68b"
ROAD = "#b89c74"


class Plan(Panel):
    def _draw_works(self, context):
        self._draw_hills(context)
        self.line_kinds |= {sort for _, sort, _ in self._lines if sort in ("brook", "road", "wall")}
        if self.sheet.get("conjecture"):
            self.line_kinds.add("conjecture")
        for wide, colour in VALLEY_STEPS:
            for points in self._of_sort("valley"):
                self._stroke(context, curves.smooth(points), wide, colour)
        for points in self._of_sort("brook"):
            self._stroke(context, curves.smooth(points), 1.1, style.RIVER, [5, 3])
        city = self._city()
        self._fill(context, city, CITY)
        for points in self._of_sort("valley"):  # the valley inside the walls shows through, paler
            self._stroke(context, curves.smooth(points), 7, VALLEY_STEPS[1][1], within=city)
        for points in self._of_sort("road"):
            self._stroke(context, curves.smooth(points), 3.6, style.PAPER)
            self._stroke(context, curves.smooth(points), 2.0, ROAD, [6, 2])
        for name, points in self._named("wall"):
            if points[0] == points[-1]:
                self._fill(context, Polygon(points), PLATFORM)
        for points in self._of_sort("porch"):
            self._stroke(context, points, 4.2, BUILDING)
        for points in self._of_sort("building"):
            self._fill(context, Polygon(points), BUILDING, "#7d6240")
        for points in self._of_sort("water"):
            self._fill(context, Polygon(points), "#a9cbe0", style.SHORE)
        for name, points in self._named("wall"):
            conjecture = name in self.sheet.get("conjecture", [])
            self._stroke(context, points, 4.4, "#5c4a33", [7, 3] if conjecture else [])
            if not conjecture:
                self._stroke(context, points, 1.6, "#c9b08a")

    def _named(self, sort):
        return [(name, points) for name, kind, points in self._lines if kind == sort]

    def _of_sort(self, sort):
        return [points for _, points in self._named(sort)]

    def _city(self):
        """What the walls and the fortress that joins them enclose."""
        ring = [LineString(points).buffer(6) for points in self._of_sort("wall")]
        ring += [Polygon(points).buffer(2) for points in self._of_sort("building")]
        whole = unary_union([Polygon(part.exterior) for part in _parts(unary_union(ring))])
        return max(_parts(whole), key=lambda part: part.area).buffer(-5)

    def _draw_hills(self, context):
        """Rounded heights in a few even steps: circles about summits (latitude, longitude, reach), joined in a row."""
        for share, colour in HILL_STEPS:
            for hill in self.sheet.get("hills", []):
                circles = [Point(self.projection.point(*summit[:2])).buffer(summit[2] * share)
                           for summit in hill["summits"]]
                joined = [one.union(other).convex_hull for one, other in zip(circles, circles[1:])]
                self._fill(context, unary_union(joined or circles).buffer(-12).buffer(12), colour)

    def _solid_things(self):
        shapes = [Polygon(points) for sort in ("building", "water") for points in self._of_sort(sort)]
        return [(shape, 45) for shape in shapes]

    def _stroke(self, context, points, wide, colour, dashes=(), within=None):
        context.save()
        if within is not None:
            self._trace_all(context, within)
            context.clip()
        context.new_path()
        for point in points:
            context.line_to(*point)
        context.set_source_rgb(*rgb(colour))
        context.set_line_width(wide)
        context.set_line_join(1)
        context.set_line_cap(0 if dashes else 1)
        context.set_dash(list(dashes))
        context.stroke()
        context.restore()

    def _fill(self, context, shape, colour, rim=None):
        self._trace_all(context, shape)
        context.set_source_rgb(*rgb(colour))
        context.fill_preserve()
        if rim:
            context.set_source_rgb(*rgb(rim))
            context.set_line_width(1)
            context.stroke()
        context.new_path()

    def _trace_all(self, context, shape):
        context.new_path()
        for part in _parts(shape):
            for point in part.exterior.coords:
                context.line_to(*point)
            context.close_path()


def _parts(shape):
    return list(getattr(shape, "geoms", [shape]))
