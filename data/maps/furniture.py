"""What stands round the map and its insets: margin, frame lines, credit line, cards."""
import style
from lettering import Line, width
from style import TYPES, rgb

MARGIN, FOOT = 8, 20
CREDIT = "Places: OpenBible.info, CC BY 4.0.  Coastlines and rivers: GSHHG 2.3.7."
PLAN_CREDIT = "Places: OpenBible.info, CC BY 4.0.  Walls, buildings and valleys are drawn by hand."



def map_rect(size):
    wide, high = size
    return MARGIN, MARGIN, wide - 2 * MARGIN, high - MARGIN - FOOT


def draw_frame(context, size, plan=False):
    """The margin outside the map, a strong and a fine line round it, and the credit below."""
    wide, high = size
    x, y, w, h = map_rect(size)
    context.new_path()
    context.rectangle(0, 0, wide, high)
    context.rectangle(x, y, w, h)
    context.set_fill_rule(1)
    context.set_source_rgb(*rgb(style.PAPER))
    context.fill()
    context.set_fill_rule(0)
    context.set_source_rgb(*rgb(style.FRAME))
    for gap, weight in ((0, 0.8), (4, 1.8)):
        context.rectangle(x - gap, y - gap, w + 2 * gap, h + 2 * gap)
        context.set_line_width(weight)
        context.stroke()
    look = TYPES["credit"]
    text = PLAN_CREDIT if plan else CREDIT
    Line(text, look, wide - MARGIN - width(text, look), high - 4.6).draw(context, style.PAPER)


def draw_card(context, rect):
    left, top, right, bottom = rect
    context.new_path()
    context.rectangle(left, top, right - left, bottom - top)
    context.set_source_rgb(*rgb(style.PAPER))
    context.fill_preserve()
    context.set_source_rgb(*rgb(style.FRAME))
    context.set_line_width(1.4)
    context.stroke()
    context.rectangle(left + 3, top + 3, right - left - 6, bottom - top - 6)
    context.set_line_width(0.6)
    context.stroke()


def draw_inset(context, main, inset):
    """The enlarged part in its own frame, and on the map the rectangle that it shows."""
    p, q = inset.projection, main.projection
    x0, y1 = q.point(p.south, p.west)
    x1, y0 = q.point(p.north, p.east)
    context.rectangle(x0, y0, x1 - x0, y1 - y0)
    context.set_source_rgb(*rgb(style.FRAME))
    context.set_line_width(0.9)
    context.stroke()
    x, y, wide, high = inset.rect
    context.rectangle(x - 4, y - 4, wide + 8, high + 8)
    context.set_source_rgb(*rgb(style.PAPER))
    context.fill_preserve()
    context.set_source_rgb(*rgb(style.FRAME))
    context.set_line_width(1.4)
    context.stroke()
    inset.draw(context)
    context.rectangle(x, y, wide, high)
    context.set_source_rgb(*rgb(style.FRAME))
    context.set_line_width(0.6)
    context.stroke()
    if "caption" in inset.sheet:
        _flag(context, inset)


def flag_rect(inset):
    """Where the inset's own title stands: a small card in one of its lower corners."""
    x, y, wide, high = inset.rect
    span = width(inset.sheet["caption"], TYPES["subtitle"]) + 16
    left = x if inset.sheet.get("flag", "w") == "w" else x + wide - span
    return left, y + high - 21, left + span, y + high


def _flag(context, inset):
    left, top, right, bottom = flag_rect(inset)
    context.rectangle(left, top, right - left, bottom - top)
    context.set_source_rgb(*rgb(style.PAPER))
    context.fill_preserve()
    context.set_source_rgb(*rgb(style.FRAME))
    context.set_line_width(0.6)
    context.stroke()
    line = Line(inset.sheet["caption"], TYPES["subtitle"], left + 8, bottom - 6)
    line.draw(context, style.PAPER)
    inset.names.append(line)
