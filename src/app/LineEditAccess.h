#pragma once

#include <QAccessibleInterface>
#include <QString>

/// What text fields tell assistive programs, and let them write. Qt's own interface would write behind a
/// modal window too. For QAccessible::installFactory(): an interface for a QLineEdit, else nullptr.
QAccessibleInterface* lineEditAccess(const QString& className, QObject* object);
