#include "app/ScrollBarAccess.h"

#include "widgets/GuardedAccess.h"
#include <QScrollBar>

namespace {

class ScrollBarAccess : public GuardedAccess, public QAccessibleValueInterface
{
public:
    explicit ScrollBarAccess(QScrollBar& bar)
        : GuardedAccess(&bar, QAccessible::ScrollBar)
        , m_bar(bar)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return GuardedAccess::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? QString::number(m_bar.value()) : GuardedAccess::text(kind);
    }

    QVariant currentValue() const override { return m_bar.value(); }
    void setCurrentValue(const QVariant& value) override
    {
        if (!isBehind())
            m_bar.setValue(value.toInt());
    }
    QVariant minimumValue() const override { return m_bar.minimum(); }
    QVariant maximumValue() const override { return m_bar.maximum(); }
    QVariant minimumStepSize() const override { return m_bar.singleStep(); }

private:
    QScrollBar& m_bar;
};

} // namespace

QAccessibleInterface* scrollBarAccess(const QString& className, QObject* object)
{
    return className == "QScrollBar" ? new ScrollBarAccess(*static_cast<QScrollBar*>(object)) : nullptr;
}
