#include "app/frmDN.h"

#include "app/AboutTexts.h"

frmDN::frmDN(QWidget* owner)
    : TextWindow("frmDN", "Your support is needed!", donationText(), owner)
{
}
