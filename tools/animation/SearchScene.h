#pragma once

#include <QImage>

/// One moment of the picture shown during a search: a magnifying glass glides over the lines of an open book.
/// `moment` runs from 0 to 1; at 1 the picture is that of 0 again, so that the clip can be played round and
/// round.
QImage drawSearchScene(double moment);

inline constexpr int sceneWidth = 240;
inline constexpr int sceneHeight = 60;
