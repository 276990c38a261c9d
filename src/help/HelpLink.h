#pragma once

#include <QUrl>

/// Whether a link of the help may be handed to the desktop: a web address, or a mail address with a subject
/// and a text at most. A mail program might take other fields of a link for files to attach.
bool isLinkForTheDesktop(const QUrl& link);
