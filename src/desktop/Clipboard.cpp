#include "desktop/Clipboard.h"

#include "desktop/ErrorText.h"
#include "desktop/MsgBox.h"
#include "desktop/Platform.h"

namespace {

void report(bool copied)
{
    if (!copied)
        MsgBox::show(errorText(521, "Can't open Clipboard"), MsgIcon::Exclamation, MsgButtons::Ok,
                     "Clipboard Error");
}

} // namespace

void copyOrReport(const QString& text)
{
    report(Platform::current().setClipboard(text));
}

void copyOrReport(const QImage& picture)
{
    report(Platform::current().setClipboard(picture));
}
