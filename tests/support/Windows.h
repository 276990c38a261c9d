#pragma once

#include <functional>
#include <QList>
#include <QStringList>

class QWidget;

/// A row of tests/windows.tsv: a window of the program and how a reader opens it.
struct WindowRow
{
    QString name; ///< its class, its objectName and its page in the help
    QString kind; ///< frame, child, modal or beside
    QStringList keys;
    QString caption; ///< what its caption begins with
};

const QList<WindowRow>& windowTable();
/// The names of the rows of one kind.
QStringList windowsOfKind(const QString& kind);

/// Opens a window by its keys from a frame that is just shown, runs `use` on it while it is open and active,
/// and closes it again if it is modal. False when the keys led to no such window.
bool withWindow(const WindowRow& row, const std::function<void(QWidget&)>& use);

/// Where a key of a real keyboard would go.
QWidget& keyReceiver();

void PrintTo(const WindowRow& row, std::ostream* out);
