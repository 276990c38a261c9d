// Any bytes at all must give a help that shows in a moment and names no other file.
#include "help/HelpFile.h"
#include "help/HelpHtml.h"
#include <cstdlib>
#include <memory>
#include <QApplication>
#include <QFontMetrics>
#include <QTextDocument>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Tells whether a page asked for anything.
class Document : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl&) override { std::abort(); }
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    auto* application = new QApplication(*argc, *argv);
    // libFuzzer ends by exit(), which destroys what is static, the youngest first: Qt's own objects for fonts
    // must be older than the owner of the application, which tidies up in them.
    QFontMetrics(QFont()).horizontalAdvance('a');
    static const std::unique_ptr<QApplication> owner(application);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<QString> cleaned = cleanedHelp(text);
    if (!cleaned)
        return 0;
    require(cleanedHelp(*cleaned) == cleaned); // what is left is all kept
    for (const HelpPage& page : helpPages(*cleaned)) {
        Document document;
        document.setHtml(page.html);
        document.setTextWidth(700);
        require(document.size().height() >= 0);
    }
    return 0;
}
