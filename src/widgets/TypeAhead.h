#pragma once

#include <QAbstractItemModel>

/// Where typed letters lead in a list: the row at start or the next one after it, round the end, that they
/// begin, in any letter case. A leading blank does not count, and an article after it is skipped where the
/// letters do not begin with it: "sow" finds " The Sower". To be given back by a model's match().
QModelIndexList rowOfTyped(const QModelIndex& start, const QString& typed);
