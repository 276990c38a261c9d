"""Coloured areas: the faces that borders, coast and waters cut a panel into, found by a point inside."""
import math

from shapely.geometry import LineString, Point, box
from shapely.ops import polygonize, unary_union


def _stretched(points, by):
    """The line a little longer at both ends, so that it surely meets the coast or border it stops at."""
    def beyond(a, b):
        length = math.dist(a, b) or 1
        return a[0] + (a[0] - b[0]) / length * by, a[1] + (a[1] - b[1]) / length * by
    return [beyond(points[0], points[1]), *points, beyond(points[-1], points[-2])]


def faces(borders, walls, land, rect):
    """`borders` are lists of points; `walls` are shapes (rivers, lakes) that also divide the land."""
    x, y, wide, high = rect
    edge = box(x, y, x + wide, y + high)
    lines = [LineString(_stretched(points, 12)) for points in borders]
    for wall in walls:
        if wall.geom_type.endswith("Polygon"):
            lines.append(wall.boundary)
        else:
            lines.append(LineString(_stretched(list(wall.coords), 8)))
    lines += [land.boundary, edge.boundary]
    return [face for face in polygonize(unary_union(lines)) if land.contains(face.representative_point())]


def face_at(found, x, y):
    return next((face for face in found if face.contains(Point(x, y))), None)
