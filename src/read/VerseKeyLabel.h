#pragma once

#include <QLabel>

/// Shows a verse key in the narrow column of buttons, in the part of the label that the window does not cut
/// off: in one line, or where that does not fit in two, the book with its ":" above. Its text stays the key.
class VerseKeyLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// The part that the window does not cut off, and the key as it is drawn there.
    QRect visiblePart() const;
    QString drawnKey() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};
