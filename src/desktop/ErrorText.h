#pragma once

#include <QString>

/// How a caught run-time error is worded in a message box.
inline QString errorText(int number, const QString& description)
{
    return QString("Error %1: %2").arg(number).arg(description);
}
