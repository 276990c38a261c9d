#pragma once

#include <QComboBox>

/// The box for a reference. Its list opens with the book of the typed reference marked, and changes nothing
/// in the text by that.
class ReferenceBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override;
};

/// The place in the book catalog, from 0, of the book that a typed reference means: the one whose
/// abbreviation stands before its first ":", in any letter case, or else the first that begins with it, those
/// of the New Testament before the others as in a lookup. -1 when there is none.
int bookOfReference(const QString& reference);
