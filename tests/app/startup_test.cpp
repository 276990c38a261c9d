// The checks of the start-up, their order and their messages, on real files.
#include "app/Program.h"
#include "app/StartupChecks.h"
#include "desktop/BasePath.h"
#include "desktop/MsgBox.h"
#include "support/Controls.h"
#include "support/Files.h"
#include "support/Recorders.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

class StartUp : public testing::Test
{
protected:
    StartUp()
    {
        writeFile("SEARCH.AVI", 16);
        writeFile("KESTRPT.DAT", databaseLength);
        setTime(databaseTime);
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    void writeFile(const QString& name, qint64 length)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(length));
    }

    void setTime(const QDateTime& time)
    {
        QFile file(path("KESTRPT.DAT"));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    /// Starts the program in the folder; the message it refuses with, or nothing.
    QString refusal()
    {
        Program program(folder.path());
        if (program.start())
            return {};
        EXPECT_EQ(boxes.shown.size(), 1);
        EXPECT_EQ(boxes.shown.value(0).icon, MsgIcon::Stop);
        EXPECT_EQ(boxes.shown.value(0).buttons, MsgButtons::Ok);
        EXPECT_EQ(program.frame(), nullptr);
        return boxes.shown.value(0).text;
    }

    const QString modified = "Can't continue; file 'KESTRPT.DAT' has been modified. "
                             "Please uninstall the program then run Setup again.";
    const QString noClip = "Couldn't find file 'SEARCH.AVI'. Please run Setup.";
    const QString noDatabase = "Couldn't find file 'KESTRPT.DAT'. Please run Setup.";

    QTemporaryDir folder;
    RecordedBoxes boxes;
    RecordedServices services;
};

} // namespace

TEST_F(StartUp, StartsWithBothFilesAsShipped)
{
    EXPECT_EQ(refusal(), QString());
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(StartUp, RefusesASecondCopyBeforeAnythingElse)
{
    services.anotherCopyRuns = true;
    QFile::remove(path("SEARCH.AVI"));
    EXPECT_EQ(refusal(), "Cannot start more than one copy of Kestrel Reader (PT).");
    EXPECT_EQ(boxes.shown[0].title, "Kestrel Reader (PT) is already running");
}

TEST_F(StartUp, RefusesWithoutTheClip)
{
    QFile::remove(path("SEARCH.AVI"));
    EXPECT_EQ(refusal(), noClip);
    EXPECT_EQ(boxes.shown[0].title, applicationTitle);
}

TEST_F(StartUp, RefusesWithoutTheDatabase)
{
    QFile::remove(path("KESTRPT.DAT"));
    EXPECT_EQ(refusal(), noDatabase);
    EXPECT_EQ(boxes.shown[0].title, applicationTitle);
}

TEST_F(StartUp, NamesOnlyTheClipWhenBothFilesAreMissing)
{
    QFile::remove(path("SEARCH.AVI"));
    QFile::remove(path("KESTRPT.DAT"));
    EXPECT_EQ(refusal(), noClip);
    EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(StartUp, RefusesADatabaseOneSecondOff)
{
    setTime(databaseTime.addSecs(1));
    EXPECT_EQ(refusal(), modified);
    boxes.shown.clear();
    setTime(databaseTime.addSecs(-1));
    EXPECT_EQ(refusal(), modified);
    EXPECT_EQ(boxes.shown[0].title, applicationTitle);
}

TEST_F(StartUp, ShowsNoFrameBehindAMessageThatStandsForLong)
{
    QFile::remove(path("SEARCH.AVI"));
    Program program(folder.path());
    boxes.whileShown = [&] {
        QTest::qWait(2200);
        EXPECT_EQ(program.frame(), nullptr);
    };
    EXPECT_FALSE(program.start());
    EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(StartUp, LooksAtTheTimeToTheSecondOnly)
{
    setTime(databaseTime.addMSecs(999));
    EXPECT_EQ(refusal(), QString());
}

TEST_F(StartUp, RefusesADatabaseOneByteLongerOrShorter)
{
    for (const qint64 length : {databaseLength - 1, databaseLength + 1}) {
        boxes.shown.clear();
        writeFile("KESTRPT.DAT", length);
        setTime(databaseTime);
        EXPECT_EQ(refusal(), modified) << length;
    }
}

TEST_F(StartUp, TakesAFolderAPipeOrADeadLinkInTheFilesPlaceForMissing)
{
    const std::string clip = path("SEARCH.AVI").toStdString();
    QFile::remove(path("SEARCH.AVI"));
    ASSERT_TRUE(QDir().mkdir(path("SEARCH.AVI")));
    EXPECT_EQ(refusal(), noClip);
    ASSERT_TRUE(QDir().rmdir(path("SEARCH.AVI")));

    boxes.shown.clear();
    if (Files::makePipe(clip)) {
        EXPECT_EQ(refusal(), noClip);
    }
    QFile::remove(path("SEARCH.AVI"));

    boxes.shown.clear();
    if (Files::makeLink(path("nowhere").toStdString(), clip)) {
        EXPECT_EQ(refusal(), noClip);
    }
}

TEST_F(StartUp, ReadsTheTimeInLocalTimeInEveryZone)
{
    const QByteArray zone = qgetenv("TZ");
    for (const char* name :
         {"UTC", "America/Sao_Paulo", "Asia/Kolkata", "Pacific/Apia", "Australia/Lord_Howe"}) {
        qputenv("TZ", name);
        tzset();
        const QDateTime local(QDate(1998, 5, 5), QTime(5, 0));
        setTime(local);
        EXPECT_TRUE(isUnmodified(path("KESTRPT.DAT"))) << name;
        setTime(local.addSecs(1));
        EXPECT_FALSE(isUnmodified(path("KESTRPT.DAT"))) << name;
    }
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
}

TEST_F(StartUp, FitsTheWindowAroundThePicture)
{
    Program program(folder.path());
    ASSERT_TRUE(program.start());
    const QRect picture = control<QLabel>(*program.startWindow(), "Image1").geometry();
    EXPECT_FALSE(control<QLabel>(*program.startWindow(), "Image1").pixmap().isNull());
    EXPECT_EQ(program.startWindow()->size(),
              QSize(picture.x() + picture.width() + 10, picture.y() + picture.height() + 10));
}

TEST_F(StartUp, ShowsTheHourglassOnTheSplash)
{
    Program program(folder.path());
    ASSERT_TRUE(program.start());
    ASSERT_TRUE(QTest::qWaitForWindowActive(program.startWindow()));
    EXPECT_EQ(program.startWindow()->cursor().shape(), Qt::WaitCursor);
}

TEST_F(StartUp, EscapeOnTheSplashClosesItAndNoFrameFollows)
{
    Program program(folder.path());
    ASSERT_TRUE(program.start());
    QPointer<frmStart> splash = program.startWindow();
    QTest::keyClick(splash.data(), Qt::Key_Escape);
    QTest::qWait(2200);
    EXPECT_TRUE(splash.isNull());
    EXPECT_EQ(program.frame(), nullptr);
}

TEST_F(StartUp, LetsAnotherCopyStartOnceItEnds)
{
    class Ending : public RecordedServices
    {
    public:
        int times = 0;
        void endInstance() override { ++times; }
    } ending;
    {
        Program program(folder.path());
        ASSERT_TRUE(program.start());
        EXPECT_EQ(ending.times, 0);
    }
    EXPECT_EQ(ending.times, 1);
}

TEST(BasePath, HasOneSeparatorAtItsEnd)
{
    const QString folder = QDir::toNativeSeparators("/opt/kestrel/");
    EXPECT_TRUE(folder.endsWith(QDir::separator()));
    EXPECT_EQ(withSeparator("/opt/kestrel"), folder);
    EXPECT_EQ(withSeparator("/opt/kestrel/"), folder);
    EXPECT_EQ(withSeparator("/"), QString(QDir::separator()));
}
