#pragma once

#include "widgets/Form.h"

class QComboBox;
class QTreeWidget;
class SoftBttn;

/// The selection window: a verse is chosen from the tree of books or by a typed reference such as "Mt:24:43".
class ChildSelect : public Form
{
    Q_OBJECT

public:
    explicit ChildSelect(Shell& shell);

    /// Shows the window with the focus in the reference box and its text selected.
    void askForReference();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    bool Form_KeyDown(QKeyEvent& event) override;

private:
    void TreeView1_NodeClick();
    void Combo1_Change();
    void Combo1_Click();
    void cmdGo_Click();
    void cmdExamples_Click();

    QString reference() const;

    SoftBttn* cmdExamples;
    SoftBttn* cmdGo;
    QTreeWidget* TreeView1;
    QComboBox* Combo1;
};
