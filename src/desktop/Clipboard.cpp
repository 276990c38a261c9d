#include "desktop/Clipboard.h"

#include "desktop/ErrorText.h"
#include "desktop/MsgBox.h"
#include "desktop/Platform.h"

namespace {

bool reported(bool copied)
{
    if (!copied)
        MsgBox::show(errorText(521, "Can't open Clipboard"), MsgIcon::Exclamation, MsgButtons::Ok,
                     clipboardErrorTitle);
    return copied;
}

} // namespace

bool copyOrReport(const QString& text)
{
    return reported(Platform::current().setClipboard(text));
}

bool copyOrReport(const QImage& picture)
{
    return reported(Platform::current().setClipboard(picture));
}
