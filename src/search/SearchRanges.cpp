#include "search/SearchRanges.h"

#include "store/BookCatalog.h"
#include "widgets/Text.h"

namespace {

QStringList booksOf(std::string_view testament)
{
    QStringList books;
    for (const Book& book : bookCatalog())
        if (book.testament == testament)
            books << toText(book.abbreviation);
    return books;
}

} // namespace

QStringList searchRanges()
{
    QStringList ranges = {"Gn --> Dt (Pentateuch)", "Jos --> Est (Historical)", "Jb --> Sg (Poetical)",
                          "Is --> Mal (Prophetic)", "All Old Testament"};
    ranges += booksOf("Old Testament");
    ranges += {"The Four Gospels", "Rom --> Heb", "Jms --> Jude", "All New Testament"};
    ranges += booksOf("New Testament");
    return ranges;
}

QString rangeCondition(int place, const QString& entry)
{
    switch (place) {
    case 0:
        return "VerseNumber BETWEEN 7958 AND 13809 AND ";
    case 1:
        return "VerseNumber BETWEEN 13810 AND 20827 AND ";
    case 2:
        return "VerseNumber BETWEEN 20828 AND 25612 AND ";
    case 3:
        return "VerseNumber BETWEEN 25613 AND 31102 AND ";
    case 4:
        return "VerseNumber BETWEEN 7958 AND 31102 AND ";
    case 44:
        return "VerseNumber BETWEEN 1 AND 3779 AND ";
    case 45:
        return "VerseNumber BETWEEN 4787 AND 7122 AND ";
    case 46:
        return "VerseNumber BETWEEN 7123 AND 7553 AND ";
    case 47:
        return "VerseNumber BETWEEN 1 AND 7957 AND ";
    default:
        return "VerseId LIKE '" + entry + "*' AND ";
    }
}
