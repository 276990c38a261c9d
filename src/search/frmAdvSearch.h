#pragma once

#include "search/SearchQuery.h"
#include "widgets/Form.h"

class AnimationPlayer;
class DataControl;
class ListBox;
class QAction;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class SoftBttn;

/// The search window: verses with one or two words, in a part of the Bible. A search that finds some turns it
/// into results mode: the window grows by the list of them, and the inputs rest until "New Search".
class frmAdvSearch : public Form
{
    Q_OBJECT

public:
    /// Outer heights of the two layouts, in twips.
    static constexpr int inputHeight = 2920;
    static constexpr int resultsHeight = 5325;

    /// memory: of the last query; must outlive the window.
    frmAdvSearch(Shell& shell, SearchMemory& memory);

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload() override;
    bool Form_KeyDown(QKeyEvent& event) override;
    bool hasAccessKeys() const override { return true; }

private:
    void Text1_Change();
    bool Text1_KeyPress(const QKeyEvent& event) const;
    void chkWholeWrd_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();
    void cmdHideList_Click();
    void cmdCopySR_Click();
    void List1_KeyDown();
    void List1_KeyPress();
    void List1_Click();
    void List1_MouseMove(const QPoint& point);

    void placeControls();
    void connectControls();
    SearchInputs inputs() const;
    void runQuery(const SearchInputs& inputs);
    void remember(const SearchInputs& inputs);
    void fillList();
    void reportNoMatches();
    void reportCount();
    void reportFailure(int number, const QString& description);
    void startClip();
    void stopClip();
    void enterResultsMode();
    void enableInputs(bool enable);
    void enableResults(bool enable);

    DataControl* Data1;
    QLabel* Label1;
    QLineEdit* Text1;
    QComboBox* Combo1;
    QLineEdit* Text2;
    QFrame* Line1;
    QLabel* Label3;
    QComboBox* Combo2;
    QCheckBox* chkWholeWrd;
    AnimationPlayer* Animation1;
    SoftBttn* cmdOK;
    SoftBttn* cmdCancel;
    SoftBttn* cmdHelp;
    SoftBttn* cmdHideList;
    SoftBttn* cmdCopySR;
    QLabel* Label2;
    ListBox* List1;
    QAction* mnuCopySR;

    SearchMemory& m_memory;
};
