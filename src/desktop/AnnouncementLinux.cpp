// How Platform lets a screen reader speak, over the connection that Qt holds to AT-SPI's bus. Qt has no
// announcement before 6.8.
#include "desktop/AnnouncementLinux.h"

#include "desktop/Platform.h"
#include <QAccessible>
#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QWidget>

namespace {

void send(const QDBusConnection& bus, QWidget& from, const QString& event, const QString& kind,
          const QString& text)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&from);
    if (!spoken)
        return;
    const QString path = "/org/a11y/atspi/accessible/" + QString::number(QAccessible::uniqueId(spoken));
    QDBusMessage signal = QDBusMessage::createSignal(path, "org.a11y.atspi.Event.Object", event);
    signal << kind << 0 << 0 << QVariant::fromValue(QDBusVariant(text)) << QVariantMap();
    bus.send(signal);
}

/// Whether some assistive program listens for announcements, by AT-SPI's registry, whose answer lists pairs
/// of a program and an event. Without such a list we cannot know, and count on one that does.
bool isHeard(const QDBusMessage& registered)
{
    if (registered.signature() != "a(ss)")
        return true; // and Qt would complain of such an answer on standard error
    const QDBusArgument pairs = registered.arguments().value(0).value<QDBusArgument>();
    bool heard = false;
    pairs.beginArray();
    while (!pairs.atEnd()) {
        QString program;
        QString event;
        pairs.beginStructure();
        pairs >> program >> event;
        pairs.endStructure();
        heard = heard || event.contains("announcement", Qt::CaseInsensitive);
    }
    pairs.endArray();
    return heard;
}

/// Orca before 45 knows no announcement, but speaks a new description of the control with the focus. It keeps
/// what it is told, so the control's own follows at once.
void sendAsDescription(const QDBusConnection& bus, const QString& text)
{
    QWidget* const control = QApplication::focusWidget();
    QAccessibleInterface* spoken = control ? QAccessible::queryAccessibleInterface(control) : nullptr;
    if (!spoken)
        return;
    send(bus, *control, "PropertyChange", "accessible-description", text);
    send(bus, *control, "PropertyChange", "accessible-description", spoken->text(QAccessible::Description));
}

} // namespace

void announceOver(const QDBusConnection& bus, QWidget& about, const QString& text)
{
    const QDBusMessage ask =
        QDBusMessage::createMethodCall("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                                       "org.a11y.atspi.Registry", "GetRegisteredEvents");
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(ask), &about);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &about, [bus, &about, answer, text] {
        if (isHeard(answer->reply()))
            send(bus, about, "Announcement", {}, text);
        else
            sendAsDescription(bus, text);
        answer->deleteLater();
    });
}

void Platform::announce(QWidget& about, const QString& text)
{
    const QDBusConnection bus("a11y");
    if (QAccessible::isActive() && bus.isConnected())
        announceOver(bus, about, text);
}
