// What a search lists, held against a plain scan of all verses by a slow matcher of its own.
#include "search/SearchSession.h"
#include <algorithm>
#include <random>
#include <sqlite3.h>
#include <vector>

namespace {

using Text = std::u32string;

Text folded(const QString& text)
{
    return text.toLower().toStdU32String();
}

struct Verse
{
    int number;
    QString key;
    QString line;
    Text text; ///< in small letters
};

/// The verses as they lie in the file, in the order of their numbers.
std::vector<Verse> readVerses(const QString& path)
{
    std::vector<Verse> verses;
    sqlite3* file = nullptr;
    sqlite3_stmt* rows = nullptr;
    EXPECT_EQ(sqlite3_open_v2(path.toUtf8(), &file, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_prepare_v2(file,
                                 "SELECT VerseNumber, VerseId, KJVerseText FROM NewTestament ORDER BY 1", -1,
                                 &rows, nullptr),
              SQLITE_OK);
    const auto column = [&](int place) {
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(rows, place)));
    };
    while (sqlite3_step(rows) == SQLITE_ROW) {
        QString text = column(2);
        if (!text.startsWith(' '))
            text.prepend(' ');
        verses.push_back({sqlite3_column_int(rows, 0), column(1), column(1) + text, folded(text)});
    }
    sqlite3_finalize(rows);
    sqlite3_close(file);
    return verses;
}

/// One place of a pattern: any run of characters, or one that the class holds (or does not).
struct Place
{
    bool isRun = false;
    bool negated = false;
    std::vector<std::pair<char32_t, char32_t>> ranges; ///< in small letters

    bool accepts(char32_t c) const
    {
        for (const auto& [first, last] : ranges)
            if (first <= c && c <= last)
                return !negated;
        return negated;
    }
};

const Place anyRun{true, false, {}};
const Place anyCharacter{false, true, {}};
const Place digit{false, false, {{U'0', U'9'}}};
const Place noLetter{false, true, {{U'0', U'9'}, {U'a', U'z'}}};

/// A class between its brackets: "!" first negates, "a-f" is a range.
Place classOf(Text members)
{
    Place place;
    place.negated = members.starts_with(U'!');
    if (place.negated)
        members.erase(0, 1);
    for (std::size_t i = 0; i < members.size(); ++i) {
        const bool isRange = i + 2 < members.size() && members[i + 1] == U'-';
        place.ranges.push_back({members[i], members[isRange ? i + 2 : i]});
        i += isRange ? 2 : 0;
    }
    return place;
}

std::vector<Place> compiled(const QString& typed, bool wholeWord)
{
    const Text word = folded(typed);
    std::vector<Place> pattern;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const char32_t c = word[i];
        if (c == U'*') {
            pattern.push_back(anyRun);
        } else if (c == U'?' || c == U'\'') {
            pattern.push_back(anyCharacter);
        } else if (c == U'#') {
            pattern.push_back(digit);
        } else if (c == U'[') {
            const std::size_t end = word.find(U']', i);
            pattern.push_back(classOf(word.substr(i + 1, end - i - 1)));
            i = end;
        } else {
            pattern.push_back({false, false, {{c, c}}});
        }
    }
    if (wholeWord) {
        pattern.insert(pattern.begin(), noLetter);
        pattern.push_back(noLetter);
    }
    return pattern;
}

/// Whether the pattern fits from here on.
bool fits(const Place* place, const Place* placesEnd, const char32_t* at, const char32_t* end)
{
    for (; place != placesEnd; ++place, ++at) {
        if (place->isRun) {
            for (; at <= end; ++at)
                if (fits(place + 1, placesEnd, at, end))
                    return true;
            return false;
        }
        if (at >= end || !place->accepts(*at))
            return false;
    }
    return true;
}

bool contains(const Text& text, const std::vector<Place>& pattern)
{
    const char32_t* const end = text.data() + text.size();
    const char32_t* at = text.data();
    if (pattern.empty() || pattern.front().isRun)
        return fits(pattern.data(), pattern.data() + pattern.size(), at, end);
    // The first place is tried without a call, since the whole Bible is walked for each of thousands of
    // searches.
    const Place& first = pattern.front();
    while ((at = std::find_if(at, end, [&](char32_t c) { return first.accepts(c); })) != end)
        if (fits(pattern.data() + 1, pattern.data() + pattern.size(), ++at, end))
            return true;
    return false;
}

struct Query
{
    QString text1;
    QString text2;
    int connective;
    int range;
    bool wholeWord;
};

/// The nine groups by the places of their entries.
bool isInRange(const Verse& verse, int range, const QString& entry)
{
    const auto between = [&](int first, int last) { return verse.number >= first && verse.number <= last; };
    switch (range) {
    case 0:
        return between(7958, 13809);
    case 1:
        return between(13810, 20827);
    case 2:
        return between(20828, 25612);
    case 3:
        return between(25613, 31102);
    case 4:
        return between(7958, 31102);
    case 44:
        return between(1, 3779);
    case 45:
        return between(4787, 7122);
    case 46:
        return between(7123, 7553);
    case 47:
        return between(1, 7957);
    default:
        return verse.key.startsWith(entry, Qt::CaseInsensitive);
    }
}

QStringList scan(const std::vector<Verse>& verses, const Query& query, const QString& entry)
{
    const auto first = compiled(query.text1, query.wholeWord);
    const auto second = compiled(query.text2, query.wholeWord);
    QStringList lines;
    for (const Verse& verse : verses) {
        if (!isInRange(verse, query.range, entry))
            continue;
        bool wanted = contains(verse.text, first);
        if (!query.text2.isEmpty()) {
            const bool other = contains(verse.text, second);
            wanted = query.connective == 0   ? wanted && other
                     : query.connective == 1 ? wanted && !other
                                             : wanted || other;
        }
        if (wanted)
            lines << verse.line;
    }
    return lines;
}

/// Makes queries from the text itself, so that most find something.
class QueryMaker
{
public:
    explicit QueryMaker(const std::vector<Verse>& verses)
        : m_verses(verses)
    {
    }

    Query next()
    {
        Query query{};
        query.text1 = word();
        query.connective = below(3);
        query.range = below(12) == 0 ? -1 : below(75);
        query.wholeWord = below(3) == 0;
        if (below(2) == 0)
            query.text2 = word();
        return query;
    }

private:
    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }

    QString word()
    {
        static const QStringList odd = {"xyzzy",       "#",         "na",      "é", "Í",         "'",
                                        "d'água",      "a*e",       "[áàâã]",  "?", "*",         "[a-c]???",
                                        "[!a-z ]",     "s[e-i]*m",  "(",       "]", "!",         "-",
                                        "moleiro*rio", "[xyz][!u]", "MOLEIRO", "“", "o? [A-D]?", "[!r-t]e"};
        if (below(6) == 0)
            return odd[below(static_cast<int>(odd.size()))];
        QString piece = pieceOfText();
        switch (below(8)) {
        case 0:
            return piece.toUpper();
        case 1:
            return replaced(piece, "?");
        case 2:
            return replaced(piece, "*");
        case 3:
            return replaced(piece, "'");
        case 4:
            return replaced(piece, "[aeiouãéç]");
        case 5:
            return replaced(piece, "[!b-dB-D]");
        default:
            return piece;
        }
    }

    QString pieceOfText()
    {
        QString piece;
        while (piece.isEmpty()) {
            const QString& line =
                m_verses[static_cast<std::size_t>(below(static_cast<int>(m_verses.size())))].line;
            const QStringList words = line.split(' ').mid(1);
            const int from = below(static_cast<int>(words.size()));
            piece = words.mid(from, 1 + below(2)).join(' ');
            if (below(3) == 0)
                piece = piece.mid(below(3), 2 + below(4)).trimmed();
            piece.remove('[').remove('#'); // the text's own brackets would open a class
        }
        return piece;
    }

    QString replaced(QString piece, const QString& wildcard)
    {
        return piece.replace(below(static_cast<int>(piece.size())), 1, wildcard);
    }

    const std::vector<Verse>& m_verses;
    std::mt19937 m_random{19980505};
};

} // namespace

using SearchOracle = SearchSession;

TEST_F(SearchOracle, AgreesLineByLineOnGeneratedQueries)
{
    const std::vector<Verse> verses = readVerses(program->basePath + "KESTRPT.DAT");
    ASSERT_EQ(verses.size(), 31102U);
    QueryMaker maker(verses);
    constexpr int queries = KESTREL_GENERATED_SEARCHES;
    int found = 0;
    for (int i = 0; i < queries; ++i) {
        const Query query = maker.next();
        boxes.shown.clear();
        search({.text1 = query.text1,
                .text2 = query.text2,
                .connective = query.connective,
                .range = query.range,
                .wholeWord = query.wholeWord});
        const QStringList expected = scan(verses, query, Combo2().currentText());
        const std::string what = QString("%1: '%2' '%3' connective %4 range %5 whole %6")
                                     .arg(i)
                                     .arg(query.text1, query.text2)
                                     .arg(query.connective)
                                     .arg(query.range)
                                     .arg(query.wholeWord)
                                     .toStdString();
        if (expected.isEmpty()) {
            ASSERT_EQ(box(), noMatches) << what;
            continue;
        }
        ASSERT_EQ(box(), QString("information|Search Results:|%1 verse(s) found.").arg(expected.size()))
            << what;
        ASSERT_EQ(lines(), expected) << what;
        newSearch();
        ++found;
    }
    EXPECT_GT(found, queries / 2);
    EXPECT_LT(found, queries);
    RecordProperty("found", found);
}

TEST_F(SearchOracle, FailsOnEveryPatternThatCannotBeValid)
{
    for (const char* text : {"[", "amor[", "[a", "[!", "[z-a]", "rio[c-a]x", "*[*"}) {
        search({.text1 = text, .range = NoRange});
        EXPECT_EQ(box(), failedTitle + "Error 93: Invalid pattern string" + aborted) << text;
        search({.text1 = "amor", .text2 = text, .connective = Or});
        EXPECT_EQ(box(), failedTitle + "Error 93: Invalid pattern string" + aborted) << text;
    }
}
