#include "importer/Unicode.h"

#include <QChar>
#include <QString>
#include <QStringDecoder>

std::optional<std::u32string> fromUtf8(std::string_view text)
{
    // A byte-order mark is kept as a character, so that no caller overlooks it.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString decoded = decoder.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    if (decoder.hasError())
        return std::nullopt;
    return decoded.toStdU32String();
}

std::string toUtf8(std::u32string_view text)
{
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size())).toStdString();
}

bool isLetter(char32_t character)
{
    return QChar::isLetter(character);
}

bool isControl(char32_t character)
{
    return QChar::category(character) == QChar::Other_Control;
}
