"""Colours, type and line weights: the one look of all eleven maps."""
from dataclasses import dataclass

SERIF, SANS = "P052", "Liberation Sans"

SEA = "#cfdfe8"
SEA_BANDS = [(8, "#c4d8e3"), (3.2, "#b4ccdb")]  # width each side of the shore, colour
LAKE = "#c3d7e3"
LAND = "#f7f1e1"
SHORE = "#6b91aa"
RIVER = "#7ba3bd"
PAPER = "#fffdf7"
INK = "#2a241d"
FRAME = "#5a4c38"
BORDER = "#a08a68"
CITY_FILL = "#3a3128"
STONE = "#8a7a62"

ROUTE_COLOURS = ["#a8242c", "#2c6a45", "#6a3f8f", "#b5621a"]
ROUTE_DASHES = [[], [7, 2.6], [7, 2.4, 1.4, 2.4], [2.6, 2.4]]
ROUTE_WIDTH = 1.9


@dataclass(frozen=True)
class Type:
    family: str
    size: float
    colour: str
    bold: bool = False
    italic: bool = False
    spacing: float = 0
    capitals: bool = False
    halo: float = 2.4


TYPES = {
    "city": Type(SANS, 11.5, INK),
    "stop": Type(SANS, 11.5, INK, bold=True),
    "capital": Type(SANS, 12.5, INK, bold=True),
    "landmark": Type(SANS, 11, "#4d4335", italic=True),
    "mountain": Type(SANS, 11, "#5d4a2c", italic=True),
    "island": Type(SERIF, 12, "#4a3d2a", italic=True),
    "region": Type(SERIF, 12.5, "#7a6647", capitals=True, spacing=2.2, halo=1.6),
    "people": Type(SERIF, 12, "#7a6647", italic=True, spacing=0.8, halo=1.6),
    "realm": Type(SERIF, 15, "#5a4630", bold=True, capitals=True, spacing=3.0, halo=1.6),
    "valley": Type(SERIF, 12, "#5d6b3f", italic=True, spacing=1.2, halo=0),
    "road": Type(SERIF, 11, "#8a6a3c", italic=True, spacing=0.3, halo=1.6),
    "wall": Type(SERIF, 11, "#5c4a33", italic=True, spacing=0.5, halo=1.6),
    "quarter": Type(SERIF, 11, "#7a5f3a", capitals=True, spacing=1.6, halo=1.2),
    "tribe": Type(SERIF, 13, "#5a4630", bold=True, capitals=True, spacing=1.6, halo=1.6),
    "sea": Type(SERIF, 16, "#41708f", italic=True, spacing=1.6, halo=0),
    "lake": Type(SERIF, 12, "#2f668c", italic=True, spacing=0.5, halo=2.0),
    "river": Type(SERIF, 11.5, "#2f668c", italic=True, spacing=0.4, halo=2.0),
    "title": Type(SERIF, 21, INK, bold=True, halo=0),
    "subtitle": Type(SERIF, 12.5, "#5a4c38", italic=True, halo=0),
    "legend": Type(SANS, 11, INK, halo=0),
    "passage": Type(SANS, 9.5, INK, halo=0),
    "number": Type(SANS, 7.8, PAPER, bold=True, halo=0),
    "scale": Type(SANS, 9.5, "#4d4335", halo=0),
    "credit": Type(SANS, 8.5, "#7d705d", halo=0),
}


def rgb(colour):
    return tuple(int(colour[place:place + 2], 16) / 255 for place in (1, 3, 5))
