#pragma once

#include "widgets/ListLines.h"
#include <QAbstractListModel>

/// Hands the lines of a list box to its view, which asks only for those it shows.
class ListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    const ListLines& lines() const { return m_lines; }
    void setLines(ListLines lines);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// What is typed in the list, whatever the role and flags.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    ListLines m_lines;
};
