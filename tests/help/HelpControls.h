#pragma once

#include "help/HelpBrowser.h"
#include "help/HelpWindow.h"
#include "support/Controls.h"
#include <QAction>
#include <QLineEdit>
#include <QListWidget>

/// The controls of a help window, and the commands of its toolbar by their names.
inline HelpBrowser& browser(const HelpWindow& window)
{
    return control<HelpBrowser>(window, "browser");
}

inline QListWidget& contents(const HelpWindow& window)
{
    return control<QListWidget>(window, "contents");
}

inline QLineEdit& searchText(const HelpWindow& window)
{
    return control<QLineEdit>(window, "searchText");
}

inline QAction& action(const HelpWindow& window, const QString& name)
{
    return control<QAction>(window, name);
}
