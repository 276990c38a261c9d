#pragma once

#include "app/TextWindow.h"

/// The window with the appeal for a donation.
class frmDN : public TextWindow
{
    Q_OBJECT

public:
    explicit frmDN(QWidget* owner);
};
