#include "read/ChildRead.h"

#include "desktop/BasePath.h"
#include "desktop/Clipboard.h"
#include "desktop/Platform.h"
#include "read/ChapRead.h"
#include "read/Chapter.h"
#include "read/Stepping.h"
#include "read/TypeSize.h"
#include "read/VerseKeyLabel.h"
#include "read/VerseLabel.h"
#include "widgets/DataControl.h"
#include "widgets/Fonts.h"
#include "widgets/Hourglass.h"
#include "widgets/Layout.h"
#include "widgets/Menus.h"
#include "widgets/PageKey.h"
#include "widgets/Shell.h"
#include "widgets/SoftBttn.h"
#include "widgets/Text.h"
#include "widgets/Twips.h"
#include <QCheckBox>
#include <QComboBox>
#include <QTimer>

ChildRead::ChildRead(Shell& shell)
    : Form(shell, "ChildRead")
    , DataCtl(new DataControl("DataCtl", "NewTestament", this))
    , lblSerial(new QLabel(this))
    , lblVerseId(new VerseKeyLabel(this))
    , cmdPrev(new SoftBttn(PictureId::PreviousVerse, "Previous Verse", this))
    , cmdNext(new SoftBttn(PictureId::NextVerse, "Next Verse", this))
    , cmdChap(new SoftBttn(PictureId::Chapter, "Current Chapter", this))
    , cmdCopy(new SoftBttn(PictureId::Copy, "Copy Verse to Clipboard", this))
    , cmdFont(new SoftBttn(PictureId::FontSize, "Font Size", this))
    , cmdFntFace(new SoftBttn(PictureId::FontFace, "Font Face", this))
    , chkAuto(new QCheckBox("&AutoJump to next verse after", this))
    , cboSeconds(new QComboBox(this))
    , Label2(new QLabel("secon&ds", this))
    , VerseText(new VerseLabel(this)) // last, as Tab comes to its scroll bar after the controls
    , Timer1(new QTimer(this))
{
    VerseText->lower(); // a screen reader meets it first all the same
    VerseText->setFont(Fonts::tahomaOf(18));
    lblSerial->hide();
    Label2->setBuddy(cboSeconds);
    Timer1->setObjectName("Timer1");
    Timer1->setTimerType(Qt::PreciseTimer);
    layOut({
        {VerseText, "VerseText", "", {60, 60, 6735, 4290}},
        {lblSerial, "lblSerial", "", {6840, 3360, 975, 375}},
        {lblVerseId, "lblVerseId", "", {6840, 3840, 855, 375}},
        {cmdNext, "cmdNext", "", {5985, 4450, 795, 400}}, // the focus starts where readers press most
        {cmdPrev, "cmdPrev", "", {5190, 4450, 795, 400}},
        {chkAuto, "chkAuto", "AutoJump to next verse after", {60, 4570, 2820, 300}},
        {cboSeconds, "cboSeconds", "seconds", {2910, 4525, 780, 345}},
        {Label2, "Label2", "", {3750, 4585, 900, 255}},
        {cmdFont, "cmdFont", "", {6880, 60, 400, 400}},
        {cmdFntFace, "cmdFntFace", "", {6880, 480, 400, 400}},
        {cmdCopy, "cmdCopy", "", {6880, 900, 400, 400}},
        {cmdChap, "cmdChap", "", {6880, 1320, 400, 400}},
    });

    QMenu* edit = Menus::make(*this, "mnuEdit", "&Edit");
    Menus::addItem(edit, "mnuCopy", "&Copy Verse to Clipboard", Qt::CTRL | Qt::Key_C,
                   [this] { cmdCopy_Click(); });
    QMenu* view = Menus::make(*this, "mnuView", "&View");
    Menus::addItem(view, "mnuChap", "&Current Chapter", Qt::Key_F9, [this] { cmdChap_Click(); });
    Menus::addSeparator(view, "mnuSep2");
    Menus::addItem(view, "mnuPrev", "&Previous Verse", Qt::Key_F11, [this] { cmdPrev_Click(); });
    Menus::addItem(view, "mnuNext", "&Next Verse", Qt::Key_F12, [this] { cmdNext_Click(); });
    constexpr bool plainToolsItem = true;
    makeMenus({edit, view}, plainToolsItem);

    DataCtl->currentRowChanged = [this] { DataCtl_Reposition(); };
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

bool ChildRead::fetch(const std::string& sql)
{
    DataCtl->setRecordSource(sql);
    DataCtl->refresh();
    return DataCtl->recordCount() > 0;
}

void ChildRead::showFirst(const std::string& sql)
{
    fetch(sql);
    restoreAndActivate();
}

QString ChildRead::currentKey() const
{
    return lblVerseId->text();
}

int ChildRead::currentNumber() const
{
    return static_cast<int>(leadingNumber(lblSerial->text()));
}

void ChildRead::Form_Load()
{
    DataCtl->setDatabaseName(databasePath(shell().basePath()));
    cboSeconds->addItems({"3", "4", "5", "6", "7", "8", "12"});
    cboSeconds->setCurrentIndex(1);
    Timer1->setInterval(4000);
    setOuterSize(7560, 5295);
    const QSize frame = frameInnerSize();
    const QSize inner = innerSize();
    setOuterPosition((frame.width() - inner.width()) / 3, (frame.height() - inner.height()) / 3 + 150);
    showNumber(1);
}

void ChildRead::Form_Activate()
{
    lblVerseId_Change();
    if (state() != Minimized)
        resumeTimer();
    announceVerse();
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

    const int width = possibleLength(outerWidth() - 840, toTwips(VerseText->width()));
    const int height = possibleLength(outerHeight() - 1030, toTwips(VerseText->height()));
    VerseText->resize(toPixels(width), toPixels(height));
    cmdPrev->move(toPixels(width - 1530), toPixels(height + 160));
    cmdNext->move(toPixels(width - 735), toPixels(height + 160));
    for (SoftBttn* button : {cmdFont, cmdFntFace, cmdCopy, cmdChap})
        button->move(toPixels(width + 160), button->y());
    const int autoTop = height + 160 + 120;
    chkAuto->move(chkAuto->x(), toPixels(autoTop));
    cboSeconds->move(cboSeconds->x(), toPixels(autoTop - 45));
    Label2->move(Label2->x(), toPixels(autoTop + 15));
    // The key stays below the buttons, where it was laid out.
    lblVerseId->move(toPixels(width + 120), lblVerseId->y());
}

// Anywhere in the window, as the verse is what there is to page through.
bool ChildRead::Form_KeyDown(QKeyEvent& event)
{
    const int pages = pagesOf(event);
    return pages != 0 && VerseText->scrollByPages(pages);
}

void ChildRead::DataCtl_Reposition()
{
    VerseText->setText(toText(DataCtl->field("KJVerseText")));
    lblSerial->setText(toText(DataCtl->field("VerseNumber")));
    const QString key = toText(DataCtl->field("VerseId"));
    if (key == lblVerseId->text())
        return;
    lblVerseId->setText(key);
    lblVerseId_Change();
    announceVerse();
}

QString ChildRead::captionOf(const QString& key)
{
    return "Reading Window -- " + key;
}

void ChildRead::lblVerseId_Change()
{
    setCaption(captionOf(lblVerseId->text()));
}

void ChildRead::cmdPrev_Click()
{
    Timer1->stop();
    showNumber(verseBefore(lblSerial->text()));
    resumeTimer();
}

void ChildRead::cmdNext_Click()
{
    Timer1->stop(); // and started again below, so that the next tick comes one full interval after this step
    showNumber(verseAfter(lblSerial->text()));
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
    if (copyOrReport(lblVerseId->text() + "\r\n" + VerseText->text() + " (PT)"))
        cmdCopy->acknowledge("Copied");
}

void ChildRead::cmdChap_Click()
{
    const Hourglass hourglass;
    ChapRead& chapter = shell().chapterWindow();
    chapter.restoreAndActivate();
    chapter.showChapter(chapterReference(lblVerseId->text()));
    chapter.highlight(lblVerseId->text() + VerseText->text());
}

void ChildRead::showNumber(int number)
{
    fetch("SELECT * FROM NewTestament WHERE VerseNumber = " + std::to_string(number));
}

void ChildRead::resumeTimer()
{
    if (isActive() && chkAuto->isChecked() && !Timer1->isActive())
        Timer1->start();
}

void ChildRead::announceVerse()
{
    const QString key = lblVerseId->text();
    if (!isActive() || key.isEmpty() || key == m_announced)
        return;
    m_announced = key;
    Platform::current().announce(*VerseText, key + VerseText->text());
}
