#include "search/frmAdvSearch.h"

#include "clip/AnimationPlayer.h"
#include "desktop/BasePath.h"
#include "desktop/Clipboard.h"
#include "desktop/ErrorText.h"
#include "desktop/MsgBox.h"
#include "pictures/Colors.h"
#include "read/ChildRead.h"
#include "search/CopiedResults.h"
#include "search/SearchRanges.h"
#include "store/DataError.h"
#include "widgets/DataControl.h"
#include "widgets/EnterKey.h"
#include "widgets/Fonts.h"
#include "widgets/Hourglass.h"
#include "widgets/KeptSelection.h"
#include "widgets/Layout.h"
#include "widgets/ListBox.h"
#include "widgets/ListLines.h"
#include "widgets/Menus.h"
#include "widgets/Shell.h"
#include "widgets/SoftBttn.h"
#include "widgets/Text.h"
#include "widgets/Twips.h"
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace {

// In twips.
constexpr int listWidth = 8355;
constexpr int listHeight = 2130;

const QString resultsTitle = "Search Results:";

/// A word as it stands in the SQL text.
QString searchedWord(const QString& text, std::int16_t wholeWord)
{
    const QString word = escapeQuotes(text);
    return wholeWord == 1 && !word.isEmpty() ? wrapWholeWord(word) : word;
}

/// The palest ink on this face that can still be read without effort.
QColor restingInk(const QColor& face)
{
    const QColor strongest = isLight(face) ? Qt::black : Qt::white;
    constexpr double readable = 4.6; // to 1
    double share = 0.4;
    while (share < 1 && contrastRatio(blended(face, strongest, share), face) < readable)
        share += 0.02;
    return blended(face, strongest, share);
}

/// Paper while it takes input; grey while it does not, its words in a paler ink.
void setBackgrounds(QWidget& control)
{
    QPalette palette = control.palette();
    const QColor paper = palette.color(QPalette::Base);
    const QColor grey = palette.color(QPalette::Button);
    for (const auto role : {QPalette::Base, QPalette::Button}) { // the second is the face of a combo box
        palette.setColor(role, paper);
        palette.setColor(QPalette::Disabled, role, grey);
    }
    for (const auto role : {QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, restingInk(grey));
    control.setPalette(palette);
}

} // namespace

frmAdvSearch::frmAdvSearch(Shell& shell, SearchMemory& memory)
    : Form(shell, "frmAdvSearch")
    , Data1(new DataControl("Data1", "", this))
    , Label1(new QLabel("S&earch for verses containing the following text:", this))
    , Text1(new QLineEdit(this))
    , Combo1(new QComboBox(this))
    , Text2(new QLineEdit(this))
    , Line1(new QFrame(this))
    , Label3(new QLabel("Select &book(s) to scan:", this))
    , Combo2(new QComboBox(this))
    , chkWholeWrd(new QCheckBox("Match &whole word(s) only", this))
    , Animation1(new AnimationPlayer(this))
    , cmdOK(new SoftBttn(PictureId::Search, "Search", this))
    , cmdCancel(new SoftBttn(PictureId::Cancel, "Cancel/Close", this))
    , cmdHelp(new SoftBttn(PictureId::Help, "Help", this))
    , cmdHideList(new SoftBttn(PictureId::NewSearch, "New Search", this))
    , cmdCopySR(new SoftBttn(PictureId::CopyResults, "Copy Search Results to Clipboard", this))
    , Label2(new QLabel("Search &results:", this))
    , List1(new ListBox(this))
    , m_memory(memory)
{
    setCaption("Advanced Search");
    setFont(Fonts::captionsOf(9));
    placeControls();

    QMenu* edit = Menus::make(*this, "mnuEdit", "&Edit");
    mnuCopySR = Menus::addItem(edit, "mnuCopySR", "&Copy Search Results to Clipboard", {},
                               [this] { cmdCopySR_Click(); });
    makeMenus({edit});
    connectControls();
}

void frmAdvSearch::placeControls()
{
    Line1->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    for (QLineEdit* text : {Text1, Text2})
        new KeptSelection(*text, *text);
    for (QWidget* input : std::initializer_list<QWidget*>{Text1, Text2, Combo1, Combo2})
        setBackgrounds(*input);
    Label3->setBuddy(Combo2);
    Label2->setBuddy(List1);

    layOut({
        {Label1, "Label1", "Search for verses containing the following text:", {120, 75, 7800, 240}},
        {Text1, "Text1", "Search for verses containing the following text:", {120, 330, 7800, 360}},
        {Combo1, "Combo1", "Connective", {120, 765, 2250, 360}},
        {Text2, "Text2", "Second word or phrase", {2430, 765, 5490, 360}},
        {Line1, "Line1", "", {120, 1200, 7800, 30}},
        {Label3, "Label3", "", {120, 1305, 3600, 240}},
        {Combo2, "Combo2", "Select book(s) to scan:", {120, 1560, 3600, 360}},
        {chkWholeWrd, "chkWholeWrd", "Match whole word(s) only", {120, 2040, 3600, 330}},
        {Animation1, "Animation1", "", {4320, 1395, 3600, 900}},
        {cmdOK, "cmdOK", "", {8070, 75, 405, 405}},
        {cmdCancel, "cmdCancel", "", {8070, 525, 405, 405}},
        {cmdHelp, "cmdHelp", "", {8070, 975, 405, 405}},
        {cmdHideList, "cmdHideList", "", {8070, 1530, 405, 405}},
        {cmdCopySR, "cmdCopySR", "", {8070, 1980, 405, 405}},
        {Label2, "Label2", "", {120, 2460, 3600, 240}},
        {List1, "List1", "Search results:", {120, 2715, listWidth, listHeight}},
    });
}

void frmAdvSearch::connectControls()
{
    connect(Text1, &QLineEdit::textChanged, this, &frmAdvSearch::Text1_Change);
    connect(chkWholeWrd, &QCheckBox::toggled, this, &frmAdvSearch::chkWholeWrd_Click);
    connect(cmdOK, &SoftBttn::clicked, this, &frmAdvSearch::cmdOK_Click);
    connect(cmdCancel, &SoftBttn::clicked, this, &frmAdvSearch::cmdCancel_Click);
    connect(cmdHelp, &SoftBttn::clicked, this, &frmAdvSearch::cmdHelp_Click);
    connect(cmdHideList, &SoftBttn::clicked, this, &frmAdvSearch::cmdHideList_Click);
    connect(cmdCopySR, &SoftBttn::clicked, this, &frmAdvSearch::cmdCopySR_Click);
    connect(List1, &ListBox::keyDown, this, &frmAdvSearch::List1_KeyDown);
    connect(List1, &ListBox::choosingKeyPressed, this, &frmAdvSearch::List1_KeyPress);
    connect(List1, &ListBox::lineClicked, this, &frmAdvSearch::List1_Click);
    connect(List1, &ListBox::pointerMoved, this, &frmAdvSearch::List1_MouseMove);
}

void frmAdvSearch::Form_Load()
{
    Data1->setDatabaseName(databasePath(shell().basePath()));
    Combo1->addItems({"And containing", "and Not containing", "Or containing"});
    Combo1->setCurrentIndex(0);
    for (const SearchRange& range : searchRanges())
        Combo2->addItem(range.entry);
    Combo2->setCurrentText("The Four Gospels");
    Animation1->hide();
    Animation1->open(shell().basePath() + clipFileName);
    cmdOK->setEnabled(false);
    enableInputs(true);
    enableResults(false);
    Form_Resize();
    setOuterPosition(0, 0);
}

void frmAdvSearch::Form_Resize()
{
    // One size for each layout; a window that is minimised or maximised keeps its own.
    setOuterSize(toTwips(cmdOK->geometry().right() + 1) + 160,
                 List1->isHidden() ? inputHeight : resultsHeight);
    // Maximised, the list takes the room that there is.
    const QSize room = size() - QSize(2 * List1->x(), List1->y() + List1->x());
    const QSize list = room.expandedTo(QSize(toPixels(listWidth), toPixels(listHeight)));
    List1->resize(list.width(), List1->heightOfWholeLines(list.height()));
}

void frmAdvSearch::Form_Unload()
{
    m_memory.LastText1.clear(); // so that the same search runs anew in a reopened window
}

bool frmAdvSearch::Form_KeyDown(QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) {
        cmdCancel_Click();
        return true;
    }
    const bool searches = isEnter(event) && !trimBlanks(Text1->text()).isEmpty() && List1->isHidden();
    if (searches)
        cmdOK_Click();
    return searches || (Text1->hasFocus() && Text1_KeyPress(event));
}

void frmAdvSearch::Text1_Change()
{
    cmdOK->setEnabled(!trimBlanks(Text1->text()).isEmpty());
}

bool frmAdvSearch::Text1_KeyPress(const QKeyEvent& event) const
{
    return isEnter(event); // swallowed
}

void frmAdvSearch::chkWholeWrd_Click()
{
    Text1->setFocus();
}

SearchInputs frmAdvSearch::inputs() const
{
    return {trimBlanks(Text1->text()),
            trimBlanks(Text2->text()),
            static_cast<std::int16_t>(Combo1->currentIndex()),
            static_cast<std::int16_t>(Combo2->currentIndex()),
            static_cast<std::int16_t>(chkWholeWrd->isChecked() ? 1 : 0),
            Combo2->currentText()};
}

void frmAdvSearch::cmdOK_Click()
{
    const SearchInputs now = inputs();
    if (!isLastQuery(now, m_memory)) {
        runQuery(now);
    } else if (m_memory.LastOutcome == QueryFailed) {
        reportFailure(0, ""); // nothing was run, so there is no error to tell of
    } else if (m_memory.LastOutcome == NoMatches) {
        reportNoMatches();
    } else {
        enterResultsMode();
        reportCount();
    }
}

void frmAdvSearch::runQuery(const SearchInputs& inputs)
{
    startClip();
    remember(inputs);
    Hourglass hourglass;
    List1->clear();
    const QString SearchWord1 = searchedWord(inputs.text1, inputs.wholeWord);
    const QString SearchWord2 = searchedWord(inputs.text2, inputs.wholeWord);
    const auto sql = searchSql(SearchWord1, SearchWord2, inputs.connective,
                               rangeCondition(inputs.range, inputs.rangeText));
    if (sql)
        Data1->setRecordSource(*sql);
    try {
        Data1->refresh();
        fillList();
    } catch (const DataError& error) {
        hourglass.restore();
        reportFailure(error.number(), error.what());
        return;
    }
    if (Data1->recordCount() == 0) {
        hourglass.restore();
        stopClip();
        m_memory.LastOutcome = NoMatches;
        reportNoMatches();
        return;
    }
    m_memory.LastOutcome = ResultsListed;
    enterResultsMode();
    hourglass.restore();
    reportCount();
}

void frmAdvSearch::remember(const SearchInputs& inputs)
{
    m_memory.LastText1 = inputs.text1;
    m_memory.LastText2 = inputs.text2;
    m_memory.LastWholeWord = inputs.wholeWord;
    m_memory.LastConnective = inputs.connective;
    m_memory.LastRange = inputs.range;
}

void frmAdvSearch::fillList()
{
    constexpr int linesPerTick = 256;
    ListLines lines;
    for (; !Data1->eof(); Data1->moveNext()) {
        lines.add(Data1->field(0), Data1->field(2));
        if (lines.count() % linesPerTick == 0)
            Animation1->tick();
    }
    List1->setLines(std::move(lines));
}

void frmAdvSearch::reportNoMatches()
{
    MsgBox::show("No matching verses.", MsgIcon::Information, MsgButtons::Ok, resultsTitle);
}

void frmAdvSearch::reportCount()
{
    stopClip();
    const QRect rows(List1->mapToGlobal(QPoint()), List1->size());
    MsgBox::show(QString("%1 verse(s) found.").arg(List1->count()), MsgIcon::Information, MsgButtons::Ok,
                 resultsTitle, rows);
    List1->setFocus();
}

void frmAdvSearch::reportFailure(int number, const QString& description)
{
    m_memory.LastOutcome = QueryFailed;
    List1->clear();
    Data1->setRecordSource("SELECT * FROM NewTestament");
    stopClip();
    MsgBox::show(errorText(number, description) + " -- Query aborted.", MsgIcon::Exclamation, MsgButtons::Ok,
                 "Unpredictable Error");
}

void frmAdvSearch::startClip()
{
    Animation1->show();
    Animation1->play();
}

void frmAdvSearch::stopClip()
{
    Animation1->stop();
    Animation1->hide();
}

void frmAdvSearch::enterResultsMode()
{
    enableResults(true);
    if (QWidget* input = focusWidget())
        input->clearFocus(); // or it would wander over the inputs as they come to rest, one after the other
    cmdOK->setEnabled(false);
    enableInputs(false);
    Form_Resize();
}

void frmAdvSearch::cmdHideList_Click()
{
    enableResults(false);
    Form_Resize();
    cmdOK->setEnabled(true);
    enableInputs(true);
    Text1->setFocus();  // the button that had it is hidden now
    Text1->selectAll(); // a new word, typed at once, takes the place of the old one
}

void frmAdvSearch::enableInputs(bool enable)
{
    for (QWidget* input : std::initializer_list<QWidget*>{Text1, Text2, Combo1, Combo2, chkWholeWrd})
        input->setEnabled(enable);
    // While the text rests, the Alt key of both is the Edit menu's alone.
    Label1->setBuddy(enable ? Text1 : nullptr);
}

void frmAdvSearch::enableResults(bool enable)
{
    for (QWidget* control : std::initializer_list<QWidget*>{Label2, List1, cmdCopySR, cmdHideList}) {
        control->setVisible(enable);
        control->setEnabled(enable);
    }
    mnuCopySR->setEnabled(enable);
}

void frmAdvSearch::List1_KeyDown()
{
    // For every key, also one that selects nothing: the next click then only clears the flag.
    m_memory.ListKeyFlag = 1;
}

void frmAdvSearch::List1_KeyPress()
{
    m_memory.ListKeyFlag = 0;
    List1_Click();
}

void frmAdvSearch::List1_Click()
{
    if (m_memory.ListKeyFlag == 1) {
        m_memory.ListKeyFlag = 0;
        return;
    }
    if (List1->selected() < 0)
        return;
    const QString line = List1->text(List1->selected());
    const QString reference = line.left(qMax(qsizetype(0), line.indexOf(' ')));
    try {
        shell().readingWindow().showFirst("SELECT * FROM NewTestament WHERE VerseId = '" +
                                          reference.toStdString() + "'");
    } catch (const DataError&) {
        return; // no word about it, on purpose
    }
}

void frmAdvSearch::List1_MouseMove(const QPoint& point)
{
    List1->setToolTip(List1->text(List1->lineAt(point)));
}

void frmAdvSearch::cmdCopySR_Click()
{
    CopiedResults results;
    {
        const Hourglass hourglass;
        results = copiedResults(List1->lines());
    }
    if (results.isCutShort)
        MsgBox::show(QString("Only the first %1 verses will be copied to the Clipboard!").arg(results.lines),
                     MsgIcon::Information);
    if (copyOrReport(results.text))
        cmdCopySR->acknowledge("Copied");
}

// A press of F1, for KeyPreview to hear: the window itself knows no help.
void frmAdvSearch::cmdHelp_Click()
{
    QWidget* receiver = isAncestorOf(QApplication::focusWidget()) ? QApplication::focusWidget() : this;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(receiver, &press);
}

void frmAdvSearch::cmdCancel_Click()
{
    unload();
}
