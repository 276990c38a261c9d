"""Finds a place for the name of every town: beside its symbol, clear of everything drawn already."""
import math
import random
from dataclasses import dataclass, field

from shapely.geometry import LineString, Polygon, box

from lettering import BADGE_GAP, Badge, Line, ascent, badge_row, badges_width, descent, width

PAD = 1.6
LEADING = 1.12
CLASH = 400.0
NEARER = 0.6  # points by which another town's symbol must be farther from a name than the name's own
CLEAR = 6.0  # points that letters behind a number keep from another town's symbol
DOUBT, DOUBTFUL = 14.0, 5.0  # cost of a name hardly nearer to its own symbol than to another, and within how many points
# Where the name may stand (direction in degrees, clockwise from east), and what each costs.
SIDES = {"E": (0, 0), "NE": (-42, 1.0), "SE": (42, 1.2), "W": (180, 1.5), "NW": (222, 2.0), "SW": (138, 2.2),
         "N": (-90, 2.5), "S": (90, 2.6), "ENE": (-20, .8), "ESE": (20, .9), "WNW": (200, 1.8), "WSW": (160, 1.9),
         "NNE": (-68, 2.0), "NNW": (-112, 2.4), "SSE": (68, 2.1), "SSW": (112, 2.5)}
GAPS = [(2.6, 0), (5.5, 1.6)]
LEADERS = [(11, 9), (17, 12), (25, 16), (34, 21)]  # farther off, a thin line leads to the symbol


@dataclass
class PointLabel:
    name: str
    text: str
    look: object
    x: float
    y: float
    radius: float
    sides: list = None
    leader: object = None  # None: if need be; a number: at that distance; False: never
    numbers: list = field(default_factory=list)  # (number, colour) where it is a stop of a journey
    mark: str = "none"
    chosen: object = None
    lines: list = field(default_factory=list)


class Spot:
    """One possible place: its box, its leader line if any, and its cost before other names are counted."""

    def __init__(self, label, size, side, gap, cost, leads):
        wide, high = size
        angle = math.radians(SIDES[side][0])
        reach = label.radius + gap
        x, y = label.x + reach * math.cos(angle), label.y + reach * math.sin(angle)
        # The box hangs on (x, y) by the point of its rim that looks towards the symbol.
        left = x - wide * (0.5 - 0.5 * max(-1, min(1, math.cos(angle) * 1.6)))
        top = y - high * (0.5 - 0.5 * max(-1, min(1, math.sin(angle) * 1.6)))
        self.box = (left, top, left + wide, top + high)
        self.rows = list(_rows(label, self.box))
        self.leader = None
        if leads:
            near = (min(max(label.x, left), left + wide), min(max(label.y, top), top + high))
            self.leader = ((label.x, label.y), near)
        self.cost = cost + SIDES[side][1]
        self.wrong = []  # why the name cannot stand here

    def clash(self, other):
        amount = _overlap(self.box, other.box, PAD)
        for one, two in ((self, other), (other, self)):
            if one.leader and _crosses(one.leader, two.box):
                amount += 30
            if one.leader and two.leader and LineString(one.leader).crosses(LineString(two.leader)):
                amount += 30
        return amount and CLASH + amount


def _overlap(a, b, pad):
    wide = min(a[2], b[2]) - max(a[0], b[0]) + pad
    high = min(a[3], b[3]) - max(a[1], b[1]) + pad
    return wide * high if wide > 0 and high > 0 else 0.0


def _crosses(segment, rect):
    (x0, y0), (x1, y1) = segment
    if max(x0, x1) < rect[0] or min(x0, x1) > rect[2] or max(y0, y1) < rect[1] or min(y0, y1) > rect[3]:
        return False
    return LineString(segment).intersects(box(*rect))


class Placer:
    def __init__(self, bounds):
        self.bounds = bounds
        self._quads = []   # names that stand already
        self._rects = []   # boxes, arrow heads: (rect, weight)
        self._dots = []    # symbols of towns: (x, y, radius)
        self._lines = []   # (line, cost per point of length inside)
        self._frames = []  # round what an inset enlarges

    def keep_off_quads(self, quads):
        self._quads += [(Polygon(quad), _bounds(quad)) for quad in quads]

    def keep_off(self, rect, weight=CLASH):
        self._rects.append((rect, weight))

    def keep_off_dot(self, x, y, radius):
        self._dots.append((x, y, radius))

    def avoid(self, line, cost):
        if not line.is_empty:
            self._lines.append((line, line.bounds, cost))

    def keep_clear_of(self, frame):
        self._frames.append(frame)

    def place(self, labels):
        spots = [self._spots(label) for label in labels]
        chosen = _settle(spots)
        for label, options, index in zip(labels, spots, chosen):
            label.chosen = options[index]
            _set(label)
        faults = [f"{label.name} {reason}" for label in labels for reason in label.chosen.wrong]
        return faults + [f"{labels[a].name} touches {labels[b].name}" for a in range(len(labels)) for b in range(a)
                         if labels[a].chosen.clash(labels[b].chosen)]

    def _spots(self, label):
        size = _size(label)
        spots = []
        for side in label.sides or SIDES:
            if label.leader is None or label.leader is False:
                spots += [Spot(label, size, side, gap, cost, False) for gap, cost in GAPS]
            if label.leader is None:
                spots += [Spot(label, size, side, gap, cost, True) for gap, cost in LEADERS]
            elif label.leader is not False:
                spots.append(Spot(label, size, side, label.leader, 0, True))
        for spot in spots:
            spot.cost += self._static_cost(spot, label)
            spot.cost += self._doubt(spot, label) + CLASH * len(spot.wrong)
        spots.sort(key=lambda spot: spot.cost)
        return spots[:60]

    def _static_cost(self, spot, label):
        x0, y0, x1, y1 = spot.box
        left, top, right, bottom = self.bounds
        outside = max(0, left + 3 - x0) + max(0, top + 3 - y0) + max(0, x1 - right + 3) + max(0, y1 - bottom + 3)
        cost = 10 * outside
        if outside:
            spot.wrong.append("leaves the frame")
        shape = box(x0 - 1, y0 - 1, x1 + 1, y1 + 1)
        for rect, weight in self._rects:
            if _overlap(spot.box, rect, 1.0):
                cost += weight
                if weight >= CLASH:
                    spot.wrong.append("lies under a box")
            if spot.leader and _crosses(spot.leader, rect):
                cost += weight / 6
        around = shape.bounds
        for quad, bounds in self._quads:
            if _meet(bounds, around) and quad.intersects(shape):
                spot.wrong.append("lies on another name")
            elif spot.leader and quad.intersects(LineString(spot.leader)):
                cost += CLASH / 4
        if any(frame.intersects(box(*spot.box)) for frame in self._frames):
            spot.wrong.append("lies across the frame of what an inset enlarges")
        for line, bounds, price in self._lines:
            if _meet(bounds, around) and line.intersects(shape):
                cost += price * (4 + line.intersection(shape).length)
        return cost


    def _doubt(self, spot, label):
        """The cost of other towns near the name; one nearer than its own makes the place wrong."""
        if label.mark == "none":
            return 0
        badges, letters = ink(label, spot)
        own, cost = (label.x, label.y, label.radius), 0
        for dot in self._dots:
            if abs(dot[0] - label.x) < 0.1 and abs(dot[1] - label.y) < 0.1:
                continue
            if not spot.wrong and is_astray(badges, letters, own, dot):
                spot.wrong.append("is nearer to the symbol of another place")
            x, y, radius = dot
            if _gap([spot.box], dot) < _gap([spot.box], own) + DOUBTFUL:
                cost += DOUBT
            if spot.leader and _crosses(spot.leader, (x - radius, y - radius, x + radius, y + radius)):
                cost += 20
        return cost


def is_astray(badges, letters, own, other):
    """Whether the other symbol seems to be the one that the name, its numbers or its letters belong to."""
    return (_gap(badges + letters, other) < _gap(badges + letters, own) + NEARER
            or bool(badges) and len(letters) == 1 and _gap(badges, other) < _gap(badges, own) + NEARER
            or bool(badges) and _gap(letters, other) < min(_gap(letters, own) + NEARER, CLEAR))


def _gap(rects, dot):
    """Points between the nearest of some boxes and the rim of a symbol."""
    x, y, radius = dot
    return min(_distance(rect, x, y) for rect in rects) - radius


def _bounds(quad):
    return min(x for x, _ in quad), min(y for _, y in quad), max(x for x, _ in quad), max(y for _, y in quad)


def _meet(one, other):
    return one[0] <= other[2] and other[0] <= one[2] and one[1] <= other[3] and other[1] <= one[3]


def _distance(rect, x, y):
    return math.hypot(max(rect[0] - x, 0, x - rect[2]), max(rect[1] - y, 0, y - rect[3]))


def _row_widths(label):
    rows = [width(row, label.look) for row in label.text.split("\n")]
    return [rows[0] + badges_width(label.numbers), *rows[1:]]


def _size(label):
    rows = label.text.split("\n")
    high = ascent(label.look) + (len(rows) - 1) * label.look.size * LEADING + descent(rows[-1], label.look)
    return max(_row_widths(label)), high


def _rows(label, area):
    """What stands where in the box: (text, left end of its letters, base line, left end of the numbers) by row.

    The rows lean towards the symbol; the numbers stand next to it."""
    x0, y0, x1, _ = area
    lean = 0 if x0 >= label.x - 1 else 1 if x1 <= label.x + 1 else 0.5
    for index, (row, wide) in enumerate(zip(label.text.split("\n"), _row_widths(label))):
        left = x0 + (x1 - x0 - wide) * lean
        base = y0 + ascent(label.look) + index * label.look.size * LEADING
        numbers = left
        if label.numbers and index == 0:
            before = lean < 1
            numbers = left if before else left + width(row, label.look) + BADGE_GAP
            left += badges_width(label.numbers) if before else 0
        yield row, left, base, numbers


def ink(label, spot):
    """The boxes of the numbers, one if there are any, and those of the rows of letters."""
    badges, letters = [], []
    for row, left, base, numbers in spot.rows:
        if label.numbers and not letters:
            middle = base - ascent(label.look) / 2
            end = numbers + badges_width(label.numbers) - BADGE_GAP
            badges.append((numbers, middle - Badge.HALF, end, middle + Badge.HALF))
        end = left + width(row, label.look)
        letters.append((left, base - ascent(label.look), end, base + descent(row, label.look)))
    return badges, letters


def _set(label):
    """Turns the chosen box into lines of text."""
    for row, left, base, numbers in label.chosen.rows:
        if label.numbers and not label.lines:
            label.lines += badge_row(label.numbers, numbers, base - ascent(label.look) / 2)
        label.lines.append(Line(row, label.look, left, base))


def _settle(spots, rounds=400):
    """Best spot for each by turns, then shaken a little so that it does not rest in a bad corner."""
    chance = random.Random(7)
    cache = {}

    def clash(a, i, b, j):
        key = (a, i, b, j) if a < b else (b, j, a, i)
        if key not in cache:
            cache[key] = spots[key[0]][key[1]].clash(spots[key[2]][key[3]])
        return cache[key]

    def cost(index, option, chosen):
        return spots[index][option].cost + sum(clash(index, option, other, chosen[other])
                                               for other in near[index])

    reach = []
    for options in spots:
        reach.append((min(s.box[0] for s in options), min(s.box[1] for s in options),
                      max(s.box[2] for s in options), max(s.box[3] for s in options)))
    near = [[b for b in range(len(spots)) if b != a and _overlap(reach[a], reach[b], 4)] for a in range(len(spots))]

    def descend(chosen, queue):
        queue = list(queue)
        budget = 40 * len(spots) + 200
        while queue and budget:
            budget -= 1
            index = queue.pop(0)
            best = min(range(len(spots[index])), key=lambda option: (cost(index, option, chosen), option))
            if cost(index, best, chosen) < cost(index, chosen[index], chosen) - 1e-9:
                chosen[index] = best
                queue += [other for other in near[index] if other not in queue]
        return chosen

    def total(chosen):
        return sum(spots[i][chosen[i]].cost + sum(clash(i, chosen[i], j, chosen[j]) for j in near[i]) / 2
                   for i in range(len(spots)))

    best = descend([0] * len(spots), range(len(spots)))
    price = total(best)
    for _ in range(rounds if spots else 0):
        trial = list(best)
        shaken = chance.randrange(len(spots))
        trial[shaken] = chance.randrange(len(spots[shaken]))
        trial = descend(trial, near[shaken])
        trial_price = total(trial)
        if trial_price < price - 1e-9:
            best, price = trial, trial_price
    return best
