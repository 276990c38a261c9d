#pragma once

#include "widgets/Form.h"

class DataControl;
class QCheckBox;
class QComboBox;
class QLabel;
class QTimer;
class SoftBttn;
class VerseLabel;

/// The reading window: one verse in large type, stepped through by hand or on a timer.
///
/// Every other window that wants to show a verse hands it over here, and asks here which verse is current.
class ChildRead : public Form
{
    Q_OBJECT

public:
    explicit ChildRead(Shell& shell);

    /// The caption while the current verse has this key.
    static QString captionOf(const QString& key);

    /// Shows the first row of an SQL text over `NewTestament`, in UTF-8; false when it has none, and the
    /// labels are then blank. Throws DataError.
    bool fetch(const std::string& sql);
    /// The hand-off of a verse: fetch(), then restoreAndActivate().
    void showFirst(const std::string& sql);

    /// The key and the running number of the current verse as the labels show them; empty and 0 when there is
    /// none.
    QString currentKey() const;
    int currentNumber() const;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Resize() override;
    bool Form_KeyDown(QKeyEvent& event) override;

private:
    void DataCtl_Reposition();
    void lblVerseId_Change();
    void cmdPrev_Click();
    void cmdNext_Click();
    void Timer1_Timer();
    void chkAuto_Click();
    void cboSeconds_Click();
    void cmdFont_Click();
    void cmdFntFace_Click();
    void cmdCopy_Click();
    void cmdChap_Click();

    void showNumber(int number);
    void resumeTimer();
    /// Tells a screen reader of the verse, once, as soon as it is what the reader looks at.
    void announceVerse();

    DataControl* DataCtl;
    QLabel* lblSerial;  ///< hidden; the running number
    QLabel* lblVerseId; ///< the verse key
    SoftBttn* cmdPrev;
    SoftBttn* cmdNext;
    SoftBttn* cmdChap;
    SoftBttn* cmdCopy;
    SoftBttn* cmdFont;
    SoftBttn* cmdFntFace;
    QCheckBox* chkAuto;
    QComboBox* cboSeconds;
    QLabel* Label2;
    VerseLabel* VerseText;
    QTimer* Timer1;

    bool m_otherFace = false;
    QString m_announced; ///< the key of the verse that was announced last
};
