#pragma once

#include "app/TextWindow.h"

/// The window with the offer of the CD-ROM.
class frmQORV : public TextWindow
{
    Q_OBJECT

public:
    explicit frmQORV(QWidget* owner);
};
