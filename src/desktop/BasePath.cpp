#include "desktop/BasePath.h"

#include <QDir>

QString withSeparator(QString directory)
{
    directory = QDir::toNativeSeparators(directory);
    if (!directory.endsWith(QDir::separator()))
        directory += QDir::separator();
    return directory;
}
