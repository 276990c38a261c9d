// Numbers to scale by that Qt would take from the environment.
#include "app/Scaling.h"
#include <gtest/gtest.h>
#include <QByteArray>

namespace {

constexpr const char* factor = "QT_SCALE_FACTOR";
constexpr const char* factors = "QT_SCREEN_SCALE_FACTORS";
constexpr const char* dots = "QT_FONT_DPI";

class Scaling : public testing::Test
{
protected:
    void TearDown() override
    {
        for (const char* name : {factor, factors, dots})
            qunsetenv(name);
    }

    /// Whether the value stands as it was set.
    static bool stands(const char* name, const QByteArray& value)
    {
        qputenv(name, value);
        ignoreSenselessScaling();
        return qEnvironmentVariableIsSet(name) && qgetenv(name) == value;
    }
};

} // namespace

TEST_F(Scaling, ByAnythingThatCanBeReadStands)
{
    for (const char* value : {"0.25", "1", "1.5", "8"})
        EXPECT_TRUE(stands(factor, value)) << value;
    for (const char* value : {"2", "1;2", "HDMI-1=2;eDP-1=1.5"})
        EXPECT_TRUE(stands(factors, value)) << value;
    for (const char* value : {"24", "96", "768"})
        EXPECT_TRUE(stands(dots, value)) << value;
}

TEST_F(Scaling, ByWhatMakesNoSenseIsIgnored)
{
    for (const char* value : {"0.24", "8.1", "0", "-1", "nan", "inf", "1e9", "large", ""})
        EXPECT_FALSE(stands(factor, value)) << value;
    for (const char* value : {"1;0", "screen=nan;1", "1;9"})
        EXPECT_FALSE(stands(factors, value)) << value;
    for (const char* value : {"23", "769"})
        EXPECT_FALSE(stands(dots, value)) << value;
}
