// What is the same on every system, because Qt does it. The rest stands in a file for each system.
#include "desktop/Platform.h"

#include "desktop/InstanceName.h"
#include <memory>
#include <QApplication>
#include <QClipboard>

namespace {

Platform* replacement = nullptr;
std::unique_ptr<InstanceName> heldName;

} // namespace

bool Platform::previousInstance()
{
    auto name = std::make_unique<InstanceName>(InstanceName::ofThisProgram());
    if (!name->take())
        return true;
    heldName = std::move(name);
    return false;
}

void Platform::endInstance()
{
    heldName.reset();
}

void Platform::beep()
{
    QApplication::beep();
}

// QClipboard reports no failure, but whoever could not write the clipboard does not own it afterwards.
bool Platform::setClipboard(const QString& text)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.clear();
    clipboard.setText(text);
    return clipboard.ownsClipboard();
}

bool Platform::setClipboard(const QImage& picture)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.clear();
    clipboard.setImage(picture);
    return clipboard.ownsClipboard();
}

Platform& Platform::current()
{
    static Platform services;
    return replacement ? *replacement : services;
}

void Platform::replace(Platform* services)
{
    replacement = services;
}
