// The start window as the About window, and the windows that hang off it.
#include "app/AboutLayout.h"
#include "app/AboutTexts.h"
#include "app/frmDN.h"
#include "app/frmQORV.h"
#include "app/LinkLabel.h"
#include "desktop/MsgBox.h"
#include "pictures/LinkColor.h"
#include "support/OnceModal.h"
#include "support/Session.h"
#include "widgets/Maker.h"
#include "widgets/SoftBttn.h"
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QTimer>

namespace {

AboutPlaces designed()
{
    AboutPlaces places;
    places.Image1 = {150, 150, 7200, 4500};
    places.cmdOK = {0, 0, 480, 480};
    places.cmdMore = {0, 0, 510, 480};
    places.cmdDonation = {0, 0, 540, 480};
    places.cmdQORV = {0, 0, 570, 480};
    places.Image2 = {150, 0, 360, 360};
    places.cmdMail = {600, 0, 3000, 255};
    return places;
}

SoftBttn& button(const frmStart& window, const QString& name)
{
    return control<SoftBttn>(window, name);
}

LinkLabel& link(const frmStart& window, const QString& name)
{
    return control<LinkLabel>(window, name);
}

QPlainTextEdit& textOf(const QDialog& opened)
{
    return control<QPlainTextEdit>(opened, "Text1");
}

int rightOf(const ControlPlace& place)
{
    return place.left + place.width;
}

} // namespace

TEST(AboutLayout, PutsTheRowUnderThePicture)
{
    const AboutPlaces places = aboutLayout(designed());
    for (const ControlPlace& button : {places.cmdOK, places.cmdMore, places.cmdDonation, places.cmdQORV})
        EXPECT_EQ(button.top, 150 + 4500 + 110);
}

TEST(AboutLayout, RowEndsAtThePicturesRightEdgeWithoutGaps)
{
    const AboutPlaces places = aboutLayout(designed());
    EXPECT_EQ(rightOf(places.cmdOK), 7350);
    EXPECT_EQ(rightOf(places.cmdQORV), places.cmdOK.left);
    EXPECT_EQ(rightOf(places.cmdDonation), places.cmdQORV.left);
    EXPECT_EQ(rightOf(places.cmdMore), places.cmdDonation.left);
    EXPECT_EQ(places.cmdMore.left, 7350 - 480 - 570 - 540 - 510);
}

TEST(AboutLayout, PutsMailAndItsPictureBesideTheRow)
{
    const AboutPlaces places = aboutLayout(designed());
    EXPECT_EQ(places.Image2.top, 4760 + 235);
    EXPECT_EQ(places.cmdMail.top, 4760 + 285);
    EXPECT_EQ(places.Image2.left, 150);
    EXPECT_EQ(places.cmdMail.left, 600);
}

TEST(AboutLayout, FitsTheWindowAroundPictureAndRow)
{
    const AboutPlaces places = aboutLayout(designed());
    EXPECT_EQ(places.windowHeight, 4760 + 480 + 150);
    EXPECT_EQ(places.windowWidth, 150 + 7200 + 150);
}

TEST(AboutLayout, WiderPictureMovesTheRowWithItsRightEdge)
{
    AboutPlaces wide = designed();
    wide.Image1.width += 1500;
    const AboutPlaces before = aboutLayout(designed());
    const AboutPlaces after = aboutLayout(wide);
    EXPECT_EQ(after.cmdMore.left, before.cmdMore.left + 1500);
    EXPECT_EQ(after.cmdDonation.left, before.cmdDonation.left + 1500);
    EXPECT_EQ(after.cmdQORV.left, before.cmdQORV.left + 1500);
    EXPECT_EQ(rightOf(after.cmdOK), rightOf(wide.Image1));
    EXPECT_EQ(after.windowWidth, before.windowWidth + 1500);
    EXPECT_EQ(after.windowHeight, before.windowHeight);
}

TEST(AboutTexts, InformationIsWrittenLineByLine)
{
    const QStringList lines = informationText().split("\r\n");
    ASSERT_EQ(lines.size(), 20);
    EXPECT_EQ(lines[0], "Version: 98.5.0pt");
    EXPECT_EQ(lines[1], "");
    EXPECT_EQ(lines[2], "Please report bugs and suggestions to the programmer:");
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(lines[3 + i], Maker::authorLines[static_cast<std::size_t>(i)]);
        EXPECT_FALSE(lines[3 + i].isEmpty());
    }
    EXPECT_EQ(lines[9], "E-mail: " + Maker::mail);
    EXPECT_EQ(lines[10], "Or: " + Maker::secondMail);
    EXPECT_EQ(lines[11], "");
    EXPECT_EQ(lines[12], "Visit the Kestrel Reader sites on the world-wide-web at:");
    EXPECT_EQ(lines[13], Maker::webSite);
    EXPECT_EQ(lines[14], Maker::secondWebSite);
    EXPECT_EQ(lines[15], "");
    EXPECT_EQ(lines[16], "See also:");
    EXPECT_EQ(lines[17], Maker::downloads[0]);
    EXPECT_EQ(lines[18], Maker::downloads[1]);
    EXPECT_EQ(lines[19], Maker::downloads[2]);
}

TEST(AboutTexts, BothBeginByTellingHowToCloseThem)
{
    for (const QString& text : {donationText(), discOfferText()}) {
        EXPECT_TRUE(text.startsWith("To close this window, press ESC.\r\n\r\n")) << text.toStdString();
        EXPECT_FALSE(QString(text).remove("\r\n").contains('\n'));
    }
}

TEST(AboutTexts, AppealSaysThatTheProgramIsFreewareAndGivesTheAddress)
{
    EXPECT_TRUE(donationText().contains("Kestrel Reader is freeware."));
    for (const QString& line : Maker::authorLines)
        EXPECT_TRUE(donationText().contains(line)) << line.toStdString();
}

TEST(AboutTexts, MailLinkIsOneToTheAuthor)
{
    EXPECT_EQ(mailLink().toString(), "mailto:" + Maker::mail);
}

/// The program with its frame, and the About window driven while it is open.
class About : public Session
{
protected:
    /// Opens the About window, runs what a user does there, and closes it if that left it open.
    void whileAboutIsOpen(std::function<void(frmStart&)> use)
    {
        bool used = false;
        const auto looking = onceModal([&](QWidget&) {
            frmStart* window = program->startWindow();
            ASSERT_NE(window, nullptr);
            QPointer<frmStart> open = window;
            makeActive(window);
            use(*window);
            used = true;
            if (open && open->isVisible())
                open->close();
        });
        click(control<SoftBttn>(frame(), "cmdAbout"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(used);
        EXPECT_EQ(program->startWindow(), nullptr) << "the About window is still there";
    }

    /// The modal window that is open over the About window when the given control is used; its class name.
    /// It is closed by a press of Esc.
    void whileTextWindowIsOpen(std::function<void()> open, std::function<void(QDialog&)> use)
    {
        bool used = false;
        const auto looking = onceModal([&](QWidget& window) {
            auto* opened = qobject_cast<QDialog*>(&window);
            ASSERT_NE(opened, nullptr);
            makeActive(opened);
            use(*opened);
            used = true;
            QTest::keyClick(opened->focusWidget(), Qt::Key_Escape);
        });
        open();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(used);
    }
};

TEST_F(About, IsModalOverTheFrameWithTheFlagSet)
{
    EXPECT_EQ(program->flags.StartFormMode, 0);
    whileAboutIsOpen([&](frmStart& window) {
        EXPECT_EQ(program->flags.StartFormMode, 3);
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(window.parentWidget(), &frame());
        EXPECT_FALSE(control<QTimer>(window, "Timer1").isActive());
        EXPECT_EQ(window.windowTitle(), "");
        EXPECT_NE(window.cursor().shape(), Qt::WaitCursor);
    });
    EXPECT_EQ(program->flags.StartFormMode, 3); // never set back
}

TEST_F(About, NeverHandsOverToAnotherFrame)
{
    MDIParent* const only = program->frame();
    whileAboutIsOpen([&](frmStart& window) {
        control<QTimer>(window, "Timer1").setInterval(1);
        QTest::qWait(50);
        EXPECT_EQ(program->frame(), only);
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(About, ShowsItsControlsWhereTheLayoutPutsThem)
{
    whileAboutIsOpen([&](frmStart& window) {
        const QList<SoftBttn*> row = {&button(window, "cmdMore"), &button(window, "cmdDonation"),
                                      &button(window, "cmdQORV"), &button(window, "cmdOK")};
        const QStringList names = {"cmdMore", "cmdDonation", "cmdQORV", "cmdOK"};
        const QStringList tips = {"More Info", "DonationWare", "QORV CD-ROM Offer", "OK"};
        const QRect image = control<QLabel>(window, "Image1").geometry();
        int right = image.right() + 1;
        for (qsizetype i = row.size() - 1; i >= 0; --i) {
            EXPECT_TRUE(row[i]->isVisible() && row[i]->isEnabled());
            EXPECT_EQ(row[i]->objectName(), names[i]);
            EXPECT_EQ(row[i]->toolTip(), tips[i]);
            EXPECT_EQ(row[i]->accessibleName(), tips[i]);
            EXPECT_EQ(row[i]->geometry().right() + 1, right);
            right = row[i]->x();
        }
        const int top = image.bottom() + 1;
        for (const SoftBttn* button : row)
            EXPECT_EQ(button->y(), top + 7); // 110 twips
        EXPECT_NEAR(link(window, "Image2").y(), top + (110 + 235) / 15.0, 1);
        EXPECT_EQ(link(window, "cmdMail").y(), button(window, "cmdOK").y() + 285 / 15);
        EXPECT_EQ(link(window, "cmdMail").height(), link(window, "cmdMail").fontMetrics().height())
            << "no ring around it";
        EXPECT_GT(link(window, "cmdMail").y(), link(window, "Image2").y());
        EXPECT_TRUE(link(window, "cmdMail").isVisible() && link(window, "cmdMail").isEnabled());
        EXPECT_TRUE(link(window, "Image2").isVisible() && link(window, "Image2").isEnabled());
        EXPECT_EQ(link(window, "cmdMail").text(), "E-mail: " + Maker::mail);
        EXPECT_EQ(link(window, "Image2").toolTip(), "mailto:" + Maker::mail);
        EXPECT_EQ(control<QLabel>(window, "Image1").accessibleName(), "Kestrel Reader (PT)");
        EXPECT_EQ(window.width(), image.right() + 1 + 10);
        EXPECT_EQ(window.height(), button(window, "cmdOK").geometry().bottom() + 1 + 10);
        EXPECT_LT(link(window, "cmdMail").geometry().right(), button(window, "cmdMore").x())
            << "the address runs into the buttons";
        EXPECT_TRUE(window.rect().contains(link(window, "cmdMail").geometry()));
        EXPECT_TRUE(window.rect().contains(link(window, "Image2").geometry()));
    });
}

TEST_F(About, OpensFromTheMenuOfAnyWindow)
{
    for (int i = 0; i < 2; ++i) {
        bool seen = false;
        const auto looking = onceModal([&](QWidget&) {
            ASSERT_NE(program->startWindow(), nullptr);
            seen = program->startWindow()->isVisible();
            click(button(*program->startWindow(), "cmdOK"));
        });
        choose("mnuAbout");
        EXPECT_TRUE(seen);
        if (open<ChildSelect>())
            outer(get<ChildSelect>()).close(); // then the frame's own menu
        QTest::qWait(0);
    }
}

TEST_F(About, OkClosesIt)
{
    whileAboutIsOpen([&](frmStart& window) {
        click(button(window, "cmdOK"));
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(About, HasAnEdgeAllRound)
{
    whileAboutIsOpen([](frmStart& window) {
        const QImage picture = window.grab().toImage();
        const QPoint middle = picture.rect().center();
        const QPoint last = picture.rect().bottomRight();
        for (const QPoint edge : {QPoint(middle.x(), 0), QPoint(middle.x(), last.y()), QPoint(0, middle.y()),
                                  QPoint(last.x(), middle.y())})
            EXPECT_EQ(picture.pixelColor(edge), QColor(Qt::black)) << edge.x() << ' ' << edge.y();
        EXPECT_NE(picture.pixelColor(middle.x(), 1), QColor(Qt::black));
        window.close();
    });
}

TEST_F(About, EscClosesItFromEveryControl)
{
    for (int i = 0; i < 5; ++i)
        whileAboutIsOpen([&](frmStart& window) {
            QWidget* const controls[] = {&button(window, "cmdMore"), &button(window, "cmdDonation"),
                                         &button(window, "cmdQORV"), &button(window, "cmdOK"),
                                         &link(window, "cmdMail")};
            controls[i]->setFocus();
            press(Qt::Key_Escape);
            EXPECT_FALSE(window.isVisible()) << i;
        });
}

TEST_F(About, EscClosesItWithAnyModifier)
{
    for (const auto modifiers :
         {Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::KeyboardModifiers(Qt::ControlModifier),
          Qt::AltModifier | Qt::ShiftModifier, Qt::KeyboardModifiers(Qt::KeypadModifier)})
        whileAboutIsOpen([&](frmStart& window) {
            press(Qt::Key_Escape, modifiers);
            EXPECT_FALSE(window.isVisible()) << modifiers.toInt();
        });
}

TEST_F(About, EscClosesItWhileAButtonIsHeldDown)
{
    whileAboutIsOpen([&](frmStart& window) {
        button(window, "cmdMore").setFocus();
        QTest::keyPress(&button(window, "cmdMore"), Qt::Key_Space);
        ASSERT_TRUE(button(window, "cmdMore").isDown());
        press(Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(About, EscClosesATextWindowWithAnyModifier)
{
    for (const auto modifiers : {Qt::ShiftModifier, Qt::ControlModifier})
        whileAboutIsOpen([&](frmStart& window) {
            const auto looking = onceModal([&](QWidget& opened) {
                makeActive(&opened);
                press(Qt::Key_Escape, modifiers);
                EXPECT_FALSE(opened.isVisible());
                opened.close();
            });
            click(button(window, "cmdDonation"));
            EXPECT_TRUE(window.isVisible());
        });
}

TEST_F(About, ExistsOnce)
{
    whileAboutIsOpen([&](frmStart& window) {
        frame().about();
        EXPECT_EQ(program->startWindow(), &window);
        EXPECT_EQ(frame().findChildren<frmStart*>().size(), 1);
    });
}

TEST_F(About, MoreInfoShowsTheInformationBox)
{
    whileAboutIsOpen([&](frmStart& window) { click(button(window, "cmdMore")); });
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, informationText());
    EXPECT_EQ(boxes.shown[0].icon, MsgIcon::Information);
    EXPECT_EQ(boxes.shown[0].buttons, MsgButtons::Ok);
    EXPECT_EQ(boxes.shown[0].title, applicationTitle);
}

TEST_F(About, InformationHasVersionFirstAndEndsWithTheLastDownload)
{
    EXPECT_TRUE(informationText().startsWith("Version: 98.5.0pt\r\n"));
    EXPECT_TRUE(informationText().endsWith("\r\n" + Maker::downloads.back()));
}

TEST_F(About, MailLabelAndItsPictureOpenAMessageToTheAuthor)
{
    whileAboutIsOpen([&](frmStart& window) {
        click(link(window, "cmdMail"));
        click(link(window, "Image2"));
    });
    EXPECT_EQ(services.links, QList<QUrl>({mailLink(), mailLink()}));
}

TEST_F(About, MailLabelWorksByKeyboard)
{
    whileAboutIsOpen([&](frmStart& window) {
        for (int tabs = 0; tabs < 10 && QApplication::focusWidget() != &link(window, "cmdMail"); ++tabs)
            press(Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), &link(window, "cmdMail"));
        press(Qt::Key_Space);
        press(Qt::Key_Return);
        press(Qt::Key_Enter);
    });
    EXPECT_EQ(services.links.size(), 3);
}

TEST_F(About, TabWalksTheControlsFromLeftToRight)
{
    whileAboutIsOpen([&](frmStart& window) {
        EXPECT_EQ(QApplication::focusWidget(), &button(window, "cmdOK"));
        QStringList order;
        for (int i = 0; i < 5; ++i) {
            press(Qt::Key_Tab);
            order << QApplication::focusWidget()->objectName();
        }
        EXPECT_EQ(order, QStringList({"cmdMail", "cmdMore", "cmdDonation", "cmdQORV", "cmdOK"}));
    });
}

TEST_F(About, DonationWindowHasItsCaptionAndTextToReadOnly)
{
    whileAboutIsOpen([&](frmStart& window) {
        whileTextWindowIsOpen([&] { click(button(window, "cmdDonation")); },
                              [&](QDialog& opened) {
                                  auto* donation = qobject_cast<frmDN*>(&opened);
                                  ASSERT_NE(donation, nullptr);
                                  EXPECT_EQ(donation->objectName(), "frmDN");
                                  EXPECT_EQ(donation->windowTitle(), "Your support is needed!");
                                  EXPECT_EQ(textOf(*donation).objectName(), "Text1");
                                  EXPECT_EQ(textOf(*donation).accessibleName(), "Your support is needed!");
                                  EXPECT_EQ(textOf(*donation).toPlainText(),
                                            QString(donationText()).replace("\r\n", "\n"));
                                  EXPECT_TRUE(textOf(*donation).isReadOnly());
                                  EXPECT_EQ(donation->parentWidget(), &window);
                                  EXPECT_TRUE(donation->isModal());
                              });
    });
}

TEST_F(About, TheWheelWithCtrlLeavesATextWindowsTypeAsItIs)
{
    whileAboutIsOpen([&](frmStart& window) {
        whileTextWindowIsOpen([&] { click(button(window, "cmdDonation")); },
                              [&](QDialog& opened) {
                                  QWidget* text = textOf(opened).viewport();
                                  const QFont before = text->font();
                                  QWheelEvent turn(QPointF(20, 20), text->mapToGlobal(QPointF(20, 20)), {},
                                                   QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
                                                   Qt::NoScrollPhase, false);
                                  QCoreApplication::sendEvent(text, &turn);
                                  EXPECT_EQ(text->font(), before);
                                  EXPECT_EQ(textOf(opened).font(), before);
                              });
    });
}

TEST_F(About, OfferWindowHasItsCaptionAndTextToReadOnly)
{
    whileAboutIsOpen([&](frmStart& window) {
        whileTextWindowIsOpen([&] { click(button(window, "cmdQORV")); },
                              [&](QDialog& opened) {
                                  auto* offer = qobject_cast<frmQORV*>(&opened);
                                  ASSERT_NE(offer, nullptr);
                                  EXPECT_EQ(offer->objectName(), "frmQORV");
                                  EXPECT_EQ(offer->windowTitle(), "QORV CD-ROM Offer");
                                  EXPECT_EQ(textOf(*offer).toPlainText(),
                                            QString(discOfferText()).replace("\r\n", "\n"));
                                  EXPECT_TRUE(textOf(*offer).isReadOnly());
                                  EXPECT_EQ(offer->parentWidget(), &window);
                                  EXPECT_TRUE(offer->isModal());
                              });
    });
}

TEST_F(About, EscClosesOnlyTheDonationWindowAndThenTheAboutWindow)
{
    whileAboutIsOpen([&](frmStart& window) {
        QPointer<QDialog> donation;
        whileTextWindowIsOpen([&] { click(button(window, "cmdDonation")); },
                              [&](QDialog& opened) { donation = &opened; });
        EXPECT_TRUE(donation.isNull()) << "the donation window stays loaded";
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(About, TextWindowsAreMadeAfreshEachTime)
{
    whileAboutIsOpen([&](frmStart& window) {
        for (int i = 0; i < 2; ++i)
            whileTextWindowIsOpen([&] { click(button(window, "cmdQORV")); },
                                  [&](QDialog& opened) {
                                      auto* text = opened.findChild<QPlainTextEdit*>("Text1");
                                      EXPECT_FALSE(text->textCursor().hasSelection());
                                      text->selectAll();
                                  });
    });
}

TEST_F(About, CanBeOpenedAgain)
{
    for (int i = 0; i < 3; ++i)
        whileAboutIsOpen([&](frmStart& window) { EXPECT_TRUE(window.isVisible()); });
}

TEST_F(About, StaysOpenWhenTheFrameBesideItIsClicked)
{
    whileAboutIsOpen([&](frmStart& window) {
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&frame(), &activation);
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(About, FrameActivatesAfterwardsThoughTheStartWindowIsGone)
{
    whileAboutIsOpen([](frmStart&) {});
    for (int i = 0; i < 2; ++i) {
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&frame(), &activation);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(frame().isVisible());
}

TEST_F(About, ReadingTimerRestsWhileItIsOpenAndGoesOnAfterwards)
{
    ChildRead& reading = frame().readingWindow();
    reading.restoreAndActivate();
    QTest::mouseClick(&control<QCheckBox>(reading, "chkAuto"), Qt::LeftButton, {}, QPoint(8, 8));
    ASSERT_TRUE(control<QTimer>(reading, "Timer1").isActive());
    whileAboutIsOpen([&](frmStart&) { EXPECT_FALSE(control<QTimer>(reading, "Timer1").isActive()); });
    EXPECT_TRUE(control<QTimer>(reading, "Timer1").isActive());
}

class AboutControlsOfTheSplash : public Session
{
    void SetUp() override { program = std::make_unique<Program>(KESTREL_INSTALL_DIR); }
};

TEST_F(AboutControlsOfTheSplash, AreHiddenAndDisabled)
{
    ASSERT_TRUE(program->start());
    frmStart& splash = *program->startWindow();
    makeActive(&splash);
    const QList<QWidget*> controls = {&button(splash, "cmdOK"),   &button(splash, "cmdMore"),
                                      &button(splash, "cmdQORV"), &button(splash, "cmdDonation"),
                                      &link(splash, "cmdMail"),   &link(splash, "Image2")};
    for (const QWidget* control : controls) {
        EXPECT_FALSE(control->isVisible()) << control->objectName().toStdString();
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    }
    EXPECT_EQ(splash.cursor().shape(), Qt::WaitCursor);
    QTest::keyClick(&splash, Qt::Key_Escape);
    EXPECT_FALSE(splash.isVisible());
    EXPECT_EQ(program->frame(), nullptr);
}

TEST_F(About, LeavesTheFocusNowhereWhereItWasNowhere)
{
    const auto closing = onceModal([](QWidget& about) { about.close(); });
    frame().focusWidget()->clearFocus();
    ASSERT_EQ(frame().focusWidget(), nullptr);
    choose("mnuAbout");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(frame().focusWidget(), nullptr);
}

TEST(LinkLabel, IsAsLargeAsItsPictureOrItsText)
{
    LinkLabel picture(iconOf(PictureId::About), nullptr);
    picture.setIconSize(QSize(20, 24));
    EXPECT_EQ(picture.sizeHint(), QSize(20, 24));
    LinkLabel text("mail", nullptr);
    EXPECT_GT(text.sizeHint().width(), text.fontMetrics().horizontalAdvance("mail"));
}

TEST(LinkLabel, LeavesItsRingThreePixelsBesideTheText)
{
    const LinkLabel text("mail", nullptr);
    EXPECT_EQ(text.sizeHint().width(), text.fontMetrics().size(Qt::TextSingleLine, "mail").width() + 6);
}

TEST(LinkLabel, ShowsItsPicture)
{
    QPixmap green(16, 16);
    green.fill(Qt::green);
    LinkLabel picture(QIcon(green), nullptr);
    picture.resize(16, 16);
    EXPECT_EQ(picture.grab().toImage().pixelColor(8, 8), QColor(Qt::green));
}

TEST(LinkLabel, HasAHandForItsPointer)
{
    EXPECT_EQ(LinkLabel("mail", nullptr).cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(LinkLabel(iconOf(PictureId::Mail), nullptr).cursor().shape(), Qt::PointingHandCursor);
}

TEST(LinkLabel, IsUnderlinedInTheColorOfLinksWithARingWhileItHasTheFocus)
{
    QWidget window;
    LinkLabel link("mail", &window);
    link.resize(link.sizeHint());
    window.show();
    makeActive(&window);
    link.clearFocus();
    const QImage plain = link.grab().toImage();
    const QColor color = linkColor(link.palette(), QPalette::Window, QPalette::WindowText);
    int longest = 0;
    for (int y = 0; y < plain.height(); ++y) {
        int inRow = 0;
        for (int x = 0; x < plain.width(); ++x)
            inRow += plain.pixelColor(x, y) == color;
        longest = qMax(longest, inRow);
    }
    EXPECT_GE(longest, link.fontMetrics().horizontalAdvance("mail") - 2);
    QTest::keyClick(&window, Qt::Key_Tab);
    ASSERT_TRUE(link.hasFocus());
    EXPECT_NE(link.grab().toImage(), plain);
}

TEST_F(About, ALetterIsReadAndSelectedByKeys)
{
    whileAboutIsOpen([&](frmStart& window) {
        whileTextWindowIsOpen([&] { click(button(window, "cmdDonation")); },
                              [&](QDialog& opened) {
                                  EXPECT_EQ(opened.size(), QSize(480, 400)); // 7200 x 6000 twips
                                  QPlainTextEdit& text = textOf(opened);
                                  EXPECT_EQ(text.font().family(), "Tahoma");
                                  EXPECT_EQ(text.font().pointSize(), 10);
                                  EXPECT_FALSE(text.testAttribute(Qt::WA_InputMethodEnabled))
                                      << "nothing is written";
                                  press(Qt::Key_Right, Qt::ShiftModifier);
                                  EXPECT_EQ(text.textCursor().selectedText(), "T");
                              });
    });
}
