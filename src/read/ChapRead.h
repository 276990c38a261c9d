#pragma once

#include "widgets/Form.h"

class DataControl;
class SoftBttn;
class TextBox;

/// The chapter window: a whole chapter, one verse a line. The reading window fills it; its caption carries
/// the reference of the chapter it holds, and is its only memory of it.
class ChapRead : public Form
{
    Q_OBJECT

public:
    explicit ChapRead(Shell& shell);

    /// Gathers a chapter, unless it is the one on display.
    void showChapter(const QString& reference);
    /// Highlights a verse: its key and text, joined as in its line. Leaves the selection alone where it is
    /// missing.
    void highlight(const QString& verse);

protected:
    void Form_Load() override;
    void Form_Resize() override;
    bool Form_KeyDown(QKeyEvent& event) override;

private:
    void cmdFont_Click();
    void cmdFntFace_Click();
    void cmdChapCopy_Click();
    void cmdTip_Click();
    void mnuCopy_Click();

    DataControl* DataCtrl;
    TextBox* ChapText;
    SoftBttn* cmdFont;
    SoftBttn* cmdFntFace;
    SoftBttn* cmdChapCopy;
    SoftBttn* cmdTip;

    bool m_otherFace = false;
};
