#include "select/ReferenceBox.h"

#include "store/BookCatalog.h"
#include "widgets/Text.h"
#include <QAbstractItemView>

void ReferenceBox::showPopup()
{
    QComboBox::showPopup();
    const QModelIndex book = model()->index(bookOfReference(trimBlanks(currentText())), 0);
    view()->setCurrentIndex(book);
    view()->scrollTo(book, QAbstractItemView::PositionAtCenter);
}

int bookOfReference(const QString& reference)
{
    const QString typed = reference.section(':', 0, 0);
    if (typed.isEmpty())
        return -1;
    const Book* begun = nullptr;
    for (const Book& book : bookCatalog()) {
        const QString abbreviation = toText(book.abbreviation);
        if (abbreviation.compare(typed, Qt::CaseInsensitive) == 0)
            return book.place - 1;
        const bool isFirst =
            !begun || (book.testament == "New Testament" && begun->testament != book.testament);
        if (isFirst && abbreviation.startsWith(typed, Qt::CaseInsensitive))
            begun = &book;
    }
    return begun ? begun->place - 1 : -1;
}
