#include "maps/TopicModel.h"

#include "widgets/TypeAhead.h"

QModelIndexList TopicModel::match(const QModelIndex& start, int, const QVariant& value, int,
                                  Qt::MatchFlags) const
{
    return rowOfTyped(start, value.toString());
}
