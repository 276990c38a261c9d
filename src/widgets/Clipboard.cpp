#include "widgets/Clipboard.h"

#include "widgets/ErrorText.h"
#include "widgets/MsgBox.h"
#include <functional>
#include <QClipboard>
#include <QGuiApplication>

namespace {

// The toolkit reports no failure, but whoever could not write the clipboard does not own it afterwards.
void copy(const std::function<void(QClipboard&)>& put)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.clear();
    put(clipboard);
    if (!clipboard.ownsClipboard())
        throw ClipboardError();
}

void report(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const ClipboardError& error) {
        MsgBox::show(errorText(error.number(), error.what()), MsgIcon::Exclamation, MsgButtons::Ok,
                     "Clipboard Error");
    }
}

} // namespace

void copyText(const QString& text)
{
    copy([&](QClipboard& clipboard) { clipboard.setText(text); });
}

void copyPicture(const QImage& picture)
{
    copy([&](QClipboard& clipboard) { clipboard.setImage(picture); });
}

void copyTextOrReport(const QString& text)
{
    report([&] { copyText(text); });
}

void copyPictureOrReport(const QImage& picture)
{
    report([&] { copyPicture(picture); });
}
