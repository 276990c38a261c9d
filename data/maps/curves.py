"""Plane geometry of routes: smooth curves through points, and lines beside lines."""
import math


def smooth(points, step=2.0):
    """A centripetal Catmull-Rom curve through the points, with a point about every `step`."""
    points = _without_repeats(points)
    if len(points) < 3:
        return _dense(points, step)
    first = tuple(2 * a - b for a, b in zip(points[0], points[1]))
    last = tuple(2 * a - b for a, b in zip(points[-1], points[-2]))
    guides = [first, *points, last]
    curve = []
    for p0, p1, p2, p3 in zip(guides, guides[1:], guides[2:], guides[3:]):
        count = max(2, round(math.dist(p1, p2) / step))
        curve += [_catmull_rom(p0, p1, p2, p3, index / count) for index in range(count)]
    return curve + [points[-1]]


def _without_repeats(points):
    return [point for index, point in enumerate(points) if index == 0 or math.dist(point, points[index - 1]) > 1e-6]


def _dense(points, step):
    (x0, y0), (x1, y1) = points[0], points[-1]
    count = max(1, round(math.dist(points[0], points[-1]) / step))
    return [(x0 + (x1 - x0) * i / count, y0 + (y1 - y0) * i / count) for i in range(count + 1)]


def _catmull_rom(p0, p1, p2, p3, share):
    times = [0.0]
    for a, b in ((p0, p1), (p1, p2), (p2, p3)):
        times.append(times[-1] + math.sqrt(max(math.dist(a, b), 1e-6)))
    t0, t1, t2, t3 = times
    t = t1 + (t2 - t1) * share

    def mix(a, b, ta, tb):
        return tuple((tb - t) / (tb - ta) * u + (t - ta) / (tb - ta) * v for u, v in zip(a, b))

    a1, a2, a3 = mix(p0, p1, t0, t1), mix(p1, p2, t1, t2), mix(p2, p3, t2, t3)
    return mix(mix(a1, a2, t0, t2), mix(a2, a3, t1, t3), t1, t2)


def split_at_turns(points, sharpest=140):
    """Cuts the points where they turn back on themselves, so that each piece can be moved sideways."""
    pieces, piece = [], [points[0]]
    for before, here, after in zip(points, points[1:], points[2:]):
        piece.append(here)
        turn = math.degrees(abs(_turn(before, here, after)))
        if turn > sharpest:
            pieces.append(piece)
            piece = [here]
    piece.append(points[-1])
    return pieces + [piece]


def _turn(before, here, after):
    first = math.atan2(here[1] - before[1], here[0] - before[0])
    second = math.atan2(after[1] - here[1], after[0] - here[0])
    return (second - first + math.pi) % (2 * math.pi) - math.pi


def beside(curve, distance):
    """The curve moved to its right hand side (y runs downwards)."""
    moved = []
    for index, (x, y) in enumerate(curve):
        x0, y0 = curve[max(0, index - 2)]
        x1, y1 = curve[min(len(curve) - 1, index + 2)]
        length = math.hypot(x1 - x0, y1 - y0) or 1
        moved.append((x - (y1 - y0) / length * distance, y + (x1 - x0) / length * distance))
    return moved
