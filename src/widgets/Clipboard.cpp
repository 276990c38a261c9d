#include "widgets/Clipboard.h"

#include "widgets/ErrorText.h"
#include "widgets/MsgBox.h"
#include "widgets/Platform.h"

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
