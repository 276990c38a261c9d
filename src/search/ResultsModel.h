#pragma once

#include "search/ResultLines.h"
#include <QAbstractListModel>

/// Hands the lines to the view, which asks only for those it shows.
class ResultsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    const ResultLines& lines() const { return m_lines; }
    void setLines(ResultLines lines);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    ResultLines m_lines;
};
