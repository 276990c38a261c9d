#include "app/StartupChecks.h"

#include "desktop/BasePath.h"
#include "desktop/MsgBox.h"
#include "desktop/OpenFile.h"
#include "desktop/Platform.h"

bool isPresent(const QString& path)
{
    QFile file(path);
    return openForReading(file);
}

bool isUnmodified(const QString& path)
{
    const QFileInfo file(path);
    const qint64 seconds = file.lastModified().toSecsSinceEpoch();
    const qint64 length = file.size();
    return seconds == databaseTime.toSecsSinceEpoch() && length == databaseLength;
}

std::optional<Refusal> startupRefusal(const QString& basePath)
{
    if (Platform::current().previousInstance())
        return Refusal{"Cannot start more than one copy of Kestrel Reader (PT).",
                       "Kestrel Reader (PT) is already running"};
    if (!isPresent(basePath + clipFileName))
        return Refusal{"Couldn't find file 'SEARCH.AVI'. Please run Setup.", applicationTitle};
    if (!isPresent(basePath + databaseFileName))
        return Refusal{"Couldn't find file 'KESTRPT.DAT'. Please run Setup.", applicationTitle};
    if (!isUnmodified(basePath + databaseFileName))
        return Refusal{"Can't continue; file 'KESTRPT.DAT' has been modified. "
                       "Please uninstall the program then run Setup again.",
                       applicationTitle};
    return {};
}
