#include "maps/MapsSession.h"
#include "maps/TopicText.h"
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QRadioButton>
#include <sqlite3.h>

namespace {

bool hasRows(const QString& path, const char* table)
{
    DataSource data;
    data.setDatabaseName(path.toStdString());
    data.setRecordSource(std::string("SELECT * FROM ") + table);
    data.refresh();
    return data.recordCount() > 0;
}

/// The same windows over the database that is shipped.
class ShippedStudyAids : public MapsSession
{
protected:
    void SetUp() override
    {
        const QString path = KESTREL_INSTALL_DIR "/KESTRPT.DAT";
        if (!QFile::exists(path) || !hasRows(path, "ClassifiedVerses") || !hasRows(path, "NTMaps"))
            GTEST_SKIP() << "no assembled database in " KESTREL_INSTALL_DIR;
        start(KESTREL_INSTALL_DIR);
    }
};

} // namespace

TEST_F(ShippedStudyAids, EveryReferenceOfEveryTopicShowsItsVerse)
{
    openStudyAids();
    int opened = 0;
    for (auto* group : get<ChildMapSel>().findChildren<QRadioButton*>("optEvents")) {
        QTest::mouseClick(group, Qt::LeftButton, {}, {8, 8});
        ASSERT_GT(Combo2().count(), 30);
        for (int topic = 0; topic < Combo2().count(); ++topic) {
            if (topic > 0)
                QTest::keyClick(&Combo2(), Qt::Key_Down);
            ASSERT_EQ(Combo2().currentIndex(), topic);
            ASSERT_GT(List1().count(), 0) << Combo2().currentText().toStdString();
            for (int row = 0; row < List1().count(); ++row) {
                clickEntry(List1(), row);
                ASSERT_EQ(get<ChildRead>().currentKey(), referenceOf(List1().text(row)));
                ++opened;
            }
        }
    }
    EXPECT_GT(opened, 500);
}

TEST_F(ShippedStudyAids, EveryMapIsShownSharperThanItsSize)
{
    for (int number = 1; number <= 11; ++number) {
        openMap(number);
        EXPECT_GT(Image1().image().width(), Image1().width()) << number;
        EXPECT_GT(Image1().width(), 300) << number;
        EXPECT_FALSE(lblMapDesc().text().isEmpty()) << number;
    }
}
