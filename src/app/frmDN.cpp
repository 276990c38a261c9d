#include "app/frmDN.h"

#include "app/AboutTexts.h"

frmDN::frmDN(QWidget* owner)
    : LetterWindow("frmDN", "Your support is needed!", donationText(), owner)
{
}
