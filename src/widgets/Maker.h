#pragma once

#include <array>
#include <QString>

/// Who made the program and how to reach them, in one place. All of it is a placeholder on a domain that
/// is reserved for examples; whoever distributes the program puts their own here.
namespace Maker {

/// The author as the information box lists them: name, profession, street, district with postal code, city
/// and country, telephone numbers.
inline const std::array<QString, 6> authorLines = {
    QStringLiteral("The Kestrel Reader Project"), QStringLiteral("Programmers"),
    QStringLiteral("1 Example Street"),           QStringLiteral("Exampleton 00000"),
    QStringLiteral("Example City, Exampleland"),  QStringLiteral("Tel.: 555-0100, 555-0101"),
};

inline const QString mail = QStringLiteral("author@kestrel-reader.example");
inline const QString secondMail = QStringLiteral("project@kestrel-reader.example");

inline const QString webSite = QStringLiteral("https://www.kestrel-reader.example/");
inline const QString secondWebSite = QStringLiteral("https://mirror.kestrel-reader.example/");

/// Where the maker's other programs can be downloaded.
inline const std::array<QString, 3> downloads = {
    QStringLiteral("https://www.kestrel-reader.example/download/english/"),
    QStringLiteral("https://www.kestrel-reader.example/download/spanish/"),
    QStringLiteral("https://www.kestrel-reader.example/download/french/"),
};

} // namespace Maker
