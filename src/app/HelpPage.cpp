#include "app/HelpPage.h"

#include "app/MDIParent.h"
#include "widgets/Form.h"
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>

QString helpPageOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (const auto* frame = qobject_cast<const MDIParent*>(widget)) {
            const QMdiSubWindow* active = frame->area()->currentSubWindow();
            return active && active->widget() ? active->widget()->objectName() : frame->objectName();
        }
        if (qobject_cast<const QMessageBox*>(widget))
            continue;
        if (qobject_cast<const Form*>(widget) || widget->isWindow())
            return widget->objectName();
    }
    return "MDIParent";
}
