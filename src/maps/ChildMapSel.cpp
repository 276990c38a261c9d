#include "maps/ChildMapSel.h"

#include "desktop/BasePath.h"
#include "desktop/Platform.h"
#include "maps/CaptionFrame.h"
#include "maps/ChildMapDsp.h"
#include "maps/MapPicture.h"
#include "maps/TabStrip.h"
#include "maps/TopicText.h"
#include "pictures/Pictures.h"
#include "read/ChildRead.h"
#include "widgets/ListBox.h"
#include "widgets/ListLines.h"
#include "widgets/Maker.h"
#include "widgets/ProgramFlags.h"
#include "widgets/Shell.h"
#include "widgets/Text.h"
#include "widgets/Twips.h"
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// In twips. The pages begin below the tabs, and their frames stay away from the strip's edge.
constexpr int stripLeft = 60;
constexpr int stripTop = 180;
constexpr int pageTop = 480;
constexpr int pageMargin = 150;
constexpr QSize stripSize(7500, 6600);
constexpr int pageWidth = stripSize.width() - 2 * pageMargin;
constexpr int groupHeight = 1350;

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

ListLines linesOf(const QStringList& texts)
{
    ListLines lines;
    for (const QString& text : texts)
        lines.add(text.toStdString());
    return lines;
}

CaptionFrame* makeFrame(QWidget* parent, const QString& name, const QString& caption, int top, int height)
{
    auto* frame = new CaptionFrame(caption, parent);
    frame->setObjectName(name);
    place(*frame, stripLeft + pageMargin, stripTop + top, pageWidth, height);
    return frame;
}

} // namespace

ChildMapSel::ChildMapSel(Shell& shell)
    : Form(shell, "ChildMapSel")
    , TabStrip1(new TabStrip(this))
{
    setCaption("Study Aids");
    TabStrip1->setObjectName("TabStrip1");
    TabStrip1->setAccessibleName("Study aids");
    for (const char* caption : {"&Classified Verses", "&Maps", "&Download Other Translations"})
        TabStrip1->addTab(caption);
    place(*TabStrip1, stripLeft, stripTop, stripSize.width(), stripSize.height());
    makeVersesPage();
    makeMapsPage();
    makeDownloadPage();
    makeMenus({});

    Data1.setRecordSource("ClassifiedVerses");
    connect(TabStrip1, &QTabBar::currentChanged, this, &ChildMapSel::TabStrip1_Click);
    connect(Combo2, &QComboBox::activated, this, &ChildMapSel::Combo2_Click);
    connect(List1, &ListBox::keyDown, this, &ChildMapSel::List1_KeyDown);
    connect(List1, &ListBox::lineClicked, this, &ChildMapSel::List1_Click);
    connect(List1, &ListBox::choosingKeyPressed, this, &ChildMapSel::List1_KeyPress);
    connect(lstMaps, &ListBox::keyDown, this, &ChildMapSel::lstMaps_KeyDown);
    connect(lstMaps, &ListBox::lineClicked, this, &ChildMapSel::lstMaps_Click);
    connect(lstMaps, &ListBox::choosingKeyPressed, this, &ChildMapSel::lstMaps_KeyPress);
    connect(Image1, &QAbstractButton::clicked, this, &ChildMapSel::Image1_Click);
    connect(cmdBibWeb, &QPushButton::clicked, this, &ChildMapSel::cmdBibWeb_Click);
}

void ChildMapSel::makeVersesPage()
{
    Frame1 = makeFrame(this, "Frame1", "Se&lect a Group", pageTop, groupHeight);
    auto* options = new QButtonGroup(this);
    auto* columns = new QGridLayout(Frame1);
    for (int index = 0; index < 4; ++index) {
        auto* option = new QRadioButton(groups[index].caption, Frame1);
        option->setObjectName("optEvents");
        options->addButton(option, index);
        columns->addWidget(option, index % 2, index / 2);
        optEvents[index] = option;
    }
    optEvents[0]->setChecked(true);
    connect(options, &QButtonGroup::idClicked, this, &ChildMapSel::optEvents_Click);

    const int contentsTop = pageTop + groupHeight + pageMargin;
    Frame2 = makeFrame(this, "Frame2", "G&roup Contents", contentsTop,
                       stripSize.height() - pageMargin - contentsTop);
    Combo2 = new QComboBox(Frame2);
    Combo2->setObjectName("Combo2");
    Combo2->setAccessibleName("Topic");
    List1 = new ListBox(Frame2);
    List1->setObjectName("List1");
    List1->setAccessibleName("Verse references");
    auto* contents = new QVBoxLayout(Frame2);
    contents->addWidget(Combo2);
    contents->addWidget(List1);
}

void ChildMapSel::makeMapsPage()
{
    Frame3 = makeFrame(this, "Frame3", "Select a M&ap", pageTop, stripSize.height() - pageMargin - pageTop);
    lstMaps = new ListBox(Frame3);
    lstMaps->setObjectName("lstMaps");
    lstMaps->setAccessibleName("Maps");
    (new QVBoxLayout(Frame3))->addWidget(lstMaps);
}

void ChildMapSel::makeDownloadPage()
{
    Frame4 = makeFrame(this, "Frame4", "", pageTop, stripSize.height() - pageMargin - pageTop);
    Label1 = new QLabel("Kestrel Reader is also made in other languages, free of charge like this edition. "
                        "Visit the web site of the maker to see which translations there are and to "
                        "download the ones you would like to read.",
                        Frame4);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    auto* image = new QToolButton(Frame4);
    image->setObjectName("Image1");
    image->setAccessibleName("Web site");
    image->setIcon(iconOf(PictureId::Web));
    image->setIconSize(QSize(toPixels(960), toPixels(960)));
    image->setAutoRaise(true);
    image->setFocusPolicy(Qt::NoFocus); // the button does the same by keyboard
    image->setCursor(Qt::PointingHandCursor);
    Image1 = image;
    cmdBibWeb = new QPushButton("&Visit the Web Site", Frame4);
    cmdBibWeb->setObjectName("cmdBibWeb");
    cmdBibWeb->setAutoDefault(true); // Enter presses it too
    auto* page = new QVBoxLayout(Frame4);
    page->addWidget(Label1);
    page->addWidget(Image1, 0, Qt::AlignHCenter);
    page->addWidget(cmdBibWeb, 0, Qt::AlignHCenter);
    page->addStretch();
}

void ChildMapSel::Form_Load()
{
    Data1.setDatabaseName(databasePath(shell().basePath()));
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
    fillTopics(groups[index].type);
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
        openMap(lstMaps->selected() + 1);
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
    Data1.setRecordSource(("SELECT * FROM ClassifiedVerses WHERE " + condition).toStdString());
    Data1.refresh();
}

void ChildMapSel::fillTopics(const QString& type)
{
    select("Type = '" + type + "'");
    Combo2->clear();
    for (; !Data1.eof(); Data1.moveNext())
        Combo2->addItem(topicEntry(toText(Data1.field(1))));
    Combo2->setCurrentIndex(0);
    fillReferences();
}

void ChildMapSel::fillReferences()
{
    select("Name = '" + topicOf(Combo2->currentText()) + "'");
    List1->setLines(linesOf(referenceEntries(toText(Data1.field(2)))));
}

void ChildMapSel::openReference(const QString& reference)
{
    shell().readingWindow().showFirst("SELECT * FROM NewTestament WHERE VerseId LIKE '" +
                                      reference.toStdString() + "*'");
}

void ChildMapSel::openMap(int number)
{
    shell().flags().MapFirstShow = 1;
    shell().flags().MapZoomed = 0;
    ChildMapDsp& map = shell().mapWindow();
    map.Image1->setStretch(false);
    map.DataMap.setRecordSource("SELECT * FROM NTMaps WHERE MapNumber = " + std::to_string(number));
    map.DataMap.refresh();
    map.setState(Normal);
    map.activate();
}

void ChildMapSel::openWebSite()
{
    Platform::current().openLink(QUrl(Maker::webSite));
}
