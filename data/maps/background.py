"""Land, lakes and rivers of a frame, as shapes in longitude and latitude, from GSHHG by way of GMT."""
import re
import subprocess
import tempfile

from shapely.geometry import LineString, MultiLineString, box
from shapely.ops import linemerge, polygonize, unary_union

MARGIN = 0.6  # degrees kept around the frame, so that shores drawn with a border have none at its edge
INSET = 0.002  # GMT ends its lines on the edge of the region; an edge just inside is crossed for sure


def _gmt(*arguments, text=None):
    with tempfile.TemporaryDirectory() as folder:  # GMT leaves a history file where it works
        return subprocess.run(["gmt", *arguments], cwd=folder, input=text, capture_output=True, text=True, check=True).stdout


def _segments(listing):
    """(level, line) of each segment of a GMT listing."""
    level, points = None, []
    for row in listing.splitlines() + [">"]:
        if row.startswith((">", "#")):
            if len(points) > 1:
                yield level, LineString(points)
            points = []
            found = re.search(r"Level (\d+)", row)
            level = int(found[1]) if found else None
        else:
            longitude, latitude = map(float, row.split()[:2])
            points.append((round(longitude, 5), round(latitude, 5)))


class Background:
    def __init__(self, projection, min_area, river_levels):
        west, east = projection.west - MARGIN, projection.east + MARGIN
        south, north = projection.south - MARGIN, projection.north + MARGIN
        self._region = f"-R{west}/{east}/{south}/{north}"
        self._area = f"-A{min_area}/0/4"
        self._edge = box(west + INSET, south + INSET, east - INSET, north - INSET)
        shores = list(_segments(_gmt("coast", "-M", "-Dh", "-W", self._region, self._area)))
        self.land = self._faces([line for level, line in shores if level == 1], "s/k/k/k/k")
        self.lakes = self._faces([line for level, line in shores if level == 2], "s/s/k/s/s")
        self.rivers = {level: self._rivers(level) for level in river_levels}

    def _rivers(self, level):
        listing = _gmt("coast", "-M", "-Dh", f"-I{level}", self._region)
        lines = [line for _, line in _segments(listing)]
        merged = linemerge(lines) if lines else MultiLineString()
        return [merged] if merged.geom_type == "LineString" else list(merged.geoms)

    def _faces(self, lines, keep):
        """The faces that the lines cut the frame into, those kept whose inside GMT calls so."""
        faces = list(polygonize(unary_union([*lines, self._edge.exterior])))
        faces = [face for face in faces if self._edge.contains(face.representative_point())]
        asked = [face.representative_point() for face in faces]
        answer = _gmt("select", f"-N{keep}", "-Dh", self._region, self._area,
                      text="".join(f"{point.x} {point.y} {index}\n" for index, point in enumerate(asked)))
        return unary_union([faces[int(float(row.split()[2]))] for row in answer.splitlines()])
