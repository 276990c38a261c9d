// Who made the text can be seen in the About window, and is told to assistive programs.
#include "pictures/Pictures.h"
#include "pictures/TextCredit.h"
#include "support/OnceModal.h"
#include "support/Session.h"
#include "widgets/SoftBttn.h"

class Credit : public Session
{
};

TEST_F(Credit, StandsInThePictureOfTheAboutWindow)
{
    QString described;
    QImage shown;
    const auto looking = onceModal([&](QWidget& about) {
        const auto* picture = about.findChild<QLabel*>("Image1");
        described = picture->accessibleDescription();
        shown = about.grab(picture->geometry()).toImage();
        QTest::keyClick(&about, Qt::Key_Escape);
    });
    click(*frame().findChild<QWidget*>("cmdAbout"));
    EXPECT_EQ(described, textCredit);
    EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32),
              splashPicture(shown.devicePixelRatio()).toImage().convertToFormat(QImage::Format_RGB32));
}
