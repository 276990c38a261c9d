"""Reads the three tables: places, routes and lines."""
import csv
import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Place:
    name: str
    latitude: float
    longitude: float
    role: str
    disputed: bool

    @property
    def text(self):
        """The name as it is drawn: a part in parentheses only tells places apart."""
        return re.sub(r" \(.*\)$", "", self.name).replace("'", "\u2019")


def _rows(path):
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE))


def _numbers(field):
    return [int(number) for number in field.split(",")]


def _pair(text):
    latitude, longitude = text.split(",")
    return float(latitude), float(longitude)


class Tables:
    def __init__(self, folder):
        self._places = {row["name"]: row for row in _rows(folder / "places.tsv")}
        self._routes = _rows(folder / "routes.tsv")
        self._lines = _rows(folder / "lines.tsv")

    def place(self, name):
        row = self._places[name]
        score = re.search(r"score (\d+)", row["note"])
        return Place(name, float(row["latitude"]), float(row["longitude"]), row["role"],
                     bool(score) and int(score[1]) < 500 or "disputed" in row["note"])

    def places(self, number):
        return [self.place(name) for name, row in self._places.items() if number in _numbers(row["maps"])]

    def lines(self, number):
        """(name, kind, [(latitude, longitude), ...]) of each line of the map."""
        return [(row["name"], row["kind"], [_pair(point) for point in row["points"].split()])
                for row in self._lines if number in _numbers(row["maps"])]

    def route(self, number, name):
        """The stops as (name, passage), and the path to draw as (latitude, longitude)."""
        row = next(row for row in self._routes if int(row["map"]) == number and row["route"] == name)
        path = []
        for step in row["path"].split(" > "):
            if step.startswith("@"):
                path.append(_pair(step[1:]))
            else:
                path.append((self.place(step).latitude, self.place(step).longitude))
        stops = list(zip(row["stops"].split(" > "), row["references"].split(" > "), strict=True))
        return stops, path
