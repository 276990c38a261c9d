// Any list of passages must give entries that are the list again when they are joined, and verses without a
// hyphen.
#include "maps/TopicText.h"
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    QString list = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QStringList passages;
    for (const QString& entry : referenceEntries(list)) {
        require(entry.size() >= 2 && entry.startsWith(' ') && entry.endsWith(' '));
        require(!referenceOf(entry).contains('-'));
        passages << entry.mid(1, entry.size() - 2);
    }
    if (list.endsWith('\\'))
        list.chop(1);
    require(passages.join('\\') == list);
    require(topicOf(topicEntry(list)).size() <= list.size());
    return 0;
}
