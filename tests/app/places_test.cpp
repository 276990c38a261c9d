// Where the controls of each window stand, against tests/app/places.tsv.
#include "support/Session.h"
#include "support/Windows.h"
#include <QFile>

namespace {

class Places : public Session, public testing::WithParamInterface<WindowRow>
{
};

QStringList designedPlaces(const QString& window)
{
    QFile file(KESTREL_SOURCE_DIR "/tests/app/places.tsv");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("tests/app/places.tsv cannot be read");
    QStringList places;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (line.startsWith(window + '\t'))
            places << line.section('\t', 1);
    return places;
}

/// Of the controls that bear these names, one line each, in the order of their making.
QStringList places(const QWidget& window, const QSet<QString>& names)
{
    QStringList found;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const QRect place = control->geometry();
        if (names.contains(control->objectName()))
            found << QString("%1\t%2 %3\t%4 x %5")
                         .arg(control->objectName())
                         .arg(place.x())
                         .arg(place.y())
                         .arg(place.width())
                         .arg(place.height());
    }
    found.sort();
    return found;
}

} // namespace

TEST_P(Places, AreAsDesigned)
{
    const QStringList designed = designedPlaces(GetParam().name);
    QSet<QString> names;
    for (const QString& place : designed)
        names << place.section('\t', 0, 0);
    const bool opened = withWindow(GetParam(), [&](QWidget& window) {
        EXPECT_EQ(places(window, names).join('\n').toStdString(), designed.join('\n').toStdString());
    });
    EXPECT_TRUE(opened);
}

INSTANTIATE_TEST_SUITE_P(ChildWindows, Places, testing::ValuesIn([] {
                             QList<WindowRow> rows;
                             for (const WindowRow& row : windowTable())
                                 if (row.kind == "child")
                                     rows << row;
                             return std::vector<WindowRow>(rows.begin(), rows.end());
                         }()),
                         [](const auto& row) { return row.param.name.toStdString(); });
