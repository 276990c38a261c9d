// What is put on the clipboard, and in which order.
#include "desktop/Platform.h"
#include <gtest/gtest.h>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace {

/// What the clipboard held after each of its changes.
class ClipboardContents : public testing::Test
{
protected:
    void SetUp() override
    {
        clipboard.setText("before");
        changes = QObject::connect(&clipboard, &QClipboard::dataChanged, [this] {
            held << (clipboard.image().isNull() ? clipboard.text() : "a picture");
        });
    }
    void TearDown() override { QObject::disconnect(changes); }

    QClipboard& clipboard = *QGuiApplication::clipboard();
    QMetaObject::Connection changes;
    QStringList held;
};

} // namespace

// A failure then leaves an empty clipboard, not what was copied before and is taken for the new text.
TEST_F(ClipboardContents, IsEmptiedBeforeTextIsPutOnIt)
{
    Platform().setClipboard("Jesus chorou.");
    EXPECT_EQ(held, QStringList({"", "Jesus chorou."}));
}

TEST_F(ClipboardContents, IsEmptiedBeforeAPictureIsPutOnIt)
{
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::white);
    Platform().setClipboard(picture);
    EXPECT_EQ(held, QStringList({"", "a picture"}));
}
