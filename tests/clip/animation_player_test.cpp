#include "clip/AnimationPlayer.h"
#include "clip/AviBytes.h"
#include "support/Files.h"
#include <gtest/gtest.h>
#include <QPaintEvent>
#include <QTemporaryDir>
#include <QTest>

namespace {
class CountingPlayer : public AnimationPlayer
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        AnimationPlayer::paintEvent(event);
    }
};

class Animation : public testing::Test
{
protected:
    QString write(const QByteArray& bytes)
    {
        const QString path = folder.filePath("clip.avi");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

    void show()
    {
        player.resize(48, 32);
        player.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&player));
        QCoreApplication::processEvents();
        player.paints = 0;
    }

    QColor middle()
    {
        return player.grab().toImage().pixelColor(player.rect().center() * player.devicePixelRatioF());
    }

    QTemporaryDir folder;
    CountingPlayer player;
};
} // namespace

TEST_F(Animation, OpensAGoodClip)
{
    EXPECT_TRUE(player.open(write(AviBytes::goodClip())));
    EXPECT_EQ(player.frameCount(), 3);
    EXPECT_EQ(player.sizeHint(), QSize(24, 16));
    EXPECT_FALSE(player.isPlaying());
}

TEST_F(Animation, ABadOrMissingClipLeavesItEmpty)
{
    ASSERT_TRUE(player.open(write(AviBytes::goodClip())));
    EXPECT_FALSE(player.open(write(QByteArray(60, 'x'))));
    EXPECT_EQ(player.frameCount(), 0);
    EXPECT_FALSE(player.open(write({})));
    EXPECT_FALSE(player.open(folder.filePath("missing.avi")));
    EXPECT_FALSE(player.open(folder.path()));
}

TEST_F(Animation, APipeIsNotOpened)
{
    const QString path = folder.filePath("pipe");
    if (!Files::makePipe(path.toStdString()))
        GTEST_SKIP() << "no folder holds a pipe here";
    EXPECT_FALSE(player.open(path)) << "and above all it returns";
}

TEST_F(Animation, AnEmptyPlayerPlaysNothing)
{
    show();
    player.play();
    player.tick();
    EXPECT_FALSE(player.isPlaying());
    EXPECT_EQ(player.paints, 0);
    player.stop();
}

TEST_F(Animation, PlayShowsTheFirstFrameWithoutWaitingForEvents)
{
    player.open(write(AviBytes::goodClip()));
    show();
    player.play();
    EXPECT_EQ(player.paints, 1);
    EXPECT_EQ(player.currentFrame(), 0);
    EXPECT_GT(middle().red(), 240);
}

TEST_F(Animation, TickShowsTheFrameOfTheElapsedTimeOnce)
{
    player.open(write(
        AviBytes::file(AviBytes::headers(300'000), AviBytes::chunk("00dc", AviBytes::jpeg(Qt::red)) +
                                                       AviBytes::chunk("00dc", AviBytes::jpeg(Qt::blue)))));
    show();
    player.play();
    player.tick();
    EXPECT_EQ(player.paints, 1) << "the first frame still stands";
    QTest::qSleep(400);
    player.tick();
    player.tick();
    EXPECT_EQ(player.paints, 2);
    EXPECT_EQ(player.currentFrame(), 1);
    EXPECT_GT(middle().blue(), 240);
    QTest::qSleep(300);
    player.tick();
    EXPECT_EQ(player.currentFrame(), 0) << "the clip goes round";
}

TEST_F(Animation, TickAfterStopDoesNothing)
{
    player.open(write(AviBytes::goodClip()));
    show();
    player.play();
    player.stop();
    player.paints = 0;
    QTest::qSleep(30);
    player.tick();
    EXPECT_FALSE(player.isPlaying());
    EXPECT_EQ(player.paints, 0);
}

TEST_F(Animation, PlayBeginsAgainAtTheFirstFrame)
{
    player.open(write(AviBytes::goodClip()));
    show();
    player.play();
    QTest::qSleep(25);
    player.tick();
    EXPECT_NE(player.currentFrame(), 0);
    player.stop();
    player.play();
    EXPECT_EQ(player.currentFrame(), 0);
}

TEST_F(Animation, OpeningAnotherClipStopsTheFirst)
{
    player.open(write(AviBytes::goodClip()));
    player.play();
    player.open(write({}));
    EXPECT_FALSE(player.isPlaying());
    show();
    player.tick();
    EXPECT_EQ(player.paints, 0);
}

TEST_F(Animation, WithoutAClipAsksForTheRoomOfOne)
{
    EXPECT_EQ(player.sizeHint(), QSize(240, 60));
}

TEST_F(Animation, ShowsTheClipInTheMiddle)
{
    player.open(write(AviBytes::goodClip()));
    player.resize(148, 32); // the clip has room for 48 x 32
    const QImage image = player.grab().toImage();
    EXPECT_GT(image.pixelColor(74, 16).red(), 240);
    EXPECT_LT(image.pixelColor(74, 16).blue(), 20);
    for (const int beside : {48, 100})
        EXPECT_EQ(image.pixelColor(beside, 16), player.palette().color(QPalette::Window)) << beside;
}

TEST_F(Animation, ShowsAnotherClipOnceItIsOpen)
{
    show();
    player.open(write(AviBytes::goodClip()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return player.paints > 0; }, 1000));
}

TEST_F(Animation, OpensNoFileOfMoreThan32Megabytes)
{
    const QString path = write(AviBytes::goodClip());
    EXPECT_TRUE(QFile::resize(path, qint64(32) * 1024 * 1024));
    EXPECT_TRUE(player.open(path));
    EXPECT_TRUE(QFile::resize(path, qint64(32) * 1024 * 1024 + 1));
    EXPECT_FALSE(player.open(path));
}

TEST_F(Animation, ShowsALargerPictureWithoutHardEdges)
{
    const QByteArray redAndBlue = QByteArray::fromHex("0000ff00 ff000000");
    player.open(
        write(AviBytes::file(AviBytes::headers(20'000, 2, 1, 32), AviBytes::chunk("00db", redAndBlue))));
    player.resize(40, 20);
    const QColor edge = player.grab().toImage().pixelColor(20, 10);
    EXPECT_GT(edge.red(), 50);
    EXPECT_GT(edge.blue(), 50);
}
