#pragma once

#include <initializer_list>
#include <QRect>
#include <QString>

class QWidget;

/// One row of a window's layout: a control, its name in the code, what a screen reader calls it, and its
/// place in its parent.
struct ControlLayout
{
    QWidget* control;
    QString name;
    QString accessibleName; ///< empty where the control speaks by its own text or tooltip
    QRect twips;            ///< left, top, width, height
};

/// Names and places the controls of a window. Their order is the order of the Tab key.
void layOut(std::initializer_list<ControlLayout> controls);
