#include "search/ResultsModel.h"

#include "widgets/Text.h"

void ResultsModel::setLines(ResultLines lines)
{
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

int ResultsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_lines.count();
}

QVariant ResultsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return toText(m_lines.line(index.row()));
}
