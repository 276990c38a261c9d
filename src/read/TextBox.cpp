#include "read/TextBox.h"

#include "read/ReadingSurface.h"
#include "read/TextBoxReader.h"
#include <algorithm>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

TextBox::TextBox(QWidget* parent)
    : PlainText(parent)
{
    TextBoxReader::install();
    setPalette(readingSurface(palette()));
    verticalScrollBar()->setPalette(besideReadingSurface(parent->palette()));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setText({});
}

void TextBox::setText(const QString& text)
{
    m_text = text;
    setPlainText(text);
    m_lineStarts.clear();
    qsizetype start = 0;
    for (QTextBlock line = document()->begin(); line.isValid(); line = line.next()) {
        m_lineStarts << start;
        const qsizetype end = start + line.length() - 1;
        start = end + (QStringView(m_text).mid(end).startsWith(u"\r\n") ? 2 : 1);
    }
}

qsizetype TextBox::selStart() const
{
    return offsetAt(textCursor().selectionStart());
}

qsizetype TextBox::selLength() const
{
    return offsetAt(textCursor().selectionEnd()) - selStart();
}

void TextBox::setSelection(qsizetype start, qsizetype length)
{
    const int first = positionAt(start);
    const int last = positionAt(start + length);
    // Each move of the caret scrolls it into view: the start comes last, and wins where both have no room.
    QTextCursor caret = textCursor();
    for (int position : {last, first}) {
        caret.setPosition(position);
        setTextCursor(caret);
    }
    const int scrolled = verticalScrollBar()->value();
    caret.setPosition(last, QTextCursor::KeepAnchor);
    setTextCursor(caret);
    verticalScrollBar()->setValue(scrolled);
}

void TextBox::centerSelection()
{
    const QTextCursor selection = textCursor();
    QTextCursor caret = selection;
    caret.setPosition((selection.selectionStart() + selection.selectionEnd()) / 2);
    setTextCursor(caret);
    centerCursor();
    caret.setPosition(selection.selectionStart());
    setTextCursor(caret);
    const int scrolled = verticalScrollBar()->value();
    setTextCursor(selection);
    verticalScrollBar()->setValue(scrolled);
}

void TextBox::setType(const QFont& font)
{
    const bool wasOnShow = isSelectionOnShow();
    setFont(font);
    if (wasOnShow)
        centerSelection();
}

bool TextBox::isSelectionOnShow() const
{
    QTextCursor start = textCursor();
    QTextCursor end = start;
    start.setPosition(start.selectionStart());
    end.setPosition(end.selectionEnd());
    const QRect selection(cursorRect(start).topLeft(), cursorRect(end).bottomRight());
    const QRect room = viewport()->rect();
    return textCursor().hasSelection() && selection.top() <= room.bottom() &&
           selection.bottom() >= room.top();
}

QMimeData* TextBox::createMimeDataFromSelection() const
{
    auto* selection = new QMimeData;
    selection->setText(selText());
    return selection;
}

qsizetype TextBox::offsetAt(int position) const
{
    const QTextBlock line = document()->findBlock(position);
    return m_lineStarts[line.blockNumber()] + position - line.position();
}

int TextBox::positionAt(qsizetype offset) const
{
    const auto next = std::upper_bound(m_lineStarts.begin() + 1, m_lineStarts.end(), offset);
    const QTextBlock line = document()->findBlockByNumber(static_cast<int>(next - m_lineStarts.begin()) - 1);
    const qsizetype column = std::clamp<qsizetype>(offset - *(next - 1), 0, line.length() - 1);
    return line.position() + static_cast<int>(column);
}
