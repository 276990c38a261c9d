#include "help/HelpLink.h"

#include <QStringList>
#include <QUrlQuery>

bool isLinkForTheDesktop(const QUrl& link)
{
    if (!link.isValid())
        return false;
    if (link.scheme() == "http" || link.scheme() == "https")
        return !link.host().isEmpty();
    if (link.scheme() != "mailto")
        return false;
    static const QStringList harmless = {"subject", "body", "cc"};
    for (const auto& [field, value] : QUrlQuery(link).queryItems(QUrl::FullyDecoded))
        if (!harmless.contains(field.toLower()))
            return false;
    return true;
}
