#include "widgets/Layout.h"

#include "widgets/Twips.h"

void layOut(std::initializer_list<ControlLayout> controls)
{
    QWidget* before = nullptr;
    for (const auto& [control, name, accessibleName, twips] : controls) {
        control->setObjectName(name);
        if (!accessibleName.isEmpty())
            control->setAccessibleName(accessibleName);
        place(*control, twips.x(), twips.y(), twips.width(), twips.height());
        if (control->focusPolicy() == Qt::NoFocus)
            continue;
        if (before)
            QWidget::setTabOrder(before, control);
        before = control;
    }
}
