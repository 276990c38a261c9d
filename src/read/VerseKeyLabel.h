#pragma once

#include <QLabel>

/// Shows a verse key in the narrow column of buttons, in the part of the label that the window does not cut
/// off: in 9 points, or 8 where that has no room, in one line, or else in two, the book with its ":" above;
/// in 7 points only where 8 fit in neither way. Its text stays the key.
class VerseKeyLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// The part that the window does not cut off, and the key and its type as they are drawn there.
    QRect visiblePart() const;
    QString drawnKey() const;
    QFont drawnFont() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Look
    {
        QString key;
        QFont font;
    };
    Look look() const;
    bool hasRoom(const QString& key, const QFont& font) const;
};
