"""One drawn frame of land and water with its names and journeys: the sheet's map, or an inset of it."""
import math
from dataclasses import replace

from shapely.geometry import LineString, MultiPolygon, Point, box
from shapely.ops import unary_union

import areas
import curves
import routes
import style
import symbols
from area_names import OVERLAP, AreaNames
from lettering import PathLine, kind
from placement import Placer, PointLabel
from projection import Projection
from style import rgb
from waters import Waters, polygons

POINT_ROLES = ("city", "landmark", "mountain")
LAST_DRAWN = ("refuge", "disputed refuge", "capital")  # symbols that nothing may cover
STREAM_WIDTHS = {0: 1.7, 1: 1.7, 2: 1.3, 3: 1.0, 4: 0.9, 5: 0.8, 6: 0.7}


def _trace(context, shape):
    for polygon in polygons(shape):
        for ring in (polygon.exterior, *polygon.interiors):
            context.new_sub_path()
            for point in ring.coords[:-1]:
                context.line_to(*point)
            context.close_path()


def _rect_around(x, y, radius):
    return x - radius, y - radius, x + radius, y + radius


class Panel:
    def __init__(self, sheet, number, tables, rect, blanks=()):
        self.sheet, self.number, self.tables, self.rect = sheet, number, tables, rect
        self.enlarged = []  # projections of the insets, which show what lies in them
        self.blanks = blanks  # boxes that will be drawn over this panel
        self.projection = Projection(sheet["west"], sheet["east"], sheet["south"], rect)
        self.bounds = (rect[0], rect[1], rect[0] + rect[2], rect[1] + rect[3])
        self._edge = box(*self.bounds).buffer(30)
        self.names = []  # every line of text set in this panel
        self.labels = []  # the names of towns and other points
        self.drawn = set()  # names of the places that stand here
        self.marks, self.line_kinds = set(), set()  # what the legend must explain
        self.faults = []  # names that found no place
        self._tints = []
        self._read_waters()
        self._read_routes()

    # What there is to draw

    def _read_waters(self):
        self._lines = [(name, sort, [self.projection.point(*point) for point in points])
                       for name, sort, points in self.tables.lines(self.number)]
        if self.sheet.get("plan"):
            self.land, self.lakes, self.rivers = self._edge, MultiPolygon(), []
        else:
            waters = Waters(self.projection, self.sheet, self._lines, self._edge)
            self.land, self.lakes, self.rivers = waters.land, waters.lakes, waters.rivers

    def _read_routes(self):
        self.routes, self.stops = [], {}  # stops: the numbers and colours of each, by name
        number = 0
        for index, entry in enumerate(self.sheet.get("routes", [])):
            stops, path = self.tables.route(self.number, entry["name"])
            colour = entry.get("colour", index)
            for name, _ in stops:
                number += 1
                self.stops.setdefault(name, []).append((number, style.ROUTE_COLOURS[colour]))
            points = [self.projection.point(*point) for point in path]
            self.routes.append(routes.Route(points, colour, entry.get("offset", 1.7)))

    # Drawing, from the ground up

    def draw(self, context):
        context.save()
        context.rectangle(*self.rect)
        context.clip()
        self._draw_ground(context)
        self._draw_areas(context)
        self._draw_streams(context)
        self._draw_works(context)
        self._draw_names_and_routes(context)
        context.restore()

    def _draw_ground(self, context):
        context.set_source_rgb(*rgb(style.LAND if self.sheet.get("plan") else style.SEA))
        context.paint()
        if self.sheet.get("plan"):
            return
        context.set_line_join(1)
        for wide, colour in style.SEA_BANDS:
            context.new_path()
            _trace(context, self.land)
            context.set_source_rgb(*rgb(colour))
            context.set_line_width(2 * wide)
            context.stroke()
        context.new_path()
        _trace(context, self.land)
        context.set_source_rgb(*rgb(style.LAND))
        context.fill()

    def _draw_areas(self, context):
        borders = [curves.smooth(points) for _, sort, points in self._lines if sort == "border"]
        if self.sheet.get("areas"):
            self._tint_areas(context, borders)
        if not borders:
            return
        self.line_kinds.add("border")
        context.save()
        context.new_path()
        _trace(context, self.land)
        context.clip()
        for points in borders:
            context.new_path()
            for point in points:
                context.line_to(*point)
            context.set_source_rgb(*rgb(style.BORDER))
            context.set_line_width(1.1)
            context.set_dash([5, 2, 1.2, 2])
            context.stroke()
        context.restore()

    def _tint_areas(self, context, borders):
        """Tinted areas, each with a deeper rim inside its border."""
        tinted = self.sheet["areas"]
        to_points = self.projection.point
        shared = [_point(to_points(*spot)) for spot in self.sheet.get("wall_rivers", [])]
        walls = [self.lakes] + [line for level, line in self.rivers
                                if level == 2 or any(line.distance(spot) < 4 for spot in shared)]
        found = areas.faces(borders, walls, self.land, self.rect)
        tints = {}
        self._tints = []
        for entry in tinted:
            parts = [areas.face_at(found, *to_points(*seed)) for seed in entry["seeds"]]
            whole = unary_union([part.buffer(0.05) for part in parts if part])
            self._tints.append((whole, entry["tint"], entry["name"]))
            tints.setdefault(entry["tint"], []).append((whole, entry))
        for tint, wholes in tints.items():
            for whole, entry in wholes:
                context.save()
                context.new_path()
                _trace(context, whole)
                context.set_source_rgb(*rgb(tint))
                context.fill_preserve()
                context.clip()
                _trace(context, whole)
                context.set_source_rgba(*rgb(entry["rim"]), 0.75)
                context.set_line_width(7)
                context.set_line_join(1)
                context.stroke()
                context.restore()

    def area_at(self, x, y):
        """The name of the tinted area that holds the point, or None."""
        return next((name for whole, _, name in self._tints if whole.contains(_point((x, y)))), None)

    def _draw_streams(self, context):
        context.set_line_join(1)
        context.set_line_cap(1)
        for level, line in self.rivers:
            context.new_path()
            for point in line.coords:
                context.line_to(*point)
            context.set_source_rgb(*rgb(style.RIVER))
            context.set_line_width(STREAM_WIDTHS[level])
            if level > 4:
                self.line_kinds.add("wadi")
                context.set_dash([3.2, 2.6])  # water courses that are dry for most of the year
            context.stroke()
            context.set_dash([])
        context.set_line_cap(0)
        context.new_path()
        _trace(context, self.lakes)
        context.set_source_rgb(*rgb(style.LAKE))
        context.fill_preserve()
        context.set_source_rgb(*rgb(style.SHORE))
        context.set_line_width(0.8)
        context.stroke()
        if not self.sheet.get("plan"):
            context.new_path()
            _trace(context, self.land)
            context.stroke()

    def _draw_works(self, context):
        """Overridden by the plan of a city."""

    def _draw_names_and_routes(self, context):
        points = self._point_labels()
        heads = self._arrow_heads(points)
        self._set_area_names(points, heads)
        placer = Placer(self.bounds)
        for line in self.names:
            placer.keep_off_quads(line.quads)
        for blank in self.blanks:
            placer.keep_off(blank)
        for shape, cost in self._solid_things():
            placer.keep_off(shape.bounds, cost)
        for label in points:
            if label.mark != "none":
                placer.keep_off_dot(label.x, label.y, label.radius)
        for _, x, y, _ in heads:
            placer.keep_off(_rect_around(x, y, 4), 60)
        for rect in self.enlarged_rects():
            placer.keep_clear_of(box(*rect).boundary)
        for route in self.routes:
            placer.avoid(route.line, 0.9)
        placer.avoid(self.land.boundary, 0.25)
        for lake in polygons(self.lakes):
            placer.avoid(lake.boundary, 0.4)
        for _, line in self.rivers:
            placer.avoid(line, 0.12)
        for _, sort, line in self._lines:
            if sort in ("border", "wall"):
                placer.avoid(LineString(line), 0.15 if sort == "border" else 0.8)
        self.faults += placer.place(points)
        self.labels = points

        for line in self.names:
            line.draw(context, self._halo(line))
        for route in self.routes:
            route.draw(context)
        for colour, *head in heads:
            routes.draw_head(context, colour, *head)
        for label in points:
            if label.chosen.leader:
                _draw_leader(context, label)
        for label in points:
            symbols.draw(context, label.mark, label.x, label.y)
            self.marks.add(label.mark)
        for label in points:
            for line in label.lines:
                line.draw(context, self._halo(line))
                self.names.append(line)

    def _arrow_heads(self, points):
        keep_off = [(label.x, label.y, label.radius) for label in points]
        heads = []
        for route, entry in zip(self.routes, self.sheet.get("routes", [])):
            taken = keep_off + [(x, y, 4) for _, x, y, _ in heads]
            every = entry.get("every", 100)
            for head in route.arrows(every, entry.get("clear", 8), taken, self.bounds):
                if not any(_inside(blank, *head[:2]) for blank in [*self.blanks, *self.enlarged_rects()]):
                    heads.append((route.colour, *head))
        return heads

    def _solid_things(self):
        """(shape, cost) of what names had better not cover."""
        return [(island, 30) for island in polygons(self.land) if island.area < 400]

    def enlarged_rects(self):
        """What each inset shows, as rectangles of this panel in points."""
        for part in self.enlarged:
            x0, y1 = self.projection.point(part.south, part.west)
            x1, y0 = self.projection.point(part.north, part.east)
            yield x0, y0, x1, y1

    def _halo(self, line):
        xs = [x for quad in line.quads for x, _ in quad]
        ys = [y for quad in line.quads for _, y in quad]
        around = box(min(xs), min(ys), max(xs), max(ys))
        if self.land.intersection(around).area < 0.35 * around.area:
            return style.SEA
        middle = around.centroid
        return next((tint for whole, tint, _ in self._tints if whole.contains(middle)), style.LAND)

    # Names

    def _shown_places(self):
        for place in self.tables.places(self.number):
            given = self.sheet.get("labels", {}).get(place.name, {})
            if given.get("hide"):
                continue
            if "at" in given:
                place = replace(place, latitude=given["at"][0], longitude=given["at"][1])
            if any(part.contains(place.latitude, place.longitude) for part in self.enlarged) and \
                    place.name not in self.sheet.get("keep", []):
                continue
            if not self.projection.contains(place.latitude, place.longitude):
                continue
            x, y = self.projection.point(place.latitude, place.longitude)
            if not any(_inside(blank, x, y) for blank in self.blanks):
                self.drawn.add(place.name)
                yield place, given

    def _mark(self, name):
        place = self.tables.place(name)
        given = self.sheet.get("labels", {}).get(name, {}).get("mark")
        if given:
            return f"disputed {given}" if place.disputed and given == "refuge" else given
        if place.role not in POINT_ROLES:
            return "none"
        if name in self.sheet.get("capitals", []):
            return "capital"
        if place.role == "mountain":
            return "disputed mountain" if place.disputed else "mountain"
        if place.disputed:
            return "disputed"
        if place.role == "landmark":
            return "landmark"
        return "stop" if name in self.stops else "city"

    def _point_labels(self):
        result = []
        for place, given in self._shown_places():
            if place.role not in POINT_ROLES and given.get("as") != "point":
                continue
            look = given.get("look") or ("capital" if place.name in self.sheet.get("capitals", []) else
                                         "stop" if place.name in self.stops else place.role)
            x, y = self.projection.point(place.latitude, place.longitude)
            dx, dy = given.get("shift", (0, 0))  # of two symbols that would lie on each other
            changes = {key: given[key] for key in ("size",) if key in given}
            if place.name in self.stops:
                changes["bold"] = True
            mark, side = self._mark(place.name), given.get("side")
            result.append(PointLabel(place.name, given.get("text", place.text), kind(look, **changes), x + dx, y + dy,
                                     given.get("radius", symbols.RADIUS[mark]), side.split() if side else None,
                                     given.get("leader"), self.stops.get(place.name, []), mark))
        return sorted(result, key=lambda label: label.mark in LAST_DRAWN)

    def _set_area_names(self, points, heads):
        finder = AreaNames(self.bounds)
        for blank in self.blanks:
            finder.keep_off(box(*blank).buffer(3))
        for shape, cost in self._solid_things():
            finder.keep_off(shape, cost)
        for label in points:
            finder.keep_off(_point((label.x, label.y)).buffer(label.radius + 1), OVERLAP)
            finder.keep_off(box(label.x - 30, label.y - 6, label.x + 40, label.y + 6), 5)
        for _, x, y, _ in heads:
            finder.keep_off(_point((x, y)).buffer(6), 40)
        for rect in self.enlarged_rects():
            finder.avoid(box(*rect).boundary, 2.0)
        for route in self.routes:
            finder.avoid(route.line, 1.6)
        for _, line in self.rivers:
            finder.avoid(line, 0.6)
        for _, sort, line in self._lines:
            if sort in ("border", "wall"):
                finder.avoid(LineString(line), 1.2)
        for water in (self.land, *polygons(self.lakes)):
            finder.avoid(water.boundary, 0.9)
        for given in self.sheet.get("texts", []):  # words on the map that are no place of the table
            if "path" in given:
                path = curves.smooth([self.projection.point(*point) for point in given["path"]])
                self._stand(finder, [PathLine(given["text"], kind(given["look"]), path, given.get("above", 3))])
                continue
            x, y = self.projection.point(*given["at"])
            self._stand(finder, finder.near(given["text"], kind(given["look"]), x, y,
                                            math.radians(given.get("angle", 0)), given.get("reach", 33)))
        names = [(place, given) for place, given in self._shown_places()
                 if place.role not in POINT_ROLES and given.get("as") != "point"]
        # What has least freedom comes first: names on a given path, then seas and regions, then rivers.
        names.sort(key=lambda name: ("path" not in name[1], name[0].role == "river", name[0].role != "sea"))
        for place, given in names:
            self._stand(finder, self._area_name(finder, place, given))
        self.faults += finder.faults

    def _stand(self, finder, lines):
        finder.stand(lines)
        self.names += lines

    def _area_name(self, finder, place, given):
        changes = {key: given[key] for key in ("size", "spacing", "bold", "colour", "halo") if key in given}
        if place.name in self.stops:
            changes["bold"] = True
        look = kind(given.get("look", place.role), **changes)
        text = given.get("text", place.text)
        if "path" in given:
            path = curves.smooth([self.projection.point(*point) for point in given["path"]])
            return [PathLine(text, look, path, given.get("above", 3))]
        x, y = self.projection.point(place.latitude, place.longitude)
        x, y = x + given.get("dx", 0), y + given.get("dy", 0)
        if place.role == "river" and "angle" not in given:
            beside = [line for _, line in self.rivers if line.distance(_point((x, y))) < 30]
            if beside:
                nearest = min(beside, key=lambda line: line.distance(_point((x, y))))
                return finder.along(text, look, nearest, x, y)
        reach = given.get("reach", 0 if {"dx", "dy"} & set(given) else 33)
        inside = next((whole for whole, _, name in self._tints if name == given.get("area")), None)
        return finder.near(text, look, x, y, math.radians(given.get("angle", 0)), reach, inside,
                           self.stops.get(place.name, []))


def _draw_leader(context, label):
    (x0, y0), (x1, y1) = label.chosen.leader
    context.new_path()
    context.move_to(x0, y0)
    context.line_to(x1, y1)
    context.set_source_rgb(*rgb("#6d6152"))
    context.set_line_width(0.7)
    context.stroke()


def _inside(rect, x, y):
    return rect[0] <= x <= rect[2] and rect[1] <= y <= rect[3]


def _point(spot):
    return Point(spot)
