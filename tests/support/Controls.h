#pragma once

#include <QObject>
#include <QString>
#include <stdexcept>

/// The control of a window (or its data source, timer or menu item) that has this name in the code. A test
/// that asks for one that is not there fails, and its message says which.
template <class Control>
Control& control(const QObject& window, const QString& name)
{
    if (auto* found = window.findChild<Control*>(name))
        return *found;
    const QObject* other = window.findChild<QObject*>(name);
    const QString wanted = QString("%1 has no %2 named %3")
                               .arg(window.objectName(), Control::staticMetaObject.className(), name);
    throw std::runtime_error(
        (other ? wanted + ", which is a " + other->metaObject()->className() : wanted).toStdString());
}
