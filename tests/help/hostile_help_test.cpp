// A help file that somebody else wrote: it is shown, or counts as missing, at once, and reads nothing but
// itself.
#include "help/HelpBrowser.h"
#include "help/HelpFile.h"
#include "help/HelpHtml.h"
#include "help/HelpLink.h"
#include "store/ProcessorTime.h"
#include "support/Files.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

using namespace std::chrono_literals;

namespace {

QString page(const QString& content, const QString& name = "Welcome")
{
    return "<section id=\"" + name + "\"><h1>Title</h1>" + content + "</section>";
}

/// Writes a help file and reads it as the program does.
QList<HelpPage> pagesOf(const QString& text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("KESTREL.HLP"));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(text.toUtf8());
    file.close();
    return readHelpFile(file.fileName());
}

struct Hostile
{
    const char* what;
    QString text;
};

void PrintTo(const Hostile& hostile, std::ostream* out)
{
    *out << hostile.what;
}

class TooMuch : public testing::TestWithParam<Hostile>
{
};

} // namespace

TEST_P(TooMuch, CountsAsMissingAtOnce)
{
    const auto begun = processorTime();
    EXPECT_TRUE(pagesOf(GetParam().text).isEmpty());
    EXPECT_LT(processorTime() - begun, 5s);
}

INSTANTIATE_TEST_SUITE_P(
    Help, TooMuch,
    testing::Values(
        Hostile{"more than 4 MB", page(QString("a ").repeated(2 * 1024 * 1024))},
        Hostile{"3,000 nested tables", page(QString("<table><tr><td>").repeated(3000))},
        Hostile{"a table in a table", page("<table><tr><td><table></table></td></tr></table>")},
        Hostile{"a table in a table's second row",
                page("<table><tr><td>a</td></tr><tr><td><table></table></td></tr></table>")},
        Hostile{"nested lists", page(QString("<ul><li>").repeated(9))},
        Hostile{"letters in letters", page(QString("<b>").repeated(100'000))},
        Hostile{"letters ended before they begin",
                page(QString("</b>").repeated(100) + QString("<b>").repeated(HelpLimits::nesting + 1))},
        Hostile{"5,001 cells", page("<table>" + QString("<tr><td>a</td></tr>").repeated(5001) + "</table>")},
        Hostile{"20,000 paragraphs", page(QString("<p>a</p>").repeated(20'000))},
        Hostile{"100,002 words", page(QString("a ").repeated(100'002))},
        Hostile{"a word of 201 letters", page(QString("w").repeated(201))},
        Hostile{"the same, of letters of many kinds", page(QString("ww<b>w</b>").repeated(67))},
        Hostile{"no blank but hard ones", page(QString("a\u00A0").repeated(101))},
        Hostile{"201 pages", page("a").repeated(201)}, Hostile{"a page in a page", page(page("a"))},
        Hostile{"pages without end", QString("<section id=\"a\"><h1>").repeated(100'000)},
        Hostile{"ends without pages", QString("</section>").repeated(100'000)}));

TEST(HelpFile, HoldsAsMuchAsTheLimitsAllow)
{
    const QString words = QString("a ").repeated(90'000);
    const QString cells = "<table>" + QString("<tr><td>b</td></tr>").repeated(4900) + "</table>";
    const QString longWord = QString("w").repeated(HelpLimits::wordLength);
    const QString nested = QString("<b>").repeated(HelpLimits::nesting - 1) + "x" +
                           QString("</b>").repeated(HelpLimits::nesting - 1);
    EXPECT_EQ(pagesOf(page(words) + page(nested) + page(longWord)).size(), 3);
    EXPECT_EQ(pagesOf(page(cells)).size(), 1);
    EXPECT_EQ(pagesOf(page("a").repeated(HelpLimits::pages)).size(), HelpLimits::pages);
}

TEST(HelpFile, EndsWhereACommentHasNoEnd)
{
    const auto begun = processorTime();
    EXPECT_EQ(pagesOf(page("a") + QString("<!--").repeated(1'000'000) + page("b")).size(), 1);
    EXPECT_LT(processorTime() - begun, 5s);
}

TEST(HelpFile, KeepsWhatHelpIsWrittenIn)
{
    const QString text =
        page("<p>See <a href=\"#Keys\">the <kbd>keys</kbd></a>.<br>"
             "<table border=\"1\" cellspacing=\"0\"><tr><th>a</th><td>&lt;b&gt;</td></tr></table>"
             "<ul><li><em>c</em></li></ul></p>");
    EXPECT_EQ(cleanedHelp(text), text);
}

TEST(HelpFile, KeepsTheShippedHelpWhole)
{
    QFile file(KESTREL_SOURCE_DIR "/data/help/kestrel.html");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    EXPECT_EQ(readHelpFile(file.fileName()).size(), text.count("<section"));
    const std::optional<QString> cleaned = cleanedHelp(text);
    ASSERT_TRUE(cleaned);
    for (const char* tag :
         {"<a href=", "<td>", "<kbd>", "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">"})
        EXPECT_EQ(cleaned->count(tag), text.count(tag)) << tag;
}

TEST(HelpFile, LeavesOutWhatCouldNameAnotherFile)
{
    for (const char* hostile :
         {"<img src=\"/dev/zero\">", "<link rel=\"stylesheet\" href=\"file:///dev/zero\">", "<!-- a -->",
          "<style>", "<IMG\nSRC='/dev/zero'>", "<object data=\"/dev/zero\">", "<?xml a?>", "<!DOCTYPE html>"})
        EXPECT_EQ(cleanedHelp(QString("<p>a%1b</p>").arg(hostile)), "<p>ab</p>") << hostile;
    EXPECT_EQ(cleanedHelp(QString("<p style=\"background-image: url(/dev/zero)\">a</p>")), "<p>a</p>");
    EXPECT_EQ(cleanedHelp(QString("<td background=\"/dev/zero\" colspan=\"20000\">a</td>")), "<td>a</td>");
    EXPECT_EQ(cleanedHelp(QString("<table border=\"100000\">a</table>")), "<table>a</table>");
    EXPECT_EQ(cleanedHelp(QString("<p>a<img src=\"/dev/zero\"")), "<p>a");
}

TEST(HelpWindow, ShowsAPageWithAPictureOfAPipeAtOnce)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    if (!Files::makePipe(pipe.toStdString()))
        GTEST_SKIP() << "no folder holds a pipe here";
    QFile file(folder.filePath("KESTREL.HLP"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(page("<p>a<img src=\"" + pipe + "\">b</p>").toUtf8());
    file.close();
    HelpBrowser browser(nullptr);
    browser.setPages(readHelpFile(file.fileName()));
    browser.showPage("Welcome");
    browser.show();
    browser.grab();
    EXPECT_TRUE(browser.toPlainText().contains("ab"));
}

TEST(HelpLinks, AreWebAndMailAddresses)
{
    for (const char* link : {"http://www.example/", "https://www.example/a?b=c#d", "mailto:a@b.example",
                             "mailto:a@b.example?subject=c&body=d"})
        EXPECT_TRUE(isLinkForTheDesktop(QUrl(link))) << link;
}

TEST(HelpLinks, HandNothingElseOn)
{
    for (const char* link :
         {"file:///etc/passwd", "ftp://www.example/", "javascript:alert(1)", "data:text/html,a",
          "smb://www.example/", "vnd.example:a", "", "#a", "https:", "http:///a",
          "mailto:a@b.example?attach=/etc/passwd", "mailto:a@b.example?subject=a&Attachment=/b",
          "mailto:a@b.example?%61ttach=/etc/passwd", "mailto:?x=y"})
        EXPECT_FALSE(isLinkForTheDesktop(QUrl(link))) << link;
}
