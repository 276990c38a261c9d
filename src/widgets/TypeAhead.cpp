#include "widgets/TypeAhead.h"

namespace {

bool isMeant(const QString& line, const QString& typed)
{
    const QString text = line.trimmed();
    if (text.startsWith(typed, Qt::CaseInsensitive))
        return true;
    for (const QLatin1String article : {QLatin1String("The "), QLatin1String("A "), QLatin1String("An ")})
        if (text.startsWith(article) &&
            QStringView(text).mid(article.size()).startsWith(typed, Qt::CaseInsensitive))
            return true;
    return false;
}

} // namespace

QModelIndexList rowOfTyped(const QModelIndex& start, const QString& typed)
{
    if (!start.isValid())
        return {};
    const int rows = start.model()->rowCount(start.parent());
    for (int step = 0; step < rows; ++step) {
        const QModelIndex row = start.siblingAtRow((start.row() + step) % rows);
        if (isMeant(row.data().toString(), typed))
            return {row};
    }
    return {};
}
