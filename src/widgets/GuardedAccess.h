#pragma once

#include "widgets/Modality.h"
#include <QAccessibleWidget>

/// What a widget tells assistive programs, and lets them do unless a modal window stands before it. Qt's own
/// interfaces ask for no modal window.
class GuardedAccess : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    void doAction(const QString& name) override
    {
        if (!isBehind())
            QAccessibleWidget::doAction(name);
    }

protected:
    bool isBehind() const { return isBehindModalWindow(*widget()); }
};
