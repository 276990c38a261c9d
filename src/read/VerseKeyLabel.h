#pragma once

#include <QLabel>

/// Shows a verse key in the narrow column of buttons: the book above, chapter and verse below. Its text stays
/// the key.
class VerseKeyLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};
