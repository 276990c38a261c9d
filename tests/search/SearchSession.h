#pragma once

#include "clip/AnimationPlayer.h"
#include "read/ChildRead.h"
#include "search/frmAdvSearch.h"
#include "support/Session.h"
#include "widgets/ListBox.h"
#include "widgets/SoftBttn.h"
#include <QCheckBox>
#include <QComboBox>
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
    ListBox& list() { return *window().List1; }

    /// Sets the inputs and clicks the button; the place of the range is that in `Combo2`.
    void search(const QString& text1, int range = 47, const QString& text2 = {}, int connective = 0,
                bool wholeWord = false)
    {
        window().Text1->setText(text1);
        window().Text2->setText(text2);
        window().Combo1->setCurrentIndex(connective);
        window().Combo2->setCurrentIndex(range);
        window().chkWholeWrd->setChecked(wholeWord);
        click(*window().cmdOK);
    }

    /// Sets the inputs anew after results were listed.
    void newSearch() { click(*window().cmdHideList); }

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
    QString sql() { return QString::fromStdString(window().Data1.recordSource()); }

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
