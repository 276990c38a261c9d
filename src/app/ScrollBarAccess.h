#pragma once

#include <QAccessibleInterface>
#include <QString>

/// What scroll bars tell assistive programs, and let them set. Qt's own interface would scroll behind a modal
/// window too. For QAccessible::installFactory(): an interface for a QScrollBar, else nullptr.
QAccessibleInterface* scrollBarAccess(const QString& className, QObject* object);
