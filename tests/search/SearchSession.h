#pragma once

#include "clip/AnimationPlayer.h"
#include "read/ChildRead.h"
#include "search/frmAdvSearch.h"
#include "support/Session.h"
#include "widgets/DataControl.h"
#include "widgets/ListBox.h"
#include "widgets/SoftBttn.h"
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

/// The running program with its search window open.
class SearchSession : public Session
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        frame().openSearch();
    }

    frmAdvSearch& window() { return get<frmAdvSearch>(); }
    ListBox& list() { return control<ListBox>(window(), "List1"); }
    QLabel& Label1() { return control<QLabel>(window(), "Label1"); }
    QLineEdit& Text1() { return control<QLineEdit>(window(), "Text1"); }
    QComboBox& Combo1() { return control<QComboBox>(window(), "Combo1"); }
    QLineEdit& Text2() { return control<QLineEdit>(window(), "Text2"); }
    QLabel& Label3() { return control<QLabel>(window(), "Label3"); }
    QComboBox& Combo2() { return control<QComboBox>(window(), "Combo2"); }
    QCheckBox& chkWholeWrd() { return control<QCheckBox>(window(), "chkWholeWrd"); }
    AnimationPlayer& Animation1() { return control<AnimationPlayer>(window(), "Animation1"); }
    SoftBttn& cmdOK() { return control<SoftBttn>(window(), "cmdOK"); }
    SoftBttn& cmdCancel() { return control<SoftBttn>(window(), "cmdCancel"); }
    SoftBttn& cmdHelp() { return control<SoftBttn>(window(), "cmdHelp"); }
    SoftBttn& cmdHideList() { return control<SoftBttn>(window(), "cmdHideList"); }
    SoftBttn& cmdCopySR() { return control<SoftBttn>(window(), "cmdCopySR"); }
    QLabel& Label2() { return control<QLabel>(window(), "Label2"); }
    DataControl& Data1() { return control<DataControl>(window(), "Data1"); }

    /// Places in `Combo1` and `Combo2`.
    enum Connective { NoConnective = -1, And, AndNot, Or };
    enum Range { NoRange = -1, OldTestament = 4, Ez = 30, Gospels = 44, NewTestament = 47, John = 51 };

    struct Inputs
    {
        QString text1;
        QString text2 = {};
        int connective = And;
        int range = NewTestament;
        bool wholeWord = false;
    };

    /// Sets the inputs and clicks the button.
    void search(const Inputs& inputs)
    {
        Text1().setText(inputs.text1);
        Text2().setText(inputs.text2);
        Combo1().setCurrentIndex(inputs.connective);
        Combo2().setCurrentIndex(inputs.range);
        chkWholeWrd().setChecked(inputs.wholeWord);
        click(cmdOK());
    }
    void search(const QString& text1) { search(Inputs{.text1 = text1}); }

    /// Sets the inputs anew after results were listed.
    void newSearch() { click(cmdHideList()); }

    QStringList lines()
    {
        QStringList all;
        for (int i = 0; i < list().count(); ++i)
            all << list().text(i);
        return all;
    }

    bool isInResultsMode() { return list().isVisible(); }

    /// The one message box shown since the last call: "icon|title|text".
    QString box()
    {
        EXPECT_EQ(boxes.shown.size(), 1);
        if (boxes.shown.isEmpty())
            return {};
        const MsgBox::Message message = boxes.shown.takeLast();
        boxes.shown.clear();
        EXPECT_EQ(message.buttons, MsgButtons::Ok);
        const QString icon = message.icon == MsgIcon::Information   ? "information"
                             : message.icon == MsgIcon::Exclamation ? "exclamation"
                                                                    : "another";
        return icon + "|" + message.title + "|" + message.text;
    }

    /// The SQL text that the last search left.
    QString sql() { return QString::fromStdString(Data1().recordSource()); }

    /// A click of the left button on a line that is in view.
    void clickLine(int place) { QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, pointOf(place)); }
    QPoint pointOf(int place) { return list().visualRect(list().model()->index(place, 0)).center(); }
};

inline const QString noMatches = "information|Search Results:|No matching verses.";
inline const QString aborted = " -- Query aborted.";
inline const QString failedTitle = "exclamation|Unpredictable Error|";

inline QString found(int count)
{
    return QString("information|Search Results:|%1 verse(s) found.").arg(count);
}
