#include "pictures/PictureDrawings.h"

#include "pictures/Emblem.h"
#include "pictures/PictureCanvas.h"
#include <array>

namespace {

void drawSelectVerse(PictureCanvas& canvas)
{
    canvas.openBook();
    canvas.textLines(6.5, 9.5, {8.5, 11.5, 14.5});
    canvas.fill(polygon({{14.5, 3}, {18, 3}, {18, 12.5}, {16.25, 10.75}, {14.5, 12.5}}), canvas.ink.accent);
}

void drawNotepad(PictureCanvas& canvas)
{
    canvas.page({4.75, 5.25, 12.5, 15});
    for (const double x : {7.5, 11.0, 14.5})
        canvas.stroke({{x, 3.75}, {x, 6.75}}, canvas.ink.line, 1.25);
    canvas.textLines(7.5, 14, {10.5, 13.5});
    canvas.textLines(7.5, 10.5, {16.5});
    canvas.stroke({{13.6, 17}, {19.6, 11}}, canvas.ink.accent, 3);
    canvas.fill(polygon({{11.6, 19}, {12.5, 15.9}, {14.7, 18.1}}), canvas.ink.line);
}

void drawSearch(PictureCanvas& canvas)
{
    canvas.magnifier();
}

void drawStudyAids(PictureCanvas& canvas)
{
    canvas.foldedMap({3.75, 5.25, 16.5, 15});
    QPainterPath pin;
    pin.moveTo(15.5, 14.5);
    pin.cubicTo(13.5, 11.5, 11.75, 9.75, 11.75, 7.25);
    pin.arcTo(QRectF(11.75, 3.5, 7.5, 7.5), 180, -180);
    pin.cubicTo(19.25, 9.75, 17.5, 11.5, 15.5, 14.5);
    canvas.fill(pin, canvas.ink.accent);
    canvas.dot({15.5, 7.25}, 1.5, canvas.ink.paper);
}

void drawRing(PictureCanvas& canvas)
{
    QPainterPath ring;
    ring.addEllipse(QPointF(12, 12), 8.25, 8.25);
    canvas.shape(ring, canvas.ink.paper);
}

void drawAbout(PictureCanvas& canvas)
{
    drawRing(canvas);
    canvas.letterI({12, 12}, 9.5);
}

void drawHelp(PictureCanvas& canvas)
{
    drawRing(canvas);
    canvas.questionMark({12, 12}, 10);
}

void drawDisplayVerse(PictureCanvas& canvas)
{
    canvas.dot({12, 12}, 9, canvas.ink.accent);
    canvas.stroke({{7.5, 12}, {16, 12}}, canvas.ink.paper, 2);
    canvas.stroke({{12.5, 8.25}, {16.25, 12}, {12.5, 15.75}}, canvas.ink.paper, 2);
}

void drawExamples(PictureCanvas& canvas)
{
    QPainterPath bubble;
    bubble.addRoundedRect(QRectF(3.75, 3.75, 16.5, 13), 2.5, 2.5);
    const QPainterPath tail = polygon({{7, 15}, {7, 20.5}, {12, 15}});
    canvas.shape(bubble.united(tail), canvas.ink.paper);
    canvas.questionMark({12, 10.25}, 8.5);
}

// An arrow that points left.
void drawPreviousVerse(PictureCanvas& canvas)
{
    const QPainterPath arrow =
        polygon({{4, 12}, {11, 5}, {11, 9.75}, {20, 9.75}, {20, 14.25}, {11, 14.25}, {11, 19}});
    canvas.fill(arrow, canvas.ink.accent);
    canvas.stroke(arrow, canvas.ink.accent, 1.5); // rounds the corners
}

void drawNextVerse(PictureCanvas& canvas)
{
    canvas.painter.translate(24, 0);
    canvas.painter.scale(-1, 1);
    drawPreviousVerse(canvas);
}

void drawChapter(PictureCanvas& canvas)
{
    canvas.page({5.25, 3.75, 13.5, 16.5}, 4.5);
    canvas.textLines(8, 12, {7.5});
    canvas.stroke({{8, 11}, {16, 11}}, canvas.ink.accent, 2);
    canvas.textLines(8, 16, {14.5, 17.5});
}

void drawCopy(PictureCanvas& canvas)
{
    canvas.page({4.75, 3.75, 10, 12.5});
    canvas.page({9.25, 7.75, 10, 12.5});
    canvas.textLines(12, 16.5, {11.5, 14.5, 17.5});
}

void drawLetterA(PictureCanvas& canvas, double left, double right, double top, double bottom,
                 const QColor& color, double width)
{
    const double middle = (left + right) / 2;
    const double bar = top + (bottom - top) * 0.64;
    const double inset = (right - left) * 0.2;
    canvas.stroke({{left, bottom}, {middle, top}, {right, bottom}}, color, width);
    canvas.stroke({{left + inset, bar}, {right - inset, bar}}, color, width);
}

void drawFontSize(PictureCanvas& canvas)
{
    drawLetterA(canvas, 3.5, 8.9, 12, 19, canvas.ink.accent, 1.6);
    drawLetterA(canvas, 10.2, 20.6, 4.75, 19, canvas.ink.line, 2);
}

void drawFontFace(PictureCanvas& canvas)
{
    // A letter with serifs, and the same one without.
    QPainterPath serif;
    serif.addRect(QRectF(3, 4, 11, 1.75));
    serif.addRect(QRectF(7.25, 4, 2.5, 15));
    serif.addRect(QRectF(5.25, 17.75, 6.5, 1.25));
    serif.addPolygon(QPolygonF({{3, 5}, {5, 5}, {4, 8.5}, {3, 8.5}}));
    serif.addPolygon(QPolygonF({{14, 5}, {14, 8.5}, {13, 8.5}, {12, 5}}));
    serif.setFillRule(Qt::WindingFill);
    canvas.fill(serif, canvas.ink.line);
    QPainterPath plain;
    plain.addRect(QRectF(13, 10, 8, 2));
    plain.addRect(QRectF(16, 10, 2, 9));
    plain.setFillRule(Qt::WindingFill);
    canvas.fill(plain, canvas.ink.accent);
}

void drawTip(PictureCanvas& canvas)
{
    QPainterPath bulb;
    bulb.moveTo(9.5, 16);
    bulb.cubicTo(9.5, 13.5, 6.25, 12.5, 6.25, 9.25);
    bulb.cubicTo(6.25, 6, 8.8, 3.5, 12, 3.5);
    bulb.cubicTo(15.2, 3.5, 17.75, 6, 17.75, 9.25);
    bulb.cubicTo(17.75, 12.5, 14.5, 13.5, 14.5, 16);
    bulb.closeSubpath();
    canvas.shape(bulb, canvas.ink.paper);
    canvas.stroke({{10, 9.5}, {12, 11.5}, {14, 9.5}}, canvas.ink.accent, 1.5);
    canvas.stroke({{12, 11.5}, {12, 15.5}}, canvas.ink.accent, 1.5);
    canvas.stroke({{10, 18.5}, {14, 18.5}}, canvas.ink.line, 1.5);
    canvas.stroke({{11, 20.75}, {13, 20.75}}, canvas.ink.line, 1.5);
}

void drawCancel(PictureCanvas& canvas)
{
    canvas.stroke({{5.75, 5.75}, {18.25, 18.25}}, canvas.ink.accent, 3);
    canvas.stroke({{18.25, 5.75}, {5.75, 18.25}}, canvas.ink.accent, 3);
}

void drawNewSearch(PictureCanvas& canvas)
{
    // The glass's rim is an arrow that turns back to the beginning.
    canvas.dot({10.25, 11.25}, 6, canvas.ink.paper);
    canvas.stroke({{15, 16}, {19.5, 20.25}}, canvas.ink.line, 2.75);
    QPainterPath rim;
    const QRectF circle(4, 5, 12.5, 12.5);
    rim.arcMoveTo(circle, 110);
    rim.arcTo(circle, 110, 290);
    canvas.stroke(rim, canvas.ink.accent, 1.75);
    canvas.fill(polygon({{8.25, 2.25}, {13.5, 5.25}, {8.25, 8.25}}), canvas.ink.accent);
}

void drawCopyResults(PictureCanvas& canvas)
{
    canvas.page({4.75, 4.75, 14.5, 15.5});
    canvas.fill(polygon({{8.5, 3}, {15.5, 3}, {15.5, 7}, {8.5, 7}}), canvas.ink.line);
    for (const double y : {10.5, 13.5, 16.5}) {
        canvas.dot({8.25, y}, 1, canvas.ink.accent);
        canvas.textLines(10.75, 16, {y});
    }
}

void drawZoom(PictureCanvas& canvas)
{
    canvas.magnifier();
    canvas.stroke({{7.25, 10.25}, {13.25, 10.25}}, canvas.ink.cool, 1.75);
    canvas.stroke({{10.25, 7.25}, {10.25, 13.25}}, canvas.ink.cool, 1.75);
}

void drawCopyMap(PictureCanvas& canvas)
{
    canvas.page({3.75, 3.75, 12, 11});
    canvas.foldedMap({7.75, 8.25, 12.5, 12});
    canvas.stroke({{9.5, 17.25}, {12.2, 14}, {15.3, 15.5}, {18.3, 11.75}}, canvas.ink.accent, 1.5);
}

void drawMoreInfo(PictureCanvas& canvas)
{
    canvas.page({5.25, 3.75, 13.5, 16.5}, 4.5);
    canvas.letterI({12, 13}, 9);
}

void drawDonation(PictureCanvas& canvas)
{
    QPainterPath heart;
    heart.moveTo(12, 20);
    heart.cubicTo(5.5, 15.5, 3.75, 12.5, 3.75, 9.25);
    heart.cubicTo(3.75, 4, 10, 3, 12, 7.5);
    heart.cubicTo(14, 3, 20.25, 4, 20.25, 9.25);
    heart.cubicTo(20.25, 12.5, 18.5, 15.5, 12, 20);
    canvas.fill(heart, canvas.ink.accent);
    canvas.stroke(heart, canvas.ink.accent, 1.5);
}

void drawDiscOffer(PictureCanvas& canvas)
{
    drawRing(canvas);
    for (const int start : {30, 210}) {
        QPainterPath sheen;
        sheen.moveTo(12, 12);
        sheen.arcTo(QRectF(4.5, 4.5, 15, 15), start, 40);
        sheen.closeSubpath();
        canvas.fill(sheen, canvas.ink.cool);
    }
    QPainterPath hub;
    hub.addEllipse(QPointF(12, 12), 2.75, 2.75);
    canvas.shape(hub, canvas.ink.paper);
}

void drawOk(PictureCanvas& canvas)
{
    canvas.stroke({{4.75, 12.75}, {9.75, 17.75}, {19.25, 6.75}}, canvas.ink.cool, 3);
}

void drawMail(PictureCanvas& canvas)
{
    canvas.page({3.75, 5.75, 16.5, 12.5});
    canvas.stroke({{4.25, 6.5}, {12, 13}, {19.75, 6.5}}, canvas.ink.accent, 1.5);
}

void drawWeb(PictureCanvas& canvas)
{
    drawRing(canvas);
    QPainterPath meridian;
    meridian.addEllipse(QPointF(12, 12), 3.75, 8.25);
    canvas.stroke(meridian, canvas.ink.cool, 1.25);
    canvas.stroke({{4.5, 9.25}, {19.5, 9.25}}, canvas.ink.cool, 1.25);
    canvas.stroke({{4.5, 14.75}, {19.5, 14.75}}, canvas.ink.cool, 1.25);
    QPainterPath rim;
    rim.addEllipse(QPointF(12, 12), 8.25, 8.25);
    canvas.stroke(rim, canvas.ink.line);
}

// The only picture with colours of its own: it stands on faces that the program does not choose.
void drawApplication(PictureCanvas& canvas)
{
    QPainter& painter = canvas.painter;
    const bool fineMarks = 24 * painter.deviceTransform().m11() >= 96;
    QLinearGradient sky(0, 1, 0, 23);
    sky.setColorAt(0, QColor(0x6ba3cb));
    sky.setColorAt(1, QColor(0xbfdcea));
    QPainterPath tile;
    tile.addRoundedRect(QRectF(1, 1, 22, 22), 4.5, 4.5);
    painter.fillPath(tile, sky);

    painter.save();
    painter.translate(12, 21.25);
    painter.scale(0.18, 0.18);
    paintOpenBook(painter, fineMarks);
    painter.restore();
    painter.translate(11.4, 8.3);
    painter.rotate(34);
    painter.scale(0.18, 0.18);
    paintKestrel(painter, fineMarks);
}

constexpr std::array drawings{
    PictureDrawing{PictureId::SelectVerse, drawSelectVerse},
    PictureDrawing{PictureId::Notepad, drawNotepad},
    PictureDrawing{PictureId::Search, drawSearch},
    PictureDrawing{PictureId::StudyAids, drawStudyAids},
    PictureDrawing{PictureId::About, drawAbout},
    PictureDrawing{PictureId::DisplayVerse, drawDisplayVerse},
    PictureDrawing{PictureId::Examples, drawExamples},
    PictureDrawing{PictureId::PreviousVerse, drawPreviousVerse},
    PictureDrawing{PictureId::NextVerse, drawNextVerse},
    PictureDrawing{PictureId::Chapter, drawChapter},
    PictureDrawing{PictureId::Copy, drawCopy},
    PictureDrawing{PictureId::FontSize, drawFontSize},
    PictureDrawing{PictureId::FontFace, drawFontFace},
    PictureDrawing{PictureId::Tip, drawTip},
    PictureDrawing{PictureId::Cancel, drawCancel},
    PictureDrawing{PictureId::Help, drawHelp},
    PictureDrawing{PictureId::NewSearch, drawNewSearch},
    PictureDrawing{PictureId::CopyResults, drawCopyResults},
    PictureDrawing{PictureId::Zoom, drawZoom},
    PictureDrawing{PictureId::CopyMap, drawCopyMap},
    PictureDrawing{PictureId::MoreInfo, drawMoreInfo},
    PictureDrawing{PictureId::Donation, drawDonation},
    PictureDrawing{PictureId::DiscOffer, drawDiscOffer},
    PictureDrawing{PictureId::Ok, drawOk},
    PictureDrawing{PictureId::Mail, drawMail},
    PictureDrawing{PictureId::Web, drawWeb},
    PictureDrawing{PictureId::Application, drawApplication},
};

} // namespace

std::span<const PictureDrawing> pictureDrawings()
{
    return drawings;
}
