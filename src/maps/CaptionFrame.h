#pragma once

#include <QGroupBox>

/// A frame whose access key always goes to its first control (the chosen option among options), not back to
/// the one that had the focus last.
class CaptionFrame : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

protected:
    bool event(QEvent* event) override;
};
