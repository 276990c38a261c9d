#include "maps/MapPicture.h"

#include "widgets/Twips.h"
#include <QApplication>
#include <QBuffer>
#include <QDrag>
#include <QImageReader>
#include <QMimeData>
#include <QMouseEvent>
#include <QtEndian>

namespace {

constexpr QSizeF extentBeforeAny(735, 735);
// High enough that the window, which fits itself around the picture, shows both its buttons whole.
constexpr QSizeF extentOfEmpty(735, 990);
constexpr int dragPreviewSize = 160;

// What goes beyond these is damage, and would fill the memory.
constexpr qreal minDotsPerInch = 72;
constexpr qint64 maxPixels = 16'000'000;

qreal naturalTwips(int pixels, int dotsPerMeter, int dotsPerMeterOfNone)
{
    const qreal dotsPerInch = dotsPerMeter * 0.0254;
    const bool isGiven = dotsPerMeter != dotsPerMeterOfNone && dotsPerInch >= minDotsPerInch;
    return toTwips(pixels) * (isGiven ? 96 / dotsPerInch : 1);
}

// libpng, by which Qt reads the picture, takes a part's declared length on trust and asks for as much memory:
// up to 2 GB for one damaged byte.
bool declaresMoreThanItHas(const QByteArray& bytes)
{
    constexpr qsizetype signature = 8;
    constexpr qsizetype partHead = 8;
    constexpr qsizetype partEnd = 4;
    if (!bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return false;
    for (qsizetype at = signature; at + partHead <= bytes.size();) {
        const qint64 length = qFromBigEndian<quint32>(bytes.constData() + at);
        if (length > bytes.size() - at - partHead)
            return true;
        at += partHead + length + partEnd;
    }
    return false;
}

} // namespace

MapPicture::MapPicture(QWidget* parent)
    : QLabel(parent)
{
    setExtent(extentBeforeAny);
}

void MapPicture::setImage(const QImage& image)
{
    m_image = image;
    if (!m_stretch || m_image.isNull())
        takeNaturalSize();
    else
        scalePixmap();
}

void MapPicture::setStretch(bool stretch)
{
    m_stretch = stretch;
    if (!m_stretch)
        takeNaturalSize();
}

void MapPicture::setExtent(QSizeF extent)
{
    m_extent = extent;
    resize(toPixels(extent.width()), toPixels(extent.height()));
    scalePixmap();
}

void MapPicture::takeNaturalSize()
{
    setExtent(m_image.isNull() ? extentOfEmpty : naturalExtent(m_image));
}

// Always from the full image, so that nothing gets lost on the way and a dense screen shows all of it.
void MapPicture::scalePixmap()
{
    if (m_image.isNull()) {
        clear();
        return;
    }
    m_density = devicePixelRatioF();
    // A picture with a palette would be pressed into another palette again, its plain areas into dots.
    const QImage inAllColours = m_image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPixmap pixmap = QPixmap::fromImage(
        inAllColours.scaled(size() * m_density, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(m_density);
    setPixmap(pixmap);
}

void MapPicture::paintEvent(QPaintEvent* event)
{
    // The window has come to a screen of another density. QLabel::pixmap() does not tell: since Qt 6.8 it is
    // made for the current screen.
    if (!m_image.isNull() && m_density != devicePixelRatioF())
        scalePixmap();
    QLabel::paintEvent(event);
}

void MapPicture::mousePressEvent(QMouseEvent* event)
{
    m_pressedAt = event->position().toPoint();
    event->accept();
}

void MapPicture::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint way = event->position().toPoint() - m_pressedAt;
    if (!event->buttons().testFlag(Qt::LeftButton) || m_image.isNull() ||
        way.manhattanLength() < QApplication::startDragDistance())
        return;
    auto* contents = new QMimeData;
    contents->setImageData(m_image);
    auto* drag = new QDrag(this);
    drag->setMimeData(contents);
    drag->setPixmap(pixmap().scaled(QSize(dragPreviewSize, dragPreviewSize) * devicePixelRatioF(),
                                    Qt::KeepAspectRatio, Qt::SmoothTransformation));
    drag->exec(Qt::CopyAction);
    Q_EMIT dragCompleted();
}

QImage decodedImage(const QByteArray& bytes)
{
    if (declaresMoreThanItHas(bytes))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize declared = reader.size();
    if (qint64(declared.width()) * declared.height() > maxPixels)
        return {};
    return reader.read(); // QImageReader has a limit of its own where a format does not declare its size
}

QSizeF naturalExtent(const QImage& image)
{
    // An image that was given no resolution has that of a new one.
    const QImage none(1, 1, QImage::Format_RGB32);
    return {naturalTwips(image.width(), image.dotsPerMeterX(), none.dotsPerMeterX()),
            naturalTwips(image.height(), image.dotsPerMeterY(), none.dotsPerMeterY())};
}
