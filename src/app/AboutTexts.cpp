#include "app/AboutTexts.h"

#include "app/Version.h"
#include "widgets/Maker.h"
#include <QStringList>

namespace {

QString joined(const QStringList& lines)
{
    return lines.join("\r\n");
}

QString postalAddress()
{
    return joined(QStringList(Maker::authorLines.begin(), Maker::authorLines.end()));
}

} // namespace

QString informationText()
{
    return joined({
        QString("Version: %1pt").arg(programVersion),
        "",
        "Please report bugs and suggestions to the programmer:",
        postalAddress(),
        "E-mail: " + Maker::mail,
        "Or: " + Maker::secondMail,
        "",
        "Visit the Kestrel Reader sites on the world-wide-web at:",
        Maker::webSite,
        Maker::secondWebSite,
        "",
        "See also:",
        joined(QStringList(Maker::downloads.begin(), Maker::downloads.end())),
    });
}

QString donationText()
{
    return joined({
        "To close this window, press ESC.",
        "",
        "Kestrel Reader is freeware. Nobody has to pay for it: you may use it for as long as you like, "
        "on as many computers as you like, and give copies to your friends, your school or your church.",
        "",
        "If the program is useful to you and you would like to say thank you, you can support the work "
        "on it with a gift of any size. These amounts, in the money of your country, are suggestions and "
        "nothing more:",
        "",
        "    5 for a reader at home",
        "    20 for a group, a class or a library",
        "    50 for a church or a school",
        "",
        "A gift buys no extra features and no special version; there are none. The program will not ask "
        "again, it does not count days, and everything in it works whether you give or not.",
        "",
        "Please write first, to the address that follows, and ask how a gift can reach us:",
        "",
        postalAddress(),
        Maker::mail,
        "",
        "Thank you for reading.",
    });
}

QString discOfferText()
{
    return joined({
        "To close this window, press ESC.",
        "",
        "The QORV CD-ROM is a multimedia companion to Kestrel Reader, for readers who would rather have "
        "everything on one disc than fetch it piece by piece. It holds:",
        "",
        "    the free editions of Kestrel Reader in other languages;",
        "    a spoken reading of selected chapters, to hear while you follow the text;",
        "    pictures of the places on the maps, in large size;",
        "    larger, printable copies of all eleven maps.",
        "",
        "You do not need the disc to use this program, which is freeware and complete as it is. The "
        "price of the disc covers making and posting it.",
        "",
        "To ask whether the disc is available and what it costs to post it to your country, please write to:",
        "",
        postalAddress(),
        Maker::mail,
        "",
        "Or see our web site: " + Maker::webSite,
    });
}

QUrl mailLink()
{
    return QUrl("mailto:" + Maker::mail);
}
