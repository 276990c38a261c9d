#include "maps/ChildMapSel.h"

#include "desktop/BasePath.h"
#include "desktop/Platform.h"
#include "maps/CaptionFrame.h"
#include "maps/ChildMapDsp.h"
#include "maps/TabStrip.h"
#include "maps/TopicModel.h"
#include "maps/TopicText.h"
#include "pictures/Pictures.h"
#include "read/ChildRead.h"
#include "widgets/DataControl.h"
#include "widgets/Layout.h"
#include "widgets/ListBox.h"
#include "widgets/ListLines.h"
#include "widgets/Maker.h"
#include "widgets/Shell.h"
#include "widgets/Text.h"
#include "widgets/Twips.h"
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace {

struct Group
{
    const char* caption;
    const char* type; ///< the value of the column `Type`
};
constexpr std::array<Group, 4> groups = {{
    {"Major &Gospels Events", "Events"},
    {"Christ's M&iracles", "Miracles"},
    {"Christ's &Parables", "Parables"},
    {"M&essianic Prophecies", "Prophecy"},
}};

// In the order of their numbers, from 1.
const QStringList mapNames = {
    "Abraham's Journeys",      "Jacob's Journey",
    "Route of the Exodus",     "The Twelve Tribes and Division of the Land",
    "Division of the Kingdom", "New Testament Palestine",
    "New Testament Jerusalem", "Paul's First Journey",
    "Paul's Second Journey",   "Paul's Third Journey",
    "Paul's Journey to Rome",
};

const QString invitation =
    "Kestrel Reader is also made in other languages, free of charge like this edition. "
    "Visit the web site of the maker to see which translations there are and to "
    "download the ones you would like to read.";

ListLines linesOf(const QStringList& texts)
{
    ListLines lines;
    for (const QString& text : texts)
        lines.add(text.toStdString());
    return lines;
}

} // namespace

ChildMapSel::ChildMapSel(Shell& shell)
    : Form(shell, "ChildMapSel")
    , Data1(new DataControl("Data1", "ClassifiedVerses", this))
    , TabStrip1(new TabStrip(this))
    , Frame1(new CaptionFrame("Se&lect a Group", this))
    , Frame2(new CaptionFrame("G&roup Contents", this))
    , Combo2(new QComboBox(Frame2))
    , List1(new ListBox(Frame2))
    , Frame3(new CaptionFrame("Select a M&ap", this))
    , lstMaps(new ListBox(Frame3))
    , Frame4(new CaptionFrame(this))
    , Label1(new QLabel(invitation, Frame4))
    , Image1(new QToolButton(Frame4))
    , cmdBibWeb(new QPushButton("&Visit the Web Site", Frame4))
{
    setCaption("Study Aids");
    for (const char* caption : {"&Classified Verses", "&Maps", "&Download Other Translations"})
        TabStrip1->addTab(caption);
    for (std::size_t index = 0; index < groups.size(); ++index)
        optEvents[index] = new QRadioButton(groups[index].caption, Frame1);
    Combo2->setModel(new TopicModel(Combo2));
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignTop);
    Image1->setIcon(iconOf(PictureId::Web));
    Image1->setIconSize(QSize(toPixels(960), toPixels(960)));
    Image1->setAutoRaise(true);
    Image1->setFocusPolicy(Qt::NoFocus); // the button does the same by keyboard
    Image1->setCursor(Qt::PointingHandCursor);
    cmdBibWeb->setAutoDefault(true); // Enter presses it too
    placeControls();
    makeMenus({});
    connectControls();
}

void ChildMapSel::placeControls()
{
    // The frames lie on the strip below its tabs, and their controls in them.
    layOut({
        {TabStrip1, "TabStrip1", "Study aids", {60, 180, 7500, 6600}},
        {Frame1, "Frame1", "", {210, 660, 7200, 1350}},
        {optEvents[0], "optEvents", "", {135, 375, 3375, 375}},
        {optEvents[1], "optEvents", "", {135, 825, 3375, 375}},
        {optEvents[2], "optEvents", "", {3690, 375, 3375, 375}},
        {optEvents[3], "optEvents", "", {3690, 825, 3375, 375}},
        {Frame2, "Frame2", "", {210, 2160, 7200, 4470}},
        {Combo2, "Combo2", "Topic", {135, 405, 6930, 375}},
        {List1, "List1", "Verse references", {135, 870, 6930, 3465}},
        {Frame3, "Frame3", "", {210, 660, 7200, 5970}},
        {lstMaps, "lstMaps", "Maps", {135, 405, 6930, 5430}},
        {Frame4, "Frame4", "", {210, 660, 7200, 5970}},
        {Label1, "Label1", "", {135, 300, 6930, 1050}},
        {Image1, "Image1", "Web site", {3060, 1440, 1080, 1080}},
        {cmdBibWeb, "cmdBibWeb", "", {2250, 2640, 2700, 405}},
    });
}

void ChildMapSel::connectControls()
{
    auto* options = new QButtonGroup(this);
    for (std::size_t index = 0; index < groups.size(); ++index)
        options->addButton(optEvents[index], static_cast<int>(index));
    connect(TabStrip1, &QTabBar::currentChanged, this, &ChildMapSel::TabStrip1_Click);
    connect(options, &QButtonGroup::idClicked, this, &ChildMapSel::optEvents_Click);
    connect(Combo2, &QComboBox::activated, this, &ChildMapSel::Combo2_Click);
    connect(List1, &ListBox::keyDown, this, &ChildMapSel::List1_KeyDown);
    connect(List1, &ListBox::lineClicked, this, &ChildMapSel::List1_Click);
    connect(List1, &ListBox::choosingKeyPressed, this, &ChildMapSel::List1_KeyPress);
    connect(lstMaps, &ListBox::keyDown, this, &ChildMapSel::lstMaps_KeyDown);
    connect(lstMaps, &ListBox::lineClicked, this, &ChildMapSel::lstMaps_Click);
    connect(lstMaps, &ListBox::choosingKeyPressed, this, &ChildMapSel::lstMaps_KeyPress);
    connect(Image1, &QToolButton::clicked, this, &ChildMapSel::Image1_Click);
    connect(cmdBibWeb, &QPushButton::clicked, this, &ChildMapSel::cmdBibWeb_Click);
}

void ChildMapSel::Form_Load()
{
    Data1->setDatabaseName(databasePath(shell().basePath()));
    lstMaps->setLines(linesOf(mapNames));
    optEvents[0]->setChecked(true);
    fillTopics("Events");
    TabStrip1_Click();
    Form_Resize();
    // Left of the middle and in the upper part of the frame, on purpose.
    const QSize frame = frameInnerSize();
    setOuterPosition(qRound((frame.width() - outerWidth()) / 1.9), (frame.height() - outerHeight()) / 4);
}

void ChildMapSel::Form_Resize()
{
    setOuterSize(toTwips(TabStrip1->width()) + 240, toTwips(TabStrip1->height()) + 900);
}

void ChildMapSel::TabStrip1_Click()
{
    const int page = TabStrip1->currentIndex();
    const QWidget* focus = focusWidget();
    Frame1->setVisible(page == 0);
    Frame2->setVisible(page == 0);
    Frame3->setVisible(page == 1);
    Frame4->setVisible(page == 2);
    if (focus && !focus->isVisibleTo(this))
        TabStrip1->setFocus();
}

void ChildMapSel::optEvents_Click(int index)
{
    fillTopics(groups[static_cast<std::size_t>(index)].type);
}

void ChildMapSel::Combo2_Click()
{
    fillReferences();
}

void ChildMapSel::List1_KeyDown()
{
    SkipNextClick = 1;
}

void ChildMapSel::List1_Click()
{
    if (SkipNextClick == 1)
        SkipNextClick = 0;
    else if (List1->selected() >= 0)
        openReference(referenceOf(List1->text(List1->selected())));
}

void ChildMapSel::List1_KeyPress()
{
    SkipNextClick = 0;
    List1->selectCurrentLine();
    List1_Click();
}

void ChildMapSel::lstMaps_KeyDown()
{
    SkipNextClick = 1;
}

void ChildMapSel::lstMaps_Click()
{
    if (SkipNextClick == 1)
        SkipNextClick = 0;
    else if (lstMaps->selected() >= 0)
        shell().mapWindow().showMap(lstMaps->selected() + 1);
}

void ChildMapSel::lstMaps_KeyPress()
{
    SkipNextClick = 0;
    lstMaps->selectCurrentLine();
    lstMaps_Click();
}

void ChildMapSel::Image1_Click()
{
    openWebSite();
}

void ChildMapSel::cmdBibWeb_Click()
{
    openWebSite();
}

// The texts stand in the query as they are: no name of a topic holds an apostrophe.
void ChildMapSel::select(const QString& condition)
{
    Data1->setRecordSource(("SELECT * FROM ClassifiedVerses WHERE " + condition).toStdString());
    Data1->refresh();
}

void ChildMapSel::fillTopics(const QString& type)
{
    select("Type = '" + type + "'");
    Combo2->clear();
    for (; !Data1->eof(); Data1->moveNext())
        Combo2->addItem(topicEntry(toText(Data1->field(1))));
    fillReferences();
}

void ChildMapSel::fillReferences()
{
    select("Name = '" + topicOf(Combo2->currentText()) + "'");
    List1->setLines(linesOf(referenceEntries(toText(Data1->field(2)))));
}

void ChildMapSel::openReference(const QString& reference)
{
    shell().readingWindow().showFirst("SELECT * FROM NewTestament WHERE VerseId LIKE '" +
                                      reference.toStdString() + "*'");
}

void ChildMapSel::openWebSite()
{
    Platform::current().openLink(QUrl(Maker::webSite));
}
