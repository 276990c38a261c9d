#pragma once

#include <QStandardItemModel>

/// The entries of the list of topics, found by what is typed though each begins with a blank.
class TopicModel : public QStandardItemModel
{
    Q_OBJECT

public:
    using QStandardItemModel::QStandardItemModel;

    /// What is typed in the list, whatever the role and flags.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;
};
