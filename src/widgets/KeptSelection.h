#pragma once

#include <QObject>
#include <QString>

class QLineEdit;

/// Gives a text field its selection back with the focus. QLineEdit drops it when the focus goes to a menu, or
/// to its window while the keyboard moves that; what is typed next must replace it all the same.
class KeptSelection : public QObject
{
    Q_OBJECT

public:
    /// focus: what has the focus while text is typed, the field itself or its combo box. It owns this object.
    KeptSelection(QWidget& focus, QLineEdit& field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit& m_field;
    QString m_text;
    int m_start = -1;
    int m_length = 0;
};
