"""The small marks of towns, mountains and the rest."""
import math

from style import CITY_FILL, PAPER, rgb

RADIUS = {"city": 2.5, "stop": 3.0, "capital": 4.6, "disputed": 2.6, "landmark": 2.3, "mountain": 3.4,
          "refuge": 3.0, "none": 0.5, "disputed mountain": 3.6, "disputed refuge": 3.2}


def draw(context, mark, x, y):
    radius = RADIUS[mark]
    if mark == "none":
        return
    context.new_path()
    context.set_line_join(0)
    shape = mark.removeprefix("disputed ")
    if shape == "mountain":
        _polygon(context, [(x, y - radius), (x + radius, y + radius * 0.7), (x - radius, y + radius * 0.7)])
    elif shape == "refuge":
        context.rectangle(x - radius + 0.3, y - radius + 0.3, 2 * radius - 0.6, 2 * radius - 0.6)
    elif mark == "landmark":
        _polygon(context, [(x, y - radius - 0.6), (x + radius + 0.6, y), (x, y + radius + 0.6), (x - radius - 0.6, y)])
    elif mark == "capital":
        _polygon(context, [_star(x, y, radius, index) for index in range(10)])
    else:
        context.arc(x, y, radius, 0, 2 * math.pi)
    context.set_source_rgb(*rgb(PAPER))
    context.set_line_width(2.2)
    context.stroke_preserve()
    if mark.startswith("disputed"):
        context.set_source_rgb(*rgb(PAPER))
        context.fill_preserve()
        context.set_source_rgb(*rgb(CITY_FILL))
        context.set_line_width(1.1)
        context.stroke()
    else:
        context.set_source_rgb(*rgb("#6b5433" if mark == "mountain" else CITY_FILL))
        context.fill()


def _polygon(context, points):
    for point in points:
        context.line_to(*point)
    context.close_path()


def _star(x, y, radius, index):
    reach = radius if index % 2 == 0 else radius * 0.42
    angle = math.radians(-90 + 36 * index)
    return x + reach * math.cos(angle), y + reach * math.sin(angle)
