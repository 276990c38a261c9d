#include "help/HelpBrowser.h"

#include "desktop/Platform.h"
#include "help/HelpLink.h"
#include "pictures/LinkColor.h"
#include "widgets/Twips.h"
#include <algorithm>
#include <QTextDocument>

namespace {

const QString pageScheme = QStringLiteral("page");

bool contains(const HelpPage& page, const QString& text)
{
    QTextDocument document;
    document.setHtml(page.html);
    return !document.find(text).isNull();
}

QUrl addressOf(const QString& pageName)
{
    return QUrl(pageScheme + ":" + pageName);
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent)
{
    document()->setDefaultStyleSheet(
        "a { color: " + linkColor(palette(), QPalette::Base, QPalette::Text).name() + "; }");
    document()->setDocumentMargin(toPixels(180));
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
}

void HelpBrowser::setPages(const QList<HelpPage>& pages)
{
    m_pages = pages;
    if (!source().isEmpty())
        reload();
}

void HelpBrowser::showPage(const QString& name)
{
    setSource(addressOf(name), QTextDocument::HtmlResource);
}

QString HelpBrowser::page() const
{
    return source().path();
}

bool HelpBrowser::findText(const QString& text, bool backward)
{
    const QTextDocument::FindFlags direction =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (find(text, direction))
        return true;
    const auto here = std::find_if(m_pages.begin(), m_pages.end(),
                                   [this](const HelpPage& one) { return one.name == page(); });
    const qsizetype count = m_pages.size();
    const qsizetype start = here - m_pages.begin();
    for (qsizetype step = 1; step <= count; ++step) {
        const HelpPage& other = m_pages[(start + (backward ? count - step : step)) % count];
        if (!contains(other, text))
            continue;
        showPage(other.name);
        moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
        return find(text, direction);
    }
    return false;
}

QVariant HelpBrowser::loadResource(int, const QUrl& name)
{
    for (const HelpPage& page : m_pages)
        if (name == addressOf(page.name))
            return page.html;
    return QByteArray(""); // nothing else is loaded, least of all from a file
}

void HelpBrowser::follow(const QUrl& link)
{
    if (link.scheme() == pageScheme)
        showPage(link.fragment());
    else if (isLinkForTheDesktop(link))
        Platform::current().openLink(link);
}
