#pragma once

#include <QString>
#include <QUrl>

/// What the About window's buttons show. Lines are parted by CR LF.
QString informationText();
QString donationText();
QString discOfferText();

/// The "mailto:" link to the author.
QUrl mailLink();
