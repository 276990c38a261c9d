// The credit of the text, which its licence wants where readers see it.
#include "pictures/Pictures.h"
#include "pictures/TextCredit.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QFontDatabase>
#include <QImage>

namespace {

QString repositoryText(const char* path)
{
    QFile file(QString(KESTREL_SOURCE_DIR) + "/" + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// How dark a row of pixels gets, 0 to 255, between two columns.
int darkestIn(const QImage& image, int y, int left, int right)
{
    int darkest = 255;
    for (int x = left; x < right; ++x)
        darkest = qMin(darkest, qGray(image.pixel(x, y)));
    return darkest;
}

/// That all of the credit is there, in three lines at least, and none of it at an edge.
void expectWholeCredit(qreal ratio)
{
    const QImage image = splashPicture(ratio).toImage();
    const int top = qRound(300 * ratio);
    const int edge = qRound(3 * ratio);
    int rowsOfInk = 0;
    int lines = 0;
    bool inLine = false;
    for (int y = top; y < image.height(); ++y) {
        const bool ink = darkestIn(image, y, 0, image.width()) < 160;
        rowsOfInk += ink;
        lines += ink && !inLine;
        inLine = ink;
        EXPECT_GT(darkestIn(image, y, 0, edge), 230) << "ink at the left edge";
        EXPECT_GT(darkestIn(image, y, image.width() - edge, image.width()), 230) << "ink at the right edge";
    }
    for (int row = 0; row < edge; ++row) {
        EXPECT_GT(darkestIn(image, image.height() - 1 - row, 0, image.width()), 230) << "ink at the foot";
        EXPECT_GT(darkestIn(image, top + row, 0, image.width()), 200) << "ink above the foot";
    }
    EXPECT_GE(lines, 3);
    EXPECT_GT(rowsOfInk, qRound(25 * ratio));
}

} // namespace

TEST(TextCredit, IsThatOfTheReadme)
{
    QString readme = repositoryText("README.md");
    readme.replace("\n> ", " ");
    EXPECT_TRUE(readme.contains(textCredit));
}

TEST(TextCredit, IsWrittenAtTheFootOfTheSplashAndNotCut)
{
    for (const qreal ratio : {1.0, 1.5, 2.0})
        expectWholeCredit(ratio);
}

TEST(TextCredit, IsWrittenSmallerWhereASystemsFontIsWide)
{
    const QString wide = "DejaVu Sans Mono";
    if (!QFontDatabase::hasFamily(wide))
        GTEST_SKIP() << "this system has no such font";
    const QStringList before = QFont::substitutes("Tahoma");
    QFont::removeSubstitutions("Tahoma");
    QFont::insertSubstitution("Tahoma", wide);
    expectWholeCredit(1);
    QFont::removeSubstitutions("Tahoma");
    QFont::insertSubstitutions("Tahoma", before);
}
