#pragma once

#include <QAbstractButton>

/// A text or a small picture that opens something when it is clicked. A text can also be reached with Tab and
/// pressed with Space or Enter, and a screen reader can press it.
class LinkLabel : public QAbstractButton
{
    Q_OBJECT

public:
    LinkLabel(const QString& name, const QString& text, QWidget* parent);
    LinkLabel(const QString& name, const QIcon& picture, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
