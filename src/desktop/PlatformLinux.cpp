// What Platform asks of Linux and its desktops.
#include "desktop/Platform.h"

#include "desktop/BasePath.h"
#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <unistd.h>

namespace {

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
