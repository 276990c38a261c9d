#pragma once

#include <QImage>
#include <QLabel>
#include <QSizeF>

/// The picture of a map. Its size is kept in twips as real numbers, so that enlarging and shrinking by the
/// same factor comes back to the same size. Without stretching it takes the image's natural size: its pixels
/// by its own resolution, or one device-independent pixel each when it has none. With stretching the image is
/// scaled to the size that is set. It can be dragged out with the mouse.
class MapPicture : public QLabel
{
    Q_OBJECT

public:
    explicit MapPicture(QWidget* parent);

    /// A null image is an empty picture.
    void setImage(const QImage& image);
    const QImage& image() const { return m_image; }

    void setStretch(bool stretch);
    bool stretch() const { return m_stretch; }

    /// The size in twips.
    QSizeF extent() const { return m_extent; }
    void setExtent(QSizeF extent);

Q_SIGNALS:
    /// The picture was dragged out, wherever it was dropped.
    void dragCompleted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void takeNaturalSize();
    void scalePixmap();

    QImage m_image;
    QSizeF m_extent;
    bool m_stretch = false;
    qreal m_density = 0; ///< of the screen that the pixmap is scaled for
    QPoint m_pressedAt;
};

/// The image in the bytes of a file, of any format that Qt reads. A null image when the bytes are
/// none, or declare a size that no map has.
QImage decodedImage(const QByteArray& bytes);

/// The natural size of an image in twips.
QSizeF naturalExtent(const QImage& image);
