#include "help/HelpHtml.h"

#include <QHash>
#include <QRegularExpression>

namespace {

enum class Kind { Letters, Break, Block, Cell, Table, Section };

/// The tags that are kept. Letters run on into the next word; a break is never closed.
const QHash<QString, Kind>& keptTags()
{
    static const QHash<QString, Kind> tags = {
        {"a", Kind::Letters},   {"b", Kind::Letters},       {"i", Kind::Letters},
        {"em", Kind::Letters},  {"strong", Kind::Letters},  {"code", Kind::Letters},
        {"kbd", Kind::Letters}, {"br", Kind::Break},        {"h1", Kind::Block},
        {"h2", Kind::Block},    {"h3", Kind::Block},        {"p", Kind::Block},
        {"ul", Kind::Block},    {"ol", Kind::Block},        {"li", Kind::Block},
        {"tr", Kind::Block},    {"td", Kind::Cell},         {"th", Kind::Cell},
        {"table", Kind::Table}, {"section", Kind::Section},
    };
    return tags;
}

/// The attributes that a kept tag keeps, as they may stand in its text.
QString keptAttributes(const QString& name, QStringView text)
{
    static const QHash<QString, QRegularExpression> kept = {
        {"a", QRegularExpression("\\shref=\"[^\"<>]*\"")},
        {"section", QRegularExpression("\\sid=\"[\\w-]+\"")},
        {"table", QRegularExpression("\\s(?:border|cellspacing|cellpadding)=\"\\d{1,2}\"")},
    };
    QString result;
    const auto pattern = kept.find(name);
    if (pattern == kept.end())
        return result;
    for (auto matches = pattern->globalMatch(text.toString()); matches.hasNext();)
        result += matches.next().captured();
    return result;
}

class Cleaner
{
public:
    QString result;

    void addText(QStringView text)
    {
        for (const QChar c : text) {
            const bool isBlank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
            m_words += isBlank && m_wordLength > 0;
            m_wordLength = isBlank ? 0 : m_wordLength + 1;
            m_longestWord = qMax(m_longestWord, m_wordLength);
        }
        result += text;
    }

    /// text: what stands between "<" and ">".
    void addTag(QStringView text)
    {
        const bool closes = text.startsWith('/');
        text = text.mid(closes);
        qsizetype length = 0;
        while (length < text.size() && text[length].isLetterOrNumber())
            ++length;
        const QString name = text.left(length).toString().toLower();
        const auto kind = keptTags().find(name);
        if (kind == keptTags().end())
            return;
        if (*kind != Kind::Letters)
            m_wordLength = 0;
        if (closes)
            close(*kind);
        else
            open(*kind);
        result += (closes ? "</" + name : '<' + name + keptAttributes(name, text.mid(length))) + '>';
    }

    bool isWithinLimits() const
    {
        return m_tags <= HelpLimits::tags && m_cells <= HelpLimits::cells && m_words <= HelpLimits::words &&
               m_longestWord <= HelpLimits::wordLength && m_nesting <= HelpLimits::nesting &&
               m_sections <= HelpLimits::pages && m_openTables <= 1 && m_openSections >= 0 &&
               m_openSections <= 1;
    }

    bool isComplete() const { return m_openSections == 0; }

private:
    void open(Kind kind)
    {
        ++m_tags;
        m_nesting += kind != Kind::Break;
        m_cells += kind == Kind::Cell;
        m_openTables += kind == Kind::Table;
        m_openSections += kind == Kind::Section;
        m_sections += kind == Kind::Section;
    }

    void close(Kind kind)
    {
        ++m_tags;
        m_nesting -= kind != Kind::Break && m_nesting > 0;
        m_openTables -= kind == Kind::Table && m_openTables > 0;
        m_openSections -= kind == Kind::Section;
    }

    int m_tags = 0;
    int m_cells = 0;
    int m_words = 0;
    int m_wordLength = 0; ///< of the word that the text so far ends in
    int m_longestWord = 0;
    int m_nesting = 0;
    int m_sections = 0;
    int m_openSections = 0;
    int m_openTables = 0;
};

} // namespace

std::optional<QString> cleanedHelp(QStringView html)
{
    Cleaner cleaner;
    qsizetype at = 0;
    while (cleaner.isWithinLimits()) {
        const qsizetype start = html.indexOf('<', at);
        cleaner.addText(html.mid(at, start < 0 ? -1 : start - at));
        if (start < 0)
            break;
        const bool isComment = html.mid(start).startsWith(u"<!--");
        const qsizetype end = isComment ? html.indexOf(u"-->", start) : html.indexOf('>', start);
        if (end < 0)
            break; // what is not ended is left out
        if (!isComment)
            cleaner.addTag(html.mid(start + 1, end - start - 1));
        at = end + (isComment ? 3 : 1);
    }
    if (!cleaner.isWithinLimits() || !cleaner.isComplete())
        return {};
    return cleaner.result;
}
