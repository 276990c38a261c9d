#include "read/Chapter.h"

#include "store/DataSource.h"
#include "widgets/Text.h"

namespace {

constexpr int maxVerses = 300; // well above the longest chapter's 176

} // namespace

QString chapterReference(const QString& key)
{
    const qsizetype first = key.indexOf(':') + 1;
    const qsizetype second = QStringView(key).mid(first).indexOf(u':') + 1;
    return key.left(first + second);
}

QString chapterCaption(const QString& reference)
{
    return "Chapter Window -- " + reference;
}

QString referenceInCaption(const QString& caption)
{
    return caption.mid(caption.indexOf("-- ") + 3);
}

QString gatherChapter(DataSource& source, const QString& reference)
{
    std::string text;
    // Only a whole reference names a chapter: with none at all, "1*" would find the first verse of 1Cor.
    const int last = reference.count(':') == 2 ? maxVerses : 0;
    const std::string query = "SELECT * FROM NewTestament WHERE VerseId LIKE '" + reference.toStdString();
    for (int verse = 1; verse <= last; ++verse) {
        source.setRecordSource(query + std::to_string(verse) + "*'");
        source.refresh();
        if (source.recordCount() == 0)
            break;
        text.append(source.field(0)).append(source.field(2)).append("\r\n");
    }
    return toText(text) + "(PT)";
}
