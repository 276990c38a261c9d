#include "read/ChapRead.h"

#include "desktop/BasePath.h"
#include "desktop/Clipboard.h"
#include "desktop/MsgBox.h"
#include "read/Chapter.h"
#include "read/TextBox.h"
#include "read/TypeSize.h"
#include "widgets/DataControl.h"
#include "widgets/Fonts.h"
#include "widgets/Layout.h"
#include "widgets/Menus.h"
#include "widgets/PageKey.h"
#include "widgets/Shell.h"
#include "widgets/SoftBttn.h"
#include "widgets/Twips.h"
#include <QScrollBar>

ChapRead::ChapRead(Shell& shell)
    : Form(shell, "ChapRead")
    , DataCtrl(new DataControl("DataCtrl", "NewTestament", this))
    , ChapText(new TextBox(this))
    , cmdFont(new SoftBttn(PictureId::FontSize, "Font Size", this))
    , cmdFntFace(new SoftBttn(PictureId::FontFace, "Font Face", this))
    , cmdChapCopy(new SoftBttn(PictureId::Copy, "Copy Chapter to Clipboard", this))
    , cmdTip(new SoftBttn(PictureId::Tip, "Tip", this))
{
    setCaption("Chapter Window");
    ChapText->setFont(Fonts::tahomaOf(12));
    layOut({
        {ChapText, "ChapText", "Chapter text", {60, 60, 7920, 5175}},
        {cmdFont, "cmdFont", "", {8070, 60, 400, 400}},
        {cmdFntFace, "cmdFntFace", "", {8070, 480, 400, 400}},
        {cmdChapCopy, "cmdChapCopy", "", {8070, 900, 400, 400}},
        {cmdTip, "cmdTip", "", {8070, 1320, 400, 400}},
    });

    // The item has no shortcut: Ctrl+C copies what is selected in the text.
    QMenu* edit = Menus::make(*this, "mnuEdit", "&Edit");
    Menus::addItem(edit, "mnuCopy", "&Copy Chapter to Clipboard", {}, [this] { mnuCopy_Click(); });
    constexpr bool plainToolsItem = true;
    makeMenus({edit}, plainToolsItem);

    connect(cmdFont, &SoftBttn::clicked, this, &ChapRead::cmdFont_Click);
    connect(cmdFntFace, &SoftBttn::clicked, this, &ChapRead::cmdFntFace_Click);
    connect(cmdChapCopy, &SoftBttn::clicked, this, &ChapRead::cmdChapCopy_Click);
    connect(cmdTip, &SoftBttn::clicked, this, &ChapRead::cmdTip_Click);
}

void ChapRead::showChapter(const QString& reference)
{
    if (caption() == chapterCaption(reference))
        return;
    setCaption("Please wait...");
    ChapText->hide();
    ChapText->setText({});
    ChapText->setText(gatherChapter(*DataCtrl, reference));
    setCaption(chapterCaption(reference));
    ChapText->show();
    ChapText->setFocus(); // hiding took it away
}

void ChapRead::highlight(const QString& verse)
{
    const qsizetype start = ChapText->text().indexOf(verse);
    if (start < 0)
        return;
    ChapText->setSelection(start, verse.size());
    ChapText->centerSelection(); // so that what the verse belongs to shows on both sides
}

void ChapRead::Form_Load()
{
    DataCtrl->setDatabaseName(databasePath(shell().basePath()));
    setOuterSize(toTwips(ChapText->width()) + 800, toTwips(ChapText->height()) + 520);
    setOuterPosition(0, 0);
}

void ChapRead::Form_Resize()
{
    const int width = possibleLength(outerWidth() - 800, toTwips(ChapText->width()));
    const int height = possibleLength(outerHeight() - 520, toTwips(ChapText->height()));
    ChapText->resize(toPixels(width), toPixels(height));
    for (SoftBttn* button : {cmdFont, cmdFntFace, cmdChapCopy, cmdTip})
        button->move(toPixels(width + 150), button->y());
}

// On the buttons the page keys scroll the chapter all the same; in the text they move the caret.
bool ChapRead::Form_KeyDown(QKeyEvent& event)
{
    const int pages = ChapText->hasFocus() ? 0 : pagesOf(event);
    QScrollBar& bar = *ChapText->verticalScrollBar();
    bar.setValue(bar.value() + pages * qMax(1, bar.pageStep() - 1)); // one line shows before and after
    return pages != 0;
}

void ChapRead::cmdFont_Click()
{
    ChapText->setType(nextTypeSize(ChapText->font()));
}

void ChapRead::cmdFntFace_Click()
{
    ChapText->setType(otherTypeFace(ChapText->font(), m_otherFace));
}

void ChapRead::cmdChapCopy_Click()
{
    mnuCopy_Click();
}

void ChapRead::cmdTip_Click()
{
    const QStringList paragraphs = {
        "You can copy text from the Chapter Reading window to other programs by using drag-and-drop copying. "
        "The target program must support OLE.",
        "1. Arrange the program windows so that both the Chapter Reading window (source window) and the "
        "destination document are open and visible. You must be able to see the text you want to drag as "
        "well as the location where you want to drop it.",
        "2. In the Chapter Reading window select the text you want to copy, and then use the primary (left) "
        "mouse button to drag the selection to the insertion point in the other program.",
        "NB: Press CTRL+ C to copy any selected text to the Clipboard. Use the 'Copy Chapter' button to copy "
        "the whole chapter to the Clipboard without pre-selecting it.",
    };
    MsgBox::show(paragraphs.join("\r\n\r\n"), MsgIcon::Information, MsgButtons::Ok,
                 "Try this: Drag text from 'Kestrel Reader' to other programs");
}

void ChapRead::mnuCopy_Click()
{
    if (copyOrReport(referenceInCaption(caption()) + "\r\n" + ChapText->text()))
        cmdChapCopy->acknowledge("Copied");
}
