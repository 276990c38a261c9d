// What Platform asks of Windows.
#include "desktop/Platform.h"

#include "desktop/BasePath.h"
#include <QCoreApplication>
#include <QProcess>
#include <qt_windows.h>
#include <shellapi.h>

// Nothing of ours is inherited.
bool Platform::startProgram(const QString& program)
{
    return QProcess::startDetached(program, {});
}

void Platform::openLink(const QUrl& link)
{
    const std::wstring address = QString::fromLatin1(link.toEncoded()).toStdWString();
    const std::wstring folder = withSeparator(QCoreApplication::applicationDirPath()).toStdWString();
    ShellExecuteW(nullptr, L"open", address.c_str(), nullptr, folder.c_str(), SW_SHOWNORMAL);
}
