"""Land, lakes and rivers of a panel in points: as they are today, less what is modern, with what has gone since."""
from shapely.geometry import LineString, Polygon
from shapely.ops import transform, unary_union

import curves
from background import Background

FINEST = 0.4  # wriggles of coast and rivers finer than this (points) only make the picture restless
SMALLEST_LAKE = 12  # square points


class Waters:
    def __init__(self, projection, sheet, lines, edge):
        ground = Background(projection, sheet.get("min_area", 12), sheet.get("rivers", [2, 3]))

        def flat(shape):
            drawn = transform(lambda lon, lat: tuple(zip(*map(projection.point, lat, lon))), shape)
            return drawn.simplify(FINEST).intersection(edge)

        self.land, self.lakes = flat(ground.land), flat(ground.lakes)
        self.rivers = [(level, part) for level, found in ground.rivers.items() for line in found
                       for part in _long_enough(flat(line))]
        self._mask_modern(lines)
        self._add_ancient(lines)

    def _mask_modern(self, lines):
        for _, sort, points in lines:
            if sort == "mask-area":
                self.lakes = self.lakes.difference(Polygon(points).buffer(0))
        self.lakes = unary_union([lake for lake in polygons(self.lakes) if lake.area >= SMALLEST_LAKE])
        for _, sort, points in lines:
            if sort == "mask-line":
                self.land = self.land.union(LineString(points).buffer(2.2))

    def _add_ancient(self, lines):
        for _, sort, points in lines:
            if sort == "lake":
                self.lakes = self.lakes.union(Polygon(curves.smooth(points, 1)).buffer(0))
            elif sort == "river":
                self.rivers.append((3, LineString(curves.smooth(points))))


def polygons(shape):
    return [part for part in getattr(shape, "geoms", [shape]) if isinstance(part, Polygon) and not part.is_empty]


def _long_enough(shape):
    return [part for part in getattr(shape, "geoms", [shape]) if part.length > 1]
