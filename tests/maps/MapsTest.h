#pragma once

#include "maps/ChildMapDsp.h"
#include "maps/ChildMapSel.h"
#include "maps/MapPicture.h"
#include "maps/TabStrip.h"
#include "maps/TestDatabase.h"
#include "support/Session.h"
#include "widgets/ListBox.h"
#include "widgets/ListLines.h"
#include "widgets/SoftBttn.h"
#include <QTemporaryDir>

/// The running program over a database of the real topics and a few small pictures.
class MapsTest : public Session
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
        QApplication::setActiveWindow(&frame());
        QTest::qWait(0);
    }

    ChildMapSel& openStudyAids()
    {
        click(*frame().cmdTools);
        return get<ChildMapSel>();
    }

    static void choosePage(ChildMapSel& aids, int page)
    {
        QTest::mouseClick(aids.TabStrip1, Qt::LeftButton, {}, aids.TabStrip1->tabRect(page).center());
    }

    static QPoint centerOf(const ListBox& list, int row)
    {
        return list.visualRect(list.model()->index(row, 0)).center();
    }

    static void clickEntry(ListBox* list, int row)
    {
        list->scrollTo(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centerOf(*list, row));
    }

    static void setEntries(ListBox* list, const QStringList& entries)
    {
        ListLines lines;
        for (const QString& entry : entries)
            lines.add(entry.toStdString());
        list->setLines(std::move(lines));
    }

    ChildMapDsp& openMap(int number)
    {
        ChildMapSel& aids = openStudyAids();
        choosePage(aids, 1);
        clickEntry(aids.lstMaps, number - 1);
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
