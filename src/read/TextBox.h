#pragma once

#include "widgets/PlainText.h"
#include <QList>

/// A box of many lines to read, to select from by mouse or keyboard, and to drag the selection out of.
///
/// QPlainTextEdit drops carriage returns and turns no-break blanks into blanks. The box keeps its text
/// itself: text(), the offsets of a selection, and what is copied or dragged are exact to the letter.
class TextBox : public PlainText
{
    Q_OBJECT

public:
    explicit TextBox(QWidget* parent);

    const QString& text() const { return m_text; }
    /// Shows a text whose lines are parted by CR LF, from its start, with nothing selected.
    void setText(const QString& text);

    /// The selection in characters of text(). Without one, the length is 0 and the start is the caret's.
    qsizetype selStart() const;
    qsizetype selLength() const;
    QString selText() const { return m_text.mid(selStart(), selLength()); }
    /// Selects, and scrolls the selection into view: as much of it as there is room for, from its start.
    void setSelection(qsizetype start, qsizetype length);
    /// Scrolls the middle of the selection to the middle of the box, as far as the text reaches. A selection
    /// without room shows from its start.
    void centerSelection();
    /// Sets the type. A selection that shows does so in the new type too.
    void setType(const QFont& font);

protected:
    QMimeData* createMimeDataFromSelection() const override;

private:
    bool isSelectionOnShow() const;
    qsizetype offsetAt(int position) const;
    int positionAt(qsizetype offset) const;

    QString m_text;
    QList<qsizetype> m_lineStarts; ///< where in the text each line on show begins
};
