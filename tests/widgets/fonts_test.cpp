#include "widgets/Fonts.h"
#include <gtest/gtest.h>
#include <QStringList>

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
