#pragma once

#include <QString>

class QDBusConnection;
class QWidget;

/// Lets a screen reader speak a text about a widget, over a connection to AT-SPI's bus, once AT-SPI's
/// registry has answered who listens. It comes to nothing if the widget has gone by then.
void announceOver(const QDBusConnection& bus, QWidget& about, const QString& text);
