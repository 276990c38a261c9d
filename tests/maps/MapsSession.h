#pragma once

#include "maps/CaptionFrame.h"
#include "maps/ChildMapDsp.h"
#include "maps/ChildMapSel.h"
#include "maps/MapPicture.h"
#include "maps/TabStrip.h"
#include "maps/TestDatabase.h"
#include "support/Session.h"
#include "widgets/DataControl.h"
#include "widgets/ListBox.h"
#include "widgets/ListLines.h"
#include "widgets/SoftBttn.h"
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QToolButton>

/// The running program over a database of the real topics and a few small pictures.
class MapsSession : public Session
{
protected:
    void SetUp() override
    {
        static const QTemporaryDir folder;
        static const bool made = (makeTestDatabase(folder.filePath("KESTRPT.DAT")), true);
        ASSERT_TRUE(made);
        start(folder.path());
    }

    void start(const QString& directory)
    {
        program = std::make_unique<Program>(directory);
        program->showFrame();
        frame().resize(1024, 740);
        makeActive(&frame());
        QTest::qWait(0);
    }

    // The controls of the study aids, and of the map window.
    TabStrip& TabStrip1() { return control<TabStrip>(get<ChildMapSel>(), "TabStrip1"); }
    CaptionFrame& Frame1() { return control<CaptionFrame>(get<ChildMapSel>(), "Frame1"); }
    CaptionFrame& Frame2() { return control<CaptionFrame>(get<ChildMapSel>(), "Frame2"); }
    QComboBox& Combo2() { return control<QComboBox>(get<ChildMapSel>(), "Combo2"); }
    ListBox& List1() { return control<ListBox>(get<ChildMapSel>(), "List1"); }
    CaptionFrame& Frame3() { return control<CaptionFrame>(get<ChildMapSel>(), "Frame3"); }
    ListBox& lstMaps() { return control<ListBox>(get<ChildMapSel>(), "lstMaps"); }
    CaptionFrame& Frame4() { return control<CaptionFrame>(get<ChildMapSel>(), "Frame4"); }
    QPushButton& cmdBibWeb() { return control<QPushButton>(get<ChildMapSel>(), "cmdBibWeb"); }
    DataControl& Data1() { return control<DataControl>(get<ChildMapSel>(), "Data1"); }
    QToolButton& webPicture() { return control<QToolButton>(get<ChildMapSel>(), "Image1"); }
    QRadioButton& optEvents(int index)
    {
        return *get<ChildMapSel>().findChildren<QRadioButton*>("optEvents").at(index);
    }
    DataControl& DataMap() { return control<DataControl>(get<ChildMapDsp>(), "DataMap"); }
    MapPicture& Image1() { return control<MapPicture>(get<ChildMapDsp>(), "Image1"); }
    QLabel& lblMapDesc() { return control<QLabel>(get<ChildMapDsp>(), "lblMapDesc"); }
    SoftBttn& cmdZoom() { return control<SoftBttn>(get<ChildMapDsp>(), "cmdZoom"); }
    SoftBttn& cmdPicCopy() { return control<SoftBttn>(get<ChildMapDsp>(), "cmdPicCopy"); }

    ChildMapSel& openStudyAids()
    {
        click(control<SoftBttn>(frame(), "cmdTools"));
        return get<ChildMapSel>();
    }

    void choosePage(int page)
    {
        QTest::mouseClick(&TabStrip1(), Qt::LeftButton, {}, TabStrip1().tabRect(page).center());
    }

    static QPoint centerOf(const ListBox& list, int row)
    {
        return list.visualRect(list.model()->index(row, 0)).center();
    }

    static void clickEntry(ListBox& list, int row)
    {
        list.scrollTo(list.model()->index(row, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centerOf(list, row));
    }

    static void setEntries(ListBox& list, const QStringList& entries)
    {
        ListLines lines;
        for (const QString& entry : entries)
            lines.add(entry.toStdString());
        list.setLines(std::move(lines));
    }

    ChildMapDsp& openMap(int number)
    {
        openStudyAids();
        choosePage(1);
        clickEntry(lstMaps(), number - 1);
        return get<ChildMapDsp>();
    }

    void closeWindow(QWidget& form)
    {
        outer(form).close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// A drag of the mouse with its left button; one step, so that nothing depends on the time it takes.
    static void drag(QWidget* widget, QPoint from, QPoint to)
    {
        moveTo(widget, from, Qt::NoButton);
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        moveTo(widget, to, Qt::LeftButton);
        QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
    }

    static void moveTo(QWidget* widget, QPoint place, Qt::MouseButtons buttons)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(place), widget->mapToGlobal(QPointF(place)), Qt::NoButton,
                         buttons, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
    }
};
