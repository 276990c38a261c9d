#include "app/ButtonAccess.h"

#include "app/LinkLabel.h"
#include "widgets/Modality.h"
#include "widgets/SoftBttn.h"
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace {

QAccessible::Role roleOf(const QAbstractButton& button)
{
    if (qobject_cast<const QCheckBox*>(&button))
        return QAccessible::CheckBox;
    if (qobject_cast<const QRadioButton*>(&button))
        return QAccessible::RadioButton;
    if (qobject_cast<const LinkLabel*>(&button))
        return button.text().isEmpty() ? QAccessible::Graphic : QAccessible::Link;
    return QAccessible::Button;
}

QString withoutMnemonic(QString text)
{
    return text.replace("&&", QChar(0)).remove('&').replace(QChar(0), '&');
}

class ButtonAccess : public QAccessibleWidget
{
public:
    explicit ButtonAccess(QAbstractButton& button)
        : QAccessibleWidget(&button, roleOf(button))
        , m_button(button)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        // Its own text goes before the title of a group box around it, which QAccessibleWidget would give.
        if (kind == QAccessible::Name && m_button.accessibleName().isEmpty() && !m_button.text().isEmpty())
            return withoutMnemonic(m_button.text());
        return kind == QAccessible::Description ? description() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = m_button.isCheckable();
        state.checked = m_button.isChecked();
        state.pressed = m_button.isDown();
        const auto* push = qobject_cast<const QPushButton*>(&m_button);
        state.defaultButton = push && push->isDefault();
        return state;
    }

    QStringList actionNames() const override
    {
        const QStringList own = {m_button.isCheckable() ? toggleAction() : pressAction()};
        return m_button.isEnabled() ? own + QAccessibleWidget::actionNames() : QStringList();
    }

    QStringList keyBindingsForAction(const QString& name) const override
    {
        const bool presses = name == pressAction() || name == toggleAction();
        return presses && !m_button.shortcut().isEmpty() ? QStringList{m_button.shortcut().toString()}
                                                         : QAccessibleWidget::keyBindingsForAction(name);
    }

    // In a moment, because the assistive program waits for the answer to its call, and what a button does may
    // take as long as a window is open. By then another press may have opened one.
    void doAction(const QString& name) override
    {
        const bool focuses = name == setFocusAction();
        QMetaObject::invokeMethod(
            &m_button,
            [button = &m_button, focuses] {
                if (!isBehindModalWindow(*button))
                    focuses ? button->setFocus() : button->click();
            },
            Qt::QueuedConnection);
    }

private:
    /// The tooltip, where it says more than the name does: said twice, that takes the listener's time. A
    /// link's says where it leads, as its name does.
    QString description() const
    {
        const QString own = QAccessibleWidget::text(QAccessible::Description);
        const QString name = text(QAccessible::Name);
        if (qobject_cast<const LinkLabel*>(&m_button))
            return {};
        return own.startsWith(name) ? own.mid(name.size()).trimmed() : own;
    }

    QAbstractButton& m_button;
};

} // namespace

QAccessibleInterface* buttonAccess(const QString& className, QObject* object)
{
    static const QStringList classes = {"SoftBttn",     "LinkLabel",   "QCheckBox",
                                        "QRadioButton", "QPushButton", "QToolButton"};
    auto* button = qobject_cast<QAbstractButton*>(object);
    return button && classes.contains(className) ? new ButtonAccess(*button) : nullptr;
}
