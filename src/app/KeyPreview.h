#pragma once

#include <QObject>

class Help;

/// An event filter of the whole program. Each key passes here before the control with the focus sees it: the
/// child window of that control previews it, and F1 opens the help wherever it is pressed. A child window is
/// also told when the mouse gives the focus to one of its controls. The only other filter of the QApplication
/// is EscCloses, of windows that are not child windows; Form and KeptSelection filter single objects.
class KeyPreview : public QObject
{
    Q_OBJECT

public:
    /// help: must outlive this.
    explicit KeyPreview(Help& help);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Help& m_help;
};
