#pragma once

#include "pictures/Pictures.h"
#include <QAbstractButton>

/// The picture push button of the toolbar and of every window.
class SoftBttn : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QIcon picture READ picture WRITE setPicture)
    Q_PROPERTY(QColor backcolor READ backColor WRITE setBackColor)
    Q_PROPERTY(QColor maskcolor READ maskColor WRITE setMaskColor)
    Q_PROPERTY(bool usemaskcolor READ useMaskColor WRITE setUseMaskColor)
    Q_PROPERTY(bool playsounds READ playSounds WRITE setPlaySounds)
    Q_PROPERTY(QString tooltiptext READ toolTip WRITE setToolTip)

public:
    explicit SoftBttn(QWidget* parent = nullptr);
    /// A screen reader speaks the tooltip.
    SoftBttn(PictureId id, const QString& toolTip, QWidget* parent);

    QIcon picture() const { return m_picture; }
    void setPicture(const QIcon& picture);

    /// The button's face; the palette's button face until a colour is set.
    QColor backColor() const;
    void setBackColor(const QColor& color);

    /// With useMaskColor, pixels of the picture in exactly the mask colour let the face through.
    QColor maskColor() const { return m_maskColor; }
    void setMaskColor(const QColor& color);
    bool useMaskColor() const { return m_useMaskColor; }
    void setUseMaskColor(bool use);

    /// With playSounds, a click beeps.
    bool playSounds() const { return m_playSounds; }
    void setPlaySounds(bool play) { m_playSounds = play; }

    /// Tells that what the button is for has happened, by whatever way: it looks pressed for a moment, and a
    /// screen reader speaks the text.
    void acknowledge(const QString& spoken);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor shownFace() const;
    void paintPicture(QPainter& painter, const QRect& rect) const;

    QIcon m_picture;
    QColor m_backColor;
    QColor m_maskColor = Qt::magenta;
    bool m_useMaskColor = false;
    bool m_playSounds = false;
};
