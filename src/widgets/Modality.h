#pragma once

class QWidget;

/// Whether a modal window keeps a widget from being used. Qt keeps mouse and keys from it, but neither an
/// assistive program's press nor a timer's tick.
bool isBehindModalWindow(const QWidget& widget);
