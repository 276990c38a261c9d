#include "widgets/ListModel.h"

#include "widgets/Text.h"
#include "widgets/TypeAhead.h"

void ListModel::setLines(ListLines lines)
{
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_lines.count();
}

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return toText(m_lines.line(index.row()));
}

QModelIndexList ListModel::match(const QModelIndex& start, int, const QVariant& value, int,
                                 Qt::MatchFlags) const
{
    return rowOfTyped(start, value.toString());
}
