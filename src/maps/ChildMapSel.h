#pragma once

#include "widgets/Form.h"
#include <array>

class CaptionFrame;
class DataControl;
class ListBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QToolButton;
class TabStrip;

/// The study aids window: classified verses by group and topic, the list of maps, and the way to the maker's
/// web site, on three pages.
class ChildMapSel : public Form
{
    Q_OBJECT

public:
    explicit ChildMapSel(Shell& shell);

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    void TabStrip1_Click();
    void optEvents_Click(int index);
    void Combo2_Click();
    void List1_KeyDown();
    void List1_Click();
    void List1_KeyPress();
    void lstMaps_KeyDown();
    void lstMaps_Click();
    void lstMaps_KeyPress();
    void Image1_Click();
    void cmdBibWeb_Click();

    void placeControls();
    void connectControls();
    void select(const QString& condition);
    void fillTopics(const QString& type);
    void fillReferences();
    void openReference(const QString& reference);
    void openWebSite();

    DataControl* Data1;
    TabStrip* TabStrip1;
    CaptionFrame* Frame1;
    std::array<QRadioButton*, 4> optEvents;
    CaptionFrame* Frame2;
    QComboBox* Combo2;
    ListBox* List1;
    CaptionFrame* Frame3;
    ListBox* lstMaps;
    CaptionFrame* Frame4;
    QLabel* Label1;
    QToolButton* Image1;
    QPushButton* cmdBibWeb;

    /// 1 after a key went down in a list, until the next click, which it swallows. Both lists share it.
    int SkipNextClick = 0;
};
