// What a failed test prints is to be read by people.
#include <gtest/gtest.h>

namespace {

using testing::PrintToString;

TEST(PrintedValues, AreTextsAsTheyStand)
{
    EXPECT_EQ(PrintToString(QString("Gênesis")), "\"Gênesis\"");
    EXPECT_EQ(PrintToString(QByteArray("abc")), "\"abc\"");
    EXPECT_EQ(PrintToString(QUrl("https://example.org/a")), "https://example.org/a");
}

TEST(PrintedValues, OfListsStandOneALine)
{
    EXPECT_EQ(PrintToString(QStringList({"Gn:", "Ex:"})), "2 texts:\n    \"Gn:\"\n    \"Ex:\"");
}

TEST(PrintedValues, OfPlacesSayWhatTheyAre)
{
    EXPECT_EQ(PrintToString(QSize(3, 4)), "QSize(3, 4)");
    EXPECT_EQ(PrintToString(QPoint(1, 2)), "QPoint(1,2)");
    EXPECT_EQ(PrintToString(QRect(1, 2, 3, 4)), "QRect(1,2 3x4)");
}

} // namespace
