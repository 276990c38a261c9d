#include "select/ChildSelect.h"

#include "desktop/MsgBox.h"
#include "desktop/Platform.h"
#include "select/BookTree.h"
#include "select/Lookup.h"
#include "select/ReferenceBox.h"
#include "store/BookCatalog.h"
#include "widgets/EnterKey.h"
#include "widgets/KeepsScrolling.h"
#include "widgets/KeptSelection.h"
#include "widgets/Layout.h"
#include "widgets/Shell.h"
#include "widgets/SoftBttn.h"
#include "widgets/Text.h"
#include "widgets/Twips.h"
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>

ChildSelect::ChildSelect(Shell& shell)
    : Form(shell, "ChildSelect")
    , cmdExamples(new SoftBttn(PictureId::Examples, "Examples", this))
    , cmdGo(new SoftBttn(PictureId::DisplayVerse, "Display Verse", this))
    , TreeView1(new KeepsScrolling<QTreeWidget>(this))
    , Combo1(new ReferenceBox(this))
{
    setCaption("Select Verse for Reading");
    TreeView1->header()->hide();
    Combo1->setEditable(true);
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    Combo1->setCompleter(nullptr); // the text is the reader's own, to the letter
    Combo1->lineEdit()->setAccessibleName("Reference");
    new KeptSelection(*Combo1, *Combo1->lineEdit());
    layOut({
        {Combo1, "Combo1", "Reference", {60, 100, 2000, 315}},
        {cmdGo, "cmdGo", "", {2200, 60, 400, 400}},
        {cmdExamples, "cmdExamples", "", {2600, 60, 400, 400}},
        {TreeView1, "TreeView1", "Books", {60, 555, 6135, 3135}},
    });
    makeMenus({});

    connect(TreeView1, &QTreeWidget::itemClicked, this, &ChildSelect::TreeView1_NodeClick);
    connect(TreeView1, &QTreeWidget::currentItemChanged, this, &ChildSelect::TreeView1_NodeClick);
    connect(Combo1, &QComboBox::editTextChanged, this, &ChildSelect::Combo1_Change);
    connect(Combo1, &QComboBox::activated, this, &ChildSelect::Combo1_Click);
    connect(cmdGo, &SoftBttn::clicked, this, &ChildSelect::cmdGo_Click);
    connect(cmdExamples, &SoftBttn::clicked, this, &ChildSelect::cmdExamples_Click);
}

void ChildSelect::Form_Load()
{
    fillBookTree(*TreeView1);
    for (const Book& book : bookCatalog())
        Combo1->addItem(QString::fromStdString(book.prefix()));
    Combo1->setCurrentIndex(-1);
    Combo1->setEditText("Mt");
    setOuterPosition(0, 0);
    setOuterSize(6135 + 260, 3135 + 555 + 460);
}

void ChildSelect::askForReference()
{
    restoreAndActivate();
    Form_Activate(); // the focus may stand elsewhere in a window that is active already
}

void ChildSelect::Form_Activate()
{
    Combo1->setFocus();
    Combo1->lineEdit()->selectAll(); // a new reference, typed at once, takes the place of the old one
}

void ChildSelect::Form_Resize()
{
    const int width = possibleLength(outerWidth() - 260, toTwips(TreeView1->width()));
    const int height =
        possibleLength(outerHeight() - toTwips(TreeView1->y()) - 460, toTwips(TreeView1->height()));
    TreeView1->resize(toPixels(width), toPixels(height));
}

bool ChildSelect::Form_KeyDown(QKeyEvent& event)
{
    if (isEnter(event) && !reference().isEmpty())
        cmdGo_Click();
    return isEnter(event); // swallowed: no beep, no character
}

void ChildSelect::TreeView1_NodeClick()
{
    const QTreeWidgetItem* node = TreeView1->currentItem();
    const QString text = node ? node->text(0) : QString();
    const qsizetype mark = text.indexOf("-- ");
    if (mark >= 0)
        Combo1->setEditText(text.mid(mark + 3) + ":");
}

void ChildSelect::Combo1_Change()
{
    const QString text = reference();
    cmdGo->setEnabled(!text.isEmpty());
    if (text.size() <= maxReferenceLength)
        return;
    Platform::current().beep();
    Combo1->setEditText(text.left(maxReferenceLength));
    Combo1->lineEdit()->setCursorPosition(maxReferenceLength);
}

void ChildSelect::Combo1_Click()
{
    cmdGo->setEnabled(!reference().isEmpty());
}

void ChildSelect::cmdGo_Click()
{
    displayVerse(shell().readingWindow(), reference());
}

void ChildSelect::cmdExamples_Click()
{
    const QStringList lines = {
        "EXAMPLES",
        "",
        "Type   Mt:24:43",
        "To display verse 43 from chapter 24 of the Gospel according to St. Matthew",
        "",
        "Type   Mt:24",
        "To display the first verse from chapter 24 of the Gospel according to St. Matthew",
        "",
        "Type   Mt",
        "To display the first verse from the first chapter of the Gospel according to St. Matthew",
        "",
        "Type   2Thes:3:16",
        "To display verse 16 from chapter 3 of the Second Epistle to the Thessalonians",
    };
    MsgBox::show(lines.join("\r\n"), MsgIcon::Information);
}

QString ChildSelect::reference() const
{
    return trimBlanks(Combo1->currentText());
}
