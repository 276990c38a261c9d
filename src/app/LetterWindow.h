#pragma once

#include <QDialog>

class QPlainTextEdit;

/// A modal window over the About window that holds one text to read. It has no buttons; Esc closes it.
class LetterWindow : public QDialog
{
    Q_OBJECT

public:
    QPlainTextEdit* Text1;

protected:
    /// name: the window's class name.
    LetterWindow(const QString& name, const QString& caption, const QString& text, QWidget* owner);
};
