#include "search/SearchQuery.h"

bool isLastQuery(const SearchInputs& inputs, const SearchMemory& memory)
{
    const auto same = [](const QString& a, const QString& b) { return a.toLower() == b.toLower(); };
    const bool firstHalf = same(inputs.text1, memory.LastText1) && inputs.range == memory.LastRange &&
                           inputs.wholeWord == memory.LastWholeWord;
    if (inputs.text2.isEmpty() && memory.LastText2.isEmpty())
        return firstHalf;
    return firstHalf && same(inputs.text2, memory.LastText2) && inputs.connective == memory.LastConnective;
}

QString escapeQuotes(QString word)
{
    return word.replace('\'', '?');
}

QString wrapWholeWord(const QString& word)
{
    const QString noLetter = "[!0-9a-zA-Z]";
    return noLetter + word + noLetter;
}

std::optional<std::string> searchSql(const QString& word1, const QString& word2, int connective,
                                     const QString& rangeCondition)
{
    const QString select = "SELECT * FROM NewTestament WHERE " + rangeCondition;
    const QString first = "KJVerseText LIKE '*" + word1 + "*'";
    const QString second = "LIKE '*" + word2 + "*'";
    QString sql;
    if (word2.isEmpty())
        sql = select + first;
    else if (connective == 0)
        sql = select + first + " AND KJVerseText " + second;
    else if (connective == 1)
        sql = select + first + " AND KJVerseText NOT " + second;
    else if (connective == 2)
        sql = select + "(" + first + " OR KJVerseText " + second + ")";
    else
        return {};
    return sql.toStdString();
}
