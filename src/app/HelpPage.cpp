#include "app/HelpPage.h"

#include "app/MDIParent.h"
#include "widgets/Form.h"
#include <QMessageBox>

QString helpPageOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (const auto* frame = qobject_cast<const MDIParent*>(widget)) {
            const Form* active = Form::activeIn(*frame->area());
            return active ? active->objectName() : frame->objectName();
        }
        if (qobject_cast<const QMessageBox*>(widget) || widget->windowType() == Qt::Popup)
            continue; // belongs to the window that it stands over
        if (qobject_cast<const Form*>(widget) || widget->isWindow())
            return widget->objectName();
    }
    return "MDIParent";
}
