#pragma once

class QKeyEvent;
class QWidget;

/// Lets an arrow or page key scroll the nearest of the scroll areas around a widget that has something to
/// scroll that way. False when the key is another one, or none of them has.
bool scrollByKey(const QWidget& widget, const QKeyEvent& event);
