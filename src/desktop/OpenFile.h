#pragma once

#include <QFile>
#include <QFileInfo>

/// Opens a file for reading. False when it is none, or may not be read. The kind of file is asked first,
/// because opening a pipe would wait for its writer.
inline bool openForReading(QFile& file)
{
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
}
