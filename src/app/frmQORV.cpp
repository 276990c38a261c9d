#include "app/frmQORV.h"

#include "app/AboutTexts.h"

frmQORV::frmQORV(QWidget* owner)
    : TextWindow("frmQORV", "QORV CD-ROM Offer", discOfferText(), owner)
{
}
