#pragma once

#include <ostream>
#include <QByteArray>
#include <QColor>
#include <QDebug>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QUrl>

// How failed tests print values of Qt: as text. Every test of windows is compiled with this header, so that
// one type is printed in one way.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

/// All of them, one a line.
inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << texts.size() << " texts:";
    for (const QString& text : texts)
        *out << "\n    \"" << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QUrl& url, std::ostream* out)
{
    *out << url.toDisplayString().toStdString();
}

/// As qDebug() shows it.
template <class Value>
void printAsDebug(const Value& value, std::ostream* out)
{
    QString text;
    QDebug(&text).nospace() << value;
    *out << text.toStdString();
}

inline void PrintTo(const QSize& size, std::ostream* out)
{
    printAsDebug(size, out);
}

inline void PrintTo(const QPoint& point, std::ostream* out)
{
    printAsDebug(point, out);
}

inline void PrintTo(const QRect& rect, std::ostream* out)
{
    printAsDebug(rect, out);
}

inline void PrintTo(const QColor& color, std::ostream* out)
{
    printAsDebug(color, out);
}
