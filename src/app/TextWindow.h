#pragma once

#include <QDialog>

class QPlainTextEdit;

/// A modal window over the About window that holds one text to read. It has no buttons; Esc closes it.
class TextWindow : public QDialog
{
    Q_OBJECT

protected:
    /// name: the window's class name.
    TextWindow(const QString& name, const QString& caption, const QString& text, QWidget* owner);

private:
    QPlainTextEdit* Text1;
};
