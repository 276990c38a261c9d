#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A topic of the lists that are shipped.
struct Topic
{
    QString name;
    QStringList references;
};

/// The topics of one of the files in data/topics, in their order.
QList<Topic> topicsOf(const QString& file);

/// Writes a database with all topics, the verses at which their references start, and a few maps.
void makeTestDatabase(const QString& path);

/// The maps of that database.
constexpr int denseMap = 1;   ///< 400 x 300 pixels, 192 dots per inch: 200 x 150 at their natural size
constexpr int plainMap = 2;   ///< 300 x 200 pixels, of no resolution
constexpr int damagedMap = 3; ///< not a picture
constexpr int endlessMap = 4; ///< declares 60,000 x 60,000 pixels
constexpr int largeMap = 5;   ///< 3000 x 2400 pixels, 192 dots per inch: larger than the frame
constexpr int emptyMap = 6;   ///< no bytes at all
constexpr int sparseMap = 7;  ///< 30 x 20 pixels of an inch each
constexpr int cutMap = 8;     ///< the first half of a picture
constexpr int lastMap = 11;   ///< 420 x 280 pixels, 192 dots per inch
