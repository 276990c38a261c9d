#pragma once

#include <QAbstractButton>

/// A text or a small picture that opens something when it is clicked. A text can also be reached with Tab and
/// pressed with Space or Enter. To assistive programs, which can press both, a text is a link and a picture
/// an image.
class LinkLabel : public QAbstractButton
{
    Q_OBJECT

public:
    LinkLabel(const QString& text, QWidget* parent);
    LinkLabel(const QIcon& picture, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
