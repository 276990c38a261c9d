#include "desktop/Platform.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace {

// An abstract socket lives in no folder, is taken by one process at a time in one step, and is free again the
// moment its owner ends, however it ends. Its name holds the user and the executable.
int instanceHandle = -1;

bool takeInstanceName(const QByteArray& name)
{
    const int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (handle < 0)
        return true;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + 1, name.constData(), static_cast<std::size_t>(name.size()));
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(name.size()));
    if (bind(handle, reinterpret_cast<const sockaddr*>(&address), length) == 0) {
        instanceHandle = handle;
        return true;
    }
    const bool taken = errno == EADDRINUSE;
    close(handle);
    return !taken;
}

Platform* replacement = nullptr;

} // namespace

bool Platform::previousInstance()
{
    const QString executable = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    const QByteArray digest =
        QCryptographicHash::hash(executable.toUtf8(), QCryptographicHash::Sha256).toHex().left(32);
    return !takeInstanceName("kestrel-reader-" + QByteArray::number(getuid()) + "-" + digest);
}

void Platform::endInstance()
{
    if (instanceHandle >= 0)
        close(std::exchange(instanceHandle, -1));
}

bool Platform::startProgram(const QString& program)
{
    // The program must hold nothing of ours open: neither files inherited from whoever started us nor our
    // output.
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    QProcess process;
    process.setProgram(program);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

void Platform::openLink(const QUrl& link)
{
    QDesktopServices::openUrl(link);
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
