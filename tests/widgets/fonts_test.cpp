#include "widgets/Fonts.h"
#include <gtest/gtest.h>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>

namespace {

/// Some font of this system; empty where it has none of this kind.
QString anyFontFile()
{
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::FontsLocation)) {
        QDirIterator files(folder, {"*.ttf"}, QDir::Files, QDirIterator::Subdirectories);
        if (files.hasNext())
            return files.next();
    }
    return {};
}

} // namespace

TEST(Fonts, NamesTheFacesAndShowsTheirSubstitutes)
{
    EXPECT_EQ(Fonts::tahomaOf(12).family(), "Tahoma");
    EXPECT_TRUE(QFont::substitutes("Tahoma").contains("Liberation Sans", Qt::CaseInsensitive));
    EXPECT_TRUE(QFont::substitutes("Times New Roman").contains("Liberation Serif", Qt::CaseInsensitive));
}

TEST(Fonts, LeavesCaptionsAsTheyAreInTheFontTheyAreDesignedFor)
{
    for (const int points : {7, 9, 10})
        EXPECT_EQ(Fonts::captionsOf(points).stretch(), QFont::AnyStretch) << points;
}

TEST(Fonts, TakesThoseThatLieInAFolderOfTheProgram)
{
    const QString file = anyFontFile();
    if (file.isEmpty())
        GTEST_SKIP() << "this system has no font in a file of its own";
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(file, folder.filePath("one.ttf")));
    ASSERT_TRUE(QFile::copy(file, folder.filePath("one.txt")));
    ASSERT_EQ(QFontDatabase::applicationFontFamilies(0), QStringList());
    Fonts::install(folder.path());
    EXPECT_NE(QFontDatabase::applicationFontFamilies(0), QStringList());
    EXPECT_EQ(QFontDatabase::applicationFontFamilies(1), QStringList()) << "what is no font by its name";
    QFontDatabase::removeAllApplicationFonts();
}
