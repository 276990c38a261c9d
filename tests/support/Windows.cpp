#include "support/Windows.h"

#include "support/ActiveWindow.h"
#include "support/OnceModal.h"
#include "support/Session.h"
#include <QFile>
#include <QKeySequence>

namespace {

QList<WindowRow> readTable()
{
    QFile file(KESTREL_SOURCE_DIR "/tests/windows.tsv");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("there is no tests/windows.tsv");
    QList<WindowRow> rows;
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList columns = line.split('\t');
        if (!line.startsWith('#'))
            rows << WindowRow{columns.at(0), columns.at(1), columns.at(2).split(' '), columns.at(3)};
    }
    return rows;
}

QWidget* find(const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible())
            return window;
        if (auto* child = window->findChild<QWidget*>(name); child && child->isVisible())
            return child;
    }
    return nullptr;
}

/// Presses the keys from this one on. Where one opens a modal window, the rest is pressed in that, before the
/// key comes back.
bool pressFrom(const WindowRow& row, qsizetype key, const std::function<void(QWidget&)>& use)
{
    if (key == row.keys.size()) {
        Session::settle();
        QWidget* window = find(row.name);
        if (window) {
            makeActive(window->window());
            use(*window);
        }
        return window;
    }
    bool found = false;
    bool wasModal = false;
    const auto modal = onceModal([&](QWidget& window) {
        wasModal = true;
        makeActive(&window);
        found = pressFrom(row, key + 1, use);
        makeActive(&window);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    const QKeyCombination combination = QKeySequence::fromString(row.keys.at(key))[0];
    QTest::keyClick(&keyReceiver(), combination.key(), combination.keyboardModifiers());
    Session::settle();
    return wasModal ? found : pressFrom(row, key + 1, use);
}

} // namespace

const QList<WindowRow>& windowTable()
{
    static const QList<WindowRow> rows = readTable();
    return rows;
}

QWidget& keyReceiver()
{
    QWidget* popup = QApplication::activePopupWidget();
    for (QWidget* receiver : {popup ? popup->focusWidget() : nullptr, popup, QApplication::focusWidget(),
                              QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (receiver)
            return *receiver;
    return *find("MDIParent");
}

QStringList windowsOfKind(const QString& kind)
{
    QStringList names;
    for (const WindowRow& row : windowTable())
        if (row.kind == kind)
            names << row.name;
    return names;
}

bool withWindow(const WindowRow& row, const std::function<void(QWidget&)>& use)
{
    return pressFrom(row, 0, use);
}

void PrintTo(const WindowRow& row, std::ostream* out)
{
    *out << row.name.toStdString();
}
