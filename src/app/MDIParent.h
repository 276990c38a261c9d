#pragma once

#include "maps/ChildMapDsp.h"
#include "maps/ChildMapSel.h"
#include "read/ChapRead.h"
#include "read/ChildRead.h"
#include "search/frmAdvSearch.h"
#include "select/ChildSelect.h"
#include "widgets/Shell.h"
#include <memory>
#include <QMainWindow>
#include <QPointer>

class Form;
class Help;
class KeyPreview;
class Program;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class SoftBttn;

/// The main frame: toolbar, menus, the child windows in its area, and the commands they share. It hands out
/// the single instance of every child window.
class MDIParent : public QMainWindow, public Shell
{
    Q_OBJECT

public:
    explicit MDIParent(Program& program);
    ~MDIParent() override;

    /// Shows the frame and runs MDIForm_Load.
    void load();

    void openSelection() override;
    void openSearch() override;
    void openStudyAids() override;
    void launchNotepad() override;
    void about() override;
    void exit() override;
    void arrangeIcons() override;
    ChildRead& readingWindow() override;
    ChapRead& chapterWindow() override;
    ChildMapDsp& mapWindow() override;
    QList<Form*> windows() const override;
    ProgramFlags& flags() override;
    QString basePath() const override;

    QMdiArea* area() const { return m_area; }
    Help& help() { return *m_help; }

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void MDIForm_Load();
    void MDIForm_Activate();
    void MDIForm_Unload();

    void makeToolbar();
    void giveFocusBack(QWidget* focused);
    void takeFocusFromMenuBar();
    template <class Window, class... Arguments>
    Window& single(QPointer<Window>& window, Arguments&... arguments);
    void childActivated(QMdiSubWindow* window);
    void showMenus(const QList<QMenu*>& menus);

    QWidget* picToolbar;
    SoftBttn* cmdSelect;
    SoftBttn* cmdNote;
    SoftBttn* cmdSearch;
    SoftBttn* cmdTools;
    SoftBttn* cmdAbout;

    Program& m_program;
    QMdiArea* m_area;
    std::unique_ptr<Help> m_help;
    std::unique_ptr<KeyPreview> m_keys;
    QList<QMenu*> m_menus;
    QPointer<Form> m_activeForm;
    QPointer<ChildSelect> m_select;
    QPointer<ChildRead> m_reading;
    QPointer<ChapRead> m_chapter;
    QPointer<frmAdvSearch> m_search;
    SearchMemory m_searchMemory;
    QPointer<ChildMapSel> m_mapSel;
    QPointer<ChildMapDsp> m_mapDsp;
};
