#include "desktop/MsgBox.h"
#include "support/ActiveWindow.h"
#include "support/OnceModal.h"
#include <gtest/gtest.h>
#include <QApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace {

/// Looks at the open message box and answers it with a key.
template <class Look>
[[nodiscard]] std::unique_ptr<QTimer> whenShown(Qt::Key answer, Look look)
{
    return onceModal([answer, look](QWidget& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        ASSERT_NE(box, nullptr);
        look(*box);
        QTest::keyClick(box, answer);
    });
}

} // namespace

TEST(MsgBox, StandsOverTheFrameWhenAWindowThatClosesAlongsideIsActive)
{
    QMainWindow frame;
    frame.show();
    auto* help = new QMainWindow;
    help->setAttribute(Qt::WA_DeleteOnClose);
    help->show();
    makeActive(help);
    bool seen = false;
    const auto looking = whenShown(Qt::Key_Return, [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &frame);
        help->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        seen = true;
    });
    EXPECT_EQ(MsgBox::show("Text", MsgIcon::Information), MsgAnswer::Ok);
    EXPECT_TRUE(seen);
}

TEST(MsgBox, ShowsTextTitleIconAndOneButton)
{
    const auto looking = whenShown(Qt::Key_Return, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "first\n\nsecond <b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
    EXPECT_EQ(MsgBox::show("first\r\n\r\nsecond <b>", MsgIcon::Exclamation, MsgButtons::Ok, "Title"),
              MsgAnswer::Ok);
}

TEST(MsgBox, CarriesTheApplicationTitleUnlessGivenAnother)
{
    const auto looking = whenShown(Qt::Key_Escape, [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Kestrel Reader: Portuguese Version");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
    });
    EXPECT_EQ(MsgBox::show("text", MsgIcon::Stop), MsgAnswer::Ok);
}

/// It is drawn by the desktop in bold letters, or by Qt, on Wayland, in larger ones: in the middle, as far as
/// three buttons at the right.
TEST(MsgBox, HasRoomForItsWholeTitle)
{
    const QString title = "Search Results:";
    QFont bold = QApplication::font();
    bold.setBold(true);
    const auto looking = whenShown(Qt::Key_Return, [&](QMessageBox& box) {
        const QMargins margins = box.layout()->contentsMargins();
        const int inside = box.width() - margins.left() - margins.right();
        EXPECT_EQ(inside, QFontMetrics(bold).horizontalAdvance(title) * 5 / 4 + 2 * 3 * 28);
    });
    MsgBox::show("No matching verses.", MsgIcon::Information, MsgButtons::Ok, title);
}

TEST(MsgBox, AsksYesOrNoAndTakesClosingForNo)
{
    auto looking =
        whenShown(Qt::Key_Return, [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Question); });
    EXPECT_EQ(MsgBox::show("?", MsgIcon::Question, MsgButtons::YesNo), MsgAnswer::Yes);
    looking = whenShown(Qt::Key_Escape, [](QMessageBox&) {});
    EXPECT_EQ(MsgBox::show("?", MsgIcon::Question, MsgButtons::YesNo), MsgAnswer::No);
    looking = whenShown(Qt::Key_N, [](QMessageBox& box) {
        EXPECT_EQ(box.button(QMessageBox::No)->text().remove('&'), "No");
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    EXPECT_EQ(MsgBox::show("?", MsgIcon::Question, MsgButtons::YesNo), MsgAnswer::No);
}

TEST(MsgBox, StandsBesideWhatItAnnouncesWhereThereIsRoom)
{
    QWidget window;
    const QRect screen = window.screen()->availableGeometry();
    window.setGeometry(screen);
    window.show();
    makeActive(&window);
    const QPoint middle = screen.center();
    for (const QRect& rows :
         {QRect(middle - QPoint(300, 250), QSize(600, 300)), QRect(middle - QPoint(300, 50), QSize(600, 440)),
          QRect(screen.topLeft(), QSize(screen.width() / 2 + 20, screen.height()))}) {
        const auto looking = whenShown(Qt::Key_Return, [rows, screen](QMessageBox& box) {
            EXPECT_FALSE(box.frameGeometry().intersects(rows)) << rows.top();
            EXPECT_TRUE(screen.contains(box.geometry()));
        });
        MsgBox::show("8 verse(s) found.", MsgIcon::Information, MsgButtons::Ok, "Search Results:", rows);
    }
    const auto looking = whenShown(Qt::Key_Return, [middle](QMessageBox& box) {
        EXPECT_NEAR(box.geometry().center().x(), middle.x(), 30);
        EXPECT_NEAR(box.geometry().center().y(), middle.y(), 30);
    });
    MsgBox::show("8 verse(s) found.", MsgIcon::Information, MsgButtons::Ok,
                 "Search Results:", screen); // no room
}

/// 12 x 40 pixels are left for the desktop's border and title bar, 34 of them above the box.
TEST(MsgBox, StandsCloselyBesideWhatItAnnounces)
{
    QWidget window;
    const QRect screen = window.screen()->availableGeometry();
    window.setGeometry(screen);
    window.show();
    makeActive(&window);
    const QPoint middle = screen.center();
    const auto boxBeside = [](const QRect& announced) {
        QRect place;
        const auto looking =
            whenShown(Qt::Key_Return, [&](QMessageBox& box) { place = QRect(box.pos(), box.size()); });
        MsgBox::show("8 verse(s) found.", MsgIcon::Information, MsgButtons::Ok, "Search Results:", announced);
        return place;
    };
    const QRect above(screen.topLeft(), QPoint(screen.right(), middle.y()));
    EXPECT_EQ(boxBeside(above).y(), above.bottom() + 1 + 34);
    const QRect left(screen.topLeft(), QPoint(middle.x() - 100, screen.bottom()));
    EXPECT_EQ(boxBeside(left).x(), left.right() + 1);
    const QRect below(QPoint(screen.left(), middle.y()), screen.bottomRight());
    const QRect over = boxBeside(below);
    EXPECT_EQ(over.y(), below.top() - over.height() - 40);
    const QRect right(QPoint(middle.x() + 100, screen.top()), screen.bottomRight());
    const QRect beside = boxBeside(right);
    EXPECT_EQ(beside.x(), right.left() - beside.width() - 12);
    const QRect usual = boxBeside({});
    EXPECT_EQ(boxBeside(QRect(0, 0, 50, 50)), usual) << "which it does not cover";
}
