#include "read/ChildRead.h"

#include "desktop/BasePath.h"
#include "desktop/Clipboard.h"
#include "read/ChapRead.h"
#include "read/Chapter.h"
#include "read/Stepping.h"
#include "read/TypeSize.h"
#include "read/VerseKeyLabel.h"
#include "read/VerseLabel.h"
#include "widgets/Fonts.h"
#include "widgets/Hourglass.h"
#include "widgets/Menus.h"
#include "widgets/Shell.h"
#include "widgets/SoftBttn.h"
#include "widgets/Text.h"
#include "widgets/Twips.h"
#include <QCheckBox>
#include <QComboBox>

ChildRead::ChildRead(Shell& shell)
    : Form(shell, "ChildRead")
    , VerseText(new VerseLabel(this))
    , lblSerial(new QLabel(this))
    , lblVerseId(new VerseKeyLabel(this))
    , cmdPrev(new SoftBttn("cmdPrev", PictureId::PreviousVerse, "Previous Verse", this))
    , cmdNext(new SoftBttn("cmdNext", PictureId::NextVerse, "Next Verse", this))
    , cmdChap(new SoftBttn("cmdChap", PictureId::Chapter, "Current Chapter", this))
    , cmdCopy(new SoftBttn("cmdCopy", PictureId::Copy, "Copy Verse to Clipboard", this))
    , cmdFont(new SoftBttn("cmdFont", PictureId::FontSize, "Font Size", this))
    , cmdFntFace(new SoftBttn("cmdFntFace", PictureId::FontFace, "Font Face", this))
    , chkAuto(new QCheckBox("&AutoJump to next verse after", this))
    , cboSeconds(new QComboBox(this))
    , Label2(new QLabel("secon&ds", this))
    , Timer1(new QTimer(this))
{
    VerseText->setObjectName("VerseText");
    VerseText->setFont(Fonts::tahomaOf(18));
    place(*VerseText, 60, 60, 6735, 4290);
    lblSerial->setObjectName("lblSerial");
    lblSerial->hide();
    place(*lblSerial, 6840, 3360, 975, 375);
    lblVerseId->setObjectName("lblVerseId");
    lblVerseId->setFont(Fonts::captionsOf(7));
    place(*lblVerseId, 6840, 3840, 585, 375);
    place(*cmdFont, 6880, 60, 400, 400);
    place(*cmdFntFace, 6880, 480, 400, 400);
    place(*cmdCopy, 6880, 900, 400, 400);
    place(*cmdChap, 6880, 1320, 400, 400);
    place(*cmdPrev, 5190, 4450, 795, 400);
    place(*cmdNext, 5985, 4450, 795, 400);
    chkAuto->setObjectName("chkAuto");
    chkAuto->setAccessibleName("AutoJump to next verse after");
    place(*chkAuto, 60, 4570, 2820, 300);
    cboSeconds->setObjectName("cboSeconds");
    cboSeconds->setAccessibleName("seconds");
    place(*cboSeconds, 2910, 4525, 780, 345);
    Label2->setObjectName("Label2");
    Label2->setBuddy(cboSeconds);
    place(*Label2, 3750, 4585, 900, 255);
    Timer1->setObjectName("Timer1");
    Timer1->setTimerType(Qt::PreciseTimer);
    setTabOrder(cmdNext, cmdPrev); // the focus starts on the button that readers press most
    setTabOrder(cmdPrev, chkAuto);
    setTabOrder(chkAuto, cboSeconds);
    setTabOrder(cboSeconds, cmdFont);
    setTabOrder(cmdFont, cmdFntFace);
    setTabOrder(cmdFntFace, cmdCopy);
    setTabOrder(cmdCopy, cmdChap);

    QMenu* edit = Menus::make(*this, "mnuEdit", "&Edit");
    Menus::addItem(edit, "mnuCopy", "&Copy Verse to Clipboard", Qt::CTRL | Qt::Key_C,
                   [this] { cmdCopy_Click(); });
    QMenu* view = Menus::make(*this, "mnuView", "&View");
    Menus::addItem(view, "mnuChap", "&Current Chapter", Qt::Key_F9, [this] { cmdChap_Click(); });
    Menus::addSeparator(view, "mnuSep2");
    Menus::addItem(view, "mnuPrev", "&Previous Verse", Qt::Key_F11, [this] { cmdPrev_Click(); });
    Menus::addItem(view, "mnuNext", "&Next Verse", Qt::Key_F12, [this] { cmdNext_Click(); });
    makeMenus({edit, view}, true);

    DataCtl.currentRowChanged = [this] { DataCtl_Reposition(); };
    connect(cmdPrev, &SoftBttn::clicked, this, &ChildRead::cmdPrev_Click);
    connect(cmdNext, &SoftBttn::clicked, this, &ChildRead::cmdNext_Click);
    connect(cmdChap, &SoftBttn::clicked, this, &ChildRead::cmdChap_Click);
    connect(cmdCopy, &SoftBttn::clicked, this, &ChildRead::cmdCopy_Click);
    connect(cmdFont, &SoftBttn::clicked, this, &ChildRead::cmdFont_Click);
    connect(cmdFntFace, &SoftBttn::clicked, this, &ChildRead::cmdFntFace_Click);
    connect(chkAuto, &QCheckBox::toggled, this, &ChildRead::chkAuto_Click);
    connect(cboSeconds, &QComboBox::activated, this, &ChildRead::cboSeconds_Click);
    connect(Timer1, &QTimer::timeout, this, &ChildRead::Timer1_Timer);
}

void ChildRead::Form_Load()
{
    DataCtl.setDatabaseName(databasePath(shell().basePath()));
    cboSeconds->addItems({"3", "4", "5", "6", "7", "8", "12"});
    cboSeconds->setCurrentIndex(1);
    Timer1->setInterval(4000);
    setOuterSize(7560, 5295);
    const QSize frame = frameInnerSize();
    const QSize inner = innerSize();
    setOuterPosition((frame.width() - inner.width()) / 3, (frame.height() - inner.height()) / 3 + 150);
    showVerse(1);
}

void ChildRead::Form_Activate()
{
    lblVerseId_Change();
    if (state() != Minimized)
        resumeTimer();
}

void ChildRead::Form_Deactivate()
{
    Timer1->stop();
}

void ChildRead::Form_Resize()
{
    if (state() == Minimized)
        Timer1->stop();
    else
        resumeTimer();

    const int width = possibleTwips(outerWidth() - 840, VerseText->width());
    const int height = possibleTwips(outerHeight() - 1030, VerseText->height());
    VerseText->resize(twips(width), twips(height));
    cmdPrev->move(twips(width - 1530), twips(height + 160));
    cmdNext->move(twips(width - 735), twips(height + 160));
    for (SoftBttn* button : {cmdFont, cmdFntFace, cmdCopy, cmdChap})
        button->move(twips(width + 160), button->y());
    const int autoTop = height + 160 + 120;
    chkAuto->move(chkAuto->x(), twips(autoTop));
    cboSeconds->move(cboSeconds->x(), twips(autoTop - 45));
    Label2->move(Label2->x(), twips(autoTop + 15));
    lblVerseId->move(twips(width + 120), lblVerseId->y()); // stays below the buttons, where it was laid out
}

void ChildRead::DataCtl_Reposition()
{
    VerseText->setText(toText(DataCtl.field("KJVerseText")));
    lblSerial->setText(toText(DataCtl.field("VerseNumber")));
    const QString key = toText(DataCtl.field("VerseId"));
    if (key == lblVerseId->text())
        return;
    lblVerseId->setText(key);
    lblVerseId_Change();
}

void ChildRead::lblVerseId_Change()
{
    setCaption("Reading Window -- " + lblVerseId->text());
}

void ChildRead::cmdPrev_Click()
{
    Timer1->stop();
    showVerse(verseBefore(lblSerial->text()));
    resumeTimer();
}

void ChildRead::cmdNext_Click()
{
    Timer1->stop(); // and started again below, so that the next tick comes one full interval after this step
    showVerse(verseAfter(lblSerial->text()));
    resumeTimer();
}

void ChildRead::Timer1_Timer()
{
    cmdNext_Click();
}

void ChildRead::chkAuto_Click()
{
    if (!chkAuto->isChecked()) {
        Timer1->stop();
        return;
    }
    cboSeconds_Click();
    resumeTimer();
}

void ChildRead::cboSeconds_Click()
{
    Timer1->setInterval(intervalOf(cboSeconds->currentText()));
}

void ChildRead::cmdFont_Click()
{
    VerseText->setFont(nextTypeSize(VerseText->font()));
}

void ChildRead::cmdFntFace_Click()
{
    VerseText->setFont(otherTypeFace(VerseText->font(), m_otherFace));
}

void ChildRead::cmdCopy_Click()
{
    copyOrReport(lblVerseId->text() + "\r\n" + VerseText->text() + " (PT)");
}

void ChildRead::cmdChap_Click()
{
    const Hourglass hourglass;
    ChapRead& chapter = shell().chapterWindow();
    chapter.restoreAndActivate();
    chapter.showChapter(chapterReference(lblVerseId->text()));
    chapter.highlight(lblVerseId->text() + VerseText->text());
}

void ChildRead::showVerse(int number)
{
    DataCtl.setRecordSource("SELECT * FROM NewTestament WHERE VerseNumber = " + std::to_string(number));
    DataCtl.refresh();
}

void ChildRead::resumeTimer()
{
    if (chkAuto->isChecked() && !Timer1->isActive())
        Timer1->start();
}
