// What Platform asks of Linux and its desktops.
#include "desktop/Platform.h"

#include "desktop/BasePath.h"
#include "desktop/InstanceName.h"
#include <memory>
#include <QAccessible>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QWidget>
#include <unistd.h>

namespace {

std::unique_ptr<InstanceName> heldName;

/// Starts a program by its path in a session of its own, in a folder (or in our own, when that is empty). It
/// holds nothing of ours open: neither files inherited from whoever started us nor our output.
bool startDetached(const QString& program, const QStringList& arguments, const QString& folder)
{
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setWorkingDirectory(folder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace

bool Platform::previousInstance()
{
    const QString executable = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    const QByteArray digest =
        QCryptographicHash::hash(executable.toUtf8(), QCryptographicHash::Sha256).toHex().left(32);
    auto name =
        std::make_unique<InstanceName>("kestrel-reader-" + QByteArray::number(getuid()) + "-" + digest);
    if (!name->take())
        return true;
    heldName = std::move(name);
    return false;
}

void Platform::endInstance()
{
    heldName.reset();
}

bool Platform::startProgram(const QString& program)
{
    return startDetached(program, {}, {});
}

// Not QDesktopServices, which takes the path of xdg-open for a command line: from a folder with a blank in
// its name, Qt 6.4 starts another program.
void Platform::openLink(const QUrl& link)
{
    const QString opener = QStandardPaths::findExecutable("xdg-open");
    if (!opener.isEmpty())
        startDetached(opener, {QString::fromLatin1(link.toEncoded())},
                      withSeparator(QCoreApplication::applicationDirPath()));
}

// Qt has no announcement before 6.8, so AT-SPI's signal is sent over the connection that Qt holds to its bus.
void Platform::announce(QWidget& about, const QString& text)
{
    QAccessibleInterface* spoken =
        QAccessible::isActive() ? QAccessible::queryAccessibleInterface(&about) : nullptr;
    QDBusConnection bus("a11y");
    if (!spoken || !bus.isConnected())
        return;
    const QString path = "/org/a11y/atspi/accessible/" + QString::number(QAccessible::uniqueId(spoken));
    QDBusMessage signal = QDBusMessage::createSignal(path, "org.a11y.atspi.Event.Object", "Announcement");
    signal << QString() << 0 << 0 << QVariant::fromValue(QDBusVariant(text)) << QVariantMap();
    bus.send(signal);
}
