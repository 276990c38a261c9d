#pragma once

#include "read/VerseKeyLabel.h"
#include "read/VerseLabel.h"
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <string>

namespace cut_texts {

inline QSize textSize(const QWidget& control, const QString& text)
{
    return control.fontMetrics().size(Qt::TextShowMnemonic, text);
}

inline bool holds(QSize room, QSize text)
{
    return room.width() >= text.width() && room.height() >= text.height();
}

/// A label breaks its lines, if it may, at its width.
inline bool hasRoom(const QLabel& label)
{
    const QRect room = label.contentsRect();
    if (qobject_cast<const VerseLabel*>(&label)) // scrolls
        return true;
    if (const auto* key = qobject_cast<const VerseKeyLabel*>(&label))
        return holds(key->visiblePart().size(), QFontMetrics(key->drawnFont()).size(0, key->drawnKey()));
    if (!label.wordWrap())
        return holds(room.size(), textSize(label, label.text()));
    const QRect unbounded(0, 0, room.width(), QWIDGETSIZE_MAX);
    return holds(room.size(),
                 label.fontMetrics().boundingRect(unbounded, Qt::TextWordWrap, label.text()).size());
}

inline bool hasRoom(const QAbstractButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const QStyle& style = *button.style();
    if (qobject_cast<const QCheckBox*>(&button))
        return holds(style.subElementRect(QStyle::SE_CheckBoxContents, &option, &button).size(),
                     textSize(button, button.text()));
    if (qobject_cast<const QRadioButton*>(&button))
        return holds(style.subElementRect(QStyle::SE_RadioButtonContents, &option, &button).size(),
                     textSize(button, button.text()));
    return holds(button.size(), button.sizeHint());
}

/// Any entry may be chosen. Without a reader's typing the field keeps a dot free on either side.
inline bool hasRoom(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QRect field =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    const int sides = 2 * (box.isEditable() ? 2 : 1);
    for (int i = 0; i < box.count(); ++i)
        if (field.height() < box.fontMetrics().height() ||
            field.width() < box.fontMetrics().horizontalAdvance(box.itemText(i)) + sides)
            return false;
    return true;
}

inline bool hasRoom(const QTabBar& tabs)
{
    for (int i = 0; i < tabs.count(); ++i)
        if (!tabs.rect().contains(tabs.tabRect(i)) ||
            !holds(tabs.tabRect(i).size(), textSize(tabs, tabs.tabText(i))))
            return false;
    return true;
}

/// Whether a control shows a text, and if so, whether all of it.
inline bool isCut(const QWidget& control)
{
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return !label->text().isEmpty() && !hasRoom(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return !button->text().isEmpty() && !hasRoom(*button);
    if (const auto* box = qobject_cast<const QComboBox*>(&control))
        return !hasRoom(*box);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control))
        return !hasRoom(*tabs);
    if (const auto* group = qobject_cast<const QGroupBox*>(&control))
        return !holds(group->size(), group->minimumSizeHint());
    return false;
}

/// Another control that stands, at least in part, where this one shows its text.
inline const QWidget* coverOf(const QWidget& control)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    if (label ? label->text().isEmpty() : !button || button->text().isEmpty())
        return nullptr;
    for (const QWidget* other : control.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (other != &control && other->isVisible() && !other->isWindow() &&
            other->geometry().intersects(control.geometry()))
            return other;
    return nullptr;
}

} // namespace cut_texts

/// What is cut in a window, a line each; empty when nothing is: visible controls whose texts have less room
/// than they need, that reach out of their surroundings, or whose texts another control covers.
inline std::string cutTexts(const QWidget& window)
{
    QStringList found;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const QWidget* parent = control->parentWidget();
        if (!control->isVisibleTo(&window) || control->isWindow())
            continue;
        const bool mayReachOut = qobject_cast<const VerseKeyLabel*>(control); // draws what can be seen
        if (!mayReachOut && !parent->rect().contains(control->geometry()))
            found << control->objectName() + " reaches out of " + parent->objectName();
        if (cut_texts::isCut(*control))
            found << control->objectName() + " cuts its text";
        if (const QWidget* cover = cut_texts::coverOf(*control))
            found << cover->objectName() + " covers " + control->objectName();
    }
    return found.join('\n').toStdString();
}
