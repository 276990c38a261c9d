"""Mercator projection of one panel: degrees to points of the sheet, y downwards."""
import math

EARTH_RADIUS_KM = 6371.0088


def _northing(latitude):
    return math.degrees(math.log(math.tan(math.radians(45 + latitude / 2))))


class Projection:
    def __init__(self, west, east, south, rect):
        self.west, self.east, self.south = west, east, south
        self.x, self.y, self.width, self.height = rect
        self.scale = self.width / (east - west)
        self._base = _northing(south)
        top = math.radians(self._base + self.height / self.scale)
        self.north = math.degrees(2 * math.atan(math.exp(top))) - 90

    def point(self, latitude, longitude):
        return (self.x + (longitude - self.west) * self.scale,
                self.y + self.height - (_northing(latitude) - self._base) * self.scale)

    def points(self, lonlats):
        return [self.point(lat, lon) for lon, lat in lonlats]

    def points_per_km(self):
        """At the middle latitude; Mercator stretches a little to the north of it."""
        middle = math.radians((self.south + self.north) / 2)
        return self.scale / math.cos(middle) / math.radians(1) / EARTH_RADIUS_KM

    def contains(self, latitude, longitude):
        return self.west <= longitude <= self.east and self.south <= latitude <= self.north
