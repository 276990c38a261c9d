#pragma once

#include "app/LetterWindow.h"

/// The window with the appeal for a donation.
class frmDN : public LetterWindow
{
    Q_OBJECT

public:
    explicit frmDN(QWidget* owner);
};
