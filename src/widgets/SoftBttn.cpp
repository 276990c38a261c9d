#include "widgets/SoftBttn.h"

#include "desktop/Platform.h"
#include "pictures/Colors.h"
#include "widgets/EnterKey.h"
#include <QPainter>
#include <QTimer>

namespace {

void clearColor(QImage& image, const QColor& color)
{
    const QRgb masked = color.rgb();
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == masked)
                line[x] = 0;
        }
    }
}

} // namespace

SoftBttn::SoftBttn(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (m_playSounds)
            Platform::current().beep();
    });
}

SoftBttn::SoftBttn(PictureId id, const QString& toolTip, QWidget* parent)
    : SoftBttn(parent)
{
    setPicture(iconOf(id));
    setToolTip(toolTip);
}

void SoftBttn::setPicture(const QIcon& picture)
{
    m_picture = picture;
    update();
}

QColor SoftBttn::backColor() const
{
    return m_backColor.isValid() ? m_backColor : palette().button().color();
}

void SoftBttn::setBackColor(const QColor& color)
{
    m_backColor = color;
    update();
}

void SoftBttn::setMaskColor(const QColor& color)
{
    m_maskColor = color;
    update();
}

void SoftBttn::setUseMaskColor(bool use)
{
    m_useMaskColor = use;
    update();
}

void SoftBttn::acknowledge(const QString& spoken)
{
    constexpr int moment = 350; // milliseconds
    setDown(true);
    QTimer::singleShot(moment, this, [this] { setDown(false); });
    Platform::current().announce(*this, spoken);
}

QSize SoftBttn::sizeHint() const
{
    return {24, 24};
}

bool SoftBttn::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTipChange)
        setAccessibleName(toolTip());
    return QAbstractButton::event(event);
}

// Enter belongs to the window; on some desktops a button would take it as a press.
void SoftBttn::keyPressEvent(QKeyEvent* event)
{
    if (isEnter(*event))
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

void SoftBttn::keyReleaseEvent(QKeyEvent* event)
{
    if (isEnter(*event))
        event->ignore();
    else
        QAbstractButton::keyReleaseEvent(event);
}

QColor SoftBttn::shownFace() const
{
    const QColor face = backColor();
    if (isDown())
        return blended(face, Qt::black, isLight(face) ? 0.14 : 0.35);
    if (isEnabled() && underMouse())
        return blended(face, Qt::white, isLight(face) ? 0.6 : 0.12);
    return face;
}

void SoftBttn::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor face = shownFace();
    const QColor edge = pictureColors(face).line;
    const QRectF outline = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);

    painter.setBrush(face);
    painter.setPen(blended(face, edge, isEnabled() ? 0.35 : 0.18));
    painter.drawRoundedRect(outline, 2.5, 2.5);
    if (isDown()) {
        painter.setPen(blended(face, Qt::black, 0.3));
        painter.drawLine(QPointF(2, 1.5), QPointF(width() - 2, 1.5));
        painter.drawLine(QPointF(1.5, 2), QPointF(1.5, height() - 2));
    }

    painter.setBackground(face);
    paintPicture(painter, isDown() ? rect().translated(1, 1) : rect());

    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(focusRingColor(face), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2.5, 2.5);
    }
}

void SoftBttn::paintPicture(QPainter& painter, const QRect& rect) const
{
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    if (!m_useMaskColor) {
        m_picture.paint(&painter, rect, Qt::AlignCenter, mode);
        return;
    }
    const qreal ratio = devicePixelRatioF();
    QImage image(rect.size() * ratio, QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter picturePainter(&image);
    picturePainter.setBackground(painter.background());
    m_picture.paint(&picturePainter, QRect(QPoint(), rect.size()), Qt::AlignCenter, mode);
    picturePainter.end();
    clearColor(image, m_maskColor);
    painter.drawImage(rect.topLeft(), image);
}
