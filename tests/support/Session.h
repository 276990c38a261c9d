#pragma once

#include "app/MDIParent.h"
#include "app/Program.h"
#include "support/ActiveWindow.h"
#include "support/Controls.h"
#include "support/Recorders.h"
#include <gtest/gtest.h>
#include <memory>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

/// The running program under test: the real frame and its real windows over the assembled database, driven by
/// events. Message boxes are recorded and answered, services recorded.
class Session : public testing::Test
{
protected:
    void SetUp() override
    {
        // A program that ended in a test before has told Qt to leave all loops, until exec() starts one anew.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
        program = std::make_unique<Program>(KESTREL_INSTALL_DIR);
        program->showFrame();
        makeActive(&frame());
        QTest::qWait(0);
    }

    void TearDown() override
    {
        program.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the default pointer is not back";
    }

    MDIParent& frame() { return *program->frame(); }

    /// The open instance of a window class; nullptr when there is none.
    template <class Window>
    Window* open()
    {
        Window* found = nullptr;
        for (QMdiSubWindow* window : frame().area()->subWindowList())
            if (auto* form = qobject_cast<Window*>(window->widget())) {
                EXPECT_EQ(found, nullptr) << "a second instance of a window";
                found = form;
            }
        return found;
    }

    template <class Window>
    Window& get()
    {
        Window* window = open<Window>();
        if (!window)
            throw std::runtime_error(std::string(Window::staticMetaObject.className()) + " is not open");
        return *window;
    }

    /// The window of the area that is active.
    QWidget* activeForm()
    {
        const QMdiSubWindow* window = frame().area()->currentSubWindow();
        return window ? window->widget() : nullptr;
    }

    static QMdiSubWindow& outer(QWidget& form) { return *qobject_cast<QMdiSubWindow*>(form.parentWidget()); }

    /// Captions of the menus on the bar now.
    QStringList menuBarCaptions()
    {
        QStringList captions;
        for (const QAction* menu : frame().menuBar()->actions())
            captions << menu->text();
        return captions;
    }

    /// What a menu shows: its items as "name|caption|shortcut".
    static QStringList itemsOf(const QMenu& menu)
    {
        QStringList items;
        for (const QAction* item : menu.actions())
            items << item->objectName() + "|" + (item->isSeparator() ? "-" : item->text()) + "|" +
                         item->shortcut().toString();
        return items;
    }

    /// An item of the menu bar as it is now, by its name.
    QAction* menuItem(const QString& name)
    {
        for (const QAction* entry : frame().menuBar()->actions())
            for (QAction* item : entry->menu()->actions())
                if (item->objectName() == name)
                    return item;
        return nullptr;
    }

    void choose(const QString& name)
    {
        QAction* item = menuItem(name);
        ASSERT_NE(item, nullptr) << name.toStdString() << " is on none of the menus "
                                 << menuBarCaptions().join(", ").toStdString();
        item->trigger();
    }

    /// A key press to whatever has the focus.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr) << "nothing has the focus";
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

public:
    /// Until nothing is left to be done now; one round may leave some of it on a slow machine.
    static void settle()
    {
        const QDeadlineTimer enough(5000);
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            if (enough.hasExpired())
                break;
    }

protected:
    /// One step of the wheel, towards the reader, over the middle of a control.
    static void turnWheel(QWidget& control, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QPointF place = control.rect().center();
        QWheelEvent step(place, control.mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton, modifiers,
                         Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&step); // such a one may give the focus
        qApp->notify(&control, &step);
    }

    /// Another program comes to the front, and this one again.
    void switchProgramsAndBack()
    {
        makeActive(nullptr);
        settle();
        makeActive(&frame());
        settle();
    }

    static void click(QWidget& control) { QTest::mouseClick(&control, Qt::LeftButton); }

    RecordedBoxes boxes;
    RecordedServices services;
    std::unique_ptr<Program> program;
};
