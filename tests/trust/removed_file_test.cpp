// The program reads its database once and for good: what becomes of the file afterwards has no effect.
#include "app/Program.h"
#include "desktop/BasePath.h"
#include "support/Session.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class RemovedFile : public Session
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        for (const QString& name : {databaseFileName, clipFileName})
            ASSERT_TRUE(QFile::copy(QDir(KESTREL_INSTALL_DIR).filePath(name), folder.filePath(name)));
        program = std::make_unique<Program>(folder.path());
        program->showFrame();
        makeActive(&frame());
        QTest::qWait(0);
    }

    QTemporaryDir folder;
};

TEST_F(RemovedFile, DoesNotStopTheFirstLookup)
{
    ASSERT_TRUE(QFile::remove(folder.filePath(databaseFileName)));
    frame().readingWindow().restoreAndActivate();
    EXPECT_EQ(get<ChildRead>().currentKey(), "Mt:1:1");
}

TEST_F(RemovedFile, DoesNotStopALookupAfterAllReadersWereClosed)
{
    frame().readingWindow().restoreAndActivate();
    get<ChildRead>().unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(QFile::remove(folder.filePath(databaseFileName)));
    frame().readingWindow().restoreAndActivate();
    EXPECT_EQ(get<ChildRead>().currentKey(), "Mt:1:1");
}

} // namespace
