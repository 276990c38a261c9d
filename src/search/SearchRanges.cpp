#include "search/SearchRanges.h"

#include "store/BookCatalog.h"
#include "widgets/Text.h"

namespace {

void addBooks(std::vector<SearchRange>& ranges, std::string_view testament)
{
    for (const Book& book : bookCatalog())
        if (book.testament == testament)
            ranges.push_back({toText(book.abbreviation)});
}

std::vector<SearchRange> makeRanges()
{
    std::vector<SearchRange> ranges = {
        {"Gn --> Dt (Pentateuch)", 7958, 13809}, {"Jos --> Est (Historical)", 13810, 20827},
        {"Jb --> Sg (Poetical)", 20828, 25612},  {"Is --> Mal (Prophetic)", 25613, 31102},
        {"All Old Testament", 7958, 31102},
    };
    addBooks(ranges, "Old Testament");
    ranges.push_back({"The Four Gospels", 1, 3779});
    ranges.push_back({"Rom --> Heb", 4787, 7122});
    ranges.push_back({"Jms --> Jude", 7123, 7553});
    ranges.push_back({"All New Testament", 1, 7957});
    addBooks(ranges, "New Testament");
    return ranges;
}

} // namespace

const std::vector<SearchRange>& searchRanges()
{
    static const std::vector<SearchRange> ranges = makeRanges();
    return ranges;
}

QString rangeCondition(int place, const QString& entry)
{
    const auto& ranges = searchRanges();
    const bool isListed = place >= 0 && place < static_cast<int>(ranges.size());
    const SearchRange range = isListed ? ranges[static_cast<std::size_t>(place)] : SearchRange();
    if (range.first > 0)
        return QString("VerseNumber BETWEEN %1 AND %2 AND ").arg(range.first).arg(range.last);
    return "VerseId LIKE '" + entry + "*' AND ";
}
