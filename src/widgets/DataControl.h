#pragma once

#include "store/DataSource.h"
#include <QObject>

/// A data source as one of a window's controls: it has a name, belongs to its window, and brings the record
/// source that the window's design gives it.
class DataControl : public QObject, public DataSource
{
    Q_OBJECT

public:
    DataControl(const QString& name, const std::string& designerRecordSource, QObject* window)
        : QObject(window)
    {
        setObjectName(name);
        setRecordSource(designerRecordSource);
    }
};
