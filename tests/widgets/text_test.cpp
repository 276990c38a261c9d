// Texts of the windows.
#include "widgets/Text.h"
#include <gtest/gtest.h>

TEST(Texts, LoseTheirOuterBlanksAlone)
{
    EXPECT_EQ(trimBlanks("  o amor "), "o amor");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(""), "");
    for (const QChar space : {u'\t', u'\n', u'\r', u'\u00a0', u'\u2003'})
        EXPECT_EQ(trimBlanks(" " + (space + QString("amor") + space) + " "), space + QString("amor") + space);
}
