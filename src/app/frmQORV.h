#pragma once

#include "app/LetterWindow.h"

/// The window with the offer of the CD-ROM.
class frmQORV : public LetterWindow
{
    Q_OBJECT

public:
    explicit frmQORV(QWidget* owner);
};
