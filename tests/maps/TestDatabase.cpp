#include "maps/TestDatabase.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QVariant>
#include <sqlite3.h>
#include <stdexcept>

namespace {

const QList<std::pair<QString, QString>> files = {
    {"events", "Events"}, {"miracles", "Miracles"}, {"parables", "Parables"}, {"prophecy", "Prophecy"}};

class Writer
{
public:
    explicit Writer(const QString& path)
    {
        QFile::remove(path);
        sqlite3_open(path.toUtf8().constData(), &m_connection);
        run("BEGIN", {});
    }

    ~Writer()
    {
        run("COMMIT", {});
        sqlite3_close(m_connection);
    }

    /// Byte arrays are bound as they are, all else as text.
    void run(const char* sql, const QVariantList& values)
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(m_connection, sql, -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_connection));
        int position = 0;
        for (const QVariant& value : values) {
            const QByteArray bytes = value.toByteArray();
            const int size = static_cast<int>(bytes.size());
            ++position;
            if (value.typeId() == QMetaType::QByteArray)
                sqlite3_bind_blob(statement, position, bytes.constData(), size, SQLITE_TRANSIENT);
            else if (value.typeId() == QMetaType::Int)
                sqlite3_bind_int(statement, position, value.toInt());
            else
                sqlite3_bind_text(statement, position, bytes.constData(), size, SQLITE_TRANSIENT);
        }
        const int result = sqlite3_step(statement);
        sqlite3_finalize(statement);
        if (result != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(m_connection));
    }

private:
    sqlite3* m_connection = nullptr;
};

QImage drawnMap(int width, int height, int dotsPerInch)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
    image.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
    image.fill(QColor("wheat"));
    QPainter painter(&image);
    painter.setPen(QPen(Qt::darkBlue, 3));
    painter.drawEllipse(image.rect().adjusted(10, 10, -10, -10));
    return image;
}

QByteArray fileOf(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

void addTopics(Writer& writer)
{
    for (const auto& [file, type] : files)
        for (const Topic& topic : topicsOf(file))
            writer.run("INSERT INTO ClassifiedVerses (Name, VerseList, Type) VALUES (?, ?, ?)",
                       {topic.name, topic.references.join('\\'), type});
}

void addVerses(Writer& writer)
{
    QStringList keys;
    for (const auto& [file, type] : files)
        for (const Topic& topic : topicsOf(file))
            for (const QString& reference : topic.references)
                keys += reference.section('-', 0, 0);
    keys.removeDuplicates();
    // The verses whose keys begin as Mt:5:3 does come after it, as they do in the text.
    keys.removeIf([](const QString& key) { return key.startsWith("Mt:5:3") && key != "Mt:5:3"; });
    for (int verse = 30; verse < 40; ++verse)
        keys += QString("Mt:5:%1").arg(verse);
    int number = 0;
    for (const QString& key : keys)
        writer.run("INSERT INTO NewTestament VALUES (?, ?, ?)", {key, ++number, "palavra de " + key});
}

void addMaps(Writer& writer)
{
    const QByteArray picture = fileOf(drawnMap(400, 300, 192), "PNG");
    const QList<std::pair<QByteArray, QString>> maps = {
        {picture, "The Journeys of Abraham"},
        {fileOf(drawnMap(300, 200, 96), "PPM"), "Plain"},
        {"no picture at all", "Damaged"},
        {"P6 60000 60000 255\n", "Endless"},
        {fileOf(drawnMap(3000, 2400, 192), "PNG"), "Large"},
        {"", "Empty"},
        {fileOf(drawnMap(30, 20, 1), "PNG"), "Sparse"},
        {picture.left(picture.size() / 2), "Cut"},
        {picture, "Ninth & Last <b>but Two</b>"},
        {picture, "Tenth"},
        {fileOf(drawnMap(420, 280, 192), "PNG"), "The Journey to Rome"},
    };
    int number = 0;
    for (const auto& [bytes, description] : maps)
        writer.run("INSERT INTO NTMaps VALUES (?, ?, ?)", {++number, description, bytes});
}

} // namespace

QList<Topic> topicsOf(const QString& file)
{
    QFile list(QString(KESTREL_SOURCE_DIR "/data/topics/%1.txt").arg(file));
    if (!list.open(QIODevice::ReadOnly))
        throw std::runtime_error("no list of topics: " + list.fileName().toStdString());
    QList<Topic> topics;
    for (const QString& line : QString::fromUtf8(list.readAll()).split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#'))
            topics += {line.section('\t', 0, 0), line.section('\t', 1).split(' ')};
    return topics;
}

void makeTestDatabase(const QString& path)
{
    Writer writer(path);
    writer.run("CREATE TABLE NewTestament (VerseId TEXT, VerseNumber INTEGER PRIMARY KEY, KJVerseText TEXT)",
               {});
    writer.run("CREATE TABLE ClassifiedVerses (TopicId INTEGER PRIMARY KEY, Name TEXT, VerseList TEXT, "
               "Type TEXT)",
               {});
    writer.run("CREATE TABLE NTMaps (MapNumber INTEGER PRIMARY KEY, MapDesc TEXT, Pic BLOB)", {});
    addVerses(writer);
    addTopics(writer);
    addMaps(writer);
}
