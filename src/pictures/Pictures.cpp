#include "pictures/Pictures.h"

#include "pictures/PictureCanvas.h"
#include "pictures/PictureDrawings.h"
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace {

class PictureEngine : public QIconEngine
{
public:
    explicit PictureEngine(const PictureDrawing& drawing)
        : m_drawing(drawing)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const double side = qMin(rect.width(), rect.height());
        const QColor face = painter->background().color();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
        painter->scale(side / 24, side / 24);
        PictureCanvas canvas(*painter, pictureColors(face, mode != QIcon::Disabled));
        m_drawing.draw(canvas);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setBackground(QGuiApplication::palette().button());
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new PictureEngine(m_drawing); }

private:
    const PictureDrawing& m_drawing;
};

} // namespace

QIcon iconOf(PictureId id)
{
    const PictureDrawing& drawing = pictureDrawings()[static_cast<std::size_t>(id)];
    Q_ASSERT(drawing.id == id);
    return QIcon(new PictureEngine(drawing));
}

const QList<PictureId>& allPictures()
{
    static const QList<PictureId> ids = [] {
        QList<PictureId> list;
        for (const PictureDrawing& drawing : pictureDrawings())
            list.append(drawing.id);
        return list;
    }();
    return ids;
}
