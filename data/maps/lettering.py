"""Measures and draws text: straight, turned, or along a path, each letter where it belongs."""
import math
from dataclasses import replace

import cairo

import curves
from style import TYPES, rgb

BADGE_GAP = 1.4

_measure = cairo.Context(cairo.ImageSurface(cairo.FORMAT_A8, 8, 8))


def kind(name, **changes):
    return replace(TYPES[name], **changes)


def _select(context, look):
    context.select_font_face(look.family,
                             cairo.FONT_SLANT_ITALIC if look.italic else cairo.FONT_SLANT_NORMAL,
                             cairo.FONT_WEIGHT_BOLD if look.bold else cairo.FONT_WEIGHT_NORMAL)
    context.set_font_size(look.size)
    options = cairo.FontOptions()
    options.set_hint_style(cairo.HINT_STYLE_NONE)
    options.set_hint_metrics(cairo.HINT_METRICS_OFF)
    options.set_antialias(cairo.ANTIALIAS_GRAY)
    context.set_font_options(options)


def _shown(text, look):
    return text.upper() if look.capitals else text


def width(text, look):
    _select(_measure, look)
    text = _shown(text, look)
    return _measure.text_extents(text).x_advance + look.spacing * max(0, len(text) - 1)


def ascent(look):
    return look.size * 0.72


def descent(text, look):
    return look.size * (0.21 if not look.capitals and set(text) & set("gjpqy,;") else 0.02)


def _quad(x, y, length, up, down, angle):
    """The corners of a box that starts at (x, y) on the base line and runs along the angle."""
    cosine, sine = math.cos(angle), math.sin(angle)
    return [(x + dx * cosine - dy * sine, y + dx * sine + dy * cosine)
            for dx, dy in ((0, -up), (length, -up), (length, down), (0, down))]


class Line:
    """One line of text with its base line begun at (x, y), turned by the angle (radians, clockwise)."""

    def __init__(self, text, look, x, y, angle=0.0):
        self.text, self.look = text, look
        self._letters = []
        _select(_measure, look)
        shown = _shown(text, look)
        cosine, sine = math.cos(angle), math.sin(angle)
        if look.spacing == 0:
            self._letters.append((shown, x, y, angle))
        else:
            for index, letter in enumerate(shown):
                along = _measure.text_extents(shown[:index]).x_advance + look.spacing * index
                self._letters.append((letter, x + along * cosine, y + along * sine, angle))
        self.quads = [_quad(x, y, width(text, look), ascent(look), descent(text, look), angle)]

    def draw(self, context, halo_colour):
        _select(context, self.look)
        context.set_line_join(cairo.LINE_JOIN_ROUND)
        for stroke in (True, False):
            if stroke and not self.look.halo:
                continue
            for letter, x, y, angle in self._letters:
                context.save()
                context.translate(x, y)
                context.rotate(angle)
                context.move_to(0, 0)
                context.text_path(letter)
                if stroke:
                    context.set_source_rgba(*rgb(halo_colour), 0.85)
                    context.set_line_width(2 * self.look.halo)
                    context.stroke()
                else:
                    context.set_source_rgb(*rgb(self.look.colour))
                    context.fill()
                context.restore()


class Badge:
    """The number of a stop, white on a disc of its journey's colour."""

    HALF = 5.4

    def __init__(self, number, colour, x, y):
        """Begins at x; y is the height of its middle."""
        self.text, self._colour = str(number), colour
        self._x, self._y = x, y
        wide = badge_width(number)
        self.quads = [[(x, y - self.HALF), (x + wide, y - self.HALF), (x + wide, y + self.HALF), (x, y + self.HALF)]]

    def draw(self, context, halo_colour):
        wide, half = badge_width(self.text), self.HALF
        context.new_path()
        context.arc(self._x + half, self._y, half, math.pi / 2, 3 * math.pi / 2)
        context.arc(self._x + wide - half, self._y, half, -math.pi / 2, math.pi / 2)
        context.close_path()
        context.set_source_rgb(*rgb(halo_colour))
        context.set_line_width(1.8)
        context.stroke_preserve()
        context.set_source_rgb(*rgb(self._colour))
        context.fill()
        look = TYPES["number"]
        Line(self.text, look, self._x + (wide - width(self.text, look)) / 2, self._y + look.size * 0.36).draw(
            context, halo_colour)


def badge_width(number):
    return 2 * Badge.HALF if len(str(number)) == 1 else 2 * Badge.HALF + 3.2


def badges_width(numbers, gap=BADGE_GAP):
    """How long a row of badges is, with the gap after each."""
    return sum(badge_width(number) + gap for number, _ in numbers)


def badge_row(numbers, x, y, gap=BADGE_GAP):
    """Badges of (number, colour) side by side from x on."""
    row = []
    for number, colour in numbers:
        row.append(Badge(number, colour, x, y))
        x += badge_width(number) + gap
    return row


class PathLine(Line):
    """Text set along a line of points, in its middle, a little above it."""

    def __init__(self, text, look, points, above=3.0):
        self.text, self.look, self._letters, self.quads = text, look, [], []
        shown = _shown(text, look)
        _select(_measure, look)
        points = _lengthened(curves.beside(points, -above))
        lengths = [0.0]
        for (x0, y0), (x1, y1) in zip(points, points[1:]):
            lengths.append(lengths[-1] + math.hypot(x1 - x0, y1 - y0))
        at = (lengths[-1] - width(text, look)) / 2
        for letter in shown:
            advance = _measure.text_extents(letter).x_advance
            x, y, angle = _along(points, lengths, at + advance / 2)
            x -= advance / 2 * math.cos(angle)
            y -= advance / 2 * math.sin(angle)
            self._letters.append((letter, x, y, angle))
            if letter != " ":
                self.quads.append(_quad(x, y, advance, ascent(look), descent(letter, look), angle))
            at += advance + look.spacing


def _lengthened(points, by=60):
    """Straight on at both ends, for names a little longer than their line."""
    def beyond(a, b):
        length = math.dist(a, b) or 1
        return a[0] + (a[0] - b[0]) / length * by, a[1] + (a[1] - b[1]) / length * by
    inner = min(4, len(points) - 1)
    return [beyond(points[0], points[inner]), *points, beyond(points[-1], points[-1 - inner])]


def _along(points, lengths, distance):
    """Point and direction at a distance along the points, the direction taken over a few points' length."""
    def point(where):
        where = min(max(where, 0), lengths[-1])
        index = next(i for i in range(1, len(lengths)) if lengths[i] >= where - 1e-9)
        share = (where - lengths[index - 1]) / max(lengths[index] - lengths[index - 1], 1e-9)
        (x0, y0), (x1, y1) = points[index - 1], points[index]
        return x0 + (x1 - x0) * share, y0 + (y1 - y0) * share

    x, y = point(distance)
    (x0, y0), (x1, y1) = point(distance - 4), point(distance + 4)
    return x, y, math.atan2(y1 - y0, x1 - x0)
