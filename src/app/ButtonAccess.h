#pragma once

#include <QAccessibleInterface>
#include <QString>

/// What the windows' own buttons, check boxes and option buttons tell assistive programs, and let them press.
/// Qt's own would do what is pressed behind a modal window too, and has no links.
/// For QAccessible::installFactory(): an interface for an object of one of these classes, else nullptr.
QAccessibleInterface* buttonAccess(const QString& className, QObject* object);
